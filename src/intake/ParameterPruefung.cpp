#include "intake/ParameterPruefung.h"

#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"
#include "support/OS_API.h"

#include <array>

namespace zepholt {

namespace {

struct Parameter {
    TextSicht Schluessel;
    Text TestDaten::*Wert;
};
constexpr std::array<Parameter, 5> Parameterliste = {{
    {u"file", &TestDaten::Austauschdatei},
    {u"dialog", &TestDaten::DialogParameter},
    {u"errorfile", &TestDaten::Fehlerdatei},
    {u"catalog", &TestDaten::Katalog},
    {u"mode", &TestDaten::Modus},
}};

// Stores the value of one argument; a key given twice: the last value wins.
std::int32_t ArgumentUebernehmen(TextSicht argument) {
    const std::size_t gleich = argument.find(u'=');
    if (gleich == TextSicht::npos) {
        return 1001;
    }
    const Text schluessel = Kleinbuchstaben(argument.substr(0, gleich));
    for (const Parameter& parameter : Parameterliste) {
        if (schluessel == parameter.Schluessel) {
            testDaten.*parameter.Wert = argument.substr(gleich + 1);
            return 0;
        }
    }
    return 1002;
}

// A value that begins with a quotation mark loses its first and its last character, whatever the last one is.
void AnfuehrungszeichenEntfernen(Text& wert) {
    if (!wert.starts_with(u'"')) {
        return;
    }
    if (wert.size() < 2) {
        throw LaufzeitFehler("a parameter value is a single quotation mark");
    }
    wert = wert.substr(1, wert.size() - 2);
}

// "de", "fr" and "it" give 1, 2 and 3, in any case; a trailing '-' makes the run silent. False for anything else.
bool SpracheErkennen() {
    testDaten.OhneDialog = false;
    Text sprache = Kleinbuchstaben(testDaten.DialogParameter);
    const bool still = sprache.ends_with(u'-');
    if (still) {
        sprache.pop_back();
    }
    constexpr std::array<TextSicht, 3> Sprachen = {u"de", u"fr", u"it"};
    for (std::size_t i = 0; i < Sprachen.size(); ++i) {
        if (sprache == Sprachen[i]) {
            testDaten.Sprache = static_cast<std::int32_t>(i) + 1;
            testDaten.OhneDialog = still;
            return true;
        }
    }
    return false;
}

// A device, a pipe or a socket is never opened or deleted.
bool FehlerdateiUngueltig() {
    return testDaten.Fehlerdatei.empty() || DateiExistiert(testDaten.Fehlerdatei) || FehlerdateiNichtAnlegbar();
}

// 1 a folder, 2 a file, 0 neither. The folder is asked for first.
std::int32_t KatalogArtVon(const Text& katalog) {
    if (katalog.empty()) {
        return 0;
    }
    if (OrdnerExistiert(katalog)) {
        return 1;
    }
    return DateiExistiert(katalog) ? 2 : 0;
}

} // namespace

bool FehlerdateiNichtAnlegbar() {
    return !DateiAnlegbar(testDaten.Fehlerdatei);
}

std::int32_t ParameterPruefen(std::span<const Text> argumente) {
    for (const Text& argument : argumente) {
        const std::int32_t code = ArgumentUebernehmen(argument);
        if (code != 0) {
            return code;
        }
    }
    if (testDaten.Austauschdatei.empty()) {
        return 1001;
    }
    for (const Parameter& parameter : Parameterliste) {
        AnfuehrungszeichenEntfernen(testDaten.*parameter.Wert);
    }
    if (!SpracheErkennen()) {
        return 1004;
    }
    testDaten.Spezialfunktion = testDaten.Austauschdatei.starts_with(u'*');
    if (!testDaten.Spezialfunktion && !DateiExistiert(testDaten.Austauschdatei)) {
        return 1003;
    }
    if (FehlerdateiUngueltig()) {
        return 1005;
    }
    testDaten.KatalogArt = KatalogArtVon(testDaten.Katalog);
    if (testDaten.KatalogArt == 0) {
        return 1006;
    }
    if (!testDaten.Modus.empty() && testDaten.Modus != u"E" && testDaten.Modus != u"I") {
        return 1007;
    }
    return 0;
}

} // namespace zepholt
