#include "intake/Zeichentest.h"

#include "intake/Intaketest.h"
#include "intake/UTF8_Speicherung.h"

#include <set>

namespace zepholt {
namespace {

using namespace hilfen;

struct Zeichentest : ::testing::Test {
    Zeichentest() { Setze(11, false); }

    void Setze(std::int32_t revision, bool istE1S) {
        Beginne();
        testDaten.Revision = revision;
        testDaten.IstE1S = istE1S;
        testDaten.Utf8Modus = istE1S;
        testDaten.ZeilenNr = 7;
        ErlaubteZeichenAufbauen();
    }

    // The findings of one record: the units are characters as decoded.
    Funde Pruefe(Text record) {
        FehlerLoeschen();
        testDaten.UndefinierterRecordTyp = false;
        m_record = std::move(record);
        testDaten.Record = Feldsicht(m_record);
        RecordZeichenTest();
        const bool befund = testDaten.UndefinierterRecordTyp || FundeAb(0) != Funde();
        const bool frei = m_record.starts_with(u'E') || m_record.starts_with(u'D') || m_record.starts_with(u'U');
        EXPECT_EQ(OhneZeichenbefund(m_record), !befund && !frei); // at once what the whole test finds
        return FundeAb(0);
    }

    // The code in the field B1:23, column 93.
    Funde PruefeZeichen(char16_t zeichen) { return Pruefe(Zeile(u"B1", {{93, Text(1, zeichen)}})); }

