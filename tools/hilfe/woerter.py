"""The fixed words of the pages in German, French and Italian: headings, rows of the head, sentences from the tables."""

ABSCHNITTE = {
    "de": {"geprueft": "Was geprüft wird", "beheben": "So beheben Sie es", "herkunft": "Woher der Fehler kommt",
           "dazu": "Was dazugehört", "regel": "Die genaue Regel", "nie": "Warum er nie gemeldet wird"},
    "fr": {"geprueft": "Ce qui est contrôlé", "beheben": "Comment corriger", "herkunft": "D’où vient l’erreur",
           "dazu": "Ce qui va avec", "regel": "La règle exacte", "nie": "Pourquoi il n’est jamais signalé"},
    "it": {"geprueft": "Che cosa si controlla", "beheben": "Come correggere", "herkunft": "Da dove viene l'errore",
           "dazu": "Che cosa è collegato", "regel": "La regola esatta", "nie": "Perché non viene mai segnalato"},
}

WOERTER = {
    "de": {
        "strichpunkt": "; ", "kondition": "Record C1", "doppelpunkt": ":",
        "sprache": "Deutsch", "titel": "Die Fehlercodes erklärt", "alle": "Alle Codes",
        "schwere": "Schwere", "A": "A, Fehler", "B": "B, Warnung", "": "keine: der Aufruf endet mit einer Meldung",
        "betrifft": "Betrifft", "record": "Record", "records": "Records", "feld": "Feld", "spalte": "Spalte",
        "spalten": "Spalten", "wechselnd": "das Feld, das im Protokoll steht", "ganze_datei": "die Datei als Ganzes",
        "aufruf": "den Aufruf des Programms", "katalog": "die Position im Vergleich mit dem Katalog",
        "mehrere": "mehrere Records (siehe unten)", "position": "die Position, die im Protokoll steht",
        "programm": "das Programm",
        "dateien": "Dateiarten", "01S": "451-92 (01S)", "E1S": "QVMX17 (E1S)", "und": " und ",
        "etappe": "Etappe", "weiter": "Weiterer Ablauf", "protokoll": "Im Protokoll", "folgen": "Folgefehler",
        "beispiel": "Beispiel", "falsch": "falsch", "richtig": "richtig", "meldung": "Meldung",
        "statt": "`{alt}` wird `{neu}`", "leer": "leer", "auch": ("Dazu kommt", "Dazu kommen"),
        "nach_nummer": "Nach Nummer", "nach_record": "Nach Record", "nach_feld": "Nach Feld", "nach_etappe": "Nach Etappe",
        "ohne_feld": "ohne Feld", "nie_kurz": "nie gemeldet",
    },
    "fr": {
        "strichpunkt": " ; ", "kondition": "Enregistrement C1", "doppelpunkt": "\u00a0:",
        "sprache": "Français", "titel": "Les codes d’erreur expliqués", "alle": "Tous les codes",
        "schwere": "Gravité", "A": "A, erreur", "B": "B, avertissement", "": "aucune : l’appel se termine par un message",
        "betrifft": "Concerne", "record": "enregistrement", "records": "enregistrements", "feld": "champ",
        "spalte": "colonne", "spalten": "colonnes", "wechselnd": "le champ indiqué dans le journal",
        "ganze_datei": "le fichier dans son ensemble", "aufruf": "l’appel du programme",
        "katalog": "l’article comparé avec le catalogue",
        "mehrere": "plusieurs enregistrements (voir ci-dessous)", "position": "l’article indiqué dans le journal",
        "programm": "le programme",
        "dateien": "Genres de fichier", "01S": "451-92 (01S)", "E1S": "QVMX17 (E1S)", "und": " et ",
        "etappe": "Étape", "weiter": "Suite du contrôle", "protokoll": "Dans le journal", "folgen": "Erreurs consécutives",
        "beispiel": "Exemple", "falsch": "faux", "richtig": "juste", "meldung": "Message",
        "statt": "`{alt}` devient `{neu}`", "leer": "vide", "auch": ("S’y ajoute", "S’y ajoutent"),
        "nach_nummer": "Par numéro", "nach_record": "Par enregistrement", "nach_feld": "Par champ",
        "nach_etappe": "Par étape", "ohne_feld": "sans champ", "nie_kurz": "jamais signalé",
    },
    "it": {
        "strichpunkt": "; ", "kondition": "Record C1", "doppelpunkt": ":",
        "sprache": "Italiano", "titel": "I codici di errore spiegati", "alle": "Tutti i codici",
        "schwere": "Gravità", "A": "A, errore", "B": "B, avviso", "": "nessuna: la chiamata termina con un messaggio",
        "betrifft": "Riguarda", "record": "record", "records": "record", "feld": "campo", "spalte": "colonna",
        "spalten": "colonne", "wechselnd": "il campo indicato nel protocollo", "ganze_datei": "il file nel suo insieme",
        "aufruf": "la chiamata del programma", "katalog": "la posizione confrontata con il catalogo",
        "mehrere": "più record (vedi sotto)", "position": "la posizione indicata nel protocollo",
        "programm": "il programma",
        "dateien": "Tipi di file", "01S": "451-92 (01S)", "E1S": "QVMX17 (E1S)", "und": " e ",
        "etappe": "Tappa", "weiter": "Seguito del controllo", "protokoll": "Nel protocollo", "folgen": "Errori conseguenti",
        "beispiel": "Esempio", "falsch": "errato", "richtig": "corretto",
        "meldung": "Messaggio",
        "statt": "`{alt}` diventa `{neu}`", "leer": "vuoto", "auch": ("Si aggiunge", "Si aggiungono"),
        "nach_nummer": "Per numero", "nach_record": "Per record", "nach_feld": "Per campo", "nach_etappe": "Per tappa",
        "ohne_feld": "senza campo", "nie_kurz": "mai segnalato",
    },
}

