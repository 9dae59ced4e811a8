// The protocol: its elements, its counts, its order, and what stands in each attribute.
#include "errors/Protokoll.h"

#include "errors/Fehlerort.h"
#include "errors/TestFehler.h"
#include "hilfen/Testordner.h"
#include "hilfen/Zeilenbau.h"
#include "hilfen/Zeilenpuffer.h"
#include "run/NeuerLauf.h"
#include "state/SIA451Datei.h"
#include "state/TestDaten.h"

#include <gtest/gtest.h>

namespace zepholt {
namespace {

using namespace hilfen;

class ProtokollTest : public ::testing::Test {
protected:
    ProtokollTest() {
        NeuerLauf();
        m_zeilen.Beginne();
        testDaten.Uhr = [] { return Zeitpunkt{2026, 1, 2, 3, 4}; };
        testDaten.Version = u"4.0";
        testDaten.Sprache = 1;
        testDaten.Dateiformat = u"E1S";
        testDaten.IstE1S = true;
        testDaten.SchnittstellenId = u"QVMX17";
        testDaten.Revision = 21;
        testDaten.Fehlerdatei = m_ordner.TextPfad("p.xml");
    }

    void FuegeZeileAn(TextSicht zeile) { m_zeilen.Anfuegen(zeile); }

    static void Melde(FehlerEintrag eintrag) { fehlerSpeicher.FehlerListe.push_back(eintrag); }

    std::string Protokoll() {
        ProtokollSchreiben();
        return m_ordner.Lies("p.xml");
    }

    // The part of the protocol between <Errors> and </Errors> that holds Error elements; empty without one.
    std::string Fehlerblock() {
        const std::string protokoll = Protokoll();
        const std::size_t anfang = protokoll.find("<Errors><Error ");
        return anfang == std::string::npos ? "" : protokoll.substr(anfang, protokoll.rfind("</SIA451>") - anfang);
    }

    // Columns of the store as it stands.
    static std::vector<std::int32_t> Spalten() {
        std::vector<std::int32_t> spalten;
        for (const FehlerEintrag& eintrag : fehlerSpeicher.FehlerListe) {
            spalten.push_back(eintrag.Spalte);
        }
        return spalten;
    }

