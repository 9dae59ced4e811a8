// Structure records B0 to B8: what each reports, what stops it and what is kept, in both interfaces.
#include "doctest/Records.h"
#include "hilfen/Satztest.h"
#include "state/SIA451Felder.h"

#include <random>

namespace zepholt {
namespace {

using namespace hilfen;

class RecordBTest : public Satztest {
protected:
    // A fresh run with these structures announced: line 0 and on.
    void BeginneMit(std::int32_t revision, std::initializer_list<TextSicht> gliederungen) {
        Beginne(revision);
        for (const TextSicht nummer : gliederungen) {
            B0({{2, nummer}});
        }
    }

    Funde B0(std::initializer_list<Feldwert> felder) { return Pruefe(PruefeB0, Zeile(u"B0", felder)); }

    Funde OGL(TextSicht code, TextSicht reihenfolge = u"") {
        return Pruefe(PruefeB2, Zeile(u"B2", {{2, u"002"}, {18, code}, {75, reihenfolge}, {93, u"Haus"}}));
    }

    Funde PSL(TextSicht ogl, TextSicht code, TextSicht reihenfolge = u"") {
        return Pruefe(PruefeB2, Zeile(u"B2", {{2, u"002"}, {18, ogl}, {24, code}, {75, reihenfolge}, {93, u"Stock"}}));
    }

    Funde Gruppe(TextSicht code, TextSicht primaer) {
        return Pruefe(PruefeB5, Zeile(u"B5", {{2, u"005"}, {30, code}, {93, u"Gruppe"}, {135, primaer}}));
    }

    Funde Variante(TextSicht gruppe, TextSicht code, TextSicht reihenfolge = u"", TextSicht nummer = u"005") {
        return Pruefe(PruefeB6,
                      Zeile(u"B6", {{2, nummer}, {30, gruppe}, {33, code}, {75, reihenfolge}, {93, u"Variante"}}));
    }
};

// --- What B1 to B5, B7 and B8 share ----------------------------------------------------------------------------------

struct Art {
    TextSicht Name;
    void (*Test)();
    TextSicht Nummer;
    TextSicht AndereGliederung; // a number that is another structure's
    std::int32_t Codespalte;
    std::int32_t AndereNummer;
    std::int32_t NichtVorhanden;
    std::int32_t CodeDoppelt;
    std::int32_t ReihenfolgeDoppelt; // 0: the record has no order
    std::int32_t ECodeDoppelt;       // 0: the record has no extended code
    std::int32_t (*Anzahl)();        // entries kept
};

const Art Arten[] = {
    {u"B1", PruefeB1, u"001", u"002", 82, 3221, 3222, 3223, 0, 3226, [] { return sia451Datei.KAGTabelle.Anzahl(); }},
    {u"B2", PruefeB2, u"002", u"001", 18, 3211, 3212, 3213, 3219, 0, [] { return sia451Datei.OGLTabelle.Anzahl(); }},
    {u"B3", PruefeB3, u"003", u"001", 87, 3231, 3232, 3233, 0, 3236, [] { return sia451Datei.EKGTabelle.Anzahl(); }},
    {u"B4", PruefeB4, u"004", u"005", 129, 3261, 3262, 3263, 3269, 0,
     [] { return sia451Datei.EinrichtungTabelle.Anzahl(); }},
    {u"B5", PruefeB5, u"005", u"004", 30, 3241, 3242, 3243, 3249, 0,
     [] { return sia451Datei.VariantenTabelle.Anzahl(); }},
    {u"B7", PruefeB7, u"007", u"008", 168, 3292, 3293, 3294, 0, 0, [] { return sia451Datei.NutzungTabelle.Anzahl(); }},
    {u"B8", PruefeB8, u"008", u"007", 188, 3296, 3297, 3298, 0, 0, [] { return sia451Datei.RaumTabelle.Anzahl(); }},
};

class StrukturartTest : public RecordBTest, public ::testing::WithParamInterface<Art> {
protected:
    // Line 0 is the B0 of the structure.
    void BeginneMitB0(std::int32_t revision) { BeginneMit(revision, {art.Nummer}); }

    // A record that all checks pass, but for what `felder` changes.
    Funde Satz(TextSicht code, const std::vector<Feldwert>& felder = {}) {
        const TextSicht primaervariante = art.Name == u"B5" ? u"A01" : u"";
        const Text satz =
            Zeile(art.Name, {{2, art.Nummer}, {93, u"Name"}, {135, primaervariante}, {art.Codespalte, code}});
        return Pruefe(art.Test, Geaendert(satz, felder));
    }

