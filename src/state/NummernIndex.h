// Finds the first entry with a given Nummer in a list that only grows.
//
// The index follows the list by itself: entries that came since the last search are taken in before the next. A search
// costs the same however long the list is; an entry costs 8 to 16 bytes, for the numbers stay in the list.
#pragma once

#include <bit>
#include <cstdint>
#include <vector>

namespace zepholt {

class NummernIndex {
public:
    // The index (from 0) of the first entry of `liste` whose Nummer equals `nummer`; -1 for none. Always the same list,
    // and a number that it has taken in must not change.
    template <class Liste>
    std::int32_t Finde(const Liste& liste, std::int32_t nummer) {
        Nachfuehren(liste);
        return m_plaetze.empty() ? -1 : m_plaetze[Platz(liste, nummer)];
    }

private:
    template <class Liste>
    void Nachfuehren(const Liste& liste) {
        if (m_anzahl == liste.size()) {
            return;
        }
        if (liste.size() * 2 > m_plaetze.size()) {
            m_plaetze.assign(std::bit_ceil(liste.size() * 2), -1);
            m_anzahl = 0;
        }
        for (; m_anzahl < liste.size(); ++m_anzahl) {
            std::int32_t& eintrag = m_plaetze[Platz(liste, liste[m_anzahl].Nummer)];
            if (eintrag == -1) { // else the first entry of this number stays
                eintrag = static_cast<std::int32_t>(m_anzahl);
            }
        }
    }

    // The place of the entry with this number, or the free place where it would stand. There is one, as no more than
    // half of the places are taken.
    template <class Liste>
    std::size_t Platz(const Liste& liste, std::int32_t nummer) const {
        const std::size_t maske = m_plaetze.size() - 1;
        // Numbers come in runs with gaps of ten and a thousand: the golden ratio spreads them.
        std::size_t platz = (static_cast<std::uint32_t>(nummer) * 0x9E3779B97F4A7C15U >> 32) & maske;
        while (m_plaetze[platz] != -1 && liste[static_cast<std::size_t>(m_plaetze[platz])].Nummer != nummer) {
            platz = (platz + 1) & maske;
        }
        return platz;
    }

    std::vector<std::int32_t> m_plaetze; // indices of entries, -1 for a free place; the size is a power of two
    std::size_t m_anzahl = 0;            // entries of the list taken in
};

} // namespace zepholt
