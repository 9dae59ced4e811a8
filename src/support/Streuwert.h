// Hash values for tables that are keyed by texts of a file: with a key that each process draws anew, so that nobody can
// choose texts that meet in one place. They say nothing about order, and nothing that a run puts out depends on them.
#pragma once

#include <bit>
#include <cstdint>

namespace zepholt {

// The key of this process, drawn when it is first asked for.
struct Streukeim {
    std::uint64_t Eins;
    std::uint64_t Zwei;
};
const Streukeim& ProzessKeim();

// SipHash-1-3, taken word by word: short, and made for keys that an adversary chooses.
class Streuer {
public:
    void Nimm(std::uint64_t wort) {
        m_d ^= wort;
        Runde();
        m_a ^= wort;
    }

    std::uint64_t Wert() {
        m_c ^= 0xFF;
        Runde();
        Runde();
        Runde();
        return m_a ^ m_b ^ m_c ^ m_d;
    }

private:
    void Runde() {
        m_a += m_b;
        m_b = std::rotl(m_b, 13) ^ m_a;
        m_a = std::rotl(m_a, 32);
        m_c += m_d;
        m_d = std::rotl(m_d, 16) ^ m_c;
        m_a += m_d;
        m_d = std::rotl(m_d, 21) ^ m_a;
        m_c += m_b;
        m_b = std::rotl(m_b, 17) ^ m_c;
        m_c = std::rotl(m_c, 32);
    }

    std::uint64_t m_a = ProzessKeim().Eins ^ 0x736F6D6570736575;
    std::uint64_t m_b = ProzessKeim().Zwei ^ 0x646F72616E646F6D;
    std::uint64_t m_c = ProzessKeim().Eins ^ 0x6C7967656E657261;
    std::uint64_t m_d = ProzessKeim().Zwei ^ 0x7465646279746573;
};

inline std::uint64_t Streuwert(std::uint64_t zahl) {
    Streuer streuer;
    streuer.Nimm(zahl);
    return streuer.Wert();
}

} // namespace zepholt
