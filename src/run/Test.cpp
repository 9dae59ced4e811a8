#include "run/Test.h"

#include "catalogue/TestVLT.h"
#include "errors/Protokoll.h"
#include "intake/TestTechnisch.h"
#include "run/TestInhalt.h"
#include "state/TestDaten.h"
#include "support/OS_API.h"
#include "window/DialogDeFrIt.h"
#include "window/Fortschritt.h"

namespace zepholt {

void TestAusfuehren() {
    ZeigeAustauschdatei(testDaten.Austauschdatei);
    ZeigeProjekt(u"");
    ZeigeDokument(u"");
    ZeigeSchritt(u"", 0);

    if (!DateiTesten()) {
        if (!testDaten.Abbruch) {
            ProtokollSchreiben(); // what was found so far; the phase is not displayed
        }
        return;
    }
    SpeicherBehalten(); // the large lists have grown
    if (!testDaten.Abbruch) {
        DokumentTesten();
    }
    if (!testDaten.Abbruch && testDaten.KatalogArt != 0) {
        TesteKatalog();
    }
    if (!testDaten.Abbruch) {
        ZeigeSchritt(Uebersetze(u"Schreibt Fehlerprotokoll"), 0);
    }
    if (!testDaten.Abbruch) { // the caption may have let the last click through
        ProtokollSchreiben();
        ZeigeSchritt(u"", 0);
    }
}

} // namespace zepholt
