// Where a report goes: a file, which comes out complete or not at all, or standard output.
#pragma once

#include "support/OS_API.h"

#include <optional>
#include <string>
#include <string_view>

namespace zepholt::bericht {

class Ausgabe {
public:
    // Without a path: standard output.
    explicit Ausgabe(const std::optional<Text>& pfad);

    void Schreiben(std::string_view utf8);

    // Ends the report. What can't be written is an Ablehnung; a file is then as it was before.
    void Abschliessen();

private:
    void Leeren();

    std::optional<Text> m_pfad;
    std::optional<AusgabeDatei> m_datei;
    std::string m_puffer; // for standard output
    bool m_gut = true;
};

// A text as JSON, in quotation marks. Safe inside of a page too: no '<', no '&', and nothing that can't be seen but as
// its number.
std::string JsonText(std::string_view utf8);

// A text as a cell of a CSV file with semicolons. One that begins like a formula gets an apostrophe in front: a
// spreadsheet shows it and computes nothing.
std::string CsvZelle(std::string text);

} // namespace zepholt::bericht
