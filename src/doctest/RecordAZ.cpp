// Records A and Z: the header and the closing record, tested in one go.
#include "doctest/Feldpruefung.h"
#include "doctest/Records.h"
#include "errors/TestFehler.h"
#include "state/SIA451Datei.h"
#include "state/TestDaten.h"

namespace zepholt {

namespace {

bool Enthaelt(TextSicht menge, TextSicht wert) {
    return !wert.empty() && menge.find(wert) != TextSicht::npos;
}

void ZeileSetzen(Feldsicht zeile, std::int32_t nummer) {
    testDaten.Record = zeile;
    testDaten.ZeilenNr = nummer;
}

void LiesRecordA(SIA451Datei& datei) {
    datei.ProjektNummer = SchluesselFeld(82, 11, JokerVerboten, Zwingend);            // A:21-22
    datei.ProjektName = TextFeld(93, 30, Erwartet);                                   // A:23
    datei.KopfFeld18 = SchluesselFeld(18, 12, JokerVerboten, Freiwillig);             // A:6-7
    datei.DokumentNummer = SchluesselFeld(123, 15, JokerVerboten, Zwingend);          // A:24a-d
    datei.DokumentName = TextFeld(138, 30, Erwartet);                                 // A:24e
    datei.KopfFeld46 = TextFeld(46, 13, Freiwillig);                                  // A:15
    datei.DokumentCode = TextFeld(44, 1, Zwingend);                                   // A:13
    datei.Sprachcode = ZahlFeld(42, 1, Zwingend);                                     // A:11
    datei.DatumA = DatumFeld(2, 6, Zwingend);                                         // A:2
    datei.KopfFeld30 = TextFeld(30, 12, NeueSchnittstelle() ? Zwingend : Freiwillig); // A:8-10
    datei.DokumentStatus = TextFeld(45, 1, Zwingend);                                 // A:14
    datei.KopfFeld75 = ZahlFeld(75, 7, Freiwillig);                                   // A:20
    datei.StellungVorversion = TextFeld(43, 1, Freiwillig);                           // A:12
    datei.KopfFeld59 = ZahlFeld(59, 4, Freiwillig);                                   // A:16-18
    datei.SoftwareHersteller = TextFeld(168, 20, Zwingend);                           // A:24f
    datei.KopfFeld188 = TextFeld(188, 20, Zwingend);                                  // A:24g
    datei.SoftwareName = TextFeld(208, 30, Zwingend);                                 // A:24h
    datei.KopfFeld238 = TextFeld(238, 19, Freiwillig);                                // A:24i
}

// Returns Z:21-22, which is tested later and not kept.
Feldsicht LiesRecordZ(SIA451Datei& datei) {
    const Feldsicht projekt = SchluesselFeld(82, 11, JokerVerboten, Freiwillig);     // Z:21-22
    TextFeld(93, 30, Freiwillig);                                                    // Z:23
    datei.DatumZ3 = DatumFeld(8, 6, Freiwillig);                                     // Z:3
    datei.DatumZ2 = DatumFeld(2, 6, Zwingend);                                       // Z:2
    datei.ZFeld123 = TextFeld(123, 15, Freiwillig);                                  // Z:24a-d
    datei.ZFeld75 = ZahlFeld(75, 7, Freiwillig);                                     // Z:20
    datei.ZFeld30 = TextFeld(30, 12, Freiwillig);                                    // Z:8-10
    datei.ZFeld18 = TextFeld(18, 12, NeueSchnittstelle() ? Zwingend : Freiwillig);   // Z:6-7
    datei.ZFeld138 = TextFeld(138, 30, NeueSchnittstelle() ? Zwingend : Erwartet);   // Z:24e
    datei.ZFeld168 = TextFeld(168, 20, Erwartet);                                    // Z:24f
    datei.ZFeld188 = TextFeld(188, 20, NeueSchnittstelle() ? Erwartet : Freiwillig); // Z:24g
    datei.ZFeld208 = TextFeld(208, 49, Freiwillig);                                  // Z:24h-i
    return projekt;
}

void PruefeCodesA(const SIA451Datei& datei) {
    if (!NeueSchnittstelle() && !Enthaelt(u"ABCDEFGHKL", datei.DokumentCode)) {
        FehlerMelden(3101);
    }
    if (NeueSchnittstelle() && !Enthaelt(u"ABCDIK", datei.DokumentCode)) {
        FehlerMelden(3106);
    }
    if (!Enthaelt(u"ABCD", datei.DokumentStatus)) {
        FehlerMelden(3102);
    }
    if (!datei.StellungVorversion.empty() && !Enthaelt(u"AB", datei.StellungVorversion)) {
        FehlerMelden(3103);
    }
}

// Documents of the codes I and C refer to another document, which record Z must name.
void PruefeBezugsdokument(const SIA451Datei& datei, Feldsicht projekt) {
    if (!NeueSchnittstelle() || (datei.DokumentCode != u"I" && datei.DokumentCode != u"C")) {
        return;
    }
    if (datei.ZFeld123.empty() || datei.ZFeld30.empty() || projekt.empty() || datei.DatumZ3 == 0) {
        FehlerMelden(3107);
    }
    TextFeld(93, 30, Erwartet); // Z:23, read a second time: now a blank field is worth a warning
}

} // namespace

void PruefeRecordAZ(Feldsicht zeileA, Feldsicht zeileZ) {
    ZeileSetzen(zeileA, 0);
    LiesRecordA(sia451Datei);
    PruefeCodesA(sia451Datei);

    ZeileSetzen(zeileZ, testDaten.ZeilenAnzahl - 1);
    const Feldsicht projekt = LiesRecordZ(sia451Datei);
    PruefeBezugsdokument(sia451Datei, projekt);
}

} // namespace zepholt
