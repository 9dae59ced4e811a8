// Records C0, C1 and C5: gross amount, conditions, restrictions.
#include "doctest/Records.h"
#include "hilfen/Gliederungen.h"
#include "hilfen/Satztest.h"
#include "state/SIA451Felder.h"

#include <random>

namespace zepholt {
namespace {

using namespace hilfen;

Funde operator+(Funde links, const Funde& rechts) {
    links.insert(links.end(), rechts.begin(), rechts.end());
    return links;
}

// One case of a table: what is written over a record that passes, and what it then gives.
struct Fall {
    std::vector<Feldwert> Felder;
    Funde Erwartet;
};

class RecordCTest : public Satztest {
protected:
    Funde C0(const std::vector<Feldwert>& felder) {
        return Pruefe(PruefeC0, Geaendert(Zeile(u"C0", {{2, u"000"}}), felder));
    }

    // A discount of 1 percent that passes, but for `felder`; no sign and no amount.
    Funde C1(const std::vector<Feldwert>& felder) {
        const Text satz = Zeile(u"C1", {{2, u"001"}, {5, u"1"}, {6, u"10"}, {16, u"00"}, {44, u"%"}, {61, u"-"}});
        return Pruefe(PruefeC1, Geaendert(satz, felder));
    }

    // A condition by what its place among the others depends on.
    Funde Kondition(TextSicht nummer, TextSicht art, TextSicht stufe, TextSicht bezugsstufe) {
        const TextSicht frist = art == u"3" ? u"000030" : u"";
        return C1({{2, nummer}, {5, art}, {6, stufe}, {16, bezugsstufe}, {36, frist}, {61, u"+"}});
    }

    Funde C5(const std::vector<Feldwert>& felder) {
        return Pruefe(PruefeC5, Geaendert(Zeile(u"C5", {{2, u"001"}}), felder));
    }

    // A fresh run with a gross amount: line 0.
    void BeginneMitC0(std::int32_t revision) {
        Beginne(revision);
        C0({});
    }

    // The same with condition 1 and structures: lines 0 and 1.
    void BeginneMitC1(std::int32_t revision) {
        BeginneMitC0(revision);
        C1({});
        GliederungenAnlegen();
        sia451Datei.DokumentKapitel.emplace_back().Nummer = 113;
        sia451Datei.DokumentKapitel.emplace_back().Nummer = 5;
    }

