#include "intake/Dateibytes.h"

#include "hilfen/Testordner.h"
#include "intake/UTF8_Speicherung.h"
#include "run/NeuerLauf.h"
#include "state/TestDaten.h"

#include <gtest/gtest.h>

#include <random>

namespace zepholt {
namespace {

using hilfen::Testordner;

std::string AusBytes(ByteSicht bytes) {
    return {bytes.begin(), bytes.end()};
}

ByteSicht AlsBytes(std::string_view text) {
    return {reinterpret_cast<const unsigned char*>(text.data()), text.size()};
}

struct GanzeDatei : ::testing::Test {
    GanzeDatei() { NeuerLauf(); }

    Dateitext Lies(std::string_view bytes) {
        Ordner.Schreibe("d", bytes);
        return DateiBytesLesen(Ordner.TextPfad("d"));
    }
    Testordner Ordner;
};

TEST_F(GanzeDatei, JedesByteAnSeinemPlatz) {
    EXPECT_EQ(AusBytes(Lies("").Rohbytes()), "");
    EXPECT_EQ(AusBytes(Lies("x").Rohbytes()), "x");
    std::mt19937 zufall(7);
    std::string bytes(3'000'001, 'x');
    for (char& byte : bytes) {
        byte = static_cast<char>(zufall());
    }
    EXPECT_TRUE(AusBytes(Lies(bytes).Rohbytes()) == bytes);
}

TEST_F(GanzeDatei, NurGewoehnlicheDateien) {
    EXPECT_THROW(DateiBytesLesen(Ordner.TextPfad("fehlt")), LaufzeitFehler);
    EXPECT_THROW(DateiBytesLesen(Ordner.TextPfad(".")), LaufzeitFehler);
    EXPECT_THROW(DateiBytesLesen(u"/dev/zero"), LaufzeitFehler);
}

// The decoded text grows over the bytes that it was decoded from: lines of every length, decoded in place and apart.
TEST_F(GanzeDatei, DerTextUeberholtDieBytesNie) {
    std::mt19937 zufall(11);
    for (int lauf = 0; lauf < 400; ++lauf) {
        NeuerLauf();
        testDaten.Utf8Modus = lauf % 2 == 0;
        std::string bytes;
        std::vector<std::string> zeilen(1 + zufall() % 5);
        for (std::string& zeile : zeilen) {
            const std::size_t laenge = zufall() % 200;
            const auto auswahl = zufall() % 3;
            while (zeile.size() < laenge) {
                zeile += auswahl == 0 || zufall() % 9 == 0 ? "\xC3\xA4" : auswahl == 1 ? "a" : "\xF0\x9F\x98\x80";
            }
            bytes += zeile + "\r\n";
        }
        testDaten.Puffer = Lies(bytes);
        Zeilenleser leser(testDaten.Puffer.Rohbytes());
        for (const std::string& zeile : zeilen) {
            Text soll(zeile.size(), u'?');
            char16_t* ende = testDaten.Utf8Modus ? Utf8NachUnicode(AlsBytes(zeile), soll.data())
                                                 : OemNachAnsi(AlsBytes(zeile), soll.data());
            soll.resize(static_cast<std::size_t>(ende - soll.data()));
            ASSERT_EQ(ZeileDekodieren(leser.Naechste()), soll) << lauf;
        }
        ASSERT_TRUE(leser.AmEnde());
    }
}

TEST(Zeilenlesen, ZeilenUndPositionen) {
    Zeilenleser leser(AlsBytes("eins\r\n\r\ndrei\r\n"));
    EXPECT_EQ(leser.Position(), 0U);
    EXPECT_EQ(AusBytes(leser.Naechste()), "eins");
    EXPECT_EQ(leser.Position(), 6U);
    EXPECT_EQ(AusBytes(leser.Naechste()), "");
    EXPECT_EQ(leser.Position(), 8U);
    EXPECT_FALSE(leser.AmEnde());
    EXPECT_EQ(AusBytes(leser.Naechste()), "drei");
    EXPECT_TRUE(leser.AmEnde());
}

TEST(ByteSuche, ErsteStelleOderLaenge) {
    const unsigned char bytes[] = {'a', 0, 'b', 0};
    EXPECT_EQ(ByteSuchen(bytes, 0), 1U);
    EXPECT_EQ(ByteSuchen(bytes, 0, 2), 3U);
    EXPECT_EQ(ByteSuchen(bytes, 'c'), 4U);
    EXPECT_EQ(ByteSuchen(bytes, 'a', 4), 4U);
    EXPECT_EQ(ByteSuchen({}, 'a'), 0U);
}

TEST(Zeilenenden, GezaehltInJederLaenge) {
    EXPECT_EQ(ZeilenendenZaehlen({}), 0U);
    for (std::size_t laenge = 1; laenge < 1000; laenge += 7) {
        EXPECT_EQ(ZeilenendenZaehlen(AlsBytes(std::string(laenge, '\n'))), laenge);
        EXPECT_EQ(ZeilenendenZaehlen(AlsBytes(std::string(laenge, '\r') + "\n")), 1U);
    }
}

} // namespace
} // namespace zepholt
