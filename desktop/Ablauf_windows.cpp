#include "desktop/Ablauf_windows.h"

#include "bericht/Pruefgang.h"
#include "bericht/Seitentexte.h"
#include "desktop/Auswahl_windows.h"
#include "desktop/Desktoptexte.h"
#include "desktop/Einstellungen_windows.h"
#include "support/HilfsFunktionen.h"
#include "window/Formularfenster_windows.h"

#include <shellapi.h>

#include <exception>

namespace zepholt::desktop {

namespace {

using bericht::Pruefergebnis;

void Sagen(HWND eltern, bericht::Sprache sprache, const Text& text, UINT bild) {
    MessageBoxW(eltern, Breit(text), Breit(In(sprache, Desktoptext::Titel)), MB_OK | bild);
}

// Opens a page with what the user's system opens such files with; without anything, tells where it lies.
void SeiteOeffnen(HWND eltern, bericht::Sprache sprache, const Text& seite) {
    constexpr INT_PTR LetzterMisserfolg = 32;
    const HINSTANCE ergebnis = ShellExecuteW(eltern, nullptr, Breit(seite), nullptr, nullptr, SW_SHOWNORMAL);
    if (reinterpret_cast<INT_PTR>(ergebnis) <= LetzterMisserfolg) {
        Sagen(eltern, sprache, Text(In(sprache, Desktoptext::BerichtLiegt)) + u"\n" + seite, MB_ICONINFORMATION);
    }
}

// "Mauern.01S: 35 Fehler, 6 Warnungen"
Text Zusammenfassung(const std::vector<Pruefergebnis>& ergebnisse, bericht::Sprache sprache) {
    const Pruefergebnis& erstes = ergebnisse.front();
    if (ergebnisse.size() > 1) {
        return ZahlText(AnzahlElemente(ergebnisse)) + u" " + In(sprache, Desktoptext::DateienGeprueft);
    }
    const std::string zahlen = bericht::Anzahlwort("fehler", erstes.Fehler, sprache) + ", " +
                               bericht::Anzahlwort("warnungen", erstes.Warnungen, sprache);
    return Text(DateiNameOhnePfad(erstes.Datei)) + u": " + AusUtf8Bytes(zahlen);
}

Text Pruefen(HWND eltern, bericht::Sprache sprache, const std::vector<Text>& dateien) {
    const bericht::Pruefwunsch wunsch{GemerkterKatalog(), {}, sprache, true};
    std::vector<Pruefergebnis> ergebnisse;
    for (const Text& datei : dateien) {
        ergebnisse.push_back(bericht::PruefenUndAblegen(datei, wunsch));
    }
    const Pruefergebnis& erstes = ergebnisse.front();
    if (ergebnisse.size() == 1 && erstes.Seite.empty()) {
        Sagen(eltern, sprache, AusUtf8Bytes(erstes.Hindernis), MB_ICONWARNING);
        return {};
    }
    SeiteOeffnen(eltern, sprache,
                 ergebnisse.size() > 1 ? bericht::UebersichtAblegen(ergebnisse, sprache) : erstes.Seite);
    return Zusammenfassung(ergebnisse, sprache);
}

} // namespace

bool KatalogFragen(HWND eltern, bericht::Sprache sprache, bool immer) {
    const Text gemerkt = GemerkterKatalog();
    if (!immer && !gemerkt.empty() && OrdnerExistiert(gemerkt)) {
        return true;
    }
    const std::optional<Text> gewaehlt = KatalogWaehlen(eltern, sprache, gemerkt);
    if (gewaehlt) {
        KatalogMerken(*gewaehlt);
    }
    return gewaehlt.has_value();
}

Text DateienPruefen(HWND eltern, bericht::Sprache sprache, const std::vector<Text>& dateien) {
    if (dateien.empty() || !KatalogFragen(eltern, sprache, false)) {
        return {};
    }
    try {
        return Pruefen(eltern, sprache, dateien);
    } catch (const bericht::Ablehnung& ablehnung) {
        const std::string text = bericht::MeldungsText(ablehnung.Grund, sprache, ablehnung.Werte);
        Sagen(eltern, sprache, AusUtf8Bytes(text), MB_ICONWARNING);
    } catch (const std::exception& fehler) {
        Sagen(eltern, sprache, AusUtf8Bytes(fehler.what()), MB_ICONERROR);
    }
    return {};
}

} // namespace zepholt::desktop
