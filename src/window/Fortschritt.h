// What the stages tell a watching person: phases, the bar, the names of project and document.
//
// Each setter shows nothing in a silent run. With a window it lets waiting events through, which is how a click
// on the cancel button is served; the only thing that an event can change is Abbruch. However often a setter is called,
// the window is painted and looked at some 30 times a second: what an eye can follow, and a cost that doesn't grow.
#pragma once

#include "support/OS_API.h"
#include "support/Text.h"

namespace zepholt {

void ZeigeAustauschdatei(TextSicht text);
void ZeigeProjekt(TextSicht text);
void ZeigeDokument(TextSicht text);

// A new phase: its caption, and the value at which the bar is full. The bar starts at 0, and so it is hidden. With a
// maximum of 0 any value above 0 fills it. An empty caption ends the last phase: it lets no event through.
void ZeigeSchritt(TextSicht text, std::int32_t maximum);

// Moves the bar to `wert`, in the unit of the phase's maximum. Cheap enough to be called for each record.
void ZeigeFortschritt(std::int32_t wert);

// Sets the bar to the fixed value of a phase of loading a chapter: 0 and 6 give 0, 1 gives 45, 2 gives 165, 3 gives
// 185, 4 gives 200; any other does nothing.
void FortschrittPhase(std::int32_t phase);

// Lets waiting events through without moving anything: for long stretches that have no bar of their own. Cheap enough
// to be called for each record.
void BedieneFenster();

// The width of the bar for a value, in the unit of `innen`, its full width: never below 0 nor above `innen`. Where the
// phase has no maximum (0), a value above 0 gives the full width, any other 0.
double BalkenBreite(double innen, std::int32_t wert, std::int32_t maximum);

struct FortschrittStand {
    std::int32_t FortschrittMaximum = 0;    // of the phase in hand
    std::int64_t NaechsterBalken = 0;       // milliseconds of Uhr: before it, the bar gives no reason to look
    std::int64_t NaechsterText = 0;         // the same for captions, which may be ahead of it for a while
    std::int64_t (*Uhr)() = &MilliSekunden; // tests set their own
};

inline FortschrittStand fortschrittStand;

} // namespace zepholt
