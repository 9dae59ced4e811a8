// Chapters, positions and variable lines: what each reports, what it leaves in the tree.
#include "items/Positionstest.h"
#include "state/Verweise.h"
#include "support/HilfsFunktionen.h"

#include <random>
#include <set>

namespace zepholt {
namespace {

using namespace hilfen;

class PruefeG1Test : public Positionstest {
protected:
    const Text m_satz = Zeile(u"G1", {{2, u"111"}, {6, u"20"}, {93, u"Titel"}, {138, u"Zusatz"}});
};

TEST_F(PruefeG1Test, ReportsFaults) {
    const auto aufbau = [this](std::int32_t revision) { Beginne(revision); };
    ErwarteFaelle(aufbau, PruefeG1, m_satz,
                  {
                      {Beide, {}, {}},
                      {Beide, {{2, u"101"}}, {}},
                      {Beide, {{2, u"099"}}, {{4101}}},
                      {Beide, {{2, u"100"}}, {{4102}}}, // in range, but a group
                      {Beide, {{2, u"799"}}, {}},
                      {Beide, {{2, u"800"}}, {{4101}}}, // not 4102: the range comes first
                      {Beide, {{2, u"801"}}, {{4101}}},
                      {Beide, {{2, u"899"}}, {{4101}}},
                      {Beide, {{2, u"901"}}, {}},
                      {Beide, {{2, u"999"}}, {}},
                      {Beide, {{2, u"110"}}, {{4102}}},
                      {Beide, {{2, u"000"}}, {{4101}}},
                      {Beide, {{2, u"1x1"}}, {{3001, 2}, {4101}}},
                      {Beide, {{2, u"   "}}, {{3002, 2}, {4101}}},
                      {Beide, {{6, u"  "}}, {{3002, 6}}},
                      {Beide, {{6, u"2 "}}, {{3001, 6}}},
                      {Alt, {{93, u"     "}}, {}},
                      {Neu, {{93, u"     "}}, {{3003, 93}}},
                      {Alt, {{2, u"119"}, {93, u"     "}}, {{4104}}},
                      {Neu, {{2, u"119"}, {93, u"     "}}, {{3003, 93}, {4104}}},
                      {Beide, {{2, u"119"}}, {}},
                      {Beide, {{138, u"      "}}, {}},
                  });
}

TEST_F(PruefeG1Test, TheOldestInterfaceKnowsChapters800To899) {
    Beginne(10);
    Erwarte(PruefeG1, Mit(m_satz, {{2, u"800"}}), {{4102}}); // in its range, and a multiple of ten
    Erwarte(PruefeG1, Mit(m_satz, {{2, u"801"}}), {});
    Erwarte(PruefeG1, Mit(m_satz, {{2, u"899"}}), {});
    Erwarte(PruefeG1, Mit(m_satz, {{2, u"901"}}), {}); // as in every interface
    EXPECT_EQ(sia451Datei.DokumentKapitel.size(), 3U);
}

TEST_F(PruefeG1Test, StoresTheChapter) {
    Erwarte(PruefeG1, m_satz, {});
    EXPECT_EQ(LetztesKapitel().Nummer, 111);
    EXPECT_EQ(LetztesKapitel().Versionsjahr, 2020);
    EXPECT_TRUE(LetztesKapitel().Positionen.empty());
}

TEST_F(PruefeG1Test, WidensTheYearAt89) {
    struct {
        TextSicht Feld;
        std::int32_t Jahr;
    } const jahre[] = {{u"00", 2000}, {u"88", 2088}, {u"89", 1989}, {u"99", 1999}};
    for (const auto& [feld, jahr] : jahre) {
        Beginne(Neu);
        Erwarte(PruefeG1, Mit(m_satz, {{6, feld}}), {});
        EXPECT_EQ(LetztesKapitel().Versionsjahr, jahr);
    }
}

TEST_F(PruefeG1Test, AChapterStandsOnlyOnce) {
    for (const std::int32_t revision : {Alt, Neu}) {
        Beginne(revision);
        Erwarte(PruefeG1, m_satz, {});
        Erwarte(PruefeG1, Mit(m_satz, {{93, u"Anders"}}), {{4103}});
        Erwarte(PruefeG1, Mit(m_satz, {{2, u"112"}}), {});
        EXPECT_EQ(sia451Datei.DokumentKapitel.size(), 2U);
    }
}

TEST_F(PruefeG1Test, ARefusedChapterLeavesNothingAndItsPositionsFail) {
    for (const std::int32_t revision : {Alt, Neu}) {
        Beginne(revision);
        Erwarte(PruefeG1, Mit(m_satz, {{2, u"800"}}), {{4101}});
        EXPECT_TRUE(sia451Datei.DokumentKapitel.empty());
        Erwarte(PruefeG2, Zeile(u"G2", {{2, u"800"}, {8, u"111000"}}), {{4201}});
        Erwarte(PruefeG3, Zeile(u"G3", {{2, u"800"}, {8, u"111000"}, {14, u"0001"}}), {{4301}});
        Erwarte(PruefeG4, Zeile(u"G4", {{2, u"800"}, {8, u"111000"}}), {{4401}});
        Erwarte(PruefeG5, Zeile(u"G5", {{2, u"800"}, {8, u"111001"}}), {{4501}});
        Erwarte(PruefeG6, Zeile(u"G6", {{2, u"800"}, {8, u"111001"}, {44, u"A"}}), {{4601}});
        EXPECT_TRUE(sia451Datei.DokumentKapitel.empty());
    }
}

TEST_F(PruefeG1Test, AReserveChapterWithoutTitleIsStored) {
    Erwarte(PruefeG1, Mit(m_satz, {{2, u"119"}, {93, u"     "}}), {{3003, 93}, {4104}});
    EXPECT_EQ(LetztesKapitel().Nummer, 119);
}

class PruefeG2Test : public Positionstest {
protected:
    // The chapter of normal positions, one with a tens digit of 0, and a reserve chapter.
    void Kapitelreihe(std::int32_t revision) {
        Beginne(revision);
        Kapitel(u"111");
        Kapitel(u"101");
        Kapitel(u"119");
    }

