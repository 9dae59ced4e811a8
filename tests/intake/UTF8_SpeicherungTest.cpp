#include "intake/UTF8_Speicherung.h"

#include "run/NeuerLauf.h"
#include "state/TestDaten.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zepholt {
namespace {

using namespace std::string_view_literals;

ByteSicht AlsBytes(std::string_view text) {
    return {reinterpret_cast<const unsigned char*>(text.data()), text.size()};
}

Text Utf8(std::string_view bytes) {
    Text text(bytes.size(), u'?');
    text.resize(static_cast<std::size_t>(Utf8NachUnicode(AlsBytes(bytes), text.data()) - text.data()));
    return text;
}

// Code page 850 from 128 on, four hexadecimal digits a character.
constexpr std::string_view Zeichen850 = "00C700FC00E900E200E400E000E500E700EA00EB00E800EF00EE00EC00C400C5"
                                        "00C900E600C600F400F600F200FB00F900FF00D600DC00F800A300D800D70192"
                                        "00E100ED00F300FA00F100D100AA00BA00BF00AE00AC00BD00BC00A100AB00BB"
                                        "2591259225932502252400C100C200C000A9256325512557255D00A200A52510"
                                        "25142534252C251C2500253C00E300C3255A25542569256625602550256C00A4"
                                        "00F000D000CA00CB00C8013100CD00CE00CF2518250C2588258400A600CC2580"
                                        "00D300DF00D400D200F500D500B500FE00DE00DA00DB00D900FD00DD00AF00B4"
                                        "00AD00B1201700BE00B600A700F700B800B000A800B700B900B300B225A000A0";

TEST(Codeseite850Test, JedesByte) {
    const Codeseite seite = Codeseite850();
    for (std::size_t byte = 0; byte < 256; ++byte) {
        const std::string hex = byte < 128 ? "" : std::string(Zeichen850.substr((byte - 128) * 4, 4));
        const int soll = byte < 128 ? static_cast<int>(byte) : std::stoi(hex, nullptr, 16);
        EXPECT_EQ(seite.Zeichen[byte], soll) << byte;
    }
}

TEST(Codeseite850Test, KeineZweiBytesGebenDasselbeZeichen) {
    auto zeichen = Codeseite850().Zeichen;
    std::ranges::sort(zeichen);
    EXPECT_EQ(std::ranges::adjacent_find(zeichen), zeichen.end());
}

struct Umwandlung {
    std::string_view Bytes;
    TextSicht Soll;
};

TEST(Utf8NachUnicode, JederFall) {
    const Umwandlung faelle[] = {
        {"", u""},
        {"abc", u"abc"},
        {"lange Zeile nur aus ASCII 0123456789", u"lange Zeile nur aus ASCII 0123456789"},
        {"a\0b"sv, u"a\0b"sv},
        {"\xC3\xA4", u"\u00E4"},
        {"\xC2\x80\xDF\xBF", u"\u0080\u07FF"},
        {"\xE0\xA0\x80\xE2\x82\xAC\xEF\xBF\xBF", u"\u0800\u20AC\uFFFF"},
        {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", u"\xD800\xDC00\xDBFF\xDFFF"},
        {"\xF0\x9F\x98\x80z", u"\xD83D\xDE00z"},
        {"\xEF\xBB\xBFz", u"\uFEFFz"},
        // what is no UTF-8
        {"a\x80z", u"a\uFFFDz"},
        {"\xC3", u"\uFFFD"},
        {"\xC3z", u"\uFFFDz"},
        {"\xC0\x80", u"\uFFFD\uFFFD"},
        {"\xC1\xBF", u"\uFFFD\uFFFD"},
        {"\xE0\x80\x80", u"\uFFFD\uFFFD\uFFFD"},
        {"\xE2\x82", u"\uFFFD"},
        {"\xE2\x82z", u"\uFFFDz"},
        {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},
        {"\xED\x9F\xBF", u"\uD7FF"},
        {"\xF0\x8F\xBF\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xF0\x9F\x98", u"\uFFFD"},
        {"\xF0\x9F\x98z", u"\uFFFDz"},
        {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xF5\x80", u"\uFFFD\uFFFD"},
        {"\xFF\xFEz", u"\uFFFD\uFFFDz"},
        {"\xC3\xC3\xA4", u"\uFFFD\u00E4"},
    };
    for (const Umwandlung& fall : faelle) {
        EXPECT_EQ(Utf8(fall.Bytes), fall.Soll) << ::testing::PrintToString(fall.Bytes);
    }
}

TEST(Utf8NachUnicode, NieMehrEinheitenAlsBytes) {
    for (int erstes = 0; erstes < 256; ++erstes) {
        for (int zweites = 0; zweites < 256; ++zweites) {
            const std::string bytes = {static_cast<char>(erstes), static_cast<char>(zweites), '\xBF', '\xBF'};
            ASSERT_LE(Utf8(bytes).size(), bytes.size());
        }
    }
}

TEST(AsciiEnde, JedeStelle) {
    for (std::size_t laenge = 0; laenge < 160; ++laenge) {
        std::string bytes(laenge, 'x');
        EXPECT_EQ(AsciiEnde(AlsBytes(bytes), 0), laenge);
        for (std::size_t stelle = 0; stelle < laenge; ++stelle) {
            bytes[stelle] = '\x80';
            for (std::size_t ab = 0; ab <= stelle; ++ab) {
                ASSERT_EQ(AsciiEnde(AlsBytes(bytes), ab), stelle);
            }
            EXPECT_EQ(AsciiEnde(AlsBytes(bytes), stelle + 1), laenge);
            bytes[stelle] = 'x';
        }
    }
}

// --- The byte order mark ---------------------------------------------------------------------------------------------

Zeitpunkt heute;

struct Kopf : ::testing::Test {
    Kopf() {
        NeuerLauf();
        testDaten.Uhr = [] { return heute; };
    }

    // The result for a first line with or without a mark on this day.
    bool Pruefe(bool istE1S, bool marke, int jahr, int monat, int tag) {
        heute = {jahr, monat, tag, 23, 59};
        testDaten.IstE1S = istE1S;
        testDaten.Utf8Modus = false;
        ByteSicht zeile = AlsBytes(marke ? "\xEF\xBB\xBF"
                                           "A  "
                                         : "A  ");
        const bool ergebnis = Utf8KopfPruefen(zeile);
        EXPECT_EQ(std::string(zeile.begin(), zeile.end()), "A  ");
        EXPECT_EQ(testDaten.Utf8Modus, istE1S || marke);
        return ergebnis;
    }
};

TEST_F(Kopf, E1SMitUndOhneMarke) {
    EXPECT_TRUE(Pruefe(true, false, 2026, 1, 1));
    EXPECT_TRUE(Pruefe(true, true, 2026, 1, 1));
    EXPECT_TRUE(Pruefe(true, false, 2100, 1, 1));
}

TEST_F(Kopf, MarkeEiner451DateiNachDemTag) {
    EXPECT_TRUE(Pruefe(false, false, 2026, 12, 31));
    EXPECT_FALSE(Pruefe(false, true, 2026, 12, 31));
    EXPECT_TRUE(Pruefe(false, false, 2098, 12, 31));
    EXPECT_FALSE(Pruefe(false, true, 2098, 12, 31));

    EXPECT_TRUE(Pruefe(false, false, 2099, 1, 1));
    EXPECT_TRUE(Pruefe(false, true, 2099, 1, 1));
    EXPECT_TRUE(Pruefe(false, false, 2099, 11, 30));
    EXPECT_TRUE(Pruefe(false, true, 2099, 11, 30));

    EXPECT_FALSE(Pruefe(false, false, 2099, 12, 1));
    EXPECT_TRUE(Pruefe(false, true, 2099, 12, 1));
    EXPECT_FALSE(Pruefe(false, false, 2100, 1, 1));
    EXPECT_TRUE(Pruefe(false, true, 2100, 1, 1));
}

TEST_F(Kopf, HalbeMarkeIstKeine) {
    heute = {2026, 1, 1, 0, 0};
    ByteSicht zeile = AlsBytes("\xEF\xBB");
    EXPECT_TRUE(Utf8KopfPruefen(zeile));
    EXPECT_FALSE(testDaten.Utf8Modus);
    EXPECT_EQ(zeile.size(), 2U);
}

} // namespace
} // namespace zepholt
