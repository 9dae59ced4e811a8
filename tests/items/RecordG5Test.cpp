// Unit and price of a service position.
#include "items/Positionstest.h"

namespace zepholt {
namespace {

using namespace hilfen;

class PruefeG5Test : public Positionstest {
protected:
    // Chapter 111 of the given year, and the reserve chapter 119; the units of a German file.
    void Aufbau(std::int32_t revision, TextSicht jahr = u"19") {
        Beginne(revision);
        sia451Datei.Einheiten = u" St Pr m m2 kg LE ";
        sia451Datei.PauschalEinheiten = u" Pr S ";
        Kapitel(u"111", jahr);
        for (const TextSicht position : {u"111000", u"111001", u"119000", u"119001"}) {
            Position(u"111", position);
        }
        Kapitel(u"119", jahr);
        for (const TextSicht position : {u"100000", u"110000", u"111000", u"111001"}) {
            Position(u"119", position);
        }
    }

    const PositionEintrag& Ziel() const { return sia451Datei.DokumentKapitel[0].Positionen[1]; } // 111001

    const Text m_satz = Zeile(u"G5", {{2, u"111"}, {8, u"111001"}});
};

TEST_F(PruefeG5Test, ReportsFaults) {
    ErwarteFaelle([this](std::int32_t revision) { Aufbau(revision); }, PruefeG5, m_satz,
                  {
                      {Beide, {}, {}},
                      {Beide, {{2, u"112"}}, {{4501}}},
                      {Beide, {{2, u"   "}}, {{3002, 2}, {4501}}},
                      {Beide, {{8, u"111002"}}, {{4502}}},
                      {Beide, {{8, u"      "}}, {{3002, 8}, {4502}}},
                      {Beide, {{2, u"112"}, {8, u"111002"}}, {{4501}}},
                      {Beide, {{8, u"111000"}}, {{4503}}},
                      {Beide, {{8, u"111000"}, {59, u"xx"}, {62, u"x"}}, {{4503}}}, // stops
                      // Units, exact in case, as a whole.
                      {Beide, {{59, u"St"}}, {}},
                      {Beide, {{59, u"m "}}, {}},
                      {Beide, {{59, u"m2"}}, {}},
                      {Beide, {{59, u"m3"}}, {{4504}}},
                      {Beide, {{59, u"st"}}, {{4504}}},
                      {Beide, {{59, u"k "}}, {{4504}}},
                      {Beide, {{59, u" m"}}, {{4504}}},
                      // The user's own positions need one: by the chapter or by the position.
                      {Beide, {{2, u"119"}}, {{4505}}},
                      {Beide, {{2, u"119"}, {59, u"St"}}, {}},
                      {Beide, {{8, u"119001"}}, {{4505}}},
                      {Beide, {{8, u"119001"}, {59, u"St"}}, {}},
                      // Price and sign.
                      {Beide, {{62, u"+"}, {63, u"000000001250"}}, {}},
                      {Beide, {{62, u"-"}, {63, u"000000001250"}}, {}},
                      {Beide, {{62, u"x"}, {63, u"000000001250"}}, {{4506}}},
                      {Beide, {{62, u"x"}}, {{4506}}},
                      {Beide, {{62, u"-"}}, {}},
                      {Beide, {{63, u"000000001250"}}, {{4507}}},
                      {Beide, {{63, u"000000000000"}}, {{4507}}}, // zeros are a price
                      {Beide, {{62, u"+"}, {63, u"        1250"}}, {{3001, 63}}},
                      // Price kind.
                      {Beide, {{61, u"A"}}, {}},
                      {Beide, {{61, u"F"}}, {}},
                      {Beide, {{61, u"I"}}, {}},
                      {Beide, {{61, u"N"}}, {}},
                      {Beide, {{61, u"R"}}, {}},
                      {Alt, {{61, u"Q"}}, {}},
                      {Neu, {{61, u"Q"}}, {{4521}}},
                      {Neu, {{61, u"a"}}, {{4521}}},
                      // All at once.
                      {Neu, {{59, u"xx"}, {61, u"Q"}, {62, u"x"}}, {{4504}, {4506}, {4521}}},
                      {Neu, {{2, u"119"}, {61, u"Q"}, {63, u"000000001250"}}, {{4505}, {4507}, {4521}}},
                  });
}

TEST_F(PruefeG5Test, LumpSumUnitsAreObsoleteFrom2020On) {
    struct {
        TextSicht Jahr;
        TextSicht Einheit;
        Meldungen Erwartet;
    } const faelle[] = {
        {u"19", u"Pr", {}},      {u"20", u"Pr", {{4511}}},        {u"21", u"Pr", {{4511}}}, {u"88", u"Pr", {{4511}}},
        {u"89", u"Pr", {}},                                       // 1989
        {u"20", u"St", {}},      {u"20", u"S", {{4504}, {4511}}}, // both lists are asked, whatever the first says
        {u"19", u"S", {{4504}}},
    };
    for (const auto& [jahr, einheit, erwartet] : faelle) {
        for (const std::int32_t revision : {Alt, Neu}) {
            Aufbau(revision, jahr);
            Erwarte(PruefeG5, Mit(m_satz, {{59, einheit}}), erwartet);
        }
    }
}

TEST_F(PruefeG5Test, TheUnitsAreThoseOfTheFilesLanguage) {
    Aufbau(Neu);
    sia451Datei.Einheiten = u" p pa m ";
    Erwarte(PruefeG5, Mit(m_satz, {{59, u"St"}}), {{4504}});
    Erwarte(PruefeG5, Mit(m_satz, {{59, u"pa"}}), {});
    sia451Datei.Einheiten = {}; // of an unknown language: every unit fails
    Erwarte(PruefeG5, Mit(m_satz, {{59, u"m"}}), {{4504}});
}

TEST_F(PruefeG5Test, StoresOnThePosition) {
    for (const std::int32_t revision : {Alt, Neu}) {
        Aufbau(revision);
        Erwarte(PruefeG5, Mit(m_satz, {{59, u"m2"}, {61, u"F"}, {62, u"-"}, {63, u"000000001250"}}), {});
        EXPECT_TRUE(Ziel().HatG5);
        EXPECT_TRUE(Ziel().HatPreisVorzeichen);
        EXPECT_TRUE(Ziel().HatPreisart);
    }
}

TEST_F(PruefeG5Test, AnySignCountsAsOne) {
    struct {
        TextSicht Vorzeichen;
        TextSicht Preis;
        Meldungen Erwartet;
        bool HatVorzeichen;
    } const faelle[] = {
        {u"x", u"000000001250", {{4506}}, true},
        {u" ", u"000000001250", {{4507}}, false},
        {u"+", u"000000001250", {}, true},
        {u"-", u"            ", {}, true},
    };
    for (const auto& [vorzeichen, preis, erwartet, hatVorzeichen] : faelle) {
        Aufbau(Neu);
        Erwarte(PruefeG5, Mit(m_satz, {{62, vorzeichen}, {63, preis}}), erwartet);
        EXPECT_TRUE(Ziel().HatG5);
        EXPECT_EQ(Ziel().HatPreisVorzeichen, hatVorzeichen);
    }
}

TEST_F(PruefeG5Test, TheSecondTakesThePlaceOfTheFirst) {
    Aufbau(Neu);
    Erwarte(PruefeG5, Mit(m_satz, {{59, u"m2"}, {61, u"F"}, {62, u"-"}, {63, u"000000001250"}}), {});
    Erwarte(PruefeG5, Mit(m_satz, {{59, u"kg"}}), {});
    EXPECT_TRUE(Ziel().HatG5);
    EXPECT_FALSE(Ziel().HatPreisVorzeichen);
    EXPECT_FALSE(Ziel().HatPreisart);
}

TEST_F(PruefeG5Test, ATitlePositionTakesNoneAndItsQuantitiesFail) {
    Aufbau(Neu);
    Erwarte(PruefeG5, Mit(m_satz, {{8, u"111000"}, {59, u"m2"}}), {{4503}});
    EXPECT_FALSE(sia451Datei.DokumentKapitel[0].Positionen[0].HatG5);
    Erwarte(PruefeG6, Zeile(u"G6", {{2, u"111"}, {8, u"111000"}, {44, u"A"}}), {{4602}});
    EXPECT_TRUE(sia451Datei.DokumentKapitel[0].Positionen[0].Mengen.empty());
}

} // namespace
} // namespace zepholt
