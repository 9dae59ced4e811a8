// The catalogue store: finds a chapter file by number, version year and language, in a folder or in one collected file,
// expands it and makes it the current chapter of VLTKapitel.
//
// A chapter file is bytes, one byte one character: a head of 30 characters ("CF11", year 4, language 1, chapter 3,
// length 9, size of the expanded text 9), a table of abbreviations, and the XML text with a byte below 32 for each
// abbreviation. A collected file is such files one behind the other. The store reads Katalog and KatalogArt of
// TestDaten. There is one current chapter and no store of earlier ones.
#pragma once

#include "support/OS_API.h"
#include "support/Text.h"

#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace zepholt {

using ByteSicht = std::span<const unsigned char>;

// Where the collected file has its chapters: found once by walking from head to head, kept for the run. Each load reads
// its chapter from the file again.
struct KatalogInhalt {
    struct Platz {
        std::uint64_t Stelle = 0; // byte offset, from 0
        std::size_t Laenge = 0;   // bytes, head included
    };

    Text Pfad;                                      // of the file that was walked
    std::uint64_t Groesse = 0;                      // and its size then, in bytes
    std::unordered_map<std::string, Platz> Plaetze; // by columns 5 to 12 of the head; the first of a key counts
};

struct KatalogDaten {
    Bytes KapitelRoh;             // the raw chapter; empty when nothing was fetched
    Text Quelle;                  // where it comes from, for messages
    std::size_t LesePosition = 1; // in KapitelRoh, from 1
    Text KapitelXML;              // the expanded text, XML declaration included
    Text KapitelVerzeichnisText;
    KatalogInhalt Inhalt;
};

inline KatalogDaten katalogDaten;

// Makes a chapter the current one, with its derived lists. False when there is none: no file or entry, not a chapter
// file, unreadable, longer than GroessteKapitelLaenge, or its own number, year and language (attributes N, V, S) are
// not the ones asked for. There is no current chapter then. Moves the bar through the phases of a load. A file whose
// head is no head, or that ends inside its head or its table, is a LaufzeitFehler that nobody catches.
bool LadeKapitel(std::int32_t kapitel, std::int32_t version, std::int32_t sprache);

// The list of all chapters of a language: one line for each in the order found, with line feeds between them; five
// columns with tabs between them: number, year, A, title, second text. Any failure gives the empty text.
Text KapitelVerzeichnis(std::int32_t sprache);

// --- The steps of the two

bool LeseKapitel(std::int32_t kapitel, std::int32_t version, std::int32_t sprache);
bool HoleKapiteltext(std::int32_t kapitel, std::int32_t version, std::int32_t sprache);      // KapitelXML is not empty
void LeseKapitelAusOrdner(std::int32_t kapitel, std::int32_t version, std::int32_t sprache); // set KapitelRoh
void LeseKapitelAusDatei(std::int32_t kapitel, std::int32_t version, std::int32_t sprache);

// KapitelXML from KapitelRoh; empty when that is no chapter file, its table holds a wrong code, or the text would be
// too long. A head that is none, or an end inside head or table, is a LaufzeitFehler.
void EntpackeKapitel();

// The next `anzahl` characters of KapitelRoh, fewer at its end; moves LesePosition on by `anzahl`.
ByteSicht LeseZeichen(std::size_t anzahl);

// Appends the line of one chapter to KapitelVerzeichnisText. `gelesen` is the first 1000 characters of the raw chapter,
// head included; a title that isn't complete in them gives a line of number and year. No start of a chapter in
// them, or an end inside the table, is a LaufzeitFehler.
void VerzeichnisZeile(std::int32_t kapitel, std::int32_t jahr, ByteSicht gelesen);

} // namespace zepholt
