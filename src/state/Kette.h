// Short lists by the hundred thousand: each position has one of its quantities, each variable one of its lines.
//
// All entries of a kind stand in one store, in pieces that never move, and each knows the next one of its list; the
// last one knows the first. So a list is one number: it takes no memory of its own, and growing copies nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <iterator>
#include <type_traits>
#include <utility>

namespace zepholt {

// One list: its last entry, as a place in the store of its kind; -1 for none.
struct Kette {
    std::int32_t Letztes = -1;

    bool empty() const { return Letztes == -1; }
};

// The store of all entries of a kind.
template <class Eintrag>
class Kettenglieder {
    struct Glied {
        Eintrag Inhalt;
        std::int32_t Naechstes; // of the last one: the first one
    };

    using Vorrat = std::deque<Glied>;

    static std::int32_t NaechstesVon(const Vorrat& glieder, std::int32_t platz) {
        return glieder[static_cast<std::size_t>(platz)].Naechstes;
    }

    // Goes through the entries of one list, in the order in which they came.
    template <class Glieder>
    class Zeiger {
    public:
        using Inhalt = std::conditional_t<std::is_const_v<Glieder>, const Eintrag, Eintrag>;
        using value_type = Eintrag;
        using difference_type = std::ptrdiff_t;

        Zeiger() = default;
        Zeiger(Glieder& glieder, std::int32_t platz, std::int32_t letztes)
            : m_glieder(&glieder), m_platz(platz), m_letztes(letztes) {}

        Inhalt& operator*() const { return (*m_glieder)[static_cast<std::size_t>(m_platz)].Inhalt; }
        Zeiger& operator++() {
            m_platz = m_platz == m_letztes ? -1 : NaechstesVon(*m_glieder, m_platz);
            return *this;
        }
        Zeiger operator++(int) {
            const Zeiger bisher = *this;
            ++*this;
            return bisher;
        }
        bool operator==(std::default_sentinel_t /*ende*/) const { return m_platz == -1; }

    private:
        Glieder* m_glieder = nullptr;
        std::int32_t m_platz = -1; // -1 behind the last one
        std::int32_t m_letztes = -1;
    };

    // The entries of `kette` behind the one at `platz`; behind the last one comes the first.
    template <class Glieder>
    class Folge {
    public:
        Folge(Glieder& glieder, std::int32_t platz, const Kette& kette)
            : m_anfang(glieder, kette.empty() ? -1 : NaechstesVon(glieder, platz), kette.Letztes) {}

        auto begin() const { return m_anfang; }
        std::default_sentinel_t end() const { return {}; }

    private:
        Zeiger<Glieder> m_anfang;
    };

public:
    Eintrag& Anfuegen(Kette& kette, Eintrag eintrag) {
        const auto platz = static_cast<std::int32_t>(m_glieder.size());
        m_glieder.push_back({eintrag, platz});
        if (!kette.empty()) {
            std::swap(m_glieder[static_cast<std::size_t>(kette.Letztes)].Naechstes, m_glieder.back().Naechstes);
        }
        kette.Letztes = platz;
        return m_glieder.back().Inhalt;
    }

    // The entries of a list, to go through from the first on.
    auto Von(const Kette& kette) { return Folge<Vorrat>(m_glieder, kette.Letztes, kette); }
    auto Von(const Kette& kette) const { return Folge<const Vorrat>(m_glieder, kette.Letztes, kette); }

    // The entries of a list behind those that it had when it was as `frueher`.
    auto Seit(const Kette& frueher, const Kette& kette) const {
        if (frueher.empty()) {
            return Von(kette);
        }
        const bool gewachsen = frueher.Letztes != kette.Letztes;
        return Folge<const Vorrat>(m_glieder, frueher.Letztes, gewachsen ? kette : Kette());
    }

    // The last entry of a list that is not empty.
    const Eintrag& LetztesVon(const Kette& kette) const {
        return m_glieder[static_cast<std::size_t>(kette.Letztes)].Inhalt;
    }

private:
    Vorrat m_glieder;
};

} // namespace zepholt
