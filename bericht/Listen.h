// The findings as rows: for a terminal, for a spreadsheet, for programs.
#pragma once

#include "bericht/Ausgabe.h"
#include "bericht/Austauschdatei.h"
#include "bericht/Erklaerung.h"
#include "bericht/Feldangabe.h"
#include "bericht/Protokolldatei.h"

#include <map>

namespace zepholt::bericht {

// One line per finding, under a line with project, document and counts.
void TabelleSchreiben(const Protokoll& protokoll, Sprache sprache, Ausgabe& ausgabe);

// One row per finding for a spreadsheet: UTF-8 with a mark, semicolons, CR LF, and no cell that it would take for a
// formula. `datei` may be missing: field names then come from the reference alone.
void CsvSchreiben(const Protokoll& protokoll, const Austauschdatei* datei, Sprache sprache, Ausgabe& ausgabe);

// One JSON object per finding and line.
void JsonlSchreiben(const Protokoll& protokoll, const Austauschdatei* datei, Sprache sprache, Ausgabe& ausgabe);

// SARIF 2.1.0, as code review tools read it. `dateiname` is how it calls the exchange file.
void SarifSchreiben(const Protokoll& protokoll, const Austauschdatei* datei, Sprache sprache, Ausgabe& ausgabe);

// What a code means.
void CodeSchreiben(const CodeErklaerung& erklaerung, Sprache sprache, Ausgabe& ausgabe);

// docs/felder.md: every field with its columns and its names in three languages.
void FelderSchreiben(Ausgabe& ausgabe);

// The message of a finding: that of the table in the language, or for an unknown code what the protocol says.
std::string Befundtext(const Protokoll& protokoll, const Befund& befund, Sprache sprache);

// What the findings' fields are called; with the file, as each finding's record has them.
class Feldangaben {
public:
    Feldangaben(const Protokoll& protokoll, const Austauschdatei* datei, Sprache sprache)
        : m_protokoll(protokoll), m_datei(datei), m_sprache(sprache) {}

    const Feldangabe& Zu(const Befund& befund);

private:
    const Protokoll& m_protokoll;
    const Austauschdatei* m_datei;
    Sprache m_sprache;
    std::map<std::pair<std::string, std::uint32_t>, Feldangabe> m_bekannte; // by record type and reference
};

} // namespace zepholt::bericht
