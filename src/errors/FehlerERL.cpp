// Lookups in the error table, by the whole code; no state.
#include "errors/FehlerERL.h"

namespace zepholt {
namespace {

// A message below this length counts as missing in its language.
constexpr std::size_t KuerzesterText = 4;

TextSicht TextInSprache(const FehlerZeile& zeile, std::int32_t sprache) {
    switch (sprache) {
    case 2:
        return zeile.Franzoesisch;
    case 3:
        return zeile.Italienisch;
    default:
        return zeile.Deutsch;
    }
}

} // namespace

const FehlerZeile* FehlerLesen(std::int32_t code) {
    const std::int32_t platz = FehlerPlatz(code);
    return platz >= 0 ? &FehlerTexte()[static_cast<std::size_t>(platz)] : nullptr;
}

TextSicht FehlerText(std::int32_t code, std::int32_t sprache) {
    const FehlerZeile* zeile = FehlerLesen(code);
    if (zeile == nullptr) {
        return {};
    }
    const TextSicht text = TextInSprache(*zeile, sprache);
    return text.size() < KuerzesterText ? zeile->Deutsch : text;
}

TextSicht FehlerSchwere(std::int32_t code) {
    const FehlerZeile* zeile = FehlerLesen(code);
    return zeile != nullptr ? zeile->Schwere : TextSicht();
}

TextSicht FehlerFeld(std::int32_t code) {
    const FehlerZeile* zeile = FehlerLesen(code);
    return zeile != nullptr ? zeile->Feld : TextSicht();
}

bool FehlerBekannt(std::int32_t code) {
    return FehlerLesen(code) != nullptr;
}

} // namespace zepholt
