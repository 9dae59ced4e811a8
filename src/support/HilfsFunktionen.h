// Small routines for paths, blank-filling, numbers and sorting. No state, no reports: they answer with a plain value.
#pragma once

#include "support/Text.h"

#include <optional>
#include <vector>

namespace zepholt {

// --- Files and paths -------------------------------------------------------------------------------------------------

// True when an ordinary file matches `pfad`; `*` and `?` in its last part match. Folders, hidden files and system files
// don't count. Any failure of the query gives false.
bool DateiExistiert(const Text& pfad);

// True when the first match of `pfad` is a folder: a folder's own entries "." and ".." are, and come first; any other
// match is one when no ordinary file matches `pfad`, so a wildcard that fits both a folder and a file gives false. A
// folder with a path separator behind it is one, a drive's root too. Any failure gives false.
bool OrdnerExistiert(const Text& pfad);

// The paths of all ordinary files in `ordner` that match `muster`, ascending by the bytes of their names; hidden files
// and system files don't count. `ordner` may end in a path separator or not. No match gives an empty list, a failure
// what was found until then.
std::vector<Text> DateienImOrdner(const Text& ordner, const Text& muster);

// `ordner` with a path separator behind it, if it doesn't end in one.
Text OrdnerMitTrenner(const Text& ordner);

// What stands behind the last path separator; if there is none, behind the last ':'; else the text itself.
TextSicht DateiNameOhnePfad(TextSicht pfad);

// --- Texts -----------------------------------------------------------------------------------------------------------

// The text without the blanks (U+0020 only) at its right end, or at both ends.
TextSicht OhneLeerzeichenRechts(TextSicht text);
TextSicht OhneLeerzeichen(TextSicht text);

// Blanks in front of the text, or behind it, up to `breite` characters; a longer text comes back unchanged, never cut.
Text RechtsBuendig(TextSicht text, std::int32_t breite);
Text LinksBuendig(TextSicht text, std::int32_t breite);

// The decimal text of a number.
Text ZahlText(std::int64_t zahl);

// One of the digits 0 to 9.
constexpr bool IstZiffer(char16_t zeichen) {
    return zeichen >= u'0' && zeichen <= u'9';
}

// True when every character is one of the digits 0 to 9; false for an empty text.
bool NurZiffern(TextSicht text);

// Lower case of the letters A to Z; everything else stays.
Text Kleinbuchstaben(TextSicht text);

// Unicode simple upper case of one character, by the program's own table: one to one, a character without a
// one-to-one upper case stays. The same on every platform.
char16_t Grossbuchstabe(char16_t zeichen);

// ASCII text into Text, unit by unit (bytes above 127 keep their value).
Text AusAscii(std::string_view text);

// --- Bytes and the command line --------------------------------------------------------------------------------------

// UTF-8 to Text and back without loss: a byte that is no part of valid UTF-8 becomes the unit U+DC00 plus the byte, and
// that unit the byte again. So any name of a file or argument comes back as it was. Any other lone surrogate gets the
// three bytes of its number.
Text AusUtf8Bytes(std::string_view bytes);
std::string Utf8Bytes(TextSicht text);

// One command text out of single arguments, joined by one blank: an argument that holds a blank and no quotation mark
// gets its value (behind the first '='), or without '=' the whole argument, wrapped in quotation marks; an empty
// argument becomes two of them.
Text KommandotextAus(const std::vector<Text>& argumente);

// A whole command text without the program's own name in front, quoted or not, and the blanks and tabs behind it.
TextSicht OhneProgrammnamen(TextSicht kommandotext);

// --- Numbers ---------------------------------------------------------------------------------------------------------

// Leading-number parse: leading blanks skipped, optional sign, digits, optional point and digits; stops at the first
// character that doesn't fit; nothing read gives 0. No exponent, no hexadecimal, no inner blanks. More digits than a
// double can hold give infinity.
double ZahlAmAnfang(TextSicht text);

// The same, rounded half to even. A value outside of 32 bits is a LaufzeitFehler.
std::int32_t GanzzahlAmAnfang(TextSicht text);

// Strict conversion: blanks trimmed at both ends, optional sign, at least one digit, optional point with at least one
// digit behind it, nothing else; the whole number is rounded half to even. No value when the text is none such ("5."
// and ".5" are none) or is out of range.
std::optional<std::int32_t> StrengeGanzzahl(TextSicht text);
std::optional<double> StrengeZahl(TextSicht text);

// --- Lists -----------------------------------------------------------------------------------------------------------

// The number of elements of a list.
template <class Liste>
std::int32_t AnzahlElemente(const Liste& liste) {
    return static_cast<std::int32_t>(liste.size());
}

// Sorts `liste` by 16-bit character code and moves `begleitliste` along. Lists that differ in length are left as they
// are. Entries with equal keys come out in the order of the one defined procedure, see SortierFolge.
void Sortieren(std::vector<Text>& liste, std::vector<Text>& begleitliste);

// The procedure behind Sortieren, on ranks: `raenge` holds for each entry a number that orders it (equal keys have
// equal numbers). Returns, for each place of the sorted list, the index (from 0) of the entry that comes to stand
// there.
//
// The procedure is Hoare's quicksort with the middle element, (left + right) / 2 rounded down, as pivot; both scans
// stop at elements equal to the pivot, and elements at two different places are swapped, equal ones too: three entries
// of one key come out in reverse. Without recursion, and with at most n log^2 n steps on any input. `zwischendurch` is
// called between long steps, every few milliseconds: whoever waits for the order may do something else there.
std::vector<std::uint32_t> SortierFolge(
    std::vector<std::uint32_t> raenge, void (*zwischendurch)() = [] {});

} // namespace zepholt
