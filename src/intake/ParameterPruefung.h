// The parameter test: which run a command line asks for, or what is wrong with it.
#pragma once

#include "support/Text.h"

#include <span>

namespace zepholt {

// Tests the arguments in a fixed order and fills the parameters of testDaten as far as it gets. Returns 0, or the first
// failure: 1001 an argument without '=' or no file=, 1002 an unknown key, 1004 the dialog language, 1003 the exchange
// file, 1005 the error file, 1006 the catalogue, 1007 the mode. A value that is one single quotation mark is a
// LaufzeitFehler.
std::int32_t ParameterPruefen(std::span<const Text> argumente);

// True when some argument asks for a silent run: `dialog=` with de-, fr- or it-, in any case, blanks and enclosing
// quotation marks aside. It holds whatever else is wrong with the arguments, also where ParameterPruefen stops before
// the language.
bool StilleVerlangt(std::span<const Text> argumente);

// True when Fehlerdatei can't be created. No file is left behind; what the trial made without a name stays open in
// testDaten.Protokollplatz.
bool FehlerdateiNichtAnlegbar();

} // namespace zepholt
