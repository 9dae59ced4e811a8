#include "intake/TestUTF8Codierung.h"

#include "intake/Dateibytes.h"
#include "intake/UTF8_Speicherung.h"
#include "state/TestDaten.h"

#include <algorithm>
#include <array>
#include <optional>

namespace zepholt {

namespace {

// One form of a sequence, by its leading byte.
struct Form {
    unsigned char Von;
    unsigned char Bis;
    std::size_t Laenge;     // bytes
    unsigned char Nutzbits; // of the leading byte
    char32_t Kleinster;
    char32_t Groesster;
};

constexpr std::array<Form, 4> Formen = {{
    {0x00, 0x7F, 1, 0x7F, 0x0000, 0x007F},
    {0xC0, 0xDF, 2, 0x1F, 0x0080, 0x07FF},
    {0xE0, 0xEF, 3, 0x0F, 0x0800, 0xFFFF},
    {0xF0, 0xF7, 4, 0x07, 0x10000, 0x10FFFF},
}};

bool IstVerbotenerCodepunkt(char32_t codepunkt) {
    const bool surrogat = codepunkt >= 0xD800 && codepunkt <= 0xDFFF;
    const bool keinZeichen = (codepunkt >= 0xFDD0 && codepunkt <= 0xFDEF) || (codepunkt & 0xFFFE) == 0xFFFE;
    return surrogat || keinZeichen;
}

bool IstFolgebyte(unsigned char byte) {
    return byte >= 0x80 && byte <= 0xBF;
}

// Takes one sequence from the front of `rest`; false when it is bad or cut off.
bool SequenzNehmen(ByteSicht& rest, char32_t& codepunkt) {
    const auto form = std::ranges::find_if(Formen, [b = rest[0]](const Form& f) { return b >= f.Von && b <= f.Bis; });
    if (form == Formen.end() || form->Laenge > rest.size()) {
        return false;
    }
    codepunkt = rest[0] & form->Nutzbits;
    for (std::size_t i = 1; i < form->Laenge; ++i) {
        if (!IstFolgebyte(rest[i])) {
            return false;
        }
        codepunkt = codepunkt << 6 | (rest[i] & 0x3F);
    }
    rest = rest.subspan(form->Laenge);
    return codepunkt >= form->Kleinster && codepunkt <= form->Groesster && !IstVerbotenerCodepunkt(codepunkt);
}

} // namespace

std::int32_t Utf8Dekodieren(ByteSicht bytes, std::vector<char32_t>& codepunkte) {
    codepunkte.clear();
    if (bytes.empty()) {
        return 1;
    }
    if (BeginntMitMarke(bytes)) {
        bytes = bytes.subspan(3);
    }
    while (!bytes.empty()) {
        char32_t codepunkt = bytes[0];
        if (codepunkt < 0x80) {
            bytes = bytes.subspan(1);
        } else if (!SequenzNehmen(bytes, codepunkt)) {
            return 1;
        }
        codepunkte.push_back(codepunkt);
    }
    return 0;
}

// Only what follows a byte above 127, up to the end of its line, is decoded: most lines have none.
std::int32_t Utf8DateiPruefen(ByteSicht bytes) {
    std::vector<char32_t> codepunkte;
    std::optional<std::size_t> jenseits; // the place of the first stretch with a character above U+FFFF
    for (std::size_t stelle = AsciiEnde(bytes, 0); stelle < bytes.size();) {
        const std::size_t ende = ByteSuchen(bytes, '\n', stelle);
        if (Utf8Dekodieren(bytes.subspan(stelle, ende - stelle), codepunkte) != 0) {
            return 1;
        }
        if (!jenseits && std::ranges::any_of(codepunkte, [](char32_t c) { return c > 0xFFFF; })) {
            jenseits = stelle;
        }
        stelle = AsciiEnde(bytes, ende);
    }
    if (!jenseits) {
        return 0;
    }
    testDaten.ZeilenNr = static_cast<std::int32_t>(ZeilenendenZaehlen(bytes.first(*jenseits)));
    return 2;
}

} // namespace zepholt
