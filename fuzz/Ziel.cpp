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

Wahl::Wahl(ByteSicht eingabe) : m_rest(std::accumulate(eingabe.begin(), eingabe.end(), std::size_t{0})) {}

std::size_t Wahl::Aus(std::size_t anzahl) {
    const std::size_t gewaehlt = m_rest % anzahl;
    m_rest /= anzahl;
    return gewaehlt;
}

} // namespace zepholt::fuzz
