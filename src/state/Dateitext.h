// The one buffer of the exchange file. Its bytes are read once, into the buffer's second half; the decoded lines grow
// from the front, over bytes that have been decoded before them. A line never decodes to more units than it has bytes,
// so that the text never overtakes the bytes still to be read, and no view of a decoded line ever moves.
#pragma once

#include "support/Text.h"

#include <memory>
#include <span>

namespace zepholt {

class Dateitext {
public:
    Dateitext() = default;

    // Room for a file of that many bytes.
    explicit Dateitext(std::size_t bytes);

    // Where the bytes of the file stand; good until the decoded text reaches them.
    std::span<unsigned char> Rohbytes();

    // Where the next line is decoded to. Lines are decoded in the order of the file.
    char16_t* Ende() { return m_text.get() + m_laenge; }

    // Takes the text up to `ende` as decoded and returns what is new.
    TextSicht Anfuegen(const char16_t* ende);

private:
    std::unique_ptr<char16_t[]> m_text; // not initialised: a large file's memory is touched once
    std::size_t m_bytes = 0;
    std::size_t m_laenge = 0; // units decoded
};

} // namespace zepholt
