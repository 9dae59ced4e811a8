// Columns of the exchange file: a view of a record or of a field, one column a character.
//
// The file is kept as it came, one byte a column, wherever 256 characters are enough for it; Codeseite tells which
// character a byte stands for. A file with more of them has columns of 16 bits, and so has every text of the program's
// own. A view knows its width: whoever reads it gets characters, and asks which of the two it is only to be faster.
#pragma once

#include "support/Streuwert.h"
#include "support/Text.h"

#include <array>
#include <cassert>
#include <compare>
#include <cstring>

namespace zepholt {

// The characters of the file in hand. Bytes up to 127 are ASCII in every file; no character stands twice.
struct Codeseite {
    std::array<char16_t, 256> Zeichen = {};
};

// ASCII, and nothing from 128 on.
constexpr Codeseite AsciiSeite() {
    Codeseite seite;
    for (std::size_t byte = 0; byte < 0x80; ++byte) {
        seite.Zeichen[byte] = static_cast<char16_t>(byte);
    }
    return seite;
}

// Written by the intake.
inline Codeseite codeseite;

// So many bytes of memory as a number.
template <class Zahl>
Zahl Wort(const unsigned char* bytes) {
    Zahl zahl;
    std::memcpy(&zahl, bytes, sizeof zahl);
    return zahl;
}

// Up to eight bytes as a number that is another for other bytes: two pieces that may overlap, so that no length needs a
// loop.
inline std::uint64_t KurzesWort(const unsigned char* bytes, std::size_t anzahl) {
    if (anzahl >= sizeof(std::uint32_t)) {
        const std::uint64_t hinten = Wort<std::uint32_t>(bytes + anzahl - sizeof(std::uint32_t));
        return hinten << 32 | Wort<std::uint32_t>(bytes);
    }
    if (anzahl >= sizeof(std::uint16_t)) {
        const std::uint64_t hinten = Wort<std::uint16_t>(bytes + anzahl - sizeof(std::uint16_t));
        return hinten << 32 | Wort<std::uint16_t>(bytes);
    }
    return anzahl == 1 ? *bytes : 0;
}

// Most fields are codes of a few columns. Eight bytes at a time, the last eight once more, since a call of the library
// costs more than the comparison.
inline bool BytesGleich(const unsigned char* links, const unsigned char* rechts, std::size_t anzahl) {
    constexpr std::size_t Breite = sizeof(std::uint64_t);
    if (anzahl <= Breite) {
        return KurzesWort(links, anzahl) == KurzesWort(rechts, anzahl);
    }
    std::size_t i = 0;
    while (i < anzahl - Breite && Wort<std::uint64_t>(links + i) == Wort<std::uint64_t>(rechts + i)) {
        i += Breite;
    }
    i = i < anzahl - Breite ? i : anzahl - Breite;
    return Wort<std::uint64_t>(links + i) == Wort<std::uint64_t>(rechts + i);
}

class Feldsicht {
public:
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);

    constexpr Feldsicht() = default;
    constexpr Feldsicht(const unsigned char* bytes, std::size_t laenge) : m_bytes(bytes), m_mass(laenge * 2) {}
    constexpr Feldsicht(const char16_t* zeichen, std::size_t laenge) : m_zeichen(zeichen), m_mass(laenge * 2 + 1) {}

    // Columns of 16 bits. Implicit, so that a field is compared with a text as it stands.
    constexpr Feldsicht(TextSicht text) : m_zeichen(text.data()), m_mass(text.size() * 2 + 1) {}
    constexpr Feldsicht(const char16_t* text) : Feldsicht(TextSicht(text)) {}
    Feldsicht(const Text& text) : Feldsicht(TextSicht(text)) {}

    constexpr std::size_t size() const { return m_mass / 2; }
    constexpr bool empty() const { return m_mass < 2; }
    constexpr bool IstBreit() const { return __builtin_expect(m_mass % 2 != 0, 0); } // 16 bits a column; rare

    // The columns as they are kept; the one that fits the width.
    const unsigned char* Bytes() const { return m_bytes; }
    const char16_t* Zeichen() const { return m_zeichen; }
    const void* Ort() const { return m_bytes; }

    // Calls `tue` with the columns as they are kept. For what only asks for ASCII, which is itself in both widths.
    template <class Tue>
    auto MitSpalten(Tue tue) const {
        return IstBreit() ? tue(m_zeichen) : tue(m_bytes);
    }

    char16_t operator[](std::size_t i) const { return IstBreit() ? m_zeichen[i] : codeseite.Zeichen[m_bytes[i]]; }
    char16_t front() const { return (*this)[0]; }
    char16_t back() const { return (*this)[size() - 1]; }

    constexpr Feldsicht substr(std::size_t ab, std::size_t laenge = npos) const {
        assert(ab <= size());
        return Ausschnitt(ab, laenge < size() - ab ? laenge : size() - ab);
    }

    // Columns of the buffer that this view lies in, counted from the view's beginning; they may lie behind its end.
    constexpr Feldsicht Ausschnitt(std::size_t ab, std::size_t laenge) const {
        return IstBreit() ? Feldsicht(TextSicht(m_zeichen + ab, laenge)) : Feldsicht(m_bytes + ab, laenge);
    }

