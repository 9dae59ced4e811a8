#include "intake/TestTechnisch.h"

#include "errors/TestFehler.h"
#include "intake/Dateibytes.h"
#include "intake/TestUTF8Codierung.h"
#include "intake/UTF8_Speicherung.h"
#include "intake/UniversalSchluessel.h"
#include "intake/Zeichentest.h"
#include "intake/Zeilenleser.h"
#include "state/SIA451Datei.h"
#include "state/SIA451Felder.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"
#include "window/DialogDeFrIt.h"
#include "window/Fortschritt.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace zepholt {

namespace {

bool Ablehnen(std::int32_t code) {
    FehlerMelden(code);
    return false;
}

// Lengths and positions of the file as the progress window takes them.
std::int32_t Balkenwert(std::uint64_t bytes) {
    return static_cast<std::int32_t>(std::min<std::uint64_t>(bytes, std::numeric_limits<std::int32_t>::max()));
}

// Only the end of the name decides, in any case.
void DateiartBestimmen() {
    const Text& name = testDaten.Austauschdatei;
    Text ende = name.substr(name.size() - std::min<std::size_t>(name.size(), 4));
    std::ranges::transform(ende, ende.begin(), Grossbuchstabe);
    testDaten.IstE1S = ende == u".E1S";
    testDaten.Dateiformat = testDaten.IstE1S ? u"E1S" : u"01S";
}

// The first line doesn't name the interface of its kind of file, or is not encoded as it must be.
bool FalscheKennung() {
    return Ablehnen(testDaten.IstE1S ? 2004 : 2002);
}

// The decoded first line against the kind of file.
bool PruefeKopf(Feldsicht kopf) {
    const bool istE1S = testDaten.IstE1S;
    const Feldsicht id = Feld(kopf, 8, 6);
    if (id != (istE1S ? u"QVMX17" : u"451-92")) {
        return FalscheKennung();
    }
    testDaten.SchnittstellenId = id;

    const Text revision = Feld(kopf, 14, 2);
    if (ZahlAmAnfang(revision) < 11) {
        return Ablehnen(2006);
    }
    testDaten.Revision = GanzzahlAmAnfang(revision);
    if (istE1S && testDaten.Revision != 21) {
        return Ablehnen(2005);
    }
    if (!istE1S && testDaten.Revision != 11) {
        return Ablehnen(2006);
    }

    KopfUebernehmen(kopf);

    const Feldsicht sprache = Feld(kopf, 42, 1);
    if (sprache != u"1" && sprache != u"2" && sprache != u"3") {
        return Ablehnen(2003);
    }
    return true;
}

// The tests on the bytes of the whole file.
bool PruefeBytes(ByteSicht bytes, const Zeilenschnitt& schnitt) {
    if (schnitt.CrLfErgebnis() != 0) { // an empty file too
        return Ablehnen(2001);
    }
    if (testDaten.IstE1S) {
        const std::int32_t ergebnis = Utf8DateiPruefen(bytes, schnitt.ErsteBesondere());
        if (ergebnis != 0) {
            return ergebnis == 1 ? Ablehnen(2007) : Ablehnen(2008);
        }
    }
    return true;
}

// Takes the lines from the second on; the bar moves at every fiftieth of the file.
void ZeilenLesen(Zeilenleser& leser, std::size_t laenge) {
    const std::size_t schritt = laenge / 50;
    for (std::size_t naechste = schritt; !leser.AmEnde();) {
        if (naechste <= leser.Position()) {
            ZeigeFortschritt(Balkenwert(leser.Position()));
            naechste += schritt;
        }
        leser.Naechste();
    }
    ZeigeFortschritt(Balkenwert(laenge));
}

bool Einlesen() {
    DateiartBestimmen();
    Zeilenschnitt schnitt;
    testDaten.Puffer =
        DateiBytesLesen(testDaten.Austauschdatei, [&schnitt](ByteSicht bisher) { schnitt.Nimm(bisher); });
    const ByteSicht bytes = testDaten.Puffer.Sicht();
    if (!PruefeBytes(bytes, schnitt)) {
        return false;
    }
    ZeigeSchritt(Uebersetze(u"Liest Austauschdatei ein"), Balkenwert(bytes.size()));

    ByteSicht kopf = bytes.first(ByteSuchen(bytes, '\n'));
    if (!Utf8KopfPruefen(kopf)) {
        return FalscheKennung();
    }
    Zeilenleser leser(schnitt, static_cast<std::size_t>(kopf.data() - bytes.data()));
    leser.Naechste();
    if (!PruefeKopf(leser.Zeilen().front())) {
        return false;
    }
    ZeilenLesen(leser, bytes.size());
    testDaten.Zeilen = std::move(leser.Zeilen());
    testDaten.ZeilenAnzahl = static_cast<std::int32_t>(testDaten.Zeilen.size());
    if (!testDaten.BreiterPuffer.empty()) {
        testDaten.Puffer = {};
    }
    return true;
}

// First and last record, and what they say of the file.
bool PruefeRahmen() {
    if (testDaten.ZeilenAnzahl < 1) {
        return Ablehnen(2011);
    }
    const Feldsicht a = testDaten.Zeilen.front();
    const Feldsicht z = testDaten.Zeilen.back();
    if (Feld(a, 1, 1) != u"A") {
        return Ablehnen(2011);
    }
    if (Feld(z, 1, 1) != u"Z") {
        return Ablehnen(2012);
    }
    if (Feld(z, 62, 1) != u"-") { // no further file follows
        return Ablehnen(2013);
    }
    if (ZahlAmAnfang(Text(Feld(a, 63, 12))) != 1 || ZahlAmAnfang(Text(Feld(z, 63, 12))) != 1) {
        return Ablehnen(2014);
    }
    if (ZahlAmAnfang(Text(Feld(z, 46, 13))) != testDaten.ZeilenAnzahl) {
        return Ablehnen(2015);
    }
    return true;
}

// Doubled keys and the order of the lines. The lines are sorted in any case; in a file without a fault that leaves them
// as they are, apart from files of more than a million lines, see SortierteFolge.
bool PruefeSchluessel() {
    const Reihenfolge reihenfolge = ReihenfolgeErmitteln(testDaten.Zeilen);
    const std::int32_t doppelt = DoppelterSchluessel(testDaten.Zeilen, reihenfolge);
    if (!reihenfolge.IstSortiert) {
        testDaten.Zeilen.Umordnen(SortierteFolge(testDaten.Zeilen));
    }
    testDaten.ZeilenNummeriert = true;

    if (doppelt > 0) {
        testDaten.ZeilenNr = doppelt;
        return Ablehnen(2021);
    }
    if (reihenfolge.ErsteZuNiedrige > 0) {
        testDaten.ZeilenNr = reihenfolge.ErsteZuNiedrige;
        return Ablehnen(2022);
    }
    return true;
}

// Called once, but for all lines: without a word the compiler saves room in such a function instead of time.
[[gnu::hot, gnu::noinline]] void PruefeZeichen() {
    ErlaubteZeichenAufbauen();
    testDaten.UndefinierterRecordTyp = false;
    const std::size_t letzte = testDaten.Zeilen.size() - 1; // stays in hand
    for (std::size_t k = 0; k <= letzte; ++k) {
        BedieneFenster();
        testDaten.Zeilen.Vorausholen(k);
        const Feldsicht zeile = testDaten.Zeilen[k];
        if (k < letzte && OhneZeichenbefund(zeile)) {
            continue;
        }
        testDaten.Record = zeile;
        testDaten.ZeilenNr = static_cast<std::int32_t>(k);
        RecordZeichenTest();
    }
    if (testDaten.UndefinierterRecordTyp) {
        testDaten.ZeilenNr = -1;
        testDaten.FehlerKapitel = 0;
        testDaten.FehlerPosition = 0;
        FehlerMelden(2041);
    }
}

} // namespace

bool DateiTesten() {
    if (!DateiEinlesen() || !PruefeRahmen() || !PruefeSchluessel()) {
        return false;
    }
    PruefeZeichen();
    return true;
}

bool DateiEinlesen() {
    try {
        return Einlesen();
    } catch (const std::exception&) { // the file system, a conversion, exhausted memory
        return Ablehnen(2001);
    }
}

void KopfUebernehmen(Feldsicht zeile) {
    sia451Datei.ProjektNummer = Feld(zeile, 82, 11);
    sia451Datei.ProjektName = Feld(zeile, 93, 30);
    sia451Datei.DokumentNummer = Feld(zeile, 123, 15);
    sia451Datei.DokumentName = Feld(zeile, 138, 30);
    sia451Datei.SoftwareHersteller = Feld(zeile, 168, 20);
    sia451Datei.SoftwareName = Feld(zeile, 208, 30);
}

} // namespace zepholt
