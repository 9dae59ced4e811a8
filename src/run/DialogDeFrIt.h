// The dialog language: the program's own texts in German, French and Italian. The German text is the key.
#pragma once

#include "support/Text.h"

namespace zepholt {

// Sets the dialog language (1 German, 2 French, 3 Italian) and builds the table. Version must be set before.
void SpracheSetzen(std::int32_t sprache);

// The text in the dialog language; a text without a row, and any text in German, comes back as it stands.
TextSicht Uebersetze(TextSicht text);

// The long text of the info window in the dialog language: four paragraphs with an empty line between them. A language
// outside 1 to 3 is set to 1 first.
Text InfoText();

} // namespace zepholt
