// The system's dialogs for files and folders. `eltern` may be null.
#pragma once

#include "bericht/Meldungen.h"
#include "support/Text.h"

#include <windows.h>

#include <optional>
#include <vector>

namespace zepholt::desktop {

// Exchange files, one or several; none when the dialog was cancelled.
std::vector<Text> DateienWaehlen(HWND eltern, bericht::Sprache sprache);

// The folder of the catalogue; the dialog begins in `anfang`, if that is a folder.
std::optional<Text> KatalogWaehlen(HWND eltern, bericht::Sprache sprache, const Text& anfang);

} // namespace zepholt::desktop
