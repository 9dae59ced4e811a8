// Check digits, cost accounts and what else no file can reach.
#include "items/TestFunktionen.h"

#include "items/Positionstest.h"
#include "run/NeuerLauf.h"
#include "state/SIA451Datei.h"
#include "support/HilfsFunktionen.h"

#include <gtest/gtest.h>

namespace zepholt {
namespace {

using namespace hilfen;

TEST(PruefzifferTest, FillsTheWeightedSumUpToTen) {
    struct {
        TextSicht Text;
        bool Gueltig;
    } const faelle[] = {
        {u"", true},
        {u"0", true}, // no body: the sum is 0
        {u"1", false},
        {u"9", false},
        {u"00", true},
        {u"0000000", true},
        {u"17", true}, // 1*3 = 3
        {u"16", false},
        {u"106", false}, // 0*3 + 1*1 = 1
        {u"109", true},
        {u"1234565", true}, // 6*3 + 5 + 4*3 + 3 + 2*3 + 1 = 45
        {u"1234564", false},
        {u"2134565", false}, // 6*3 + 5 + 4*3 + 3 + 1*3 + 2 = 43: two digits changed places
        {u"2134567", true},
        {u"9999990", false}, // 9*12 = 108
        {u"9999992", true},
        {u" 17", false},
        {u"1 7", false},
        {u"17 ", false},
        {u"1A7", false},
        {u"A", false},
        {u"1A", false},
        {u"-17", false},
        {u"+17", false},
        {u"1.7", false},
        {u"\uFF11\uFF17", false}, // digits of full width are none
    };
    for (const auto& [text, gueltig] : faelle) {
        EXPECT_EQ(PruefzifferGueltig(text), gueltig) << Lesbar(text);
    }
}

TEST(PruefzifferTest, OneDigitOfTenIsRight) {
    for (std::int32_t koerper = 0; koerper < 1000; ++koerper) {
        std::int32_t gueltige = 0;
        for (std::int32_t ziffer = 0; ziffer < 10; ++ziffer) {
            gueltige += PruefzifferGueltig(ZahlText(koerper * 10 + ziffer)) ? 1 : 0;
        }
        EXPECT_EQ(gueltige, 1) << koerper;
    }
}

TEST(JokerGleichTest, TheJokerOfThePatternStandsForAnyEnding) {
    struct {
        TextSicht Wert;
        TextSicht Muster;
        bool Gleich;
    } const faelle[] = {
        {u"abc", u"abc", true},  {u"abc", u"abd", false}, {u"abc", u"ab", false},  {u"abc", u"ab*", true},
        {u"abc", u"a*x", true},  {u"abc", u"*", true},    {u"", u"*", true},       {u"", u"", true},
        {u"abc", u"b*", false},  {u"a", u"ab*", false},   {u"ab*", u"abc", false}, {u"a*", u"a*", true},
        {u"abc", u"abc*", true}, {u"ABC", u"abc", false},
    };
    for (const auto& [wert, muster, gleich] : faelle) {
        EXPECT_EQ(JokerGleich(wert, muster), gleich) << Lesbar(wert);
    }
}

class KostenkontoTest : public testing::Test {
protected:
    KostenkontoTest() { NeuerLauf(); }

    static Verweissatz Verweise(TextSicht ogl, TextSicht psl, TextSicht kag, TextSicht element, TextSicht gruppe,
                                TextSicht variante) {
        return {
            .OGL = ogl, .PSL = psl, .KAG = kag, .Element = element, .Variantengruppe = gruppe, .Variante = variante};
    }

    template <class... Texte>
    static void Konto(Texte... texte) {
        sia451Datei.KostenkontoTabelle.push_back(Verweise(texte...));
    }

    template <class... Texte>
    static bool Gefunden(Texte... texte) {
        return KostenkontoGefunden(Verweise(texte...));
    }
};

TEST_F(KostenkontoTest, AnEmptyTableHasNone) {
    EXPECT_FALSE(Gefunden(u"", u"", u"", u"", u"", u""));
}

TEST_F(KostenkontoTest, EveryReferenceMustFit) {
    Konto(u"HAUS1", u"OST", u"123", u"C1", u"VG", u"V1");
    EXPECT_TRUE(Gefunden(u"HAUS1", u"OST", u"123", u"C1", u"VG", u"V1"));
    EXPECT_FALSE(Gefunden(u"HAUS2", u"OST", u"123", u"C1", u"VG", u"V1"));
    EXPECT_FALSE(Gefunden(u"HAUS1", u"WEST", u"123", u"C1", u"VG", u"V1"));
    EXPECT_FALSE(Gefunden(u"HAUS1", u"OST", u"124", u"C1", u"VG", u"V1"));
    EXPECT_FALSE(Gefunden(u"HAUS1", u"OST", u"123", u"C2", u"VG", u"V1"));
    EXPECT_FALSE(Gefunden(u"HAUS1", u"OST", u"123", u"C1", u"VH", u"V1"));
    EXPECT_FALSE(Gefunden(u"HAUS1", u"OST", u"123", u"C1", u"VG", u"V2"));
    EXPECT_FALSE(Gefunden(u"HAUS1", u"", u"123", u"C1", u"VG", u"V1"));
}

TEST_F(KostenkontoTest, AJokerInTheFirstOfAPairCoversTheSecond) {
    Konto(u"HA*", u"OST", u"12*", u"*", u"V*", u"V1");
    EXPECT_TRUE(Gefunden(u"HAUS1", u"WEST", u"129", u"", u"VG", u"V9"));
    EXPECT_FALSE(Gefunden(u"H", u"OST", u"129", u"", u"VG", u"V1"));
    EXPECT_FALSE(Gefunden(u"HAUS1", u"WEST", u"139", u"", u"VG", u"V9"));
}

TEST_F(KostenkontoTest, AJokerInTheSecondOfAPairEndsOnlyThat) {
    Konto(u"HAUS1", u"O*", u"", u"", u"VG", u"*");
    EXPECT_TRUE(Gefunden(u"HAUS1", u"OST", u"", u"", u"VG", u"V9"));
    EXPECT_FALSE(Gefunden(u"HAUS2", u"OST", u"", u"", u"VG", u"V9"));
    EXPECT_FALSE(Gefunden(u"HAUS1", u"WEST", u"", u"", u"VG", u"V9"));
    EXPECT_FALSE(Gefunden(u"HAUS1", u"OST", u"", u"", u"VH", u"V9"));
}

TEST_F(KostenkontoTest, TheColumnsKeepAPairApart) {
    Konto(u"A", u"B", u"", u"", u"", u"");
    EXPECT_FALSE(Gefunden(u"AB", u"", u"", u"", u"", u""));
    EXPECT_TRUE(Gefunden(u"A", u"B", u"", u"", u"", u""));
}

TEST_F(KostenkontoTest, AnyAccountWillDo) {
    Konto(u"A", u"", u"", u"", u"", u"");
    Konto(u"B", u"", u"", u"", u"", u"");
    EXPECT_TRUE(Gefunden(u"A", u"", u"", u"", u"", u""));
    EXPECT_TRUE(Gefunden(u"B", u"", u"", u"", u"", u""));
    EXPECT_FALSE(Gefunden(u"C", u"", u"", u"", u"", u""));
}

TEST(EinrichtungTest, EveryChapterMayHaveFurnishing) {
    for (std::int32_t kapitel = 0; kapitel < 1000; ++kapitel) {
        EXPECT_TRUE(EinrichtungErlaubt(kapitel));
    }
}

} // namespace
} // namespace zepholt
