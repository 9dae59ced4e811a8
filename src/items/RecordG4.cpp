#include "items/RecordG.h"

#include "doctest/Feldpruefung.h"
#include "doctest/Feldregeln.h"
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
    TextSicht Spezifikation;
    ZuordnungEintrag Eintrag;
};

Zuordnungssatz LiesZuordnung() {
    Zuordnungssatz satz = {};
    ZuordnungEintrag& eintrag = satz.Eintrag;
    satz.Kapitel = ZahlFeld(2, 3, Zwingend);
    satz.Position = ZahlFeld(8, 6, Zwingend);
    eintrag.OGL = SchluesselFeld(18, 6, JokerAmEnde, Freiwillig);
    eintrag.PSL = SchluesselFeld(24, 6, JokerAmEnde, Freiwillig);
    eintrag.Variantengruppe = SchluesselFeld(30, 3, JokerAmEnde, Freiwillig);
    eintrag.Variante = SchluesselFeld(33, 3, JokerAmEnde, Freiwillig);
    eintrag.KAG = SchluesselFeld(82, 5, JokerAmEnde, Freiwillig);
    eintrag.Element = SchluesselFeld(87, 6, JokerAmEnde, Freiwillig);
    eintrag.Einrichtungstyp = SchluesselFeld(129, 6, JokerAmEnde, Freiwillig);
    satz.Spezifikation = TextFeld(135, 1, Freiwillig);
    eintrag.Nutzung = SchluesselFeld(168, 16, JokerAmEnde, Freiwillig);
    eintrag.Raum = SchluesselFeld(188, 16, JokerAmEnde, Freiwillig);
    eintrag.Reihenfolge = ReihenfolgeFeld(136, 2); // 3208
    return satz;
}

// True when G4:24c holds the star; any other character counts as none.
bool SternGesetzt(TextSicht spezifikation) {
    if (!spezifikation.empty() && spezifikation != u"*") {
        FehlerMelden(4461);
    }
    return spezifikation == u"*";
}

// A reference to one structure, and behind it the fault of a furnishing detail that does not go with it.
void PruefeBezug(TextSicht code, bool (*gefunden)(TextSicht), std::int32_t nichtDefiniert, bool spezifikationFalsch,
                 std::int32_t codeSpezifikation) {
    if (code.empty()) {
        return;
    }
    if (!gefunden(code)) {
        FehlerMelden(nichtDefiniert);
    }
    if (spezifikationFalsch) {
        FehlerMelden(codeSpezifikation);
    }
}

struct UnterbezugCodes {
    std::int32_t ObererFehlt;
    std::int32_t ObererMitJoker;
    std::int32_t NichtDefiniert;
};

// A reference below another one: at most one fault.
void PruefeUnterbezug(TextSicht oberer, TextSicht code, bool (*gefunden)(TextSicht, TextSicht),
                      const UnterbezugCodes& codes) {
    if (code.empty()) {
        return;
    }
    if (oberer.empty()) {
        FehlerMelden(codes.ObererFehlt);
    } else if (HatJoker(oberer)) {
        FehlerMelden(codes.ObererMitJoker);
    } else if (!gefunden(oberer, code)) {
        FehlerMelden(codes.NichtDefiniert);
    }
}

void PruefeBezuege(const ZuordnungEintrag& eintrag, bool stern, bool einrichtungErlaubt) {
    // The star belongs to the furnishing type: one without the other is a fault in a chapter that has no furnishing.
    const bool zuViel = stern && !einrichtungErlaubt;
    const bool zuWenig = !stern && !einrichtungErlaubt;

    PruefeBezug(eintrag.OGL, OGLGefunden, 4411, zuViel, 4412);
    PruefeUnterbezug(eintrag.OGL, eintrag.PSL, PSLGefunden, {4413, 4414, 4415});
    PruefeBezug(eintrag.KAG, KAGGefunden, 4421, zuViel, 4422);
    PruefeBezug(eintrag.Element, EKGGefunden, 4431, zuViel, 4432);
    PruefeBezug(eintrag.Variantengruppe, VariantengruppeGefunden, 4441, zuViel, 4442);
    PruefeUnterbezug(eintrag.Variantengruppe, eintrag.Variante, VarianteGefunden, {4443, 4444, 4445});
    PruefeBezug(eintrag.Einrichtungstyp, EinrichtungGefunden, 4451, zuWenig, 4452);
    PruefeBezug(eintrag.Nutzung, NutzungGefunden, 4491, zuViel, 4492);
    PruefeBezug(eintrag.Raum, RaumGefunden, 4495, zuViel, 4496);
}

bool HatJokerBezug(const ZuordnungEintrag& eintrag) {
    const std::array<TextSicht, 9> bezuege = {eintrag.OGL,
                                              eintrag.PSL,
                                              eintrag.KAG,
                                              eintrag.Element,
                                              eintrag.Variantengruppe,
                                              eintrag.Variante,
                                              eintrag.Einrichtungstyp,
                                              eintrag.Nutzung,
                                              eintrag.Raum};
    return std::ranges::any_of(bezuege, HatJoker);
}

} // namespace

void PruefeG4() {
    const Zuordnungssatz satz = LiesZuordnung();
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
    PruefeBezuege(eintrag, stern, EinrichtungErlaubt(satz.Kapitel));
    if (ReihenfolgeVergeben(position, eintrag.Reihenfolge)) {
        FehlerMelden(4471);
    }
    if (testDaten.Revision >= 12 && HatJokerBezug(eintrag)) {
        FehlerMelden(4481);
    }

    position.Zuordnungen.push_back(eintrag);
    ReihenfolgeMerken(position, eintrag.Reihenfolge);
}

} // namespace zepholt
