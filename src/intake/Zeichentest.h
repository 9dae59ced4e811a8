// The characters of each record, field by field, against the layout table.
//
// The tests look at Record and stamp their findings with ZeilenNr and a column: 2031 for a character that is not
// permitted, 2032 for data outside of the fields. Nothing stops.
#pragma once

#include "state/Feldsicht.h"

namespace zepholt {

// Fills ErlaubteZeichen, the set of characters that a 451-92 file may hold in its fields.
void ErlaubteZeichenAufbauen();

// True when the characters of a record are seen at once to give no finding, whatever Record is. False says nothing.
bool OhneZeichenbefund(Feldsicht record);

// Tests the whole record. A record of a type without layout rows sets UndefinierterRecordTyp; a record E, D or U has no
// layout and is tested by character codes alone.
void RecordZeichenTest();

// Tests one field (column from 1, length) and the gap between it and the field tested before, which must be blank: one
// gap gives one 2032 at most. Column 1 begins a record; a length of 0 tests the gap alone. Keeps NaechsteSpalte.
void FeldZeichenTest(std::int32_t spalte, std::int32_t laenge);

// Tests the characters of one field of a file in UTF-8: no control characters; in a 451-92 file only what code page
// 1252 has.
void UnicodeZeichenTest(std::int32_t spalte, std::int32_t laenge);

} // namespace zepholt
