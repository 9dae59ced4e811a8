// The universal key: what identifies a record within a file, the same computation for every type of record. From it
// follow doubled records and the order of the lines.
//
// A key is 56 columns wide, or 88 in the new interface (Revision 12 and above). Behind it stands, as a text, the number
// of its line from 0, right-aligned in six columns; a number from 1,000,000 on takes more. Keys are compared as texts,
// so that among equal keys line 1,000,000 comes before line 200,000. That whole text is never built: the routines
// compare the columns of the lines themselves, or keys and numbers apart.
#pragma once

#include "state/Zeilenliste.h"

#include <vector>

namespace zepholt {

// True when the line begins with E, D or U. These lines have no key of their own: their letter and their number, right-
// aligned over the rest of the width, stand for it, so that they never collide.
bool IstEDURecord(Feldsicht zeile);

// The key of a line that is no E, D or U record, as wide as Revision asks for: columns 1, 2-4, 8-13, 82-86, 18-23,
// 24-29, 87-92, 129-134, 30-32, 33-35, 42, 14-15, 16-17, 123-128 of the line, and in the new interface 168-183 and
// 188-203. Each is filled with blanks; text columns are in upper case.
Text UniversalSchluessel(Feldsicht zeile);

// Neighbouring lines that are equal in what decides the order; the indexes count from 0, `Bis` lies behind the last.
struct Strecke {
    std::size_t Von;
    std::size_t Bis;

    bool operator==(const Strecke&) const = default;
};

// How the lines of a file stand to each other in the fifteen columns that decide their order: record letter, columns 2
// to 4, 8 to 13, 42, 14 and 15, 16 and 17.
struct Reihenfolge {
    std::int32_t ErsteZuNiedrige = -1; // the first line that is lower than the line before it
    bool IstSortiert = true;           // every line stands above the one before, the number of the line breaking ties
    std::vector<Strecke> Gleiche;      // of two lines at least, but for those whose whole keys ascend from line to line
};

Reihenfolge ReihenfolgeErmitteln(const Zeilenliste& zeilen);

// The number of a line (from 0, in the order of the file) whose key repeats, or -1. With several doubled keys it is the
// lowest key; of its lines, the first two in the order of their numbers as texts make the pair, and the later of the
// two is named.
std::int32_t DoppelterSchluessel(const Zeilenliste& zeilen, const Reihenfolge& reihenfolge);

// The numbers of the lines, which stand in the order of the file, in the order of their fifteen columns, the number of
// the line breaking ties. The order is total, so that the way of sorting makes no difference.
std::vector<std::uint32_t> SortierteFolge(const Zeilenliste& zeilen);

} // namespace zepholt
