// The arithmetic of UTF-8 and of surrogate pairs, once for the whole program. What becomes of a fault is the caller's.
#pragma once

#include "support/Text.h"

namespace zepholt {

// What stands at the front of some bytes.
struct Utf8Folge {
    std::size_t Laenge = 1; // bytes: the whole sequence; of a bad one those that could begin a sequence, 1 at least
    bool Gueltig = false;   // well-formed: no overlong form, no surrogate, nothing above U+10FFFF
    char32_t Codepunkt = 0; // of a well-formed one
};

// The lead bytes E0, ED, F0 and F4 leave their second byte less room than 80 to BF.
constexpr bool IstUtf8Folgebyte(unsigned erstes, std::size_t stelle, unsigned byte) {
    if ((byte & 0xC0U) != 0x80U || stelle > 1) {
        return (byte & 0xC0U) == 0x80U;
    }
    switch (erstes) {
    case 0xE0:
        return byte >= 0xA0;
    case 0xED:
        return byte < 0xA0;
    case 0xF0:
        return byte >= 0x90;
    case 0xF4:
        return byte < 0x90;
    default:
        return true;
    }
}

// Reads the sequence at the front of `bytes`, which are char or unsigned char and not empty.
template <class Bytes>
constexpr Utf8Folge Utf8Lesen(const Bytes& bytes) {
    const unsigned erstes = static_cast<unsigned char>(bytes[0]);
    if (erstes < 0x80) {
        return {1, true, erstes};
    }
    if (erstes < 0xC2 || erstes > 0xF4) {
        return {};
    }
    const std::size_t laenge = erstes < 0xE0 ? 2 : erstes < 0xF0 ? 3 : 4;
    char32_t wert = erstes & (0x7FU >> laenge);
    for (std::size_t i = 1; i < laenge; ++i) {
        const unsigned byte = i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U;
        if (!IstUtf8Folgebyte(erstes, i, byte)) {
            return {i, false, 0};
        }
        wert = wert << 6U | (byte & 0x3FU);
    }
    return {laenge, true, wert};
}

// Appends the bytes of a code point; a surrogate gets the three bytes of its number.
void Utf8Anhaengen(std::string& bytes, char32_t codepunkt);

constexpr bool IstHohesSurrogat(char32_t zeichen) {
    return zeichen >= 0xD800 && zeichen <= 0xDBFF;
}

constexpr bool IstTiefesSurrogat(char32_t zeichen) {
    return zeichen >= 0xDC00 && zeichen <= 0xDFFF;
}

// Writes a code point as one unit or as a pair of surrogates; returns the place behind it.
constexpr char16_t* Utf16Schreiben(char16_t* ziel, char32_t codepunkt) {
    if (codepunkt > 0xFFFF) {
        *ziel++ = static_cast<char16_t>(0xD7C0U + (codepunkt >> 10U));
        codepunkt = 0xDC00U | (codepunkt & 0x3FFU);
    }
    *ziel++ = static_cast<char16_t>(codepunkt);
    return ziel;
}

// The code point at the front of `text`, which is not empty: that of a pair of surrogates, which is two units long, or
// the unit there, be it a lone surrogate.
constexpr char32_t Utf16Lesen(TextSicht text) {
    const char32_t erstes = text[0];
    if (IstHohesSurrogat(erstes) && text.size() > 1 && IstTiefesSurrogat(text[1])) {
        return 0x10000U + ((erstes & 0x3FFU) << 10U) + (text[1] & 0x3FFU);
    }
    return erstes;
}

} // namespace zepholt
