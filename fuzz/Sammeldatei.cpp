// A collected file: the list of its chapters as the program writes it, and each chapter by number, year and language
// against a walk from head to head. The same bytes as a chapter file in a folder.
#include "Ausgabepruefung.h"
#include "Speicherplatte.h"
#include "Ziel.h"

#include "catalogue/VLTKapitel.h"
#include "catalogue/VLTKatalog.h"
#include "run/NeuerLauf.h"
#include "run/Spezialfunktionen.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"

#include <optional>

namespace zepholt::fuzz {

namespace {

constexpr TextSicht Kapitelpfad = u"k/N201241.qvm"; // chapter 241 of 2020 in German

void BeginneLauf(ByteSicht eingabe, TextSicht katalog, std::int32_t art) {
    NeuerLauf();
    speicherplatte = {};
    speicherplatte.Dateien = {{art == 1 ? Text(Kapitelpfad) : Text(katalog), eingabe}};
    testDaten.Katalog = katalog;
    testDaten.KatalogArt = art;
    testDaten.OhneDialog = true;
    testDaten.Sprache = static_cast<std::int32_t>(Wahl(eingabe).Aus(3)) + 1;
}

void PruefeListe() {
    SpezialfunktionAusfuehren(u"1", testDaten.Sprache, u"liste.xml", testDaten.Katalog);
    Verlange(speicherplatte.Ausgabepfad == u"liste.xml", "the list is written");
    PruefeXml(speicherplatte.Ausgabe, "ZEPHOLT");
}

// The raw chapter with that text in columns 5 to 12 of its head; none where the walk doesn't get there.
std::optional<std::string> Gesucht(std::string_view datei, std::string_view chiffre) {
    for (std::size_t stelle = 0; stelle + 1 < datei.size();) {
        const std::string_view kopf = datei.substr(stelle, KapitelkopfLaenge);
        const std::optional<std::int32_t> laenge = StrengeGanzzahl(AusAscii(Spalten(kopf, 13, 9)));
        if (!laenge || *laenge < static_cast<std::int32_t>(KapitelkopfLaenge)) {
            return std::nullopt;
        }
        if (Spalten(kopf, 5, 8) == chiffre) {
            return std::string(datei.substr(stelle, static_cast<std::size_t>(*laenge)));
        }
        stelle += static_cast<std::size_t>(*laenge);
    }
    return std::nullopt;
}

void PruefeLaden(ByteSicht eingabe) {
    for (const std::int32_t kapitel : {241, 402}) {
        const Rohkapitel roh = LeseKapitelAusDatei(kapitel, 2020, 1);
        const std::string_view bytes = AlsZeichen(roh.Inhalt.Sicht());
        Verlange(bytes == Gesucht(AlsZeichen(eingabe), "20201" + std::to_string(kapitel)).value_or(""),
                 "the chapter that a walk finds");
    }
}

// What a run does with a chapter, if it is none of the largest.
void Lade(std::size_t groesse) {
    if (groesse > 1U << 16U) {
        return;
    }
    try {
        LadeKapitel(241, 2020, 1);
    } catch (const LaufzeitFehler&) {
        // a damaged file
    }
}

} // namespace

} // namespace zepholt::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t anzahl) {
    using namespace zepholt;
    using namespace zepholt::fuzz;
    const ByteSicht eingabe(bytes, anzahl);
    BeginneLauf(eingabe, u"k.vlt", 2);
    PruefeListe();
    PruefeLaden(eingabe);
    Lade(anzahl);
    BeginneLauf(eingabe, u"k", 1);
    PruefeListe();
    Lade(anzahl);
    return 0;
}
