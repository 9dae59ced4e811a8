// A run of item records for a test, over structure tables that hold one entry of each kind, with rows of cases.
#pragma once

#include "hilfen/Satztest.h"
#include "items/RecordG.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace zepholt::hilfen {

// What a record is to report, in the order of reporting: the code, and the column (from 1) where one is named.
struct Meldung {
    std::int32_t Code;
    std::int32_t Spalte = 0;
};
using Meldungen = std::vector<Meldung>;

using Felder = std::vector<Feldwert>;

constexpr std::int32_t Beide = 0; // a row that holds for both interfaces

// A case: the fields that it changes in the record of its test, and what the record reports.
struct Fall {
    std::int32_t Revision;
    Felder Aenderung;
    Meldungen Erwartet;
};

// `satz` with fields overwritten.
inline Text Mit(Text satz, const Felder& felder) {
    for (const Feldwert& feld : felder) {
        const auto ab = static_cast<std::size_t>(feld.Spalte - 1);
        if (satz.size() < ab + feld.Wert.size()) {
            satz.resize(ab + feld.Wert.size(), u' ');
        }
        satz.replace(ab, feld.Wert.size(), feld.Wert);
    }
    return satz;
}

// A text for the message of a failed case.
inline std::string Lesbar(TextSicht text) {
    std::string ergebnis;
    for (const char16_t zeichen : text) {
        ergebnis.push_back(zeichen < 128 ? static_cast<char>(zeichen) : '?');
    }
    return ergebnis;
}

class Positionstest : public Satztest {
protected:
    // Hands the record to its test, which must report just this, all on the record's own line.
    template <class Test>
    void Erwarte(Test test, const Text& satz, const Meldungen& erwartet, const std::string& was = {}) {
        Funde soll;
        for (const Meldung& meldung : erwartet) {
            soll.push_back({meldung.Code, testDaten.ZeilenAnzahl, meldung.Spalte});
        }
        EXPECT_EQ(Pruefe(test, satz), soll) << was;
    }

    // Runs each row in a fresh run that `aufbau` (called with the revision) has prepared, rows of both interfaces
    // twice.
    template <class Aufbau, class Test>
    void ErwarteFaelle(Aufbau aufbau, Test test, const Text& grundsatz, const std::vector<Fall>& faelle) {
        for (std::size_t i = 0; i < faelle.size(); ++i) {
            for (const std::int32_t revision : {Alt, Neu}) {
                if (faelle[i].Revision == Beide || faelle[i].Revision == revision) {
                    aufbau(revision);
                    Erwarte(test, Mit(grundsatz, faelle[i].Aenderung), faelle[i].Erwartet,
                            "row " + std::to_string(i) + ", revision " + std::to_string(revision));
                }
            }
        }
    }

    // A chapter that has been tested without a finding; `jahr` has two digits.
    void Kapitel(TextSicht nummer, TextSicht jahr = u"19") {
        Erwarte(PruefeG1, Zeile(u"G1", {{2, nummer}, {6, jahr}, {93, u"Titel"}}), {});
    }

    void Position(TextSicht kapitel, TextSicht nummer) {
        Erwarte(PruefeG2, Zeile(u"G2", {{2, kapitel}, {8, nummer}}), {});
    }

    // A fresh run with chapter 111 and its main position 111000 and service position 111001, which has no G5 yet.
    void BeginneMitPosition(std::int32_t revision) {
        Beginne(revision);
        Kapitel(u"111");
        Position(u"111", u"111000");
        Position(u"111", u"111001");
    }

    // One B0 and one entry of each structure, and a second variant.
    static void Gliederungen() {
        SIA451Datei& d = sia451Datei;
        d.OGLVorhanden = d.KAGVorhanden = d.EKGVorhanden = d.EinrichtungVorhanden = true;
        d.VariantenVorhanden = d.NutzungVorhanden = d.RaumVorhanden = true;
        OGLEintrag ogl{u"HAUS1", 0, {}};
        ogl.PSLListe.Anfuegen({u"OST"});
        d.OGLTabelle.Anfuegen(std::move(ogl));
        d.KAGTabelle.Anfuegen({u"123"});
        d.EKGTabelle.Anfuegen({u"C1"});
        d.EinrichtungTabelle.Anfuegen({u"ET1"});
        VariantengruppeEintrag gruppe{u"VG", u"V1", 0, {}};
        gruppe.Varianten.Anfuegen({u"V1"});
        gruppe.Varianten.Anfuegen({u"V2"});
        d.VariantenTabelle.Anfuegen(std::move(gruppe));
        d.NutzungTabelle.Anfuegen({u"WOHNEN"});
        d.RaumTabelle.Anfuegen({u"BAD"});
    }

    static KapitelEintrag& LetztesKapitel() { return sia451Datei.DokumentKapitel.back(); }
    static PositionEintrag& LetztePosition() { return LetztesKapitel().Positionen.back(); }

    // The entries of a list of the tree.
    static std::vector<MengeEintrag> Mengen(const PositionEintrag& position = LetztePosition()) {
        return Liste<MengeEintrag>(sia451Datei.Mengen.Von(position.Mengen));
    }
    static std::vector<VariableEintrag> Variablen(const PositionEintrag& position = LetztePosition()) {
        return Liste<VariableEintrag>(sia451Datei.Variablen.Von(position.Variablen));
    }

    template <class Eintrag, class Folge>
    static std::vector<Eintrag> Liste(const Folge& folge) {
        std::vector<Eintrag> liste;
        std::ranges::copy(folge, std::back_inserter(liste));
        return liste;
    }
};

} // namespace zepholt::hilfen
