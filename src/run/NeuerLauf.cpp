#include "run/NeuerLauf.h"

#include "catalogue/TestVLT.h"
#include "catalogue/VLTKapitel.h"
#include "catalogue/VLTKatalog.h"
#include "errors/TestFehler.h"
#include "state/SIA451Datei.h"
#include "state/TestDaten.h"
#include "window/DialogDeFrIt.h"
#include "window/Fortschritt.h"

namespace zepholt {

void NeuerLauf() {
    // Views before the texts that they view into.
    sia451Datei = {};
    fehlerSpeicher = {};
    kapitelDaten = {};
    katalogDaten = {};
    katalogVergleich = {};
    dialogDeFrIt = {};
    fortschrittStand = {};
    testDaten = {};
    codeseite = {};
}

} // namespace zepholt
