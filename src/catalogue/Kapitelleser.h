// The fast way to read the entries of a chapter, and what it shares with the plain one in VLTKapitelLesen.cpp.
#pragma once

#include "catalogue/VLTKapitel.h"

#include <algorithm>
#include <limits>

namespace zepholt {

// The counts of a chapter are 16 bits wide.
inline constexpr std::size_t HoechsteAnzahl = std::numeric_limits<std::int16_t>::max();

// Reads an expanded chapter, a byte a character and without the XML declaration, if all of it has the form that chapter
// files are usually written in; the entries are then those that the plain way finds. False when anything is unusual, be
// it right or wrong: nothing is said about the chapter then, and a half of it may be left.
//
// Usual is: one root Kapitel with one H or more, then no H any more. An H is self-closed or holds one U or more, a U
// likewise V, a V is self-closed. Each start tag has attributes of one capital letter, none twice, one blank before
// each, and values without the characters < > " = and those below 32; N, S, V, W, X, Y, E, and A of the root, are one
// to nine digits and fit their width.
bool LiesUeblicheForm(ByteSicht bytes, KapitelDaten& kapitel);

// Gives the variables of one sub-position the numbers of their groups; `namen` are the names of the groups in the order
// of the variables, empty for none. Takes n log n comparisons.
template <class Sicht>
void NummeriereGruppen(std::span<VEintrag> variablen, const std::vector<Sicht>& namen) {
    std::vector<std::size_t> folge;
    for (std::size_t i = 0; i < namen.size(); ++i) {
        if (!namen[i].empty()) {
            folge.push_back(i);
        }
    }
    std::ranges::sort(folge, {}, [&namen](std::size_t i) { return namen[i]; });
    std::uint16_t gruppe = 0;
    Sicht davor;
    for (const std::size_t i : folge) {
        if (namen[i] != davor) {
            ++gruppe;
        }
        variablen[i].Gruppe = gruppe;
        davor = namen[i];
    }
}

} // namespace zepholt
