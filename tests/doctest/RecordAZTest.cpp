// Records A and Z: what is reported for each field, in both interfaces, and what is kept.
#include "doctest/Records.h"
#include "hilfen/KopfSaetze.h"
#include "hilfen/Satztest.h"

namespace zepholt {
namespace {

using namespace hilfen;

class RecordAZTest : public Satztest {
protected:
    // The findings on a pair of records; Z is line 1.
    Funde PruefeAZ(std::int32_t revision, std::initializer_list<Feldwert> inA, std::initializer_list<Feldwert> inZ) {
        Beginne(revision);
        testDaten.ZeilenAnzahl = 2;
        m_a = SatzA(revision, inA);
        m_z = SatzZ(2, inZ);
        return Rufe([&] { PruefeRecordAZ(m_a, m_z); });
    }

private:
    Text m_a;
    Text m_z;
};

struct Feldfall {
    const char* Name;
    std::int32_t Spalte;
    TextSicht Wert;
    Funde InAlt;
    Funde InNeu;
};

TEST_F(RecordAZTest, CleanRecordsGiveNoFindingInEitherInterface) {
    EXPECT_EQ(PruefeAZ(Alt, {}, {}), Funde{});
    EXPECT_EQ(PruefeAZ(Neu, {}, {}), Funde{});
}

TEST_F(RecordAZTest, FieldsOfRecordA) {
    const Feldfall faelle[] = {
        {"A:21-22 blank", 82, u"           ", {{3002, 0, 82}}, {{3002, 0, 82}}},
        {"A:21-22 joker", 82, u"P*1", {{3001, 0, 82}}, {{3001, 0, 82}}},
        {"A:21-22 leading blank", 82, u" P1", {{3001, 0, 82}}, {{3001, 0, 82}}},
        {"A:23 blank", 93, u"         ", {}, {{3003, 0, 93}}},
        {"A:6-7 joker", 18, u"*", {{3001, 0, 18}}, {{3001, 0, 18}}},
        {"A:6-7 given", 18, u"X", {}, {}},
        {"A:24a-d blank", 123, u"   ", {{3002, 0, 123}}, {{3002, 0, 123}}},
        {"A:24a-d joker", 123, u"D*1", {{3001, 0, 123}}, {{3001, 0, 123}}},
        {"A:24e blank", 138, u"          ", {}, {{3003, 0, 138}}},
        {"A:13 blank", 44, u" ", {{3002, 0, 44}, {3101, 0}}, {{3002, 0, 44}, {3106, 0}}},
        {"A:13 E", 44, u"E", {}, {{3106, 0}}},
        {"A:13 L", 44, u"L", {}, {{3106, 0}}},
        {"A:13 K", 44, u"K", {}, {}},
        {"A:13 M", 44, u"M", {{3101, 0}}, {{3106, 0}}},
        {"A:13 lower case", 44, u"a", {{3101, 0}}, {{3106, 0}}},
        {"A:11 no digit", 42, u"x", {{3001, 0, 42}}, {{3001, 0, 42}}},
        {"A:11 blank", 42, u" ", {{3002, 0, 42}}, {{3002, 0, 42}}},
        {"A:2 blank", 2, u"      ", {{3002, 0, 2}}, {{3002, 0, 2}}},
        {"A:2 bad", 2, u"21.126", {{3001, 0, 2}}, {{3001, 0, 2}}},
        {"A:8-10 blank", 30, u"       ", {}, {{3002, 0, 30}}},
        {"A:14 blank", 45, u" ", {{3002, 0, 45}, {3102, 0}}, {{3002, 0, 45}, {3102, 0}}},
        {"A:14 E", 45, u"E", {{3102, 0}}, {{3102, 0}}},
        {"A:14 D", 45, u"D", {}, {}},
        {"A:20 bad", 75, u"123456x", {{3001, 0, 75}}, {{3001, 0, 75}}},
        {"A:20 given", 75, u"1234567", {}, {}},
        {"A:12 C", 43, u"C", {{3103, 0}}, {{3103, 0}}},
        {"A:12 B", 43, u"B", {}, {}},
        {"A:16-18 short", 59, u"12", {{3001, 0, 59}}, {{3001, 0, 59}}},
        {"A:16-18 given", 59, u"1234", {}, {}},
        {"A:24f blank", 168, u"         ", {{3002, 0, 168}}, {{3002, 0, 168}}},
        {"A:24g blank", 188, u"    ", {{3002, 0, 188}}, {{3002, 0, 188}}},
        {"A:24h blank", 208, u"       ", {{3002, 0, 208}}, {{3002, 0, 208}}},
    };
    for (const Feldfall& fall : faelle) {
        EXPECT_EQ(PruefeAZ(Alt, {{fall.Spalte, fall.Wert}}, {}), fall.InAlt) << fall.Name << ", old";
        EXPECT_EQ(PruefeAZ(Neu, {{fall.Spalte, fall.Wert}}, {}), fall.InNeu) << fall.Name << ", new";
    }
}

TEST_F(RecordAZTest, FieldsOfRecordZ) {
    const Feldfall faelle[] = {
        {"Z:21-22 joker", 82, u"P*", {{3001, 1, 82}}, {{3001, 1, 82}}},
        {"Z:21-22 given", 82, u"P", {}, {}},
        {"Z:23 given", 93, u"Anderes", {}, {}},
        {"Z:3 bad", 8, u"0101 0", {{3001, 1, 8}}, {{3001, 1, 8}}},
        {"Z:3 given", 8, u"010120", {}, {}},
        {"Z:2 blank", 2, u"      ", {{3002, 1, 2}}, {{3002, 1, 2}}},
        {"Z:20 bad", 75, u"x", {{3001, 1, 75}}, {{3001, 1, 75}}},
        {"Z:6-7 blank", 18, u"         ", {}, {{3002, 1, 18}}},
        {"Z:24e blank", 138, u"          ", {}, {{3002, 1, 138}}},
        {"Z:24f blank", 168, u"         ", {}, {{3003, 1, 168}}},
        {"Z:24g blank", 188, u"    ", {}, {{3003, 1, 188}}},
    };
    for (const Feldfall& fall : faelle) {
        EXPECT_EQ(PruefeAZ(Alt, {}, {{fall.Spalte, fall.Wert}}), fall.InAlt) << fall.Name << ", old";
        EXPECT_EQ(PruefeAZ(Neu, {}, {{fall.Spalte, fall.Wert}}), fall.InNeu) << fall.Name << ", new";
    }
}

TEST_F(RecordAZTest, DocumentCodeIBelongsToTheNewInterfaceAlone) {
    EXPECT_EQ(PruefeAZ(Alt, {{44, u"I"}}, {}), (Funde{{3101, 0}}));
    EXPECT_EQ(PruefeAZ(Neu, {{44, u"I"}}, {{8, u"010120"}, {30, u"Amt"}, {82, u"P"}, {93, u"S"}, {123, u"D"}}),
              Funde{});
}

TEST_F(RecordAZTest, DocumentsIAndCNameTheirReferenceDocument) {
    // Z:24a-d, Z:8-10, Z:21-22 and Z:3, one missing at a time: one 3107 each.
    for (const TextSicht code : {TextSicht(u"I"), TextSicht(u"C")}) {
        EXPECT_EQ(PruefeAZ(Neu, {{44, code}}, {{8, u"010120"}, {30, u"Amt"}, {82, u"P"}, {93, u"S"}}),
                  (Funde{{3107, 1}}));
        EXPECT_EQ(PruefeAZ(Neu, {{44, code}}, {{8, u"010120"}, {82, u"P"}, {93, u"S"}, {123, u"D"}}),
                  (Funde{{3107, 1}}));
        EXPECT_EQ(PruefeAZ(Neu, {{44, code}}, {{8, u"010120"}, {30, u"Amt"}, {93, u"S"}, {123, u"D"}}),
                  (Funde{{3107, 1}}));
        EXPECT_EQ(PruefeAZ(Neu, {{44, code}}, {{30, u"Amt"}, {82, u"P"}, {93, u"S"}, {123, u"D"}}), (Funde{{3107, 1}}));
        // A date with bad digits counts as absent.
        EXPECT_EQ(PruefeAZ(Neu, {{44, code}}, {{8, u"01x120"}, {30, u"Amt"}, {82, u"P"}, {93, u"S"}, {123, u"D"}}),
                  (Funde{{3001, 1, 8}, {3107, 1}}));
    }
}

TEST_F(RecordAZTest, CodeAAsksForNoReferenceDocument) {
    EXPECT_EQ(PruefeAZ(Neu, {{44, u"A"}}, {}), Funde{});
    EXPECT_EQ(PruefeAZ(Alt, {{44, u"C"}}, {}), Funde{});
}

TEST_F(RecordAZTest, Z23IsExpectedOnceMoreForCodesIAndC) {
    EXPECT_EQ(PruefeAZ(Neu, {{44, u"C"}}, {{8, u"010120"}, {30, u"Amt"}, {82, u"P"}, {123, u"D"}}),
              (Funde{{3003, 1, 93}}));
    EXPECT_EQ(PruefeAZ(Neu, {{44, u"C"}}, {}), (Funde{{3107, 1}, {3003, 1, 93}}));
}

TEST_F(RecordAZTest, HeaderAndClosingRecordAreNotCompared) {
    // 3104, 3105, 3111 and 3112 have rows in the error table, but no check.
    EXPECT_EQ(PruefeAZ(Neu, {{16, u"zz"}, {30, u"no id"}}, {{82, u"other"}, {93, u"other"}}), Funde{});
}

TEST_F(RecordAZTest, KeepsTheFieldsAlsoOfABadRecord) {
    PruefeAZ(Neu, {{43, u"C"}, {46, u"46"}, {75, u"0000075"}, {59, u"0059"}, {238, u"238"}, {18, u"18"}},
             {{8, u"010100"}, {30, u"z30"}, {75, u"0000076"}, {123, u"z123"}, {208, u"z208"}});
    EXPECT_EQ(sia451Datei.ProjektNummer, u"P-1");
    EXPECT_EQ(sia451Datei.ProjektName, u"Schulhaus");
    EXPECT_EQ(sia451Datei.KopfFeld18, u"18");
    EXPECT_EQ(sia451Datei.DokumentNummer, u"D-1");
    EXPECT_EQ(sia451Datei.DokumentName, u"Baumeister");
    EXPECT_EQ(sia451Datei.KopfFeld46, u"46");
    EXPECT_EQ(sia451Datei.DokumentCode, u"A");
    EXPECT_EQ(sia451Datei.Sprachcode, 1);
    EXPECT_EQ(sia451Datei.DatumA, 20778); // 21 November 2026
    EXPECT_EQ(sia451Datei.DatumZ2, 20778);
    EXPECT_EQ(sia451Datei.DatumZ3, 10957);
    EXPECT_EQ(sia451Datei.KopfFeld30, u"Bauherr");
    EXPECT_EQ(sia451Datei.KopfFeld75, 75);
    EXPECT_EQ(sia451Datei.StellungVorversion, u"C");
    EXPECT_EQ(sia451Datei.DokumentStatus, u"A");
    EXPECT_EQ(sia451Datei.KopfFeld59, 59);
    EXPECT_EQ(sia451Datei.ZFeld123, u"z123");
    EXPECT_EQ(sia451Datei.ZFeld75, 76);
    EXPECT_EQ(sia451Datei.ZFeld30, u"z30");
    EXPECT_EQ(sia451Datei.ZFeld18, u"Ersteller");
    EXPECT_EQ(sia451Datei.ZFeld138, u"Baumeister");
    EXPECT_EQ(sia451Datei.ZFeld168, u"Muster AG");
    EXPECT_EQ(sia451Datei.ZFeld188, u"Bern");
    EXPECT_EQ(sia451Datei.ZFeld208, u"z208");
    EXPECT_EQ(sia451Datei.SoftwareHersteller, u"Muster AG");
    EXPECT_EQ(sia451Datei.KopfFeld188, u"Bern");
    EXPECT_EQ(sia451Datei.SoftwareName, u"Ausmass");
    EXPECT_EQ(sia451Datei.KopfFeld238, u"238");
}

TEST_F(RecordAZTest, AFullFieldIsKeptToItsLastColumnAndNoFurther) {
    const Text voll(200, u'x'); // longer than any field and longer than the record
    PruefeAZ(Neu, {{18, Text(24, u'x')}, {46, Text(13, u'x')}, {82, voll}}, {{18, Text(24, u'x')}, {123, voll}});
    EXPECT_EQ(sia451Datei.KopfFeld18.size(), 12U);
    EXPECT_EQ(sia451Datei.KopfFeld30.size(), 12U);
    EXPECT_EQ(sia451Datei.KopfFeld46.size(), 13U);
    EXPECT_EQ(sia451Datei.ProjektNummer.size(), 11U);
    EXPECT_EQ(sia451Datei.ProjektName.size(), 30U);
    EXPECT_EQ(sia451Datei.DokumentNummer.size(), 15U);
    EXPECT_EQ(sia451Datei.DokumentName.size(), 30U);
    EXPECT_EQ(sia451Datei.SoftwareHersteller.size(), 20U);
    EXPECT_EQ(sia451Datei.KopfFeld188.size(), 20U);
    EXPECT_EQ(sia451Datei.SoftwareName.size(), 30U);
    EXPECT_EQ(sia451Datei.KopfFeld238.size(), 19U);
    EXPECT_EQ(sia451Datei.ZFeld18.size(), 12U);
    EXPECT_EQ(sia451Datei.ZFeld30.size(), 12U);
    EXPECT_EQ(sia451Datei.ZFeld123.size(), 15U);
    EXPECT_EQ(sia451Datei.ZFeld138.size(), 30U);
    EXPECT_EQ(sia451Datei.ZFeld168.size(), 20U);
    EXPECT_EQ(sia451Datei.ZFeld188.size(), 20U);
    EXPECT_EQ(sia451Datei.ZFeld208.size(), 49U);
}

} // namespace
} // namespace zepholt
