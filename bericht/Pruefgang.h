// A test by the program that stands beside this one, and where its page and its protocol come to lie.
#pragma once

#include "bericht/Meldungen.h"
#include "bericht/Protokolldatei.h"
#include "support/OS_API.h"

#include <optional>
#include <string>
#include <vector>

namespace zepholt::bericht {

struct Pruefwunsch {
    Text Katalog; // a folder
    Text Modus;   // "E", "I" or empty
    Sprache Gewaehlt = Sprache::Deutsch;
    bool MitFenster = false; // shows the program's own progress window; else it runs silently
};

// Tests an exchange file and gives the bytes of its protocol. A file, program or protocol that is missing (a folder
// that is no catalogue, a cancelled run) is an Ablehnung.
Bytes Geprueft(const Text& datei, const Pruefwunsch& wunsch);

// What came of one exchange file.
struct Pruefergebnis {
    Text Datei;
    Text Seite;            // empty when there is none
    std::string Hindernis; // then: why
    std::string_view Art;  // see Urteilsart
    std::int64_t Fehler = 0;
    std::int64_t Warnungen = 0;
};

// Tests an exchange file and writes page and protocol beside it, or, where that can't be done, into the folder of the
// user. Never over a file that no such run has made: it takes another name then. Both are written, or neither.
Pruefergebnis PruefenUndAblegen(const Text& datei, const Pruefwunsch& wunsch);

// The page over several files, beside the first one or in the folder of the user; returns its path.
Text UebersichtAblegen(const std::vector<Pruefergebnis>& ergebnisse, Sprache sprache);

// The status of several: 2 where one has no page, else 1 where one has errors, else 0.
int StatusVon(const std::vector<Pruefergebnis>& ergebnisse);

} // namespace zepholt::bericht
