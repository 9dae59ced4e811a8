// A run of single records for a test: each record is handed to its test as the driver would, and what it reported is
// taken from the store.
//
// The records live as long as the run, so that the tables that view into them stay good. Beginne starts afresh.
#pragma once

#include "errors/TestFehler.h"
#include "hilfen/Funde.h"
#include "hilfen/Zeilenbau.h"
#include "hilfen/Zeilenpuffer.h"
#include "run/NeuerLauf.h"
#include "state/SIA451Datei.h"
#include "state/TestDaten.h"

#include <gtest/gtest.h>

#include <vector>

namespace zepholt::hilfen {

constexpr std::int32_t Alt = 11; // the interface of 01S files
constexpr std::int32_t Neu = 21; // the interface of E1S files

// A record of full length with another character, none of them a digit, in each of its columns: what is read from the
// wrong columns shows. `felder` are written over it.
inline Text Spaltensatz(TextSicht art, const std::vector<Feldwert>& felder) {
    Text satz;
    for (char16_t spalte = 1; spalte <= 256; ++spalte) {
        satz.push_back(static_cast<char16_t>(0x400 + spalte));
    }
    return Geaendert(Geaendert(satz, {{1, art.substr(0, 1)}, {42, art.substr(1)}}), felder);
}

class Satztest : public ::testing::Test {
protected:
    Satztest() { Beginne(Neu); }

    // A fresh run of the given interface.
    void Beginne(std::int32_t revision) {
        NeuerLauf();
        m_zeilen.Beginne();
        testDaten.Revision = revision;
        testDaten.IstE1S = revision >= 12;
    }

    // Puts `satz` behind the lines so far (the first is line 0), makes it the current record and calls its test.
    // Returns what the test reported, in the order of reporting.
    template <class Test>
    Funde Pruefe(Test test, TextSicht satz) {
        testDaten.ZeilenNr = testDaten.ZeilenAnzahl;
        testDaten.Record = m_zeilen.Anfuegen(satz);
        return Rufe(test);
    }

    // Calls a test that has no record of its own.
    template <class Test>
    Funde Rufe(Test test) {
        const std::size_t bisher = fehlerSpeicher.FehlerListe.size();
        test();
        return FundeAb(bisher);
    }

    Zeilenpuffer m_zeilen;
};

} // namespace zepholt::hilfen
