// A folder of exchange files, several tested at once: what zepholt-stapel does on Linux, as far as Windows needs it.
#pragma once

#include "bericht/Pruefgang.h"

namespace zepholt::bericht {

// Tests every .01S and .E1S below `ordner`; the protocol of NAME becomes ZIEL/NAME.xml in the same tree. What has its
// protocol is done, so that the same call goes on where the last one stopped. At most `zugleich` processes, 0 for one
// on each processor. Hidden files and folders don't count, nor does `ziel` below `ordner`. Writes table.csv and
// table.jsonl into `ziel`, see DateitabelleSchreiben, whose status it returns.
int OrdnerPruefen(const Text& ordner, const Text& ziel, const Pruefwunsch& wunsch, std::size_t zugleich);

} // namespace zepholt::bericht
