// The special functions: the list of chapters and the list of codes, byte for byte.
#include "run/Spezialfunktionen.h"

#include "errors/FehlerERLTexte.h"
#include "hilfen/Katalogtest.h"

#include <gtest/gtest.h>

namespace zepholt {
namespace {

using namespace hilfen;

constexpr std::string_view Deklaration = R"(<?xml version="1.0" encoding="iso-8859-1"?>)";

class SpezialfunktionenTest : public Katalogtest {
protected:
    // What the function writes in a language in a run of its own; empty when it writes nothing.
    std::string Ausgabe(TextSicht name, std::int32_t sprache) {
        Beginne(0);
        std::filesystem::remove(Ordner().Pfad() / "liste.xml");
        EXPECT_EQ(SpezialfunktionAusfuehren(name, sprache, Ordner().TextPfad("liste.xml"), testDaten.Katalog), 0);
        return Ordner().Hat("liste.xml") ? Ordner().Lies("liste.xml") : std::string();
    }

    // A chapter file with the given attributes of its root.
    void SchreibeKopf(const std::string& datei, const std::string& attribute) {
        Ordner().Schreibe(datei, Kapiteldatei("", "<Kapitel " + attribute + "></Kapitel>"));
    }
};

std::size_t Zaehle(const std::string& text, std::string_view suche) {
    std::size_t anzahl = 0;
    for (std::size_t stelle = text.find(suche); stelle != std::string::npos; stelle = text.find(suche, stelle + 1)) {
        ++anzahl;
    }
    return anzahl;
}

std::string Rahmen(const std::string& elemente) {
    return std::string(Deklaration) + "<ZEPHOLT><Worksections>" + elemente + "</Worksections></ZEPHOLT>";
}

TEST_F(SpezialfunktionenTest, OtherNamesDoNothing) {
    for (const TextSicht name : {u"2", u"", u"11", u"1 ", u" 1", u"09", u"*1"}) {
        EXPECT_EQ(Ausgabe(name, 1), "") << Text(name).size();
    }
}

// --- The list of chapters

TEST_F(SpezialfunktionenTest, TheListHoldsTheChaptersOfTheLanguage) {
    SchreibeKopf("N131241.qvm", R"(N="241" V="2013" S="1" A="7" T="Titel" Z="Zusatz")");
    SchreibeKopf("N132241.qvm", R"(N="241" V="2013" S="2" A="7" T="Titre" Z="Texte")");
    SchreibeKopf("N981102.qvm", R"(N="102" V="1998" S="1" A="-3" T="Anderer" Z="")");
    EXPECT_EQ(Ausgabe(u"1", 1), Rahmen(R"(<Worksection N="241" V="2013" A="7" T="Titel" Z="Zusatz"/>)"
                                       R"(<Worksection N="102" V="1998" A="-3" T="Anderer"/>)"));
    EXPECT_EQ(Ausgabe(u"1", 2), Rahmen(R"(<Worksection N="241" V="2013" A="7" T="Titre" Z="Texte"/>)"));
}

TEST_F(SpezialfunktionenTest, WithoutAChapterOfTheLanguageTheFrameIsEmpty) {
    SchreibeKopf("N131241.qvm", R"(N="241" V="2013" S="1" A="7" T="Titel" Z="Zusatz")");
    EXPECT_EQ(Ausgabe(u"1", 3), Rahmen(""));
}

TEST_F(SpezialfunktionenTest, ACollectedFileThatIsGoneGivesTheEmptyFrame) {
    Beginne(0);
    testDaten.Katalog = Ordner().TextPfad("k.vlt");
    testDaten.KatalogArt = 2;
    SpezialfunktionAusfuehren(u"1", 1, Ordner().TextPfad("liste.xml"), testDaten.Katalog);
    EXPECT_EQ(Ordner().Lies("liste.xml"), Rahmen(""));
}

TEST_F(SpezialfunktionenTest, AFailureOfTheListGivesTheEmptyFrame) {
    SchreibeKopf("N131241.qvm", R"(N="241" V="2013" S="1" A="7" T="Titel" Z="Zusatz")");
    SchreibeKopf("N131abc.qvm", R"(N="1" V="2013" S="1" A="7" T="Titel" Z="Zusatz")");
    EXPECT_EQ(Ausgabe(u"1", 1), Rahmen(""));
}

TEST_F(SpezialfunktionenTest, AChapterWithoutACompleteTitleHasEmptyColumns) {
    Ordner().Schreibe("N131241.qvm", Kapiteldatei("", "<Kapitel T=\"" + std::string(1000, 'x') + "\"></Kapitel>"));
    EXPECT_EQ(Ausgabe(u"1", 1), Rahmen(R"(<Worksection N="241" V="2013" A="" T=""/>)"));
}

TEST_F(SpezialfunktionenTest, AChapterWithADamagedTableIsAnElementOfEmptyColumns) {
    SchreibeKopf("N131241.qvm", R"(N="241" V="2013" S="1" A="7" T="Titel" Z="")");
    Ordner().Schreibe("N131242.qvm", Kapiteldatei("\x7F"
                                                  "falsch\n",
                                                  R"(<Kapitel N="242" V="2013" S="1" A="7" T="Titel"></Kapitel>)"));
    EXPECT_EQ(Ausgabe(u"1", 1), Rahmen(R"(<Worksection N="241" V="2013" A="7" T="Titel"/>)"
                                       R"(<Worksection N="" V="" A="" T=""/>)"));
}

TEST_F(SpezialfunktionenTest, FurtherColumnsAreDropped) {
    const std::string_view tabelle = "\x01\t\n"; // a tab can come from an abbreviation only
    const std::string_view rumpf = "<Kapitel N=\"241\" V=\"2013\" S=\"1\" A=\"7\" T=\"Titel\" "
                                   "Z=\"fuenf\x01sechs\x01sieben\"></Kapitel>";
    Ordner().Schreibe("N131241.qvm", Kapiteldatei(tabelle, rumpf));
    EXPECT_EQ(Ausgabe(u"1", 1), Rahmen(R"(<Worksection N="241" V="2013" A="7" T="Titel" Z="fuenf"/>)"));
}

TEST_F(SpezialfunktionenTest, TextsAreEscapedAsTheyStandInTheFile) {
    SchreibeKopf("N131241.qvm", "N=\"241\" V=\"2013\" S=\"1\" A=\"7\" T=\"l\x92\xE9t\xE9 d'or &amp; <\" Z=\"\"");
    EXPECT_EQ(Ausgabe(u"1", 1),
              Rahmen("<Worksection N=\"241\" V=\"2013\" A=\"7\" T=\"l&apos;\xE9t\xE9 d&apos;or &amp;amp; &lt;\"/>"));
}

// The head is read like a whole chapter, with a declaration in front: what could end one is text in a title.
TEST_F(SpezialfunktionenTest, ATitleMayHoldWhatEndsADeclaration) {
    SchreibeKopf("N131241.qvm", R"(N="241" V="2013" S="1" A="7" T="Was?>b" Z="")");
    EXPECT_EQ(Ausgabe(u"1", 1), Rahmen(R"(<Worksection N="241" V="2013" A="7" T="Was?&gt;b"/>)"));
}

// --- The list of codes

TEST_F(SpezialfunktionenTest, TheListHoldsEveryRowOfTheTable) {
    const std::string liste = Ausgabe(u"9", 2);
    const std::string anfang = std::string(Deklaration) + "<ZEPHOLT><Errorlist><Error N=\"1001\" W=\"\" F=\"\" T=\"";
    EXPECT_TRUE(liste.starts_with(anfang)) << liste.substr(0, 200);
    EXPECT_TRUE(liste.ends_with("\"/></Errorlist></ZEPHOLT>"));
    EXPECT_EQ(Zaehle(liste, "<Error "), 259U);
    EXPECT_GT(liste.find("<Error N=\"9999\" "), liste.rfind("<Error N=\"6902\" "));
    EXPECT_EQ(liste.rfind("<Error "), liste.find("<Error N=\"9999\" "));
    std::size_t stelle = 0;
    for (const FehlerZeile& zeile : FehlerTexte()) { // in their order
        stelle = liste.find("<Error N=\"" + std::to_string(zeile.Code) + "\" ", stelle);
        ASSERT_NE(stelle, std::string::npos) << zeile.Code;
    }
}

TEST_F(SpezialfunktionenTest, EachLanguageHasItsTexts) {
    EXPECT_NE(Ausgabe(u"9", 1).find(R"(<Error N="4221" W="A" F="G2:3" T="Position bereits vorhanden"/>)"),
              std::string::npos);
    EXPECT_EQ(Ausgabe(u"9", 2).find("Position bereits vorhanden"), std::string::npos);
    EXPECT_EQ(Ausgabe(u"9", 3).find("Position bereits vorhanden"), std::string::npos);
}

TEST_F(SpezialfunktionenTest, ATypographicApostropheIsWrittenAsAnApostrophe) {
    const std::string franzoesisch = Ausgabe(u"9", 2);
    EXPECT_GT(Zaehle(franzoesisch, "d&apos;"), 0U);
    EXPECT_EQ(Zaehle(franzoesisch, "&#"), 0U); // no character is left that the encoding hasn't
    const std::string liste = Ausgabe(u"9", 1);
    EXPECT_NE(liste.find("Unbekannter Sprachcode (1=&apos;de&apos;, 2=&apos;fr&apos;, 3=&apos;it&apos;)"),
              std::string::npos);
    EXPECT_EQ(liste.find("&#8217;"), std::string::npos);
}

TEST_F(SpezialfunktionenTest, AListThatCannotBeWrittenGivesNoSign) {
    EXPECT_EQ(SpezialfunktionAusfuehren(u"9", 1, Ordner().TextPfad("fehlt/liste.xml"), testDaten.Katalog), 0);
    EXPECT_TRUE(Ordner().Leer());
    EXPECT_EQ(FehlerAnzahl(), 0);
}

} // namespace
} // namespace zepholt
