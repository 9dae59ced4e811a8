// What zepholt-pruefen remembers of the user, in the user's own part of the registry.
#pragma once

#include "support/Text.h"

namespace zepholt::desktop {

// The folder of the catalogue; empty when none was ever chosen.
Text GemerkterKatalog();
void KatalogMerken(const Text& ordner);

} // namespace zepholt::desktop
