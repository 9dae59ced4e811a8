// The record in hand: its columns, and two sets of them that its tests ask for again and again. They are made once,
// when the record comes in hand; of a record longer than 256 columns they know the first 256.
#pragma once

#include "state/Feldsicht.h"
#include "state/Spaltenmenge.h"

namespace zepholt {

struct Spaltenarten {
    Spaltenmenge Gefuellt; // no blank (U+0020)
    Spaltenmenge Ziffern;  // 0 to 9
};

// Puts the columns of a record into their sets, whatever stood there. The second is the plain way to the same result,
// column by column.
void SpaltenEinteilen(Feldsicht record, Spaltenarten& arten);
void SpaltenEinzelnEinteilen(Feldsicht record, Spaltenarten& arten);

// The columns of a record, the first 256 at most, that hold no printable ASCII (U+0020 to U+007E), and those outside of
// its fields that hold no blank; the plain way too.
Spaltenmenge AuffaelligeSpalten(Feldsicht record, const Spaltenmenge& felder);
Spaltenmenge AuffaelligeSpaltenEinzeln(Feldsicht record, const Spaltenmenge& felder);

// Which of the 64 bytes from `bytes` on are the one that is looked for, the first in the lowest bit; the plain way too.
std::uint64_t GleicheBytes(const unsigned char* bytes, unsigned char gesucht);
std::uint64_t GleicheBytesEinzeln(const unsigned char* bytes, unsigned char gesucht);

class Satz : public Feldsicht {
public:
    Satz() = default;
    explicit Satz(Feldsicht record) : Feldsicht(record) { SpaltenEinteilen(record, m_arten); }
    Satz& operator=(Feldsicht record) { // it becomes the record in hand
        Feldsicht::operator=(record);
        SpaltenEinteilen(record, m_arten);
        return *this;
    }

    // Fields are named by their first column (from 1) and their length; what lies behind the record is blank.
    [[gnu::always_inline]] bool IstLeer(std::int32_t spalte, std::int32_t laenge) const {
        return m_arten.Gefuellt.Erste(spalte, laenge) == 0;
    }
    [[gnu::always_inline]] bool NurZiffern(std::int32_t spalte, std::int32_t laenge) const {
        return m_arten.Ziffern.Alle(spalte, laenge);
    }

    // The field without trailing blanks.
    Feldsicht Feld(std::int32_t spalte, std::int32_t laenge) const {
        const std::int32_t letzte = m_arten.Gefuellt.Letzte(spalte, laenge);
        return letzte == 0
                   ? Feldsicht()
                   : substr(static_cast<std::size_t>(spalte - 1), static_cast<std::size_t>(letzte - spalte + 1));
    }

    const Spaltenarten& Arten() const { return m_arten; }

private:
    Spaltenarten m_arten;
};

} // namespace zepholt
