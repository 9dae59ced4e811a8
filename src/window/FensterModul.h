// The border between the program and the module that shows its windows on Linux.
//
// The module is loaded only by a run with a dialog, and its toolkit with it. Both sides have a C++ runtime of their
// own: only plain data crosses, no exception, and who has allocated frees. Texts are UTF-16 and end in a zero; they
// belong to the caller and live as long as the call, those of FensterTexte as long as the window.
#pragma once

#include "window/Formulare.h"

#include <cstdint>

namespace zepholt {

// A form with its captions in the dialog language, by the rows of its table.
struct FormularMitTexten {
    const Formular* Form;
    const char16_t* Titel;
    const char16_t* const* Texte;
};

struct FensterTexte {
    FormularMitTexten Haupt;
    FormularMitTexten Info;
    const char16_t* ProgrammTitel;
    const char16_t* Frage;
    const char16_t* Ja;
    const char16_t* Nein;
};

struct ModulFensterGriff; // the module's own

struct FensterModul {
    // True when there is a display to show windows on.
    bool (*Bereit)();

    // Opens the progress window, shown without blocking; null on failure.
    ModulFensterGriff* (*Oeffnen)(const FensterTexte* texte);

    // The caption of a row of frmZEPHOLT. What is too long for a label is shortened in the middle and shown whole as a
    // hint.
    void (*Beschriften)(ModulFensterGriff* fenster, std::int32_t element, const char16_t* text);

    // The bar's width in twips, 0 hides it.
    void (*Balken)(ModulFensterGriff* fenster, double breite);

    // Paints, lets waiting events through; true once the cancel question was answered with Yes.
    bool (*Ereignisse)(ModulFensterGriff* fenster);

    void (*Schliessen)(ModulFensterGriff* fenster);

    // A box with the stop icon and one button OK; false when it can't be shown.
    bool (*Meldung)(const char16_t* titel, const char16_t* text, const char16_t* ok);
};

// The module's one exported function, and the number of this border's layout: another number gives null.
inline constexpr std::int32_t FensterModulFassung = 1;
inline constexpr const char* FensterModulName = "zepholt_fenster_modul";
using FensterModulFunktion = const FensterModul* (*)(std::int32_t fassung);

} // namespace zepholt
