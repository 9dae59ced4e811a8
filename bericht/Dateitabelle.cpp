#include "bericht/Dateitabelle.h"

#include "bericht/Ausgabe.h"
#include "bericht/Konsole.h"
#include "bericht/Protokolldatei.h"
#include "bericht/Pruefgang.h"
#include "bericht/Seitentexte.h"
#include "bericht/Uebersicht.h"
#include "bericht/Zeichen.h"
#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <optional>

namespace zepholt::bericht {

namespace {

// What came of one file.
struct Zeile {
    Tabelleneintrag Herkunft;
    std::string_view Art = "ungeprueft"; // see Urteilsart
    std::int64_t Fehler = 0;
    std::int64_t Warnungen = 0;
    std::map<std::int32_t, std::int64_t> Codes; // with the count of each
    std::string Projekt;
    std::string Dokument;
    std::string Datum;
    std::string Zeit;
};

// The kinds of outcome, the best first, as a program reads them, with the status of each.
struct Ausgang {
    std::string_view Art;
    std::string_view Name;
    int Status;
};
constexpr std::array<Ausgang, 4> Ausgaenge = {{{"ordnung", "clean", StatusOhneFehler},
                                               {"fehlerhaft", "faulty", StatusMitFehlern},
                                               {"abgewiesen", "refused", StatusMitFehlern},
                                               {"ungeprueft", "untested", StatusKeinErgebnis}}};

std::size_t AusgangVon(std::string_view art) {
    return static_cast<std::size_t>(std::ranges::find(Ausgaenge, art, &Ausgang::Art) - Ausgaenge.begin());
}

// The list on standard input.
class Listenleser {
public:
    // The next group; none at the end. A list that ends within a group is an Ablehnung.
    std::optional<Tabelleneintrag> Naechster() {
        Tabelleneintrag eintrag;
        if (!Feld(eintrag.Datei)) {
            return std::nullopt;
        }
        if (!Feld(eintrag.Protokoll) || !Feld(eintrag.Dauer) || !Feld(eintrag.Grund)) {
            throw Ablehnung(StatusFalscherAufruf, Meldung::ListeUnvollstaendig);
        }
        return eintrag;
    }

private:
    // One text up to its zero byte; false where the list is at its end.
    bool Feld(std::string& ziel) {
        for (;;) {
            const std::size_t ende = m_puffer.find('\0', m_stelle);
            if (ende != std::string::npos) {
                ziel = m_puffer.substr(m_stelle, ende - m_stelle);
                m_stelle = ende + 1;
                return true;
            }
            m_puffer.erase(0, m_stelle);
            m_stelle = 0;
            std::array<char, 1U << 16U> block;
            const std::size_t anzahl = StandardeingabeLesen(block);
            if (anzahl == 0 && !m_puffer.empty()) {
                throw Ablehnung(StatusFalscherAufruf, Meldung::ListeUnvollstaendig);
            }
            if (anzahl == 0) {
                return false;
            }
            m_puffer.append(block.data(), anzahl);
        }
    }

    std::string m_puffer;
    std::size_t m_stelle = 0;
};

// Reads the protocol of a file; without one, the row says why.
Zeile ZeileVon(Tabelleneintrag eintrag, Sprache sprache) {
    Zeile zeile;
    zeile.Herkunft = std::move(eintrag);
    try {
        const Protokoll protokoll = ProtokollLesen(AusUtf8Bytes(zeile.Herkunft.Protokoll));
        zeile.Art = Urteilsart(protokoll);
        zeile.Fehler = protokoll.Fehler;
        zeile.Warnungen = protokoll.Warnungen;
        for (const Befund& befund : protokoll.Befunde) {
            ++zeile.Codes[befund.Code];
        }
        zeile.Projekt = protokoll.Projekttitel();
        zeile.Dokument = protokoll.Dokumenttitel();
        zeile.Datum = protokoll.Datum;
        zeile.Zeit = protokoll.Zeit;
    } catch (const Ablehnung& ablehnung) {
        if (zeile.Herkunft.Grund.empty()) {
            zeile.Herkunft.Grund = MeldungsText(ablehnung.Grund, sprache, ablehnung.Werte);
        }
    }
    return zeile;
}

// A table as it is being written.
class Tabelle {
public:
    Tabelle(const Text& pfad, Sprache sprache) : m_ausgabe(pfad), m_sprache(sprache) {}
    virtual ~Tabelle() = default;
    Tabelle(const Tabelle&) = delete;
    Tabelle& operator=(const Tabelle&) = delete;