    const Art& art = GetParam();
};

INSTANTIATE_TEST_SUITE_P(Arten, StrukturartTest, ::testing::ValuesIn(Arten),
                         [](const auto& fall) { return std::string(fall.param.Name.begin(), fall.param.Name.end()); });

TEST_P(StrukturartTest, ACompleteRecordIsKept) {
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMitB0(revision);
        EXPECT_EQ(Satz(u"A1"), Funde{});
        EXPECT_EQ(Satz(u"A2"), Funde{});
        EXPECT_EQ(art.Anzahl(), 2);
    }
}

TEST_P(StrukturartTest, ABlankNumberIsAlsoAnotherNumber) {
    BeginneMitB0(Neu);
    EXPECT_EQ(Satz(u"A1", {{2, u"   "}}), (Funde{{3002, 1, 2}, {art.AndereNummer, 1}}));
    EXPECT_EQ(art.Anzahl(), 0);
}

TEST_P(StrukturartTest, ABadNumberIsAlsoAnotherNumber) {
    BeginneMitB0(Alt);
    EXPECT_EQ(Satz(u"A1", {{2, u"00x"}}), (Funde{{3001, 1, 2}, {art.AndereNummer, 1}}));
}

TEST_P(StrukturartTest, TheNumberOfAnotherStructureStops) {
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMitB0(revision);
        EXPECT_EQ(Satz(u"A1", {{2, art.AndereGliederung}}), (Funde{{art.AndereNummer, 1}}));
        EXPECT_EQ(art.Anzahl(), 0);
    }
}

TEST_P(StrukturartTest, WithoutB0NothingIsKept) {
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMit(revision, {art.AndereGliederung});
        EXPECT_EQ(Satz(u"A1"), (Funde{{art.NichtVorhanden, 1}}));
        EXPECT_EQ(Satz(u"A1"), (Funde{{art.NichtVorhanden, 2}}));
        EXPECT_EQ(art.Anzahl(), 0);
    }
}

TEST_P(StrukturartTest, ABlankCodeIsReportedAndKept) {
    BeginneMitB0(Neu);
    EXPECT_EQ(Satz(u"  "), (Funde{{3002, 1, art.Codespalte}}));
    EXPECT_EQ(art.Anzahl(), 1);
    EXPECT_EQ(Satz(u"  "), (Funde{{3002, 2, art.Codespalte}, {art.CodeDoppelt, 2}}));
}

TEST_P(StrukturartTest, ABlankNameIsAWarningOfTheNewInterface) {
    BeginneMitB0(Neu);
    EXPECT_EQ(Satz(u"A1", {{93, u"    "}}), (Funde{{3003, 1, 93}}));
    EXPECT_EQ(art.Anzahl(), 1);
    BeginneMitB0(Alt);
    EXPECT_EQ(Satz(u"A1", {{93, u"    "}}), Funde{});
    EXPECT_EQ(art.Anzahl(), 1);
}

TEST_P(StrukturartTest, TheSameCodeStops) {
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMitB0(revision);
        Satz(u"A1");
        Satz(u"A2");
        EXPECT_EQ(Satz(u"A1"), (Funde{{art.CodeDoppelt, 3}}));
        EXPECT_EQ(Satz(u"a1"), Funde{});
        EXPECT_EQ(art.Anzahl(), 3);
    }
}

TEST_P(StrukturartTest, ACodeNeedsNoParent) {
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMitB0(revision);
        EXPECT_EQ(Satz(u"112"), Funde{}); // no 1, no 11: neither 3224 nor 3234
        EXPECT_EQ(Satz(u"11*"), Funde{}); // a joker is a character like any other
    }
}

TEST_P(StrukturartTest, TheOldInterfaceWantsTheOrderToBeUnique) {
    if (art.ReihenfolgeDoppelt == 0) {
        BeginneMitB0(Alt);
        Satz(u"A1", {{75, u"0000001"}});
        EXPECT_EQ(Satz(u"A2", {{75, u"0000001"}}), Funde{}); // the columns are none of the record's fields
        return;
    }
    BeginneMitB0(Alt);
    EXPECT_EQ(Satz(u"A1", {{75, u"0000001"}}), Funde{});
    EXPECT_EQ(Satz(u"A2", {{75, u"0000002"}}), Funde{});
    EXPECT_EQ(Satz(u"A3", {{75, u"0000001"}}), (Funde{{art.ReihenfolgeDoppelt, 3}}));
    EXPECT_EQ(art.Anzahl(), 3);
    // Once for each entry with that order, and still followed by the code that stops.
    EXPECT_EQ(Satz(u"A4", {{75, u"0000001"}}), (Funde{{art.ReihenfolgeDoppelt, 4}, {art.ReihenfolgeDoppelt, 4}}));
    EXPECT_EQ(Satz(u"A4", {{75, u"0000001"}}),
              (Funde{{art.ReihenfolgeDoppelt, 5}, {art.ReihenfolgeDoppelt, 5}, {art.CodeDoppelt, 5}}));
    // The entry with the same code stops the scan before its own order and before those behind it.
    EXPECT_EQ(Satz(u"A1", {{75, u"0000001"}}), (Funde{{art.CodeDoppelt, 6}}));
    EXPECT_EQ(art.Anzahl(), 4);
}

