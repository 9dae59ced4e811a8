// Rules that several item records share: the position that a record belongs to, the sign of a price, its kind.
#pragma once

#include "doctest/Feldregeln.h"
#include "state/SIA451Datei.h"
#include "state/Spaltenmenge.h"
#include "support/Text.h"

#include <array>
#include <optional>
#include <span>

namespace zepholt {

// The place of a position by its numbers. None when the chapter does not stand in the tree (`kapitelFehlt` is reported)
// or the position not in the chapter (`positionFehlt`).
std::optional<Positionsort> SucheOrt(std::int32_t kapitel, std::int32_t position, std::int32_t kapitelFehlt,
                                     std::int32_t positionFehlt);

// The sign of a price: a bad one is reported as `unzulaessig`, a missing one as `vorzeichenFehlt` when there is a
// price. A sign without a price is no fault.
void PruefePreisvorzeichen(const Betrag& preis, std::int32_t unzulaessig, std::int32_t vorzeichenFehlt);

// The price kind of G5:17 and G6:17, which only the new interface tests: 4521.
void PruefePreisart(Feldsicht preisart);

struct Feldbereich {
    std::int32_t Spalte; // from 1
    std::int32_t Laenge;
};

// Fields that a form of a record leaves blank, and the columns of all of them.
template <std::size_t Anzahl>
struct LeereFelder {
    std::array<Feldbereich, Anzahl> Felder;
    Spaltenmenge Spalten;

    explicit constexpr LeereFelder(const std::array<Feldbereich, Anzahl>& felder) : Felder(felder) {
        for (const Feldbereich& feld : felder) {
            Spalten.SetzeBereich(feld.Spalte, feld.Laenge);
        }
    }
};

// 2032 for each of the fields that is not blank, with its column: the two forms of a quantity record share one layout,
// and each leaves the fields of the other blank.
void PruefeLeereFelder(std::span<const Feldbereich> felder, const Spaltenmenge& spalten);

template <std::size_t Anzahl>
void PruefeLeereFelder(const LeereFelder<Anzahl>& leere) {
    PruefeLeereFelder(leere.Felder, leere.Spalten);
}

} // namespace zepholt
