// What the forms and boxes say in the dialog language: the tables' captions, translated at load.
#pragma once

#include "support/Text.h"
#include "window/Formulare.h"

#include <vector>

namespace zepholt {

// The title of the program, which boxes without a title of their own bear.
inline constexpr const char16_t* ProgrammTitel = u"ZEPHOLT";

struct Formulartexte {
    Text Titel;
    std::vector<Text> Elemente; // by the rows of the form's table
};

// Title, labels, buttons and frames of frmZEPHOLT.
Formulartexte TexteHaupt();

// Labels and buttons of frmInfo, the info text and the supplier; the title stays.
Formulartexte TexteInfo();

// The cancel question with its answers. The first letters of the answers, in lower case, are what a terminal asks for.
struct Fragetexte {
    Text Frage;
    Text Ja;
    Text Nein;
};
Fragetexte TexteAbbruchfrage();

} // namespace zepholt
