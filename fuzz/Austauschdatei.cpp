// A whole run on an exchange file: intake, document test, comparison with a small catalogue, protocol.
//
// ZEPHOLT_ENDUNG is the end of the file's name, which decides on the kind of file. Mode and language come from the
// bytes. Besides what holds for every protocol, plain ways are asked for the same, each for some files, so that most
// runs are quick: the order of findings by their written keys, the element of each finding by itself, the lines one
// by one, the whole run once more.
#include "Ausgabepruefung.h"
#include "Probekatalog.h"
#include "Speicherplatte.h"
#include "Vergleichswege.h"
#include "Ziel.h"

#include "run/NeuerLauf.h"
#include "run/Test.h"
#include "state/TestDaten.h"

#include <array>

namespace zepholt::fuzz {

namespace {

constexpr TextSicht Pfad = u"a" ZEPHOLT_ENDUNG;

struct Aufruf {
    std::int32_t Sprache;
    TextSicht Modus;
};

Aufruf WaehleAufruf(Wahl& wahl) {
    constexpr std::array<TextSicht, 4> Modi = {u"", u"", u"E", u"I"};
    return {static_cast<std::int32_t>(wahl.Aus(3)) + 1, Modi[wahl.Aus(Modi.size())]};
}

void BeginneLauf(ByteSicht eingabe, const Aufruf& aufruf) {
    NeuerLauf();
    speicherplatte = {};
    speicherplatte.Dateien = {{Text(Pfad), eingabe}, {u"katalog", Probekatalog()}};
    testDaten.Austauschdatei = Pfad;
    testDaten.Fehlerdatei = u"p.xml";
    testDaten.Katalog = u"katalog";
    testDaten.KatalogArt = 2;
    testDaten.OhneDialog = true;
    testDaten.Sprache = aufruf.Sprache;
    testDaten.Modus = aufruf.Modus;
    testDaten.Version = u"4.0";
    testDaten.Uhr = [] { return Zeitpunkt{2026, 9, 15, 12, 0}; };
}

std::string Laufe(ByteSicht eingabe, const Aufruf& aufruf) {
    BeginneLauf(eingabe, aufruf);
    try {
        TestAusfuehren();
    } catch (const LaufzeitFehler&) {
        Verlange(speicherplatte.Ausgabepfad.empty(), "a run-time failure writes no protocol");
        return {};
    }
    Verlange(speicherplatte.Ausgabepfad == u"p.xml", "a run ends with its protocol");
    return std::move(speicherplatte.Ausgabe);
}

} // namespace

} // namespace zepholt::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t anzahl) {
    using namespace zepholt;
    using namespace zepholt::fuzz;
    const ByteSicht eingabe(bytes, anzahl);
    Wahl wahl(eingabe);
    const Aufruf aufruf = WaehleAufruf(wahl);
    const std::string protokoll = Laufe(eingabe, aufruf);
    if (!protokoll.empty()) {
        PruefeProtokoll(protokoll);
    }
    if (!protokoll.empty() && wahl.Aus(4) == 0) {
        PruefeFundfolge();
        PruefeFundelemente(protokoll);
    }
    if (wahl.Aus(8) == 0) {
        BeginneLauf(eingabe, aufruf);
        PruefeZeilen();
    }
    if (wahl.Aus(16) == 0) {
        Verlange(Laufe(eingabe, aufruf) == protokoll, "a second run finds the same");
    }
    return 0;
}
