// What the platform's sources in a browser ask of the page that runs the module: web/module/umgebung.js has the other
// side. A text goes as its 16-bit units and their number.
//
// Files are named by paths with '/' between their parts; which of them exist, and where their bytes lie, is the page's
// business. An exchange file is never copied as a whole: its bytes are fetched when they are read.
#pragma once

#include <cstdint>

extern "C" {

// --- Files. What stands at a path: 0 nothing, 1 a file, 2 a folder.
int zepholt_art(const char16_t* pfad, int laenge);

// The next entry of the folder `pfad` behind the number `nummer` (from 0): its name goes to `ziel`, which has room for
// `platz` units. Returns its length, or -1 when there is none.
int zepholt_eintrag(const char16_t* pfad, int laenge, int nummer, char16_t* ziel, int platz);

// An open file's number, or -1; its size in bytes; up to `anzahl` of its bytes, returns their number or -1.
int zepholt_oeffnen(const char16_t* pfad, int laenge);
double zepholt_groesse(int datei);
int zepholt_lesen(int datei, double stelle, unsigned char* ziel, int anzahl);
void zepholt_schliessen(int datei);

// Output files: whether one can come to stand at a path, a new one's number or -1, more bytes of it; `gut` gives it its
// name, else it is gone.
int zepholt_anlegbar(const char16_t* pfad, int laenge);
int zepholt_anlegen(const char16_t* pfad, int laenge);
int zepholt_schreiben(int datei, const char* bytes, int anzahl);
int zepholt_beenden(int datei, int gut);

// --- Local date and time as five numbers: year, month, day, hour, minute.
void zepholt_uhr(std::int32_t* ziel);

// --- What a person is told. One line of a message.
void zepholt_meldung(const char* utf8, int anzahl);

// Progress: which (0 the exchange file, 1 the project, 2 the document, 3 the phase) and its text; the bar from 0 to 1.
void zepholt_beschriften(int was, const char16_t* text, int laenge);
void zepholt_balken(double anteil);

// 1 when the person has cancelled.
int zepholt_abgebrochen();
}
