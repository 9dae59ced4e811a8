// Rules that several records share: the order field that the new interface has dropped, and the sign of an amount.
#pragma once

#include "doctest/Feldpruefung.h"

namespace zepholt {

// The order field at `spalte` (from 1) of `laenge` characters, read as an optional number (3001). The new interface
// has no such field: 3208 when it is filled, and the result is 0 in any case, so that no order check acts.
std::int32_t ReihenfolgeFeld(std::int32_t spalte, std::int32_t laenge);

// An amount and its sign as they stand in the record. What it comes to is asked by no check but whether it is 0.
struct Betrag {
    Feldsicht Vorzeichen;
    Feldsicht Ziffern; // none when it is blank or bad
    bool Leer = false; // tells a blank amount from one of zeros

    bool IstNull() const { return NurNullen(Ziffern); }
};

// Reads the sign, one character at `vorzeichenSpalte`, and then the amount at `spalte` (3001). Columns count from 1.
// Into its place, since nearly every record has one: what is copied right after it is made waits for itself.
[[gnu::always_inline]] inline void BetragLesen(std::int32_t vorzeichenSpalte, std::int32_t spalte, std::int32_t laenge,
                                               Betrag& betrag) {
    betrag.Vorzeichen = TextFeld(vorzeichenSpalte, 1, Freiwillig);
    betrag.Ziffern = DezimalFeld(spalte, laenge);
    betrag.Leer = FeldLeer(spalte, laenge);
}

// The same as a result.
[[gnu::always_inline]] inline Betrag BetragFeld(std::int32_t vorzeichenSpalte, std::int32_t spalte,
                                                std::int32_t laenge) {
    Betrag betrag;
    BetragLesen(vorzeichenSpalte, spalte, laenge, betrag);
    return betrag;
}

// The codes of a sign rule.
struct VorzeichenCodes {
    std::int32_t Unzulaessig;     // the sign is neither '-' nor '+'
    std::int32_t BetragFehlt;     // a sign without an amount, reported behind a bad sign too
    std::int32_t VorzeichenFehlt; // an amount without a sign
};

// The sign of an amount.
void PruefeVorzeichen(const Betrag& betrag, const VorzeichenCodes& codes);

} // namespace zepholt
