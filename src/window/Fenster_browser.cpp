// The progress window in a browser: the page shows it, and says at each look whether the person has cancelled.
#include "window/Fenster.h"

#include "state/TestDaten.h"
#include "support/Umgebung_browser.h"
#include "window/Formulare.h"

namespace zepholt {

namespace {

enum class Feld { Austauschdatei, Projekt, Dokument, Schritt };

class Browserfenster : public Fenster {
public:
    void ZeigeAustauschdatei(TextSicht text) override { Beschrifte(Feld::Austauschdatei, text); }
    void ZeigeProjekt(TextSicht text) override { Beschrifte(Feld::Projekt, text); }
    void ZeigeDokument(TextSicht text) override { Beschrifte(Feld::Dokument, text); }
    void ZeigeSchritt(TextSicht text) override { Beschrifte(Feld::Schritt, text); }
    void ZeigeBalken(double breite) override { zepholt_balken(breite / BalkenInnen); }

    void Ereignisse() override {
        if (zepholt_abgebrochen() == 1) {
            testDaten.Abbruch = true;
        }
    }

private:
    static void Beschrifte(Feld feld, TextSicht text) {
        zepholt_beschriften(static_cast<int>(feld), text.data(), static_cast<int>(text.size()));
    }
};

} // namespace

std::unique_ptr<Fenster> FensterOeffnen() {
    return std::make_unique<Browserfenster>();
}

// The page has no box: the message goes where the other messages go.
bool MeldungsboxZeigen(TextSicht) {
    return false;
}

} // namespace zepholt
