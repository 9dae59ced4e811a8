#include "bericht/Seite.h"

#include "bericht/Erklaerung.h"
#include "bericht/Listen.h"
#include "bericht/Recordbild.h"
#include "bericht/Seitenkopf.h"
#include "bericht/Seitenteile.h"
#include "bericht/Seitentexte.h"
#include "bericht/Zeichen.h"
#include "errors/FehlerERL.h"
#include "state/SIA451Feldnamen.h"
#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <tuple>

namespace zepholt::bericht {

namespace {

// What the plain part holds at most; the page says so where it holds back.
constexpr std::int64_t HoechstensJeCode = 50;
constexpr std::int64_t HoechstensZusammen = 2000;
constexpr std::size_t GezeigteKapitel = 6;

// Writes the plain part.
class Seitenbau {
public:
    Seitenbau(const Seiteninhalt& inhalt, const Seitenangaben& angaben, Ausgabe& ausgabe)
        : m_inhalt(inhalt), m_angaben(angaben), m_ausgabe(ausgabe), m_sprache(angaben.Anfangssprache) {}

    void Schreiben() {
        Auswaehlen();
        const std::string titel = Seitenwort("titel", m_sprache) + " – " + m_inhalt.Datei.Name();
        m_ausgabe.Schreiben(Seitenkopf(titel, m_sprache, m_angaben.Vermerk));
        UrteilSchreiben();
        const bool leer = m_inhalt.Codes.empty();
        m_ausgabe.Schreiben(leer ? "<div class=\"breite raster allein\">\n" : "<div class=\"breite raster\">\n");
        CodesSchreiben();
        m_ausgabe.Schreiben("<main class=\"haupt\">\n<h2 id=\"befunde\" tabindex=\"-1\" data-t=\"befunde\">" +
                            W("befunde") + "</h2>\n");
        if (!leer) {
            LeisteSchreiben();
        }
        ListeSchreiben();
        m_ausgabe.Schreiben("</main>\n</div>\n<footer class=\"breite\"><p data-t=\"fuss\">" + W("fuss") +
                            "</p></footer>\n");
        FaltteileSchreiben();
        // The script stands in front of the data: the page answers while a browser still reads them.
        m_ausgabe.Schreiben("<script>" + std::string(Seitenskript()) + "</script>\n");
        m_ausgabe.Schreiben("<script type=\"application/json\" id=\"daten\">");
        SeitendatenSchreiben(m_inhalt, m_ausgabe);
        m_ausgabe.Schreiben("</script>\n</body>\n</html>\n");
    }

private:
    std::string W(std::string_view schluessel, const std::vector<std::string>& werte = {}) const {
        return Html(Seitenwort(schluessel, m_sprache, werte));
    }

    // A word of the page that the script can put into another language.
    std::string Wort(std::string_view element, std::string_view schluessel) const {
        const std::string name(element);
        return "<" + name + " data-t=\"" + std::string(schluessel) + "\">" + W(schluessel) + "</" + name + ">";
    }

    std::string AnzahlWort(std::string_view schluessel, std::int64_t anzahl, std::string_view klasse) const {
        return "<span class=\"" + std::string(klasse) + "\" data-t=\"" + std::string(schluessel) + "\" data-n=\"" +
               std::to_string(anzahl) + "\">" + Html(Anzahlwort(schluessel, anzahl, m_sprache)) + "</span>";
    }

    std::string Codetext(std::uint32_t nummer) const {
        const Seitencode& code = m_inhalt.Codes[nummer];
        return Html(Befundtext(m_inhalt.Aus, m_inhalt.Aus.Befunde[code.Erster], m_sprache));
    }

    std::string AlleZahl() const { return Zahl(static_cast<std::int64_t>(m_inhalt.Aufbau.Folge.size())); }

