// UTF-8 as the report writes it, and what its texts are made safe with: the page, the tables and the messages hold
// texts out of files that nobody has looked at.
#pragma once

#include "support/Text.h"

#include <string>
#include <string_view>

namespace zepholt::bericht {

// The columns of a line from `spalte` (from 1) on, fewer where the line ends before.
TextSicht SpaltenVon(TextSicht zeile, std::int32_t spalte, std::int32_t laenge);

// UTF-8 of a text; a surrogate that has no partner becomes U+FFFD, so that the result is valid in every case.
std::string Utf8(TextSicht text);

// Appends one character as UTF-8; what is no character becomes U+FFFD.
void Utf8Anhaengen(std::string& ziel, char32_t zeichen);

// The valid UTF-8 of bytes that claim to be such: each byte that is no part of it becomes U+FFFD.
std::string Bereinigt(std::string_view bytes);

// True for characters that a reader can't see or that move other characters: controls, marks of the writing direction,
// blanks without width, line and paragraph separators.
bool IstUnsichtbar(char32_t zeichen);

// "U+202E"
std::string Codepunktname(char32_t zeichen);

// Takes one character off the front of valid UTF-8.
char32_t NaechstesZeichen(std::string_view& utf8);

// Bytes as a part of an address: everything but letters, digits and "-._~" as %XX; '/' stays.
std::string UriTeil(std::string_view bytes);

// A number with an apostrophe between the thousands, as it is written in Switzerland.
std::string Zahl(std::int64_t zahl);

// Without the blanks at the right end, or at both ends.
std::string_view OhneRand(std::string_view text);

} // namespace zepholt::bericht
