#include "window/Terminalanzeige_linux.h"

#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"
#include "support/Systemruf_linux.h"
#include "window/Formulare.h"
#include "window/Formulartexte.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <new>

namespace zepholt {

namespace {

constexpr std::size_t Striche = 20; // of the full bar

// Set by Ctrl+C, taken back when the question is answered. A signal handler can reach nothing but a static.
volatile std::sig_atomic_t g_unterbrochen = 0;

// A terminal that is gone is no reason to stop a test.
void SchreibeText(const Text& text) {
    AllesSchreiben(STDERR_FILENO, Utf8Bytes(text));
}

void BeiUnterbrechung(int signal) {
    if (g_unterbrochen == 0) {
        g_unterbrochen = 1;
        return;
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal); // takes effect on return
}

std::size_t TerminalSpalten() {
    winsize groesse{};
    if (ioctl(STDERR_FILENO, TIOCGWINSZ, &groesse) != 0 || groesse.ws_col == 0) {
        return 80;
    }
    return groesse.ws_col;
}

// The line that a person types, without its end; empty when nobody can answer. A process in the background doesn't
// ask: reading would stop it.
std::string AntwortLesen() {
    const int terminal = open("/dev/tty", O_RDONLY | O_CLOEXEC | O_NOCTTY);
    std::string antwort;
    if (terminal >= 0 && tcgetpgrp(terminal) == getpgrp()) {
        for (char zeichen = 0; Wiederholt([&] { return read(terminal, &zeichen, 1); }) == 1 && zeichen != '\n';) {
            antwort.push_back(zeichen);
        }
    }
    if (terminal >= 0) {
        close(terminal);
    }
    return antwort;
}

} // namespace

Terminalanzeige::Terminalanzeige() {
    g_unterbrochen = 0;
    struct sigaction neu {};
    neu.sa_handler = BeiUnterbrechung;
    sigaction(SIGINT, nullptr, &m_vorher);
    if (m_vorher.sa_handler != SIG_IGN) { // a run that is to outlive its terminal stays so
        sigaction(SIGINT, &neu, nullptr);
    }
}

Terminalanzeige::~Terminalanzeige() {
    sigaction(SIGINT, &m_vorher, nullptr);
    try {
        Schreibe({});
    } catch (const std::bad_alloc&) {
        // What stands on the line stays.
    }
}

void Terminalanzeige::Ereignisse() {
    Schreibe(Terminalzeile(m_schritt, m_breite, TerminalSpalten()));
    if (g_unterbrochen != 0) {
        FrageAbbruch();
    }
}

// Blanks over what is left of the line before: no control sequence that a terminal could lack.
void Terminalanzeige::Schreibe(TextSicht zeile) {
    if (zeile == m_zeile) {
        return;
    }
    Text ausgabe = u"\r";
    ausgabe.append(LinksBuendig(zeile, static_cast<std::int32_t>(m_zeile.size())));
    if (zeile.size() < m_zeile.size()) {
        ausgabe.append(u"\r").append(zeile);
    }
    SchreibeText(ausgabe);
    m_zeile = zeile;
}

// Anything but the first letter of Yes is No, no answer at all too.
void Terminalanzeige::FrageAbbruch() {
    const Fragetexte texte = TexteAbbruchfrage();
    const Text ja = Kleinbuchstaben(TextSicht(texte.Ja).substr(0, 1));
    const Text nein = Kleinbuchstaben(TextSicht(texte.Nein).substr(0, 1));
    Schreibe({});
    SchreibeText(texte.Frage + u" (" + ja + u"/" + nein + u") ");

    const Text antwort = Kleinbuchstaben(OhneLeerzeichen(AusAscii(AntwortLesen())));
    if (antwort.substr(0, 1) == ja) {
        testDaten.Abbruch = true;
    }
    g_unterbrochen = 0;
    m_zeile.clear();
}

Text Terminalzeile(TextSicht schritt, double breite, std::size_t spalten) {
    const std::size_t platz = spalten > 0 ? spalten - 1 : 0;
    const double anteil = breite / BalkenInnen;
    Text zeile(schritt.substr(0, platz));
    if (breite <= 0) {
        return zeile;
    }
    const Text prozent = RechtsBuendig(ZahlText(static_cast<std::int64_t>(anteil * 100)), 5) + u" %";
    const auto striche = static_cast<std::size_t>(anteil * Striche * 2 + 1) / 2; // rounded
    const Text balken = u"  [" + Text(striche, u'#') + Text(Striche - striche, u'.') + u"]";
    if (zeile.size() + balken.size() + prozent.size() <= platz) {
        return zeile + balken + prozent;
    }
    if (prozent.size() <= platz) {
        zeile.resize(std::min(zeile.size(), platz - prozent.size()));
        zeile += prozent;
    }
    return zeile;
}

} // namespace zepholt
