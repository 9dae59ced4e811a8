// The window of zepholt-pruefen: files are dropped on it or chosen, one task after the other.
#pragma once

#include "bericht/Meldungen.h"

namespace zepholt::desktop {

// Shows the window with the dialog for files in front of it, and returns when it is closed.
void PrueffensterZeigen(bericht::Sprache sprache);

} // namespace zepholt::desktop
