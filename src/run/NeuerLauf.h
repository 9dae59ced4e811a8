// A fresh run: every shared state back at its start.
#pragma once

namespace zepholt {

// Puts run state, error store, file data, dialog language and catalogue back. Tests and fuzzers begin with it.
void NeuerLauf();

} // namespace zepholt
