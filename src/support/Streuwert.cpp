#include "support/Streuwert.h"

#include "support/OS_API.h"

namespace zepholt {

const Streukeim& ProzessKeim() {
    static const Streukeim keim = [] {
        const auto [eins, zwei] = Zufallszahlen();
        return Streukeim{eins, zwei};
    }();
    return keim;
}

} // namespace zepholt
