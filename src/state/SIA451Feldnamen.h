// What the fields and the record types are called in the trade, in German, French and Italian.
//
// The words are those of docs/glossar.md. Every field reference of the layout table has a name; docs/felder.md lists
// them.
#pragma once

#include "support/Text.h"

namespace zepholt {

// The name of a field reference such as u"G6:24h" or u"A:21-22" in a language (1 German, 2 French, 3 Italian); empty
// for a reference that no record type has.
TextSicht Feldbezeichnung(TextSicht feldbezug, std::int32_t sprache);

// The name of a record type such as u"G6" or u"A"; empty for an undefined one.
TextSicht Recordbezeichnung(TextSicht typ, std::int32_t sprache);

} // namespace zepholt
