#include "intake/TestTechnisch.h"

#include "intake/Intaketest.h"
#include "window/DialogDeFrIt.h"
#include "window/Fenster.h"
#include "window/Formulare.h"
#include "window/Fortschritt.h"

#include <filesystem>
#include <fstream>

namespace zepholt {
namespace {

using namespace hilfen;
using namespace std::string_view_literals;

const Funde Keine;

// --- Loading ---------------------------------------------------------------------------------------------------------

class Einlesen : public Intaketest {
protected:
    // Reads a file whose first line is `kopf` and whose second is a record Z; the one code, or 0 when it may go on.
    std::int32_t Lies(bool istE1S, const Text& kopf) {
        Beginne();
        istE1S ? GibE1S(DateiE1S({kopf, u"Z"})) : Gib01S(Datei01S({kopf, u"Z"}));
        return Lies();
    }

    std::int32_t Lies() {
        const bool ergebnis = DateiEinlesen();
        EXPECT_EQ(FehlerAnzahl(), ergebnis ? 0 : 1);
        EXPECT_EQ(testDaten.Zeilen.size() > 0, ergebnis);
        return ergebnis ? 0 : FundeAb(0).at(0).Code;
    }

    std::int32_t LiesBytes(std::string_view bytes, std::string_view name) {
        Beginne();
        Gib(bytes, name);
        return Lies();
    }
};

TEST_F(Einlesen, GuteDateiBeiderArten) {
    EXPECT_EQ(Lies(false, SatzA(11)), 0);
    EXPECT_EQ(testDaten.Dateiformat, u"01S");
    EXPECT_FALSE(testDaten.IstE1S);
    EXPECT_FALSE(testDaten.Utf8Modus);
    EXPECT_EQ(testDaten.SchnittstellenId, u"451-92");
    EXPECT_EQ(testDaten.Revision, 11);
    EXPECT_EQ(testDaten.ZeilenAnzahl, 2);
    EXPECT_EQ(testDaten.Zeilen[1], u"Z");

    EXPECT_EQ(Lies(true, SatzA(21)), 0);
    EXPECT_EQ(testDaten.Dateiformat, u"E1S");
    EXPECT_TRUE(testDaten.IstE1S);
    EXPECT_TRUE(testDaten.Utf8Modus);
    EXPECT_EQ(testDaten.SchnittstellenId, u"QVMX17");
    EXPECT_EQ(testDaten.Revision, 21);
}

TEST_F(Einlesen, DerNameAlleinEntscheidet) {
    const std::string alt = Datei01S({SatzA(11)});
    const std::string neu = DateiE1S({SatzA(21)});
    for (const std::string_view name : {"a.E1S", "a.e1s", "a.e1S", "x.01S.E1s", ".e1s"}) {
        EXPECT_EQ(LiesBytes(neu, name), 0) << name;
        EXPECT_EQ(LiesBytes(alt, name), 2004) << name;
    }
    for (const std::string_view name : {"a.01S", "a.01s", "a.txt", "a", "aE1S", "a.E1S.01S", "a.E1", "1S"}) {
        EXPECT_EQ(LiesBytes(alt, name), 0) << name;
        EXPECT_EQ(LiesBytes(neu, name), 2002) << name;
    }
}

TEST_F(Einlesen, NameKuerzerAlsDieEndung) {
    testDaten.Austauschdatei = u"1S";
    EXPECT_EQ(Lies(), 2001);
    EXPECT_EQ(testDaten.Dateiformat, u"01S");
    Beginne();
    testDaten.Austauschdatei = u"";
    EXPECT_EQ(Lies(), 2001);
}

TEST_F(Einlesen, UnbrauchbareDatei) {
    EXPECT_EQ(LiesBytes("", "a.01S"), 2001);
    EXPECT_EQ(LiesBytes("", "a.E1S"), 2001);
    const std::string gut = Datei01S({SatzA(11), u"Z"});
    EXPECT_EQ(LiesBytes(gut, "a.01S"), 0);
    EXPECT_EQ(LiesBytes(gut.substr(0, gut.size() - 1), "a.01S"), 2001);
    EXPECT_EQ(LiesBytes(gut.substr(0, gut.size() - 2), "a.01S"), 2001);
    EXPECT_EQ(LiesBytes(gut + "\n", "a.01S"), 2001);
    EXPECT_EQ(LiesBytes(gut + "\r\n", "a.01S"), 0);
}

TEST_F(Einlesen, KeineGewoehnlicheDatei) {
    testDaten.Austauschdatei = m_ordner.TextPfad("fehlt.01S");
    EXPECT_EQ(Lies(), 2001);
    Beginne();
    std::filesystem::create_directory(m_ordner.Pfad() / "ordner.E1S");
    testDaten.Austauschdatei = m_ordner.TextPfad("ordner.E1S");
    EXPECT_EQ(Lies(), 2001);
    EXPECT_TRUE(testDaten.IstE1S);
    Beginne();
    testDaten.Austauschdatei = u"/dev/zero";
    EXPECT_EQ(Lies(), 2001);
}

TEST_F(Einlesen, Kennung) {
    EXPECT_EQ(Lies(false, SatzA(11, {{8, u"451-93"}})), 2002);
    EXPECT_EQ(Lies(false, SatzA(11, {{8, u"451 92"}})), 2002);
    EXPECT_EQ(Lies(false, u"A"), 2002);
    EXPECT_EQ(Lies(false, u""), 2002);
    EXPECT_EQ(Lies(true, SatzA(21, {{8, u"QVMX18"}})), 2004);
    EXPECT_EQ(Lies(true, SatzA(21, {{8, u"qvmx17"}})), 2004);
    EXPECT_EQ(Lies(true, u""), 2004);
    EXPECT_EQ(testDaten.SchnittstellenId, u"");
    EXPECT_EQ(testDaten.Revision, 0);
}

struct RevisionFall {
    bool IstE1S;
    TextSicht Spalten;
    std::int32_t Code;
    std::int32_t Revision; // left behind
};

TEST_F(Einlesen, Revision) {
    const RevisionFall faelle[] = {
        {false, u"11", 0, 11},   {false, u"21", 2006, 21}, {false, u"12", 2006, 12}, {false, u"09", 2006, 0},
        {false, u"10", 2006, 0}, {false, u"  ", 2006, 0},  {false, u" 1", 2006, 0},  {false, u"1 ", 2006, 0},
        {false, u"1x", 2006, 0}, {false, u"x1", 2006, 0},  {false, u"-1", 2006, 0},  {true, u"21", 0, 21},
        {true, u"11", 2005, 11}, {true, u"20", 2005, 20},  {true, u"22", 2005, 22},  {true, u"05", 2006, 0},
        {true, u"10", 2006, 0},  {true, u"  ", 2006, 0},   {true, u" 1", 2006, 0},
    };
    for (const RevisionFall& fall : faelle) {
        EXPECT_EQ(Lies(fall.IstE1S, SatzA(fall.IstE1S ? 21 : 11, {{14, fall.Spalten}})), fall.Code)
            << AlsUtf8(fall.Spalten);
        EXPECT_EQ(testDaten.Revision, fall.Revision) << AlsUtf8(fall.Spalten);
    }
}

TEST_F(Einlesen, Sprache) {
    for (const bool istE1S : {false, true}) {
        for (const TextSicht gut : {u"1", u"2", u"3"}) {
            EXPECT_EQ(Lies(istE1S, SatzA(istE1S ? 21 : 11, {{42, gut}})), 0);
        }
        for (const TextSicht schlecht : {u"0", u"4", u" ", u"x"}) {
            EXPECT_EQ(Lies(istE1S, SatzA(istE1S ? 21 : 11, {{42, schlecht}})), 2003);
        }
        EXPECT_EQ(Lies(istE1S, SatzA(istE1S ? 21 : 11).substr(0, 41)), 2003);
    }
}

TEST_F(Einlesen, ReihenfolgeDerTestsImKopf) {
    EXPECT_EQ(Lies(false, SatzA(11, {{8, u"x"}, {14, u"  "}, {42, u" "}})), 2002);
    EXPECT_EQ(Lies(false, SatzA(11, {{14, u"  "}, {42, u" "}})), 2006);
    EXPECT_EQ(Lies(true, SatzA(21, {{14, u"11"}, {42, u" "}})), 2005);
}

const std::initializer_list<Feldwert> Projekt = {{82, u" P-1"},        {93, u"Schulhaus"},  {123, u"D-1"},
                                                 {138, u"Baumeister"}, {168, u"Muster AG"}, {208, u"Ausmass"}};

TEST_F(Einlesen, KopfAuchBeiFalscherSprache) {
    Text kopf = SatzA(11, Projekt);
    kopf[41] = u'0';
    EXPECT_EQ(Lies(false, kopf), 2003);
    EXPECT_EQ(sia451Datei.ProjektNummer, u" P-1       ");
    EXPECT_EQ(sia451Datei.ProjektName, Text(u"Schulhaus") + Text(21, u' '));
    EXPECT_EQ(sia451Datei.DokumentNummer, u"D-1            ");
    EXPECT_EQ(sia451Datei.DokumentName, Text(u"Baumeister") + Text(20, u' '));
    EXPECT_EQ(sia451Datei.SoftwareHersteller, u"Muster AG           ");
    EXPECT_EQ(sia451Datei.SoftwareName, Text(u"Ausmass") + Text(23, u' '));
}

TEST_F(Einlesen, KeinKopfNachFalscherRevision) {
    Text kopf = SatzA(21, Projekt);
    kopf.replace(13, 2, u"11");
    EXPECT_EQ(Lies(true, kopf), 2005);
    EXPECT_EQ(sia451Datei.ProjektName, u"");
}

TEST_F(Einlesen, KopfEinerKurzenZeile) {
    const Text zeile(94, u'x');
    KopfUebernehmen(zeile);
    EXPECT_EQ(sia451Datei.ProjektNummer, Text(11, u'x'));
    EXPECT_EQ(sia451Datei.ProjektName, u"xx");
    EXPECT_EQ(sia451Datei.DokumentName, u"");
}

TEST_F(Einlesen, BytesVorDemKopf) {
    // A 451-92 file with umlauts under the name of an E1S file.
    EXPECT_EQ(LiesBytes(Datei01S({SatzA(11, {{93, u"\x84"}})}), "a.E1S"), 2007);
    EXPECT_EQ(LiesBytes(Datei01S({SatzA(11, {{93, u"\x84"}})}), "a.01S"), 0);
    // Line ends come before the encoding.
    EXPECT_EQ(LiesBytes("\x84\n", "a.E1S"), 2001);
    EXPECT_EQ(LiesBytes("\x84\r\n", "a.E1S"), 2007);
}

TEST_F(Einlesen, JenseitsDerErstenEbene) {
    const std::string kopf = DateiE1S({SatzA(21)});
    EXPECT_EQ(LiesBytes(kopf + "G\xF0\x9F\x98\x80\r\nZ\r\n", "a.E1S"), 2008);
    EXPECT_EQ(FundeAb(0), (Funde{{2008, 1}}));
    EXPECT_EQ(LiesBytes(kopf + "G\xEF\xBF\xBD\r\nZ\r\n", "a.E1S"), 0);
}

TEST_F(Einlesen, Marke) {
    const std::string marke = "\xEF\xBB\xBF";
    const std::string neu = DateiE1S({SatzA(21), u"G\u00E4"});
    EXPECT_EQ(LiesBytes(marke + neu, "a.E1S"), 0);
    EXPECT_EQ(testDaten.Zeilen[0], SatzA(21));
    EXPECT_EQ(testDaten.Zeilen[1], u"G\u00E4");
    EXPECT_EQ(LiesBytes(marke + marke + neu, "a.E1S"), 2004);

    const std::string alt = AlsUtf8(SatzA(11)) + "\r\nG\xC3\xA4\r\n";
    EXPECT_EQ(LiesBytes(marke + alt, "a.01S"), 2002);
    EXPECT_EQ(LiesBytes(alt, "a.01S"), 0);
    EXPECT_EQ(testDaten.Zeilen[1], u"G\u251C\u00F1");
}

TEST_F(Einlesen, MarkeInDenJahrenDesUebergangs) {
    const std::string alt = AlsUtf8(SatzA(11)) + "\r\nG\xC3\xA4\xFF\r\n";
    const auto lies = [&](std::string_view marke, Zeitpunkt (*uhr)()) {
        Beginne();
        testDaten.Uhr = uhr;
        Gib01S(std::string(marke) + alt);
        return Lies();
    };
    Zeitpunkt (*const mitte)() = [] { return Zeitpunkt{2099, 6, 1, 0, 0}; };
    EXPECT_EQ(lies("\xEF\xBB\xBF", mitte), 0);
    EXPECT_TRUE(testDaten.Utf8Modus);
    EXPECT_EQ(testDaten.Zeilen[1], u"G\u00E4\uFFFD");
    EXPECT_EQ(lies("", mitte), 0);
    EXPECT_FALSE(testDaten.Utf8Modus);
    Zeitpunkt (*const danach)() = [] { return Zeitpunkt{2099, 12, 1, 0, 0}; };
    EXPECT_EQ(lies("\xEF\xBB\xBF", danach), 0);
    EXPECT_EQ(lies("", danach), 2002);
}

TEST_F(Einlesen, ZeilenWieInDerDatei) {
    const std::string kopf = Datei01S({SatzA(11)});
    EXPECT_EQ(LiesBytes(kopf + "eins\r\n\r\n  drei  \r\n" + std::string(300, 'x') + "\r\n", "a.01S"), 0);
    EXPECT_EQ(testDaten.Zeilen[1], u"eins");
    EXPECT_EQ(testDaten.Zeilen[2], u"");
    EXPECT_EQ(testDaten.Zeilen[3], u"  drei  ");
    EXPECT_EQ(testDaten.Zeilen[0], SatzA(11));
    EXPECT_EQ(testDaten.Zeilen[4], Text(300, u'x'));
    EXPECT_EQ(testDaten.ZeilenAnzahl, 5);
    EXPECT_FALSE(testDaten.ZeilenNummeriert);
}

TEST_F(Einlesen, NullbyteSchneidetNurImOemText) {
    const std::string null(1, '\0');
    EXPECT_EQ(LiesBytes(Datei01S({SatzA(11)}) + "ab" + null + "cd\r\nef\r\n", "a.01S"), 0);
    EXPECT_EQ(testDaten.Zeilen[1], u"ab");
    EXPECT_EQ(testDaten.Zeilen[2], u"ef");
    EXPECT_EQ(LiesBytes(DateiE1S({SatzA(21)}) + "ab" + null + "cd\r\n", "a.E1S"), 0);
    EXPECT_EQ(testDaten.Zeilen[1], u"ab\0cd"sv);
}

TEST_F(Einlesen, NullbyteImKopf) {
    std::string bytes = Datei01S({SatzA(11)});
    bytes[20] = '\0';
    EXPECT_EQ(LiesBytes(bytes, "a.01S"), 2003); // column 42 is cut off
    bytes[20] = ' ';
    bytes[50] = '\0';
    EXPECT_EQ(LiesBytes(bytes, "a.01S"), 0);
    EXPECT_EQ(testDaten.Zeilen[0].size(), 50U);
}

TEST_F(Einlesen, GrosseDateiUeberVieleBloecke) {
    std::string bytes = Datei01S({SatzA(11)});
    std::size_t anzahl = 1;
    for (; bytes.size() < 3'000'000; ++anzahl) {
        bytes += AlsBytes(ZahlText(static_cast<std::int64_t>(anzahl))) + std::string(anzahl % 256, '\x84') + "\r\n";
    }
    EXPECT_EQ(LiesBytes(bytes, "a.01S"), 0);
    ASSERT_EQ(testDaten.Zeilen.size(), anzahl);
    for (std::size_t k = 1; k < anzahl; ++k) {
        ASSERT_EQ(testDaten.Zeilen[k], ZahlText(static_cast<std::int64_t>(k)) + Text(k % 256, u'\u00E4'));
    }
}

// --- The bar ---------------------------------------------------------------------------------------------------------

struct Zuschauer : Fenster {
    void ZeigeAustauschdatei(TextSicht) override {}
    void ZeigeProjekt(TextSicht) override {}
    void ZeigeDokument(TextSicht) override {}
    void ZeigeSchritt(TextSicht text) override { Schritte.emplace_back(text); }
    void ZeigeBalken(double breite) override { Anteile.push_back(breite / BalkenInnen); }

