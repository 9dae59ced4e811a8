#include "hilfe/Entpacken.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>

namespace zepholt::hilfe {

namespace {

// The chance of a zero bit, in 2048ths: it follows the bits that were seen.
struct Chance {
    std::uint16_t Null = 1024;
};
template <std::size_t Anzahl>
using Chancen = std::array<Chance, Anzahl>;

// Bits out of a range coder.
class Bitleser {
public:
    explicit Bitleser(std::string_view bytes) : m_bytes(bytes) {
        constexpr int Kopf = 5; // a zero byte and the first four of the code
        for (int i = 0; i < Kopf; ++i) {
            NaechstesByte();
        }
    }

    std::uint32_t Bit(Chance& chance) {
        constexpr int Genauigkeit = 11;
        constexpr int Traegheit = 5;
        const std::uint32_t grenze = (m_bereich >> Genauigkeit) * chance.Null;
        const bool eins = m_code >= grenze;
        const int ziel = eins ? 0 : 1 << Genauigkeit;
        const int abstand = eins ? chance.Null : ziel - chance.Null;
        chance.Null = static_cast<std::uint16_t>(chance.Null + (eins ? -(abstand >> Traegheit) : abstand >> Traegheit));
        m_code -= eins ? grenze : 0;
        m_bereich = eins ? m_bereich - grenze : grenze;
        Nachladen();
        return eins ? 1 : 0;
    }

    // Bits whose chances are even, the highest first.
    std::uint32_t Gerade(int anzahl) {
        std::uint32_t wert = 0;
        for (int i = 0; i < anzahl; ++i) {
            m_bereich >>= 1;
            const bool eins = m_code >= m_bereich;
            m_code -= eins ? m_bereich : 0;
            wert = wert * 2 + (eins ? 1 : 0);
            Nachladen();
        }
        return wert;
    }

    // A number of `bits` bits, the highest first; each bit has a chance of its own for what stands above it.
    std::uint32_t Zahl(Chance* chancen, int bits) {
        std::uint32_t knoten = 1;
        for (int i = 0; i < bits; ++i) {
            knoten = knoten * 2 + Bit(chancen[knoten]);
        }
        return knoten - (1U << bits);
    }

    // The same, the lowest first.
    std::uint32_t ZahlVonUnten(Chance* chancen, int bits) {
        std::uint32_t knoten = 1;
        std::uint32_t wert = 0;
        for (int i = 0; i < bits; ++i) {
            const std::uint32_t bit = Bit(chancen[knoten]);
            knoten = knoten * 2 + bit;
            wert |= bit << i;
        }
        return wert;
    }

    bool AmEnde() const { return m_ueber; }

private:
    void NaechstesByte() {
        m_ueber = m_stelle >= m_bytes.size() + 1; // the last bit may ask for one byte more
        const auto byte = m_stelle < m_bytes.size() ? static_cast<unsigned char>(m_bytes[m_stelle]) : 0U;
        m_code = (m_code << 8) | byte;
        ++m_stelle;
    }

    void Nachladen() {
        constexpr std::uint32_t KleinsterBereich = 1U << 24;
        if (m_bereich < KleinsterBereich) {
            m_bereich <<= 8;
            NaechstesByte();
        }
    }

    std::string_view m_bytes;
    std::size_t m_stelle = 0;
    std::uint32_t m_bereich = 0xFFFFFFFF;
    std::uint32_t m_code = 0;
    bool m_ueber = false;
};

constexpr int Zustaende = 12;
constexpr int NachKopie = 7; // the states from here on: the latest was no single byte

// The length of a copy, less 2.
class Laengenleser {
public:
    std::uint32_t Lesen(Bitleser& leser) {
        if (leser.Bit(m_wahl[0]) == 0) {
            return leser.Zahl(m_kurz.data(), 3);
        }
        if (leser.Bit(m_wahl[1]) == 0) {
            return 8 + leser.Zahl(m_mittel.data(), 3);
        }
        return 16 + leser.Zahl(m_lang.data(), 8);
    }

private:
    Chancen<2> m_wahl;
    Chancen<8> m_kurz, m_mittel;
    Chancen<256> m_lang;
};

class Entpacker {
public:
    Entpacker(std::string_view gepackt, std::size_t laenge) : m_leser(gepackt), m_laenge(laenge) {
        m_text.reserve(laenge);
    }

