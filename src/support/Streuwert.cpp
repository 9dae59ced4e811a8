#include "support/Streuwert.h"

#include <random>

namespace zepholt {

const Streukeim& ProzessKeim() {
    static const Streukeim keim = [] {
        std::random_device quelle;
        const auto wort = [&quelle] { return std::uint64_t{quelle()} << 32 | quelle(); };
        return Streukeim{wort(), wort()};
    }();
    return keim;
}

} // namespace zepholt
