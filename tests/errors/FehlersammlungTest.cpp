// Findings in short form come back as they were.
#include "errors/Fehlersammlung.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>

namespace zepholt {
namespace {

constexpr std::int32_t Kleinste = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Groesste = std::numeric_limits<std::int32_t>::max();

// Each side of the border of each form.
const std::vector<FehlerEintrag> Randfaelle = {
    {2031, 0, 93, 0, 0},
    {2031, Groesste, 256, 0, 0},
    {2031, -1, 0, 0, 0},
    {2031, -2, 0, 0, 0},
    {2031, Kleinste, 0, 0, 0},
    {0, 0, 0, 0, 0},
    {16383, 0, 65535, 0, 0},
    {16384, 0, 0, 0, 0},
    {2031, 0, 65536, 0, 0},
    {-1, 0, 0, 0, 0},
    {2031, 0, -1, 0, 0},
    {6201, -1, 0, 111, 111001},
    {6201, -1, 5, 999, 999999},
    {6201, -1, 0, 0, 1},
    {6201, -1, 0, 1000, 0},
    {6201, -1, 0, 1, 1000000},
    {6201, -1, 0, -1, 0},
    {6201, -1, 0, 1, -1},
    {5202, 7, 0, 111, 111001}, // a line and stamps
    {Groesste, Kleinste, Groesste, Kleinste, Groesste},
};

TEST(Fehlersammlung, GivesBackWhatWasAdded) {
    Fehlersammlung liste;
    for (const FehlerEintrag& eintrag : Randfaelle) {
        liste.push_back(eintrag);
    }
    ASSERT_EQ(liste.size(), Randfaelle.size());
    for (std::size_t i = 0; i < liste.size(); ++i) {
        EXPECT_EQ(liste[i], Randfaelle[i]) << i;
    }
    EXPECT_TRUE(std::equal(liste.begin(), liste.end(), Randfaelle.begin(), Randfaelle.end()));
    EXPECT_EQ(liste.front(), Randfaelle.front());
}

TEST(Fehlersammlung, RandomValuesComeBack) {
    std::mt19937 zufall(1);
    const std::int32_t werte[] = {0, 1, -1, 999, 1000, 9999, 65535, 65536, 999999, 1000000, Groesste, Kleinste};
    const auto einer = [&] { return werte[zufall() % std::size(werte)]; };
    for (int i = 0; i < 20'000; ++i) {
        const FehlerEintrag eintrag{einer(), einer(), einer(), einer(), einer()};
        Fehlersammlung liste;
        liste.push_back(eintrag);
        ASSERT_EQ(liste[0], eintrag);
    }
}

TEST(Fehlersammlung, RemovesWhatTheConditionHoldsFor) {
    Fehlersammlung liste;
    for (const FehlerEintrag& eintrag : Randfaelle) {
        liste.push_back(eintrag);
    }
    std::vector<FehlerEintrag> bleibt;
    std::ranges::copy_if(Randfaelle, std::back_inserter(bleibt), [](const FehlerEintrag& e) { return e.Code != 2031; });
    liste.Entfernen([](const FehlerEintrag& eintrag) { return eintrag.Code == 2031; });
    EXPECT_TRUE(std::equal(liste.begin(), liste.end(), bleibt.begin(), bleibt.end()));
}

TEST(Fehlersammlung, StandsInTheOrderThatIsAskedFor) {
    Fehlersammlung liste;
    std::vector<std::uint32_t> folge;
    for (const FehlerEintrag& eintrag : Randfaelle) {
        folge.insert(folge.begin(), static_cast<std::uint32_t>(liste.size()));
        liste.push_back(eintrag);
    }
    liste.Umstellen(std::move(folge));
    EXPECT_TRUE(std::equal(liste.begin(), liste.end(), Randfaelle.rbegin(), Randfaelle.rend()));
}

} // namespace
} // namespace zepholt
