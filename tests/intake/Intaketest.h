// An exchange file for a test: its records become a real file, which the intake reads.
#pragma once

#include "hilfen/Funde.h"
#include "hilfen/KopfSaetze.h"
#include "hilfen/Testordner.h"
#include "hilfen/Zeilenbau.h"
#include "intake/TestTechnisch.h"
#include "run/NeuerLauf.h"
#include "state/SIA451Datei.h"
#include "state/TestDaten.h"

#include <gtest/gtest.h>

#include <vector>

namespace zepholt::hilfen {

inline void Beginne() {
    NeuerLauf();
    testDaten.Uhr = [] { return Zeitpunkt{2026, 11, 21, 12, 0}; };
}

// One byte a unit: the units of a test's record are codes of code page 850.
inline std::string AlsBytes(TextSicht text) {
    std::string bytes;
    for (const char16_t zeichen : text) {
        bytes.push_back(static_cast<char>(static_cast<unsigned char>(zeichen)));
    }
    return bytes;
}

inline std::string AlsUtf8(TextSicht text) {
    std::string bytes;
    for (const char16_t zeichen : text) {
        const auto folge = [&bytes](unsigned wert) { bytes.push_back(static_cast<char>(wert)); };
        if (zeichen < 0x80) {
            folge(zeichen);
        } else if (zeichen < 0x800) {
            folge(0xC0U | (zeichen >> 6U));
            folge(0x80U | (zeichen & 0x3FU));
        } else {
            folge(0xE0U | (zeichen >> 12U));
            folge(0x80U | ((zeichen >> 6U) & 0x3FU));
            folge(0x80U | (zeichen & 0x3FU));
        }
    }
    return bytes;
}

class Intaketest : public ::testing::Test {
protected:
    Intaketest() { Beginne(); }

    // Writes the bytes and gives the file to the run.
    void Gib(std::string_view bytes, std::string_view name) {
        m_ordner.Schreibe(name, bytes);
        testDaten.Austauschdatei = m_ordner.TextPfad(name);
    }
    void Gib01S(std::string_view bytes) { Gib(bytes, "a.01S"); }
    void GibE1S(std::string_view bytes) { Gib(bytes, "a.E1S"); }

    // The lines as a file of either kind.
    static std::string Datei01S(const std::vector<Text>& zeilen) {
        std::string bytes;
        for (const Text& zeile : zeilen) {
            bytes += AlsBytes(zeile) + "\r\n";
        }
        return bytes;
    }
    static std::string DateiE1S(const std::vector<Text>& zeilen) {
        std::string bytes;
        for (const Text& zeile : zeilen) {
            bytes += AlsUtf8(zeile) + "\r\n";
        }
        return bytes;
    }

    // Runs all file-level tests on a good frame with these lines between A and Z; the findings are those of the run.
    Funde Teste(bool e1s, std::vector<Text> mitte) {
        Beginne();
        mitte.insert(mitte.begin(), SatzA(e1s ? 21 : 11));
        mitte.push_back(SatzZ(mitte.size() + 1));
        e1s ? GibE1S(DateiE1S(mitte)) : Gib01S(Datei01S(mitte));
        m_ergebnis = DateiTesten();
        return FundeAb(0);
    }
    Funde Teste01S(std::vector<Text> mitte) { return Teste(false, std::move(mitte)); }
    Funde TesteE1S(std::vector<Text> mitte) { return Teste(true, std::move(mitte)); }

    // The same on a whole file of a 451-92 file's lines.
    Funde TesteGanze(const std::vector<Text>& zeilen) {
        Beginne();
        Gib01S(Datei01S(zeilen));
        m_ergebnis = DateiTesten();
        return FundeAb(0);
    }

    Testordner m_ordner;
    bool m_ergebnis = false;
};

} // namespace zepholt::hilfen
