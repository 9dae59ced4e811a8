// Reading the exchange file in: its bytes as a whole, and how many lines they hold.
#pragma once

#include "support/OS_API.h"

#include <functional>
#include <span>

namespace zepholt {

using ByteSicht = std::span<const unsigned char>;

// The whole file, in memory of the run's own. What is no ordinary file is not opened. Every failure is a
// LaufzeitFehler, exhausted memory what the library throws. `gelesen` is called after each piece, with the file as far
// as it has been read.
Bytes DateiBytesLesen(const Text& pfad, const std::function<void(ByteSicht)>& gelesen);

// The place of the first byte `gesucht` at or behind `ab` (from 0), or the length when there is none.
std::size_t ByteSuchen(ByteSicht bytes, unsigned char gesucht, std::size_t ab = 0);

// The number of line feeds.
std::size_t ZeilenendenZaehlen(ByteSicht bytes);

} // namespace zepholt