TEST_P(StrukturartTest, NoOrderIsNoOrderInCommon) {
    BeginneMitB0(Alt);
    EXPECT_EQ(Satz(u"A1"), Funde{});
    EXPECT_EQ(Satz(u"A2"), Funde{});
    EXPECT_EQ(Satz(u"A3", {{75, u"0000000"}}), Funde{});
    EXPECT_EQ(Satz(u"A4", {{75, u"0000000"}}), Funde{});
}

TEST_P(StrukturartTest, TheNewInterfaceHasNoOrder) {
    BeginneMitB0(Neu);
    const bool hatReihenfolge = art.ReihenfolgeDoppelt != 0;
    EXPECT_EQ(Satz(u"A1", {{75, u"0000001"}}), hatReihenfolge ? (Funde{{3208, 1}}) : Funde{});
    EXPECT_EQ(Satz(u"A2", {{75, u"0000001"}}), hatReihenfolge ? (Funde{{3208, 2}}) : Funde{});
    EXPECT_EQ(Satz(u"A3", {{75, u"     7x"}}), hatReihenfolge ? (Funde{{3001, 3, 75}, {3208, 3}}) : Funde{});
    EXPECT_EQ(art.Anzahl(), 3);
    BeginneMitB0(Alt);
    EXPECT_EQ(Satz(u"A1", {{75, u"     7x"}}), hatReihenfolge ? (Funde{{3001, 1, 75}}) : Funde{});
}

TEST_P(StrukturartTest, TheOrderFieldIsJudgedBeforeTheNumber) {
    BeginneMitB0(Neu);
    const Funde erwartet =
        art.ReihenfolgeDoppelt != 0 ? Funde{{3208, 1}, {art.AndereNummer, 1}} : Funde{{art.AndereNummer, 1}};
    EXPECT_EQ(Satz(u"A1", {{2, art.AndereGliederung}, {75, u"0000001"}}), erwartet);
}

TEST_P(StrukturartTest, TheNewInterfaceWantsExtendedCodesToBeUnique) {
    if (art.ECodeDoppelt == 0) {
        BeginneMitB0(Neu);
        Satz(u"A1", {{208, u"E1"}});
        EXPECT_EQ(Satz(u"A2", {{208, u"E1"}}), Funde{}); // the columns are none of the record's fields
        return;
    }
    BeginneMitB0(Neu);
    EXPECT_EQ(Satz(u"A1", {{208, u"E1"}}), Funde{});
    EXPECT_EQ(Satz(u"A2", {{208, u"E1"}}), (Funde{{art.ECodeDoppelt, 2}}));
    EXPECT_EQ(art.Anzahl(), 1);
    EXPECT_EQ(Satz(u"A2", {{208, u"E2"}}), Funde{}); // A2 was not kept
    // The same code stops before the extended one is looked at, and a record that stopped leaves none behind.
    EXPECT_EQ(Satz(u"A1", {{208, u"E1"}}), (Funde{{art.CodeDoppelt, 4}}));
    EXPECT_EQ(Satz(u"A1", {{208, u"E3"}}), (Funde{{art.CodeDoppelt, 5}}));
    EXPECT_EQ(Satz(u"A3", {{208, u"E3"}}), Funde{});
    EXPECT_EQ(Satz(u"A4"), Funde{});
    EXPECT_EQ(Satz(u"A5"), Funde{}); // blank ones are no pair
    EXPECT_EQ(art.Anzahl(), 5);
}

TEST_P(StrukturartTest, TheOldInterfaceRepeatsExtendedCodesFreely) {
    BeginneMitB0(Alt);
    EXPECT_EQ(Satz(u"A1", {{208, u"E1"}}), Funde{});
    EXPECT_EQ(Satz(u"A2", {{208, u"E1"}}), Funde{});
    EXPECT_EQ(art.Anzahl(), 2);
}

// --- What is kept ----------------------------------------------------------------------------------------------------

