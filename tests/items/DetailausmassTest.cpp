// Detail measurement lines: the two halves of their test, and the quantity that they come to.
#include "items/Positionstest.h"

namespace zepholt {
namespace {

using namespace hilfen;

class DetailausmassTest : public Positionstest {
protected:
    // The position 111001 with a plain quantity without references.
    void Aufbau(std::int32_t revision) {
        BeginneMitPosition(revision);
        Gliederungen();
        Erwarte(PruefeG5, Zeile(u"G5", {{2, u"111"}, {8, u"111001"}}), {});
        Erwarte(PruefeG6, m_menge, {});
    }

    const Text m_menge = Zeile(u"G6", {{2, u"111"}, {8, u"111001"}, {44, u"A"}, {45, u"+"}, {46, u"0000000012000"}});
    const Text m_detail = Mit(m_menge, {{14, u"01"}, {16, u"02"}});
};

TEST_F(DetailausmassTest, ReportsFaults) {
    ErwarteFaelle(
        [this](std::int32_t revision) { Aufbau(revision); }, PruefeG6, m_detail,
        {
            {Beide, {}, {}},
            {Beide, {{14, u"99"}, {16, u"99"}}, {}},
            // The kind, which the first half does not read.
            {Beide, {{44, u"B"}}, {{4693}}},
            {Beide, {{44, u"a"}}, {{4693}}},
            {Beide, {{44, u" "}}, {{3002, 44}, {4693}}},
            {Beide, {{44, u"Z"}}, {{4693}}}, // no 4611
            {Neu, {{44, u"C"}}, {{4693}}},   // no 4617
            // Group and line.
            {Beide, {{14, u"00"}}, {{4694}}},
            {Beide, {{16, u"00"}}, {{4694}}},
            {Beide, {{14, u"00"}, {16, u"00"}}, {{4694}}},
            {Beide, {{14, u"  "}}, {{3002, 14}, {4694}}},
            {Beide, {{16, u"  "}}, {{3002, 16}, {4694}}},
            {Beide, {{14, u"1 "}}, {{3001, 14}, {4694}}},
            {Beide, {{16, u"x1"}}, {{3001, 16}, {4694}}},
            // The sign rules run in both halves.
            {Beide, {{45, u"-"}}, {}},
            {Beide, {{45, u"x"}}, {{4613}, {4613}}},
            {Beide, {{45, u" "}}, {{4615}, {4615}}},
            {Beide, {{46, u"             "}}, {{4614}, {4614}}},
            {Beide, {{45, u"x"}, {46, u"             "}}, {{4613}, {4614}, {4613}, {4614}}},
            {Beide, {{45, u" "}, {46, u"             "}}, {}},
            {Beide, {{46, u"00000000x2000"}}, {{3001, 46}, {3001, 46}}},
            {Beide, {{44, u"W"}}, {{4693}}}, // no 4616
            // Fields of a plain quantity.
            {Beide, {{36, u"Zusatz"}}, {{2032, 36}}},
            {Beide, {{61, u"F"}}, {{2032, 61}}},
            {Beide, {{61, u"Q"}}, {{2032, 61}}}, // no 4521
            {Beide, {{62, u"+"}}, {{2032, 62}}},
            {Beide, {{62, u"x"}}, {{2032, 62}}},            // no 4622
            {Beide, {{63, u"000000001250"}}, {{2032, 63}}}, // no 4623
            {Beide, {{75, u"1234565"}}, {{2032, 75}}},
            {Beide, {{75, u"1234566"}}, {{4681}, {2032, 75}}},
            {Alt, {{75, u"0000000"}}, {{2032, 75}}},
            {Neu, {{75, u"0000000"}}, {{4682}, {2032, 75}}},
            {Beide, {{123, u"111000"}}, {{2032, 123}}},
            {Beide,
             {{36, u"Z"}, {61, u"F"}, {62, u"+"}, {63, u"000000001250"}, {75, u"17"}, {123, u"111000"}},
             {{2032, 36}, {2032, 61}, {2032, 62}, {2032, 63}, {2032, 75}, {2032, 123}}},
            // Texts are what it is there for.
            {Beide, {{93, u"Text"}, {138, u"Text"}, {208, u"Text"}}, {}},
            // No quantity has these references: nothing of the second half is reported.
            {Beide, {{18, u"HAUS1"}}, {{4692}}},
            {Beide, {{18, u"HAUS1"}, {44, u"B"}, {14, u"00"}, {36, u"Z"}}, {{4692}}},
            {Beide, {{18, u"X"}, {45, u"x"}}, {{4613}, {4631}, {4692}}},
            // What stops a quantity stops the line too.
            {Beide, {{2, u"112"}}, {{4601}}},
            {Beide, {{8, u"111000"}}, {{4602}}},
            {Alt, {{136, u"01"}}, {}},
            {Neu, {{136, u"01"}}, {{3208}}},
            {Beide, {{14, u"00"}, {44, u"B"}, {45, u"x"}, {36, u"Z"}}, {{4613}, {4693}, {4694}, {4613}, {2032, 36}}},
        });
}

TEST_F(DetailausmassTest, ALineWithOneNumberIsADetailLine) {
    for (const std::int32_t revision : {Alt, Neu}) {
        Aufbau(revision);
        Erwarte(PruefeG6, Mit(m_menge, {{14, u"01"}}), {{3002, 16}, {4694}});
        Erwarte(PruefeG6, Mit(m_menge, {{16, u"01"}}), {{3002, 14}, {4694}});
        Erwarte(PruefeG6, Mit(m_menge, {{17, u"1"}}), {{3002, 14}, {3001, 16}, {4694}});
        EXPECT_EQ(Mengen().size(), 1U);
    }
}

TEST_F(DetailausmassTest, ItsRunningNumberIsComparedButNotKept) {
    for (const std::int32_t revision : {Alt, Neu}) {
        Aufbau(revision);
        Erwarte(PruefeG6, Mit(m_detail, {{75, u"17"}}), {{2032, 75}});
        Erwarte(PruefeG6, Mit(m_menge, {{75, u"17"}}), {});
        Erwarte(PruefeG6, Mit(m_detail, {{75, u"17"}}), {{4682}, {2032, 75}});
    }
}

TEST_F(DetailausmassTest, ItsOrderIsComparedButNotKept) {
    Aufbau(Alt);
    Erwarte(PruefeG6, Mit(m_detail, {{136, u"05"}}), {});
    Erwarte(PruefeG6, Mit(m_menge, {{136, u"05"}}), {});
    Erwarte(PruefeG6, Mit(m_detail, {{136, u"05"}}), {{4683}});
}

TEST_F(DetailausmassTest, EachOfTheNineReferencesDecides) {
    const Felder bezuege = {{18, u"HAUS1"}, {24, u"OST"}, {82, u"123"},     {87, u"C1"},  {129, u"ET1"},
                            {30, u"VG"},    {33, u"V1"},  {168, u"WOHNEN"}, {188, u"BAD"}};
    for (const std::int32_t revision : {Alt, Neu}) {
        Aufbau(revision);
        Erwarte(PruefeG6, Mit(m_menge, bezuege), {});
        Erwarte(PruefeG6, Mit(m_detail, bezuege), {});
        for (const Feldwert& feld : bezuege) {
            const Text satz = Mit(Mit(m_detail, bezuege), {{feld.Spalte, u"?"}});
            EXPECT_EQ(Pruefe(PruefeG6, satz).back().Code, 4692) << feld.Spalte;
        }
    }
}

TEST_F(DetailausmassTest, AQuantityMustStandBeforeItsLines) {
    Aufbau(Neu);
    Erwarte(PruefeG6, Mit(m_detail, {{18, u"HAUS1"}}), {{4692}});
    Erwarte(PruefeG6, Mit(m_menge, {{18, u"HAUS1"}}), {});
    Erwarte(PruefeG6, Mit(m_detail, {{18, u"HAUS1"}}), {});
}

TEST_F(DetailausmassTest, AQuantityOfAnotherPositionIsNotItsOwn) {
    Aufbau(Neu);
    Position(u"111", u"111002");
    Erwarte(PruefeG5, Zeile(u"G5", {{2, u"111"}, {8, u"111002"}}), {});
    Erwarte(PruefeG6, Mit(m_detail, {{8, u"111002"}}), {{4692}});
    Erwarte(PruefeG6, m_detail, {});
    Erwarte(PruefeG6, Mit(m_menge, {{8, u"111002"}}), {});
    Erwarte(PruefeG6, Mit(m_detail, {{8, u"111002"}}), {});
}

TEST_F(DetailausmassTest, AQuantityWithFaultsTakesItsLines) {
    Aufbau(Neu);
    Erwarte(PruefeG6, Mit(m_menge, {{18, u"X"}, {44, u"Z"}}), {{4611}, {4631}});
    Erwarte(PruefeG6, Mit(m_detail, {{18, u"X"}}), {{4631}});
}

// An empty kind is in any set, so that a line with a variant passes, the primary one or another.
TEST_F(DetailausmassTest, ThePrimaryVariantHasNoSay) {
    for (const TextSicht variante : {u"V1", u"V2"}) {
        Aufbau(Neu);
        Erwarte(PruefeG6, Mit(m_menge, {{30, u"VG"}, {33, variante}}), {});
        Erwarte(PruefeG6, Mit(m_detail, {{30, u"VG"}, {33, variante}}), {});
    }
}

TEST_F(DetailausmassTest, ALineOfAPositionWithAPriceReportsNoPrice) {
    Aufbau(Neu);
    Erwarte(PruefeG5, Zeile(u"G5", {{2, u"111"}, {8, u"111001"}, {61, u"F"}}), {});
    Erwarte(PruefeG6, Mit(m_detail, {{62, u"+"}, {63, u"000000001250"}}), {{2032, 62}, {2032, 63}});
}

} // namespace
} // namespace zepholt
