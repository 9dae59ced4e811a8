// The progress window's stand-in on a terminal: one line on standard error with phase, bar and percent.
//
// Ctrl+C asks the cancel question; a second Ctrl+C, before it is answered, ends the process at once.
#pragma once

#include "window/Fenster.h"

#include <csignal>

namespace zepholt {

class Terminalanzeige : public Fenster {
public:
    Terminalanzeige();
    ~Terminalanzeige() override;
    Terminalanzeige(const Terminalanzeige&) = delete;
    Terminalanzeige& operator=(const Terminalanzeige&) = delete;

    void ZeigeAustauschdatei(TextSicht) override {}
    void ZeigeProjekt(TextSicht) override {}
    void ZeigeDokument(TextSicht) override {}
    void ZeigeSchritt(TextSicht text) override { m_schritt = text; }
    void ZeigeBalken(double breite) override { m_breite = breite; }
    void Ereignisse() override;

private:
    void Schreibe(TextSicht zeile);
    void FrageAbbruch();

    Text m_schritt;
    double m_breite = 0; // of the bar, in twips
    Text m_zeile;        // what stands on the terminal's line now
    struct sigaction m_vorher {};
};

// The line for a phase and a bar of `breite` twips on a terminal of `spalten` columns; never as long as the terminal is
// wide, so that it doesn't wrap. Too narrow for all, it loses the bar first, then the end of the phase.
Text Terminalzeile(TextSicht schritt, double breite, std::size_t spalten);

} // namespace zepholt
