#include "bericht/Meldungen.h"

#include <cstddef>

namespace zepholt::bericht {

namespace {

struct Zeile {
    Meldung Kennung;
    std::array<std::string_view, 3> Texte;
};

constexpr Zeile Tabelle[] = {
    {Meldung::KeinBefehl,
     {"Es fehlt ein Befehl. Hilfe: zepholt-bericht --help", "Il manque une commande. Aide : zepholt-bericht --help",
      "Manca un comando. Aiuto: zepholt-bericht --help"}},
    {Meldung::UnbekannterBefehl, {"Unbekannter Befehl: {0}", "Commande inconnue : {0}", "Comando sconosciuto: {0}"}},
    {Meldung::UnbekannteOption, {"Unbekannte Option: {0}", "Option inconnue : {0}", "Opzione sconosciuta: {0}"}},
    {Meldung::OptionOhneWert,
     {"Bei der Option {0} fehlt der Wert", "Il manque la valeur de l’option {0}", "Manca il valore dell'opzione {0}"}},
    {Meldung::UnbekannteSprache,
     {"Unbekannte Sprache: {0} (de, fr, it)", "Langue inconnue : {0} (de, fr, it)",
      "Lingua sconosciuta: {0} (de, fr, it)"}},
    {Meldung::ZuWenigeArgumente,
     {"Zum Befehl {0} fehlt eine Angabe: {1}", "Il manque une indication à la commande {0} : {1}",
      "Manca un'indicazione al comando {0}: {1}"}},
    {Meldung::ZuVieleArgumente,
     {"Eine Angabe zu viel: {0}", "Une indication de trop : {0}", "Un'indicazione di troppo: {0}"}},
    {Meldung::UnbekannterCode,
     {"Diesen Code gibt es nicht: {0}", "Ce code n’existe pas : {0}", "Questo codice non esiste: {0}"}},
    {Meldung::KatalogFehlt,
     {"Der Katalog muss genannt sein: --catalog=ORDNER", "Il faut indiquer le catalogue : --catalog=DOSSIER",
      "Occorre indicare il catalogo: --catalog=CARTELLA"}},
    {Meldung::ProtokollFehlt,
     {"Das Protokoll gibt es nicht: {0}", "Le journal n’existe pas : {0}", "Il protocollo non esiste: {0}"}},
    {Meldung::ProtokollUnlesbar,
     {"Das Protokoll kann nicht gelesen werden: {0}", "Le journal ne peut pas être lu : {0}",
      "Il protocollo non può essere letto: {0}"}},
    {Meldung::KeinProtokoll,
     {"Das ist kein Protokoll von ZEPHOLT: {0}", "Ce n’est pas un journal de ZEPHOLT : {0}",
      "Questo non è un protocollo di ZEPHOLT: {0}"}},
    {Meldung::ProtokollAbgeschnitten,
     {"Das Protokoll ist abgeschnitten: {0} (nach {1} Bytes)", "Le journal est tronqué : {0} (après {1} octets)",
      "Il protocollo è troncato: {0} (dopo {1} byte)"}},
    {Meldung::ProtokollBeschaedigt,
     {"Das Protokoll ist beschädigt: {0} (bei Byte {1})", "Le journal est endommagé : {0} (à l’octet {1})",
      "Il protocollo è danneggiato: {0} (al byte {1})"}},
    {Meldung::ProtokollWiderspruch,
     {"Das Protokoll widerspricht sich: {0} (gezählte Fehler {1}, Warnungen {2})",
      "Le journal se contredit : {0} (erreurs comptées {1}, avertissements {2})",
      "Il protocollo si contraddice: {0} (errori contati {1}, avvisi {2})"}},
    {Meldung::AndereDatei,
     {"Das Protokoll gehört zu einer anderen Austauschdatei: {0} ist im Protokoll «{1}», in der Datei «{2}»",
      "Le journal appartient à un autre fichier de transfert : {0} est «{1}» dans le journal, «{2}» dans le fichier",
      "Il protocollo appartiene a un altro file di scambio: {0} è «{1}» nel protocollo, «{2}» nel file"}},
    {Meldung::AndereZeile,
     {"Das Protokoll gehört zu einer anderen Austauschdatei: sein Befund auf Zeile {0} passt nicht zur Datei",
      "Le journal appartient à un autre fichier de transfert : sa constatation à la ligne {0} ne correspond pas au "
      "fichier",
      "Il protocollo appartiene a un altro file di scambio: il rilievo alla riga {0} non corrisponde al file"}},
    {Meldung::DateiFehlt,
     {"Die Austauschdatei gibt es nicht: {0}", "Le fichier de transfert n’existe pas : {0}",
      "Il file di scambio non esiste: {0}"}},
    {Meldung::DateiUnlesbar,
     {"Die Austauschdatei kann nicht gelesen werden: {0}", "Le fichier de transfert ne peut pas être lu : {0}",
      "Il file di scambio non può essere letto: {0}"}},
    {Meldung::NichtSchreibbar,
     {"Hier kann nicht geschrieben werden: {0}", "Impossible d’écrire ici : {0}", "Impossibile scrivere qui: {0}"}},
    {Meldung::ProgrammFehlt,
     {"Das Prüfprogramm steht nicht neben diesem Programm: {0}",
      "Le programme de test ne se trouve pas à côté de ce programme : {0}",
      "Il programma di test non si trova accanto a questo programma: {0}"}},
    {Meldung::OhneErgebnis,
     {"Die Prüfung hat kein Protokoll geschrieben: {0}", "Le test n’a pas écrit de journal : {0}",
      "Il test non ha scritto alcun protocollo: {0}"}},
    {Meldung::FalscherWert, {"Falscher Wert: {0}", "Valeur erronée : {0}", "Valore errato: {0}"}},
    {Meldung::KeineTabellenart,
     {"Eine Tabelle endet auf .csv, .jsonl oder .html: {0}", "Un tableau se termine par .csv, .jsonl ou .html : {0}",
      "Una tabella termina con .csv, .jsonl o .html: {0}"}},
    {Meldung::ListeUnvollstaendig,
     {"Die Liste auf der Standardeingabe ist unvollständig", "La liste sur l’entrée standard est incomplète",
      "L'elenco sullo standard input è incompleto"}},
    {Meldung::KeinSpeicher,
     {"Der Speicher reicht nicht aus", "La mémoire ne suffit pas", "La memoria non è sufficiente"}},
};

constexpr std::array<std::string_view, 3> Hilfe = {
    R"(zepholt-bericht: macht aus einem Protokoll von ZEPHOLT einen Bericht.

  zepholt-bericht html    PROTOKOLL AUSTAUSCHDATEI [-o SEITE]   eine Seite, die alles zeigt
  zepholt-bericht table   PROTOKOLL                             eine Zeile je Befund
  zepholt-bericht csv     PROTOKOLL [AUSTAUSCHDATEI]            für die Tabellenkalkulation
  zepholt-bericht jsonl   PROTOKOLL [AUSTAUSCHDATEI]            ein JSON-Objekt je Befund
  zepholt-bericht sarif   PROTOKOLL [AUSTAUSCHDATEI]            SARIF 2.1.0
  zepholt-bericht verdict PROTOKOLL                             nur der Status
  zepholt-bericht batch   ORDNER ZIEL                           prüft alle Dateien eines Ordners, fährt fort
  zepholt-bericht summary TABELLE...                            eine Zeile je Datei; Liste auf der Standardeingabe
  zepholt-bericht code    NNNN                                  was ein Code bedeutet
  zepholt-bericht fields                                        die Namen aller Felder
  zepholt-bericht test    AUSTAUSCHDATEI...                     prüft und legt Seite und Protokoll daneben ab

  -o, --output=DATEI     schreibt in die Datei statt auf die Standardausgabe
  -l, --language=de|fr|it  Sprache; ohne Angabe die des Protokolls, für Meldungen die des Systems
  -t, --test             prüft zuerst: statt PROTOKOLL und AUSTAUSCHDATEI steht nur AUSTAUSCHDATEI
  -c, --catalog=ORDNER   der VLT-Katalog für --test, test und batch
  -m, --mode=E|I         der Modus für --test, test und batch
  -j, --jobs=N           so viele Prüfungen zugleich bei batch; ohne Angabe eine je Prozessor
  -w, --window           zeigt bei test das Fortschrittsfenster
  -h, --help             diese Hilfe
  -V, --version          die Version

Status: 0 keine Fehler, 1 Fehler, 2 kein oder ein beschädigtes Protokoll (oder nichts, woraus ein Bericht wird),
64 falscher Aufruf. Warnungen sind keine Fehler.
)",
    R"(zepholt-bericht : fait un rapport d’un journal de ZEPHOLT.

