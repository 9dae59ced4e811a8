// Tries the fields of a record at their edges: each filled to its last column, only its first column, only its last,
// and only the columns around it. A field that is read one column too wide, too narrow or beside its place shows.
//
// The places of the fields in a probe are those of the format, never those of the program.
#pragma once

#include "doctest/Feldpruefung.h"
#include "hilfen/Satztest.h"
#include "support/HilfsFunktionen.h"

#include <cmath>
#include <optional>
#include <string>
#include <vector>

namespace zepholt::hilfen {

enum class Feldart {
    Frei,         // any text
    OhneJoker,    // a text without '*' and without a blank at its first place
    JokerAmEnde,  // a text whose first '*' is its last character, without a blank at its first place
    Zahl,         // digits
    Dezimal,      // digits with decimals
    Datum,        // six digits
    Reihenfolge,  // digits, which the new interface reports and drops
    MussLeerSein, // belongs to the other form of the record
};

struct Feldprobe {
    const char* Name;
    std::int32_t Spalte;
    std::int32_t Laenge;
    Feldart Art;
    Pflicht InAlt = Freiwillig;
    Pflicht InNeu = Freiwillig;
    Text (*Behalten)() = nullptr; // what the tables keep of it; none for a field that is only looked at
    TextSicht Voll = {};          // what fills it where not any text or number will do
    TextSicht VollBehalten = {};  // what is kept of that, where it is not the same
    bool DavorLeer = false;       // a column filled in front of it would make another record of it
};

struct Satzprobe {
    const char* Name;
    std::vector<std::int32_t> Revisionen;
    void (*Vorbereiten)();
    void (*Test)();
    Text Satz; // a record that no field has a fault in
    std::vector<Feldprobe> Felder;

    friend void PrintTo(const Satzprobe& probe, std::ostream* aus) { *aus << probe.Name; }
};

inline Text AlsText(Feldsicht text) {
    return Text(text);
}

// A number of the tables as its digits in the record.
inline Text AlsZiffern(double wert, std::int32_t stellen) {
    return ZahlText(std::llround(wert * std::pow(10.0, stellen)));
}

inline std::vector<std::int32_t> BeideRevisionen() {
    return {Alt, Neu};
}

class Feldprobentest : public Satztest, public ::testing::WithParamInterface<Satzprobe> {
protected:
    // All that is tried with one field in one interface.
    void Probiere(const Feldprobe& feld, std::int32_t revision) {
        m_feld = &feld;
        m_revision = revision;
        const Text voll = Voll();
        const Text leer(voll.size(), u' ');
        const bool mehrere = voll.size() > 1;
        const Funde falsch = {Fund{feld.Art == Feldart::MussLeerSein ? 2032 : 3001, 0, feld.Spalte}};

        Erwarte("blank", leer, FundeBeiLeer(), BehaltenBeiLeer());
        if (feld.Art == Feldart::MussLeerSein) {
            Erwarte("full", voll, falsch, {});
            Erwarte("only the first column", Erste(leer, u'x'), falsch, {});
            Erwarte("only the last column", Letzte(leer, u'x'), falsch, {});
            return;
        }
        Erwarte("full", voll, {}, BehaltenBeiVoll(voll));
        if (feld.Voll.empty()) {
            ProbiereRaender(voll, leer, mehrere ? falsch : Funde{});
        }
        if (NurZiffernErlaubt()) {
            Erwarte("no digit at the first column", Erste(voll, u'x'), falsch, {});
            Erwarte("no digit at the last column", Letzte(voll, u'x'), falsch, {});
        }
    }

private:
    bool NurZiffernErlaubt() const {
        return m_feld->Art == Feldart::Zahl || m_feld->Art == Feldart::Dezimal || m_feld->Art == Feldart::Datum ||
               m_feld->Art == Feldart::Reihenfolge;
    }

    bool HatJokerRegel() const { return m_feld->Art == Feldart::OhneJoker || m_feld->Art == Feldart::JokerAmEnde; }

    void ProbiereRaender(const Text& voll, const Text& leer, const Funde& luecke) {
        const bool mehrere = voll.size() > 1;
        const Funde falsch = {Fund{3001, 0, m_feld->Spalte}};
        if (NurZiffernErlaubt()) {
            Erwarte("only the first column", Erste(leer, u'1'), luecke, mehrere ? Text(u"0") : Text(u"1"));
            Erwarte("only the last column", Letzte(leer, u'1'), luecke, mehrere ? Text(u"0") : Text(u"1"));
            return;
        }
        const Text letzte = Letzte(leer, u'x');
        Erwarte("only the first column", Erste(leer, u'x'), {}, Text(u"x"));
        Erwarte("only the last column", letzte, HatJokerRegel() ? luecke : Funde{}, letzte);
        if (m_feld->Art == Feldart::OhneJoker) {
            Erwarte("a joker at the first column", Erste(leer, u'*'), falsch, Text(u"*"));
            Erwarte("a joker at the last column", Letzte(voll, u'*'), falsch, Letzte(voll, u'*'));
        }
        if (m_feld->Art == Feldart::JokerAmEnde) {
            Erwarte("a joker at the last column", Letzte(voll, u'*'), {}, Letzte(voll, u'*'));
        }
        if (m_feld->Art == Feldart::JokerAmEnde && mehrere) {
            Erwarte("a joker at the first column", Erste(voll, u'*'), falsch, Erste(voll, u'*'));
            Erwarte("a joker at the first column, a letter at the last", Letzte(Erste(leer, u'*'), u'x'), falsch,
                    Letzte(Erste(leer, u'*'), u'x'));
        }
    }

