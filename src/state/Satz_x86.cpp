// The columns of a record by their kind on x86-64: sixteen at once, as every processor can, or thirty-two.
#include "state/Satz.h"

#include <immintrin.h>

#include <algorithm>

namespace zepholt {

namespace {

constexpr std::size_t Wortbreite = Spaltenmenge::Wortbreite;

// The three sets of a word of 64 columns, which are there to be read.
struct Wortarten {
    std::uint64_t Leer = 0;
    std::uint64_t Ziffern = 0;
    std::uint64_t Druckbar = 0;
};

std::uint64_t Bits(int maske, std::size_t stelle) {
    return std::uint64_t{static_cast<std::uint32_t>(maske)} << stelle;
}

// A byte is at least `von` and less than `von` + `anzahl` when its distance from `von` stays as it is under a limit.
Wortarten WortMit16(const unsigned char* bytes) {
    Wortarten arten;
    for (std::size_t stelle = 0; stelle < Wortbreite; stelle += sizeof(__m128i)) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + stelle));
        const auto dazwischen = [block](char von, char anzahl) {
            const __m128i abstand = _mm_sub_epi8(block, _mm_set1_epi8(von));
            const __m128i grenze = _mm_set1_epi8(static_cast<char>(anzahl - 1));
            return _mm_movemask_epi8(_mm_cmpeq_epi8(abstand, _mm_min_epu8(abstand, grenze)));
        };
        arten.Leer |= Bits(_mm_movemask_epi8(_mm_cmpeq_epi8(block, _mm_set1_epi8(' '))), stelle);
        arten.Ziffern |= Bits(dazwischen('0', 10), stelle);
        arten.Druckbar |= Bits(dazwischen(' ', 95), stelle);
    }
    return arten;
}

__attribute__((target("avx2"))) int Dazwischen32(__m256i block, char von, char anzahl) {
    const __m256i abstand = _mm256_sub_epi8(block, _mm256_set1_epi8(von));
    const __m256i grenze = _mm256_set1_epi8(static_cast<char>(anzahl - 1));
    return _mm256_movemask_epi8(_mm256_cmpeq_epi8(abstand, _mm256_min_epu8(abstand, grenze)));
}

__attribute__((target("avx2"))) Wortarten WortMit32(const unsigned char* bytes) {
    Wortarten arten;
    for (std::size_t stelle = 0; stelle < Wortbreite; stelle += sizeof(__m256i)) {
        const __m256i block = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(bytes + stelle));
        arten.Leer |= Bits(_mm256_movemask_epi8(_mm256_cmpeq_epi8(block, _mm256_set1_epi8(' '))), stelle);
        arten.Ziffern |= Bits(Dazwischen32(block, '0', 10), stelle);
        arten.Druckbar |= Bits(Dazwischen32(block, ' ', 95), stelle);
    }
    return arten;
}

using Wortweg = Wortarten (*)(const unsigned char*);
const Wortweg Wort = __builtin_cpu_supports("avx2") != 0 ? WortMit32 : WortMit16;

void Eintragen(Spaltenarten& arten, std::size_t wort, const unsigned char* bytes) {
    const Wortarten neue = Wort(bytes);
    arten.Gefuellt.Worte[wort] = ~neue.Leer;
    arten.Ziffern.Worte[wort] = neue.Ziffern;
    arten.Besonderes.Worte[wort] = ~neue.Druckbar;
}

} // namespace

Spaltenarten SpaltenartenVon(Feldsicht record) {
    if (record.IstBreit()) {
        return SpaltenartenEinzeln(record);
    }
    Spaltenarten arten;
    const std::size_t laenge = std::min<std::size_t>(record.size(), Spaltenmenge::Spalten);
    std::size_t wort = 0;
    for (; (wort + 1) * Wortbreite <= laenge; ++wort) {
        Eintragen(arten, wort, record.Bytes() + wort * Wortbreite);
    }
    if (const std::size_t rest = laenge % Wortbreite; rest != 0) {
        std::array<unsigned char, Wortbreite> letzte; // nothing behind the record is read
        letzte.fill(' ');
        std::memcpy(letzte.data(), record.Bytes() + laenge - rest, rest);
        Eintragen(arten, wort, letzte.data());
    }
    return arten;
}

} // namespace zepholt
