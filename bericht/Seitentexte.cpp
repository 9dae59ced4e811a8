#include "bericht/Seitentexte.h"

#include "bericht/Zeichen.h"

namespace zepholt::bericht {

namespace {

// clang-format off
constexpr Seitentext Tabelle[] = {
    {"titel", {"Prüfbericht SIA 451", "Rapport de test SIA 451", "Rapporto di test SIA 451"}},
    {"sprache", {"Sprache", "Langue", "Lingua"}},
    {"fehlerhaft", {"Fehlerhaft", "Erroné", "Con errori"}},
    {"ordnung", {"In Ordnung", "En ordre", "In ordine"}},
    {"abgewiesen", {"Abgewiesen", "Refusé", "Respinto"}},
    {"dazu.fehlerhaft", {"Die Austauschdatei muss korrigiert werden.", "Le fichier de transfert doit être corrigé.", "Il file di scambio deve essere corretto."}},
    {"dazu.ordnung", {"Die Austauschdatei hat keine Fehler.", "Le fichier de transfert n’a pas d’erreurs.", "Il file di scambio non ha errori."}},
    {"dazu.abgewiesen", {"Die Prüfung endete hier: Der Inhalt der Austauschdatei ist noch nicht geprüft.", "Le test s’est arrêté ici : le contenu du fichier de transfert n’est pas encore testé.", "Il test è terminato qui: il contenuto del file di scambio non è ancora testato."}},
    {"ordnung.ohne", {"Soweit geprüft in Ordnung", "En ordre pour ce qui est testé", "In ordine per quanto testato"}},
    {"dazu.ordnung.ohne", {"Die Austauschdatei hat keine Fehler, soweit ohne Katalog geprüft werden kann.", "Le fichier de transfert n’a pas d’erreurs, pour ce qui peut être testé sans catalogue.", "Il file di scambio non ha errori, per quanto può essere testato senza catalogo."}},
    {"ohnekatalog", {"Ohne Katalog geprüft: Ob Kapitel, Positionen und Variablen so im VLT stehen, ist nicht geprüft.", "Testé sans catalogue : il n’est pas testé si chapitres, articles et variables figurent ainsi dans le BRQ.", "Testato senza catalogo: non è testato se capitoli, posizioni e variabili figurano così nel DXM."}},
    {"fehler", {"{0} Fehler", "{0} erreurs", "{0} errori"}},
    {"fehler1", {"1 Fehler", "1 erreur", "1 errore"}},
    {"fehler0", {"Keine Fehler", "Aucune erreur", "Nessun errore"}},
    {"warnungen", {"{0} Warnungen", "{0} avertissements", "{0} avvisi"}},
    {"warnungen1", {"1 Warnung", "1 avertissement", "1 avviso"}},
    {"warnungen0", {"keine Warnungen", "aucun avertissement", "nessun avviso"}},
    {"A", {"Fehler", "Erreur", "Errore"}},
    {"B", {"Warnung", "Avertissement", "Avviso"}},
    {"projekt", {"Projekt", "Projet", "Progetto"}},
    {"dokument", {"Dokument", "Document", "Documento"}},
    {"datei", {"Austauschdatei", "Fichier de transfert", "File di scambio"}},
    {"erstellt", {"Erstellt mit", "Établi avec", "Allestito con"}},
    {"geprueft", {"Geprüft", "Testé", "Testato"}},
    {"katalog", {"Katalog", "Catalogue", "Catalogo"}},
    {"katalog0", {"keiner", "aucun", "nessuno"}},
    {"kapitel", {"Kapitel", "Chapitres", "Capitoli"}},
    {"modus", {"Modus", "Mode", "Modo"}},
    {"nachcode", {"Nach Code", "Par code", "Per codice"}},
    {"befunde", {"Befunde", "Constatations", "Rilievi"}},
    {"filter", {"Befunde auswählen", "Choisir les constatations", "Scegliere i rilievi"}},
    {"schwere", {"Schwere", "Gravité", "Gravità"}},
    {"alle", {"alle", "toutes", "tutti"}},
    {"nurA", {"Fehler", "erreurs", "errori"}},
    {"nurB", {"Warnungen", "avertissements", "avvisi"}},
    {"code", {"Code", "Code", "Codice"}},
    {"allecodes", {"alle Codes", "tous les codes", "tutti i codici"}},
    {"position", {"Position", "Article", "Posizione"}},
    {"suche", {"Text", "Texte", "Testo"}},
    {"ordnen", {"Ordnen nach", "Classer par", "Ordinare per"}},
    {"nachposition", {"Position", "article", "posizione"}},
    {"nachcode2", {"Code", "code", "codice"}},
    {"loeschen", {"Alles zeigen", "Tout montrer", "Mostrare tutto"}},
    {"treffer", {"{0} von {1} Befunden", "{0} constatations sur {1}", "{0} rilievi su {1}"}},
    {"treffer1", {"{0} von {1} Befunden", "{0} constatation sur {1}", "{0} rilievo su {1}"}},
    {"keine", {"Kein Befund passt zur Auswahl.", "Aucune constatation ne correspond au choix.", "Nessun rilievo corrisponde alla scelta."}},
    {"sauber", {"Es gibt nichts zu melden.", "Il n’y a rien à signaler.", "Non c'è nulla da segnalare."}},
    {"weitere", {"Weitere {0} zeigen", "Montrer {0} de plus", "Mostrarne altri {0}"}},
    {"allezeigen", {"Alle {0} zeigen", "Montrer les {0}", "Mostrare tutti i {0}"}},
    {"auszug", {"Hier stehen {0} von {1} Befunden: von jedem Code die ersten {2}, zusammen höchstens {3}.", "Voici {0} constatations sur {1} : les {2} premières de chaque code, {3} au plus en tout.", "Ecco {0} rilievi su {1}: i primi {2} di ogni codice, al massimo {3} in tutto."}},
    {"ohneskript", {"Auswahl, Sprache und die übrigen Befunde brauchen JavaScript; alle Befunde stehen auch im Protokoll.", "Le choix, la langue et les autres constatations demandent JavaScript ; toutes les constatations figurent aussi dans le journal.", "La scelta, la lingua e gli altri rilievi richiedono JavaScript; tutti i rilievi figurano anche nel protocollo."}},
    {"art.D", {"Ganze Austauschdatei", "Tout le fichier de transfert", "Tutto il file di scambio"}},
    {"art.A", {"Kopfrecord", "Enregistrement d’en-tête", "Record d'intestazione"}},
    {"art.Z", {"Schlussrecord", "Enregistrement de fin", "Record di chiusura"}},
    {"art.B", {"Gliederungen", "Articulations", "Articolazioni"}},
    {"art.C", {"Konditionen", "Conditions", "Condizioni"}},
    {"art.G", {"Position {0}", "Article {0}", "Posizione {0}"}},
    {"art.K", {"Kapitel {0}", "Chapitre {0}", "Capitolo {0}"}},
    {"art.X", {"Anhänge zu Position {0}", "Annexes de l’article {0}", "Allegati alla posizione {0}"}},
    {"art.U", {"Weitere Zeilen", "Autres lignes", "Altre righe"}},
    {"zeile", {"Zeile {0}", "Ligne {0}", "Riga {0}"}},
    {"kapitel1", {"Kapitel {0}", "Chapitre {0}", "Capitolo {0}"}},
    {"spalte", {"Spalte {0}", "colonne {0}", "colonna {0}"}},
    {"spalten", {"Spalten {0}–{1}", "colonnes {0}–{1}", "colonne {0}–{1}"}},
    {"ausserhalb", {"Ausserhalb der Felder", "En dehors des champs", "Fuori dai campi"}},
    {"ganzerrecord", {"ganzer Record", "tout l’enregistrement", "tutto il record"}},
    {"inhalt", {"Inhalt", "Contenu", "Contenuto"}},
    {"undefiniert", {"nicht definiert", "non défini", "non definito"}},
    {"leer", {"leer", "vide", "vuoto"}},
    {"ganzezeile", {"Ganze Zeile", "Ligne entière", "Riga intera"}},
    {"gekuerzt", {"gekürzt", "abrégé", "abbreviato"}},
    {"heisst", {"Was heisst {0}?", "Que veut dire {0} ?", "Che cosa significa {0}?"}},
    {"umgebung", {"Die Zeilen dieser Position ({0})", "Les lignes de cet article ({0})", "Le righe di questa posizione ({0})"}},
    {"umgebungD", {"Die betroffenen Zeilen ({0})", "Les lignes concernées ({0})", "Le righe interessate ({0})"}},
    {"umgebungmehr", {"und {0} weitere Zeilen", "et {0} autres lignes", "e altre {0} righe"}},
    {"umgebung0", {"Diese Position steht nicht in der Austauschdatei.", "Cet article ne figure pas dans le fichier de transfert.", "Questa posizione non figura nel file di scambio."}},
    {"uebersicht", {"Prüfberichte SIA 451", "Rapports de test SIA 451", "Rapporti di test SIA 451"}},
    {"dateien", {"Austauschdateien", "Fichiers de transfert", "File di scambio"}},
    {"dateien.ungeprueft", {"{0} nicht geprüft", "{0} non testés", "{0} non testati"}},
    {"dateien.ungeprueft1", {"1 nicht geprüft", "1 non testé", "1 non testato"}},
    {"dateien.abgewiesen1", {"1 abgewiesen", "1 refusé", "1 respinto"}},
    {"dateien.fehlerhaft1", {"1 fehlerhaft", "1 erroné", "1 con errori"}},
    {"dateien.abgewiesen", {"{0} abgewiesen", "{0} refusés", "{0} respinti"}},
    {"dateien.fehlerhaft", {"{0} fehlerhaft", "{0} erronés", "{0} con errori"}},
    {"dateien.ordnung", {"{0} in Ordnung", "{0} en ordre", "{0} in ordine"}},
    {"ungeprueft", {"Nicht geprüft", "Non testé", "Non testato"}},
    {"fuss", {"Dieser Bericht ist eine einzige Datei: Er fragt nirgends nach und lässt sich weitergeben, ablegen und drucken.", "Ce rapport est un seul fichier : il n’interroge rien et peut être transmis, archivé et imprimé.", "Questo rapporto è un solo file: non interroga nulla e può essere trasmesso, archiviato e stampato."}},
    {"codebeschreibung", {"{0} Befunde", "{0} constatations", "{0} rilievi"}},
    {"codebeschreibung1", {"1 Befund", "1 constatation", "1 rilievo"}},
};
// clang-format on

} // namespace

std::span<const Seitentext> Seitentexte() {
    return Tabelle;
}

std::string Seitenwort(std::string_view schluessel, Sprache sprache, const std::vector<std::string>& werte) {
    std::string text;
    for (const Seitentext& zeile : Tabelle) {
        if (zeile.Schluessel == schluessel) {
            text = zeile.Texte[static_cast<std::size_t>(sprache)];
        }
    }
    std::size_t stelle = 0;
    while ((stelle = text.find('{', stelle)) != std::string::npos) {
        const std::string& wert = werte.at(static_cast<std::size_t>(text[stelle + 1] - '0'));
        text.replace(stelle, 3, wert);
        stelle += wert.size();
    }
    return text;
}

std::string Anzahlwort(std::string_view schluessel, std::int64_t anzahl, Sprache sprache) {
    if (anzahl <= 1) {
        std::string eigenes = Seitenwort(std::string(schluessel) + std::to_string(anzahl), sprache);
        if (!eigenes.empty()) {
            return eigenes;
        }
    }
    return Seitenwort(schluessel, sprache, {Zahl(anzahl)});
}

} // namespace zepholt::bericht
