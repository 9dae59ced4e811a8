// Finds the first entry with a given Nummer in a list that only grows.
//
// In a file whose lines are in order the numbers of a list ascend: then the list is its own index, and the entry at its
// end, which is mostly the one asked for, is looked at first. Only from a number on that is lower than one before it
// are the first entries kept apart. Nothing here is slower for some numbers than for others.
#pragma once

#include <algorithm>
#include <cstdint>
#include <map>

namespace zepholt {

class NummernIndex {
public:
    // The index (from 0) of the first entry of `liste` whose Nummer equals `nummer`; -1 for none. Always the same list,
    // and a number that it has taken in must not change.
    template <class Liste>
    std::int32_t Finde(const Liste& liste, std::int32_t nummer) {
        Nachfuehren(liste);
        if (!m_erste.empty()) {
            const auto treffer = m_erste.find(nummer);
            return treffer == m_erste.end() ? -1 : treffer->second;
        }
        if (liste.empty() || liste.back().Nummer < nummer) {
            return -1;
        }
        const auto nummerVon = [](const auto& eintrag) { return eintrag.Nummer; };
        const bool letzte =
            liste.back().Nummer == nummer && (liste.size() == 1 || liste[liste.size() - 2].Nummer < nummer);
        const auto treffer = letzte ? liste.end() - 1 : std::ranges::lower_bound(liste, nummer, {}, nummerVon);
        return treffer->Nummer == nummer ? static_cast<std::int32_t>(treffer - liste.begin()) : -1;
    }

private:
    template <class Liste>
    void Nachfuehren(const Liste& liste) {
        for (; m_gelesen < liste.size(); ++m_gelesen) {
            const bool tiefer = m_gelesen > 0 && liste[m_gelesen].Nummer < liste[m_gelesen - 1].Nummer;
            if (tiefer && m_erste.empty()) {
                for (std::size_t i = 0; i < m_gelesen; ++i) {
                    Merke(liste, i);
                }
            }
            if (!m_erste.empty()) {
                Merke(liste, m_gelesen);
            }
        }
    }

    template <class Liste>
    void Merke(const Liste& liste, std::size_t index) {
        m_erste.emplace(liste[index].Nummer, static_cast<std::int32_t>(index)); // the first entry of a number stays
    }

    std::map<std::int32_t, std::int32_t> m_erste; // number, index of its first entry; empty while the numbers ascend
    std::size_t m_gelesen = 0;                    // entries of the list taken in
};

} // namespace zepholt
