// Whole runs with a window: the parameter box, cancel in each phase and at any moment, and that a window changes
// nothing in the protocol.
#include "hilfen/Fensterhilfe.h"
#include "hilfen/KopfSaetze.h"
#include "hilfen/Testordner.h"
#include "run/Main_Start.h"
#include "run/NeuerLauf.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"
#include "window/DialogDeFrIt.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace zepholt {
namespace {

using namespace hilfen;

constexpr std::int32_t Positionen = 999; // of each chapter

// A document of chapters from 111 on, each with many positions that no catalogue has.
std::string Dokument(std::int32_t kapitelAnzahl) {
    std::vector<Text> saetze;
    for (std::int32_t nummer = 111; nummer < 111 + kapitelAnzahl; ++nummer) {
        const Text kapitel = ZahlText(nummer);
        saetze.push_back(Zeile(u"G1", {{2, kapitel}, {6, u"17"}, {93, u"Kapitel"}}));
        for (std::int32_t i = 1; i <= Positionen; ++i) {
            const Text position = ZahlText(100000 + i);
            saetze.push_back(Zeile(u"G2", {{2, kapitel}, {8, position}, {93, u"Position"}}));
            saetze.push_back(Zeile(u"G3", {{2, kapitel}, {8, position}, {14, u"00"}, {16, u"01"}, {93, u"Text"}}));
            saetze.push_back(Zeile(u"G3", {{2, kapitel}, {8, position}, {14, u"00"}, {16, u"02"}, {93, u"Text"}}));
        }
    }
    saetze.insert(saetze.begin(), SatzA(11));
    saetze.push_back(SatzZ(saetze.size() + 1));
    std::string bytes;
    for (const Text& satz : saetze) {
        bytes.append(satz.begin(), satz.end()).append("\r\n");
    }
    return bytes;
}

class LaufMitFensterTest : public testing::Test {
protected:
    void SetUp() override {
        NeuerLauf();
        m_ordner.Schreibe("a.01S", Dokument(3));
        std::filesystem::create_directory(m_ordner.Pfad() / "k");
        std::filesystem::create_directory(m_ordner.Pfad() / "aus");
    }
    void TearDown() override {
        WartendeVergessen();
        NeuerLauf();
        EXPECT_EQ(Haupt(), nullptr) << "the window is closed behind a run";
    }

    int Laufe(TextSicht dialog) {
        NeuerLauf();
        const int status = Main(u"file=" + m_ordner.TextPfad("a.01S") + u" dialog=" + Text(dialog) + u" errorfile=" +
                                m_ordner.TextPfad("aus/p.xml") + u" catalog=" + m_ordner.TextPfad("k"));
        WartendeVergessen();
        return status;
    }

    // The protocol without its date and time, or nothing when there is none; taken away for the next run.
    std::string Protokoll() {
        if (!m_ordner.Hat("aus/p.xml")) {
            return {};
        }
        std::string text = m_ordner.Lies("aus/p.xml");
        std::filesystem::remove(m_ordner.Pfad() / "aus/p.xml");
        const std::size_t ab = text.find("<Date");
        return text.erase(ab, text.find("</Time>", ab) - ab);
    }

    // No protocol, and nothing beside its place either.
    bool NichtsGeblieben() const { return std::filesystem::is_empty(m_ordner.Pfad() / "aus"); }

