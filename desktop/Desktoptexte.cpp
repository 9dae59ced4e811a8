#include "desktop/Desktoptexte.h"

#include <array>
#include <cstddef>

namespace zepholt::desktop {

namespace {

// In the order of the enumeration.
constexpr std::array<const char16_t*, 3> Tabelle[] = {
    {u"Austauschdatei SIA 451 prüfen", u"Tester un fichier SIA 451", u"Testare un file SIA 451"},
    {u"Austauschdatei", u"Fichier de transfert", u"File di scambio"},
    {u"Dateien hierher ziehen (.01S oder .E1S)", u"Glisser les fichiers ici (.01S ou .E1S)",
     u"Trascinare i file qui (.01S o .E1S)"},
    {u"Datei wählen …", u"Choisir un fichier …", u"Scegliere un file …"},
    {u"VLT-Katalog", u"Catalogue BRQ", u"Catalogo DXM"},
    {u"Ändern …", u"Modifier …", u"Modificare …"},
    {u"noch nicht gewählt", u"pas encore choisi", u"non ancora scelto"},
    {u"Welche Austauschdateien sollen geprüft werden?", u"Quels fichiers de transfert faut-il tester ?",
     u"Quali file di scambio testare?"},
    {u"In welchem Ordner liegt der VLT-Katalog?", u"Dans quel dossier se trouve le catalogue BRQ ?",
     u"In quale cartella si trova il catalogo DXM?"},
    {u"Austauschdateien", u"Fichiers de transfert", u"File di scambio"},
    {u"Alle Dateien", u"Tous les fichiers", u"Tutti i file"},
    {u"Die Prüfung läuft …", u"Le test est en cours …", u"Il test è in corso …"},
    {u"Der Bericht liegt hier:", u"Le rapport se trouve ici :", u"Il rapporto si trova qui:"},
    {u"Dateien geprüft", u"fichiers testés", u"file testati"},
};

} // namespace

const char16_t* In(Sprache sprache, Desktoptext text) {
    return Tabelle[static_cast<std::size_t>(text)][static_cast<std::size_t>(sprache)];
}

} // namespace zepholt::desktop
