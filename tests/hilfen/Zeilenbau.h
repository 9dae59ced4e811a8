// Builds a record for a test: fields at columns, blanks between them.
#pragma once

#include "support/Text.h"

#include <algorithm>
#include <vector>

namespace zepholt::hilfen {

struct Feldwert {
    std::int32_t Spalte; // from 1
    TextSicht Wert;
};

// `satz` with fields written over it; it grows where they lie behind its end.
inline Text Geaendert(Text satz, const std::vector<Feldwert>& felder) {
    for (const Feldwert& feld : felder) {
        const auto ab = static_cast<std::size_t>(feld.Spalte - 1);
        satz.resize(std::max(satz.size(), ab + feld.Wert.size()), u' ');
        satz.replace(ab, feld.Wert.size(), feld.Wert);
    }
    return satz;
}

// A record of the letter `art[0]` with the digit `art[1]` in column 42 (u"G2"); u"A" and u"Z" have no digit. Later
// fields overwrite earlier ones. The record ends behind its last field.
inline Text Zeile(TextSicht art, const std::vector<Feldwert>& felder) {
    Text satz = Geaendert({}, {{1, art.substr(0, 1)}});
    if (art.size() > 1) {
        satz = Geaendert(satz, {{42, art.substr(1, 1)}});
    }
    return Geaendert(satz, felder);
}

} // namespace zepholt::hilfen
