// The end of the B block: primary variants and the order of the structures.
#include "doctest/Records.h"
#include "hilfen/Satztest.h"
#include "state/SIA451Felder.h"
#include "support/HilfsFunktionen.h"

#include <random>

namespace zepholt {
namespace {

using namespace hilfen;

class RecordBEndeTest : public Satztest {
protected:
    void BeginneMitVarianten(std::int32_t revision) {
        Beginne(revision);
        Pruefe(PruefeB0, Zeile(u"B0", {{2, u"005"}}));
    }

    void Gruppe(TextSicht code, TextSicht primaer) {
        Pruefe(PruefeB5, Zeile(u"B5", {{2, u"005"}, {30, code}, {93, u"Gruppe"}, {135, primaer}}));
    }

    void Variante(TextSicht gruppe, TextSicht code) {
        Pruefe(PruefeB6, Zeile(u"B6", {{2, u"005"}, {30, gruppe}, {33, code}, {93, u"Variante"}}));
    }

    // What the end reports behind these orders of B0 records.
    Funde Reihenfolgen(std::int32_t revision, std::initializer_list<TextSicht> reihenfolgen) {
        Beginne(revision);
        for (const TextSicht reihenfolge : reihenfolgen) {
            Pruefe(PruefeB0, Zeile(u"B0", {{2, u"002"}, {75, reihenfolge}}));
        }
        return Rufe(PruefeBEnde);
    }
};

TEST_F(RecordBEndeTest, AnEmptyBlockGivesNothing) {
    for (const std::int32_t revision : {Alt, Neu}) {
        Beginne(revision);
        testDaten.ZeilenNr = 4;
        EXPECT_EQ(Rufe(PruefeBEnde), Funde{});
        EXPECT_EQ(testDaten.ZeilenNr, 4);
    }
}

TEST_F(RecordBEndeTest, APrimaryVariantMustBeAVariantOfItsGroup) {
    for (const std::int32_t revision : {Alt, Neu}) {
        BeginneMitVarianten(revision);
        Gruppe(u"G", u"V1");
        Gruppe(u"H", u"V2");
        Variante(u"G", u"V2");
        Variante(u"H", u"V2");
        EXPECT_EQ(Rufe(PruefeBEnde), (Funde{{3291, 1}}));
        EXPECT_EQ(testDaten.ZeilenNr, 1);
        Variante(u"G", u"V1");
        EXPECT_EQ(Rufe(PruefeBEnde), Funde{});
    }
}

TEST_F(RecordBEndeTest, AGroupWithoutVariantsMissesItsPrimaryVariant) {
    BeginneMitVarianten(Neu);
    Gruppe(u"G", u"V1");
    EXPECT_EQ(Rufe(PruefeBEnde), (Funde{{3291, 1}}));
}

TEST_F(RecordBEndeTest, ABlankPrimaryVariantIsMissedOnTheFirstGroupLineWithBlanksThere) {
    BeginneMitVarianten(Neu);
    Gruppe(u"G", u"V1");
    Variante(u"G", u"V1");
    Gruppe(u"H", u"");
    Gruppe(u"I", u"   ");
    EXPECT_EQ(Rufe(PruefeBEnde), (Funde{{3291, 3}, {3291, 3}}));
}

TEST_F(RecordBEndeTest, GroupsThatMissTheSameVariantShareTheFirstLine) {
    BeginneMitVarianten(Alt);
    Gruppe(u"G", u"V1");
    Gruppe(u"H", u"V2");
    Gruppe(u"I", u"V1");
    EXPECT_EQ(Rufe(PruefeBEnde), (Funde{{3291, 1}, {3291, 2}, {3291, 1}}));
}

TEST_F(RecordBEndeTest, TheLineIsSearchedByColumnsAlone) {
    BeginneMitVarianten(Neu);
    Pruefe([] {}, Zeile(u"G5", {{135, u"V1"}}));  // line 1: another letter
    Pruefe([] {}, Zeile(u"B6", {{135, u"V1"}}));  // line 2: another digit
    Pruefe([] {}, Zeile(u"B5", {{135, u"V10"}})); // line 3: another text
    // Line 4 was refused for its number and is found all the same.
    Pruefe(PruefeB5, Zeile(u"B5", {{2, u"004"}, {30, u"F"}, {93, u"Gruppe"}, {135, u"V1"}}));
    Gruppe(u"G", u"V1");
    EXPECT_EQ(Rufe(PruefeBEnde), (Funde{{3291, 4}}));
    EXPECT_EQ(testDaten.ZeilenNr, 4);
}

TEST_F(RecordBEndeTest, AGroupWhoseLineIsNotFoundIsReportedWithoutALine) {
    BeginneMitVarianten(Neu);
    Gruppe(u"G", u"V1");
    testDaten.Zeilen = {};
    EXPECT_EQ(Rufe(PruefeBEnde), (Funde{{3291, -1}}));
}

TEST_F(RecordBEndeTest, TheNewInterfaceWantsTheOrderOfStructuresToBeUnique) {
    EXPECT_EQ(Reihenfolgen(Neu, {u"0000001", u"", u"0000001"}), (Funde{{3205, -1}}));
    EXPECT_EQ(testDaten.ZeilenNr, -1);
    EXPECT_EQ(Reihenfolgen(Neu, {u"0000001", u"", u"0000002"}), Funde{});
    EXPECT_EQ(Reihenfolgen(Neu, {u"0000002", u"0000001", u"0000002", u"0000001", u"0000001"}), (Funde{{3205, -1}}));
    EXPECT_EQ(Reihenfolgen(Neu, {u"", u"", u""}), Funde{});
    EXPECT_EQ(Reihenfolgen(Neu, {u"0000000", u"0000000", u"0000005"}), Funde{});
    EXPECT_EQ(Reihenfolgen(12, {u"0000001", u"0000001"}), (Funde{{3205, -1}}));
}

TEST_F(RecordBEndeTest, TheOldInterfaceRepeatsTheOrderOfStructuresFreely) {
    EXPECT_EQ(Reihenfolgen(Alt, {u"0000001", u"", u"0000001"}), Funde{});
    EXPECT_EQ(Reihenfolgen(Alt, {u"", u"", u""}), Funde{});
}

TEST_F(RecordBEndeTest, MissingVariantsComeBeforeTheOrder) {
    BeginneMitVarianten(Neu);
    Pruefe(PruefeB0, Zeile(u"B0", {{2, u"001"}, {75, u"0000001"}}));
    Pruefe(PruefeB0, Zeile(u"B0", {{2, u"002"}, {75, u"0000001"}}));
    Gruppe(u"G", u"V1");
    EXPECT_EQ(Rufe(PruefeBEnde), (Funde{{3291, 3}, {3205, -1}}));
}

// The rule as a scan over all lines for each group.
Funde PrimaervariantenNachScan() {
    Funde funde;
    for (const VariantengruppeEintrag& gruppe : sia451Datei.VariantenTabelle.Eintraege()) {
        bool vorhanden = false;
        for (const Reihencode& variante : gruppe.Varianten.Eintraege()) {
            vorhanden = vorhanden || variante.Code == gruppe.Primaervariante;
        }
        if (vorhanden) {
            continue;
        }
        std::int32_t nummer = -1;
        for (std::size_t i = 0; i < testDaten.Zeilen.size() && nummer == -1; ++i) {
            const Feldsicht zeile = testDaten.Zeilen[i];
            if (Feld(zeile, 1, 1) == u"B" && Feld(zeile, 42, 1) == u"5" &&
                OhneLeerzeichenRechts(Feld(zeile, 135, 3)) == gruppe.Primaervariante) {
                nummer = static_cast<std::int32_t>(i);
            }
        }
        funde.push_back({3291, nummer});
    }
    return funde;
}

TEST_F(RecordBEndeTest, TheLineIsFoundAsAScanFindsIt) {
    std::mt19937 zufall(451);
    const TextSicht varianten[] = {u"V1", u"V2", u"V*", u"", u" V", u"V12", u"v1"};
    const TextSicht gruppen[] = {u"A", u"B", u"C", u"D", u"E", u"F", u"G"};
    const auto eine = [&](const auto& liste) { return liste[zufall() % std::size(liste)]; };
    for (std::int32_t runde = 0; runde < 100; ++runde) {
        BeginneMitVarianten(Alt);
        for (std::int32_t i = 0; i < 20; ++i) {
            if (zufall() % 2 == 0) {
                Gruppe(eine(gruppen), eine(varianten));
            } else {
                Variante(eine(gruppen), eine(varianten));
            }
        }
        // The lines as another file would have them: some groups find theirs missing.
        std::vector<Text> zeilen;
        for (std::size_t i = 0; i < testDaten.Zeilen.size(); ++i) {
            zeilen.emplace_back(testDaten.Zeilen[i]);
        }
        std::ranges::shuffle(zeilen, zufall);
        Zeilenpuffer andere;
        for (std::size_t i = 0; i < 15; ++i) {
            andere.Anfuegen(zeilen[i]);
        }
        ASSERT_EQ(Rufe(PruefeBEnde), PrimaervariantenNachScan()) << "round " << runde;
    }
}

} // namespace
} // namespace zepholt
