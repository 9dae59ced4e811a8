// The progress line on a terminal, and Ctrl+C, on a pseudo-terminal.
#include "window/Terminalanzeige_linux.h"
#include "run/NeuerLauf.h"
#include "state/TestDaten.h"
#include "window/DialogDeFrIt.h"
#include "window/Formulare.h"
#include "window/Fortschritt.h"

#include <gtest/gtest.h>

#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zepholt {
namespace {

// --- The line --------------------------------------------------------------------------------------------------------

TEST(TerminalzeileTest, PhaseBarAndPercent) {
    EXPECT_EQ(Terminalzeile(u"Testet Dokument", BalkenInnen / 2.0, 80),
              u"Testet Dokument  [##########..........]   50 %");
    EXPECT_EQ(Terminalzeile(u"Testet Dokument", BalkenInnen, 80), u"Testet Dokument  [####################]  100 %");
    EXPECT_EQ(Terminalzeile(u"Testet Dokument", 1, 80), u"Testet Dokument  [....................]    0 %");
}

TEST(TerminalzeileTest, NoBarWithoutAValue) {
    EXPECT_EQ(Terminalzeile(u"Schreibt Fehlerprotokoll", 0, 80), u"Schreibt Fehlerprotokoll");
    EXPECT_EQ(Terminalzeile(u"", 0, 80), u"");
}

TEST(TerminalzeileTest, LongestPhaseFitsEightyColumns) {
    EXPECT_EQ(Terminalzeile(u"Fichier de transfert - Lecture en cours", BalkenInnen, 80),
              u"Fichier de transfert - Lecture en cours  [####################]  100 %");
}

TEST(TerminalzeileTest, NarrowTerminalLosesTheBarFirstThenTheEndOfThePhase) {
    constexpr TextSicht Phase = u"Testet Dokument";
    EXPECT_EQ(Terminalzeile(Phase, BalkenInnen, 47), u"Testet Dokument  [####################]  100 %");
    EXPECT_EQ(Terminalzeile(Phase, BalkenInnen, 46), u"Testet Dokument  100 %");
    EXPECT_EQ(Terminalzeile(Phase, BalkenInnen, 23), u"Testet Dokument  100 %");
    EXPECT_EQ(Terminalzeile(Phase, BalkenInnen, 22), u"Testet Dokumen  100 %");
    for (std::size_t spalten = 0; spalten < 60; ++spalten) {
        EXPECT_LE(Terminalzeile(Phase, BalkenInnen, spalten).size(), spalten == 0 ? 0 : spalten - 1);
    }
}

// --- Ctrl+C ----------------------------------------------------------------------------------------------------------

constexpr int EndeNachAbbruch = 7; // what the run on the terminal ends with
constexpr int EndeOhneAbbruch = 8;

// A run of a minute on a terminal of its own, as another process, with a person at the other end.
class Terminallauf {
public:
    explicit Terminallauf(std::int32_t sprache) {
        winsize groesse{};
        groesse.ws_col = 80;
        groesse.ws_row = 24;
        m_prozess = forkpty(&m_terminal, nullptr, nullptr, &groesse);
        if (m_prozess == 0) {
            _exit(Laufe(sprache));
        }
    }
    ~Terminallauf() {
        if (m_prozess > 0) {
            kill(m_prozess, SIGKILL);
            waitpid(m_prozess, nullptr, 0);
        }
        close(m_terminal);
    }
    Terminallauf(const Terminallauf&) = delete;
    Terminallauf& operator=(const Terminallauf&) = delete;

    void Tippe(std::string_view bytes) const {
        EXPECT_EQ(write(m_terminal, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }

    // Reads until `text` has come, ten seconds at most.
    bool Erwarte(std::string_view text) {
        const std::int64_t ende = MilliSekunden() + 10000;
        while (m_gelesen.find(text) == std::string::npos && MilliSekunden() < ende) {
            pollfd bereit = {m_terminal, POLLIN, 0};
            char puffer[4096];
            if (poll(&bereit, 1, 100) > 0) {
                const ssize_t anzahl = read(m_terminal, puffer, sizeof puffer);
                m_gelesen.append(puffer, static_cast<std::size_t>(std::max<ssize_t>(anzahl, 0)));
                if (anzahl <= 0) {
                    break;
                }
            }
        }
        const bool da = m_gelesen.find(text) != std::string::npos;
        EXPECT_TRUE(da) << m_gelesen;
        m_gelesen.clear();
        return da;
    }

    // How the process ended.
    int Ende() {
        int status = 0;
        waitpid(m_prozess, &status, 0);
        m_prozess = -1;
        return status;
    }

private:
    static int Laufe(std::int32_t sprache) {
        NeuerLauf();
        SpracheSetzen(sprache);
        Terminalanzeige anzeige;
        testDaten.Fortschrittsfenster = &anzeige;
        ZeigeSchritt(u"Phase", 6000);
        for (std::int32_t i = 0; i < 6000 && !testDaten.Abbruch; ++i) {
            ZeigeFortschritt(i);
            usleep(10000);
        }
        return testDaten.Abbruch ? EndeNachAbbruch : EndeOhneAbbruch;
    }

    int m_terminal = -1;
    pid_t m_prozess = -1;
    std::string m_gelesen;
};

constexpr std::string_view StrgC = "\x03";

TEST(TerminalanzeigeTest, ControlCAsksAndYesCancelsInEachLanguage) {
    struct Fall {
        std::int32_t Sprache;
        std::string_view Frage;
        std::string_view Antwort;
    };
    constexpr Fall Faelle[] = {
        {1, "Soll der Test abgebrochen werden? (j/n) ", "j\n"},
        {2, "Le test doit-il être interrompu? (o/n) ", "O\n"},
        {3, "Il test deve venir interrotto? (s/n) ", "si\n"},
    };
    for (const Fall& fall : Faelle) {
        Terminallauf lauf(fall.Sprache);
        lauf.Erwarte("Phase  [");
        lauf.Tippe(StrgC);
        lauf.Erwarte(fall.Frage);
        lauf.Tippe(fall.Antwort);
        const int status = lauf.Ende();
        EXPECT_TRUE(WIFEXITED(status));
        EXPECT_EQ(WEXITSTATUS(status), EndeNachAbbruch);
    }
}

TEST(TerminalanzeigeTest, AnythingElseIsNoAndTheRunGoesOnAndAsksAgain) {
    Terminallauf lauf(1);
    lauf.Erwarte("Phase  [");
    for (const std::string_view antwort : {"n\n", "\n", "y\n", " \n", "x j\n"}) {
        lauf.Tippe(StrgC);
        lauf.Erwarte("(j/n) ");
        lauf.Tippe(antwort);
        lauf.Erwarte("Phase  [");
    }
    lauf.Tippe(StrgC);
    lauf.Erwarte("(j/n) ");
    lauf.Tippe("j\n");
    EXPECT_EQ(WEXITSTATUS(lauf.Ende()), EndeNachAbbruch);
}

TEST(TerminalanzeigeTest, SecondControlCEndsAtOnce) {
    Terminallauf lauf(1);
    lauf.Erwarte("Phase  [");
    lauf.Tippe(StrgC);
    lauf.Erwarte("(j/n) ");
    lauf.Tippe(StrgC);
    const int status = lauf.Ende();
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGINT);
}

} // namespace
} // namespace zepholt
