#include "bericht/Feldort.h"
#include "bericht/Austauschdatei.h"
#include "bericht/Feldangabe.h"
#include "bericht/Zeichen.h"
#include "errors/FehlerERLTexte.h"
#include "run/NeuerLauf.h"

#include <gtest/gtest.h>

namespace zepholt::bericht {
namespace {

class FeldortTest : public testing::Test {
protected:
    FeldortTest() {
        NeuerLauf();
        SchnittstelleSetzen(true);
    }

    static std::string Ort(std::string_view feld, std::string_view typ) {
        return Ortskuerzel(FeldortVon(feld, LayoutsDesTyps(typ)));
    }
};

// Rows of the layout count from 0: G6 has 1, 2a, 3, 4, 5, 6, 7, 8, 9, 10, 11, 13, 14, 15, 17, 18, 19, 20, ...
TEST_F(FeldortTest, EachFormOfAReferenceFindsItsFields) {
    struct Zeile {
        const char* Feld;
        const char* Typ;
        const char* Ort;
    };
    const Zeile zeilen[] = {
        {"G6:13", "G6", "11"},   {"G6:17/18", "G6", "14,15"}, {"eG6:4/5", "G6", "3,4"}, {"eG6:13", "G6", "11"},
        {"G2/3:12", "G2", "4"},  {"G2/3:12", "G3", "6"},      {"G5/6:17", "G5", "5"},   {"G5/6:17", "G6", "14"},
        {"Z:24a", "Z", "12"},    {"A:8", "A", "6"},           {"A:21-22", "A", "15"},   {"C1:15", "C1", "9"},
        {"B5:24c-d", "B5", "6"}, {"B2:3", "B2", "5"},         {"X/P", "X4", "3"},       {"X/P", "P2", "3"},
        {"B0", "B0", "*"},       {"eG6", "G6", "*"},          {"100", "G5", "@100"},    {"257", "", "@257"},
        {"G6:13", "G5", ""},     {"G2/3:12", "G4", ""},       {"X/P", "G4", ""},        {"G6:99", "G6", ""},
        {"Z:24j", "Z", ""},      {"A:11", "A", "7"},          {"", "G6", ""},           {"0", "G6", ""},
    };
    for (const Zeile& zeile : zeilen) {
        EXPECT_EQ(Ort(zeile.Feld, zeile.Typ), zeile.Ort) << zeile.Feld << " in " << zeile.Typ;
    }
}

// Every reference of the error table has its place in a record of its type. B9 stands in no file, and attachments P1 to
// P5 are never reported as such.
TEST_F(FeldortTest, EveryReferenceOfTheErrorTableIsFound) {
    for (const FehlerZeile& zeile : FehlerTexte()) {
        const std::string feld = Utf8(zeile.Feld);
        if (feld.empty() || feld.starts_with("B9") || feld == "P1-P5") {
            continue;
        }
        EXPECT_NE(Ort(feld, TypAus(feld)), "") << zeile.Code << " " << feld;
    }
}

TEST_F(FeldortTest, TheOldInterfaceHasNoPlaceForNewFields) {
    EXPECT_NE(Ort("G6:24f", "G6"), "");
    EXPECT_NE(Ort("B7:2a", "B7"), "");
    SchnittstelleSetzen(false);
    EXPECT_EQ(Ort("G6:24f", "G6"), "");
    EXPECT_EQ(Ort("B7:2a", "B7"), "");
}

TEST_F(FeldortTest, AFieldIsNamedWithItsColumns) {
    const Feldangabe eines = FeldangabeVon("G6:13", {}, Sprache::Deutsch);
    EXPECT_EQ(eines.Name, "Mengenart");
    EXPECT_EQ(eines.Von, 44);
    EXPECT_EQ(eines.Bis, 44);

    const Feldangabe zwei = FeldangabeVon("G6:17/18", {}, Sprache::Italienisch);
    EXPECT_EQ(zwei.Name, "Genere di prezzo, Segno del prezzo");
    EXPECT_EQ(zwei.Von, 61);
    EXPECT_EQ(zwei.Bis, 62);

    const Feldangabe spalte = FeldangabeVon("100", LayoutsDesTyps("G5"), Sprache::Deutsch);
    EXPECT_EQ(spalte.Name, "");
    EXPECT_EQ(spalte.Von, 100);

    EXPECT_EQ(FeldangabeVon("B0", {}, Sprache::Deutsch).Von, 0);
    EXPECT_EQ(FeldangabeVon("", {}, Sprache::Deutsch).Name, "");
    EXPECT_EQ(FeldangabeVon("<b>", {}, Sprache::Deutsch).Name, "");
}

} // namespace
} // namespace zepholt::bericht
