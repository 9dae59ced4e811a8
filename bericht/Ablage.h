// Files that lie beside an exchange file, and how one of an earlier run is told from any other.
#pragma once

#include "support/OS_API.h"

#include <functional>
#include <optional>
#include <string>

namespace zepholt::bericht {

// The number that a page names its protocol by: FNV-1a over its bytes, 16 hexadecimal digits.
std::string Kennzahl(std::span<const unsigned char> bytes);

// The line in the head of a page that was laid down, with what it names; and what the page at a path names, if it is
// one of these.
std::string Ablagevermerk(const std::string& kennzahl);
std::optional<std::string> Vermerkt(const Text& seite);

// True when page and protocol may be written at these places: nothing stands there, or the page of an earlier run and
// the protocol that it names. Without a protocol: an empty path.
bool IstVerfuegbar(const Text& seite, const Text& protokoll);

} // namespace zepholt::bericht
