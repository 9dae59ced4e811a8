// The head that every page has: its policy, its style, its title.
#pragma once

#include "bericht/Meldungen.h"

#include <string>

namespace zepholt::bericht {

// Everything up to the body's first element. `titel` is plain text; `vermerk` is a line of the head, or empty.
std::string Seitenkopf(const std::string& titel, Sprache sprache, const std::string& vermerk);

} // namespace zepholt::bericht
