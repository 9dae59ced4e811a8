#include "window/Laufzeittexte.h"

#include "support/HilfsFunktionen.h"
#include "window/DialogDeFrIt.h"

#include <algorithm>
#include <array>

namespace zepholt {

namespace {

struct Laufzeittext {
    std::string_view Was;           // as the exception names it
    std::array<TextSicht, 3> Texte; // German, French, Italian
};

constexpr Laufzeittext Tabelle[] = {
    // Parameters
    {"a parameter value is a single quotation mark",
     {u"ein Parameterwert besteht aus einem einzigen Anführungszeichen",
      u"la valeur d’un paramètre consiste en un seul guillemet",
      u"il valore di un parametro è costituito da un’unica virgoletta"}},
    // Catalogue
    {"catalogue file damaged",
     {u"Katalogdatei beschädigt", u"fichier du catalogue endommagé", u"file del catalogo danneggiato"}},
    {"a field of the head is no number",
     {u"ein Feld des Kopfes ist keine Zahl", u"un champ de l’en-tête n’est pas un nombre",
      u"un campo dell’intestazione non è un numero"}},
    {"the file ends inside its abbreviation table",
     {u"die Datei endet in ihrer Abkürzungstabelle", u"le fichier se termine dans sa table des abréviations",
      u"il file termina nella sua tabella delle abbreviazioni"}},
    {"the file ends inside an abbreviation",
     {u"die Datei endet in einer Abkürzung", u"le fichier se termine dans une abréviation",
      u"il file termina in un’abbreviazione"}},
    {"an entry's length is no number",
     {u"die Länge eines Eintrags ist keine Zahl", u"la longueur d’une entrée n’est pas un nombre",
      u"la lunghezza di una voce non è un numero"}},
    {"an entry is shorter than its head",
     {u"ein Eintrag ist kürzer als sein Kopf", u"une entrée est plus courte que son en-tête",
      u"una voce è più corta della sua intestazione"}},
    {"no chapter begins here",
     {u"hier beginnt kein Kapitel", u"aucun chapitre ne commence ici", u"qui non inizia alcun capitolo"}},
    {"the list of chapters is too long",
     {u"das Verzeichnis der Kapitel ist zu lang", u"la liste des chapitres est trop longue",
      u"l’elenco dei capitoli è troppo lungo"}},
    {"more entries than their count can tell",
     {u"mehr Einträge, als ihre Anzahl fassen kann", u"plus d’entrées que leur nombre ne peut en contenir",
      u"più voci di quante il loro numero possa contenere"}},
    {"longer than any text", {u"länger als jeder Text", u"plus long que tout texte", u"più lungo di qualsiasi testo"}},
    // Numbers and texts
    {"number out of range",
     {u"Zahl ausserhalb des zulässigen Bereichs", u"nombre hors des limites admises",
      u"numero fuori dai limiti ammessi"}},
    {"not a number", {u"keine Zahl", u"pas un nombre", u"non è un numero"}},
    {"setAttribute: the text is no element",
     {u"setAttribute: der Text ist kein Element", u"setAttribute: le texte n’est pas un élément",
      u"setAttribute: il testo non è un elemento"}},
    // Files
    {"no ordinary file", {u"keine gewöhnliche Datei", u"pas un fichier ordinaire", u"non è un file ordinario"}},
    {"file can't be opened",
     {u"die Datei lässt sich nicht öffnen", u"le fichier ne peut pas être ouvert", u"il file non può essere aperto"}},
    {"file can't be read",
     {u"die Datei lässt sich nicht lesen", u"le fichier ne peut pas être lu", u"il file non può essere letto"}},
    {"file became shorter while it was read",
     {u"die Datei wurde kürzer, während sie gelesen wurde", u"le fichier a raccourci pendant sa lecture",
      u"il file si è accorciato durante la lettura"}},
};

// Column of the table, from 0.
std::size_t Sprache() {
    const std::int32_t sprache = dialogDeFrIt.DialogSprache;
    return sprache == 2 || sprache == 3 ? static_cast<std::size_t>(sprache) - 1 : 0;
}

const Laufzeittext* AmAnfang(std::string_view was) {
    const auto* zeile = std::ranges::find_if(Tabelle, [was](const Laufzeittext& z) { return was.starts_with(z.Was); });
    return zeile != std::end(Tabelle) ? zeile : nullptr;
}

} // namespace

std::string LaufzeitMeldung(std::string_view was) {
    constexpr std::array<TextSicht, 3> Anfang = {u"ZEPHOLT: Laufzeitfehler: ", u"ZEPHOLT: erreur d’exécution : ",
                                                 u"ZEPHOLT: errore di esecuzione: "};
    constexpr std::string_view Komma = ", ";
    Text meldung(Anfang[Sprache()]);
    while (const Laufzeittext* zeile = AmAnfang(was)) {
        meldung += zeile->Texte[Sprache()];
        was.remove_prefix(zeile->Was.size());
        if (!was.starts_with(Komma)) {
            break;
        }
        meldung += AusAscii(Komma);
        was.remove_prefix(Komma.size());
    }
    meldung += AusAscii(was);
    std::ranges::replace_if(
        meldung, [](char16_t z) { return z < u' ' || (z >= u'\x7f' && z < u'\xa0'); }, u'?');
    return Utf8Bytes(meldung);
}

std::string_view SpeicherMeldung() {
    constexpr std::array<std::string_view, 3> Meldungen = {
        "ZEPHOLT: Laufzeitfehler: der Speicher reicht nicht aus",
        "ZEPHOLT: erreur d’exécution : la mémoire ne suffit pas",
        "ZEPHOLT: errore di esecuzione: la memoria non è sufficiente",
    };
    return Meldungen[Sprache()];
}

} // namespace zepholt
