#include "intake/Zeilenleser.h"

#include "intake/UTF8_Speicherung.h"
#include "state/TestDaten.h"

#include <algorithm>
#include <utility>

namespace zepholt {

namespace {

// The first byte at or behind `ab` that can't stay as it is: in code page 850 a zero, in UTF-8 what is no ASCII.
std::size_t BesondereSuchen(ByteSicht bytes, std::size_t ab) {
    return testDaten.Utf8Modus ? AsciiEnde(bytes, ab) : ByteSuchen(bytes, 0, ab);
}

} // namespace

Codetafel::Codetafel() : m_bloecke(1) {
    for (unsigned char code = 1; code < 0x80; ++code) {
        Setze(code, code);
    }
}

void Codetafel::Setze(char16_t zeichen, unsigned char code) {
    unsigned char& nummer = m_nummern[zeichen >> 8U];
    if (nummer == 0) {
        nummer = static_cast<unsigned char>(m_bloecke.size());
        m_bloecke.emplace_back();
    }
    m_bloecke[nummer][zeichen & 0xFFU] = code;
}

Zeilenleser::Zeilenleser(Zeilenschnitt& schnitt, std::size_t erste)
    : m_puffer(testDaten.Puffer.data(), testDaten.Puffer.size()), m_zeilen(std::move(schnitt.Zeilen())),
      m_besondere(schnitt.ErsteBesondere()) {
    m_zeilen.Beginne(erste);
    if (testDaten.Utf8Modus != testDaten.IstE1S || m_besondere < erste) {
        m_besondere = BesondereSuchen(m_puffer, erste);
    }
    codeseite = testDaten.Utf8Modus ? AsciiSeite() : Codeseite850();
}

void Zeilenleser::Naechste() {
    const std::size_t ende = m_zeilen.Bis(m_naechste);
    if (!testDaten.BreiterPuffer.empty()) {
        BreitSchreiben(m_zeilen.Von(m_naechste), ende + Zeilenliste::Zeilenende);
    } else if (m_besondere < ende) {
        if (testDaten.Utf8Modus) {
            SchmalSchreiben(m_puffer.subspan(m_besondere, ende - m_besondere));
        } else {
            std::ranges::fill(m_puffer.subspan(m_besondere, ende - m_besondere), '\r');
        }
        m_besondere = BesondereSuchen(m_puffer, ende);
    }
    ++m_naechste;
}

void Zeilenleser::SchmalSchreiben(std::span<unsigned char> zeile) {
    m_zeichen.resize(zeile.size());
    const std::span zeichen(m_zeichen.data(), Utf8NachUnicode(zeile, m_zeichen.data()));
    for (char16_t& eines : zeichen) {
        if (!CodeVergeben(eines)) {
            const auto von = static_cast<std::size_t>(zeile.data() - m_puffer.data());
            Verbreitern(von);
            BreitSchreiben(von, von + zeile.size() + Zeilenliste::Zeilenende);
            return;
        }
        eines = m_codes[eines];
    }
    const auto schmal = [](char16_t code) { return static_cast<unsigned char>(code); };
    const auto rest = std::ranges::transform(zeichen, zeile.begin(), schmal).out;
    std::fill(rest, zeile.end(), '\r');
}

// Sees to it that the character has a code; false when there is none left.
bool Zeilenleser::CodeVergeben(char16_t zeichen) {
    if (m_codes[zeichen] != 0 || zeichen == 0) {
        return true;
    }
    if (m_vergeben == codeseite.Zeichen.size()) {
        return false;
    }
    codeseite.Zeichen[m_vergeben] = zeichen;
    m_codes.Setze(zeichen, static_cast<unsigned char>(m_vergeben++));
    return true;
}

// Moves to 16 bits what has been taken so far, the bytes before `bis`.
void Zeilenleser::Verbreitern(std::size_t bis) {
    testDaten.BreiterPuffer.resize(m_puffer.size());
    std::ranges::transform(m_puffer.first(bis), testDaten.BreiterPuffer.begin(),
                           [](unsigned char byte) { return codeseite.Zeichen[byte]; });
    m_zeilen.Umziehen(testDaten.BreiterPuffer.data());
}

// The bytes from `von` on, up to the end of their line at `bis`, line end included.
void Zeilenleser::BreitSchreiben(std::size_t von, std::size_t bis) {
    char16_t* const ziel = testDaten.BreiterPuffer.data();
    const ByteSicht zeile = m_puffer.subspan(von, bis - von - Zeilenliste::Zeilenende);
    std::fill(Utf8NachUnicode(zeile, ziel + von), ziel + bis, u'\r');
}

} // namespace zepholt
