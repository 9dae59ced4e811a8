// UTF-8 and surrogate pairs, there and back.
#include "support/Utf8.h"

#include <gtest/gtest.h>

#include <array>

namespace zepholt {
namespace {

std::string Utf8(char32_t codepunkt) {
    std::string bytes;
    Utf8Anhaengen(bytes, codepunkt);
    return bytes;
}

struct FolgeFall {
    std::string_view Bytes;
    std::size_t Laenge;
    bool Gueltig;
    char32_t Codepunkt;
};

TEST(Utf8, ReadsTheSequenceAtTheFront) {
    const FolgeFall faelle[] = {
        {"ab", 1, true, U'a'},
        {"\x7F", 1, true, 0x7F},
        {"\xC2\x80z", 2, true, 0x80},
        {"\xDF\xBF", 2, true, 0x7FF},
        {"\xE0\xA0\x80", 3, true, 0x800},
        {"\xED\x9F\xBF", 3, true, 0xD7FF},
        {"\xEE\x80\x80", 3, true, 0xE000},
        {"\xEF\xBF\xBF", 3, true, 0xFFFF},
        {"\xF0\x90\x80\x80", 4, true, 0x10000},
        {"\xF4\x8F\xBF\xBFz", 4, true, 0x10FFFF},
        // No beginning of a sequence.
        {"\x80", 1, false, 0},
        {"\xC1\xBF", 1, false, 0},
        {"\xF5\x80\x80\x80", 1, false, 0},
        {"\xFF", 1, false, 0},
        // Cut off, or not gone on with: the bytes that fitted until then.
        {"\xC3", 1, false, 0},
        {"\xC3z", 1, false, 0},
        {"\xE2\x82", 2, false, 0},
        {"\xE2\x82z", 2, false, 0},
        {"\xF0\x9F\x98", 3, false, 0},
        {"\xF0\x9F\x98\xC3", 3, false, 0},
        // Overlong forms, surrogates, and what lies behind the last character.
        {"\xE0\x9F\xBF", 1, false, 0},
        {"\xED\xA0\x80", 1, false, 0},
        {"\xF0\x8F\xBF\xBF", 1, false, 0},
        {"\xF4\x90\x80\x80", 1, false, 0},
    };
    for (const FolgeFall& fall : faelle) {
        const Utf8Folge folge = Utf8Lesen(fall.Bytes);
        const std::string name = testing::PrintToString(std::string(fall.Bytes));
        EXPECT_EQ(folge.Laenge, fall.Laenge) << name;
        EXPECT_EQ(folge.Gueltig, fall.Gueltig) << name;
        EXPECT_EQ(std::uint32_t{folge.Codepunkt}, std::uint32_t{fall.Codepunkt}) << name;
    }
}

TEST(Utf8, EveryCharacterComesBack) {
    for (char32_t codepunkt = 0; codepunkt <= 0x10FFFF; ++codepunkt) {
        if (IstHohesSurrogat(codepunkt) || IstTiefesSurrogat(codepunkt)) {
            continue;
        }
        const std::string bytes = Utf8(codepunkt);
        const Utf8Folge folge = Utf8Lesen(bytes);
        ASSERT_TRUE(folge.Gueltig && folge.Laenge == bytes.size() && folge.Codepunkt == codepunkt)
            << std::uint32_t{codepunkt};
        std::array<char16_t, 2> einheiten;
        const char16_t* ende = Utf16Schreiben(einheiten.data(), codepunkt);
        ASSERT_EQ(ende - einheiten.data(), codepunkt > 0xFFFF ? 2 : 1) << std::uint32_t{codepunkt};
        ASSERT_TRUE(Utf16Lesen({einheiten.data(), ende}) == codepunkt) << std::uint32_t{codepunkt};
    }
}

TEST(Utf8, ASurrogateGetsTheThreeBytesOfItsNumber) {
    EXPECT_EQ(Utf8(0xD800), "\xED\xA0\x80");
    EXPECT_EQ(Utf8(0xDFFF), "\xED\xBF\xBF");
}

TEST(Utf16, OnlyAHighSurrogateBeforeALowOneIsAPair) {
    EXPECT_EQ(std::uint32_t{Utf16Lesen(u"\xD800\xDC00")}, 0x10000U);
    EXPECT_EQ(std::uint32_t{Utf16Lesen(u"\xDBFF\xDFFF")}, 0x10FFFFU);
    EXPECT_EQ(std::uint32_t{Utf16Lesen(u"\xD800")}, 0xD800U);
    EXPECT_EQ(std::uint32_t{Utf16Lesen(u"\xD800\xD800")}, 0xD800U);
    EXPECT_EQ(std::uint32_t{Utf16Lesen(u"\xDC00\xDC00")}, 0xDC00U);
    EXPECT_EQ(std::uint32_t{Utf16Lesen(u"\xD800x")}, 0xD800U);
}

} // namespace
} // namespace zepholt
