// Record B9, called directly: no file's Revision lets the driver call it.
#include "doctest/Records.h"
#include "hilfen/Gliederungen.h"
#include "hilfen/Satztest.h"
#include "state/SIA451Felder.h"

namespace zepholt {
namespace {

using namespace hilfen;

class RecordB9Test : public Satztest {
protected:
    RecordB9Test() {
        Beginne(0);
        GliederungenAnlegen();
    }

    Funde B9(const std::vector<Feldwert>& felder) { return Pruefe(PruefeB9, Geaendert(Zeile(u"B9", {}), felder)); }

    static const Verweissatz& Letztes() { return sia451Datei.KostenkontoTabelle.back(); }
};

TEST_F(RecordB9Test, ACompleteRecordIsKept) {
    EXPECT_EQ(B9({{18, u"12"},
                  {24, u"34"},
                  {30, u"G1"},
                  {33, u"V1"},
                  {45, u"-"},
                  {46, u"0000000001500"},
                  {62, u"+"},
                  {63, u"000000000250"},
                  {82, u"211"},
                  {87, u"E1"}}),
              Funde{});
    const Verweissatz& konto = Letztes();
    EXPECT_TRUE(konto.OGL == u"12" && konto.PSL == u"34" && konto.KAG == u"211" && konto.Element == u"E1");
    EXPECT_TRUE(konto.Variantengruppe == u"G1" && konto.Variante == u"V1");
}

TEST_F(RecordB9Test, FieldsLieInTheirColumns) {
    Pruefe(PruefeB9, Spaltensatz(u"B9", {{45, u"-"}, {46, u"1234567890125"}, {62, u"-"}, {63, u"123456789025"}}));
    const auto spalten = [](std::int32_t spalte, std::int32_t laenge) {
        return Feld(testDaten.Record, spalte, laenge);
    };
    const Verweissatz& konto = Letztes();
    EXPECT_TRUE(konto.OGL == spalten(18, 6) && konto.PSL == spalten(24, 6));
    EXPECT_TRUE(konto.Variantengruppe == spalten(30, 3) && konto.Variante == spalten(33, 3));
    EXPECT_TRUE(konto.KAG == spalten(82, 5) && konto.Element == spalten(87, 6));
}

TEST_F(RecordB9Test, AnEmptyRecordIsKept) {
    EXPECT_EQ(B9({}), Funde{});
    EXPECT_EQ(sia451Datei.KostenkontoTabelle.size(), 1U);
}

TEST_F(RecordB9Test, References) {
    const struct {
        std::vector<Feldwert> Felder;
        Funde Erwartet;
    } faelle[] = {
        {{{18, u"12"}}, {}},
        {{{18, u"1*"}}, {}},
        {{{18, u"13"}}, {{3271, 0}}},
        {{{18, u"2*"}}, {{3271, 0}}},
        {{{24, u"34"}}, {{3272, 0}}},
        {{{18, u"1*"}, {24, u"34"}}, {{3273, 0}}},
        {{{18, u"2*"}, {24, u"34"}}, {{3271, 0}, {3273, 0}}},
        {{{18, u"12"}, {24, u"35"}}, {{3274, 0}}},
        {{{18, u"12"}, {24, u"3*"}}, {}},
        {{{18, u"13"}, {24, u"34"}}, {{3271, 0}, {3274, 0}}},
        {{{82, u"211"}}, {}},
        {{{82, u"212"}}, {{3275, 0}}},
        {{{82, u"21*"}}, {}},
        {{{87, u"E1"}}, {}},
        {{{87, u"E2"}}, {{3276, 0}}},
        {{{30, u"G1"}}, {}},
        {{{30, u"G2"}}, {{3277, 0}}},
        {{{33, u"V1"}}, {{3278, 0}}},
        {{{30, u"G*"}, {33, u"V1"}}, {{3279, 0}}},
        {{{30, u"G1"}, {33, u"V1"}}, {}},
        {{{30, u"G1"}, {33, u"V2"}}, {{3280, 0}}},
        {{{18, u"1*2"}}, {{3001, 0, 18}}},
        {{{24, u" 3"}, {82, u"**"}}, {{3001, 0, 24}, {3001, 0, 82}, {3272, 0}}},
    };
    for (const auto& fall : faelle) {
        Beginne(0);
        GliederungenAnlegen();
        EXPECT_EQ(B9(fall.Felder), fall.Erwartet);
        EXPECT_EQ(sia451Datei.KostenkontoTabelle.size(), 1U);
    }
}

TEST_F(RecordB9Test, TheChecksComeInTheOrderOfTheCodes) {
    EXPECT_EQ(B9({{18, u"x"}, {24, u"x"}, {30, u"x"}, {33, u"x"}, {45, u"x"}, {62, u"x"}, {82, u"x"}, {87, u"x"}}),
              (Funde{{3271, 0},
                     {3274, 0},
                     {3275, 0},
                     {3276, 0},
                     {3277, 0},
                     {3280, 0},
                     {3281, 0},
                     {3282, 0},
                     {3284, 0},
                     {3285, 0}}));
}

TEST_F(RecordB9Test, SignOfTheQuantity) {
    EXPECT_EQ(B9({{45, u"+"}, {46, u"0000000001500"}}), Funde{});
    EXPECT_EQ(B9({{45, u"-"}, {46, u"0000000001500"}}), Funde{});
    EXPECT_EQ(B9({{45, u"x"}, {46, u"0000000001500"}}), (Funde{{3281, 2}}));
    EXPECT_EQ(B9({{45, u"x"}}), (Funde{{3281, 3}, {3282, 3}}));
    EXPECT_EQ(B9({{45, u"-"}}), (Funde{{3282, 4}}));
    EXPECT_EQ(B9({{46, u"0000000000000"}}), (Funde{{3283, 5}}));
    EXPECT_EQ(B9({{46, u"000000000150x"}}), (Funde{{3001, 6, 46}, {3283, 6}}));
}

TEST_F(RecordB9Test, SignOfThePrice) {
    EXPECT_EQ(B9({{62, u"+"}, {63, u"000000000250"}}), Funde{});
    EXPECT_EQ(B9({{62, u"-"}, {63, u"000000000250"}}), Funde{});
    EXPECT_EQ(B9({{62, u"x"}, {63, u"000000000250"}}), (Funde{{3284, 2}}));
    EXPECT_EQ(B9({{62, u"x"}}), (Funde{{3284, 3}, {3285, 3}}));
    EXPECT_EQ(B9({{62, u"-"}}), (Funde{{3285, 4}}));
    EXPECT_EQ(B9({{63, u"000000000000"}}), (Funde{{3286, 5}}));
}

} // namespace
} // namespace zepholt
