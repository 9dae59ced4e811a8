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

} // namespace zepholt
