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

// All bits for each digit: moved to the lowest of the numbers with a sign, the ten digits stand below all other bytes.
__m128i Ziffern(__m128i block) {
    return _mm_cmplt_epi8(_mm_add_epi8(block, Alle(static_cast<char>(-128 - '0'))), Alle(-128 + 10));
}

// A word of the sets from 64 columns, of which the first `davor` stand in the word before.
void WortEinteilen(const unsigned char* bytes, std::size_t davor, std::size_t wort, Spaltenarten& arten) {
    std::uint64_t leer = 0;
    std::uint64_t ziffern = 0;
    for (std::size_t stelle = 0; stelle < Wortbreite; stelle += Blockbreite) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + stelle));
        leer |= Bits(_mm_cmpeq_epi8(block, Alle(' ')), stelle);
        ziffern |= Bits(Ziffern(block), stelle);
    }
    arten.Gefuellt.Worte[wort] = ~leer >> davor;
    arten.Ziffern.Worte[wort] = ziffern >> davor;
}

} // namespace

// Nothing behind the record is read.
void SpaltenEinteilen(Feldsicht record, Spaltenarten& arten) {
    arten = {};
    const std::size_t laenge = std::min<std::size_t>(record.size(), Spaltenmenge::Spalten);
    if (record.IstBreit()) { // what is no ASCII is neither a blank nor a digit
        std::array<unsigned char, Spaltenmenge::Spalten> schmal;
        std::transform(record.Zeichen(), record.Zeichen() + laenge, schmal.begin(),
                       [](char16_t z) { return static_cast<unsigned char>(z < 0x80 ? z : 0x80); });
        return SpaltenEinteilen(Feldsicht(schmal.data(), laenge), arten);
    }
    if (laenge < Wortbreite) {
        std::array<unsigned char, Wortbreite> kurzer;
        kurzer.fill(' ');
        std::copy_n(record.Bytes(), laenge, kurzer.begin());
        return WortEinteilen(kurzer.data(), 0, 0, arten);
    }
    std::size_t wort = 0;
    for (; (wort + 1) * Wortbreite <= laenge; ++wort) {
        WortEinteilen(record.Bytes() + wort * Wortbreite, 0, wort, arten);
    }
    if (const std::size_t rest = laenge % Wortbreite; rest != 0) {
        WortEinteilen(record.Bytes() + laenge - Wortbreite, Wortbreite - rest, wort, arten);
    }
}

} // namespace zepholt
