// The header and the closing record of a document that gives no finding, for tests that change one field of them.
#pragma once

#include "hilfen/Zeilenbau.h"

#include <string>

namespace zepholt::hilfen {

// Record A of the old (11) or the new (21) interface; `aenderungen` overwrite its fields.
inline Text SatzA(std::int32_t revision, const std::vector<Feldwert>& aenderungen = {}) {
    Text satz = Zeile(u"A", {{2, u"211126"},
                             {8, revision >= 12 ? u"QVMX17" : u"451-92"},
                             {14, revision >= 12 ? u"21" : u"11"},
                             {30, u"Bauherr"},
                             {42, u"1"},
                             {44, u"A"},
                             {45, u"A"},
                             {63, u"000000000001"},
                             {82, u"P-1"},
                             {93, u"Schulhaus"},
                             {123, u"D-1"},
                             {138, u"Baumeister"},
                             {168, u"Muster AG"},
                             {188, u"Bern"},
                             {208, u"Ausmass"}});
    satz.resize(256, u' ');
    return Geaendert(satz, aenderungen);
}

// Record Z of a file of `anzahl` lines, A and Z included.
inline Text SatzZ(std::size_t anzahl, const std::vector<Feldwert>& aenderungen = {}) {
    const std::string ziffern = std::to_string(anzahl);
    const Text zahl = Text(13 - ziffern.size(), u'0') + Text(ziffern.begin(), ziffern.end());
    Text satz = Zeile(u"Z", {{2, u"211126"},
                             {18, u"Ersteller"},
                             {46, zahl},
                             {62, u"-"},
                             {63, u"000000000001"},
                             {138, u"Baumeister"},
                             {168, u"Muster AG"},
                             {188, u"Bern"}});
    satz.resize(256, u' ');
    return Geaendert(satz, aenderungen);
}

} // namespace zepholt::hilfen
