// The comparison of the document's chapters and positions with the chapter files of the VLT catalogue.
//
// It looks at structure, not at wording: whether numbers and variables exist, whether the rules for reserve positions,
// repeat ranges and alternatives hold, whether lines are blank where the catalogue's own text stands. Everything is
// reported without a line, stamped with chapter and position.
//
// A chapter is loaded once: one that the pass behind the G records has to ask is judged while it is at hand. What is
// kept of it are its findings, which would take memory anyway, and not the chapter.
#pragma once

#include "support/Text.h"

#include <unordered_map>
#include <vector>

namespace zepholt {

// A finding of the comparison in a chapter.
struct Katalogbefund {
    std::int32_t Code = 0;
    std::int32_t Position = 0; // 0 for the chapter itself
};

struct KatalogVergleich {
    // The chapter of the document, by its index, that the current chapter of VLTKapitel stands for; -1 for none.
    // Nobody else loads a chapter while this is in use.
    std::int32_t Geladen = -1;
    bool Gut = false; // the catalogue has it

    // Findings of chapters that were judged before their turn, by the index of the chapter.
    std::unordered_map<std::int32_t, std::vector<Katalogbefund>> Vorab;
};

inline KatalogVergleich katalogVergleich;

// Holds every chapter of the document that is no reserve chapter against its chapter file: 6101 to 6401. Returns early,
// after the chapter in hand, when Abbruch is set.
void TesteKatalog();

// Whether the catalogue's scope of a preliminary remark (a pure text branch) covers `position`. False when the remark
// stands behind the position, or the chapter isn't in the document or can't be loaded. Loads the chapter when it isn't
// the current one, moves the bar through the phases of the load, and judges the chapter for TesteKatalog: the
// document's chapters and positions must be complete.
bool ImKatalogGeltungsbereich(std::int32_t kapitel, std::int32_t position, std::int32_t vorbemerkung);

} // namespace zepholt