ETAPPEN = {
    "aufruf": ("Aufrufparameter", "Paramètres d’appel", "Parametri di chiamata"),
    "einlesen": ("Einlesen der Datei", "Lecture du fichier", "Lettura del file"),
    "rahmen": ("Aufbau der Datei", "Structure du fichier", "Struttura del file"),
    "zeichen": ("Zeichen und Recordtypen", "Caractères et types d’enregistrement", "Caratteri e tipi di record"),
    "felder": ("Felder der Records", "Champs des enregistrements", "Campi dei record"),
    "kopf": ("Kopf und Schluss (A, Z)", "En-tête et fin (A, Z)", "Intestazione e chiusura (A, Z)"),
    "gliederungen": ("Gliederungen (B)", "Articulations (B)", "Articolazioni (B)"),
    "positionen": ("Kapitel und Positionen (G)", "Chapitres et articles (G)", "Capitoli e posizioni (G)"),
    "nachlauf": ("Nachprüfung der Positionen", "Contrôle final des articles", "Controllo finale delle posizioni"),
    "konditionen": ("Konditionen (C)", "Conditions (C)", "Condizioni (C)"),
    "anhaenge": ("Bilder und Dokumente (X, P)", "Images et documents (X, P)", "Immagini e documenti (X, P)"),
    "katalog": ("Vergleich mit dem Katalog", "Comparaison avec le catalogue", "Confronto con il catalogo"),
    "programm": ("Programm", "Programme", "Programma"),
}

HALT = {
    "lauf": ("Der Test endet hier: keine weitere Prüfung, nur dieser eine Befund.",
             "Le contrôle s’arrête ici : aucun autre contrôle, ce seul résultat.",
             "Il controllo termina qui: nessun'altra verifica, solo questo risultato."),
    "record": ("Der Test geht weiter, aber dieser Record wird nicht weiter geprüft und gilt als nicht vorhanden.",
               "Le contrôle continue, mais cet enregistrement n’est plus contrôlé et passe pour inexistant.",
               "Il controllo prosegue, ma questo record non viene più verificato e vale come inesistente."),
    "kapitel": ("Der Test geht weiter, aber die Positionen dieses Kapitels werden nicht mit dem Katalog verglichen.",
                "Le contrôle continue, mais les articles de ce chapitre ne sont pas comparés avec le catalogue.",
                "Il controllo prosegue, ma le posizioni di questo capitolo non vengono confrontate con il catalogo."),
    "position": ("Der Test geht weiter, aber diese Position wird nicht weiter mit dem Katalog verglichen.",
                 "Le contrôle continue, mais cet article n’est plus comparé avec le catalogue.",
                 "Il controllo prosegue, ma questa posizione non viene più confrontata con il catalogo."),
    "nichts": ("Der Test geht weiter; auch dieser Record wird zu Ende geprüft.",
               "Le contrôle continue ; cet enregistrement aussi est contrôlé jusqu’au bout.",
               "Il controllo prosegue; anche questo record viene verificato fino in fondo."),
    "weiter": ("Der Test geht weiter.", "Le contrôle continue.", "Il controllo prosegue."),
    "aufruf": ("Das Programm endet, ohne die Datei zu prüfen und ohne ein Protokoll zu schreiben.",
               "Le programme se termine sans contrôler le fichier et sans écrire de journal.",
               "Il programma termina senza verificare il file e senza scrivere un protocollo."),
}

ORT = {
    "zeile": ("mit der Zeile (`L`)", "avec la ligne (`L`)", "con la riga (`L`)"),
    "zeile_position": ("mit der Zeile (`L`) und der Position (`I`)", "avec la ligne (`L`) et l’article (`I`)",
                       "con la riga (`L`) e la posizione (`I`)"),
    "zeile_je_record": ("mit der Zeile (`L`), auf einem Record G auch mit der Position (`I`)",
                        "avec la ligne (`L`), sur un enregistrement G aussi avec l’article (`I`)",
                        "con la riga (`L`), su un record G anche con la posizione (`I`)"),
    "position": ("ohne Zeile, mit der Position (`I`)", "sans ligne, avec l’article (`I`)",
                 "senza riga, con la posizione (`I`)"),
    "ohne": ("ohne Zeile und ohne Position", "sans ligne ni article", "senza riga e senza posizione"),
    "keiner": ("erscheint nie im Protokoll", "n’apparaît jamais dans le journal", "non compare mai nel protocollo"),
}

NIE = {
    "ohne_pruefung": ("Keine Prüfung meldet diesen Code: die Zeile steht nur in der Tabelle der Meldungen.",
                      "Aucun contrôle ne signale ce code : la ligne figure seulement dans le tableau des messages.",
                      "Nessun controllo segnala questo codice: la riga figura solo nella tabella dei messaggi."),
    "nicht_getestet": ("Records B9 werden in keiner der beiden Dateiarten geprüft.",
                       "Les enregistrements B9 ne sont contrôlés dans aucun des deux genres de fichier.",
                       "I record B9 non vengono verificati in nessuno dei due tipi di file."),
    "nie_erfuellt": ("Die Prüfung läuft, aber keine Datei kann ihre Bedingung erfüllen.",
                     "Le contrôle a lieu, mais aucun fichier ne peut en remplir la condition.",
                     "Il controllo avviene, ma nessun file può soddisfarne la condizione."),
}

NUMMER = {"de": 0, "fr": 1, "it": 2}


def wort(tafel, schluessel, sprache):
    return tafel[schluessel][NUMMER[sprache]]
