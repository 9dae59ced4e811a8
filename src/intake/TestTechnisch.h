// The stage that decides whether a file can be tested at all: loading, frame, keys, order, characters.
//
// It owns the file's members of TestDaten (kind, Revision, the lines and their numbers) and writes the raw header
// fields of SIA451Datei.
#pragma once

#include "state/Feldsicht.h"

namespace zepholt {

// True when the document test may run. On false exactly one error stands in the store: one of 2001 to 2008, 2011 to
// 2015, 2021, 2022. Findings 2031, 2032 and 2041 don't stop the run. Leaves Zeilen behind, in the order of the
// file, which is the sorted one but for equal keys around line 1,000,000; after 2021 and 2022 they stand, and count, in
// their sorted order too.
bool DateiTesten();

// Reads the exchange file into Zeilen and fixes IstE1S, Dateiformat, SchnittstellenId, Revision, Utf8Modus. False with
// one error in the store: 2001 (empty, bad line ends, any failure while reading, memory exhausted), 2002 to 2006
// (header), 2007 and 2008 (encoding of an E1S file).
bool DateiEinlesen();

// Keeps the raw columns of line 1 that a protocol names the project by, even if the file is refused later on.
void KopfUebernehmen(Feldsicht zeile);

} // namespace zepholt
