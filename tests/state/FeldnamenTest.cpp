#include "state/SIA451Felder.h"
#include "state/SIA451Feldnamen.h"
#include "state/TestDaten.h"

#include <gtest/gtest.h>

#include <set>

namespace zepholt {
namespace {

// All field references of all revisions, and their types.
struct Alle {
    std::set<Text> Bezuege;
    std::set<Text> Typen;

    Alle() {
        const std::pair<std::int32_t, bool> arten[] = {{21, true}, {11, false}, {0, false}};
        for (const auto& [revision, istE1S] : arten) {
            testDaten.Revision = revision;
            testDaten.IstE1S = istE1S;
            for (const RecordLayout& layout : RecordLayouts()) {
                Bezuege.emplace(layout.Feldbezug);
                Typen.emplace(layout.Feldbezug.substr(0, layout.Feldbezug.find(u':')));
            }
        }
        testDaten = {};
    }
};

TEST(Feldnamen, EveryFieldReferenceHasANameInEachLanguage) {
    const Alle alle;
    EXPECT_EQ(alle.Bezuege.size(), 272U);
    for (const Text& bezug : alle.Bezuege) {
        for (const std::int32_t sprache : {1, 2, 3}) {
            EXPECT_GE(Feldbezeichnung(bezug, sprache).size(), 3U) << std::string(bezug.begin(), bezug.end()) << sprache;
        }
    }
}

TEST(Feldnamen, EveryRecordTypeHasANameInEachLanguage) {
    const Alle alle;
    EXPECT_EQ(alle.Typen.size(), 28U);
    for (const Text& typ : alle.Typen) {
        for (const std::int32_t sprache : {1, 2, 3}) {
            EXPECT_GE(Recordbezeichnung(typ, sprache).size(), 3U) << std::string(typ.begin(), typ.end()) << sprache;
        }
    }
}

TEST(Feldnamen, AreTheWordsOfTheTrade) {
    EXPECT_EQ(Feldbezeichnung(u"G6:13", 1), u"Mengenart");
    EXPECT_EQ(Feldbezeichnung(u"G6:13", 2), u"Genre de quantité");
    EXPECT_EQ(Feldbezeichnung(u"G6:13", 3), u"Genere di quantità");
    EXPECT_EQ(Feldbezeichnung(u"A:13", 1), u"Dokumenten-Code");
    EXPECT_EQ(Feldbezeichnung(u"C1:13", 1), u"Berechnungsart");
    EXPECT_EQ(Recordbezeichnung(u"C5", 2), u"Restriction de la condition");
}

TEST(Feldnamen, AnUnknownReferenceTypeOrLanguageHasNone) {
    EXPECT_TRUE(Feldbezeichnung(u"G6:99", 1).empty());
    EXPECT_TRUE(Feldbezeichnung(u"G7:13", 1).empty());
    EXPECT_TRUE(Feldbezeichnung(u"G:13", 1).empty()); // the beginning of a type is none
    EXPECT_TRUE(Feldbezeichnung(u"13", 1).empty());
    EXPECT_TRUE(Feldbezeichnung(u"", 1).empty());
    EXPECT_TRUE(Feldbezeichnung(u"G6:13", 0).empty());
    EXPECT_TRUE(Feldbezeichnung(u"G6:13", 4).empty());
    EXPECT_TRUE(Recordbezeichnung(u"D0", 1).empty());
}

} // namespace
} // namespace zepholt