    // The findings of the plain part: the first one of each code, then in the order of the page as many as fit.
    void Auswaehlen() {
        const std::size_t anzahl = m_inhalt.Aufbau.Folge.size();
        m_gewaehlt.assign(anzahl, false);
        std::vector<std::int64_t> jeCode(m_inhalt.Codes.size());
        const auto waehlen = [&](std::int64_t hoechstens) {
            std::fill(jeCode.begin(), jeCode.end(), 0);
            for (std::uint32_t stelle = 0; stelle < anzahl; ++stelle) {
                const std::uint32_t code = m_inhalt.CodeAn(stelle);
                if (++jeCode[code] <= hoechstens && !m_gewaehlt[stelle] && m_anzahlGewaehlt < HoechstensZusammen) {
                    m_gewaehlt[stelle] = true;
                    ++m_anzahlGewaehlt;
                }
            }
        };
        waehlen(1);
        waehlen(HoechstensJeCode);
    }

    void UrteilSchreiben() {
        const std::string art(Urteilsart(m_inhalt.Aus));
        const std::string ohne = m_angaben.OhneKatalog && art == "ordnung" ? ".ohne" : "";
        std::string urteil = "<header class=\"urteil " + art + (ohne.empty() ? "" : " ohne") +
                             "\"><div class=\"breite\">\n<div class=\"oben\"><p>ZEPHOLT · " + Wort("span", "titel") +
                             "</p>\n" + Sprachwahl() + "</div>\n<h1>";
        const std::string fehler = AnzahlWort("fehler", m_inhalt.Aus.Fehler, m_inhalt.Aus.Fehler > 0 ? "A" : "ok");
        const std::string warnungen =
            AnzahlWort("warnungen", m_inhalt.Aus.Warnungen, m_inhalt.Aus.Warnungen > 0 ? "B" : "");
        // A file that was refused has one error, and its number says nothing.
        urteil += art == "abgewiesen" ? "<span class=\"A\" data-t=\"abgewiesen\">" + W(art) + "</span>"
                                      : fehler + ", " + warnungen;
        urteil += "</h1>\n<p class=\"dazu\">" +
                  (art == "abgewiesen" ? "<b>" + fehler + "</b>" : Wort("b", art + ohne)) + " – " +
                  Wort("span", "dazu." + art + ohne) + "</p>\n";
        if (m_angaben.OhneKatalog && art != "abgewiesen") {
            urteil += "<div class=\"hinweis ohne\">" + Wort("p", "ohnekatalog") + "</div>\n";
        }
        m_ausgabe.Schreiben(urteil + Angaben() + "</div></header>\n");
    }

    std::string Sprachwahl() const {
        std::string wahl = "<div class=\"wahl\" id=\"sprachen\" role=\"group\" data-aria=\"sprache\" aria-label=\"" +
                           W("sprache") + "\" data-skript hidden>";
        constexpr std::array<std::string_view, 3> Namen = {"Deutsch", "Français", "Italiano"};
        for (std::size_t i = 0; i < Namen.size(); ++i) {
            wahl += "<button type=\"button\" value=\"" + std::to_string(i) + "\" lang=\"" +
                    std::string(Sprachkuerzel[i]) + "\" aria-pressed=\"" +
                    (i == static_cast<std::size_t>(m_sprache) ? "true" : "false") + "\">" + std::string(Namen[i]) +
                    "</button>";
        }
        return wahl + "</div>";
    }

    std::string Angabe(std::string_view schluessel, const std::string& wert, const std::string& klein = {}) const {
        if (wert.empty() && klein.empty()) {
            return {};
        }
        return "<div>" + Wort("dt", schluessel) + "<dd>" + Html(wert) +
               (klein.empty() ? "" : "<small>" + Html(klein) + "</small>") + "</dd></div>\n";
    }

