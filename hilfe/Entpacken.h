// Unpacks what tools/hilfe packs: raw LZMA with lc = 4, lp = 0, pb = 0, of a known length. A seventh of the room that
// the pages take; 2 MB come out in some hundredths of a second.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zepholt::hilfe {

// `laenge` bytes, or fewer where the data is damaged; nothing outside of `gepackt` is read.
std::string Entpacken(std::string_view gepackt, std::size_t laenge);

} // namespace zepholt::hilfe
