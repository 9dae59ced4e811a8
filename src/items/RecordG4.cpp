#include "items/RecordG.h"

#include "doctest/Feldpruefung.h"
#include "doctest/Feldregeln.h"
#include "doctest/Verweispruefung.h"
#include "errors/TestFehler.h"
#include "items/Positionsregeln.h"
#include "items/TestFunktionen.h"
#include "state/TestDaten.h"
#include "state/Verweise.h"

#include <algorithm>

namespace zepholt {

namespace {

struct Zuordnungssatz {
    std::int32_t Kapitel;
    std::int32_t Position;
    Verweissatz Verweise;
    Feldsicht Spezifikation;
    std::int32_t Reihenfolge; // 0 in the new interface
};

Zuordnungssatz LiesG4() {
    Zuordnungssatz satz = {};
    Verweissatz& verweise = satz.Verweise;
    satz.Kapitel = ZahlFeld(2, 3, Zwingend);                                    // G4:2a
    satz.Position = ZahlFeld(8, 6, Zwingend);                                   // G4:3
    verweise.OGL = SchluesselFeld(18, 6, JokerAmEnde, Freiwillig);              // G4:6
    verweise.PSL = SchluesselFeld(24, 6, JokerAmEnde, Freiwillig);              // G4:7
    verweise.Variantengruppe = SchluesselFeld(30, 3, JokerAmEnde, Freiwillig);  // G4:8
    verweise.Variante = SchluesselFeld(33, 3, JokerAmEnde, Freiwillig);         // G4:9
    verweise.KAG = SchluesselFeld(82, 5, JokerAmEnde, Freiwillig);              // G4:21
    verweise.Element = SchluesselFeld(87, 6, JokerAmEnde, Freiwillig);          // G4:22
    verweise.Einrichtungstyp = SchluesselFeld(129, 6, JokerAmEnde, Freiwillig); // G4:24b
    satz.Spezifikation = TextFeld(135, 1, Freiwillig);                          // G4:24c
    verweise.Nutzung = SchluesselFeld(168, 16, JokerAmEnde, Freiwillig);        // G4:24f
    verweise.Raum = SchluesselFeld(188, 16, JokerAmEnde, Freiwillig);           // G4:24g
    satz.Reihenfolge = ReihenfolgeFeld(136, 2);                                 // G4:24d, 3208
    return satz;
}

// True when G4:24c holds the star; any other character counts as none.
bool SternGesetzt(Feldsicht spezifikation) {
    if (!spezifikation.empty() && spezifikation != u"*") {
        FehlerMelden(4461);
    }
    return spezifikation == u"*";
}

// A reference of the first level, and behind it the fault of a furnishing detail that does not go with it.
void PruefeMitSpezifikation(Feldsicht code, bool (*gefunden)(Feldsicht), std::int32_t unbekannt,
                            bool spezifikationFalsch, std::int32_t codeSpezifikation) {
    PruefeVerweis(code, gefunden, unbekannt);
    if (!code.empty() && spezifikationFalsch) {
        FehlerMelden(codeSpezifikation);
    }
}

void PruefeG4Verweise(const Verweissatz& verweise, bool stern, bool einrichtungErlaubt) {
    // The star belongs to the furnishing type: one without the other is a fault in a chapter that has no furnishing.
    const bool zuViel = stern && !einrichtungErlaubt;
    const bool zuWenig = !stern && !einrichtungErlaubt;

    PruefeMitSpezifikation(verweise.OGL, OGLGefunden, 4411, zuViel, 4412);
    PruefeUnterverweis(verweise.OGL, verweise.PSL, PSLGefunden, {4413, 4414, 4415});
    PruefeMitSpezifikation(verweise.KAG, KAGGefunden, 4421, zuViel, 4422);
    PruefeMitSpezifikation(verweise.Element, EKGGefunden, 4431, zuViel, 4432);
    PruefeMitSpezifikation(verweise.Variantengruppe, VariantengruppeGefunden, 4441, zuViel, 4442);
    PruefeUnterverweis(verweise.Variantengruppe, verweise.Variante, VarianteGefunden, {4443, 4444, 4445});
    PruefeMitSpezifikation(verweise.Einrichtungstyp, EinrichtungGefunden, 4451, zuWenig, 4452);
    PruefeMitSpezifikation(verweise.Nutzung, NutzungGefunden, 4491, zuViel, 4492);
    PruefeMitSpezifikation(verweise.Raum, RaumGefunden, 4495, zuViel, 4496);
}

} // namespace

void PruefeG4() {
    const Zuordnungssatz satz = LiesG4();

    const std::optional<Positionsort> ort = SucheOrt(satz.Kapitel, satz.Position, 4401, 4402);
    if (!ort) {
        return;
    }
    if (satz.Position % 10 != 0) {
        return FehlerMelden(4403);
    }
    PositionEintrag& position = *ort->Eintrag;

    const bool stern = SternGesetzt(satz.Spezifikation);
    PruefeG4Verweise(satz.Verweise, stern, EinrichtungErlaubt(satz.Kapitel));
    if (ReihenfolgeVergeben(position, satz.Reihenfolge)) {
        FehlerMelden(4471);
    }
    if (NeueSchnittstelle() && std::ranges::any_of(satz.Verweise.Alle(), HatJoker)) {
        FehlerMelden(4481);
    }

    position.HatZuordnungen = true;
    ReihenfolgeMerken(position, satz.Reihenfolge);
}

} // namespace zepholt
