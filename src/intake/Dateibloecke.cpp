#include "intake/Dateibloecke.h"

#include <algorithm>
#include <cstring>

namespace zepholt {

namespace {

constexpr std::size_t Blockgroesse = 1 << 20;

// The place behind the last line feed, 0 when there is none.
std::size_t HinterLetzterZeile(ByteSicht bytes) {
    std::size_t ende = bytes.size();
    while (ende > 0 && bytes[ende - 1] != '\n') {
        --ende;
    }
    return ende;
}

// The block that begins at `stelle`: whole lines, or all that is left of the file. A line longer than a block doubles
// it until the line's end is found.
Bytes BlockLesen(LeseDatei& datei, std::uint64_t stelle) {
    const std::uint64_t rest = datei.Groesse() - stelle;
    for (std::size_t groesse = Blockgroesse;; groesse *= 2) {
        const auto anzahl = static_cast<std::size_t>(std::min<std::uint64_t>(rest, groesse));
        Bytes block = datei.Lies(stelle, anzahl);
        if (block.size() != anzahl) {
            throw LaufzeitFehler("file became shorter while it was read");
        }
        if (anzahl < rest) {
            block.Kuerzen(HinterLetzterZeile(block.Sicht()));
        }
        if (!block.empty()) {
            return block;
        }
    }
}

} // namespace

Dateibloecke DateiBytesLesen(const Text& pfad) {
    LeseDatei datei(pfad);
    Dateibloecke bloecke;
    for (std::uint64_t stelle = 0; stelle < datei.Groesse();) {
        bloecke.push_back(BlockLesen(datei, stelle));
        stelle += bloecke.back().size();
    }
    return bloecke;
}

std::uint64_t Gesamtlaenge(const Dateibloecke& bloecke) {
    std::uint64_t laenge = 0;
    for (const Bytes& block : bloecke) {
        laenge += block.size();
    }
    return laenge;
}

std::size_t ByteSuchen(ByteSicht bytes, unsigned char gesucht, std::size_t ab) {
    const void* fund = ab < bytes.size() ? std::memchr(bytes.data() + ab, gesucht, bytes.size() - ab) : nullptr;
    return fund == nullptr ? bytes.size()
                           : static_cast<std::size_t>(static_cast<const unsigned char*>(fund) - bytes.data());
}

std::size_t ZeilenendenZaehlen(ByteSicht bytes) {
    return static_cast<std::size_t>(std::ranges::count(bytes, static_cast<unsigned char>('\n')));
}

std::size_t ZeilenendenZaehlen(const Dateibloecke& bloecke) {
    std::size_t anzahl = 0;
    for (const Bytes& block : bloecke) {
        anzahl += ZeilenendenZaehlen(block.Sicht());
    }
    return anzahl;
}

ByteSicht Zeilenleser::Naechste() {
    if (m_stelle == m_bloecke[m_block].size()) {
        BlockVerlassen();
    }
    const ByteSicht block = m_bloecke[m_block].Sicht();
    const std::size_t ende = ByteSuchen(block, '\n', m_stelle);
    const ByteSicht zeile = block.subspan(m_stelle, ende - 1 - m_stelle);
    m_position += ende + 1 - m_stelle;
    m_stelle = ende + 1;
    return zeile;
}

void Zeilenleser::BlockVerlassen() {
    m_bloecke[m_block] = {};
    ++m_block;
    m_stelle = 0;
}

bool Zeilenleser::AmEnde() const {
    return m_bloecke.empty() || (m_block + 1 == m_bloecke.size() && m_stelle == m_bloecke[m_block].size());
}

} // namespace zepholt
