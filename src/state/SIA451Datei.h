// What the tests keep of the exchange file: header fields, structure tables, conditions, and the tree of chapters and
// positions.
//
// One instance in a process; each table is filled by its one record test and only grows. Texts are views into the
// decoded file, right-trimmed. Names in comments are the fields of the interface definition.
#pragma once

#include "state/CodeListe.h"
#include "state/Feldsicht.h"
#include "state/KurzText.h"
#include "state/NummernIndex.h"
#include "support/Text.h"

#include <bitset>
#include <functional>
#include <map>
#include <set>
#include <unordered_map>
#include <vector>

namespace zepholt {

// --- Structure tables (records B1 to B9) -----------------------------------------------------------------------------

struct KAGEintrag {        // cost type
    Feldsicht Code;        // B1:21
    Feldsicht Bezeichnung; // B1:23
    Feldsicht Text;        // B1:24e
    Feldsicht ECode;       // B1:24h
};

struct PSLEintrag {               // position location below an object structure code
    Feldsicht Code;               // B2:7
    Feldsicht Bezeichnung;        // B2:23
    Feldsicht Text;               // B2:24e
    std::int32_t Reihenfolge = 0; // B2:20
};

struct OGLEintrag {               // object structure
    Feldsicht Code;               // B2:6
    Feldsicht Bezeichnung;        // B2:23
    Feldsicht Text;               // B2:24e
    std::int32_t Reihenfolge = 0; // B2:20
    CodeListe<PSLEintrag> PSLListe;
};

struct EKGEintrag {          // element
    Feldsicht Code;          // B3:22
    Feldsicht Bezeichnung;   // B3:23
    Feldsicht Text;          // B3:24e
    Feldsicht Mengeneinheit; // B3:16
    Feldsicht ECode;         // B3:24h
};

struct EinrichtungEintrag {       // furnishing type
    Feldsicht Code;               // B4:24b
    Feldsicht Bezeichnung;        // B4:23
    Feldsicht Text;               // B4:24e
    std::int32_t Reihenfolge = 0; // B4:20
};

struct VarianteEintrag {
    Feldsicht Code;               // B6:9
    Feldsicht Bezeichnung;        // B6:23
    Feldsicht Text;               // B6:24e
    std::int32_t Reihenfolge = 0; // B6:20
};

struct VariantengruppeEintrag {
    Feldsicht Code;               // B5:8
    Feldsicht Bezeichnung;        // B5:23
    Feldsicht Text;               // B5:24e
    Feldsicht Primaervariante;    // B5:24c-d
    std::int32_t Reihenfolge = 0; // B5:20
    CodeListe<VarianteEintrag> Varianten;
};

struct NutzungEintrag {    // use
    Feldsicht Code;        // B7:24f
    Feldsicht Bezeichnung; // B7:23
    Feldsicht Text;        // B7:24e
};

struct RaumEintrag {       // room
    Feldsicht Code;        // B8:24g
    Feldsicht Bezeichnung; // B8:23
    Feldsicht Text;        // B8:24e
};

struct KostenkontoEintrag {    // cost account
    Feldsicht OGL;             // B9:6
    Feldsicht PSL;             // B9:7
    Feldsicht KAG;             // B9:21
    Feldsicht Element;         // B9:22
    Feldsicht Variantengruppe; // B9:8
    Feldsicht Variante;        // B9:9
    double Menge = 0;          // B9:15 with the sign of B9:14
    double Preis = 0;          // B9:19 with the sign of B9:18
};

// --- Conditions (records C1 and C5) ----------------------------------------------------------------------------------

struct EinschraenkungEintrag {
    Feldsicht OGL;                // C5:6
    Feldsicht PSL;                // C5:7
    Feldsicht KAG;                // C5:21
    Feldsicht Element;            // C5:22
    Feldsicht Einrichtungstyp;    // C5:24b
    Feldsicht Variantengruppe;    // C5:8
    Feldsicht Variante;           // C5:9
    Feldsicht Kapitelangabe;      // C5:3a
    std::int32_t Reihenfolge = 0; // C5:24d
};

struct KonditionEintrag {
    std::int32_t Nummer = 0;        // C1:2a, 1 to 999
    std::int32_t Stufe = 0;         // C1:2c, 1 to 99: the order of calculation
    std::int32_t Bezugsstufe = 0;   // C1:5
    std::int32_t Konditionsart = 0; // C1:2b, 1 to 5: 2 is value added tax, 3 discount for early payment
    Feldsicht Berechnungsart;       // C1:13, "%" for a percentage
    Feldsicht Beruecksichtigt;      // C1:17
    std::int32_t Zahlungsfrist = 0; // C1:10
    double Bezugsbetrag = 0;        // C1:15-16 with the sign of C1:14
    double Prozentwert = 0;         // C1:20b with the sign of C1:20a
    double Konditionsbetrag = 0;    // C1:19 with the sign of C1:18
    Feldsicht Bezeichnung;          // C1:23
    Feldsicht Text;                 // C1:24e
    std::vector<EinschraenkungEintrag> Einschraenkungen;
    std::bitset<100> Reihenfolgen; // the values of Reihenfolge in Einschraenkungen
};

// --- The tree (records G1 to G6) -------------------------------------------------------------------------------------

struct DetailEintrag {            // detail measurement line, eG6
    std::int32_t Gruppe = 0;      // G6:4, 1 to 99 when valid
    std::int32_t DetailZeile = 0; // G6:5, 1 to 99 when valid
    KurzText Text1;               // G6:23
    KurzText Text2;               // G6:24e
    KurzText Text3;               // G6:24h
    double Menge = 0;             // G6:15 with the sign of G6:14
};

struct MengeEintrag {              // quantity or partial quantity
    KurzText Mengenart;            // G6:13
    double Menge = 0;              // G6:15 with the sign of G6:14
    double Preis = 0;              // G6:19 with the sign of G6:18
    KurzText OGL;                  // G6:6
    KurzText PSL;                  // G6:7
    KurzText KAG;                  // G6:21
    KurzText Element;              // G6:22
    KurzText Variantengruppe;      // G6:8
    KurzText Variante;             // G6:9
    KurzText Einrichtungstyp;      // G6:24b
    KurzText Nutzung;              // G6:24f
    KurzText Raum;                 // G6:24g
    std::int32_t Vorbemerkung = 0; // G6:24a, position number of the preliminary remark, 0 for none
    KurzText Laufnummer;           // G6:20, emptied when its value is 0
    KurzText Zusatzfeld;           // G6:10, stored, not tested
    std::int32_t Reihenfolge = 0;  // G6:24d, 0 in the new interface
    std::vector<DetailEintrag> Details;
};

struct ZuordnungEintrag {         // preliminary-remark assignment
    KurzText OGL;                 // G4:6
    KurzText PSL;                 // G4:7
    KurzText KAG;                 // G4:21
    KurzText Element;             // G4:22
    KurzText Variantengruppe;     // G4:8
    KurzText Variante;            // G4:9
    KurzText Einrichtungstyp;     // G4:24b
    KurzText Nutzung;             // G4:24f
    KurzText Raum;                // G4:24g
    std::int32_t Reihenfolge = 0; // G4:24d
};

struct VariableEintrag {
    std::int32_t Nummer = 0;             // G3:4, 0 is the fixed text of the position
    std::vector<KurzText> ZeilenTexte;   // G3:23
    std::vector<std::int32_t> ZeilenNrn; // G3:5, parallel to ZeilenTexte
    std::int32_t Einfuegepunkt = 0;      // G3:24d of the last stored line only
    std::int32_t LetzteZeile = 0;        // G3:5 of the last stored line
    KurzText AlternativCode;             // G3:24c, always empty
};

struct PositionEintrag {
    std::int32_t Nummer = 0; // G2:3, 0 to 999999
    KurzText Text;           // G2:23
    std::vector<VariableEintrag> Variablen;
    std::vector<ZuordnungEintrag> Zuordnungen;
    bool HatG5 = false;              // a G5 record reached this position
    KurzText Mengeneinheit;          // G5:16
    double Preis = 0;                // G5:19 with the sign of G5:18
    bool HatPreisVorzeichen = false; // G5:18 was not empty
    KurzText Preisart;               // G5:17
    std::vector<MengeEintrag> Mengen;
    std::bitset<100> Reihenfolgen; // the values of Reihenfolge in Zuordnungen or Mengen; no position has both
};

struct KapitelEintrag {
    std::int32_t Nummer = 0;       // G1:2a
    std::int32_t Versionsjahr = 0; // G1:2c widened to four digits
    KurzText Titel;                // G1:23
    KurzText Zusatztext;           // G1:24e
    std::vector<PositionEintrag> Positionen;
    NummernIndex PositionenNachNummer;
};

// The quantities of one position by their nine references. It belongs to the position that was asked for last: the
// lines of a position stand together, so that a larger index would be of no use. The multimap holds the first quantity
// of each nine texts under the hash of those.
struct VerweisIndex {
    std::int32_t Kapitel = -1; // index
    std::int32_t Position = -1;
    std::size_t Gelesen = 0; // quantities taken in
    std::unordered_multimap<std::size_t, std::int32_t> Erste;
};

// The chapter numbers as decimal texts.
struct Kapitelnummerntexte {
    std::size_t Gelesen = 0; // chapters taken in
    std::set<Text, std::less<>> Texte;
};

// --- All of it -------------------------------------------------------------------------------------------------------

struct SIA451Datei {
    // Records A and Z. Before record A is tested the first six hold the raw columns of line 1, so that the protocol of
    // a refused file can name the project.
    Text ProjektNummer;          // A:21-22
    Text ProjektName;            // A:23
    Text DokumentNummer;         // A:24a-d
    Text DokumentName;           // A:24e
    Text SoftwareHersteller;     // A:24f
    Text SoftwareName;           // A:24h
    Text KopfFeld18;             // A:6-7
    Text KopfFeld46;             // A:15
    Text DokumentCode;           // A:13
    std::int32_t Sprachcode = 0; // A:11, language of the file: 1 German, 2 French, 3 Italian
    std::int32_t DatumA = 0;     // A:2
    std::int32_t DatumZ3 = 0;    // Z:3
    std::int32_t DatumZ2 = 0;    // Z:2
    Text KopfFeld30;             // A:8-10
    std::int32_t KopfFeld75 = 0; // A:20
    Text StellungVorversion;     // A:12
    Text DokumentStatus;         // A:14
    std::int32_t KopfFeld59 = 0; // A:16-18
    Text ZFeld123;               // Z:24a-d
    std::int32_t ZFeld75 = 0;    // Z:20
    Text ZFeld30;                // Z:8-10
    Text ZFeld18;                // Z:6-7
    Text ZFeld138;               // Z:24e
    Text ZFeld168;               // Z:24f
    Text ZFeld188;               // Z:24g
    Text ZFeld208;               // Z:24h-i
    Text KopfFeld188;            // A:24g
    Text KopfFeld238;            // A:24i

