#include "doctest/Feldregeln.h"

#include "doctest/Feldpruefung.h"
#include "errors/TestFehler.h"
#include "intake/TestDaten.h"

namespace zepholt {

std::int32_t ReihenfolgeFeld(std::int32_t spalte, std::int32_t laenge) {
    const std::int32_t reihenfolge = ZahlFeld(spalte, laenge, Freiwillig);
    if (testDaten.Revision < 12) {
        return reihenfolge;
    }
    if (!TextFeld(spalte, laenge, Freiwillig).empty()) {
        FehlerMelden(3208);
    }
    return 0;
}

double MitVorzeichen(TextSicht vorzeichen, double betrag, bool betragLeer, const VorzeichenCodes& codes) {
    if (vorzeichen.empty()) {
        if (!betragLeer) {
            FehlerMelden(codes.VorzeichenFehlt);
        }
        return betrag;
    }

    if (vorzeichen != u"-" && vorzeichen != u"+") {
        FehlerMelden(codes.Unzulaessig);
    }
    if (betragLeer) {
        FehlerMelden(codes.BetragFehlt);
        return betrag;
    }
    return vorzeichen == u"-" ? -betrag : betrag;
}

} // namespace zepholt
