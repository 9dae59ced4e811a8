#include "run/Main_Start.h"

#include "errors/FehlerERL.h"
#include "errors/TestFehler.h"
#include "intake/ParameterPruefung.h"
#include "run/Spezialfunktionen.h"
#include "run/Test.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"
#include "support/OS_API.h"
#include "window/DialogDeFrIt.h"
#include "window/Fenster.h"
#include "window/Textanzeige.h"

#include <exception>

namespace zepholt {

namespace {

// The errors that can arise before a language is known: their text is shown in all three.
bool VorDerSprache(std::int32_t code) {
    return code == 1001 || code == 1002 || code == 1004;
}

// Not in a silent run; on standard error where no box can be shown.
void ParameterfehlerZeigen(const Text& meldung) {
    if (!testDaten.OhneDialog && !MeldungsboxZeigen(meldung)) {
        MeldungAlsText(meldung);
    }
}

void TestlaufAusfuehren() {
    std::unique_ptr<Fenster> fenster;
    if (!testDaten.OhneDialog) {
        fenster = FensterOeffnen();
        testDaten.Fortschrittsfenster = fenster.get();
    }
    TestAusfuehren();
    testDaten.Fortschrittsfenster = nullptr;
}

void Ausfuehren(TextSicht kommandozeile) {
    testDaten.Version = u"4.0";
    testDaten.Abbruch = false;
    const std::vector<Text> argumente = KommandozeileZerlegen(kommandozeile);
    FehlerLoeschen();
    const std::int32_t code = ParameterPruefen(argumente);

    // Only this copy is corrected: Sprache itself stays 0 when the test stopped before the language.
    const std::int32_t sprache = testDaten.Sprache >= 1 && testDaten.Sprache <= 3 ? testDaten.Sprache : 1;
    SpracheSetzen(sprache);

    if (code != 0) {
        ParameterfehlerZeigen(ParameterMeldung(code, sprache));
    } else if (testDaten.Spezialfunktion) {
        SpezialfunktionAusfuehren(TextSicht(testDaten.Austauschdatei).substr(1), testDaten.Sprache,
                                  testDaten.Fehlerdatei, testDaten.Katalog);
    } else {
        TestlaufAusfuehren();
    }
}

// The one sign of a failure that no rule catches: a line on standard error, and a box when the run has a dialog.
void LaufzeitfehlerMelden(const char* was) {
    testDaten.Fortschrittsfenster = nullptr;
    const Text meldung = AusAscii("ZEPHOLT: run-time failure: ") + AusAscii(was);
    MeldungAusgeben(meldung);
    if (!testDaten.OhneDialog) {
        MeldungsboxZeigen(meldung);
    }
}

} // namespace

std::vector<Text> KommandozeileZerlegen(TextSicht kommandozeile) {
    const TextSicht text = OhneLeerzeichen(kommandozeile);
    std::vector<Text> argumente(1);
    bool inAnfuehrung = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == u'"') {
            inAnfuehrung = !inAnfuehrung;
        }
        if (inAnfuehrung || text[i] != u' ') {
            argumente.back().push_back(text[i]);
            continue;
        }
        argumente.emplace_back();
        i = text.find_first_not_of(u' ', i) - 1; // the text ends in no blank, so that one more character comes
    }
    return argumente;
}

Text ParameterMeldung(std::int32_t code, std::int32_t sprache) {
    Text meldung;
    const auto zeile = [&meldung](TextSicht name, TextSicht wert) {
        meldung.append(name).append(u"=\"").append(wert).append(u"\"\r\n");
    };
    zeile(u"file", testDaten.Austauschdatei);
    zeile(u"dialog", testDaten.DialogParameter);
    zeile(u"errorfile", testDaten.Fehlerdatei);
    zeile(u"catalog", testDaten.Katalog);
    if (!testDaten.Modus.empty()) {
        zeile(u"mode", testDaten.Modus);
    }
    meldung.append(u"\r\n");

    if (VorDerSprache(code)) {
        meldung.append(FehlerText(code, 1)).append(u"\r\n").append(FehlerText(code, 2)).append(u"\r\n");
        return meldung.append(FehlerText(code, 3));
    }
    return meldung.append(FehlerText(code, sprache));
}

int Main(TextSicht kommandozeile) {
    try {
        Ausfuehren(kommandozeile);
        return 0;
    } catch (const std::bad_alloc&) {
        LaufzeitfehlerMelden("out of memory");
    } catch (const std::exception& fehler) {
        LaufzeitfehlerMelden(fehler.what());
    }
    return 1;
}

} // namespace zepholt
