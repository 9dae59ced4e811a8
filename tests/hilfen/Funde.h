// What a test finds in the error store.
#pragma once

#include "errors/TestFehler.h"

#include <ostream>
#include <vector>

namespace zepholt::hilfen {

// A finding: its code, its line from 0 (-1 for none), its column from 1 (0 for none).
struct Fund {
    std::int32_t Code;
    std::int32_t Zeile;
    std::int32_t Spalte = 0;

    bool operator==(const Fund&) const = default;

    friend std::ostream& operator<<(std::ostream& aus, const Fund& fund) {
        return aus << fund.Code << "@" << fund.Zeile << ":" << fund.Spalte;
    }
};

using Funde = std::vector<Fund>;

// The findings behind the first `bisher` of the store, in the order of reporting.
inline Funde FundeAb(std::size_t bisher) {
    Funde funde;
    for (std::size_t i = bisher; i < fehlerSpeicher.FehlerListe.size(); ++i) {
        const FehlerEintrag fehler = fehlerSpeicher.FehlerListe[i];
        funde.push_back({fehler.Code, fehler.Zeile, fehler.Spalte});
    }
    return funde;
}

} // namespace zepholt::hilfen
