// One task of zepholt-pruefen: exchange files in, their page opened.
#pragma once

#include "bericht/Meldungen.h"
#include "support/Text.h"

#include <windows.h>

#include <vector>

namespace zepholt::desktop {

// Asks for the catalogue where none is remembered, or where `immer`; false when there is none then.
bool KatalogFragen(HWND eltern, bericht::Sprache sprache, bool immer);

// Tests the files with the program's own progress window, lays the pages down and opens the one to be seen: that of
// the file, or the one over all of them. What goes wrong is told in a box. Returns a line about the outcome, empty when
// there is none. `eltern` may be null.
Text DateienPruefen(HWND eltern, bericht::Sprache sprache, const std::vector<Text>& dateien);

} // namespace zepholt::desktop
