#include "bericht/Protokolldatei.h"

#include "bericht/XmlLeser.h"
#include "bericht/Zeichen.h"
#include "errors/FehlerERL.h"
#include "support/OS_API.h"

#include <algorithm>
#include <charconv>

namespace zepholt::bericht {

namespace {

// Walks the elements of a protocol into its struct.
class Lesung {
public:
    Lesung(std::string_view bytes, const std::string& name) : m_leser(bytes), m_name(name) {}

    Protokoll Lesen() {
        if (m_leser.Weiter() != XmlTeil::Anfang || m_leser.Name() != "SIA451") {
            Fremd();
        }
        bool test = false;
        bool befunde = false;
        for (XmlTeil teil = Kind(); teil == XmlTeil::Anfang; teil = Kind()) {
            if (m_leser.Name() == "Test" && !test) {
                test = true;
                TestLesen();
            } else if (m_leser.Name() == "Errors" && test && !befunde) {
                befunde = true;
                BefundeLesen();
            } else {
                Fremd();
            }
        }
        if (!test || m_leser.Weiter() != XmlTeil::Schluss) {
            Fremd();
        }
        ZahlenPruefen();
        return std::move(m_protokoll);
    }

private:
    [[noreturn]] void Fremd() const { throw Ablehnung(StatusKeinErgebnis, Meldung::KeinProtokoll, {m_name}); }

    // The next part that is not blank text.
    XmlTeil Kind() {
        const XmlTeil teil = m_leser.Weiter();
        if (teil != XmlTeil::Text) {
            return teil;
        }
        if (m_leser.Text().find_first_not_of(" \t\r\n") != std::string::npos) {
            Fremd();
        }
        return Kind();
    }

    void AttributNach(std::string_view name, std::string& ziel) {
        const std::string* wert = m_leser.Attribut(name);
        if (wert == nullptr) {
            Fremd();
        }
        ziel = *wert;
    }

    // The text of the element whose beginning was met; "?" stands for an empty one.
    std::string Inhalt() {
        std::string inhalt;
        XmlTeil teil = m_leser.Weiter();
        for (; teil == XmlTeil::Text; teil = m_leser.Weiter()) {
            inhalt += m_leser.Text();
        }
        if (teil != XmlTeil::Ende) {
            Fremd();
        }
        return inhalt;
    }

    std::string Wert() {
        std::string inhalt = Inhalt();
        return inhalt == "?" ? std::string() : inhalt;
    }

    std::int64_t Ganzzahl(std::string_view text) const {
        std::int64_t zahl = 0;
        const auto ergebnis = std::from_chars(text.data(), text.data() + text.size(), zahl);
        if (ergebnis.ec != std::errc() || ergebnis.ptr != text.data() + text.size() || zahl < 0 || zahl > INT32_MAX) {
            Fremd();
        }
        return zahl;
    }

    void TestLesen() {
        Protokoll& p = m_protokoll;
        for (XmlTeil teil = Kind(); teil == XmlTeil::Anfang; teil = Kind()) {
            const std::string name(m_leser.Name());
            if (name == "Project") {
                AttributNach("ID", p.ProjektNummer);
                p.Projekt = Wert();
            } else if (name == "Document") {
                AttributNach("ID", p.DokumentNummer);
                p.Dokument = Wert();
            } else if (name == "Software") {
                AttributNach("Manufacturer", p.Hersteller);
                p.Software = Wert();
            } else if (name == "Fileformat") {
                AttributNach("Version", p.Schnittstelle);
                p.Dateiformat = Wert();
            } else if (name == "Testprogram") {
                AttributNach("Version", p.ProgrammVersion);
                p.Pruefprogramm = Wert();
            } else if (name == "Errors") {
                m_fehler = Ganzzahl(Inhalt());
            } else if (name == "Warnings") {
                m_warnungen = Ganzzahl(Inhalt());
            } else {
                EinfachesElement(name);
            }
        }
    }

    void EinfachesElement(const std::string& name) {
        std::string* ziel = name == "Date"   ? &m_protokoll.Datum
                            : name == "Time" ? &m_protokoll.Zeit
                            : name == "Mode" ? &m_protokoll.Modus
                                             : nullptr;
        if (ziel == nullptr) {
            Fremd();
        }
        *ziel = Wert();
    }

    void BefundeLesen() {
        for (XmlTeil teil = Kind(); teil == XmlTeil::Anfang; teil = Kind()) {
            if (m_leser.Name() != "Error") {
                Fremd();
            }
            BefundLesen();
            if (Kind() != XmlTeil::Ende) {
                Fremd();
            }
        }
    }

    void BefundLesen() {
        const std::string* code = m_leser.Attribut("N");
        const std::string* schwere = m_leser.Attribut("E");
        const std::string* text = m_leser.Attribut("T");
        if (code == nullptr || schwere == nullptr || text == nullptr) {
            Fremd();
        }
        Befund befund;
        befund.Code = static_cast<std::int32_t>(Ganzzahl(*code));
        befund.IstWarnung = *schwere == "B";
        befund.Text = m_protokoll.Worte.Nummer(*text);
        if (const std::string* zeile = m_leser.Attribut("L")) {
            befund.Zeile = static_cast<std::int32_t>(Ganzzahl(*zeile));
        }
        if (const std::string* position = m_leser.Attribut("I")) {
            befund.Position = m_protokoll.Worte.Nummer(*position);
        }
        if (const std::string* feld = m_leser.Attribut("F")) {
            befund.Feld = m_protokoll.Worte.Nummer(*feld);
        }
        ++(befund.IstWarnung ? m_protokoll.Warnungen : m_protokoll.Fehler);
        m_protokoll.Befunde.push_back(befund);
    }

