#include "intake/Dateibloecke.h"

#include "hilfen/Testordner.h"

#include <gtest/gtest.h>

namespace zepholt {
namespace {

using hilfen::Testordner;

std::string Inhalt(const Dateibloecke& bloecke) {
    std::string bytes;
    for (const Bytes& block : bloecke) {
        bytes.append(block.Sicht().begin(), block.Sicht().end());
    }
    return bytes;
}

std::string AusBytes(ByteSicht bytes) {
    return {bytes.begin(), bytes.end()};
}

struct Dateibloecken : ::testing::Test {
    Dateibloecke Lies(std::string_view bytes) {
        Ordner.Schreibe("d", bytes);
        return DateiBytesLesen(Ordner.TextPfad("d"));
    }
    Testordner Ordner;
};

TEST_F(Dateibloecken, LeereDateiHatKeinenBlock) {
    EXPECT_TRUE(Lies("").empty());
}

TEST_F(Dateibloecken, KleineDateiIstEinBlock) {
    const Dateibloecke bloecke = Lies("eins\r\nzwei");
    ASSERT_EQ(bloecke.size(), 1U);
    EXPECT_EQ(Inhalt(bloecke), "eins\r\nzwei");
    EXPECT_EQ(Gesamtlaenge(bloecke), 10U);
    EXPECT_EQ(ZeilenendenZaehlen(bloecke), 1U);
}

TEST_F(Dateibloecken, BloeckeEndenAnZeilenenden) {
    std::string bytes;
    for (int i = 0; bytes.size() < 5'000'000; ++i) {
        bytes += std::to_string(i) + std::string(static_cast<std::size_t>(i % 300), 'x') + "\r\n";
    }
    bytes += "Rest";
    const Dateibloecke bloecke = Lies(bytes);
    EXPECT_GT(bloecke.size(), 2U);
    for (std::size_t i = 0; i + 1 < bloecke.size(); ++i) {
        EXPECT_EQ(bloecke[i].Sicht().back(), '\n');
    }
    EXPECT_TRUE(Inhalt(bloecke) == bytes);
    EXPECT_EQ(Gesamtlaenge(bloecke), bytes.size());
}

TEST_F(Dateibloecken, ZeileLaengerAlsEinBlock) {
    const std::string bytes = "kurz\r\n" + std::string(3'500'000, 'y') + "\r\nkurz\r\n";
    EXPECT_TRUE(Inhalt(Lies(bytes)) == bytes);
    const std::string ohneEnde(2'500'000, 'z');
    EXPECT_TRUE(Inhalt(Lies(ohneEnde)) == ohneEnde);
}

TEST_F(Dateibloecken, NurGewoehnlicheDateien) {
    EXPECT_THROW(DateiBytesLesen(Ordner.TextPfad("fehlt")), LaufzeitFehler);
    EXPECT_THROW(DateiBytesLesen(Ordner.TextPfad(".")), LaufzeitFehler);
    EXPECT_THROW(DateiBytesLesen(u"/dev/zero"), LaufzeitFehler);
}

TEST_F(Dateibloecken, ZeilenUndPositionen) {
    Dateibloecke bloecke = Lies("eins\r\n\r\ndrei\r\n");
    Zeilenleser leser(bloecke);
    EXPECT_EQ(leser.Position(), 0U);
    EXPECT_EQ(AusBytes(leser.Naechste()), "eins");
    EXPECT_EQ(leser.Position(), 6U);
    EXPECT_EQ(AusBytes(leser.Naechste()), "");
    EXPECT_EQ(leser.Position(), 8U);
    EXPECT_FALSE(leser.AmEnde());
    EXPECT_EQ(AusBytes(leser.Naechste()), "drei");
    EXPECT_TRUE(leser.AmEnde());
}

TEST_F(Dateibloecken, ZeilenUeberAlleBloecke) {
    std::string bytes;
    std::vector<std::string> soll;
    for (int i = 0; bytes.size() < 2'500'000; ++i) {
        soll.push_back(std::to_string(i) + std::string(static_cast<std::size_t>(i % 100), 'x'));
        bytes += soll.back() + "\r\n";
    }
    Dateibloecke bloecke = Lies(bytes);
    ASSERT_GT(bloecke.size(), 2U);
    Zeilenleser leser(bloecke);
    for (const std::string& zeile : soll) {
        ASSERT_FALSE(leser.AmEnde());
        ASSERT_EQ(AusBytes(leser.Naechste()), zeile);
    }
    EXPECT_TRUE(leser.AmEnde());
    EXPECT_EQ(leser.Position(), bytes.size());
}

TEST(ByteSuche, ErsteStelleOderLaenge) {
    const unsigned char bytes[] = {'a', 0, 'b', 0};
    EXPECT_EQ(ByteSuchen(bytes, 0), 1U);
    EXPECT_EQ(ByteSuchen(bytes, 0, 2), 3U);
    EXPECT_EQ(ByteSuchen(bytes, 'c'), 4U);
    EXPECT_EQ(ByteSuchen(bytes, 'a', 4), 4U);
    EXPECT_EQ(ByteSuchen({}, 'a'), 0U);
}

} // namespace
} // namespace zepholt