    // The first place at or behind `ab` that holds `zeichen`; npos for none.
    std::size_t find(char16_t zeichen, std::size_t ab = 0) const {
        if (!IstBreit() && zeichen < 0x80) {
            const void* fund = ab < size() ? std::memchr(m_bytes + ab, zeichen, size() - ab) : nullptr;
            return fund == nullptr ? npos : static_cast<std::size_t>(static_cast<const unsigned char*>(fund) - m_bytes);
        }
        while (ab < size() && (*this)[ab] != zeichen) {
            ++ab;
        }
        return ab < size() ? ab : npos;
    }

    bool starts_with(char16_t zeichen) const { return !empty() && front() == zeichen; }
    bool starts_with(Feldsicht anfang) const { return anfang.size() <= size() && substr(0, anfang.size()) == anfang; }

    // The columns as a text of their own. Implicit, so that a field is kept as it is read.
    operator Text() const {
        Text text(size(), u'\0');
        for (std::size_t i = 0; i < size(); ++i) {
            text[i] = (*this)[i];
        }
        return text;
    }

    friend bool operator==(Feldsicht links, Feldsicht rechts) {
        if (links.size() != rechts.size()) {
            return false;
        }
        if (!links.IstBreit() && !rechts.IstBreit()) { // the same bytes, since no character has two
            return BytesGleich(links.m_bytes, rechts.m_bytes, links.size());
        }
        std::size_t i = 0;
        while (i < links.size() && links[i] == rechts[i]) {
            ++i;
        }
        return i == links.size();
    }

    // With a literal, whose length the compiler knows.
    template <std::size_t Groesse>
    friend bool operator==(Feldsicht links, const char16_t (&text)[Groesse]) {
        std::size_t i = links.size() == Groesse - 1 ? 0 : Groesse;
        while (i < Groesse - 1 && links[i] == text[i]) {
            ++i;
        }
        return i == Groesse - 1;
    }

    // By the characters, 16 bits each.
    friend std::strong_ordering operator<=>(Feldsicht links, Feldsicht rechts) {
        const std::size_t gemeinsam = links.size() < rechts.size() ? links.size() : rechts.size();
        const bool bytes = !links.IstBreit() && !rechts.IstBreit(); // the same ones, since no character has two
        std::size_t i = 0;
        while (i < gemeinsam && (bytes ? links.m_bytes[i] == rechts.m_bytes[i] : links[i] == rechts[i])) {
            ++i;
        }
        return i < gemeinsam ? links[i] <=> rechts[i] : links.size() <=> rechts.size();
    }

private:
    union {
        const unsigned char* m_bytes = nullptr;
        const char16_t* m_zeichen;
    };
    std::size_t m_mass = 0; // twice the length, one more for columns of 16 bits
};

// The columns without the blanks (U+0020 only) at their right end.
inline Feldsicht OhneLeerzeichenRechts(Feldsicht spalten) {
    return spalten.MitSpalten([&spalten](const auto* spalte) {
        std::size_t laenge = spalten.size();
        while (laenge > 0 && spalte[laenge - 1] == ' ') {
            --laenge;
        }
        return spalten.substr(0, laenge);
    });
}

// The same for equal views of the same width, as all views of one file are.
inline std::uint64_t Streuwert(Feldsicht spalten) {
    Streuer streuer;
    streuer.Nimm(spalten.size());
    const auto* bytes = static_cast<const unsigned char*>(spalten.Ort());
    std::size_t rest = spalten.IstBreit() ? spalten.size() * sizeof(char16_t) : spalten.size();
    for (; rest > sizeof(std::uint64_t); bytes += sizeof(std::uint64_t), rest -= sizeof(std::uint64_t)) {
        streuer.Nimm(Wort<std::uint64_t>(bytes));
    }
    streuer.Nimm(KurzesWort(bytes, rest));
    return streuer.Wert();
}

// True when there are columns, and digits in all of them.
inline bool NurZiffern(Feldsicht spalten) {
    return spalten.MitSpalten([&spalten](const auto* spalte) {
        std::size_t i = 0;
        while (i < spalten.size() && spalte[i] >= '0' && spalte[i] <= '9') {
            ++i;
        }
        return i > 0 && i == spalten.size();
    });
}

// The number that digits make; exact up to 18 of them.
inline std::int64_t Ziffernwert(Feldsicht ziffern) {
    return ziffern.MitSpalten([&ziffern](const auto* spalte) {
        std::int64_t wert = 0;
        for (std::size_t i = 0; i < ziffern.size(); ++i) {
            wert = wert * 10 + (spalte[i] - '0');
        }
        return wert;
    });
}

// True when no column holds anything but the digit 0; for no columns too.
inline bool NurNullen(Feldsicht spalten) {
    std::size_t i = 0;
    while (i < spalten.size() && spalten[i] == u'0') {
        ++i;
    }
    return i == spalten.size();
}

} // namespace zepholt
