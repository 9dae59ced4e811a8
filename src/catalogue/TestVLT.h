// The comparison of the document's chapters and positions with the chapter files of the VLT catalogue.
//
// It looks at structure, not at wording: whether numbers and variables exist, whether the rules for reserve positions,
// repeat ranges and alternatives hold, whether lines are blank where the catalogue's own text stands. Everything is
// reported without a line, stamped with chapter and position.
#pragma once

#include "support/Text.h"

namespace zepholt {

// Holds every chapter of the document that is no reserve chapter against its chapter file: 6101 to 6401. Returns early,
// after the chapter in hand, when Abbruch is set.
void TesteKatalog();

// What ImKatalogGeltungsbereich loaded last. It stands for the current chapter of VLTKapitel: as long as one is in use,
// nobody else may load a chapter.
struct GeladenesKapitel {
    std::int32_t Nummer = -1;
    bool Gut = false; // the catalogue has it
};

// Whether the catalogue's scope of a preliminary remark (a pure text branch) covers `position`. False when the remark
// stands behind the position, or the chapter isn't in the document or can't be loaded. Loads the chapter when `geladen`
// doesn't stand for it yet, and moves the bar through the phases of the load.
bool ImKatalogGeltungsbereich(std::int32_t kapitel, std::int32_t position, std::int32_t vorbemerkung,
                              GeladenesKapitel& geladen);

} // namespace zepholt
