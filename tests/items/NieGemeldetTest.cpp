// The codes of the item records that stand in the error table and that no file can make the program report. Each is
// tried with the record that its text would lead one to expect.
#include "hilfen/NieGemeldet.h"
#include "items/Positionstest.h"

#include <algorithm>

namespace zepholt {
namespace {

using namespace hilfen;

struct NieFall {
    std::int32_t Code;
    const char* Grund;
    void (*Test)();
    Text Satz;
};

constexpr const char* Ueberall = "every chapter may have furnishing, so that the detail goes with anything";

const std::vector<NieFall>& NieFaelle() {
    const Text g3 = Zeile(u"G3", {{2, u"111"}, {8, u"111001"}, {14, u"05"}, {16, u"01"}});
    const Text g4 = Zeile(u"G4", {{2, u"111"}, {8, u"111000"}});
    const Text g6 = Zeile(u"G6", {{2, u"111"}, {8, u"111001"}, {44, u"A"}});
    static const std::vector<NieFall> faelle = {
        {4211, "six digits are never above 999999, and bad ones read as 0", PruefeG2,
         Zeile(u"G2", {{2, u"111"}, {8, u"-00001"}})},
        {4305, "no check: the new interface refuses any alternative code (4311), the old one drops it", PruefeG3,
         Mit(g3, {{135, u"x"}})},
        {4306, "no check: as 4305", PruefeG3, Mit(g3, {{16, u"02"}, {135, u"+"}})},
        {4412, Ueberall, PruefeG4, Mit(g4, {{18, u"HAUS1"}, {135, u"*"}})},
        {4422, Ueberall, PruefeG4, Mit(g4, {{82, u"123"}, {135, u"*"}})},
        {4432, Ueberall, PruefeG4, Mit(g4, {{87, u"C1"}, {135, u"*"}})},
        {4442, Ueberall, PruefeG4, Mit(g4, {{30, u"VG"}, {135, u"*"}})},
        {4452, Ueberall, PruefeG4, Mit(g4, {{129, u"ET1"}})},
        {4492, Ueberall, PruefeG4, Mit(g4, {{168, u"WOHNEN"}, {135, u"*"}})},
        {4496, Ueberall, PruefeG4, Mit(g4, {{188, u"BAD"}, {135, u"*"}})},
        {4603, "no check: a quantity without any reference is legal", PruefeG6, g6},
        {4691, "only Revision 0 asks the cost accounts, and no file has it", PruefeG6, Mit(g6, {{18, u"HAUS1"}})},
    };
    return faelle;
}

class NieGemeldetTest : public Positionstest {};

TEST_F(NieGemeldetTest, NotByTheRecordThatOneWouldExpect) {
    for (const NieFall& fall : NieFaelle()) {
        for (const std::int32_t revision : {Alt, Neu}) {
            BeginneMitPosition(revision);
            Gliederungen();
            sia451Datei.KostenkontoTabelle.push_back({.OGL = u"HAUS2"});
            Erwarte(PruefeG5, Zeile(u"G5", {{2, u"111"}, {8, u"111001"}}), {});
            const Funde funde = Pruefe(fall.Test, fall.Satz);
            EXPECT_TRUE(std::ranges::none_of(funde, [&](const Fund& f) { return f.Code == fall.Code; }))
                << fall.Code << ": " << fall.Grund;
        }
    }
}

TEST_F(NieGemeldetTest, AllAreCodesThatNoRunReports) {
    for (const NieFall& fall : NieFaelle()) {
        EXPECT_TRUE(std::ranges::any_of(NieGemeldeteCodes(), [&](const NieGemeldet& n) { return n.Code == fall.Code; }))
            << fall.Code;
    }
}

} // namespace
} // namespace zepholt