    Text m_record;
};

const Funde Keine;
const Funde Spalte93 = {{2031, 7, 93}};

Text AusOem(int byte) {
    return Text(1, Codeseite850().Zeichen[static_cast<std::size_t>(byte)]);
}

TEST_F(Zeichentest, ErlaubteZeichenNachCode) {
    const std::set<int> verboten = {127, 169, 170, 176, 177, 178, 179, 180, 184, 185, 186, 187, 188, 191,
                                    192, 193, 194, 195, 196, 197, 200, 201, 202, 203, 204, 205, 206, 213,
                                    217, 218, 219, 220, 223, 240, 242, 246, 247, 251, 254, 255};
    for (int byte = 1; byte < 256; ++byte) {
        const bool erlaubt = byte >= 32 && !verboten.contains(byte);
        EXPECT_EQ(Pruefe(Zeile(u"B1", {{93, AusOem(byte)}})), erlaubt ? Keine : Spalte93) << byte;
    }
    EXPECT_EQ(testDaten.ErlaubteZeichen.size(), 256U - 32U - verboten.size());
}

TEST_F(Zeichentest, KeinZeichenAusserhalbDerCodeseite) {
    EXPECT_EQ(PruefeZeichen(0x0000), Spalte93);
    EXPECT_EQ(PruefeZeichen(0x20AC), Spalte93);
    EXPECT_EQ(PruefeZeichen(0xFFFF), Spalte93);
    EXPECT_EQ(PruefeZeichen(0x0192), Keine); // code 159
}

TEST_F(Zeichentest, HochzahlenErstAbRevision11) {
    Setze(10, false);
    EXPECT_EQ(PruefeZeichen(0x00B3), Spalte93); // code 252
    EXPECT_EQ(PruefeZeichen(0x00B2), Spalte93); // code 253
    Setze(11, false);
    EXPECT_EQ(PruefeZeichen(0x00B3), Keine);
    EXPECT_EQ(PruefeZeichen(0x00B2), Keine);
}

TEST_F(Zeichentest, ZeileVon257Zeichen) {
    Text record = Zeile(u"B1", {{93, u"\t"}, {256, u" "}});
    EXPECT_EQ(Pruefe(record), Spalte93);
    record += u' ';
    EXPECT_EQ(Pruefe(record), (Funde{{2032, 7, 257}, {2031, 7, 93}}));
    record += u"xyz";
    EXPECT_EQ(Pruefe(record), (Funde{{2032, 7, 257}, {2031, 7, 93}}));
}

TEST_F(Zeichentest, ZeichenInEinerLueckeNur2032) {
    EXPECT_EQ(Pruefe(Zeile(u"B1", {{5, u"\t"}})), (Funde{{2032, 7, 5}}));
    EXPECT_EQ(Pruefe(Zeile(u"B1", {{4, u"\t"}})), (Funde{{2031, 7, 4}}));
    EXPECT_EQ(Pruefe(Zeile(u"B1", {{41, u"x"}})), (Funde{{2032, 7, 41}}));
}

TEST_F(Zeichentest, EineLueckeGibtEinenBefund) {
    EXPECT_EQ(Pruefe(Zeile(u"B1", {{10, u"x y z"}, {43, u"a"}})), (Funde{{2032, 7, 10}, {2032, 7, 43}}));
    EXPECT_EQ(Pruefe(Zeile(u"B1", {{43, u" "}, {87, u" "}})), Keine);
}

TEST_F(Zeichentest, HinterDemLetztenFeld) {
    EXPECT_EQ(Pruefe(Zeile(u"B1", {{256, u" "}})), Keine);
    EXPECT_EQ(Pruefe(Zeile(u"B1", {{223, u"x"}})), Keine);
    EXPECT_EQ(Pruefe(Zeile(u"B1", {{224, u"x"}})), (Funde{{2032, 7, 224}}));
    EXPECT_EQ(Pruefe(Zeile(u"B1", {{256, u"x"}})), (Funde{{2032, 7, 256}}));
}

TEST_F(Zeichentest, KurzeZeileHatKeineFelderDahinter) {
    EXPECT_EQ(Pruefe(Zeile(u"B1", {})), Keine);
    EXPECT_EQ(Pruefe(u"A"), Keine);
    EXPECT_FALSE(testDaten.UndefinierterRecordTyp);
}

TEST_F(Zeichentest, JedesZeichenEinesFeldesFuerSich) {
    EXPECT_EQ(Pruefe(Zeile(u"B1", {{93, u"\ta\t"}, {138, u"\t"}})),
              (Funde{{2031, 7, 93}, {2031, 7, 95}, {2031, 7, 138}}));
}

TEST_F(Zeichentest, UndefinierterTyp) {
    EXPECT_EQ(Pruefe(Zeile(u"Q1", {{93, u"\t"}})), Keine);
    EXPECT_TRUE(testDaten.UndefinierterRecordTyp);
    EXPECT_EQ(Pruefe(u""), Keine);
    EXPECT_TRUE(testDaten.UndefinierterRecordTyp);
    EXPECT_EQ(Pruefe(Zeile(u"B1", {{93, u"\t"}})), Spalte93);
    EXPECT_FALSE(testDaten.UndefinierterRecordTyp);
}

TEST_F(Zeichentest, UndefinierterTypZuLang) {
    EXPECT_EQ(Pruefe(Text(257, u'q')), (Funde{{2032, 7, 257}}));
    EXPECT_EQ(Pruefe(Text(256, u'q')), Keine);
}

TEST_F(Zeichentest, FreieZeilenNachZeichencode) {
    for (const TextSicht art : {u"E", u"D", u"U"}) {
        EXPECT_EQ(Pruefe(Text(art) + u" a~\u007F\u0080\u00FF"), Keine);
        EXPECT_EQ(Pruefe(Text(art) + u"a\t\u001F\u0100\u20AC"),
                  (Funde{{2031, 7, 3}, {2031, 7, 4}, {2031, 7, 5}, {2031, 7, 6}}));
        EXPECT_EQ(Pruefe(Text(art) + Text(255, u'x') + u"\t"), (Funde{{2032, 7, 257}, {2031, 7, 257}}));
        EXPECT_FALSE(testDaten.UndefinierterRecordTyp);
    }
    EXPECT_EQ(Pruefe(u"E"), Keine);
}

TEST_F(Zeichentest, FreieZeilenInUtf8Ungeprueft) {
    Setze(21, true);
    EXPECT_EQ(Pruefe(u"E\t\u0100"), Keine);
    Setze(11, false);
    testDaten.Utf8Modus = true;
    EXPECT_EQ(Pruefe(u"E\t\u0100"), Keine);
    EXPECT_EQ(Pruefe(u"E" + Text(256, u'x')), (Funde{{2032, 7, 257}}));
}

TEST_F(Zeichentest, UmlautInBeidenArten) {
    EXPECT_EQ(Pruefe(Zeile(u"B1", {{93, u"\u00E4"}})), Keine);
    Setze(21, true);
    EXPECT_EQ(Pruefe(Zeile(u"G6", {{208, u"\u00E4"}})), Keine);
}

TEST_F(Zeichentest, TabulatorInBeidenArten) {
    EXPECT_EQ(PruefeZeichen(u'\t'), Spalte93);
    Setze(21, true);
    EXPECT_EQ(PruefeZeichen(u'\t'), Spalte93);
}

TEST_F(Zeichentest, E1SVerbietetSteuerzeichen) {
    Setze(21, true);
    for (int code = 0; code <= 0x200; ++code) {
        const bool steuerzeichen = code < 32 || code == 127 || (code >= 128 && code <= 159);
        EXPECT_EQ(PruefeZeichen(static_cast<char16_t>(code)), steuerzeichen ? Spalte93 : Keine) << code;
    }
    EXPECT_EQ(PruefeZeichen(0x0416), Keine);
    EXPECT_EQ(PruefeZeichen(0x4E2D), Keine);
    EXPECT_EQ(PruefeZeichen(0xFFFD), Keine);
}

TEST_F(Zeichentest, Utf8In451DateiNurCodeseite1252) {
    testDaten.Utf8Modus = true;
    const TextSicht erlaubt = u"\u20AC\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u017D\u2018"
                              u"\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u017E\u0178";
    ASSERT_EQ(erlaubt.size(), 27U);
    for (std::uint32_t code = 0; code <= 0xFFFF; ++code) {
        const auto zeichen = static_cast<char16_t>(code);
        const bool gut =
            (code >= 32 && code < 127) || (code >= 160 && code < 256) || erlaubt.find(zeichen) != TextSicht::npos;
        ASSERT_EQ(PruefeZeichen(zeichen), gut ? Keine : Spalte93) << code;
    }
}

TEST_F(Zeichentest, LangeFormVonG6NurInDerNeuen) {
    const Text record = Zeile(u"G6", {{14, u"01"}, {93, u"x"}, {138, u"x"}});
    EXPECT_EQ(Pruefe(record), (Funde{{2032, 7, 14}, {2032, 7, 93}, {2032, 7, 138}}));
    Setze(21, true);
    EXPECT_EQ(Pruefe(record), Keine);
}

TEST_F(Zeichentest, FeldFuerFeld) {
    m_record = u"ab\tdefg";
    testDaten.Record = Feldsicht(m_record);
    FeldZeichenTest(1, 1);
    EXPECT_EQ(testDaten.NaechsteSpalte, 2);
    FeldZeichenTest(3, 2);
    EXPECT_EQ(testDaten.NaechsteSpalte, 5);
    EXPECT_EQ(FundeAb(0), (Funde{{2032, 7, 2}, {2031, 7, 3}}));
    FeldZeichenTest(5, 10);
    FeldZeichenTest(257, 0);
    EXPECT_EQ(testDaten.NaechsteSpalte, 257);
    EXPECT_EQ(FundeAb(0).size(), 2U);
    FeldZeichenTest(1, 2);
    EXPECT_EQ(testDaten.NaechsteSpalte, 3);
}

} // namespace
} // namespace zepholt
