// What a person is told about a code, apart from any one finding.
#pragma once

#include "bericht/Meldungen.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace zepholt::bericht {

struct CodeErklaerung {
    std::int32_t Code = 0;
    std::string Schwere; // "A", "B", or empty where the table has none
    std::string Text;    // the message
    std::string Feld;    // the reference of its field, or empty
    std::string Feldname;
    std::string_view
        Seite; // its page as text (Markdown) behind the title: what is tested, an example, how to repair it
};

// What is known of a code that the table has, in a language. The field is named as the interface that is set has it.
CodeErklaerung Erklaerung(std::int32_t code, Sprache sprache);

// What a page unfolds beside a finding: what is tested and how to repair it, as HTML without links, scripts and styles.
// Empty for a code that has no page.
std::string_view Faltteil(std::int32_t code, Sprache sprache);

} // namespace zepholt::bericht
