// A list of findings in 8 bytes each, for files that have millions of them.
//
// Nearly all findings have one of two forms: one on a line, without stamps, or one without a line at a position. What
// fits neither stands whole in a list beside, and its 8 bytes tell where.
#pragma once

#include "support/Text.h"

#include <iterator>
#include <utility>
#include <vector>

namespace zepholt {

// How a finding is read and handed over.
struct FehlerEintrag {
    std::int32_t Code = 0;     // four digits
    std::int32_t Zeile = 0;    // line of the exchange file from 0, or -1 when the entry belongs to no line
    std::int32_t Spalte = 0;   // first column of the field, from 1; 0 when none was named
    std::int32_t Kapitel = 0;  // chapter that the entry concerns, 0 when none
    std::int32_t Position = 0; // position that it concerns (columns 8 to 13 of a G record), 0 when none

    bool operator==(const FehlerEintrag&) const = default;
};

class Fehlersammlung {
public:
    class Zeiger;

    std::size_t size() const { return m_kurz.size(); }
    bool empty() const { return m_kurz.empty(); }
    FehlerEintrag operator[](std::size_t i) const { return Lang(m_kurz[i]); }
    FehlerEintrag front() const { return Lang(m_kurz.front()); }
    Zeiger begin() const;
    Zeiger end() const;

    void push_back(const FehlerEintrag& eintrag);
    void pop_back() { m_kurz.pop_back(); }

    // Removes the entries that `weg` holds for.
    template <class Bedingung>
    void Entfernen(Bedingung weg) {
        std::erase_if(m_kurz, [&](Kurzform kurz) { return weg(Lang(kurz)); });
    }

    // Puts at each place the entry that stands now at the place which `folge` names there. `folge` becomes worthless.
    void Umstellen(std::vector<std::uint32_t>&& folge);

private:
    enum class Form : std::uint32_t { AufZeile, AnPosition, Ganz };

    struct Kurzform {
        std::uint32_t Ort; // the line; chapter times 1,000,000 plus position; or the place in m_ganz
        std::uint32_t Was; // form, code, column
    };

    FehlerEintrag Lang(Kurzform kurz) const;

    std::vector<Kurzform> m_kurz;
    std::vector<FehlerEintrag> m_ganz;
};

// Walks over the entries.
class Fehlersammlung::Zeiger {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = FehlerEintrag;
    using difference_type = std::ptrdiff_t;
    using pointer = const FehlerEintrag*;
    using reference = FehlerEintrag;

    Zeiger(const Fehlersammlung& sammlung, std::size_t stelle) : m_sammlung(&sammlung), m_stelle(stelle) {}

    FehlerEintrag operator*() const { return (*m_sammlung)[m_stelle]; }
    Zeiger& operator++() {
        ++m_stelle;
        return *this;
    }
    bool operator==(const Zeiger&) const = default;

private:
    const Fehlersammlung* m_sammlung;
    std::size_t m_stelle;
};

inline Fehlersammlung::Zeiger Fehlersammlung::begin() const {
    return {*this, 0};
}

inline Fehlersammlung::Zeiger Fehlersammlung::end() const {
    return {*this, size()};
}

} // namespace zepholt
