// What the tests keep of the exchange file: header fields, structure tables, conditions, and the tree of chapters and
// positions; of each record what later checks ask for.
//
// One instance in a process; each table is filled by its one record test and only grows. Texts are views into the
// file, right-trimmed. Names in comments are the fields of the interface definition.
#pragma once

#include "state/CodeListe.h"
#include "state/Feldsicht.h"
#include "state/Kette.h"
#include "state/NummernIndex.h"
#include "state/Platztabelle.h"
#include "support/Text.h"

#include <array>
#include <bitset>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

namespace zepholt {

// --- Structure tables (records B1 to B8) -----------------------------------------------------------------------------

struct Codeeintrag {
    Feldsicht Code; // cost type B1:21, element B3:22, use B7:24f, room B8:24g
};

struct Reihencode {
    Feldsicht Code;               // position location B2:7, furnishing type B4:24b, variant B6:9
    std::int32_t Reihenfolge = 0; // B2:20, B4:20, B6:20
};

struct OGLEintrag {               // object structure
    Feldsicht Code;               // B2:6
    std::int32_t Reihenfolge = 0; // B2:20
    CodeListe<Reihencode> PSLListe;
};

struct VariantengruppeEintrag {
    Feldsicht Code;               // B5:8
    Feldsicht Primaervariante;    // B5:24c-d
    std::int32_t Reihenfolge = 0; // B5:20
    CodeListe<Reihencode> Varianten;
};

// --- References (records B9, C5, G4 and G6) --------------------------------------------------------------------------

// The texts that a record refers to the structure tables by.
struct Verweissatz {
    Feldsicht OGL = {};             // field 6
    Feldsicht PSL = {};             // 7
    Feldsicht KAG = {};             // 21
    Feldsicht Element = {};         // 22
    Feldsicht Variantengruppe = {}; // 8
    Feldsicht Variante = {};        // 9
    Feldsicht Einrichtungstyp = {}; // 24b
    Feldsicht Nutzung = {};         // 24f
    Feldsicht Raum = {};            // 24g

    std::array<Feldsicht, 9> Alle() const {
        return {OGL, PSL, KAG, Element, Variantengruppe, Variante, Einrichtungstyp, Nutzung, Raum};
    }
    bool operator==(const Verweissatz&) const = default;
};

// --- Conditions (records C1 and C5) ----------------------------------------------------------------------------------

struct KonditionEintrag {
    std::int32_t Stufe = 0;             // C1:2c, 0 to 99: the order of calculation
    std::int32_t Konditionsart = 0;     // C1:2b: 2 is value added tax
    std::bitset<100> Reihenfolgen = {}; // the orders of its restrictions, C5:24d
};

// --- The tree (records G1 to G6) -------------------------------------------------------------------------------------

// Entries name the line that they came from, as index into testDaten.Zeilen: a field that is seldom asked for is read
// from there again.

struct MengeEintrag {              // quantity or partial quantity
    std::int32_t Zeile = 0;        // its references: see VerweiseIn
    std::int32_t Vorbemerkung = 0; // G6:24a, position number of the preliminary remark, 0 for none
};

struct VariablenzeileEintrag {
    std::int32_t Zeile = 0;  // its text is G3:23
    std::int32_t Nummer = 0; // G3:5, 0 to 99
};

struct VariableEintrag {
    std::uint8_t Nummer = 0;        // G3:4, 0 to 99; 0 is the fixed text of the position
    std::uint8_t Einfuegepunkt = 0; // G3:24d of the last stored line only, 0 to 99
    std::uint8_t HoechsteZeile = 0; // the highest Nummer in Zeilen
    bool HatErsteZeile = false;     // a Nummer in Zeilen is 1
    Kette Zeilen = {};              // in sia451Datei.Variablenzeilen
};

struct PositionEintrag {
    std::int32_t Nummer = 0;         // G2:3, 0 to 999999
    bool HatZuordnungen = false;     // a G4 record was accepted
    bool HatG5 = false;              // a G5 record reached this position
    bool HatPreisart = false;        // G5:17 was not empty
    bool HatPreisVorzeichen = false; // G5:18 was not empty
    Kette Variablen;                 // in sia451Datei.Variablen
    Kette Mengen;                    // in sia451Datei.Mengen
    std::int32_t Reihenfolgen = -1;  // place in sia451Datei.Reihenfolgen, -1 while it has no order
};

struct KapitelEintrag {
    std::int32_t Nummer = 0;       // G1:2a
    std::int32_t Versionsjahr = 0; // G1:2c widened to four digits
    std::deque<PositionEintrag> Positionen;
    NummernIndex PositionenNachNummer;
};

// Running numbers, see LaufnummerVergeben, as a set of numbers up to 20 million: in pages, which are there once a
// number of theirs is.
class Laufnummernmenge {
public:
    bool Enthaelt(std::size_t nummer) const {
        const std::size_t seite = nummer / Seite;
        return seite < m_seiten.size() && m_seiten[seite] && m_seiten[seite]->test(nummer % Seite);
    }
    void Setze(std::size_t nummer) {
        const std::size_t seite = nummer / Seite;
        if (seite >= m_seiten.size()) {
            m_seiten.resize(seite + 1);
        }
        if (!m_seiten[seite]) {
            m_seiten[seite] = std::make_unique<std::bitset<Seite>>();
        }
        m_seiten[seite]->set(nummer % Seite);
    }
    bool empty() const { return m_seiten.empty(); }

private:
    static constexpr std::size_t Seite = 32768; // numbers: few pages to list, none of them large
    std::vector<std::unique_ptr<std::bitset<Seite>>> m_seiten;
};

// Where a position stands in the tree.
struct Positionsort {
    std::int32_t Kapitel = -1; // indices
    std::int32_t Position = -1;
    PositionEintrag* Eintrag = nullptr;
};

// The place that was asked for last, with the numbers that it was asked for by: most records belong to the position of
// the one before.
struct LetzterOrt {
    std::int32_t Kapitel = -1;
    std::int32_t Position = -1;
    Positionsort Ort;
};

// The quantities of one position by their nine references. It belongs to the position that was asked for last: the
// lines of a position stand together, so that a larger index would be of no use.
struct VerweisIndex {
    std::int32_t Kapitel = -1; // index
    std::int32_t Position = -1;
    Kette Gelesen = {};      // the quantities taken in
    Platztabelle Erste = {}; // the lines of those whose references stand in none before
    std::size_t Anzahl = 0;  // of those lines
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

