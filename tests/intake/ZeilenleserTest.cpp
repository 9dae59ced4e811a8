// The lines of a file as columns: in one byte, in 16 bits, and against the plain decoder.
#include "intake/Zeilenleser.h"

#include "intake/UTF8_Speicherung.h"
#include "run/NeuerLauf.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>

namespace zepholt {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

// A file with these bytes, read in in pieces of this length.
Zeilenschnitt Einlesen(std::string_view bytes, std::size_t stueck) {
    testDaten.Puffer = Bytes(bytes.size());
    std::memcpy(testDaten.Puffer.data(), bytes.data(), bytes.size());
    Zeilenschnitt schnitt;
    for (std::size_t bisher = 0; bisher < bytes.size();) {
        bisher = std::min(bisher + stueck, bytes.size());
        schnitt.Nimm(testDaten.Puffer.Sicht().first(bisher));
    }
    return schnitt;
}

// The lines of a file with these bytes.
std::vector<Text> Lies(std::string_view bytes, bool utf8, std::size_t erste = 0, std::size_t stueck = 10) {
    NeuerLauf();
    testDaten.IstE1S = utf8;
    testDaten.Utf8Modus = utf8;
    Zeilenschnitt schnitt = Einlesen(bytes, stueck);
    Zeilenleser leser(schnitt, erste);
    while (!leser.AmEnde()) {
        leser.Naechste();
    }
    std::vector<Text> zeilen;
    for (std::size_t k = 0; k < leser.Zeilen().size(); ++k) {
        zeilen.emplace_back(leser.Zeilen()[k]);
    }
    return zeilen;
}

Text NachUnicode(std::string_view zeile) {
    Text text(zeile.size(), u'?');
    const ByteSicht bytes(reinterpret_cast<const unsigned char*>(zeile.data()), zeile.size());
    text.resize(static_cast<std::size_t>(Utf8NachUnicode(bytes, text.data()) - text.data()));
    return text;
}

TEST(ZeilenleserTest, LinesAndPositions) {
    NeuerLauf();
    const std::string_view bytes = "eins\r\n\r\ndrei\r\n";
    Zeilenschnitt schnitt = Einlesen(bytes, 4);
    Zeilenleser leser(schnitt, 0);
    EXPECT_EQ(leser.Position(), 0U);
    leser.Naechste();
    EXPECT_EQ(leser.Position(), 6U);
    leser.Naechste();
    EXPECT_EQ(leser.Position(), 8U);
    EXPECT_FALSE(leser.AmEnde());
    leser.Naechste();
    EXPECT_TRUE(leser.AmEnde());
    EXPECT_EQ(leser.Zeilen().size(), 3U);
    EXPECT_EQ(leser.Zeilen()[0], u"eins");
    EXPECT_EQ(leser.Zeilen()[1], u"");
    EXPECT_EQ(leser.Zeilen()[2], u"drei");
}

// A 451-92 file of a time when it is UTF-8: what it can't keep is not what was looked for while it was read in.
TEST(ZeilenleserTest, Utf8InAFileOf451) {
    NeuerLauf();
    Zeilenschnitt schnitt = Einlesen("\xEF\xBB\xBFx\xC3\xA4\r\na\0b\r\n"sv, 4);
    testDaten.Utf8Modus = true;
    Zeilenleser leser(schnitt, 3);
    leser.Naechste();
    leser.Naechste();
    EXPECT_EQ(leser.Zeilen()[0], u"x\u00E4");
    EXPECT_EQ(leser.Zeilen()[1], Text(u"a\0b"sv));
}

TEST(ZeilenleserTest, CodePage850AndItsZeroByte) {
    const std::vector<Text> soll = {u"a\u00E4", u"", u"b", u"c\u251C\u00F1"};
    EXPECT_EQ(Lies("a\x84\r\n\0\x84\r\nb\0c\0\r\nc\xC3\xA4\r\n"sv, false), soll);
}

TEST(ZeilenleserTest, Utf8AndItsMark) {
    for (std::size_t stueck = 1; stueck < 20; ++stueck) {
        EXPECT_EQ(Lies("\xEF\xBB\xBFx\xC3\xA4y\r\n\xE2\x82\xAC\r\na\0b\r\n"sv, true, 3, stueck),
                  (std::vector<Text>{u"x\u00E4y", u"\u20AC", Text(u"a\0b"sv)}));
        EXPECT_TRUE(testDaten.BreiterPuffer.empty());
    }
}

// What is found while the file is read in: the bytes of 451-92, or of E1S, that no line can keep.
TEST(ZeilenschnittTest, TheFirstByteThatCannotStay) {
    struct Fall {
        std::string_view Bytes;
        bool IstE1S;
        std::size_t Erste;
    };
    const Fall faelle[] = {
        {"ab\r\nc\r\n"sv, false, 7},
        {"ab\r\n\0\r\n\0\r\n"sv, false, 4},
        {"\xC3\xA4\r\nc\r\n"sv, false, 7},
        {"ab\r\nc\r\n"sv, true, 7},
        {"a\0\r\n\xC3\xA4\r\n"sv, true, 4},
        {"\xEF\xBB\xBFz\r\n"sv, true, 6},
        {"\xEF\xBB\xBF\xC3\xA4\r\n"sv, true, 3},
        {"\xEF\xBB\xBFz\r\n"sv, false, 6},
    };
    for (const Fall& fall : faelle) {
        for (std::size_t stueck = 3; stueck < 12; ++stueck) {
            NeuerLauf();
            testDaten.IstE1S = fall.IstE1S;
            EXPECT_EQ(Einlesen(fall.Bytes, stueck).ErsteBesondere(), fall.Erste)
                << ::testing::PrintToString(fall.Bytes) << stueck;
        }
    }
}

TEST(ZeilenschnittTest, NothingIsCutBehindAWrongLineEnd) {
    NeuerLauf();
    Zeilenschnitt schnitt = Einlesen("a\r\nb\nc\r\nd\r\n", 3);
    EXPECT_EQ(schnitt.Zeilen().size(), 1U);
    EXPECT_EQ(schnitt.CrLfErgebnis(), 1);
}

// Exactly 128 characters beyond ASCII fit; one more, wherever it comes, and the columns have 16 bits.
TEST(ZeilenleserTest, TheHundredAndTwentyNinthCharacter) {
    for (const int anzahl : {127, 128, 129, 200}) {
        for (const int jeZeile : {1, 10, 300}) {
            std::string bytes = "ASCII\r\n";
            std::string zeile;
            std::vector<Text> soll = {u"ASCII"};
            for (int i = 0; i < anzahl; ++i) {
                zeile += "a\xE4"s + static_cast<char>(0xB8 + i / 64) + static_cast<char>(0x80 + i % 64) + "b";
                if (i % jeZeile == jeZeile - 1 || i == anzahl - 1) {
                    bytes += zeile + "\r\n\r\n";
                    soll.push_back(NachUnicode(zeile));
                    soll.emplace_back();
                    zeile.clear();
                }
            }
            ASSERT_EQ(Lies(bytes, true), soll) << anzahl << " " << jeZeile;
            EXPECT_EQ(testDaten.BreiterPuffer.empty(), anzahl <= 128);
        }
    }
}

// 128 blocks of 256 characters give one each to the file, all from the same place; ASCII has a block of its own.
TEST(ZeilenleserTest, CharactersOfAsManyBlocksAsThereAreCodes) {
    std::string bytes;
    std::vector<Text> soll;
    for (int i = 0; i < 128; ++i) {
        const char16_t zeichen = static_cast<char16_t>(0x01E4 + 0x100 * i);
        soll.push_back(u'A' + Text(1, zeichen) + u'B');
        bytes += Utf8Bytes(soll.back()) + "\r\n";
    }
    EXPECT_EQ(Lies(bytes, true), soll);
    EXPECT_TRUE(testDaten.BreiterPuffer.empty());
    EXPECT_EQ(Lies(bytes + "\xC3\xA4\r\n", true).back(), u"\u00E4");
    EXPECT_FALSE(testDaten.BreiterPuffer.empty());
}

TEST(ZeilenleserTest, AnyBytesAsThePlainDecoderReadsThem) {
    std::mt19937 zufall(11);
    const std::string_view stuecke[] = {
        "a",        " ",    "\xC3\xA4",         "\xC3", "\x80",     "\xE2\x82\xAC",
        "\xE2\x82", "\xFF", "\xF0\x9F\x98\x80", "\0"sv, "\xC2\xA0", "0123456789012345678901234567890123456789"};
    for (int lauf = 0; lauf < 600; ++lauf) {
        std::string bytes;
        std::vector<Text> soll;
        for (auto n = 1 + zufall() % 6; n > 0; --n) {
            std::string zeile;
            const auto auswahl = zufall() % 3;
            for (auto laenge = zufall() % 40; laenge > 0; --laenge) {
                if (auswahl == 2 && zufall() % 3 == 0) {
                    zeile += static_cast<char>(0xD0 + zufall() % 8); // two bytes: 512 characters
                    zeile += static_cast<char>(0x80 + zufall() % 64);
                } else {
                    zeile += auswahl == 0 ? "a" : stuecke[zufall() % std::size(stuecke)];
                }
            }
            soll.push_back(NachUnicode(zeile));
            bytes += zeile + "\r\n";
        }
        ASSERT_EQ(Lies(bytes, true, 0, 1 + zufall() % 100), soll) << lauf;
    }
}

} // namespace
} // namespace zepholt
