// The places of the fields that the item records read: each field is tried at its edges.
#include "hilfen/Feldprobe.h"
#include "items/Positionstest.h"
#include "state/Verweise.h"

namespace zepholt {
namespace {

using namespace hilfen;

// --- What the records stand on

void Nichts() {}

PositionEintrag& Anlegen(std::int32_t nummer) {
    PositionEintrag& position = sia451Datei.DokumentKapitel.front().Positionen.emplace_back();
    position.Nummer = nummer;
    return position;
}

void MitKapitel() {
    sia451Datei.DokumentKapitel.emplace_back().Nummer = 111;
}

void MitHauptposition() {
    MitKapitel();
    Anlegen(111000);
}

void MitLeistungsposition() {
    MitKapitel();
    Anlegen(111001).HatG5 = true;
}

void Detailzeile() {
    PruefeDetailausmass();
}

// --- What they keep

const PositionEintrag& Position() {
    return sia451Datei.DokumentKapitel.front().Positionen.back();
}

template <auto Feld>
Text VonMenge() {
    return Position().Mengen.empty()
               ? Text(u"not kept")
               : Text(VerweiseIn(ZeileAn(sia451Datei.Mengen.LetztesVon(Position().Mengen).Zeile)).*Feld);
}

const VariableEintrag& Variable() {
    return sia451Datei.Variablen.LetztesVon(Position().Variablen);
}

const VariablenzeileEintrag& Variablenzeile() {
    return sia451Datei.Variablenzeilen.LetztesVon(Variable().Zeilen);
}

// --- The fields

Feldprobe KapitelFeld(const char* name) {
    return {name, 2, 3, Feldart::Zahl, Zwingend, Zwingend};
}

Feldprobe PositionFeld(const char* name) {
    return {name, 8, 6, Feldart::Zahl, Zwingend, Zwingend};
}

Feldprobe Verweis(const char* name, std::int32_t spalte, std::int32_t laenge, Feldart art, Text (*behalten)()) {
    return {name, spalte, laenge, art, Freiwillig, Freiwillig, behalten};
}

const std::vector<Feldprobe> FelderG1 = {
    KapitelFeld("G1:2a"),
    {"G1:2c", 6, 2, Feldart::Zahl, Zwingend, Zwingend,
     [] { return ZahlText(sia451Datei.DokumentKapitel.back().Versionsjahr - 2000); }, u"45"},
    {"G1:23", 93, 30, Feldart::Frei, Erwartet, Erwartet},
};

const std::vector<Feldprobe> FelderG2 = {
    KapitelFeld("G2:2a"),
    {"G2:3", 8, 6, Feldart::Zahl, Zwingend, Zwingend, [] { return ZahlText(Position().Nummer); }, u"123456"},
};

const std::vector<Feldprobe> FelderG3 = {
    KapitelFeld("G3:2a"),
    PositionFeld("G3:3"),
    {"G3:4", 14, 2, Feldart::Zahl, Zwingend, Zwingend, [] { return ZahlText(Variable().Nummer); }},
    {"G3:5", 16, 2, Feldart::Zahl, Zwingend, Zwingend, [] { return ZahlText(Variablenzeile().Nummer); }},
    {"G3:23", 93, 30, Feldart::Frei, Freiwillig, Freiwillig, [] { return Text(TextVon(Variablenzeile())); }},
    {"G3:24d", 136, 2, Feldart::Zahl, Freiwillig, Freiwillig, [] { return ZahlText(Variable().Einfuegepunkt); }},
};

const std::vector<Feldprobe> FelderG4 = {
    KapitelFeld("G4:2a"),
    PositionFeld("G4:3"),
    Verweis("G4:6", 18, 6, Feldart::JokerAmEnde, nullptr),
    Verweis("G4:7", 24, 6, Feldart::JokerAmEnde, nullptr),
    Verweis("G4:8", 30, 3, Feldart::JokerAmEnde, nullptr),
    Verweis("G4:9", 33, 3, Feldart::JokerAmEnde, nullptr),
    Verweis("G4:21", 82, 5, Feldart::JokerAmEnde, nullptr),
    Verweis("G4:22", 87, 6, Feldart::JokerAmEnde, nullptr),
    Verweis("G4:24b", 129, 6, Feldart::JokerAmEnde, nullptr),
    {"G4:24d", 136, 2, Feldart::Reihenfolge, Freiwillig, Freiwillig},
    Verweis("G4:24f", 168, 16, Feldart::JokerAmEnde, nullptr),
    Verweis("G4:24g", 188, 16, Feldart::JokerAmEnde, nullptr),
};

const std::vector<Feldprobe> FelderG5 = {
    KapitelFeld("G5:2a"),
    PositionFeld("G5:3"),
    {"G5:19", 63, 12, Feldart::Dezimal, Freiwillig, Freiwillig},
};

const std::vector<Feldprobe> FelderG6 = {
    KapitelFeld("G6:2a"),
    PositionFeld("G6:3"),
    // A column filled in front of it would make a detail line.
    {"G6:6", 18, 6, Feldart::OhneJoker, Freiwillig, Freiwillig, VonMenge<&Verweissatz::OGL>, {}, {}, true},
    Verweis("G6:7", 24, 6, Feldart::OhneJoker, VonMenge<&Verweissatz::PSL>),
    Verweis("G6:8", 30, 3, Feldart::OhneJoker, VonMenge<&Verweissatz::Variantengruppe>),
    Verweis("G6:9", 33, 3, Feldart::OhneJoker, VonMenge<&Verweissatz::Variante>),
    {"G6:13", 44, 1, Feldart::Frei, Zwingend, Zwingend},
    {"G6:15", 46, 13, Feldart::Dezimal, Freiwillig, Freiwillig},
    {"G6:19", 63, 12, Feldart::Dezimal, Freiwillig, Freiwillig},
    Verweis("G6:21", 82, 5, Feldart::OhneJoker, VonMenge<&Verweissatz::KAG>),
    Verweis("G6:22", 87, 6, Feldart::OhneJoker, VonMenge<&Verweissatz::Element>),
    {"G6:23", 93, 30, Feldart::MussLeerSein},
    {"G6:24a", 123, 6, Feldart::Zahl, Freiwillig, Freiwillig,
     [] { return ZahlText(sia451Datei.Mengen.LetztesVon(Position().Mengen).Vorbemerkung); }},
    Verweis("G6:24b", 129, 6, Feldart::OhneJoker, VonMenge<&Verweissatz::Einrichtungstyp>),
    {"G6:24d", 136, 2, Feldart::Reihenfolge, Freiwillig, Freiwillig},
    {"G6:24e", 138, 30, Feldart::MussLeerSein},
    Verweis("G6:24f", 168, 16, Feldart::JokerAmEnde, VonMenge<&Verweissatz::Nutzung>),
    Verweis("G6:24g", 188, 16, Feldart::JokerAmEnde, VonMenge<&Verweissatz::Raum>),
    {"G6:24h", 208, 30, Feldart::MussLeerSein},
};

const std::vector<Feldprobe> FelderEG6 = {
    {"G6:4", 14, 2, Feldart::Zahl, Zwingend, Zwingend},
    {"G6:5", 16, 2, Feldart::Zahl, Zwingend, Zwingend},
    {"G6:10", 36, 6, Feldart::MussLeerSein},
    {"G6:13", 44, 1, Feldart::Frei, Zwingend, Zwingend},
    {"G6:15", 46, 13, Feldart::Dezimal, Freiwillig, Freiwillig},
    {"G6:17", 61, 1, Feldart::MussLeerSein},
    {"G6:18", 62, 1, Feldart::MussLeerSein},
    {"G6:19", 63, 12, Feldart::MussLeerSein},
    {"G6:20", 75, 7, Feldart::MussLeerSein},
    {"G6:24a", 123, 6, Feldart::MussLeerSein},
};

const Satzprobe Proben[] = {
    {"G1", BeideRevisionen(), Nichts, PruefeG1, Zeile(u"G1", {{2, u"111"}, {6, u"20"}, {93, u"Titel"}}), FelderG1},
    {"G2", BeideRevisionen(), MitHauptposition, PruefeG2, Zeile(u"G2", {{2, u"111"}, {8, u"112000"}}), FelderG2},
    {"G3", BeideRevisionen(), MitLeistungsposition, PruefeG3,
     Zeile(u"G3", {{2, u"111"}, {8, u"111001"}, {14, u"01"}, {16, u"01"}}), FelderG3},
    {"G4", BeideRevisionen(), MitHauptposition, PruefeG4, Zeile(u"G4", {{2, u"111"}, {8, u"111000"}}), FelderG4},
    {"G5", BeideRevisionen(), MitLeistungsposition, PruefeG5, Zeile(u"G5", {{2, u"111"}, {8, u"111001"}}), FelderG5},
    {"G6", BeideRevisionen(), MitLeistungsposition, PruefeG6, Zeile(u"G6", {{2, u"111"}, {8, u"111001"}, {44, u"A"}}),
     FelderG6},
    {"DetailLine", BeideRevisionen(), MitLeistungsposition, Detailzeile,
     Zeile(u"G6", {{2, u"111"}, {8, u"111001"}, {14, u"01"}, {16, u"01"}, {44, u"A"}}), FelderEG6},
};

using FelderTest = Feldprobentest;

INSTANTIATE_TEST_SUITE_P(Saetze, FelderTest, ::testing::ValuesIn(Proben),
                         [](const auto& probe) { return std::string(probe.param.Name); });

TEST_P(FelderTest, EachFieldIsReadFromItsFirstColumnToItsLast) {
    for (const std::int32_t revision : GetParam().Revisionen) {
        for (const Feldprobe& feld : GetParam().Felder) {
            Probiere(feld, revision);
        }
    }
}

// --- Fields of which only the content tells whether they were read

class FeldrandTest : public Positionstest {
protected:
    // The record of its test with fields over it, in a fresh run.
    template <class Test>
    void Erwarte(void (*aufbau)(), Test test, const Text& satz, const Felder& felder, const Meldungen& erwartet) {
        Beginne(Neu);
        aufbau();
        Positionstest::Erwarte(test, Mit(satz, felder), erwartet);
    }
};

TEST_F(FeldrandTest, OneColumnOfItsTwoNumbersMakesADetailLine) {
    const Text satz = Zeile(u"G6", {{2, u"111"}, {8, u"111001"}, {44, u"A"}});
    const Meldungen ohneMenge = {{4692}};
    Erwarte(MitLeistungsposition, PruefeG6, satz, {}, {});
    Erwarte(MitLeistungsposition, PruefeG6, satz, {{14, u"x"}}, ohneMenge);
    Erwarte(MitLeistungsposition, PruefeG6, satz, {{15, u"x"}}, ohneMenge);
    Erwarte(MitLeistungsposition, PruefeG6, satz, {{16, u"x"}}, ohneMenge);
    Erwarte(MitLeistungsposition, PruefeG6, satz, {{17, u"x"}}, ohneMenge);
    Erwarte(MitLeistungsposition, PruefeG6, satz, {{18, u"x"}}, {{4631}}); // the object structure
}

TEST_F(FeldrandTest, TheMarkOfAnEcodevisPositionHasOneColumn) {
    const Text position = Zeile(u"G2", {{2, u"111"}, {8, u"112000"}});
    const Text zeile = Zeile(u"G3", {{2, u"111"}, {8, u"111000"}, {14, u"00"}, {16, u"01"}});
    Erwarte(MitHauptposition, PruefeG2, position, {{43, u"Ex"}}, {});
    Erwarte(MitHauptposition, PruefeG2, position, {{44, u"x"}}, {});
    Erwarte(MitHauptposition, PruefeG2, position, {{43, u"x"}}, {{4231}});
    Erwarte(MitHauptposition, PruefeG3, zeile, {{43, u"ex"}}, {});
    Erwarte(MitHauptposition, PruefeG3, zeile, {{44, u"x"}}, {});
    Erwarte(MitHauptposition, PruefeG3, zeile, {{43, u"x"}}, {{4231}});
}

TEST_F(FeldrandTest, TheAlternativeCodeHasOneColumn) {
    const Text zeile = Zeile(u"G3", {{2, u"111"}, {8, u"111001"}, {14, u"01"}, {16, u"01"}});
    Erwarte(MitLeistungsposition, PruefeG3, zeile, {{134, u"x"}, {136, u"01"}}, {});
    Erwarte(MitLeistungsposition, PruefeG3, zeile, {{135, u"x"}}, {{4311}});
}

TEST_F(FeldrandTest, TheFurnishingDetailHasOneColumn) {
    const Text satz = Zeile(u"G4", {{2, u"111"}, {8, u"111000"}});
    Erwarte(MitHauptposition, PruefeG4, satz, {{135, u"*01"}}, {{3208}});
    Erwarte(MitHauptposition, PruefeG4, satz, {{134, u"x"}, {136, u"01"}}, {{3001, 129}, {3208}, {4451}});
    Erwarte(MitHauptposition, PruefeG4, satz, {{135, u"x"}}, {{4461}});
}

TEST_F(FeldrandTest, ASignHasOneColumn) {
    const Text preis = Zeile(u"G5", {{2, u"111"}, {8, u"111001"}});
    const Text menge = Zeile(u"G6", {{2, u"111"}, {8, u"111001"}, {44, u"A"}});
    Erwarte(MitLeistungsposition, PruefeG5, preis, {{61, u"A+000000001250"}}, {});
    EXPECT_TRUE(LetztePosition().HatPreisVorzeichen);
    Erwarte(MitLeistungsposition, PruefeG5, preis, {{61, u"A 000000001250"}}, {{4507}});
    EXPECT_FALSE(LetztePosition().HatPreisVorzeichen);
    Erwarte(MitLeistungsposition, PruefeG6, menge, {{44, u"A+0000000012000"}}, {});
    Erwarte(MitLeistungsposition, PruefeG6, menge, {{44, u"A 0000000012000"}}, {{4615}});
    Erwarte(MitLeistungsposition, PruefeG6, menge, {{61, u"A+000000001250"}}, {});
    Erwarte(MitLeistungsposition, PruefeG6, menge, {{61, u"A 000000001250"}}, {{4623}});
}

} // namespace
} // namespace zepholt
