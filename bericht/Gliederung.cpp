#include "bericht/Gliederung.h"

#include "bericht/Zeichen.h"
#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <numeric>
#include <set>
#include <span>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace zepholt::bericht {

namespace {

constexpr std::size_t GezeigteUmgebung = 12; // lines
constexpr std::int32_t LetzteSichereZeile =
    999'999; // behind it equal lines may stand in another order than in the file

// What a section is known by.
struct Schluessel {
    char Art;
    std::int64_t Position;

    bool operator==(const Schluessel&) const = default;
};

struct Streuung {
    std::size_t operator()(const Schluessel& s) const { return std::hash<std::int64_t>()(s.Position * 31 + s.Art); }
};

// The places of the document that a report speaks of, found in one walk over the lines.
struct Ortsverzeichnis {
    std::unordered_map<std::int64_t, std::int32_t> Kapitel;             // number -> its G1 line
    std::unordered_map<std::int64_t, std::int32_t> Text;                // position -> the first line that has a text
    std::unordered_map<std::int64_t, std::vector<std::int32_t>> Zeilen; // of the positions asked for
    std::vector<std::int32_t> KapitelFolge;
};

std::string Textfeld(const Austauschdatei& datei, std::int32_t zeile, std::int32_t spalte, std::int32_t laenge) {
    return std::string(OhneRand(Utf8(SpaltenVon(datei.Zeile(zeile), spalte, laenge))));
}

void ZeileVerzeichnen(const Austauschdatei& datei, std::int32_t nummer, Ortsverzeichnis& verzeichnis) {
    const std::int64_t position = datei.Position(nummer);
    const auto gesucht = verzeichnis.Zeilen.find(position);
    if (gesucht != verzeichnis.Zeilen.end()) {
        gesucht->second.push_back(nummer);
    }
    const TextSicht ziffer = SpaltenVon(datei.Zeile(nummer, 42), 42, 1);
    const bool mitText = ziffer == u"2" || ziffer == u"3";
    if (ziffer == u"1" && verzeichnis.Kapitel.try_emplace(position / 1'000'000, nummer).second) {
        verzeichnis.KapitelFolge.push_back(nummer);
    }
    if (mitText && !OhneLeerzeichenRechts(SpaltenVon(datei.Zeile(nummer, 122), 93, 30)).empty()) {
        verzeichnis.Text.try_emplace(position, nummer);
    }
}

class Aufbau {
public:
    Aufbau(const Protokoll& protokoll, const Austauschdatei& datei) : m_protokoll(protokoll), m_datei(datei) {}

    Gliederung Bauen() {
        ZeilenPruefen();
        OrteSuchen();
        Zuordnen();
        Reihen();
        for (Abschnitt& abschnitt : m_gliederung.Abschnitte) {
            HerkunftSuchen(abschnitt);
        }
        for (const std::int32_t zeile : m_orte.KapitelFolge) {
            m_gliederung.Kapitel.push_back(Kapitelname(zeile));
        }
        return std::move(m_gliederung);
    }

private:
    // With these two the lines were sorted before the protocol looked up its positions.
    static bool OrdnungGestoert(const Befund& befund) { return befund.Code == 2021 || befund.Code == 2022; }

    void ZeilenPruefen() const {
        for (const Befund& befund : m_protokoll.Befunde) {
            const std::optional<std::int64_t> position = Positionsnummer(m_protokoll.Worte.Wort(befund.Position));
            const bool vorhanden = befund.Zeile <= m_datei.Zeilenzahl();
            const bool vergleichbar =
                befund.Zeile > 0 && befund.Zeile <= LetzteSichereZeile && position && !OrdnungGestoert(befund);
            if (!vorhanden || (vergleichbar && (m_datei.Buchstabe(befund.Zeile) != 'G' ||
                                                m_datei.Position(befund.Zeile) != *position))) {
                throw Ablehnung(StatusKeinErgebnis, Meldung::AndereZeile, {std::to_string(befund.Zeile)});
            }
        }
    }

