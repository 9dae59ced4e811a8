// Files and folders in a browser: the page says what exists, and gives and takes the bytes.
#include "support/OS_API.h"

#include "support/HilfsFunktionen.h"
#include "support/Namensmuster.h"
#include "support/Umgebung_browser.h"

#include <algorithm>
#include <utility>

namespace zepholt {

namespace {

constexpr int LaengsterName = 1024; // units; a longer one is cut

int Laenge(TextSicht text) {
    return static_cast<int>(text.size());
}

// The order in which entries count: the folder's own first, then by the bytes of the names in UTF-8.
bool SteheVor(const OrdnerEintrag& a, const OrdnerEintrag& b) {
    const auto istEigener = [](const Text& name) { return name == u"." || name == u".."; };
    return std::pair(!istEigener(a.Name), Utf8Bytes(a.Name)) < std::pair(!istEigener(b.Name), Utf8Bytes(b.Name));
}

} // namespace

DateiArt ArtVon(const Text& pfad) {
    return static_cast<DateiArt>(zepholt_art(pfad.data(), Laenge(pfad)));
}

std::vector<OrdnerEintrag> EintraegeSuchen(const Text& muster) {
    const std::size_t anfang = muster.rfind(u'/') + 1; // 0 without one
    const Text gesucht = muster.substr(anfang);
    if (gesucht.find_first_of(u"*?") == Text::npos) {
        const DateiArt art = ArtVon(muster);
        return art != DateiArt::Nichts ? std::vector<OrdnerEintrag>{{gesucht, art}} : std::vector<OrdnerEintrag>{};
    }
    const Text ordner = anfang > 0 ? muster.substr(0, anfang) : Text(u"./");
    std::vector<OrdnerEintrag> eintraege;
    Text name(LaengsterName, u'\0');
    int laenge = 0;
    for (int nummer = 0;
         (laenge = zepholt_eintrag(ordner.data(), Laenge(ordner), nummer, name.data(), LaengsterName)) >= 0; ++nummer) {
        const Text eigener = name.substr(0, static_cast<std::size_t>(laenge));
        const DateiArt art = PasstZuMuster(eigener, gesucht) ? ArtVon(ordner + eigener) : DateiArt::Nichts;
        if (art != DateiArt::Nichts) {
            eintraege.push_back({eigener, art});
        }
    }
    std::sort(eintraege.begin(), eintraege.end(), SteheVor);
    return eintraege;
}

LeseDatei::LeseDatei(const Text& pfad) {
    m_griff = zepholt_oeffnen(pfad.data(), Laenge(pfad));
    if (m_griff < 0) {
        throw LaufzeitFehler("file can't be opened");
    }
    m_groesse = static_cast<std::uint64_t>(zepholt_groesse(m_griff));
}

LeseDatei::~LeseDatei() {
    zepholt_schliessen(m_griff);
}

std::size_t LeseDatei::Lies(std::uint64_t stelle, std::span<unsigned char> ziel) {
    const int gelesen = zepholt_lesen(m_griff, static_cast<double>(stelle), ziel.data(), static_cast<int>(ziel.size()));
    if (gelesen < 0) {
        throw LaufzeitFehler("file can't be read");
    }
    return static_cast<std::size_t>(gelesen);
}

struct AusgabeDatei::Platz {
    int Datei = -1;

    ~Platz() { Beenden(false); }
    bool Beenden(bool gut) { return Datei >= 0 && zepholt_beenden(std::exchange(Datei, -1), gut ? 1 : 0) == 1; }
};

void AusgabeDatei::PlatzEnde::operator()(Platz* platz) const {
    delete platz;
}

AusgabeDatei::PlatzZeiger AusgabeDatei::Anlegen(const Text& pfad, PlatzZeiger /*erprobt*/) {
    PlatzZeiger platz(new Platz);
    platz->Datei = zepholt_anlegen(pfad.data(), Laenge(pfad));
    return platz->Datei >= 0 ? std::move(platz) : nullptr;
}

bool AusgabeDatei::Hinausschreiben(std::string_view bytes) {
    return zepholt_schreiben(m_platz->Datei, bytes.data(), static_cast<int>(bytes.size())) == 1;
}

bool AusgabeDatei::Einsetzen() {
    return std::exchange(m_platz, nullptr)->Beenden(true);
}

bool DateiAnlegbar(const Text& pfad, AusgabeDatei::PlatzZeiger* /*offen*/) {
    return zepholt_anlegbar(pfad.data(), Laenge(pfad)) == 1;
}

} // namespace zepholt
