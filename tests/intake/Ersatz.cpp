// Progress setters that note their calls, and a dialog without a language.
#include "intake/Balkenrufe.h"
#include "run/DialogDeFrIt.h"
#include "run/Fortschritt.h"

namespace zepholt {

void ZeigeSchritt(TextSicht text, std::int32_t maximum) {
    hilfen::balkenrufe = {Text(text), maximum, {}};
}

void ZeigeFortschritt(std::int32_t wert) {
    hilfen::balkenrufe.Werte.push_back(wert);
}

TextSicht Uebersetze(TextSicht text) {
    return text;
}

} // namespace zepholt
