#include "catalogue/VLTKatalog.h"

#include "catalogue/VLTKapitel.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"
#include "support/StringBuilder.h"
#include "support/tqXML.h"
#include "window/Fortschritt.h"

#include <algorithm>
#include <array>
#include <limits>
#include <new>

namespace zepholt {

namespace {

// --- The format of a chapter file ------------------------------------------------------------------------------------

constexpr std::size_t KopfLaenge = 30;
constexpr std::size_t VerzeichnisLaenge = 1000; // of a chapter's start, as far as the list of chapters reads it
constexpr std::string_view Magie = "CF11";
constexpr unsigned char TabellenEnde = 32; // in the table in the place of a code, in the body the first plain character

using Abkuerzungen = std::array<ByteSicht, TabellenEnde>; // by code; the texts lie in the raw chapter

std::string_view AlsZeichen(ByteSicht bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

// Columns of a text of the catalogue, from 1; fewer characters, or none, where it ends before.
template <class Sicht>
Sicht Spalten(Sicht text, std::size_t ab, std::size_t anzahl) {
    return text.size() < ab ? Sicht() : text.substr(ab - 1, anzahl);
}

std::int32_t StrengOderFehler(TextSicht text, const char* was) {
    const std::optional<std::int32_t> zahl = StrengeGanzzahl(text);
    if (!zahl) {
        throw LaufzeitFehler(was);
    }
    return *zahl;
}

std::int32_t StrengOderFehler(std::string_view text, const char* was) {
    return StrengOderFehler(AusAscii(text), was);
}

// Reads the table that begins at the offset `stelle` of a raw chapter and moves that behind it. False at a code out of
// range; an end before the table's own is a LaufzeitFehler.
bool LeseAbkuerzungen(ByteSicht roh, std::size_t& stelle, Abkuerzungen& tabelle) {
    for (;;) {
        if (stelle >= roh.size()) {
            throw LaufzeitFehler("the file ends inside its abbreviation table");
        }
        const unsigned char code = roh[stelle++];
        if (code == TabellenEnde) {
            return true;
        }
        const std::size_t zeilenende = AlsZeichen(roh).find('\n', stelle);
        if (zeilenende == std::string_view::npos) {
            throw LaufzeitFehler("the file ends inside an abbreviation");
        }
        if (code < 1 || code > 31) {
            return false;
        }
        tabelle[code] = roh.subspan(stelle, zeilenende - stelle);
        stelle = zeilenende + 1;
    }
}

std::size_t EntpackteLaenge(ByteSicht rumpf, const Abkuerzungen& tabelle) {
    std::array<std::size_t, 256> laengen;
    laengen.fill(1);
    std::ranges::transform(tabelle, laengen.begin(), [](ByteSicht text) { return text.size(); });
    std::size_t laenge = 0;
    for (const unsigned char zeichen : rumpf) {
        laenge += laengen[zeichen];
    }
    return laenge;
}

// Appends a piece of a body with its abbreviations replaced.
void Entpacke(ByteSicht rumpf, const Abkuerzungen& tabelle, StringBuilder& sammler) {
    while (!rumpf.empty()) {
        const auto ende = std::find_if(rumpf.begin(), rumpf.end(), [](unsigned char z) { return z < TabellenEnde; });
        const auto laenge = static_cast<std::size_t>(ende - rumpf.begin());
        sammler.Append(rumpf.first(laenge));
        rumpf = rumpf.subspan(laenge);
        if (!rumpf.empty()) {
            sammler.Append(tabelle[rumpf.front()]);
            rumpf = rumpf.subspan(1);
        }
    }
}

// --- The folder and the collected file -------------------------------------------------------------------------------

Text Chiffre(std::int32_t kapitel, std::int32_t version, std::int32_t sprache) {
    return ZahlText(version) + ZahlText(sprache) + ZahlText(kapitel);
}

// One entry of a collected file.
struct Eintragskopf {
    std::string Kopf; // its first 30 characters, fewer at the end of the file
    std::uint64_t Stelle = 0;
    std::size_t Laenge = 0;
};

// Walks a collected file from head to head and hands each entry to `nimm`, at the same time as what stands behind its
// head, up to `anzahl` characters in all. A last single byte is no entry. A length that is no number, or shorter than
// a head, is a LaufzeitFehler: no walk would pass it.
template <class Nimm>
void DurchlaufeDatei(LeseDatei& datei, std::size_t anzahl, Nimm nimm) {
    for (std::uint64_t stelle = 0; stelle + 1 < datei.Groesse();) {
        const Bytes gelesen = datei.Lies(stelle, anzahl);
        Eintragskopf eintrag;
        eintrag.Kopf = AlsZeichen(gelesen.Sicht()).substr(0, KopfLaenge);
        eintrag.Stelle = stelle;
        const std::int32_t laenge =
            StrengOderFehler(Spalten(std::string_view(eintrag.Kopf), 13, 9), "an entry's length is no number");
        if (laenge < static_cast<std::int32_t>(KopfLaenge)) {
            throw LaufzeitFehler("an entry is shorter than its head");
        }
        eintrag.Laenge = static_cast<std::size_t>(laenge);
        nimm(eintrag, gelesen.Sicht());
        stelle += eintrag.Laenge;
    }
}

// Notes the places of all entries, up to the first head that is none.
void MerkeInhalt(LeseDatei& datei) {
    katalogDaten.Inhalt = {testDaten.Katalog, datei.Groesse(), {}};
    try {
        DurchlaufeDatei(datei, KopfLaenge, [](const Eintragskopf& eintrag, ByteSicht) {
            katalogDaten.Inhalt.Plaetze.try_emplace(std::string(Spalten(std::string_view(eintrag.Kopf), 5, 8)),
                                                    KatalogInhalt::Platz{eintrag.Stelle, eintrag.Laenge});
        });
    } catch (const LaufzeitFehler&) {
        // What lies behind can't be reached: chapters there count as absent.
    }
}

Bytes LiesStueck(LeseDatei& datei, std::uint64_t stelle, std::uint64_t anzahl) {
    const std::uint64_t rest = std::min(anzahl, datei.Groesse() - std::min(stelle, datei.Groesse()));
    if (rest > static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max())) {
        throw LaufzeitFehler("longer than any text");
    }
    return datei.Lies(stelle, static_cast<std::size_t>(rest));
}

// --- The list of chapters --------------------------------------------------------------------------------------------

void VerzeichnisAusOrdner(std::int32_t sprache) {
    constexpr const char* falsch = "a file name doesn't fit its columns";
    for (const Text& pfad : DateienImOrdner(testDaten.Katalog, u"N??" + ZahlText(sprache) + u"???.qvm")) {
        const TextSicht name = DateiNameOhnePfad(pfad);
        const std::int32_t kapitel = StrengOderFehler(Spalten(name, 5, 3), falsch);
        const std::int32_t jahr2 = StrengOderFehler(Spalten(name, 2, 2), falsch);
        LeseDatei datei(pfad);
        const Bytes gelesen = LiesStueck(datei, 0, VerzeichnisLaenge);
        VerzeichnisZeile(kapitel, jahr2 + (jahr2 < 89 ? 2000 : 1900), gelesen.Sicht());
    }
}

void VerzeichnisAusDatei(std::int32_t sprache) {
    if (!DateiExistiert(testDaten.Katalog)) {
        return;
    }
    constexpr const char* falsch = "an entry's head doesn't fit its columns";
    const std::string ziffer = std::to_string(sprache);
    LeseDatei datei(testDaten.Katalog);
    DurchlaufeDatei(datei, VerzeichnisLaenge, [&ziffer](const Eintragskopf& eintrag, ByteSicht gelesen) {
        const std::string_view kopf = eintrag.Kopf;
        if (Spalten(kopf, 9, 1) == ziffer) {
            const std::int32_t kapitel = StrengOderFehler(Spalten(kopf, 10, 3), falsch);
            VerzeichnisZeile(kapitel, StrengOderFehler(Spalten(kopf, 5, 4), falsch), gelesen);
        }
    });
}

// For a message: the characters that a byte can be, any other as a question mark.
std::string InMeldung(TextSicht text) {
    std::string ergebnis;
    for (const char16_t zeichen : text) {
        ergebnis.push_back(zeichen < 0x100 ? static_cast<char>(zeichen) : '?');
    }
    return ergebnis;
}

} // namespace

// --- Loading ---------------------------------------------------------------------------------------------------------

bool LadeKapitel(std::int32_t kapitel, std::int32_t version, std::int32_t sprache) {
    bool geladen = false;
    kapitelDaten = {};
    try {
        geladen = LeseKapitel(kapitel, version, sprache);
        FortschrittPhase(2);
        if (geladen) {
            FortschrittPhase(3);
            BildeEndknoten();
            FortschrittPhase(4);
            BildeTextAeste();
        }
    } catch (const std::bad_alloc&) {
        geladen = false; // as long as memory is short, this chapter is not to be had
        kapitelDaten = {};
    }
    katalogDaten.KapitelRoh = {};
    katalogDaten.KapitelXML = {};
    return geladen;
}

bool LeseKapitel(std::int32_t kapitel, std::int32_t version, std::int32_t sprache) {
    katalogDaten.KapitelRoh = {};
    katalogDaten.KapitelXML = {};
    if (!HoleKapiteltext(kapitel, version, sprache)) {
        return false;
    }
    FortschrittPhase(1);
    const bool dasVerlangte = KapitelEinlesen(katalogDaten.KapitelXML) && kapitelDaten.KapitelN == kapitel &&
                              kapitelDaten.KapitelV == version && kapitelDaten.KapitelS == sprache;
    if (!dasVerlangte) {
        kapitelDaten = {};
    }
    return dasVerlangte;
}

bool HoleKapiteltext(std::int32_t kapitel, std::int32_t version, std::int32_t sprache) {
    katalogDaten.KapitelRoh = {};
    katalogDaten.KapitelXML = {};
    if (testDaten.KatalogArt == 1) {
        LeseKapitelAusOrdner(kapitel, version, sprache);
    } else if (testDaten.KatalogArt == 2) {
        LeseKapitelAusDatei(kapitel, version, sprache);
    }
    if (!katalogDaten.KapitelRoh.empty()) {
        EntpackeKapitel();
    }
    return !katalogDaten.KapitelXML.empty();
}

void LeseKapitelAusOrdner(std::int32_t kapitel, std::int32_t version, std::int32_t sprache) {
    const Text jahr = ZahlText(version);
    const Text name = u"N" + Text(Spalten(TextSicht(jahr), 3, 2)) + ZahlText(sprache) + ZahlText(kapitel) + u".qvm";
    const Text pfad = OrdnerMitTrenner(testDaten.Katalog) + name;
    katalogDaten.Quelle = pfad;
    katalogDaten.KapitelRoh = {};
    try {
        if (DateiExistiert(pfad)) {
            LeseDatei datei(pfad);
            katalogDaten.KapitelRoh = LiesStueck(datei, 0, datei.Groesse());
        }
    } catch (const LaufzeitFehler&) {
        katalogDaten.KapitelRoh = {};
    }
}

void LeseKapitelAusDatei(std::int32_t kapitel, std::int32_t version, std::int32_t sprache) {
    const Text chiffre = Chiffre(kapitel, version, sprache);
    katalogDaten.Quelle = testDaten.Katalog + u", " + chiffre;
    katalogDaten.KapitelRoh = {};
    try {
        if (!DateiExistiert(testDaten.Katalog)) {
            return;
        }
        LeseDatei datei(testDaten.Katalog);
        const KatalogInhalt& inhalt = katalogDaten.Inhalt;
        if (inhalt.Pfad != testDaten.Katalog || inhalt.Groesse != datei.Groesse()) {
            MerkeInhalt(datei);
        }
        const auto platz = inhalt.Plaetze.find(std::string(chiffre.begin(), chiffre.end()));
        if (platz != inhalt.Plaetze.end()) {
            katalogDaten.KapitelRoh = LiesStueck(datei, platz->second.Stelle, platz->second.Laenge);
        }
    } catch (const LaufzeitFehler&) {
        katalogDaten.KapitelRoh = {};
    }
}

ByteSicht LeseZeichen(std::size_t anzahl) {
    const ByteSicht roh = katalogDaten.KapitelRoh.Sicht();
    const std::size_t ab = std::min(katalogDaten.LesePosition - 1, roh.size());
    katalogDaten.LesePosition += anzahl;
    return roh.subspan(ab, std::min(anzahl, roh.size() - ab));
}

namespace {

// Behind the magic: year, language, chapter, length and size of the expanded text; only the last is of use here.
std::int32_t LeseGroesse() {
    std::int32_t zahl = 0;
    for (const std::size_t breite : {4U, 1U, 3U, 9U, 9U}) {
        zahl = StrengOderFehler(AlsZeichen(LeseZeichen(breite)), "a field of the head is no number");
    }
    return zahl;
}

void EntpackeRoh() {
    if (AlsZeichen(LeseZeichen(Magie.size())) != Magie) {
        return;
    }
    const std::int32_t groesse = LeseGroesse();
    const ByteSicht roh = katalogDaten.KapitelRoh.Sicht();
    std::size_t rumpfAb = katalogDaten.LesePosition - 1;
    Abkuerzungen tabelle;
    if (!LeseAbkuerzungen(roh, rumpfAb, tabelle)) {
        return;
    }
    const ByteSicht rumpf = roh.subspan(rumpfAb);
    const std::size_t laenge = EntpackteLaenge(rumpf, tabelle);
    if (laenge > GroessteKapitelLaenge) {
        return;
    }
    StringBuilder sammler;
    sammler.Capacity(groesse);
    sammler.Vorsorgen(XmlDeklaration.size() + laenge); // the head's size may be anything
    sammler.Append(XmlDeklaration);
    Entpacke(rumpf, tabelle, sammler);
    katalogDaten.KapitelXML = std::move(sammler).GetString();
}

} // namespace

void EntpackeKapitel() {
    katalogDaten.KapitelXML = {};
    katalogDaten.LesePosition = 1;
    try {
        EntpackeRoh();
    } catch (const LaufzeitFehler& fehler) {
        throw LaufzeitFehler("catalogue file damaged, " + std::string(fehler.what()) + ": " +
                             InMeldung(katalogDaten.Quelle));
    }
}

// --- The list of chapters --------------------------------------------------------------------------------------------

Text KapitelVerzeichnis(std::int32_t sprache) {
    try {
        if (testDaten.KatalogArt == 1) {
            VerzeichnisAusOrdner(sprache);
        } else if (testDaten.KatalogArt == 2) {
            VerzeichnisAusDatei(sprache);
        }
    } catch (const LaufzeitFehler&) {
        return {};
    }
    return katalogDaten.KapitelVerzeichnisText;
}

void VerzeichnisZeile(std::int32_t kapitel, std::int32_t jahr, ByteSicht gelesen) {
    Text& verzeichnis = katalogDaten.KapitelVerzeichnisText;
    if (!verzeichnis.empty()) {
        verzeichnis += u'\n';
    }
    const std::string_view zeichen = AlsZeichen(gelesen);
    const std::size_t anfang = zeichen.find("<Kapitel");
    if (anfang == std::string_view::npos) {
        throw LaufzeitFehler("no chapter begins here");
    }
    const std::size_t ende = zeichen.find("><", anfang);
    if (ende == std::string_view::npos) {
        verzeichnis += ZahlText(kapitel) + u"\t" + ZahlText(jahr) + u"\t\t\t";
        return;
    }
    Abkuerzungen tabelle;
    std::size_t stelle = KopfLaenge;
    if (!LeseAbkuerzungen(gelesen, stelle, tabelle)) {
        return;
    }
    StringBuilder sammler;
    sammler.Append(XmlDeklaration);
    Entpacke(gelesen.subspan(anfang, ende + 1 - anfang), tabelle, sammler);
    sammler.Append(u"</Kapitel>");

    tqXML xml;
    xml.DocumentElement(sammler.GetString());
    TextSicht trenner = u"";
    for (const TextSicht name : {u"N", u"V", u"A", u"T", u"Z"}) {
        verzeichnis.append(trenner).append(tqXML::getAttribut(name, xml.DocumentElement()));
        trenner = u"\t";
    }
    if (verzeichnis.size() > GroessteKapitelLaenge) {
        throw LaufzeitFehler("the list of chapters is too long");
    }
}

} // namespace zepholt