    std::string Angaben() const {
        const Protokoll& p = m_inhalt.Aus;
        std::string datum = p.Datum;
        if (datum.size() == 10 && datum[4] == '-' && datum[7] == '-') {
            datum = datum.substr(8) + "." + datum.substr(5, 2) + "." + datum.substr(0, 4);
        }
        std::string angaben = "<dl class=\"angaben\">\n" + Angabe("projekt", p.Projekt, p.ProjektNummer);
        angaben += Angabe("dokument", p.Dokument, p.DokumentNummer);
        angaben += "<div>" + Wort("dt", "datei") + "<dd><span id=\"name\">" + Html(m_inhalt.Datei.Name()) +
                   "</span><small>" + Html(p.Schnittstelle) + "</small></dd></div>\n";
        angaben += Angabe("erstellt", p.Software, p.Hersteller);
        angaben += Angabe("geprueft", datum + " " + p.Zeit, p.Pruefprogramm + " " + p.ProgrammVersion);
        angaben += m_angaben.OhneKatalog ? "<div>" + Wort("dt", "katalog") + Wort("dd", "katalog0") + "</div>\n"
                                         : Angabe("katalog", m_angaben.Katalog);
        angaben += Angabe("kapitel", Kapitel());
        return angaben + Angabe("modus", p.Modus) + "</dl>\n";
    }

    std::string Kapitel() const {
        const std::vector<std::string>& kapitel = m_inhalt.Aufbau.Kapitel;
        std::string text;
        for (std::size_t i = 0; i < std::min(kapitel.size(), GezeigteKapitel); ++i) {
            text += (i > 0 ? ", " : "") + kapitel[i];
        }
        return kapitel.size() > GezeigteKapitel ? text + " … (" + std::to_string(kapitel.size()) + ")" : text;
    }

    void CodesSchreiben() {
        if (m_inhalt.Codes.empty()) {
            return;
        }
        m_ausgabe.Schreiben(
            "<nav class=\"seitlich\" aria-labelledby=\"codes\" tabindex=\"0\">\n<h2 id=\"codes\" data-t=\"nachcode\">" +
            W("nachcode") + "</h2>\n<ol class=\"codes\">\n");
        for (std::uint32_t nummer = 0; nummer < m_inhalt.Codes.size(); ++nummer) {
            const Seitencode& code = m_inhalt.Codes[nummer];
            const std::string zahl = std::to_string(code.Code);
            m_ausgabe.Schreiben("<li><a href=\"#c" + zahl + "\"><span class=\"code " + (code.IstWarnung ? "B" : "A") +
                                "\"><span class=\"v\">" + Wort("span", code.IstWarnung ? "B" : "A") + " </span>" +
                                zahl + "</span><span data-c=\"" + std::to_string(nummer) + "\">" + Codetext(nummer) +
                                "</span><em>" + Zahl(code.Anzahl) + "</em></a></li>\n");
        }
        m_ausgabe.Schreiben("</ol>\n</nav>\n");
    }

    std::string Schalter(std::string_view id, std::string_view titel,
                         std::initializer_list<std::pair<std::string_view, std::string_view>> werte) const {
        const std::string name(id);
        std::string schalter = "<div class=\"paar\"><span id=\"" + name + "-titel\" data-t=\"" + std::string(titel) +
                               "\">" + W(titel) + "</span><div class=\"wahl\" id=\"" + name +
                               "\" role=\"group\" aria-labelledby=\"" + name + "-titel\">";
        bool erster = true;
        for (const auto& [wert, text] : werte) {
            schalter += "<button type=\"button\" value=\"" + std::string(wert) + "\" aria-pressed=\"" +
                        (erster ? "true" : "false") + "\" data-t=\"" + std::string(text) + "\">" + W(text) +
                        "</button>";
            erster = false;
        }
        return schalter + "</div></div>\n";
    }

