// The pages of docs/codes inside a program: what zepholt-bericht prints of a code and unfolds beside a finding.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace zepholt::hilfe {

struct Codetext {
    std::string_view Text; // the whole page, Markdown without links, in UTF-8; empty in the module of web/
    std::string_view Html; // what is tested and how to repair it, without links; headings are h4
};

struct Codeseite {
    std::int32_t Code;
    std::array<Codetext, 3> Texte; // German, French, Italian
};

// The page of a code, or none.
const Codeseite* CodeseiteLesen(std::int32_t code);

} // namespace zepholt::hilfe
