// The entry of zepholt-pruefen. Files on the command line are tested at once: that is how the system starts it when
// they are dropped on its icon, or opened with it. Without any, its window opens.
#include "bericht/Konsole.h"
#include "desktop/Ablauf_windows.h"
#include "desktop/Prueffenster_windows.h"
#include "support/OS_API.h"
#include "window/Formularfenster_windows.h"

#include <objbase.h>

int main(int anzahl, char** argumente) {
    using namespace zepholt;
    ProzessVorbereiten();
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE))) {
        return 1;
    }
    KlassenAnmelden();
    const std::vector<Text> dateien = bericht::Argumente(anzahl, argumente);
    if (dateien.empty()) {
        desktop::PrueffensterZeigen(bericht::Systemsprache());
    } else {
        desktop::DateienPruefen(nullptr, bericht::Systemsprache(), dateien);
    }
    CoUninitialize();
    return 0;
}
