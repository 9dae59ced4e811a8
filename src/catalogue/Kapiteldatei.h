// The form of a chapter file: bytes, one byte one character. A head of 30 characters ("CF11", year 4, language 1,
// chapter 3, length 9, size of the expanded text 9), a table of abbreviations, and a body: XML text with a byte below
// 32 for each abbreviation. No state.
#pragma once

#include "support/Text.h"

#include <array>
#include <optional>
#include <vector>

namespace zepholt {

// The longest expanded chapter text that is read, in characters: room for each of the million numbers that a chapter
// can give. A chapter that would expand to more counts as absent: a few kilobytes of abbreviations could stand for
// any amount of text otherwise.
inline constexpr std::size_t GroessteKapitelLaenge = std::size_t{1} << 27;

inline constexpr std::size_t KapitelkopfLaenge = 30;

// The texts by code, 0 to 31; a code without one stands for nothing. Views of the file's bytes.
using Abkuerzungen = std::array<ByteSicht, 32>;

// A chapter file taken apart; a view of its bytes.
struct Kapitelbytes {
    Abkuerzungen Tabelle;
    ByteSicht Rumpf;
    std::size_t Laenge = 0; // of the expanded text, in characters and without the declaration
    bool HatAbkuerzungen = false;
};

// Takes a chapter file apart. None when it doesn't begin as one, its table holds a code out of range, or the expanded
// text would be too long. A head whose fields are no numbers, or an end inside head or table, is a LaufzeitFehler.
std::optional<Kapitelbytes> ZerlegeKapitel(ByteSicht roh);

// The table that begins behind the head of `roh`, and in `rumpfAb` the offset behind it. None at a code out of range;
// an end before the table's own is a LaufzeitFehler.
std::optional<Abkuerzungen> LeseAbkuerzungen(ByteSicht roh, std::size_t& rumpfAb);

// The expanded text of a body, or of a part of one, behind the XML declaration.
Text EntpackeKapitel(const Kapitelbytes& datei);

// The expanded text of a whole body as bytes, without a declaration: the body itself where it has no abbreviations,
// else in `raum`, which grows as it must.
ByteSicht EntpackteBytes(const Kapitelbytes& datei, std::vector<unsigned char>& raum);

// Columns of a head or a name, from 1; fewer characters, or none, where it ends before.
template <class Sicht>
Sicht Spalten(Sicht text, std::size_t ab, std::size_t anzahl) {
    return text.size() < ab ? Sicht() : text.substr(ab - 1, anzahl);
}

// The strict value of a field; `was` is the message of the LaufzeitFehler when it has none.
std::int32_t StrengOderFehler(TextSicht text, const char* was);
std::int32_t StrengOderFehler(std::string_view text, const char* was);

inline std::string_view AlsZeichen(ByteSicht bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

} // namespace zepholt
