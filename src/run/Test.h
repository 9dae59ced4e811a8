// The driver of a test run.
#pragma once

namespace zepholt {

// File-level tests, document test, catalogue test, protocol; the one place that decides whether a later stage runs. A
// cancel stops the run at the next gate between two stages, and then no protocol is written.
void TestAusfuehren();

} // namespace zepholt
