// Attachment records X4, X5 and P1 to P5, of the new interface only: tests of form. Whether the position and the
// variable that they name exist is nobody's question.
#include "doctest/Feldpruefung.h"
#include "doctest/Records.h"
#include "errors/TestFehler.h"

namespace zepholt {

namespace {

void PruefeAnhang(bool hatZeile) {
    ZahlFeld(2, 3, Zwingend);                                  // 2a
    ZahlFeld(8, 6, Zwingend);                                  // 3
    const std::int32_t variable = ZahlFeld(14, 2, Freiwillig); // 4
    if (hatZeile) {
        ZahlFeld(16, 2, Zwingend); // 5
    }
    TextFeld(93, 164, Zwingend); // 23

    // A bad number reads 0 and gives both 3001 and this.
    if (!TextFeld(14, 2, Freiwillig).empty() && variable == 0) {
        FehlerMelden(4252);
    }
}

} // namespace

void PruefeX4() {
    PruefeAnhang(true);
}

void PruefeX5() {
    PruefeAnhang(true);
}

void PruefeP(std::int32_t nummer) {
    PruefeAnhang(nummer >= 3);
    if (nummer != 1) {
        return;
    }
    const Feldsicht code = TextFeld(43, 1, Freiwillig); // P1:12
    if (!code.empty() && code != u"0" && code != u"1") {
        FehlerMelden(4282);
    }
}

} // namespace zepholt
