// Attachment records X4, X5 and P1 to P5, of the new interface only: tests of form. Whether the position and the
// variable that they name exist is nobody's question.
#include "doctest/Feldpruefung.h"
#include "doctest/Records.h"
#include "errors/TestFehler.h"

namespace zepholt {

namespace {

void AnhangPruefen(bool hatZeile) {
    ZahlFeld(2, 3, Zwingend);
    ZahlFeld(8, 6, Zwingend);
    const std::int32_t variable = ZahlFeld(14, 2, Freiwillig);
    if (hatZeile) {
        ZahlFeld(16, 2, Zwingend);
    }
    TextFeld(93, 164, Zwingend);

    // A bad number reads 0 and gives both 3001 and this.
    if (!TextFeld(14, 2, Freiwillig).empty() && variable == 0) {
        FehlerMelden(4252);
    }
}

} // namespace

void PruefeX4() {
    AnhangPruefen(true);
}

void PruefeX5() {
    AnhangPruefen(true);
}

void PruefeP(std::int32_t nummer) {
    AnhangPruefen(nummer >= 3);
    if (nummer != 1) {
        return;
    }
    const TextSicht code = TextFeld(43, 1, Freiwillig);
    if (!code.empty() && code != u"0" && code != u"1") {
        FehlerMelden(4282);
    }
}

} // namespace zepholt
