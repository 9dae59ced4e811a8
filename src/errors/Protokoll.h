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

// One text as a file, in ISO-8859-1; characters above U+00FF as decimal character references. Complete or absent.
void TextDateiSchreiben(TextSicht text, const Text& pfad);

} // namespace zepholt