    static const KonditionEintrag& LetzteKondition() { return sia451Datei.KonditionTabelle.back(); }
};

// --- C0 --------------------------------------------------------------------------------------------------------------

TEST_F(RecordCTest, AGrossAmountIsThereFromC0On) {
    for (const std::int32_t revision : {Alt, Neu}) {
        Beginne(revision);
        EXPECT_FALSE(sia451Datei.BruttoVorhanden);
        EXPECT_EQ(C0({{45, u"-"}, {46, u"0000000012500"}}), Funde{});
        EXPECT_TRUE(sia451Datei.BruttoVorhanden);
        EXPECT_EQ(C0({{45, u"+"}, {46, u"0000000012500"}}), Funde{});
    }
}

TEST_F(RecordCTest, C0ReadsThirteenColumns) {
    EXPECT_EQ(C0({{45, u"+"}, {46, u"000000001250099"}}), Funde{});
    EXPECT_EQ(C0({{45, u"+"}, {58, u"x"}}), (Funde{{3001, 1, 46}}));
    EXPECT_EQ(C0({{45, u"+"}, {46, u"0000000012500"}, {59, u"x"}}), Funde{});
}

TEST_F(RecordCTest, C0HasTheNumber000) {
    EXPECT_EQ(C0({{2, u"001"}}), (Funde{{5101, 0}}));
    EXPECT_TRUE(sia451Datei.BruttoVorhanden);
    EXPECT_EQ(C0({{2, u"00x"}}), (Funde{{3001, 1, 2}})); // a bad number reads 0
    EXPECT_EQ(C0({{2, u"   "}}), (Funde{{3002, 2, 2}}));
}

TEST_F(RecordCTest, SignOfTheGrossAmount) {
    EXPECT_EQ(C0({{45, u"x"}, {46, u"0000000012500"}}), (Funde{{5102, 0}}));
    EXPECT_EQ(C0({{45, u"x"}}), (Funde{{5102, 1}, {5103, 1}}));
    EXPECT_EQ(C0({{45, u"-"}}), (Funde{{5103, 2}}));
    EXPECT_EQ(C0({{46, u"0000000000000"}}), (Funde{{5104, 3}}));
    EXPECT_EQ(C0({}), Funde{});
    EXPECT_EQ(C0({{2, u"001"}, {45, u"x"}}), (Funde{{5101, 5}, {5102, 5}, {5103, 5}}));
}

// --- C1 --------------------------------------------------------------------------------------------------------------

TEST_F(RecordCTest, ACompleteConditionIsKept) {
    BeginneMitC0(Alt);
    EXPECT_EQ(C1({{2, u"017"},
                  {5, u"3"},
                  {6, u"20"},
                  {16, u"10"},
                  {36, u"000030"},
                  {44, u"%"},
                  {45, u"-"},
                  {46, u"000000000150000"},
                  {61, u"-"},
                  {62, u"+"},
                  {63, u"000000000250"},
                  {75, u"-"},
                  {76, u"000350"},
                  {93, u"Bez"},
                  {138, u"Text"}}),
              Funde{});
    EXPECT_TRUE(sia451Datei.KonditionNachNummer.contains(17));
    EXPECT_EQ(LetzteKondition().Konditionsart, 3);
    EXPECT_EQ(LetzteKondition().Stufe, 20);
}

TEST_F(RecordCTest, FieldsOfACondition) {
    const Fall faelle[] = {
        {{}, {}},
        {{{2, u"999"}}, {}},
        {{{2, u"000"}}, {{5202, 1}}},
        {{{2, u"   "}}, {{3002, 1, 2}, {5202, 1}}},
        {{{2, u"0x1"}}, {{3001, 1, 2}, {5202, 1}}},
        {{{6, u"99"}}, {}},
        {{{6, u"01"}}, {}},
        {{{6, u"00"}}, {{5211, 1}, {5213, 1}}},
        {{{6, u"  "}}, {{3002, 1, 6}, {5211, 1}, {5213, 1}}},
        {{{6, u"1x"}}, {{3001, 1, 6}, {5211, 1}, {5213, 1}}},
        {{{16, u"09"}}, {}},
        {{{16, u"10"}}, {{5213, 1}}},
        {{{16, u"11"}}, {{5213, 1}}},
        {{{16, u"  "}}, {}},
        {{{16, u"x "}}, {{3001, 1, 16}}},
        {{{5, u"0"}}, {{5221, 1}}},
        {{{5, u"6"}}, {{5221, 1}}},
        {{{5, u"9"}}, {{5221, 1}}},
        {{{5, u"5"}}, {}},
        {{{5, u"4"}}, {}},
        {{{5, u" "}}, {{3002, 1, 5}, {5221, 1}}},
        {{{5, u"x"}}, {{3001, 1, 5}, {5221, 1}}},
        {{{44, u" "}}, {{3002, 1, 44}, {5222, 1}}},
        {{{44, u"?"}}, {}},
        {{{61, u"+"}}, {}},
        {{{61, u" "}}, {}},
        {{{61, u"x"}}, {{5223, 1}}},
        {{{5, u"3"}}, {{5224, 1}}},
        {{{5, u"3"}, {36, u"000030"}}, {}},
        {{{5, u"3"}, {36, u"000000"}}, {}},
        {{{5, u"3"}, {36, u"30"}}, {{3001, 1, 36}}},
        {{{36, u"000030"}}, {{5225, 1}}},
        {{{36, u"000000"}}, {{5225, 1}}},
        {{{36, u"30"}}, {{3001, 1, 36}, {5225, 1}}},
        {{{5, u"0"}, {36, u"000030"}}, {{5221, 1}, {5225, 1}}},
    };
    for (const std::int32_t revision : {Alt, Neu}) {
        for (const Fall& fall : faelle) {
            BeginneMitC0(revision);
            EXPECT_EQ(C1(fall.Felder), fall.Erwartet);
            EXPECT_EQ(sia451Datei.KonditionTabelle.size(), 1U); // kept, whatever was found
        }
    }
}

TEST_F(RecordCTest, SignsOfTheAmounts) {
    const struct {
        std::int32_t Vorzeichen;
        std::int32_t Betrag;
        TextSicht Wert;
        TextSicht Nullen;
        std::int32_t Unzulaessig;
        std::int32_t BetragFehlt;
        std::int32_t VorzeichenFehlt;
    } betraege[] = {
        {45, 46, u"000000000150000", u"000000000000000", 5231, 5232, 5233},
        {75, 76, u"000150", u"000000", 5241, 5242, 5243},
        {62, 63, u"000000000150", u"000000000000", 5251, 5252, 5253},
    };
    for (const std::int32_t revision : {Alt, Neu}) {
        for (const auto& b : betraege) {
            const struct {
                TextSicht Vorzeichen;
                TextSicht Betrag;
                Funde Erwartet;
            } faelle[] = {
                {u" ", u"", {}},
                {u"+", b.Wert, {}},
                {u"-", b.Wert, {}},
                {u"x", b.Wert, {{b.Unzulaessig, 1}}},
                {u"x", u"", {{b.Unzulaessig, 1}, {b.BetragFehlt, 1}}},
                {u"-", u"", {{b.BetragFehlt, 1}}},
                {u"+", b.Nullen, {}},
                {u" ", b.Wert, {{b.VorzeichenFehlt, 1}}},
                {u" ", b.Nullen, {{b.VorzeichenFehlt, 1}}},
                {u"+", u"x", {{3001, 1, b.Betrag}}},
                {u" ", u"x", {{3001, 1, b.Betrag}, {b.VorzeichenFehlt, 1}}},
            };
            for (const auto& fall : faelle) {
                BeginneMitC0(revision);
                EXPECT_EQ(C1({{b.Vorzeichen, fall.Vorzeichen}, {b.Betrag, fall.Betrag}}), fall.Erwartet);
            }
        }
    }
}

TEST_F(RecordCTest, FieldsOfC1AreReadInTheirOrderAndCheckedInTheirs) {
    Beginne(Neu);
    EXPECT_EQ(
        C1({{2, u"x  "},
            {5, u"x"},
            {6, u"x "},
            {16, u"x"},
            {36, u"x"},
            {44, u" "},
            {45, u"x"},
            {46, u"x"},
            {61, u"x"},
            {62, u"x"},
            {63, u"x"},
            {75, u"x"},
            {76, u"x"}}),
        (Funde{{3001, 0, 2},  {3001, 0, 6},  {3001, 0, 16}, {3001, 0, 5}, {3002, 0, 44}, {3001, 0, 36}, {3001, 0, 46},
               {3001, 0, 76}, {3001, 0, 63}, {5201, 0},     {5202, 0},    {5211, 0},     {5213, 0},     {5221, 0},
               {5222, 0},     {5223, 0},     {5225, 0},     {5231, 0},    {5241, 0},     {5251, 0}}));
}

TEST_F(RecordCTest, ConditionsNeedAGrossAmountBefore) {
    for (const std::int32_t revision : {Alt, Neu}) {
        Beginne(revision);
        EXPECT_EQ(C1({}), (Funde{{5201, 0}}));
        EXPECT_EQ(C1({{2, u"002"}, {6, u"11"}}), (Funde{{5201, 1}}));
        EXPECT_EQ(sia451Datei.KonditionTabelle.size(), 2U);
        C0({});
        EXPECT_EQ(C1({{2, u"003"}, {6, u"12"}}), Funde{});
    }
}

TEST_F(RecordCTest, NumberAndLevelAreUnique) {
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMitC0(revision);
        EXPECT_EQ(C1({{2, u"001"}, {6, u"10"}}), Funde{});
        EXPECT_EQ(C1({{2, u"001"}, {6, u"11"}}), (Funde{{5203, 2}}));
        EXPECT_EQ(C1({{2, u"002"}, {6, u"10"}}), (Funde{{5212, 3}}));
        EXPECT_EQ(C1({{2, u"001"}, {6, u"10"}}), (Funde{{5203, 4}, {5212, 4}})); // once each, not per entry
        EXPECT_EQ(C1({{2, u"003"}, {6, u"12"}}), Funde{});
        EXPECT_EQ(sia451Datei.KonditionTabelle.size(), 5U);
    }
}

TEST_F(RecordCTest, FieldsOfC1LieInTheirColumns) {
    BeginneMitC0(Alt);
    EXPECT_EQ(Pruefe(PruefeC1, Spaltensatz(u"C1", {{2, u"987"},
                                                   {5, u"3"},
                                                   {6, u"65"},
                                                   {16, u"43"},
                                                   {36, u"123456"},
                                                   {45, u"-"},
                                                   {46, u"000123456789125"},
                                                   {61, u"-"},
                                                   {62, u"-"},
                                                   {63, u"123456789125"},
                                                   {75, u"-"},
                                                   {76, u"123425"}})),
              Funde{});
    EXPECT_TRUE(sia451Datei.KonditionNachNummer.contains(987));
    EXPECT_EQ(LetzteKondition().Konditionsart, 3);
    EXPECT_EQ(LetzteKondition().Stufe, 65);
}

// --- C1, value added tax ---------------------------------------------------------------------------------------------

TEST_F(RecordCTest, TaxIsAPercentageThatCounts) {
    BeginneMitC0(Neu);
    EXPECT_EQ(C1({{5, u"2"}, {44, u"%"}, {61, u"+"}}), Funde{});
    BeginneMitC0(Neu);
    EXPECT_EQ(C1({{5, u"2"}, {44, u"A"}, {61, u"+"}}), (Funde{{5261, 1}}));
    BeginneMitC0(Neu);
    EXPECT_EQ(C1({{5, u"2"}, {44, u"%"}, {61, u"-"}}), (Funde{{5262, 1}}));
    BeginneMitC0(Neu);
    EXPECT_EQ(C1({{5, u"2"}, {44, u" "}, {61, u" "}}), (Funde{{3002, 1, 44}, {5222, 1}, {5261, 1}, {5262, 1}}));
}

TEST_F(RecordCTest, ALoneTaxRefersToLevel0) {
    BeginneMitC0(Neu);
    EXPECT_EQ(Kondition(u"001", u"2", u"10", u"05"), (Funde{{5263, 1}}));
    BeginneMitC0(Neu);
    EXPECT_EQ(Kondition(u"001", u"2", u"10", u"00"), Funde{});
}

TEST_F(RecordCTest, TheFirstTaxRefersToTheLastLevelBefore) {
    for (const TextSicht bezugsstufe : {u"20", u"10", u"00", u"21"}) {
        BeginneMitC0(Neu);
        Kondition(u"001", u"1", u"10", u"00");
        Kondition(u"002", u"1", u"20", u"10");
        EXPECT_EQ(Kondition(u"003", u"2", u"30", bezugsstufe), bezugsstufe == u"20" ? Funde{} : (Funde{{5263, 3}}));
    }
}

TEST_F(RecordCTest, TheLastLevelIsTheLastInTheFileNotTheHighest) {
    BeginneMitC0(Neu);
    Kondition(u"001", u"1", u"20", u"00");
    Kondition(u"002", u"1", u"10", u"00");
    EXPECT_EQ(Kondition(u"003", u"2", u"30", u"10"), Funde{});
}

TEST_F(RecordCTest, ASecondTaxRefersToTheSameLevelAsTheFirst) {
    BeginneMitC0(Neu);
    Kondition(u"001", u"1", u"10", u"00");
    Kondition(u"002", u"1", u"20", u"00");
    EXPECT_EQ(Kondition(u"003", u"2", u"30", u"20"), Funde{});
    EXPECT_EQ(Kondition(u"004", u"2", u"40", u"20"), Funde{});
    EXPECT_EQ(Kondition(u"005", u"2", u"50", u"40"), (Funde{{5263, 5}}));
}

TEST_F(RecordCTest, BehindATaxAtTheHeadASecondRefersToTheLastLevel) {
    BeginneMitC0(Neu);
    EXPECT_EQ(Kondition(u"001", u"2", u"10", u"00"), Funde{});
    EXPECT_EQ(Kondition(u"002", u"2", u"20", u"10"), Funde{});
    EXPECT_EQ(Kondition(u"003", u"2", u"30", u"20"), Funde{});
    EXPECT_EQ(Kondition(u"004", u"2", u"40", u"00"), (Funde{{5263, 4}}));
}

TEST_F(RecordCTest, TaxesMustFollowOneAnotherDirectly) {
    BeginneMitC0(Neu);
    Kondition(u"001", u"1", u"10", u"00");
    EXPECT_EQ(Kondition(u"002", u"2", u"20", u"10"), Funde{});
    EXPECT_EQ(Kondition(u"003", u"3", u"30", u"00"), Funde{});
    EXPECT_EQ(Kondition(u"004", u"2", u"40", u"10"), (Funde{{5264, 4}}));
    EXPECT_EQ(Kondition(u"005", u"2", u"50", u"10"), Funde{}); // directly behind the fourth
    EXPECT_EQ(Kondition(u"006", u"2", u"60", u"50"), (Funde{{5263, 6}}));
}

TEST_F(RecordCTest, TheOldInterfaceHasNoRulesOfTax) {
    BeginneMitC0(Alt);
    EXPECT_EQ(C1({{5, u"2"}, {16, u"05"}, {44, u"A"}, {61, u"-"}}), Funde{});
    EXPECT_EQ(Kondition(u"002", u"3", u"30", u"00"), Funde{});
    EXPECT_EQ(Kondition(u"003", u"2", u"40", u"01"), Funde{});
}

TEST_F(RecordCTest, OtherConditionsHaveNoRulesOfTax) {
    BeginneMitC0(Neu);
    Kondition(u"001", u"2", u"10", u"00");
    Kondition(u"002", u"1", u"20", u"00");
    EXPECT_EQ(C1({{2, u"003"}, {5, u"4"}, {6, u"30"}, {16, u"05"}, {44, u"A"}}), Funde{});
}

struct Zufallskondition {
    std::int32_t Nummer;
    std::int32_t Konditionsart;
    std::int32_t Stufe;
    std::int32_t Bezugsstufe;
};

// The scans of the rule over the table as it stands before the condition is appended.
Funde KonditionNachScan(const std::vector<Zufallskondition>& tabelle, const Zufallskondition& neu, std::int32_t zeile) {
    Funde funde;
    const auto melde = [&](bool wenn, std::int32_t code) {
        if (wenn) {
            funde.push_back({code, zeile});
        }
    };
    const auto istSteuer = [](const Zufallskondition& k) { return k.Konditionsart == 2; };

    melde(neu.Nummer == 0, 5202);
    melde(std::any_of(tabelle.begin(), tabelle.end(), [&](const auto& k) { return k.Nummer == neu.Nummer; }), 5203);
    melde(neu.Stufe == 0, 5211);
    melde(std::any_of(tabelle.begin(), tabelle.end(), [&](const auto& k) { return k.Stufe == neu.Stufe; }), 5212);
    melde(neu.Bezugsstufe >= neu.Stufe, 5213);
    if (testDaten.Revision < 12 || !istSteuer(neu)) {
        return funde;
    }

    std::int32_t basis = 0;
    if (!tabelle.empty()) {
        basis = tabelle.back().Stufe;
        const auto erste = std::find_if(tabelle.begin(), tabelle.end(), istSteuer);
        if (erste != tabelle.end() && erste != tabelle.begin()) {
            basis = (erste - 1)->Stufe;
        }
    }
    melde(neu.Bezugsstufe != basis, 5263);
    if (tabelle.size() >= 2 && !istSteuer(tabelle.back())) {
        melde(std::any_of(tabelle.rbegin() + 1, tabelle.rend(), istSteuer), 5264);
    }
    return funde;
}

TEST_F(RecordCTest, ConditionsAreFoundAsAScanFindsThem) {
    std::mt19937 zufall(451);
    const TextSicht ziffern = u"0123456789";
    const auto ziffer = [&](unsigned bis) { return ziffern[zufall() % bis]; };
    for (std::int32_t runde = 0; runde < 200; ++runde) {
        BeginneMitC0(runde % 4 == 0 ? Alt : Neu);
        std::vector<Zufallskondition> tabelle;
        for (std::int32_t zeile = 1; zeile < 15; ++zeile) {
            const Text nummer = {u'0', u'0', ziffer(8)};
            const Text art(1, u"1245"[zufall() % 4]);
            const Text stufe = {u'0', ziffer(7)};
            const Text bezug = {u'0', ziffer(4)};
            const Zufallskondition neu = {nummer[2] - u'0', art[0] - u'0', stufe[1] - u'0', bezug[1] - u'0'};
            ASSERT_EQ(Kondition(nummer, art, stufe, bezug), KonditionNachScan(tabelle, neu, zeile))
                << "round " << runde << ", line " << zeile;
            tabelle.push_back(neu);
        }
    }
}

// --- C5 --------------------------------------------------------------------------------------------------------------

TEST_F(RecordCTest, TheNewInterfaceBeginsAtRevision12) {
    BeginneMitC1(12);
    EXPECT_EQ(C1({{2, u"002"}, {5, u"2"}, {6, u"20"}, {16, u"10"}, {61, u"-"}}), (Funde{{5262, 2}}));
    EXPECT_EQ(C5({{136, u"07"}}), (Funde{{3208, 3}}));
    EXPECT_EQ(C5({{18, u"1*"}}), (Funde{{5382, 4}}));
}

TEST_F(RecordCTest, ReferencesOfARestriction) {
    // In the new interface all but OGL and KAG come with 5381, behind what the old interface reports.
    const struct {
        std::vector<Feldwert> Felder;
        Funde Erwartet;
        Funde ZusaetzlichNeu;
    } faelle[] = {
        {{}, {}, {}},
        {{{18, u"12"}}, {}, {}},
        {{{18, u"13"}}, {{5311, 2}}, {}},
        {{{18, u"1*"}}, {}, {{5382, 2}}},
        {{{18, u"2*"}}, {{5311, 2}}, {{5382, 2}}},
        {{{18, u"1*2"}}, {{3001, 2, 18}}, {{5382, 2}}},
        {{{24, u"34"}}, {{5312, 2}}, {{5381, 2}}},
        {{{18, u"1*"}, {24, u"34"}}, {{5313, 2}}, {{5381, 2}}},
        {{{18, u"12"}, {24, u"34"}}, {}, {{5381, 2}}},
        {{{18, u"12"}, {24, u"35"}}, {{5314, 2}}, {{5381, 2}}},
        {{{18, u"12"}, {24, u"3*"}}, {}, {{5381, 2}}},
        {{{82, u"211"}}, {}, {}},
        {{{82, u"212"}}, {{5321, 2}}, {}},
        {{{82, u"21*"}}, {}, {{5382, 2}}},
        {{{18, u"1*"}, {82, u"21*"}}, {}, {{5382, 2}}},
        {{{87, u"E1"}}, {}, {{5381, 2}}},
        {{{87, u"E2"}}, {{5331, 2}}, {{5381, 2}}},
        {{{30, u"G1"}}, {}, {{5381, 2}}},
        {{{30, u"G2"}}, {{5341, 2}}, {{5381, 2}}},
        {{{33, u"V1"}}, {{5342, 2}}, {{5381, 2}}},
        {{{30, u"G*"}, {33, u"V1"}}, {{5343, 2}}, {{5381, 2}}},
        {{{30, u"G1"}, {33, u"V1"}}, {}, {{5381, 2}}},
        {{{30, u"G1"}, {33, u"V2"}}, {{5344, 2}}, {{5381, 2}}},
        {{{129, u"T1"}}, {}, {{5381, 2}}},
        {{{129, u"T2"}}, {{5351, 2}}, {{5381, 2}}},
        {{{129, u"T*"}}, {}, {{5381, 2}}},
        {{{8, u"113"}}, {}, {{5381, 2}}},
        {{{7, u"x113x"}}, {}, {{5381, 2}}}, // between columns of nobody
        {{{8, u"114"}}, {{5361, 2}}, {{5381, 2}}},
        {{{8, u"11*"}}, {}, {{5381, 2}}},
        {{{8, u"005"}}, {{5361, 2}}, {{5381, 2}}}, // chapters are compared without leading zeros
        {{{8, u"5"}}, {}, {{5381, 2}}},
    };
    for (const auto& fall : faelle) {
        BeginneMitC1(Alt);
        EXPECT_EQ(C5(fall.Felder), fall.Erwartet);
        BeginneMitC1(Neu);
        EXPECT_EQ(C5(fall.Felder), fall.Erwartet + fall.ZusaetzlichNeu);
    }
}

TEST_F(RecordCTest, FieldsOfC5AreReadInTheirOrderAndCheckedInTheirs) {
    BeginneMitC1(Neu);
    EXPECT_EQ(C5({{8, u"x"},
                  {18, u" x"},
                  {24, u" x"},
                  {30, u" x"},
                  {33, u" x"},
                  {82, u" x"},
                  {87, u" x"},
                  {129, u" x"},
                  {136, u"x"}}),
              (Funde{{3001, 2, 18},
                     {3001, 2, 24},
                     {3001, 2, 82},
                     {3001, 2, 87},
                     {3001, 2, 129},
                     {3001, 2, 30},
                     {3001, 2, 33},
                     {3001, 2, 136},
                     {3208, 2},
                     {5311, 2},
                     {5314, 2},
                     {5321, 2},
                     {5331, 2},
                     {5341, 2},
                     {5344, 2},
                     {5351, 2},
                     {5361, 2},
                     {5381, 2}}));
}

TEST_F(RecordCTest, ARestrictionNeedsItsCondition) {
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMitC1(revision);
        EXPECT_EQ(C5({{2, u"002"}, {18, u"x"}}), (Funde{{5301, 2}})); // nothing else is looked at
        EXPECT_EQ(C5({{2, u"00x"}}), (Funde{{3001, 3, 2}, {5301, 3}}));
        EXPECT_EQ(C5({{2, u"   "}}), (Funde{{3002, 4, 2}, {5301, 4}}));
    }
}

