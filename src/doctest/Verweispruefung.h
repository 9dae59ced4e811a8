// The test of references into the structure tables, as cost accounts, restrictions of conditions, assignments and
// quantities share it. Nothing here stops a record test.
#pragma once

#include "errors/TestFehler.h"
#include "state/Verweise.h"

namespace zepholt {

// The codes of a reference of the second level, of which at most one is reported.
struct UnterverweisCodes {
    std::int32_t OhneOberen;
    std::int32_t BeiJoker; // the reference above has a joker; 0 where that is no fault of this one
    std::int32_t Unbekannt;
};

// The codes of the six references that all of them have, in the order of the checks.
struct VerweisCodes {
    std::int32_t OGL;
    UnterverweisCodes PSL;
    std::int32_t KAG;
    std::int32_t Element;
    std::int32_t Variantengruppe;
    UnterverweisCodes Variante;
};

// A reference of the first level, reported as `unbekannt` when it is given and not found.
inline void PruefeVerweis(Feldsicht code, bool (*gefunden)(Feldsicht), std::int32_t unbekannt) {
    if (!code.empty() && !gefunden(code)) {
        FehlerMelden(unbekannt);
    }
}

// A reference of the second level, below `oberer`.
inline void PruefeUnterverweis(Feldsicht oberer, Feldsicht code, bool (*gefunden)(Feldsicht, Feldsicht),
                               const UnterverweisCodes& codes) {
    if (code.empty()) {
        return;
    }
    if (oberer.empty()) {
        FehlerMelden(codes.OhneOberen);
    } else if (codes.BeiJoker != 0 && HatJoker(oberer)) {
        FehlerMelden(codes.BeiJoker);
    } else if (!gefunden(oberer, code)) {
        FehlerMelden(codes.Unbekannt);
    }
}

// The first six references of a record.
inline void PruefeVerweise(const Verweissatz& verweise, const VerweisCodes& codes) {
    PruefeVerweis(verweise.OGL, OGLGefunden, codes.OGL);
    PruefeUnterverweis(verweise.OGL, verweise.PSL, PSLGefunden, codes.PSL);
    PruefeVerweis(verweise.KAG, KAGGefunden, codes.KAG);
    PruefeVerweis(verweise.Element, EKGGefunden, codes.Element);
    PruefeVerweis(verweise.Variantengruppe, VariantengruppeGefunden, codes.Variantengruppe);
    PruefeUnterverweis(verweise.Variantengruppe, verweise.Variante, VarianteGefunden, codes.Variante);
}

} // namespace zepholt
