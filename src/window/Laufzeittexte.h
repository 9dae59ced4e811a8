// What a person is told of a run-time failure that no rule catches, in the dialog language; German while there is none.
//
// Where a failure arises it is named in English, in the what() of its exception; that is the key of the table here.
#pragma once

#include "support/Text.h"

namespace zepholt {

// The message for a cause. It may be several joined by commas, and have its place (a file's name) behind it: what the
// table knows is translated, the rest stays. Control characters become question marks: the message is one line. UTF-8.
std::string LaufzeitMeldung(std::string_view was);

// The same for exhausted memory, ready-made: nothing is allocated for it.
std::string_view SpeicherMeldung();

} // namespace zepholt
