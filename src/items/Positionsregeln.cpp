#include "items/Positionsregeln.h"

#include "doctest/Feldpruefung.h"
#include "errors/TestFehler.h"
#include "state/TestDaten.h"
#include "state/Verweise.h"

namespace zepholt {

std::optional<Positionsort> SucheOrt(std::int32_t kapitel, std::int32_t position, std::int32_t kapitelFehlt,
                                     std::int32_t positionFehlt) {
    LetzterOrt& letzter = sia451Datei.ZuletztGesucht;
    if (letzter.Kapitel == kapitel && letzter.Position == position) {
        return letzter.Ort; // entries neither move nor go
    }
    const std::int32_t kapitelIndex = SucheKapitel(kapitel);
    if (kapitelIndex == -1) {
        FehlerMelden(kapitelFehlt);
        return std::nullopt;
    }
    const std::int32_t positionIndex = SuchePosition(kapitelIndex, position);
    if (positionIndex == -1) {
        FehlerMelden(positionFehlt);
        return std::nullopt;
    }
    PositionEintrag& eintrag = Kapitel(kapitelIndex).Positionen[static_cast<std::size_t>(positionIndex)];
    letzter = {kapitel, position, {kapitelIndex, positionIndex, &eintrag}};
    return letzter.Ort;
}

void PruefePreisvorzeichen(const Betrag& preis, std::int32_t unzulaessig, std::int32_t vorzeichenFehlt) {
    if (preis.Vorzeichen.empty()) {
        if (!preis.Leer) {
            FehlerMelden(vorzeichenFehlt);
        }
    } else if (preis.Vorzeichen != u"-" && preis.Vorzeichen != u"+") {
        FehlerMelden(unzulaessig);
    }
}

void PruefePreisart(Feldsicht preisart) {
    if (NeueSchnittstelle() && !preisart.empty() && TextSicht(u"AFINR").find(preisart.front()) == TextSicht::npos) {
        FehlerMelden(4521);
    }
}

void PruefeLeereFelder(std::span<const Feldbereich> felder, const Spaltenmenge& spalten) {
    if (!testDaten.Record.Arten().Gefuellt.TrifftAuf(spalten)) {
        return;
    }
    for (const Feldbereich& feld : felder) {
        if (!FeldLeer(feld.Spalte, feld.Laenge)) {
            FehlerHinzufuegen(2032, feld.Spalte);
        }
    }
}

} // namespace zepholt