    // The head counts errors and warnings apart, or, without an element for warnings, together or the errors alone. A
    // protocol whose head says otherwise has lost findings, or was given some.
    void ZahlenPruefen() const {
        const std::int64_t fehler = m_protokoll.Fehler;
        const std::int64_t warnungen = m_protokoll.Warnungen;
        const bool stimmt = m_warnungen ? m_fehler == fehler && *m_warnungen == warnungen
                                        : m_fehler == fehler || m_fehler == fehler + warnungen;
        if (!stimmt) {
            throw Ablehnung(StatusKeinErgebnis, Meldung::ProtokollWiderspruch,
                            {m_name, std::to_string(fehler), std::to_string(warnungen)});
        }
    }

    XmlLeser m_leser;
    std::string m_name;
    Protokoll m_protokoll;
    std::int64_t m_fehler = -1;
    std::optional<std::int64_t> m_warnungen;
};

std::string Titel(const std::string& nummer, const std::string& name) {
    return nummer + (nummer.empty() || name.empty() ? "" : " ") + name;
}

// The message as the table has it, in the form that a protocol gives it.
bool IstTextDesCodes(const std::string& text, std::int32_t code, int sprache) {
    std::string soll = Utf8(FehlerText(code, sprache));
    std::size_t stelle = 0;
    while ((stelle = soll.find("’", stelle)) != std::string::npos) {
        soll.replace(stelle, 3, "'");
    }
    return soll == text;
}

} // namespace

std::uint32_t Woerter::Nummer(std::string_view text) {
    std::uint32_t& juengste = m_juengste[std::hash<std::string_view>()(text) % m_juengste.size()];
    if (*m_folge[juengste] == text) {
        return juengste;
    }
    auto fund = m_nummern.find(text);
    if (fund == m_nummern.end()) {
        fund = m_nummern.emplace(text, static_cast<std::uint32_t>(m_folge.size())).first;
        m_folge.push_back(&fund->first);
    }
    juengste = fund->second;
    return juengste;
}

std::string Protokoll::Projekttitel() const {
    return Titel(ProjektNummer, Projekt);
}

std::string Protokoll::Dokumenttitel() const {
    return Titel(DokumentNummer, Dokument);
}

Sprache Protokoll::Textsprache() const {
    for (const Befund& befund : Befunde) {
        int passende = 0;
        Sprache sprache = Sprache::Deutsch;
        for (const Sprache eine : {Sprache::Deutsch, Sprache::Franzoesisch, Sprache::Italienisch}) {
            if (IstTextDesCodes(Worte.Wort(befund.Text), befund.Code, Tabellensprache(eine))) {
                sprache = eine;
                ++passende;
            }
        }
        if (passende == 1) {
            return sprache;
        }
    }
    return Sprache::Deutsch;
}

Protokoll ProtokollAus(std::string_view bytes, const std::string& name) {
    try {
        return Lesung(bytes, name).Lesen();
    } catch (const XmlFehler& fehler) {
        const Meldung meldung =
            fehler.Mangel == XmlMangel::Abgeschnitten ? Meldung::ProtokollAbgeschnitten : Meldung::ProtokollBeschaedigt;
        throw Ablehnung(StatusKeinErgebnis, meldung, {name, std::to_string(fehler.Stelle)});
    }
}

Protokoll ProtokollLesen(const Text& pfad) {
    const std::string name = Utf8(pfad);
    if (ArtVon(pfad) != DateiArt::Datei) {
        throw Ablehnung(StatusKeinErgebnis, Meldung::ProtokollFehlt, {name});
    }
    Bytes bytes;
    try {
        LeseDatei datei(pfad);
        bytes = datei.Lies(0, static_cast<std::size_t>(datei.Groesse()));
    } catch (const LaufzeitFehler&) {
        throw Ablehnung(StatusKeinErgebnis, Meldung::ProtokollUnlesbar, {name});
    }
    return ProtokollAus({reinterpret_cast<const char*>(bytes.data()), bytes.size()}, name);
}

int StatusVon(const Protokoll& protokoll) {
    return protokoll.Fehler > 0 ? StatusMitFehlern : StatusOhneFehler;
}

std::string_view Urteilsart(const Protokoll& protokoll) {
    const bool abgewiesen = std::ranges::any_of(protokoll.Befunde, [](const Befund& befund) {
        return befund.Code >= 2001 && befund.Code <= 2022; // the run ends with each of these
    });
    return abgewiesen ? "abgewiesen" : protokoll.Fehler > 0 ? "fehlerhaft" : "ordnung";
}

std::optional<std::int64_t> Positionsnummer(std::string_view position) {
    if (position.size() != 11 || position[3] != '.' || position[7] != '.') {
        return std::nullopt;
    }
    std::int64_t nummer = 0;
    for (std::size_t i = 0; i < position.size(); ++i) {
        if (i == 3 || i == 7) {
            continue;
        }
        if (position[i] < '0' || position[i] > '9') {
            return std::nullopt;
        }
        nummer = nummer * 10 + (position[i] - '0');
    }
    return nummer;
}

} // namespace zepholt::bericht
