#include "catalogue/Kapiteldatei.h"

#include "support/HilfsFunktionen.h"
#include "support/StringBuilder.h"
#include "support/tqXML.h"

#include <algorithm>

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

std::size_t EntpackteLaenge(const Kapitelbytes& datei) {
    std::array<std::size_t, 256> laengen;
    laengen.fill(1);
    std::ranges::transform(datei.Tabelle, laengen.begin(), &ByteSicht::size);
    std::size_t laenge = 0;
    for (const unsigned char zeichen : datei.Rumpf) {
        laenge += laengen[zeichen];
    }
    return laenge;
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
    const Kapitelbytes datei{*tabelle, roh.subspan(rumpfAb)};
    return EntpackteLaenge(datei) <= GroessteKapitelLaenge ? std::optional(datei) : std::nullopt;
}

Text EntpackeKapitel(const Kapitelbytes& datei) {
    StringBuilder sammler;
    sammler.Vorsorgen(XmlDeklaration.size() + EntpackteLaenge(datei));
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

} // namespace zepholt
