// The tests of the item records G1 to G6 and the checks over the finished tree.
#pragma once

#include "support/Text.h"

namespace zepholt {

void PruefeG1(); // chapter: 4101 to 4103 (each stops), 4104
void PruefeG2(); // position: 4201, 4211 to 4217, 4221 (each stops), 4231
void PruefeG3(); // variable line: 4301 to 4303 (each stops), 4304, 4307, 4308, 4311, 4321, 4331, 4231
void PruefeG4(); // preliminary-remark assignment: 3208, 4401 to 4403 (each stops), 4411 to 4496, 4481
// Chooses the unit codes that a G5 record may use, by the language of the file (A:11). To be called once, behind the
// test of record A; any other language than 1 to 3 leaves none.
void EinheitenSetzen();

void PruefeG5(); // unit and price: 4501 to 4503 (each stops), 4504 to 4507, 4511, 4521

// Quantity, or detail measurement line when G6:4 or G6:5 is filled: 3208; 4601, 4602 (each stops); 4521, 4611 to 4694
// (4692 stops), 2032.
void PruefeG6();

// The second half of a detail measurement line, for PruefeG6 only: reads the record anew. 4613 to 4615, 4693, 4694,
// 2032. No check asks for the line again, so that none is kept.
void PruefeDetailausmass();

// The checks over the finished tree, run once behind the last G record: 4711, 4721, 4731, 4741, 4742. No line;
// stamped with chapter and position. The stamps of the last finding stay: the records tested behind it have a line,
// and the protocol looks at the stamps of chapter and position only where there is none.
void PruefeNachlauf();

} // namespace zepholt
