// Builds a record for a test: fields at columns, blanks between them.
#pragma once

#include "support/Text.h"

#include <initializer_list>

namespace zepholt::hilfen {

struct Feldwert {
    std::int32_t Spalte; // from 1
    TextSicht Wert;
};

// A record of the letter `art[0]` with the digit `art[1]` in column 42 (u"G2"); u"A" and u"Z" have no digit. Later
// fields overwrite earlier ones. The record ends behind its last field.
inline Text Zeile(TextSicht art, std::initializer_list<Feldwert> felder) {
    Text zeile;
    const auto setze = [&zeile](std::int32_t spalte, TextSicht wert) {
        const auto ab = static_cast<std::size_t>(spalte - 1);
        if (zeile.size() < ab + wert.size()) {
            zeile.resize(ab + wert.size(), u' ');
        }
        zeile.replace(ab, wert.size(), wert);
    };
    setze(1, art.substr(0, 1));
    if (art.size() > 1) {
        setze(42, art.substr(1, 1));
    }
    for (const Feldwert& feld : felder) {
        setze(feld.Spalte, feld.Wert);
    }
    return zeile;
}

} // namespace zepholt::hilfen