TEST_F(RecordBTest, FieldsLieInTheirColumns) {
    BeginneMit(Alt, {u"001", u"002", u"003", u"004", u"005", u"007", u"008"});
    const auto spalten = [](std::int32_t spalte, std::int32_t laenge) {
        return Feld(testDaten.Record, spalte, laenge);
    };

    EXPECT_EQ(Pruefe(PruefeB1, Spaltensatz(u"B1", {{2, u"001"}})), Funde{});
    EXPECT_EQ(sia451Datei.KAGTabelle[0].Code, spalten(82, 5));

    EXPECT_EQ(Pruefe(PruefeB2, Spaltensatz(u"B2", {{2, u"002"}, {24, u"      "}, {75, u"1234567"}})), Funde{});
    const OGLEintrag& ogl = sia451Datei.OGLTabelle[0];
    EXPECT_EQ(ogl.Code, spalten(18, 6));
    EXPECT_EQ(ogl.Reihenfolge, 1234567);

    EXPECT_EQ(Pruefe(PruefeB2, Spaltensatz(u"B2", {{2, u"002"}, {75, u"1234567"}})), Funde{});
    EXPECT_EQ(ogl.PSLListe[0].Code, spalten(24, 6));
    EXPECT_EQ(ogl.PSLListe[0].Reihenfolge, 1234567);

    EXPECT_EQ(Pruefe(PruefeB3, Spaltensatz(u"B3", {{2, u"003"}})), Funde{});
    EXPECT_EQ(sia451Datei.EKGTabelle[0].Code, spalten(87, 6));

    EXPECT_EQ(Pruefe(PruefeB4, Spaltensatz(u"B4", {{2, u"004"}, {75, u"1234567"}})), Funde{});
    EXPECT_EQ(sia451Datei.EinrichtungTabelle[0].Code, spalten(129, 6));
    EXPECT_EQ(sia451Datei.EinrichtungTabelle[0].Reihenfolge, 1234567);

    EXPECT_EQ(Pruefe(PruefeB5, Spaltensatz(u"B5", {{2, u"005"}, {75, u"1234567"}})), Funde{});
    const VariantengruppeEintrag& gruppe = sia451Datei.VariantenTabelle[0];
    EXPECT_EQ(gruppe.Code, spalten(30, 3));
    EXPECT_EQ(gruppe.Primaervariante, spalten(135, 3));
    EXPECT_EQ(gruppe.Reihenfolge, 1234567);

    EXPECT_EQ(Pruefe(PruefeB6, Spaltensatz(u"B6", {{2, u"005"}, {75, u"1234567"}})), Funde{});
    EXPECT_EQ(gruppe.Varianten[0].Code, spalten(33, 3));
    EXPECT_EQ(gruppe.Varianten[0].Reihenfolge, 1234567);

    EXPECT_EQ(Pruefe(PruefeB7, Spaltensatz(u"B7", {{2, u"007"}})), Funde{});
    EXPECT_EQ(sia451Datei.NutzungTabelle[0].Code, spalten(168, 16));

    EXPECT_EQ(Pruefe(PruefeB8, Spaltensatz(u"B8", {{2, u"008"}})), Funde{});
    EXPECT_EQ(sia451Datei.RaumTabelle[0].Code, spalten(188, 16));

    EXPECT_EQ(Pruefe(PruefeB0, Spaltensatz(u"B0", {{2, u"001"}, {6, u"95"}, {75, u"1234567"}})), Funde{});
    EXPECT_EQ(sia451Datei.GliederungReihenfolgen.back(), 1234567);
}

TEST_F(RecordBTest, TheNewInterfaceBeginsAtRevision12) {
    BeginneMit(12, {u"001", u"003", u"004"});
    EXPECT_EQ(B0({{2, u"001"}, {6, u"95"}}), (Funde{{3203, 3}}));
    const std::vector<Feldwert> b1 = {{2, u"001"}, {82, u"1"}, {93, u"x"}, {208, u"E"}};
    EXPECT_EQ(Pruefe(PruefeB1, Geaendert(u"B", b1)), Funde{});
    EXPECT_EQ(Pruefe(PruefeB1, Geaendert(Geaendert(u"B", b1), {{82, u"2"}})), (Funde{{3226, 5}}));
    EXPECT_EQ(Pruefe(PruefeB4, Zeile(u"B4", {{2, u"004"}, {75, u"0000001"}, {93, u"x"}, {129, u"T"}})),
              (Funde{{3208, 6}}));
}

// --- B0 --------------------------------------------------------------------------------------------------------------

TEST_F(RecordBTest, StructuresAreNumbered1To8Without6) {
    for (const std::int32_t revision : {Alt, Neu}) {
        for (const TextSicht nummer : {u"001", u"002", u"003", u"004", u"005", u"007", u"008"}) {
            Beginne(revision);
            EXPECT_EQ(B0({{2, nummer}}), Funde{});
            EXPECT_EQ(sia451Datei.GliederungReihenfolgen.size(), 1U);
        }
        for (const TextSicht nummer : {u"000", u"006", u"009", u"999"}) {
            Beginne(revision);
            EXPECT_EQ(B0({{2, nummer}}), (Funde{{3201, 0}}));
            EXPECT_TRUE(sia451Datei.GliederungReihenfolgen.empty());
        }
    }
}

