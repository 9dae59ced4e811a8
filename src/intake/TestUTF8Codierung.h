// The test of an E1S file's encoding, on the bytes of the file.
#pragma once

#include "intake/Dateibytes.h"

namespace zepholt {

// 0 good, 1 not valid UTF-8 anywhere in the file, 2 valid, but with a character above U+FFFF, which has no place in a
// column; ZeilenNr is then set to the line of the first such character. Not valid are stray and missing continuation
// bytes, forms longer than needed, surrogates, values above U+10FFFF and the noncharacters (U+FDD0 to U+FDEF, U+xxFFFE,
// U+xxFFFF). The bytes before `ab` are known to be good, and none such.
std::int32_t Utf8DateiPruefen(ByteSicht bytes, std::size_t ab = 0);

} // namespace zepholt
