// What the platform's door needs no platform for.
#include "support/OS_API.h"

#include <algorithm>

namespace zepholt {

namespace {

// A small file fits into the first; a large one gets the other. Where a file system keeps files in large pages, pieces
// of that size take a third less time than those of 64 KB.
constexpr std::size_t KleinerPuffer = std::size_t{1} << 14U;
constexpr std::size_t GrosserPuffer = std::size_t{1} << 20U;

} // namespace

Bytes::Bytes(std::size_t anzahl) : m_daten(std::make_unique_for_overwrite<unsigned char[]>(anzahl)), m_anzahl(anzahl) {
    WirdGanzGefuellt(m_daten.get(), anzahl);
}

AusgabeDatei::AusgabeDatei(const Text& pfad, PlatzZeiger erprobt) : m_stueck(KleinerPuffer) {
    m_puffer.reserve(m_stueck);
    m_platz = Anlegen(pfad, std::move(erprobt));
    m_gut = m_platz != nullptr;
}

Bytes LeseDatei::Lies(std::uint64_t stelle, std::size_t anzahl) {
    Bytes bytes(static_cast<std::size_t>(std::min<std::uint64_t>(anzahl, m_groesse - std::min(m_groesse, stelle))));
    bytes.Kuerzen(Lies(stelle, std::span(bytes.data(), bytes.size())));
    return bytes;
}

void AusgabeDatei::Schreiben(std::string_view bytes) {
    if (bytes.size() > m_stueck - m_puffer.size()) {
        Leeren();
        Vergroessern();
    }
    if (bytes.size() > m_stueck) {
        m_gut = m_gut && Hinausschreiben(bytes);
    } else if (m_gut) {
        m_puffer.append(bytes);
    }
}

// Where there is no memory for it, the small pieces do.
void AusgabeDatei::Vergroessern() {
    try {
        m_puffer.reserve(GrosserPuffer);
        m_stueck = GrosserPuffer;
    } catch (const std::bad_alloc&) {
        return;
    }
}

bool AusgabeDatei::Abschliessen() {
    Leeren();
    const bool fertig = m_gut && Einsetzen();
    m_gut = false; // over, one way or the other
    m_platz.reset();
    return fertig;
}

void AusgabeDatei::Leeren() {
    m_gut = m_gut && Hinausschreiben(m_puffer);
    m_puffer.clear();
}

} // namespace zepholt
