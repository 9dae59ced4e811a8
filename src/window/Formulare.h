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
namespace ZEPHOLT {
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
} // namespace ZEPHOLT

// The rows of frmInfo by name.
namespace Info {
enum Element : std::int32_t { Label1, lblCopyright, lblProgrammhersteller, cmdOK, Anzahl };
} // namespace Info

inline constexpr Steuerelement kElementeZEPHOLT[] = {
    {"Label1", ElementArt::Beschriftung, -1, 105, 210, 1590, 225, u"Austauschdatei", 0},
    {"lblAustauschdatei", ElementArt::Beschriftung, -1, 1890, 210, 4530, 225, u"", 1},
    {"cmdInfo", ElementArt::Knopf, -1, 6510, 210, 1170, 330, u"Info", 2},
    {"Label2", ElementArt::Beschriftung, -1, 105, 630, 1590, 225, u"Projekt", 3},
    {"lblProjekt", ElementArt::Beschriftung, -1, 1890, 630, 4530, 225, u"", 4},
    {"Label4", ElementArt::Beschriftung, -1, 105, 1050, 1590, 225, u"Dokument", 5},
    {"lblDokument", ElementArt::Beschriftung, -1, 1890, 1050, 4530, 225, u"", 6},
    {"Frame1", ElementArt::Rahmen, -1, 105, 1470, 7575, 1065, u"Fortschritt", 7},
    {"lblFortschritt", ElementArt::Beschriftung, ZEPHOLT::Frame1, 210, 315, 7260, 225, u"", 8},
    {"cmdAbbrechen", ElementArt::Knopf, -1, 6510, 630, 1170, 330, u"Abbrechen", 9},
    {"picFS", ElementArt::Bahn, ZEPHOLT::Frame1, 210, 630, 7155, 225, u"", 10},
    {"picFSBalken", ElementArt::Balken, ZEPHOLT::picFS, 15, 15, 855, 135, u"", 11},
};

inline constexpr Steuerelement kElementeInfo[] = {
    {"Label1", ElementArt::Beschriftung, -1, 210, 315, 4845, 435,
     u"Dieses Programm testet Austauschdateien gemäss UbR'92", 0},
    {"lblCopyright", ElementArt::Beschriftung, -1, 210, 945, 7050, 3165, u"(c)", 1},
    {"lblProgrammhersteller", ElementArt::Beschriftung, -1, 210, 4305, 5160, 225, u"Programmhersteller", 2},
    {"cmdOK", ElementArt::Knopf, -1, 5985, 4305, 1275, 330, u"OK", 3},
};

static_assert(sizeof kElementeZEPHOLT / sizeof kElementeZEPHOLT[0] == ZEPHOLT::Anzahl);
static_assert(sizeof kElementeInfo / sizeof kElementeInfo[0] == Info::Anzahl);

inline constexpr Formular frmZEPHOLT = {"frmZEPHOLT", u"QVM-Test: SIA451", 7800,
                                        2655,         kElementeZEPHOLT,    ZEPHOLT::Anzahl};
inline constexpr Formular frmInfo = {"frmInfo", u"QVM-Test: SIA451", 7455, 4785, kElementeInfo, Info::Anzahl};

// The border of the bar's track, on each side, and what is left of it inside: its scale width.
inline constexpr std::int32_t kBahnRand = 30;
inline constexpr std::int32_t kSkalenBreite = kElementeZEPHOLT[ZEPHOLT::picFS].Breite - 2 * kBahnRand;

// The full width of the bar.
inline constexpr std::int32_t BalkenInnen = kSkalenBreite - 6;

} // namespace zepholt
