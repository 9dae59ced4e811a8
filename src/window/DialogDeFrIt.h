// The dialog language: the program's own texts in German, French and Italian. The German text is the key.
//
// Sources and forms hold German only; a text passes through Uebersetze at the moment of its use. The texts of the
// findings are not here.
#pragma once

#include "support/Text.h"

#include <vector>

namespace zepholt {

// A row of the table. Its texts are the program's own and outlive it.
struct DialogText {
    TextSicht Deutsch;
    TextSicht Franzoesisch;
    TextSicht Italienisch;
};

struct DialogDeFrIt {
    std::int32_t DialogSprache = 0; // 1 German, 2 French, 3 Italian; anything else: texts stay as they stand
    std::vector<DialogText> TextTabelle;
    Text Version; // the caption with the version, in German and French
    Text Versione;
};

// Written by SpracheSetzen and TextHinzufuegen, made anew by NeuerLauf; InfoText chooses German where nothing is
// chosen.
inline DialogDeFrIt dialogDeFrIt;

// Sets the dialog language (1 German, 2 French, 3 Italian) and builds the table. Version must be set before.
void SpracheSetzen(std::int32_t sprache);

// Adds a row behind the others; of two rows with one German text the first serves. The texts aren't copied.
void TextHinzufuegen(TextSicht deutsch, TextSicht franzoesisch, TextSicht italienisch);

// The text in the dialog language; a text without a row, and any text in German, comes back as it stands. The result
// views into the table, until the next SpracheSetzen, or is the argument itself.
TextSicht Uebersetze(TextSicht text);

// The long text of the info window in the dialog language: four paragraphs with an empty line (CR LF) between them. A
// language outside 1 to 3 is set to 1 first.
Text InfoText();

// What stands behind the supplier's caption in the info window: its name and town.
Text Programmhersteller();

} // namespace zepholt
