#include "window/DialogDeFrIt.h"

#include "Herausgeber.h"
#include "state/TestDaten.h"

#include <iterator>

namespace zepholt {

namespace {

// One text of a row in the language, 1 to 3.
TextSicht Spalte(const DialogText& zeile, std::int32_t sprache) {
    return sprache == 1 ? zeile.Deutsch : sprache == 2 ? zeile.Franzoesisch : zeile.Italienisch;
}

// The rows in their order; an empty one is the caption with the version.
constexpr DialogText Texte[] = {
    {u"Schreibt Fehlerprotokoll", u"Journal des erreurs - Transcription en cours", u"Scrittura protocollo errori"},
    {u"Liest Austauschdatei ein", u"Fichier de transfert - Lecture en cours", u"Lettura file di scambio"},
    {u"Testet Dokument", u"Document - Test en cours", u"Esecuzione test documento"},
    {u"Testet VLT-Kapitel", u"Chapitre BRQ - Test en cours", u"Esecuzione test capitolo DXM"},
    {u"Soll der Test abgebrochen werden?", u"Le test doit-il être interrompu?", u"Il test deve venir interrotto?"},
    {},
    {u"Austauschdatei", u"Fichier de transfert", u"File di scambio"},
    {u"Projekt", u"Projet", u"Progetto"},
    {u"Dokument", u"Document", u"Documento"},
    {u"Fortschritt", u"Progression", u"Avanzamento"},
    {u"Info", u"Info", u"Info"},
    {u"Abbrechen", u"Interrompre", u"Interruzione"},
    {},
    {u"Dieses Programm testet Austauschdateien gemäss UbR'92",
     u"Ce programme teste les fichiers de transfert selon Ubr'92", u"Questo programma esegue il test secondo Ubr'92"},
    {u"Programmhersteller", u"Fournisseur du logiciel", u"Produttore del programma"},
    {u"OK", u"OK", u"OK"},
};

// What follows the copyright line, three paragraphs by language.
constexpr TextSicht Rechte[3] = {
    u"Dieses Programm, seine Dateien und die Daten des Katalogs sind urheberrechtlich geschützt.\r\n\r\n"
    u"Erlaubt ist die Verwendung dieser Daten einzig zum persönlichen Gebrauch sowie für Unterricht und "
    u"Ausbildung.\r\n\r\n"
    u"Jede gewerbliche Verwendung ist verboten. Das gilt insbesondere für die Vervielfältigung und für das Anbieten "
    u"auf elektronischem Weg, ganz oder in Teilen.",

    u"Ce programme, ses fichiers et les données du catalogue sont protégés par le droit d’auteur.\r\n\r\n"
    u"L’utilisation de ces données n’est autorisée qu’à des fins personnelles ainsi que pour l’enseignement et la "
    u"formation.\r\n\r\n"
    u"Toute utilisation commerciale est interdite. Cela vaut en particulier pour la reproduction et pour l’offre par "
    u"voie électronique, en tout ou en partie.",

    u"Questo programma, i suoi file e i dati del catalogo sono protetti dal diritto d'autore.\r\n\r\n"
    u"L'uso di questi dati è consentito unicamente a scopo personale nonché per l'insegnamento e la "
    u"formazione.\r\n\r\n"
    u"Qualsiasi uso commerciale è vietato. Ciò vale in particolare per la riproduzione e per l'offerta per via "
    u"elettronica, in tutto o in parte.",
};

} // namespace

void SpracheSetzen(std::int32_t sprache) {
    dialogDeFrIt.DialogSprache = sprache;
    dialogDeFrIt.TextTabelle.clear();
    dialogDeFrIt.TextTabelle.reserve(std::size(Texte));
    dialogDeFrIt.Version = u"ZEPHOLT Version " + testDaten.Version;
    dialogDeFrIt.Versione = u"ZEPHOLT Versione " + testDaten.Version;
    for (const DialogText& zeile : Texte) {
        if (zeile.Deutsch.empty()) {
            TextHinzufuegen(dialogDeFrIt.Version, dialogDeFrIt.Version, dialogDeFrIt.Versione);
        } else {
            TextHinzufuegen(zeile.Deutsch, zeile.Franzoesisch, zeile.Italienisch);
        }
    }
}

void TextHinzufuegen(TextSicht deutsch, TextSicht franzoesisch, TextSicht italienisch) {
    dialogDeFrIt.TextTabelle.push_back({deutsch, franzoesisch, italienisch});
}

TextSicht Uebersetze(TextSicht text) {
    const std::int32_t sprache = dialogDeFrIt.DialogSprache;
    if (text.empty() || (sprache != 2 && sprache != 3)) {
        return text;
    }
    for (const DialogText& zeile : dialogDeFrIt.TextTabelle) {
        if (zeile.Deutsch == text) {
            return Spalte(zeile, sprache);
        }
    }
    return text;
}

Text InfoText() {
    if (dialogDeFrIt.DialogSprache < 1 || dialogDeFrIt.DialogSprache > 3) {
        dialogDeFrIt.DialogSprache = 1;
    }
    Text text = u"Copyright © ";
    text.append(RechteJahr).append(u" ").append(RechteInhaber).append(u", ").append(HerstellerOrt);
    text.append(u"\r\n\r\n").append(Rechte[dialogDeFrIt.DialogSprache - 1]);
    return text;
}

Text Programmhersteller() {
    return Text(HerstellerName).append(u", ").append(HerstellerOrt);
}

} // namespace zepholt
