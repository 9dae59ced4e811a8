// The comparison of the document with the catalogue: each code with a document that fires it and a twin that doesn't.
#include "catalogue/TestVLT.h"

#include "catalogue/VLTKapitel.h"
#include "hilfen/Katalogtest.h"
#include "items/RecordG.h"
#include "state/Verweise.h"
#include "window/Fenster.h"
#include "window/Formulare.h"
#include "window/Fortschritt.h"

#include <algorithm>

namespace zepholt {
namespace {

using namespace hilfen;

// Section 100 holds texts only and so is a text branch; it governs 200000 to 999999. In section 300 the sub-section 310
// is one; it governs 320000 to 399999.
constexpr std::string_view Kapitel241 = R"(<H N="100"><U N="0"/></H><H N="110"><U N="0"/></H>)"
                                        R"(<H N="111"><U N="0"/><U N="10"/></H>)"
                                        R"(<H N="200"><U N="0"/></H><H N="210"><U N="0"/></H>)"
                                        R"(<H N="211"><U N="0"/>)"
                                        R"(<U N="1"><V N="0"/><V N="1" E="31"/></U>)"
                                        R"(<U N="2" Y="1"><V N="1" A="G" E="1"/><V N="2" A="G" E="1"/>)"
                                        R"(<V N="3" A="G" E="1"/><V N="4" A="K" E="1"/><V N="5" E="1"/></U>)"
                                        R"(<U N="3"><V N="1" E="35"/></U>)"
                                        R"(<U N="100" W="100199"><V N="1" E="1"/></U></H>)"
                                        R"(<H N="212"><U N="0"/><U N="1"/><U N="105" W="105149"/></H>)"
                                        R"(<H N="213"><U N="0"/><U N="110" W="110299"/></H>)"
                                        R"(<H N="215"><U N="0"/><U N="10"/><U N="11"/></H>)"
                                        R"(<H N="216"><U N="0"/><U N="100" W="100399"/></H>)"
                                        R"(<H N="217"><U N="0"/><U N="100" W="100239"/></H>)"
                                        R"(<H N="300"><U N="0"/></H><H N="310"><U N="0"/></H><H N="311"><U N="0"/></H>)"
                                        R"(<H N="320"><U N="0"/></H><H N="321"><U N="0"/><U N="1"/></H>)";

class TestVLTTest : public Katalogtest {
protected:
    TestVLTTest() {
        SchreibeKapitel(241, Kapitel241);
        BeginneMitKapitel(Neu);
    }

    // A fresh run with chapter 241, which stands in the catalogue, and no position yet.
    void BeginneMitKapitel(std::int32_t revision) {
        Beginne(revision);
        Kapitel(241);
    }

    // The codes that TesteKatalog reports for a document of the one position `nummer` of chapter 241, prepared further
    // by `aufbau`. All must be stamped with it.
    template <class Aufbau>
    std::vector<std::int32_t> Codes(std::int32_t revision, std::int32_t nummer, Aufbau aufbau) {
        BeginneMitKapitel(revision);
        Position(nummer);
        aufbau();
        std::vector<std::int32_t> codes;
        for (const Stempelfund& fund : Rufe(TesteKatalog)) {
            EXPECT_EQ(fund.Kapitel, 241) << fund.Code;
            EXPECT_EQ(fund.Position, nummer) << fund.Code;
            codes.push_back(fund.Code);
        }
        return codes;
    }

    std::vector<std::int32_t> Codes(std::int32_t revision, std::int32_t nummer) {
        return Codes(revision, nummer, [] {});
    }

