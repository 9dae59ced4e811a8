// Lines that a test gives to the run as the intake would: in one buffer, which never moves, so that every view of them
// stays good.
#pragma once

#include "state/TestDaten.h"

#include <gtest/gtest.h>

namespace zepholt::hilfen {

class Zeilenpuffer {
public:
    explicit Zeilenpuffer(std::size_t platz = 1 << 20) : m_platz(platz) { Beginne(); } // in units

    // From now on the run has no lines but those that Anfuegen puts behind each other.
    void Beginne() {
        m_text.clear();
        m_text.reserve(m_platz);
        testDaten.Zeilen = Zeilenliste(m_text.data());
        testDaten.ZeilenAnzahl = 0;
        testDaten.ZeilenNummeriert = true;
    }

    Feldsicht Anfuegen(TextSicht zeile) {
        m_text.append(zeile).append(u"\r\n");
        EXPECT_LE(m_text.size(), m_platz);
        testDaten.Zeilen.Anfuegen(m_text.size());
        ++testDaten.ZeilenAnzahl;
        return testDaten.Zeilen.back();
    }

private:
    std::size_t m_platz;
    Text m_text;
};

} // namespace zepholt::hilfen
