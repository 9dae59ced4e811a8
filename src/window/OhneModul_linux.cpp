#include "window/Modul_linux.h"

namespace zepholt {

const FensterModul* ModulLaden() {
    return nullptr;
}

} // namespace zepholt
