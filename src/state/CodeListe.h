// A list of entries that bear a code, and mostly an order, in file order, with the searches that a scan from the first
// entry would answer.
//
// Exact, prefix and order searches cost the logarithm of the list's length; their results are those of the scan, first
// match first. Entries that come in ascending order of code are appended in constant time. An empty list owns no memory
// beside itself.
#pragma once

#include "support/Text.h"

#include <iterator>
#include <map>
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
    std::int32_t Finde(TextSicht code) const {
        const auto treffer = m_nachCode.find(code);
        return treffer == m_nachCode.end() ? -1 : treffer->second;
    }

    // True when an entry's Code begins with `anfang`.
    bool HatAnfang(TextSicht anfang) const {
        const auto treffer = m_nachCode.lower_bound(anfang);
        return treffer != m_nachCode.end() && treffer->first.starts_with(anfang);
    }

    // The number of entries with this Reihenfolge among the first `bis` entries; 0 stands for no order and counts none.
    // The cost grows by the number counted.
    std::int32_t AnzahlMitReihenfolge(std::int32_t reihenfolge, std::int32_t bis) const {
        const auto erster = m_nachReihenfolge.lower_bound({reihenfolge, 0});
        const auto ende = m_nachReihenfolge.lower_bound({reihenfolge, bis});
        return static_cast<std::int32_t>(std::distance(erster, ende));
    }

    void Anfuegen(Eintrag eintrag) {
        // A code that stands already keeps its first entry. The hint suits a file sorted by code.
        m_nachCode.emplace_hint(m_nachCode.end(), eintrag.Code, Anzahl());
        if constexpr (requires { eintrag.Reihenfolge; }) {
            if (eintrag.Reihenfolge != 0) {
                m_nachReihenfolge.emplace_hint(m_nachReihenfolge.end(), eintrag.Reihenfolge, Anzahl());
            }
        }
        m_eintraege.push_back(std::move(eintrag));
    }

private:
    std::vector<Eintrag> m_eintraege;
    std::map<TextSicht, std::int32_t> m_nachCode;                      // code, index of its first entry
    std::set<std::pair<std::int32_t, std::int32_t>> m_nachReihenfolge; // order but 0, index
};

} // namespace zepholt
