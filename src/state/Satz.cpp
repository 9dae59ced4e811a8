#include "state/Satz.h"

#include <algorithm>

namespace zepholt {

void SpaltenEinzelnEinteilen(Feldsicht record, Spaltenarten& arten) {
    arten = {};
    const std::size_t laenge = std::min<std::size_t>(record.size(), Spaltenmenge::Spalten);
    for (std::size_t i = 0; i < laenge; ++i) {
        const char16_t zeichen = record[i];
        const std::size_t wort = i / Spaltenmenge::Wortbreite;
        const std::size_t stelle = i % Spaltenmenge::Wortbreite;
        arten.Gefuellt.Worte[wort] |= std::uint64_t{zeichen != u' '} << stelle;
        arten.Ziffern.Worte[wort] |= std::uint64_t{zeichen >= u'0' && zeichen <= u'9'} << stelle;
    }
}

Spaltenmenge AuffaelligeSpaltenEinzeln(Feldsicht record, const Spaltenmenge& felder) {
    Spaltenmenge auffaellige;
    const auto laenge = static_cast<std::int32_t>(std::min<std::size_t>(record.size(), Spaltenmenge::Spalten));
    for (std::int32_t spalte = 1; spalte <= laenge; ++spalte) {
        const char16_t zeichen = record[static_cast<std::size_t>(spalte - 1)];
        if (zeichen < u' ' || zeichen > u'~' || (zeichen != u' ' && !felder.Hat(spalte))) {
            auffaellige.SetzeBereich(spalte, 1);
        }
    }
    return auffaellige;
}

std::uint64_t GleicheBytesEinzeln(const unsigned char* bytes, unsigned char gesucht) {
    std::uint64_t gleiche = 0;
    for (std::size_t i = 0; i < Spaltenmenge::Wortbreite; ++i) {
        gleiche |= std::uint64_t{bytes[i] == gesucht} << i;
    }
    return gleiche;
}

} // namespace zepholt
