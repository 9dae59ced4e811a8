// The test of a record's references into the structure tables, as cost accounts and restrictions of conditions share
// it.
#pragma once

#include "errors/TestFehler.h"
#include "state/Verweise.h"

namespace zepholt {

// The codes of each reference, in the order of the checks.
struct VerweisCodes {
    std::int32_t OGLUnbekannt;
    std::int32_t PSLOhneOGL;
    std::int32_t PSLBeiJoker;
    std::int32_t PSLUnbekannt;
    std::int32_t KAGUnbekannt;
    std::int32_t ElementUnbekannt;
    std::int32_t GruppeUnbekannt;
    std::int32_t VarianteOhneGruppe;
    std::int32_t VarianteBeiJoker;
    std::int32_t VarianteUnbekannt;
};

// A reference of the second level: reports at most one of the three codes. It needs its owner, and one without a joker.
inline void UnterverweisPruefen(TextSicht ueber, TextSicht unter, bool (*gefunden)(TextSicht, TextSicht),
                                std::int32_t ohneUeber, std::int32_t beiJoker, std::int32_t unbekannt) {
    if (unter.empty()) {
        return;
    }
    if (ueber.empty()) {
        FehlerMelden(ohneUeber);
    } else if (HatJoker(ueber)) {
        FehlerMelden(beiJoker);
    } else if (!gefunden(ueber, unter)) {
        FehlerMelden(unbekannt);
    }
}

// A reference of the first level, reported when it is given and not found.
inline void VerweisPruefen(TextSicht code, bool (*gefunden)(TextSicht), std::int32_t unbekannt) {
    if (!code.empty() && !gefunden(code)) {
        FehlerMelden(unbekannt);
    }
}

// Tests the six references of an entry; nothing stops it.
template <class Eintrag>
void VerweisePruefen(const Eintrag& eintrag, const VerweisCodes& codes) {
    VerweisPruefen(eintrag.OGL, OGLGefunden, codes.OGLUnbekannt);
    UnterverweisPruefen(eintrag.OGL, eintrag.PSL, PSLGefunden, codes.PSLOhneOGL, codes.PSLBeiJoker, codes.PSLUnbekannt);
    VerweisPruefen(eintrag.KAG, KAGGefunden, codes.KAGUnbekannt);
    VerweisPruefen(eintrag.Element, EKGGefunden, codes.ElementUnbekannt);
    VerweisPruefen(eintrag.Variantengruppe, VariantengruppeGefunden, codes.GruppeUnbekannt);
    UnterverweisPruefen(eintrag.Variantengruppe, eintrag.Variante, VarianteGefunden, codes.VarianteOhneGruppe,
                        codes.VarianteBeiJoker, codes.VarianteUnbekannt);
}

} // namespace zepholt
