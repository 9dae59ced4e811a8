// The shared run state: what the command line asked for, the file as it was read, the place that the next finding is
// stamped with.
//
// One instance in a process. Who may write: the parameter test its own members, the intake those of the file, the
// intake, the driver and the passes behind it the current place, the entry and the cancel button those of the run.
#pragma once

#include "state/Satz.h"
#include "state/Zeilenliste.h"
#include "support/OS_API.h"
#include "support/Text.h"

#include <array>
#include <vector>

namespace zepholt {

class Fenster;

struct TestDaten {
    // --- Parameters, filled by ParameterPruefen as far as it got
    Text Austauschdatei;          // file=: path of the exchange file, or '*' and the name of a special function
    Text DialogParameter;         // dialog= as given
    std::int32_t Sprache = 0;     // dialog language: 1 German, 2 French, 3 Italian; 0 while not set
    bool OhneDialog = false;      // the language was given with a trailing '-': the run shows nothing at all
    Text Fehlerdatei;             // errorfile=: path of the protocol
    Text Katalog;                 // catalog=: a folder or a file
    std::int32_t KatalogArt = 0;  // 1 a folder, 2 a file, 0 not set
    Text Modus;                   // mode=: empty, "E" or "I"
    bool Spezialfunktion = false; // Austauschdatei begins with '*'
    AusgabeDatei::PlatzZeiger Protokollplatz; // what the trial of Fehlerdatei left open for the protocol, or null

    // --- The file, filled by the intake
    bool IstE1S = false;                 // the name ends in ".E1S"; nothing else decides
    Text Dateiformat;                    // "E1S" or "01S"
    Text SchnittstellenId;               // A:3, columns 8 to 13 of line 1, once accepted
    std::int32_t Revision = 0;           // A:4: 11 or 21 after a successful intake, see NeueSchnittstelle
    bool Utf8Modus = false;              // the lines are decoded as UTF-8
    Bytes Puffer;                        // the file, recoded in place; all views of its columns lie in here,
    std::vector<char16_t> BreiterPuffer; // or in here, for a file with too many characters for a byte
    Zeilenliste Zeilen;                  // the lines without their ends, from 0
    bool ZeilenNummeriert = false;       // from the order test on: the number of a line is its index in Zeilen
    std::int32_t ZeilenAnzahl = 0;

    // --- The character test
    Text ErlaubteZeichen;                            // what a 451-92 file may hold in its fields
    std::array<unsigned char, 256> VerboteneCodes{}; // by code of the file's code page: 1 where no field may hold it
    std::int32_t NaechsteSpalte = 1;                 // the first column behind the last field tested
    bool UndefinierterRecordTyp = false;             // a line has no layout rows

    // --- The current place: the record in hand, and the stamps of the next finding
    Satz Record;
    std::int32_t ZeilenNr = 0; // line in the file from 0, or -1 for none
    std::int32_t FehlerKapitel = 0;
    std::int32_t FehlerPosition = 0;

    // --- The run
    bool Abbruch = false; // set by the cancel button, never cleared during a run
    Text Version;
    Fenster* Fortschrittsfenster = nullptr; // none in a silent run
    Zeitpunkt (*Uhr)() = &Jetzt;            // local date and time; tests set their own
};

inline TestDaten testDaten;

// The line of that number, from 0.
inline Feldsicht ZeileAn(std::int32_t nummer) {
    return testDaten.Zeilen[static_cast<std::size_t>(nummer)];
}

// True for a file of the new interface (E1S); false for one of the old interface, and as long as no file was read in.
inline bool NeueSchnittstelle() {
    return testDaten.Revision >= 12;
}

} // namespace zepholt
