// Results of the program against plain ways to the same, for the run that has just ended or been made ready.
#pragma once

#include <string_view>

namespace zepholt::fuzz {

// Claims that the findings stand in the order of their written keys.
void PruefeFundfolge();

// Claims that the protocol holds each finding's element as it is made by itself, in the order of the store.
void PruefeFundelemente(std::string_view protokoll);

// Reads the file of the run in and claims: the lines are those that a decoder of one character at a time gives, the
// order and the doubled key those that sorting the written keys gives. For files of up to a few dozen lines.
void PruefeZeilen();

} // namespace zepholt::fuzz
