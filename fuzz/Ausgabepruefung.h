// What holds for every output file, whatever the input was.
#pragma once

#include <string_view>

namespace zepholt::fuzz {

// Claims that the file is well-formed XML in ISO-8859-1 as the program writes it: the declaration, elements that open
// and close in pairs, attributes in double quotes, no character and no reference that XML can't hold. `wurzel` is the
// name of the document element.
void PruefeXml(std::string_view datei, std::string_view wurzel);

// The same for a protocol, and that its head counts the findings that stand in it.
void PruefeProtokoll(std::string_view datei);

} // namespace zepholt::fuzz
