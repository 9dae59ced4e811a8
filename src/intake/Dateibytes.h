// Reading the exchange file in: its bytes as a whole, and line by line.
#pragma once

#include "state/Dateitext.h"

namespace zepholt {

// The whole file. What is no ordinary file is not opened. Every failure is a LaufzeitFehler, exhausted memory what the
// library throws.
Dateitext DateiBytesLesen(const Text& pfad);

// The place of the first byte `gesucht` at or behind `ab` (from 0), or the length when there is none.
std::size_t ByteSuchen(ByteSicht bytes, unsigned char gesucht, std::size_t ab = 0);

// The number of line feeds.
std::size_t ZeilenendenZaehlen(ByteSicht bytes);

// Takes the bytes of a file line by line; they must have passed CrLfPruefen.
class Zeilenleser {
public:
    explicit Zeilenleser(ByteSicht bytes) : m_bytes(bytes) {}

    bool AmEnde() const { return m_stelle == m_bytes.size(); }

    // Offset in the file, from 0, of the line that comes next.
    std::size_t Position() const { return m_stelle; }

    // The next line without its two bytes of line end.
    ByteSicht Naechste();

private:
    ByteSicht m_bytes;
    std::size_t m_stelle = 0;
};

} // namespace zepholt
