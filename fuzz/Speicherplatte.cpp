#include "Speicherplatte.h"

#include "support/HilfsFunktionen.h"
#include "support/OS_API.h"

#include <algorithm>
#include <cstring>

namespace zepholt {

namespace {

using fuzz::speicherplatte;

auto DateiVon(TextSicht pfad) {
    return std::ranges::find_if(speicherplatte.Dateien, [pfad](const auto& datei) { return datei.first == pfad; });
}

bool IstDatei(TextSicht pfad) {
    return DateiVon(pfad) != speicherplatte.Dateien.end();
}

bool IstOrdner(TextSicht pfad) {
    const Text davor = OrdnerMitTrenner(Text(pfad));
    return std::ranges::any_of(speicherplatte.Dateien,
                               [&davor](const auto& datei) { return datei.first.starts_with(davor); });
}

// '*' stands for all there is behind it: that is as much of it as the program's own questions need.
bool Passt(TextSicht name, TextSicht muster) {
    const std::size_t stern = std::min(muster.find(u'*'), muster.size());
    if (stern == muster.size() ? name.size() != stern : name.size() < stern) {
        return false;
    }
    return std::ranges::equal(name.substr(0, stern), muster.substr(0, stern),
                              [](char16_t n, char16_t m) { return m == u'?' || n == m; });
}

} // namespace

DateiArt ArtVon(const Text& pfad) {
    if (IstDatei(pfad)) {
        return DateiArt::Datei;
    }
    return IstOrdner(pfad) ? DateiArt::Ordner : DateiArt::Nichts;
}

std::vector<OrdnerEintrag> EintraegeSuchen(const Text& muster) {
    const TextSicht name = DateiNameOhnePfad(muster);
    if (name.find_first_of(u"*?") == TextSicht::npos) {
        const DateiArt art = ArtVon(muster);
        return art == DateiArt::Nichts ? std::vector<OrdnerEintrag>{} : std::vector<OrdnerEintrag>{{Text(name), art}};
    }
    const TextSicht ordner = TextSicht(muster).substr(0, muster.size() - name.size());
    std::vector<OrdnerEintrag> eintraege;
    for (const auto& [pfad, bytes] : speicherplatte.Dateien) {
        const TextSicht eigener = DateiNameOhnePfad(pfad);
        if (TextSicht(pfad).substr(0, pfad.size() - eigener.size()) == ordner && Passt(eigener, name)) {
            eintraege.push_back({Text(eigener), DateiArt::Datei});
        }
    }
    return eintraege;
}

LeseDatei::LeseDatei(const Text& pfad) {
    const auto datei = DateiVon(pfad);
    if (datei == speicherplatte.Dateien.end()) {
        throw LaufzeitFehler("no ordinary file");
    }
    m_griff = datei - speicherplatte.Dateien.begin();
    m_groesse = datei->second.size();
}

LeseDatei::~LeseDatei() {
    m_griff = -1;
}

std::size_t LeseDatei::Lies(std::uint64_t stelle, std::span<unsigned char> ziel) {
    const ByteSicht inhalt = speicherplatte.Dateien[static_cast<std::size_t>(m_griff)].second;
    const ByteSicht stueck = inhalt.subspan(std::min<std::size_t>(stelle, inhalt.size()));
    const std::size_t anzahl = std::min(ziel.size(), stueck.size());
    std::ranges::copy(stueck.first(anzahl), ziel.begin());
    return anzahl;
}

struct AusgabeDatei::Platz {
    Text Pfad;
    std::string Inhalt;
};

void AusgabeDatei::PlatzEnde::operator()(Platz* platz) const {
    delete platz;
}

AusgabeDatei::PlatzZeiger AusgabeDatei::Anlegen(const Text& pfad, PlatzZeiger /*erprobt*/) {
    return PlatzZeiger(new Platz{pfad, {}});
}

bool AusgabeDatei::Hinausschreiben(std::string_view bytes) {
    m_platz->Inhalt.append(bytes);
    return true;
}

bool AusgabeDatei::Einsetzen() {
    speicherplatte.Ausgabepfad = std::move(m_platz->Pfad);
    speicherplatte.Ausgabe = std::move(m_platz->Inhalt);
    return true;
}

bool DateiAnlegbar(const Text& pfad, AusgabeDatei::PlatzZeiger* /*offen*/) {
    return ArtVon(pfad) == DateiArt::Nichts;
}

} // namespace zepholt
