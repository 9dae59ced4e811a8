// The order of findings: numbers against the texts that define it.
#include "errors/Fehlerfolge.h"

#include "errors/TestFehler.h"
#include "hilfen/Zeilenbau.h"
#include "hilfen/Zeilenpuffer.h"
#include "run/NeuerLauf.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

namespace zepholt {
namespace {

using namespace hilfen;

// A file of so many lines that their numbers have five, six and seven digits; each is a G record when its number is
// even.
class FehlerfolgeTest : public ::testing::Test {
protected:
    static constexpr std::size_t Zeilen = 1'200'000;

    FehlerfolgeTest() {
        NeuerLauf();
        m_zeilen.Beginne();
        for (std::int32_t i = 0; i < static_cast<std::int32_t>(Zeilen); ++i) {
            m_zeilen.Anfuegen(i % 2 == 0 ? u"G" : u"B");
        }
    }
    ~FehlerfolgeTest() override {
        testDaten = {};
        FehlerLoeschen();
    }

    template <class Werte>
    static auto Einer(const Werte& werte, std::mt19937& zufall) {
        return *std::next(std::begin(werte), static_cast<std::ptrdiff_t>(zufall() % std::size(werte)));
    }

    // Findings from values at the edges, such as a run may report.
    static FehlerEintrag RandFall(std::mt19937& zufall) {
        static constexpr std::int32_t zeilen[] = {
            0,       1,       9,       10,      99,      100,     8999,    9999,    10000,   10001,   11111,
            20000,   89999,   99989,   99990,   99998,   99999,   100000,  100001,  100009,  100010,  109999,
            111110,  111111,  111119,  200000,  899999,  999899,  999989,  999990,  999991,  999998,  999999,
            1000000, 1000009, 1000010, 1000098, 1000099, 1000100, 1099999, 1111111, 1199990, 1199998, 1199999};
        static constexpr std::int32_t codes[] = {1001, 2001, 2031, 2032, 2041, 3002, 4221, 5212, 6201, 6902};
        static constexpr std::int32_t kapitel[] = {-99, -9, -1, 0, 1, 9, 10, 99, 100, 111, 999};
        static constexpr std::int32_t positionen[] = {0, 1, 9, 999, 100000, 111999, 999999, -1, -99999};
        if (zufall() % 4 == 0) {
            return {Einer(codes, zufall), -1, 0, Einer(kapitel, zufall), Einer(positionen, zufall)};
        }
        return {Einer(codes, zufall), Einer(zeilen, zufall), 0, 0, 0};
    }

private:
    Zeilenpuffer m_zeilen{3 * Zeilen};
};

// --- A key as a number against the same key as a text ----------------------------------------------------------------

// 99999 stands for no line, 999999999 for no position; a line of six digits shifts the rest.
TEST_F(FehlerfolgeTest, TheTextOfAKey) {
    EXPECT_EQ(Sortierschluessel({4101, 7, 93, 0, 0}), "    79999999994101");
    EXPECT_EQ(Sortierschluessel({4101, 8, 93, 0, 0}), "    8        04101");
    EXPECT_EQ(Sortierschluessel({4101, 8, 93, 5, 0}), "    8  50000004101");
    EXPECT_EQ(Sortierschluessel({6201, -1, 0, 241, 111001}), "999992411110016201");
    EXPECT_EQ(Sortierschluessel({6201, -1, 0, 7, 1}), "99999  70000016201");
    EXPECT_EQ(Sortierschluessel({3205, -1, 0, 0, 17}), "999999999999993205");
    EXPECT_EQ(Sortierschluessel({4101, 100001, 0, 0, 0}), "1000019999999994101");
    EXPECT_EQ(Sortierschluessel({4101, 1000000, 0, 0, 0}), "1000000        04101");
    EXPECT_EQ(Sortierschluessel({4101, 5'000'000, 0, 0, 0}), "50000009999999994101") << "no such line";
    EXPECT_EQ(Sortierschluessel({-1, -1, 0, -1, 0}), "99999 -1000000  -1");
}

TEST_F(FehlerfolgeTest, NumbersAscendAsTheTextsDo) {
    std::mt19937 zufall(1);
    std::map<std::string, std::uint64_t> zahlen;
    for (int i = 0; i < 30'000; ++i) {
        const FehlerEintrag eintrag = RandFall(zufall);
        const std::optional<std::uint64_t> zahl = Sortierzahl(eintrag);
        ASSERT_TRUE(zahl) << Sortierschluessel(eintrag);
        const auto [stelle, neu] = zahlen.emplace(Sortierschluessel(eintrag), *zahl);
        ASSERT_EQ(stelle->second, *zahl) << stelle->first;
    }
    ASSERT_GT(zahlen.size(), 1000U);
    for (auto stelle = std::next(zahlen.begin()); stelle != zahlen.end(); ++stelle) {
        ASSERT_LT(std::prev(stelle)->second, stelle->second) << std::prev(stelle)->first << ", " << stelle->first;
    }
}

TEST_F(FehlerfolgeTest, NumbersAscendAsTheTextsDoAroundEachChangeOfLength) {
    std::vector<std::pair<std::string, std::uint64_t>> schluessel;
    for (const std::int32_t mitte :
         {10'000, 11'111, 99'900, 100'000, 109'999, 111'110, 999'000, 1'000'000, 1'099'999}) {
        for (std::int32_t zeile = mitte - 1'000; zeile < mitte + 1'000; ++zeile) {
            const FehlerEintrag eintrag{2031, zeile, 0, 0, 0};
            schluessel.emplace_back(Sortierschluessel(eintrag), Sortierzahl(eintrag).value());
        }
    }
    std::ranges::sort(schluessel);
    for (std::size_t i = 1; i < schluessel.size(); ++i) {
        const bool gleich = schluessel[i - 1].first == schluessel[i].first; // neighbouring stretches overlap
        ASSERT_TRUE(gleich ? schluessel[i - 1].second == schluessel[i].second
                           : schluessel[i - 1].second < schluessel[i].second)
            << schluessel[i].first;
    }
}

// What the numbers have no room for.
TEST_F(FehlerfolgeTest, NoNumberForWhatNoRunReports) {
    EXPECT_FALSE(Sortierzahl({4100, 0, 0, 0, 0})) << "a code without a row";
    EXPECT_FALSE(Sortierzahl({-4101, 0, 0, 0, 0}));
    EXPECT_FALSE(Sortierzahl({9999, 0, 0, 0, 0})) << "its first digit is that of a missing position";
    EXPECT_FALSE(Sortierzahl({4101, 0, 0, 1000, 0})) << "ten characters of position";
    EXPECT_FALSE(Sortierzahl({4101, -1, 0, -100, 0})) << "ten characters of position";
    EXPECT_FALSE(Sortierzahl({4101, 100000, 0, 1, 0})) << "stamps on a line of six digits";
    EXPECT_TRUE(Sortierzahl({4101, 0, 0, 999, 999999}));
    EXPECT_TRUE(Sortierzahl({4101, -1, 0, -99, 0}));
    EXPECT_TRUE(Sortierzahl({4101, 100001, 0, 1, 0})) << "no G record: stamps don't count";
    EXPECT_TRUE(Sortierzahl({6902, 0, 0, 0, 0}));
}

// --- The whole order against Sortieren on the texts ------------------------------------------------------------------

// The order as it is defined: the keys sorted with the indexes as their companions.
std::vector<std::uint32_t> FolgeNachText(const Fehlersammlung& liste) {
    std::vector<Text> schluessel;
    std::vector<Text> begleiter;
    for (std::size_t i = 0; i < liste.size(); ++i) {
        schluessel.push_back(AusAscii(Sortierschluessel(liste[i])));
        begleiter.push_back(ZahlText(static_cast<std::int64_t>(i)));
    }
    Sortieren(schluessel, begleiter);
    std::vector<std::uint32_t> folge;
    for (const Text& nummer : begleiter) {
        folge.push_back(static_cast<std::uint32_t>(GanzzahlAmAnfang(nummer)));
    }
    return folge;
}

TEST_F(FehlerfolgeTest, RandomFindingsComeAsTheTextsAreSorted) {
    std::mt19937 zufall(2);
    for (int runde = 0; runde < 60; ++runde) {
        Fehlersammlung liste;
        const std::size_t anzahl = zufall() % 200;
        while (liste.size() < anzahl) {
            liste.push_back(RandFall(zufall));
        }
        ASSERT_EQ(Fehlerfolge(liste), FolgeNachText(liste)) << runde;
    }
}

// One finding without a number sends all of them the way of the texts.
TEST_F(FehlerfolgeTest, AFindingWithoutANumberChangesNothingForTheOthers) {
    std::mt19937 zufall(3);
    for (int runde = 0; runde < 30; ++runde) {
        Fehlersammlung liste;
        for (int i = 0; i < 50; ++i) {
            liste.push_back(RandFall(zufall));
        }
        liste.push_back({9999, static_cast<std::int32_t>(zufall() % 100'100), 0, 0, 0});
        liste.push_back({4101, 100'000, 0, 5, 0});
        ASSERT_EQ(Fehlerfolge(liste), FolgeNachText(liste)) << runde;
    }
}

// As runs report: pass by pass, each line by line, several findings a line, those without a line at the end.
TEST_F(FehlerfolgeTest, PassesOverManyLinesComeAsTheTextsAreSorted) {
    std::mt19937 zufall(4);
    Fehlersammlung liste;
    for (const std::int32_t ersterCode : {2031, 3001, 4201}) {
        for (std::int32_t zeile = 99'300; zeile < 100'700; ++zeile) {
            for (std::uint32_t k = zufall() % 4; k > 0; --k) {
                liste.push_back({ersterCode + static_cast<std::int32_t>(zufall() % 2), zeile, 0, 0, 0});
            }
        }
    }
    for (std::int32_t position = 0; position < 500; ++position) {
        liste.push_back({6201, -1, 0, 111, position});
    }
    EXPECT_EQ(Fehlerfolge(liste), FolgeNachText(liste));
}

// The stamps 1 and 0 make the same number as 0 and 1000000, but chapter 0 is no position.
TEST_F(FehlerfolgeTest, StampsThatMakeTheSameNumberBehindEachOther) {
    for (const bool umgekehrt : {false, true}) {
        Fehlersammlung liste;
        liste.push_back({6201, -1, 0, umgekehrt ? 1 : 0, umgekehrt ? 0 : 1'000'000});
        liste.push_back({6201, -1, 0, umgekehrt ? 0 : 1, umgekehrt ? 1'000'000 : 0});
        EXPECT_EQ(Fehlerfolge(liste), FolgeNachText(liste));
    }
}

TEST_F(FehlerfolgeTest, NoFindingsAndOne) {
    Fehlersammlung liste;
    EXPECT_TRUE(Fehlerfolge(liste).empty());
    liste.push_back({2031, 0, 0, 0, 0});
    EXPECT_EQ(Fehlerfolge(liste), std::vector<std::uint32_t>{0});
}

} // namespace
} // namespace zepholt
