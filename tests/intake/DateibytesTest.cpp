#include "intake/Dateibytes.h"

#include "hilfen/Testordner.h"
#include "run/NeuerLauf.h"

#include <gtest/gtest.h>

#include <filesystem>
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

    Bytes Lies(std::string_view bytes) {
        Ordner.Schreibe("d", bytes);
        Bisher.clear();
        return DateiBytesLesen(Ordner.TextPfad("d"), [this](ByteSicht bisher) { Bisher.push_back(bisher.size()); });
    }
    Testordner Ordner;
    std::vector<std::size_t> Bisher; // what was told while it was read
};

TEST_F(GanzeDatei, JedesByteAnSeinemPlatz) {
    EXPECT_EQ(AusBytes(Lies("").Sicht()), "");
    EXPECT_EQ(AusBytes(Lies("x").Sicht()), "x");
    std::mt19937 zufall(7);
    std::string bytes(3'000'001, 'x');
    for (char& byte : bytes) {
        byte = static_cast<char>(zufall());
    }
    EXPECT_TRUE(AusBytes(Lies(bytes).Sicht()) == bytes);
    EXPECT_EQ(Bisher, (std::vector<std::size_t>{1 << 20, 2 << 20, 3'000'001}));
}

TEST_F(GanzeDatei, WieLangSieZuBeginnWar) {
    constexpr std::size_t Laenge = 3'000'000;
    constexpr std::size_t ErstesStueck = 1 << 20;
    const auto liesMitNeuerLaenge = [this](std::size_t laenge) { // the file gets it after the first piece
        Ordner.Schreibe("d", std::string(Laenge, 'x'));
        const Bytes bytes = DateiBytesLesen(Ordner.TextPfad("d"), [&](ByteSicht bisher) {
            if (bisher.size() == ErstesStueck) {
                std::filesystem::resize_file(Ordner.Pfad() / "d", laenge);
            }
        });
        return AusBytes(bytes.Sicht());
    };
    EXPECT_EQ(liesMitNeuerLaenge(Laenge), std::string(Laenge, 'x'));
    EXPECT_EQ(liesMitNeuerLaenge(Laenge + 1), std::string(Laenge, 'x'));
    EXPECT_THROW(liesMitNeuerLaenge(Laenge - 1), LaufzeitFehler);
    EXPECT_THROW(liesMitNeuerLaenge(ErstesStueck), LaufzeitFehler);
    EXPECT_THROW(liesMitNeuerLaenge(0), LaufzeitFehler);
}

TEST_F(GanzeDatei, NurGewoehnlicheDateien) {
    const auto nichts = [](ByteSicht) {};
    EXPECT_THROW(DateiBytesLesen(Ordner.TextPfad("fehlt"), nichts), LaufzeitFehler);
    EXPECT_THROW(DateiBytesLesen(Ordner.TextPfad("."), nichts), LaufzeitFehler);
    EXPECT_THROW(DateiBytesLesen(u"/dev/zero", nichts), LaufzeitFehler);
}

TEST(ByteSuche, ErsteStelleOderLaenge) {
    const unsigned char bytes[] = {'a', 0, 'b', 0};
    EXPECT_EQ(ByteSuchen(bytes, 0), 1U);
    EXPECT_EQ(ByteSuchen(bytes, 0, 2), 3U);
    EXPECT_EQ(ByteSuchen(bytes, 'c'), 4U);
    EXPECT_EQ(ByteSuchen(bytes, 'a', 4), 4U);
    EXPECT_EQ(ByteSuchen({}, 'a'), 0U);
    EXPECT_EQ(ByteSuchen(bytes, 'a', 5), 4U);
}

// Two bytes at each pair of places: found is the first of those at or behind the beginning.
TEST(ByteSuche, UeberMehrereBloecke) {
    for (std::size_t laenge : {63U, 64U, 65U, 127U, 128U, 150U}) {
        for (std::size_t erstes = 0; erstes < laenge; ++erstes) {
            for (std::size_t zweites = erstes; zweites < laenge; zweites += 9) {
                std::vector<unsigned char> bytes(laenge, 0x0B);
                bytes[erstes] = bytes[zweites] = '\n';
                EXPECT_EQ(ByteSuchen(bytes, '\n', erstes), erstes);
                EXPECT_EQ(ByteSuchen(bytes, '\n', erstes / 2), erstes);
                EXPECT_EQ(ByteSuchen(bytes, '\n', erstes + 1), zweites > erstes ? zweites : laenge);
            }
        }
    }
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
