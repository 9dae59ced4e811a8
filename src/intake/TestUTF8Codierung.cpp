#include "intake/TestUTF8Codierung.h"

#include "intake/Dateibytes.h"
#include "intake/UTF8_Speicherung.h"
#include "state/TestDaten.h"
#include "support/Utf8.h"

#include <optional>

namespace zepholt {

namespace {

// Code points that no text holds: 66 of them.
bool IstNichtzeichen(char32_t codepunkt) {
    return (codepunkt >= 0xFDD0 && codepunkt <= 0xFDEF) || (codepunkt & 0xFFFE) == 0xFFFE;
}

} // namespace

std::int32_t Utf8DateiPruefen(ByteSicht bytes, std::size_t ab) {
    std::optional<std::size_t> jenseits; // the place of the first character above U+FFFF
    for (std::size_t stelle = AsciiEnde(bytes, ab); stelle < bytes.size(); stelle = AsciiEnde(bytes, stelle)) {
        const Utf8Folge folge = Utf8Lesen(bytes.subspan(stelle));
        if (!folge.Gueltig || IstNichtzeichen(folge.Codepunkt)) {
            return 1;
        }
        if (!jenseits && folge.Codepunkt > 0xFFFF) {
            jenseits = stelle;
        }
        stelle += folge.Laenge;
    }
    if (!jenseits) {
        return 0;
    }
    testDaten.ZeilenNr = static_cast<std::int32_t>(ZeilenendenZaehlen(bytes.first(*jenseits)));
    return 2;
}

} // namespace zepholt
