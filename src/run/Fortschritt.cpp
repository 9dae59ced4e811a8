#include "run/Fortschritt.h"

#include "intake/TestDaten.h"
#include "run/Fenster.h"
#include "run/Formulare.h"

#include <algorithm>
#include <chrono>

namespace zepholt {

namespace {

constexpr std::int64_t kBlickAbstand = 34; // milliseconds: just under 30 looks a second
constexpr std::int64_t kVorschuss = 6;     // looks that captions may take ahead of time: a phase shows at once

// True when the window may be looked at now. Each look moves the time of the next by one distance; one that is taken in
// advance is paid for later, so that no order of calls gets more than 30 a second in the long run.
bool BlickFrei(std::int64_t vorschuss) {
    const std::int64_t jetzt = fortschrittStand.Uhr();
    if (jetzt < fortschrittStand.NaechsterBlick - vorschuss * kBlickAbstand) {
        return false;
    }
    fortschrittStand.NaechsterBlick = std::max(fortschrittStand.NaechsterBlick, jetzt) + kBlickAbstand;
    return true;
}

void Beschrifte(void (Fenster::*beschriftung)(TextSicht), TextSicht text) {
    Fenster* fenster = testDaten.Fortschrittsfenster;
    if (fenster == nullptr) {
        return;
    }
    (fenster->*beschriftung)(text);
    if (BlickFrei(kVorschuss)) {
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
    Beschrifte(&Fenster::ZeigeSchritt, text);
}

void ZeigeFortschritt(std::int32_t wert) {
    Fenster* fenster = testDaten.Fortschrittsfenster;
    if (fenster == nullptr || !BlickFrei(0)) {
        return;
    }
    fenster->ZeigeBalken(BalkenBreite(BalkenInnen, wert, fortschrittStand.FortschrittMaximum));
    fenster->Ereignisse();
}

double BalkenBreite(double innen, std::int32_t wert, std::int32_t maximum) {
    const double breite = innen * static_cast<double>(wert) / static_cast<double>(maximum);
    if (!(breite >= 0.0)) { // 0 divided by 0 too, a phase without a maximum
        return 0.0;
    }
    return std::min(breite, innen);
}

std::int64_t MilliSekunden() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

} // namespace zepholt
