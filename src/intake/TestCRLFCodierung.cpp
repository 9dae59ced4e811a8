#include "intake/TestCRLFCodierung.h"

namespace zepholt {

// A file may not begin with a line feed and must end with one, and from there on "is a line feed" and "stands behind a
// carriage return" must agree everywhere. The loop has no early end, so that it runs on many bytes at a time.
std::int32_t CrLfPruefen(ByteSicht bytes) {
    if (bytes.empty() || bytes.front() == '\n' || bytes.back() != '\n') {
        return 1;
    }
    unsigned char fehler = 0;
    const unsigned char* byte = bytes.data();
    for (std::size_t i = 1; i < bytes.size(); ++i) {
        fehler |= static_cast<unsigned char>((byte[i] == '\n') ^ (byte[i - 1] == '\r'));
    }
    return fehler;
}

} // namespace zepholt