  zepholt-bericht html    JOURNAL FICHIER [-o PAGE]   une page qui montre tout
  zepholt-bericht table   JOURNAL                     une ligne par constatation
  zepholt-bericht csv     JOURNAL [FICHIER]           pour le tableur
  zepholt-bericht jsonl   JOURNAL [FICHIER]           un objet JSON par constatation
  zepholt-bericht sarif   JOURNAL [FICHIER]           SARIF 2.1.0
  zepholt-bericht verdict JOURNAL                     seulement le statut
  zepholt-bericht batch   DOSSIER CIBLE               teste tous les fichiers d’un dossier, continue
  zepholt-bericht summary TABLEAU...                  une ligne par fichier ; liste sur l’entrée standard
  zepholt-bericht code    NNNN                        ce que signifie un code
  zepholt-bericht fields                              les noms de tous les champs
  zepholt-bericht test    FICHIER...                  teste, place la page et le journal à côté

  -o, --output=FICHIER   écrit dans le fichier au lieu de la sortie standard
  -l, --language=de|fr|it  langue ; sans indication celle du journal, pour les messages celle du système
  -t, --test             teste d’abord : au lieu de JOURNAL et FICHIER, seulement FICHIER
  -c, --catalog=DOSSIER  le catalogue BRQ pour --test, test et batch
  -m, --mode=E|I         le mode pour --test, test et batch
  -j, --jobs=N           nombre de tests simultanés pour batch ; sans indication un par processeur
  -w, --window           montre pour test la fenêtre de progression
  -h, --help             cette aide
  -V, --version          la version

Statut : 0 sans erreur, 1 erreurs, 2 journal absent ou endommagé (ou rien dont on puisse faire un rapport),
64 appel erroné. Les avertissements ne sont pas des erreurs.
)",
    R"(zepholt-bericht: crea un rapporto da un protocollo di ZEPHOLT.