    // The same for a variable of a position, in the new interface.
    std::vector<std::int32_t> VariablenCodes(std::int32_t position, std::int32_t nummer,
                                             const std::vector<Zeilentext>& zeilen, std::int32_t einfuegepunkt = 0) {
        return Codes(Neu, position, [&] { Variable(nummer, zeilen, einfuegepunkt); });
    }
};

using CodesListe = std::vector<std::int32_t>;

// --- Chapters

TEST_F(TestVLTTest, AChapterOfTheCatalogueGivesNothing) {
    EXPECT_EQ(Rufe(TesteKatalog), Stempelfunde());
}

TEST_F(TestVLTTest, AMissingChapterCostsOneReportAndTheNextGoesOn) { // 6101
    Beginne(Neu);
    Kapitel(142);
    Position(999999);
    Kapitel(241);
    Position(888888);
    EXPECT_EQ(Rufe(TesteKatalog), (Stempelfunde{{6101, 142, 0}, {6201, 241, 888888}}));
}

TEST_F(TestVLTTest, NeitherAnotherYearNorAnotherLanguageHelps) { // 6101
    Beginne(Neu);
    Kapitel(241, 2010);
    Position(888888);
    EXPECT_EQ(Rufe(TesteKatalog), (Stempelfunde{{6101, 241, 0}}));

    BeginneMitKapitel(Neu);
    sia451Datei.Sprachcode = 2;
    EXPECT_EQ(Rufe(TesteKatalog), (Stempelfunde{{6101, 241, 0}}));
}

TEST_F(TestVLTTest, TheFileNameDoesNotMakeTheYear) { // 6101
    Ordner().Schreibe("N131142.qvm", Kapiteldatei("", KapitelText("", 142, 1913), 142, 1913));
    Beginne(Neu);
    Kapitel(142);
    EXPECT_EQ(Rufe(TesteKatalog), (Stempelfunde{{6101, 142, 0}}));
    SchreibeKapitel(142, "");
    EXPECT_EQ(Rufe(TesteKatalog), Stempelfunde());
}

TEST_F(TestVLTTest, AReserveChapterIsNotTested) {
    for (const std::int32_t nummer : {199, 291, 911}) {
        Beginne(Neu);
        Kapitel(nummer);
        Position(888888);
        EXPECT_EQ(Rufe(TesteKatalog), Stempelfunde()) << nummer;
    }
}

TEST_F(TestVLTTest, ACatalogueThatIsGoneReportsEachChapter) { // 6101
    testDaten.Katalog += u"/fort";
    Kapitel(142);
    EXPECT_EQ(Rufe(TesteKatalog), (Stempelfunde{{6101, 241, 0}, {6101, 142, 0}}));
}

TEST_F(TestVLTTest, ACollectedFileServesAsWell) {
    Ordner().Schreibe("alle.vlt", Kapiteldatei("", KapitelText("", 142), 142) + Ordner().Lies("N131241.qvm"));
    testDaten.Katalog = Ordner().TextPfad("alle.vlt");
    testDaten.KatalogArt = 2;
    Position(212001);
    Position(212002);
    Kapitel(142);
    Kapitel(143);
    EXPECT_EQ(Rufe(TesteKatalog), (Stempelfunde{{6201, 241, 212002}, {6101, 143, 0}}));
}

TEST_F(TestVLTTest, ABrokenHeadEndsTheRun) {
    Ordner().Schreibe("N131142.qvm", "CF11abcd");
    Kapitel(142);
    EXPECT_THROW(TesteKatalog(), LaufzeitFehler);
}

TEST_F(TestVLTTest, TheStampsAreBackAtNothingAtTheEnd) {
    Position(888888);
    Rufe(TesteKatalog);
    EXPECT_EQ(testDaten.ZeilenNr, -1);
    EXPECT_EQ(testDaten.FehlerKapitel, 0);
    EXPECT_EQ(testDaten.FehlerPosition, 0);
}

TEST_F(TestVLTTest, ACancelEndsTheComparisonBehindTheChapterInHand) {
    Position(888888);
    Kapitel(142);
    testDaten.Abbruch = true;
    EXPECT_EQ(Rufe(TesteKatalog), (Stempelfunde{{6201, 241, 888888}}));
    EXPECT_EQ(testDaten.FehlerKapitel, 241);
    EXPECT_EQ(testDaten.FehlerPosition, 888888);
}

// --- Positions

TEST_F(TestVLTTest, APositionMustStandInTheCatalogue) { // 6201
    for (const std::int32_t revision : {Alt, Neu}) {
        EXPECT_EQ(Codes(revision, 212001), CodesListe());
        EXPECT_EQ(Codes(revision, 212002), CodesListe{6201});
        EXPECT_EQ(Codes(revision, 211000), CodesListe()); // a main position by its H alone
        EXPECT_EQ(Codes(revision, 214000), CodesListe{6201});
    }
}

TEST_F(TestVLTTest, ARepeatRangeCountsBehindItsBegin) { // 6201
    EXPECT_EQ(Codes(Neu, 211100), CodesListe{6201});
    EXPECT_EQ(Codes(Neu, 211101), CodesListe());
    EXPECT_EQ(Codes(Neu, 211150), CodesListe());
    EXPECT_EQ(Codes(Neu, 211189), CodesListe());
    EXPECT_EQ(Codes(Neu, 217239), CodesListe());
    EXPECT_EQ(Codes(Neu, 217240), CodesListe{6201});
    EXPECT_EQ(Codes(Neu, 211200), CodesListe{6201});
}

TEST_F(TestVLTTest, ATextPositionNeedsARangeThatBeginsAtItsLevel) { // 6213
    EXPECT_EQ(Codes(Neu, 212110), CodesListe{6213});
    EXPECT_EQ(Codes(Neu, 212111), CodesListe());
    EXPECT_EQ(Codes(Alt, 212110), CodesListe());
    EXPECT_EQ(Codes(Neu, 213200), CodesListe{6213});
    EXPECT_EQ(Codes(Neu, 213210), CodesListe());
    EXPECT_EQ(Codes(Neu, 216200), CodesListe());
}

TEST_F(TestVLTTest, APositionWithoutFixedTextNeedsAVariable) { // 6202
    EXPECT_EQ(Codes(Neu, 211002), CodesListe{6202});
    EXPECT_EQ(Codes(Alt, 211002), CodesListe{6202});
    EXPECT_EQ(Codes(Neu, 211002, [this] { Variable(5); }), CodesListe());
    EXPECT_EQ(Codes(Neu, 211001), CodesListe()); // it has a fixed text
}

TEST_F(TestVLTTest, AVariableMustStandInTheCatalogue) { // 6301
    EXPECT_EQ(VariablenCodes(211001, 1, {}), CodesListe());
    EXPECT_EQ(VariablenCodes(211001, 2, {}), CodesListe{6301});
    EXPECT_EQ(VariablenCodes(211000, 0, {}), CodesListe{6301}); // a main position has none
    EXPECT_EQ(VariablenCodes(211150, 1, {}), CodesListe());     // that of the position which carries the range
    EXPECT_EQ(Codes(Neu, 211001,
                    [this] {
                        Variable(8);
                        Variable(1);
                        Variable(9);
                    }),
              (CodesListe{6301, 6301}));
}

TEST_F(TestVLTTest, AnUnknownVariableIsNotTestedFurther) {
    EXPECT_EQ(VariablenCodes(211001, 2, {{1, u"Text"}}, 5), CodesListe{6301});
}

TEST_F(TestVLTTest, WithoutAnInsertionPointAllLinesMustBeBlank) { // 6302
    EXPECT_EQ(VariablenCodes(211001, 0, {{1, u"x"}}), CodesListe{6302});
    EXPECT_EQ(VariablenCodes(211001, 0, {{1, u"x"}, {2, u"y"}}), CodesListe{6302}); // one report at most
    EXPECT_EQ(VariablenCodes(211001, 0, {{1, u""}, {2, u"y"}}), CodesListe{6302});
    EXPECT_EQ(VariablenCodes(211001, 0, {{1, u""}, {2, u"  "}}), CodesListe());
}

TEST_F(TestVLTTest, BeforeTheInsertionPointTheLinesMustBeBlank) { // 6303
    // Line 2, column 1
    EXPECT_EQ(VariablenCodes(211001, 1, {{1, u"x"}}), CodesListe{6303});
    EXPECT_EQ(VariablenCodes(211001, 1, {{1, u"  "}, {2, u"x"}}), CodesListe());
    EXPECT_EQ(VariablenCodes(211001, 1, {{3, u"x"}}), CodesListe());
    // Line 2, column 5
    EXPECT_EQ(VariablenCodes(211003, 1, {{1, u"x"}}), CodesListe{6303});
    EXPECT_EQ(VariablenCodes(211003, 1, {{2, u"   x"}}), CodesListe{6303});
    EXPECT_EQ(VariablenCodes(211003, 1, {{2, u"    x"}}), CodesListe());
    EXPECT_EQ(VariablenCodes(211003, 1, {{3, u"x"}}), CodesListe());
    EXPECT_EQ(VariablenCodes(211003, 1, {{1, u"x"}, {2, u"y"}, {3, u"z"}}), (CodesListe{6303, 6303}));
    // Line 1, column 1: nothing lies before it
    EXPECT_EQ(VariablenCodes(211002, 5, {{1, u"x"}}), CodesListe());
}

TEST_F(TestVLTTest, TheDocumentInsertsNotBeforeTheCatalogue) { // 6304
    // Position 31 in the catalogue
    EXPECT_EQ(VariablenCodes(211001, 1, {{1, u""}}, 30), CodesListe{6304});
    EXPECT_EQ(VariablenCodes(211001, 1, {{1, u""}, {2, u""}}, 1), CodesListe());
    EXPECT_EQ(VariablenCodes(211001, 1, {{1, u""}, {2, u""}}, 0), CodesListe());
    // None in the catalogue
    EXPECT_EQ(VariablenCodes(211001, 0, {{1, u""}}, 1), CodesListe{6304});
    EXPECT_EQ(VariablenCodes(211001, 0, {{1, u""}}, 0), CodesListe());
    // Position 35 in the catalogue
    EXPECT_EQ(VariablenCodes(211003, 1, {{2, u""}}, 4), CodesListe{6304});
    EXPECT_EQ(VariablenCodes(211003, 1, {{2, u""}}, 5), CodesListe());
}

TEST_F(TestVLTTest, VariablesOfOneAlternativeGroupExcludeEachOther) { // 6305
    const auto codes = [this](std::initializer_list<std::int32_t> nummern) {
        return Codes(Neu, 211002, [this, nummern] {
            for (const std::int32_t nummer : nummern) {
                Variable(nummer);
            }
        });
    };
    EXPECT_EQ(codes({1}), CodesListe());
    EXPECT_EQ(codes({1, 4}), CodesListe()); // of two groups
    EXPECT_EQ(codes({5, 5}), CodesListe()); // of no group
    EXPECT_EQ(codes({1, 2}), CodesListe{6305});
    EXPECT_EQ(codes({1, 4, 2}), CodesListe{6305});
    EXPECT_EQ(codes({1, 9, 2}), (CodesListe{6301, 6305}));
    EXPECT_EQ(codes({1, 2, 3}), (CodesListe{6305, 6305, 6305}));
}

TEST_F(TestVLTTest, AnAssignmentBelongsToAnEndNode) { // 6401
    EXPECT_EQ(Codes(Neu, 211000, Zuordnung), CodesListe{6401});
    EXPECT_EQ(Codes(Alt, 211000, Zuordnung), CodesListe{6401});
    EXPECT_EQ(Codes(Neu, 211000), CodesListe());
    EXPECT_EQ(Codes(Neu, 111010, Zuordnung), CodesListe());
    EXPECT_EQ(Codes(Neu, 111000, Zuordnung), CodesListe{6401});
}

TEST_F(TestVLTTest, FindingsOfAPositionComeInTheOrderOfTheChecks) {
    EXPECT_EQ(Codes(Neu, 211001,
                    [this] {
                        Variable(0, {{1, u"x"}}, 3);
                        Variable(7);
                        Variable(1, {{1, u"x"}}, 1);
                    }),
              (CodesListe{6302, 6304, 6301, 6303, 6304}));
}

// --- Reserve positions

TEST_F(TestVLTTest, AReservePositionNeedsItsTitlePosition) { // 6211
    for (const std::int32_t revision : {Alt, Neu}) {
        EXPECT_EQ(Codes(revision, 219001), CodesListe{6211}); // 219000
        EXPECT_EQ(Codes(revision, 215901), CodesListe());     // 215000
        EXPECT_EQ(Codes(revision, 229000), CodesListe{6211}); // 220000
        EXPECT_EQ(Codes(revision, 219000), CodesListe());     // 210000
        EXPECT_EQ(Codes(revision, 490000), CodesListe{6211}); // 400000
        EXPECT_EQ(Codes(revision, 290000), CodesListe());     // 200000
        EXPECT_EQ(Codes(revision, 90000), CodesListe());      // 0 is no position to be missed
    }
}

TEST_F(TestVLTTest, InTheNewInterfaceASubGroupBelongsToItsGroup) { // 6211
    EXPECT_EQ(Codes(Neu, 215190), CodesListe{6211});               // 215100
    EXPECT_EQ(Codes(Alt, 215190), CodesListe());                   // 215000
    EXPECT_EQ(Codes(Neu, 215191), CodesListe());                   // no text position: 215000
    EXPECT_EQ(Codes(Neu, 215900), CodesListe());                   // no sub-group: 215000
}

TEST_F(TestVLTTest, BothMustLieInOneRepeatRange) {           // 6211
    EXPECT_EQ(Codes(Neu, 216290), CodesListe{6212});         // 216200 and 216290 in 100 to 399
    EXPECT_EQ(Codes(Neu, 217290), CodesListe{6211});         // 217290 behind the end of 100 to 239
    EXPECT_EQ(Codes(Neu, 211190), (CodesListe{6211, 6212})); // 211100 carries the range and is not in it
    EXPECT_EQ(Codes(Neu, 213290), (CodesListe{6213, 6212})); // 213200 doesn't fit the begin of 110 to 299
}

TEST_F(TestVLTTest, ATitlePositionInTheDocumentEndsTheTest) {
    BeginneMitKapitel(Neu);
    Position(211000);
    Position(211191); // else 6212
    EXPECT_EQ(Rufe(TesteKatalog), Stempelfunde());
    BeginneMitKapitel(Neu);
    Position(211090);
    Position(211000); // wherever it stands; else 6231
    EXPECT_EQ(Rufe(TesteKatalog), Stempelfunde());
    BeginneMitKapitel(Neu);
    Position(212001);
    Position(211191);
    EXPECT_EQ(Rufe(TesteKatalog), (Stempelfunde{{6212, 241, 211191}}));
}

TEST_F(TestVLTTest, TheTextBranchIsTestedBeforeTheTitlePosition) { // 6221
    BeginneMitKapitel(Neu);
    Position(111000);
    Position(111191);
    EXPECT_EQ(Rufe(TesteKatalog), (Stempelfunde{{6221, 241, 111191}}));
}

TEST_F(TestVLTTest, NoServicePositionInATextBranch) { // 6221
    EXPECT_EQ(Codes(Neu, 111191), CodesListe{6221});
    EXPECT_EQ(Codes(Alt, 111191), CodesListe{6221});
    EXPECT_EQ(Codes(Alt, 111190), CodesListe()); // a text position
    EXPECT_EQ(Codes(Neu, 215191), CodesListe()); // no text branch
}

TEST_F(TestVLTTest, NoReservePositionInARepeatRange) { // 6212
    EXPECT_EQ(Codes(Neu, 211191), CodesListe{6212});
    EXPECT_EQ(Codes(Alt, 211191), CodesListe());
    EXPECT_EQ(Codes(Neu, 211291), CodesListe());
    EXPECT_EQ(Codes(Neu, 290000), CodesListe()); // no sub-position
}

TEST_F(TestVLTTest, TheReservesOfAMainPositionDependOnItsFirstSubPosition) { // 6231, 6232
    EXPECT_EQ(Codes(Neu, 211090), CodesListe{6231});
    EXPECT_EQ(Codes(Alt, 211090), CodesListe());
    EXPECT_EQ(Codes(Neu, 215090), CodesListe());
    EXPECT_EQ(Codes(Neu, 215091), CodesListe{6232});
    EXPECT_EQ(Codes(Neu, 215099), CodesListe{6232});
    EXPECT_EQ(Codes(Alt, 215091), CodesListe());
    EXPECT_EQ(Codes(Neu, 211091), CodesListe());
    EXPECT_EQ(Codes(Neu, 211099), CodesListe());
    EXPECT_EQ(Codes(Neu, 215901), CodesListe());
}

TEST_F(TestVLTTest, AMainPositionFarBehindHasItsReservesToo) { // 6231
    SchreibeKapitel(242, R"(<H N="981"><U N="0"/><U N="1"/></H>)");
    Beginne(Neu);
    Kapitel(242);
    Position(981090);
    const Stempelfunde funde = Rufe(TesteKatalog);
    ASSERT_EQ(funde.size(), 1U);
    EXPECT_EQ(funde.front().Code, 6231);
    EXPECT_EQ(funde.front().Position, 981090);
}

TEST_F(TestVLTTest, InTheOldInterfaceAReservePositionReportsTwoCodesOnly) { // 6211, 6221
    BeginneMitKapitel(Alt);
    for (std::int32_t nummer = 211000; nummer <= 217999; ++nummer) {
        if (IstReservePosition(nummer)) {
            Position(nummer);
        }
    }
    const Stempelfunde funde = Rufe(TesteKatalog);
    EXPECT_FALSE(funde.empty());
    for (const Stempelfund& fund : funde) {
        EXPECT_TRUE(fund.Code == 6211 || fund.Code == 6221) << fund;
    }
}

TEST_F(TestVLTTest, AReservePositionIsNotComparedFurther) {
    EXPECT_EQ(Codes(Neu, 215901,
                    [this] {
                        Variable(1, {{1, u"x"}}, 3);
                        Zuordnung();
                    }),
              CodesListe());
}

// --- What is never reported

TEST_F(TestVLTTest, NeitherTitlesNorUnitsNorSearchTitlesAreCompared) { // 6102, 6901, 6902
    for (const std::int32_t revision : {Alt, Neu}) {
        const CodesListe codes = Codes(revision, 212001, [] { LetztePosition().HatG5 = true; });
        EXPECT_EQ(codes, CodesListe());
    }
}

TEST_F(TestVLTTest, TheAlternativeCodeOfARecordIsDropped) { // 6306
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMitKapitel(revision);
        Position(211001);
        const Text satz = Zeile(u"G3", {{2, u"241"}, {8, u"211001"}, {14, u"0101"}, {135, u"+"}});
        NimmInDieHand(satz);
        PruefeG3();
        ASSERT_FALSE(LetztePosition().Variablen.empty());
        EXPECT_EQ(Rufe(TesteKatalog), Stempelfunde());
    }
}

// --- Progress

class Balkenfenster : public Fenster {
public:
    void ZeigeAustauschdatei(TextSicht) override {}
    void ZeigeProjekt(TextSicht) override {}
    void ZeigeDokument(TextSicht) override {}
    void ZeigeSchritt(TextSicht text) override {
        Schritte.emplace_back(text);
        Maximum.push_back(fortschrittStand.FortschrittMaximum);
    }
    void ZeigeBalken(double breite) override { Balken.push_back(breite); }