    static Text Satz(TextSicht kapitel, TextSicht position) {
        return Zeile(u"G2", {{2, kapitel}, {8, position}, {93, u"Text"}});
    }
};

TEST_F(PruefeG2Test, ReportsFaults) {
    ErwarteFaelle([this](std::int32_t revision) { Kapitelreihe(revision); }, PruefeG2, Satz(u"111", u"111000"),
                  {
                      {Beide, {}, {}},
                      {Beide, {{2, u"112"}}, {{4201}}},
                      {Beide, {{2, u"   "}}, {{3002, 2}, {4201}}},
                      {Beide, {{8, u"11100x"}}, {{3001, 8}, {4216}}}, // reads as 0
                      {Beide, {{8, u"      "}}, {{3002, 8}, {4216}}},
                      // A main position needs a sub-section other than 0.
                      {Beide, {{8, u"101000"}}, {{4212}}},
                      {Beide, {{8, u"101001"}}, {{4212}}},
                      {Beide, {{8, u"109999"}}, {{4212}}},
                      {Beide, {{8, u"110000"}}, {}},
                      {Beide, {{8, u"100000"}}, {}},
                      {Beide, {{8, u"001000"}}, {{4212}}},
                      {Beide, {{8, u"011000"}}, {}},
                      // A service position needs a chapter with a tens digit, a section and a main position.
                      {Beide, {{2, u"101"}, {8, u"110001"}}, {{4213}}},
                      {Beide, {{2, u"101"}, {8, u"011001"}}, {{4213}}}, // before 4214
                      {Beide, {{2, u"101"}, {8, u"111010"}}, {}},
                      {Beide, {{8, u"011001"}}, {{4214}}},
                      {Beide, {{8, u"000001"}}, {{4214}}},
                      {Beide, {{8, u"011010"}}, {}},
                      {Beide, {{8, u"110001"}}, {{4215}}},
                      {Beide, {{8, u"110999"}}, {{4215}}},
                      {Alt, {{8, u"999999"}}, {}},
                      {Beide, {{8, u"100001"}}, {{4215}}},
                      {Beide, {{8, u"111001"}}, {}},
                      {Beide, {{8, u"111009"}}, {}},
                      // Position 000 is one of reserve chapters.
                      {Beide, {{8, u"000000"}}, {{4216}}},
                      {Beide, {{2, u"119"}, {8, u"000000"}}, {}},
                      {Beide, {{43, u"E"}}, {}},
                      {Beide, {{43, u"e"}}, {}},
                      {Beide, {{43, u"x"}}, {{4231}}},
                  });
}

TEST_F(PruefeG2Test, StoresThePosition) {
    Kapitelreihe(Neu);
    Erwarte(PruefeG2, Mit(Satz(u"119", u"100000"), {{43, u"x"}}), {{4231}}); // reported, and stored all the same
    ASSERT_EQ(LetztesKapitel().Positionen.size(), 1U);
    const PositionEintrag& position = LetztePosition();
    EXPECT_EQ(position.Nummer, 100000);
    EXPECT_TRUE(position.Variablen.empty() && position.Mengen.empty());
    EXPECT_FALSE(position.HatZuordnungen || position.HatG5 || position.HatPreisVorzeichen || position.HatPreisart);
}

TEST_F(PruefeG2Test, StoresNothingOfARefusedPosition) {
    const Text refused[] = {Satz(u"111", u"101000"), Satz(u"101", u"111001"), Satz(u"111", u"011001"),
                            Satz(u"111", u"110001"), Satz(u"111", u"000000"), Satz(u"111", u"191000")};
    Kapitelreihe(Neu);
    for (const Text& satz : refused) {
        EXPECT_EQ(Pruefe(PruefeG2, satz).size(), 1U);
    }
    for (const KapitelEintrag& kapitel : sia451Datei.DokumentKapitel) {
        EXPECT_TRUE(kapitel.Positionen.empty());
    }
}

// Which superior position a reserve position needs: chapter, positions that stand, position, and whether it is missing.
struct Elternfall {
    TextSicht Kapitel;
    std::vector<TextSicht> Vorhanden;
    TextSicht Position;
    bool Fehlt;
};

TEST_F(PruefeG2Test, OnlyTheNewInterfaceAsksForTheSuperiorReservePosition) {
    const std::vector<Elternfall> faelle = {
        // A position of its own making below a normal one: the superior position may stand in the catalogue.
        {u"111", {}, u"190000", false},
        {u"111", {}, u"111900", false},
        {u"111", {}, u"119000", false},
        {u"111", {}, u"111000", false},
        // Below a reserve position.
        {u"111", {}, u"190100", true},
        {u"111", {u"190000"}, u"190100", false},
        {u"111", {}, u"191000", true},
        {u"111", {u"190000"}, u"191000", false},
        {u"111", {}, u"119100", true},
        {u"111", {u"119000"}, u"119100", false},
        {u"111", {}, u"119001", true},
        {u"111", {u"119000"}, u"119001", false},
        // A section has none above it; a 9 at its first or last digit makes no reserve position.
        {u"111", {}, u"900000", false},
        {u"111", {}, u"910000", false},
        {u"111", {}, u"911000", false},
        {u"111", {}, u"111109", false},
        // In a reserve chapter each level needs the one above it.
        {u"119", {}, u"100000", false},
        {u"119", {}, u"110000", true},
        {u"119", {u"100000"}, u"110000", false},
        {u"119", {u"100000"}, u"111000", true},
        {u"119", {u"100000", u"110000"}, u"111000", false},
        {u"119", {u"100000", u"110000"}, u"111001", true},
        {u"119", {u"100000", u"110000", u"111000"}, u"111001", false},
        {u"119", {u"100000", u"110000", u"111000"}, u"111100", false},
        {u"119", {u"100000", u"110000", u"111000"}, u"111010", false},
        {u"119",
         {u"100000", u"110000", u"111000"},
         u"111110",
         false}, // no reserve position: its group is not asked for
        // A reserve sub-group needs its group too, when that is a reserve group or the chapter is.
        {u"111", {}, u"111190", false},
        {u"111", {}, u"111910", true},
        {u"111", {u"111900"}, u"111910", false},
        {u"111", {}, u"111911", false}, // a service position: only its main position counts
        {u"111", {}, u"111090", false}, // no group
        {u"119", {u"100000", u"110000", u"111000"}, u"111190", true},
        {u"119", {u"100000", u"110000", u"111000", u"111100"}, u"111190", false},
        {u"119", {u"100000", u"110000", u"111000"}, u"111090", false},
        // The main position is missing, though the group stands.
        {u"111", {u"119000", u"119900"}, u"119910", false},
    };
    for (const Elternfall& fall : faelle) {
        for (const std::int32_t revision : {Alt, Neu}) {
            Kapitelreihe(revision);
            for (const TextSicht vorhanden : fall.Vorhanden) {
                Position(fall.Kapitel, vorhanden);
            }
            const bool gemeldet = fall.Fehlt && revision == Neu;
            Erwarte(PruefeG2, Satz(fall.Kapitel, fall.Position), gemeldet ? Meldungen{{4217}} : Meldungen{},
                    "row " + std::to_string(&fall - faelle.data()) + ", revision " + std::to_string(revision));
            EXPECT_EQ(fehlerSpeicher.FehlerListe.size(), gemeldet ? 1U : 0U);
        }
    }
}

TEST_F(PruefeG2Test, TheGroupIsAskedForOnlyBehindTheMainPosition) {
    Kapitelreihe(Neu);
    // Both are missing: reported once.
    Erwarte(PruefeG2, Satz(u"111", u"119910"), {{4217}});
    Position(u"111", u"119000");
    Erwarte(PruefeG2, Satz(u"111", u"119910"), {{4217}});
}

TEST_F(PruefeG2Test, APositionStandsOnlyOnce) {
    for (const std::int32_t revision : {Alt, Neu}) {
        Kapitelreihe(revision);
        Position(u"111", u"111000");
        Erwarte(PruefeG2, Mit(Satz(u"111", u"111000"), {{43, u"x"}}), {{4221}}); // stops ahead of 4231
        Position(u"101", u"111000"); // in another chapter it is another position
        EXPECT_EQ(sia451Datei.DokumentKapitel[0].Positionen.size(), 1U);
    }
}

class PruefeG3Test : public Positionstest {
protected:
    static Text Satz(TextSicht position, TextSicht variable, TextSicht zeile, TextSicht einfuegepunkt = {}) {
        return Zeile(u"G3",
                     {{2, u"111"}, {8, position}, {14, variable}, {16, zeile}, {93, u"Text"}, {136, einfuegepunkt}});
    }

