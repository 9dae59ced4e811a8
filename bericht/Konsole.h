// What the report's program needs of the platform beside the program's own door to it.
#pragma once

#include "bericht/Meldungen.h"
#include "support/Text.h"

#include <span>
#include <string_view>
#include <vector>

namespace zepholt::bericht {

// The arguments of the process behind its own name.
std::vector<Text> Argumente(int anzahl, char** argumente);

// Bytes to standard output as they are, and text to standard error in a form that its reader understands. False when
// not all could be written.
bool StandardausgabeSchreiben(std::string_view bytes);
void FehlerausgabeSchreiben(std::string_view utf8);

// Reads from standard input as it is; the number of bytes, 0 at its end.
std::size_t StandardeingabeLesen(std::span<char> ziel);

// The language that the user's system asks for; German when it is none of the three.
Sprache Systemsprache();

// The folder of this program with a path separator behind it, and the name of the program that tests.
Text EigenerOrdner();
Text Pruefprogramm();

// The whole path of a file, from the root on.
Text VollerPfad(const Text& pfad);

// The folder for reports that can't stand beside their exchange file, made if need be, with a path separator behind it:
// ZEPHOLT among the user's documents, on Linux in the home folder.
Text Benutzerordner();

// A path in the system's folder for temporary files at which nothing stands.
Text TemporaererPfad();
void DateiLoeschen(const Text& pfad);

// Starts a program and waits for its end; a window of this process is painted meanwhile. False when it could not be
// started.
bool ProgrammAusfuehren(const Text& programm, const std::vector<Text>& argumente);

// Several programs at once.
class Prozesse {
public:
    // At most `hoechstens` at a time; 64 is the most that Windows can wait for.
    explicit Prozesse(std::size_t hoechstens) : m_hoechstens(hoechstens) {}
    ~Prozesse() { Abwarten(0); }
    Prozesse(const Prozesse&) = delete;
    Prozesse& operator=(const Prozesse&) = delete;

    // Starts one as soon as there is room for it; one that can't be started is left out.
    void Starten(const Text& programm, const std::vector<Text>& argumente);

    // Waits until not more than `anzahl` are at work.
    void Abwarten(std::size_t anzahl);

private:
    std::size_t m_hoechstens;
    std::vector<std::intptr_t> m_laufende;
};

// How many processors the system has for this process.
std::size_t Prozessoren();

// Makes a folder; one that exists already is left alone, a failure shows when something is to come into it.
void OrdnerAnlegen(const Text& pfad);

} // namespace zepholt::bericht
