#include "items/RecordG.h"

#include "doctest/Feldpruefung.h"
#include "doctest/Feldregeln.h"
#include "errors/TestFehler.h"
#include "items/Positionsregeln.h"

namespace zepholt {

namespace {

// What only a quantity has: G6:10, G6:17, G6:18, G6:19, G6:20, G6:24a.
constexpr LeereFelder<6> FelderDerMenge({{{36, 6}, {61, 1}, {62, 1}, {63, 12}, {75, 7}, {123, 6}}});

bool NummerGueltig(std::int32_t nummer) {
    return nummer >= 1 && nummer <= 99;
}

} // namespace

void PruefeDetailausmass() {
    const std::int32_t gruppe = ZahlFeld(14, 2, Zwingend); // G6:4
    const std::int32_t zeile = ZahlFeld(16, 2, Zwingend);  // G6:5
    const Feldsicht mengenart = TextFeld(44, 1, Zwingend); // G6:13
    const Betrag betrag = BetragFeld(45, 46, 13);          // G6:14, G6:15

    if (mengenart != u"A") {
        FehlerMelden(4693);
    }
    if (!NummerGueltig(gruppe) || !NummerGueltig(zeile)) {
        FehlerMelden(4694);
    }
    // The sign has been tested with the quantity already: its faults count for both.
    PruefeVorzeichen(betrag, {4613, 4614, 4615});
    PruefeLeereFelder(FelderDerMenge); // 2032
}

} // namespace zepholt
