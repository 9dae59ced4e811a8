// The setters: what reaches the window, the width of the bar, and how seldom the window is looked at.
#include "window/Fortschritt.h"

#include "run/NeuerLauf.h"
#include "state/TestDaten.h"
#include "window/Fenster.h"
#include "window/Formulare.h"

#include <gtest/gtest.h>

#include <limits>

namespace zepholt {
namespace {

// Notes what a window would show.
class Notizfenster : public Fenster {
public:
    void ZeigeAustauschdatei(TextSicht text) override { Austauschdatei = text; }
    void ZeigeProjekt(TextSicht text) override { Projekt = text; }
    void ZeigeDokument(TextSicht text) override { Dokument = text; }
    void ZeigeSchritt(TextSicht text) override { Schritt = text; }
    void ZeigeBalken(double breite) override { Balken = breite; }
    void Ereignisse() override { ++Blicke; }

    Text Austauschdatei, Projekt, Dokument, Schritt;
    double Balken = -1;
    int Blicke = 0;
};

std::int64_t g_jetzt = 0;

class FortschrittTest : public testing::Test {
protected:
    void SetUp() override {
        NeuerLauf();
        testDaten.Fortschrittsfenster = &m_fenster;
        g_jetzt = 1000000;
        fortschrittStand.Uhr = [] { return g_jetzt; };
    }
    void TearDown() override { NeuerLauf(); }

    Notizfenster m_fenster;
};

TEST_F(FortschrittTest, CaptionsReachTheWindow) {
    ZeigeAustauschdatei(u"a.01S");
    ZeigeProjekt(u"P   [1]");
    ZeigeDokument(u"D   [2]");
    ZeigeSchritt(u"Testet Dokument", 10);
    EXPECT_EQ(u"a.01S", m_fenster.Austauschdatei);
    EXPECT_EQ(u"P   [1]", m_fenster.Projekt);
    EXPECT_EQ(u"D   [2]", m_fenster.Dokument);
    EXPECT_EQ(u"Testet Dokument", m_fenster.Schritt);
    EXPECT_EQ(4, m_fenster.Blicke);
}

TEST_F(FortschrittTest, SilentRunDoesNothing) {
    testDaten.Fortschrittsfenster = nullptr;
    ZeigeAustauschdatei(u"a");
    ZeigeProjekt(u"b");
    ZeigeDokument(u"c");
    ZeigeSchritt(u"d", 1);
    ZeigeFortschritt(1);
    BedieneFenster();
    EXPECT_EQ(0, m_fenster.Blicke);
    EXPECT_FALSE(testDaten.Abbruch);
}

TEST_F(FortschrittTest, PhaseStartsTheBarAtZero) {
    ZeigeSchritt(u"a", 100);
    EXPECT_EQ(0.0, m_fenster.Balken);
    g_jetzt += 1000;
    ZeigeFortschritt(50);
    EXPECT_EQ(BalkenInnen / 2.0, m_fenster.Balken);
    ZeigeSchritt(u"b", 100);
    EXPECT_EQ(0.0, m_fenster.Balken);
}

TEST_F(FortschrittTest, PhaseWithoutAMaximumHidesTheBar) {
    ZeigeSchritt(u"a", 100);
    g_jetzt += 1000;
    ZeigeFortschritt(50);
    ZeigeSchritt(u"", 0);
    EXPECT_EQ(0.0, m_fenster.Balken);
    EXPECT_EQ(u"", m_fenster.Schritt);
}

TEST_F(FortschrittTest, ScaleOfTheTrack) {
    EXPECT_EQ(7155 - 2 * 30 - 6, BalkenInnen);
}

TEST_F(FortschrittTest, BarWidth) {
    constexpr std::int32_t Gross = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t Klein = std::numeric_limits<std::int32_t>::min();
    struct Fall {
        std::int32_t Wert;
        std::int32_t Maximum;
        double Breite;
    };
    constexpr Fall Faelle[] = {
        {0, 100, 0},         {1, 100, 2},  {50, 100, 100},   {100, 100, 200},  {101, 100, 200},
        {Gross, 1, 200},     {-1, 100, 0}, {Klein, 1, 0},    {0, 0, 0},        {1, 0, 200},
        {-1, 0, 0},          {1, -100, 0}, {-50, -100, 100}, {Klein, -1, 200}, {1, Gross, 200.0 / Gross},
        {Gross, Gross, 200},
    };
    for (const Fall& fall : Faelle) {
        EXPECT_DOUBLE_EQ(fall.Breite, BalkenBreite(200, fall.Wert, fall.Maximum)) << fall.Wert << "/" << fall.Maximum;
    }
}

TEST_F(FortschrittTest, BarIsLookedAtThirtyTimesASecondAtMost) {
    ZeigeSchritt(u"a", 1000000);
    m_fenster.Blicke = 0;
    for (std::int32_t i = 0; i < 1000000; ++i) { // ten seconds
        g_jetzt = 1000100 + i / 100;
        ZeigeFortschritt(i);
    }
    EXPECT_LE(m_fenster.Blicke, 251);
    EXPECT_GE(m_fenster.Blicke, 240);
}

TEST_F(FortschrittTest, CaptionsAreLookedAtThirtyTimesASecondAtMost) {
    for (std::int32_t i = 0; i < 100000; ++i) { // ten seconds
        g_jetzt = 1000000 + i / 10;
        ZeigeSchritt(u"a", 100);
        ZeigeProjekt(u"b");
        ZeigeFortschritt(i);
    }
    EXPECT_LE(m_fenster.Blicke, 300 + 21); // and those taken in advance
}

TEST_F(FortschrittTest, FirstCaptionsShowAtOnce) {
    ZeigeAustauschdatei(u"a.01S");
    ZeigeProjekt(u"");
    ZeigeDokument(u"");
    ZeigeSchritt(u"", 0);
    const int davor = m_fenster.Blicke;
    ZeigeSchritt(u"Liest Austauschdatei ein", 100);
    EXPECT_EQ(davor + 1, m_fenster.Blicke);
}

TEST_F(FortschrittTest, WindowAnswersSoonEvenBehindManyCaptions) {
    for (int i = 0; i < 1000; ++i) {
        ZeigeProjekt(u"b");
    }
    m_fenster.Blicke = 0;
    g_jetzt += 40;
    ZeigeFortschritt(1);
    EXPECT_EQ(1, m_fenster.Blicke);
}

TEST_F(FortschrittTest, StretchWithoutABarIsServedAsOftenAndLeavesTheBar) {
    ZeigeSchritt(u"a", 100);
    g_jetzt += 1000;
    ZeigeFortschritt(50);
    m_fenster.Blicke = 0;
    for (std::int64_t i = 0; i < 1000; ++i) { // one second
        ++g_jetzt;
        BedieneFenster();
    }
    EXPECT_EQ(25, m_fenster.Blicke);
    EXPECT_EQ(BalkenInnen / 2.0, m_fenster.Balken);
}

TEST_F(FortschrittTest, EmptyCaptionEndsAPhaseAndLetsNoEventThrough) {
    ZeigeSchritt(u"a", 100);
    m_fenster.Blicke = 0;
    g_jetzt += 1000;
    ZeigeSchritt(u"", 0);
    EXPECT_EQ(0, m_fenster.Blicke);
    EXPECT_EQ(u"", m_fenster.Schritt);
    ZeigeSchritt(u"b", 0);
    EXPECT_EQ(1, m_fenster.Blicke);
}

} // namespace
} // namespace zepholt
