#include "Vergleichswege.h"

#include "Speicherplatte.h"
#include "Ziel.h"

#include "errors/Fehlerausgabe.h"
#include "errors/Fehlerfolge.h"
#include "errors/TestFehler.h"
#include "intake/TestTechnisch.h"
#include "intake/UTF8_Speicherung.h"
#include "intake/UniversalSchluessel.h"
#include "state/SIA451Felder.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"
#include "support/Utf8.h"
#include "support/tqXML.h"

#include <algorithm>
#include <array>

namespace zepholt::fuzz {

namespace {

constexpr std::size_t HoechstensZeilen = 40; // that are worth a plain way

std::vector<Text> Zeilentexte() {
    std::vector<Text> texte;
    for (std::size_t i = 0; i < testDaten.Zeilen.size(); ++i) {
        texte.push_back(testDaten.Zeilen[i]);
    }
    return texte;
}

// --- Decoding --------------------------------------------------------------------------------------------------------

Text AusUtf8(std::string_view bytes) {
    Text text;
    while (!bytes.empty()) {
        const Utf8Folge folge = Utf8Lesen(bytes);
        std::array<char16_t, 2> einheiten;
        text.append(einheiten.data(), Utf16Schreiben(einheiten.data(), folge.Gueltig ? folge.Codepunkt : 0xFFFD));
        bytes.remove_prefix(folge.Laenge);
    }
    return text;
}

Text AusOem(std::string_view bytes) {
    bytes = bytes.substr(0, bytes.find('\0'));
    Text text(bytes.size(), u'\0');
    std::ranges::transform(bytes, text.begin(), [seite = Codeseite850()](char byte) {
        return seite.Zeichen[static_cast<unsigned char>(byte)];
    });
    return text;
}

void PruefeDekodierung(const std::vector<Text>& zeilen) {
    const ByteSicht datei = speicherplatte.Dateien.front().second;
    std::string_view rest(reinterpret_cast<const char*>(datei.data()), datei.size());
    if (testDaten.Utf8Modus && rest.starts_with("\xEF\xBB\xBF")) {
        rest.remove_prefix(3);
    }
    for (const Text& zeile : zeilen) {
        const std::size_t ende = rest.find("\r\n");
        Verlange(ende != std::string_view::npos, "a line has an end");
        const std::string_view bytes = rest.substr(0, ende);
        Verlange(zeile == (testDaten.Utf8Modus ? AusUtf8(bytes) : AusOem(bytes)), "a line is its bytes, decoded");
        rest.remove_prefix(ende + 2);
    }
    Verlange(rest.empty(), "every line is read");
}

// --- Columns ---------------------------------------------------------------------------------------------------------

bool Gleich(const Spaltenarten& a, const Spaltenarten& b) {
    return a.Gefuellt.Worte == b.Gefuellt.Worte && a.Ziffern.Worte == b.Ziffern.Worte;
}

// The kinds of a line's columns, found many at a time and one by one, a byte and 16 bits a column.
void PruefeSpaltenmengen(const std::vector<Text>& zeilen) {
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        Spaltenarten einzeln;
        SpaltenEinzelnEinteilen(testDaten.Zeilen[i], einzeln);
        Verlange(Gleich(Satz(testDaten.Zeilen[i]).Arten(), einzeln), "the kinds of columns");
        Verlange(Gleich(Satz(zeilen[i]).Arten(), einzeln), "the same in 16 bits");
        const Spaltenmenge& felder = *RecordtypVon(testDaten.Zeilen[i]).Felder;
        const Spaltenmenge auffaellige = AuffaelligeSpaltenEinzeln(testDaten.Zeilen[i], felder);
        Verlange(AuffaelligeSpalten(testDaten.Zeilen[i], felder).Worte == auffaellige.Worte, "the conspicuous columns");
        Verlange(AuffaelligeSpalten(zeilen[i], felder).Worte == auffaellige.Worte, "the same in 16 bits");
    }
}

// --- Keys and order --------------------------------------------------------------------------------------------------

// The key with the line's number behind it.
Text Nummernschluessel(const Text& zeile, std::size_t nummer) {
    const Text zahl = ZahlText(static_cast<std::int64_t>(nummer));
    const std::int32_t breite = NeueSchnittstelle() ? 88 : 56;
    const Text schluessel =
        IstEDURecord(zeile) ? zeile.substr(0, 1) + RechtsBuendig(zahl, breite - 1) : UniversalSchluessel(zeile);
    return schluessel + RechtsBuendig(zahl, 6);
}

void PruefeDoppelte(const std::vector<Text>& zeilen, std::int32_t gefunden) {
    std::vector<std::pair<Text, std::int32_t>> schluessel;
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        schluessel.emplace_back(Nummernschluessel(zeilen[i], i), static_cast<std::int32_t>(i));
    }
    std::ranges::sort(schluessel);
    const auto gleich = std::ranges::adjacent_find(schluessel, [](const auto& a, const auto& b) {
        return TextSicht(a.first).substr(0, a.first.size() - 6) == TextSicht(b.first).substr(0, b.first.size() - 6);
    });
    Verlange(gefunden == (gleich == schluessel.end() ? -1 : std::max(gleich->second, (gleich + 1)->second)),
             "the doubled key is the first of the sorted ones");
}

// The columns that decide the order: the first 10 of the key and those from 46 to 50.
Text Ordnungsspalten(const Text& schluessel) {
    return schluessel.substr(0, 10) + schluessel.substr(45, 5);
}

void PruefeReihenfolge(const std::vector<Text>& zeilen, const Reihenfolge& gefunden) {
    std::int32_t zuNiedrig = -1;
    for (std::size_t i = 1; i < zeilen.size() && zuNiedrig < 0; ++i) {
        if (Ordnungsspalten(Nummernschluessel(zeilen[i], i)) <
            Ordnungsspalten(Nummernschluessel(zeilen[i - 1], i - 1))) {
            zuNiedrig = static_cast<std::int32_t>(i);
        }
    }
    Verlange(gefunden.ErsteZuNiedrige == zuNiedrig, "the first line that is too low");
}

} // namespace

void PruefeFundfolge() {
    const Fehlersammlung& liste = fehlerSpeicher.FehlerListe;
    for (std::size_t i = 1; i < liste.size(); ++i) {
        Verlange(Sortierschluessel(liste[i - 1]) <= Sortierschluessel(liste[i]), "findings ascend by their keys");
    }
}

void PruefeFundelemente(std::string_view protokoll) {
    std::size_t stelle = 0;
    for (const FehlerEintrag& eintrag : fehlerSpeicher.FehlerListe) {
        const std::string element = XmlBytes(ErrorElement(eintrag));
        stelle = stelle == 0 ? protokoll.find("<Error ") : stelle;
        Verlange(protokoll.substr(stelle, element.size()) == element, "the element of a finding");
        stelle += element.size();
    }
}

void PruefeZeilen() {
    if (!DateiEinlesen() || testDaten.Zeilen.size() > HoechstensZeilen) {
        return;
    }
    const std::vector<Text> zeilen = Zeilentexte();
    PruefeDekodierung(zeilen);
    PruefeSpaltenmengen(zeilen);
    const Reihenfolge reihenfolge = ReihenfolgeErmitteln(testDaten.Zeilen);
    PruefeReihenfolge(zeilen, reihenfolge);
    PruefeDoppelte(zeilen, DoppelterSchluessel(testDaten.Zeilen, reihenfolge));
}

} // namespace zepholt::fuzz