TEST_F(RecordBTest, ABadNumberOfB0IsAlsoNoStructure) {
    EXPECT_EQ(B0({{2, u"00a"}}), (Funde{{3001, 0, 2}, {3201, 0}}));
    EXPECT_EQ(B0({{2, u"   "}}), (Funde{{3002, 1, 2}, {3201, 1}}));
}

TEST_F(RecordBTest, B0SetsTheFlagOfItsStructureOnly) {
    const std::pair<TextSicht, bool SIA451Datei::*> faelle[] = {
        {u"001", &SIA451Datei::KAGVorhanden},       {u"002", &SIA451Datei::OGLVorhanden},
        {u"003", &SIA451Datei::EKGVorhanden},       {u"004", &SIA451Datei::EinrichtungVorhanden},
        {u"005", &SIA451Datei::VariantenVorhanden}, {u"007", &SIA451Datei::NutzungVorhanden},
        {u"008", &SIA451Datei::RaumVorhanden},
    };
    for (const auto& [nummer, flagge] : faelle) {
        BeginneMit(Neu, {nummer});
        for (const auto& [andere, andereFlagge] : faelle) {
            EXPECT_EQ(sia451Datei.*andereFlagge, flagge == andereFlagge);
        }
    }
}

TEST_F(RecordBTest, TheNewInterfaceWantsNameAndYearOfAStandardTogether) {
    for (const TextSicht nummer : {u"001", u"003"}) {
        Beginne(Neu);
        EXPECT_EQ(B0({{2, nummer}, {6, u"95"}}), (Funde{{3203, 0}}));
        EXPECT_EQ(B0({{2, nummer}, {36, u"BKP"}}), (Funde{{3203, 1}}));
        EXPECT_EQ(B0({{2, nummer}, {6, u"95"}, {36, u"BKP"}}), Funde{});
        EXPECT_EQ(B0({{2, nummer}}), Funde{});
        EXPECT_EQ(sia451Datei.GliederungReihenfolgen.size(), 4U); // 3203 doesn't stop
        Beginne(Alt);
        EXPECT_EQ(B0({{2, nummer}, {6, u"95"}}), Funde{});
        EXPECT_EQ(B0({{2, nummer}, {36, u"BKP"}}), Funde{});
    }
}

TEST_F(RecordBTest, ABadYearStillCountsAsGiven) {
    EXPECT_EQ(B0({{2, u"001"}, {6, u"9x"}}), (Funde{{3001, 0, 6}, {3203, 0}}));
    EXPECT_EQ(B0({{2, u"001"}, {6, u"9x"}, {36, u"BKP"}}), (Funde{{3001, 1, 6}}));
    EXPECT_EQ(B0({{2, u"001"}, {6, u" 5"}}), (Funde{{3001, 2, 6}, {3203, 2}}));
}

TEST_F(RecordBTest, OnlyCostTypesAndElementsHaveAStandard) {
    for (const std::int32_t revision : {Alt, Neu}) {
        Beginne(revision);
        std::int32_t zeile = 0;
        for (const TextSicht nummer : {u"002", u"004", u"005", u"007", u"008"}) {
            EXPECT_EQ(B0({{2, nummer}, {36, u"BKP"}}), (Funde{{3202, zeile}}));
            EXPECT_EQ(B0({{2, nummer}, {6, u"95"}}), (Funde{{3202, zeile + 1}}));
            EXPECT_EQ(B0({{2, nummer}, {6, u"95"}, {36, u"BKP"}}), (Funde{{3202, zeile + 2}}));
            EXPECT_EQ(B0({{2, nummer}}), Funde{});
            zeile += 4;
        }
        EXPECT_EQ(sia451Datei.GliederungReihenfolgen.size(), 20U); // a warning: all are kept
    }
}

TEST_F(RecordBTest, ASecondB0IsNoFault) {
    EXPECT_EQ(B0({{2, u"002"}, {63, u"eins"}, {75, u"0000003"}}), Funde{});
    EXPECT_EQ(B0({{2, u"002"}, {63, u"zwei"}, {75, u"0000004"}}), Funde{});
    EXPECT_EQ(sia451Datei.GliederungReihenfolgen, (std::vector<std::int32_t>{3, 4}));
}

TEST_F(RecordBTest, TheFieldsOfB0AreReadInTheirOrder) {
    EXPECT_EQ(B0({{2, u"x"}, {6, u"x"}, {75, u"x"}}), (Funde{{3001, 0, 2}, {3001, 0, 6}, {3001, 0, 75}, {3201, 0}}));
}

