// From a finding's field reference to the place in its record: which fields are meant, or which column.
#pragma once

#include "state/SIA451Felder.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zepholt::bericht {

struct Feldort {
    std::vector<std::size_t> Felder; // rows of the record's layout
    std::int32_t Spalte = 0;         // from 1: the reference is a column outside of all fields; else 0
    bool GanzerRecord = false;       // the reference names a record and no field of it

    bool Gefunden() const { return !Felder.empty() || Spalte > 0 || GanzerRecord; }
};

// The place of `feld` in a record with these layout rows. References come in several forms:
//   G6:13        a field                     100          a column
//   G6:17/18     two fields                  G2/3:12      a field of either record
//   Z:24a, A:8   a part of Z:24a-d, A:8-10   eG6:4/5      a field of a detail measurement line, which is a G6 record
//   B0, eG6      the record as a whole       X/P          the variable number of any attachment record
// A reference that the record has no place for gives none.
Feldort FeldortVon(std::string_view feld, std::span<const RecordLayout> layouts);

// "3", "3,4", "@100", "*", "": a place in the short form that the page's data hold.
std::string Ortskuerzel(const Feldort& ort);

} // namespace zepholt::bericht