    Testordner m_ordner;
};

// --- The parameter box -----------------------------------------------------------------------------------------------

TEST_F(LaufMitFensterTest, ParameterBoxHasItsExactTextForEachCode) {
    const Text datei = m_ordner.TextPfad("a.01S");
    const Text katalog = m_ordner.TextPfad("k");
    const Text neu = m_ordner.TextPfad("aus/p.xml");
    const auto zeilen = [](TextSicht f, TextSicht d, TextSicht e, TextSicht k) {
        return u"file=\"" + Text(f) + u"\"\ndialog=\"" + Text(d) + u"\"\nerrorfile=\"" + Text(e) + u"\"\ncatalog=\"" +
               Text(k) + u"\"\n";
    };
    struct Fall {
        Text Kommandozeile;
        Text Meldung;
    };
    const Fall faelle[] = {
        // 1001
        {u"", zeilen(u"", u"", u"", u"") +
                  u"\nAllgemeines Problem bei den Aufrufparametern\nProblème général concernant "
                  u"les paramètres d’appel\nProblema generale nei parametri di chiamata"},
        // 1002
        {u"datei=x",
         zeilen(u"", u"", u"", u"") + u"\nUnerkannter Parameter\nParamètre non reconnu\nParametro non riconosciuto"},
        // 1003
        {u"file=fehlt.01S dialog=de",
         zeilen(u"fehlt.01S", u"de", u"", u"") + u"\nAustauschdatei (SIA451-Datei) nicht gefunden"},
        // 1004
        {u"file=" + datei + u" dialog=en mode=E",
         zeilen(datei, u"en", u"", u"") + u"mode=\"E\"\n\nUnerkannte Dialogsprache (de/fr/it)\nLangue de dialogue non "
                                          u"reconnue (de/fr/it)\nLingua di dialogo non riconosciuta (de/fr/it)"},
        // 1005
        {u"file=" + datei + u" dialog=fr",
         zeilen(datei, u"fr", u"", u"") + u"\nFichier d’erreurs non valable ou déjà existant"},
        // 1006
        {u"file=" + datei + u" dialog=it errorfile=" + neu,
         zeilen(datei, u"it", neu, u"") + u"\nCartella contenente i files del Catalogo DXM non valida"},
        // 1007
        {u"file=" + datei + u" dialog=de mode=X errorfile=" + neu + u" catalog=" + katalog,
         zeilen(datei, u"de", neu, katalog) + u"mode=\"X\"\n\nUngültiger Modus (E/I)"},
    };
    for (const Fall& fall : faelle) {
        NeuerLauf();
        QString gesehen;
        Sobald([] { return Box() != nullptr; },
               [&gesehen] {
                   gesehen = Box()->text();
                   EXPECT_EQ(Box()->icon(), QMessageBox::Critical);
                   EXPECT_EQ(Box()->windowTitle(), QStringLiteral("ZEPHOLT"));
                   ASSERT_EQ(Box()->buttons().size(), 1);
                   EXPECT_EQ(Box()->buttons()[0]->text(), QStringLiteral("OK"));
                   Klicke(Box()->buttons()[0]);
               });
        EXPECT_EQ(Main(fall.Kommandozeile), 0);
        EXPECT_EQ(gesehen, AusText(fall.Meldung));
        EXPECT_TRUE(NichtsGeblieben());
    }
}

// A silent run shows no box: it would never return, nobody answering it.
TEST_F(LaufMitFensterTest, SilentRunShowsNoBoxAndNoWindow) {
    EXPECT_EQ(Main(u"file=fehlt.01S dialog=de-"), 0);
    EXPECT_EQ(Laufe(u"de-"), 0);
    EXPECT_NE(Protokoll(), "");
}

// --- Cancel ----------------------------------------------------------------------------------------------------------

constexpr TextSicht Phasen[] = {u"Liest Austauschdatei ein", u"Testet Dokument", u"Testet VLT-Kapitel: 112",
                                u"Schreibt Fehlerprotokoll"};

bool InPhase(TextSicht phase) {
    const auto* feld = Kind<QLabel>(Haupt(), "lblFortschritt");
    return feld != nullptr && feld->text() == AusText(phase);
}

// Presses the cancel button as soon as the window shows the phase, and answers.
void AbbrechenIn(TextSicht phase, TextSicht antwort, bool& gefragt) {
    Sobald([phase] { return InPhase(phase); },
           [antwort, &gefragt] {
               Sobald([] { return Box() != nullptr; },
                      [antwort, &gefragt] {
                          gefragt = true;
                          Klicke(Antwort(*Box(), antwort));
                      });
               Klicke(Kind<QPushButton>(Haupt(), "cmdAbbrechen"));
           });
}

TEST_F(LaufMitFensterTest, YesInAnyPhaseLeavesNoFile) {
    for (const TextSicht phase : Phasen) {
        bool gefragt = false;
        AbbrechenIn(phase, u"Ja", gefragt);
        EXPECT_EQ(Laufe(u"de"), 0);
        EXPECT_TRUE(gefragt) << std::string(phase.begin(), phase.end());
        EXPECT_TRUE(testDaten.Abbruch);
        EXPECT_TRUE(NichtsGeblieben());
    }
}

TEST_F(LaufMitFensterTest, ProtocolIsTheSameSilentWithWindowAndAfterNo) {
    Laufe(u"de-");
    const std::string still = Protokoll();
    EXPECT_NE(still, "");
    Laufe(u"de");
    EXPECT_EQ(Protokoll(), still);
    for (const TextSicht phase : Phasen) {
        bool gefragt = false;
        AbbrechenIn(phase, u"Nein", gefragt);
        Laufe(u"de");
        EXPECT_TRUE(gefragt);
        EXPECT_FALSE(testDaten.Abbruch);
        EXPECT_EQ(Protokoll(), still);
    }
}

int AusUmgebung(const char* name, int sonst) {
    const char* verlangt = std::getenv(name);
    return verlangt == nullptr ? sonst : std::atoi(verlangt);
}

// Moments spread over a run and a little more. ZEPHOLT_MOMENTE and ZEPHOLT_KAPITEL ask for more of them in a longer
// run.
TEST_F(LaufMitFensterTest, YesAtARandomMomentLeavesNoFile) {
    const int momente = AusUmgebung("ZEPHOLT_MOMENTE", 20);
    m_ordner.Schreibe("a.01S", Dokument(AusUmgebung("ZEPHOLT_KAPITEL", 3)));
    QElapsedTimer uhr;
    uhr.start();
    Laufe(u"de");
    const auto dauer = static_cast<int>(uhr.elapsed());
    EXPECT_NE(Protokoll(), "");

    std::mt19937 zufall(451);
    for (int i = 0; i < momente; ++i) {
        bool ja = false;
        const std::int64_t ab = QDateTime::currentMSecsSinceEpoch() +
                                std::uniform_int_distribution<std::int64_t>(0, dauer + dauer / 10)(zufall);
        Sobald([ab] { return QDateTime::currentMSecsSinceEpoch() >= ab && Haupt() != nullptr; },
               [&ja] {
                   Sobald([] { return Box() != nullptr; },
                          [&ja] {
                              ja = true;
                              Klicke(Antwort(*Box(), u"Ja"));
                          });
                   Klicke(Kind<QPushButton>(Haupt(), "cmdAbbrechen"));
               });
        EXPECT_EQ(Laufe(u"de"), 0);
        EXPECT_EQ(testDaten.Abbruch, ja);
        EXPECT_EQ(NichtsGeblieben(), ja);
        Protokoll();
    }
}

} // namespace
} // namespace zepholt
