// The fast writer of Error elements against the one that builds them attribute by attribute.
#include "errors/Fehlerausgabe.h"

#include "errors/FehlerERL.h"
#include "hilfen/Zeilenbau.h"
#include "hilfen/Zeilenpuffer.h"
#include "run/NeuerLauf.h"
#include "state/TestDaten.h"
#include "support/tqXML.h"

#include <gtest/gtest.h>

#include <random>

namespace zepholt {
namespace {

using namespace hilfen;

class FehlerausgabeTest : public ::testing::Test {
protected:
    FehlerausgabeTest() {
        NeuerLauf();
        testDaten.Sprache = 1;
        testDaten.Revision = 21;
        testDaten.IstE1S = true;
        m_puffer.Beginne();
        for (const Text& zeile : m_zeilen) {
            m_puffer.Anfuegen(zeile);
        }
    }
    ~FehlerausgabeTest() override { testDaten = {}; }

    std::int32_t Zeilen() const { return testDaten.ZeilenAnzahl; }

private:
    Zeilenpuffer m_puffer;
    const std::vector<Text> m_zeilen = {
        Zeile(u"A", {{42, u"1"}}),
        Zeile(u"B9", {}), // no layout
        Zeile(u"C1", {{2, u"001"}}),
        Zeile(u"G2", {{2, u"111"}, {8, u"111001"}}),
        Zeile(u"G6", {{2, u"111"}, {8, u"111001"}}),
        Zeile(u"G6", {{2, u"-1 "}, {8, u"000000"}}),
        u"G",
        u"",
    };
};

// Every row, and some codes that have none.
std::vector<std::int32_t> AlleCodes() {
    std::vector<std::int32_t> codes = {-1, 0, 1000, 4100, 9998, 10'000, 10'001};
    for (const FehlerZeile& zeile : FehlerTexte()) {
        codes.push_back(zeile.Code);
    }
    return codes;
}

TEST_F(FehlerausgabeTest, EveryCodeInEveryLanguage) {
    for (std::int32_t sprache = 0; sprache <= 4; ++sprache) {
        testDaten.Sprache = sprache;
        Fehlerausgabe ausgabe;
        for (const std::int32_t code : AlleCodes()) {
            for (const std::int32_t spalte : {0, 46}) {
                const FehlerEintrag eintrag{code, 4, spalte, 0, 0};
                ASSERT_EQ(ausgabe.Element(eintrag), XmlBytes(ErrorElement(eintrag))) << code;
            }
        }
    }
}

TEST_F(FehlerausgabeTest, RandomFindingsOneBehindTheOther) {
    std::mt19937 zufall(1);
    const auto einer = [&](std::initializer_list<std::int32_t> werte) {
        return werte.begin()[zufall() % werte.size()];
    };
    Fehlerausgabe ausgabe;
    for (int i = 0; i < 20'000; ++i) {
        const std::int32_t zeile = static_cast<std::int32_t>(zufall() % static_cast<unsigned>(Zeilen() + 3)) - 2;
        const FehlerEintrag eintrag{einer({2007, 2031, 2032, 3001, 3002, 3003, 4101, 4100, 6201}), zeile,
                                    einer({-1, 0, 1, 5, 46, 256, 257}), einer({0, 0, 1, 111, 1000, -1}),
                                    einer({0, 0, 1, 111001, -1})};
        ASSERT_EQ(ausgabe.Element(eintrag), XmlBytes(ErrorElement(eintrag)))
            << eintrag.Code << ' ' << eintrag.Zeile << ' ' << eintrag.Spalte << ' ' << eintrag.Kapitel;
    }
}

TEST_F(FehlerausgabeTest, AnElementToTheLetter) {
    Fehlerausgabe ausgabe;
    EXPECT_EQ(ausgabe.Element({2031, 4, 46, 0, 0}), "<Error L=\"5\" I=\"111.111.001\" N=\"2031\" E=\"A\" F=\"G6:15\" "
                                                    "T=\"Unzul\xE4ssige Zeichen in den Datenfeldern\"/>");
    EXPECT_EQ(ausgabe.Element({4603, -1, 0, 241, 1}),
              "<Error I=\"241.000.001\" N=\"4603\" E=\"B\" F=\"G6\" "
              "T=\"Eine Teilmenge ohne eine einzige Gliederungsangabe ist nicht erlaubt\"/>");
}

} // namespace
} // namespace zepholt
