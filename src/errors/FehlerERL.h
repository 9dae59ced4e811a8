// What is known about an error code: its message, its severity, its field reference, and whether it exists.
#pragma once

#include "errors/FehlerERLTexte.h"

#include <optional>

namespace zepholt {

// The row of `code`, or none.
std::optional<FehlerZeile> FehlerLesen(std::int32_t code);

// The message of `code` in a language (1 German, 2 French, 3 Italian). A message shorter than 4 characters, one of an
// unknown language too, falls back to German. Empty when the code has no row.
TextSicht FehlerText(std::int32_t code, std::int32_t sprache);

// "A" for an error, "B" for a warning; empty for the codes of the command line and for a code without a row.
TextSicht FehlerSchwere(std::int32_t code);

// The field reference that the code speaks of, such as "G1:2a"; empty when none, or when the code has no row.
TextSicht FehlerFeld(std::int32_t code);

// True when the code has a row.
bool FehlerBekannt(std::int32_t code);

} // namespace zepholt
