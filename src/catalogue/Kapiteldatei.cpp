#include "catalogue/Kapiteldatei.h"

#include "support/HilfsFunktionen.h"
#include "support/StringBuilder.h"
#include "support/tqXML.h"

#include <algorithm>
#include <cstring>

namespace zepholt {

namespace {

constexpr std::string_view Magie = "CF11";

// In the table in the place of a code; in the body the first character that stands for itself.
constexpr unsigned char TabellenEnde = 32;

// Behind the magic: year, language, chapter, length and size of the expanded text. Nothing but that they are numbers
// counts here.
void PruefeKopf(std::string_view kopf) {
    std::size_t spalte = Magie.size() + 1;
    for (const std::size_t breite : {4U, 1U, 3U, 9U, 9U}) {
        StrengOderFehler(Spalten(kopf, spalte, breite), "a field of the head is no number");
        spalte += breite;
    }
}

// Eight bytes at once, none of which may be an abbreviation.
bool OhneAbkuerzung(ByteSicht acht) {
    constexpr std::uint64_t eins = 0x0101'0101'0101'0101;
    std::uint64_t wort = 0;
    std::memcpy(&wort, acht.data(), sizeof(wort));
    return ((wort - eins * TabellenEnde) & ~wort & (eins << 7U)) == 0;
}

// Sets the length of the expanded text, and whether there is anything to expand.
void Vermiss(Kapitelbytes& datei) {
    for (ByteSicht rest = datei.Rumpf; !rest.empty();) {
        const ByteSicht stueck = rest.first(std::min<std::size_t>(rest.size(), 8));
        rest = rest.subspan(stueck.size());
        if (stueck.size() == 8 && OhneAbkuerzung(stueck)) {
            datei.Laenge += stueck.size();
            continue;
        }
        for (const unsigned char zeichen : stueck) {
            datei.HatAbkuerzungen = datei.HatAbkuerzungen || zeichen < TabellenEnde;
            datei.Laenge += zeichen < TabellenEnde ? datei.Tabelle[zeichen].size() : 1;
        }
    }
}

// What one byte of a body stands for. Nearly all of it is short: it is copied as sixteen bytes, however few count.
struct Stueck {
    std::array<unsigned char, 16> Anfang{};
    std::size_t Laenge = 1;
};

std::array<Stueck, 256> StueckeVon(const Abkuerzungen& tabelle) {
    std::array<Stueck, 256> stuecke;
    for (std::size_t i = 0; i < stuecke.size(); ++i) {
        stuecke[i].Anfang[0] = static_cast<unsigned char>(i);
    }
    for (std::size_t i = 0; i < tabelle.size(); ++i) {
        stuecke[i].Laenge = tabelle[i].size();
        std::ranges::copy(tabelle[i].first(std::min(tabelle[i].size(), stuecke[i].Anfang.size())),
                          stuecke[i].Anfang.begin());
    }
    return stuecke;
}

} // namespace

std::int32_t StrengOderFehler(TextSicht text, const char* was) {
    const std::optional<std::int32_t> zahl = StrengeGanzzahl(text);
    if (!zahl) {
        throw LaufzeitFehler(was);
    }
    return *zahl;
}

std::int32_t StrengOderFehler(std::string_view text, const char* was) {
    return StrengOderFehler(AusAscii(text), was);
}

std::optional<Abkuerzungen> LeseAbkuerzungen(ByteSicht roh, std::size_t& rumpfAb) {
    Abkuerzungen tabelle;
    std::size_t stelle = KapitelkopfLaenge;
    for (;;) {
        if (stelle >= roh.size()) {
            throw LaufzeitFehler("the file ends inside its abbreviation table");
        }
        const unsigned char code = roh[stelle++];
        if (code == TabellenEnde) {
            rumpfAb = stelle;
            return tabelle;
        }
        const std::size_t zeilenende = AlsZeichen(roh).find('\n', stelle);
        if (zeilenende == std::string_view::npos) {
            throw LaufzeitFehler("the file ends inside an abbreviation");
        }
        if (code < 1 || code >= tabelle.size()) {
            return std::nullopt;
        }
        tabelle[code] = roh.subspan(stelle, zeilenende - stelle);
        stelle = zeilenende + 1;
    }
}

std::optional<Kapitelbytes> ZerlegeKapitel(ByteSicht roh) {
    const std::string_view kopf = AlsZeichen(roh).substr(0, KapitelkopfLaenge);
    if (!kopf.starts_with(Magie)) {
        return std::nullopt;
    }
    PruefeKopf(kopf);
    std::size_t rumpfAb = 0;
    const std::optional<Abkuerzungen> tabelle = LeseAbkuerzungen(roh, rumpfAb);
    if (!tabelle) {
        return std::nullopt;
    }
    Kapitelbytes datei{*tabelle, roh.subspan(rumpfAb)};
    Vermiss(datei);
    return datei.Laenge <= GroessteKapitelLaenge ? std::optional(datei) : std::nullopt;
}

Text EntpackeKapitel(const Kapitelbytes& datei) {
    StringBuilder sammler;
    sammler.Vorsorgen(XmlDeklaration.size() + datei.Laenge);
    sammler.Append(XmlDeklaration);
    for (ByteSicht rest = datei.Rumpf; !rest.empty();) {
        const auto code = std::ranges::find_if(rest, [](unsigned char zeichen) { return zeichen < TabellenEnde; });
        sammler.Append(ByteSicht(rest.begin(), code));
        rest = ByteSicht(code, rest.end());
        if (!rest.empty()) {
            sammler.Append(datei.Tabelle[rest.front()]);
            rest = rest.subspan(1);
        }
    }
    return std::move(sammler).GetString();
}

ByteSicht EntpackteBytes(const Kapitelbytes& datei, std::vector<unsigned char>& raum) {
    if (!datei.HatAbkuerzungen) {
        return datei.Rumpf;
    }
    const std::array<Stueck, 256> stuecke = StueckeVon(datei.Tabelle);
    raum.resize(std::max(raum.size(), datei.Laenge + stuecke[0].Anfang.size()));
    unsigned char* ziel = raum.data();
    for (const unsigned char zeichen : datei.Rumpf) {
        const Stueck& stueck = stuecke[zeichen];
        std::memcpy(ziel, stueck.Anfang.data(), stueck.Anfang.size());
        if (stueck.Laenge > stueck.Anfang.size()) {
            std::ranges::copy(datei.Tabelle[zeichen], ziel);
        }
        ziel += stueck.Laenge;
    }
    return ByteSicht(raum).first(datei.Laenge);
}

} // namespace zepholt
