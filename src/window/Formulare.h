// The two forms of the program as tables: what stands where, with which caption, in which tab order.
//
// Every toolkit builds its windows from these rows. All lengths are in twips, 1440 to the inch, 15 to a pixel at 100
// percent; places count from the left and the top of the parent's inner area. Only plain data stands here: the header
// is shared with the window module, across whose border no class goes.
#pragma once

#include <cstdint>

namespace zepholt {

enum class ElementArt : std::int32_t {
    Beschriftung, // a line or a paragraph of text
    Knopf,
    Rahmen, // a group with a caption in its line
    Bahn,   // the bar's track, with a sunken border
    Balken, // the bar itself
};

struct Steuerelement {
    const char* Name;
    ElementArt Art;
    std::int32_t Eltern; // index of the row of the parent, -1 for the form
    std::int32_t Links;
    std::int32_t Oben;
    std::int32_t Breite;
    std::int32_t Hoehe;
    const char16_t* Text; // as designed, German: the key of the translation
    std::int32_t TabPlatz;
};

struct Formular {
    const char* Name;
    const char16_t* Titel;
    std::int32_t Breite; // of the client area
    std::int32_t Hoehe;
    const Steuerelement* Elemente;
    std::int32_t Anzahl;
};

// The rows of frmZEPHOLT by name: indexes into its table.
namespace Hauptformular {
enum Element : std::int32_t {
    Label1,
    lblAustauschdatei,
    cmdInfo,
    Label2,
    lblProjekt,
    Label4,
    lblDokument,
    Frame1,
    lblFortschritt,
    cmdAbbrechen,
    picFS,
    picFSBalken,
    Anzahl
};
} // namespace Hauptformular

// The rows of frmInfo by name.
namespace Infoformular {
enum Element : std::int32_t { Label1, lblCopyright, lblProgrammhersteller, cmdOK, Anzahl };
} // namespace Infoformular

inline constexpr Steuerelement HauptElemente[] = {
    {"Label1", ElementArt::Beschriftung, -1, 105, 210, 1590, 225, u"Austauschdatei", 0},
    {"lblAustauschdatei", ElementArt::Beschriftung, -1, 1890, 210, 4530, 225, u"", 1},
    {"cmdInfo", ElementArt::Knopf, -1, 6510, 210, 1170, 330, u"Info", 2},
    {"Label2", ElementArt::Beschriftung, -1, 105, 630, 1590, 225, u"Projekt", 3},
    {"lblProjekt", ElementArt::Beschriftung, -1, 1890, 630, 4530, 225, u"", 4},
    {"Label4", ElementArt::Beschriftung, -1, 105, 1050, 1590, 225, u"Dokument", 5},
    {"lblDokument", ElementArt::Beschriftung, -1, 1890, 1050, 4530, 225, u"", 6},
    {"Frame1", ElementArt::Rahmen, -1, 105, 1470, 7575, 1065, u"Fortschritt", 7},
    {"lblFortschritt", ElementArt::Beschriftung, Hauptformular::Frame1, 210, 315, 7260, 225, u"", 8},
    {"cmdAbbrechen", ElementArt::Knopf, -1, 6510, 630, 1170, 330, u"Abbrechen", 9},
    {"picFS", ElementArt::Bahn, Hauptformular::Frame1, 210, 630, 7155, 225, u"", 10},
    {"picFSBalken", ElementArt::Balken, Hauptformular::picFS, 15, 15, 855, 135, u"", 11},
};

inline constexpr Steuerelement InfoElemente[] = {
    {"Label1", ElementArt::Beschriftung, -1, 210, 315, 4845, 435,
     u"Dieses Programm testet Austauschdateien gemäss UbR'92", 0},
    {"lblCopyright", ElementArt::Beschriftung, -1, 210, 945, 7050, 3165, u"(c)", 1},
    {"lblProgrammhersteller", ElementArt::Beschriftung, -1, 210, 4305, 5160, 225, u"Programmhersteller", 2},
    {"cmdOK", ElementArt::Knopf, -1, 5985, 4305, 1275, 330, u"OK", 3},
};

static_assert(sizeof HauptElemente / sizeof HauptElemente[0] == Hauptformular::Anzahl);
static_assert(sizeof InfoElemente / sizeof InfoElemente[0] == Infoformular::Anzahl);

inline constexpr Formular frmZEPHOLT = {"frmZEPHOLT", u"QVM-Test: SIA451", 7800,
                                        2655,         HauptElemente,       Hauptformular::Anzahl};
inline constexpr Formular frmInfo = {"frmInfo", u"QVM-Test: SIA451", 7455, 4785, InfoElemente, Infoformular::Anzahl};

// The border of the bar's track, on each side, and what is left of it inside: its scale width.
inline constexpr std::int32_t BahnRand = 30;
inline constexpr std::int32_t SkalenBreite = HauptElemente[Hauptformular::picFS].Breite - 2 * BahnRand;

// The full width of the bar.
inline constexpr std::int32_t BalkenInnen = SkalenBreite - 6;

} // namespace zepholt
