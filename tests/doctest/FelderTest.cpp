// The places of the fields that the records A, Z, B, C, X and P read: each field is tried at its edges.
#include "doctest/Records.h"
#include "hilfen/Feldprobe.h"
#include "hilfen/KopfSaetze.h"

namespace zepholt {
namespace {

using namespace hilfen;

SIA451Datei& Datei() {
    return sia451Datei;
}

template <auto Feld>
Text Kopf() {
    return Text(sia451Datei.*Feld);
}

template <std::int32_t SIA451Datei::*Feld>
Text Kopfzahl() {
    return ZahlText(sia451Datei.*Feld);
}

// --- A and Z

const Text& SauberesA() {
    static Text satz;
    satz = SatzA(testDaten.Revision);
    return satz;
}

const Text& SauberesZ() {
    static Text satz;
    satz = SatzZ(2);
    return satz;
}

void PruefeA() {
    PruefeRecordAZ(testDaten.Record, SauberesZ());
}

void PruefeZ() {
    PruefeRecordAZ(SauberesA(), testDaten.Record);
}

// A document of the code I refers to another one.
void PruefeZMitBezug() {
    static Text a;
    a = SatzA(testDaten.Revision, {{44, u"I"}});
    PruefeRecordAZ(a, testDaten.Record);
}

void Nichts() {}

// 1 February 2003 is day 12084 since 1970-01-01: 33 years of 365 days, 8 leap days (1972 to 2000) and 31 days.
constexpr TextSicht Tag = u"010203";
constexpr TextSicht TageBisTag = u"12084";

const std::vector<Feldprobe> FelderA = {
    {"A:2", 2, 6, Feldart::Datum, Zwingend, Zwingend, Kopfzahl<&SIA451Datei::DatumA>, Tag, TageBisTag},
    {"A:6-7", 18, 12, Feldart::OhneJoker, Freiwillig, Freiwillig, Kopf<&SIA451Datei::KopfFeld18>},
    {"A:8-10", 30, 12, Feldart::Frei, Freiwillig, Zwingend, Kopf<&SIA451Datei::KopfFeld30>},
    {"A:11", 42, 1, Feldart::Zahl, Zwingend, Zwingend, Kopfzahl<&SIA451Datei::Sprachcode>},
    {"A:12", 43, 1, Feldart::Frei, Freiwillig, Freiwillig, Kopf<&SIA451Datei::StellungVorversion>},
    {"A:13", 44, 1, Feldart::Frei, Zwingend, Zwingend, Kopf<&SIA451Datei::DokumentCode>},
    {"A:14", 45, 1, Feldart::Frei, Zwingend, Zwingend, Kopf<&SIA451Datei::DokumentStatus>},
    {"A:15", 46, 13, Feldart::Frei, Freiwillig, Freiwillig, Kopf<&SIA451Datei::KopfFeld46>},
    {"A:16-18", 59, 4, Feldart::Zahl, Freiwillig, Freiwillig, Kopfzahl<&SIA451Datei::KopfFeld59>},
    {"A:20", 75, 7, Feldart::Zahl, Freiwillig, Freiwillig, Kopfzahl<&SIA451Datei::KopfFeld75>},
    {"A:21-22", 82, 11, Feldart::OhneJoker, Zwingend, Zwingend, Kopf<&SIA451Datei::ProjektNummer>},
    {"A:23", 93, 30, Feldart::Frei, Erwartet, Erwartet, Kopf<&SIA451Datei::ProjektName>},
    {"A:24a-d", 123, 15, Feldart::OhneJoker, Zwingend, Zwingend, Kopf<&SIA451Datei::DokumentNummer>},
    {"A:24e", 138, 30, Feldart::Frei, Erwartet, Erwartet, Kopf<&SIA451Datei::DokumentName>},
    {"A:24f", 168, 20, Feldart::Frei, Zwingend, Zwingend, Kopf<&SIA451Datei::SoftwareHersteller>},
    {"A:24g", 188, 20, Feldart::Frei, Zwingend, Zwingend, Kopf<&SIA451Datei::KopfFeld188>},
    {"A:24h", 208, 30, Feldart::Frei, Zwingend, Zwingend, Kopf<&SIA451Datei::SoftwareName>},
    {"A:24i", 238, 19, Feldart::Frei, Freiwillig, Freiwillig, Kopf<&SIA451Datei::KopfFeld238>},
};

const std::vector<Feldprobe> FelderZ = {
    {"Z:2", 2, 6, Feldart::Datum, Zwingend, Zwingend, Kopfzahl<&SIA451Datei::DatumZ2>, Tag, TageBisTag},
    {"Z:3", 8, 6, Feldart::Datum, Freiwillig, Freiwillig, Kopfzahl<&SIA451Datei::DatumZ3>, Tag, TageBisTag},
    {"Z:6-7", 18, 12, Feldart::Frei, Freiwillig, Zwingend, Kopf<&SIA451Datei::ZFeld18>},
    {"Z:8-10", 30, 12, Feldart::Frei, Freiwillig, Freiwillig, Kopf<&SIA451Datei::ZFeld30>},
    {"Z:20", 75, 7, Feldart::Zahl, Freiwillig, Freiwillig, Kopfzahl<&SIA451Datei::ZFeld75>},
    {"Z:21-22", 82, 11, Feldart::OhneJoker},
    {"Z:24a-d", 123, 15, Feldart::Frei, Freiwillig, Freiwillig, Kopf<&SIA451Datei::ZFeld123>},
    {"Z:24e", 138, 30, Feldart::Frei, Erwartet, Zwingend, Kopf<&SIA451Datei::ZFeld138>},
    {"Z:24f", 168, 20, Feldart::Frei, Erwartet, Erwartet, Kopf<&SIA451Datei::ZFeld168>},
    {"Z:24g", 188, 20, Feldart::Frei, Freiwillig, Erwartet, Kopf<&SIA451Datei::ZFeld188>},
    {"Z:24h-i", 208, 49, Feldart::Frei, Freiwillig, Freiwillig, Kopf<&SIA451Datei::ZFeld208>},
};

// --- B

// Every structure announced, with the owner of a second level: object structure "A", variant group "G".
void MitGliederungen() {
    SIA451Datei& datei = Datei();
    datei.OGLVorhanden = datei.KAGVorhanden = datei.EKGVorhanden = datei.EinrichtungVorhanden = true;
    datei.VariantenVorhanden = datei.NutzungVorhanden = datei.RaumVorhanden = true;
    datei.OGLTabelle.Anfuegen({u"A", 0, {}});
    datei.VariantenTabelle.Anfuegen({u"G", u"", 0, {}});
}

template <auto Tabelle, auto Feld>
Text Letzter() {
    const auto& eintraege = (sia451Datei.*Tabelle).Eintraege();
    return eintraege.empty() ? Text(u"not kept") : Text(eintraege.back().*Feld);
}

template <auto Tabelle, auto Feld>
Text LetzteZahl() {
    const auto& eintraege = (sia451Datei.*Tabelle).Eintraege();
    return eintraege.empty() ? Text(u"not kept") : ZahlText(eintraege.back().*Feld);
}

template <auto Feld>
Text LetztePSL() {
    const auto& eintraege = sia451Datei.OGLTabelle[0].PSLListe.Eintraege();
    return eintraege.empty() ? Text(u"not kept") : Text(eintraege.back().*Feld);
}

template <auto Feld>
Text LetzteVariante() {
    const auto& eintraege = sia451Datei.VariantenTabelle[0].Varianten.Eintraege();
    return eintraege.empty() ? Text(u"not kept") : Text(eintraege.back().*Feld);
}

Text ReihenfolgeDesLetztenKopfs() {
    return ZahlText(Datei().GliederungReihenfolgen.back());
}

constexpr auto KAG = &SIA451Datei::KAGTabelle;
constexpr auto OGL = &SIA451Datei::OGLTabelle;
constexpr auto EKG = &SIA451Datei::EKGTabelle;
constexpr auto Einrichtung = &SIA451Datei::EinrichtungTabelle;
constexpr auto Gruppe = &SIA451Datei::VariantenTabelle;
constexpr auto Nutzung = &SIA451Datei::NutzungTabelle;
constexpr auto Raum = &SIA451Datei::RaumTabelle;

// A structure number that fits is asked for by every test; here only the form of the field counts.
Feldprobe Nummer(const char* name) {
    return {name, 2, 3, Feldart::Zahl, Zwingend, Zwingend};
}

Feldprobe Bezeichnung(const char* name) {
    return {name, 93, 30, Feldart::Frei, Erwartet, Erwartet};
}

const std::vector<Feldprobe> FelderB0 = {
    Nummer("B0:2a"),
    {"B0:2c", 6, 2, Feldart::Zahl, Freiwillig, Freiwillig},
    {"B0:20", 75, 7, Feldart::Zahl, Freiwillig, Freiwillig, ReihenfolgeDesLetztenKopfs},
};

const std::vector<Feldprobe> FelderB1 = {
    Nummer("B1:2a"),
    {"B1:21", 82, 5, Feldart::Frei, Zwingend, Zwingend, Letzter<KAG, &Codeeintrag::Code>},
    Bezeichnung("B1:23"),
};

const std::vector<Feldprobe> FelderB2 = {
    Nummer("B2:2a"),
    {"B2:6", 18, 6, Feldart::Frei, Zwingend, Zwingend},
    {"B2:20", 75, 7, Feldart::Reihenfolge, Freiwillig, Freiwillig, LetzteZahl<OGL, &OGLEintrag::Reihenfolge>},
    Bezeichnung("B2:23"),
};

// The first column of the location stands beside the last of the object structure, so that the record of a new object
// structure tells the width of its code only while the location is blank.
const std::vector<Feldprobe> FelderB2Ort = {
    {"B2:7", 24, 6, Feldart::Frei, Freiwillig, Freiwillig, LetztePSL<&Reihencode::Code>, u"abcdef", {}, true},
    Bezeichnung("B2:23"),
};

const std::vector<Feldprobe> FelderB3 = {
    Nummer("B3:2a"),
    {"B3:22", 87, 6, Feldart::Frei, Zwingend, Zwingend, Letzter<EKG, &Codeeintrag::Code>},
    Bezeichnung("B3:23"),
};

const std::vector<Feldprobe> FelderB4 = {
    Nummer("B4:2a"),
    {"B4:20", 75, 7, Feldart::Reihenfolge, Freiwillig, Freiwillig, LetzteZahl<Einrichtung, &Reihencode::Reihenfolge>},
    Bezeichnung("B4:23"),
    {"B4:24b", 129, 6, Feldart::Frei, Zwingend, Zwingend, Letzter<Einrichtung, &Reihencode::Code>},
};

const std::vector<Feldprobe> FelderB5 = {
    Nummer("B5:2a"),
    {"B5:8", 30, 3, Feldart::Frei, Zwingend, Zwingend, Letzter<Gruppe, &VariantengruppeEintrag::Code>},
    {"B5:20", 75, 7, Feldart::Reihenfolge, Freiwillig, Freiwillig,
     LetzteZahl<Gruppe, &VariantengruppeEintrag::Reihenfolge>},
    Bezeichnung("B5:23"),
    {"B5:24c-d", 135, 3, Feldart::Frei, Zwingend, Zwingend, Letzter<Gruppe, &VariantengruppeEintrag::Primaervariante>},
};

const std::vector<Feldprobe> FelderB6 = {
    Nummer("B6:2a"),
    {"B6:8", 30, 3, Feldart::Frei, Zwingend, Zwingend},
    {"B6:9", 33, 3, Feldart::Frei, Zwingend, Zwingend, LetzteVariante<&Reihencode::Code>, {}, {}, true},
    {"B6:20", 75, 7, Feldart::Reihenfolge},
    Bezeichnung("B6:23"),
};

const std::vector<Feldprobe> FelderB7 = {
    Nummer("B7:2a"),
    Bezeichnung("B7:23"),
    {"B7:24f", 168, 16, Feldart::Frei, Zwingend, Zwingend, Letzter<Nutzung, &Codeeintrag::Code>},
};

const std::vector<Feldprobe> FelderB8 = {
    Nummer("B8:2a"),
    Bezeichnung("B8:23"),
    {"B8:24g", 188, 16, Feldart::Frei, Zwingend, Zwingend, Letzter<Raum, &Codeeintrag::Code>},
};

template <auto Feld>
Text Konto() {
    return Text(sia451Datei.KostenkontoTabelle.back().*Feld);
}

const std::vector<Feldprobe> FelderB9 = {
    {"B9:6", 18, 6, Feldart::JokerAmEnde, Freiwillig, Freiwillig, Konto<&Verweissatz::OGL>},
    {"B9:7", 24, 6, Feldart::JokerAmEnde, Freiwillig, Freiwillig, Konto<&Verweissatz::PSL>},
    {"B9:8", 30, 3, Feldart::JokerAmEnde, Freiwillig, Freiwillig, Konto<&Verweissatz::Variantengruppe>},
    {"B9:9", 33, 3, Feldart::JokerAmEnde, Freiwillig, Freiwillig, Konto<&Verweissatz::Variante>},
    {"B9:15", 46, 13, Feldart::Dezimal, Freiwillig, Freiwillig},
    {"B9:19", 63, 12, Feldart::Dezimal, Freiwillig, Freiwillig},
    {"B9:21", 82, 5, Feldart::JokerAmEnde, Freiwillig, Freiwillig, Konto<&Verweissatz::KAG>},
    {"B9:22", 87, 6, Feldart::JokerAmEnde, Freiwillig, Freiwillig, Konto<&Verweissatz::Element>},
};

// --- C

void MitKondition() {
    Datei().KonditionTabelle.push_back({.Stufe = 1});
    Datei().KonditionNachNummer.emplace(1, 0);
}

template <auto Feld>
Text Konditionszahl() {
    return ZahlText(sia451Datei.KonditionTabelle.back().*Feld);
}

// The amount has the first 13 of its field's 15 columns.
const std::vector<Feldprobe> FelderC0 = {
    {"C0:2a", 2, 3, Feldart::Zahl, Zwingend, Zwingend},
    {"C0:15-16", 46, 13, Feldart::Dezimal, Freiwillig, Freiwillig},
};

const std::vector<Feldprobe> FelderC1 = {
    {"C1:2a", 2, 3, Feldart::Zahl, Zwingend, Zwingend,
     [] { return ZahlText(sia451Datei.KonditionNachNummer.begin()->first); }},
    {"C1:2b", 5, 1, Feldart::Zahl, Zwingend, Zwingend, Konditionszahl<&KonditionEintrag::Konditionsart>},
    {"C1:2c", 6, 2, Feldart::Zahl, Zwingend, Zwingend, Konditionszahl<&KonditionEintrag::Stufe>},
    {"C1:5", 16, 2, Feldart::Zahl, Freiwillig, Freiwillig},
    {"C1:10", 36, 6, Feldart::Zahl, Freiwillig, Freiwillig},
    {"C1:13", 44, 1, Feldart::Frei, Zwingend, Zwingend},
    {"C1:15-16", 46, 15, Feldart::Dezimal, Freiwillig, Freiwillig},
    {"C1:19", 63, 12, Feldart::Dezimal, Freiwillig, Freiwillig},
    {"C1:20b", 76, 6, Feldart::Dezimal, Freiwillig, Freiwillig},
};

const std::vector<Feldprobe> FelderC5 = {
    {"C5:2a", 2, 3, Feldart::Zahl, Zwingend, Zwingend},
    {"C5:6", 18, 6, Feldart::JokerAmEnde, Freiwillig, Freiwillig},
    {"C5:7", 24, 6, Feldart::JokerAmEnde, Freiwillig, Freiwillig},
    {"C5:8", 30, 3, Feldart::JokerAmEnde, Freiwillig, Freiwillig},
    {"C5:9", 33, 3, Feldart::JokerAmEnde, Freiwillig, Freiwillig},
    {"C5:21", 82, 5, Feldart::JokerAmEnde, Freiwillig, Freiwillig},
    {"C5:22", 87, 6, Feldart::JokerAmEnde, Freiwillig, Freiwillig},
    {"C5:24b", 129, 6, Feldart::JokerAmEnde, Freiwillig, Freiwillig},
    {"C5:24d", 136, 2, Feldart::Reihenfolge, Freiwillig, Freiwillig},
};

// --- X and P

const std::vector<Feldprobe> FelderMitZeile = {
    {"2a", 2, 3, Feldart::Zahl, Zwingend, Zwingend},
    {"3", 8, 6, Feldart::Zahl, Zwingend, Zwingend},
    {"4", 14, 2, Feldart::Zahl},
    {"5", 16, 2, Feldart::Zahl, Zwingend, Zwingend},
    {"23", 93, 164, Feldart::Frei, Zwingend, Zwingend},
};
const std::vector<Feldprobe> FelderOhneZeile = {
    {"2a", 2, 3, Feldart::Zahl, Zwingend, Zwingend},
    {"3", 8, 6, Feldart::Zahl, Zwingend, Zwingend},
    {"4", 14, 2, Feldart::Zahl},
    {"23", 93, 164, Feldart::Frei, Zwingend, Zwingend},
};

Text Anhang(TextSicht art) {
    return Zeile(art, {{2, u"111"}, {8, u"111001"}, {16, art == u"P1" || art == u"P2" ? u"" : u"01"}, {93, u"Text"}});
}

const Satzprobe Proben[] = {
    {"A", BeideRevisionen(), Nichts, PruefeA, SatzA(Neu), FelderA},
    {"Z", BeideRevisionen(), Nichts, PruefeZ, SatzZ(2), FelderZ},
    {"ZOfADocumentThatRefersToAnother",
     BeideRevisionen(),
     Nichts,
     PruefeZMitBezug,
     SatzZ(2, {{93, u"Schulhaus"}}),
     {{"Z:23", 93, 30, Feldart::Frei, Freiwillig, Erwartet}}},
    {"B0", BeideRevisionen(), Nichts, PruefeB0, Zeile(u"B0", {{2, u"001"}, {6, u"20"}, {36, u"BKP"}}), FelderB0},
    {"B1", BeideRevisionen(), MitGliederungen, PruefeB1, Zeile(u"B1", {{2, u"001"}, {82, u"1"}, {93, u"Name"}}),
     FelderB1},
    {"B2", BeideRevisionen(), MitGliederungen, PruefeB2, Zeile(u"B2", {{2, u"002"}, {18, u"1"}, {93, u"Name"}}),
     FelderB2},
    {"B2OfALocation", BeideRevisionen(), MitGliederungen, PruefeB2,
     Zeile(u"B2", {{2, u"002"}, {18, u"A"}, {24, u"1"}, {93, u"Name"}}), FelderB2Ort},
    {"B3", BeideRevisionen(), MitGliederungen, PruefeB3, Zeile(u"B3", {{2, u"003"}, {87, u"1"}, {93, u"Name"}}),
     FelderB3},
    {"B4", BeideRevisionen(), MitGliederungen, PruefeB4, Zeile(u"B4", {{2, u"004"}, {93, u"Name"}, {129, u"1"}}),
     FelderB4},
    {"B5", BeideRevisionen(), MitGliederungen, PruefeB5,
     Zeile(u"B5", {{2, u"005"}, {30, u"1"}, {93, u"Name"}, {135, u"1"}}), FelderB5},
    {"B6", BeideRevisionen(), MitGliederungen, PruefeB6,
     Zeile(u"B6", {{2, u"005"}, {30, u"G"}, {33, u"1"}, {93, u"Name"}}), FelderB6},
    {"B7", {Neu}, MitGliederungen, PruefeB7, Zeile(u"B7", {{2, u"007"}, {93, u"Name"}, {168, u"1"}}), FelderB7},
    {"B8", {Neu}, MitGliederungen, PruefeB8, Zeile(u"B8", {{2, u"008"}, {93, u"Name"}, {188, u"1"}}), FelderB8},
    {"B9", BeideRevisionen(), MitGliederungen, PruefeB9, Zeile(u"B9", {}), FelderB9},
    {"C0", BeideRevisionen(), Nichts, PruefeC0, Zeile(u"C0", {{2, u"000"}}), FelderC0},
    {"C1", BeideRevisionen(), Nichts, PruefeC1, Zeile(u"C1", {{2, u"001"}, {5, u"1"}, {6, u"10"}, {44, u"%"}}),
     FelderC1},
    {"C5", BeideRevisionen(), MitKondition, PruefeC5, Zeile(u"C5", {{2, u"001"}}), FelderC5},
    {"X4", {Neu}, Nichts, PruefeX4, Anhang(u"X4"), FelderMitZeile},
    {"X5", {Neu}, Nichts, PruefeX5, Anhang(u"X5"), FelderMitZeile},
    {"P1", {Neu}, Nichts, [] { PruefeP(1); }, Anhang(u"P1"), FelderOhneZeile},
    {"P2", {Neu}, Nichts, [] { PruefeP(2); }, Anhang(u"P2"), FelderOhneZeile},
    {"P3", {Neu}, Nichts, [] { PruefeP(3); }, Anhang(u"P3"), FelderMitZeile},
    {"P4", {Neu}, Nichts, [] { PruefeP(4); }, Anhang(u"P4"), FelderMitZeile},
    {"P5", {Neu}, Nichts, [] { PruefeP(5); }, Anhang(u"P5"), FelderMitZeile},
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

class FeldrandTest : public Satztest {
protected:
    // The codes that a record gives in a fresh run of the new interface.
    std::vector<std::int32_t> Codes(void (*vorbereiten)(), void (*test)(), const Text& satz) {
        Beginne(Neu);
        vorbereiten();
        std::vector<std::int32_t> codes;
        for (const Fund& fund : Pruefe(test, satz)) {
            codes.push_back(fund.Code);
        }
        return codes;
    }
};

using Codeliste = std::vector<std::int32_t>;

TEST_F(FeldrandTest, ATermOfPaymentIsGivenWithAnyOfItsSixColumns) {
    const auto codes = [this](TextSicht art, std::int32_t spalte) {
        return Codes([] { sia451Datei.BruttoVorhanden = true; }, PruefeC1,
                     Zeile(u"C1", {{2, u"001"}, {5, art}, {6, u"10"}, {44, u"%"}, {spalte, u"1"}}));
    };
    EXPECT_EQ(codes(u"1", 35), Codeliste{});
    EXPECT_EQ(codes(u"1", 36), (Codeliste{3001, 5225}));
    EXPECT_EQ(codes(u"1", 41), (Codeliste{3001, 5225}));
    EXPECT_EQ(codes(u"1", 43), Codeliste{});
    EXPECT_EQ(codes(u"3", 35), (Codeliste{5224}));
    EXPECT_EQ(codes(u"3", 36), (Codeliste{3001}));
    EXPECT_EQ(codes(u"3", 41), (Codeliste{3001}));
    EXPECT_EQ(codes(u"3", 43), (Codeliste{5224}));
}

TEST_F(FeldrandTest, TheYearOfAStructureIsGivenWithEitherOfItsColumns) {
    const auto codes = [this](std::int32_t spalte) {
        return Codes(Nichts, PruefeB0, Zeile(u"B0", {{2, u"001"}, {spalte, u"1"}}));
    };
    EXPECT_EQ(codes(5), Codeliste{});
    EXPECT_EQ(codes(6), (Codeliste{3001, 3203}));
    EXPECT_EQ(codes(7), (Codeliste{3001, 3203}));
    EXPECT_EQ(codes(8), Codeliste{});
}

TEST_F(FeldrandTest, AnObjectStructureCodeHasSixColumns) {
    Beginne(Neu);
    MitGliederungen();
    EXPECT_EQ(Pruefe(PruefeB2, Zeile(u"B2", {{2, u"002"}, {17, u"xabcdef"}, {93, u"Name"}})), Funde{});
    EXPECT_EQ((Letzter<OGL, &OGLEintrag::Code>()), u"abcdef");
    EXPECT_EQ(Pruefe(PruefeB2, Zeile(u"B2", {{2, u"002"}, {17, u"xabcdefg"}, {93, u"Name"}})), Funde{});
    EXPECT_EQ(sia451Datei.OGLTabelle[1].PSLListe.Eintraege().back().Code, u"g");
}

TEST_F(FeldrandTest, AVariantGroupCodeHasThreeColumns) {
    Beginne(Neu);
    MitGliederungen();
    sia451Datei.VariantenTabelle.Anfuegen({u"abc", u"", 0, {}});
    EXPECT_EQ(Pruefe(PruefeB6, Zeile(u"B6", {{2, u"005"}, {29, u"xabcd"}, {93, u"Name"}})), Funde{});
    EXPECT_EQ(sia451Datei.VariantenTabelle[1].Varianten.Eintraege().back().Code, u"d");
}

TEST_F(FeldrandTest, TheCodeOfAPRDEntryHasOneColumn) {
    const auto codes = [this](std::int32_t spalte, TextSicht wert) {
        return Codes(
            Nichts, [] { PruefeP(1); }, Geaendert(Anhang(u"P1"), {{spalte, wert}}));
    };
    EXPECT_EQ(codes(43, u"0x"), Codeliste{});
    EXPECT_EQ(codes(44, u"x"), Codeliste{});
    EXPECT_EQ(codes(43, u"x"), Codeliste{4282});
}

TEST_F(FeldrandTest, ASignHasOneColumn) {
    const Text konto = Zeile(u"B9", {{44, u"x+0000000012000"}, {61, u"x+000000001250"}});
    EXPECT_EQ(Codes(MitGliederungen, PruefeB9, konto), Codeliste{});
    EXPECT_EQ(Codes(MitGliederungen, PruefeB9, Geaendert(konto, {{45, u" "}, {62, u" "}})), (Codeliste{3283, 3286}));

    const Text brutto = Zeile(u"C0", {{2, u"000"}, {44, u"x+0000000012000"}});
    EXPECT_EQ(Codes(Nichts, PruefeC0, brutto), Codeliste{});
    EXPECT_EQ(Codes(Nichts, PruefeC0, Geaendert(brutto, {{45, u" "}})), Codeliste{5104});

    const auto kondition = [this](std::initializer_list<Feldwert> felder) {
        return Codes([] { sia451Datei.BruttoVorhanden = true; }, PruefeC1,
                     Geaendert(Zeile(u"C1", {{2, u"001"}, {5, u"1"}, {6, u"10"}, {44, u"x+000000001200000"}}), felder));
    };
    EXPECT_EQ(kondition({{61, u"++000000001250+000250"}}), Codeliste{});
    EXPECT_EQ(kondition({{45, u" "}}), Codeliste{5233});
    EXPECT_EQ(kondition({{61, u"++000000001250 000250"}}), Codeliste{5243});
    EXPECT_EQ(kondition({{61, u"+ 000000001250+000250"}}), Codeliste{5253});
}

} // namespace
} // namespace zepholt
