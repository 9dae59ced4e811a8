// Where a finding lies, in the words of the protocol: its position and its field.
#pragma once

#include "support/Text.h"

#include <string>

namespace zepholt {

// True when a position can be told: line -1 with a chapter stamped, or a line of the file (from 0) that is a G record.
bool HatPosition(std::int32_t zeile, std::int32_t kapitel);

// "123.456.789" from a line of the file (from 0; its G record tells chapter and position), or, for line -1, from the
// stamps; empty when no position can be told. The second form appends the same as bytes; so that of FeldName.
Text PositionsText(std::int32_t zeile, std::int32_t kapitel, std::int32_t position);
void PositionAnhaengen(std::string& bytes, std::int32_t zeile, std::int32_t kapitel, std::int32_t position);

// The field reference of a column (from 1) of a line (from 0), such as "G6:24h"; the decimal column where no field
// lies; empty for an unknown line.
Text FeldName(std::int32_t zeile, std::int32_t spalte);
void FeldAnhaengen(std::string& bytes, std::int32_t zeile, std::int32_t spalte);

} // namespace zepholt
