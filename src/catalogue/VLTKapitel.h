// One chapter of the VLT catalogue, parsed: its main positions (H), sub-positions (U) and variables (V), the lists made
// from them, and the searches over them.
//
// There is one current chapter. KapitelEinlesen replaces it, BildeEndknoten and BildeTextAeste make the derived lists,
// the searches set the current indices, and the accessors answer for the latest search. Besides these only VLTKatalog
// writes here: it empties the chapter when a load ends without one.
//
// The positions of a chapter lie in three flat lists, one per level; an entry of one level names the stretch of the
// next level that is its own. A position number has six digits: H.N * 1000 + U.N. What the file holds besides (titles,
// texts, the flag of search titles) is read as far as it decides whether the text is a chapter; nothing asks for it.
#pragma once

#include "catalogue/Kapiteldatei.h"
#include "support/Text.h"

#include <span>
#include <vector>

namespace zepholt {

struct VEintrag {             // variable
    std::int16_t N = 0;       // number; 0 is the fixed text of the position
    std::int16_t E = 0;       // insertion point, (line - 1) * 30 + column; 0 for none
    std::uint16_t Gruppe = 0; // alternative group: the same number for the same text within one U; 0 for none
};

struct UEintrag {              // sub-position
    std::int32_t W = 0;        // repeat range, first * 1000 + last; 0 for none
    std::int16_t N = 0;        // number
    std::uint8_t Y = 0;        // 1: no fixed text, a variable must be selected
    std::uint32_t ErstesV = 0; // its variables: from this index of KapitelDaten::KapitelVListe on
    std::int16_t VAnzahl = 0;
};

struct HEintrag {              // main position
    std::int16_t N = 0;        // number
    std::uint32_t ErstesU = 0; // its sub-positions: from this index of KapitelDaten::KapitelUListe on
    std::int16_t UAnzahl = 0;
    std::uint32_t ErsterBereich = 0; // its repeat ranges: from this index of KapitelDaten::Bereiche on
    std::uint32_t BereichAnzahl = 0;
};

// Sub-position numbers from first to last.
struct Nummernbereich {
    std::int32_t Von = 0;
    std::int32_t Bis = 0;
};

// Whether a number lies in one of the ranges, which ascend and don't overlap.
bool LiegtIn(std::span<const Nummernbereich> bereiche, std::int32_t nummer);

// The repeat range that a sub-position carries, from 0 to 0 for none.
inline Nummernbereich BereichVon(const UEintrag& u) {
    return {u.W / 1000, u.W % 1000};
}

// A pure text branch and the span that it governs, all in main position numbers.
struct TextAst {
    std::int32_t Von = 0;
    std::int32_t Bis = 0;
    std::int32_t GeltungVon = 0; // the span that follows the branch ...
    std::int32_t GeltungBis = 0; // ... up to the end of the group one level above
};

// Main positions that a six-digit position number can have, one with a sign too.
inline constexpr std::int32_t HoechstesH = 999;

struct KapitelDaten {
    // --- The chapter as it stands in the file
    std::int16_t KapitelN = 0; // chapter number
    std::int16_t KapitelS = 0; // language: 1 German, 2 French, 3 Italian
    std::int16_t KapitelV = 0; // version year, four digits
    std::vector<HEintrag> KapitelH;
    std::vector<UEintrag> KapitelUListe;
    std::vector<VEintrag> KapitelVListe;

    // --- Made from it
    std::vector<std::int32_t> Endknoten; // positions with no finer position, in catalogue order
    std::vector<TextAst> TextAeste;

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
    std::vector<std::int32_t> AstVonH; // for main positions -HoechstesH to HoechstesH: index of the first branch, or -1

    // --- Room for the expanded bytes of a chapter while it is read
    std::vector<unsigned char> Entpackt;

    // No chapter is there. The lists keep their room for the next one.
    void Leeren();

    std::span<const UEintrag> UVon(const HEintrag& h) const {
        return std::span(KapitelUListe).subspan(h.ErstesU, static_cast<std::size_t>(h.UAnzahl));
    }
    std::span<const VEintrag> VVon(const UEintrag& u) const {
        return std::span(KapitelVListe).subspan(u.ErstesV, static_cast<std::size_t>(u.VAnzahl));
    }
};

inline KapitelDaten kapitelDaten;

// --- Reading ---------------------------------------------------------------------------------------------------------

// Parses an expanded chapter text and puts it in the place of the current chapter, without derived lists. False when
// the text is no chapter: wrong root, a number of the root that is none, a value out of its width, more than 32767
// entries in one list. There is no current chapter then.
bool KapitelEinlesen(TextSicht text);

// The same from a chapter file: in one go where it has the form that chapter files are usually written in, by way of
// its text otherwise.
bool KapitelEinlesen(const Kapitelbytes& bytes);

// --- Derived lists ---------------------------------------------------------------------------------------------------

// Makes the orders by number and the repeat ranges that the searches use. KapitelEinlesen ends with it.
void BildeFolgen(KapitelDaten& kapitel);

// Makes Endknoten: all positions in catalogue order, but one that is refined by the next is replaced by it. More than
// 729 for each H and one more empty the list.
void BildeEndknoten();

// Makes TextAeste from Endknoten: the groups of main positions in which no end node has a last digit other than 0. None
// in a chapter whose number has the tens digit 0.
void BildeTextAeste();

// --- Searches: the first entry with that number. They set the current indices, lower levels back to none. ------------

bool FindeH(std::int32_t nummer);
bool FindeU(std::int32_t nummer); // within the current H
bool FindeV(std::int32_t nummer); // within the current U

// Where the catalogue has a position.
struct Katalogstelle {
    std::int32_t H = -1; // indices as the current ones count; -1 for none
    std::int32_t U = -1; // for a repetition the one that carries the range; none for a main position
    bool Da = false;
    bool IstWiederholung = false;
    bool AnfangPasstNicht = false; // a text position in a range whose start doesn't allow it: what 6213 is about
};

// Looks for a position by its number, else as a repetition within the repeat range of the position before it. A
// `grenze` other than 0 is a position that must lie in the same range. The place becomes the current one.
Katalogstelle PositionImKatalog(std::int32_t position, std::int32_t grenze);

// --- Accessors on the latest search: false or 0 when there is no such entry ------------------------------------------

bool OhneFestenText();                 // Y of the current U is 1
std::int32_t EinfuegepunktImKatalog(); // E of the current V
std::int32_t AlternativGruppe();       // number of the group of the current V; 0 for none

// --- Questions that leave the current indices alone ------------------------------------------------------------------

// Whether a position has no finer position in the catalogue.
bool IstEndknoten(std::int32_t position);

// Whether the last three digits lie in a repeat range of the main position.
bool InWiederholungsbereich(std::int32_t position);

// Whether a position lies in a pure text branch; `von` and `bis` are the positions that the branch governs, or 0.
bool InTextAst(std::int32_t position, std::int32_t& von, std::int32_t& bis);

} // namespace zepholt
