// The window's module on Linux. A build without windows has none.
#pragma once

#include "window/FensterModul.h"

namespace zepholt {

// The module, from beside the program or from where an installation puts it; null when there is none. It stays loaded
// until the process ends.
const FensterModul* ModulLaden();

} // namespace zepholt