    static VariableEintrag Variable() { return Variablen().back(); }

    // Number and text of the lines that the last variable holds.
    using Zeilen = std::vector<std::pair<std::int32_t, Text>>;
    static Zeilen VariableZeilen() {
        Zeilen zeilen;
        for (const VariablenzeileEintrag& zeile : sia451Datei.Variablenzeilen.Von(Variable().Zeilen)) {
            zeilen.emplace_back(zeile.Nummer, TextVon(zeile));
        }
        return zeilen;
    }
};

TEST_F(PruefeG3Test, ReportsFaults) {
    ErwarteFaelle([this](std::int32_t revision) { BeginneMitPosition(revision); }, PruefeG3,
                  Satz(u"111001", u"05", u"01"),
                  {
                      {Beide, {}, {}},
                      {Beide, {{2, u"112"}}, {{4301}}},
                      {Beide, {{2, u"   "}}, {{3002, 2}, {4301}}},
                      {Beide, {{8, u"111002"}}, {{4302}}},
                      {Beide, {{8, u"11100 "}}, {{3001, 8}, {4302}}},
                      {Beide, {{2, u"112"}, {8, u"111002"}}, {{4301}}},
                      // Variables stand below the main position, the fixed text anywhere.
                      {Beide, {{8, u"111000"}}, {{4308}}},
                      {Beide, {{8, u"111000"}, {14, u"00"}}, {}},
                      {Beide, {{14, u"  "}}, {{3002, 14}}},
                      {Beide, {{16, u"02"}}, {{4304}}},
                      {Beide, {{16, u"00"}}, {{4304}}},
                      {Beide, {{16, u"  "}}, {{3002, 16}, {4304}}},
                      // The alternative selection is obsolete.
                      {Alt, {{135, u"+"}}, {}},
                      {Alt, {{135, u"x"}}, {}},
                      {Neu, {{135, u"+"}}, {{4311}}},
                      {Neu, {{135, u"x"}}, {{4311}}},
                      // The insertion point.
                      {Beide, {{136, u"01"}}, {}},
                      {Beide, {{136, u"30"}}, {}},
                      {Beide, {{136, u"31"}}, {{4331}}},
                      {Beide, {{136, u"99"}}, {{4331}}},
                      {Beide, {{136, u"00"}}, {}},
                      {Beide, {{136, u"1 "}}, {{3001, 136}}},
                      {Alt, {{14, u"00"}, {136, u"01"}}, {}},
                      {Neu, {{14, u"00"}, {136, u"01"}}, {{4321}}},
                      {Neu, {{14, u"00"}, {136, u"31"}}, {{4321}, {4331}}},
                      {Beide, {{43, u"E"}}, {}},
                      {Beide, {{43, u"e"}}, {}},
                      {Beide, {{43, u"F"}}, {{4231}}},
                      // All that do not stop, in their order.
                      {Neu,
                       {{8, u"111000"}, {16, u"02"}, {135, u"+"}, {136, u"31"}, {43, u"x"}},
                       {{4308}, {4304}, {4311}, {4331}, {4231}}},
                      {Alt,
                       {{8, u"111000"}, {16, u"02"}, {135, u"+"}, {136, u"31"}, {43, u"x"}},
                       {{4308}, {4304}, {4331}, {4231}}},
                  });
}

TEST_F(PruefeG3Test, StoresTheLine) {
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMitPosition(revision);
        Erwarte(PruefeG3, Satz(u"111001", u"05", u"01"), {});
        Erwarte(PruefeG3, Mit(Satz(u"111001", u"05", u"03", u"12"), {{93, u"Mehr"}}), {});
        ASSERT_EQ(Variablen().size(), 1U);
        EXPECT_EQ(Variable().Nummer, 5);
        EXPECT_EQ(VariableZeilen(), (Zeilen{{1, u"Text"}, {3, u"Mehr"}}));
        EXPECT_EQ(Variable().Einfuegepunkt, 12);
    }
}

TEST_F(PruefeG3Test, FaultsThatDoNotStopLeaveTheLineStored) {
    BeginneMitPosition(Neu);
    Erwarte(PruefeG3, Mit(Satz(u"111001", u"05", u"02", u"31"), {{135, u"+"}, {43, u"x"}}),
            {{4304}, {4311}, {4331}, {4231}});
    EXPECT_EQ(VariableZeilen(), (Zeilen{{2, u"Text"}}));
    EXPECT_EQ(Variable().Einfuegepunkt, 31);

    Erwarte(PruefeG3, Satz(u"111000", u"05", u"01"), {{4308}});
    EXPECT_EQ(Variablen(sia451Datei.DokumentKapitel[0].Positionen[0]).size(), 1U);
}

TEST_F(PruefeG3Test, ALineStandsOnlyOnceInItsVariable) {
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMitPosition(revision);
        Erwarte(PruefeG3, Satz(u"111001", u"05", u"01", u"07"), {});
        // The second stops ahead of all but 4308, and leaves the insertion point as it was.
        Erwarte(PruefeG3, Mit(Satz(u"111001", u"05", u"01", u"31"), {{43, u"x"}, {135, u"+"}}), {{4303}});
        EXPECT_EQ(VariableZeilen(), (Zeilen{{1, u"Text"}}));
        EXPECT_EQ(Variable().Einfuegepunkt, 7);
        Erwarte(PruefeG3, Satz(u"111001", u"06", u"01"), {}); // the same line of another variable
        Erwarte(PruefeG3, Satz(u"111001", u"05", u"02"), {});
    }
}

