// The driver of a test run: what a watching person is shown, and what a cancel stops.
#include "run/Test.h"

#include "hilfen/Funde.h"
#include "hilfen/KopfSaetze.h"
#include "hilfen/Testordner.h"
#include "run/NeuerLauf.h"
#include "state/SIA451Datei.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"
#include "window/DialogDeFrIt.h"
#include "window/Fenster.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zepholt {
namespace {

using namespace hilfen;

// Notes the phases; confirms a cancel at the first event in one of them, where a test asks for it.
class Phasenfenster : public Fenster {
public:
    void ZeigeAustauschdatei(TextSicht) override {}
    void ZeigeProjekt(TextSicht) override {}
    void ZeigeDokument(TextSicht) override {}
    void ZeigeSchritt(TextSicht text) override { Phasen.emplace_back(text); }
    void ZeigeBalken(double) override {}
    void Ereignisse() override {
        if (!AbbruchIn.empty() && !Phasen.empty() && Phasen.back() == AbbruchIn) {
            testDaten.Abbruch = true;
        }
    }

    std::vector<Text> Phasen;
    Text AbbruchIn;
};

class TestAusfuehrenTest : public testing::Test {
protected:
    TestAusfuehrenTest() {
        NeuerLauf();
        SpracheSetzen(1);
        testDaten.Version = u"4.0";
        testDaten.Sprache = 1;
        testDaten.Austauschdatei = m_ordner.TextPfad("a.01S");
        testDaten.Fehlerdatei = m_ordner.TextPfad("p.xml");
        testDaten.Katalog = m_ordner.TextPfad("k");
        testDaten.KatalogArt = 1;
        testDaten.Fortschrittsfenster = &Anzeige;
        std::filesystem::create_directory(m_ordner.Pfad() / "k");
    }
    ~TestAusfuehrenTest() override { NeuerLauf(); }

    // A run on a file of these records between A and Z.
    void Laufe(std::vector<Text> saetze) {
        saetze.insert(saetze.begin(), SatzA(11));
        saetze.push_back(SatzZ(saetze.size() + 1));
        std::string bytes;
        for (const Text& satz : saetze) {
            bytes.append(satz.begin(), satz.end()).append("\r\n");
        }
        m_ordner.Schreibe("a.01S", bytes);
        TestAusfuehren();
    }

    static bool Gemeldet(std::int32_t code) {
        return std::ranges::any_of(FundeAb(0), [code](const Fund& fund) { return fund.Code == code; });
    }

    bool HatProtokoll() const { return m_ordner.Hat("p.xml"); }

    Phasenfenster Anzeige;
    Testordner m_ordner;
};

using Phasen = std::vector<Text>;

TEST_F(TestAusfuehrenTest, PhasesOfARunInTheirOrder) {
    Laufe({Zeile(u"G1", {{2, u"111"}, {6, u"19"}, {93, u"Kapitel"}})});
    EXPECT_EQ(Anzeige.Phasen, (Phasen{u"", u"Liest Austauschdatei ein", u"Testet Dokument", u"Testet VLT-Kapitel: 111",
                                      u"Schreibt Fehlerprotokoll", u""}));
    EXPECT_TRUE(HatProtokoll());
}

// The protocol of a file that can't be tested is written without its phase being shown.
TEST_F(TestAusfuehrenTest, RefusedFileShowsNoPhaseOfWriting) {
    Laufe({Zeile(u"G1", {}), Zeile(u"C0", {{2, u"001"}})}); // C stands before G
    EXPECT_EQ(Anzeige.Phasen, (Phasen{u"", u"Liest Austauschdatei ein"}));
    EXPECT_TRUE(Gemeldet(2022));
    EXPECT_TRUE(HatProtokoll());
}

TEST_F(TestAusfuehrenTest, FileThatCanNotBeReadShowsNoPhaseAtAll) {
    m_ordner.Schreibe("a.01S", "x");
    TestAusfuehren();
    EXPECT_EQ(Anzeige.Phasen, Phasen{u""});
    EXPECT_TRUE(Gemeldet(2001));
    EXPECT_TRUE(HatProtokoll());
}

// A structure record, a condition and an item, each with a finding of its own.
std::vector<Text> JeEinBefund() {
    return {Zeile(u"B1", {}), Zeile(u"C0", {{2, u"001"}}), Zeile(u"G1", {})};
}

// The document test doesn't look at the cancel: what it has begun, it ends, and only then nothing more comes.
TEST_F(TestAusfuehrenTest, CancelInTheFirstPassLetsAllPassesRunToTheirEnd) {
    Anzeige.AbbruchIn = u"Testet Dokument";
    Laufe(JeEinBefund());
    EXPECT_TRUE(testDaten.Abbruch);
    EXPECT_TRUE(Gemeldet(3221));
    EXPECT_TRUE(Gemeldet(4101));
    EXPECT_TRUE(Gemeldet(5101));
    EXPECT_EQ(Anzeige.Phasen.back(), u"Testet Dokument");
    EXPECT_FALSE(HatProtokoll());
}

TEST_F(TestAusfuehrenTest, WithoutACancelTheSameFileGetsItsProtocol) {
    Laufe(JeEinBefund());
    EXPECT_TRUE(Gemeldet(3221));
    EXPECT_TRUE(Gemeldet(5101));
    EXPECT_TRUE(HatProtokoll());
}

TEST_F(TestAusfuehrenTest, CancelWhileTheFileIsReadEndsTheRunThere) {
    Anzeige.AbbruchIn = u"Liest Austauschdatei ein";
    Laufe(JeEinBefund());
    EXPECT_EQ(Anzeige.Phasen.back(), u"Liest Austauschdatei ein");
    EXPECT_FALSE(Gemeldet(3221));
    EXPECT_FALSE(HatProtokoll());
}

TEST_F(TestAusfuehrenTest, CancelInTheLastPhaseLeavesNoProtocol) {
    Anzeige.AbbruchIn = u"Schreibt Fehlerprotokoll";
    Laufe({});
    EXPECT_EQ(Anzeige.Phasen.back(), u"Schreibt Fehlerprotokoll");
    EXPECT_FALSE(HatProtokoll());
}

// Codes in any order are looked for ahead of the record in hand; what is found is the same.
TEST_F(TestAusfuehrenTest, StructureCodesInDescendingOrder) {
    constexpr std::int32_t Anzahl = 200;
    std::vector<Text> saetze = {Zeile(u"B0", {{2, u"002"}})};
    for (std::int32_t i = 0; i < Anzahl; ++i) {
        const std::int32_t reihenfolge = i == 150 || i == Anzahl - 1 ? 11 : i + 1; // that of the eleventh
        saetze.push_back(Zeile(u"B2", {{2, u"002"},
                                       {18, u"C" + ZahlText(999 - i)},
                                       {75, i == 20 ? Text() : Text(4, u'0') + ZahlText(100 + reihenfolge)},
                                       {93, u"Haus"}}));
    }
    Laufe(saetze);
    const auto mitReihenfolge = [](std::int32_t zeile) {
        return std::ranges::count_if(FundeAb(0), [zeile](const Fund& fund) { return fund == Fund{3219, zeile}; });
    };
    EXPECT_EQ(mitReihenfolge(152), 1); // behind the eleventh
    EXPECT_EQ(mitReihenfolge(Anzahl + 1), 2);
    EXPECT_EQ(std::ranges::count_if(FundeAb(0), [](const Fund& fund) { return fund.Code == 3219; }), 3);
    EXPECT_EQ(sia451Datei.OGLTabelle.Anzahl(), Anzahl);
}

} // namespace
} // namespace zepholt
