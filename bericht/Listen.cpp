#include "bericht/Listen.h"

#include "bericht/Feldangabe.h"
#include "bericht/Zeichen.h"
#include "errors/FehlerERL.h"
#include "state/SIA451Feldnamen.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <array>

namespace zepholt::bericht {

namespace {

using DreiTexte = std::array<std::string_view, 3>;

constexpr DreiTexte Projekt = {"Projekt", "Projet", "Progetto"};
constexpr DreiTexte Dokument = {"Dokument", "Document", "Documento"};
constexpr DreiTexte Fehler = {"Fehler", "Erreurs", "Errori"};
constexpr DreiTexte Warnungen = {"Warnungen", "Avertissements", "Avvisi"};
constexpr DreiTexte EinFehler = {"Fehler", "erreur", "errore"};
constexpr DreiTexte EineWarnung = {"Warnung", "avertissement", "avviso"};
constexpr DreiTexte Zeile = {"Zeile", "Ligne", "Riga"};

constexpr DreiTexte OhneZeile = {"ohne Zeile", "sans ligne", "senza riga"};

constexpr std::array<DreiTexte, 10> Spalten = {{
    {"Projekt", "Projet", "Progetto"},
    {"Dokument", "Document", "Documento"},
    {"Position", "Article", "Posizione"},
    {"Zeile", "Ligne", "Riga"},
    {"Feld", "Champ", "Campo"},
    {"Feldname", "Nom du champ", "Nome del campo"},
    {"Spalte", "Colonne", "Colonna"},
    {"Code", "Code", "Codice"},
    {"Schwere", "Gravité", "Gravità"},
    {"Meldung", "Message", "Messaggio"},
}};

std::string_view In(const DreiTexte& texte, Sprache sprache) {
    return texte[static_cast<std::size_t>(sprache)];
}

// Blanks behind a text up to a width in characters, one at least.
std::string Gefuellt(std::string text, std::size_t breite) {
    const auto zeichen = static_cast<std::size_t>(
        std::ranges::count_if(text, [](char z) { return (static_cast<unsigned char>(z) & 0xC0U) != 0x80U; }));
    return text + std::string(zeichen < breite ? breite - zeichen : 1, ' ');
}

// A text for a terminal: nothing in it can move the cursor or turn the line round.
std::string Ungefaehrlich(std::string_view text) {
    std::string ziel;
    while (!text.empty()) {
        const char32_t zeichen = NaechstesZeichen(text);
        if (IstUnsichtbar(zeichen)) {
            ziel += "?";
        } else {
            Utf8Anhaengen(ziel, zeichen);
        }
    }
    return ziel;
}

std::string ZeilenText(std::int32_t zeile) {
    return zeile > 0 ? std::to_string(zeile) : std::string();
}

} // namespace

std::string Befundtext(const Protokoll& protokoll, const Befund& befund, Sprache sprache) {
    return FehlerBekannt(befund.Code) ? Utf8(FehlerText(befund.Code, Tabellensprache(sprache)))
                                      : protokoll.Worte.Wort(befund.Text);
}

const Feldangabe& Feldangaben::Zu(const Befund& befund) {
    std::string typ;
    if (m_datei != nullptr && befund.Zeile > 0 && befund.Zeile <= m_datei->Zeilenzahl()) {
        typ = TypDerZeile(m_datei->Zeile(befund.Zeile, 42));
    }
    const auto [fund, neu] = m_bekannte.try_emplace({typ, befund.Feld});
    if (neu) {
        fund->second = FeldangabeVon(m_protokoll.Worte.Wort(befund.Feld), LayoutsDesTyps(typ), m_sprache);
    }
    return fund->second;
}

void TabelleSchreiben(const Protokoll& protokoll, Sprache sprache, Ausgabe& ausgabe) {
    std::string kopf(In(Projekt, sprache));
    kopf += ": " + Ungefaehrlich(protokoll.Projekttitel()) + "   ";
    kopf += std::string(In(Dokument, sprache)) + ": " + Ungefaehrlich(protokoll.Dokumenttitel());
    kopf += "   " + std::string(In(Fehler, sprache)) + ": " + std::to_string(protokoll.Fehler);
    kopf += "   " + std::string(In(Warnungen, sprache)) + ": " + std::to_string(protokoll.Warnungen);
    ausgabe.Schreiben(kopf + "\n");
    for (const Befund& befund : protokoll.Befunde) {
        const std::string ort = befund.Zeile > 0 ? std::string(In(Zeile, sprache)) + " " + ZeilenText(befund.Zeile)
                                                 : std::string(In(OhneZeile, sprache));
        std::string zeile = Gefuellt(ort, 11);
        zeile += Gefuellt(Ungefaehrlich(protokoll.Worte.Wort(befund.Position)), 12);
        zeile += Gefuellt(Ungefaehrlich(protokoll.Worte.Wort(befund.Feld)), 11);
        zeile += std::to_string(befund.Code) + (befund.IstWarnung ? " B  " : " A  ");
        ausgabe.Schreiben(zeile + Ungefaehrlich(Befundtext(protokoll, befund, sprache)) + "\n");
    }
}

void CsvSchreiben(const Protokoll& protokoll, const Austauschdatei* datei, Sprache sprache, Ausgabe& ausgabe) {
    Feldangaben felder(protokoll, datei, sprache);
    ausgabe.Schreiben("\xEF\xBB\xBF");
    std::string kopf;
    for (const DreiTexte& spalte : Spalten) {
        kopf += (kopf.empty() ? "" : ";") + std::string(In(spalte, sprache));
    }
    ausgabe.Schreiben(kopf + "\r\n");
    const std::string vorne = CsvZelle(protokoll.Projekttitel()) + ';' + CsvZelle(protokoll.Dokumenttitel()) + ';';
    for (const Befund& befund : protokoll.Befunde) {
        const Feldangabe& feld = felder.Zu(befund);
        std::string zeile =
            vorne + CsvZelle(protokoll.Worte.Wort(befund.Position)) + ';' + ZeilenText(befund.Zeile) + ';';
        zeile +=
            CsvZelle(protokoll.Worte.Wort(befund.Feld)) + ';' + CsvZelle(feld.Name) + ';' + ZeilenText(feld.Von) + ';';
        zeile += std::to_string(befund.Code) + (befund.IstWarnung ? ";B;" : ";A;");
        ausgabe.Schreiben(zeile + CsvZelle(Befundtext(protokoll, befund, sprache)) + "\r\n");
    }
}

void JsonlSchreiben(const Protokoll& protokoll, const Austauschdatei* datei, Sprache sprache, Ausgabe& ausgabe) {
    Feldangaben felder(protokoll, datei, sprache);
    const std::string vorne =
        "{\"project\":" + JsonText(protokoll.Projekttitel()) + ",\"document\":" + JsonText(protokoll.Dokumenttitel());
    for (const Befund& befund : protokoll.Befunde) {
        const Feldangabe& feld = felder.Zu(befund);
        const auto zahl = [](std::int32_t wert) { return wert > 0 ? std::to_string(wert) : std::string("null"); };
        const auto text = [](const std::string& wert) { return wert.empty() ? std::string("null") : JsonText(wert); };
        std::string zeile = vorne + ",\"position\":" + text(protokoll.Worte.Wort(befund.Position));
        zeile += ",\"line\":" + zahl(befund.Zeile) + ",\"field\":" + text(protokoll.Worte.Wort(befund.Feld));
        zeile +=
            ",\"fieldName\":" + text(feld.Name) + ",\"column\":" + zahl(feld.Von) + ",\"lastColumn\":" + zahl(feld.Bis);
        zeile +=
            ",\"code\":" + std::to_string(befund.Code) + ",\"severity\":" + (befund.IstWarnung ? "\"B\"" : "\"A\"");
        ausgabe.Schreiben(zeile + ",\"text\":" + JsonText(Befundtext(protokoll, befund, sprache)) + "}\n");
    }
}

void CodeSchreiben(const CodeErklaerung& erklaerung, Sprache sprache, Ausgabe& ausgabe) {
    std::string text = std::to_string(erklaerung.Code);
    if (!erklaerung.Schwere.empty()) {
        text += "  " + std::string(In(erklaerung.Schwere == "B" ? EineWarnung : EinFehler, sprache)) + " (" +
                erklaerung.Schwere + ")";
    }
    text += "\n" + erklaerung.Text + "\n";
    if (!erklaerung.Feld.empty()) {
        text +=
            (erklaerung.Feldname.empty() ? erklaerung.Feld : erklaerung.Feldname + " (" + erklaerung.Feld + ")") + "\n";
    }
    text += erklaerung.Seite;
    ausgabe.Schreiben(text);
}

void FelderSchreiben(Ausgabe& ausgabe) {
    ausgabe.Schreiben("# The fields of the records\n\n"
                      "Every field of every record type with its columns and its name in German, French and Italian. "
                      "Made by\n`zepholt-bericht fields` from the tables that the program itself works with.\n");
    const auto block = [&](std::span<const RecordLayout> layouts, const char* zusatz) {
        TextSicht typ;
        for (const RecordLayout& layout : layouts) {
            const TextSicht eigener = layout.Feldbezug.substr(0, layout.Feldbezug.find(u':'));
            if (eigener != typ) {
                typ = eigener;
                ausgabe.Schreiben("\n## " + Utf8(typ) + ": " + Utf8(Recordbezeichnung(typ, 1)) + zusatz + "\n\n| " +
                                  "Field | Columns | German | French | Italian |\n|---|---|---|---|---|\n");
            }
            const std::string bis = layout.Laenge > 1 ? "-" + std::to_string(layout.Spalte + layout.Laenge - 1) : "";
            std::string zeile = "| " + Utf8(layout.Feldbezug) + " | " + std::to_string(layout.Spalte) + bis;
            for (const std::int32_t sprache : {1, 2, 3}) {
                zeile += " | " + Utf8(Feldbezeichnung(layout.Feldbezug, sprache));
            }
            ausgabe.Schreiben(zeile + " |\n");
        }
    };
    SchnittstelleSetzen(true);
    block(RecordLayouts(), "");
    testDaten.Revision = 0; // the one revision that has cost accounts; no file that is tested has it
    block(LayoutsDesTyps("B9"), " (in no file of today)");
}

} // namespace zepholt::bericht