    std::vector<Text> Schritte;
    std::vector<double> Anteile;
};

class Fortschritt : public Einlesen {
protected:
    std::int32_t LiesMitFenster(std::string_view bytes, std::string_view name) {
        Beginne();
        m_fenster = {};
        testDaten.Fortschrittsfenster = &m_fenster;
        fortschrittStand.Uhr = [] { return m_zeit += 1000; }; // every move is seen
        Gib(bytes, name);
        return Lies();
    }

    Zuschauer m_fenster;
    static inline std::int64_t m_zeit = 0;
};

TEST_F(Fortschritt, HoechstensFuenfzigSchritteUndVoll) {
    std::vector<Text> zeilen = {SatzA(11)};
    zeilen.resize(3000, Text(98, u'x')); // 100 bytes a line, the first 258
    EXPECT_EQ(LiesMitFenster(Datei01S(zeilen), "a.01S"), 0);
    EXPECT_EQ(m_fenster.Schritte, std::vector<Text>{u"Liest Austauschdatei ein"});
    // 300158 bytes, every 6003: the first line start at or behind 6003 is 258 + 58 * 100.
    const std::vector<double>& anteile = m_fenster.Anteile;
    ASSERT_EQ(anteile.size(), 1 + 49 + 1U); // the empty bar, the moves, the full bar
    EXPECT_EQ(anteile.front(), 0);
    EXPECT_NEAR(anteile[1], 6058.0 / 300158.0, 1e-9);
    EXPECT_NEAR(anteile[2], 12058.0 / 300158.0, 1e-9);
    EXPECT_EQ(anteile.back(), 1);
}

TEST_F(Fortschritt, ErsteZeilenUnter50BytesBewegenJedesmal) {
    // 44 bytes and 3: a fiftieth is 0.
    EXPECT_EQ(LiesMitFenster(Datei01S({SatzA(11).substr(0, 42), u"Z"}), "a.01S"), 0);
    ASSERT_EQ(m_fenster.Anteile.size(), 3U);
    EXPECT_NEAR(m_fenster.Anteile[1], 44.0 / 47.0, 1e-9);
}

TEST_F(Fortschritt, NichtsVorDenBytetests) {
    EXPECT_EQ(LiesMitFenster("x", "a.01S"), 2001);
    EXPECT_EQ(LiesMitFenster("\xFF\r\n", "a.E1S"), 2007);
    EXPECT_TRUE(m_fenster.Schritte.empty());
    EXPECT_EQ(LiesMitFenster("x\r\n", "a.01S"), 2002);
    EXPECT_EQ(m_fenster.Schritte.size(), 1U);
}

TEST_F(Fortschritt, InDerDialogsprache) {
    Beginne();
    SpracheSetzen(2);
    testDaten.Fortschrittsfenster = &m_fenster;
    Gib01S("x\r\n");
    EXPECT_FALSE(DateiEinlesen());
    EXPECT_EQ(m_fenster.Schritte, std::vector<Text>{u"Fichier de transfert - Lecture en cours"});
}

// --- The frame -------------------------------------------------------------------------------------------------------

class Rahmen : public Intaketest {};

TEST_F(Rahmen, GuteDatei) {
    EXPECT_EQ(TesteGanze({SatzA(11), SatzZ(2)}), Keine);
    EXPECT_TRUE(m_ergebnis);
}

TEST_F(Rahmen, EinlesenGehtVor) {
    EXPECT_EQ(TesteGanze({u"B"}), (Funde{{2002, 0}}));
    EXPECT_FALSE(m_ergebnis);
}

TEST_F(Rahmen, ErsteZeileIstA) {
    EXPECT_EQ(TesteGanze({SatzA(11, {{1, u"B"}}), SatzZ(2)}), (Funde{{2011, 0}}));
    EXPECT_EQ(TesteGanze({SatzA(11, {{1, u"a"}}), SatzZ(2)}), (Funde{{2011, 0}}));
    EXPECT_FALSE(m_ergebnis);
}

TEST_F(Rahmen, LetzteZeileIstZ) {
    EXPECT_EQ(TesteGanze({SatzA(11), SatzZ(2), u"E"}), (Funde{{2012, 0}}));
    EXPECT_EQ(TesteGanze({SatzA(11), SatzZ(2), u""}), (Funde{{2012, 0}}));
}

TEST_F(Rahmen, NurRecordA) {
    EXPECT_EQ(TesteGanze({SatzA(11)}), (Funde{{2012, 0}}));
}

TEST_F(Rahmen, KeineWeitereTeildatei) {
    EXPECT_EQ(TesteGanze({SatzA(11), Zeile(u"Z", {{46, u"2"}, {62, u"+"}, {63, u"1"}})}), (Funde{{2013, 0}}));
    EXPECT_EQ(TesteGanze({SatzA(11), Zeile(u"Z", {{46, u"2"}, {63, u"1"}})}), (Funde{{2013, 0}}));
}

TEST_F(Rahmen, NummerDesDatentraegers) {
    const auto z = [](TextSicht nummer) { return Zeile(u"Z", {{46, u"2"}, {62, u"-"}, {63, nummer}}); };
    const Feldwert leer = {63, u"            "}; // all of the field
    for (const TextSicht gut : {u"1", u"           1", u"000000000001", u"    1x", u"1.0", u"+1"}) {
        EXPECT_EQ(TesteGanze({SatzA(11, {leer, {63, gut}}), SatzZ(2)}), Keine) << AlsBytes(gut);
        EXPECT_EQ(TesteGanze({SatzA(11), z(gut)}), Keine) << AlsBytes(gut);
    }
    for (const TextSicht schlecht : {u"2", u"           ", u"0", u"11", u"-1", u"x1", u"1.5"}) {
        EXPECT_EQ(TesteGanze({SatzA(11, {leer, {63, schlecht}}), SatzZ(2)}), (Funde{{2014, 0}})) << AlsBytes(schlecht);
        EXPECT_EQ(TesteGanze({SatzA(11), z(schlecht)}), (Funde{{2014, 0}})) << AlsBytes(schlecht);
    }
}

TEST_F(Rahmen, AnzahlDerZeilen) {
    std::vector<Text> zeilen(12, u"E");
    zeilen.front() = SatzA(11);
    const auto mit = [&](TextSicht anzahl) {
        zeilen.back() = Zeile(u"Z", {{46, anzahl}, {62, u"-"}, {63, u"1"}});
        return TesteGanze(zeilen);
    };
    EXPECT_EQ(mit(u"12"), Keine);
    EXPECT_EQ(mit(u"0000000000012"), Keine);
    EXPECT_EQ(mit(u"           12"), Keine);
    EXPECT_EQ(mit(u"11"), (Funde{{2015, 0}}));
    EXPECT_EQ(mit(u"13"), (Funde{{2015, 0}}));
    EXPECT_EQ(mit(u"10"), (Funde{{2015, 0}}));
    EXPECT_EQ(mit(u"             "), (Funde{{2015, 0}}));
    EXPECT_EQ(mit(u"9999999999999"), (Funde{{2015, 0}}));
}

TEST_F(Rahmen, NurDerErsteFehler) {
    EXPECT_EQ(TesteGanze({SatzA(11, {{63, u"2"}}), Zeile(u"Z", {{46, u"9"}})}), (Funde{{2013, 0}}));
    EXPECT_EQ(TesteGanze({SatzA(11, {{63, u"2"}}), Zeile(u"Z", {{46, u"9"}, {62, u"-"}})}), (Funde{{2014, 0}}));
}

// --- Keys and order --------------------------------------------------------------------------------------------------

class Schluesseltest : public Intaketest {
protected:
    // A G6 record with these fields.
    static Text Menge(std::initializer_list<Feldwert> felder) {
        Text zeile = Zeile(u"G6", felder);
        return zeile.replace(1, 3, u"111");
    }
};

TEST_F(Schluesseltest, DoppelteAuchBeiAndererSchreibung) {
    EXPECT_EQ(Teste01S({Menge({{87, u"abc"}}), Menge({{87, u"ABC"}})}), (Funde{{2021, 2}}));
    EXPECT_FALSE(m_ergebnis);
    EXPECT_EQ(Teste01S({Menge({{87, u"abc"}}), Menge({{87, u"ABD"}})}), Keine);
    EXPECT_TRUE(m_ergebnis);
}

TEST_F(Schluesseltest, TextfelderZaehlenNicht) {
    EXPECT_EQ(Teste01S({Zeile(u"G2", {{93, u"eins"}}), Zeile(u"G2", {{93, u"zwei"}})}), (Funde{{2021, 2}}));
    EXPECT_EQ(Teste01S({Zeile(u"G2", {{8, u"1"}, {93, u"eins"}}), Zeile(u"G2", {{8, u"2"}, {93, u"eins"}})}), Keine);
}

TEST_F(Schluesseltest, ZeilenEDUKollidierenNie) {
    EXPECT_EQ(Teste01S({u"E", u"E", u"E"}), Keine);
    EXPECT_EQ(TesteE1S({u"D", u"D", u"E", u"E"}), Keine);
}

TEST_F(Schluesseltest, ZeilenEDUInDerReihenfolge) {
    EXPECT_EQ(Teste01S({Zeile(u"G1", {}), u"D"}), (Funde{{2022, 2}}));
    EXPECT_EQ(Teste01S({u"D", Zeile(u"G1", {})}), Keine);
    EXPECT_EQ(Teste01S({Zeile(u"G1", {}), u"U"}), Keine);
    EXPECT_EQ(Teste01S({u"E", u"D"}), (Funde{{2022, 2}})); // D stands before E
    EXPECT_EQ(TesteE1S({u"E", u"D"}), (Funde{{2022, 2}}));
    EXPECT_EQ(Teste01S({u"D", u"E"}), Keine);
    // Whatever they hold behind their letter.
    EXPECT_EQ(Teste01S({u"E9", u"E1", u"E5"}), Keine);
}

TEST_F(Schluesseltest, GleicheOrdnungInBeliebigerFolge) {
    EXPECT_EQ(Teste01S({Menge({{18, u"B"}}), Menge({{18, u"A"}})}), Keine);
    EXPECT_EQ(Teste01S({Menge({{18, u"A"}}), Menge({{18, u"B"}})}), Keine);
}

struct Ordnungsfall {
    std::int32_t Spalte;
    bool Entscheidet;
};

TEST_F(Schluesseltest, WelcheSpaltenDieOrdnungEntscheiden) {
    for (const auto& [spalte, entscheidet] : {Ordnungsfall{2, true},
                                              {3, true},
                                              {4, true},
                                              {8, true},
                                              {13, true},
                                              {42, true},
                                              {14, true},
                                              {15, true},
                                              {16, true},
                                              {17, true},
                                              {18, false},
                                              {30, false},
                                              {82, false},
                                              {123, false}}) {
        const Text hoch = Zeile(u"C1", {{42, u"1"}, {spalte, u"1"}});
        const Text tief = Zeile(u"C1", {{42, u"1"}, {spalte, u"0"}});
        const Funde befunde = Teste01S({hoch, tief});
        const bool gemeldet = !befunde.empty() && befunde[0] == Fund{2022, 2};
        EXPECT_EQ(gemeldet, entscheidet) << spalte;
    }
}

TEST_F(Schluesseltest, ZeichenUndNichtIhreCodesOrdnen) {
    // The bytes of a u umlaut and of an e acute in code page 850, which stand the other way round among the characters.
    constexpr TextSicht UmlautU = u"\u0081";
    constexpr TextSicht AkutE = u"\u0082";
    const auto gemeldet = [this](TextSicht erste, TextSicht zweite, std::int32_t spalte) {
        const Funde befunde = Teste01S({Zeile(u"C1", {{spalte, Text(erste)}}), Zeile(u"C1", {{spalte, Text(zweite)}})});
        return !befunde.empty() && befunde[0] == Fund{2022, 2};
    };
    for (const std::int32_t spalte : {2, 4, 8, 11, 12, 13, 14, 17, 42}) {
        EXPECT_TRUE(gemeldet(UmlautU, AkutE, spalte)) << spalte;
        EXPECT_FALSE(gemeldet(AkutE, UmlautU, spalte)) << spalte;
    }
}

TEST_F(Schluesseltest, GHinterX) {
    EXPECT_EQ(TesteE1S({Zeile(u"X4", {}), Zeile(u"G1", {})}), (Funde{{2022, 2}}));
    EXPECT_EQ(TesteE1S({Zeile(u"G1", {}), Zeile(u"X4", {})}), Keine);
}

TEST_F(Schluesseltest, KleinerBuchstabeStehtHinterZ) {
    EXPECT_EQ(Teste01S({Zeile(u"g1", {})}), (Funde{{2022, 2}}));
    EXPECT_EQ(Teste01S({Zeile(u"B1", {}), Zeile(u"g1", {}), Zeile(u"G1", {})}), (Funde{{2022, 3}}));
}

TEST_F(Schluesseltest, Spalten168NurInDerNeuen) {
    const std::vector<Text> zeilen = {Menge({{168, u"A"}}), Menge({{168, u"B"}})};
    EXPECT_EQ(Teste01S(zeilen), (Funde{{2021, 2}}));
    EXPECT_EQ(TesteE1S(zeilen), Keine);
}

TEST_F(Schluesseltest, DoppelteGehenVorReihenfolge) {
    EXPECT_EQ(Teste01S({Zeile(u"G2", {}), Zeile(u"G1", {}), Zeile(u"G2", {})}), (Funde{{2021, 3}}));
}

TEST_F(Schluesseltest, NachEinemFehlerStehtDieSortierteListe) {
    EXPECT_EQ(Teste01S({Zeile(u"G2", {}), Zeile(u"G1", {}), u"D"}), (Funde{{2022, 2}}));
    EXPECT_EQ(testDaten.Zeilen[1], u"D");
    EXPECT_EQ(testDaten.Zeilen[2], Zeile(u"G1", {}));
    EXPECT_EQ(testDaten.Zeilen[3], Zeile(u"G2", {}));
    EXPECT_TRUE(testDaten.ZeilenNummeriert);

    EXPECT_EQ(Teste01S({Zeile(u"G2", {{93, u"x"}}), Zeile(u"G1", {}), Zeile(u"G2", {})}), (Funde{{2021, 3}}));
    EXPECT_EQ(testDaten.Zeilen[1], Zeile(u"G1", {}));
    EXPECT_EQ(testDaten.Zeilen[2], Zeile(u"G2", {{93, u"x"}}));
    EXPECT_EQ(testDaten.Zeilen[3], Zeile(u"G2", {}));
    EXPECT_TRUE(testDaten.ZeilenNummeriert);
}

TEST_F(Schluesseltest, EineMillionUndEineZeile) {
    // From line 1,000,000 on the number outgrows its six columns: that line sorts behind line 100,000, though no test
    // finds fault with it, and the run goes on so.
    std::vector<Text> zeilen(1'000'002, u"E");
    zeilen.front() = SatzA(21);
    zeilen[1'000'000] = u"Ex";
    zeilen.back() = SatzZ(zeilen.size());
    GibE1S(DateiE1S(zeilen));
    EXPECT_TRUE(DateiTesten());
    EXPECT_EQ(FundeAb(0), Keine);
    EXPECT_EQ(testDaten.Zeilen[100'001], u"Ex");
    EXPECT_EQ(testDaten.Zeilen[1'000'000], u"E");

    Beginne();
    zeilen.front() = SatzA(11);
    Gib01S(Datei01S(zeilen));
    EXPECT_TRUE(DateiTesten());
    EXPECT_EQ(testDaten.Zeilen[1'000'000], u"Ex");
}

// --- Characters of the whole file ------------------------------------------------------------------------------------

class Zeichen : public Intaketest {};

TEST_F(Zeichen, FundeMitZeileUndSpalteHaltenNichtsAuf) {
    EXPECT_EQ(Teste01S({Zeile(u"B1", {{2, u"001"}, {93, u"\t"}}), Zeile(u"B1", {{2, u"002"}, {5, u"x"}})}),
              (Funde{{2031, 1, 93}, {2032, 2, 5}}));
    EXPECT_TRUE(m_ergebnis);
}

TEST_F(Zeichen, UndefinierterTypEinmalOhneZeile) {
    testDaten.FehlerKapitel = 1;
    EXPECT_EQ(Teste01S({Zeile(u"B9", {}), Zeile(u"Q1", {}), Zeile(u"Q2", {})}), (Funde{{2041, -1}}));
    EXPECT_TRUE(m_ergebnis);
    EXPECT_EQ(testDaten.ZeilenNr, -1);
    EXPECT_EQ(testDaten.Record, SatzZ(5));
    EXPECT_EQ(Teste01S({Zeile(u"B8", {})}), (Funde{{2041, -1}}));
    EXPECT_EQ(TesteE1S({Zeile(u"B8", {})}), Keine);
    EXPECT_EQ(testDaten.ZeilenNr, 2);
}

TEST_F(Zeichen, NachDemLaufStehtDieLetzteZeile) {
    EXPECT_EQ(Teste01S({Zeile(u"B1", {})}), Keine);
    EXPECT_EQ(testDaten.Record, SatzZ(3));
    EXPECT_EQ(testDaten.ZeilenNr, 2);
    EXPECT_TRUE(testDaten.ZeilenNummeriert);
    EXPECT_EQ(testDaten.NaechsteSpalte, 257);
    EXPECT_EQ(testDaten.ErlaubteZeichen.substr(0, 3), u" !\"");
}

TEST_F(Zeichen, UmlauteInBeidenArten) {
    EXPECT_EQ(Teste01S({Zeile(u"B1", {{93, u"\x84\x81\xE1"}})}), Keine);
    EXPECT_EQ(testDaten.Zeilen[1].substr(92), u"\u00E4\u00FC\u00DF");
    EXPECT_EQ(TesteE1S({Zeile(u"B1", {{93, u"\u00E4\u4E2D"}})}), Keine);
    EXPECT_EQ(testDaten.Zeilen[1].substr(92), u"\u00E4\u4E2D");
}

TEST_F(Zeichen, NullBestehtDenDekoderNichtDenZeichentest) {
    EXPECT_EQ(TesteE1S({Zeile(u"B1", {{93, u"a\0b"sv}})}), (Funde{{2031, 1, 94}}));
}

} // namespace
} // namespace zepholt
