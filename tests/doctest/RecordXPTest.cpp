// Attachment records X4, X5 and P1 to P5.
#include "doctest/Records.h"
#include "hilfen/Satztest.h"

namespace zepholt {
namespace {

using namespace hilfen;

struct Art {
    TextSicht Name;
    void (*Test)();
    bool HatZeile; // field 5, columns 16 and 17
};

const Art Arten[] = {
    {u"X4", PruefeX4, true},
    {u"X5", PruefeX5, true},
    {u"P1", [] { PruefeP(1); }, false},
    {u"P2", [] { PruefeP(2); }, false},
    {u"P3", [] { PruefeP(3); }, true},
    {u"P4", [] { PruefeP(4); }, true},
    {u"P5", [] { PruefeP(5); }, true},
};

class RecordXPTest : public Satztest, public ::testing::WithParamInterface<Art> {
protected:
    // The findings on a record that all checks pass, but for one field. No chapter or position stands in the tree.
    Funde Mit(std::int32_t spalte, TextSicht wert) {
        Beginne(Neu);
        return Pruefe(
            art.Test,
            Zeile(art.Name, {{2, u"113"}, {8, u"111001"}, {14, u"01"}, {16, u"01"}, {93, u"Text"}, {spalte, wert}}));
    }

    const Art& art = GetParam();
};

INSTANTIATE_TEST_SUITE_P(Arten, RecordXPTest, ::testing::ValuesIn(Arten),
                         [](const auto& fall) { return std::string(fall.param.Name.begin(), fall.param.Name.end()); });

// No position of the file is asked for: neither 4251, 4261 nor 4281.
TEST_P(RecordXPTest, ACompleteRecordOfAPositionThatDoesNotExistPasses) {
    EXPECT_EQ(Mit(93, u"Text"), Funde{});
}

TEST_P(RecordXPTest, ChapterAndPositionAreMandatoryNumbers) {
    EXPECT_EQ(Mit(2, u"   "), (Funde{{3002, 0, 2}}));
    EXPECT_EQ(Mit(2, u"11x"), (Funde{{3001, 0, 2}}));
    EXPECT_EQ(Mit(8, u"      "), (Funde{{3002, 0, 8}}));
    EXPECT_EQ(Mit(8, u"11100 "), (Funde{{3001, 0, 8}}));
}

TEST_P(RecordXPTest, AVariableIsNot0) {
    EXPECT_EQ(Mit(14, u"00"), (Funde{{4252, 0}}));
    EXPECT_EQ(Mit(14, u"99"), Funde{});
    EXPECT_EQ(Mit(14, u"  "), Funde{});
    EXPECT_EQ(Mit(14, u"0a"), (Funde{{3001, 0, 14}, {4252, 0}}));
    EXPECT_EQ(Mit(14, u" 1"), (Funde{{3001, 0, 14}, {4252, 0}}));
}

TEST_P(RecordXPTest, OnlySomeHaveALineNumber) {
    EXPECT_EQ(Mit(16, u"  "), art.HatZeile ? (Funde{{3002, 0, 16}}) : Funde{});
    EXPECT_EQ(Mit(16, u"x1"), art.HatZeile ? (Funde{{3001, 0, 16}}) : Funde{});
    EXPECT_EQ(Mit(16, u"00"), Funde{});
}

TEST_P(RecordXPTest, TheTextIsMandatory) {
    EXPECT_EQ(Mit(93, u"    "), (Funde{{3002, 0, 93}}));
    Beginne(Neu);
    // The last column of the field is the last of the record.
    EXPECT_EQ(Pruefe(art.Test, Zeile(art.Name, {{2, u"113"}, {8, u"111001"}, {16, u"01"}, {256, u"x"}})), Funde{});
}

TEST_P(RecordXPTest, OnlyP1HasACode) {
    const bool istP1 = art.Name == u"P1";
    EXPECT_EQ(Mit(43, u"2"), istP1 ? (Funde{{4282, 0}}) : Funde{});
    EXPECT_EQ(Mit(43, u"x"), istP1 ? (Funde{{4282, 0}}) : Funde{});
    EXPECT_EQ(Mit(43, u"0"), Funde{});
    EXPECT_EQ(Mit(43, u"1"), Funde{});
    EXPECT_EQ(Mit(43, u" "), Funde{});
}

TEST_P(RecordXPTest, FieldsAreReadInTheirOrderAndNothingStops) {
    Funde erwartet = {{3002, 0, 2}, {3002, 0, 8}, {3001, 0, 14}};
    if (art.HatZeile) {
        erwartet.push_back({3002, 0, 16});
    }
    erwartet.push_back({3002, 0, 93});
    erwartet.push_back({4252, 0});
    if (art.Name == u"P1") {
        erwartet.push_back({4282, 0});
    }
    Beginne(Neu);
    EXPECT_EQ(Pruefe(art.Test, Zeile(art.Name, {{14, u"x"}, {43, u"7"}})), erwartet);
}

} // namespace
} // namespace zepholt
