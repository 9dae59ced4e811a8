// The exchange file as the report needs it: its lines by number, decoded when they are asked for, and the layout of
// their fields. This is the one place of the report that touches the program's own intake.
#pragma once

#include "intake/UTF8_Speicherung.h"
#include "state/SIA451Felder.h"
#include "support/OS_API.h"
#include "support/Text.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zepholt::bericht {

class Austauschdatei {
public:
    // Reads the file, whose kind is what the protocol says of it. One that is missing or can't be read is an Ablehnung.
    Austauschdatei(const Text& pfad, bool istE1S);

    std::int32_t Zeilenzahl() const { return static_cast<std::int32_t>(m_anfaenge.size()) - 1; }
    bool IstE1S() const { return m_istE1S; }
    const std::string& Name() const { return m_name; } // without its folder
    std::string Sprachcode() const;                    // "1", "2", "3" of the first line, or what stands there

    // The line with that number (from 1), decoded, cut at `hoechstens` columns. Good until the next call.
    TextSicht Zeile(std::int32_t nummer, std::size_t hoechstens = 4096) const;

    // The same without the blanks at its end.
    TextSicht ZeileOhneRand(std::int32_t nummer, std::size_t hoechstens) const;

    // The first byte of a line, '\0' for an empty one: the letter of its record.
    char Buchstabe(std::int32_t nummer) const;

    // Chapter times 1,000,000 plus position of a line whose record has both, as the protocol writes them.
    std::int64_t Position(std::int32_t nummer) const;

private:
    std::span<const unsigned char> Rohzeile(std::int32_t nummer) const;
    TextSicht Dekodiert(std::span<const unsigned char> zeile, std::size_t hoechstens) const;
    void ZeilenSuchen();

    Bytes m_bytes;
    std::vector<std::size_t> m_anfaenge; // of each line, and behind the last one
    bool m_istE1S;
    Codeseite m_seite = Codeseite850(); // of a file of the old interface
    std::string m_name;
    mutable std::vector<char16_t> m_text; // of the line in hand
};

// Sets the interface that the layout table holds for from here on: the new one (E1S) or the old. A file that was
// refused has the layout that its kind asks for, whatever its first line says.
void SchnittstelleSetzen(bool istE1S);

// The layout rows of a record type such as "G6" or "A"; empty for an undefined one.
std::span<const RecordLayout> LayoutsDesTyps(std::string_view typ);

// "G6", "A", "Z": the record type of a line by its columns 1 and 42; what can't be one reads as it stands.
std::string TypDerZeile(TextSicht zeile);

} // namespace zepholt::bericht
