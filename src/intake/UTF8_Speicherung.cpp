#include "intake/UTF8_Speicherung.h"

#include "intake/Dateibytes.h"
#include "state/TestDaten.h"
#include "support/Utf8.h"

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cstring>

namespace zepholt {

namespace {

// Code page 850 from 128 on; below, a byte is its own character.
// clang-format off
constexpr std::array<char16_t, 128> Ab128 = {
    0x00C7, 0x00FC, 0x00E9, 0x00E2, 0x00E4, 0x00E0, 0x00E5, 0x00E7, // 128
    0x00EA, 0x00EB, 0x00E8, 0x00EF, 0x00EE, 0x00EC, 0x00C4, 0x00C5, // 136
    0x00C9, 0x00E6, 0x00C6, 0x00F4, 0x00F6, 0x00F2, 0x00FB, 0x00F9, // 144
    0x00FF, 0x00D6, 0x00DC, 0x00F8, 0x00A3, 0x00D8, 0x00D7, 0x0192, // 152
    0x00E1, 0x00ED, 0x00F3, 0x00FA, 0x00F1, 0x00D1, 0x00AA, 0x00BA, // 160
    0x00BF, 0x00AE, 0x00AC, 0x00BD, 0x00BC, 0x00A1, 0x00AB, 0x00BB, // 168
    0x2591, 0x2592, 0x2593, 0x2502, 0x2524, 0x00C1, 0x00C2, 0x00C0, // 176
    0x00A9, 0x2563, 0x2551, 0x2557, 0x255D, 0x00A2, 0x00A5, 0x2510, // 184
    0x2514, 0x2534, 0x252C, 0x251C, 0x2500, 0x253C, 0x00E3, 0x00C3, // 192
    0x255A, 0x2554, 0x2569, 0x2566, 0x2560, 0x2550, 0x256C, 0x00A4, // 200
    0x00F0, 0x00D0, 0x00CA, 0x00CB, 0x00C8, 0x0131, 0x00CD, 0x00CE, // 208
    0x00CF, 0x2518, 0x250C, 0x2588, 0x2584, 0x00A6, 0x00CC, 0x2580, // 216
    0x00D3, 0x00DF, 0x00D4, 0x00D2, 0x00F5, 0x00D5, 0x00B5, 0x00FE, // 224
    0x00DE, 0x00DA, 0x00DB, 0x00D9, 0x00FD, 0x00DD, 0x00AF, 0x00B4, // 232
    0x00AD, 0x00B1, 0x2017, 0x00BE, 0x00B6, 0x00A7, 0x00F7, 0x00B8, // 240
    0x00B0, 0x00A8, 0x00B7, 0x00B9, 0x00B3, 0x00B2, 0x25A0, 0x00A0, // 248
};
// clang-format on

constexpr std::array<unsigned char, Markenlaenge> Marke = {0xEF, 0xBB, 0xBF};
constexpr char32_t Ersatzzeichen = 0xFFFD;

// Copies the bytes up to 127 at the front and returns their number.
std::size_t AsciiKopieren(ByteSicht bytes, char16_t* ziel) {
    const std::size_t ende = AsciiEnde(bytes, 0);
    for (std::size_t i = 0; i < ende; ++i) {
        ziel[i] = bytes[i];
    }
    return ende;
}

// Decodes the sequence at `stelle`, which it moves behind it, and returns the place behind what it wrote.
char16_t* SequenzDekodieren(ByteSicht bytes, std::size_t& stelle, char16_t* ziel) {
    const Utf8Folge folge = Utf8Lesen(bytes.subspan(stelle));
    stelle += folge.Laenge;
    return Utf16Schreiben(ziel, folge.Gueltig ? folge.Codepunkt : Ersatzzeichen);
}

std::chrono::year_month_day Heute() {
    const Zeitpunkt jetzt = testDaten.Uhr();
    return {std::chrono::year(jetzt.Jahr), std::chrono::month(static_cast<unsigned>(jetzt.Monat)),
            std::chrono::day(static_cast<unsigned>(jetzt.Tag))};
}

} // namespace

bool BeginntMitMarke(ByteSicht bytes) {
    return bytes.size() >= Marke.size() && std::memcmp(bytes.data(), Marke.data(), Marke.size()) == 0;
}

std::size_t AsciiEnde(ByteSicht bytes, std::size_t ab) {
    constexpr std::size_t Schritt = 64; // many bytes at a time, then a word, then a byte
    constexpr std::uint64_t HoheBits = 0x8080808080808080;
    while (ab + Schritt <= bytes.size()) {
        unsigned char alle = 0;
        for (const unsigned char byte : bytes.subspan(ab, Schritt)) {
            alle |= byte;
        }
        if (alle >= 0x80) {
            break;
        }
        ab += Schritt;
    }
    std::uint64_t wort = 0;
    while (ab + sizeof wort <= bytes.size()) {
        std::memcpy(&wort, bytes.data() + ab, sizeof wort);
        if ((wort & HoheBits) != 0) {
            return ab + static_cast<std::size_t>(std::countr_zero(wort & HoheBits)) / 8; // the first byte is the lowest
        }
        ab += sizeof wort;
    }
    while (ab < bytes.size() && bytes[ab] < 0x80) {
        ++ab;
    }
    return ab;
}

bool Utf8KopfPruefen(ByteSicht& zeile) {
    using namespace std::chrono;
    testDaten.Utf8Modus = BeginntMitMarke(zeile);
    if (testDaten.Utf8Modus) {
        zeile = zeile.subspan(Marke.size());
    }
    if (testDaten.IstE1S) {
        testDaten.Utf8Modus = true;
        return true;
    }
    if (Heute() < year_month_day(year(2099), January, day(1))) {
        return !testDaten.Utf8Modus;
    }
    return testDaten.Utf8Modus || Heute() < year_month_day(year(2099), December, day(1));
}

Codeseite Codeseite850() {
    Codeseite seite = AsciiSeite();
    std::ranges::copy(Ab128, seite.Zeichen.begin() + 0x80);
    return seite;
}

char16_t* Utf8NachUnicode(ByteSicht zeile, char16_t* ziel) {
    for (std::size_t stelle = 0; stelle < zeile.size();) {
        const std::size_t ascii = AsciiKopieren(zeile.subspan(stelle), ziel);
        stelle += ascii;
        ziel += ascii;
        if (stelle < zeile.size()) {
            ziel = SequenzDekodieren(zeile, stelle, ziel);
        }
    }
    return ziel;
}

} // namespace zepholt
