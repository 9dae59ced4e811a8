// The primitives that read one field of the current record and test its form.
//
// A field is named by its first column (from 1) and its length in characters; a record that ends early gives a shorter
// field. Each reports with the field's first column and never stops a record test: whatever it finds, it returns a
// value. Only U+0020 counts as a blank.
//
// Most fields of most records are blank. What that asks is written here, where the compiler knows the columns and makes
// a test of a few bits of it; what is done with a filled field stands behind it.
#pragma once

#include "state/TestDaten.h"

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

// What is done with a filled field, see below; a number and a date of digits only.
Feldsicht GefuellterText(std::int32_t spalte, std::int32_t laenge);
void SchluesselTesten(Feldsicht text, std::int32_t spalte, JokerRegel regel);
std::int32_t Zahl(std::int32_t spalte, std::int32_t laenge);
std::int32_t Datum(std::int32_t spalte);
std::int32_t KeineZahl(std::int32_t spalte); // 3001; 0

// A blank field: 3002 or 3003 by `pflicht`.
void LeeresFeldMelden(std::int32_t spalte, Pflicht pflicht);

// True when the field is blank. Reports nothing.
[[gnu::always_inline]] inline bool FeldLeer(std::int32_t spalte, std::int32_t laenge) {
    return testDaten.Record.IstLeer(spalte, laenge);
}

// The same; 3002 or 3003 by `pflicht` when it is blank.
[[gnu::always_inline]] inline bool FeldFehlt(std::int32_t spalte, std::int32_t laenge, Pflicht pflicht) {
    const bool leer = FeldLeer(spalte, laenge);
    if (leer && pflicht != Freiwillig) {
        LeeresFeldMelden(spalte, pflicht);
    }
    return leer;
}

// The field without trailing blanks. Reports 3002 or 3003 by `pflicht` when it is blank.
[[gnu::always_inline]] inline Feldsicht TextFeld(std::int32_t spalte, std::int32_t laenge, Pflicht pflicht) {
    return FeldFehlt(spalte, laenge, pflicht) ? Feldsicht() : GefuellterText(spalte, laenge);
}

// The same, tested by `regel` (3001); the text comes back also after an error.
[[gnu::always_inline]] inline Feldsicht SchluesselFeld(std::int32_t spalte, std::int32_t laenge, JokerRegel regel,
                                                       Pflicht pflicht) {
    const Feldsicht text = TextFeld(spalte, laenge, pflicht);
    if (!text.empty() && regel != JokerUngeprueft) {
        SchluesselTesten(text, spalte, regel);
    }
    return text;
}

// Digits that fill the field, as a number; 0 when blank (3002, 3003 by `pflicht`), when a character is no digit or the
// number is above 2147483647 (3001).
[[gnu::always_inline]] inline std::int32_t ZahlFeld(std::int32_t spalte, std::int32_t laenge, Pflicht pflicht) {
    if (testDaten.Record.NurZiffern(spalte, laenge)) {
        return Zahl(spalte, laenge);
    }
    return FeldFehlt(spalte, laenge, pflicht) ? 0 : KeineZahl(spalte);
}

// The digits that fill the field; none when it is blank (not reported) or bad (3001). Where the decimals of the amount
// begin, no check asks.
[[gnu::always_inline]] inline Feldsicht DezimalFeld(std::int32_t spalte, std::int32_t laenge) {
    if (testDaten.Record.NurZiffern(spalte, laenge)) {
        return testDaten.Record.substr(static_cast<std::size_t>(spalte - 1), static_cast<std::size_t>(laenge));
    }
    if (!FeldLeer(spalte, laenge)) {
        KeineZahl(spalte);
    }
    return {};
}

// A date ddMMyy (pivot 89: every year lies in 1989 to 2088) as days since 1970-01-01; 0 when blank (3002, 3003 by
// `pflicht`) or bad (3001). Composed with carry, so that no six digits are refused for being no real date.
[[gnu::always_inline]] inline std::int32_t DatumFeld(std::int32_t spalte, std::int32_t laenge, Pflicht pflicht) {
    if (testDaten.Record.NurZiffern(spalte, laenge)) {
        return Datum(spalte);
    }
    return FeldFehlt(spalte, laenge, pflicht) ? 0 : KeineZahl(spalte);
}

} // namespace zepholt
