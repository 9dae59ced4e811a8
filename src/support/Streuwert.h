// Hash values for tables that are keyed by texts of a file: with a key that each process draws anew, so that nobody can
// choose texts that meet in one place. They say nothing about order, and nothing that a run puts out depends on them.
#pragma once

#include <cstdint>

namespace zepholt {

// The key of this process, drawn when it is first asked for.
struct Streukeim {
    std::uint64_t Eins;
    std::uint64_t Zwei;
};
const Streukeim& ProzessKeim();

// Takes words one by one: each is mixed with what there is so far by the full product with a secret number, whose
// halves are folded. Who doesn't know the key of the process can't tell which words meet.
class Streuer {
public:
    void Nimm(std::uint64_t wort) { m_stand = GefaltetesProdukt(m_stand ^ wort, m_faktor); }
    std::uint64_t Wert() const { return GefaltetesProdukt(m_stand, m_faktor ^ Abschluss); }

private:
    static constexpr std::uint64_t Abschluss = 0x9E3779B97F4A7C15;

    static std::uint64_t GefaltetesProdukt(std::uint64_t a, std::uint64_t b) {
        __extension__ using Doppelwort = unsigned __int128;
        const Doppelwort produkt = Doppelwort{a} * b;
        return static_cast<std::uint64_t>(produkt) ^ static_cast<std::uint64_t>(produkt >> 64);
    }

    std::uint64_t m_stand = ProzessKeim().Eins;
    std::uint64_t m_faktor = ProzessKeim().Zwei | 1;
};

inline std::uint64_t Streuwert(std::uint64_t zahl) {
    Streuer streuer;
    streuer.Nimm(zahl);
    return streuer.Wert();
}

} // namespace zepholt
