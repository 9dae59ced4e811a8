// A run over a tree that a test builds by hand, and chapter files that it writes into a folder of its own.
#pragma once

#include "catalogue/Kapitelbau.h"
#include "errors/TestFehler.h"
#include "hilfen/Satztest.h"
#include "hilfen/Testordner.h"
#include "run/NeuerLauf.h"
#include "state/SIA451Datei.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"

#include <gtest/gtest.h>

#include <ostream>
#include <utility>
#include <vector>

namespace zepholt::hilfen {

// A finding without a line and a column, as the checks over the tree report it.
struct Stempelfund {
    std::int32_t Code;
    std::int32_t Kapitel;
    std::int32_t Position;

    bool operator==(const Stempelfund&) const = default;

    friend std::ostream& operator<<(std::ostream& aus, const Stempelfund& fund) {
        return aus << fund.Code << "@" << fund.Kapitel << "." << fund.Position;
    }
};

using Stempelfunde = std::vector<Stempelfund>;

// A line of a variable: its number and its text.
using Zeilentext = std::pair<std::int32_t, TextSicht>;

class Katalogtest : public ::testing::Test {
protected:
    static constexpr std::int32_t Jahr = 2013;

    Katalogtest() { Beginne(Neu); }
    ~Katalogtest() override { NeuerLauf(); }

    // A fresh run of the given interface on an empty document; the chapter files stay.
    void Beginne(std::int32_t revision) {
        NeuerLauf();
        m_zeilen.Beginne();
        testDaten.OhneDialog = true;
        testDaten.Revision = revision;
        testDaten.IstE1S = revision >= 12;
        testDaten.ZeilenNr = 77; // not what the checks stamp
        testDaten.Katalog = m_ordner.Pfad().u16string();
        testDaten.KatalogArt = 1;
        sia451Datei.Sprachcode = 1;
    }

    // Writes a chapter with the elements `innen` under the name that belongs to the number.
    void SchreibeKapitel(int nummer, std::string_view innen, int jahr = Jahr, int sprache = 1) {
        const std::string jahrText = std::to_string(jahr);
        m_ordner.Schreibe("N" + jahrText.substr(2) + std::to_string(sprache) + std::to_string(nummer) + ".qvm",
                          Kapiteldatei("", KapitelText(innen, nummer, jahr, sprache), nummer, jahr, sprache));
    }

    const Testordner& Ordner() const { return m_ordner; }

    // --- The tree: each goes to the end of the last entry of the level above.

    static void Kapitel(std::int32_t nummer, std::int32_t jahr = Jahr) {
        KapitelEintrag& kapitel = sia451Datei.DokumentKapitel.emplace_back();
        kapitel.Nummer = nummer;
        kapitel.Versionsjahr = jahr;
    }

    static void Position(std::int32_t nummer) {
        sia451Datei.DokumentKapitel.back().Positionen.emplace_back().Nummer = nummer;
    }

    static PositionEintrag& LetztePosition() { return sia451Datei.DokumentKapitel.back().Positionen.back(); }

    // `einfuegepunkt` is that of the last line.
    void Variable(std::int32_t nummer, const std::vector<Zeilentext>& zeilen = {}, std::int32_t einfuegepunkt = 0) {
        VariableEintrag& variable =
            sia451Datei.Variablen.Anfuegen(LetztePosition().Variablen, {.Nummer = static_cast<std::uint8_t>(nummer)});
        variable.Einfuegepunkt = static_cast<std::uint8_t>(einfuegepunkt);
        for (const auto& [zeile, text] : zeilen) {
            sia451Datei.Variablenzeilen.Anfuegen(variable.Zeilen, {.Zeile = testDaten.ZeilenAnzahl, .Nummer = zeile});
            m_zeilen.Anfuegen(Zeile(u"G3", {{93, text}}));
        }
    }

    static void Zuordnung() { LetztePosition().HatZuordnungen = true; }

    static void Menge(std::int32_t vorbemerkung) {
        sia451Datei.Mengen.Anfuegen(LetztePosition().Mengen, {.Vorbemerkung = vorbemerkung});
    }

    // What a test reports, in the order of reporting; each without a line and a column.
    template <class Test>
    static Stempelfunde Rufe(Test test) {
        FehlerLoeschen();
        test();
        Stempelfunde funde;
        for (const FehlerEintrag& eintrag : fehlerSpeicher.FehlerListe) {
            EXPECT_EQ(eintrag.Zeile, -1) << eintrag.Code;
            EXPECT_EQ(eintrag.Spalte, 0) << eintrag.Code;
            funde.push_back({eintrag.Code, eintrag.Kapitel, eintrag.Position});
        }
        return funde;
    }

    // Puts the record behind the lines so far and makes it the current one.
    void NimmInDieHand(const Text& record) {
        testDaten.ZeilenNr = testDaten.ZeilenAnzahl;
        testDaten.Record = m_zeilen.Anfuegen(record);
    }

private:
    Testordner m_ordner;
    Zeilenpuffer m_zeilen;
};

} // namespace zepholt::hilfen