  zepholt-bericht html    PROTOCOLLO FILE [-o PAGINA]   una pagina che mostra tutto
  zepholt-bericht table   PROTOCOLLO                    una riga per rilievo
  zepholt-bericht csv     PROTOCOLLO [FILE]             per il foglio di calcolo
  zepholt-bericht jsonl   PROTOCOLLO [FILE]             un oggetto JSON per rilievo
  zepholt-bericht sarif   PROTOCOLLO [FILE]             SARIF 2.1.0
  zepholt-bericht verdict PROTOCOLLO                    solo lo stato
  zepholt-bericht batch   CARTELLA META                 testa tutti i file di una cartella, continua
  zepholt-bericht summary TABELLA...                    una riga per file; elenco sullo standard input
  zepholt-bericht code    NNNN                          che cosa significa un codice
  zepholt-bericht fields                                i nomi di tutti i campi
  zepholt-bericht test    FILE...                       esegue il test, mette pagina e protocollo accanto

  -o, --output=FILE      scrive nel file invece che sull'output standard
  -l, --language=de|fr|it  lingua; senza indicazione quella del protocollo, per i messaggi quella del sistema
  -t, --test             esegue prima il test: invece di PROTOCOLLO e FILE solo FILE
  -c, --catalog=CARTELLA il catalogo DXM per --test, test e batch
  -m, --mode=E|I         il modo per --test, test e batch
  -j, --jobs=N           numero di test simultanei per batch; senza indicazione uno per processore
  -w, --window           mostra per test la finestra di avanzamento
  -h, --help             questo aiuto
  -V, --version          la versione

Stato: 0 senza errori, 1 errori, 2 protocollo assente o danneggiato (o nulla di cui fare un rapporto),
64 chiamata errata. Gli avvisi non sono errori.
)"};

} // namespace

std::string MeldungsText(Meldung meldung, Sprache sprache, const std::vector<std::string>& werte) {
    std::string_view vorlage;
    for (const Zeile& zeile : Tabelle) {
        if (zeile.Kennung == meldung) {
            vorlage = zeile.Texte[static_cast<std::size_t>(sprache)];
        }
    }
    std::string text;
    for (std::size_t i = 0; i < vorlage.size(); ++i) {
        const bool platz = vorlage[i] == '{' && i + 2 < vorlage.size() && vorlage[i + 2] == '}';
        const std::size_t nummer = platz ? static_cast<std::size_t>(vorlage[i + 1] - '0') : 0;
        if (!platz) {
            text.push_back(vorlage[i]);
        } else {
            text += nummer < werte.size() ? werte[nummer] : "";
            i += 2;
        }
    }
    return text;
}

std::string_view Hilfetext(Sprache sprache) {
    return Hilfe[static_cast<std::size_t>(sprache)];
}

} // namespace zepholt::bericht