    std::string Alles() {
        while (m_text.size() < m_laenge && !m_leser.AmEnde()) {
            if (m_leser.Bit(m_kopie[m_zustand]) == 0) {
                Zeichen();
            } else if (!Kopieren(m_leser.Bit(m_wieder[m_zustand]) == 0 ? NeueKopie() : WiederKopie())) {
                break;
            }
        }
        return std::move(m_text);
    }

private:
    void Zeichen() {
        const auto vorher = m_text.empty() ? 0U : static_cast<unsigned char>(m_text.back());
        Chance* const chancen = m_zeichen.data() + std::size_t{0x300} * (vorher >> 4); // lc = 4
        std::uint32_t knoten = 1;
        // Behind a copy the byte that would have gone on with it is a hint, as long as it is right.
        if (m_zustand >= NachKopie) {
            auto hinweis =
                static_cast<std::uint32_t>(static_cast<unsigned char>(m_text[m_text.size() - m_weite[0] - 1]));
            for (bool stimmt = true; stimmt && knoten < 0x100; hinweis <<= 1) {
                const std::uint32_t erwartet = (hinweis >> 7) & 1;
                const std::uint32_t bit = m_leser.Bit(chancen[((1 + erwartet) << 8) + knoten]);
                knoten = knoten * 2 + bit;
                stimmt = bit == erwartet;
            }
        }
        while (knoten < 0x100) {
            knoten = knoten * 2 + m_leser.Bit(chancen[knoten]);
        }
        m_text.push_back(static_cast<char>(knoten & 0xFF));
        m_zustand = m_zustand < 4 ? 0 : m_zustand - (m_zustand < 10 ? 3 : 6);
    }

    // Both return the number of bytes to copy.
    std::uint32_t NeueKopie() {
        const std::uint32_t laenge = m_neueLaenge.Lesen(m_leser);
        m_zustand = m_zustand < NachKopie ? 7 : 10;
        std::copy_backward(m_weite.begin(), m_weite.end() - 1, m_weite.end());
        m_weite[0] = Weite(laenge);
        return laenge + 2;
    }

    std::uint32_t WiederKopie() {
        const std::size_t zustand = m_zustand;
        m_zustand = zustand < NachKopie ? 8 : 11;
        if (m_leser.Bit(m_andere[zustand]) == 0) {
            if (m_leser.Bit(m_lang[zustand]) == 0) {
                m_zustand = zustand < NachKopie ? 9 : 11;
                return 1;
            }
        } else {
            std::size_t welche = 1 + m_leser.Bit(m_zweite[zustand]);
            welche += welche == 2 ? m_leser.Bit(m_dritte[zustand]) : 0;
            std::rotate(m_weite.begin(), m_weite.begin() + static_cast<std::ptrdiff_t>(welche),
                        m_weite.begin() + static_cast<std::ptrdiff_t>(welche) + 1);
        }
        return m_wiederLaenge.Lesen(m_leser) + 2;
    }

    // How far back a new copy begins, less 1.
    std::uint32_t Weite(std::uint32_t laenge) {
        constexpr int Klassenbits = 6;
        constexpr int Feinbits = 4;
        const std::uint32_t klasse = m_leser.Zahl(m_klasse[std::min(laenge, 3U)].data(), Klassenbits);
        if (klasse < 4) {
            return klasse;
        }
        const int bits = static_cast<int>(klasse / 2) - 1;
        const std::uint32_t anfang = (2 | (klasse & 1)) << bits;
        if (klasse < 14) {
            return anfang + m_leser.ZahlVonUnten(m_nah.data() + (anfang - klasse), bits);
        }
        const std::uint32_t grob = m_leser.Gerade(bits - Feinbits) << Feinbits;
        return anfang + grob + m_leser.ZahlVonUnten(m_fein.data(), Feinbits);
    }

    // False when the copy begins in front of the text: an end mark, or damage.
    bool Kopieren(std::uint32_t anzahl) {
        if (m_weite[0] >= m_text.size()) {
            return false;
        }
        for (; anzahl > 0 && m_text.size() < m_laenge; --anzahl) {
            m_text.push_back(m_text[m_text.size() - m_weite[0] - 1]);
        }
        return true;
    }

    Bitleser m_leser;
    std::size_t m_laenge;
    std::string m_text;
    std::size_t m_zustand = 0;
    std::array<std::uint32_t, 4> m_weite{}; // of the latest copies, less 1
    Chancen<Zustaende> m_kopie, m_wieder, m_andere, m_lang, m_zweite, m_dritte;
    Chancen<std::size_t{0x300} * 16> m_zeichen;
    std::array<Chancen<64>, 4> m_klasse;
    Chancen<128> m_nah;
    Chancen<16> m_fein;
    Laengenleser m_neueLaenge, m_wiederLaenge;
};

} // namespace

std::string Entpacken(std::string_view gepackt, std::size_t laenge) {
    return std::make_unique<Entpacker>(gepackt, laenge)->Alles();
}

} // namespace zepholt::hilfe
