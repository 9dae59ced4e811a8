// The one door to the platform: files, folders, the clock, the command line, standard error.
//
// One header, the sources of each platform (OS_API_linux.cpp, OS_API_browser.cpp ...), chosen by CMake, and OS_API.cpp
// with what needs no platform. Files and folders are in sources of their own (Dateien_, AusgabeDatei_): a program that
// brings these functions itself has a disk of its own, as the fuzzers have one in memory.
//
// Paths are Text. On Linux a byte of a path that is no valid UTF-8 stands in Text as the unit U+DC00 plus the byte, so
// that every name opens and comes back as it was; on Windows a path is the platform's own text and may be longer than
// 260 characters.
#pragma once

#include "support/Text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace zepholt {

// The bytes of a file, or of a stretch of one. Not initialised before they are read: a large file is touched once.
class Bytes {
public:
    Bytes() = default;
    explicit Bytes(std::size_t anzahl);

    unsigned char* data() { return m_daten.get(); }
    const unsigned char* data() const { return m_daten.get(); }
    std::size_t size() const { return m_anzahl; }
    bool empty() const { return m_anzahl == 0; }
    unsigned char operator[](std::size_t i) const { return m_daten[i]; }
    std::span<const unsigned char> Sicht() const { return {m_daten.get(), m_anzahl}; }
    void Kuerzen(std::size_t anzahl) { m_anzahl = anzahl; } // to the first `anzahl` bytes

private:
    std::unique_ptr<unsigned char[]> m_daten;
    std::size_t m_anzahl = 0;
};

// Anderes: a device, a pipe, a socket. A link is what it points to, and nothing when that is missing.
enum class DateiArt { Nichts, Datei, Ordner, Anderes };

struct OrdnerEintrag {
    Text Name; // without its folder; empty where the path ends in a path separator
    DateiArt Art = DateiArt::Nichts;
    bool Versteckt = false; // Windows: the hidden or the system attribute; Linux: never (a name counts as it stands)
};

// Tells the platform that this memory will be filled from end to end. It may then come in large pieces, which takes a
// quarter less of its time; where the platform can't, nothing happens.
void WirdGanzGefuellt(void* speicher, std::size_t bytes);

// From now on the process keeps the memory that is given back, for whoever asks next: the system would blank it first.
// What grows by being copied leaves its old room behind then.
void SpeicherBehalten();

// What stands at a path, links followed. No wildcards here. Any failure of the query gives Nichts.
DateiArt ArtVon(const Text& pfad);

// The entries of the folder of `muster` whose names match the last part of `muster`: a folder's own entries "." and
// ".." first where they match, then ascending by the names' bytes (of their UTF-8 form on Windows). `*` and `?` act in
// that last part only; on Linux a leading dot hides a name from a wildcard. A path without wildcards gives the one
// entry itself. A failure on the way gives what was found until then. Links that point to nothing don't count.
std::vector<OrdnerEintrag> EintraegeSuchen(const Text& muster);

// The character between the parts of a path, and whether a character is one (on Windows '/' too).
char16_t PfadTrenner();
bool IstPfadTrenner(char16_t zeichen);

// An open ordinary file for reading at any place; closed by its end. Every failure is a LaufzeitFehler, anything that
// is no ordinary file too; exhausted memory is what the library throws. Nothing here waits for another process.
class LeseDatei {
public:
    explicit LeseDatei(const Text& pfad);
    ~LeseDatei();
    LeseDatei(const LeseDatei&) = delete;
    LeseDatei& operator=(const LeseDatei&) = delete;

    std::uint64_t Groesse() const { return m_groesse; } // bytes

    // Up to `anzahl` bytes from the offset `stelle` (from 0) on, fewer where the file ends before.
    Bytes Lies(std::uint64_t stelle, std::size_t anzahl);

    // The same into memory of the caller's; returns the number of bytes read.
    std::size_t Lies(std::uint64_t stelle, std::span<unsigned char> ziel);

private:
    std::intptr_t m_griff = -1;
    std::uint64_t m_groesse = 0;
};

// An output file that comes out complete or not at all: until Abschliessen its bytes lie in a file without a name
// (where the file system has none such: in one with a name of its own beside the place), and only then they get the
// name. So the end of the process, by whatever it comes, leaves nothing (where the file needs a name: unless it is
// killed). What stands under the name by then is replaced: an ordinary file that may be written, or a link, never what
// it points to; and nothing else. A failure on the way leaves neither file nor remnant, and an older file as it was.
// Only exhausted memory at the start is thrown.
//
// Nothing is flushed to the disk: that costs several times what a small run takes. A power cut within seconds of a run
// may take the protocol with it.
class AusgabeDatei {
public:
    // The platform's part: the open file and its place. Its end closes and removes what is still open.
    struct Platz;
    struct PlatzEnde {
        void operator()(Platz* platz) const;
    };
    using PlatzZeiger = std::unique_ptr<Platz, PlatzEnde>;

    // `erprobt`: what DateiAnlegbar left open, or null. It becomes the file when it is still of this place.
    explicit AusgabeDatei(const Text& pfad, PlatzZeiger erprobt = nullptr);
    AusgabeDatei(const AusgabeDatei&) = delete;
    AusgabeDatei& operator=(const AusgabeDatei&) = delete;

    void Schreiben(std::string_view bytes); // collected and written in large pieces
    bool Abschliessen();                    // true when the file stands at its place, whole

private:
    void Leeren();
    void Vergroessern();

    // The platform's part too. None of these needs memory but the first, which gives null where no file can come to
    // stand.
    static PlatzZeiger Anlegen(const Text& pfad, PlatzZeiger erprobt);
    bool Hinausschreiben(std::string_view bytes); // all or fails
    bool Einsetzen();                             // closes and names

    PlatzZeiger m_platz;
    bool m_gut = false;
    std::string m_puffer;
    std::size_t m_stueck; // bytes that are written at once
};

// True when a file can be created at `pfad`. Nothing is left behind, and nothing is deleted but what was created here.
// What exists already, whatever it is, is neither opened nor deleted and gives false; so does a link that points to
// nothing. `offen` gets what was created, where it has no name, so that the output need not make it again.
bool DateiAnlegbar(const Text& pfad, AusgabeDatei::PlatzZeiger* offen = nullptr);

// Local date and time.
struct Zeitpunkt {
    int Jahr = 0;
    int Monat = 0; // 1 to 12
    int Tag = 0;   // 1 to 31
    int Stunde = 0;
    int Minute = 0;
};
Zeitpunkt Jetzt();

// Milliseconds of the platform's cheapest clock that only goes forward, as coarse as 16 of them: it is looked at for
// each record.
std::int64_t MilliSekunden();

// Two numbers by chance, which nobody outside of this process can tell. Asked again, they may be the same.
std::array<std::uint64_t, 2> Zufallszahlen();

// To be called once, before a run: what comes from outside and has nothing to do with the test doesn't end it (a closed
// pipe on Linux, the limit of a file's size), nor make it wait (the system's boxes on Windows).
void ProzessVorbereiten();

// The command text behind the program's own name. Windows takes it from the system as it stands; Linux rebuilds it from
// the arguments, see KommandotextAus.
Text Kommandozeile(int anzahl, char** argumente);

// One line on standard error, in UTF-8. Never touches standard output; without a standard error nothing happens. For a
// line that is UTF-8 already nothing is allocated.
void MeldungAusgeben(TextSicht text);
void MeldungAusgeben(std::string_view utf8);

// Whether standard error is a terminal.
bool MeldungIstTerminal();

} // namespace zepholt
