// Finding, fetching and expanding chapter files, and the list of chapters.
#include "catalogue/VLTKatalog.h"
#include "catalogue/Kapiteldatei.h"
#include "catalogue/VLTKapitel.h"
#include "run/NeuerLauf.h"
#include "state/TestDaten.h"
#include "window/Fenster.h"
#include "window/Formulare.h"
#include "window/Fortschritt.h"

#include "catalogue/Kapitelbau.h"
#include "hilfen/Testordner.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <optional>

namespace zepholt {
namespace {

using namespace hilfen;

// A chapter of two positions that needs its table.
const std::string Tabelle = "\x01H N=\n\x02<U N=\n\x1F</H>\n";

std::string Gepackt(int kapitel = 241, int jahr = 2013, int sprache = 1) {
    std::string rumpf = KapitelText("<\x01\"111\">\x02\"100\" W=\"100199\"/>\x02\"300\"/>\x1F", kapitel, jahr, sprache);
    return Kapiteldatei(Tabelle, rumpf, kapitel, jahr, sprache);
}

class VLTKatalog : public testing::Test {
protected:
    void SetUp() override {
        NeuerLauf();
        testDaten.OhneDialog = true;
        testDaten.Katalog = m_ordner.TextPfad("katalog");
        std::filesystem::create_directories(m_ordner.Pfad() / "katalog");
        testDaten.KatalogArt = 1;
    }
    void TearDown() override { NeuerLauf(); }

    void ImOrdner(std::string_view name, std::string_view bytes) const {
        m_ordner.Schreibe("katalog/" + std::string(name), bytes);
    }

    void AlsSammeldatei(std::string_view bytes) const {
        m_ordner.Schreibe("sammel.vlt", bytes);
        testDaten.Katalog = m_ordner.TextPfad("sammel.vlt");
        testDaten.KatalogArt = 2;
        katalogDaten = {};
    }

