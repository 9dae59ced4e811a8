#include "run/TestInhalt.h"

#include "doctest/Records.h"
#include "items/RecordG.h"
#include "state/SIA451Datei.h"
#include "state/SIA451Felder.h"
#include "state/TestDaten.h"
#include "window/DialogDeFrIt.h"
#include "window/Fortschritt.h"

#include <array>

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

// The first line between A and Z that does not begin below `buchstabe`. The order of the lines keeps a letter together,
// and the letters ascend.
std::int32_t ErsteAb(char16_t buchstabe) {
    std::int32_t von = 1;
    std::int32_t bis = testDaten.ZeilenAnzahl - 1;
    while (von < bis) {
        const std::int32_t mitte = von + (bis - von) / 2;
        const Feldsicht zeile = ZeileAn(mitte);
        if (zeile.empty() || zeile.front() < buchstabe) {
            von = mitte + 1;
        } else {
            bis = mitte;
        }
    }
    return von;
}

Abschnitt AbschnittVon(char16_t buchstabe) {
    return {ErsteAb(buchstabe), ErsteAb(static_cast<char16_t>(buchstabe + 1))};
}

// The tests of a pass, by the digit in column 42 that chooses them; none for a digit that is passed over.
using Satztests = std::array<void (*)(), 10>;

// Hands each line of a section to the test of its digit. The first letter is not looked at again: the order of the
// lines keeps a letter together.
void Durchgang(const Abschnitt& abschnitt, const Satztests& tests, std::int32_t& zaehler) {
    for (std::int32_t i = abschnitt.Von; i < abschnitt.Bis; ++i) {
        testDaten.Zeilen.Vorausholen(static_cast<std::size_t>(i));
        testDaten.Record = ZeileAn(i);
        testDaten.ZeilenNr = i;
        ZeigeFortschritt(++zaehler);
        const std::size_t ziffer = static_cast<std::size_t>(Ziffer(testDaten.Record)) - u'0';
        if (ziffer < tests.size() && tests[ziffer] != nullptr) {
            tests[ziffer]();
        }
    }
}

// The cost account record belongs to Revision 0 alone, which no accepted file has.
void PruefeB9BeiRevision0() {
    if (testDaten.Revision == 0) {
        PruefeB9();
    }
}

constexpr void (*Keiner)() = nullptr;

// clang-format off
constexpr Satztests TestsB = {PruefeB0, PruefeB1, PruefeB2, PruefeB3, PruefeB4,
                              PruefeB5, PruefeB6, PruefeB7, PruefeB8, PruefeB9BeiRevision0};
constexpr Satztests TestsG = {Keiner, PruefeG1, PruefeG2, PruefeG3, PruefeG4, PruefeG5, PruefeG6};
constexpr Satztests TestsC = {PruefeC0, PruefeC1, Keiner, Keiner, Keiner, PruefeC5};
constexpr Satztests TestsX = {Keiner, Keiner, Keiner, Keiner, PruefeX4, PruefeX5};
constexpr Satztests TestsP = {Keiner,
                              [] { PruefeP(1); },
                              [] { PruefeP(2); },
                              [] { PruefeP(3); },
                              [] { PruefeP(4); },
                              [] { PruefeP(5); }};
// clang-format on

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
