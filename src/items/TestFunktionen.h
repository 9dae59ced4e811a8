// Small rules on texts that the item records apply. No state of their own, no reports.
#pragma once

#include "state/SIA451Datei.h"

namespace zepholt {

// The check digit of a running number (G6:20), as in EAN numbers: the last character is the digit that fills the sum of
// the others, weighted 3, 1, 3, 1 and so on from the right, up to a multiple of ten. False when a character is no
// digit; true for an empty text.
bool PruefzifferGueltig(Feldsicht text);

// True when `wert` fits `muster`: equal to it, or, when `muster` holds a '*', equal to it before the first '*'.
bool JokerGleich(Feldsicht wert, Feldsicht muster);

// True when a cost account (B9) covers these references: object structure with position location, cost type, element,
// variant group with variant, each with the joker of the cost account. A joker in the first of a pair covers the second
// too. Reached in no run, since B9 records are not read.
bool KostenkontoGefunden(const Verweissatz& verweise);

// True when positions of the chapter may carry furnishing types: every chapter may. A chapter that may not would bind
// the furnishing detail (G4:24c) to the furnishing type: 4412, 4422, 4432, 4442, 4452, 4492, 4496.
bool EinrichtungErlaubt(std::int32_t kapitel);

} // namespace zepholt
