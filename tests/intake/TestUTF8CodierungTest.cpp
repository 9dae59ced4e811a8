#include "intake/TestUTF8Codierung.h"

#include "run/NeuerLauf.h"
#include "state/TestDaten.h"

#include <gtest/gtest.h>

namespace zepholt {
namespace {

using namespace std::string_view_literals;

ByteSicht AlsBytes(std::string_view text) {
    return {reinterpret_cast<const unsigned char*>(text.data()), text.size()};
}

bool Gut(std::string_view text) {
    return Utf8DateiPruefen(AlsBytes(text)) != 1;
}

struct Utf8Datei : ::testing::Test {
    Utf8Datei() { NeuerLauf(); }

    std::int32_t Pruefe(std::string_view bytes) { return Utf8DateiPruefen(AlsBytes(bytes)); }
};

// The bits of a value in a form of that many bytes, needed or not.
std::string InForm(char32_t wert, int bytes) {
    if (bytes == 1) {
        return {static_cast<char>(wert)};
    }
    std::string text;
    for (int i = 1; i < bytes; ++i) {
        text.insert(text.begin(), static_cast<char>(0x80 | (wert & 0x3F)));
        wert >>= 6;
    }
    const unsigned char fuehrung[] = {0, 0, 0xC0, 0xE0, 0xF0};
    text.insert(text.begin(), static_cast<char>(fuehrung[bytes] | wert));
    return text;
}

struct Grenze {
    char32_t Wert;
    int Form;
    bool Gut;
};

TEST_F(Utf8Datei, GrenzenJederForm) {
    const Grenze grenzen[] = {
        {0x00, 1, true},      {0x7F, 1, true},      {0x00, 2, false},    {0x7F, 2, false},     {0x80, 2, true},
        {0x7FF, 2, true},     {0x00, 3, false},     {0x7FF, 3, false},   {0x800, 3, true},     {0xD7FF, 3, true},
        {0xD800, 3, false},   {0xDBFF, 3, false},   {0xDC00, 3, false},  {0xDFFF, 3, false},   {0xE000, 3, true},
        {0xFDCF, 3, true},    {0xFDD0, 3, false},   {0xFDEF, 3, false},  {0xFDF0, 3, true},    {0xFEFF, 3, true},
        {0xFFFD, 3, true},    {0xFFFE, 3, false},   {0xFFFF, 3, false},  {0x00, 4, false},     {0xFFFF, 4, false},
        {0x10000, 4, true},   {0x1F600, 4, true},   {0x10FFFD, 4, true}, {0x10FFFE, 4, false}, {0x10FFFF, 4, false},
        {0x110000, 4, false}, {0x1FFFFF, 4, false},
    };
    for (const Grenze& grenze : grenzen) {
        const std::string bytes = "x" + InForm(grenze.Wert, grenze.Form);
        EXPECT_EQ(Gut(bytes), grenze.Gut) << std::hex << static_cast<unsigned>(grenze.Wert) << " in " << grenze.Form;
    }
}

TEST_F(Utf8Datei, NichtzeichenInJederEbene) {
    for (char32_t ebene = 0; ebene <= 16; ++ebene) {
        const char32_t anfang = ebene << 16;
        const int form = ebene == 0 ? 3 : 4;
        EXPECT_TRUE(Gut(InForm(anfang | 0xFFFD, form))) << static_cast<unsigned>(ebene);
        EXPECT_FALSE(Gut(InForm(anfang | 0xFFFE, form))) << static_cast<unsigned>(ebene);
        EXPECT_FALSE(Gut(InForm(anfang | 0xFFFF, form))) << static_cast<unsigned>(ebene);
    }
}

TEST_F(Utf8Datei, JedesEinzelneByte) {
    for (int byte = 0; byte < 256; ++byte) {
        EXPECT_EQ(Gut(std::string(1, static_cast<char>(byte))), byte < 0x80) << byte;
    }
}

TEST_F(Utf8Datei, JedesPaarVonBytes) {
    for (int erstes = 0; erstes < 256; ++erstes) {
        for (int zweites = 0; zweites < 256; ++zweites) {
            const bool soll = (erstes < 0x80 && zweites < 0x80) ||
                              (erstes >= 0xC2 && erstes <= 0xDF && zweites >= 0x80 && zweites <= 0xBF);
            const std::string bytes = {static_cast<char>(erstes), static_cast<char>(zweites)};
            ASSERT_EQ(Gut(bytes), soll) << erstes << " " << zweites;
        }
    }
}

TEST_F(Utf8Datei, AbgeschnitteneFolgen) {
    for (const std::string_view ganze : {"\xC3\xA4"sv, "\xE2\x82\xAC"sv, "\xF0\x9F\x98\x80"sv}) {
        EXPECT_TRUE(Gut(ganze));
        for (std::size_t laenge = 1; laenge < ganze.size(); ++laenge) {
            EXPECT_FALSE(Gut(ganze.substr(0, laenge))) << laenge;
            EXPECT_FALSE(Gut(std::string(ganze.substr(0, laenge)) + "abc")) << laenge;
        }
    }
}

TEST_F(Utf8Datei, FuehrendesByteAb248) {
    EXPECT_FALSE(Gut("\xF8\x88\x80\x80\x80"));
    EXPECT_FALSE(Gut("\xFF\x80\x80\x80"));
    EXPECT_FALSE(Gut("\x80"));
    EXPECT_FALSE(Gut("\xBF"));
}

TEST_F(Utf8Datei, BeispieleUndNull) {
    EXPECT_TRUE(Gut("\0"sv));
    EXPECT_FALSE(Gut("\xC0\x80"));
    EXPECT_FALSE(Gut("\xED\xA0\x80"));
    EXPECT_FALSE(Gut("\xEF\xBF\xBE"));
    EXPECT_TRUE(Gut("\xF0\x9F\x98\x80"));
}

TEST_F(Utf8Datei, LeereDateiIstGut) {
    EXPECT_EQ(Pruefe(""), 0);
}

TEST_F(Utf8Datei, NurAsciiUndUmlaute) {
    EXPECT_EQ(Pruefe("abc\r\ndef\r\n"), 0);
    EXPECT_EQ(Pruefe("abc\r\nd\xC3\xA4"
                     "f\r\n"),
              0);
    EXPECT_EQ(Pruefe("abc\r\nd\xE4"
                     "f\r\n"),
              1);
}

TEST_F(Utf8Datei, MarkeAmAnfangUndSonstwo) {
    EXPECT_EQ(Pruefe("\xEF\xBB\xBF"
                     "abc\r\n"),
              0);
    EXPECT_EQ(Pruefe("abc\r\n\xEF\xBB\xBF"
                     "abc\r\n"),
              0);
    EXPECT_EQ(Pruefe("\xEF\xBB"
                     "abc\r\n"),
              1);
}

TEST_F(Utf8Datei, JenseitsDerErstenEbeneNenntDieErsteZeile) {
    EXPECT_EQ(Pruefe("eins\r\nzwei \xF0\x9F\x98\x80\r\ndrei \xF0\x9F\x98\x80\r\n"), 2);
    EXPECT_EQ(testDaten.ZeilenNr, 1);
    EXPECT_EQ(Pruefe("\xF0\x9F\x98\x80\r\n"), 2);
    EXPECT_EQ(testDaten.ZeilenNr, 0);
    EXPECT_EQ(Pruefe("eins\r\n\xC3\xA4zwei \xEF\xBF\xBD\r\n"), 0);
}

TEST_F(Utf8Datei, UngueltigesGehtVor) {
    EXPECT_EQ(Pruefe("\xF0\x9F\x98\x80\r\n\xFF\r\n"), 1);
    EXPECT_EQ(testDaten.ZeilenNr, 0);
}

TEST_F(Utf8Datei, FolgeAmZeilenendeAbgeschnitten) {
    EXPECT_EQ(Pruefe("abc\xE2\x82\r\nabc\r\n"), 1);
    EXPECT_EQ(Pruefe("abc\xE2\x82\xAC\r\nabc\r\n"), 0);
}

TEST_F(Utf8Datei, ZeilenNummerWeitHinten) {
    std::string bytes;
    for (int i = 0; i < 300'000; ++i) {
        bytes += i % 7 == 0 ? "\xC3\xA4hnlich\r\n" : "Zeile\r\n";
    }
    EXPECT_EQ(Pruefe(bytes), 0);
    EXPECT_EQ(Pruefe(bytes + "\xF0\x90\x80\x80\r\n" + bytes), 2);
    EXPECT_EQ(testDaten.ZeilenNr, 300'000);
}

} // namespace
} // namespace zepholt
