#include "state/SIA451Felder.h"

#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"

#include <array>

namespace zepholt {

namespace {

// The rows of one record type each: field reference, first column, length. The first row has column 1; between two
// fields lie undefined columns, which must be blank.

constexpr RecordLayout RecordA[] = {
    {u"A:1", 1, 1},       {u"A:2", 2, 6},      {u"A:3", 8, 6},        {u"A:4", 14, 2},     {u"A:5", 16, 2},
    {u"A:6-7", 18, 12},   {u"A:8-10", 30, 12}, {u"A:11", 42, 1},      {u"A:12", 43, 1},    {u"A:13", 44, 1},
    {u"A:14", 45, 1},     {u"A:15", 46, 13},   {u"A:16-18", 59, 4},   {u"A:19", 63, 12},   {u"A:20", 75, 7},
    {u"A:21-22", 82, 11}, {u"A:23", 93, 30},   {u"A:24a-d", 123, 15}, {u"A:24e", 138, 30}, {u"A:24f", 168, 20},
    {u"A:24g", 188, 20},  {u"A:24h", 208, 30}, {u"A:24i", 238, 19},
};

constexpr RecordLayout RecordG1[] = {
    {u"G1:1", 1, 1}, {u"G1:2a", 2, 3}, {u"G1:2c", 6, 2}, {u"G1:11", 42, 1}, {u"G1:23", 93, 30}, {u"G1:24e", 138, 30},
};

constexpr RecordLayout RecordG2[] = {
    {u"G2:1", 1, 1}, {u"G2:2a", 2, 3}, {u"G2:3", 8, 6}, {u"G2:11", 42, 1}, {u"G2:12", 43, 1}, {u"G2:23", 93, 30},
};

constexpr RecordLayout RecordG3[] = {
    {u"G3:1", 1, 1},   {u"G3:2a", 2, 3},  {u"G3:3", 8, 6},    {u"G3:4", 14, 2},    {u"G3:5", 16, 2},
    {u"G3:11", 42, 1}, {u"G3:12", 43, 1}, {u"G3:23", 93, 30}, {u"G3:24c", 135, 1}, {u"G3:24d", 136, 2},
};

constexpr RecordLayout RecordG4[] = {
    {u"G4:1", 1, 1},     {u"G4:2a", 2, 3},    {u"G4:3", 8, 6},     {u"G4:6", 18, 6},     {u"G4:7", 24, 6},
    {u"G4:8", 30, 3},    {u"G4:9", 33, 3},    {u"G4:11", 42, 1},   {u"G4:21", 82, 5},    {u"G4:22", 87, 6},
    {u"G4:24b", 129, 6}, {u"G4:24c", 135, 1}, {u"G4:24d", 136, 2}, {u"G4:24f", 168, 16}, {u"G4:24g", 188, 16},
};

constexpr RecordLayout RecordG5[] = {
    {u"G5:1", 1, 1},   {u"G5:2a", 2, 3},  {u"G5:3", 8, 6},   {u"G5:11", 42, 1},
    {u"G5:16", 59, 2}, {u"G5:17", 61, 1}, {u"G5:18", 62, 1}, {u"G5:19", 63, 12},
};

constexpr RecordLayout RecordG6Alt[] = {
    {u"G6:1", 1, 1},     {u"G6:2a", 2, 3},   {u"G6:3", 8, 6},   {u"G6:6", 18, 6},    {u"G6:7", 24, 6},
    {u"G6:8", 30, 3},    {u"G6:9", 33, 3},   {u"G6:10", 36, 6}, {u"G6:11", 42, 1},   {u"G6:13", 44, 1},
    {u"G6:14", 45, 1},   {u"G6:15", 46, 13}, {u"G6:17", 61, 1}, {u"G6:18", 62, 1},   {u"G6:19", 63, 12},
    {u"G6:20", 75, 7},   {u"G6:21", 82, 5},  {u"G6:22", 87, 6}, {u"G6:24a", 123, 6}, {u"G6:24b", 129, 6},
    {u"G6:24d", 136, 2},
};

constexpr RecordLayout RecordG6Neu[] = {
    {u"G6:1", 1, 1},      {u"G6:2a", 2, 3},     {u"G6:3", 8, 6},      {u"G6:4", 14, 2},    {u"G6:5", 16, 2},
    {u"G6:6", 18, 6},     {u"G6:7", 24, 6},     {u"G6:8", 30, 3},     {u"G6:9", 33, 3},    {u"G6:10", 36, 6},
    {u"G6:11", 42, 1},    {u"G6:13", 44, 1},    {u"G6:14", 45, 1},    {u"G6:15", 46, 13},  {u"G6:17", 61, 1},
    {u"G6:18", 62, 1},    {u"G6:19", 63, 12},   {u"G6:20", 75, 7},    {u"G6:21", 82, 5},   {u"G6:22", 87, 6},
    {u"G6:23", 93, 30},   {u"G6:24a", 123, 6},  {u"G6:24b", 129, 6},  {u"G6:24d", 136, 2}, {u"G6:24e", 138, 30},
    {u"G6:24f", 168, 16}, {u"G6:24g", 188, 16}, {u"G6:24h", 208, 30},
};

constexpr RecordLayout RecordB0[] = {
    {u"B0:1", 1, 1},   {u"B0:2a", 2, 3},   {u"B0:2c", 6, 2},  {u"B0:10", 36, 6},
    {u"B0:11", 42, 1}, {u"B0:19", 63, 12}, {u"B0:20", 75, 7},
};

constexpr RecordLayout RecordB1[] = {
    {u"B1:1", 1, 1},    {u"B1:2a", 2, 3},     {u"B1:11", 42, 1},    {u"B1:21", 82, 5},
    {u"B1:23", 93, 30}, {u"B1:24e", 138, 30}, {u"B1:24h", 208, 16},
};

constexpr RecordLayout RecordB2[] = {
    {u"B2:1", 1, 1},   {u"B2:2a", 2, 3},  {u"B2:6", 18, 6},   {u"B2:7", 24, 6},
    {u"B2:11", 42, 1}, {u"B2:20", 75, 7}, {u"B2:23", 93, 30}, {u"B2:24e", 138, 30},
};

constexpr RecordLayout RecordB3[] = {
    {u"B3:1", 1, 1},   {u"B3:2a", 2, 3},   {u"B3:11", 42, 1},    {u"B3:16", 59, 2},
    {u"B3:22", 87, 6}, {u"B3:23", 93, 30}, {u"B3:24e", 138, 30}, {u"B3:24h", 208, 16},
};

constexpr RecordLayout RecordB4[] = {
    {u"B4:1", 1, 1},    {u"B4:2a", 2, 3},    {u"B4:11", 42, 1},    {u"B4:20", 75, 7},
    {u"B4:23", 93, 30}, {u"B4:24b", 129, 6}, {u"B4:24e", 138, 30},
};

constexpr RecordLayout RecordB5[] = {
    {u"B5:1", 1, 1},   {u"B5:2a", 2, 3},   {u"B5:8", 30, 3},      {u"B5:11", 42, 1},
    {u"B5:20", 75, 7}, {u"B5:23", 93, 30}, {u"B5:24c-d", 135, 3}, {u"B5:24e", 138, 30},
};

constexpr RecordLayout RecordB6[] = {
    {u"B6:1", 1, 1},   {u"B6:2a", 2, 3},  {u"B6:8", 30, 3},   {u"B6:9", 33, 3},
    {u"B6:11", 42, 1}, {u"B6:20", 75, 7}, {u"B6:23", 93, 30}, {u"B6:24e", 138, 30},
};

constexpr RecordLayout RecordB7[] = {
    {u"B7:1", 1, 1},    {u"B7:2a", 2, 3},     {u"B7:11", 42, 1},
    {u"B7:23", 93, 30}, {u"B7:24e", 138, 30}, {u"B7:24f", 168, 16},
};

constexpr RecordLayout RecordB8[] = {
    {u"B8:1", 1, 1},    {u"B8:2a", 2, 3},     {u"B8:11", 42, 1},
    {u"B8:23", 93, 30}, {u"B8:24e", 138, 30}, {u"B8:24g", 188, 16},
};

constexpr RecordLayout RecordB9[] = {
    {u"B9:1", 1, 1},   {u"B9:6", 18, 6},   {u"B9:7", 24, 6},  {u"B9:8", 30, 3},   {u"B9:9", 33, 3},  {u"B9:11", 42, 1},
    {u"B9:14", 45, 1}, {u"B9:15", 46, 13}, {u"B9:18", 62, 1}, {u"B9:19", 63, 12}, {u"B9:21", 82, 5}, {u"B9:22", 87, 6},
};

constexpr RecordLayout RecordC0[] = {
    {u"C0:1", 1, 1}, {u"C0:2a", 2, 3}, {u"C0:11", 42, 1}, {u"C0:14", 45, 1}, {u"C0:15-16", 46, 15},
};

constexpr RecordLayout RecordC1[] = {
    {u"C1:1", 1, 1},    {u"C1:2a", 2, 3},     {u"C1:2b", 5, 1},   {u"C1:2c", 6, 2},   {u"C1:5", 16, 2},
    {u"C1:10", 36, 6},  {u"C1:11", 42, 1},    {u"C1:13", 44, 1},  {u"C1:14", 45, 1},  {u"C1:15-16", 46, 15},
    {u"C1:17", 61, 1},  {u"C1:18", 62, 1},    {u"C1:19", 63, 12}, {u"C1:20a", 75, 1}, {u"C1:20b", 76, 6},
    {u"C1:23", 93, 30}, {u"C1:24e", 138, 30},
};

constexpr RecordLayout RecordC5[] = {
    {u"C5:1", 1, 1},  {u"C5:2a", 2, 3},  {u"C5:3a", 8, 3},  {u"C5:6", 18, 6},  {u"C5:7", 24, 6},    {u"C5:8", 30, 3},
    {u"C5:9", 33, 3}, {u"C5:11", 42, 1}, {u"C5:21", 82, 5}, {u"C5:22", 87, 6}, {u"C5:24b", 129, 6}, {u"C5:24d", 136, 2},
};

constexpr RecordLayout RecordX4[] = {
    {u"X4:1", 1, 1},  {u"X4:2a", 2, 3},  {u"X4:3", 8, 6},     {u"X4:4", 14, 2},
    {u"X4:5", 16, 2}, {u"X4:11", 42, 1}, {u"X4:23", 93, 164},
};

constexpr RecordLayout RecordX5[] = {
    {u"X5:1", 1, 1},  {u"X5:2a", 2, 3},  {u"X5:3", 8, 6},     {u"X5:4", 14, 2},
    {u"X5:5", 16, 2}, {u"X5:11", 42, 1}, {u"X5:23", 93, 164},
};

constexpr RecordLayout RecordP1[] = {
    {u"P1:1", 1, 1},   {u"P1:2a", 2, 3},  {u"P1:3", 8, 6},     {u"P1:4", 14, 2},
    {u"P1:11", 42, 1}, {u"P1:12", 43, 1}, {u"P1:23", 93, 164},
};

constexpr RecordLayout RecordP2[] = {
    {u"P2:1", 1, 1}, {u"P2:2a", 2, 3}, {u"P2:3", 8, 6}, {u"P2:4", 14, 2}, {u"P2:11", 42, 1}, {u"P2:23", 93, 164},
};

constexpr RecordLayout RecordP3[] = {
    {u"P3:1", 1, 1},  {u"P3:2a", 2, 3},  {u"P3:3", 8, 6},     {u"P3:4", 14, 2},
    {u"P3:5", 16, 2}, {u"P3:11", 42, 1}, {u"P3:23", 93, 164},
};

constexpr RecordLayout RecordP4[] = {
    {u"P4:1", 1, 1},  {u"P4:2a", 2, 3},  {u"P4:3", 8, 6},     {u"P4:4", 14, 2},
    {u"P4:5", 16, 2}, {u"P4:11", 42, 1}, {u"P4:23", 93, 164},
};

constexpr RecordLayout RecordP5[] = {
    {u"P5:1", 1, 1},  {u"P5:2a", 2, 3},  {u"P5:3", 8, 6},     {u"P5:4", 14, 2},
    {u"P5:5", 16, 2}, {u"P5:11", 42, 1}, {u"P5:23", 93, 164},
};

constexpr RecordLayout RecordZ[] = {
    {u"Z:1", 1, 1},       {u"Z:2", 2, 6},        {u"Z:3", 8, 6},        {u"Z:4-5", 14, 4},   {u"Z:6-7", 18, 12},
    {u"Z:8-10", 30, 12},  {u"Z:15", 46, 13},     {u"Z:18", 62, 1},      {u"Z:19", 63, 12},   {u"Z:20", 75, 7},
    {u"Z:21-22", 82, 11}, {u"Z:23", 93, 30},     {u"Z:24a-d", 123, 15}, {u"Z:24e", 138, 30}, {u"Z:24f", 168, 20},
    {u"Z:24g", 188, 20},  {u"Z:24h-i", 208, 49},
};

// When the rows of a record type hold.
enum class Geltung {
    Immer,
    OhneRevision, // Revision 0, which no accepted file has
    AlteSchnittstelle,
    NeueSchnittstelle,
    NurE1S,
};

bool Gilt(Geltung geltung) {
    switch (geltung) {
    case Geltung::Immer:
        return true;
    case Geltung::OhneRevision:
        return testDaten.Revision == 0;
    case Geltung::AlteSchnittstelle:
        return !NeueSchnittstelle();
    case Geltung::NeueSchnittstelle:
        return NeueSchnittstelle();
    case Geltung::NurE1S:
        return testDaten.IstE1S;
    }
    return false;
}

struct Block {
    std::span<const RecordLayout> Zeilen;
    Geltung Fuer = Geltung::Immer;

