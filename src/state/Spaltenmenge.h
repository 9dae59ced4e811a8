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

    constexpr bool empty() const { return (Worte[0] | Worte[1] | Worte[2] | Worte[3]) == 0; }

    // True when all columns of a field (first column, length) belong to the set.
    constexpr bool Alle(std::int32_t spalte, std::int32_t laenge) const {
        bool alle = spalte - 1 + laenge <= Spalten;
        JedesStueck(spalte, laenge, [&alle](std::uint64_t stueck, std::uint64_t maske, std::int32_t /*ab*/) {
            alle = alle && stueck == maske;
            return alle;
        });
        return alle;
    }

    // The first column of a field that belongs to the set; 0 for none.
    constexpr std::int32_t Erste(std::int32_t spalte, std::int32_t laenge) const {
        std::int32_t erste = 0;
        JedesStueck(spalte, laenge, [&erste](std::uint64_t stueck, std::uint64_t /*maske*/, std::int32_t ab) {
            erste = stueck == 0 ? 0 : ab + std::countr_zero(stueck);
            return stueck == 0;
        });
        return erste;
    }

    // The last one; 0 for none.
    constexpr std::int32_t Letzte(std::int32_t spalte, std::int32_t laenge) const {
        std::int32_t letzte = 0;
        JedesStueck(spalte, laenge, [&letzte](std::uint64_t stueck, std::uint64_t /*maske*/, std::int32_t ab) {
            letzte = stueck == 0 ? letzte : ab + Wortbreite - 1 - std::countl_zero(stueck);
            return true;
        });
        return letzte;
    }

    // The columns of this set that are not of the other.
    constexpr Spaltenmenge Ohne(const Spaltenmenge& andere) const {
        return {{Worte[0] & ~andere.Worte[0], Worte[1] & ~andere.Worte[1], Worte[2] & ~andere.Worte[2],
                 Worte[3] & ~andere.Worte[3]}};
    }

private:
    // Hands the set's columns within a field to `tue`, a word at a time, with the field's own columns in that word and
    // the column of the word's lowest bit, until it returns false.
    template <class Tue>
    constexpr void JedesStueck(std::int32_t spalte, std::int32_t laenge, Tue tue) const {
        std::int32_t von = spalte - 1;
        const std::int32_t bis = von + laenge < Spalten ? von + laenge : Spalten;
        while (von < bis) {
            const std::int32_t wort = von / Wortbreite;
            const std::int32_t ende = (wort + 1) * Wortbreite < bis ? (wort + 1) * Wortbreite : bis;
            const std::uint64_t maske = (~std::uint64_t{0} >> (Wortbreite - (ende - von))) << von % Wortbreite;
            if (!tue(Worte[static_cast<std::size_t>(wort)] & maske, maske, wort * Wortbreite + 1)) {
                return;
            }
            von = ende;
        }
    }
};

} // namespace zepholt
