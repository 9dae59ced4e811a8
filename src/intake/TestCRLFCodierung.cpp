#include "intake/TestCRLFCodierung.h"

#include <algorithm>

namespace zepholt {

namespace {

// A block stands for itself, since the byte before it is a line feed or nothing: it may not begin with a line feed and
// must end with one, and from there on "is a line feed" and "stands behind a carriage return" must agree everywhere.
// The loop has no early end, so that it runs on many bytes at a time.
bool ZeilenendenGut(ByteSicht block) {
    unsigned char fehler = block.front() == '\n' || block.back() != '\n';
    const unsigned char* bytes = block.data();
    for (std::size_t i = 1; i < block.size(); ++i) {
        fehler |= static_cast<unsigned char>((bytes[i] == '\n') ^ (bytes[i - 1] == '\r'));
    }
    return fehler == 0;
}

} // namespace

std::int32_t CrLfPruefen(const Dateibloecke& bloecke) {
    const bool gut = std::ranges::all_of(bloecke, [](const Bytes& b) { return ZeilenendenGut(b.Sicht()); });
    return gut ? 0 : 1;
}

} // namespace zepholt
