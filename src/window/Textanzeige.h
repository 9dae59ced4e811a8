// The progress window's stand-in where no window can be shown: the phases as lines on standard error.
//
// Nothing here ever reaches standard output.
#pragma once

#include "window/Fenster.h"

namespace zepholt {

// One plain line for each phase, and nothing else: for a log or a pipe, where nobody can answer.
class Phasenzeilen : public Fenster {
public:
    void ZeigeAustauschdatei(TextSicht) override {}
    void ZeigeProjekt(TextSicht) override {}
    void ZeigeDokument(TextSicht) override {}
    void ZeigeSchritt(TextSicht text) override;
    void ZeigeBalken(double) override {}

private:
    Text m_phase; // the last one that was written
};

// The caption of a phase without what changes within it (behind the colon: the chapter in hand).
TextSicht PhaseVon(TextSicht text);

// The parameter message, line by line. Control characters of what the user typed become question marks, so that
// nothing of it acts on a terminal.
void MeldungAlsText(TextSicht text);

} // namespace zepholt
