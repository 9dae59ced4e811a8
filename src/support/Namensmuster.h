// Names against names with wildcards, for platforms that have no search of their own.
#pragma once

#include "support/Text.h"

namespace zepholt {

// True when `name` fits `muster`, in which `*` stands for any characters and `?` for one. A leading dot hides a name
// from a wildcard, not from its own name.
bool PasstZuMuster(TextSicht name, TextSicht muster);

} // namespace zepholt
