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

    // Makes room for `anzahl` entries: no more than half of the places are taken then.
    void Vorsorgen(std::size_t anzahl) {
        if (anzahl * 2 > m_plaetze.size()) {
            Vergroessern(std::bit_ceil(anzahl * 2));
        }
    }

    // The index of the entry with this hash of which `gleich` says that it is the one, or Frei, to be set, where it
    // would stand. The table must not be without places.
    template <class Gleich>
    std::int32_t& Platz(std::uint64_t streuwert, Gleich gleich) {
        const auto marke = static_cast<std::uint32_t>(streuwert >> 32);
        std::size_t platz = Erster(marke);
        while (m_plaetze[platz].Index != Frei && (m_plaetze[platz].Marke != marke || !gleich(m_plaetze[platz].Index))) {
            platz = Naechster(platz);
        }
        m_plaetze[platz].Marke = marke;
        return m_plaetze[platz].Index;
    }

    // Asks the processor for the place of an entry that will be looked for soon.
    void Vorausholen(std::uint64_t streuwert) const {
        if (!m_plaetze.empty()) {
            __builtin_prefetch(&m_plaetze[Erster(static_cast<std::uint32_t>(streuwert >> 32))]);
        }
    }

    bool empty() const { return m_plaetze.empty(); }

private:
    static constexpr int MarkeBits = 32;

    struct Eintrag {
        std::int32_t Index = Frei;
        std::uint32_t Marke = 0;
    };

    // The place where a mark is looked for first, by its highest bits. A larger table keeps the order of these places:
    // growing walks through both side by side.
    std::size_t Erster(std::uint32_t marke) const { return marke >> m_weg; }

    std::size_t Naechster(std::size_t platz) const { return (platz + 1) & (m_plaetze.size() - 1); }

    void Vergroessern(std::size_t anzahl) {
        std::vector<Eintrag> bisher(anzahl);
        bisher.swap(m_plaetze);
        m_weg = MarkeBits - std::countr_zero(anzahl);
        for (const Eintrag& eintrag : bisher) {
            if (eintrag.Index != Frei) {
                std::size_t platz = Erster(eintrag.Marke);
                while (m_plaetze[platz].Index != Frei) {
                    platz = Naechster(platz);
                }
                m_plaetze[platz] = eintrag;
            }
        }
    }

    std::vector<Eintrag> m_plaetze; // as many as a power of two
    int m_weg = MarkeBits;          // the bits of a mark that don't tell its place
};

} // namespace zepholt
