// Collects a long text from many short pieces: each piece is copied once.
//
// The buffer is a text of a certain length of which the first part is in use. It has the announced length at first and
// grows by 10000 characters, or by the piece if that is longer, when a piece doesn't fit. That length is counted only:
// memory is taken for what was written, and ahead for what is announced up to a million characters, so that neither an
// absurd announcement nor a short one costs much.
#pragma once

#include "support/Text.h"

namespace zepholt {

class StringBuilder {
public:
    // Announces the size expected, in characters; below 1 means none. What was collected so far is gone.
    void Capacity(std::int32_t groesse);

    // Takes the memory for a length in characters that is known to come. The buffer's own length stays.
    void Vorsorgen(std::size_t laenge) { m_text.reserve(laenge); }

    // Adds a piece at the end.
    void Append(TextSicht text);

    // Adds bytes as characters of the same code.
    void Append(ByteSicht bytes);

    // What was collected; collecting may go on.
    const Text& GetString() const& { return m_text; }
    Text GetString() && { return std::move(m_text); }

    // The length of the buffer, used or not, in characters.
    std::size_t PufferLaenge() const { return m_pufferLaenge; }

private:
    void PlatzSchaffen(std::size_t laenge);

    Text m_text;
    std::size_t m_pufferLaenge = 0;
};

} // namespace zepholt
