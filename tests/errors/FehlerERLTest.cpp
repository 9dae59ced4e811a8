// The error table and its lookups: number and order of the rows, messages to the letter, the three languages side by
// side, and what a code without a row or an unknown language gives.
#include "errors/FehlerERL.h"
#include "errors/FehlerERLTexte.h"
#include "hilfen/NieGemeldet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace zepholt {
namespace {

bool Enthaelt(TextSicht text, TextSicht stueck) {
    return text.find(stueck) != TextSicht::npos;
}

TextSicht MeldungIn(const FehlerZeile& zeile, std::int32_t sprache) {
    return sprache == 1 ? zeile.Deutsch : sprache == 2 ? zeile.Franzoesisch : zeile.Italienisch;
}

template <typename Bedingung>
std::vector<std::int32_t> CodesMit(Bedingung bedingung) {
    std::vector<std::int32_t> codes;
    for (const FehlerZeile& zeile : FehlerTexte()) {
        if (bedingung(zeile))
            codes.push_back(zeile.Code);
    }
    return codes;
}

Text Ziffern(TextSicht text) {
    Text ziffern;
    std::copy_if(text.begin(), text.end(), std::back_inserter(ziffern),
                 [](char16_t zeichen) { return zeichen >= u'0' && zeichen <= u'9'; });
    return ziffern;
}

using Codes = std::vector<std::int32_t>;

// --- The table as a whole

TEST(FehlerTabelle, HasEveryRowOfEachRange) {
    std::map<std::int32_t, int> jeTausend;
    for (const FehlerZeile& zeile : FehlerTexte())
        ++jeTausend[zeile.Code / 1000];
    const std::map<std::int32_t, int> erwartet{{1, 7}, {2, 18}, {3, 68}, {4, 102}, {5, 44}, {6, 19}, {9, 1}};
    EXPECT_EQ(jeTausend, erwartet);
    EXPECT_EQ(FehlerTexte().size(), 259U);
}

TEST(FehlerTabelle, CodesAscendAndAreUnique) {
    const auto zeilen = FehlerTexte();
    for (std::size_t i = 1; i < zeilen.size(); ++i)
        EXPECT_LT(zeilen[i - 1].Code, zeilen[i].Code);
    EXPECT_EQ(zeilen.front().Code, 1001);
    EXPECT_EQ(zeilen.back().Code, 9999);
}

TEST(FehlerTabelle, SeventeenCodesAreWarnings) {
    const Codes erwartet{2032, 3003, 3104, 3105, 3202, 4231, 4603, 4616, 4711,
                         5212, 5225, 6202, 6211, 6302, 6303, 6901, 6902};
    EXPECT_EQ(CodesMit([](const FehlerZeile& z) { return z.Schwere == u"B"; }), erwartet);
}

TEST(FehlerTabelle, OnlyTheCodesOfTheCommandLineHaveNoSeverity) {
    const Codes erwartet{1001, 1002, 1003, 1004, 1005, 1006, 1007};
    EXPECT_EQ(CodesMit([](const FehlerZeile& z) { return z.Schwere.empty(); }), erwartet);
}

TEST(FehlerTabelle, AllOthersAreErrors) {
    EXPECT_EQ(CodesMit([](const FehlerZeile& z) { return z.Schwere == u"A"; }).size(), 235U);
}

TEST(FehlerTabelle, CodesOfRecordsWithoutAField) {
    const Codes erwartet{3001, 3002, 3003, 3208, 4711, 4721, 4731, 4741, 5263, 5264, 6101, 6102, 6201, 6202, 6211,
                         6212, 6213, 6221, 6231, 6232, 6301, 6302, 6303, 6304, 6305, 6306, 6401, 6901, 6902, 9999};
    EXPECT_EQ(CodesMit([](const FehlerZeile& z) { return z.Code >= 3000 && z.Feld.empty(); }), erwartet);
}

TEST(FehlerTabelle, CodesOfCommandLineAndFileHaveNoField) {
    EXPECT_EQ(CodesMit([](const FehlerZeile& z) { return z.Code < 3000 && !z.Feld.empty(); }), Codes{});
}

// --- The three languages side by side

TEST(FehlerMeldungen, NoneIsMissingInAnyLanguage) {
    for (const FehlerZeile& zeile : FehlerTexte()) {
        for (std::int32_t sprache = 1; sprache <= 3; ++sprache)
            EXPECT_GE(MeldungIn(zeile, sprache).size(), 4U) << zeile.Code << " language " << sprache;
    }
}

TEST(FehlerMeldungen, NoTwoLanguagesShareAText) {
    for (const FehlerZeile& zeile : FehlerTexte()) {
        EXPECT_NE(zeile.Deutsch, zeile.Franzoesisch) << zeile.Code;
        EXPECT_NE(zeile.Deutsch, zeile.Italienisch) << zeile.Code;
        EXPECT_NE(zeile.Franzoesisch, zeile.Italienisch) << zeile.Code;
    }
}

// 5342 has the German of 3252, but speaks of a field that is empty, 3252 of a group that is not defined.
TEST(FehlerMeldungen, EqualGermanMeansEqualTranslations) {
    std::map<TextSicht, FehlerZeile> ersteZeile;
    for (const FehlerZeile& zeile : FehlerTexte()) {
        if (zeile.Code == 5342)
            continue;
        const FehlerZeile& erste = ersteZeile.emplace(zeile.Deutsch, zeile).first->second;
        EXPECT_EQ(zeile.Franzoesisch, erste.Franzoesisch) << zeile.Code << " and " << erste.Code;
        EXPECT_EQ(zeile.Italienisch, erste.Italienisch) << zeile.Code << " and " << erste.Code;
    }
    EXPECT_EQ(FehlerText(5311, 2), FehlerText(5312, 2));
    EXPECT_EQ(FehlerText(4201, 3), FehlerText(4601, 3));
}

TEST(FehlerMeldungen, TheCatalogueIsCalledVLTInGermanOnly) {
    const Codes mitKatalog{1006, 4481, 4511, 5382, 6101, 6102, 6201, 6231, 6232, 6301, 6302, 6304, 6401, 6901};
    EXPECT_EQ(CodesMit([](const FehlerZeile& z) { return Enthaelt(z.Deutsch, u"VLT"); }), mitKatalog);
    EXPECT_EQ(CodesMit([](const FehlerZeile& z) { return Enthaelt(z.Franzoesisch, u"VLT"); }), Codes{});
    EXPECT_EQ(CodesMit([](const FehlerZeile& z) { return Enthaelt(z.Italienisch, u"VLT"); }), Codes{});
}

TEST(FehlerMeldungen, TheCatalogueIsCalledDXMInItalian) {
    const Codes mitKatalog = CodesMit([](const FehlerZeile& z) { return Enthaelt(z.Deutsch, u"VLT"); });
    EXPECT_EQ(CodesMit([](const FehlerZeile& z) { return Enthaelt(z.Italienisch, u"DXM"); }), mitKatalog);
    EXPECT_EQ(CodesMit([](const FehlerZeile& z) { return Enthaelt(z.Franzoesisch, u"DXM"); }), Codes{});
}

// 6231 is the one French message that speaks of a catalogue article without naming the catalogue.
TEST(FehlerMeldungen, TheCatalogueIsCalledBRQInFrench) {
    const Codes mitKatalog =
        CodesMit([](const FehlerZeile& z) { return Enthaelt(z.Deutsch, u"VLT") && z.Code != 6231; });
    EXPECT_EQ(CodesMit([](const FehlerZeile& z) { return Enthaelt(z.Franzoesisch, u"BRQ"); }), mitKatalog);
    EXPECT_EQ(CodesMit([](const FehlerZeile& z) { return Enthaelt(z.Italienisch, u"BRQ"); }), Codes{});
}

TEST(FehlerMeldungen, AbbreviationsOfTheTradeStayInTranslation) {
    for (const TextSicht kuerzel : {u"OGL", u"PSL", u"KAG", u"EKG", u"EGL", u"MLV", u"PRD", u"UbR", u"eCode", u"UTF-8",
                                    u"Unicode", u"E1S", u"SIA451", u"X0X"}) {
        const Codes deutsch = CodesMit([&](const FehlerZeile& z) { return Enthaelt(z.Deutsch, kuerzel); });
        EXPECT_NE(deutsch, Codes{});
        EXPECT_EQ(CodesMit([&](const FehlerZeile& z) { return Enthaelt(z.Franzoesisch, kuerzel); }), deutsch);
        EXPECT_EQ(CodesMit([&](const FehlerZeile& z) { return Enthaelt(z.Italienisch, kuerzel); }), deutsch);
    }
}

TEST(FehlerMeldungen, ValueAddedTaxHasItsNameInEachLanguage) {
    const Codes deutsch = CodesMit([](const FehlerZeile& z) { return Enthaelt(z.Deutsch, u"MWST"); });
    EXPECT_EQ(deutsch, (Codes{5261, 5262, 5263, 5264}));
    EXPECT_EQ(CodesMit([](const FehlerZeile& z) { return Enthaelt(z.Franzoesisch, u"TVA"); }), deutsch);
    EXPECT_EQ(CodesMit([](const FehlerZeile& z) { return Enthaelt(z.Italienisch, u"IVA"); }), deutsch);
}

TEST(FehlerMeldungen, NumbersAreTheSameInAllLanguages) {
    for (const FehlerZeile& zeile : FehlerTexte()) {
        EXPECT_EQ(Ziffern(zeile.Franzoesisch), Ziffern(zeile.Deutsch)) << zeile.Code;
        EXPECT_EQ(Ziffern(zeile.Italienisch), Ziffern(zeile.Deutsch)) << zeile.Code;
    }
}

TEST(FehlerMeldungen, TranslationsHaveNoOddBlanks) {
    for (const FehlerZeile& zeile : FehlerTexte()) {
        for (const TextSicht meldung : {zeile.Franzoesisch, zeile.Italienisch}) {
            EXPECT_FALSE(Enthaelt(meldung, u"  ")) << zeile.Code;
            EXPECT_NE(meldung.front(), u' ') << zeile.Code;
            EXPECT_NE(meldung.back(), u' ') << zeile.Code;
        }
    }
}

// The protocol drops what stands between ISO-8859-1's two halves in code page 1252, ligatures and dashes for instance;
// of those it keeps the typographic apostrophe only.
TEST(FehlerMeldungen, NoCharacterIsLostInTheProtocol) {
    for (const FehlerZeile& zeile : FehlerTexte()) {
        for (std::int32_t sprache = 1; sprache <= 3; ++sprache) {
            for (const char16_t zeichen : MeldungIn(zeile, sprache)) {
                const bool erhalten =
                    (zeichen >= 0x20 && zeichen < 0x7F) || (zeichen >= 0xA0 && zeichen <= 0xFF) || zeichen == u'\u2019';
                EXPECT_TRUE(erhalten) << zeile.Code << " language " << sprache;
            }
        }
    }
}

// French "univoque" means "of one meaning"; what occurs twice is not "unique".
TEST(FehlerMeldungen, FrenchSaysUniqueOfWhatOccursOnce) {
    const Codes eindeutig = CodesMit([](const FehlerZeile& z) { return Enthaelt(z.Deutsch, u"eindeutig"); });
    const auto nichtUnique = [](const FehlerZeile& z) {
        return Enthaelt(z.Franzoesisch, u"non unique") || Enthaelt(z.Franzoesisch, u"pas unique");
    };
    EXPECT_EQ(CodesMit(nichtUnique), eindeutig);
    EXPECT_EQ(CodesMit([](const FehlerZeile& z) { return Enthaelt(z.Franzoesisch, u"univoque"); }), Codes{});
}

// A field that is empty is missing; a code that no structure record defines does not exist.
TEST(FehlerMeldungen, AnEmptyFieldIsMissing) {
    for (const std::int32_t code : {3272, 4413, 4443, 5342}) {
        EXPECT_TRUE(Enthaelt(FehlerText(code, 2), u"manqu")) << code;
        EXPECT_TRUE(Enthaelt(FehlerText(code, 3), u"manca")) << code;
    }
    EXPECT_EQ(FehlerText(3214, 2), u"PSL (emplacement de l\u2019article): l\u2019OGL (articulation par ouvrage) "
                                   u"n\u2019existe pas");
}

// --- Messages to the letter. Characters beyond ASCII are escaped where a look-alike could slip in.

struct DreiTexte {
    std::int32_t Code;
    TextSicht Deutsch;
    TextSicht Franzoesisch;
    TextSicht Italienisch;
};

class FesteMeldung : public testing::TestWithParam<DreiTexte> {};

TEST_P(FesteMeldung, StandsToTheLetter) {
    const DreiTexte& erwartet = GetParam();
    EXPECT_EQ(FehlerText(erwartet.Code, 1), erwartet.Deutsch);
    EXPECT_EQ(FehlerText(erwartet.Code, 2), erwartet.Franzoesisch);
    EXPECT_EQ(FehlerText(erwartet.Code, 3), erwartet.Italienisch);
}

const DreiTexte FesteMeldungen[] = {
    {1006, u"Ungültiger Ordner der VLT-Katalogsdateien", u"Répertoire des fichiers BRQ non valable",
     u"Cartella contenente i files del Catalogo DXM non valida"},
    {2002, u"Die Schnittstellenversion ist nicht '451-92'", u"La version de l\u2019interface n\u2019est pas '451-92'",
     u"La versione di interfaccia non è '451-92'"},
    {2004, u"Die Schnittstellenversion ist nicht 'QVMX17'", u"La version d'interface n'est pas 'QVMX17'",
     u"La versione d'interfaccia non è 'QVMX17'"},
    {4231, u"Als Kennzeichnung ecodevis-Position nur 'E' oder 'e' zulässig",
     u"Seuls les codes 'E' ou 'e' sont autorisés pour la classification des articles eco",
     u"Per la designazione delle posizioni eco sono ammessi solo i codici 'E' o 'e'"},
    {4504, u"Mengeneinheit ist nicht zulässig gemäss UbR",
     u"L\u2019unité de métré n\u2019est pas conforme à l\u2019UbR", u"Unità di misura non permessa secondo l'UbR"},
    {4511, u"Mengeneinheit veraltet (ab VLT, Versionsjahr 2017)",
     u"Unité de métré obsolète (à partir du BRQ, année de version 2017)",
     u"Unità di misura obsoleta (dall'anno di versione DXM 2017)"},
    {6101, u"Kapitel/Kapitelversion im VLT nicht vorhanden oder nicht installiert",
     u"Le chapitre et la version indiquée ne figurent pas dans le BRQ ou n\u2019ont pas été installés",
     u"Capitolo e relativa versione nel DXM mancanti o non installati"},
    {6231, u"Die Position XXX.090 ist mit vorhandener VLT-Position XXX.001 nicht erlaubt",
     u"L'article XXX.090 n'est pas autorisé lorsqu'un article XXX.001 est présent",
     u"La posizione XXX.090 non è consentita se esiste già una posizione DXM XXX.001"},
    {6901, u"Angabe von unveränderbaren Suchtitel im VLT ist nicht zulässig (ausser 'Spezifikation' und 'Uebrige')",
     u"Les mots-clés non modifiables du BRQ ne peuvent pas être modifiés (sauf 'Spécifications' et 'Divers')",
     u"Non è permesso modificare le voci di ricerca inalterabili del DXM (tranne 'Specifiche' e 'Diversi')"},
};

INSTANTIATE_TEST_SUITE_P(FehlerMeldungen, FesteMeldung, testing::ValuesIn(FesteMeldungen),
                         [](const auto& fall) { return std::to_string(fall.param.Code); });

struct DeutscherText {
    std::int32_t Code;
    TextSicht Deutsch;
};

class DeutscheMeldung : public testing::TestWithParam<DeutscherText> {};

TEST_P(DeutscheMeldung, StandsToTheLetter) {
    EXPECT_EQ(FehlerText(GetParam().Code, 1), GetParam().Deutsch);
}

const DeutscherText DeutscheMeldungen[] = {
    {1001, u"Allgemeines Problem bei den Aufrufparametern"},
    {1005, u"Ung\u00FCltige Fehlerdatei oder die Fehlerdatei existiert bereits"},
    {2003, u"Unbekannter Sprachcode (1=\u2019de\u2019, 2=\u2019fr\u2019, 3=\u2019it\u2019)"},
    {2007, u"Die Austauschdatei hat eine fehlerhafte UTF-8-Kodierung"},
    {2041, u"Undefinierter Recordtyp in der Datei (z.B. D0, G9 oder Leerzeile)"},
    {3211, u"Gliederungsnummer ist nicht '002'"},
    {3251, u"Gliederungsnummer ist nicht '005'"},
    {3284, u"Das Vorzeichen f\u00FCr den Preis ist angegeben, aber nicht '+' oder '-'"},
    {4101, u"Kapitelnummer ausserhalb Nummernbereich von 100..799, 900..999"},
    {4308, u"Variablen sind nur in Unterpositionen, Unterpositions-Untergruppen und Unterpositions-Gruppen erlaubt"},
    {4414, u"Bei Angabe PSL (Positionslage) darf  OGL (Objektgliederung) kein Jokerzeichen besitzen"},
    {4461, u"Angabe nicht zul\u00E4ssig ('*' oder keine Angabe)"},
    {4521, u"Ung\u00FCltige Preisart (A,F,I,N,R)"},
    {4731, u"Vorbemerkungszuordnungen nur in Endknoten erlaubt (z.B. Kap. 211, Pos. 140, 160, etc.)"},
    {5232, u"Bezugsbetrag zwingend wenn Vorzeichen Bezugsbetrag vorhanden "},
    {5243, u"Vorzeichen f\u00FCr den Prozentwert zwingend, wenn Prozentwert vorhanden "},
    {5313, u"Bei Angabe der PSL (Positionslage) darf die OGL (Objektgliederung) kein Jokerzeichen besitzen"},
    {5382, u"Das Jokerzeichen '*' ist im VLT-System nicht mehr m\u00F6glich"},
    {9999, u"Unbekannter Fehler, z.B. Programmfehler"},
};

INSTANTIATE_TEST_SUITE_P(FehlerMeldungen, DeutscheMeldung, testing::ValuesIn(DeutscheMeldungen),
                         [](const auto& fall) { return std::to_string(fall.param.Code); });

// --- Lookups

TEST(FehlerText, GivesTheLanguageAskedFor) {
    EXPECT_EQ(FehlerText(4201, 1), u"Kapitel nicht vorhanden");
    EXPECT_EQ(FehlerText(4201, 2), u"Chapitre inexistant");
    EXPECT_EQ(FehlerText(4201, 3), u"Capitolo inesistente");
}

TEST(FehlerText, FallsBackToGermanInAnUnknownLanguage) {
    for (const std::int32_t sprache : {4, 0, -1})
        EXPECT_EQ(FehlerText(4101, sprache), u"Kapitelnummer ausserhalb Nummernbereich von 100..799, 900..999");
}

TEST(FehlerText, IsEmptyForACodeWithoutARow) {
    for (std::int32_t sprache = 0; sprache <= 4; ++sprache)
        EXPECT_EQ(FehlerText(4100, sprache), u"");
}

TEST(FehlerLesen, MatchesTheWholeCodeOnly) {
    for (const std::int32_t code : {4100, 410, 101, 41, 41010, 14101, -4101})
        EXPECT_FALSE(FehlerLesen(code)) << code;
    EXPECT_TRUE(FehlerLesen(4101));
}

TEST(FehlerLesen, GivesTheResultOfAPlainScanForEveryCode) {
    for (std::int32_t code = -10; code <= 10010; ++code) {
        std::optional<FehlerZeile> erwartet;
        for (const FehlerZeile& zeile : FehlerTexte()) {
            if (zeile.Code == code)
                erwartet = zeile;
        }
        ASSERT_TRUE(FehlerLesen(code) == erwartet) << code;
    }
}

TEST(FehlerText, GivesTheTextOfTheRowForEveryCodeAndLanguage) {
    for (const FehlerZeile& zeile : FehlerTexte()) {
        for (std::int32_t sprache = 1; sprache <= 3; ++sprache)
            ASSERT_EQ(FehlerText(zeile.Code, sprache), MeldungIn(zeile, sprache)) << zeile.Code;
    }
}

TEST(FehlerSchwere, TellsErrorsFromWarnings) {
    EXPECT_EQ(FehlerSchwere(2031), u"A");
    EXPECT_EQ(FehlerSchwere(2032), u"B");
}

TEST(FehlerSchwere, IsEmptyForTheCommandLineAndForACodeWithoutARow) {
    EXPECT_EQ(FehlerSchwere(1001), u"");
    EXPECT_TRUE(FehlerBekannt(1001));
    EXPECT_EQ(FehlerSchwere(4100), u"");
}

struct FeldFall {
    std::int32_t Code;
    TextSicht Feld;
};

TEST(FehlerFeld, GivesTheReferenceAsItStands) {
    const FeldFall faelle[] = {
        {3104, u"Z:21-22"}, {3203, u"B0"},      {3277, u"B9:8"},   {3278, u"B9:9"},     {3291, u"B5:24c-d"},
        {4101, u"G1:2a"},   {4231, u"G2/3:12"}, {4251, u"X4"},     {4252, u"X/P"},      {4281, u"P1-P5"},
        {4481, u"G4"},      {4521, u"G5/6:17"}, {4603, u"G6"},     {4624, u"G6:17/18"}, {4692, u"eG6"},
        {4693, u"eG6:13"},  {4694, u"eG6:4/5"}, {4742, u"G6:24a"}, {5103, u"C0:15-16"}, {5241, u"C1:20a"},
        {5361, u"C5:3a"},   {3107, u"Z:24a"},   {3226, u"B1:24h"}, {3101, u"A:13"},
    };
    for (const FeldFall& fall : faelle)
        EXPECT_EQ(FehlerFeld(fall.Code), fall.Feld) << fall.Code;
}

// The column of 2032 comes with each report.
TEST(FehlerFeld, IsEmptyWhenTheCodeNamesNoFieldOrHasNoRow) {
    EXPECT_EQ(FehlerFeld(2032), u"");
    EXPECT_TRUE(FehlerBekannt(2032));
    EXPECT_EQ(FehlerFeld(4100), u"");
}

TEST(FehlerBekannt, KnowsExactlyTheRows) {
    EXPECT_TRUE(FehlerBekannt(1001));
    EXPECT_TRUE(FehlerBekannt(4101));
    EXPECT_TRUE(FehlerBekannt(9999));
    for (const std::int32_t code : {0, 1000, 4100, 4105, 9998, 10000, -1})
        EXPECT_FALSE(FehlerBekannt(code)) << code;
}

// --- Codes that no run reports

// 49 of the 259: all others are the expected finding of some case.
TEST(NieGemeldet, TheListIsExact) {
    Codes nie;
    for (const hilfen::NieGemeldet& code : hilfen::NieGemeldeteCodes())
        nie.push_back(code.Code);
    EXPECT_TRUE(std::ranges::is_sorted(nie));
    const Codes erwartet{1001, 1002, 1003, 1004, 1005, 1006, 1007, 3104, 3105, 3111, 3112, 3224, 3234,
                         3271, 3272, 3273, 3274, 3275, 3276, 3277, 3278, 3279, 3280, 3281, 3282, 3283,
                         3284, 3285, 3286, 4211, 4251, 4261, 4281, 4305, 4306, 4412, 4422, 4432, 4442,
                         4452, 4492, 4496, 4603, 4691, 6102, 6306, 6901, 6902, 9999};
    EXPECT_EQ(nie, erwartet);
}

// The list of all codes names them all the same.
TEST(NieGemeldet, EachHasItsRow) {
    for (const hilfen::NieGemeldet& code : hilfen::NieGemeldeteCodes())
        EXPECT_TRUE(FehlerBekannt(code.Code)) << code.Code;
}

} // namespace
} // namespace zepholt