    Testordner m_ordner;

private:
    Zeilenpuffer m_zeilen;
};

// --- The head --------------------------------------------------------------------------------------------------------

TEST_F(ProtokollTest, AFileWithoutFindings) {
    sia451Datei.ProjektNummer = u"P-1";
    sia451Datei.ProjektName = u"Schulhaus <Süd> & Hort";
    sia451Datei.DokumentNummer = u"D-1";
    sia451Datei.DokumentName = u"Baumeister";
    sia451Datei.SoftwareHersteller = u"Muster AG";
    sia451Datei.SoftwareName = u"Ausmass";
    EXPECT_EQ(Protokoll(), "<?xml version=\"1.0\" encoding=\"iso-8859-1\"?><SIA451><Test>"
                           "<Project ID=\"P-1\">Schulhaus &lt;S\xFC"
                           "d&gt; &amp; Hort</Project>"
                           "<Document ID=\"D-1\">Baumeister</Document>"
                           "<Date>2026-01-02</Date><Time>03:04</Time><Errors>0</Errors>"
                           "<Software Manufacturer=\"Muster AG\">Ausmass</Software>"
                           "<Fileformat Version=\"QVMX17.21\">e1s</Fileformat>"
                           "<Testprogram Version=\"4.0\">ZEPHOLT</Testprogram>"
                           "</Test></SIA451>");
}

TEST_F(ProtokollTest, ARefusedFileWithoutHeader) {
    testDaten.Revision = 0;
    testDaten.SchnittstellenId.clear();
    testDaten.Dateiformat = u"01S";
    FehlerMelden(2001);
    EXPECT_EQ(Protokoll(), "<?xml version=\"1.0\" encoding=\"iso-8859-1\"?><SIA451><Test>"
                           "<Project ID=\"\">?</Project><Document ID=\"\">?</Document>"
                           "<Date>2026-01-02</Date><Time>03:04</Time><Errors>1</Errors><Warnings>0</Warnings>"
                           "<Software Manufacturer=\"\">?</Software>"
                           "<Fileformat Version=\".00\">01s</Fileformat>"
                           "<Testprogram Version=\"4.0\">ZEPHOLT</Testprogram></Test>"
                           "<Errors><Error L=\"1\" N=\"2001\" E=\"A\" "
                           "T=\"Die Austauschdatei kann nicht eingelesen werden\"/></Errors></SIA451>");
}

TEST_F(ProtokollTest, AnEmptyManufacturerStaysEmptyBesideASoftwareName) {
    sia451Datei.SoftwareName = u"Ausmass";
    EXPECT_NE(Protokoll().find("<Software Manufacturer=\"\">Ausmass</Software>"), std::string::npos);
}

TEST_F(ProtokollTest, ControlCharactersAreDroppedAndANameOfNothingElseIsUnknown) {
    sia451Datei.ProjektName = u"A\u0007B";
    sia451Datei.DokumentName = u"\u0007";
    const std::string protokoll = Protokoll();
    EXPECT_NE(protokoll.find("<Project ID=\"\">AB</Project>"), std::string::npos);
    EXPECT_NE(protokoll.find("<Document ID=\"\">?</Document>"), std::string::npos);
}

TEST_F(ProtokollTest, CharactersBeyondLatin1BecomeReferences) {
    sia451Datei.ProjektName = u"\u20AC\u2019\u00FF\u0100";
    EXPECT_NE(Protokoll().find("<Project ID=\"\">&#8217;\xFF&#256;</Project>"), std::string::npos)
        << "the euro sign is ANSI code 128, which is dropped";
}

TEST_F(ProtokollTest, APairOfSurrogatesIsOneReferenceAndHalfAPairIsDropped) {
    sia451Datei.ProjektName = u"a\U0001F600\U00010000\U0010FFFFb";
    sia451Datei.ProjektNummer = u"\xD83D\xDE00";
    sia451Datei.DokumentName = u"\xD83D";
    sia451Datei.DokumentNummer = u"\xDE00\uFFFE\uFFFF";
    sia451Datei.SoftwareName = u"a\xD83D";
    const std::string protokoll = Protokoll();
    EXPECT_NE(protokoll.find("<Project ID=\"&#128512;\">a&#128512;&#65536;&#1114111;b</Project>"), std::string::npos);
    EXPECT_NE(protokoll.find("<Document ID=\"\">?</Document>"), std::string::npos);
    EXPECT_NE(protokoll.find("<Software Manufacturer=\"\">a</Software>"), std::string::npos);
}

TEST_F(ProtokollTest, ModeStandsBetweenTimeAndErrors) {
    testDaten.Modus = u"E";
    EXPECT_NE(Protokoll().find("</Time><Mode>E</Mode><Errors>0</Errors><Software "), std::string::npos);
}

// --- A cancel --------------------------------------------------------------------------------------------------------

// It comes when the head is made. Of many findings only some are written until it is seen, of few all.
TEST_F(ProtokollTest, ACancelAmongTheFindingsLeavesNoProtocol) {
    for (const int befunde : {1, 20'000}) {
        testDaten.Abbruch = false;
        for (int i = 0; i < befunde; ++i) {
            Melde({2031, i, 1, 0, 0});
        }
        testDaten.Uhr = [] {
            testDaten.Abbruch = true;
            return Zeitpunkt{2026, 1, 2, 3, 4};
        };
        ProtokollSchreiben();
        EXPECT_FALSE(m_ordner.Hat("p.xml")) << befunde;
    }
    testDaten.Abbruch = false;
    testDaten.Uhr = [] { return Zeitpunkt{2026, 1, 2, 3, 4}; };
    EXPECT_TRUE(Protokoll().ends_with("</Errors></SIA451>"));
}

// --- Counts ----------------------------------------------------------------------------------------------------------

TEST_F(ProtokollTest, CountsByInterfaceAndMode) {
    struct Fall {
        std::int32_t Revision;
        TextSicht Modus;
        const char* Zaehler;
    };
    const Fall faelle[] = {
        {11, u"", "<Errors>2</Errors><Warnings>1</Warnings><Software"},
        {11, u"E", "<Errors>2</Errors><Warnings>1</Warnings><Software"},
        {11, u"I", "<Errors>2</Errors><Software"},
        {21, u"", "<Errors>3</Errors><Software"},
        {21, u"E", "<Errors>3</Errors><Software"},
        {21, u"I", "<Errors>2</Errors><Software"},
    };
    for (const Fall& fall : faelle) {
        FehlerLoeschen();
        Melde({4101, 0, 0, 0, 0});
        Melde({4231, 0, 0, 0, 0}); // a warning
        Melde({4102, 0, 0, 0, 0});
        testDaten.Revision = fall.Revision;
        testDaten.Modus = fall.Modus;
        EXPECT_NE(Protokoll().find(fall.Zaehler), std::string::npos) << fall.Zaehler;
    }
}

TEST_F(ProtokollTest, AnUnknownCodeCountsAsAnErrorAndHasEmptySeverityAndText) {
    testDaten.Revision = 11;
    Melde({4100, -1, 0, 0, 0});
    const std::string protokoll = Protokoll();
    EXPECT_NE(protokoll.find("<Errors>1</Errors><Warnings>0</Warnings>"), std::string::npos);
    EXPECT_NE(protokoll.find("<Error N=\"4100\" E=\"\" T=\"\"/>"), std::string::npos);
}

TEST_F(ProtokollTest, ModeIWithWarningsOnlyHasNoErrorsBlock) {
    testDaten.Modus = u"I";
    Melde({4231, 0, 0, 0, 0});
    EXPECT_EQ(Fehlerblock(), "");
    EXPECT_NE(m_ordner.Lies("p.xml").find("<Errors>0</Errors>"), std::string::npos);
}

TEST_F(ProtokollTest, WarningsStayWhenAnEntryIsNeitherErrorNorWarning) {
    Melde({4231, 0, 0, 0, 0});
    Melde({4101, 0, 0, 0, 0});
    Melde({4100, 0, 0, 0, 0});
    WarnungenEntfernen();
    EXPECT_EQ(FehlerAnzahl(), 3);
    fehlerSpeicher.FehlerListe.pop_back();
    Melde({4102, 0, 0, 0, 0});
    WarnungenEntfernen();
    ASSERT_EQ(FehlerAnzahl(), 2);
    EXPECT_EQ(fehlerSpeicher.FehlerListe[0].Code, 4101);
    EXPECT_EQ(fehlerSpeicher.FehlerListe[1].Code, 4102);
}

// --- Attributes ------------------------------------------------------------------------------------------------------

TEST_F(ProtokollTest, AFindingOnAnItemRecord) {
    FuegeZeileAn(Zeile(u"A", {}));
    FuegeZeileAn(Zeile(u"G4", {{2, u"111"}, {8, u"000100"}}));
    Melde({4411, 1, 0, 0, 0});
    EXPECT_EQ(Fehlerblock(), "<Errors><Error L=\"2\" I=\"111.000.100\" N=\"4411\" E=\"A\" F=\"G4:6\" "
                             "T=\"OGL (Objektgliederung) nicht definiert (B2)\"/></Errors>");
}

TEST_F(ProtokollTest, FormErrorsHaveNoPosition) {
    FuegeZeileAn(Zeile(u"G4", {{2, u"111"}, {8, u"000100"}}));
    for (const auto& [code, text] : {std::pair{3001, "Ung\xFCltiger Feldtyp"}, {3002, "Zwingender Eintrag fehlt"}}) {
        FehlerLoeschen();
        Melde({code, 0, 18, 0, 0});
        EXPECT_EQ(Fehlerblock(), "<Errors><Error L=\"1\" N=\"" + std::to_string(code) + "\" E=\"A\" F=\"G4:6\" T=\"" +
                                     text + "\"/></Errors>");
    }
    FehlerLoeschen();
    Melde({3003, 0, 18, 0, 0});
    EXPECT_EQ(Fehlerblock(), "<Errors><Error L=\"1\" N=\"3003\" E=\"B\" F=\"G4:6\" T=\"Erwarteter Eintrag fehlt\"/>"
                             "</Errors>");
}

TEST_F(ProtokollTest, BadUtf8HasNoLine) {
    Melde({2007, 0, 0, 0, 0});
    EXPECT_EQ(Fehlerblock(), "<Errors><Error N=\"2007\" E=\"A\" "
                             "T=\"Die Austauschdatei hat eine fehlerhafte UTF-8-Kodierung\"/></Errors>");
}

TEST_F(ProtokollTest, AFindingWithoutLineBearsItsStampedPosition) {
    Melde({6201, -1, 0, 111, 1});
    Melde({3205, -1, 0, 0, 5});
    EXPECT_EQ(Fehlerblock(), "<Errors><Error I=\"111.000.001\" N=\"6201\" E=\"A\" "
                             "T=\"Position im VLT nicht vorhanden\"/>"
                             "<Error N=\"3205\" E=\"A\" F=\"B0\" "
                             "T=\"Angabe Reihenfolge der Sekund\xE4rgliederungen nicht eindeutig\"/></Errors>");
}

TEST_F(ProtokollTest, AColumnWithoutALineStandsAsANumber) {
    Melde({2032, -1, 93, 0, 0});
    EXPECT_NE(Fehlerblock().find(" F=\"93\" "), std::string::npos);
}

TEST_F(ProtokollTest, TypographicApostrophesBecomeEscapedOnes) {
    testDaten.Sprache = 1;
    Melde({2003, 0, 0, 0, 0});
    EXPECT_NE(Fehlerblock().find("T=\"Unbekannter Sprachcode (1=&apos;de&apos;, 2=&apos;fr&apos;, 3=&apos;it&apos;)\""),
              std::string::npos);
}

TEST_F(ProtokollTest, TheTextIsThatOfTheDialogLanguage) {
    Melde({2002, 0, 0, 0, 0});
    testDaten.Sprache = 3;
    EXPECT_NE(Fehlerblock().find("T=\"La versione di interfaccia non \xE8 &apos;451-92&apos;\""), std::string::npos);
}

// --- PositionsText and FeldName --------------------------------------------------------------------------------------

TEST_F(ProtokollTest, PositionsTextOfALine) {
    FuegeZeileAn(Zeile(u"G2", {{2, u"241"}, {8, u"111001"}}));
    FuegeZeileAn(Zeile(u"G2", {{2, u" 7x"}, {8, u"  12"}}));
    FuegeZeileAn(Zeile(u"B2", {{2, u"002"}, {8, u"111001"}}));
    FuegeZeileAn(u"G");
    FuegeZeileAn(u"");
    FuegeZeileAn(Zeile(u"G2", {{2, u"-1 "}, {8, u"000000"}}));
    EXPECT_EQ(PositionsText(0, 999, 999), u"241.111.001");
    EXPECT_EQ(PositionsText(1, 0, 0), u"007.000.012");
    EXPECT_EQ(PositionsText(2, 241, 1), u"");
    EXPECT_EQ(PositionsText(3, 241, 1), u"000.000.000");
    EXPECT_EQ(PositionsText(4, 241, 1), u"");
    EXPECT_EQ(PositionsText(5, 0, 0), u"990.000.00"); // one digit short: the leading digit that is dropped is a 9
    EXPECT_EQ(PositionsText(6, 241, 1), u"");
}

TEST_F(ProtokollTest, PositionsTextOfStamps) {
    EXPECT_EQ(PositionsText(-1, 241, 111001), u"241.111.001");
    EXPECT_EQ(PositionsText(-1, 241, 0), u"241.000.000");
    EXPECT_EQ(PositionsText(-1, 0, 111001), u"");
}

TEST_F(ProtokollTest, FeldNameOfAColumn) {
    FuegeZeileAn(Zeile(u"A", {{42, u"1"}}));
    FuegeZeileAn(Zeile(u"G6", {{256, u" "}}));
    FuegeZeileAn(Zeile(u"B9", {}));
    EXPECT_EQ(FeldName(0, 1), u"A:1");
    EXPECT_EQ(FeldName(0, 256), u"A:24i");
    EXPECT_EQ(FeldName(1, 208), u"G6:24h");
    EXPECT_EQ(FeldName(1, 237), u"G6:24h");
    EXPECT_EQ(FeldName(1, 238), u"238"); // behind the last field
    EXPECT_EQ(FeldName(1, 5), u"5");     // a gap
    EXPECT_EQ(FeldName(2, 1), u"1");     // an undefined type
    EXPECT_EQ(FeldName(3, 1), u"");      // no such line
}

// --- Order -----------------------------------------------------------------------------------------------------------

TEST_F(ProtokollTest, RunsByLineThenByCodeAndPutsFindingsWithoutLineLast) {
    FuegeZeileAn(Zeile(u"A", {}));
    FuegeZeileAn(Zeile(u"B1", {}));
    Melde({3205, -1, 1, 0, 0});
    Melde({6201, -1, 2, 241, 111001});
    Melde({6101, -1, 3, 111, 0});
    Melde({2041, -1, 4, 0, 0});
    Melde({3221, 1, 5, 0, 0});
    Melde({3002, 1, 6, 0, 0});
    Melde({3101, 0, 7, 0, 0});
    FehlerSortieren();
    EXPECT_EQ(Spalten(), (std::vector<std::int32_t>{7, 6, 5, 3, 2, 4, 1}));
}

TEST_F(ProtokollTest, EqualKeysComeOutAsTheDefinedSortGivesThem) {
    FuegeZeileAn(Zeile(u"A", {}));
    Melde({2031, 0, 1, 0, 0});
    Melde({2031, 0, 2, 0, 0});
    FehlerSortieren();
    EXPECT_EQ(Spalten(), (std::vector<std::int32_t>{2, 1}));

    FehlerLoeschen();
    Melde({2031, 0, 1, 0, 0});
    Melde({2031, 0, 2, 0, 0});
    Melde({2031, 0, 3, 0, 0});
    FehlerSortieren();
    EXPECT_EQ(Spalten(), (std::vector<std::int32_t>{3, 2, 1}));

    // Three equal ones before a higher: the second is the pivot; the first and the third are swapped, then both scans
    // meet at the second.
    FehlerLoeschen();
    Melde({2031, 0, 1, 0, 0});
    Melde({2031, 0, 2, 0, 0});
    Melde({2031, 0, 3, 0, 0});
    Melde({2032, 0, 4, 0, 0});
    FehlerSortieren();
    EXPECT_EQ(Spalten(), (std::vector<std::int32_t>{3, 2, 1, 4}));
}

TEST_F(ProtokollTest, LinesFrom100000OnAreComparedAsText) {
    // Keys: "100000" shifts the rest by one column, and "99999" stands behind it, since '9' is above '1'. A finding
    // without a line orders as line 99999.
    testDaten.ZeilenNummeriert = false;
    Melde({4101, 99999, 1, 0, 0});
    Melde({4101, 100000, 2, 0, 0});
    Melde({4101, 20000, 3, 0, 0});
    Melde({4101, -1, 4, 0, 0});
    Melde({3101, 99998, 5, 0, 0});
    FehlerSortieren();
    EXPECT_EQ(Spalten()[0], 2);
    EXPECT_EQ(Spalten()[1], 3);
    EXPECT_EQ(Spalten()[2], 5);
    EXPECT_EQ(Spalten().size(), 5U); // 1 and 4 have equal keys
}

TEST_F(ProtokollTest, TheStampsOrderItemRecordsOfOneLine) {
    // On a line that is no G record the stamps left behind by the after-pass don't count; on a G record they do.
    FuegeZeileAn(Zeile(u"G2", {{2, u"111"}, {8, u"111001"}}));
    FuegeZeileAn(Zeile(u"C1", {}));
    Melde({4102, 0, 1, 0, 0});
    Melde({4101, 0, 2, 5, 0});
    Melde({5202, 1, 3, 0, 0});
    Melde({5201, 1, 4, 5, 0});
    FehlerSortieren();
    EXPECT_EQ(Spalten(), (std::vector<std::int32_t>{1, 2, 4, 3}));
}

// --- Writing ---------------------------------------------------------------------------------------------------------

TEST_F(ProtokollTest, AFileThatCannotBeWrittenGivesNothing) {
    testDaten.Fehlerdatei = m_ordner.TextPfad("fehlt/p.xml");
    ProtokollSchreiben();
    EXPECT_TRUE(m_ordner.Leer());
}

TEST_F(ProtokollTest, TextDateiSchreibenReplacesAFileAndAddsNoLineEnd) {
    m_ordner.Schreibe("p.xml", "something longer that stood here before");
    TextDateiSchreiben(u"a\u00E4\u2019", m_ordner.TextPfad("p.xml"));
    EXPECT_EQ(m_ordner.Lies("p.xml"), "a\xE4&#8217;");
    TextDateiSchreiben(u"a\U0001F600b", m_ordner.TextPfad("p.xml"));
    EXPECT_EQ(m_ordner.Lies("p.xml"), "a&#128512;b");
}

} // namespace
} // namespace zepholt
