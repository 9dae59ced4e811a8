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
        KapitelEintrag kapitel;
        kapitel.Nummer = nummer;
        kapitel.Versionsjahr = jahr;
        sia451Datei.DokumentKapitel.push_back(kapitel);
    }

    static void Position(std::int32_t nummer) {
        PositionEintrag position;
        position.Nummer = nummer;
        sia451Datei.DokumentKapitel.back().Positionen.push_back(position);
    }

    static PositionEintrag& LetztePosition() { return sia451Datei.DokumentKapitel.back().Positionen.back(); }

    // `einfuegepunkt` is that of the last line.
    static void Variable(std::int32_t nummer, const std::vector<Zeilentext>& zeilen = {},
                         std::int32_t einfuegepunkt = 0) {
        VariableEintrag variable;
        variable.Nummer = nummer;
        variable.Einfuegepunkt = einfuegepunkt;
        for (const auto& [zeile, text] : zeilen) {
            variable.ZeilenNrn.push_back(zeile);
            variable.ZeilenTexte.emplace_back(text);
            variable.LetzteZeile = zeile;
        }
        LetztePosition().Variablen.push_back(variable);
    }

    static void Zuordnung() { LetztePosition().Zuordnungen.emplace_back(); }

    static void Menge(std::int32_t vorbemerkung) {
        MengeEintrag menge;
        menge.Vorbemerkung = vorbemerkung;
        LetztePosition().Mengen.push_back(menge);
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

private:
    Testordner m_ordner;
};

} // namespace zepholt::hilfen