    Schluessel SchluesselVon(const Befund& befund) const {
        if (befund.Zeile <= 0) {
            const std::optional<std::int64_t> position = Positionsnummer(m_protokoll.Worte.Wort(befund.Position));
            return position ? Schluessel{'G', *position} : Schluessel{'D', 0};
        }
        const char buchstabe = m_datei.Buchstabe(befund.Zeile);
        switch (buchstabe) {
        case 'G':
            return {'G', m_datei.Position(befund.Zeile)};
        case 'X':
        case 'P':
            return {'X', m_datei.Position(befund.Zeile)};
        case 'A':
        case 'B':
        case 'C':
        case 'Z':
            return {buchstabe, 0};
        default:
            return {'U', 0};
        }
    }

    void OrteSuchen() {
        for (const Befund& befund : m_protokoll.Befunde) {
            if (befund.Zeile > 0) {
                continue;
            }
            const Schluessel schluessel = SchluesselVon(befund);
            if (schluessel.Art == 'G') {
                m_orte.Zeilen[schluessel.Position];
            }
        }
        for (std::int32_t nummer = 1; nummer <= m_datei.Zeilenzahl(); ++nummer) {
            if (m_datei.Buchstabe(nummer) == 'G') {
                ZeileVerzeichnen(m_datei, nummer, m_orte);
            }
        }
    }

    // Gives each finding its section, and each section the line that it stands by.
    void Zuordnen() {
        std::unordered_map<Schluessel, std::uint32_t, Streuung> nummern;
        for (const Befund& befund : m_protokoll.Befunde) {
            const Schluessel schluessel = SchluesselVon(befund);
            const auto [fund, neu] =
                nummern.try_emplace(schluessel, static_cast<std::uint32_t>(m_gliederung.Abschnitte.size()));
            if (neu) {
                Abschnitt abschnitt;
                abschnitt.Art = schluessel.Art;
                abschnitt.Position = schluessel.Position;
                m_gliederung.Abschnitte.push_back(std::move(abschnitt));
                m_ersteZeile.push_back(std::numeric_limits<std::int32_t>::max());
            }
            std::int32_t& erste = m_ersteZeile[fund->second];
            erste = std::min(erste, Bezugszeile(befund, schluessel));
            m_abschnittVon.push_back(fund->second);
        }
    }

    std::int32_t Bezugszeile(const Befund& befund, const Schluessel& schluessel) const {
        if (befund.Zeile > 0) {
            return befund.Zeile;
        }
        if (schluessel.Art == 'D') {
            return 0;
        }
        const auto zeilen = m_orte.Zeilen.find(schluessel.Position);
        return zeilen != m_orte.Zeilen.end() && !zeilen->second.empty() ? zeilen->second.front()
                                                                        : std::numeric_limits<std::int32_t>::max();
    }

    // Puts sections and findings into the order of the file.
    void Reihen() {
        const std::vector<std::uint32_t> reihe = Abschnittsreihe();
        const std::vector<std::uint32_t> enden = BefundeReihen(reihe);
        std::vector<Abschnitt> geordnet;
        geordnet.reserve(reihe.size());
        std::uint32_t stelle = 0;
        for (const std::uint32_t nummer : reihe) {
            Abschnitt& abschnitt = geordnet.emplace_back(std::move(m_gliederung.Abschnitte[nummer]));
            abschnitt.Von = abschnitt.Bis = stelle;
            abschnitt.ErsterEintrag = abschnitt.EndeEintraege =
                static_cast<std::uint32_t>(m_gliederung.Eintraege.size());
            for (; stelle < enden[nummer]; ++stelle) {
                Einreihen(stelle, abschnitt);
            }
        }
        m_gliederung.Abschnitte = std::move(geordnet);
    }

    std::vector<std::uint32_t> Abschnittsreihe() const {
        std::vector<std::uint32_t> reihe(m_gliederung.Abschnitte.size());
        std::iota(reihe.begin(), reihe.end(), 0U);
        std::ranges::sort(reihe, {}, [&](std::uint32_t nummer) {
            return std::tuple(m_ersteZeile[nummer], m_gliederung.Abschnitte[nummer].Position, nummer);
        });
        return reihe;
    }

