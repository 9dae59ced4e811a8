// One row per exchange file over any number of protocols, one protocol in memory at a time.
#pragma once

#include "bericht/Meldungen.h"
#include "support/Text.h"

#include <vector>

namespace zepholt::bericht {

// Writes the tables; the ending of a name tells its kind: .csv a row for a spreadsheet, .jsonl a JSON object, .html the
// page over all pages (which keeps all its rows in memory; the page of PROTOCOL.xml is PROTOCOL.html). The files come
// from standard input as groups of four texts, each ended by a zero byte: the file's name, its protocol, the
// milliseconds that its test took, and why it has no protocol; the last two may be empty. A line with the sums goes to
// standard output.
//
// Returns the status of all: 2 where a file has no protocol or a damaged one, else 1 where one has errors, else 0.
int DateitabelleSchreiben(const std::vector<Text>& tabellen, Sprache sprache);

} // namespace zepholt::bericht
