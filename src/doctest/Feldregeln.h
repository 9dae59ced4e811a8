// Rules that several records share: the order field that the new interface has dropped, and the sign of an amount.
#pragma once

#include "support/Text.h"

namespace zepholt {

// The order field at `spalte` (from 1) of `laenge` characters, read as an optional number (3001). The new interface
// has no such field: 3208 when it is filled, and the result is 0 in any case, so that no order check acts.
std::int32_t ReihenfolgeFeld(std::int32_t spalte, std::int32_t laenge);

// The codes of a sign rule.
struct VorzeichenCodes {
    std::int32_t Unzulaessig;     // the sign is neither '-' nor '+'
    std::int32_t BetragFehlt;     // a sign without an amount, reported also behind a bad sign
    std::int32_t VorzeichenFehlt; // an amount without a sign
};

// `betrag` with its sign; positive behind a bad sign or none. `betragLeer` tells a blank amount from one of zeros.
double MitVorzeichen(TextSicht vorzeichen, double betrag, bool betragLeer, const VorzeichenCodes& codes);

} // namespace zepholt
