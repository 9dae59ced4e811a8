#include "intake/Dateibytes.h"

#include "support/OS_API.h"
#include "window/Fortschritt.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

namespace zepholt {

namespace {

constexpr std::size_t Lesestueck = 1 << 18; // bytes: small enough to stay in the cache until it is copied

} // namespace

Dateitext DateiBytesLesen(const Text& pfad) {
    LeseDatei datei(pfad);
    if (datei.Groesse() > std::numeric_limits<std::size_t>::max() / sizeof(char16_t)) {
        throw std::bad_alloc();
    }
    Dateitext text(static_cast<std::size_t>(datei.Groesse()));
    for (std::span<unsigned char> ziel = text.Rohbytes(); !ziel.empty();) {
        const Bytes stueck = datei.Lies(datei.Groesse() - ziel.size(), std::min(ziel.size(), Lesestueck));
        if (stueck.empty()) {
            throw LaufzeitFehler("file became shorter while it was read");
        }
        std::memcpy(ziel.data(), stueck.data(), stueck.size());
        ziel = ziel.subspan(stueck.size());
        BedieneFenster();
    }
    return text;
}

std::size_t ByteSuchen(ByteSicht bytes, unsigned char gesucht, std::size_t ab) {
    const void* fund = ab < bytes.size() ? std::memchr(bytes.data() + ab, gesucht, bytes.size() - ab) : nullptr;
    return fund == nullptr ? bytes.size()
                           : static_cast<std::size_t>(static_cast<const unsigned char*>(fund) - bytes.data());
}

// In stretches whose count fits a byte, so that the inner loop runs on many bytes at a time.
std::size_t ZeilenendenZaehlen(ByteSicht bytes) {
    std::size_t anzahl = 0;
    while (!bytes.empty()) {
        const ByteSicht stueck = bytes.first(std::min<std::size_t>(bytes.size(), 240));
        unsigned char hier = 0;
        for (const unsigned char byte : stueck) {
            hier = static_cast<unsigned char>(hier + (byte == '\n'));
        }
        anzahl += hier;
        bytes = bytes.subspan(stueck.size());
    }
    return anzahl;
}

ByteSicht Zeilenleser::Naechste() {
    const std::size_t ende = ByteSuchen(m_bytes, '\n', m_stelle);
    const ByteSicht zeile = m_bytes.subspan(m_stelle, ende - 1 - m_stelle);
    m_stelle = ende + 1;
    return zeile;
}

} // namespace zepholt
