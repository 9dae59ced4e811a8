// The primitives that read one field of the current record and test its form.
//
// A field is named by its first column (from 1) and its length in characters; a record that ends early gives a shorter
// field. Each reports with the field's first column and never stops a record test: whatever it finds, it returns a
// value. Only U+0020 counts as a blank.
#pragma once

#include "state/Feldsicht.h"

namespace zepholt {

enum Pflicht : std::int32_t {
    Freiwillig = 0, // nothing is reported for a blank field
    Zwingend = 1,   // 3002
    Erwartet = 2    // 3003, a warning that the old interface does not know
};

enum JokerRegel : std::int32_t {
    JokerUngeprueft = 0, // no test of the content at all
    JokerVerboten = 1,   // no '*' anywhere, no blank at the first place: 3001 for each
    JokerAmEnde = 2      // the first '*' only as the last character, no blank at the first place: 3001 for each
};

// True when the field is blank. Reports nothing.
bool FeldLeer(std::int32_t spalte, std::int32_t laenge);

// The field without trailing blanks. Reports 3002 or 3003 by `pflicht` when it is blank.
Feldsicht TextFeld(std::int32_t spalte, std::int32_t laenge, Pflicht pflicht);

// The same, tested by `regel` (3001); the text comes back also after an error.
Feldsicht SchluesselFeld(std::int32_t spalte, std::int32_t laenge, JokerRegel regel, Pflicht pflicht);

// Digits that fill the field, as a number; 0 when blank (3002, 3003 by `pflicht`), when a character is no digit or the
// number is above 2147483647 (3001).
std::int32_t ZahlFeld(std::int32_t spalte, std::int32_t laenge, Pflicht pflicht);

// The digits that fill the field; none when it is blank (not reported) or bad (3001). Where the decimals of the amount
// begin, no check asks.
Feldsicht DezimalFeld(std::int32_t spalte, std::int32_t laenge);

// A date ddMMyy (pivot 89: every year lies in 1989 to 2088) as days since 1970-01-01; 0 when blank (3002, 3003 by
// `pflicht`) or bad (3001). Composed with carry, so that no six digits are refused for being no real date.
std::int32_t DatumFeld(std::int32_t spalte, std::int32_t laenge, Pflicht pflicht);

} // namespace zepholt
