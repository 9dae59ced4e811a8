#include "bericht/Recordbild.h"
#include "bericht/Austauschdatei.h"

#include <gtest/gtest.h>

namespace zepholt::bericht {
namespace {

using testing::Test;

std::string Bild(TextSicht zeile, std::string_view feld, bool warnung = false) {
    const Recordbefund befunde[] = {{feld, warnung}};
    return Feldkaesten(zeile, befunde, Sprache::Deutsch);
}

class RecordbildTest : public Test {
protected:
    RecordbildTest() { SchnittstelleSetzen(false); }

    static Text Zeile(std::initializer_list<std::pair<std::size_t, TextSicht>> felder) {
        Text zeile(256, u' ');
        for (const auto& [spalte, text] : felder) {
            zeile.replace(spalte - 1, text.size(), text);
        }
        return zeile;
    }
    const Text G5 = Zeile({{1, u"G"}, {2, u"241"}, {8, u"211001"}, {42, u"5"}, {59, u"m2"}, {100, u"irgend was"}});
};

TEST_F(RecordbildTest, TheFieldIsMarkedAndNamed) {
    EXPECT_EQ(Bild(G5, "G5:16"), "<dl class=\"r\"><div><dt>Kapitel <small>G5:2a · 2–4</small></dt><dd>241</dd></div>"
                                 "<div><dt>Position <small>G5:3 · 8–13</small></dt><dd>211001</dd></div>"
                                 "<div class=\"A\"><dt><span class=\"v\">Fehler: </span>Mengeneinheit <small>G5:16 · "
                                 "59–60</small></dt><dd>m2</dd></div></dl>");
    EXPECT_NE(Bild(G5, "G5:16", true).find("<div class=\"B\"><dt><span class=\"v\">Warnung: </span>Mengeneinheit"),
              std::string::npos);
}

TEST_F(RecordbildTest, AnEmptyFieldShowsOnlyWhenItIsMeant) {
    EXPECT_EQ(Bild(G5, "G5:16").find("Preisart"), std::string::npos);
    EXPECT_NE(Bild(G5, "G5:17").find("Preisart <small>G5:17 · 61</small></dt><dd><i>leer</i></dd>"), std::string::npos);
}

TEST_F(RecordbildTest, ACaretStandsUnderAColumnOutsideOfTheFields) {
    // G5 has no field behind column 74: the stretch begins at 75, and column 100 is its 26th.
    const std::string kasten = Bild(G5, "100", true);
    EXPECT_NE(kasten.find("Ausserhalb der Felder <small>Spalte 100</small></dt><dd>"), std::string::npos);
    EXPECT_NE(kasten.find("irgend<i class=\"b\">·</i>was\n" + std::string(25, ' ') + "^</dd>"), std::string::npos);
}

TEST_F(RecordbildTest, TheWholeLineHasItsMarksBelow) {
    const Recordbefund befunde[] = {{"G5:16", false}, {"100", true}};
    const std::string bild = GanzeZeile(G5, befunde, Sprache::Deutsch);
    EXPECT_NE(bild.find("\n<b>" + std::string(58, ' ') + "^^" + std::string(39, ' ') + "^</b>"), std::string::npos);
}

TEST_F(RecordbildTest, ARecordAsAWholeIsMarkedThroughout) {
    const std::string kasten = Bild(Zeile({{1, u"B"}, {2, u"001"}, {36, u"KAG"}, {42, u"0"}}), "B0");
    EXPECT_NE(kasten.find("<div class=\"ganz\"><dt>Gliederungsnummer"), std::string::npos);
    EXPECT_NE(kasten.find("<div class=\"ganz\"><dt>Name der Standard-Gliederung"), std::string::npos);
}

TEST_F(RecordbildTest, AnUndefinedRecordIsShownAsItStands) {
    EXPECT_EQ(Bild(u"D0 <frei>", ""),
              "<dl class=\"r\"><div><dt>Inhalt <small>1–9</small></dt><dd>D0 &lt;frei&gt;</dd></div></dl>");
    EXPECT_NE(Bild(u"", "").find("<i>leer</i>"), std::string::npos);
}

TEST_F(RecordbildTest, TextsOfTheFileStayText) {
    EXPECT_EQ(Html("</script><b a='1' b=\"2\">&amp;"),
              "&lt;/script&gt;&lt;b a=&#39;1&#39; b=&quot;2&quot;&gt;&amp;amp;");
    EXPECT_EQ(Html("\xE2\x80\xAE"), "<i class=\"c\">U+202E</i>");
    EXPECT_EQ(Html("\x07\x7F", Zeichenbild::GanzeZeile),
              "<i class=\"c\" title=\"U+0007\">␇</i><i class=\"c\" title=\"U+007F\">␡</i>");
    EXPECT_EQ(Html("a b", Zeichenbild::Marke), "a<i class=\"b\">·</i>b");
    EXPECT_EQ(Html("a b"), "a b");
}

TEST_F(RecordbildTest, ASentenceTellsTheField) {
    EXPECT_EQ(Feldsatz("G6:13", {}, Sprache::Deutsch), "Mengenart (G6:13, Spalte 44)");
    EXPECT_EQ(Feldsatz("G6:17/18", {}, Sprache::Franzoesisch),
              "Genre de prix, Signe du prix (G6:17/18, colonnes 61–62)");
    EXPECT_EQ(Feldsatz("100", {}, Sprache::Deutsch), "Ausserhalb der Felder (Spalte 100)");
    EXPECT_EQ(Feldsatz("B0", {}, Sprache::Deutsch), "ganzer Record (B0)");
    EXPECT_EQ(Feldsatz("<x>", {}, Sprache::Deutsch), "<x>");
    EXPECT_EQ(Feldsatz("", {}, Sprache::Deutsch), "");
}

} // namespace
} // namespace zepholt::bericht