    Testordner m_ordner;
};

ByteSicht AlsBytes(std::string_view bytes) {
    return {reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()};
}

// What an expansion gives: the text behind the declaration, "absent", or "failure".
std::string Entpackt(std::string_view roh) {
    Text xml;
    try {
        const std::optional<Kapitelbytes> datei = ZerlegeKapitel(AlsBytes(roh));
        if (!datei) {
            return "absent";
        }
        xml = EntpackeKapitel(*datei);
    } catch (const LaufzeitFehler&) {
        return "failure";
    }
    const Text deklaration = u"<?xml version=\"1.0\" encoding=\"iso-8859-1\"?>";
    EXPECT_TRUE(xml.starts_with(deklaration));
    std::string text;
    for (const char16_t zeichen : xml.substr(deklaration.size())) {
        EXPECT_LT(zeichen, 256);
        text.push_back(static_cast<char>(zeichen));
    }
    return text;
}

// --- Expanding -------------------------------------------------------------------------------------------------------

struct Packfall {
    std::string Roh;
    std::string Ergebnis;
};

std::string Mit(std::string_view tabelle, std::string_view rumpf) {
    return Kapiteldatei(tabelle, rumpf);
}

TEST_F(VLTKatalog, Entpacken) {
    using namespace std::string_literals;
    const Packfall faelle[] = {
        {Mit("", "abc"), "abc"},
        {Mit("", ""), ""},
        {Mit("\x01xyz\n", "a\x01"s + "b\x01"s), "axyzbxyz"},
        {Mit("\x01xyz\n", "a\x02"s + "b"s), "ab"}, // no such code
        {Mit("\x01xyz\n", "a\0b"s), "ab"},         // code 0
        {Mit("\x01xyz\n\x01uv\n", "\x01"s), "uv"}, // the later one counts
        {Mit("\x01\n", "a\x01"s + "b"s), "ab"},
        {Mit("\x0A\x0B\x0A", "a\x0A"s + "b"s), "a\x0B"s + "b"s}, // code 10 is a line feed, and so is a text's end
        {Mit("\x01 \xFF\x01\0\x1F \n"s, "\x01"s),
         " \xFF\x01\0\x1F "s}, // any byte but the line feed; not expanded again
        {Mit("\x1F+\n", "\x1F"s + " \x20\x7F\x80\xFF"s), "+ \x20\x7F\x80\xFF"s},
        // damaged
        {"CF12" + Mit("", "abc").substr(4), "absent"},
        {"cf11" + Mit("", "abc").substr(4), "absent"},
        {Mit("\x21xyz\n", "abc"), "absent"},
        {Mit("\xFFxyz\n", "abc"), "absent"},
        {Mit("\0xyz\n"s, "abc"), "absent"},
        {Mit("\x01xyz\nA\n", "abc"), "absent"},
        {Mit("\x21xyz", "abc"), "failure"}, // the text is read before its code is judged
        {Mit("\x01xyz", "abc"), "failure"},
        {"CF11201312410000000400000000 0", "failure"},
    };
    for (const Packfall& fall : faelle) {
        const bool leer = fall.Ergebnis.empty();
        EXPECT_EQ(Entpackt(fall.Roh), leer ? "" : fall.Ergebnis) << fall.Roh;
    }
}

TEST_F(VLTKatalog, KopffelderMuessenZahlenSein) {
    const std::string gut = Mit("", "abc");
    ASSERT_EQ(Entpackt(gut), "abc");
    struct Feld {
        std::size_t Ab, Laenge;
    };
    for (const auto& [ab, laenge] : {Feld{4, 4}, {8, 1}, {9, 3}, {12, 9}, {21, 9}}) {
        std::string roh = gut;
        roh.replace(ab, laenge, std::string(laenge, 'x'));
        EXPECT_EQ(Entpackt(roh), "failure") << ab;
        roh.replace(ab, laenge, std::string(laenge, ' '));
        EXPECT_EQ(Entpackt(roh), "failure") << ab;
        roh.replace(ab, laenge, std::string(laenge - 1, ' ') + "7");
        EXPECT_EQ(Entpackt(roh), "abc") << ab;
    }
}

// The announced size is only a guess.
TEST_F(VLTKatalog, AngekuendigteGroesseIstGleichgueltig) {
    for (const char* groesse : {"000000000", "000000001", "999999999", "-99999999"}) {
        std::string roh = Mit("", "abc");
        roh.replace(21, 9, groesse);
        EXPECT_EQ(Entpackt(roh), "abc") << groesse;
    }
}

// Cut before the end of the magic it is no chapter file; inside head or table it is a failure; then it is a shorter
// one.
TEST_F(VLTKatalog, AnJederStelleAbgeschnitten) {
    const std::string roh = Gepackt();
    const std::size_t tabellenEnde = 30 + Tabelle.size() + 1;
    for (std::size_t laenge = 0; laenge <= roh.size(); ++laenge) {
        const std::string ergebnis = Entpackt(std::string_view(roh).substr(0, laenge));
        if (laenge < 4) {
            EXPECT_EQ(ergebnis, "absent") << laenge;
        } else if (laenge < tabellenEnde) {
            EXPECT_EQ(ergebnis, "failure") << laenge;
        } else {
            EXPECT_NE(ergebnis, "absent") << laenge;
            EXPECT_NE(ergebnis, "failure") << laenge;
        }
    }
}

// 1 MB of codes for a text of 1 MB each is a text of a million MB.
TEST_F(VLTKatalog, AbkuerzungsBombeGiltAlsFehlend) {
    const std::string megabyte = "\x01" + std::string(1 << 20, 'a') + "\n";
    EXPECT_EQ(Entpackt(Mit(megabyte, std::string(1 << 20, '\x01'))), "absent");
    const std::string rumpf(GroessteKapitelLaenge >> 20, '\x01');
    EXPECT_EQ(Entpackt(Mit(megabyte, rumpf + "a")), "absent"); // one character too many
    const std::string gerade = Mit(megabyte, rumpf);
    const std::optional<Kapitelbytes> datei = ZerlegeKapitel(AlsBytes(gerade));
    ASSERT_TRUE(datei);
    EXPECT_GT(EntpackeKapitel(*datei).size(), GroessteKapitelLaenge); // the declaration comes on top
}

// --- Folder ----------------------------------------------------------------------------------------------------------

TEST_F(VLTKatalog, LaedtAusDemOrdner) {
    ImOrdner("N131241.qvm", Gepackt());
    ASSERT_TRUE(LadeKapitel(241, 2013, 1));
    EXPECT_EQ(kapitelDaten.KapitelN, 241);
    EXPECT_EQ(kapitelDaten.Endknoten, (std::vector<std::int32_t>{111100, 111300}));
    EXPECT_EQ(kapitelDaten.TextAeste.size(), 1U);
    EXPECT_TRUE(PositionImKatalog(111150, 0).Da);
}

TEST_F(VLTKatalog, NurDieVerlangteSpracheUndDasVerlangteJahr) {
    ImOrdner("N131241.qvm", Gepackt(241, 2013, 1));
    ImOrdner("N122241.qvm", Gepackt(241, 2012, 2));
    EXPECT_FALSE(LadeKapitel(241, 2013, 2));
    ImOrdner("N132241.qvm", Gepackt(241, 2013, 2));
    EXPECT_TRUE(LadeKapitel(241, 2013, 2));
    EXPECT_FALSE(LadeKapitel(242, 2013, 1));
}

TEST_F(VLTKatalog, DieAttributeEntscheiden) {
    ImOrdner("N131241.qvm", Gepackt(241, 1913, 1));
    EXPECT_FALSE(LadeKapitel(241, 2013, 1));
    EXPECT_TRUE(LadeKapitel(241, 1913, 1));
    ImOrdner("N131242.qvm", Gepackt(241, 2013, 1));
    EXPECT_FALSE(LadeKapitel(242, 2013, 1));
    ImOrdner("N132241.qvm", Gepackt(241, 2013, 1));
    EXPECT_FALSE(LadeKapitel(241, 2013, 2));
    ImOrdner("N981241.qvm", Gepackt(241, 1998, 1));
    EXPECT_TRUE(LadeKapitel(241, 1998, 1));
}

// The head's own year, language and chapter are read and not compared.
TEST_F(VLTKatalog, DerKopfEntscheidetNicht) {
    std::string datei = Gepackt();
    datei.replace(4, 8, "19992999");
    ImOrdner("N131241.qvm", datei);
    EXPECT_TRUE(LadeKapitel(241, 2013, 1));
}

// The number stands in the name as it is.
TEST_F(VLTKatalog, KurzeKapitelnummer) {
    ImOrdner("N131041.qvm", Gepackt(41));
    EXPECT_FALSE(LadeKapitel(41, 2013, 1));
    ImOrdner("N13141.qvm", Gepackt(41));
    EXPECT_TRUE(LadeKapitel(41, 2013, 1));
    EXPECT_FALSE(LadeKapitel(41, 13, 1)); // a year without third and fourth digit
    EXPECT_FALSE(LadeKapitel(-1, -1, -1));
}

TEST_F(VLTKatalog, MitUndOhneTrenner) {
    ImOrdner("N131241.qvm", Gepackt());
    testDaten.Katalog += PfadTrenner();
    EXPECT_TRUE(LadeKapitel(241, 2013, 1));
}

TEST_F(VLTKatalog, OhneKatalog) {
    ImOrdner("N131241.qvm", Gepackt());
    for (const std::int32_t art : {0, 3, -1}) {
        testDaten.KatalogArt = art;
        EXPECT_FALSE(LadeKapitel(241, 2013, 1)) << art;
        EXPECT_EQ(KapitelVerzeichnis(1), u"") << art;
    }
    testDaten.KatalogArt = 1;
    testDaten.Katalog += u"x"; // no longer there
    EXPECT_FALSE(LadeKapitel(241, 2013, 1));
    testDaten.KatalogArt = 2;
    EXPECT_FALSE(LadeKapitel(241, 2013, 1));
}

TEST_F(VLTKatalog, LeereOderFremdeDateiGiltAlsFehlend) {
    for (const char* bytes : {"", "C", "CF1", "XY112013", "<?xml version=\"1.0\"?>"}) {
        ImOrdner("N131241.qvm", bytes);
        EXPECT_FALSE(LadeKapitel(241, 2013, 1)) << bytes;
    }
    std::filesystem::remove(m_ordner.Pfad() / "katalog/N131241.qvm");
    std::filesystem::create_directories(m_ordner.Pfad() / "katalog/N131241.qvm"); // a folder is no file
    EXPECT_FALSE(LadeKapitel(241, 2013, 1));
}

TEST_F(VLTKatalog, NachEinemFehlschlagIstKeinKapitelDa) {
    ImOrdner("N131241.qvm", Gepackt());
    ASSERT_TRUE(LadeKapitel(241, 2013, 1));
    EXPECT_FALSE(LadeKapitel(242, 2013, 1));
    EXPECT_FALSE(FindeH(111));
    EXPECT_EQ(kapitelDaten.Endknoten.size(), 0U);
    ASSERT_TRUE(LadeKapitel(241, 2013, 1));
    EXPECT_TRUE(FindeH(111));
}

// Each load reads the file again.
TEST_F(VLTKatalog, JedesLadenLiestNeu) {
    ImOrdner("N131241.qvm", Gepackt());
    ASSERT_TRUE(LadeKapitel(241, 2013, 1));
    ImOrdner("N131241.qvm", Kapiteldatei("", KapitelText("<H N=\"222\"/>")));
    ASSERT_TRUE(LadeKapitel(241, 2013, 1));
    EXPECT_TRUE(FindeH(222));
}

// What a damaged chapter tells as it ends the run; empty when it doesn't end it.
std::string MeldungBeimLaden() {
    try {
        LadeKapitel(241, 2013, 1);
    } catch (const LaufzeitFehler& fehler) {
        return fehler.what();
    }
    return {};
}

TEST_F(VLTKatalog, BeschaedigterKopfBeendetDenLauf) {
    ImOrdner("N131241.qvm", "CF11abcd");
    const std::string imOrdner = MeldungBeimLaden();
    EXPECT_NE(imOrdner.find("N131241.qvm"), std::string::npos) << imOrdner;
    EXPECT_NE(imOrdner.find("head"), std::string::npos) << imOrdner;

    AlsSammeldatei(Kopf(2013, 1, 241, 30));
    const std::string alsSammeldatei = MeldungBeimLaden();
    EXPECT_NE(alsSammeldatei.find("sammel.vlt"), std::string::npos) << alsSammeldatei;
    EXPECT_NE(alsSammeldatei.find("table"), std::string::npos) << alsSammeldatei;
}

// A path in such a message: a character that is no byte stands as a question mark.
TEST_F(VLTKatalog, MeldungMitZeichenDieKeinByteSind) {
    const std::filesystem::path ordner = m_ordner.Pfad() / u"k\u00E4\u0142";
    std::filesystem::create_directories(ordner);
    testDaten.Katalog = ordner.u16string();
    std::ofstream(ordner / "N131241.qvm") << "CF11abcd";
    const std::string meldung = MeldungBeimLaden();
    EXPECT_NE(meldung.find("k\xE4?"), std::string::npos) << meldung;
}

// --- The bar ---------------------------------------------------------------------------------------------------------

class Balkenfenster : public Fenster {
public:
    void ZeigeAustauschdatei(TextSicht) override {}
    void ZeigeProjekt(TextSicht) override {}
    void ZeigeDokument(TextSicht) override {}
    void ZeigeSchritt(TextSicht) override {}
    void ZeigeBalken(double breite) override {
        Werte.push_back(static_cast<int>(std::lround(breite * 200 / BalkenInnen)));
    }

