// Short lists by the hundred thousand: each position has one of its quantities, each variable one of its lines.
//
// All entries of a kind stand in one store, in pieces that never move, and each knows the next one of its list. A list
// is two numbers: it takes no memory of its own, and growing copies nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <iterator>

namespace zepholt {

// One list: its first and its last entry, as places in the store of its kind; -1 for none.
struct Kette {
    std::int32_t Erstes = -1;
    std::int32_t Letztes = -1;

    bool empty() const { return Erstes == -1; }
};

// The store of all entries of a kind.
template <class Eintrag>
class Kettenglieder {
    struct Glied {
        Eintrag Inhalt;
        std::int32_t Naechstes = -1;
    };

    // The entries of one list, in the order in which they came.
    template <class Inhalt, class Vorrat>
    class Zeiger {
    public:
        using value_type = Eintrag;
        using difference_type = std::ptrdiff_t;

        Zeiger() = default;
        Zeiger(Vorrat& glieder, std::int32_t platz) : m_glieder(&glieder), m_platz(platz) {}

        Inhalt& operator*() const { return (*m_glieder)[static_cast<std::size_t>(m_platz)].Inhalt; }
        Zeiger& operator++() {
            m_platz = (*m_glieder)[static_cast<std::size_t>(m_platz)].Naechstes;
            return *this;
        }
        Zeiger operator++(int) {
            const Zeiger bisher = *this;
            ++*this;
            return bisher;
        }
        bool operator==(const Zeiger& anderer) const { return m_platz == anderer.m_platz; }
        bool operator==(std::default_sentinel_t /*ende*/) const { return m_platz == -1; }

    private:
        Vorrat* m_glieder = nullptr;
        std::int32_t m_platz = -1;
    };

    template <class Inhalt, class Vorrat>
    struct Folge {
        Zeiger<Inhalt, Vorrat> Anfang;

        auto begin() const { return Anfang; }
        std::default_sentinel_t end() const { return {}; }
    };

    using Vorrat = std::deque<Glied>;

public:
    Eintrag& Anfuegen(Kette& kette, Eintrag eintrag) {
        const auto platz = static_cast<std::int32_t>(m_glieder.size());
        m_glieder.push_back({eintrag});
        (kette.empty() ? kette.Erstes : m_glieder[static_cast<std::size_t>(kette.Letztes)].Naechstes) = platz;
        kette.Letztes = platz;
        return m_glieder.back().Inhalt;
    }

    // The entries of a list, to go through from the first on.
    auto Von(const Kette& kette) { return Folge<Eintrag, Vorrat>{{m_glieder, kette.Erstes}}; }
    auto Von(const Kette& kette) const { return Folge<const Eintrag, const Vorrat>{{m_glieder, kette.Erstes}}; }

    // The entries of a list behind those that it had when it was as `frueher`.
    auto Seit(const Kette& frueher, const Kette& kette) const {
        const std::int32_t erstes =
            frueher.empty() ? kette.Erstes : m_glieder[static_cast<std::size_t>(frueher.Letztes)].Naechstes;
        return Folge<const Eintrag, const Vorrat>{{m_glieder, erstes}};
    }

    // The last entry of a list that is not empty.
    const Eintrag& LetztesVon(const Kette& kette) const {
        return m_glieder[static_cast<std::size_t>(kette.Letztes)].Inhalt;
    }

private:
    Vorrat m_glieder;
};

} // namespace zepholt
