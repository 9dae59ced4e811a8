// Findings and records as they stand on the page, in HTML. The page's script builds the same from the page's data.
#pragma once

#include "bericht/Austauschdatei.h"
#include "bericht/Protokolldatei.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zepholt::bericht {

// A text between tags. In a field what can't be seen is shown by its number; in a marked one blanks are dots; in the
// whole line everything keeps its one column.
enum class Zeichenbild { Feld, Marke, GanzeZeile };
std::string Html(std::string_view utf8, Zeichenbild bild = Zeichenbild::Feld);

// A finding in a record: its field reference and whether it is a warning.
struct Recordbefund {
    std::string_view Feld;
    bool IstWarnung;
};

// The boxes of a record's fields in the record's order: those that hold something, those that a finding marks, and a
// box for each column outside of the fields that one names.
std::string Feldkaesten(TextSicht zeile, std::span<const Recordbefund> befunde, Sprache sprache);

// The whole line, folded, with a ruler and the marks below.
std::string GanzeZeile(TextSicht zeile, std::span<const Recordbefund> befunde, Sprache sprache);

// "Mengenart (G6:13, Spalte 44)"; empty without a field.
std::string Feldsatz(std::string_view feld, std::span<const RecordLayout> layouts, Sprache sprache);

} // namespace zepholt::bericht
