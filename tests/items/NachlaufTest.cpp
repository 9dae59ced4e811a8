// The checks over the finished tree: each code with a tree that fires it and a twin one change away that doesn't.
#include "catalogue/TestVLT.h"
#include "hilfen/Katalogtest.h"
#include "items/RecordG.h"

#include <chrono>

namespace zepholt {
namespace {

using namespace hilfen;

class NachlaufTest : public Katalogtest {
protected:
    // A fresh run with a chapter and no position yet.
    void BeginneMitKapitel(std::int32_t revision, std::int32_t nummer = 111) {
        Beginne(revision);
        Kapitel(nummer);
    }

    // What the pass reports for a chapter with these positions, which have nothing else.
    Stempelfunde Positionen(std::int32_t kapitel, std::initializer_list<std::int32_t> nummern) {
        BeginneMitKapitel(Neu, kapitel);
        for (const std::int32_t nummer : nummern) {
            Position(nummer);
        }
        return Rufe(PruefeNachlauf);
    }

    // What the pass reports for a quantity at `position` that points to `vorbemerkung`, which stands in the chapter.
    Stempelfunde Vorbemerkung(std::int32_t revision, std::int32_t position, std::int32_t vorbemerkung) {
        BeginneMitKapitel(revision, 241);
        Position(vorbemerkung);
        Variable(0, {{1, u"Text"}});
        Position(position);
        Menge(vorbemerkung);
        return Rufe(PruefeNachlauf);
    }
};

TEST_F(NachlaufTest, AnEmptyTreeGivesNothing) {
    EXPECT_EQ(Rufe(PruefeNachlauf), Stempelfunde());
    EXPECT_EQ(testDaten.ZeilenNr, -1);
}

// --- Title positions

TEST_F(NachlaufTest, ATitlePositionNeedsAVariable) { // 4711
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMitKapitel(revision);
        Position(110000);
        Position(111000);
        EXPECT_EQ(Rufe(PruefeNachlauf), (Stempelfunde{{4711, 111, 110000}}));

        BeginneMitKapitel(revision);
        Position(110000);
        Variable(0);
        Position(111000);
        EXPECT_EQ(Rufe(PruefeNachlauf), Stempelfunde());
    }
}

TEST_F(NachlaufTest, EachLevelReachesToTheNumberBeforeItsEnd) { // 4711
    struct {
        std::int32_t Titel, Letzte;
    } constexpr ebenen[] = {{100000, 199998}, {110000, 119998}, {111000, 111998}, {111100, 111198}, {111110, 111118}};
    const auto funde = [this](std::int32_t titel, std::int32_t letzte) {
        BeginneMitKapitel(Neu);
        Position(titel);
        Position(letzte);
        Variable(0, {{1, u"Text"}}); // most of them are reserve positions
        return Rufe(PruefeNachlauf);
    };
    for (const auto& ebene : ebenen) {
        EXPECT_EQ(funde(ebene.Titel, ebene.Letzte), (Stempelfunde{{4711, 111, ebene.Titel}}));
        EXPECT_EQ(funde(ebene.Titel, ebene.Letzte + 1), Stempelfunde()) << ebene.Titel;
    }
}

TEST_F(NachlaufTest, TheLastPositionAndServicePositionsAreNoTitles) {
    EXPECT_EQ(Positionen(111, {110000}), Stempelfunde());
    EXPECT_EQ(Positionen(111, {0}), Stempelfunde());
    EXPECT_EQ(Positionen(111, {111001, 111002}), Stempelfunde());
    EXPECT_EQ(Positionen(111, {110000, 120000}), Stempelfunde());
    EXPECT_EQ(Positionen(111, {110000, 110000}), Stempelfunde()); // strictly below
}

TEST_F(NachlaufTest, OnlyTheNeighbourInTheListCounts) {
    EXPECT_EQ(Positionen(111, {110000, 120000, 110100}), Stempelfunde());
    EXPECT_EQ(Positionen(111, {110000, 110100, 120000}), (Stempelfunde{{4711, 111, 110000}}));
}

TEST_F(NachlaufTest, TitlesAreReportedFromTheLastToTheFirst) { // 4711
    EXPECT_EQ(Positionen(111, {100000, 110000, 111000}), (Stempelfunde{{4711, 111, 110000}, {4711, 111, 100000}}));
}

TEST_F(NachlaufTest, AnAssignmentBelongsToAnEndNode) { // 4731
    BeginneMitKapitel(Neu);
    Position(111000);
    Zuordnung();
    Position(111010);
    EXPECT_EQ(Rufe(PruefeNachlauf), (Stempelfunde{{4711, 111, 111000}, {4731, 111, 111000}}));

    BeginneMitKapitel(Alt);
    Position(111000);
    Variable(0);
    Zuordnung();
    Zuordnung();
    Position(111010);
    EXPECT_EQ(Rufe(PruefeNachlauf), (Stempelfunde{{4731, 111, 111000}})); // once

    BeginneMitKapitel(Neu);
    Position(111000);
    Variable(0);
    Position(111010);
    Zuordnung();
    EXPECT_EQ(Rufe(PruefeNachlauf), Stempelfunde());
}

TEST_F(NachlaufTest, ATitleInAReserveChapterIsNotJudged) {
    BeginneMitKapitel(Neu, 119);
    Position(110000);
    Variable(0, {{1, u"Text"}});
    Zuordnung();
    Position(111000);
    Variable(0, {{1, u"Text"}});
    EXPECT_EQ(Rufe(PruefeNachlauf), Stempelfunde());
}

TEST_F(NachlaufTest, AReserveTitleNeedsNoVariableHereButStillNoAssignment) { // 4731
    BeginneMitKapitel(Neu);
    Position(190000);
    Zuordnung();
    Position(191000);
    Variable(0, {{1, u"Text"}});
    EXPECT_EQ(Rufe(PruefeNachlauf), (Stempelfunde{{4731, 111, 190000}, {4721, 111, 190000}}));
}

// --- Reserve text

TEST_F(NachlaufTest, AReservePositionNeedsText) { // 4721
    EXPECT_EQ(Positionen(111, {111191}), (Stempelfunde{{4721, 111, 111191}}));
    EXPECT_EQ(Positionen(111, {111189}), Stempelfunde()); // a 9 at the end doesn't count
    EXPECT_EQ(Positionen(119, {111001, 111002}), (Stempelfunde{{4721, 119, 111001}, {4721, 119, 111002}}));
}

TEST_F(NachlaufTest, ReserveTextIsALineOrAnInsertionPoint) { // 4721
    struct {
        std::vector<Zeilentext> Zeilen;
        std::int32_t Einfuegepunkt;
        bool Genuegt;
    } const faelle[] = {
        {{}, 0, false},
        {{{1, u""}, {2, u"   "}}, 0, false},
        {{{1, u""}, {2, u" x"}}, 0, true},
        {{{1, u""}}, 1, true},
        {{{1, u"  "}}, 30, true},
    };
    for (const auto& fall : faelle) {
        BeginneMitKapitel(Neu);
        Position(111191);
        Variable(1, fall.Zeilen, fall.Einfuegepunkt);
        EXPECT_EQ(Rufe(PruefeNachlauf).empty(), fall.Genuegt) << fall.Zeilen.size() << " " << fall.Einfuegepunkt;
    }
}

TEST_F(NachlaufTest, OneVariableWithTextIsEnough) { // 4721
    BeginneMitKapitel(Alt);
    Position(111191);
    Variable(0, {{1, u""}});
    Variable(1, {{1, u"Text"}});
    EXPECT_EQ(Rufe(PruefeNachlauf), Stempelfunde());
    BeginneMitKapitel(Alt);
    Position(111191);
    Variable(0, {{1, u""}});
    Variable(1, {{1, u""}});
    EXPECT_EQ(Rufe(PruefeNachlauf), (Stempelfunde{{4721, 111, 111191}}));
}

TEST_F(NachlaufTest, OnlyTheInsertionPointOfTheLastLineCounts) { // 4721
    const Text eins = Zeile(u"G3", {{2, u"111"}, {8, u"111191"}, {14, u"0101"}, {136, u"05"}});
    const Text zwei = Zeile(u"G3", {{2, u"111"}, {8, u"111191"}, {14, u"0102"}});
    BeginneMitKapitel(Neu);
    Position(111191);
    NimmInDieHand(eins);
    PruefeG3();
    EXPECT_EQ(Rufe(PruefeNachlauf), Stempelfunde());
    NimmInDieHand(zwei);
    PruefeG3();
    EXPECT_EQ(Rufe(PruefeNachlauf), (Stempelfunde{{4721, 111, 111191}}));
}

// --- Preliminary remarks

TEST_F(NachlaufTest, ARemarkMustStandInTheSameChapter) { // 4741
    BeginneMitKapitel(Alt);
    Position(211010);
    Position(211021);
    Menge(211010);
    Menge(211020);
    Menge(0); // none
    EXPECT_EQ(Rufe(PruefeNachlauf), (Stempelfunde{{4741, 111, 211021}}));

    BeginneMitKapitel(Alt);
    Position(211010);
    Kapitel(112);
    Position(211021);
    Menge(211010);
    EXPECT_EQ(Rufe(PruefeNachlauf), (Stempelfunde{{4741, 112, 211021}}));
}

TEST_F(NachlaufTest, TheNumberOfARemarkReachesFourRanges) { // 4742
    struct {
        std::int32_t Von, Bis;
    } constexpr bereiche[] = {{212000, 212099}, {210000, 210999}, {200000, 200999}, {1, 999}};
    for (const auto& bereich : bereiche) {
        EXPECT_EQ(Vorbemerkung(Neu, 212343, bereich.Von), Stempelfunde()) << bereich.Von;
        EXPECT_EQ(Vorbemerkung(Neu, 212343, bereich.Bis), Stempelfunde()) << bereich.Bis;
        EXPECT_EQ(Vorbemerkung(Neu, 212343, bereich.Bis + 1), (Stempelfunde{{4742, 241, 212343}})) << bereich.Bis;
        EXPECT_EQ(Vorbemerkung(Alt, 212343, bereich.Bis + 1), Stempelfunde()) << bereich.Bis;
    }
    EXPECT_EQ(Vorbemerkung(Neu, 212343, 199999), (Stempelfunde{{4742, 241, 212343}}));
    EXPECT_EQ(Vorbemerkung(Neu, 212343, 211999), (Stempelfunde{{4742, 241, 212343}}));
}

TEST_F(NachlaufTest, ARemarkThatIsNowhereGivesBoth) { // 4741, 4742
    BeginneMitKapitel(Neu);
    Position(211021);
    Menge(999999);
    Menge(211010);
    EXPECT_EQ(Rufe(PruefeNachlauf), (Stempelfunde{{4741, 111, 211021}, {4742, 111, 211021}, {4741, 111, 211021}}));

    BeginneMitKapitel(Alt);
    Position(211021);
    Menge(999999);
    EXPECT_EQ(Rufe(PruefeNachlauf), (Stempelfunde{{4741, 111, 211021}}));
}

constexpr std::string_view MitTextast = R"(<H N="100"><U N="0"/></H><H N="111"><U N="0"/><U N="10"/></H>)"
                                        R"(<H N="211"><U N="0"/><U N="1"/></H>)";

TEST_F(NachlaufTest, TheCatalogueMayWidenTheScope) { // 4742
    EXPECT_EQ(Vorbemerkung(Neu, 211001, 111010), (Stempelfunde{{4742, 241, 211001}}));
    SchreibeKapitel(241, MitTextast);
    EXPECT_EQ(Vorbemerkung(Neu, 211001, 111010), Stempelfunde());
    EXPECT_EQ(Vorbemerkung(Neu, 211001, 212000), (Stempelfunde{{4742, 241, 211001}})); // stands behind
    EXPECT_EQ(Vorbemerkung(Neu, 311001, 211000), (Stempelfunde{{4742, 241, 311001}})); // no text branch

    BeginneMitKapitel(Neu, 241);
    sia451Datei.DokumentKapitel.back().Versionsjahr = Jahr + 1;
    Position(111010);
    Position(211001);
    Menge(111010);
    EXPECT_EQ(Rufe(PruefeNachlauf), (Stempelfunde{{4742, 241, 211001}}));
}

TEST_F(NachlaufTest, TheOldInterfaceDoesNotAskTheCatalogue) {
    Ordner().Schreibe("N131241.qvm", "CF11abcd");
    EXPECT_EQ(Vorbemerkung(Alt, 211001, 111010), Stempelfunde());
    EXPECT_THROW(Vorbemerkung(Neu, 211001, 111010), LaufzeitFehler);
}

TEST_F(NachlaufTest, EachChapterAsksForItsOwnFile) { // 4742
    SchreibeKapitel(241, MitTextast);
    SchreibeKapitel(242, "");
    Beginne(Neu);
    for (const std::int32_t nummer : {241, 242, 243}) {
        Kapitel(nummer);
        Position(111010);
        Position(211001);
        Menge(111010);
        Menge(111010);
    }
    EXPECT_EQ(Rufe(PruefeNachlauf),
              (Stempelfunde{{4742, 242, 211001}, {4742, 242, 211001}, {4742, 243, 211001}, {4742, 243, 211001}}));
}

// The same answer for each quantity as from a file that is read anew.
TEST_F(NachlaufTest, OneLoadAnswersAsManyWould) { // 4742
    SchreibeKapitel(241, MitTextast);
    for (const std::int32_t vorbemerkung : {100000, 111000, 111010, 120000, 188888, 200000, 211000}) {
        BeginneMitKapitel(Neu, 241);
        Position(vorbemerkung);
        Position(311001);
        Menge(111010); // what loads the chapter
        Menge(vorbemerkung);
        const std::size_t funde = Rufe(PruefeNachlauf).size();
        katalogVergleich = {};
        const bool gilt = ImKatalogGeltungsbereich(241, 311001, vorbemerkung);
        // 4741 for the first quantity, unless its remark is the one that stands there.
        EXPECT_EQ(funde, (vorbemerkung == 111010 ? 0U : 1U) + (gilt ? 0U : 1U)) << vorbemerkung;
    }
}

// --- The pass as a whole

TEST_F(NachlaufTest, TheWalksFollowOneAnother) {
    BeginneMitKapitel(Neu);
    Position(110000);
    Position(111191);
    Menge(999999);
    Kapitel(112);
    Position(110000);
    Position(111191);
    Menge(999999);
    EXPECT_EQ(Rufe(PruefeNachlauf), (Stempelfunde{{4711, 111, 110000},
                                                  {4711, 112, 110000},
                                                  {4721, 111, 111191},
                                                  {4721, 112, 111191},
                                                  {4741, 111, 111191},
                                                  {4742, 111, 111191},
                                                  {4741, 112, 111191},
                                                  {4742, 112, 111191}}));
}

TEST_F(NachlaufTest, TheStampsOfTheLastReportStay) {
    BeginneMitKapitel(Neu);
    Position(110000);
    Position(111000);
    Rufe(PruefeNachlauf);
    EXPECT_EQ(testDaten.ZeilenNr, -1);
    EXPECT_EQ(testDaten.FehlerKapitel, 111);
    EXPECT_EQ(testDaten.FehlerPosition, 110000);
}

TEST_F(NachlaufTest, ManyQuantitiesLoadTheirChapterOnce) {
    constexpr std::int32_t Anzahl = 50000;
    std::string innen;
    for (int h = 100; h <= 999; ++h) {
        innen += "<H N=\"" + std::to_string(h) + "\"><U N=\"0\"/><U N=\"1\"/></H>";
    }
    SchreibeKapitel(241, innen);
    BeginneMitKapitel(Neu, 241);
    Position(111010);
    Position(311001);
    for (std::int32_t i = 0; i < Anzahl; ++i) {
        Menge(111010);
    }
    const auto beginn = std::chrono::steady_clock::now();
    EXPECT_EQ(Rufe(PruefeNachlauf).size(), static_cast<std::size_t>(Anzahl));
    // A load takes milliseconds: 50,000 of them would take minutes.
    EXPECT_LT(std::chrono::steady_clock::now() - beginn, std::chrono::seconds(10));
}

} // namespace
} // namespace zepholt
