// The columns of a record by their kind on x86-64, whose every processor has these instructions: sixteen at once.
#include "state/Satz.h"

#include <emmintrin.h>

#include <algorithm>

namespace zepholt {

namespace {

constexpr std::size_t Blockbreite = 16; // columns
constexpr std::size_t Wortbreite = Spaltenmenge::Wortbreite;

__m128i Alle(char byte) {
    return _mm_set1_epi8(byte);
}

// A bit for each byte of a comparison, from `stelle` on.
std::uint64_t Bits(__m128i vergleich, std::size_t stelle) {
    return std::uint64_t{static_cast<std::uint32_t>(_mm_movemask_epi8(vergleich))} << stelle;
}

// All bits for each byte from `erstes` to `letztes`: moved to the lowest of the numbers with a sign, they stand below
// all other bytes.
__m128i Zwischen(__m128i block, char erstes, char letztes) {
    return _mm_cmplt_epi8(_mm_add_epi8(block, Alle(static_cast<char>(-128 - erstes))),
                          Alle(static_cast<char>(-128 + letztes - erstes + 1)));
}

__m128i Leere(__m128i block) {
    return _mm_cmpeq_epi8(block, Alle(' '));
}

__m128i Ziffern(__m128i block) {
    return Zwischen(block, '0', '9');
}

__m128i Ascii(__m128i block) {
    return Zwischen(block, ' ', '~');
}

// Which of 64 columns are of the kind, the first in the lowest bit.
template <class Art>
std::uint64_t Wort64(const unsigned char* bytes, Art art) {
    std::uint64_t wort = 0;
    for (std::size_t stelle = 0; stelle < Wortbreite; stelle += Blockbreite) {
        wort |= Bits(art(_mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + stelle))), stelle);
    }
    return wort;
}

// Calls `tue` for each word of a record's sets, at most four: with 64 columns, of which the first so many stand in the
// word before, and the number of the word from 0. Nothing behind the record is read; a short one is filled up with
// blanks.
template <class Tue>
void JedesWort(Feldsicht record, Tue tue) {
    const std::size_t laenge = std::min<std::size_t>(record.size(), Spaltenmenge::Spalten);
    if (record.IstBreit()) { // what is no ASCII is of no kind
        std::array<unsigned char, Spaltenmenge::Spalten> schmal;
        std::transform(record.Zeichen(), record.Zeichen() + laenge, schmal.begin(),
                       [](char16_t z) { return static_cast<unsigned char>(z < 0x80 ? z : 0x80); });
        return JedesWort(Feldsicht(schmal.data(), laenge), tue);
    }
    if (laenge < Wortbreite) {
        std::array<unsigned char, Wortbreite> kurzer;
        kurzer.fill(' ');
        std::copy_n(record.Bytes(), laenge, kurzer.begin());
        return tue(kurzer.data(), 0, 0);
    }
    std::size_t wort = 0;
    for (; (wort + 1) * Wortbreite <= laenge; ++wort) {
        tue(record.Bytes() + wort * Wortbreite, 0, wort);
    }
    if (const std::size_t rest = laenge % Wortbreite; rest != 0) {
        tue(record.Bytes() + laenge - Wortbreite, Wortbreite - rest, wort);
    }
}

} // namespace

void SpaltenEinteilen(Feldsicht record, Spaltenarten& arten) {
    arten = {};
    JedesWort(record, [&arten](const unsigned char* bytes, std::size_t davor, std::size_t wort) {
        arten.Gefuellt.Worte[wort] = ~Wort64(bytes, Leere) >> davor;
        arten.Ziffern.Worte[wort] = Wort64(bytes, Ziffern) >> davor;
    });
}

Spaltenmenge AuffaelligeSpalten(Feldsicht record, const Spaltenmenge& felder) {
    Spaltenmenge auffaellige;
    JedesWort(record, [&](const unsigned char* bytes, std::size_t davor, std::size_t wort) {
        auffaellige.Worte[wort] =
            ~Wort64(bytes, Ascii) >> davor | (~Wort64(bytes, Leere) >> davor & ~felder.Worte[wort]);
    });
    return auffaellige;
}

std::uint64_t GleicheBytes(const unsigned char* bytes, unsigned char gesucht) {
    return Wort64(bytes,
                  [alle = Alle(static_cast<char>(gesucht))](__m128i block) { return _mm_cmpeq_epi8(block, alle); });
}

} // namespace zepholt
