// The exchange file's bytes, read once and held in blocks of whole lines, so that each block can be tested and decoded
// by itself and given back as soon as it is decoded.
#pragma once

#include "support/OS_API.h"

#include <span>
#include <vector>

namespace zepholt {

using ByteSicht = std::span<const unsigned char>;

// Every block but the last ends in a line feed; none is empty.
using Dateibloecke = std::vector<Bytes>;

// The whole file; no block for an empty one. What is no ordinary file is not opened. Every failure is a LaufzeitFehler.
Dateibloecke DateiBytesLesen(const Text& pfad);

// The length of the file in bytes.
std::uint64_t Gesamtlaenge(const Dateibloecke& bloecke);

// The place of the first byte `gesucht` at or behind `ab` (from 0), or the length when there is none.
std::size_t ByteSuchen(ByteSicht bytes, unsigned char gesucht, std::size_t ab = 0);

// The number of line feeds.
std::size_t ZeilenendenZaehlen(ByteSicht bytes);
std::size_t ZeilenendenZaehlen(const Dateibloecke& bloecke);

// Takes the file line by line and gives each block back when its last line has been left.
class Zeilenleser {
public:
    explicit Zeilenleser(Dateibloecke& bloecke) : m_bloecke(bloecke) {}

    bool AmEnde() const;

    // Offset in the file, from 0, of the line that comes next.
    std::uint64_t Position() const { return m_position; }

    // The next line without its two bytes of line end; the file must have passed CrLfPruefen. The bytes live until the
    // next call.
    ByteSicht Naechste();

private:
    void BlockVerlassen();

    Dateibloecke& m_bloecke;
    std::size_t m_block = 0;  // index of the block in hand
    std::size_t m_stelle = 0; // offset in that block
    std::uint64_t m_position = 0;
};

} // namespace zepholt
