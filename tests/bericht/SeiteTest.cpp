// The fold-outs of the page: what a code means, beside its finding.
#include "bericht/Seite.h"
#include "Berichtstest.h"
#include "bericht/Ausgabe.h"
#include "bericht/Erklaerung.h"
#include "hilfe/Codeseiten.h"

namespace zepholt::bericht {
namespace {

std::int64_t Anzahl(std::string_view text, std::string_view teil) {
    std::int64_t anzahl = 0;
    for (std::size_t ort = text.find(teil); ort != std::string_view::npos; ort = text.find(teil, ort + 1)) {
        ++anzahl;
    }
    return anzahl;
}

class SeiteTest : public Berichtstest {
protected:
    std::string Seite(const std::vector<std::string>& befunde, Sprache sprache) {
        const Austauschdatei datei = Datei({A, G("211001", "6"), G("211002", "6"), Z});
        const Protokoll protokoll = ProtokollMit(befunde);
        const std::string pfad = "seite.html";
        Ausgabe ausgabe(m_ordner.TextPfad(pfad));
        SeiteSchreiben(protokoll, datei, {sprache, "", ""}, ausgabe);
        ausgabe.Abschliessen();
        return m_ordner.Lies(pfad);
    }
};

constexpr const char* Erster = R"(L="2" I="241.211.001" N="4611" E="A" F="G6:13")";
constexpr const char* Zweiter = R"(L="3" I="241.211.002" N="4611" E="A" F="G6:13")";

TEST_F(SeiteTest, TheFirstFindingOfACodeUnfoldsInThePagesLanguage) {
    const std::string seite = Seite({Erster, Zweiter}, Sprache::Franzoesisch);
    const std::string falte =
        "<details class=\"w\"><summary>Que veut dire 4611 ?</summary><h4>Ce qui est contrôlé</h4>";
    EXPECT_EQ(Anzahl(seite, falte), 1);
    EXPECT_LT(seite.find("id=\"c4611\""), seite.find(falte));
    EXPECT_LT(seite.find(falte), seite.find("241.211.002"));
    EXPECT_NE(seite.find("<h4>Comment corriger</h4>"), std::string::npos);
}

TEST_F(SeiteTest, TheOtherLanguagesStandInTemplatesForTheCodesOfThePageOnly) {
    const std::string seite = Seite({Erster, Zweiter}, Sprache::Franzoesisch);
    EXPECT_EQ(Anzahl(seite, "<template "), 2);
    EXPECT_EQ(Anzahl(seite, "<template data-falte=\"4611 0\"><h4>Was geprüft wird</h4>"), 1);
    EXPECT_EQ(Anzahl(seite, "<template data-falte=\"4611 2\"><h4>Che cosa si controlla</h4>"), 1);
}

TEST_F(SeiteTest, ACodeThatNobodyKnowsHasNothingToUnfold) {
    const std::string seite = Seite({R"(L="2" N="4610" E="A")"}, Sprache::Deutsch);
    EXPECT_EQ(Anzahl(seite, "id=\"c4610\""), 1);
    EXPECT_EQ(Anzahl(seite, "<details class=\"w\">"), 0);
    EXPECT_EQ(Anzahl(seite, "<template "), 0);
}

TEST_F(SeiteTest, ACodeThatThePlainPartHasNoRoomForIsInTheTemplatesInEachLanguage) {
    std::vector<std::string> befunde;
    for (int code = 0; code < 2000; ++code) {
        befunde.push_back("N=\"" + std::to_string(8000 + code) + "\" E=\"A\"");
    }
    befunde.push_back(R"(N="9999" E="A")");
    befunde.erase(befunde.end() - 2); // 9999 is the last one of 2,000: it has room
    EXPECT_EQ(Anzahl(Seite(befunde, Sprache::Deutsch), "<template data-falte=\"9999 "), 2);
    befunde.insert(befunde.begin(), R"(N="7999" E="A")");
    EXPECT_EQ(Anzahl(Seite(befunde, Sprache::Deutsch), "<template data-falte=\"9999 "), 3);
}

// The texts become elements of the page: nothing in them may load, run, style or lead anywhere.
TEST_F(SeiteTest, WhatUnfoldsIsPlainTextInAFewElements) {
    std::int32_t codes = 0;
    for (std::int32_t code = 0; code <= 9999; ++code) {
        codes += hilfe::CodeseiteLesen(code) != nullptr ? 1 : 0;
        for (const Sprache sprache : {Sprache::Deutsch, Sprache::Franzoesisch, Sprache::Italienisch}) {
            std::string_view text = Faltteil(code, sprache);
            EXPECT_EQ(text.empty(), hilfe::CodeseiteLesen(code) == nullptr) << code;
            for (std::size_t ort = text.find('<'); ort != std::string_view::npos; ort = text.find('<')) {
                text.remove_prefix(ort + (text[ort + 1] == '/' ? 2 : 1));
                const std::string_view element = text.substr(0, text.find('>'));
                EXPECT_TRUE(element == "h4" || element == "p" || element == "ol" || element == "ul" ||
                            element == "li" || element == "code")
                    << code << ": " << element;
            }
        }
    }
    EXPECT_EQ(codes, 259);
}

} // namespace
} // namespace zepholt::bericht
