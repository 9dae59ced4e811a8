// The searches of a list of codes, against the plain scan.
#include "state/SIA451Datei.h"
#include "support/HilfsFunktionen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <random>

namespace zepholt {
namespace {

std::int32_t FindeNachScan(const std::vector<Reihencode>& eintraege, TextSicht code) {
    const auto treffer = std::find_if(eintraege.begin(), eintraege.end(),
                                      [code](const Reihencode& eintrag) { return eintrag.Code == code; });
    return treffer == eintraege.end() ? -1 : static_cast<std::int32_t>(treffer - eintraege.begin());
}

bool HatAnfangNachScan(const std::vector<Reihencode>& eintraege, TextSicht anfang) {
    return std::any_of(eintraege.begin(), eintraege.end(),
                       [anfang](const Reihencode& eintrag) { return eintrag.Code.substr(0, anfang.size()) == anfang; });
}

std::int32_t AnzahlNachScan(const std::vector<Reihencode>& eintraege, std::int32_t reihenfolge, std::int32_t bis) {
    return static_cast<std::int32_t>(
        std::count_if(eintraege.begin(), eintraege.begin() + bis,
                      [reihenfolge](const Reihencode& eintrag) { return eintrag.Reihenfolge == reihenfolge; }));
}

TEST(CodeListeTest, AnEmptyListFindsNothing) {
    const CodeListe<Reihencode> liste;
    EXPECT_EQ(liste.Anzahl(), 0);
    EXPECT_EQ(liste.Finde(u""), -1);
    EXPECT_FALSE(liste.HatAnfang(u""));
    EXPECT_EQ(liste.AnzahlMitReihenfolge(1, 0), 0);
}

TEST(CodeListeTest, ARepeatedCodeKeepsItsFirstEntry) {
    CodeListe<Reihencode> liste;
    liste.Anfuegen({u"B", 1});
    liste.Anfuegen({u"A", 2});
    liste.Anfuegen({u"B", 1});
    EXPECT_EQ(liste.Finde(u"B"), 0);
    EXPECT_EQ(liste.Anzahl(), 3);
    EXPECT_EQ(liste.AnzahlMitReihenfolge(1, 2), 1);
    EXPECT_EQ(liste.AnzahlMitReihenfolge(1, 3), 2);
}

// Codes that ascend, asked for in their order, out of it, and between and behind them; then one that stands already,
// and one that breaks the order.
TEST(CodeListeTest, AscendingCodesAreFoundAsByAScan) {
    std::deque<Text> codes;
    CodeListe<Reihencode> liste;
    const auto anfuegen = [&](const Text& code) { liste.Anfuegen({codes.emplace_back(code), 0}); };
    const auto alleFinden = [&] {
        for (int schritt : {1, 7, 39}) {
            for (int i = 0; i < 40; ++i) {
                for (const TextSicht rest : {u"", u"+"}) {
                    const Text gesucht = codes[static_cast<std::size_t>(i * schritt % 40)] + Text(rest);
                    ASSERT_EQ(liste.Finde(gesucht), FindeNachScan(liste.Eintraege(), gesucht));
                }
            }
        }
    };
    for (int i = 0; i < 40; ++i) {
        const Text neu = {static_cast<char16_t>(u'a' + i / 10), static_cast<char16_t>(u'0' + i % 10)};
        ASSERT_EQ(liste.Finde(neu), -1);
        anfuegen(neu);
    }
    alleFinden();
    anfuegen(u"d9");
    alleFinden();
    EXPECT_EQ(liste.Finde(u"d9"), 39);
    anfuegen(u"a55");
    EXPECT_EQ(liste.Finde(u"a55"), 41);
    alleFinden();
}

// In a list that ascends no more, the entry behind the one found last may repeat a code.
TEST(CodeListeTest, TheEntryBehindTheOneFoundLastIsNoShortCutToARepeatedCode) {
    CodeListe<Reihencode> liste;
    for (const char16_t* code : {u"1", u"2", u"3", u"4", u"5", u"6", u"7", u"8", u"9", u"2"}) {
        liste.Anfuegen({code, 0});
    }
    EXPECT_EQ(liste.Finde(u"9"), 8);
    EXPECT_EQ(liste.Finde(u"2"), 1);
}

// Thousands of codes and orders in no order, so that the tables grow often: each is found where it stands, each code
// that is missing isn't, and each order counts once.
TEST(CodeListeTest, ALargeListWithoutOrderLosesNothingWhenItGrows) {
    constexpr std::int32_t Anzahl = 5000;
    const auto gemischt = [](std::int32_t i) { return i * 7919 % Anzahl; }; // a prime: each number once
    std::deque<Text> codes;
    CodeListe<Reihencode> liste;
    for (std::int32_t i = 0; i < Anzahl; ++i) {
        const Text& code = codes.emplace_back(ZahlText(gemischt(i)));
        ASSERT_EQ(liste.Finde(code), -1) << i;
        ASSERT_EQ(liste.AnzahlMitReihenfolge(gemischt(i) + 1, i), 0) << i;
        liste.Anfuegen({code, gemischt(i) + 1});
    }
    for (std::int32_t i = 0; i < Anzahl; ++i) {
        ASSERT_EQ(liste.Finde(codes[static_cast<std::size_t>(i)]), i);
        ASSERT_EQ(liste.AnzahlMitReihenfolge(gemischt(i) + 1, i), 0) << i;
        ASSERT_EQ(liste.AnzahlMitReihenfolge(gemischt(i) + 1, i + 1), 1) << i;
    }
}

// Random lists of few distinct codes, so that hits are frequent: with and without '*', prefixes of each other, blanks
// in front, characters above ASCII and of the highest values.
TEST(CodeListeTest, EverySearchFindsWhatAScanFinds) {
    std::mt19937 zufall(451);
    const TextSicht zeichen = u"AAB*1 \u00e9\uffff";
    const auto code = [&] {
        Text text;
        for (auto laenge = zufall() % 5; laenge > 0; --laenge) {
            text.push_back(zeichen[zufall() % zeichen.size()]);
        }
        return text;
    };
    for (int runde = 0; runde < 100; ++runde) {
        std::deque<Text> codes;
        CodeListe<Reihencode> liste;
        for (int i = 0; i < 40; ++i) {
            liste.Anfuegen({codes.emplace_back(code()), static_cast<std::int32_t>(zufall() % 4)});
            const Text gesucht = code();
            const auto reihenfolge = static_cast<std::int32_t>(1 + zufall() % 4);
            const auto bis = static_cast<std::int32_t>(zufall() % (codes.size() + 1));
            ASSERT_EQ(liste.Finde(gesucht), FindeNachScan(liste.Eintraege(), gesucht));
            ASSERT_EQ(liste.HatAnfang(gesucht), HatAnfangNachScan(liste.Eintraege(), gesucht));
            ASSERT_EQ(liste.AnzahlMitReihenfolge(reihenfolge, bis),
                      AnzahlNachScan(liste.Eintraege(), reihenfolge, bis));
        }
    }
}

} // namespace
} // namespace zepholt
