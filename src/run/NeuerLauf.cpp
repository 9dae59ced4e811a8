#include "run/NeuerLauf.h"

#include "catalogue/VLTKapitel.h"
#include "catalogue/VLTKatalog.h"
#include "doctest/SIA451Datei.h"
#include "errors/TestFehler.h"
#include "intake/TestDaten.h"
#include "run/DialogDeFrIt.h"
#include "run/Fortschritt.h"

namespace zepholt {

void NeuerLauf() {
    // Views before the texts that they view into.
    sia451Datei = {};
    fehlerSpeicher = {};
    kapitelDaten = {};
    katalogDaten = {};
    dialogDeFrIt = {};
    fortschrittStand = {};
    testDaten = {};
}

} // namespace zepholt
