// Command line, parameter test, parameter message, and the roads of a run.
#include "run/Main_Start.h"

#include "errors/FehlerERL.h"
#include "errors/TestFehler.h"
#include "hilfen/Testordner.h"
#include "intake/ParameterPruefung.h"
#include "run/NeuerLauf.h"
#include "state/SIA451Datei.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"

#include <gtest/gtest.h>

namespace zepholt {
namespace {

using hilfen::Testordner;
using Argumente = std::vector<Text>;

// --- KommandozeileZerlegen -------------------------------------------------------------------------------------------

class KommandozeileTest : public ::testing::Test {
protected:
    KommandozeileTest() { NeuerLauf(); }
};

TEST_F(KommandozeileTest, SplitsAtBlanksOutsideQuotationMarks) {
    EXPECT_EQ(KommandozeileZerlegen(u""), (Argumente{u""}));
    EXPECT_EQ(KommandozeileZerlegen(u"    "), (Argumente{u""}));
    EXPECT_EQ(KommandozeileZerlegen(u"a=1 b=2"), (Argumente{u"a=1", u"b=2"}));
    EXPECT_EQ(KommandozeileZerlegen(u"  a=1    b=2  "), (Argumente{u"a=1", u"b=2"}));
    EXPECT_EQ(KommandozeileZerlegen(u"a=1\tb=2"), (Argumente{u"a=1\tb=2"}));
    EXPECT_EQ(KommandozeileZerlegen(u"file=\"C:\\a b\\c.01S\" d=1"), (Argumente{u"file=\"C:\\a b\\c.01S\"", u"d=1"}));
    EXPECT_EQ(KommandozeileZerlegen(u"\"file=a b\" \"\" c"), (Argumente{u"\"file=a b\"", u"\"\"", u"c"}));
    EXPECT_EQ(KommandozeileZerlegen(u"a=\"x  y"), (Argumente{u"a=\"x  y"})); // a mark that is never closed
    EXPECT_EQ(KommandozeileZerlegen(u"a\"b c\"d e"), (Argumente{u"a\"b c\"d", u"e"}));
}

// --- ParameterPruefen ------------------------------------------------------------------------------------------------

class ParameterTest : public ::testing::Test {
protected:
    ParameterTest() {
        NeuerLauf();
        m_ordner.Schreibe("a.01S", "x");
        m_ordner.Schreibe("k.vlt", "x");
        m_ordner.Schreibe("da.xml", "x");
    }

    Text Pfad(std::string_view name) const { return m_ordner.TextPfad(name); }

    // The outcome of a complete, good set of parameters of which `ersatz` replaces or adds some.
    std::int32_t Pruefe(std::initializer_list<std::pair<TextSicht, Text>> ersatz) {
        NeuerLauf();
        std::vector<std::pair<Text, Text>> werte = {{u"file", Pfad("a.01S")},
                                                    {u"dialog", u"de-"},
                                                    {u"errorfile", Pfad("neu.xml")},
                                                    {u"catalog", m_ordner.Pfad().u16string()}};
        for (const auto& [name, wert] : ersatz) {
            werte.emplace_back(name, wert);
        }
        Argumente argumente;
        for (const auto& [name, wert] : werte) {
            argumente.push_back(name + u"=" + wert);
        }
        return ParameterPruefen(argumente);
    }

