// The tests of the records A, Z, B, C, X and P.
//
// The driver sets Record and ZeilenNr and hands each record to its test. A record test reads its fields through the
// primitives of Feldpruefung.h, reports, and fills the tables of sia451Datei; where a check ends a record's test,
// nothing of that record is stored.
#pragma once

#include "state/Feldsicht.h"

namespace zepholt {

// --- Header and closing record (RecordAZ.cpp)

// Tests records A and Z and keeps their fields: 3001, 3002, 3003, 3101, 3102, 3103, 3106, 3107. Nothing stops it.
void PruefeRecordAZ(Feldsicht zeileA, Feldsicht zeileZ);

// --- Structure records (RecordB.cpp, RecordB9.cpp)

void PruefeB0(); // announces a structure: 3201 (stops), 3202, 3203
void PruefeB1(); // cost type: 3221, 3222, 3223, 3226, each stops
void PruefeB2(); // object structure, position location: 3208, 3211 to 3215 (each stops), 3219
void PruefeB3(); // element: 3231, 3232, 3233, 3236, each stops
void PruefeB4(); // furnishing type: 3208, 3261 to 3263 (each stops), 3269
void PruefeB5(); // variant group: 3208, 3241 to 3243 (each stops), 3249
void PruefeB6(); // variant: 3208, 3251 to 3253 (each stops), 3259
void PruefeB7(); // use: 3292 to 3294, each stops
void PruefeB8(); // room: 3296 to 3298, each stops
void PruefeB9(); // cost account: 3271 to 3286, nothing stops it; dormant, since only Revision 0 reaches it

// The checks that need the whole B block: 3291 for each group without its primary variant, 3205 once.
void PruefeBEnde();

// --- Conditions (RecordC.cpp)

void PruefeC0(); // gross amount: 5101 to 5104
void PruefeC1(); // condition: 5201 to 5264
void PruefeC5(); // restriction of a condition: 3208, 5301 (stops), 5311 to 5382

// --- Attachments (RecordXP.cpp)

void PruefeX4();                   // picture: 4252
void PruefeX5();                   // additional document: 4252
void PruefeP(std::int32_t nummer); // PRD entry P1 to P5: 4252, 4282

} // namespace zepholt
