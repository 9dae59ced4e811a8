// The comparison of the document's chapters and positions with the chapter files of the VLT catalogue.
#pragma once

#include "support/Text.h"

namespace zepholt {

// Holds every chapter of the document that is no reserve chapter against its chapter file: 6101 to 6401, without a
// line, stamped with chapter and position. Returns early, after the chapter in hand, when Abbruch is set.
void TesteKatalog();

// Whether the catalogue's scope of a preliminary remark (a pure text branch) covers `position`. False when the remark
// stands behind the position, or the chapter can't be loaded.
bool ImKatalogGeltungsbereich(std::int32_t kapitel, std::int32_t position, std::int32_t vorbemerkung);

} // namespace zepholt