    void LeisteSchreiben() {
        std::string leiste = "<form class=\"leiste\" id=\"leiste\" role=\"search\" data-aria=\"filter\" aria-label=\"" +
                             W("filter") + "\" data-skript hidden>\n";
        leiste += Schalter("schwere", "schwere", {{"", "alle"}, {"A", "nurA"}, {"B", "nurB"}});
        leiste += "<label class=\"lang\">" + Wort("span", "code") +
                  "<select id=\"code\"><option value=\"\" data-t=\"allecodes\">" + W("allecodes") + "</option>";
        std::vector<std::int32_t> codes;
        for (const Seitencode& code : m_inhalt.Codes) {
            codes.push_back(code.Code);
        }
        std::ranges::sort(codes);
        codes.erase(std::unique(codes.begin(), codes.end()), codes.end());
        for (const std::int32_t code : codes) {
            leiste += "<option>" + std::to_string(code) + "</option>";
        }
        leiste +=
            "</select></label>\n<label class=\"kurz\">" + Wort("span", "position") +
            "<input id=\"position\" inputmode=\"numeric\" autocomplete=\"off\" placeholder=\"241.111.010\"></label>\n";
        leiste += "<label class=\"lang\">" + Wort("span", "suche") +
                  "<input id=\"text\" type=\"search\" autocomplete=\"off\"></label>\n";
        leiste += Schalter("ordnung", "ordnen", {{"p", "nachposition"}, {"c", "nachcode2"}}) + "</form>\n";
        leiste += "<div class=\"stand\" id=\"stand\" data-skript hidden><p role=\"status\">" +
                  W(m_inhalt.Aufbau.Folge.size() == 1 ? "treffer1" : "treffer", {AlleZahl(), AlleZahl()}) +
                  "</p><button type=\"button\" "
                  "class=\"knopf\" data-t=\"loeschen\" hidden>" +
                  W("loeschen") + "</button></div>\n";
        m_ausgabe.Schreiben(leiste);
    }

    void ListeSchreiben() {
        const std::size_t alle = m_inhalt.Aufbau.Folge.size();
        if (static_cast<std::size_t>(m_anzahlGewaehlt) < alle) {
            const std::vector<std::string> werte = {Zahl(m_anzahlGewaehlt), Zahl(static_cast<std::int64_t>(alle)),
                                                    Zahl(HoechstensJeCode), Zahl(HoechstensZusammen)};
            std::string json;
            for (const std::string& wert : werte) {
                json += (json.empty() ? "[" : ",") + JsonText(wert);
            }
            m_ausgabe.Schreiben("<div class=\"hinweis\" id=\"auszug\"><p data-t=\"auszug\" data-w=\"" +
                                Html(json + "]") + "\">" + W("auszug", werte) +
                                "</p><button type=\"button\" class=\"knopf\" data-t=\"allezeigen\" data-w=\"" +
                                Html("[" + JsonText(werte[1]) + "]") + "\" data-skript hidden>" +
                                W("allezeigen", {werte[1]}) + "</button></div>\n");
        }
        m_ausgabe.Schreiben("<p class=\"hinweis\" data-ohne data-t=\"ohneskript\">" + W("ohneskript") +
                            "</p>\n<div id=\"liste\">\n");
        if (alle == 0) {
            m_ausgabe.Schreiben("<p data-t=\"sauber\">" + W("sauber") + "</p>\n");
        }
        for (const Abschnitt& abschnitt : m_inhalt.Aufbau.Abschnitte) {
            AbschnittSchreiben(abschnitt);
        }
        m_ausgabe.Schreiben("</div>\n<div class=\"weiter\" id=\"weiter\"></div>\n");
    }

    std::string AbschnittTitel(const Abschnitt& abschnitt) const {
        const std::string position = PositionsText(abschnitt.Position);
        if (abschnitt.Art == 'G' && abschnitt.Position % 1'000'000 == 0) {
            return W("art.K", {position.substr(0, 3)});
        }
        return W(std::string("art.") + abschnitt.Art, {position});
    }

    std::string Herkunft(const Abschnitt& abschnitt) const {
        std::string zeile = "<p class=\"p\">";
        for (std::size_t i = 0; i < abschnitt.Herkunft.size(); ++i) {
            const std::string& ort = m_inhalt.Aufbau.Orte.Wort(abschnitt.Herkunft[i]);
            zeile += "<span>" + (i == 0 ? Html(Seitenwort("kapitel1", m_sprache, {ort})) : Html(ort)) + "</span>";
        }
        return zeile + "</p>\n";
    }