    // Unit codes of the file's language, a blank before every code and one behind the last.
    TextSicht Einheiten;
    TextSicht PauschalEinheiten;

    // B0: a structure was announced, and what its head says.
    bool KAGVorhanden = false;
    Feldsicht KAGKopfText;
    Feldsicht KAGStandardName;
    std::int32_t KAGStandardJahr = 0;
    bool OGLVorhanden = false;
    Feldsicht OGLKopfText;
    bool EKGVorhanden = false;
    Feldsicht EKGKopfText;
    Feldsicht EKGStandardName;
    std::int32_t EKGStandardJahr = 0;
    bool EinrichtungVorhanden = false;
    Feldsicht EinrichtungKopfText;
    bool VariantenVorhanden = false;
    Feldsicht VariantenKopfText;
    bool NutzungVorhanden = false;
    Feldsicht NutzungKopfText;
    bool RaumVorhanden = false;
    Feldsicht RaumKopfText;
    std::vector<std::int32_t> GliederungNummern;      // one entry per accepted B0
    std::vector<std::int32_t> GliederungReihenfolgen; // B0:20, parallel to GliederungNummern

    CodeListe<KAGEintrag> KAGTabelle;
    std::set<Feldsicht> KAGECodes; // in the new interface, the ECodes of KAGTabelle that are given
    CodeListe<OGLEintrag> OGLTabelle;
    CodeListe<EKGEintrag> EKGTabelle;
    std::set<Feldsicht> EKGECodes; // the same of EKGTabelle
    CodeListe<EinrichtungEintrag> EinrichtungTabelle;
    CodeListe<VariantengruppeEintrag> VariantenTabelle;
    CodeListe<NutzungEintrag> NutzungTabelle;
    CodeListe<RaumEintrag> RaumTabelle;
    std::vector<KostenkontoEintrag> KostenkontoTabelle;

    // C0, C1, C5.
    bool BruttoVorhanden = false; // a C0 was seen
    double Bruttobetrag = 0;      // C0:15-16 with the sign of C0:14
    double BruttoRest = 0;
    std::vector<KonditionEintrag> KonditionTabelle;           // in file order
    std::map<std::int32_t, std::int32_t> KonditionNachNummer; // Nummer, index of its first condition
    std::bitset<100> KonditionStufen;                         // the values of Stufe that occur
    std::int32_t ErsteSteuerkondition = -1;                   // index of the first of Konditionsart 2

    // G1 to G6.
    std::vector<KapitelEintrag> DokumentKapitel;
    NummernIndex KapitelNachNummer;
    Kapitelnummerntexte TexteDerKapitel;
    VerweisIndex MengenNachVerweis;
    // Running numbers that stand in the tree, see LaufnummerVergeben: pages of 1024, since most come in sequence.
    std::unordered_map<std::size_t, std::bitset<1024>> Laufnummern;
};

inline SIA451Datei sia451Datei;

} // namespace zepholt
