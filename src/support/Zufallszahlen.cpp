// Numbers by chance where the platform has no cheaper source than the library's.
#include "support/OS_API.h"

#include <random>

namespace zepholt {

std::array<std::uint64_t, 2> Zufallszahlen() {
    std::random_device quelle;
    const auto zahl = [&quelle] { return std::uint64_t{quelle()} << 32 | quelle(); };
    return {zahl(), zahl()};
}

} // namespace zepholt
