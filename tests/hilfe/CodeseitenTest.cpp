// The pages inside a program: every code of the error table has one in three languages, under its own message.
#include "hilfe/Codeseiten.h"
#include "errors/FehlerERLTexte.h"
#include "support/HilfsFunktionen.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>

namespace zepholt {
namespace {

std::string Titel(std::int32_t code, TextSicht meldung) {
    while (meldung.ends_with(u' ')) {
        meldung.remove_suffix(1);
    }
    return "# " + std::to_string(code) + " · " + Utf8Bytes(meldung) + "\n";
}

TEST(CodeseitenTest, EveryCodeHasAPageUnderItsMessageInThreeLanguages) {
    for (const FehlerZeile& zeile : FehlerTexte()) {
        const hilfe::Codeseite* seite = hilfe::CodeseiteLesen(zeile.Code);
        ASSERT_NE(seite, nullptr) << zeile.Code;
        EXPECT_TRUE(seite->Texte[0].Text.starts_with(Titel(zeile.Code, zeile.Deutsch))) << zeile.Code;
        EXPECT_TRUE(seite->Texte[1].Text.starts_with(Titel(zeile.Code, zeile.Franzoesisch))) << zeile.Code;
        EXPECT_TRUE(seite->Texte[2].Text.starts_with(Titel(zeile.Code, zeile.Italienisch))) << zeile.Code;
    }
}

// A page of docs/codes without its last line, the links to other pages, and with "[4504](4504.md)" as "4504".
std::string SeiteOhneVerweise(const std::string& sprache, std::int32_t code) {
    const std::string pfad = ZEPHOLT_QUELLE "/docs/codes/" + sprache + "/" + std::to_string(code) + ".md";
    std::ifstream datei(pfad, std::ios::binary);
    std::string text(std::istreambuf_iterator<char>(datei), {});
    text.resize(text.find_last_not_of('\n', text.rfind('\n', text.size() - 2)) + 1);
    return std::regex_replace(text + "\n", std::regex(R"(\[([^\]]*)\]\([^)]*\))"), "$1");
}

TEST(CodeseitenTest, APageInsideIsThePageOfTheFolder) {
    for (const std::int32_t code : {1001, 4504, 6101, 9999}) {
        const hilfe::Codeseite* seite = hilfe::CodeseiteLesen(code);
        ASSERT_NE(seite, nullptr) << code;
        EXPECT_EQ(seite->Texte[0].Text, SeiteOhneVerweise("de", code)) << code;
        EXPECT_EQ(seite->Texte[1].Text, SeiteOhneVerweise("fr", code)) << code;
        EXPECT_EQ(seite->Texte[2].Text, SeiteOhneVerweise("it", code)) << code;
    }
}

TEST(CodeseitenTest, WhatUnfoldsHasNoLinksAndNoIds) {
    for (const FehlerZeile& zeile : FehlerTexte()) {
        for (const hilfe::Codetext& text : hilfe::CodeseiteLesen(zeile.Code)->Texte) {
            EXPECT_TRUE(text.Html.starts_with("<h4>")) << zeile.Code;
            for (const std::string_view nie : {"<a", " id=", "<script", " href", "<h2"}) {
                EXPECT_EQ(text.Html.find(nie), std::string_view::npos) << zeile.Code << " has " << nie;
            }
        }
    }
}

TEST(CodeseitenTest, ANumberWithoutARowHasNoPage) {
    EXPECT_EQ(hilfe::CodeseiteLesen(1000), nullptr);
    EXPECT_EQ(hilfe::CodeseiteLesen(4299), nullptr);
    EXPECT_EQ(hilfe::CodeseiteLesen(10000), nullptr);
}

} // namespace
} // namespace zepholt