// --- B2, the second level --------------------------------------------------------------------------------------------

TEST_F(RecordBTest, APositionLocationNeedsItsObjectCodeBefore) {
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMit(revision, {u"002"});
        EXPECT_EQ(PSL(u"A", u"1"), (Funde{{3214, 1}}));
        EXPECT_EQ(OGL(u"A"), Funde{});
        EXPECT_EQ(PSL(u"A", u"1"), Funde{});
        EXPECT_EQ(PSL(u"A*", u"1"), (Funde{{3214, 4}})); // no joker here
        EXPECT_EQ(sia451Datei.OGLTabelle.Anzahl(), 1);
        EXPECT_EQ(sia451Datei.OGLTabelle[0].PSLListe.Anzahl(), 1);
    }
}

TEST_F(RecordBTest, APositionLocationIsUniqueWithinItsObjectCode) {
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMit(revision, {u"002"});
        OGL(u"A");
        OGL(u"B");
        EXPECT_EQ(PSL(u"A", u"1"), Funde{});
        EXPECT_EQ(PSL(u"B", u"1"), Funde{});
        EXPECT_EQ(PSL(u"A", u"2"), Funde{});
        EXPECT_EQ(PSL(u"A", u"1"), (Funde{{3215, 6}}));
        EXPECT_EQ(sia451Datei.OGLTabelle[0].PSLListe.Anzahl(), 2);
        EXPECT_EQ(sia451Datei.OGLTabelle[1].PSLListe.Anzahl(), 1);
    }
}

TEST_F(RecordBTest, TheOrderOfLocationsIsUniqueWithinTheirObjectCode) {
    BeginneMit(Alt, {u"002"});
    OGL(u"A", u"0000001");
    OGL(u"B");
    EXPECT_EQ(PSL(u"A", u"1", u"0000001"), Funde{}); // the order of A itself is another matter
    EXPECT_EQ(PSL(u"B", u"1", u"0000001"), Funde{});
    EXPECT_EQ(PSL(u"A", u"2", u"0000001"), (Funde{{3219, 5}}));
    EXPECT_EQ(PSL(u"A", u"3", u"0000001"), (Funde{{3219, 6}, {3219, 6}}));
    EXPECT_EQ(PSL(u"A", u"3", u"0000001"), (Funde{{3219, 7}, {3219, 7}, {3215, 7}}));
    EXPECT_EQ(PSL(u"A", u"1", u"0000001"), (Funde{{3215, 8}}));
    EXPECT_EQ(sia451Datei.OGLTabelle[0].PSLListe.Anzahl(), 3);
    EXPECT_EQ(sia451Datei.OGLTabelle[0].PSLListe[0].Reihenfolge, 1);
}

TEST_F(RecordBTest, LocationsHaveNoOrderInTheNewInterface) {
    BeginneMit(Neu, {u"002"});
    OGL(u"A");
    EXPECT_EQ(PSL(u"A", u"1", u"0000001"), (Funde{{3208, 2}}));
    EXPECT_EQ(PSL(u"A", u"2", u"0000001"), (Funde{{3208, 3}}));
    EXPECT_EQ(sia451Datei.OGLTabelle[0].PSLListe[1].Reihenfolge, 0);
}

TEST_F(RecordBTest, NumberAndB0AreJudgedBeforeTheLevelOfB2) {
    Beginne(Neu);
    EXPECT_EQ(PSL(u"A", u"1"), (Funde{{3212, 0}}));
    BeginneMit(Neu, {u"002"});
    EXPECT_EQ(Pruefe(PruefeB2, Zeile(u"B2", {{2, u"001"}, {18, u"A"}, {24, u"1"}, {93, u"x"}})), (Funde{{3211, 1}}));
}

TEST_F(RecordBTest, ALocationWithoutObjectCodeFindsABlankOne) {
    BeginneMit(Alt, {u"002"});
    EXPECT_EQ(PSL(u"", u"1"), (Funde{{3002, 1, 18}, {3214, 1}}));
    EXPECT_EQ(OGL(u""), (Funde{{3002, 2, 18}}));
    EXPECT_EQ(PSL(u"", u"1"), (Funde{{3002, 3, 18}}));
}

// --- B5, B6 ----------------------------------------------------------------------------------------------------------

TEST_F(RecordBTest, AGroupNeedsAPrimaryVariant) {
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMit(revision, {u"005"});
        EXPECT_EQ(Gruppe(u"G", u"   "), (Funde{{3002, 1, 135}}));
        EXPECT_EQ(Gruppe(u"H", u"  1"), Funde{});
        EXPECT_EQ(sia451Datei.VariantenTabelle.Anzahl(), 2);
    }
}

