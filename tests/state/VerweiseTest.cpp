// The searches over tree and structure tables, and the digit rules of numbers.
#include "state/Verweise.h"

#include "items/Positionstest.h"
#include "run/NeuerLauf.h"
#include "state/TestDaten.h"
#include "window/Fenster.h"
#include "window/Formulare.h"
#include "window/Fortschritt.h"

namespace zepholt {
namespace {

using namespace hilfen;

class VerweiseTest : public Positionstest {};

// --- Structure tables

// The cost types 12 and 123 behind their B0, and the object structure A with the position locations 1, 12 and 9, a
// second A that no search may reach, and B without any.
class StrukturTest : public VerweiseTest {
protected:
    StrukturTest() {
        sia451Datei.KAGVorhanden = sia451Datei.OGLVorhanden = true;
        for (const TextSicht code : {u"12", u"123"}) {
            sia451Datei.KAGTabelle.Anfuegen({code});
        }
        for (const TextSicht code : {u"A", u"B", u"A"}) {
            OGLEintrag ogl;
            ogl.Code = code;
            if (code == u"A") {
                const bool erster = sia451Datei.OGLTabelle.Anzahl() == 0;
                for (const TextSicht psl :
                     erster ? std::vector<TextSicht>{u"1", u"12", u"9"} : std::vector<TextSicht>{u"7"}) {
                    ogl.PSLListe.Anfuegen({psl});
                }
            }
            sia451Datei.OGLTabelle.Anfuegen(std::move(ogl));
        }
    }
};

struct Codefall {
    TextSicht Code;
    bool Gefunden;
};

TEST_F(StrukturTest, AJokerStandsForAnyEnding) {
    const Codefall faelle[] = {
        {u"12", true},   {u"123", true},  {u"1", false},     {u"1234", false},  {u"12*", true},  {u"123*", true},
        {u"1*", true},   {u"*", true},    {u"*9", true},     {u"1234*", false}, {u"13*", false}, {u"2*", false},
        {u"12*9", true}, {u"1*9*", true}, {u"13*12", false}, {u"", false},
    };
    for (const auto& [code, gefunden] : faelle) {
        EXPECT_EQ(KAGGefunden(code), gefunden) << Lesbar(code);
    }
}

TEST_F(StrukturTest, APrefixDoesNotMatchAShorterEntry) {
    sia451Datei.KAGTabelle = {};
    sia451Datei.KAGTabelle.Anfuegen({u"1"});
    EXPECT_FALSE(KAGGefunden(u"12*"));
    EXPECT_TRUE(KAGGefunden(u"1*"));
}

TEST_F(StrukturTest, CaseAndBlanksCount) {
    sia451Datei.KAGTabelle.Anfuegen({u"Ab"});
    EXPECT_TRUE(KAGGefunden(u"Ab"));
    EXPECT_FALSE(KAGGefunden(u"ab"));
    EXPECT_FALSE(KAGGefunden(u"Ab "));
    EXPECT_FALSE(KAGGefunden(u"a*"));
}

TEST_F(StrukturTest, EverySearchNeedsItsB0) {
    struct {
        bool (*Gefunden)(Feldsicht);
        bool SIA451Datei::*Vorhanden;
        bool Joker;
    } const suchen[] = {
        {OGLGefunden, &SIA451Datei::OGLVorhanden, true},
        {KAGGefunden, &SIA451Datei::KAGVorhanden, true},
        {EKGGefunden, &SIA451Datei::EKGVorhanden, true},
        {VariantengruppeGefunden, &SIA451Datei::VariantenVorhanden, true},
        {EinrichtungGefunden, &SIA451Datei::EinrichtungVorhanden, true},
        {NutzungGefunden, &SIA451Datei::NutzungVorhanden, false},
        {RaumGefunden, &SIA451Datei::RaumVorhanden, false},
    };
    for (const auto& [gefunden, vorhanden, joker] : suchen) {
        sia451Datei = {};
        EXPECT_FALSE(gefunden(u"*"));
        sia451Datei.*vorhanden = true; // announced, though empty
        EXPECT_EQ(gefunden(u"*"), joker);
        EXPECT_FALSE(gefunden(u"X"));
        EXPECT_FALSE(gefunden(u"X*"));
    }
}

TEST_F(StrukturTest, EverySearchLooksIntoItsOwnTable) {
    struct {
        bool (*Gefunden)(Feldsicht);
        TextSicht Code;
        bool SIA451Datei::*Vorhanden;
    } const suchen[] = {
        {OGLGefunden, u"HAUS1", &SIA451Datei::OGLVorhanden},
        {KAGGefunden, u"123", &SIA451Datei::KAGVorhanden},
        {EKGGefunden, u"C1", &SIA451Datei::EKGVorhanden},
        {VariantengruppeGefunden, u"VG", &SIA451Datei::VariantenVorhanden},
        {EinrichtungGefunden, u"ET1", &SIA451Datei::EinrichtungVorhanden},
        {NutzungGefunden, u"WOHNEN", &SIA451Datei::NutzungVorhanden},
        {RaumGefunden, u"BAD", &SIA451Datei::RaumVorhanden},
    };
    for (const auto& suche : suchen) {
        sia451Datei = {};
        Gliederungen();
        for (const auto& andere : suchen) {
            EXPECT_EQ(suche.Gefunden(andere.Code), suche.Code == andere.Code);
        }
        sia451Datei.*suche.Vorhanden = false;
        EXPECT_FALSE(suche.Gefunden(suche.Code));
        EXPECT_FALSE(suche.Gefunden(u"*"));
    }
}

TEST_F(StrukturTest, UseAndRoomKnowNoJoker) {
    sia451Datei = {};
    Gliederungen();
    sia451Datei.NutzungTabelle.Anfuegen({u"W*"});
    sia451Datei.RaumTabelle.Anfuegen({u"B*"});
    EXPECT_TRUE(NutzungGefunden(u"WOHNEN"));
    EXPECT_FALSE(NutzungGefunden(u"WOHN*"));
    EXPECT_TRUE(NutzungGefunden(u"W*")); // the character, as it stands in the table
    EXPECT_TRUE(RaumGefunden(u"BAD"));
    EXPECT_FALSE(RaumGefunden(u"BA*"));
    EXPECT_TRUE(RaumGefunden(u"B*"));
}

TEST_F(StrukturTest, OnTwoLevelsOnlyTheSecondTakesAJoker) {
    struct {
        TextSicht OGL;
        TextSicht PSL;
        bool Gefunden;
    } const faelle[] = {
        {u"A", u"1", true},  {u"A", u"12", true},  {u"A", u"2", false},  {u"A", u"1*", true}, {u"A", u"2*", false},
        {u"A", u"*", true},  {u"A", u"9*x", true}, {u"A*", u"1", false}, {u"*", u"1", false}, {u"*", u"*", false},
        {u"B", u"1", false}, {u"B", u"*", true},   {u"C", u"*", false},  {u"a", u"1", false}, {u"A", u"", false},
        {u"A", u"7", false}, // of the second A, which no search reaches
    };
    for (const auto& [ogl, psl, gefunden] : faelle) {
        EXPECT_EQ(PSLGefunden(ogl, psl), gefunden) << Lesbar(ogl) << " " << Lesbar(psl);
    }
    sia451Datei.OGLVorhanden = false;
    EXPECT_FALSE(PSLGefunden(u"A", u"1"));
    EXPECT_FALSE(PSLGefunden(u"A", u"*"));
}

TEST_F(StrukturTest, AVariantBelongsToItsGroup) {
    EXPECT_FALSE(VarianteGefunden(u"VG", u"V1"));
    sia451Datei = {};
    Gliederungen();
    EXPECT_TRUE(VarianteGefunden(u"VG", u"V1"));
    EXPECT_TRUE(VarianteGefunden(u"VG", u"V*"));
    EXPECT_FALSE(VarianteGefunden(u"VG", u"V3"));
    EXPECT_FALSE(VarianteGefunden(u"V*", u"V1"));
    EXPECT_FALSE(VarianteGefunden(u"VX", u"*"));
    sia451Datei.VariantenVorhanden = false;
    EXPECT_FALSE(VarianteGefunden(u"VG", u"V1"));
}

TEST_F(VerweiseTest, ChaptersAreFoundByTheirDecimalText) {
    EXPECT_TRUE(KapitelGefunden(u"*")); // in an empty tree too
    EXPECT_FALSE(KapitelGefunden(u"1*"));
    EXPECT_FALSE(KapitelGefunden(u""));
    Kapitel(u"111");
    const Codefall faelle[] = {
        {u"111", true},  {u"112", false}, {u"11", false},   {u"11*", true},  {u"1*", true},  {u"*", true},
        {u"12*", false}, {u"", false},    {u"0111", false}, {u"111*", true}, {u"1*9", true},
    };
    for (const auto& [code, gefunden] : faelle) {
        EXPECT_EQ(KapitelGefunden(code), gefunden) << Lesbar(code);
    }
    Kapitel(u"245"); // the tree grows between two searches
    EXPECT_TRUE(KapitelGefunden(u"245"));
    EXPECT_TRUE(KapitelGefunden(u"2*"));
}

TEST_F(VerweiseTest, ShortNumbersHaveNoLeadingZeros) {
    sia451Datei.DokumentKapitel.emplace_back().Nummer = 7;
    EXPECT_TRUE(KapitelGefunden(u"7"));
    EXPECT_FALSE(KapitelGefunden(u"007"));
    EXPECT_FALSE(KapitelGefunden(u"0*"));
}

TEST_F(VerweiseTest, HatJokerAnywhere) {
    EXPECT_FALSE(HatJoker(u""));
    EXPECT_FALSE(HatJoker(u"abc"));
    EXPECT_TRUE(HatJoker(u"*"));
    EXPECT_TRUE(HatJoker(u"a*b"));
}

// --- Tree

TEST_F(VerweiseTest, TheTreeIsSearchedLevelByLevel) {
    EXPECT_EQ(SucheKapitel(111), -1);
    Kapitel(u"111");
    Kapitel(u"112");
    EXPECT_EQ(SucheKapitel(111), 0);
    EXPECT_EQ(SucheKapitel(112), 1);
    EXPECT_EQ(SucheKapitel(113), -1);

    EXPECT_EQ(SuchePosition(1, 111001), -1);
    Position(u"112", u"111000");
    Position(u"112", u"111001");
    EXPECT_EQ(SuchePosition(1, 111000), 0);
    EXPECT_EQ(SuchePosition(1, 111001), 1);
    EXPECT_EQ(SuchePosition(0, 111001), -1);

    PositionEintrag& haupt = sia451Datei.DokumentKapitel[1].Positionen[0];
    PositionEintrag& leistung = sia451Datei.DokumentKapitel[1].Positionen[1];
    EXPECT_EQ(SucheVariable(leistung, 5), nullptr);
    for (const TextSicht zeile : {u"0501", u"0502", u"0601"}) {
        Erwarte(PruefeG3, Zeile(u"G3", {{2, u"112"}, {8, u"111001"}, {14, zeile}}), {});
    }
    ASSERT_NE(SucheVariable(leistung, 5), nullptr);
    EXPECT_EQ(SucheVariable(leistung, 5)->Nummer, 5);
    EXPECT_EQ(SucheVariable(leistung, 6)->Nummer, 6);
    EXPECT_EQ(SucheVariable(leistung, 7), nullptr);
    EXPECT_EQ(SucheVariable(haupt, 5), nullptr);
}

// --- Numbers

TEST(NummernTest, AReserveChapterHasANine) {
    for (const std::int32_t nummer : {119, 191, 911, 199, 999, 109, 290}) {
        EXPECT_TRUE(IstReserveKapitel(nummer)) << nummer;
    }
    for (const std::int32_t nummer : {188, 111, 0, 808}) {
        EXPECT_FALSE(IstReserveKapitel(nummer)) << nummer;
    }
}

TEST(NummernTest, AReservePositionHasANineInItsSecondToFifthDigit) {
    for (const std::int32_t nummer : {190000, 109000, 100900, 100090, 999999, 90000, 90}) {
        EXPECT_TRUE(IstReservePosition(nummer)) << nummer;
    }
    for (const std::int32_t nummer : {900000, 100009, 900009, 0, 888888, 9}) {
        EXPECT_FALSE(IstReservePosition(nummer)) << nummer;
    }
}

TEST(NummernTest, ARemarkCoversFourRanges) {
    struct {
        std::int32_t Vorbemerkung;
        bool Gueltig;
    } const faelle[] = {
        {212000, true},  {212099, true},  {211999, false}, {212100, false}, {210000, true},  {210999, true},
        {209999, false}, {211000, false}, {200000, true},  {200999, true},  {199999, false}, {201000, false},
        {0, true},       {999, true},     {1000, false},   {212343, false}, {999999, false},
    };
    for (const auto& [vorbemerkung, gueltig] : faelle) {
        EXPECT_EQ(ImGueltigkeitsbereich(111, 212343, vorbemerkung), gueltig) << vorbemerkung;
        EXPECT_EQ(ImGueltigkeitsbereich(0, 212343, vorbemerkung), gueltig) << "the chapter has no say";
    }
}

// --- Progress

class Notizfenster : public Fenster {
public:
    void ZeigeAustauschdatei(TextSicht) override {}
    void ZeigeProjekt(TextSicht) override {}
    void ZeigeDokument(TextSicht) override {}
    void ZeigeSchritt(TextSicht) override {}
    void ZeigeBalken(double breite) override { Balken = breite; }
    void Ereignisse() override {}

    double Balken = -1;
};

std::int64_t g_jetzt = 0;

TEST_F(VerweiseTest, EachPhaseOfLoadingHasItsPlaceOnTheBar) {
    Notizfenster fenster;
    testDaten.Fortschrittsfenster = &fenster;
    fortschrittStand = {};
    fortschrittStand.Uhr = [] { return g_jetzt += 1000000; }; // every look is due
    ZeigeSchritt(u"", 200);
    struct {
        std::int32_t Phase;
        double Wert; // -1: the bar stays
    } const faelle[] = {{1, 45}, {2, 165}, {3, 185}, {4, 200}, {0, 0}, {6, 0}, {5, -1}, {7, -1}, {-1, -1}};
    for (const auto& [phase, wert] : faelle) {
        fenster.Balken = -1;
        FortschrittPhase(phase);
        const double erwartet = wert < 0 ? -1 : BalkenBreite(BalkenInnen, static_cast<std::int32_t>(wert), 200);
        EXPECT_EQ(fenster.Balken, erwartet) << phase;
    }
    NeuerLauf();
}

} // namespace
} // namespace zepholt