// All hundred numbers, in any order, and again: against what has come so far.
TEST_F(PruefeG3Test, LinesInAnyOrder) {
    std::mt19937 zufall(31);
    std::uniform_int_distribution<std::int32_t> nummern(0, 99);
    BeginneMitPosition(Neu);
    std::set<std::int32_t> bisher;
    while (bisher.size() < 100) {
        const std::int32_t nummer = nummern(zufall);
        const Text zeile = ZahlText(100 + nummer).substr(1);
        if (!bisher.insert(nummer).second) {
            Erwarte(PruefeG3, Satz(u"111001", u"05", zeile), {{4303}});
        } else if (bisher.contains(1)) {
            Erwarte(PruefeG3, Satz(u"111001", u"05", zeile), {});
        } else {
            Erwarte(PruefeG3, Satz(u"111001", u"05", zeile), {{4304}});
        }
    }
}

TEST_F(PruefeG3Test, AVariableStaysThoughItsPositionIsNoPlaceForIt) {
    BeginneMitPosition(Neu);
    Erwarte(PruefeG3, Satz(u"111000", u"05", u"01"), {{4308}});
    Erwarte(PruefeG3, Satz(u"111000", u"05", u"01"), {{4308}, {4303}});
    EXPECT_EQ(Variablen(sia451Datei.DokumentKapitel[0].Positionen[0]).size(), 1U);
}

