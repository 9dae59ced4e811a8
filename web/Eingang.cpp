// The entry of the module: what the page calls. Each call gets a text of fields that U+0000 separates, and returns the
// status that the program of its name would end with. A second call needs a fresh module, as a second run needs a fresh
// process; only the report of a test may follow it, which drops what the test held.
#include "bericht/Listen.h"
#include "bericht/Seite.h"
#include "bericht/Zeichen.h"
#include "run/Main_Start.h"
#include "run/NeuerLauf.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"

#include <exception>
#include <new>

#include <emscripten.h>

extern "C" {
// What the page is told of a report: 0 in order, 1 with errors, 2 refused, and the numbers of its findings.
void zepholt_urteil(int art, double fehler, double warnungen);

// A whole run of the program on the arguments of a command line.
EMSCRIPTEN_KEEPALIVE int zepholt_programm(const char16_t* text, int laenge);

// A test: exchange file, protocol, language (1 to 3), mode, catalogue and its kind (0 none, 1 a folder, 2 a file).
EMSCRIPTEN_KEEPALIVE int zepholt_pruefen(const char16_t* text, int laenge);

// A report: its kind (html, csv), protocol, exchange file, where it goes, language (1 to 3), and for the page what the
// catalogue is called: nothing where there was none.
EMSCRIPTEN_KEEPALIVE int zepholt_berichten(const char16_t* text, int laenge);
}

namespace zepholt {

namespace {

std::vector<Text> Felder(const char16_t* text, int laenge) {
    std::vector<Text> felder(1);
    for (const char16_t zeichen : TextSicht(text, static_cast<std::size_t>(laenge))) {
        if (zeichen == u'\0') {
            felder.emplace_back();
        } else {
            felder.back().push_back(zeichen);
        }
    }
    return felder;
}

bericht::Sprache SpracheAus(const Text& nummer) {
    return static_cast<bericht::Sprache>(nummer.at(0) - u'1');
}

// The report that `art` names, of the protocol and the exchange file.
void BerichtSchreiben(const std::vector<Text>& felder) {
    const Text& art = felder.at(0);
    const bericht::Protokoll protokoll = bericht::ProtokollLesen(felder.at(1));
    const bool istE1S = protokoll.Dateiformat == "e1s";
    bericht::SchnittstelleSetzen(istE1S);
    const bericht::Austauschdatei datei(felder.at(2), istE1S);
    bericht::ZusammengehoerigkeitPruefen(protokoll, datei);
    const bericht::Sprache sprache = SpracheAus(felder.at(4));
    const std::string_view urteil = Urteilsart(protokoll);
    zepholt_urteil(urteil == "ordnung"      ? 0
                   : urteil == "fehlerhaft" ? 1
                                            : 2,
                   static_cast<double>(protokoll.Fehler), static_cast<double>(protokoll.Warnungen));
    bericht::Ausgabe ausgabe(felder.at(3));
    if (art == u"html") {
        const bool ohneKatalog = felder.at(5).empty();
        bericht::SeiteSchreiben(protokoll, datei, {sprache, bericht::Utf8(felder.at(5)), {}, ohneKatalog}, ausgabe);
    } else {
        bericht::CsvSchreiben(protokoll, &datei, sprache, ausgabe);
    }
    ausgabe.Abschliessen();
}

} // namespace

} // namespace zepholt

extern "C" {

int zepholt_programm(const char16_t* text, int laenge) {
    return zepholt::Main(zepholt::KommandotextAus(zepholt::Felder(text, laenge)));
}

int zepholt_pruefen(const char16_t* text, int laenge) {
    const std::vector<zepholt::Text> felder = zepholt::Felder(text, laenge);
    zepholt::TestDaten& daten = zepholt::testDaten;
    daten.Austauschdatei = felder.at(0);
    daten.Fehlerdatei = felder.at(1);
    daten.Sprache = felder.at(2).at(0) - u'0';
    daten.Modus = felder.at(3);
    daten.Katalog = felder.at(4);
    daten.KatalogArt = felder.at(5).at(0) - u'0';
    return zepholt::Testlauf();
}

int zepholt_berichten(const char16_t* text, int laenge) {
    try {
        zepholt::NeuerLauf();
        zepholt::BerichtSchreiben(zepholt::Felder(text, laenge));
        return 0;
    } catch (const zepholt::bericht::Ablehnung& ablehnung) {
        zepholt::MeldungAusgeben(
            zepholt::bericht::MeldungsText(ablehnung.Grund, zepholt::bericht::Sprache::Deutsch, ablehnung.Werte));
    } catch (const std::bad_alloc&) {
        zepholt::MeldungAusgeben(zepholt::bericht::MeldungsText(zepholt::bericht::Meldung::KeinSpeicher,
                                                                zepholt::bericht::Sprache::Deutsch));
    } catch (const std::exception& fehler) {
        zepholt::MeldungAusgeben(std::string_view(fehler.what()));
    }
    return zepholt::bericht::StatusKeinErgebnis;
}
}