    void AbschnittSchreiben(const Abschnitt& abschnitt) {
        std::string inhalt;
        const std::vector<std::uint32_t> ohneZeile = Gewaehlte(abschnitt.Von, abschnitt.Bis);
        if (!ohneZeile.empty()) {
            inhalt += "<div class=\"e\">" + Meldungen(ohneZeile, {}) + Umgebung(abschnitt) + "</div>\n";
        }
        for (std::uint32_t e = abschnitt.ErsterEintrag; e < abschnitt.EndeEintraege; ++e) {
            const Eintrag& eintrag = m_inhalt.Aufbau.Eintraege[e];
            const std::vector<std::uint32_t> stellen = Gewaehlte(eintrag.Von, eintrag.Bis);
            if (!stellen.empty()) {
                inhalt += Record(eintrag.Zeile, stellen);
            }
        }
        if (!inhalt.empty()) {
            m_ausgabe.Schreiben("<section class=\"s\"><h3>" + AbschnittTitel(abschnitt) + "</h3>" +
                                Herkunft(abschnitt) + inhalt + "</section>\n");
        }
    }

    std::vector<std::uint32_t> Gewaehlte(std::uint32_t von, std::uint32_t bis) const {
        std::vector<std::uint32_t> stellen;
        for (std::uint32_t stelle = von; stelle < bis; ++stelle) {
            if (m_gewaehlt[stelle]) {
                stellen.push_back(stelle);
            }
        }
        return stellen;
    }

    std::string Meldungen(const std::vector<std::uint32_t>& stellen, std::span<const RecordLayout> layouts) {
        std::string liste = "<ul class=\"m\">";
        for (const std::uint32_t stelle : stellen) {
            const Befund& befund = m_inhalt.BefundAn(stelle);
            const std::string schwere = befund.IstWarnung ? "B" : "A";
            const std::string code = std::to_string(befund.Code);
            const bool erster = m_genannt.insert(befund.Code).second; // the place that the code's link leads to
            liste += "<li class=\"" + schwere + "\"" + (erster ? " id=\"c" + code + "\"" : "") +
                     "><span class=\"k\"><b>" + W(schwere) + "</b><a class=\"code " + schwere + "\" href=\"#c" + code +
                     "\">" + code + "</a></span><div class=\"t\">" + Html(Befundtext(m_inhalt.Aus, befund, m_sprache));
            const std::string satz = Feldsatz(m_inhalt.Aus.Worte.Wort(befund.Feld), layouts, m_sprache);
            liste += (satz.empty() ? "" : "<small>" + Html(satz) + "</small>") + (erster ? Falte(befund.Code) : "") +
                     "</div></li>";
        }
        return liste + "</ul>";
    }

    // The fold-out of a code stands beside its first finding, where the code's link leads to; the script gives it to
    // all.
    std::string Falte(std::int32_t code) const {
        const std::string_view text = Faltteil(code, m_sprache);
        return text.empty() ? ""
                            : "<details class=\"w\"><summary>" + W("heisst", {std::to_string(code)}) + "</summary>" +
                                  std::string(text) + "</details>";
    }

    // What the script needs to unfold a code in each language, but for what the plain part has already.
    void FaltteileSchreiben() const {
        std::set<std::int32_t> codes;
        for (const Seitencode& code : m_inhalt.Codes) {
            codes.insert(code.Code);
        }
        for (const std::int32_t code : codes) {
            for (const Sprache sprache : {Sprache::Deutsch, Sprache::Franzoesisch, Sprache::Italienisch}) {
                const std::string_view text = Faltteil(code, sprache);
                if (!text.empty() && (sprache != m_sprache || !m_genannt.contains(code))) {
                    m_ausgabe.Schreiben("<template data-falte=\"" + std::to_string(code) + " " +
                                        std::to_string(static_cast<int>(sprache)) + "\">" + std::string(text) +
                                        "</template>\n");
                }
            }
        }
    }

