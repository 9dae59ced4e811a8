// A whole run on an exchange file: intake, document test, comparison with a small catalogue, protocol.
//
// ZEPHOLT_ENDUNG is the end of the file's name, which decides on the kind of file. Mode and language come from the
// bytes. Besides what holds for every protocol, plain ways are asked for the same: the order of findings by their
// written keys, the element of each finding by itself, and for some files the lines one by one, for some the
// whole run once more.
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

void BeginneLauf(ByteSicht eingabe) {
    constexpr std::array<TextSicht, 4> Modi = {u"", u"", u"E", u"I"};
    NeuerLauf();
    speicherplatte = {};
    speicherplatte.Dateien = {{Text(Pfad), eingabe}, {u"katalog", Probekatalog()}};
    testDaten.Austauschdatei = Pfad;
    testDaten.Fehlerdatei = u"p.xml";
    testDaten.Katalog = u"katalog";
    testDaten.KatalogArt = 2;
    testDaten.OhneDialog = true;
    testDaten.Sprache = static_cast<std::int32_t>(Wahl(eingabe, 3)) + 1;
    testDaten.Modus = Modi[Wahl(eingabe, Modi.size())];
    testDaten.Version = u"4.0";
    testDaten.Uhr = [] { return Zeitpunkt{2026, 9, 15, 12, 0}; };
}

std::string Laufe(ByteSicht eingabe) {
    BeginneLauf(eingabe);
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
    const std::string protokoll = Laufe(eingabe);
    if (!protokoll.empty()) {
        PruefeProtokoll(protokoll);
        PruefeFundfolge();
        PruefeFundelemente(protokoll);
    }
    if (Wahl(eingabe, 16) == 0) {
        Verlange(Laufe(eingabe) == protokoll, "a second run finds the same");
    }
    if (Wahl(eingabe, 8) == 0) {
        BeginneLauf(eingabe);
        PruefeZeilen();
    }
    return 0;
}
