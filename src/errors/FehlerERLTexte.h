// The rows of the error table: code, severity, field reference and the message in three languages.
#pragma once

#include "support/Text.h"

#include <vector>

namespace zepholt {

// One code and all that is known about it.
struct FehlerZeile {
    std::int32_t Code; // four decimal digits
    TextSicht Schwere; // u"A" an error, u"B" a warning, empty for the codes of the command line
    TextSicht Feld;    // field reference such as u"G1:2a", empty when the code speaks of no one field
    TextSicht Deutsch;
    TextSicht Franzoesisch;
    TextSicht Italienisch;

    bool operator==(const FehlerZeile&) const = default;
};

// How many rows there are, and the row at a place, from 0, in ascending order of their codes.
std::size_t FehlerZeilenAnzahl();
FehlerZeile FehlerZeileAn(std::size_t platz);

// All rows in that order.
std::vector<FehlerZeile> FehlerTexte();

// The place of a code's row among them, from 0; -1 when it has none.
std::int32_t FehlerPlatz(std::int32_t code);

// One text of the row at a place.
enum class FehlerAngabe { Schwere, Feld, Deutsch, Franzoesisch, Italienisch };
TextSicht FehlerTextAn(std::size_t platz, FehlerAngabe angabe);

} // namespace zepholt
