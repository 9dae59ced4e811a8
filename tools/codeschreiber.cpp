// codeschreiber: the tables of the codes and of the fields as JSON, for the pages of help.
#include "Werkzeug.h"

#include "errors/FehlerERLTexte.h"
#include "errors/Steckbriefe.h"
#include "state/SIA451Felder.h"
#include "state/SIA451Feldnamen.h"
#include "state/TestDaten.h"

#include <array>
#include <cstdio>

namespace zepholt::werkzeug {

namespace {

constexpr const char* Hilfe = R"(codeschreiber

Writes what the program's tables know of the codes and of the fields to standard output, as JSON in UTF-8:
  codes    each code with its severity, its field reference, its message in three languages, the kinds of file, the
           stage, what it stops, its place in the protocol, whether it is reported, the codes that follow from it
  felder   for each kind of file the fields of all record types: reference, first column, length,
           name in three languages
)";

constexpr const char* Etappen[] = {"aufruf",   "einlesen",     "rahmen",     "zeichen",  "felder",
                                   "kopf",     "gliederungen", "positionen", "nachlauf", "konditionen",
                                   "anhaenge", "katalog",      "programm"};
constexpr const char* Halte[] = {"aufruf", "lauf", "kapitel", "position", "record", "nichts"};
constexpr const char* Orte[] = {"keiner", "ohne", "zeile", "zeile_position", "zeile_je_record", "position"};
constexpr const char* Gemeldet[] = {"ja", "ohne_pruefung", "nicht_getestet", "nie_erfuellt"};
constexpr const char* Dateien[] = {"", "\"01S\"", "\"E1S\"", "\"01S\", \"E1S\""};

template <typename Aufzaehlung, std::size_t Anzahl>
const char* Name(const char* const (&namen)[Anzahl], Aufzaehlung wert) {
    return namen[static_cast<std::size_t>(wert)];
}

// A text of the tables between quotation marks; it holds no control characters.
std::string Zitat(TextSicht text) {
    std::string json = "\"";
    for (const char z : AlsUtf8(text)) {
        if (z == '"' || z == '\\') {
            json += '\\';
        }
        json += z;
    }
    return json + '"';
}

// A text in each language: what `text` gives for 1, 2 and 3.
template <typename Sprachtext>
std::string InSprachen(Sprachtext text) {
    return "{\"de\": " + Zitat(text(1)) + ", \"fr\": " + Zitat(text(2)) + ", \"it\": " + Zitat(text(3)) + "}";
}

std::string FolgenVon(const Steckbrief& brief) {
    std::string json;
    for (const std::int32_t folge : brief.Folgen) {
        if (folge != 0) {
            json += (json.empty() ? "" : ", ") + std::to_string(folge);
        }
    }
    return json;
}

std::string CodeZeile(const FehlerZeile& zeile, const Steckbrief& brief) {
    std::string json = "{\"code\": " + std::to_string(zeile.Code) + ", \"schwere\": " + Zitat(zeile.Schwere) +
                       ", \"feld\": " + Zitat(zeile.Feld) + ", \"texte\": " + InSprachen([&](std::int32_t sprache) {
                           return std::array{zeile.Deutsch, zeile.Franzoesisch, zeile.Italienisch}.at(
                               static_cast<std::size_t>(sprache - 1));
                       });
    json += std::string(", \"dateien\": [") + Name(Dateien, brief.Dateien) + "], \"etappe\": \"" +
            Name(Etappen, brief.Stufe) + "\", \"haelt\": \"" + Name(Halte, brief.Haelt) + "\", \"ort\": \"" +
            Name(Orte, brief.Ort) + "\", \"gemeldet\": \"" + Name(Gemeldet, brief.Gemeldet) + "\"";
    return json + ", \"folgen\": [" + FolgenVon(brief) + "]}";
}

std::string Codes() {
    std::string json;
    const std::vector<FehlerZeile> texte = FehlerTexte();
    const std::span<const Steckbrief> briefe = Steckbriefe();
    for (std::size_t i = 0; i < texte.size(); ++i) {
        json += (i == 0 ? "\n  " : ",\n  ") + CodeZeile(texte[i], briefe[i]);
    }
    return json;
}

std::string Felder(bool neu) {
    testDaten.IstE1S = neu;
    testDaten.Revision = neu ? 21 : 11;
    std::string json;
    for (const RecordLayout& layout : RecordLayouts()) {
        TextSicht feld = layout.Feldbezug;
        json += (json.empty() ? "\n  {\"feld\": " : ",\n  {\"feld\": ") + Zitat(feld) +
                ", \"spalte\": " + std::to_string(layout.Spalte) + ", \"laenge\": " + std::to_string(layout.Laenge) +
                ", \"namen\": " + InSprachen([&](std::int32_t sprache) { return Feldbezeichnung(feld, sprache); }) +
                "}";
    }
    return json;
}

int Programm(const std::vector<std::string>& argumente) {
    if (argumente.size() == 1 && argumente[0] == "--help") {
        std::fputs(Hilfe, stdout);
        return 0;
    }
    if (!argumente.empty()) {
        throw EingabeFehler("no arguments; --help tells more");
    }
    const std::string json = "{\"codes\": [" + Codes() + "],\n\"felder\": {\"01S\": [" + Felder(false) +
                             "],\n\"E1S\": [" + Felder(true) + "]}}\n";
    std::fputs(json.c_str(), stdout);
    return 0;
}

} // namespace

} // namespace zepholt::werkzeug

int main(int anzahl, char** argumente) {
    return zepholt::werkzeug::Ausfuehren("codeschreiber", zepholt::werkzeug::Programm, anzahl, argumente);
}
