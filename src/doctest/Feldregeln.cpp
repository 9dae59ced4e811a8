#include "doctest/Feldregeln.h"

#include "errors/TestFehler.h"
#include "state/TestDaten.h"

namespace zepholt {

std::int32_t ReihenfolgeFeld(std::int32_t spalte, std::int32_t laenge) {
    const std::int32_t reihenfolge = ZahlFeld(spalte, laenge, Freiwillig);
    if (!NeueSchnittstelle()) {
        return reihenfolge;
    }
    if (!TextFeld(spalte, laenge, Freiwillig).empty()) {
        FehlerMelden(3208);
    }
    return 0;
}

void PruefeVorzeichen(const Betrag& betrag, const VorzeichenCodes& codes) {
    if (betrag.Vorzeichen.empty()) {
        if (!betrag.Leer) {
            FehlerMelden(codes.VorzeichenFehlt);
        }
        return;
    }
    if (betrag.Vorzeichen != u"-" && betrag.Vorzeichen != u"+") {
        FehlerMelden(codes.Unzulaessig);
    }
    if (betrag.Leer) {
        FehlerMelden(codes.BetragFehlt);
    }
}

} // namespace zepholt
