// From the file's bytes to 16-bit text: the byte order mark and the two decoders.
#pragma once

#include "state/Dateitext.h"
#include "support/Text.h"

namespace zepholt {

// True when the bytes begin with EF BB BF.
bool BeginntMitMarke(ByteSicht bytes);

// Where the stretch of bytes up to 127 ends that begins at `ab` (from 0).
std::size_t AsciiEnde(ByteSicht bytes, std::size_t ab);

// Judges and removes the byte order mark of the file's first line and sets Utf8Modus; true if the file may go on. An
// E1S file is UTF-8 with or without a mark. A 451-92 file must hold none until the end of 2098, may hold one until the
// end of November 2099, and must hold one from then on: the mark makes it UTF-8.
bool Utf8KopfPruefen(ByteSicht& zeile);

// Decodes one line (without its end) behind the lines in Puffer, as Utf8Modus tells, and returns its text.
TextSicht ZeileDekodieren(ByteSicht zeile);

// Both write the text of a line to `ziel` and return the place behind it. There must be room for as many units as the
// line has bytes; the bytes may stand further behind in the same memory, where writing reaches a byte only when it has
// been read.

// From code page 850: each byte its own Unicode character, control bytes stay. The line is cut at its first zero byte.
char16_t* OemNachAnsi(ByteSicht zeile, char16_t* ziel);

// From UTF-8. Where the bytes are no UTF-8, each longest beginning of a sequence, or else each byte, becomes U+FFFD; a
// character above U+FFFF becomes a surrogate pair.
char16_t* Utf8NachUnicode(ByteSicht zeile, char16_t* ziel);

} // namespace zepholt
