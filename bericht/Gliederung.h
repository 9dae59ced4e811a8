// The findings in the order in which a person reads them: by position, by line, with what stands around them.
#pragma once

#include "bericht/Austauschdatei.h"
#include "bericht/Protokolldatei.h"

#include <string>
#include <vector>

namespace zepholt::bericht {

// A record with its findings: places [Von, Bis) of the order of findings.
struct Eintrag {
    std::int32_t Zeile = 0;
    std::uint32_t Von = 0;
    std::uint32_t Bis = 0;
};

// What a section is about, as a letter: D the whole file, A and Z the frame, B structures, C conditions, G a position,
// X the attachments of a position, U everything else.
struct Abschnitt {
    char Art = 'U';
    std::int64_t Position = 0; // chapter times 1,000,000 plus position; for G and X
    std::uint32_t Von = 0;     // places of the findings without a line
    std::uint32_t Bis = 0;
    std::uint32_t ErsterEintrag = 0; // its entries
    std::uint32_t EndeEintraege = 0;
    std::vector<std::int32_t> Umgebung;  // lines that findings without a line belong to, the first few
    std::int32_t UmgebungAnzahl = 0;     // all of them
    std::vector<std::uint32_t> Herkunft; // in Orte: the chapter, then the texts of the positions down to this one
};

struct Gliederung {
    std::vector<std::uint32_t> Folge; // numbers of findings
    std::vector<Eintrag> Eintraege;
    std::vector<Abschnitt> Abschnitte;
    Woerter Orte;                     // "241 Probemauern (2020)", "211.000 Wände"
    std::vector<std::string> Kapitel; // of the document, for the head of the report
};

// A protocol that names a line that the file doesn't have, or a position that doesn't stand there, is an Ablehnung: it
// belongs to another file.
Gliederung GliederungVon(const Protokoll& protokoll, const Austauschdatei& datei);

// The same for what both say of project, document and software.
void ZusammengehoerigkeitPruefen(const Protokoll& protokoll, const Austauschdatei& datei);

// "241.211.001"
std::string PositionsText(std::int64_t position);

} // namespace zepholt::bericht