    std::vector<Text> Schritte;
    std::vector<std::int32_t> Maximum;
    std::vector<double> Balken;
};

TEST_F(TestVLTTest, TheBarMovesThroughTheLoadAndThePositions) {
    static std::int64_t jetzt;
    jetzt = 0;
    fortschrittStand.Uhr = [] { return jetzt += 1000; };
    Balkenfenster fenster;
    testDaten.Fortschrittsfenster = &fenster;
    Position(212001);
    Position(212002);
    Rufe(TesteKatalog);
    EXPECT_EQ(fenster.Schritte, std::vector<Text>{u"Testet VLT-Kapitel: 241"});
    EXPECT_EQ(fenster.Maximum, std::vector<std::int32_t>{202});
    std::vector<double> erwartet;
    for (const std::int32_t wert : {0, 0, 45, 165, 185, 200, 201, 202, 0}) {
        erwartet.push_back(BalkenBreite(BalkenInnen, wert, 202));
    }
    EXPECT_EQ(fenster.Balken, erwartet);
}

// --- The scope of preliminary remarks

class GeltungTest : public TestVLTTest {
protected:
    static bool ImGeltungsbereich(std::int32_t kapitel, std::int32_t position, std::int32_t vorbemerkung) {
        katalogVergleich = {};
        return ImKatalogGeltungsbereich(kapitel, position, vorbemerkung);
    }
};

TEST_F(GeltungTest, ATextBranchGovernsWhatFollowsUpToTheEndOfItsGroup) {
    struct {
        std::int32_t Position, Vorbemerkung;
        bool Erwartet;
    } constexpr faelle[] = {
        {200000, 111010, true},  {999999, 111010, true},  {199999, 111010, false}, {200000, 100000, true},
        {200000, 199999, true},  {320000, 311000, true},  {399999, 311000, true},  {319999, 311000, false},
        {400000, 311000, false}, {211001, 211000, false}, // no text branch
        {110000, 200000, false},                          // the remark stands behind
    };
    for (const auto& fall : faelle) {
        EXPECT_EQ(ImGeltungsbereich(241, fall.Position, fall.Vorbemerkung), fall.Erwartet)
            << fall.Position << " " << fall.Vorbemerkung;
    }
}

TEST_F(GeltungTest, TheRemarkMayBeThePositionItselfAndIsThenNotCovered) {
    EXPECT_FALSE(ImGeltungsbereich(241, 111010, 111010));
}

TEST_F(GeltungTest, WithoutTheChapterNothingIsCovered) {
    EXPECT_FALSE(ImGeltungsbereich(142, 200000, 111010)); // not in the document
    sia451Datei.DokumentKapitel.back().Versionsjahr = 0;
    EXPECT_FALSE(ImGeltungsbereich(241, 200000, 111010));
    sia451Datei.DokumentKapitel.back().Versionsjahr = 2014;
    EXPECT_FALSE(ImGeltungsbereich(241, 200000, 111010)); // not in the catalogue
    sia451Datei.DokumentKapitel.back().Versionsjahr = Jahr;
    testDaten.KatalogArt = 0;
    EXPECT_FALSE(ImGeltungsbereich(241, 200000, 111010));
    testDaten.KatalogArt = 1;
    EXPECT_TRUE(ImGeltungsbereich(241, 200000, 111010));
}

TEST_F(GeltungTest, ARemarkBehindThePositionLoadsNothing) {
    Ordner().Schreibe("N131241.qvm", "CF11abcd");
    EXPECT_FALSE(ImGeltungsbereich(241, 111000, 111010));
    EXPECT_THROW(ImGeltungsbereich(241, 111010, 111010), LaufzeitFehler);
}

TEST_F(GeltungTest, AChapterInUseIsNotReadAnew) {
    SchreibeKapitel(142, "");
    Kapitel(142);
    EXPECT_TRUE(ImKatalogGeltungsbereich(241, 200000, 111010));
    std::filesystem::remove(Ordner().Pfad() / "N131241.qvm");
    EXPECT_TRUE(ImKatalogGeltungsbereich(241, 200000, 111010));
    EXPECT_FALSE(ImKatalogGeltungsbereich(142, 200000, 111010));
    EXPECT_FALSE(ImKatalogGeltungsbereich(241, 200000, 111010)); // another was in use since
    EXPECT_FALSE(ImGeltungsbereich(241, 200000, 111010));
}

// --- One load for the scope and the comparison

class EinLadenTest : public TestVLTTest {
protected:
    // Two chapters that are there and one that is missing, each with a position of its own kind of finding.
    void BeginneMitDrei() {
        SchreibeKapitel(111, "<H N=\"211\"><U N=\"1\" Y=\"1\"/></H>");
        Beginne(Neu);
        Kapitel(111);
        Position(211001); // 6202
        Position(999999);
        Kapitel(142); // 6101
        Position(211001);
        Kapitel(241);
        Position(888888); // 6201
    }
};

TEST_F(EinLadenTest, WhatTheScopeHadToLoadIsNotLoadedAgain) {
    BeginneMitDrei();
    const Stempelfunde funde = Rufe(TesteKatalog);
    ASSERT_EQ(funde.size(), 4U);
    for (const auto& gefragt : std::vector<std::vector<std::int32_t>>{{}, {111}, {241}, {142}, {111, 142, 241}}) {
        BeginneMitDrei();
        for (const std::int32_t kapitel : gefragt) {
            EXPECT_EQ(Rufe([kapitel] { ImKatalogGeltungsbereich(kapitel, 999999, 111010); }), Stempelfunde());
            std::filesystem::remove(Ordner().Pfad() / ("N131" + std::to_string(kapitel) + ".qvm"));
        }
        EXPECT_EQ(Rufe(TesteKatalog), funde);
        SchreibeKapitel(241, Kapitel241);
    }
}

// The stamps of the pass that asks stay its own.
TEST_F(EinLadenTest, JudgingAheadOfTimeTouchesNoStamp) {
    BeginneMitDrei();
    testDaten.FehlerKapitel = 7;
    testDaten.FehlerPosition = 8;
    ImKatalogGeltungsbereich(111, 999999, 111010);
    EXPECT_EQ(testDaten.FehlerKapitel, 7);
    EXPECT_EQ(testDaten.FehlerPosition, 8);
}

TEST_F(EinLadenTest, TheBarOfAChapterJudgedBeforeIsFullAtOnce) {
    static std::int64_t jetzt;
    jetzt = 0;
    fortschrittStand.Uhr = [] { return jetzt += 1000; };
    Position(212001);
    Position(212002);
    Balkenfenster fenster;
    testDaten.Fortschrittsfenster = &fenster;
    ZeigeSchritt(u"", 200);
    fenster.Balken.clear();
    ImKatalogGeltungsbereich(241, 999999, 111010);
    std::vector<double> erwartet;
    for (const std::int32_t wert : {45, 165, 185, 200}) {
        erwartet.push_back(BalkenBreite(BalkenInnen, wert, 200));
    }
    EXPECT_EQ(fenster.Balken, erwartet);
    fenster.Balken.clear();
    Rufe(TesteKatalog);
    erwartet.clear();
    for (const std::int32_t wert : {0, 0, 202, 0}) {
        erwartet.push_back(BalkenBreite(BalkenInnen, wert, 202));
    }
    EXPECT_EQ(fenster.Balken, erwartet);
}

// A reserve chapter is asked for its scope and not compared.
TEST_F(EinLadenTest, AReserveChapterStaysUntested) {
    SchreibeKapitel(291, "");
    Beginne(Neu);
    Kapitel(291);
    Position(888888);
    ImKatalogGeltungsbereich(291, 999999, 111010);
    EXPECT_EQ(Rufe(TesteKatalog), Stempelfunde());
}

} // namespace
} // namespace zepholt
