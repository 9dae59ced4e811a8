#include "intake/ParameterPruefung.h"

#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"
#include "support/OS_API.h"

#include <algorithm>
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

struct Dialogwahl {
    std::int32_t Sprache = 0; // 1 to 3; 0 for a value that is none
    bool Still = false;
};

// "de", "fr" and "it" give 1, 2 and 3, in any case; a trailing '-' makes the run silent.
Dialogwahl DialogwahlAus(TextSicht wert) {
    Text sprache = Kleinbuchstaben(wert);
    const bool still = sprache.ends_with(u'-');
    if (still) {
        sprache.pop_back();
    }
    constexpr std::array<TextSicht, 3> Sprachen = {u"de", u"fr", u"it"};
    for (std::size_t i = 0; i < Sprachen.size(); ++i) {
        if (sprache == Sprachen[i]) {
            return {static_cast<std::int32_t>(i) + 1, still};
        }
    }
    return {};
}

// False when the value of dialog= names no language.
bool SpracheErkennen() {
    const Dialogwahl wahl = DialogwahlAus(testDaten.DialogParameter);
    testDaten.OhneDialog = wahl.Still;
    if (wahl.Sprache != 0) {
        testDaten.Sprache = wahl.Sprache;
    }
    return wahl.Sprache != 0;
}

// Without blanks at both ends, then without a pair of quotation marks around the rest, and so on.
TextSicht Entkleidet(TextSicht text) {
    text = OhneLeerzeichen(text);
    while (text.size() >= 2 && text.front() == u'"' && text.back() == u'"') {
        text = OhneLeerzeichen(text.substr(1, text.size() - 2));
    }
    return text;
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

bool StilleVerlangt(std::span<const Text> argumente) {
    return std::ranges::any_of(argumente, [](TextSicht argument) {
        argument = Entkleidet(argument);
        const std::size_t gleich = argument.find(u'=');
        return gleich != TextSicht::npos && Kleinbuchstaben(Entkleidet(argument.substr(0, gleich))) == u"dialog" &&
               DialogwahlAus(Entkleidet(argument.substr(gleich + 1))).Still;
    });
}

bool FehlerdateiNichtAnlegbar() {
    return !DateiAnlegbar(testDaten.Fehlerdatei, &testDaten.Protokollplatz);
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
