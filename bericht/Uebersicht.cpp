#include "bericht/Uebersicht.h"

#include "bericht/Ablage.h"
#include "bericht/Recordbild.h"
#include "bericht/Seitenkopf.h"
#include "bericht/Seitentexte.h"
#include "bericht/Zeichen.h"
#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <array>

namespace zepholt::bericht {

namespace {

// The kinds of outcome, the worst first, each with the class that gives it its colour.
struct Ausgang {
    std::string_view Art;
    std::string_view Klasse;
};
constexpr std::array<Ausgang, 4> Ausgaenge = {
    {{"ungeprueft", "A"}, {"abgewiesen", "A"}, {"fehlerhaft", "A"}, {"ordnung", "ok"}}};

std::string_view ArtDes(const Pruefergebnis& ergebnis) {
    return ergebnis.Seite.empty() ? "ungeprueft" : ergebnis.Art;
}

// The address of a page: its name where it stands in the same folder, else its whole path.
std::string Adresse(const Text& seite, const Text& ordner) {
    if (seite.starts_with(ordner)) {
        return "./" + UriTeil(Utf8Bytes(seite.substr(ordner.size())));
    }
    std::string pfad = Utf8Bytes(seite);
    std::ranges::replace(pfad, '\\', '/');
    if (pfad.starts_with("//")) { // on another machine
        return "file:" + UriTeil(pfad);
    }
    const bool mitLaufwerk = pfad.size() > 1 && pfad[1] == ':';
    return mitLaufwerk ? "file:///" + pfad.substr(0, 2) + UriTeil(pfad.substr(2)) : "file://" + UriTeil(pfad);
}

// What stands below the folder is called by its way from there, everything else by its name.
TextSicht Anzeigename(const Text& datei, const Text& ordner) {
    return datei.starts_with(ordner) ? TextSicht(datei).substr(ordner.size()) : DateiNameOhnePfad(datei);
}

std::string Zeile(const Pruefergebnis& ergebnis, const Text& ordner, Sprache sprache) {
    const std::string_view art = ArtDes(ergebnis);
    const auto ausgang = std::ranges::find(Ausgaenge, art, &Ausgang::Art);
    const std::string name = Html(Utf8(Anzeigename(ergebnis.Datei, ordner)));
    std::string zeile =
        "<li class=\"" + std::string(ausgang->Klasse) + "\"><b>" + Html(Seitenwort(art, sprache)) + "</b><span>";
    if (ergebnis.Seite.empty()) {
        return zeile + name + "<small>" + Html(ergebnis.Hindernis) + "</small></span></li>\n";
    }
    const std::string zahlen =
        Anzahlwort("fehler", ergebnis.Fehler, sprache) + ", " + Anzahlwort("warnungen", ergebnis.Warnungen, sprache);
    return zeile + "<a href=\"" + Html(Adresse(ergebnis.Seite, ordner)) + "\">" + name + "</a><small>" + Html(zahlen) +
           "</small></span></li>\n";
}

// "2 fehlerhaft, 1 in Ordnung"
std::string Summe(const std::vector<Pruefergebnis>& ergebnisse, Sprache sprache) {
    std::string summe;
    for (const Ausgang& ausgang : Ausgaenge) {
        const auto anzahl = std::ranges::count(ergebnisse, ausgang.Art, ArtDes);
        if (anzahl > 0) {
            summe += (summe.empty() ? "" : ", ") + ("<span class=\"" + std::string(ausgang.Klasse)) + "\">" +
                     Html(Anzahlwort("dateien." + std::string(ausgang.Art), anzahl, sprache)) + "</span>";
        }
    }
    return summe;
}

} // namespace

void UebersichtSchreiben(const std::vector<Pruefergebnis>& ergebnisse, const Text& ordner, Sprache sprache,
                         Ausgabe& ausgabe) {
    const bool gut = std::ranges::all_of(
        ergebnisse, [](std::string_view art) { return art == "ordnung"; }, ArtDes);
    const std::string titel = Seitenwort("uebersicht", sprache);
    ausgabe.Schreiben(Seitenkopf(titel, sprache, Ablagevermerk("")));
    ausgabe.Schreiben("<header class=\"urteil" + std::string(gut ? " ordnung" : "") +
                      "\"><div class=\"breite\">\n<div class=\"oben\"><p>ZEPHOLT · " + Html(titel) +
                      "</p></div>\n<h1 class=\"viele\">" + Summe(ergebnisse, sprache) + "</h1></div></header>\n" +
                      "<main class=\"breite\">\n<h2 class=\"v\">" + Html(Seitenwort("dateien", sprache)) +
                      "</h2>\n<ol class=\"dateien\">\n");
    for (const Pruefergebnis& ergebnis : ergebnisse) {
        ausgabe.Schreiben(Zeile(ergebnis, ordner, sprache));
    }
    ausgabe.Schreiben("</ol>\n</main>\n</body>\n</html>\n");
}

} // namespace zepholt::bericht
