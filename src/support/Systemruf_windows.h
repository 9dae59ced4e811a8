// What the sources of the platform's door on Windows share.
#pragma once

#include "support/Text.h"

#include <string_view>

#include <windows.h>

namespace zepholt {

inline constexpr std::size_t GroesstesStueck = 1U << 30U; // of one call for reading or writing, bytes

Text AusBreit(std::wstring_view text);

// Writes all, or fails.
bool AllesSchreiben(HANDLE griff, std::string_view bytes);

} // namespace zepholt