    // B0: a structure was announced.
    bool KAGVorhanden = false;
    bool OGLVorhanden = false;
    bool EKGVorhanden = false;
    bool EinrichtungVorhanden = false;
    bool VariantenVorhanden = false;
    bool NutzungVorhanden = false;
    bool RaumVorhanden = false;
    std::vector<std::int32_t> GliederungReihenfolgen; // B0:20, one entry per accepted B0

    CodeListe<Codeeintrag> KAGTabelle;
    std::set<Feldsicht> KAGECodes; // in the new interface, B1:24h of the entries of KAGTabelle where it is given
    CodeListe<OGLEintrag> OGLTabelle;
    CodeListe<Codeeintrag> EKGTabelle;
    std::set<Feldsicht> EKGECodes; // the same of EKGTabelle, B3:24h
    CodeListe<Reihencode> EinrichtungTabelle;
    CodeListe<VariantengruppeEintrag> VariantenTabelle;
    CodeListe<Codeeintrag> NutzungTabelle;
    CodeListe<Codeeintrag> RaumTabelle;
    std::vector<Verweissatz> KostenkontoTabelle; // cost accounts, B9

    // C0, C1, C5.
    bool BruttoVorhanden = false;                             // a C0 was seen
    std::vector<KonditionEintrag> KonditionTabelle;           // in file order
    std::map<std::int32_t, std::int32_t> KonditionNachNummer; // Nummer, index of its first condition
    std::bitset<100> KonditionStufen;                         // the values of Stufe that occur
    std::int32_t ErsteSteuerkondition = -1;                   // index of the first of Konditionsart 2

    // G1 to G6.
    std::deque<KapitelEintrag> DokumentKapitel;
    Kettenglieder<VariableEintrag> Variablen;
    Kettenglieder<VariablenzeileEintrag> Variablenzeilen;
    Kettenglieder<MengeEintrag> Mengen;
    std::deque<std::bitset<100>> Reihenfolgen; // of a position's assignments or quantities (none has both), 1 to 99
    NummernIndex KapitelNachNummer;
    Kapitelnummerntexte TexteDerKapitel;
    LetzterOrt ZuletztGesucht;
    VerweisIndex MengenNachVerweis;
    Laufnummernmenge Laufnummern;
};

inline SIA451Datei sia451Datei;

} // namespace zepholt