    virtual void Schreiben(const Zeile& zeile) = 0;
    virtual void Abschliessen() { m_ausgabe.Abschliessen(); }

protected:
    Ausgabe& Ziel() { return m_ausgabe; }
    Sprache InSprache() const { return m_sprache; }

private:
    Ausgabe m_ausgabe;
    Sprache m_sprache;
};

class CsvTabelle : public Tabelle {
public:
    CsvTabelle(const Text& pfad, Sprache sprache) : Tabelle(pfad, sprache) {
        constexpr std::array<std::string_view, 3> Kopf = {
            "Datei;Urteil;Fehler;Warnungen;Codes;Projekt;Dokument;Geprüft;Millisekunden;Grund;Protokoll",
            "Fichier;Verdict;Erreurs;Avertissements;Codes;Projet;Document;Testé;Millisecondes;Raison;Journal",
            "File;Verdetto;Errori;Avvisi;Codici;Progetto;Documento;Testato;Millisecondi;Motivo;Protocollo"};
        Ziel().Schreiben("\xEF\xBB\xBF" + std::string(Kopf[static_cast<std::size_t>(sprache)]) + "\r\n");
    }

    void Schreiben(const Zeile& zeile) override {
        std::string codes;
        for (const auto& [code, anzahl] : zeile.Codes) {
            codes += (codes.empty() ? "" : " ") + std::to_string(code) + "×" + std::to_string(anzahl);
        }
        const bool geprueft = zeile.Art != "ungeprueft";
        const auto zahl = [&](std::int64_t wert) { return geprueft ? std::to_string(wert) : std::string(); };
        std::string text = CsvZelle(Bereinigt(zeile.Herkunft.Datei)) + ';' + Seitenwort(zeile.Art, InSprache()) + ';';
        text += zahl(zeile.Fehler) + ';' + zahl(zeile.Warnungen) + ';' + codes + ';';
        text += CsvZelle(zeile.Projekt) + ';' + CsvZelle(zeile.Dokument) + ';';
        text += CsvZelle(zeile.Datum + (geprueft ? " " : "") + zeile.Zeit) + ';' + CsvZelle(zeile.Herkunft.Dauer) + ';';
        text += (geprueft ? "" : CsvZelle(Bereinigt(zeile.Herkunft.Grund))) + ';';
        Ziel().Schreiben(text + CsvZelle(Bereinigt(zeile.Herkunft.Protokoll)) + "\r\n");
    }
};

class JsonTabelle : public Tabelle {
public:
    using Tabelle::Tabelle;

    void Schreiben(const Zeile& zeile) override {
        const Tabelleneintrag& von = zeile.Herkunft;
        const bool geprueft = zeile.Art != "ungeprueft";
        const auto text = [](bool da, const std::string& wert) { return da ? JsonText(wert) : std::string("null"); };
        const auto zahl = [](bool da, std::int64_t wert) { return da ? std::to_string(wert) : std::string("null"); };
        const std::string name = Bereinigt(von.Datei);
        std::string ziel = "{\"file\":" + JsonText(name);
        if (name != von.Datei) { // no UTF-8: here its bytes can be told
            ziel += ",\"fileUri\":" + JsonText(UriTeil(von.Datei));
        }
        ziel += ",\"verdict\":\"" + std::string(Ausgaenge[AusgangVon(zeile.Art)].Name) + "\"";
        ziel +=
            ",\"errors\":" + zahl(geprueft, zeile.Fehler) + ",\"warnings\":" + zahl(geprueft, zeile.Warnungen) + ",";
        std::string codes;
        for (const auto& [code, anzahl] : zeile.Codes) {
            codes += (codes.empty() ? "\"" : ",\"") + std::to_string(code) + "\":" + std::to_string(anzahl);
        }
        ziel += "\"codes\":{" + codes + "},\"project\":" + text(!zeile.Projekt.empty(), zeile.Projekt);
        ziel += ",\"document\":" + text(!zeile.Dokument.empty(), zeile.Dokument);
        ziel += ",\"tested\":" + text(geprueft, zeile.Datum + "T" + zeile.Zeit);
        const std::optional<std::int32_t> dauer = StrengeGanzzahl(AusUtf8Bytes(von.Dauer));
        ziel += ",\"milliseconds\":" + zahl(dauer.has_value(), dauer.value_or(0));
        ziel += ",\"reason\":" + text(!geprueft, Bereinigt(von.Grund));
        Ziel().Schreiben(ziel + ",\"protocol\":" + JsonText(Bereinigt(von.Protokoll)) + "}\n");
    }
};

// The page begins with the sums, so that its rows wait for the end.
class SeitenTabelle : public Tabelle {
public:
    SeitenTabelle(const Text& pfad, Sprache sprache)
        : Tabelle(pfad, sprache), m_ordner(pfad.substr(0, pfad.size() - DateiNameOhnePfad(pfad).size())) {}

