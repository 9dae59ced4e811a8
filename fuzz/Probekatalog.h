// The catalogue that runs on exchange files are held against.
#pragma once

#include "support/Text.h"

namespace zepholt::fuzz {

// A collected file with the chapter 241 of 2020 in the three languages: text branch, end nodes, repeat range,
// alternative group, insertion points, a reserve section.
ByteSicht Probekatalog();

// A chapter file: head, table of abbreviations, body.
std::string Kapiteldatei(std::string_view tabelle, std::string_view rumpf, int jahr, int sprache, int kapitel);

} // namespace zepholt::fuzz