    std::vector<int> Werte; // with the bar full at 200
};

std::int64_t g_uhr = 0;

TEST_F(VLTKatalog, PhasenDesLadens) {
    ImOrdner("N131241.qvm", Gepackt());
    ImOrdner("N131242.qvm", Gepackt(243));
    Balkenfenster fenster;
    testDaten.OhneDialog = false;
    testDaten.Fortschrittsfenster = &fenster;
    fortschrittStand.Uhr = [] { return g_uhr += 1000; };
    ZeigeSchritt(u"", 200);

    fenster.Werte.clear();
    LadeKapitel(241, 2013, 1);
    EXPECT_EQ(fenster.Werte, (std::vector<int>{45, 165, 185, 200}));
    fenster.Werte.clear();
    LadeKapitel(242, 2013, 1); // read, and not the one asked for
    EXPECT_EQ(fenster.Werte, (std::vector<int>{45, 165}));
    fenster.Werte.clear();
    LadeKapitel(999, 2013, 1); // not there
    EXPECT_EQ(fenster.Werte, (std::vector<int>{165}));
}

// --- Collected file --------------------------------------------------------------------------------------------------

TEST_F(VLTKatalog, LaedtAusDerSammeldatei) {
    AlsSammeldatei(Gepackt(111) + Gepackt(241) + Gepackt(241, 2013, 2) + Gepackt(241, 2010));
    EXPECT_TRUE(LadeKapitel(241, 2013, 1));
    EXPECT_EQ(kapitelDaten.KapitelS, 1);
    EXPECT_TRUE(LadeKapitel(241, 2013, 2));
    EXPECT_EQ(kapitelDaten.KapitelS, 2);
    EXPECT_TRUE(LadeKapitel(241, 2010, 1));
    EXPECT_TRUE(LadeKapitel(111, 2013, 1));
    EXPECT_FALSE(LadeKapitel(241, 2013, 3));
    EXPECT_FALSE(LadeKapitel(41, 2013, 1));
    EXPECT_TRUE(LadeKapitel(241, 2013, 1));
}

TEST_F(VLTKatalog, ErsterEintragEinesSchluesselsZaehlt) {
    AlsSammeldatei(Kapiteldatei("", KapitelText("<H N=\"1\"/>")) + Kapiteldatei("", KapitelText("<H N=\"2\"/>")));
    ASSERT_TRUE(LadeKapitel(241, 2013, 1));
    EXPECT_TRUE(FindeH(1));
}

// The key is eight characters; a shorter number has none.
TEST_F(VLTKatalog, KurzerSchluesselPasstNie) {
    AlsSammeldatei(Gepackt(41));
    EXPECT_FALSE(LadeKapitel(41, 2013, 1));
}

TEST_F(VLTKatalog, DieSammeldateiEndetHinterDemLetztenEintrag) {
    AlsSammeldatei(Gepackt(241) + "\n"); // a single byte more is no entry
    EXPECT_TRUE(LadeKapitel(241, 2013, 1));
    EXPECT_FALSE(LadeKapitel(242, 2013, 1));
    EXPECT_NE(KapitelVerzeichnis(1), u"");
    AlsSammeldatei(Gepackt(241) + "\r\n"); // two are one without a length
    EXPECT_TRUE(LadeKapitel(241, 2013, 1));
    EXPECT_FALSE(LadeKapitel(242, 2013, 1));
    EXPECT_EQ(KapitelVerzeichnis(1), u"");
}

// What stands before a damaged length is found, what stands behind it isn't.
TEST_F(VLTKatalog, BeschaedigteLaengen) {
    for (const char* laenge : {"abcdefghi", "         ", "000000000", "000000029", "-00000030", "00000030x"}) {
        std::string mitte = Gepackt(242);
        mitte.replace(12, 9, laenge);
        AlsSammeldatei(Gepackt(241) + mitte + Gepackt(243));
        EXPECT_TRUE(LadeKapitel(241, 2013, 1)) << laenge;
        EXPECT_FALSE(LadeKapitel(242, 2013, 1)) << laenge;
        EXPECT_FALSE(LadeKapitel(243, 2013, 1)) << laenge;
        EXPECT_EQ(KapitelVerzeichnis(1), u"") << laenge;
    }
}

// An entry that ends beyond the file is read as far as the file goes, and is the last one.
TEST_F(VLTKatalog, LaengeUeberDasEndeHinaus) {
    std::string lang = Gepackt(242);
    lang.replace(12, 9, "999999999");
    AlsSammeldatei(Gepackt(241) + lang);
    EXPECT_TRUE(LadeKapitel(242, 2013, 1));
    AlsSammeldatei(lang + Gepackt(241));
    EXPECT_FALSE(LadeKapitel(241, 2013, 1));
    EXPECT_TRUE(LadeKapitel(242, 2013, 1)); // the first element ends before what follows it
}

// An entry cut short by its own length.
TEST_F(VLTKatalog, LaengeInnerhalbDesEintrags) {
    std::string kurz = Gepackt(242);
    kurz.replace(12, 9, "000000030");
    AlsSammeldatei(kurz);
    EXPECT_THROW(LadeKapitel(242, 2013, 1), LaufzeitFehler); // ends inside its table
}

TEST_F(VLTKatalog, GeaenderteSammeldateiWirdNeuDurchsucht) {
    AlsSammeldatei(Gepackt(241));
    ASSERT_TRUE(LadeKapitel(241, 2013, 1));
    m_ordner.Schreibe("sammel.vlt", Gepackt(111) + Gepackt(241));
    EXPECT_TRUE(LadeKapitel(241, 2013, 1));
    EXPECT_TRUE(LadeKapitel(111, 2013, 1));
}

// A hundred thousand entries, and a thousand chapters asked for.
TEST_F(VLTKatalog, VieleEintraege) {
    std::string datei;
    for (int i = 0; i < 100000; ++i) {
        datei += Kopf(1000 + i % 1000, 1, 100 + i / 1000, 30);
    }
    AlsSammeldatei(datei + Gepackt(241));
    for (int i = 0; i < 1000; ++i) {
        EXPECT_FALSE(LadeKapitel(i, 2100, 1));
    }
    EXPECT_TRUE(LadeKapitel(241, 2013, 1));
}

// --- Damage anywhere -------------------------------------------------------------------------------------------------

// Loads, is absent, or ends the run: nothing else.
std::optional<bool> Geladen() {
    try {
        return LadeKapitel(241, 2013, 1);
    } catch (const LaufzeitFehler&) {
        return std::nullopt;
    }
}

TEST_F(VLTKatalog, JedesByteAbgeschnittenUndVeraendert) {
    const std::string datei = Gepackt();
    int geladen = 0;
    for (std::size_t i = 0; i < datei.size(); ++i) {
        ImOrdner("N131241.qvm", datei.substr(0, i));
        EXPECT_FALSE(Geladen().value_or(false) && i < 30);
        for (const int maske : {0x01, 0x20, 0xFF}) {
            std::string anders = datei;
            anders[i] = static_cast<char>(anders[i] ^ maske);
            ImOrdner("N131241.qvm", anders);
            geladen += Geladen().value_or(false) ? 1 : 0;
        }
    }
    EXPECT_GT(geladen, 0);
}

TEST_F(VLTKatalog, JedesByteDerSammeldateiAbgeschnittenUndVeraendert) {
    const std::string datei = Gepackt(111) + Gepackt(241);
    int geladen = 0;
    for (std::size_t i = 0; i < datei.size(); ++i) {
        AlsSammeldatei(datei.substr(0, i));
        EXPECT_FALSE(Geladen().value_or(false) && i <= Gepackt(111).size());
        KapitelVerzeichnis(1);
        for (const int maske : {0x01, 0x20, 0xFF}) {
            std::string anders = datei;
            anders[i] = static_cast<char>(anders[i] ^ maske);
            AlsSammeldatei(anders);
            geladen += Geladen().value_or(false) ? 1 : 0;
            KapitelVerzeichnis(1);
        }
    }
    EXPECT_GT(geladen, 0);
}

// --- The list of chapters --------------------------------------------------------------------------------------------

TEST_F(VLTKatalog, VerzeichnisDesOrdners) {
    ImOrdner("N131241.qvm", Gepackt(241));
    ImOrdner("N131111.qvm", Gepackt(111));
    ImOrdner("N132241.qvm", Gepackt(241, 2013, 2));
    ImOrdner("N13141.qvm", Gepackt(41)); // the pattern wants three characters
    ImOrdner("N131241.txt", Gepackt(999));
    ImOrdner("M131241.qvm", Gepackt(999));
    EXPECT_EQ(KapitelVerzeichnis(1), u"111\t2013\t7\tTitel\tZusatz\n241\t2013\t7\tTitel\tZusatz");
}

TEST_F(VLTKatalog, VerzeichnisDerSammeldatei) {
    AlsSammeldatei(Gepackt(241) + Gepackt(241, 2013, 2) + Gepackt(111, 2010));
    EXPECT_EQ(KapitelVerzeichnis(1), u"241\t2013\t7\tTitel\tZusatz\n111\t2010\t7\tTitel\tZusatz");
    EXPECT_EQ(KapitelVerzeichnis(2), u"241\t2013\t7\tTitel\tZusatz");
    EXPECT_EQ(KapitelVerzeichnis(3), u"");
}

// Without a whole start tag in its first characters a chapter stands with number and year of its name or head.
TEST_F(VLTKatalog, VerzeichnisOhneTitel) {
    const std::string lang = Kapiteldatei("", "<Kapitel N=\"1\" T=\"" + std::string(1000, 'x') + "\"></Kapitel>");
    for (const auto& [jahr2, jahr] : {std::pair{"00", u"2000"}, {"88", u"2088"}, {"89", u"1989"}, {"98", u"1998"}}) {
        katalogDaten = {};
        ImOrdner("N" + std::string(jahr2) + "1241.qvm", lang);
        EXPECT_EQ(KapitelVerzeichnis(1), Text(u"241\t") + jahr + u"\t\t\t");
        std::filesystem::remove(m_ordner.Pfad() / "katalog" / ("N" + std::string(jahr2) + "1241.qvm"));
    }
    std::string eintrag = lang;
    eintrag.replace(4, 8, "19981 41");
    AlsSammeldatei(eintrag);
    EXPECT_EQ(KapitelVerzeichnis(1), u"41\t1998\t\t\t");
}

// The first 1000 characters are looked at: one more and the tag's end isn't seen.
TEST_F(VLTKatalog, VerzeichnisLiestTausendZeichen) {
    const auto mitTitel = [](std::size_t bisEnde) {
        std::string anfang = Kapiteldatei("", "<Kapitel N=\"241\" V=\"2013\" S=\"1\" A=\"7\" Z=\"\" T=\"");
        return anfang + std::string(bisEnde - anfang.size() - 2, 'x') + "\"><H N=\"1\"/></Kapitel>";
    };
    ImOrdner("N131241.qvm", mitTitel(999)); // the '>' is character 999, the '<' behind it is 1000
    EXPECT_EQ(KapitelVerzeichnis(1).substr(0, 11), u"241\t2013\t7\t");
    katalogDaten = {};
    ImOrdner("N131241.qvm", mitTitel(1000));
    EXPECT_EQ(KapitelVerzeichnis(1), u"241\t2013\t\t\t");
}

TEST_F(VLTKatalog, VerzeichnisLoestAbkuerzungenAuf) {
    ImOrdner("N131241.qvm", Kapiteldatei("\x05Innerer \n\x06\" T=\"\n", "<Kapitel N=\"1\" V=\"2\" A=\"3\x06\x05"
                                                                        "Ausbau\"><H/>"));
    EXPECT_EQ(KapitelVerzeichnis(1), u"1\t2\t3\tInnerer Ausbau\t");
}

TEST_F(VLTKatalog, VerzeichnisMitFalschemCodeHatLeereZeile) {
    ImOrdner("N131111.qvm", Gepackt(111));
    ImOrdner("N131112.qvm", Kapiteldatei("Ax\n", KapitelText("")));
    ImOrdner("N131113.qvm", Gepackt(113));
    EXPECT_EQ(KapitelVerzeichnis(1), u"111\t2013\t7\tTitel\tZusatz\n\n113\t2013\t7\tTitel\tZusatz");
}

TEST_F(VLTKatalog, VerzeichnisMitFehlerIstLeer) {
    const std::pair<const char*, std::string> faelle[] = {
        {"N131abc.qvm", Gepackt()},                          // no number in the chapter's columns
        {"Nxx1241.qvm", Gepackt()},                          // nor in the year's
        {"N131241.qvm", Kapiteldatei("", "<kapitel N><")},   // no chapter begins
        {"N131241.qvm", ""},                                 //
        {"N131241.qvm", Kapiteldatei("\x01<Kapitel><", "")}, // the table has no end
    };
    for (const auto& [name, bytes] : faelle) {
        ImOrdner("N131111.qvm", Gepackt(111));
        ImOrdner(name, bytes);
        EXPECT_EQ(KapitelVerzeichnis(1), u"") << name << bytes;
        std::filesystem::remove(m_ordner.Pfad() / "katalog" / name);
        katalogDaten = {};
    }
    EXPECT_NE(KapitelVerzeichnis(1), u"");
    std::string eintrag = Gepackt();
    eintrag.replace(9, 3, "x41");
    AlsSammeldatei(eintrag);
    EXPECT_EQ(KapitelVerzeichnis(1), u"");
    eintrag = Gepackt();
    eintrag.replace(4, 4, "20x3");
    AlsSammeldatei(eintrag);
    EXPECT_EQ(KapitelVerzeichnis(1), u"");
    EXPECT_EQ(KapitelVerzeichnis(2), u""); // another language: nothing is read of it
}

// --- A fresh run -----------------------------------------------------------------------------------------------------

TEST_F(VLTKatalog, FrischerStandIstLeer) {
    ImOrdner("N131241.qvm", Gepackt());
    ASSERT_TRUE(LadeKapitel(241, 2013, 1));
    kapitelDaten = {};
    katalogDaten = {};
    EXPECT_FALSE(FindeH(111));
    EXPECT_FALSE(InWiederholungsbereich(111150));
    EXPECT_TRUE(IstEndknoten(111100));
    std::int32_t von = 1;
    std::int32_t bis = 1;
    EXPECT_FALSE(InTextAst(111000, von, bis));
    EXPECT_TRUE(katalogDaten.Inhalt.Plaetze.empty());
}

} // namespace
} // namespace zepholt
