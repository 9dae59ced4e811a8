#include "run/Main_Start.h"

#include "errors/FehlerERL.h"
#include "errors/TestFehler.h"
#include "intake/ParameterPruefung.h"
#include "run/Spezialfunktionen.h"
#include "run/Test.h"
#include "state/TestDaten.h"
#include "support/Fassung.h"
#include "support/HilfsFunktionen.h"
#include "support/OS_API.h"
#include "window/DialogDeFrIt.h"
#include "window/Fenster.h"
#include "window/Laufzeittexte.h"
#include "window/Textanzeige.h"

#include <cstdlib>
#include <exception>
#include <new>

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

// The parameter test, and the dialog language whatever its outcome. `still`: the command line asks for silence, so that
// what is wrong with it is not shown. False when the run is over.
bool ParameterTesten(std::span<const Text> argumente, bool still) {
    const std::int32_t code = ParameterPruefen(argumente);

    // Only this copy is corrected: Sprache itself stays 0 when the test stopped before the language.
    const std::int32_t sprache = testDaten.Sprache >= 1 && testDaten.Sprache <= 3 ? testDaten.Sprache : 1;
    SpracheSetzen(sprache);
    if (code != 0 && !still) {
        ParameterfehlerZeigen(ParameterMeldung(code, sprache));
    }
    return code == 0;
}

void Ausfuehren() {
    if (testDaten.Spezialfunktion) {
        SpezialfunktionAusfuehren(TextSicht(testDaten.Austauschdatei).substr(1), testDaten.Sprache,
                                  testDaten.Fehlerdatei, testDaten.Katalog);
    } else {
        TestlaufAusfuehren();
    }
}

// The one sign of a failure that no rule catches: a line on standard error, and a box when the run has a dialog. The
// message is UTF-8.
void LaufzeitfehlerMelden(std::string_view meldung) {
    testDaten.Fortschrittsfenster = nullptr;
    MeldungAusgeben(meldung);
    try {
        if (!testDaten.OhneDialog) {
            MeldungsboxZeigen(AusUtf8Bytes(meldung));
        }
    } catch (const std::bad_alloc&) {
        // No memory for a box: the line stands.
    }
}

// What every run begins with.
void Beginnen() {
    testDaten.Version = Programmfassung;
    testDaten.Abbruch = false;
    FehlerLoeschen();
}

// Returns the exit status of a run as far as memory lasts. `stumm`: a failure of it is not told either.
template <class Lauf>
int FehlerBewacht(const bool& stumm, Lauf lauf) {
    try {
        lauf();
        return 0;
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& fehler) {
        if (!stumm) {
            LaufzeitfehlerMelden(LaufzeitMeldung(fehler.what()));
        }
        return 1;
    }
}

int LaufAusfuehren(TextSicht kommandozeile) {
    bool stumm = false;
    return FehlerBewacht(stumm, [&] {
        Beginnen();
        const std::vector<Text> argumente = KommandozeileZerlegen(kommandozeile);
        stumm = StilleVerlangt(argumente);
        if (ParameterTesten(argumente, stumm)) {
            stumm = false;
            Ausfuehren();
        }
    });
}

// Exhausted memory is told by what was ready before.
template <class Lauf>
int SpeicherBewacht(Lauf lauf) {
    try {
        return lauf();
    } catch (const std::bad_alloc&) {
        LaufzeitfehlerMelden(SpeicherMeldung());
        return 1;
    }
}

bool IstSpeicherfehler(const std::exception_ptr& fehler) {
    if (fehler == nullptr) { // not even the exception could be made
        return true;
    }
    try {
        std::rethrow_exception(fehler);
    } catch (const std::bad_alloc&) {
        return true;
    } catch (...) {
        return false;
    }
}

// What the runtime calls for an exception that nobody catches: memory so short that none can be made, or that the
// shared state finds no room before the program begins.
[[noreturn]] void UngefangenEnden() {
    if (!IstSpeicherfehler(std::current_exception())) {
        std::abort();
    }
    MeldungAusgeben(SpeicherMeldung());
    std::_Exit(1);
}

// Before any state is made.
[[gnu::constructor(101)]] void UngefangenesVorbereiten() {
    std::set_terminate(&UngefangenEnden);
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
    return SpeicherBewacht([&] { return LaufAusfuehren(kommandozeile); });
}

int Testlauf() {
    return SpeicherBewacht([] {
        return FehlerBewacht(false, [] {
            Beginnen();
            SpracheSetzen(testDaten.Sprache);
            TestlaufAusfuehren();
        });
    });
}

int Programm(int anzahl, char** argumente) {
    ProzessVorbereiten();
    return SpeicherBewacht([&] { return LaufAusfuehren(Kommandozeile(anzahl, argumente)); });
}

} // namespace zepholt
