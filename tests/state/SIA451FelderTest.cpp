#include "state/SIA451Felder.h"

#include "hilfen/Zeilenbau.h"
#include "run/NeuerLauf.h"
#include "state/TestDaten.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace zepholt {
namespace {

using hilfen::Zeile;

enum Bedingung { Immer, OhneRevision, AlteSchnittstelle, NeueSchnittstelle, NurE1S };

struct Satz {
    TextSicht Typ;
    Bedingung Wann;
    std::size_t Anzahl;
    TextSicht Felder; // field:column:length
};

// clang-format off
constexpr Satz Soll[] = {
    {u"A", Immer, 23,
     u"1:1:1 2:2:6 3:8:6 4:14:2 5:16:2 6-7:18:12 8-10:30:12 11:42:1 12:43:1 13:44:1 14:45:1 15:46:13 "
     u"16-18:59:4 19:63:12 20:75:7 21-22:82:11 23:93:30 24a-d:123:15 24e:138:30 24f:168:20 24g:188:20 "
     u"24h:208:30 24i:238:19"},
    {u"G1", Immer, 6, u"1:1:1 2a:2:3 2c:6:2 11:42:1 23:93:30 24e:138:30"},
    {u"G2", Immer, 6, u"1:1:1 2a:2:3 3:8:6 11:42:1 12:43:1 23:93:30"},
    {u"G3", Immer, 10, u"1:1:1 2a:2:3 3:8:6 4:14:2 5:16:2 11:42:1 12:43:1 23:93:30 24c:135:1 24d:136:2"},
    {u"G4", Immer, 15,
     u"1:1:1 2a:2:3 3:8:6 6:18:6 7:24:6 8:30:3 9:33:3 11:42:1 21:82:5 22:87:6 24b:129:6 24c:135:1 24d:136:2 "
     u"24f:168:16 24g:188:16"},
    {u"G5", Immer, 8, u"1:1:1 2a:2:3 3:8:6 11:42:1 16:59:2 17:61:1 18:62:1 19:63:12"},
    {u"G6", AlteSchnittstelle, 21,
     u"1:1:1 2a:2:3 3:8:6 6:18:6 7:24:6 8:30:3 9:33:3 10:36:6 11:42:1 13:44:1 14:45:1 15:46:13 17:61:1 "
     u"18:62:1 19:63:12 20:75:7 21:82:5 22:87:6 24a:123:6 24b:129:6 24d:136:2"},
    {u"G6", NeueSchnittstelle, 28,
     u"1:1:1 2a:2:3 3:8:6 4:14:2 5:16:2 6:18:6 7:24:6 8:30:3 9:33:3 10:36:6 11:42:1 13:44:1 14:45:1 "
     u"15:46:13 17:61:1 18:62:1 19:63:12 20:75:7 21:82:5 22:87:6 23:93:30 24a:123:6 24b:129:6 24d:136:2 "
     u"24e:138:30 24f:168:16 24g:188:16 24h:208:30"},
    {u"B0", Immer, 7, u"1:1:1 2a:2:3 2c:6:2 10:36:6 11:42:1 19:63:12 20:75:7"},
    {u"B1", Immer, 7, u"1:1:1 2a:2:3 11:42:1 21:82:5 23:93:30 24e:138:30 24h:208:16"},
    {u"B2", Immer, 8, u"1:1:1 2a:2:3 6:18:6 7:24:6 11:42:1 20:75:7 23:93:30 24e:138:30"},
    {u"B3", Immer, 8, u"1:1:1 2a:2:3 11:42:1 16:59:2 22:87:6 23:93:30 24e:138:30 24h:208:16"},
    {u"B4", Immer, 7, u"1:1:1 2a:2:3 11:42:1 20:75:7 23:93:30 24b:129:6 24e:138:30"},
    {u"B5", Immer, 8, u"1:1:1 2a:2:3 8:30:3 11:42:1 20:75:7 23:93:30 24c-d:135:3 24e:138:30"},
    {u"B6", Immer, 8, u"1:1:1 2a:2:3 8:30:3 9:33:3 11:42:1 20:75:7 23:93:30 24e:138:30"},
    {u"B7", NeueSchnittstelle, 6, u"1:1:1 2a:2:3 11:42:1 23:93:30 24e:138:30 24f:168:16"},
    {u"B8", NeueSchnittstelle, 6, u"1:1:1 2a:2:3 11:42:1 23:93:30 24e:138:30 24g:188:16"},
    {u"B9", OhneRevision, 12,
     u"1:1:1 6:18:6 7:24:6 8:30:3 9:33:3 11:42:1 14:45:1 15:46:13 18:62:1 19:63:12 21:82:5 22:87:6"},
    {u"C0", Immer, 5, u"1:1:1 2a:2:3 11:42:1 14:45:1 15-16:46:15"},
    {u"C1", Immer, 17,
     u"1:1:1 2a:2:3 2b:5:1 2c:6:2 5:16:2 10:36:6 11:42:1 13:44:1 14:45:1 15-16:46:15 17:61:1 18:62:1 "
     u"19:63:12 20a:75:1 20b:76:6 23:93:30 24e:138:30"},
    {u"C5", Immer, 12,
     u"1:1:1 2a:2:3 3a:8:3 6:18:6 7:24:6 8:30:3 9:33:3 11:42:1 21:82:5 22:87:6 24b:129:6 24d:136:2"},
    {u"X4", NurE1S, 7, u"1:1:1 2a:2:3 3:8:6 4:14:2 5:16:2 11:42:1 23:93:164"},
    {u"X5", NurE1S, 7, u"1:1:1 2a:2:3 3:8:6 4:14:2 5:16:2 11:42:1 23:93:164"},
    {u"P1", NurE1S, 7, u"1:1:1 2a:2:3 3:8:6 4:14:2 11:42:1 12:43:1 23:93:164"},
    {u"P2", NurE1S, 6, u"1:1:1 2a:2:3 3:8:6 4:14:2 11:42:1 23:93:164"},
    {u"P3", NurE1S, 7, u"1:1:1 2a:2:3 3:8:6 4:14:2 5:16:2 11:42:1 23:93:164"},
    {u"P4", NurE1S, 7, u"1:1:1 2a:2:3 3:8:6 4:14:2 5:16:2 11:42:1 23:93:164"},
    {u"P5", NurE1S, 7, u"1:1:1 2a:2:3 3:8:6 4:14:2 5:16:2 11:42:1 23:93:164"},
    {u"Z", Immer, 17,
     u"1:1:1 2:2:6 3:8:6 4-5:14:4 6-7:18:12 8-10:30:12 15:46:13 18:62:1 19:63:12 20:75:7 21-22:82:11 "
     u"23:93:30 24a-d:123:15 24e:138:30 24f:168:20 24g:188:20 24h-i:208:49"},
};
// clang-format on

struct Fall {
    std::int32_t Revision;
    bool IstE1S;
};

bool Gilt(Bedingung wann, const Fall& fall) {
    return wann == Immer || (wann == OhneRevision && fall.Revision == 0) ||
           (wann == AlteSchnittstelle && fall.Revision < 12) || (wann == NeueSchnittstelle && fall.Revision >= 12) ||
           (wann == NurE1S && fall.IstE1S);
}

class Layouts : public ::testing::TestWithParam<Fall> {
protected:
    Layouts() {
        NeuerLauf();
        testDaten.Revision = GetParam().Revision;
        testDaten.IstE1S = GetParam().IstE1S;
    }
};

Text ZeileVomTyp(TextSicht typ) {
    return typ.size() == 1 ? Text(typ) : Zeile(typ, {});
}

std::string Ascii(TextSicht text) {
    return {text.begin(), text.end()};
}

// The rows in the compact form, without the record type.
std::string Kompakt(std::span<const RecordLayout> zeilen) {
    std::string text;
    for (const RecordLayout& zeile : zeilen) {
        const TextSicht feld = zeile.Feldbezug.substr(zeile.Feldbezug.find(u':') + 1);
        text += (text.empty() ? "" : " ") + Ascii(feld) + ":" + std::to_string(zeile.Spalte) + ":" +
                std::to_string(zeile.Laenge);
    }
    return text;
}

TEST_P(Layouts, JedeZeileDerTabelle) {
    std::size_t gesamt = 0;
    for (const Satz& satz : Soll) {
        const bool gilt = Gilt(satz.Wann, GetParam());
        bool hatAndereForm = false;
        for (const Satz& anderer : Soll) {
            hatAndereForm |= anderer.Typ == satz.Typ && Gilt(anderer.Wann, GetParam());
        }
        const auto zeilen = LayoutsVon(ZeileVomTyp(satz.Typ));
        if (gilt) {
            EXPECT_EQ(Kompakt(zeilen), Ascii(satz.Felder)) << Ascii(satz.Typ);
            EXPECT_EQ(zeilen.size(), satz.Anzahl) << Ascii(satz.Typ);
            for (const RecordLayout& zeile : zeilen) {
                EXPECT_EQ(zeile.Feldbezug.substr(0, satz.Typ.size() + 1), Text(satz.Typ) + u":");
            }
            gesamt += satz.Anzahl;
        } else if (!hatAndereForm) {
            EXPECT_TRUE(zeilen.empty()) << Ascii(satz.Typ);
        }
    }
    EXPECT_EQ(RecordLayouts().size(), gesamt);
}

TEST_P(Layouts, DieTabelleHatDieZeilenEinesTypsBeisammen) {
    std::set<Text> gesehen;
    Text typ;
    for (const RecordLayout& zeile : RecordLayouts()) {
        const Text dieser(zeile.Feldbezug.substr(0, 2));
        if (dieser != typ) {
            EXPECT_TRUE(gesehen.insert(dieser).second) << Ascii(dieser);
            EXPECT_EQ(zeile.Spalte, 1) << Ascii(dieser);
            typ = dieser;
        }
    }
    EXPECT_FALSE(gesehen.empty());
}

TEST_P(Layouts, FelderSteigenUndUeberlappenNicht) {
    Text typ;
    std::int32_t frei = 1;
    for (const RecordLayout& zeile : RecordLayouts()) {
        if (zeile.Feldbezug.substr(0, 2) != typ) {
            typ = zeile.Feldbezug.substr(0, 2);
            frei = 1;
        }
        EXPECT_GE(zeile.Spalte, frei) << Ascii(zeile.Feldbezug);
        EXPECT_GE(zeile.Laenge, 1) << Ascii(zeile.Feldbezug);
        frei = zeile.Spalte + zeile.Laenge;
        EXPECT_LE(frei, 257) << Ascii(zeile.Feldbezug);
    }
}

INSTANTIATE_TEST_SUITE_P(JedeBedingung, Layouts,
                         ::testing::Values(Fall{0, false}, Fall{0, true}, Fall{1, false}, Fall{11, false},
                                           Fall{11, true}, Fall{12, false}, Fall{12, true}, Fall{21, false},
                                           Fall{21, true}));

class LayoutSuche : public ::testing::Test {
protected:
    LayoutSuche() {
        NeuerLauf();
        testDaten.Revision = 21;
        testDaten.IstE1S = true;
    }
};

TEST_F(LayoutSuche, LeereSpalte42IstKeinTyp) {
    EXPECT_TRUE(LayoutsVon(Zeile(u"G ", {{93, u"Text"}})).empty());
    EXPECT_FALSE(LayoutsVon(Zeile(u"G1", {{93, u"Text"}})).empty());
}

TEST_F(LayoutSuche, GrossschreibungZaehlt) {
    EXPECT_TRUE(LayoutsVon(u"a").empty());
    EXPECT_FALSE(LayoutsVon(u"A").empty());
    EXPECT_TRUE(LayoutsVon(Zeile(u"g1", {})).empty());
}

TEST_F(LayoutSuche, KurzeZeileHatKeinenTyp) {
    const Text zeile = Zeile(u"G1", {});
    ASSERT_EQ(zeile.size(), 42U);
    EXPECT_TRUE(LayoutsVon(TextSicht(zeile).substr(0, 41)).empty());
    EXPECT_TRUE(LayoutsVon(u"").empty());
}

TEST_F(LayoutSuche, JedesAndereZeichenDerBeidenSpalten) {
    std::set<Text> typen;
    for (const Satz& satz : Soll) {
        if (Gilt(satz.Wann, {21, true})) {
            typen.insert(Text(satz.Typ));
        }
    }
    const auto gehtVor = [](char16_t z) { return z == u'A' || z == u'Z'; };
    for (char16_t erstes = 0; erstes < 300; ++erstes) {
        for (char16_t zweites = 0; zweites < 300; ++zweites) {
            const Text typ = {erstes, zweites};
            const bool soll = gehtVor(erstes) || typen.contains(typ);
            ASSERT_EQ(!LayoutsVon(Zeile(typ, {})).empty(), soll) << int(erstes) << " " << int(zweites);
        }
    }
}

TEST_F(LayoutSuche, XUndPEndenInSpalte256) {
    for (const TextSicht typ : {u"X4", u"X5", u"P1", u"P2", u"P3", u"P4", u"P5", u"A", u"Z"}) {
        const RecordLayout letzte = LayoutsVon(ZeileVomTyp(typ)).back();
        EXPECT_EQ(letzte.Spalte + letzte.Laenge, 257) << Ascii(typ);
    }
}

TEST_F(LayoutSuche, FolgtDerRevision) {
    EXPECT_EQ(LayoutsVon(Zeile(u"G6", {})).size(), 28U);
    testDaten.Revision = 11;
    EXPECT_EQ(LayoutsVon(Zeile(u"G6", {})).size(), 21U);
    EXPECT_TRUE(LayoutsVon(Zeile(u"B9", {})).empty());
    testDaten.Revision = 0;
    EXPECT_EQ(LayoutsVon(Zeile(u"B9", {})).size(), 12U);
}

TEST(Feld, SchneidetAnDerZeile) {
    EXPECT_EQ(Feld(u"ABCDE", 1, 1), u"A");
    EXPECT_EQ(Feld(u"ABCDE", 4, 2), u"DE");
    EXPECT_EQ(Feld(u"ABCDE", 4, 3), u"DE");
    EXPECT_EQ(Feld(u"ABCDE", 6, 1), u"");
    EXPECT_EQ(Feld(u"ABCDE", 99, 1), u"");
    EXPECT_EQ(Feld(u"", 1, 1), u"");
}

} // namespace
} // namespace zepholt
