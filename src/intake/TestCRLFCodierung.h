// The test of the line ends, on the bytes of the file.
#pragma once

#include "intake/Dateibytes.h"

namespace zepholt {

// 0 when every line of the file ends in carriage return and line feed and neither of the two stands alone, else 1.
// A missing final line end is a fault too.
std::int32_t CrLfPruefen(ByteSicht bytes);

} // namespace zepholt
