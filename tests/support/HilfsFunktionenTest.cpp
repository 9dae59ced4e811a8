#include "support/HilfsFunktionen.h"

#include "support/OS_API.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zepholt {
namespace {

// --- Texts ---

TEST(RechtsBuendig, FuelltVorneUndKuerztNie) {
    EXPECT_EQ(RechtsBuendig(u"17", 6), u"    17");
    EXPECT_EQ(RechtsBuendig(u"123456", 6), u"123456");
    EXPECT_EQ(RechtsBuendig(u"1234567", 6), u"1234567");
    EXPECT_EQ(RechtsBuendig(u"", 3), u"   ");
    EXPECT_EQ(RechtsBuendig(u"a", 0), u"a");
    EXPECT_EQ(RechtsBuendig(u"a", -1), u"a");
}

TEST(LinksBuendig, FuelltHintenUndKuerztNie) {
    EXPECT_EQ(LinksBuendig(u"17", 6), u"17    ");
    EXPECT_EQ(LinksBuendig(u"123456", 6), u"123456");
    EXPECT_EQ(LinksBuendig(u"1234567", 6), u"1234567");
    EXPECT_EQ(LinksBuendig(u"", 3), u"   ");
    EXPECT_EQ(LinksBuendig(u"a", -1), u"a");
}

TEST(NurZiffern, OneDigitAtLeastAndNothingElse) {
    for (const TextSicht ziffern : {u"0", u"9", u"0123456789"}) {
        EXPECT_TRUE(NurZiffern(ziffern));
    }
    for (const TextSicht andere : {u"", u" ", u"1 ", u"-1", u"1/", u"1:", u"\u0661", u"1\uFF11"}) {
        EXPECT_FALSE(NurZiffern(andere)) << Utf8Bytes(andere);
    }
}

TEST(OhneLeerzeichen, NimmtNurLeerzeichenWeg) {
    EXPECT_EQ(OhneLeerzeichen(u"  a b  "), u"a b");
    EXPECT_EQ(OhneLeerzeichen(u"   "), u"");
    EXPECT_EQ(OhneLeerzeichen(u"\t a \u00A0"), u"\t a \u00A0");
    EXPECT_EQ(OhneLeerzeichenRechts(u"  a b  "), u"  a b");
    EXPECT_EQ(OhneLeerzeichenRechts(u"a\t"), u"a\t");
}

TEST(ZahlText, Dezimal) {
    EXPECT_EQ(ZahlText(0), u"0");
    EXPECT_EQ(ZahlText(-12), u"-12");
    EXPECT_EQ(ZahlText(9223372036854775807), u"9223372036854775807");
}

TEST(Kleinbuchstaben, NurABisZ) {
    EXPECT_EQ(Kleinbuchstaben(u"AZaz@[\u00C4"), u"azaz@[\u00C4");
}

TEST(AusAscii, BytesUeber127BehaltenIhrenWert) {
    EXPECT_EQ(AusAscii("A\x80\xFF"), u"A\u0080\u00FF");
}

TEST(AnzahlElemente, LeerIstNull) {
    EXPECT_EQ(AnzahlElemente(std::vector<int>{}), 0);
    EXPECT_EQ(AnzahlElemente(std::vector<int>{4, 5, 6}), 3);
}

struct GrossFall {
    char16_t Zeichen;
    char16_t Gross;
};

TEST(Grossbuchstabe, VonHandGewaehlteZeichen) {
    const GrossFall faelle[] = {
        {u'a', u'A'},     {u'z', u'Z'},     {u'A', u'A'},     {u'`', u'`'},
        {u'{', u'{'},     {u'0', u'0'},     {u' ', u' '},     {0x00E4, 0x00C4},
        {0x00F6, 0x00D6}, {0x00FC, 0x00DC}, {0x00E9, 0x00C9}, {0x00F7, 0x00F7}, // the division sign
        {0x00D7, 0x00D7},                                                       // the multiplication sign
        {0x00DF, 0x00DF},                                                       // sharp s: two letters
        {0x00FF, 0x0178},                                                       // y with diaeresis
        {0x00B5, 0x039C},                                                       // micro sign: Greek
        {0x00AA, 0x00AA}, {0x00BA, 0x00BA}, {0x0101, 0x0100}, {0x0100, 0x0100},
        {0x0131, u'I'}, // dotless i
        {0x0130, 0x0130}, {0x0137, 0x0136}, {0x0138, 0x0138}, {0x0148, 0x0147},
        {0x0149, 0x0149},                 // n with apostrophe: two
        {0x017E, 0x017D}, {0x017F, u'S'}, // long s
        {0x0180, 0x0243}, {0x0192, 0x0191}, {0x0195, 0x01F6}, {0x019E, 0x0220},
        {0x01C4, 0x01C4}, {0x01C5, 0x01C4}, {0x01C6, 0x01C4}, // DZ in its three forms
        {0x01CC, 0x01CA}, {0x01DD, 0x018E}, {0x01F0, 0x01F0}, {0x01F3, 0x01F1},
        {0x0250, 0x2C6F}, {0x0253, 0x0181}, {0x0345, 0x0399}, {0x0390, 0x0390},
        {0x03AC, 0x0386}, {0x03B1, 0x0391}, {0x03C2, 0x03A3}, // final sigma
        {0x03C3, 0x03A3}, {0x03C9, 0x03A9}, {0x03CE, 0x038F}, {0x03D1, 0x0398},
        {0x0430, 0x0410}, {0x044F, 0x042F}, {0x0450, 0x0400}, {0x0451, 0x0401},
        {0x04CF, 0x04C0}, {0x0561, 0x0531}, {0x0586, 0x0556}, {0x0587, 0x0587},
        {0x10D0, 0x1C90}, // Georgian
        {0x13F8, 0x13F0}, {0x1C80, 0x0412}, {0x1D79, 0xA77D}, {0x1E01, 0x1E00},
        {0x1E96, 0x1E96}, {0x1E9B, 0x1E60}, {0x1E9E, 0x1E9E}, {0x1EA1, 0x1EA0},
        {0x1F00, 0x1F08}, {0x1F50, 0x1F50}, {0x1F51, 0x1F59}, {0x1F70, 0x1FBA},
        {0x1F80, 0x1F88}, {0x1F88, 0x1F88}, {0x1FA7, 0x1FAF}, {0x1FB3, 0x1FBC},
        {0x1FB6, 0x1FB6}, {0x1FBE, 0x0399}, {0x1FC3, 0x1FCC}, {0x1FE5, 0x1FEC},
        {0x1FF3, 0x1FFC}, {0x214E, 0x2132}, {0x2170, 0x2160}, {0x2184, 0x2183},
        {0x24D0, 0x24B6}, {0x24E9, 0x24CF}, {0x2C30, 0x2C00}, {0x2C65, 0x023A},
        {0x2D00, 0x10A0}, {0xA641, 0xA640}, {0xA794, 0xA7C4}, {0xAB53, 0xA7B3},
        {0xAB70, 0x13A0}, {0xFB00, 0xFB00}, // ligature ff
        {0xFF41, 0xFF21}, {0xFF5A, 0xFF3A}, {0xFF5B, 0xFF5B}, {0xFFFF, 0xFFFF},
        {0xD800, 0xD800}, {0xDC00, 0xDC00}, {0x4E00, 0x4E00}, {0x0000, 0x0000},
    };
    for (const GrossFall& fall : faelle) {
        EXPECT_EQ(Grossbuchstabe(fall.Zeichen), fall.Gross) << std::hex << static_cast<unsigned>(fall.Zeichen);
    }
}

TEST(Grossbuchstabe, EinGrossbuchstabeBleibt) {
    int kleine = 0;
    for (std::uint32_t zeichen = 0; zeichen <= 0xFFFF; ++zeichen) {
        const char16_t gross = Grossbuchstabe(static_cast<char16_t>(zeichen));
        kleine += gross != zeichen ? 1 : 0;
        EXPECT_EQ(Grossbuchstabe(gross), gross) << std::hex << zeichen;
    }
    EXPECT_EQ(kleine, 1190); // as many characters of the first plane have an upper case of one character
}

// --- Bytes and the command line ---

struct ByteFall {
    const char* Bytes;
    const char16_t* Text;
};

TEST(Utf8Bytes, HinUndZurueckOhneVerlust) {
    const ByteFall faelle[] = {
        {"", u""},
        {"abc", u"abc"},
        {"\x7F", u"\u007F"},
        {"\xC2\x80", u"\u0080"},
        {"\xC3\xA4", u"\u00E4"},
        {"\xDF\xBF", u"\u07FF"},
        {"\xE0\xA0\x80", u"\u0800"},
        {"\xED\x9F\xBF", u"\uD7FF"},
        {"\xEE\x80\x80", u"\uE000"},
        {"\xEF\xBF\xBF", u"\uFFFF"},
        {"\xF0\x90\x80\x80", u"\U00010000"},
        {"\xF0\x9F\x98\x80", u"\U0001F600"},
        {"\xF4\x8F\xBF\xBF", u"\U0010FFFF"},
        // What is no UTF-8 comes back byte by byte.
        {"\xE4", u"\xDCE4"},
        {"a\xFFz", u"a\xDCFFz"},
        {"\x80", u"\xDC80"},
        {"\xC0\x80", u"\xDCC0\xDC80"},
        {"\xC1\xBF", u"\xDCC1\xDCBF"},
        {"\xC3", u"\xDCC3"},
        {"\xC3z", u"\xDCC3z"},
        {"\xE0\x9F\xBF", u"\xDCE0\xDC9F\xDCBF"},
        {"\xE2\x82", u"\xDCE2\xDC82"},
        {"\xE2\x82z", u"\xDCE2\xDC82z"},
        {"\xED\xA0\x80", u"\xDCED\xDCA0\xDC80"},
        {"\xF0\x8F\xBF\xBF", u"\xDCF0\xDC8F\xDCBF\xDCBF"},
        {"\xF0\x9F\x98", u"\xDCF0\xDC9F\xDC98"},
        {"\xF4\x90\x80\x80", u"\xDCF4\xDC90\xDC80\xDC80"},
        {"\xF8\x88\x80\x80", u"\xDCF8\xDC88\xDC80\xDC80"},
        // An escaped byte right behind a pair of surrogates is not taken into the pair.
        {"\xF0\x9F\x98\x80\x80", u"\U0001F600\xDC80"},
    };
    for (const ByteFall& fall : faelle) {
        EXPECT_EQ(AusUtf8Bytes(fall.Bytes), fall.Text) << testing::PrintToString(std::string(fall.Bytes));
        EXPECT_EQ(Utf8Bytes(fall.Text), fall.Bytes) << testing::PrintToString(std::string(fall.Bytes));
    }
}

TEST(Utf8Bytes, JedeFolgeVonZweiBytesKommtZurueck) {
    for (unsigned a = 0; a < 256; ++a) {
        for (unsigned b = 0; b < 256; ++b) {
            const std::string bytes{static_cast<char>(a), static_cast<char>(b)};
            ASSERT_EQ(Utf8Bytes(AusUtf8Bytes(bytes)), bytes) << a << ' ' << b;
        }
    }
}

TEST(Utf8Bytes, AndereEinzelneErsatzzeichen) {
    EXPECT_EQ(Utf8Bytes(u"\xD800"), "\xED\xA0\x80");
    EXPECT_EQ(Utf8Bytes(u"\xDC00x"), "\xED\xB0\x80x");
    EXPECT_EQ(Utf8Bytes(u"\xDD00"), "\xED\xB4\x80");
}

struct KommandoFall {
    std::vector<Text> Argumente;
    Text Kommandotext;
};

TEST(KommandotextAus, SetztAnfuehrungszeichenWoSieFehlen) {
    const KommandoFall faelle[] = {
        {{}, u""},
        {{u"file=a.01S", u"dialog=de"}, u"file=a.01S dialog=de"},
        {{u"file=a b.01S"}, u"file=\"a b.01S\""},
        {{u"file=a b=c d"}, u"file=\"a b=c d\""},
        {{u"a b"}, u"\"a b\""},
        {{u""}, u"\"\""},
        {{u"x", u"", u"y"}, u"x \"\" y"},
        {{u"file=\"a b.01S\""}, u"file=\"a b.01S\""},
        {{u"file=\"a b"}, u"file=\"a b"},
        {{u"file="}, u"file="},
        {{u" "}, u"\" \""},
        {{u"file= "}, u"file=\" \""},
        {{u"file=a\tb"}, u"file=a\tb"},
        {{u"a b=c"}, u"a b=\"c\""},
    };
    for (const KommandoFall& fall : faelle) {
        EXPECT_EQ(KommandotextAus(fall.Argumente), fall.Kommandotext);
    }
}

TEST(OhneProgrammnamen, MitUndOhneAnfuehrungszeichen) {
    EXPECT_EQ(OhneProgrammnamen(u"zepholt.exe file=a dialog=de"), u"file=a dialog=de");
    EXPECT_EQ(OhneProgrammnamen(u"\"C:\\Program Files\\zepholt.exe\"  file=a"), u"file=a");
    EXPECT_EQ(OhneProgrammnamen(u"\"C:\\a b\"\\zepholt.exe file=a"), u"file=a");
    EXPECT_EQ(OhneProgrammnamen(u"zepholt\t file=a"), u"file=a");
    EXPECT_EQ(OhneProgrammnamen(u"zepholt"), u"");
    EXPECT_EQ(OhneProgrammnamen(u"zepholt   "), u"");
    EXPECT_EQ(OhneProgrammnamen(u"\"ohne Ende file=a"), u"");
    EXPECT_EQ(OhneProgrammnamen(u""), u"");
    EXPECT_EQ(OhneProgrammnamen(u"zepholt file=\"a b\" x "), u"file=\"a b\" x ");
}

// --- Paths ---

Text MitTrenner(const Text& pfad) { // '/' stands for the platform's separator
    Text ergebnis = pfad;
    for (char16_t& zeichen : ergebnis) {
        zeichen = zeichen == u'/' ? PfadTrenner() : zeichen;
    }
    return ergebnis;
}

TEST(DateiNameOhnePfad, HinterDemLetztenTrennerOderDoppelpunkt) {
    EXPECT_EQ(DateiNameOhnePfad(MitTrenner(u"a/b/N131241.qvm")), u"N131241.qvm");
    EXPECT_EQ(DateiNameOhnePfad(u"C:N131241.qvm"), u"N131241.qvm");
    EXPECT_EQ(DateiNameOhnePfad(MitTrenner(u"C:a/b")), u"b");
    EXPECT_EQ(DateiNameOhnePfad(MitTrenner(u"a/b:c")), u"b:c");
    EXPECT_EQ(DateiNameOhnePfad(u"N131241.qvm"), u"N131241.qvm");
    EXPECT_EQ(DateiNameOhnePfad(MitTrenner(u"a/")), u"");
    EXPECT_EQ(DateiNameOhnePfad(u""), u"");
}

TEST(OrdnerMitTrenner, SetztEinenTrennerNurWennErFehlt) {
    EXPECT_EQ(OrdnerMitTrenner(u"a"), MitTrenner(u"a/"));
    EXPECT_EQ(OrdnerMitTrenner(MitTrenner(u"a/")), MitTrenner(u"a/"));
}

// --- Numbers ---

struct AnfangFall {
    const char16_t* Text;
    double Wert;
};

TEST(ZahlAmAnfang, LiestSoWeitEsPasst) {
    const AnfangFall faelle[] = {
        {u"", 0},
        {u"   ", 0},
        {u"abc", 0},
        {u"12", 12},
        {u"  12", 12},
        {u"12abc", 12},
        {u"1 2", 1},
        {u"007", 7},
        {u"+5", 5},
        {u"-5", -5},
        {u"- 5", 0},
        {u"+-5", 0},
        {u"--5", 0},
        {u"-", 0},
        {u"+", 0},
        {u".", 0},
        {u"-.", 0},
        {u".5", 0.5},
        {u"-.5", -0.5},
        {u"5.", 5},
        {u"5.x", 5},
        {u"5.25", 5.25},
        {u"5.25.1", 5.25},
        {u"1,5", 1},
        {u"1e3", 1},
        {u"1E3", 1},
        {u"1d3", 1},
        {u"0x10", 0},
        {u"&H10", 0},
        {u"inf", 0},
        {u"nan", 0},
        {u"\t5", 0},
        {u"\u00A05", 0},
        {u"\uFF15", 0},
        {u"5\u0661", 5},
        {u"0.1", 0.1},
        {u"-0", 0},
        {u"9007199254740993", 9007199254740992.0},
        {u"123456789012345678901234567890", 1.2345678901234568e29},
    };
    for (const AnfangFall& fall : faelle) {
        EXPECT_EQ(ZahlAmAnfang(fall.Text), fall.Wert) << Utf8Bytes(fall.Text);
    }
}

TEST(ZahlAmAnfang, SehrLangeZahlen) {
    const Text neunen(400, u'9');
    EXPECT_EQ(ZahlAmAnfang(neunen), std::numeric_limits<double>::infinity());
    EXPECT_EQ(ZahlAmAnfang(u"-" + neunen), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(ZahlAmAnfang(u"+" + neunen + u".5"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(ZahlAmAnfang(Text(400, u'0') + u"7"), 7);
    EXPECT_EQ(ZahlAmAnfang(u"0." + Text(400, u'0') + u"1"), 0);
    EXPECT_EQ(ZahlAmAnfang(u"." + Text(400, u'0') + u"1"), 0);
    EXPECT_EQ(ZahlAmAnfang(u"1." + Text(400, u'0') + u"1"), 1);
    EXPECT_EQ(ZahlAmAnfang(u"0." + Text(400, u'3')), 1.0 / 3);
}

TEST(GanzzahlAmAnfang, RundetZurGeradenZahl) {
    EXPECT_EQ(GanzzahlAmAnfang(u"0.5"), 0);
    EXPECT_EQ(GanzzahlAmAnfang(u"1.5"), 2);
    EXPECT_EQ(GanzzahlAmAnfang(u"2.5"), 2);
    EXPECT_EQ(GanzzahlAmAnfang(u"-0.5"), 0);
    EXPECT_EQ(GanzzahlAmAnfang(u"-1.5"), -2);
    EXPECT_EQ(GanzzahlAmAnfang(u"-2.5x"), -2);
    EXPECT_EQ(GanzzahlAmAnfang(u"2.51"), 3);
    EXPECT_EQ(GanzzahlAmAnfang(u"0.49999999999999994"), 0);
    EXPECT_EQ(GanzzahlAmAnfang(u"-1073741824.5"), -1073741824);
    EXPECT_EQ(GanzzahlAmAnfang(u""), 0);
    EXPECT_EQ(GanzzahlAmAnfang(u" 1"), 1);
}

TEST(GanzzahlAmAnfang, AusserhalbVon32BitIstEinLaufzeitFehler) {
    EXPECT_EQ(GanzzahlAmAnfang(u"2147483647"), 2147483647);
    EXPECT_EQ(GanzzahlAmAnfang(u"2147483647.4"), 2147483647);
    EXPECT_EQ(GanzzahlAmAnfang(u"-2147483648.5"), -2147483647 - 1);
    EXPECT_THROW(GanzzahlAmAnfang(u"2147483647.5"), LaufzeitFehler);
    EXPECT_THROW(GanzzahlAmAnfang(u"2147483648"), LaufzeitFehler);
    EXPECT_THROW(GanzzahlAmAnfang(u"-2147483649"), LaufzeitFehler);
    EXPECT_THROW(GanzzahlAmAnfang(u"2251799813685248.5"), LaufzeitFehler);
    EXPECT_THROW(GanzzahlAmAnfang(u"-9007199254740993"), LaufzeitFehler);
    EXPECT_THROW(GanzzahlAmAnfang(Text(400, u'9')), LaufzeitFehler);
}

struct StrengFall {
    const char16_t* Text;
    std::optional<double> Wert;
};

TEST(StrengeZahl, NurGanzeZahlentexte) {
    const StrengFall faelle[] = {
        {u"12", 12},
        {u"  12  ", 12},
        {u"+12", 12},
        {u"-12", -12},
        {u"5.25", 5.25},
        {u"-0.5", -0.5},
        {u"000", 0},
        {u"", std::nullopt},
        {u"   ", std::nullopt},
        {u"-", std::nullopt},
        {u"+", std::nullopt},
        {u".", std::nullopt},
        {u"-.", std::nullopt},
        {u".5", std::nullopt},
        {u"-.5", std::nullopt},
        {u"5.", std::nullopt},
        {u"5.2.5", std::nullopt},
        {u"1 2", std::nullopt},
        {u"- 5", std::nullopt},
        {u"--5", std::nullopt},
        {u"12a", std::nullopt},
        {u"a12", std::nullopt},
        {u"1e3", std::nullopt},
        {u"0x1", std::nullopt},
        {u"1,5", std::nullopt},
        {u"12\t", std::nullopt},
        {u"inf", std::nullopt},
        {u"\uFF15", std::nullopt},
    };
    for (const StrengFall& fall : faelle) {
        EXPECT_EQ(StrengeZahl(fall.Text), fall.Wert) << Utf8Bytes(fall.Text);
    }
    EXPECT_EQ(StrengeZahl(Text(400, u'9')), std::nullopt);
    EXPECT_EQ(StrengeZahl(Text(400, u'0')), 0);
    EXPECT_EQ(StrengeZahl(u"1" + Text(308, u'0')), 1e308);
    EXPECT_EQ(StrengeZahl(u"1" + Text(309, u'0')), std::nullopt);
}

TEST(StrengeGanzzahl, RundetZurGeradenZahlUndBleibtIn32Bit) {
    EXPECT_EQ(StrengeGanzzahl(u"0.5"), 0);
    EXPECT_EQ(StrengeGanzzahl(u"1.5"), 2);
    EXPECT_EQ(StrengeGanzzahl(u"2.5"), 2);
    EXPECT_EQ(StrengeGanzzahl(u"-2.5"), -2);
    EXPECT_EQ(StrengeGanzzahl(u" 2013 "), 2013);
    EXPECT_EQ(StrengeGanzzahl(u"2147483647"), 2147483647);
    EXPECT_EQ(StrengeGanzzahl(u"-2147483648"), -2147483647 - 1);
    EXPECT_EQ(StrengeGanzzahl(u"2147483648"), std::nullopt);
    EXPECT_EQ(StrengeGanzzahl(u"2147483647.5"), std::nullopt);
    EXPECT_EQ(StrengeGanzzahl(u"-2147483649"), std::nullopt);
    EXPECT_EQ(StrengeGanzzahl(Text(400, u'9')), std::nullopt);
    EXPECT_EQ(StrengeGanzzahl(u""), std::nullopt);
    EXPECT_EQ(StrengeGanzzahl(u"5x"), std::nullopt);
}

} // namespace
} // namespace zepholt
