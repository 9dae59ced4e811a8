// Quantities: their kind, sign, price, references and running number, and what stays on the position. The detail
// measurement lines have tests of their own.
#include "items/Positionstest.h"
#include "state/Verweise.h"

namespace zepholt {
namespace {

using namespace hilfen;

constexpr TextSicht Zwoelf = u"0000000012000"; // a quantity of 12
constexpr TextSicht Preis = u"000000001250";   // a price of 12.50

class PruefeG6Test : public Positionstest {
protected:
    // The position 111001 with a G5 that has the given fields.
    void Aufbau(std::int32_t revision, const Felder& g5 = {}) {
        BeginneMitPosition(revision);
        Gliederungen();
        Pruefe(PruefeG5, Mit(Zeile(u"G5", {{2, u"111"}, {8, u"111001"}}), g5));
        FehlerLoeschen();
    }

    static Verweissatz Verweise() { return VerweiseIn(ZeileAn(Mengen().back().Zeile)); }

    const Text m_satz = Zeile(u"G6", {{2, u"111"}, {8, u"111001"}, {44, u"A"}, {45, u"+"}, {46, Zwoelf}});
};

TEST_F(PruefeG6Test, ReportsFaults) {
    ErwarteFaelle(
        [this](std::int32_t revision) { Aufbau(revision); }, PruefeG6, m_satz,
        {
            {Beide, {}, {}},
            {Beide, {{2, u"112"}}, {{4601}}},
            {Beide, {{2, u"   "}}, {{3002, 2}, {4601}}},
            {Beide, {{8, u"111002"}}, {{4602}}},
            {Beide, {{8, u"111000"}}, {{4602}}}, // no G5
            {Beide, {{8, u"11100x"}}, {{3001, 8}, {4602}}},
            {Beide, {{2, u"112"}, {8, u"111002"}}, {{4601}}},
            // The sign of the quantity.
            {Beide, {{45, u"-"}}, {}},
            {Beide, {{45, u"x"}}, {{4613}}},
            {Beide, {{45, u" "}}, {{4615}}},
            {Beide, {{46, u"             "}}, {{4614}}},
            {Beide, {{45, u"x"}, {46, u"             "}}, {{4613}, {4614}}},
            {Beide, {{45, u" "}, {46, u"             "}}, {}},
            {Beide, {{45, u" "}, {46, u"0000000000000"}}, {{4615}}},
            {Beide, {{46, u"         12000"}}, {{3001, 46}}},
            // A per-position quantity has no value.
            {Beide, {{44, u"W"}}, {{4616}}},
            {Beide, {{44, u"W"}, {45, u"-"}}, {{4616}}},
            {Beide, {{44, u"W"}, {46, u"0000000000001"}}, {{4616}}},
            {Beide, {{44, u"W"}, {46, u"0000000000000"}}, {}},
            {Beide, {{44, u"W"}, {45, u"-"}, {46, u"0000000000000"}}, {}},
            {Beide, {{44, u"W"}, {45, u" "}, {46, u"             "}}, {}},
            {Beide, {{44, u"W"}, {45, u" "}}, {{4615}, {4616}}},
            {Beide, {{44, u"W"}, {46, u"00000000x2000"}}, {{3001, 46}}},
            // A price of its own.
            {Beide, {{62, u"+"}, {63, Preis}}, {}},
            {Beide, {{62, u"-"}, {63, Preis}}, {}},
            {Beide, {{62, u"x"}, {63, Preis}}, {{4622}}},
            {Beide, {{62, u"x"}}, {{4622}}},
            {Beide, {{62, u"-"}}, {}},
            {Beide, {{63, Preis}}, {{4623}}},
            {Beide, {{62, u"+"}, {63, u"00000000 250"}}, {{3001, 63}}},
            {Beide, {{61, u"A"}}, {}},
            {Beide, {{61, u"R"}}, {}},
            {Alt, {{61, u"Q"}}, {}},
            {Neu, {{61, u"Q"}}, {{4521}}},
            {Neu, {{61, u"f"}}, {{4521}}},
            // References. No joker, though use and room may end in one, which they then do not find.
            {Beide, {{18, u"HAUS1"}}, {}},
            {Beide, {{18, u"HAUS2"}}, {{4631}}},
            {Beide, {{18, u"HA*"}}, {{3001, 18}}}, // bad in form, and found all the same
            {Beide, {{18, u" HAUS1"}}, {{3001, 18}, {4631}}},
            {Beide, {{24, u"OST"}}, {{4632}}},
            {Beide, {{18, u"HAUS1"}, {24, u"OST"}}, {}},
            {Beide, {{18, u"HAUS1"}, {24, u"WEST"}}, {{4633}}},
            {Beide, {{18, u"HAUS2"}, {24, u"OST"}}, {{4631}, {4633}}},
            {Beide, {{18, u"HAUS*"}, {24, u"OST"}}, {{3001, 18}, {4633}}},
            {Beide, {{82, u"123"}}, {}},
            {Beide, {{82, u"12"}}, {{4641}}},
            {Beide, {{87, u"C1"}}, {}},
            {Beide, {{87, u"C"}}, {{4651}}},
            {Beide, {{30, u"VG"}}, {}},
            {Beide, {{30, u"VH"}}, {{4661}}},
            {Beide, {{33, u"V1"}}, {{4662}}},
            {Beide, {{30, u"VG"}, {33, u"V2"}}, {}},
            {Beide, {{30, u"VG"}, {33, u"V3"}}, {{4663}}},
            {Beide, {{129, u"ET1"}}, {}},
            {Beide, {{129, u"ET"}}, {{4671}}},
            {Beide, {{168, u"WOHNEN"}}, {}},
            {Beide, {{168, u"WOHN"}}, {{4674}}},
            {Beide, {{168, u"WO*"}}, {{4674}}},
            {Beide, {{168, u"W*N"}}, {{3001, 168}, {4674}}},
            {Beide, {{188, u"BAD"}}, {}},
            {Beide, {{188, u"BAD*"}}, {{4677}}},
            // Preliminary remark, order.
            {Beide, {{123, u"111000"}}, {}},
            {Beide, {{123, u"11100"}}, {{3001, 123}}},
            {Alt, {{136, u"01"}}, {}},
            {Neu, {{136, u"01"}}, {{3208}}},
            {Neu, {{136, u"00"}}, {{3208}}},
            {Neu, {{136, u"01"}, {2, u"112"}}, {{3208}, {4601}}},
            // Fields of detail lines.
            {Beide, {{93, u"Text"}}, {{2032, 93}}},
            {Beide, {{138, u"Text"}}, {{2032, 138}}},
            {Beide, {{208, u"Text"}}, {{2032, 208}}},
            {Beide, {{122, u"x"}, {167, u"x"}, {237, u"x"}}, {{2032, 93}, {2032, 138}, {2032, 208}}}, // last columns
            {Beide, {{36, u"Zusatz"}}, {}},
        });
}

TEST_F(PruefeG6Test, KindsByInterface) {
    ErwarteFaelle(
        [this](std::int32_t revision) { Aufbau(revision); }, PruefeG6, Mit(m_satz, {{46, u"0000000000000"}}),
        {
            {Beide, {{44, u"A"}}, {}},       {Beide, {{44, u"B"}}, {}},       {Alt, {{44, u"C"}}, {}},
            {Neu, {{44, u"C"}}, {{4617}}},   {Alt, {{44, u"D"}}, {{4611}}},   {Neu, {{44, u"D"}}, {}},
            {Beide, {{44, u"E"}}, {{4611}}}, {Beide, {{44, u"J"}}, {}},       {Beide, {{44, u"K"}}, {}},
            {Alt, {{44, u"L"}}, {}},         {Neu, {{44, u"L"}}, {{4617}}},   {Alt, {{44, u"M"}}, {{4611}}},
            {Neu, {{44, u"M"}}, {}},         {Beide, {{44, u"Q"}}, {}},       {Beide, {{44, u"R"}}, {}},
            {Alt, {{44, u"S"}}, {}},         {Neu, {{44, u"S"}}, {{4617}}},   {Alt, {{44, u"U"}}, {{4611}}},
            {Neu, {{44, u"U"}}, {}},         {Beide, {{44, u"W"}}, {}},       {Beide, {{44, u"a"}}, {{4611}}},
            {Beide, {{44, u"V"}}, {{4611}}}, {Beide, {{44, u"*"}}, {{4611}}}, {Beide, {{44, u" "}}, {{3002, 44}}},
        });
}

TEST_F(PruefeG6Test, TheKindFollowsThePrimaryVariant) {
    const auto aufbau = [this](std::int32_t revision) { Aufbau(revision); };
    const Text primaer = Mit(m_satz, {{30, u"VG"}, {33, u"V1"}});
    ErwarteFaelle(aufbau, PruefeG6, primaer,
                  {
                      {Beide, {{44, u"J"}}, {}},
                      {Beide, {{44, u"K"}}, {}},
                      {Alt, {{44, u"L"}}, {}},
                      {Neu, {{44, u"M"}}, {}},
                      {Beide, {{44, u"Q"}}, {{4612}}},
                      {Beide, {{44, u"R"}}, {{4612}}},
                      {Alt, {{44, u"S"}}, {{4612}}},
                      {Neu, {{44, u"S"}}, {{4617}, {4612}}},
                      {Neu, {{44, u"U"}}, {{4612}}},
                      {Alt, {{44, u"U"}}, {{4611}, {4612}}},
                      {Beide, {{44, u"A"}}, {}},
                      {Beide, {{44, u"B"}}, {}},
                      {Beide, {{44, u" "}}, {{3002, 44}}}, // an empty kind is in any set
                  });
    const Text andere = Mit(m_satz, {{30, u"VG"}, {33, u"V2"}});
    ErwarteFaelle(aufbau, PruefeG6, andere,
                  {
                      {Beide, {{44, u"J"}}, {{4612}}},
                      {Beide, {{44, u"K"}}, {{4612}}},
                      {Alt, {{44, u"L"}}, {{4612}}},
                      {Neu, {{44, u"L"}}, {{4617}, {4612}}},
                      {Neu, {{44, u"M"}}, {{4612}}},
                      {Alt, {{44, u"M"}}, {{4611}, {4612}}},
                      {Beide, {{44, u"Q"}}, {}},
                      {Beide, {{44, u"R"}}, {}},
                      {Neu, {{44, u"U"}}, {}},
                      {Beide, {{44, u"A"}}, {}},
                      {Beide, {{44, u" "}}, {{3002, 44}}},
                  });
    // The variant of another group, or of none, is no primary variant.
    ErwarteFaelle(aufbau, PruefeG6, m_satz,
                  {
                      {Beide, {{30, u"VX"}, {33, u"V1"}, {44, u"J"}}, {{4612}, {4661}, {4663}}},
                      {Beide, {{30, u"VX"}, {33, u"V1"}, {44, u"Q"}}, {{4661}, {4663}}},
                      {Beide, {{33, u"V1"}, {44, u"J"}}, {{4612}, {4662}}},
                      {Beide, {{30, u"VG"}, {44, u"J"}}, {}}, // no variant: no say
                  });
}

TEST_F(PruefeG6Test, APositionWithAPriceLeavesNoneToItsQuantities) {
    const Felder mitPreis[] = {{{61, u"F"}}, {{62, u"+"}, {63, Preis}}, {{62, u"x"}}, {{61, u"F"}, {62, u"-"}}};
    for (const Felder& g5 : mitPreis) {
        ErwarteFaelle([&](std::int32_t revision) { Aufbau(revision, g5); }, PruefeG6, m_satz,
                      {
                          {Beide, {}, {}},
                          {Alt, {{62, u"+"}, {63, Preis}}, {{4621}}},
                          {Alt, {{62, u"x"}}, {{4621}}}, // no 4622
                          {Alt, {{63, Preis}}, {{4621}}},
                          {Alt, {{61, u"F"}}, {}},
                          {Neu, {{62, u"+"}, {63, Preis}}, {{4624}}},
                          {Neu, {{62, u"x"}}, {{4624}}},
                          {Neu, {{63, Preis}}, {{4624}}},
                          {Neu, {{61, u"F"}}, {{4624}}},
                          {Neu, {{61, u"Q"}}, {{4624}}}, // no 4521
                      });
    }
}

TEST_F(PruefeG6Test, APriceWithoutSignAndKindDoesNotCountAsThePositions) {
    ErwarteFaelle(
        [this](std::int32_t revision) {
            Aufbau(revision, {{63, Preis}});
        },
        PruefeG6, m_satz,
        {
            {Beide, {{62, u"+"}, {63, Preis}}, {}},
            {Neu, {{61, u"F"}}, {}},
        });
}

TEST_F(PruefeG6Test, StoresTheQuantity) {
    Aufbau(Alt);
    Erwarte(PruefeG6,
            Mit(m_satz, {{18, u"HAUS1"},
                         {24, u"OST"},
                         {30, u"VG"},
                         {33, u"V1"},
                         {36, u"Zusatz"},
                         {45, u"-"},
                         {62, u"-"},
                         {63, Preis},
                         {75, u"1234565"},
                         {82, u"123"},
                         {87, u"C1"},
                         {123, u"111000"},
                         {129, u"ET1"},
                         {136, u"07"},
                         {168, u"WOHNEN"},
                         {188, u"BAD"}}),
            {});
    ASSERT_EQ(Mengen().size(), 1U);
    EXPECT_EQ(Mengen()[0].Zeile, testDaten.ZeilenNr);
    EXPECT_EQ(Mengen()[0].Vorbemerkung, 111000);
    EXPECT_EQ(Verweise().OGL, u"HAUS1");
    EXPECT_EQ(Verweise().PSL, u"OST");
    EXPECT_EQ(Verweise().KAG, u"123");
    EXPECT_EQ(Verweise().Element, u"C1");
    EXPECT_EQ(Verweise().Variantengruppe, u"VG");
    EXPECT_EQ(Verweise().Variante, u"V1");
    EXPECT_EQ(Verweise().Einrichtungstyp, u"ET1");
    EXPECT_EQ(Verweise().Nutzung, u"WOHNEN");
    EXPECT_EQ(Verweise().Raum, u"BAD");
    EXPECT_TRUE(LaufnummerVergeben(u"1234565"));
    EXPECT_TRUE(ReihenfolgeVergeben(LetztePosition(), 7));
}

TEST_F(PruefeG6Test, StoresAlsoWhatFailed) {
    Aufbau(Neu);
    Erwarte(PruefeG6, Mit(m_satz, {{18, u"X"}, {44, u"Z"}, {75, u"1234567"}, {93, u"Text"}, {136, u"07"}}),
            {{3208}, {4611}, {4631}, {4681}, {2032, 93}});
    ASSERT_EQ(Mengen().size(), 1U);
    EXPECT_EQ(Verweise().OGL, u"X");
    EXPECT_TRUE(LaufnummerVergeben(u"1234567"));
    EXPECT_FALSE(ReihenfolgeVergeben(LetztePosition(), 7));
}

TEST_F(PruefeG6Test, FaultsComeInTheOrderOfTheChecks) {
    Aufbau(Neu);
    Erwarte(PruefeG6, m_satz, {});
    Erwarte(PruefeG6,
            Mit(m_satz, {{18, u"A"},
                         {24, u"B"},
                         {30, u"C"},
                         {33, u"D"},
                         {44, u"L"},
                         {45, u"x"},
                         {61, u"Q"},
                         {62, u"x"},
                         {75, u"12"},
                         {82, u"E"},
                         {87, u"F"},
                         {93, u"T"},
                         {129, u"G"},
                         {136, u"07"},
                         {138, u"T"},
                         {168, u"H"},
                         {188, u"I"},
                         {208, u"T"}}),
            {{3208},
             {4617},
             {4612},
             {4613},
             {4622},
             {4521},
             {4631},
             {4633},
             {4641},
             {4651},
             {4661},
             {4663},
             {4671},
             {4674},
             {4677},
             {4681},
             {2032, 93},
             {2032, 138},
             {2032, 208}});
}

TEST_F(PruefeG6Test, WithoutAG5NothingIsStored) {
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMitPosition(revision);
        Erwarte(PruefeG6, Mit(m_satz, {{18, u"X"}}), {{4602}});
        Erwarte(PruefeG5, Zeile(u"G5", {{2, u"111"}, {8, u"111000"}}), {{4503}});
        Erwarte(PruefeG6, Mit(m_satz, {{8, u"111000"}}), {{4602}});
        EXPECT_TRUE(LetztePosition().Mengen.empty());
        EXPECT_TRUE(sia451Datei.Laufnummern.empty());
    }
}

TEST_F(PruefeG6Test, AnOrderStandsOnlyOnceOnAPosition) {
    Aufbau(Alt);
    Position(u"111", u"111002");
    Erwarte(PruefeG5, Zeile(u"G5", {{2, u"111"}, {8, u"111002"}}), {});
    Erwarte(PruefeG6, Mit(m_satz, {{136, u"99"}}), {});
    Erwarte(PruefeG6, Mit(m_satz, {{136, u"99"}}), {{4683}});
    Erwarte(PruefeG6, Mit(m_satz, {{136, u"99"}}), {{4683}});
    Erwarte(PruefeG6, Mit(m_satz, {{136, u"98"}}), {});
    Erwarte(PruefeG6, Mit(m_satz, {{136, u"00"}}), {});
    Erwarte(PruefeG6, m_satz, {});
    Erwarte(PruefeG6, Mit(m_satz, {{8, u"111002"}, {136, u"99"}}), {});
    EXPECT_EQ(Mengen(sia451Datei.DokumentKapitel[0].Positionen[1]).size(), 6U);

    Aufbau(Neu);
    Erwarte(PruefeG6, Mit(m_satz, {{136, u"99"}}), {{3208}});
    Erwarte(PruefeG6, Mit(m_satz, {{136, u"99"}}), {{3208}});
}

// --- Running numbers

class LaufnummerTest : public PruefeG6Test {
protected:
    Text Satz(TextSicht nummer) const { return Mit(m_satz, {{75, nummer}}); }
};

TEST_F(LaufnummerTest, OfOneRecord) {
    ErwarteFaelle([this](std::int32_t revision) { Aufbau(revision); }, PruefeG6, m_satz,
                  {
                      {Beide, {{75, u"1234565"}}, {}},
                      {Beide, {{75, u"1234566"}}, {{4681}}},
                      {Beide, {{75, u"123456A"}}, {{4681}}},
                      {Beide, {{75, u"12A4565"}}, {{4681}}},
                      {Beide, {{75, u"17"}}, {}},
                      {Beide, {{75, u" 17"}}, {{4681}}},
                      {Beide, {{75, u"1 7"}}, {{4681}}},
                      {Beide, {{75, u"-17"}}, {{4681}}},
                      {Beide, {{75, u"+17"}}, {{4681}}},
                      {Beide, {{75, u"1.5"}}, {{4681}}},
                      // A value of 0: taken in the new interface, in the old one digits like any others.
                      {Alt, {{75, u"0000000"}}, {}},
                      {Neu, {{75, u"0000000"}}, {{4682}}},
                      {Alt, {{75, u"0"}}, {}},
                      {Neu, {{75, u"0"}}, {{4682}}},
                      {Alt, {{75, u"0000001"}}, {{4681}}},
                      {Neu, {{75, u"0000001"}}, {{4681}}},
                      {Alt, {{75, u"ABC"}}, {{4681}}},
                      {Neu, {{75, u"ABC"}}, {{4682}}}, // no number at all reads as 0
                      {Alt, {{75, u"-0"}}, {{4681}}},
                      {Neu, {{75, u"-0"}}, {{4682}}},
                      // Rounded half to even: 0.5 is 0, 0.6 and 1.5 are not.
                      {Neu, {{75, u"0.5"}}, {{4682}}},
                      {Neu, {{75, u"-.5"}}, {{4682}}},
                      {Neu, {{75, u"0.6"}}, {{4681}}},
                      {Neu, {{75, u".51"}}, {{4681}}},
                  });
}

TEST_F(LaufnummerTest, AValueOfZeroLeavesNoNumberBehind) {
    Aufbau(Neu);
    Erwarte(PruefeG6, Satz(u"0000000"), {{4682}});
    EXPECT_FALSE(LaufnummerVergeben(u"0000000"));
    Erwarte(PruefeG6, Satz(u"ABC"), {{4682}});
    EXPECT_FALSE(LaufnummerVergeben(u"0000000"));
    Erwarte(PruefeG6, Satz(u"0"), {{4682}}); // once, not again for a number in the tree

    Aufbau(Alt);
    Erwarte(PruefeG6, Satz(u"0000000"), {});
    EXPECT_TRUE(LaufnummerVergeben(u"0000000"));
    Erwarte(PruefeG6, Satz(u"0000000"), {{4682}});
    Erwarte(PruefeG6, Satz(u"000000"), {});
}

// Two numbers one after the other: what the second reports by the side of the first.
TEST_F(LaufnummerTest, OfTwoRecords) {
    struct {
        std::int32_t Revision;
        TextSicht Erste;
        TextSicht Zweite;
        Meldungen Erwartet;
    } const faelle[] = {
        {Beide, u"1234565", u"1234565", {{4682}}},
        {Beide, u"1234565", u"1234572", {}},
        {Alt, u"17", u"0000017", {}}, // other texts
        {Neu, u"17", u"0000017", {{4682}}},
        {Alt, u"0000017", u"017", {}},
        {Neu, u"0000017", u"17", {{4682}}},
        // A number that fails is stored all the same, and counts by its value where that is what counts.
        {Alt, u" 17", u"17", {}},
        {Neu, u" 17", u"17", {{4682}}},
        {Neu, u"17 4567", u"17", {{4682}}}, // the parse stops at the blank
        {Neu, u"+17", u"17", {{4682}}},
        {Neu, u"17.0", u"17", {{4682}}},
        {Neu, u"16.6", u"17", {}}, // its value is not 17
        {Neu, u"17.4", u"17", {}},
        {Neu, u"-17", u"17", {}},
        {Neu, u"17ABC", u"17", {{4682}}},
        // A number that fails is not compared.
        {Beide, u"17", u" 17", {{4681}}},
        {Beide, u"1234567", u"1234567", {{4681}}},
        {Neu, u"1.5", u"1.5", {{4681}}},
    };
    for (const auto& fall : faelle) {
        for (const std::int32_t revision : {Alt, Neu}) {
            if (fall.Revision == Beide || fall.Revision == revision) {
                Aufbau(revision);
                Pruefe(PruefeG6, Satz(fall.Erste));
                Erwarte(PruefeG6, Satz(fall.Zweite), fall.Erwartet,
                        "row " + std::to_string(&fall - faelle) + ", revision " + std::to_string(revision));
            }
        }
    }
}

TEST_F(LaufnummerTest, IsUniqueInTheWholeDocument) {
    for (const std::int32_t revision : {Alt, Neu}) {
        Aufbau(revision);
        Erwarte(PruefeG6, Satz(u"1234565"), {});
        Kapitel(u"112");
        Position(u"112", u"211000");
        Position(u"112", u"211001");
        Erwarte(PruefeG5, Zeile(u"G5", {{2, u"112"}, {8, u"211001"}}), {});
        Erwarte(PruefeG6, Mit(Satz(u"1234565"), {{2, u"112"}, {8, u"211001"}}), {{4682}});
        Erwarte(PruefeG6, Mit(Satz(u""), {{2, u"112"}, {8, u"211001"}}), {});
        Erwarte(PruefeG6, Mit(Satz(u""), {{2, u"112"}, {8, u"211001"}}), {}); // no number repeats none
    }
}

TEST_F(LaufnummerTest, ARefusedRecordTakesNoNumber) {
    for (const std::int32_t revision : {Alt, Neu}) {
        Aufbau(revision);
        Erwarte(PruefeG6, Mit(Satz(u"17"), {{8, u"111000"}}), {{4602}});
        Erwarte(PruefeG6, Mit(Satz(u"17"), {{2, u"112"}}), {{4601}});
        Erwarte(PruefeG6, Satz(u"17"), {});
    }
}

// --- Cost accounts

// No interface that a file can have comes here; the check stands for the day that one does.
TEST_F(PruefeG6Test, RevisionZeroAsksTheCostAccounts) {
    Aufbau(0);
    Erwarte(PruefeG6, Mit(m_satz, {{18, u"HAUS1"}}), {}); // no accounts: not asked
    sia451Datei.KostenkontoTabelle.push_back({.OGL = u"HAUS2"});
    Erwarte(PruefeG6, Mit(m_satz, {{18, u"HAUS1"}}), {{4691}});
    sia451Datei.KostenkontoTabelle[0].OGL = u"HAUS*";
    Erwarte(PruefeG6, Mit(m_satz, {{18, u"HAUS1"}}), {});
    Erwarte(PruefeG6, Mit(m_satz, {{18, u"HAUS1"}, {82, u"123"}}), {{4691}});
}

} // namespace
} // namespace zepholt
