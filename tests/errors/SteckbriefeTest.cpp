// The profiles of the codes beside the error table: the same codes in the same order, and what each must hold against
// what is known of the code otherwise.
#include "errors/Steckbriefe.h"
#include "errors/FehlerERLTexte.h"
#include "hilfen/NieGemeldet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace zepholt {
namespace {

using Codes = std::vector<std::int32_t>;

template <typename Bedingung>
Codes CodesMit(Bedingung bedingung) {
    Codes codes;
    for (const Steckbrief& brief : Steckbriefe()) {
        if (bedingung(brief))
            codes.push_back(brief.Code);
    }
    return codes;
}

const Steckbrief& BriefVon(std::int32_t code) {
    return *std::ranges::find(Steckbriefe(), code, &Steckbrief::Code);
}

TEST(SteckbriefeTest, EveryCodeOfTheTableHasOneInItsOrder) {
    Codes tabelle;
    for (const FehlerZeile& zeile : FehlerTexte()) {
        tabelle.push_back(zeile.Code);
    }
    EXPECT_EQ(CodesMit([](const Steckbrief&) { return true; }), tabelle);
}

TEST(SteckbriefeTest, TheCodesThatNoRunReportsAreThoseOfTheList) {
    Codes nie;
    for (const hilfen::NieGemeldet& code : hilfen::NieGemeldeteCodes()) {
        if (code.Grund != hilfen::NieWeil::Kommandozeile)
            nie.push_back(code.Code);
    }
    EXPECT_EQ(CodesMit([](const Steckbrief& brief) { return brief.Gemeldet != Meldbar::Ja; }), nie);
}

TEST(SteckbriefeTest, TheReasonWhyACodeIsNeverReportedIsThatOfTheList) {
    for (const hilfen::NieGemeldet& code : hilfen::NieGemeldeteCodes()) {
        using enum hilfen::NieWeil;
        const Meldbar grund = code.Grund == Kommandozeile                                ? Meldbar::Ja
                              : code.Grund == OhneRevision                               ? Meldbar::NichtGetestet
                              : code.Grund == KeinePruefung || code.Grund == NurImFilter ? Meldbar::OhnePruefung
                                                                                         : Meldbar::NieErfuellt;
        EXPECT_EQ(BriefVon(code.Code).Gemeldet, grund) << code.Code;
    }
}

TEST(SteckbriefeTest, CodesOfOneInterfaceOnly) {
    EXPECT_EQ(CodesMit([](const Steckbrief& brief) { return brief.Dateien == Dateiart::Alt; }),
              (Codes{2002, 3101, 3219, 3249, 3259, 3269, 4471, 4621, 4683, 5371}));
    EXPECT_EQ(CodesMit([](const Steckbrief& brief) { return brief.Dateien == Dateiart::Neu; }),
              (Codes{2004, 2005, 2007, 2008, 3003, 3106, 3107, 3203, 3205, 3208, 3226, 3236, 3292, 3293,
                     3294, 3296, 3297, 3298, 4217, 4252, 4282, 4311, 4321, 4481, 4521, 4617, 4624, 4674,
                     4677, 4742, 5261, 5262, 5263, 5264, 5381, 5382, 6212, 6213, 6231, 6232}));
}

TEST(SteckbriefeTest, WhatEndsTheRun) {
    EXPECT_EQ(CodesMit([](const Steckbrief& brief) { return brief.Haelt == Halt::Lauf; }),
              (Codes{2001, 2002, 2003, 2004, 2005, 2006, 2007, 2008, 2011, 2012, 2013, 2014, 2015, 2021, 2022}));
    EXPECT_EQ(CodesMit([](const Steckbrief& brief) { return brief.Haelt == Halt::Kapitelvergleich; }), Codes{6101});
    EXPECT_EQ(CodesMit([](const Steckbrief& brief) { return brief.Haelt == Halt::Positionsvergleich; }), Codes{6201});
}

TEST(SteckbriefeTest, FindingsWithoutALine) {
    EXPECT_EQ(CodesMit([](const Steckbrief& brief) { return brief.Ort == Fundort::OhneZeile; }),
              (Codes{2007, 2041, 3205}));
    EXPECT_EQ(CodesMit([](const Steckbrief& brief) { return brief.Ort == Fundort::NurPosition; }),
              (Codes{4711, 4721, 4731, 4741, 4742, 6101, 6201, 6202, 6211, 6212,
                     6213, 6221, 6231, 6232, 6301, 6302, 6303, 6304, 6305, 6401}));
}

// A code follows from another only where some kind of file has both.
TEST(SteckbriefeTest, FollowersComeInAFileThatHasTheCodeToo) {
    for (const Steckbrief& brief : Steckbriefe()) {
        for (const std::int32_t folge : brief.Folgen) {
            if (folge == 0)
                continue;
            const Dateiart andere = BriefVon(folge).Dateien;
            EXPECT_TRUE(andere == brief.Dateien || andere == Dateiart::Beide || brief.Dateien == Dateiart::Beide)
                << brief.Code << " and " << folge;
        }
    }
}

} // namespace
} // namespace zepholt