TEST_F(RecordCTest, ARestrictionGoesToTheFirstConditionOfItsNumber) {
    BeginneMitC0(Neu);
    C1({{2, u"001"}, {6, u"10"}});
    C1({{2, u"002"}, {6, u"11"}});
    EXPECT_EQ(C1({{2, u"002"}, {6, u"12"}}), (Funde{{5203, 3}}));
    EXPECT_EQ(C5({{2, u"002"}}), Funde{});
    EXPECT_EQ(sia451Datei.KonditionTabelle.size(), 3U);
}

TEST_F(RecordCTest, TheOldInterfaceWantsTheOrderOfRestrictionsToBeUnique) {
    BeginneMitC1(Alt);
    C1({{2, u"002"}, {6, u"11"}});
    EXPECT_EQ(C5({{136, u"07"}}), Funde{});
    EXPECT_EQ(C5({{136, u"08"}}), Funde{});
    EXPECT_EQ(C5({{136, u"07"}}), (Funde{{5371, 5}}));
    EXPECT_EQ(C5({{136, u"07"}}), (Funde{{5371, 6}}));   // once, not per entry
    EXPECT_EQ(C5({{2, u"002"}, {136, u"07"}}), Funde{}); // another condition
    EXPECT_EQ(C5({}), Funde{});
    EXPECT_EQ(C5({{136, u"00"}}), Funde{}); // no order is none in common
    EXPECT_EQ(C5({{136, u"99"}}), Funde{});
    EXPECT_EQ(C5({{136, u"99"}}), (Funde{{5371, 11}}));
}

