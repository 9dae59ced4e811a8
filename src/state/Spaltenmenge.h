// A set of columns of a record, 1 to 256, as bits: what a field's test asks of a record is answered for many columns at
// once. Columns behind 256 belong to no set.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

namespace zepholt {

class Spaltenmenge {
public:
    static constexpr std::int32_t Spalten = 256;
    static constexpr std::int32_t Wortbreite = 64;

    std::array<std::uint64_t, 4> Worte = {}; // column 1 is the lowest bit of the first word

    constexpr void SetzeBereich(std::int32_t spalte, std::int32_t laenge) {
        for (std::int32_t i = spalte - 1; i < spalte - 1 + laenge && i < Spalten; ++i) {
            Worte[static_cast<std::size_t>(i / Wortbreite)] |= std::uint64_t{1} << i % Wortbreite;
        }
    }

    // True when the rule holds for each column (from 1) of the set.
    template <class Regel>
    constexpr bool JedeErfuellt(Regel regel) const {
        for (std::int32_t wort = 0; wort < Spalten / Wortbreite; ++wort) {
            for (std::uint64_t rest = Worte[static_cast<std::size_t>(wort)]; rest != 0; rest &= rest - 1) {
                if (!regel(wort * Wortbreite + std::countr_zero(rest) + 1)) {
                    return false;
                }
            }
        }
        return true;
    }

    constexpr bool Hat(std::int32_t spalte) const {
        return (Worte[static_cast<std::size_t>((spalte - 1) / Wortbreite)] >> (spalte - 1) % Wortbreite & 1) != 0;
    }

    // True when all columns of a field (first column, length) belong to the set.
    [[gnu::always_inline]] constexpr bool Alle(std::int32_t spalte, std::int32_t laenge) const {
        for (; laenge > Wortbreite; spalte += Wortbreite, laenge -= Wortbreite) {
            if (~Stueck(spalte, Wortbreite) != 0) {
                return false;
            }
        }
        return Stueck(spalte, laenge) == Untere(laenge);
    }

    // The first column of a field that belongs to the set; 0 for none.
    [[gnu::always_inline]] constexpr std::int32_t Erste(std::int32_t spalte, std::int32_t laenge) const {
        for (; laenge > 0; spalte += Wortbreite, laenge -= Wortbreite) {
            if (const std::uint64_t stueck = Stueck(spalte, laenge); stueck != 0) {
                return spalte + std::countr_zero(stueck);
            }
        }
        return 0;
    }

    // The last one; 0 for none.
    [[gnu::always_inline]] constexpr std::int32_t Letzte(std::int32_t spalte, std::int32_t laenge) const {
        std::int32_t letzte = 0;
        for (; laenge > 0; spalte += Wortbreite, laenge -= Wortbreite) {
            if (const std::uint64_t stueck = Stueck(spalte, laenge); stueck != 0) {
                letzte = spalte + Wortbreite - 1 - std::countl_zero(stueck);
            }
        }
        return letzte;
    }

    // True when a column belongs to both.
    constexpr bool TrifftAuf(const Spaltenmenge& andere) const {
        return ((Worte[0] & andere.Worte[0]) | (Worte[1] & andere.Worte[1]) | (Worte[2] & andere.Worte[2]) |
                (Worte[3] & andere.Worte[3])) != 0;
    }

private:
    // The lowest bits, as many as a field has columns; all of them for a field of a word and more.
    static constexpr std::uint64_t Untere(std::int32_t laenge) {
        return laenge < Wortbreite ? (std::uint64_t{1} << laenge) - 1 : ~std::uint64_t{0};
    }

    // The first 64 columns of a field, its first column in the lowest bit.
    [[gnu::always_inline]] constexpr std::uint64_t Stueck(std::int32_t spalte, std::int32_t laenge) const {
        const std::int32_t wort = (spalte - 1) / Wortbreite;
        const std::int32_t stelle = (spalte - 1) % Wortbreite;
        if (wort >= Spalten / Wortbreite) {
            return 0;
        }
        std::uint64_t bits = Worte[static_cast<std::size_t>(wort)] >> stelle;
        if (stelle != 0 && stelle + laenge > Wortbreite && wort + 1 < Spalten / Wortbreite) {
            bits |= Worte[static_cast<std::size_t>(wort + 1)] << (Wortbreite - stelle);
        }
        return bits & Untere(laenge);
    }
};

} // namespace zepholt
