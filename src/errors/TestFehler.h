// The one store of findings. Tests report bare codes; severity, field and text are looked up when the protocol is
// written. The tests only add to the list; the protocol takes the warnings out of it in mode I and sorts it.
#pragma once

#include "errors/Fehlersammlung.h"

namespace zepholt {

struct FehlerSpeicher {
    Fehlersammlung FehlerListe; // in the order of adding, until the protocol sorts it
};

inline FehlerSpeicher fehlerSpeicher;

// The number of entries.
inline std::int32_t FehlerAnzahl() {
    return static_cast<std::int32_t>(fehlerSpeicher.FehlerListe.size());
}

// Empties the store.
void FehlerLoeschen();

// Adds an entry without a column, stamped with ZeilenNr, FehlerKapitel and FehlerPosition of this moment.
void FehlerMelden(std::int32_t code);

// The same with the first column (from 1) of the offending field. In the old interface (Revision below 12) the codes
// 3003, 3224, 3234, 6901, 6902 and 6102 are dropped.
void FehlerHinzufuegen(std::int32_t code, std::int32_t spalte);

} // namespace zepholt
