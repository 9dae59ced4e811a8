// From the file's bytes to 16-bit text: the byte order mark and the two decoders.
#pragma once

#include "intake/Dateibytes.h"
#include "state/Feldsicht.h"

namespace zepholt {

// True when the bytes begin with the mark EF BB BF.
constexpr std::size_t Markenlaenge = 3; // bytes
bool BeginntMitMarke(ByteSicht bytes);

// Where the stretch of bytes up to 127 ends that begins at `ab` (from 0).
std::size_t AsciiEnde(ByteSicht bytes, std::size_t ab);

// Judges and removes the byte order mark of the file's first line and sets Utf8Modus; true if the file may go on. An
// E1S file is UTF-8 with or without a mark. A 451-92 file must hold none until the end of 2098, may hold one until the
// end of November 2099, and must hold one from then on: the mark makes it UTF-8.
bool Utf8KopfPruefen(ByteSicht& zeile);

// The characters of code page 850: each byte its own Unicode character, control bytes stay.
Codeseite Codeseite850();

// Writes the text of a line, from UTF-8, to `ziel` and returns the place behind it; there must be room for as many
// units as the line has bytes. Where the bytes are no UTF-8, each longest beginning of a sequence, or else each byte,
// becomes U+FFFD; a character above U+FFFF becomes a surrogate pair.
char16_t* Utf8NachUnicode(ByteSicht zeile, char16_t* ziel);

} // namespace zepholt
