#include "run/TestInhalt.h"

#include "doctest/Records.h"
#include "items/RecordG.h"
#include "state/SIA451Datei.h"
#include "state/SIA451Felder.h"
#include "state/TestDaten.h"
#include "window/DialogDeFrIt.h"
#include "window/Fortschritt.h"

#include <algorithm>
#include <array>
#include <ranges>
#include <span>

namespace zepholt {

namespace {

// Column 42; 0 for a line that ends before it.
char16_t Ziffer(Feldsicht zeile) {
    return zeile.size() >= 42 ? zeile[41] : u'\0';
}

// The lines of one record letter: first index in Zeilen, and the index behind the last.
struct Abschnitt {
    std::int32_t Von = 0;
    std::int32_t Bis = 0;
};

// The order of the lines keeps a letter together, and the letters ascend. The first and the last line are A and Z.
Abschnitt AbschnittVon(char16_t buchstabe) {
    const auto erste = std::views::iota(1, testDaten.ZeilenAnzahl - 1);
    const auto bereich = std::ranges::equal_range(erste, buchstabe, {}, [](std::int32_t i) {
        const Feldsicht zeile = ZeileAn(i);
        return zeile.empty() ? u'\0' : zeile.front();
    });
    return {1 + static_cast<std::int32_t>(bereich.begin() - erste.begin()),
            1 + static_cast<std::int32_t>(bereich.end() - erste.begin())};
}

// One test of a pass: the digit in column 42 that chooses it.
struct Satztest {
    char16_t Ziffer;
    void (*Pruefe)();
};

// Hands each line of a section to the test of its digit; other digits are passed over. The first letter is not looked
// at again: the order of the lines keeps a letter together.
void Durchgang(const Abschnitt& abschnitt, std::span<const Satztest> tests, std::int32_t& zaehler) {
    for (std::int32_t i = abschnitt.Von; i < abschnitt.Bis; ++i) {
        testDaten.Record = ZeileAn(i);
        testDaten.ZeilenNr = i;
        ZeigeFortschritt(++zaehler);
        const char16_t ziffer = Ziffer(testDaten.Record);
        for (const Satztest& test : tests) {
            if (test.Ziffer == ziffer) {
                test.Pruefe();
            }
        }
    }
}

// The cost account record belongs to Revision 0 alone, which no accepted file has.
void PruefeB9BeiRevision0() {
    if (testDaten.Revision == 0) {
        PruefeB9();
    }
}

constexpr std::array<Satztest, 10> TestsB = {{
    {u'0', PruefeB0},
    {u'1', PruefeB1},
    {u'2', PruefeB2},
    {u'3', PruefeB3},
    {u'4', PruefeB4},
    {u'5', PruefeB5},
    {u'6', PruefeB6},
    {u'7', PruefeB7},
    {u'8', PruefeB8},
    {u'9', PruefeB9BeiRevision0},
}};

constexpr std::array<Satztest, 6> TestsG = {{
    {u'1', PruefeG1},
    {u'2', PruefeG2},
    {u'3', PruefeG3},
    {u'4', PruefeG4},
    {u'5', PruefeG5},
    {u'6', PruefeG6},
}};

constexpr std::array<Satztest, 3> TestsC = {{
    {u'0', PruefeC0},
    {u'1', PruefeC1},
    {u'5', PruefeC5},
}};

constexpr std::array<Satztest, 2> TestsX = {{
    {u'4', PruefeX4},
    {u'5', PruefeX5},
}};

constexpr std::array<Satztest, 5> TestsP = {{
    {u'1', [] { PruefeP(1); }},
    {u'2', [] { PruefeP(2); }},
    {u'3', [] { PruefeP(3); }},
    {u'4', [] { PruefeP(4); }},
    {u'5', [] { PruefeP(5); }},
}};

// "Name   [Nummer]"
Text MitNummer(TextSicht name, TextSicht nummer) {
    return Text(name).append(u"   [").append(nummer).append(u"]");
}

} // namespace

void DokumentTesten() {
    PruefeRecordAZ(testDaten.Zeilen.front(), testDaten.Zeilen.back());
    ZeigeProjekt(MitNummer(sia451Datei.ProjektName, sia451Datei.ProjektNummer));
    ZeigeDokument(MitNummer(sia451Datei.DokumentName, sia451Datei.DokumentNummer));
    ZeigeSchritt(Uebersetze(u"Testet Dokument"), testDaten.ZeilenAnzahl - 2);
    EinheitenSetzen();

    std::int32_t zaehler = 0;
    Durchgang(AbschnittVon(u'B'), TestsB, zaehler);
    PruefeBEnde();
    Durchgang(AbschnittVon(u'G'), TestsG, zaehler);
    PruefeNachlauf();
    Durchgang(AbschnittVon(u'C'), TestsC, zaehler);
    if (!testDaten.IstE1S) {
        return; // the old interface has no attachments
    }
    Durchgang(AbschnittVon(u'X'), TestsX, zaehler);
    Durchgang(AbschnittVon(u'P'), TestsP, zaehler);
}

} // namespace zepholt
