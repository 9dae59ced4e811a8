// The columns of a record by their kind on x86-64, whose every processor has these instructions: sixteen at once.
// Against the plain way a clean document is tested a quarter faster.
#include "state/Satz.h"

#include <emmintrin.h>

#include <algorithm>

namespace zepholt {

namespace {

constexpr std::size_t Blockbreite = 16; // columns

__m128i Alle(char byte) {
    return _mm_set1_epi8(byte);
}

// A bit for each byte that is at least `von` and less than `von` + `anzahl`.
std::uint32_t Dazwischen(__m128i block, char von, char anzahl) {
    const __m128i abstand = _mm_sub_epi8(block, Alle(von));
    const __m128i begrenzt = _mm_min_epu8(abstand, Alle(static_cast<char>(anzahl - 1)));
    return static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(abstand, begrenzt)));
}

void Eintragen(Spaltenarten& arten, const unsigned char* bytes, std::size_t ab, std::uint32_t gueltig) {
    const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
    const auto leer = static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(block, Alle(' '))));
    const std::size_t wort = ab / Spaltenmenge::Wortbreite;
    const std::size_t stelle = ab % Spaltenmenge::Wortbreite;
    arten.Gefuellt.Worte[wort] |= std::uint64_t{~leer & gueltig} << stelle;
    arten.Ziffern.Worte[wort] |= std::uint64_t{Dazwischen(block, '0', 10) & gueltig} << stelle;
    arten.Besonderes.Worte[wort] |= std::uint64_t{~Dazwischen(block, ' ', 95) & gueltig} << stelle;
}

} // namespace

Spaltenarten SpaltenartenVon(Feldsicht record) {
    if (record.IstBreit()) {
        return SpaltenartenEinzeln(record);
    }
    Spaltenarten arten;
    const std::size_t laenge = std::min<std::size_t>(record.size(), Spaltenmenge::Spalten);
    const std::size_t rest = laenge % Blockbreite;
    for (std::size_t ab = 0; ab + Blockbreite <= laenge; ab += Blockbreite) {
        Eintragen(arten, record.Bytes() + ab, ab, 0xFFFF);
    }
    if (rest != 0) {
        std::array<unsigned char, Blockbreite> letzter = {}; // nothing behind the record is read
        std::memcpy(letzter.data(), record.Bytes() + laenge - rest, rest);
        Eintragen(arten, letzter.data(), laenge - rest, (1U << rest) - 1);
    }
    return arten;
}

} // namespace zepholt