    constexpr TextSicht Typ() const { return Zeilen[0].Feldbezug.substr(0, 2); }
};

// All record types; the two forms of one stand side by side.
constexpr Block Bloecke[] = {
    {RecordA},
    {RecordG1},
    {RecordG2},
    {RecordG3},
    {RecordG4},
    {RecordG5},
    {RecordG6Alt, Geltung::AlteSchnittstelle},
    {RecordG6Neu, Geltung::NeueSchnittstelle},
    {RecordB0},
    {RecordB1},
    {RecordB2},
    {RecordB3},
    {RecordB4},
    {RecordB5},
    {RecordB6},
    {RecordB7, Geltung::NeueSchnittstelle},
    {RecordB8, Geltung::NeueSchnittstelle},
    {RecordB9, Geltung::OhneRevision},
    {RecordC0},
    {RecordC1},
    {RecordC5},
    {RecordX4, Geltung::NurE1S},
    {RecordX5, Geltung::NurE1S},
    {RecordP1, Geltung::NurE1S},
    {RecordP2, Geltung::NurE1S},
    {RecordP3, Geltung::NurE1S},
    {RecordP4, Geltung::NurE1S},
    {RecordP5, Geltung::NurE1S},
    {RecordZ},
};

// A place for each letter and for the digits 0 to 9 and the colon, which follows them, behind it.
constexpr std::size_t Stellen = 11;

constexpr std::size_t Platz(char16_t spalte1, char16_t spalte42) {
    return static_cast<std::size_t>(spalte1 - u'A') * Stellen + static_cast<std::size_t>(spalte42 - u'0');
}

// Where the blocks of each type begin in Bloecke, and their number: two at most, so that a record's is found at once.
struct Bereich {
    std::uint8_t Von = 0;
    std::uint8_t Anzahl = 0;
};

constexpr auto BloeckeNachTyp = [] {
    std::array<Bereich, 26 * Stellen> nachTyp{};
    for (std::size_t i = 0; i < std::size(Bloecke); ++i) {
        Bereich& bereich = nachTyp[Platz(Bloecke[i].Typ()[0], Bloecke[i].Typ()[1])];
        bereich.Von = bereich.Anzahl == 0 ? static_cast<std::uint8_t>(i) : bereich.Von;
        ++bereich.Anzahl;
    }
    return nachTyp;
}();

// The columns of all fields of each block.
constexpr auto FelderDerBloecke = [] {
    std::array<Spaltenmenge, std::size(Bloecke)> felder{};
    for (std::size_t i = 0; i < std::size(Bloecke); ++i) {
        for (const RecordLayout& zeile : Bloecke[i].Zeilen) {
            felder[i].SetzeBereich(zeile.Spalte, zeile.Laenge);
        }
    }
    return felder;
}();

std::span<const Block> BloeckeDerZeile(Feldsicht zeile) {
    const char16_t art = zeile.empty() ? u' ' : zeile.front();
    if (art < u'A' || art > u'Z') {
        return {};
    }
    const bool ohneZiffer = art == u'A' || art == u'Z';
    const char16_t ziffer = ohneZiffer ? u':' : zeile.size() < 42 ? u' ' : zeile[41];
    if (!ohneZiffer && !IstZiffer(ziffer)) {
        return {};
    }
    const Bereich bereich = BloeckeNachTyp[Platz(art, ziffer)];
    return std::span(Bloecke).subspan(bereich.Von, bereich.Anzahl);
}

} // namespace

std::vector<RecordLayout> RecordLayouts() {
    std::vector<RecordLayout> alle;
    for (const Block& block : Bloecke) {
        if (Gilt(block.Fuer)) {
            alle.insert(alle.end(), block.Zeilen.begin(), block.Zeilen.end());
        }
    }
    return alle;
}

Recordtyp RecordtypVon(Feldsicht zeile) {
    for (const Block& block : BloeckeDerZeile(zeile)) {
        if (Gilt(block.Fuer)) {
            return {block.Zeilen, &FelderDerBloecke[static_cast<std::size_t>(&block - Bloecke)]};
        }
    }
    return {};
}

std::span<const RecordLayout> LayoutsVon(Feldsicht zeile) {
    return RecordtypVon(zeile).Zeilen;
}

const RecordLayout* LayoutBei(std::span<const RecordLayout> zeilen, std::int32_t spalte) {
    const auto danach = std::ranges::upper_bound(zeilen, spalte, {}, &RecordLayout::Spalte);
    if (danach == zeilen.begin()) {
        return nullptr;
    }
    const RecordLayout& zeile = *std::prev(danach);
    return spalte < zeile.Spalte + zeile.Laenge ? &zeile : nullptr;
}

} // namespace zepholt