    Testordner m_ordner;
};

TEST_F(ParameterTest, AGoodSetFillsTheParameters) {
    EXPECT_EQ(Pruefe({{u"mode", u"E"}}), 0);
    EXPECT_EQ(testDaten.Austauschdatei, Pfad("a.01S"));
    EXPECT_EQ(testDaten.DialogParameter, u"de-");
    EXPECT_EQ(testDaten.Sprache, 1);
    EXPECT_TRUE(testDaten.OhneDialog);
    EXPECT_EQ(testDaten.Fehlerdatei, Pfad("neu.xml"));
    EXPECT_EQ(testDaten.KatalogArt, 1);
    EXPECT_EQ(testDaten.Modus, u"E");
    EXPECT_FALSE(testDaten.Spezialfunktion);
    EXPECT_FALSE(m_ordner.Hat("neu.xml")) << "the test of the error file leaves nothing behind";
}

TEST_F(ParameterTest, AnArgumentWithoutEqualsSignOrNoFile) {
    EXPECT_EQ(ParameterPruefen(Argumente{u""}), 1001);
    EXPECT_EQ(ParameterPruefen(Argumente{u"file"}), 1001);
    EXPECT_EQ(Pruefe({{u"file", u""}}), 1001);
    EXPECT_EQ(ParameterPruefen(Argumente{u"dialog=de"}), 1001);
}

TEST_F(ParameterTest, AnUnknownKey) {
    EXPECT_EQ(Pruefe({{u"fille", u"x"}}), 1002);
    EXPECT_EQ(Pruefe({{u"", u"x"}}), 1002);
    EXPECT_EQ(ParameterPruefen(KommandozeileZerlegen(u"\"file=C:\\a b.01S\"")), 1002);
}

TEST_F(ParameterTest, KeysAndLanguageInAnyCaseButNotTheMode) {
    EXPECT_EQ(Pruefe({{u"FILE", Pfad("a.01S")}, {u"DIALOG", u"DE"}}), 0);
    EXPECT_FALSE(testDaten.OhneDialog);
    EXPECT_EQ(Pruefe({{u"mode", u"i"}}), 1007);
    EXPECT_EQ(Pruefe({{u"mode", u"I"}}), 0);
    EXPECT_EQ(Pruefe({{u"mode", u""}}), 0);
    EXPECT_EQ(Pruefe({{u"mode", u"EI"}}), 1007);
}

TEST_F(ParameterTest, Languages) {
    const std::pair<TextSicht, std::int32_t> sprachen[] = {{u"de", 1}, {u"fr", 2}, {u"it", 3}};
    for (const auto& [name, nummer] : sprachen) {
        EXPECT_EQ(Pruefe({{u"dialog", Text(name)}}), 0);
        EXPECT_EQ(testDaten.Sprache, nummer);
        EXPECT_FALSE(testDaten.OhneDialog);
        EXPECT_EQ(Pruefe({{u"dialog", Text(name) + u"-"}}), 0);
        EXPECT_EQ(testDaten.Sprache, nummer);
        EXPECT_TRUE(testDaten.OhneDialog);
    }
    for (const TextSicht schlecht : {TextSicht(u""), TextSicht(u"en"), TextSicht(u"de--"), TextSicht(u"-")}) {
        EXPECT_EQ(Pruefe({{u"dialog", Text(schlecht)}}), 1004);
        EXPECT_EQ(testDaten.Sprache, 0);
        EXPECT_FALSE(testDaten.OhneDialog);
    }
}

TEST_F(ParameterTest, TheLanguageIsTestedBeforeTheFile) {
    EXPECT_EQ(Pruefe({{u"file", Pfad("fehlt.01S")}, {u"dialog", u""}}), 1004);
    EXPECT_EQ(Pruefe({{u"file", Pfad("fehlt.01S")}}), 1003);
    EXPECT_TRUE(testDaten.OhneDialog);
}

TEST_F(ParameterTest, TheFileMustBeAnOrdinaryOne) {
    EXPECT_EQ(Pruefe({{u"file", m_ordner.Pfad().u16string()}}), 1003);
    EXPECT_EQ(Pruefe({{u"file", Pfad("?.01S")}}), 0) << "a name is a pattern";
}

TEST_F(ParameterTest, TheErrorFileMustBeNewAndCreatable) {
    EXPECT_EQ(Pruefe({{u"errorfile", u""}}), 1005);
    EXPECT_EQ(Pruefe({{u"errorfile", Pfad("da.xml")}}), 1005);
    EXPECT_EQ(m_ordner.Lies("da.xml"), "x");
    EXPECT_EQ(Pruefe({{u"errorfile", Pfad("fehlt/p.xml")}}), 1005);
    EXPECT_EQ(Pruefe({{u"errorfile", m_ordner.Pfad().u16string()}}), 1005);
}

TEST_F(ParameterTest, TheCatalogueIsAFolderOrAFile) {
    EXPECT_EQ(Pruefe({{u"catalog", u""}}), 1006);
    EXPECT_EQ(Pruefe({{u"catalog", Pfad("fehlt")}}), 1006);
    EXPECT_EQ(Pruefe({{u"catalog", Pfad("k.vlt")}}), 0);
    EXPECT_EQ(testDaten.KatalogArt, 2);
}

TEST_F(ParameterTest, ASpecialFunctionLooksForNoFileButTestsTheRest) {
    EXPECT_EQ(Pruefe({{u"file", u"*9"}}), 0);
    EXPECT_TRUE(testDaten.Spezialfunktion);
    EXPECT_EQ(Pruefe({{u"file", u"*9"}, {u"dialog", u""}}), 1004);
    EXPECT_EQ(Pruefe({{u"file", u"*9"}, {u"errorfile", Pfad("da.xml")}}), 1005);
    EXPECT_EQ(Pruefe({{u"file", u"*9"}, {u"catalog", u""}}), 1006);
    EXPECT_EQ(Pruefe({{u"file", u"*9"}, {u"mode", u"x"}}), 1007);
}

TEST_F(ParameterTest, OfSeveralFaultsTheFirstOfTheChecksCounts) {
    const std::pair<TextSicht, Text> sprache = {u"dialog", u"xx-"};
    const std::pair<TextSicht, Text> datei = {u"file", Pfad("fehlt.01S")};
    const std::pair<TextSicht, Text> fehlerdatei = {u"errorfile", Pfad("da.xml")};
    const std::pair<TextSicht, Text> katalog = {u"catalog", Pfad("fehlt")};
    const std::pair<TextSicht, Text> modus = {u"mode", u"x"};
    EXPECT_EQ(Pruefe({sprache, datei, fehlerdatei, katalog, modus}), 1004);
    EXPECT_EQ(Pruefe({datei, fehlerdatei, katalog, modus}), 1003);
    EXPECT_EQ(Pruefe({datei, fehlerdatei}), 1003);
    EXPECT_EQ(Pruefe({fehlerdatei, katalog, modus}), 1005);
    EXPECT_EQ(Pruefe({fehlerdatei, katalog}), 1005);
    EXPECT_EQ(Pruefe({katalog, modus}), 1006);
    EXPECT_EQ(Pruefe({modus}), 1007);
}

TEST_F(ParameterTest, AKeyGivenTwiceTheLastValueWins) {
    EXPECT_EQ(Pruefe({{u"dialog", u"xx"}, {u"dialog", u"it-"}}), 0);
    EXPECT_EQ(testDaten.Sprache, 3);
}

TEST_F(ParameterTest, TheValueHoldsFurtherEqualsSigns) {
    m_ordner.Schreibe("a=b.01S", "x");
    EXPECT_EQ(Pruefe({{u"file", Pfad("a=b.01S")}}), 0);
}

TEST_F(ParameterTest, QuotationMarksAroundAValueGoWhateverTheLastCharacterIs) {
    EXPECT_EQ(Pruefe({{u"file", u"\"" + Pfad("a.01S") + u"\""}}), 0);
    EXPECT_EQ(testDaten.Austauschdatei, Pfad("a.01S"));
    EXPECT_EQ(Pruefe({{u"file", u"\"" + Pfad("a.01S") + u"x"}}), 0);
    EXPECT_EQ(Pruefe({{u"mode", u"\"\""}}), 0);
}

TEST_F(ParameterTest, ASingleQuotationMarkIsARunTimeFailure) {
    EXPECT_THROW(Pruefe({{u"mode", u"\""}}), LaufzeitFehler);
    EXPECT_THROW(Pruefe({{u"file", u"\""}}), LaufzeitFehler);
}

// In a run of its own: nothing but the line on standard error, and not even that where silence is asked for.
TEST_F(ParameterTest, ASingleQuotationMarkIsToldUnlessSilenceIsAskedFor) {
    const auto sagt = [](TextSicht kommandozeile) {
        NeuerLauf();
        testing::internal::CaptureStderr();
        EXPECT_EQ(Main(kommandozeile), 1);
        return testing::internal::GetCapturedStderr();
    };
    if (PfadTrenner() == u'/') { // elsewhere a box would wait
        EXPECT_EQ(sagt(u"file=\""), "ZEPHOLT: Laufzeitfehler: ein Parameterwert besteht aus einem einzigen "
                                    "Anführungszeichen\n");
    }
    EXPECT_EQ(sagt(u"dialog=de- file=\""), "");
    EXPECT_EQ(sagt(u"dialog=de- file=a mode=\""), "");
}

// Of two faults the one that is tested first is told.
TEST_F(ParameterTest, TwoFaultsAtOnce) {
    const Text fehlt = Pfad("fehlt");
    EXPECT_EQ(Pruefe({{u"fille", u"x"}, {u"dialog", u"en"}}), 1002);
    EXPECT_EQ(Pruefe({{u"file", u""}, {u"dialog", u"en"}}), 1001);
    EXPECT_EQ(Pruefe({{u"file", fehlt}, {u"dialog", u"en"}}), 1004);
    EXPECT_EQ(Pruefe({{u"dialog", u"en"}, {u"errorfile", u""}}), 1004);
    EXPECT_EQ(Pruefe({{u"file", fehlt}, {u"errorfile", u""}}), 1003);
    EXPECT_EQ(Pruefe({{u"file", fehlt}, {u"errorfile", Pfad("da.xml")}}), 1003);
    EXPECT_EQ(Pruefe({{u"errorfile", u""}, {u"catalog", u""}}), 1005);
    EXPECT_EQ(Pruefe({{u"errorfile", Pfad("da.xml")}, {u"catalog", fehlt}}), 1005);
    EXPECT_EQ(Pruefe({{u"catalog", fehlt}, {u"mode", u"x"}}), 1006);
    EXPECT_EQ(Pruefe({{u"catalog", u""}, {u"mode", u"x"}}), 1006);
    EXPECT_EQ(ParameterPruefen(Argumente{u"x", u"y=1"}), 1001);
    EXPECT_EQ(ParameterPruefen(Argumente{u"y=1", u"x"}), 1002);
}

// --- StilleVerlangt --------------------------------------------------------------------------------------------------

TEST(StilleTest, SomeArgumentAsksForIt) {
    const auto verlangt = [](TextSicht kommandozeile) { return StilleVerlangt(KommandozeileZerlegen(kommandozeile)); };
    for (const TextSicht ja : {
             u"dialog=de-",
             u"dialog=fr-",
             u"dialog=it-",
             u"DIALOG=De-",
             u"x dialog=de-",
             u"dialog=de- fille=x",
             u"dialog=de- dialog=fr",
             u"dialog=\"de-\"",
             u"\"dialog=de-\"",
             u"\"dialog=\"de-\"\"",
             u"dialog=\" de- \"",
             u"\" dialog = de- \"",
             u"\"dialog\"=de-",
             u"mode=\" dialog=de-\" dialog=it-",
         }) {
        EXPECT_TRUE(verlangt(ja)) << Utf8Bytes(ja);
    }
    for (const TextSicht nein : {
             u"",
             u"dialog=de",
             u"dialog=",
             u"dialog=-",
             u"dialog=en-",
             u"dialog=de--",
             u"dialog=d-e",
             u"de-",
             u"dialog=\"de-",
             u"dialog=de-\"",
             u"dialoge=de-",
             u"=de-",
             u"file=dialog=de-",
             u"dialog=x=de-",
             u"dialog= de-",
             u"\"",
             u"dialog=\"",
             u"mode=\" dialog=de-",
         }) {
        EXPECT_FALSE(verlangt(nein)) << Utf8Bytes(nein);
    }
}

// --- ParameterMeldung ------------------------------------------------------------------------------------------------

TEST_F(ParameterTest, TheMessageOfAnEmptyCommandLine) {
    ParameterPruefen(KommandozeileZerlegen(u" "));
    EXPECT_EQ(ParameterMeldung(1001, 1), u"file=\"\"\r\ndialog=\"\"\r\nerrorfile=\"\"\r\ncatalog=\"\"\r\n\r\n"
                                         u"Allgemeines Problem bei den Aufrufparametern\r\n" +
                                             Text(FehlerText(1001, 2)) + u"\r\n" + Text(FehlerText(1001, 3)));
}

TEST_F(ParameterTest, ValuesNotYetReachedKeepTheirMarksAndTheModeStandsWhenGiven) {
    ParameterPruefen(KommandozeileZerlegen(u"file=\"a b\" dialog=de mode=Q x=1"));
    EXPECT_EQ(ParameterMeldung(1002, 1),
              u"file=\"\"a b\"\"\r\ndialog=\"de\"\r\nerrorfile=\"\"\r\ncatalog=\"\"\r\nmode=\"Q\"\r\n\r\n"
              u"Unerkannter Parameter\r\n" +
                  Text(FehlerText(1002, 2)) + u"\r\n" + Text(FehlerText(1002, 3)));
}

TEST_F(ParameterTest, TheOtherCodesSpeakTheDialogLanguageAlone) {
    EXPECT_EQ(Pruefe({{u"file", u"fehlt"}, {u"dialog", u"fr"}, {u"errorfile", u"e"}, {u"catalog", u"c"}}), 1003);
    EXPECT_EQ(ParameterMeldung(1003, 2),
              u"file=\"fehlt\"\r\ndialog=\"fr\"\r\nerrorfile=\"e\"\r\ncatalog=\"c\"\r\n\r\n" +
                  Text(FehlerText(1003, 2)));
    for (const std::int32_t code : {1005, 1006, 1007}) {
        EXPECT_TRUE(ParameterMeldung(code, 3).ends_with(u"\r\n\r\n" + Text(FehlerText(code, 3))));
    }
    EXPECT_TRUE(ParameterMeldung(1004, 3).ends_with(u"\r\n" + Text(FehlerText(1004, 3))));
    EXPECT_NE(ParameterMeldung(1004, 3).find(FehlerText(1004, 1)), Text::npos);
}

// --- Whole runs ------------------------------------------------------------------------------------------------------

TEST_F(ParameterTest, ASilentRunWithABadParameterLeavesNothing) {
    EXPECT_EQ(Main(u"file=x dialog=de- errorfile=" + Pfad("neu.xml") + u" catalog=" + m_ordner.Pfad().u16string()), 0);
    EXPECT_FALSE(m_ordner.Hat("neu.xml"));
}

TEST_F(ParameterTest, ASilentRunWritesTheProtocolOfARefusedFile) {
    EXPECT_EQ(Main(u"file=\"" + Pfad("a.01S") + u"\" dialog=fr- errorfile=\"" + Pfad("neu.xml") + u"\" catalog=\"" +
                   m_ordner.Pfad().u16string() + u"\""),
              0);
    EXPECT_NE(m_ordner.Lies("neu.xml").find("<Error L=\"1\" N=\"2001\" E=\"A\" "), std::string::npos);
}

TEST_F(ParameterTest, ARunWithDialogWritesTheSameProtocolAsASilentOne) {
    const auto lauf = [this](TextSicht dialog, std::string_view name) {
        NeuerLauf();
        Main(u"file=\"" + Pfad("a.01S") + u"\" dialog=" + Text(dialog) + u" errorfile=\"" + Pfad(name) +
             u"\" catalog=\"" + m_ordner.Pfad().u16string() + u"\"");
        std::string protokoll = m_ordner.Lies(name);
        return protokoll.erase(protokoll.find("<Date>"), protokoll.find("<Errors>") - protokoll.find("<Date>"));
    };
    EXPECT_EQ(lauf(u"it", "mit.xml"), lauf(u"it-", "ohne.xml"));
}

TEST_F(ParameterTest, ATestRunWithoutACatalogueLeavesOnlyItsComparisonOut) {
    const auto lauf = [this](std::int32_t katalogArt, std::string_view name) {
        NeuerLauf();
        testDaten.Austauschdatei = AusUtf8Bytes(ZEPHOLT_QUELLE "/samples/sauber.01S");
        testDaten.Sprache = 2;
        testDaten.OhneDialog = true;
        testDaten.Fehlerdatei = Pfad(name);
        testDaten.Katalog = m_ordner.Pfad().u16string(); // which has no chapters
        testDaten.KatalogArt = katalogArt;
        EXPECT_EQ(Testlauf(), 0);
        return m_ordner.Lies(name);
    };
    const std::string mit = lauf(1, "mit.xml");
    EXPECT_NE(mit.find(" N=\"6101\" "), std::string::npos);
    EXPECT_NE(mit.find(std::string("T=\"") + Utf8Bytes(FehlerText(6101, 2)).substr(0, 8)), std::string::npos);
    EXPECT_NE(lauf(0, "ohne.xml").find("<Errors>0</Errors>"), std::string::npos);
}

TEST_F(ParameterTest, AnUnknownSpecialFunctionWritesNothing) {
    EXPECT_EQ(Main(u"file=*2 dialog=de- errorfile=\"" + Pfad("neu.xml") + u"\" catalog=\"" +
                   m_ordner.Pfad().u16string() + u"\""),
              0);
    EXPECT_FALSE(m_ordner.Hat("neu.xml"));
}

TEST_F(ParameterTest, TheVersionIsFixedInOnePlace) {
    Main(u"");
    EXPECT_EQ(testDaten.Version, u"4.0");
    EXPECT_FALSE(testDaten.Abbruch);
}

} // namespace
} // namespace zepholt
