#include "errors/TestFehler.h"

#include "state/TestDaten.h"

#include <algorithm>
#include <array>

namespace zepholt {

namespace {

// What the old interface does not report.
constexpr std::array<std::int32_t, 6> NurNeueSchnittstelle = {3003, 3224, 3234, 6901, 6902, 6102};

} // namespace

void FehlerLoeschen() {
    fehlerSpeicher = {};
}

void FehlerMelden(std::int32_t code) {
    FehlerHinzufuegen(code, 0);
}

void FehlerHinzufuegen(std::int32_t code, std::int32_t spalte) {
    if (!NeueSchnittstelle() && std::ranges::find(NurNeueSchnittstelle, code) != NurNeueSchnittstelle.end()) {
        return;
    }
    fehlerSpeicher.FehlerListe.push_back(
        {code, testDaten.ZeilenNr, spalte, testDaten.FehlerKapitel, testDaten.FehlerPosition});
}

} // namespace zepholt