TEST_F(RecordBTest, VariantsCarryTheNumberOfTheirGroups) {
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMit(revision, {u"005"});
        Gruppe(u"G", u"1");
        EXPECT_EQ(Variante(u"G", u"1", u"", u"006"), (Funde{{3251, 2}}));
        EXPECT_EQ(sia451Datei.VariantenTabelle[0].Varianten.Anzahl(), 0);
        EXPECT_EQ(Variante(u"G", u"1", u"", u"005"), Funde{});
        EXPECT_EQ(sia451Datei.VariantenTabelle[0].Varianten.Anzahl(), 1);
    }
}

TEST_F(RecordBTest, AVariantNeedsItsGroupBefore) {
    for (const std::int32_t revision : {Alt, Neu}) {
        Beginne(revision); // without a B0: the group alone decides
        EXPECT_EQ(Variante(u"G", u"1"), (Funde{{3252, 0}}));
        BeginneMit(revision, {u"005"});
        EXPECT_EQ(Variante(u"G", u"1"), (Funde{{3252, 1}}));
        Gruppe(u"G", u"1");
        EXPECT_EQ(Variante(u"G", u"1"), Funde{});
    }
}

TEST_F(RecordBTest, AVariantIsUniqueWithinItsGroup) {
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMit(revision, {u"005"});
        Gruppe(u"G", u"1");
        Gruppe(u"H", u"1");
        EXPECT_EQ(Variante(u"G", u"1"), Funde{});
        EXPECT_EQ(Variante(u"H", u"1"), Funde{});
        EXPECT_EQ(Variante(u"G", u"1"), (Funde{{3253, 5}}));
        EXPECT_EQ(sia451Datei.VariantenTabelle[0].Varianten.Anzahl(), 1);
    }
}

TEST_F(RecordBTest, TheOrderOfVariantsIsUniqueWithinTheirGroup) {
    BeginneMit(Alt, {u"005"});
    Gruppe(u"G", u"1");
    Gruppe(u"H", u"1");
    EXPECT_EQ(Variante(u"G", u"1", u"0000007"), Funde{});
    EXPECT_EQ(Variante(u"H", u"1", u"0000007"), Funde{});
    EXPECT_EQ(Variante(u"G", u"2", u"0000007"), (Funde{{3259, 5}}));
    EXPECT_EQ(Variante(u"G", u"3", u"0000008"), Funde{});
    EXPECT_EQ(Variante(u"G", u"3", u"0000007"), (Funde{{3259, 7}, {3259, 7}, {3253, 7}}));
    EXPECT_EQ(sia451Datei.VariantenTabelle[0].Varianten.Anzahl(), 3);
}

TEST_F(RecordBTest, VariantsHaveNoOrderInTheNewInterface) {
    BeginneMit(Neu, {u"005"});
    Gruppe(u"G", u"1");
    EXPECT_EQ(Variante(u"G", u"1", u"0000007"), (Funde{{3208, 2}}));
    EXPECT_EQ(Variante(u"G", u"2", u"0000007"), (Funde{{3208, 3}}));
    EXPECT_EQ(Variante(u"G", u"3", u"0000007", u"006"), (Funde{{3208, 4}, {3251, 4}}));
}

TEST_F(RecordBTest, TheFieldsOfB6AreReadInTheirOrder) {
    EXPECT_EQ(Pruefe(PruefeB6, Zeile(u"B6", {{75, u"x"}})),
              (Funde{{3002, 0, 2}, {3002, 0, 30}, {3002, 0, 33}, {3003, 0, 93}, {3001, 0, 75}, {3208, 0}, {3251, 0}}));
}

TEST_F(RecordBTest, TheFieldsOfB5AreReadInTheirOrder) {
    EXPECT_EQ(Pruefe(PruefeB5, Zeile(u"B5", {{75, u"x"}})),
              (Funde{{3002, 0, 2}, {3002, 0, 30}, {3003, 0, 93}, {3002, 0, 135}, {3001, 0, 75}, {3208, 0}, {3241, 0}}));
}

// --- Against the plain scan ------------------------------------------------------------------------------------------

struct Muster {
    Text Code;
    std::int32_t Reihenfolge;
    std::vector<Muster> Unter;
};

class ZufallsB : public RecordBTest {
protected:
    // The rule as a scan: true when the entry is to be appended.
    static bool Scan(const std::vector<Muster>& liste, const Muster& neu, std::int32_t zeile, std::int32_t codeDoppelt,
                     std::int32_t reihenfolgeDoppelt, Funde& funde) {
        for (const Muster& eintrag : liste) {
            if (eintrag.Code == neu.Code) {
                funde.push_back({codeDoppelt, zeile});
                return false;
            }
            if (neu.Reihenfolge != 0 && eintrag.Reihenfolge == neu.Reihenfolge) {
                funde.push_back({reihenfolgeDoppelt, zeile});
            }
        }
        return true;
    }