    void Schreiben(const Zeile& zeile) override {
        const std::string& protokoll = zeile.Herkunft.Protokoll;
        Pruefergebnis ergebnis;
        ergebnis.Datei = m_ordner + AusUtf8Bytes(zeile.Herkunft.Datei);
        ergebnis.Seite = AusUtf8Bytes(protokoll.substr(0, protokoll.rfind('.')) + ".html");
        if (zeile.Art == "ungeprueft" || ArtVon(ergebnis.Seite) != DateiArt::Datei) {
            ergebnis.Seite.clear();
        }
        ergebnis.Hindernis = Bereinigt(zeile.Herkunft.Grund);
        ergebnis.Art = zeile.Art;
        ergebnis.Fehler = zeile.Fehler;
        ergebnis.Warnungen = zeile.Warnungen;
        m_ergebnisse.push_back(std::move(ergebnis));
    }

    void Abschliessen() override {
        UebersichtSchreiben(m_ergebnisse, m_ordner, InSprache(), Ziel());
        Tabelle::Abschliessen();
    }

private:
    Text m_ordner; // of the page, with a path separator behind it; empty for the working folder
    std::vector<Pruefergebnis> m_ergebnisse;
};

std::unique_ptr<Tabelle> TabelleAm(const Text& pfad, Sprache sprache) {
    const Text klein = Kleinbuchstaben(pfad);
    if (klein.ends_with(u".csv")) {
        return std::make_unique<CsvTabelle>(pfad, sprache);
    }
    if (klein.ends_with(u".jsonl")) {
        return std::make_unique<JsonTabelle>(pfad, sprache);
    }
    if (klein.ends_with(u".html")) {
        return std::make_unique<SeitenTabelle>(pfad, sprache);
    }
    throw Ablehnung(StatusFalscherAufruf, Meldung::KeineTabellenart, {Utf8(pfad)});
}

} // namespace

Tabellenquelle ListeDerStandardeingabe() {
    return [leser = std::make_shared<Listenleser>()] { return leser->Naechster(); };
}

int DateitabelleSchreiben(const Tabellenquelle& quelle, const std::vector<Text>& tabellen, Sprache sprache) {
    std::vector<std::unique_ptr<Tabelle>> ziele;
    ziele.reserve(tabellen.size());
    for (const Text& pfad : tabellen) {
        ziele.push_back(TabelleAm(pfad, sprache));
    }
    std::array<std::int64_t, Ausgaenge.size()> anzahlen{};
    while (std::optional<Tabelleneintrag> eintrag = quelle()) {
        const Zeile zeile = ZeileVon(std::move(*eintrag), sprache);
        ++anzahlen[AusgangVon(zeile.Art)];
        for (const auto& ziel : ziele) {
            ziel->Schreiben(zeile);
        }
    }
    int status = StatusOhneFehler;
    std::string summe;
    for (std::size_t i = 0; i < Ausgaenge.size(); ++i) {
        if (anzahlen[i] > 0) {
            status = std::max(status, Ausgaenge[i].Status);
            summe += (summe.empty() ? "" : ", ") +
                     Anzahlwort("dateien." + std::string(Ausgaenge[i].Art), anzahlen[i], sprache);
        }
    }
    for (const auto& ziel : ziele) {
        ziel->Abschliessen();
    }
    StandardausgabeSchreiben(summe + "\n");
    return status;
}

} // namespace zepholt::bericht
