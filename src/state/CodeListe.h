// A list of entries that bear a code, and mostly an order, in file order, with the searches that a scan from the first
// entry would answer.
//
// A code is found in constant time, by a hash that nobody can choose codes for, and the one asked for last at once. A
// search for a prefix puts the codes in order when it is the first since the list grew, and costs the logarithm of the
// list's length. The results are those of the scan, first match first.
#pragma once

#include "state/Feldsicht.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>
#include <vector>

namespace zepholt {

template <class Eintrag>
class CodeListe {
public:
    const std::vector<Eintrag>& Eintraege() const { return m_eintraege; }
    Eintrag& operator[](std::int32_t index) { return m_eintraege[static_cast<std::size_t>(index)]; }
    const Eintrag& operator[](std::int32_t index) const { return m_eintraege[static_cast<std::size_t>(index)]; }
    std::int32_t Anzahl() const { return static_cast<std::int32_t>(m_eintraege.size()); }

    // The index (from 0) of the first entry whose Code equals `code`; -1 for none.
    std::int32_t Finde(Feldsicht code) const {
        if (m_plaetze.empty()) {
            return ErsterMit(code);
        }
        if (m_zuletzt < 0 || (*this)[m_zuletzt].Code != code) {
            m_zuletzt = m_plaetze[Platz(code)];
        }
        return m_zuletzt;
    }

    // True when an entry's Code begins with `anfang`.
    bool HatAnfang(Feldsicht anfang) const {
        if (m_geordnet.size() != m_eintraege.size()) {
            m_geordnet.clear();
            std::ranges::transform(m_eintraege, std::back_inserter(m_geordnet), &Eintrag::Code);
            std::ranges::sort(m_geordnet);
        }
        const auto treffer = std::ranges::lower_bound(m_geordnet, anfang);
        return treffer != m_geordnet.end() && treffer->starts_with(anfang);
    }

    // The number of entries with this Reihenfolge among the first `bis` entries; 0 stands for no order and counts none.
    // The cost grows by the number counted.
    std::int32_t AnzahlMitReihenfolge(std::int32_t reihenfolge, std::int32_t bis) const {
        const auto erster = m_nachReihenfolge.lower_bound({reihenfolge, 0});
        const auto ende = m_nachReihenfolge.lower_bound({reihenfolge, bis});
        return static_cast<std::int32_t>(std::distance(erster, ende));
    }

    void Anfuegen(Eintrag eintrag) {
        if constexpr (requires { eintrag.Reihenfolge; }) {
            if (eintrag.Reihenfolge != 0) {
                m_nachReihenfolge.emplace_hint(m_nachReihenfolge.end(), eintrag.Reihenfolge, Anzahl());
            }
        }
        m_eintraege.push_back(std::move(eintrag));
        if (m_eintraege.size() > KurzeListe) {
            Eintragen();
        }
    }

private:
    static constexpr std::size_t KurzeListe = 8; // entries that are looked through one by one

    std::int32_t ErsterMit(Feldsicht code) const {
        const auto treffer = std::ranges::find(m_eintraege, code, &Eintrag::Code);
        return treffer == m_eintraege.end() ? -1 : static_cast<std::int32_t>(treffer - m_eintraege.begin());
    }

    // The place of the entry with this code, or the free place where it would stand. There is one, as no more than half
    // of the places are taken.
    std::size_t Platz(Feldsicht code) const {
        const std::size_t maske = m_plaetze.size() - 1;
        std::size_t platz = static_cast<std::size_t>(Streuwert(code)) & maske;
        while (m_plaetze[platz] != -1 && (*this)[m_plaetze[platz]].Code != code) {
            platz = (platz + 1) & maske;
        }
        return platz;
    }

    // Gives the last entry its place; all of them, when the places have become too few.
    void Eintragen() {
        std::int32_t erster = Anzahl() - 1;
        if (m_eintraege.size() * 2 > m_plaetze.size()) {
            m_plaetze.assign(std::bit_ceil(m_eintraege.size() * 4), -1);
            erster = 0;
        }
        for (std::int32_t i = erster; i < Anzahl(); ++i) {
            std::int32_t& platz = m_plaetze[Platz((*this)[i].Code)];
            platz = platz == -1 ? i : platz; // a code that stands already keeps its first entry
        }
    }

    std::vector<Eintrag> m_eintraege;
    std::vector<std::int32_t> m_plaetze;                               // indices of entries, -1 free; a power of two
    mutable std::int32_t m_zuletzt = -1;                               // the entry found last
    mutable std::vector<Feldsicht> m_geordnet;                         // the codes in their order, for HatAnfang
    std::set<std::pair<std::int32_t, std::int32_t>> m_nachReihenfolge; // order but 0, index
};

} // namespace zepholt
