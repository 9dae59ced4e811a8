// The store of findings.
#include "errors/TestFehler.h"

#include "run/NeuerLauf.h"
#include "state/TestDaten.h"

#include <gtest/gtest.h>

namespace zepholt {
namespace {

class TestFehlerTest : public ::testing::Test {
protected:
    TestFehlerTest() { NeuerLauf(); }
};

TEST_F(TestFehlerTest, SixCodesAreSilentBelowRevision12) {
    for (const std::int32_t code : {3003, 3224, 3234, 6901, 6902, 6102}) {
        for (const std::int32_t revision : {0, 11}) {
            testDaten.Revision = revision;
            FehlerHinzufuegen(code, 93);
            EXPECT_EQ(FehlerAnzahl(), 0) << code;
        }
        testDaten.Revision = 12;
        FehlerHinzufuegen(code, 93);
        EXPECT_EQ(FehlerAnzahl(), 1) << code;
        FehlerLoeschen();
    }
}

TEST_F(TestFehlerTest, OtherCodesAreKeptBeforeTheFirstLineIsRead) {
    FehlerHinzufuegen(2001, 0);
    FehlerHinzufuegen(3002, 0);
    FehlerHinzufuegen(6101, 0);
    EXPECT_EQ(FehlerAnzahl(), 3);
}

TEST_F(TestFehlerTest, TheSameReportTwiceGivesTwoEntries) {
    FehlerMelden(3219);
    FehlerMelden(3219);
    EXPECT_EQ(FehlerAnzahl(), 2);
}

TEST_F(TestFehlerTest, AnEntryKeepsTheStampsOfItsMoment) {
    testDaten.ZeilenNr = 7;
    testDaten.FehlerKapitel = 111;
    testDaten.FehlerPosition = 111001;
    FehlerHinzufuegen(2032, 93);
    testDaten.ZeilenNr = -1;
    testDaten.FehlerKapitel = 0;
    testDaten.FehlerPosition = 0;

    const FehlerEintrag& eintrag = fehlerSpeicher.FehlerListe.front();
    EXPECT_EQ(eintrag.Code, 2032);
    EXPECT_EQ(eintrag.Zeile, 7);
    EXPECT_EQ(eintrag.Spalte, 93);
    EXPECT_EQ(eintrag.Kapitel, 111);
    EXPECT_EQ(eintrag.Position, 111001);
}

TEST_F(TestFehlerTest, FehlerMeldenNamesNoColumn) {
    FehlerMelden(4221);
    EXPECT_EQ(fehlerSpeicher.FehlerListe.front().Spalte, 0);
}

TEST_F(TestFehlerTest, FehlerLoeschenEmptiesTheStore) {
    FehlerMelden(4221);
    FehlerLoeschen();
    EXPECT_EQ(FehlerAnzahl(), 0);
}

} // namespace
} // namespace zepholt
