// What a page of help tells of a code beside its message: in which files it comes, when it is tested, what it stops,
// where it stands in the protocol, what follows from it. Nothing of a run reads it.
#pragma once

#include "support/Text.h"

#include <array>
#include <span>

namespace zepholt {

// The kinds of file in which the code can be reported while everything else is in order: a code of a record or a field
// that the older interface doesn't know is one of the newer interface, since the older one tells 2041 or 2032 beside
// it.
enum class Dateiart { Keine, Alt, Neu, Beide };

// The stages of a run, in its order; for a code that no run reports, the stage to which its message belongs.
enum class Etappe {
    Aufruf,
    Einlesen,
    Aufbau,       // frame, keys and order of the lines
    Zeichen,      // characters, and data outside the fields
    Felder,       // form of a field of any record
    Kopf,         // records A and Z
    Gliederungen, // B
    Positionen,   // G
    Nachpruefung, // of the finished tree of positions
    Konditionen,  // C
    Anhaenge,     // X, P
    Katalog,
    Programm
};

// What ends with the finding: the call before any run, the run, the catalogue's comparison of the chapter or of the
// position, the test of the record (which then counts as absent), or nothing.
enum class Halt { VorDemLauf, Lauf, Kapitelvergleich, Positionsvergleich, Record, Nichts };

// What the protocol shows of the place: neither line nor position, the line, the line and the position of its G record,
// the line and, where it is a G record's, the position, or the position alone.
enum class Fundort { Keiner, OhneZeile, Zeile, ZeileUndPosition, ZeileJeRecord, NurPosition };

// Whether a run reports the code at all: a message without a check, a check that no file gets to, a check whose
// condition no file fulfils.
enum class Meldbar { Ja, OhnePruefung, NichtGetestet, NieErfuellt };

struct Steckbrief {
    std::int32_t Code;
    Dateiart Dateien;
    Etappe Stufe;
    Halt Haelt;
    Fundort Ort;
    Meldbar Gemeldet;
    std::array<std::int32_t, 8> Folgen; // codes that come with this one and go with it; 0 behind the last
};

// All codes of the error table, in its order.
std::span<const Steckbrief> Steckbriefe();

} // namespace zepholt
