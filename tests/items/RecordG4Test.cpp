// Preliminary-remark assignments: their references, the joker, the order, what stays on the position.
#include "items/Positionstest.h"
#include "state/Verweise.h"

namespace zepholt {
namespace {

using namespace hilfen;

class PruefeG4Test : public Positionstest {
protected:
    void Aufbau(std::int32_t revision) {
        BeginneMitPosition(revision);
        Gliederungen();
    }

    const PositionEintrag& Ziel() const { return sia451Datei.DokumentKapitel[0].Positionen[0]; } // 111000

    // An assignment without any reference, which is legal.
    const Text m_satz = Zeile(u"G4", {{2, u"111"}, {8, u"111000"}});
};

// References that are all defined.
const Felder AlleVerweise = {{18, u"HAUS1"}, {24, u"OST"},  {30, u"VG"},      {33, u"V1"},  {82, u"123"},
                             {87, u"C1"},    {129, u"ET1"}, {168, u"WOHNEN"}, {188, u"BAD"}};

TEST_F(PruefeG4Test, ReportsFaults) {
    ErwarteFaelle([this](std::int32_t revision) { Aufbau(revision); }, PruefeG4, m_satz,
                  {
                      {Beide, {}, {}},
                      {Beide, AlleVerweise, {}},
                      {Beide, {{2, u"112"}}, {{4401}}},
                      {Beide, {{2, u"   "}}, {{3002, 2}, {4401}}},
                      {Beide, {{8, u"112000"}}, {{4402}}},
                      {Beide, {{2, u"112"}, {8, u"112000"}}, {{4401}}},
                      {Beide, {{8, u"111001"}}, {{4403}}},
                      {Beide, {{8, u"111001"}, {18, u"X"}}, {{4403}}}, // stops
                      // The detail is a star or nothing.
                      {Beide, {{135, u"*"}}, {}},
                      {Beide, {{135, u"x"}}, {{4461}}},
                      // Object structure.
                      {Beide, {{18, u"HAUS1"}}, {}},
                      {Beide, {{18, u"HAUS2"}}, {{4411}}},
                      {Beide, {{18, u"haus1"}}, {{4411}}},
                      // Position location.
                      {Beide, {{24, u"OST"}}, {{4413}}},
                      {Beide, {{18, u"HAUS1"}, {24, u"OST"}}, {}},
                      {Beide, {{18, u"HAUS1"}, {24, u"WEST"}}, {{4415}}},
                      {Beide, {{18, u"HAUS2"}, {24, u"OST"}}, {{4411}, {4415}}},
                      {Alt, {{18, u"HAUS*"}, {24, u"OST"}}, {{4414}}},
                      {Alt, {{18, u"X*"}, {24, u"WEST"}}, {{4411}, {4414}}},
                      // Cost type, element.
                      {Beide, {{82, u"123"}}, {}},
                      {Beide, {{82, u"124"}}, {{4421}}},
                      {Beide, {{87, u"C1"}}, {}},
                      {Beide, {{87, u"C2"}}, {{4431}}},
                      // Variant group, variant.
                      {Beide, {{30, u"VG"}}, {}},
                      {Beide, {{30, u"VX"}}, {{4441}}},
                      {Beide, {{33, u"V1"}}, {{4443}}},
                      {Beide, {{30, u"VG"}, {33, u"V2"}}, {}},
                      {Beide, {{30, u"VG"}, {33, u"V3"}}, {{4445}}},
                      {Beide, {{30, u"VX"}, {33, u"V1"}}, {{4441}, {4445}}},
                      {Alt, {{30, u"V*"}, {33, u"V1"}}, {{4444}}},
                      {Alt, {{30, u"X*"}, {33, u"V3"}}, {{4441}, {4444}}},
                      // Furnishing type, use, room.
                      {Beide, {{129, u"ET1"}}, {}},
                      {Beide, {{129, u"ET2"}}, {{4451}}},
                      {Beide, {{168, u"WOHNEN"}}, {}},
                      {Beide, {{168, u"WOHNEN2"}}, {{4491}}},
                      {Beide, {{188, u"BAD"}}, {}},
                      {Beide, {{188, u"BAR"}}, {{4495}}},
                      // A joker ends a code in the old interface; use and room know none.
                      {Alt, {{18, u"HA*"}}, {}},
                      {Alt, {{18, u"*"}}, {}},
                      {Alt, {{18, u"HX*"}}, {{4411}}},
                      {Alt, {{18, u"HAUS1"}, {24, u"O*"}}, {}},
                      {Alt, {{82, u"12*"}}, {}},
                      {Alt, {{87, u"C*"}}, {}},
                      {Alt, {{30, u"V*"}}, {}},
                      {Alt, {{30, u"VG"}, {33, u"V*"}}, {}},
                      {Alt, {{129, u"ET*"}}, {}},
                      {Alt, {{168, u"WO*"}}, {{4491}}},
                      {Alt, {{188, u"*"}}, {{4495}}},
                      {Alt, {{18, u"H*S1"}}, {{3001, 18}}},
                      {Neu, {{18, u"HA*"}}, {{4481}}},
                      {Neu, {{18, u"HAUS1"}, {24, u"O*"}}, {{4481}}},
                      {Neu, {{82, u"12*"}}, {{4481}}},
                      {Neu, {{87, u"C*"}}, {{4481}}},
                      {Neu, {{30, u"V*"}}, {{4481}}},
                      {Neu, {{30, u"VG"}, {33, u"V*"}}, {{4481}}},
                      {Neu, {{129, u"ET*"}}, {{4481}}},
                      {Neu, {{168, u"WO*"}}, {{4491}, {4481}}},
                      {Neu, {{188, u"BAD*"}}, {{4495}, {4481}}},
                      {Neu, {{18, u"HA*"}, {82, u"12*"}}, {{4481}}}, // once for the record
                      // The star of the detail is no reference.
                      {Neu, {{135, u"*"}, {18, u"HAUS1"}}, {}},
                      // The order, which the new interface no longer knows.
                      {Alt, {{136, u"01"}}, {}},
                      {Alt, {{136, u"1 "}}, {{3001, 136}}},
                      {Neu, {{136, u"01"}}, {{3208}}},
                      {Neu, {{136, u"00"}}, {{3208}}},
                      {Neu, {{136, u"1 "}}, {{3001, 136}, {3208}}},
                      {Neu, {{136, u"01"}, {2, u"112"}}, {{3208}, {4401}}}, // ahead of the search
                      // Leading blanks.
                      {Beide, {{18, u" HAUS1"}}, {{3001, 18}, {4411}}},
                  });
}

TEST_F(PruefeG4Test, FaultsComeInTheOrderOfTheChecks) {
    const Felder alleFalsch = {{18, u"A"}, {24, u"B"},  {30, u"C"},  {33, u"D"},  {82, u"E"},
                               {87, u"F"}, {129, u"G"}, {135, u"x"}, {168, u"H"}, {188, u"I*"}};
    Aufbau(Neu);
    Erwarte(PruefeG4, Mit(m_satz, alleFalsch),
            {{4461}, {4411}, {4415}, {4421}, {4431}, {4441}, {4445}, {4451}, {4491}, {4495}, {4481}});
    Aufbau(Alt);
    Erwarte(PruefeG4, Mit(m_satz, alleFalsch),
            {{4461}, {4411}, {4415}, {4421}, {4431}, {4441}, {4445}, {4451}, {4491}, {4495}});
}

TEST_F(PruefeG4Test, WithoutStructuresNothingIsDefined) {
    ErwarteFaelle([this](std::int32_t revision) { BeginneMitPosition(revision); }, PruefeG4, m_satz,
                  {
                      {Beide, AlleVerweise, {{4411}, {4415}, {4421}, {4431}, {4441}, {4445}, {4451}, {4491}, {4495}}},
                      {Alt, {{18, u"*"}}, {{4411}}},
                  });
}

TEST_F(PruefeG4Test, ThePositionHasAnAssignmentFromThenOn) {
    Aufbau(Alt);
    EXPECT_FALSE(Ziel().HatZuordnungen);
    Erwarte(PruefeG4, Mit(Mit(m_satz, AlleVerweise), {{135, u"*"}, {136, u"07"}}), {});
    EXPECT_TRUE(Ziel().HatZuordnungen);
    EXPECT_TRUE(ReihenfolgeVergeben(Ziel(), 7));
}

TEST_F(PruefeG4Test, StoresAlsoWhatFailed) {
    Aufbau(Neu);
    Erwarte(PruefeG4, Mit(m_satz, {{18, u"X*"}, {136, u"07"}}), {{3208}, {4411}, {4481}});
    EXPECT_TRUE(Ziel().HatZuordnungen);
    EXPECT_FALSE(ReihenfolgeVergeben(Ziel(), 7));
}

TEST_F(PruefeG4Test, AServicePositionTakesNone) {
    for (const std::int32_t revision : {Alt, Neu}) {
        Aufbau(revision);
        Erwarte(PruefeG4, Mit(m_satz, {{8, u"111001"}}), {{4403}});
        EXPECT_FALSE(LetztePosition().HatZuordnungen);
    }
}

TEST_F(PruefeG4Test, AnOrderStandsOnlyOnceOnAPosition) {
    Aufbau(Alt);
    Position(u"111", u"112000");
    Erwarte(PruefeG4, Mit(m_satz, {{136, u"07"}}), {});
    Erwarte(PruefeG4, Mit(m_satz, {{136, u"07"}}), {{4471}});
    Erwarte(PruefeG4, Mit(m_satz, {{136, u"07"}}), {{4471}});
    Erwarte(PruefeG4, Mit(m_satz, {{136, u"08"}}), {});
    Erwarte(PruefeG4, Mit(m_satz, {{136, u"00"}}), {}); // no order
    Erwarte(PruefeG4, Mit(m_satz, {{136, u"00"}}), {});
    Erwarte(PruefeG4, Mit(m_satz, {{8, u"112000"}, {136, u"07"}}), {}); // of another position
}

TEST_F(PruefeG4Test, TheNewInterfaceHasNoOrderToRepeat) {
    Aufbau(Neu);
    Erwarte(PruefeG4, Mit(m_satz, {{136, u"07"}}), {{3208}});
    Erwarte(PruefeG4, Mit(m_satz, {{136, u"07"}}), {{3208}});
}

TEST_F(PruefeG4Test, TheOrderFaultComesBehindTheReferences) {
    Aufbau(Alt);
    Erwarte(PruefeG4, Mit(m_satz, {{136, u"07"}}), {});
    Erwarte(PruefeG4, Mit(m_satz, {{136, u"07"}, {188, u"X"}}), {{4495}, {4471}});
}

} // namespace
} // namespace zepholt
