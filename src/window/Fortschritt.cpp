#include "window/Fortschritt.h"

#include "state/TestDaten.h"
#include "window/Fenster.h"
#include "window/Formulare.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace zepholt {

namespace {

// Milliseconds between two looks at the window: 25 a second for the bar, and 5 for captions besides. A look for a
// caption may be taken up to 20 distances ahead of its time, so that a phase shows at once however short the one before
// was; it is paid for later.
constexpr std::int64_t BalkenAbstand = 40;
constexpr std::int64_t TextAbstand = 200;
constexpr std::int64_t TextVorschuss = 20 * TextAbstand;

bool BlickFuerBalken() {
    const std::int64_t jetzt = fortschrittStand.Uhr();
    if (jetzt < fortschrittStand.NaechsterBalken) {
        return false;
    }
    fortschrittStand.NaechsterBalken = jetzt + BalkenAbstand;
    return true;
}

bool BlickFuerText() {
    if (BlickFuerBalken()) {
        return true;
    }
    const std::int64_t jetzt = fortschrittStand.Uhr();
    if (jetzt < fortschrittStand.NaechsterText - TextVorschuss) {
        return false;
    }
    fortschrittStand.NaechsterText = std::max(fortschrittStand.NaechsterText, jetzt) + TextAbstand;
    return true;
}

void Beschrifte(void (Fenster::*beschriftung)(TextSicht), TextSicht text) {
    Fenster* fenster = testDaten.Fortschrittsfenster;
    if (fenster == nullptr) {
        return;
    }
    (fenster->*beschriftung)(text);
    if (BlickFuerText()) {
        fenster->Ereignisse();
    }
}

} // namespace

void ZeigeAustauschdatei(TextSicht text) {
    Beschrifte(&Fenster::ZeigeAustauschdatei, text);
}

void ZeigeProjekt(TextSicht text) {
    Beschrifte(&Fenster::ZeigeProjekt, text);
}

void ZeigeDokument(TextSicht text) {
    Beschrifte(&Fenster::ZeigeDokument, text);
}

void ZeigeSchritt(TextSicht text, std::int32_t maximum) {
    fortschrittStand.FortschrittMaximum = maximum;
    if (testDaten.Fortschrittsfenster == nullptr) {
        return;
    }
    testDaten.Fortschrittsfenster->ZeigeBalken(BalkenBreite(BalkenInnen, 0, maximum));
    if (text.empty()) {
        testDaten.Fortschrittsfenster->ZeigeSchritt(text);
        return; // between the phases there is nothing to cancel: behind the last one the protocol stands
    }
    Beschrifte(&Fenster::ZeigeSchritt, text);
}

void ZeigeFortschritt(std::int32_t wert) {
    Fenster* fenster = testDaten.Fortschrittsfenster;
    if (fenster == nullptr || !BlickFuerBalken()) {
        return;
    }
    fenster->ZeigeBalken(BalkenBreite(BalkenInnen, wert, fortschrittStand.FortschrittMaximum));
    fenster->Ereignisse();
}

void FortschrittPhase(std::int32_t phase) {
    constexpr std::array<std::int32_t, 7> Werte = {0, 45, 165, 185, 200, -1, 0};
    if (phase >= 0 && phase < std::ssize(Werte) && Werte[static_cast<std::size_t>(phase)] >= 0) {
        ZeigeFortschritt(Werte[static_cast<std::size_t>(phase)]);
    }
}

void BedieneFenster() {
    Fenster* fenster = testDaten.Fortschrittsfenster;
    if (fenster != nullptr && BlickFuerBalken()) {
        fenster->Ereignisse();
    }
}

double BalkenBreite(double innen, std::int32_t wert, std::int32_t maximum) {
    const double breite = innen * static_cast<double>(wert) / static_cast<double>(maximum);
    if (!(breite >= 0.0)) { // 0 divided by 0 too, the start of a phase without a maximum
        return 0.0;
    }
    return std::min(breite, innen);
}

} // namespace zepholt
