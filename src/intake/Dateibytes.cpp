#include "intake/Dateibytes.h"

#include "state/Satz.h"
#include "window/Fortschritt.h"

#include <algorithm>
#include <bit>
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

// Not by memchr: that of Windows goes byte by byte, which took a quarter of a whole run.
std::size_t ByteSuchen(ByteSicht bytes, unsigned char gesucht, std::size_t ab) {
    constexpr std::size_t Schritt = Spaltenmenge::Wortbreite;
    for (; ab + Schritt <= bytes.size(); ab += Schritt) {
        if (const std::uint64_t gleiche = GleicheBytes(bytes.data() + ab, gesucht); gleiche != 0) {
            return ab + static_cast<std::size_t>(std::countr_zero(gleiche));
        }
    }
    while (ab < bytes.size() && bytes[ab] != gesucht) {
        ++ab;
    }
    return std::min(ab, bytes.size());
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
