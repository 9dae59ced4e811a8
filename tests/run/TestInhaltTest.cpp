// The driver: which records reach their tests, in which order, and what is passed over.
#include "run/TestInhalt.h"

#include "hilfen/KopfSaetze.h"
#include "hilfen/Satztest.h"

namespace zepholt {
namespace {

using namespace hilfen;

class TestInhaltTest : public Satztest {
protected:
    // The findings on a document whose lines between A and Z are `mitte`, in file order.
    Funde PruefeDokument(std::int32_t revision, std::vector<Text> mitte, std::initializer_list<Feldwert> inA = {}) {
        Beginne(revision);
        mitte.insert(mitte.begin(), SatzA(revision, inA));
        mitte.push_back(SatzZ(mitte.size() + 1));
        for (const Text& zeile : mitte) {
            m_zeilen.Anfuegen(zeile);
        }
        return Rufe(DokumentTesten);
    }
};

TEST_F(TestInhaltTest, HeaderAndClosingRecordAlone) {
    EXPECT_EQ(PruefeDokument(Neu, {}), Funde{});
    EXPECT_EQ(PruefeDokument(Alt, {}), Funde{});
}

TEST_F(TestInhaltTest, EachDigitOfTheBBlockReachesItsTest) {
    // A record of nothing but letter and digit lacks its number: 3002 in column 2, then the record's own code.
    const std::int32_t codes[] = {3201, 3221, 3211, 3231, 3261, 3241, 3251, 3292, 3296};
    for (std::size_t ziffer = 0; ziffer < std::size(codes); ++ziffer) {
        const Funde funde = PruefeDokument(Alt, {Zeile(Text(u"B") + static_cast<char16_t>(u'0' + ziffer), {})});
        ASSERT_FALSE(funde.empty());
        EXPECT_EQ(funde.front(), (Fund{3002, 1, 2}));
        EXPECT_EQ(funde.back(), (Fund{codes[ziffer], 1})) << ziffer;
    }
}

TEST_F(TestInhaltTest, CostAccountRecordsPassUnexamined) {
    const Text b9 = Zeile(u"B9", {{18, u"*x*"}, {45, u"?"}, {46, u"abc"}});
    EXPECT_EQ(PruefeDokument(Alt, {b9}), Funde{});
    EXPECT_EQ(PruefeDokument(Neu, {b9}), Funde{});
    EXPECT_TRUE(sia451Datei.KostenkontoTabelle.empty());
}

TEST_F(TestInhaltTest, EachDigitOfTheGBlockReachesItsTest) {
    const std::int32_t codes[] = {4101, 4201, 4301, 4401, 4501, 4601};
    for (std::size_t i = 0; i < std::size(codes); ++i) {
        const Funde funde = PruefeDokument(Alt, {Zeile(Text(u"G") + static_cast<char16_t>(u'1' + i), {})});
        ASSERT_FALSE(funde.empty());
        EXPECT_EQ(funde.back(), (Fund{codes[i], 1})) << i;
    }
    EXPECT_EQ(PruefeDokument(Alt, {Zeile(u"G7", {}), Zeile(u"G ", {})}), Funde{});
}

TEST_F(TestInhaltTest, ConditionsOfDigits0And1And5AreTested) {
    EXPECT_EQ(PruefeDokument(Alt, {Zeile(u"C0", {{2, u"001"}})}), (Funde{{5101, 1}}));
    EXPECT_EQ(PruefeDokument(Alt, {Zeile(u"C3", {{2, u"xyz"}})}), Funde{});
    EXPECT_EQ(PruefeDokument(Alt, {Zeile(u"C5", {{2, u"001"}})}), (Funde{{5301, 1}}));
    EXPECT_EQ(PruefeDokument(Alt, {Zeile(u"C1", {})}).back(), (Fund{5222, 1}));
}

TEST_F(TestInhaltTest, AttachmentsAreTestedInTheNewInterfaceAlone) {
    const Text x4 = Zeile(u"X4", {{2, u"111"}, {8, u"111001"}, {14, u"00"}, {16, u"01"}, {93, u"Bild"}});
    EXPECT_EQ(PruefeDokument(Alt, {x4}), Funde{});
    EXPECT_EQ(PruefeDokument(Neu, {x4}), (Funde{{4252, 1}}));

    for (char16_t ziffer = u'1'; ziffer <= u'5'; ++ziffer) {
        const Text p = Zeile(Text(u"P") + ziffer, {{2, u"111"}, {8, u"111001"}, {14, u"00"}, {16, u"01"}, {93, u"x"}});
        EXPECT_EQ(PruefeDokument(Alt, {p}), Funde{});
        EXPECT_EQ(PruefeDokument(Neu, {p}), (Funde{{4252, 1}}));
    }
    EXPECT_EQ(PruefeDokument(Neu, {Zeile(u"P6", {}), Zeile(u"X3", {})}), Funde{});
}

TEST_F(TestInhaltTest, ALineThatEndsBeforeItsDigitIsPassedOver) {
    for (const TextSicht buchstabe : {u"B", u"C", u"G", u"P", u"X"}) {
        Text zeile = Zeile(buchstabe, {{2, u"111"}, {8, u"111001"}});
        EXPECT_EQ(PruefeDokument(Neu, {zeile}), Funde{});
        zeile.resize(41, u' ');
        EXPECT_EQ(PruefeDokument(Neu, {zeile}), Funde{});
    }
}

TEST_F(TestInhaltTest, OtherLettersArePassedOver) {
    EXPECT_EQ(PruefeDokument(Neu, {Zeile(u"D1", {}), Zeile(u"U1", {}), Text()}), Funde{});
}

TEST_F(TestInhaltTest, ConditionsAreReadBehindTheItems) {
    // C stands before G in the file, but a C5 that names a chapter finds the chapter that G1 stores.
    const Text c0 = Zeile(u"C0", {{2, u"000"}});
    const Text c1 = Zeile(u"C1", {{2, u"001"}, {5, u"1"}, {6, u"01"}, {16, u"00"}, {44, u"%"}});
    const Text c5 = Zeile(u"C5", {{2, u"001"}, {8, u"111"}});
    const Text g1 = Zeile(u"G1", {{2, u"111"}, {6, u"20"}, {93, u"Kapitel"}});
    EXPECT_EQ(PruefeDokument(Alt, {c0, c1, c5, g1}), Funde{});
    EXPECT_EQ(PruefeDokument(Alt, {c0, c1, c5}), (Funde{{5361, 3}}));
}

// Whatever the interface: chapter, position, variable, assignment, price and quantity stand in the tree.
TEST_F(TestInhaltTest, EachItemRecordIsStoredInBothInterfaces) {
    for (const std::int32_t revision : {Alt, Neu}) {
        PruefeDokument(revision, {Zeile(u"G1", {{2, u"111"}, {6, u"19"}, {93, u"Kapitel"}}),
                                  Zeile(u"G2", {{2, u"111"}, {8, u"111000"}, {93, u"Position"}}),
                                  Zeile(u"G3", {{2, u"111"}, {8, u"111000"}, {14, u"00"}, {16, u"01"}, {93, u"Text"}}),
                                  Zeile(u"G4", {{2, u"111"}, {8, u"111000"}}),
                                  Zeile(u"G2", {{2, u"111"}, {8, u"111001"}, {93, u"Position"}}),
                                  Zeile(u"G5", {{2, u"111"}, {8, u"111001"}, {59, u"St"}}),
                                  Zeile(u"G6", {{2, u"111"}, {8, u"111001"}, {44, u"A"}, {46, u"000000012000"}})});
        ASSERT_EQ(sia451Datei.DokumentKapitel.size(), 1U) << revision;
        const auto& positionen = sia451Datei.DokumentKapitel[0].Positionen;
        ASSERT_EQ(positionen.size(), 2U) << revision;
        EXPECT_FALSE(positionen[0].Variablen.empty()) << revision;
        EXPECT_TRUE(positionen[0].HatZuordnungen) << revision;
        EXPECT_FALSE(positionen[0].HatG5) << revision;
        EXPECT_TRUE(positionen[1].HatG5) << revision;
        EXPECT_FALSE(positionen[1].Mengen.empty()) << revision;
    }
}

TEST_F(TestInhaltTest, TheUnitsAreThoseOfTheLanguageOfTheFile) {
    testDaten.Sprache = 1;
    const auto mitEinheit = [this](TextSicht sprachcode, TextSicht einheit) {
        return PruefeDokument(Alt,
                              {Zeile(u"G1", {{2, u"111"}, {6, u"19"}, {93, u"Kapitel"}}),
                               Zeile(u"G2", {{2, u"111"}, {8, u"111001"}, {93, u"Position"}}),
                               Zeile(u"G5", {{2, u"111"}, {8, u"111001"}, {59, einheit}})},
                              {{42, sprachcode}});
    };
    EXPECT_EQ(mitEinheit(u"1", u"St"), Funde{});
    EXPECT_EQ(mitEinheit(u"2", u"St"), (Funde{{4504, 3}}));
    EXPECT_EQ(mitEinheit(u"2", u"p"), Funde{});
    EXPECT_EQ(mitEinheit(u"3", u"pz"), Funde{});
    EXPECT_EQ(mitEinheit(u"1", u"pz"), (Funde{{4504, 3}}));
}

} // namespace
} // namespace zepholt
