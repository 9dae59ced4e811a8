// One chapter of the VLT catalogue, parsed: its main positions (H), sub-positions (U) and variables (V), the lists made
// from them, and the searches over them.
//
// There is one current chapter. KapitelEinlesen replaces it, BildeEndknoten and BildeTextAeste make the derived lists,
// the searches set the current indices, and the accessors answer for the latest search. Nobody else writes here.
//
// The positions of a chapter lie in three flat lists, one per level; an entry of one level names the stretch of the
// next level that is its own. A position number has six digits: H.N * 1000 + U.N.
#pragma once

#include "support/Text.h"

#include <span>
#include <vector>

namespace zepholt {

// The longest expanded chapter text that is read, in characters: room for each of the million numbers that a chapter
// can give. A chapter that would expand to more counts as absent: a few kilobytes of abbreviations could stand for
// any amount of text otherwise.
inline constexpr std::size_t GroessteKapitelLaenge = std::size_t{1} << 27;

struct VEintrag {            // variable
    std::int16_t N = 0;      // number; 0 is the fixed text of the position
    std::int16_t E = 0;      // insertion point, (line - 1) * 30 + column; 0 for none
    std::uint32_t AAb = 0;   // alternative group: where it stands in KapitelDaten::Alternativgruppen
    std::uint32_t AZahl = 0; // and its length; 0 for none
};

struct UEintrag {          // sub-position
    std::int32_t W = 0;    // repeat range, first * 1000 + last; 0 for none
    std::int16_t N = 0;    // number
    std::uint8_t X = 0;    // 1: the search title may be changed
    std::uint8_t Y = 0;    // 1: no fixed text, a variable must be selected
    std::uint32_t VAb = 0; // its variables: from this index of KapitelDaten::KapitelVListe on
    std::int16_t VAnzahl = 0;
};

struct HEintrag {          // main position
    std::int16_t N = 0;    // number
    std::uint8_t X = 0;    // 1: the search title may be changed
    std::uint32_t UAb = 0; // its sub-positions: from this index of KapitelDaten::KapitelUListe on
    std::int16_t UAnzahl = 0;
    std::uint32_t BereichAb = 0; // its repeat ranges: from this index of KapitelDaten::Bereiche on
    std::uint32_t BereichAnzahl = 0;
};

// Sub-position numbers that lie in some repeat range of a main position.
struct Nummernbereich {
    std::int32_t Von = 0;
    std::int32_t Bis = 0;
};

// A pure text branch and the span that it governs, all in main position numbers.
struct TextAst {
    std::int32_t Von = 0;
    std::int32_t Bis = 0;
    std::int32_t GeltungVon = 0; // the span that follows the branch ...
    std::int32_t GeltungBis = 0; // ... up to the end of the group one level above
};

struct KapitelDaten {
    // --- The chapter as it stands in the file. Texts are raw: escapes stay as they are.
    std::int16_t KapitelN = 0; // chapter number
    std::int16_t KapitelS = 0; // language: 1 German, 2 French, 3 Italian
    std::int16_t KapitelV = 0; // version year, four digits
    std::int16_t KapitelA = 0; // fourth number, shown in the chapter list only
    Text KapitelT;             // title
    Text KapitelZ;             // second text
    std::vector<HEintrag> KapitelH;
    std::int16_t KapitelHAnzahl = 0;
    std::vector<UEintrag> KapitelUListe;
    std::vector<VEintrag> KapitelVListe;
    Text Alternativgruppen; // the texts of all alternative groups, one behind the other
    std::vector<Text> KapitelTexteListe;
    std::int32_t KapitelTexteAnzahl = 0;

    // --- Made from it
    std::vector<std::int32_t> Endknoten; // positions with no finer position, in catalogue order
    std::int32_t EndknotenAnzahl = 0;
    std::vector<TextAst> TextAeste;
    std::int32_t TextAesteAnzahl = 0;

    // --- The latest search; -1 for none
    std::int32_t AktuellesH = -1; // index of KapitelH
    std::int32_t AktuellesU = -1; // index within the sub-positions of the current H
    std::int32_t AktuellesV = -1; // index within the variables of the current U

    // --- Indexes: each gives what a walk from the first entry would find
    std::vector<std::uint32_t> HFolge;         // the entries by number, then by place; empty when they stand so already
    std::vector<std::uint32_t> UFolge;         // the same within each H
    std::vector<std::uint32_t> VFolge;         // the same within each U
    std::vector<Nummernbereich> Bereiche;      // per H: ascending, without overlaps
    std::vector<std::int32_t> EndknotenStufen; // indices of the end nodes that are greater than all before them
    std::vector<std::int32_t> AstVonH;         // for main positions 0 to 999: the index of the first branch, or -1
};

inline KapitelDaten kapitelDaten;

// --- Reading ---------------------------------------------------------------------------------------------------------

// Parses an expanded chapter text and puts it in the place of the current chapter, without derived lists. False when
// the text is no chapter: wrong root, a number of the root that is none, a value out of its width, more than 32767
// entries in one list. There is no current chapter then.
bool KapitelEinlesen(TextSicht text);

// Makes Endknoten: all positions in catalogue order, but one that is refined by the next is replaced by it. More than
// KapitelHAnzahl * 729 + 1 of them empty the list.
void BildeEndknoten();

// Makes TextAeste from Endknoten: the groups of main positions in which no end node has a last digit other than 0. None
// in a chapter whose number has the tens digit 0.
void BildeTextAeste();

// --- Searches: the first entry with that number. They set the current indices, lower levels back to none.

bool FindeH(std::int32_t nummer);
bool FindeU(std::int32_t nummer); // within the current H
bool FindeV(std::int32_t nummer); // within the current U

// Whether the catalogue has a position, be it by its number or as a repetition (`istWiederholung`) within the repeat
// range of the position before it. A `grenze` other than 0 is a position that must lie in the same range. The current U
// is the one found, for a repetition the one that carries the range; none for a main position.
// Reports 6213 (Revision from 12 on): a text position in a range whose start doesn't allow it. The result is the same.
bool PositionImKatalog(std::int32_t position, bool& istWiederholung, std::int32_t grenze);

// --- Accessors on the latest search: false, 0 or empty when there is no such entry

bool BereichDerPosition(std::int32_t& bis, std::int32_t& von); // W of the current U; both 0 without a range
bool OhneFestenText();                                         // Y of the current U is 1
bool SuchtitelAenderbar();             // X of the current U is 1, or of the current H if there is no current U
std::int32_t EinfuegepunktImKatalog(); // E of the current V
TextSicht AlternativGruppe();          // A of the current V; a view that holds until the next chapter is read

// Title and second text of the chapter, raw; views that hold until the next chapter is read. Always true.
bool KapitelTitel(TextSicht& t, TextSicht& z);

// --- Questions that leave the current indices alone

// Whether a position has no finer position in the catalogue.
bool IstEndknoten(std::int32_t position);

// Whether the last three digits lie in a repeat range of the main position.
bool InWiederholungsbereich(std::int32_t position);

// Whether a position lies in a pure text branch; `von` and `bis` are the positions that the branch governs, or 0.
bool InTextAst(std::int32_t position, std::int32_t& von, std::int32_t& bis);

} // namespace zepholt
