// The command line of zepholt-bericht.
#pragma once

#include "support/Text.h"

#include <vector>

namespace zepholt::bericht {

// A whole run on the arguments behind the program's name. Returns the exit status.
int Ausfuehren(const std::vector<Text>& argumente);

} // namespace zepholt::bericht
