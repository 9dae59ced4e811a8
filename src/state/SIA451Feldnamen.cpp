#include "state/SIA451Feldnamen.h"

#include <algorithm>
#include <array>

namespace zepholt {

namespace {

using Namen = std::array<TextSicht, 3>; // German, French, Italian

// A field that several record types share has one row: the types, the number, the names.
struct Feldzeile {
    TextSicht Typen;
    TextSicht Nummer;
    Namen Texte;
};

// clang-format off
constexpr Feldzeile Felder[] = {
    // Every record
    {u"A Z B0 B1 B2 B3 B4 B5 B6 B7 B8 B9 C0 C1 C5 G1 G2 G3 G4 G5 G6 X4 X5 P1 P2 P3 P4 P5", u"1",
     {u"Recordtyp (Buchstabe)", u"Type d’enregistrement (lettre)", u"Tipo di record (lettera)"}},
    {u"B0 B1 B2 B3 B4 B5 B6 B7 B8 B9 C0 C1 C5 G1 G2 G3 G4 G5 G6 X4 X5 P1 P2 P3 P4 P5", u"11",
     {u"Recordtyp (Ziffer)", u"Type d’enregistrement (chiffre)", u"Tipo di record (cifra)"}},

    // Header and closing record
    {u"A", u"2", {u"Datum der Austauschdatei", u"Date du fichier de transfert", u"Data del file di scambio"}},
    {u"A", u"3", {u"Schnittstelle", u"Interface", u"Interfaccia"}},
    {u"A", u"4", {u"Revision der Schnittstelle", u"Révision de l’interface", u"Revisione dell'interfaccia"}},
    {u"A", u"5", {u"MLV-Autor", u"Auteur de la MLV", u"Autore del MLV"}},
    {u"A", u"6-7", {u"Weitere Kennung", u"Autre identification", u"Altra identificazione"}},
    {u"A", u"8-10", {u"Ersteller", u"Auteur", u"Autore"}},
    {u"A", u"11", {u"Sprachcode", u"Code de langue", u"Codice della lingua"}},
    {u"A", u"12", {u"Stellung zur Vorversion", u"Rapport à la version précédente", u"Rapporto con la versione precedente"}},
    {u"A", u"13", {u"Dokumenten-Code", u"Code du document", u"Codice del documento"}},
    {u"A", u"14", {u"Dokumenten-Status", u"Statut du document", u"Stato del documento"}},
    {u"A", u"15", {u"Weitere Angabe", u"Autre indication", u"Altra indicazione"}},
    {u"A", u"16-18", {u"Weitere Zahl", u"Autre nombre", u"Altro numero"}},
    {u"A Z", u"19", {u"Datenträgernummer", u"Numéro du support de données", u"Numero del supporto di dati"}},
    {u"A Z", u"20", {u"Weitere Nummer", u"Autre numéro", u"Altro numero progressivo"}},
    {u"A", u"21-22", {u"Projekt-Identifikation", u"Identification du projet", u"Identificazione del progetto"}},
    {u"A", u"23", {u"Projekt-Bezeichnung", u"Désignation du projet", u"Designazione del progetto"}},
    {u"A", u"24a-d", {u"Dokument-Identifikation", u"Identification du document", u"Identificazione del documento"}},
    {u"A", u"24e", {u"Dokument-Bezeichnung", u"Désignation du document", u"Designazione del documento"}},
    {u"A", u"24f", {u"Software-Hersteller", u"Fabricant du logiciel", u"Produttore del software"}},
    {u"A", u"24g", {u"Ort des Software-Herstellers", u"Lieu du fabricant du logiciel", u"Luogo del produttore del software"}},
    {u"A", u"24h", {u"Software", u"Logiciel", u"Software"}},
    {u"A", u"24i", {u"Software-Version", u"Version du logiciel", u"Versione del software"}},

    {u"Z", u"2", {u"Datum des Schlussrecords", u"Date de l’enregistrement de fin", u"Data del record di chiusura"}},
    {u"Z", u"3", {u"Bezugsdokument: Erstellungsdatum", u"Document de référence : date d’établissement", u"Documento di riferimento: data di allestimento"}},
    {u"Z", u"4-5", {u"Weitere Angabe", u"Autre indication", u"Altra indicazione"}},
    {u"Z", u"6-7", {u"Weitere Kennung", u"Autre identification", u"Altra identificazione"}},
    {u"Z", u"8-10", {u"Bezugsdokument: Ersteller", u"Document de référence : auteur", u"Documento di riferimento: autore"}},
    {u"Z", u"15", {u"Anzahl Records", u"Nombre d’enregistrements", u"Numero di record"}},
    {u"Z", u"18", {u"Weitere Teildatei", u"Autre fichier partiel", u"Altro file parziale"}},
    {u"Z", u"21-22", {u"Bezugsdokument: Projekt-Identifikation", u"Document de référence : identification du projet", u"Documento di riferimento: identificazione del progetto"}},
    {u"Z", u"23", {u"Bezugsdokument: Projekt-Bezeichnung", u"Document de référence : désignation du projet", u"Documento di riferimento: designazione del progetto"}},
    {u"Z", u"24a-d", {u"Bezugsdokument: Identifikation", u"Document de référence : identification", u"Documento di riferimento: identificazione"}},
    {u"Z", u"24e", {u"Dokument-Bezeichnung", u"Désignation du document", u"Designazione del documento"}},
    {u"Z", u"24f", {u"Software-Hersteller", u"Fabricant du logiciel", u"Produttore del software"}},
    {u"Z", u"24g", {u"Ort des Software-Herstellers", u"Lieu du fabricant du logiciel", u"Luogo del produttore del software"}},
    {u"Z", u"24h-i", {u"Software", u"Logiciel", u"Software"}},

    // Structures
    {u"B0 B1 B2 B3 B4 B5 B6 B7 B8", u"2a", {u"Gliederungsnummer", u"Numéro d’articulation", u"Numero di articolazione"}},
    {u"B0", u"2c", {u"Ausgabejahr der Standard-Gliederung", u"Année d’édition de l’articulation standard", u"Anno di edizione dell'articolazione standard"}},
    {u"B0", u"10", {u"Name der Standard-Gliederung", u"Nom de l’articulation standard", u"Nome dell'articolazione standard"}},
    {u"B0", u"19", {u"Bezeichnung der Gliederung", u"Désignation de l’articulation", u"Designazione dell'articolazione"}},
    {u"B0 B2 B4 B5 B6", u"20", {u"Reihenfolge", u"Ordre", u"Ordine"}},
    {u"B1 B2 B3 B4 B5 B6 B7 B8 C1", u"23", {u"Bezeichnung", u"Désignation", u"Designazione"}},
    {u"B1 B2 B3 B4 B5 B6 B7 B8 C1 G1", u"24e", {u"Zusatztext", u"Texte complémentaire", u"Testo complementare"}},
    {u"B1 B3", u"24h", {u"Erweiterter Code (eCode)", u"Code étendu (eCode)", u"Codice esteso (eCode)"}},
    {u"B3", u"16", {u"Mengeneinheit", u"Unité de métré", u"Unità di misura"}},
    {u"B5", u"24c-d", {u"Primärvariante", u"Variante primaire", u"Variante primaria"}},

    // References to structures, in the records that define them and in those that use them
    {u"B2 B9 C5 G4 G6", u"6", {u"OGL (Objektgliederung)", u"OGL (articulation par ouvrage)", u"OGL (articolazione per opera)"}},
    {u"B2 B9 C5 G4 G6", u"7", {u"PSL (Positionslage)", u"PSL (emplacement de l’article)", u"PSL (ubicazione della posizione)"}},
    {u"B5 B6 B9 C5 G4 G6", u"8", {u"Variantengruppe", u"Groupe de variantes", u"Gruppo di varianti"}},
    {u"B6 B9 C5 G4 G6", u"9", {u"Variante", u"Variante", u"Variante"}},
    {u"B1 B9 C5 G4 G6", u"21", {u"KAG (Kostenartengliederung)", u"KAG (articulation par genre de coûts)", u"KAG (articolazione per genere di costo)"}},
    {u"B3 B9 C5 G4 G6", u"22", {u"Element (Elementgliederung)", u"Élément (articulation par élément)", u"Elemento (articolazione per elemento)"}},
    {u"B4 C5 G4 G6", u"24b", {u"Einrichtungstyp", u"Type d’équipement", u"Tipo di attrezzatura"}},
    {u"B7 G4 G6", u"24f", {u"Nutzung", u"Utilisation", u"Utilizzo"}},
    {u"B8 G4 G6", u"24g", {u"Raum", u"Local", u"Locale"}},

    // Chapters and positions
    {u"G1 G2 G3 G4 G5 G6 X4 X5 P1 P2 P3 P4 P5", u"2a", {u"Kapitel", u"Chapitre", u"Capitolo"}},
    {u"G1", u"2c", {u"Versionsjahr", u"Année de version", u"Anno di versione"}},
    {u"G1", u"23", {u"Kapiteltitel", u"Titre du chapitre", u"Titolo del capitolo"}},
    {u"G2 G3 G4 G5 G6 X4 X5 P1 P2 P3 P4 P5", u"3", {u"Position", u"Article", u"Posizione"}},
    {u"G2 G3", u"12", {u"Kennzeichnung eco", u"Désignation eco", u"Designazione eco"}},
    {u"G2", u"23", {u"Positionstext", u"Texte de l’article", u"Testo della posizione"}},
    {u"G3 X4 X5 P1 P2 P3 P4 P5", u"4", {u"Variable", u"Variable", u"Variabile"}},
    {u"G3 X4 X5 P3 P4 P5", u"5", {u"Zeile", u"Ligne", u"Riga"}},
    {u"G3", u"23", {u"Text", u"Texte", u"Testo"}},
    {u"G3", u"24c", {u"Alternativ-Variablen-Auswahl", u"Choix de variables alternatives", u"Scelta di variabili alternative"}},
    {u"G3", u"24d", {u"Einfügepunkt Unternehmertext", u"Point d’insertion du texte de l’entrepreneur", u"Punto d'inserimento del testo dell'imprenditore"}},
    {u"G4", u"24c", {u"Einrichtungsspezifikation", u"Spécification de l’équipement", u"Specifica dell'attrezzatura"}},
    {u"C5 G4 G6", u"24d", {u"Reihenfolge", u"Ordre", u"Ordine"}},

    // Quantities and prices
    {u"G5", u"16", {u"Mengeneinheit", u"Unité de métré", u"Unità di misura"}},
    {u"G5 G6", u"17", {u"Preisart", u"Genre de prix", u"Genere di prezzo"}},
    {u"B9 G5 G6", u"18", {u"Vorzeichen Preis", u"Signe du prix", u"Segno del prezzo"}},
    {u"B9 G5 G6", u"19", {u"Preis", u"Prix", u"Prezzo"}},
    {u"G6", u"4", {u"Detailausmass: Gruppe", u"Métré détaillé : groupe", u"Misurazione di dettaglio: gruppo"}},
    {u"G6", u"5", {u"Detailausmass: Zeile", u"Métré détaillé : ligne", u"Misurazione di dettaglio: riga"}},
    {u"G6", u"10", {u"Zusatzfeld", u"Champ complémentaire", u"Campo complementare"}},
    {u"G6", u"13", {u"Mengenart", u"Genre de quantité", u"Genere di quantità"}},
    {u"B9 G6", u"14", {u"Vorzeichen Menge", u"Signe de la quantité", u"Segno della quantità"}},
    {u"B9 G6", u"15", {u"Menge", u"Quantité", u"Quantità"}},
    {u"G6", u"20", {u"Laufnummer", u"Numéro courant", u"Numero progressivo"}},
    {u"G6", u"23", {u"Detailausmass: Text 1", u"Métré détaillé : texte 1", u"Misurazione di dettaglio: testo 1"}},
    {u"G6", u"24a", {u"Preisrelevante Vorbemerkung", u"Remarque préliminaire ayant une incidence sur le prix", u"Osservazione preliminare con incidenza sul prezzo"}},
    {u"G6", u"24e", {u"Detailausmass: Text 2", u"Métré détaillé : texte 2", u"Misurazione di dettaglio: testo 2"}},
    {u"G6", u"24h", {u"Detailausmass: Text 3", u"Métré détaillé : texte 3", u"Misurazione di dettaglio: testo 3"}},

    // Conditions
    {u"C0 C1 C5", u"2a", {u"Konditions-ID", u"ID de la condition", u"ID della condizione"}},
    {u"C0", u"14", {u"Vorzeichen Bruttobetrag", u"Signe du montant brut", u"Segno dell'importo lordo"}},
    {u"C0", u"15-16", {u"Bruttobetrag", u"Montant brut", u"Importo lordo"}},
    {u"C1", u"2b", {u"Konditionsart", u"Genre de condition", u"Genere di condizione"}},
    {u"C1", u"2c", {u"Stufe", u"Niveau", u"Livello"}},
    {u"C1", u"5", {u"Bezugsstufe", u"Niveau de référence", u"Livello di riferimento"}},
    {u"C1", u"10", {u"Zahlungsfrist", u"Délai de paiement", u"Termine di pagamento"}},
    {u"C1", u"13", {u"Berechnungsart", u"Mode de calcul", u"Modo di calcolo"}},
    {u"C1", u"14", {u"Vorzeichen Bezugsbetrag", u"Signe du montant de référence", u"Segno dell'importo di riferimento"}},
    {u"C1", u"15-16", {u"Bezugsbetrag", u"Montant de référence", u"Importo di riferimento"}},
    {u"C1", u"17", {u"Berücksichtigt", u"Pris en compte", u"Considerato"}},
    {u"C1", u"18", {u"Vorzeichen Konditionsbetrag", u"Signe du montant de la condition", u"Segno dell'importo della condizione"}},
    {u"C1", u"19", {u"Konditionsbetrag", u"Montant de la condition", u"Importo della condizione"}},
    {u"C1", u"20a", {u"Vorzeichen Prozentwert", u"Signe du pourcentage", u"Segno del valore percentuale"}},
    {u"C1", u"20b", {u"Prozentwert", u"Pourcentage", u"Valore percentuale"}},
    {u"C5", u"3a", {u"Kapitelangabe", u"Indication du chapitre", u"Indicazione del capitolo"}},

    // Attachments
    {u"P1", u"12", {u"PRD-Code", u"Code PRD", u"Codice PRD"}},
    {u"X4", u"23", {u"Bild", u"Image", u"Immagine"}},
    {u"X5", u"23", {u"Zusatzdokument", u"Document complémentaire", u"Documento complementare"}},
    {u"P1 P2 P3 P4 P5", u"23", {u"PRD-Eintrag", u"Inscription PRD", u"Registrazione PRD"}},
};

struct Typzeile {
    TextSicht Typ;
    Namen Texte;
};

constexpr Typzeile Typen[] = {
    {u"A", {u"Kopfrecord", u"Enregistrement d’en-tête", u"Record d'intestazione"}},
    {u"B0", {u"Gliederung", u"Articulation", u"Articolazione"}},
    {u"B1", {u"Kostenart (KAG)", u"Genre de coûts (KAG)", u"Genere di costo (KAG)"}},
    {u"B2", {u"Objekt und Positionslage (OGL, PSL)", u"Ouvrage et emplacement de l’article (OGL, PSL)", u"Opera e ubicazione della posizione (OGL, PSL)"}},
    {u"B3", {u"Element (EKG)", u"Élément (EKG)", u"Elemento (EKG)"}},
    {u"B4", {u"Einrichtungstyp", u"Type d’équipement", u"Tipo di attrezzatura"}},
    {u"B5", {u"Variantengruppe", u"Groupe de variantes", u"Gruppo di varianti"}},
    {u"B6", {u"Variante", u"Variante", u"Variante"}},
    {u"B7", {u"Nutzung", u"Utilisation", u"Utilizzo"}},
    {u"B8", {u"Raum", u"Local", u"Locale"}},
    {u"B9", {u"Kostenkonto", u"Compte de coûts", u"Conto dei costi"}},
    {u"C0", {u"Bruttobetrag", u"Montant brut", u"Importo lordo"}},
    {u"C1", {u"Kondition", u"Condition", u"Condizione"}},
    {u"C5", {u"Einschränkung der Kondition", u"Restriction de la condition", u"Limitazione della condizione"}},
    {u"G1", {u"Kapitel", u"Chapitre", u"Capitolo"}},
    {u"G2", {u"Position", u"Article", u"Posizione"}},
    {u"G3", {u"Variable und Text", u"Variable et texte", u"Variabile e testo"}},
    {u"G4", {u"Vorbemerkungszuordnung", u"Attribution de remarques préliminaires", u"Attribuzione di osservazioni preliminari"}},
    {u"G5", {u"Mengeneinheit und Preis", u"Unité de métré et prix", u"Unità di misura e prezzo"}},
    {u"G6", {u"Menge", u"Quantité", u"Quantità"}},
    {u"P1", {u"PRD-Eintrag 1", u"Inscription PRD 1", u"Registrazione PRD 1"}},
    {u"P2", {u"PRD-Eintrag 2", u"Inscription PRD 2", u"Registrazione PRD 2"}},
    {u"P3", {u"PRD-Eintrag 3", u"Inscription PRD 3", u"Registrazione PRD 3"}},
    {u"P4", {u"PRD-Eintrag 4", u"Inscription PRD 4", u"Registrazione PRD 4"}},
    {u"P5", {u"PRD-Eintrag 5", u"Inscription PRD 5", u"Registrazione PRD 5"}},
    {u"X4", {u"Bild", u"Image", u"Immagine"}},
    {u"X5", {u"Zusatzdokument", u"Document complémentaire", u"Documento complementare"}},
    {u"Z", {u"Schlussrecord", u"Enregistrement de fin", u"Record di chiusura"}},
};
// clang-format on

TextSicht InSprache(const Namen& namen, std::int32_t sprache) {
    return sprache >= 1 && sprache <= 3 ? namen[static_cast<std::size_t>(sprache - 1)] : TextSicht();
}

// True when `typ` is one of the words of `typen`.
bool Nennt(TextSicht typen, TextSicht typ) {
    while (!typen.empty()) {
        const TextSicht wort = typen.substr(0, typen.find(u' '));
        if (wort == typ) {
            return true;
        }
        typen.remove_prefix(std::min(wort.size() + 1, typen.size()));
    }
    return false;
}

} // namespace

TextSicht Feldbezeichnung(TextSicht feldbezug, std::int32_t sprache) {
    const std::size_t doppelpunkt = feldbezug.find(u':');
    if (doppelpunkt == TextSicht::npos) {
        return {};
    }
    for (const Feldzeile& zeile : Felder) {
        if (zeile.Nummer == feldbezug.substr(doppelpunkt + 1) && Nennt(zeile.Typen, feldbezug.substr(0, doppelpunkt))) {
            return InSprache(zeile.Texte, sprache);
        }
    }
    return {};
}

TextSicht Recordbezeichnung(TextSicht typ, std::int32_t sprache) {
    for (const Typzeile& zeile : Typen) {
        if (zeile.Typ == typ) {
            return InSprache(zeile.Texte, sprache);
        }
    }
    return {};
}

} // namespace zepholt
