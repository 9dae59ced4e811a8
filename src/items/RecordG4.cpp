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
#include <array>

namespace zepholt {

namespace {

struct Zuordnungssatz {
    std::int32_t Kapitel;
    std::int32_t Position;
    Feldsicht Spezifikation;
    ZuordnungEintrag Eintrag;
};

Zuordnungssatz LiesG4() {
    Zuordnungssatz satz = {};
    ZuordnungEintrag& eintrag = satz.Eintrag;
    satz.Kapitel = ZahlFeld(2, 3, Zwingend);                                   // G4:2a
    satz.Position = ZahlFeld(8, 6, Zwingend);                                  // G4:3
    eintrag.OGL = SchluesselFeld(18, 6, JokerAmEnde, Freiwillig);              // G4:6
    eintrag.PSL = SchluesselFeld(24, 6, JokerAmEnde, Freiwillig);              // G4:7
    eintrag.Variantengruppe = SchluesselFeld(30, 3, JokerAmEnde, Freiwillig);  // G4:8
    eintrag.Variante = SchluesselFeld(33, 3, JokerAmEnde, Freiwillig);         // G4:9
    eintrag.KAG = SchluesselFeld(82, 5, JokerAmEnde, Freiwillig);              // G4:21
    eintrag.Element = SchluesselFeld(87, 6, JokerAmEnde, Freiwillig);          // G4:22
    eintrag.Einrichtungstyp = SchluesselFeld(129, 6, JokerAmEnde, Freiwillig); // G4:24b
    satz.Spezifikation = TextFeld(135, 1, Freiwillig);                         // G4:24c
    eintrag.Nutzung = SchluesselFeld(168, 16, JokerAmEnde, Freiwillig);        // G4:24f
    eintrag.Raum = SchluesselFeld(188, 16, JokerAmEnde, Freiwillig);           // G4:24g
    eintrag.Reihenfolge = ReihenfolgeFeld(136, 2);                             // G4:24d, 3208
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

void PruefeG4Verweise(const ZuordnungEintrag& eintrag, bool stern, bool einrichtungErlaubt) {
    // The star belongs to the furnishing type: one without the other is a fault in a chapter that has no furnishing.
    const bool zuViel = stern && !einrichtungErlaubt;
    const bool zuWenig = !stern && !einrichtungErlaubt;

    PruefeMitSpezifikation(eintrag.OGL, OGLGefunden, 4411, zuViel, 4412);
    PruefeUnterverweis(eintrag.OGL, eintrag.PSL, PSLGefunden, {4413, 4414, 4415});
    PruefeMitSpezifikation(eintrag.KAG, KAGGefunden, 4421, zuViel, 4422);
    PruefeMitSpezifikation(eintrag.Element, EKGGefunden, 4431, zuViel, 4432);
    PruefeMitSpezifikation(eintrag.Variantengruppe, VariantengruppeGefunden, 4441, zuViel, 4442);
    PruefeUnterverweis(eintrag.Variantengruppe, eintrag.Variante, VarianteGefunden, {4443, 4444, 4445});
    PruefeMitSpezifikation(eintrag.Einrichtungstyp, EinrichtungGefunden, 4451, zuWenig, 4452);
    PruefeMitSpezifikation(eintrag.Nutzung, NutzungGefunden, 4491, zuViel, 4492);
    PruefeMitSpezifikation(eintrag.Raum, RaumGefunden, 4495, zuViel, 4496);
}

bool HatVerweisMitJoker(const ZuordnungEintrag& eintrag) {
    const std::array<Feldsicht, 9> verweise = {eintrag.OGL,
                                               eintrag.PSL,
                                               eintrag.KAG,
                                               eintrag.Element,
                                               eintrag.Variantengruppe,
                                               eintrag.Variante,
                                               eintrag.Einrichtungstyp,
                                               eintrag.Nutzung,
                                               eintrag.Raum};
    return std::ranges::any_of(verweise, HatJoker);
}

} // namespace

void PruefeG4() {
    const Zuordnungssatz satz = LiesG4();
    const ZuordnungEintrag& eintrag = satz.Eintrag;

    const std::optional<Positionsort> ort = SucheOrt(satz.Kapitel, satz.Position, 4401, 4402);
    if (!ort) {
        return;
    }
    if (satz.Position % 10 != 0) {
        return FehlerMelden(4403);
    }
    PositionEintrag& position = ort->Eintrag();

    const bool stern = SternGesetzt(satz.Spezifikation);
    PruefeG4Verweise(eintrag, stern, EinrichtungErlaubt(satz.Kapitel));
    if (ReihenfolgeVergeben(position, eintrag.Reihenfolge)) {
        FehlerMelden(4471);
    }
    if (NeueSchnittstelle() && HatVerweisMitJoker(eintrag)) {
        FehlerMelden(4481);
    }

    position.Zuordnungen.push_back(eintrag);
    ReihenfolgeMerken(position, eintrag.Reihenfolge);
}

} // namespace zepholt
