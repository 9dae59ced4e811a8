// The start of the program: command line, parameter test, the three roads of a run.
#pragma once

#include "support/Text.h"

#include <vector>

namespace zepholt {

// A whole run on the command text behind the program's own name. Returns the exit status: 0 on every road, but 1 when a
// run-time failure that no rule catches has ended the run without a protocol; a line on standard error, and a box when
// the run has a dialog, tell what it was. A command line that asks for silence gets neither for what is wrong with its
// parameters. A second run in one process needs NeuerLauf() before it: Main counts on a fresh state.
int Main(TextSicht kommandozeile);

// A test run for a caller that has no command line: the parameters stand in testDaten, as ParameterPruefen would have
// left them there. With the KatalogArt 0, which no command line gives, the document is not held against a catalogue.
int Testlauf();

// The program: Main on the command line of this process, on which memory may fail too.
int Programm(int anzahl, char** argumente);

// The arguments of a command text: separated by blanks outside quotation marks; the marks stay. Never an empty list.
std::vector<Text> KommandozeileZerlegen(TextSicht kommandozeile);

// The lines of the parameter message for a code 1001 to 1007, in `sprache` (1 to 3) where the code has one language.
Text ParameterMeldung(std::int32_t code, std::int32_t sprache);

} // namespace zepholt
