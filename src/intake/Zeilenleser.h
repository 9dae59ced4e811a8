// From the bytes of the file to the columns of its lines.
#pragma once

#include "intake/Dateibytes.h"
#include "intake/Zeilenschnitt.h"
#include "state/Zeilenliste.h"

#include <array>
#include <span>
#include <vector>

namespace zepholt {

// The codes of a code page by character, 0 for none. A file uses few of the 256 blocks of 256 characters: those that it
// doesn't use share one and cost nothing.
class Codetafel {
public:
    Codetafel(); // ASCII has its own codes

    unsigned char operator[](char16_t zeichen) const { return m_bloecke[m_nummern[zeichen >> 8U]][zeichen & 0xFFU]; }
    void Setze(char16_t zeichen, unsigned char code);

private:
    std::array<unsigned char, 256> m_nummern{}; // into m_bloecke; 0: nothing there
    std::vector<std::array<unsigned char, 256>> m_bloecke;
};

// Takes the lines of testDaten.Puffer one by one, as Utf8Modus tells: one byte a column, each line where it stands.
//
// A 451-92 file is code page 850 as it is; a line is cut at its first zero byte. A file in UTF-8 gets a code page of
// its own, character by character as they come: its lines of ASCII are not touched, the others are written anew over
// their own bytes. When a file has more than 128 characters beyond ASCII, its columns move to BreiterPuffer, 16 bits
// each.
class Zeilenleser {
public:
    // The lines of a file whose line ends are good; the first begins at the byte `erste` (from 0).
    Zeilenleser(Zeilenschnitt& schnitt, std::size_t erste);

    bool AmEnde() const { return m_naechste == m_zeilen.size(); }

    // Offset in the file, from 0, of the line that comes next.
    std::size_t Position() const { return m_zeilen.Von(m_naechste); }

    // Takes the next line.
    void Naechste();

    Zeilenliste& Zeilen() { return m_zeilen; } // those behind Position() as they stand in the file

private:
    void SchmalSchreiben(std::span<unsigned char> zeile);
    void BreitSchreiben(std::size_t von, std::size_t bis);
    void Verbreitern(std::size_t bis);
    bool CodeVergeben(char16_t zeichen);

    std::span<unsigned char> m_puffer;
    Zeilenliste m_zeilen;
    std::size_t m_naechste = 0;      // line
    std::size_t m_besondere;         // the next byte that a line can't keep as it is
    Codetafel m_codes;               // the file's own code page
    std::size_t m_vergeben = 0x80;   // codes that are taken
    std::vector<char16_t> m_zeichen; // room for the line in hand
};

} // namespace zepholt
