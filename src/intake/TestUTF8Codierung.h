// The test of an E1S file's encoding, on the bytes of the file.
#pragma once

#include "intake/Dateibytes.h"

#include <vector>

namespace zepholt {

// Strict decoder. 0 when all bytes are valid UTF-8, and `codepunkte` holds the values; else 1. A byte order mark at the
// front is skipped. Refused are stray and missing continuation bytes, forms longer than needed, surrogates, values
// above U+10FFFF, the noncharacters (U+FDD0 to U+FDEF, U+xxFFFE, U+xxFFFF) and an empty input.
std::int32_t Utf8Dekodieren(ByteSicht bytes, std::vector<char32_t>& codepunkte);

// 0 good, 1 not valid UTF-8 anywhere in the file, 2 valid, but with a character above U+FFFF, which has no place in a
// column; ZeilenNr is then set to the line of the first such character.
std::int32_t Utf8DateiPruefen(ByteSicht bytes);

} // namespace zepholt
