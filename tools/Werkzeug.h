// What the small programs beside the product share: a readable description as lines of words, and output files that
// come out complete or not at all.
//
// A description is UTF-8. Words stand between blanks; a stretch in quotation marks may hold blanks. In quotation marks
// \" and \\ stand for the character, \xHH for the one byte HH. A word that begins with '#' makes the rest a comment.
#pragma once

#include "support/Text.h"

#include <optional>
#include <string>
#include <vector>

namespace zepholt::werkzeug {

// What is wrong with the input, in words for the person who wrote it. main prints it and ends with status 1.
class EingabeFehler : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct Beschreibungszeile {
    std::int32_t Nummer = 0; // line of the description, from 1
    std::vector<Text> Woerter;
};

// A byte that stands in a text as itself, whatever the encoding of the output: U+DC00 plus the byte.
constexpr char16_t RoheByte(unsigned byte) {
    return static_cast<char16_t>(0xDC00U + byte);
}
std::optional<unsigned char> AlsRoheByte(char16_t zeichen);

// The lines of a description that hold a word. A file that can't be read, is no UTF-8 or has an open quotation mark is
// an EingabeFehler.
std::vector<Beschreibungszeile> BeschreibungLesen(const std::string& pfad);

std::string DateiLesen(const std::string& pfad);

// Complete or absent; a failure is an EingabeFehler that tells why, as far as the place or the system does.
void DateiSchreiben(const std::string& pfad, const std::string& bytes);

// A whole number between two bounds; anything else is an EingabeFehler that names `was`.
std::int32_t Zahl(TextSicht text, std::int32_t von, std::int32_t bis, const std::string& was);

// The text in UTF-8, for messages and E1S files.
std::string AlsUtf8(TextSicht text);

// Runs `programm` and turns an EingabeFehler into one line on standard error and status 1.
int Ausfuehren(const char* name, int (*programm)(const std::vector<std::string>& argumente), int anzahl,
               char** argumente);

} // namespace zepholt::werkzeug