TEST_F(RecordCTest, RestrictionsHaveNoOrderInTheNewInterface) {
    BeginneMitC1(Neu);
    EXPECT_EQ(C5({{136, u"07"}}), (Funde{{3208, 2}}));
    EXPECT_EQ(C5({{136, u"07"}}), (Funde{{3208, 3}}));
    EXPECT_EQ(C5({{136, u"  "}}), Funde{});
    EXPECT_EQ(C5({{2, u"002"}, {136, u"07"}}), (Funde{{3208, 5}, {5301, 5}}));
}

TEST_F(RecordCTest, OrdersOfRestrictionsAreFoundAsAScanFindsThem) {
    std::mt19937 zufall(451);
    const TextSicht nummern[] = {u"001", u"002", u"003"};
    const TextSicht reihenfolgen[] = {u"00", u"01", u"02", u"10", u"99", u""};
    for (std::int32_t runde = 0; runde < 50; ++runde) {
        BeginneMitC0(Alt);
        C1({{2, u"001"}, {6, u"10"}});
        C1({{2, u"002"}, {6, u"11"}});
        C1({{2, u"001"}, {6, u"12"}}); // never reached: another condition 1 stands before
        std::vector<std::pair<TextSicht, TextSicht>> bisher;
        for (std::int32_t zeile = 4; zeile < 20; ++zeile) {
            const std::pair<TextSicht, TextSicht> neu{nummern[zufall() % 3], reihenfolgen[zufall() % 6]};
            const bool ohneReihenfolge = neu.second.empty() || neu.second == u"00";
            Funde erwartet;
            if (neu.first == u"003") {
                erwartet = {{5301, zeile}};
            } else if (!ohneReihenfolge && std::find(bisher.begin(), bisher.end(), neu) != bisher.end()) {
                erwartet = {{5371, zeile}};
            }
            bisher.push_back(neu);
            ASSERT_EQ(C5({{2, neu.first}, {136, neu.second}}), erwartet) << "round " << runde << ", line " << zeile;
        }
    }
}

} // namespace
} // namespace zepholt
