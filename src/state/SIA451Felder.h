// The layout of the record types: which fields a record has, in which columns and how long.
//
// It serves the character test, which walks it forward, and the protocol, which turns a column into a field reference.
// The record tests name their columns themselves.
#pragma once

#include "state/Feldsicht.h"
#include "state/Spaltenmenge.h"

#include <algorithm>
#include <span>
#include <vector>

namespace zepholt {

struct RecordLayout {
    TextSicht Feldbezug; // such as u"G6:24h"; its first two characters are the record type, u"A:" and u"Z:" for A and Z
    std::int32_t Spalte; // first column, from 1
    std::int32_t Laenge; // columns
};

// The substring of `zeile` at `spalte` (from 1) of length `laenge`; shorter or empty when the line ends early.
inline Feldsicht Feld(Feldsicht zeile, std::int32_t spalte, std::int32_t laenge) {
    const auto anfang = static_cast<std::size_t>(spalte - 1);
    return anfang < zeile.size() ? zeile.substr(anfang, static_cast<std::size_t>(laenge)) : Feldsicht();
}

// The rows of all record types that hold for the current Revision and kind of file, those of one type together and in
// ascending order of column: the whole table, put together anew at each call.
std::vector<RecordLayout> RecordLayouts();

inline constexpr Spaltenmenge KeineSpalten;

// What the table says of one record type.
struct Recordtyp {
    std::span<const RecordLayout> Zeilen;       // its rows; none for an undefined type
    const Spaltenmenge* Felder = &KeineSpalten; // the columns of all its fields
};

// The type of one line, found by columns 1 and 42.
Recordtyp RecordtypVon(Feldsicht zeile);
std::span<const RecordLayout> LayoutsVon(Feldsicht zeile);

// The row of a type's rows whose field has a column (from 1); null for a column between them.
const RecordLayout* LayoutBei(std::span<const RecordLayout> zeilen, std::int32_t spalte);

} // namespace zepholt
