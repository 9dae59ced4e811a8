#include "intake/Dateibytes.h"

#include "window/Fortschritt.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

namespace zepholt {

namespace {

constexpr std::size_t Lesestueck = 1 << 20; // bytes: between two of them a waiting person is served

} // namespace

Bytes DateiBytesLesen(const Text& pfad, const std::function<void(ByteSicht)>& gelesen) {
    LeseDatei datei(pfad);
    if (datei.Groesse() > std::numeric_limits<std::size_t>::max() / sizeof(char16_t)) {
        throw std::bad_alloc();
    }
    Bytes bytes(static_cast<std::size_t>(datei.Groesse()));
    for (std::size_t stelle = 0; stelle < bytes.size();) {
        const std::span ziel(bytes.data() + stelle, std::min(bytes.size() - stelle, Lesestueck));
        const std::size_t anzahl = datei.Lies(stelle, ziel);
        if (anzahl == 0) {
            throw LaufzeitFehler("file became shorter while it was read");
        }
        stelle += anzahl;
        gelesen(bytes.Sicht().first(stelle));
        BedieneFenster();
    }
    return bytes;
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

} // namespace zepholt