    // Lays the findings down by section, within it by line, within that as the protocol has them. Returns the end of
    // each section.
    std::vector<std::uint32_t> BefundeReihen(const std::vector<std::uint32_t>& reihe) {
        std::vector<std::uint32_t> enden(reihe.size());
        for (const std::uint32_t abschnitt : m_abschnittVon) {
            ++enden[abschnitt];
        }
        std::uint32_t anfang = 0;
        for (const std::uint32_t abschnitt : reihe) { // the number of findings gives way to the place of the first one
            anfang += std::exchange(enden[abschnitt], anfang);
        }
        std::vector<std::uint32_t>& folge = m_gliederung.Folge;
        folge.resize(m_abschnittVon.size());
        for (std::uint32_t i = 0; i < folge.size(); ++i) {
            folge[enden[m_abschnittVon[i]]++] = i;
        }
        anfang = 0;
        for (const std::uint32_t abschnitt : reihe) {
            const std::span<std::uint32_t> eigene(folge.data() + anfang, folge.data() + enden[abschnitt]);
            const auto zeile = [&](std::uint32_t i) { return m_protokoll.Befunde[i].Zeile; };
            if (!std::ranges::is_sorted(eigene, {}, zeile)) {
                std::ranges::stable_sort(eigene, {}, zeile);
            }
            anfang = enden[abschnitt];
        }
        return enden;
    }

    void Einreihen(std::uint32_t stelle, Abschnitt& abschnitt) {
        std::vector<Eintrag>& eintraege = m_gliederung.Eintraege;
        const Befund& befund = m_protokoll.Befunde[m_gliederung.Folge[stelle]];
        if (befund.Zeile <= 0) {
            abschnitt.Bis = stelle + 1;
            UmgebungErgaenzen(befund, abschnitt);
            return;
        }
        const bool neu = abschnitt.EndeEintraege == abschnitt.ErsterEintrag || eintraege.back().Zeile != befund.Zeile;
        if (neu) {
            eintraege.push_back({befund.Zeile, stelle, stelle});
            ++abschnitt.EndeEintraege;
        }
        eintraege.back().Bis = stelle + 1;
    }

    // The lines that a finding without one speaks of: those of its position, the undefined records, the structures.
    // Once for each section, or for each of these codes.
    void UmgebungErgaenzen(const Befund& befund, Abschnitt& abschnitt) {
        std::vector<std::int32_t> zeilen;
        if (abschnitt.Art == 'G' && abschnitt.UmgebungAnzahl == 0) {
            zeilen = m_orte.Zeilen.at(abschnitt.Position);
        } else if ((befund.Code == 2041 || befund.Code == 3205) && m_betroffen.insert(befund.Code).second) {
            zeilen = BetroffeneZeilen(befund.Code == 2041);
        }
        abschnitt.UmgebungAnzahl += AnzahlElemente(zeilen);
        zeilen.resize(std::min(zeilen.size(), GezeigteUmgebung));
        abschnitt.Umgebung.insert(abschnitt.Umgebung.end(), zeilen.begin(), zeilen.end());
    }

    std::vector<std::int32_t> BetroffeneZeilen(bool undefinierte) const {
        constexpr std::string_view Freie = "EDU"; // records without a layout that are none the less defined
        std::vector<std::int32_t> zeilen;
        for (std::int32_t nummer = 1; nummer <= m_datei.Zeilenzahl(); ++nummer) {
            const TextSicht zeile = m_datei.Zeile(nummer, 42);
            const bool frei = Freie.find(m_datei.Buchstabe(nummer)) != std::string_view::npos;
            if (undefinierte ? !frei && LayoutsVon(zeile).empty() : TypDerZeile(zeile) == "B0") {
                zeilen.push_back(nummer);
            }
        }
        return zeilen;
    }

