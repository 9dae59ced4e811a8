// The catalogue store: finds a chapter file by number, version year and language, in a folder or in one collected file,
// and makes it the current chapter of VLTKapitel. A collected file is chapter files one behind the other.
//
// The store reads Katalog and KatalogArt of TestDaten. There is one current chapter and no store of earlier ones; on
// its way from the file a chapter is handed on as a value: raw, taken apart, expanded, parsed.
#pragma once

#include "support/OS_API.h"
#include "support/Text.h"

#include <map>
#include <string>

namespace zepholt {

// Where the collected file has its chapters: found once by walking from head to head, kept for the run. Each load reads
// its chapter from the file again.
struct KatalogInhalt {
    struct Platz {
        std::uint64_t Stelle = 0; // byte offset, from 0
        std::size_t Laenge = 0;   // bytes, head included
    };

    Text Pfad;                            // of the file that was walked
    std::uint64_t Groesse = 0;            // and its size then, in bytes
    std::map<std::string, Platz> Plaetze; // by columns 5 to 12 of the head; the first of a key counts
};

struct KatalogDaten {
    KatalogInhalt Inhalt;
};

inline KatalogDaten katalogDaten;

// Makes a chapter the current one, with its derived lists. False when there is none: no file or entry, not a chapter
// file, unreadable, longer than GroessteKapitelLaenge, or its own number, year and language (attributes N, V, S) are
// not the ones asked for. There is no current chapter then. Moves the bar through the phases of a load. A file whose
// head is no head, or that ends inside its head or its table, is a LaufzeitFehler that nobody catches; so is memory
// that doesn't suffice, as std::bad_alloc.
bool LadeKapitel(std::int32_t kapitel, std::int32_t version, std::int32_t sprache);

// The list of all chapters of a language: one line for each in the order found, with line feeds between them; five
// columns with tabs between them: number, year, A, title, second text. Any failure gives the empty text.
Text KapitelVerzeichnis(std::int32_t sprache);

// --- The steps of the two

// A chapter file as it stands in the folder or in the collected file; no bytes when there is none.
struct Rohkapitel {
    Text Quelle; // where it comes from, for messages
    Bytes Inhalt;
};
Rohkapitel LeseKapitelAusOrdner(std::int32_t kapitel, std::int32_t version, std::int32_t sprache);
Rohkapitel LeseKapitelAusDatei(std::int32_t kapitel, std::int32_t version, std::int32_t sprache);

// The line of one chapter. `gelesen` is the first 1000 characters of the raw chapter, head included; a title that isn't
// complete in them gives a line of number and year, a wrong code in the table an empty one. No start of a chapter in
// them, or an end inside the table, is a LaufzeitFehler.
Text VerzeichnisZeile(std::int32_t kapitel, std::int32_t jahr, ByteSicht gelesen);

} // namespace zepholt
