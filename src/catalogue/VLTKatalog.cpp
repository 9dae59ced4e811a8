#include "catalogue/VLTKatalog.h"

#include "catalogue/Kapiteldatei.h"
#include "catalogue/VLTKapitel.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"
#include "support/tqXML.h"
#include "window/Fortschritt.h"

#include <algorithm>
#include <limits>

namespace zepholt {

namespace {

constexpr std::size_t VerzeichnisLaenge = 1000; // of a chapter's start, as far as the list of chapters reads it

// --- The folder and the collected file -------------------------------------------------------------------------------

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
        eintrag.Kopf = AlsZeichen(gelesen.Sicht()).substr(0, KapitelkopfLaenge);
        eintrag.Stelle = stelle;
        const std::int32_t laenge =
            StrengOderFehler(Spalten(std::string_view(eintrag.Kopf), 13, 9), "an entry's length is no number");
        if (laenge < static_cast<std::int32_t>(KapitelkopfLaenge)) {
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
        DurchlaufeDatei(datei, KapitelkopfLaenge, [](const Eintragskopf& eintrag, ByteSicht) {
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

// --- Loading ---------------------------------------------------------------------------------------------------------

// For a message: the characters that a byte can be, any other as a question mark.
std::string InMeldung(TextSicht text) {
    std::string ergebnis;
    for (const char16_t zeichen : text) {
        ergebnis.push_back(zeichen < 0x100 ? static_cast<char>(zeichen) : '?');
    }
    return ergebnis;
}

Rohkapitel HoleRohkapitel(std::int32_t kapitel, std::int32_t version, std::int32_t sprache) {
    switch (testDaten.KatalogArt) {
    case 1:
        return LeseKapitelAusOrdner(kapitel, version, sprache);
    case 2:
        return LeseKapitelAusDatei(kapitel, version, sprache);
    default:
        return {};
    }
}

std::optional<Kapitelbytes> Zerlegt(const Rohkapitel& roh) {
    try {
        return ZerlegeKapitel(roh.Inhalt.Sicht());
    } catch (const LaufzeitFehler& fehler) {
        throw LaufzeitFehler("catalogue file damaged, " + std::string(fehler.what()) + ": " + InMeldung(roh.Quelle));
    }
}

bool LeseKapitel(std::int32_t kapitel, std::int32_t version, std::int32_t sprache) {
    const Rohkapitel roh = HoleRohkapitel(kapitel, version, sprache);
    const std::optional<Kapitelbytes> bytes = Zerlegt(roh);
    if (!bytes) {
        return false;
    }
    FortschrittPhase(1);
    return KapitelEinlesen(*bytes) && kapitelDaten.KapitelN == kapitel && kapitelDaten.KapitelV == version &&
           kapitelDaten.KapitelS == sprache;
}

// --- The list of chapters --------------------------------------------------------------------------------------------

// Adds the line of a chapter to the list.
void FuegeZeileAn(Text& verzeichnis, const Text& zeile) {
    if (!verzeichnis.empty()) {
        verzeichnis += u'\n';
    }
    verzeichnis += zeile;
    if (verzeichnis.size() > GroessteKapitelLaenge) {
        throw LaufzeitFehler("the list of chapters is too long");
    }
}

Text VerzeichnisAusOrdner(std::int32_t sprache) {
    constexpr const char* meldung = "a file name doesn't fit its columns";
    Text verzeichnis;
    for (const Text& pfad : DateienImOrdner(testDaten.Katalog, u"N??" + ZahlText(sprache) + u"???.qvm")) {
        const TextSicht name = DateiNameOhnePfad(pfad);
        const std::int32_t kapitel = StrengOderFehler(Spalten(name, 5, 3), meldung);
        const std::int32_t jahr2 = StrengOderFehler(Spalten(name, 2, 2), meldung);
        LeseDatei datei(pfad);
        const Bytes gelesen = LiesStueck(datei, 0, VerzeichnisLaenge);
        FuegeZeileAn(verzeichnis, VerzeichnisZeile(kapitel, jahr2 + (jahr2 < 89 ? 2000 : 1900), gelesen.Sicht()));
    }
    return verzeichnis;
}

Text VerzeichnisAusDatei(std::int32_t sprache) {
    constexpr const char* meldung = "an entry's head doesn't fit its columns";
    Text verzeichnis;
    if (!DateiExistiert(testDaten.Katalog)) {
        return verzeichnis;
    }
    const std::string ziffer = std::to_string(sprache);
    LeseDatei datei(testDaten.Katalog);
    DurchlaufeDatei(datei, VerzeichnisLaenge, [&](const Eintragskopf& eintrag, ByteSicht gelesen) {
        const std::string_view kopf = eintrag.Kopf;
        if (Spalten(kopf, 9, 1) == ziffer) {
            const std::int32_t kapitel = StrengOderFehler(Spalten(kopf, 10, 3), meldung);
            const std::int32_t jahr = StrengOderFehler(Spalten(kopf, 5, 4), meldung);
            FuegeZeileAn(verzeichnis, VerzeichnisZeile(kapitel, jahr, gelesen));
        }
    });
    return verzeichnis;
}

// Number, year, A, title and second text of a chapter, from its start tag.
Text ZeileAus(TextSicht kopf) {
    Text zeile;
    TextSicht trenner = u"";
    for (const TextSicht name : {u"N", u"V", u"A", u"T", u"Z"}) {
        zeile.append(trenner).append(tqXML::getAttribut(name, kopf));
        trenner = u"\t";
    }
    return zeile;
}

} // namespace

// --- Loading ---------------------------------------------------------------------------------------------------------

bool LadeKapitel(std::int32_t kapitel, std::int32_t version, std::int32_t sprache) {
    const bool geladen = LeseKapitel(kapitel, version, sprache);
    FortschrittPhase(2);
    if (!geladen) {
        kapitelDaten.Leeren();
        return false;
    }
    FortschrittPhase(3);
    BildeEndknoten();
    FortschrittPhase(4);
    BildeTextAeste();
    return true;
}

Rohkapitel LeseKapitelAusOrdner(std::int32_t kapitel, std::int32_t version, std::int32_t sprache) {
    const Text jahr = ZahlText(version);
    const Text name = u"N" + Text(Spalten(TextSicht(jahr), 3, 2)) + ZahlText(sprache) + ZahlText(kapitel) + u".qvm";
    const Text pfad = OrdnerMitTrenner(testDaten.Katalog) + name;
    try {
        if (DateiExistiert(pfad)) {
            LeseDatei datei(pfad);
            return {pfad, LiesStueck(datei, 0, datei.Groesse())};
        }
    } catch (const LaufzeitFehler&) {
        // A file that can't be read is as good as none.
    }
    return {};
}

Rohkapitel LeseKapitelAusDatei(std::int32_t kapitel, std::int32_t version, std::int32_t sprache) {
    const Text chiffre = ZahlText(version) + ZahlText(sprache) + ZahlText(kapitel);
    try {
        if (!DateiExistiert(testDaten.Katalog)) {
            return {};
        }
        LeseDatei datei(testDaten.Katalog);
        const KatalogInhalt& inhalt = katalogDaten.Inhalt;
        if (inhalt.Pfad != testDaten.Katalog || inhalt.Groesse != datei.Groesse()) {
            MerkeInhalt(datei);
        }
        const auto platz = inhalt.Plaetze.find(std::string(chiffre.begin(), chiffre.end()));
        if (platz != inhalt.Plaetze.end()) {
            return {testDaten.Katalog + u", " + chiffre, LiesStueck(datei, platz->second.Stelle, platz->second.Laenge)};
        }
    } catch (const LaufzeitFehler&) {
        // A file that can't be read is as good as none.
    }
    return {};
}

// --- The list of chapters --------------------------------------------------------------------------------------------

Text KapitelVerzeichnis(std::int32_t sprache) {
    try {
        switch (testDaten.KatalogArt) {
        case 1:
            return VerzeichnisAusOrdner(sprache);
        case 2:
            return VerzeichnisAusDatei(sprache);
        default:
            return {};
        }
    } catch (const LaufzeitFehler&) {
        return {};
    }
}

Text VerzeichnisZeile(std::int32_t kapitel, std::int32_t jahr, ByteSicht gelesen) {
    const std::size_t anfang = AlsZeichen(gelesen).find("<Kapitel");
    if (anfang == std::string_view::npos) {
        throw LaufzeitFehler("no chapter begins here");
    }
    const std::size_t ende = AlsZeichen(gelesen).find("><", anfang);
    if (ende == std::string_view::npos) {
        return ZahlText(kapitel) + u"\t" + ZahlText(jahr) + u"\t\t\t";
    }
    std::size_t rumpfAb = 0;
    const std::optional<Abkuerzungen> tabelle = LeseAbkuerzungen(gelesen, rumpfAb);
    if (!tabelle) {
        return {};
    }
    const Text kopf = EntpackeKapitel({*tabelle, gelesen.subspan(anfang, ende + 1 - anfang)}) + u"</Kapitel>";
    tqXML xml;
    xml.DocumentElement(kopf);
    return ZeileAus(xml.DocumentElement());
}

} // namespace zepholt