    std::string Kapitelname(std::int32_t zeile) const {
        std::string name = Textfeld(m_datei, zeile, 2, 3) + " " + Textfeld(m_datei, zeile, 93, 30);
        const std::string jahr = Textfeld(m_datei, zeile, 6, 2);
        return name + (jahr.size() == 2 ? (jahr >= "89" ? " (19" : " (20") + jahr + ")" : "");
    }

    // Chapter, section, main position, down to the position itself: those that the document gives a text.
    void HerkunftSuchen(Abschnitt& abschnitt) {
        if (abschnitt.Art != 'G' && abschnitt.Art != 'X') {
            return;
        }
        const auto kapitel = m_orte.Kapitel.find(abschnitt.Position / 1'000'000);
        if (kapitel != m_orte.Kapitel.end()) {
            abschnitt.Herkunft.push_back(m_gliederung.Orte.Nummer(Kapitelname(kapitel->second)));
        }
        std::int64_t vorher = -1;
        for (const std::int64_t stufe : {100'000, 10'000, 1000, 100, 10, 1}) {
            const std::int64_t position = abschnitt.Position - abschnitt.Position % stufe;
            const auto text = m_orte.Text.find(position);
            if (position != vorher && position % 1'000'000 != 0 && text != m_orte.Text.end()) {
                const std::string nummer = PositionsText(position).substr(4);
                abschnitt.Herkunft.push_back(
                    m_gliederung.Orte.Nummer(nummer + " " + Textfeld(m_datei, text->second, 93, 30)));
            }
            vorher = position;
        }
    }

    const Protokoll& m_protokoll;
    const Austauschdatei& m_datei;
    Ortsverzeichnis m_orte;
    Gliederung m_gliederung;
    std::vector<std::uint32_t> m_abschnittVon; // of each finding
    std::vector<std::int32_t> m_ersteZeile;    // of each section
    std::set<std::int32_t> m_betroffen;        // codes whose lines were looked for
};

// Letters and digits of ASCII only: what a protocol's escaping never changes.
std::string Kern(std::string_view text) {
    std::string kern;
    for (const char z : text) {
        if ((z >= '0' && z <= '9') || (z >= 'A' && z <= 'Z') || (z >= 'a' && z <= 'z')) {
            kern.push_back(z);
        }
    }
    return kern;
}

} // namespace

Gliederung GliederungVon(const Protokoll& protokoll, const Austauschdatei& datei) {
    return Aufbau(protokoll, datei).Bauen();
}

void ZusammengehoerigkeitPruefen(const Protokoll& protokoll, const Austauschdatei& datei) {
    struct Vergleich {
        const char* Bezug;
        const std::string& Protokoll;
        std::int32_t Spalte;
        std::int32_t Laenge;
    };
    const Vergleich vergleiche[] = {
        {"A:21-22", protokoll.ProjektNummer, 82, 11},   {"A:23", protokoll.Projekt, 93, 30},
        {"A:24a-d", protokoll.DokumentNummer, 123, 15}, {"A:24e", protokoll.Dokument, 138, 30},
        {"A:24f", protokoll.Hersteller, 168, 20},       {"A:24h", protokoll.Software, 208, 30},
    };
    for (const Vergleich& vergleich : vergleiche) {
        const std::string ist =
            datei.Zeilenzahl() > 0 ? Textfeld(datei, 1, vergleich.Spalte, vergleich.Laenge) : std::string();
        const std::string soll(OhneRand(vergleich.Protokoll));
        if (!soll.empty() && Kern(soll) != Kern(ist)) { // a refused file's protocol may not know them
            throw Ablehnung(StatusKeinErgebnis, Meldung::AndereDatei, {vergleich.Bezug, soll, ist});
        }
    }
}

std::string PositionsText(std::int64_t position) {
    char text[32];
    std::snprintf(text, sizeof text, "%03lld.%03lld.%03lld", static_cast<long long>(position / 1'000'000),
                  static_cast<long long>(position / 1000 % 1000), static_cast<long long>(position % 1000));
    return text;
}

} // namespace zepholt::bericht
