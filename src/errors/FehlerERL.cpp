// Lookups in the error table: a binary search by the whole code, no state.
#include "errors/FehlerERL.h"

#include "errors/FehlerERLTexte.h"

#include <algorithm>

namespace zepholt {
namespace {

constexpr std::int32_t SpracheDeutsch = 1;
constexpr std::int32_t SpracheFranzoesisch = 2;
constexpr std::int32_t SpracheItalienisch = 3;

// A message below this length counts as missing in its language.
constexpr std::size_t KuerzesterText = 4;

const FehlerZeile* SucheZeile(std::int32_t code) {
    const std::span<const FehlerZeile> zeilen = FehlerTexte();
    const auto stelle =
        std::lower_bound(zeilen.begin(), zeilen.end(), code,
                         [](const FehlerZeile& zeile, std::int32_t gesucht) { return zeile.Code < gesucht; });
    return stelle != zeilen.end() && stelle->Code == code ? &*stelle : nullptr;
}

TextSicht TextInSprache(const FehlerZeile& zeile, std::int32_t sprache) {
    switch (sprache) {
    case SpracheDeutsch:
        return zeile.Deutsch;
    case SpracheFranzoesisch:
        return zeile.Franzoesisch;
    case SpracheItalienisch:
        return zeile.Italienisch;
    default:
        return {};
    }
}

} // namespace

bool FehlerLesen(std::int32_t code, std::int32_t sprache, TextSicht& text, TextSicht& schwere, TextSicht& feld) {
    text = schwere = feld = {};
    const FehlerZeile* zeile = SucheZeile(code);
    if (zeile == nullptr)
        return false;
    text = TextInSprache(*zeile, sprache);
    schwere = zeile->Schwere;
    feld = zeile->Feld;
    return true;
}

TextSicht FehlerText(std::int32_t code, std::int32_t sprache) {
    TextSicht text, schwere, feld;
    if (FehlerLesen(code, sprache, text, schwere, feld) && text.size() < KuerzesterText)
        FehlerLesen(code, SpracheDeutsch, text, schwere, feld);
    return text;
}

TextSicht FehlerSchwere(std::int32_t code) {
    TextSicht text, schwere, feld;
    FehlerLesen(code, SpracheDeutsch, text, schwere, feld);
    return schwere;
}

TextSicht FehlerFeld(std::int32_t code) {
    TextSicht text, schwere, feld;
    FehlerLesen(code, SpracheDeutsch, text, schwere, feld);
    return feld;
}

bool FehlerBekannt(std::int32_t code) {
    TextSicht text, schwere, feld;
    return FehlerLesen(code, SpracheDeutsch, text, schwere, feld);
}

} // namespace zepholt
