// A fresh run in a process that has had one.
#pragma once

namespace zepholt {

// Puts every shared state back at its start: run state, error store, file data, dialog language, progress, catalogue
// and the parsed chapter. A test's own clocks go with them. Tests and fuzzers begin with it.
void NeuerLauf();

} // namespace zepholt
