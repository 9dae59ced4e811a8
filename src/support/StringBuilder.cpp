#include "support/StringBuilder.h"

#include <algorithm>
#include <array>

namespace zepholt {

namespace {

constexpr std::size_t KleinsterZuwachs = 10000;

// The memory taken ahead of any piece, in characters, however much was announced.
constexpr std::size_t HoechsteVorsorge = 1 << 20;

} // namespace

void StringBuilder::Capacity(std::int32_t groesse) {
    m_pufferLaenge = static_cast<std::size_t>(std::max(groesse, 0));
    m_text = Text();
    m_text.reserve(std::min(m_pufferLaenge, HoechsteVorsorge));
}

void StringBuilder::PlatzSchaffen(std::size_t laenge) {
    if (m_text.size() + laenge > m_pufferLaenge) {
        m_pufferLaenge += std::max(KleinsterZuwachs, laenge);
    }
}

void StringBuilder::Append(TextSicht text) {
    PlatzSchaffen(text.size());
    m_text.append(text);
}

void StringBuilder::Append(ByteSicht bytes) {
    PlatzSchaffen(bytes.size());
    std::array<char16_t, 4096> zeichen; // widened piece by piece: a string made from bytes would be copied twice
    while (!bytes.empty()) {
        const ByteSicht stueck = bytes.first(std::min(bytes.size(), zeichen.size()));
        std::copy(stueck.begin(), stueck.end(), zeichen.begin());
        m_text.append(zeichen.data(), stueck.size());
        bytes = bytes.subspan(stueck.size());
    }
}

} // namespace zepholt
