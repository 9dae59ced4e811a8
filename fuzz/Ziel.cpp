#include "Ziel.h"

#include <cstdio>
#include <cstdlib>
#include <numeric>

namespace zepholt::fuzz {

void Verlange(bool gilt, const char* was) {
    if (!gilt) {
        std::fprintf(stderr, "doesn't hold: %s\n", was);
        std::abort();
    }
}

std::size_t Wahl(ByteSicht eingabe, std::size_t anzahl) {
    return std::accumulate(eingabe.begin(), eingabe.end(), std::size_t{0}) % anzahl;
}

} // namespace zepholt::fuzz
