// One row per exchange file over any number of protocols, one protocol in memory at a time.
#pragma once

#include "bericht/Meldungen.h"
#include "support/Text.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zepholt::bericht {

// An exchange file of a table; bytes of UTF-8, or what stands for a name that is none.
struct Tabelleneintrag {
    std::string Datei;
    std::string Protokoll; // its path
    std::string Dauer;     // milliseconds that its test took, or empty
    std::string Grund;     // why it has no protocol, or empty
};

// Gives one file after the other, then nothing.
using Tabellenquelle = std::function<std::optional<Tabelleneintrag>()>;

// The files that standard input tells, in groups of four texts as above, each ended by a zero byte. A list that ends
// within a group is an Ablehnung.
Tabellenquelle ListeDerStandardeingabe();

// Writes the tables; the ending of a name tells its kind: .csv a row for a spreadsheet, .jsonl a JSON object, .html the
// page over all pages (which keeps all its rows in memory; the page of PROTOCOL.xml is PROTOCOL.html). A line with the
// sums goes to standard output.
//
// Returns the status of all: 2 where a file has no protocol or a damaged one, else 1 where one has errors, else 0.
int DateitabelleSchreiben(const Tabellenquelle& quelle, const std::vector<Text>& tabellen, Sprache sprache);

} // namespace zepholt::bericht
