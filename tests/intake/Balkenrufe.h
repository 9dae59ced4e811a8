// What the progress setters were called with.
#pragma once

#include "support/Text.h"

#include <vector>

namespace zepholt::hilfen {

struct Balkenrufe {
    Text Schritt;
    std::int32_t Maximum = 0;
    std::vector<std::int32_t> Werte;
};

inline Balkenrufe balkenrufe;

} // namespace zepholt::hilfen