    std::int32_t Zahl(std::int32_t bis) { return static_cast<std::int32_t>(m_zufall() % static_cast<unsigned>(bis)); }

    Text Code() {
        const TextSicht zeichen = u"AB* 1";
        Text code(1, zeichen[static_cast<std::size_t>(Zahl(3))]);
        for (std::int32_t laenge = Zahl(3); laenge > 0; --laenge) {
            code.push_back(zeichen[static_cast<std::size_t>(Zahl(5))]);
        }
        while (code.back() == u' ') {
            code.pop_back();
        }
        return code;
    }

private:
    std::mt19937 m_zufall{451};
};

TEST_F(ZufallsB, CodesAndOrdersAreFoundAsAScanFindsThem) {
    for (std::int32_t runde = 0; runde < 40; ++runde) {
        BeginneMit(Alt, {u"002", u"005"});
        std::vector<Muster> oglListe;
        std::vector<Muster> gruppen;
        for (std::int32_t zeile = 2; zeile < 120; ++zeile) {
            const bool istB2 = Zahl(2) == 0;
            const bool istUnten = Zahl(3) != 0;
            std::vector<Muster>& oben = istB2 ? oglListe : gruppen;
            const Text ueber = Code();
            const Muster neu{istUnten ? Code() : ueber, Zahl(5), {}};
            const Text reihenfolge =
                neu.Reihenfolge == 0 ? Text() : Text(6, u'0') + static_cast<char16_t>(u'0' + neu.Reihenfolge);

            Funde erwartet;
            std::vector<Muster>* liste = &oben;
            if (istUnten) {
                const auto eintrag =
                    std::find_if(oben.begin(), oben.end(), [&](const Muster& m) { return m.Code == ueber; });
                liste = eintrag == oben.end() ? nullptr : &eintrag->Unter;
            }
            if (liste == nullptr) {
                erwartet.push_back({istB2 ? 3214 : 3252, zeile});
            } else {
                const std::int32_t codeDoppelt = istB2 ? (istUnten ? 3215 : 3213) : (istUnten ? 3253 : 3243);
                const std::int32_t reihenfolgeDoppelt = istB2 ? 3219 : (istUnten ? 3259 : 3249);
                if (Scan(*liste, neu, zeile, codeDoppelt, reihenfolgeDoppelt, erwartet)) {
                    liste->push_back(neu);
                }
            }

            Funde gefunden;
            if (istB2) {
                gefunden = istUnten ? PSL(ueber, neu.Code, reihenfolge) : OGL(ueber, reihenfolge);
            } else if (istUnten) {
                gefunden = Variante(ueber, neu.Code, reihenfolge);
            } else {
                gefunden = Pruefe(PruefeB5, Zeile(u"B5", {{2, u"005"}, {30, ueber}, {75, reihenfolge}, {135, u"1"}}));
            }
            ASSERT_EQ(gefunden, erwartet) << "round " << runde << ", line " << zeile;
        }
        EXPECT_EQ(sia451Datei.OGLTabelle.Anzahl(), static_cast<std::int32_t>(oglListe.size()));
        EXPECT_EQ(sia451Datei.VariantenTabelle.Anzahl(), static_cast<std::int32_t>(gruppen.size()));
    }
}

TEST_F(ZufallsB, ExtendedCodesAreFoundAsAScanFindsThem) {
    struct Zeilenmuster {
        Text Code;
        Text ECode;
    };
    for (std::int32_t runde = 0; runde < 40; ++runde) {
        BeginneMit(Neu, {u"001"});
        std::vector<Zeilenmuster> liste;
        for (std::int32_t zeile = 1; zeile < 80; ++zeile) {
            const Zeilenmuster neu{Code(), Zahl(4) == 0 ? Text() : Code()};
            const auto gleich = [&](Text Zeilenmuster::*feld) {
                return std::any_of(liste.begin(), liste.end(),
                                   [&](const Zeilenmuster& m) { return m.*feld == neu.*feld; });
            };
            Funde erwartet;
            if (gleich(&Zeilenmuster::Code)) {
                erwartet = {{3223, zeile}};
            } else if (!neu.ECode.empty() && gleich(&Zeilenmuster::ECode)) {
                erwartet = {{3226, zeile}};
            } else {
                liste.push_back(neu);
            }
            ASSERT_EQ(Pruefe(PruefeB1, Zeile(u"B1", {{2, u"001"}, {82, neu.Code}, {93, u"x"}, {208, neu.ECode}})),
                      erwartet)
                << "round " << runde << ", line " << zeile;
        }
    }
}

} // namespace
} // namespace zepholt
