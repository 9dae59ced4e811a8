// What the stages tell a watching person: phases, the bar, the names of project and document.
//
// Each setter does nothing at all in a silent run. With a window it lets waiting events through, which is how a click
// on the cancel button is served; the only thing that an event can change is Abbruch.
#pragma once

#include "support/Text.h"

namespace zepholt {

void ZeigeAustauschdatei(TextSicht text);
void ZeigeProjekt(TextSicht text);
void ZeigeDokument(TextSicht text);

// A new phase: its caption, and the value at which the bar is full. The bar starts at 0; a maximum of 0 hides it.
void ZeigeSchritt(TextSicht text, std::int32_t maximum);

// Moves the bar to `wert`, in the unit of the phase's maximum. Cheap enough to be called for each record.
void ZeigeFortschritt(std::int32_t wert);

} // namespace zepholt
