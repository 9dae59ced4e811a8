// The protocol: the store of findings becomes one XML file, the one result of a run.
#pragma once

#include "support/Text.h"

namespace zepholt {

// Filters (mode I) and sorts the store, and writes the protocol to Fehlerdatei in the language Sprache. A failure to
// write gives no file and no message.
void ProtokollSchreiben();

// Removes the warnings, unless an entry is neither error nor warning; then the list stays untouched.
void WarnungenEntfernen();

// Puts the store in the order of the protocol: by line, by position for entries without a line, by code. Entries with
// equal keys come out in the order that the defined sort gives them.
void FehlerSortieren();

// "123.456.789" from a line of the file (from 0; its G record tells chapter and position), or, for line -1, from the
// stamps; empty when no position can be told.
Text PositionsText(std::int32_t zeile, std::int32_t kapitel, std::int32_t position);

// The field reference of a column (from 1) of a line (from 0), such as "G6:24h"; the decimal column where no field
// lies; empty for an unknown line.
Text FeldName(std::int32_t zeile, std::int32_t spalte);

// One text as a file, in ISO-8859-1; characters above U+00FF as decimal character references. Complete or absent.
void TextDateiSchreiben(TextSicht text, const Text& pfad);

} // namespace zepholt
