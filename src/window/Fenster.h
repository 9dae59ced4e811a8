// What a person sees of a run: the progress window with its cancel button, and the message box.
//
// One small interface; behind it the platform's window, or, where none can be shown, lines on standard error.
#pragma once

#include "support/Text.h"

#include <memory>

namespace zepholt {

class Fenster {
public:
    virtual ~Fenster() = default;

    virtual void ZeigeAustauschdatei(TextSicht text) = 0;
    virtual void ZeigeProjekt(TextSicht text) = 0;
    virtual void ZeigeDokument(TextSicht text) = 0;

    // The caption of a phase. The bar is set apart from it.
    virtual void ZeigeSchritt(TextSicht text) = 0;

    // The filled width of the bar in twips, from 0 (hidden) to BalkenInnen (full).
    virtual void ZeigeBalken(double breite) = 0;

    // Paints what the calls above have changed and lets waiting events through; returns when a question or a modal
    // window that an event opened is answered. A confirmed cancel sets testDaten.Abbruch. The setters of Fortschritt
    // call it no more often than an eye can follow.
    virtual void Ereignisse() {}
};

// Opens the progress window, shown without blocking. Never none: without a display the run goes on with lines on
// standard error.
std::unique_ptr<Fenster> FensterOeffnen();

// Shows a message (lines ended by CR LF) in a box with the stop icon and one OK button and returns when it is answered;
// false where no box can be shown.
bool MeldungsboxZeigen(TextSicht text);

} // namespace zepholt
