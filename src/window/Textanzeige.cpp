#include "window/Textanzeige.h"

#include "support/OS_API.h"

#include <algorithm>

namespace zepholt {

void Phasenzeilen::ZeigeSchritt(TextSicht text) {
    const TextSicht phase = PhaseVon(text);
    if (phase.empty() || phase == m_phase) {
        return;
    }
    m_phase = phase;
    MeldungAusgeben(phase);
}

TextSicht PhaseVon(TextSicht text) {
    return text.substr(0, text.find(u':'));
}

void MeldungAlsText(TextSicht text) {
    for (std::size_t ab = 0; ab <= text.size();) {
        const std::size_t ende = std::min(text.find(u"\r\n", ab), text.size());
        Text zeile(text.substr(ab, ende - ab));
        std::replace_if(
            zeile.begin(), zeile.end(), [](char16_t z) { return z < u' ' || (z >= u'\x7f' && z < u'\xa0'); }, u'?');
        MeldungAusgeben(zeile);
        ab = ende + 2;
    }
}

} // namespace zepholt
