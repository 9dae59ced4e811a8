// Lookups in the error table, by the whole code; no state.
#include "errors/FehlerERL.h"

namespace zepholt {
namespace {

// A message below this length counts as missing in its language.
constexpr std::size_t KuerzesterText = 4;

FehlerAngabe MeldungIn(std::int32_t sprache) {
    switch (sprache) {
    case 2:
        return FehlerAngabe::Franzoesisch;
    case 3:
        return FehlerAngabe::Italienisch;
    default:
        return FehlerAngabe::Deutsch;
    }
}

TextSicht Angabe(std::int32_t code, FehlerAngabe angabe) {
    const std::int32_t platz = FehlerPlatz(code);
    return platz >= 0 ? FehlerTextAn(static_cast<std::size_t>(platz), angabe) : TextSicht();
}

} // namespace

std::optional<FehlerZeile> FehlerLesen(std::int32_t code) {
    const std::int32_t platz = FehlerPlatz(code);
    return platz >= 0 ? std::optional(FehlerZeileAn(static_cast<std::size_t>(platz))) : std::nullopt;
}

TextSicht FehlerText(std::int32_t code, std::int32_t sprache) {
    const TextSicht text = Angabe(code, MeldungIn(sprache));
    return text.size() < KuerzesterText ? Angabe(code, FehlerAngabe::Deutsch) : text;
}

TextSicht FehlerSchwere(std::int32_t code) {
    return Angabe(code, FehlerAngabe::Schwere);
}

TextSicht FehlerFeld(std::int32_t code) {
    return Angabe(code, FehlerAngabe::Feld);
}

bool FehlerBekannt(std::int32_t code) {
    return FehlerLesen(code).has_value();
}

} // namespace zepholt
