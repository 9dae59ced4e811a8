// The special functions: lists of what the program knows, written instead of testing a file.
#pragma once

#include "support/Text.h"

namespace zepholt {

// Carries out the special function `name` ("1": list of the catalogue's chapters, "9": list of all codes; any other
// does nothing and writes nothing). `sprache`: 1 German, 2 French, 3 Italian. Returns 0.
std::int32_t SpezialfunktionAusfuehren(TextSicht name, std::int32_t sprache, const Text& fehlerdatei,
                                       const Text& katalog);

} // namespace zepholt