    // The content between neighbours as they are in the record, blank ones filled; and between neighbours that would
    // be faults of this field. `behalten` is compared where the field is kept.
    void Erwarte(const char* was, const Text& inhalt, const Funde& funde, const std::optional<Text>& behalten) {
        const std::string wo = std::string(m_feld->Name) + ", revision " + std::to_string(m_revision) + ", " + was;
        EXPECT_EQ(FundeDesFeldes(MitNachbarn(inhalt, u'7', false)), funde) << wo;
        if (m_feld->Behalten != nullptr && behalten) {
            const bool verworfen = m_feld->Art == Feldart::Reihenfolge && m_revision >= 12;
            EXPECT_EQ(m_feld->Behalten(), verworfen ? Text(u"0") : *behalten) << wo;
        }
        EXPECT_EQ(FundeDesFeldes(MitNachbarn(inhalt, HatJokerRegel() ? u'*' : u'x', true)), funde) << wo;
    }

    Text MitNachbarn(const Text& inhalt, char16_t zeichen, bool auchGefuellte) const {
        Text satz = Geaendert(GetParam().Satz, {{m_feld->Spalte, inhalt}});
        for (const std::int32_t spalte : {m_feld->Spalte - 1, m_feld->Spalte + m_feld->Laenge}) {
            const auto index = static_cast<std::size_t>(spalte - 1);
            satz.resize(std::max(satz.size(), index + 1), u' ');
            const bool bleibtLeer = m_feld->DavorLeer && spalte < m_feld->Spalte;
            if (spalte != 1 && (auchGefuellte || (satz[index] == u' ' && !bleibtLeer))) {
                satz[index] = zeichen;
            }
        }
        return satz;
    }

    // What a fresh run reports of the field's form: the findings with its column.
    Funde FundeDesFeldes(const Text& satz) {
        Beginne(m_revision);
        GetParam().Vorbereiten();
        FehlerLoeschen();
        Funde funde = Pruefe(GetParam().Test, satz);
        const bool gemeldet = std::ranges::count(funde, 3208, &Fund::Code) == 1;
        if (m_feld->Art == Feldart::Reihenfolge) {
            const auto ab = static_cast<std::size_t>(m_feld->Spalte - 1);
            const TextSicht feld = TextSicht(satz).substr(ab, static_cast<std::size_t>(m_feld->Laenge));
            EXPECT_EQ(gemeldet, m_revision >= 12 && !OhneLeerzeichen(feld).empty()) << m_feld->Name;
        }
        std::erase_if(funde, [&](const Fund& fund) { return fund.Spalte != m_feld->Spalte; });
        for (Fund& fund : funde) {
            fund.Zeile = 0; // header and closing record stand on other lines
        }
        return funde;
    }

    Funde FundeBeiLeer() const {
        const Pflicht pflicht = m_revision >= 12 ? m_feld->InNeu : m_feld->InAlt;
        if (pflicht == Zwingend) {
            return {Fund{3002, 0, m_feld->Spalte}};
        }
        return pflicht == Erwartet && m_revision >= 12 ? Funde{Fund{3003, 0, m_feld->Spalte}} : Funde{};
    }

    // Another letter in each column, or another digit.
    Text Voll() const {
        if (!m_feld->Voll.empty()) {
            return Text(m_feld->Voll);
        }
        Text voll;
        for (std::int32_t i = 0; i < m_feld->Laenge; ++i) {
            voll.push_back(static_cast<char16_t>(NurZiffernErlaubt() ? u'1' + i % 9 : u'a' + i % 26));
        }
        return voll;
    }

    // None where not any content will do: then the record may not be kept at all.
    std::optional<Text> BehaltenBeiLeer() const {
        if (!m_feld->Voll.empty()) {
            return std::nullopt;
        }
        return NurZiffernErlaubt() ? Text(u"0") : Text();
    }

    Text BehaltenBeiVoll(const Text& voll) const {
        return m_feld->VollBehalten.empty() ? voll : Text(m_feld->VollBehalten);
    }

    static Text Erste(Text text, char16_t zeichen) {
        text.front() = zeichen;
        return text;
    }

    static Text Letzte(Text text, char16_t zeichen) {
        text.back() = zeichen;
        return text;
    }

    const Feldprobe* m_feld = nullptr;
    std::int32_t m_revision = 0;
};

} // namespace zepholt::hilfen