    std::string Record(std::int32_t nummer, const std::vector<std::uint32_t>& stellen) {
        constexpr std::size_t Hoechstens = 1000; // columns: a record has 256, a damaged file's line may be endless
        const TextSicht zeile = m_inhalt.Datei.ZeileOhneRand(nummer, Hoechstens);
        std::vector<Recordbefund> befunde;
        for (const std::uint32_t stelle : stellen) {
            const Befund& befund = m_inhalt.BefundAn(stelle);
            befunde.push_back({m_inhalt.Aus.Worte.Wort(befund.Feld), befund.IstWarnung});
        }
        const std::string typ = TypDerZeile(zeile);
        const TextSicht name = Recordbezeichnung(AusUtf8Bytes(typ), Tabellensprache(m_sprache));
        std::string bild =
            "<article class=\"e\"><h4>" + W("zeile", {Zahl(nummer)}) + "<span>" +
            Html(typ + " " + (LayoutsVon(zeile).empty() ? Seitenwort("undefiniert", m_sprache) : Utf8(name))) +
            "</span></h4>";
        bild += stellen.empty() ? "" : Meldungen(stellen, LayoutsVon(zeile));
        return bild + Feldkaesten(zeile, befunde, m_sprache) + GanzeZeile(zeile, befunde, m_sprache) + "</article>\n";
    }

    std::string Umgebung(const Abschnitt& abschnitt) {
        if (abschnitt.UmgebungAnzahl == 0) {
            return abschnitt.Art == 'G' ? "<p class=\"p\">" + W("umgebung0") + "</p>" : "";
        }
        std::string bild = "<details class=\"u\"><summary>" +
                           W(abschnitt.Art == 'D' ? "umgebungD" : "umgebung", {Zahl(abschnitt.UmgebungAnzahl)}) +
                           "</summary>";
        for (const std::int32_t zeile : abschnitt.Umgebung) {
            bild += Record(zeile, {});
        }
        const std::int64_t rest = abschnitt.UmgebungAnzahl - AnzahlElemente(abschnitt.Umgebung);
        return bild + (rest > 0 ? "<p class=\"p\">" + W("umgebungmehr", {Zahl(rest)}) + "</p>" : "") + "</details>";
    }

    const Seiteninhalt& m_inhalt;
    const Seitenangaben& m_angaben;
    Ausgabe& m_ausgabe;
    Sprache m_sprache;
    std::vector<bool> m_gewaehlt; // by place
    std::int64_t m_anzahlGewaehlt = 0;
    std::set<std::int32_t> m_genannt; // codes that the list has named so far
};

} // namespace

Seiteninhalt::Seiteninhalt(const Protokoll& protokoll, const Austauschdatei& datei)
    : Aus(protokoll), Datei(datei), Aufbau(GliederungVon(protokoll, datei)) {
    std::map<std::tuple<std::int32_t, bool, std::uint32_t>, std::uint32_t> nummern;
    for (std::uint32_t i = 0; i < protokoll.Befunde.size(); ++i) {
        const Befund& befund = protokoll.Befunde[i];
        const auto [fund, neu] = nummern.try_emplace(std::tuple(befund.Code, befund.IstWarnung, befund.Text),
                                                     static_cast<std::uint32_t>(Codes.size()));
        if (neu) {
            Codes.push_back({befund.Code, befund.IstWarnung, befund.Text, i, 0});
        }
        ++Codes[fund->second].Anzahl;
        m_codes.push_back(fund->second);
    }
    std::vector<std::uint32_t> folge(Codes.size());
    std::iota(folge.begin(), folge.end(), 0U);
    std::ranges::sort(folge, {}, [&](std::uint32_t nummer) {
        const Seitencode& c = Codes[nummer];
        return std::tuple(c.IstWarnung, -c.Anzahl, c.Code, c.Text);
    });
    std::vector<Seitencode> geordnet;
    std::vector<std::uint32_t> neueNummern(folge.size());
    for (const std::uint32_t nummer : folge) {
        neueNummern[nummer] = static_cast<std::uint32_t>(geordnet.size());
        geordnet.push_back(Codes[nummer]);
    }
    Codes = std::move(geordnet);
    for (std::uint32_t& code : m_codes) {
        code = neueNummern[code];
    }
}

void SeiteSchreiben(const Protokoll& protokoll, const Austauschdatei& datei, const Seitenangaben& angaben,
                    Ausgabe& ausgabe) {
    const Seiteninhalt inhalt(protokoll, datei);
    Seitenbau(inhalt, angaben, ausgabe).Schreiben();
}

} // namespace zepholt::bericht