TEST_F(PruefeG3Test, TheFirstLineMayComeLater) {
    BeginneMitPosition(Neu);
    Erwarte(PruefeG3, Satz(u"111001", u"05", u"02"), {{4304}});
    Erwarte(PruefeG3, Satz(u"111001", u"05", u"01"), {});
    Erwarte(PruefeG3, Satz(u"111001", u"05", u"03"), {});
    Erwarte(PruefeG3, Satz(u"111001", u"06", u"03"), {{4304}}); // line 1 of variable 5 is not its own
}

TEST_F(PruefeG3Test, OnlyTheLineJustBeforeCountsForASecondInsertionPoint) {
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMitPosition(revision);
        Erwarte(PruefeG3, Satz(u"111001", u"05", u"01", u"03"), {});
        Erwarte(PruefeG3, Satz(u"111001", u"05", u"02", u"04"), {{4307}});
        Erwarte(PruefeG3, Satz(u"111001", u"05", u"03"), {}); // none: puts the point back to 0
        EXPECT_EQ(Variable().Einfuegepunkt, 0);
        Erwarte(PruefeG3, Satz(u"111001", u"05", u"04", u"05"), {});
        Erwarte(PruefeG3, Satz(u"111001", u"05", u"05", u"31"), {{4307}, {4331}});
    }
}

TEST_F(PruefeG3Test, ASecondInsertionPointInTheFixedTextReportsAllThree) {
    BeginneMitPosition(Neu);
    Erwarte(PruefeG3, Satz(u"111001", u"00", u"01", u"31"), {{4321}, {4331}});
    Erwarte(PruefeG3, Satz(u"111001", u"00", u"02", u"31"), {{4307}, {4321}, {4331}});
}

TEST_F(PruefeG3Test, ARefusedLineMakesNoVariableWhereThePositionIsMissing) {
    BeginneMitPosition(Neu);
    Erwarte(PruefeG3, Satz(u"111002", u"05", u"01"), {{4302}});
    EXPECT_TRUE(LetztePosition().Variablen.empty());
}

} // namespace
} // namespace zepholt
