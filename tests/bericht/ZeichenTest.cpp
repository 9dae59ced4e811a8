#include "bericht/Zeichen.h"
#include "bericht/Ausgabe.h"

#include <gtest/gtest.h>

namespace zepholt::bericht {
namespace {

TEST(Zeichen, Utf8IsValidWhateverTheTextHolds) {
    EXPECT_EQ(Utf8(u"Türen ≥ 30"), "Türen ≥ 30");
    EXPECT_EQ(Utf8(u"\xD83D\xDE00"), "\xF0\x9F\x98\x80");
    EXPECT_EQ(Utf8(Text{u'a', 0xD800, u'b'}), "a\xEF\xBF\xBD"
                                              "b"); // a surrogate alone
    EXPECT_EQ(Utf8(Text{0xDE00}), "\xEF\xBF\xBD");
    EXPECT_EQ(Bereinigt("a\xFF"
                        "b"),
              "a\xEF\xBF\xBD"
              "b");
}

TEST(Zeichen, WhatCantBeSeenIsKnown) {
    for (const char32_t zeichen : {U'\0', U'\x07', U'\x1F', U'\x7F', U'\x85', U'\xA0', U'\xAD', U'\u200B', U'\u202E',
                                   U'\u2028', U'\u2066', U'\uFEFF', U'\U000E0001'}) {
        EXPECT_TRUE(IstUnsichtbar(zeichen)) << Codepunktname(zeichen);
    }
    for (const char32_t zeichen : {U' ', U'~', U'\xA1', U'\xAE', U'ü', U'–', U'≥', U'\U0001F600'}) {
        EXPECT_FALSE(IstUnsichtbar(zeichen)) << Codepunktname(zeichen);
    }
    EXPECT_EQ(Codepunktname(0x202E), "U+202E");
    EXPECT_EQ(Codepunktname(7), "U+0007");
}

TEST(Zeichen, ThousandsAreKeptApart) {
    EXPECT_EQ(Zahl(0), "0");
    EXPECT_EQ(Zahl(999), "999");
    EXPECT_EQ(Zahl(1000), "1’000");
    EXPECT_EQ(Zahl(514811), "514’811");
    EXPECT_EQ(Zahl(1234567), "1’234’567");
}

TEST(Zeichen, JsonHoldsNothingThatAPageCouldTakeForItsOwn) {
    EXPECT_EQ(JsonText("a\"b\\c"), R"("a\"b\\c")");
    EXPECT_EQ(JsonText("</script>&"), R"("\u003c/script\u003e\u0026")");
    EXPECT_EQ(JsonText("\x07ü"), R"("\u0007ü")");
    EXPECT_EQ(JsonText("\xE2\x80\xAE\xE2\x80\xA8"), R"("\u202e\u2028")");
    EXPECT_EQ(JsonText("\xF3\xA0\x80\x81"), R"("\udb40\udc01")");
    EXPECT_EQ(JsonText(""), R"("")");
}

} // namespace
} // namespace zepholt::bericht
