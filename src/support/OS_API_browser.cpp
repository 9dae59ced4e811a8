// The platform's door in a browser: the clock and messages. There is no command line, and nothing to prepare.
#include "support/OS_API.h"

#include "support/HilfsFunktionen.h"
#include "support/Umgebung_browser.h"

#include <array>

#include <emscripten.h>

namespace zepholt {

char16_t PfadTrenner() {
    return u'/';
}

bool IstPfadTrenner(char16_t zeichen) {
    return zeichen == u'/';
}

Zeitpunkt Jetzt() {
    std::array<std::int32_t, 5> uhr{};
    zepholt_uhr(uhr.data());
    return {uhr[0], uhr[1], uhr[2], uhr[3], uhr[4]};
}

std::int64_t MilliSekunden() {
    return static_cast<std::int64_t>(emscripten_get_now());
}

void ProzessVorbereiten() {}

void WirdGanzGefuellt(void*, std::size_t) {}

void SpeicherBehalten() {}

Text Kommandozeile(int, char**) {
    return {};
}

void MeldungAusgeben(TextSicht text) {
    MeldungAusgeben(Utf8Bytes(text));
}

void MeldungAusgeben(std::string_view utf8) {
    zepholt_meldung(utf8.data(), static_cast<int>(utf8.size()));
}

bool MeldungIstTerminal() {
    return false;
}

} // namespace zepholt
