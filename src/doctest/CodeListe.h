// A list of entries that bear a code, in file order, with the searches that a scan from the first entry would answer.
//
// Exact, prefix and order searches cost the logarithm of the list's length; their results are those of the scan, first
// match first.
#pragma once

#include "support/Text.h"

#include <map>
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

    void Anfuegen(const Eintrag& eintrag) {
        m_nachCode.emplace(eintrag.Code, Anzahl()); // a code that stands already keeps its first entry
        m_eintraege.push_back(eintrag);
    }

private:
    std::vector<Eintrag> m_eintraege;
    std::map<TextSicht, std::int32_t> m_nachCode;
};

} // namespace zepholt
