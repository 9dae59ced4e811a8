// Indices of a list's entries by the hash of what they are looked for by; open addressing. The list tells whether an
// entry is the one, the table only where to look: a part of the hash stands beside each index, so that the list is
// hardly ever asked about another.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace zepholt {

class Platztabelle {
public:
    static constexpr std::int32_t Frei = -1;

    // True when `anzahl` entries ask for a larger table: no more than half of the places may be taken.
    bool IstZuKlein(std::size_t anzahl) const { return anzahl * 2 > m_plaetze.size(); }

    // An empty table for `anzahl` entries.
    void Leeren(std::size_t anzahl) { m_plaetze.assign(std::bit_ceil(anzahl * 2), {}); }

    // The index of the entry with this hash of which `gleich` says that it is the one, or Frei, to be set, where it
    // would stand. The table must not be without places.
    template <class Gleich>
    std::int32_t& Platz(std::uint64_t streuwert, Gleich gleich) {
        const auto marke = static_cast<std::uint32_t>(streuwert >> 32);
        const std::size_t maske = m_plaetze.size() - 1;
        std::size_t platz = static_cast<std::size_t>(streuwert) & maske;
        while (m_plaetze[platz].Index != Frei && (m_plaetze[platz].Marke != marke || !gleich(m_plaetze[platz].Index))) {
            platz = (platz + 1) & maske;
        }
        m_plaetze[platz].Marke = marke;
        return m_plaetze[platz].Index;
    }

    bool empty() const { return m_plaetze.empty(); }

private:
    struct Eintrag {
        std::int32_t Index = Frei;
        std::uint32_t Marke = 0;
    };

    std::vector<Eintrag> m_plaetze; // as many as a power of two
};

} // namespace zepholt
