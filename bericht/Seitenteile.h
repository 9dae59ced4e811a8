// The fixed parts of the page.
#pragma once

#include <string_view>

namespace zepholt::bericht {

std::string_view Seitenstil();
std::string_view Seitenskript();

// The content policy that the page carries: nothing is loaded, and no other style or script than its own two runs.
std::string_view Inhaltsregel();

} // namespace zepholt::bericht
