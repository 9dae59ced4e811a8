#include "intake/UniversalSchluessel.h"

#include "hilfen/Zeilenbau.h"
#include "run/NeuerLauf.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace zepholt {
namespace {

using hilfen::Zeile;

struct UniversalSchluesselTest : ::testing::Test {
    UniversalSchluesselTest() { Revision(11); }

    static void Revision(std::int32_t revision) {
        NeuerLauf();
        testDaten.Revision = revision;
    }
};

using Keys = UniversalSchluesselTest;

struct Teil {
    std::size_t Ziel; // first column of the key
    std::int32_t Quelle;
    std::size_t Laenge;
    bool Gross;
};

constexpr Teil Teile[] = {
    {1, 1, 1, false},   {2, 2, 3, false},   {5, 8, 6, false},    {11, 82, 5, true},
    {16, 18, 6, true},  {22, 24, 6, true},  {28, 87, 6, true},   {34, 129, 6, true},
    {40, 30, 3, true},  {43, 33, 3, true},  {46, 42, 1, false},  {47, 14, 2, false},
    {49, 16, 2, false}, {51, 123, 6, true}, {57, 168, 16, true}, {73, 188, 16, true},
};

TEST_F(Keys, JederTeilDesSchluessels) {
    for (const std::int32_t revision : {11, 12, 21}) {
        Revision(revision);
        const std::size_t breite = revision >= 12 ? 88 : 56;
        for (const Teil& teil : Teile) {
            const Text werte = Text(u"a\u00E4\u03C9qrstuvwxyzbcd").substr(0, teil.Laenge);
            const Text gross = Text(u"A\u00C4\u03A9QRSTUVWXYZBCD").substr(0, teil.Laenge);
            // The neighbours of the source must not enter.
            Text zeile(260, u'-');
            for (const Teil& t : Teile) {
                zeile.replace(static_cast<std::size_t>(t.Quelle - 1), t.Laenge, t.Laenge, u' ');
            }
            zeile.replace(static_cast<std::size_t>(teil.Quelle - 1), teil.Laenge, werte);
            Text soll(88, u' ');
            soll.replace(teil.Ziel - 1, teil.Laenge, teil.Gross ? gross : werte);
            EXPECT_EQ(UniversalSchluessel(zeile), soll.substr(0, breite)) << teil.Quelle << " at " << revision;
        }
    }
}

TEST_F(Keys, KurzeZeileMitLeerzeichenGefuellt) {
    EXPECT_EQ(UniversalSchluessel(u"G12"), u"G12" + Text(53, u' '));
    EXPECT_EQ(UniversalSchluessel(u""), Text(56, u' '));
    EXPECT_EQ(UniversalSchluessel(Text(84, u' ') + u"xy").substr(13, 2), u"XY");
    EXPECT_EQ(UniversalSchluessel(Text(84, u' ') + u"x").substr(13, 2), u"X ");
}

TEST_F(Keys, WasHinterDemZStehtBleibt) {
    EXPECT_EQ(UniversalSchluessel(Zeile(u"B1", {{82, u"A`{|}"}})).substr(10, 5), u"A`{|}");
    EXPECT_EQ(UniversalSchluessel(Zeile(u"B1", {{82, u"~azAZ"}})).substr(10, 5), u"~AZAZ");
}

TEST_F(Keys, ZeilenOhneSchluessel) {
    for (const TextSicht zeile : {u"E", u"D", u"U", u"Exy"}) {
        EXPECT_TRUE(IstEDURecord(zeile));
    }
    for (const TextSicht zeile : {u"", u"e", u"d", u"u", u"F", u"C", u"T", u"V", u" E"}) {
        EXPECT_FALSE(IstEDURecord(zeile));
    }
}

// --- The lines of a file against the definition, with all texts built ------------------------------------------------

// The lines of a file with these texts.
struct Zeilen {
    explicit Zeilen(const std::vector<Text>& texte) {
        for (const Text& text : texte) {
            m_puffer.append(text).append(u"\r\n");
        }
        Liste = Zeilenliste(m_puffer.data());
        std::size_t ende = 0;
        for (const Text& text : texte) {
            Liste.Anfuegen(ende += text.size() + Zeilenliste::Zeilenende);
        }
    }

    Zeilenliste Liste;

private:
    Text m_puffer;
};

using Folge = std::vector<std::uint32_t>;

struct Ergebnis {
    std::int32_t Doppelt = -1;
    std::int32_t ErsteZuNiedrige = -1;
    Folge Sortiert;

    bool operator==(const Ergebnis&) const = default;
};

Ergebnis NachDefinition(const std::vector<Text>& zeilen) {
    const std::size_t breite = testDaten.Revision >= 12 ? 88 : 56;
    std::vector<Text> schluessel;
    std::vector<Text> nummern;
    std::vector<Text> sortierschluessel;
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        const Text nummer = ZahlText(static_cast<std::int64_t>(i));
        const Text key = IstEDURecord(zeilen[i])
                             ? zeilen[i][0] + RechtsBuendig(nummer, static_cast<std::int32_t>(breite) - 1)
                             : UniversalSchluessel(zeilen[i]);
        schluessel.push_back(key + RechtsBuendig(nummer, 6));
        nummern.push_back(nummer);
        const Text& s = schluessel.back();
        sortierschluessel.push_back(s.substr(0, 10) + s.substr(45, 5) + s.substr(breite));
    }
    Ergebnis ergebnis;

    std::vector<Text> folge = nummern;
    Sortieren(sortierschluessel, folge);
    for (const Text& nummer : folge) {
        ergebnis.Sortiert.push_back(static_cast<std::uint32_t>(GanzzahlAmAnfang(nummer)));
    }
    for (std::size_t k = 1; k < zeilen.size() && ergebnis.ErsteZuNiedrige < 0; ++k) {
        const auto fuenfzehn = [&](std::size_t i) { return schluessel[i].substr(0, 10) + schluessel[i].substr(45, 5); };
        if (fuenfzehn(k) < fuenfzehn(k - 1)) {
            ergebnis.ErsteZuNiedrige = static_cast<std::int32_t>(k);
        }
    }
    Sortieren(schluessel, nummern);
    for (std::size_t k = 1; k < zeilen.size() && ergebnis.Doppelt < 0; ++k) {
        if (schluessel[k].substr(0, breite) == schluessel[k - 1].substr(0, breite)) {
            ergebnis.Doppelt = GanzzahlAmAnfang(nummern[k]);
        }
    }
    return ergebnis;
}

Ergebnis Ermittle(const std::vector<Text>& texte) {
    const Zeilen zeilen(texte);
    const Reihenfolge reihenfolge = ReihenfolgeErmitteln(zeilen.Liste);
    Ergebnis ergebnis;
    ergebnis.Doppelt = DoppelterSchluessel(zeilen.Liste, reihenfolge);
    ergebnis.ErsteZuNiedrige = reihenfolge.ErsteZuNiedrige;
    ergebnis.Sortiert = SortierteFolge(zeilen.Liste);
    EXPECT_EQ(reihenfolge.IstSortiert, std::ranges::is_sorted(ergebnis.Sortiert));
    return ergebnis;
}

// A file of lines that differ in few columns, so that doubles and ties are frequent.
std::vector<Text> ZufaelligeZeilen(std::mt19937& zufall, std::size_t anzahl, bool geordnet) {
    const auto wahl = [&zufall](TextSicht aus) { return Text(1, aus[zufall() % aus.size()]); };
    std::vector<Text> zeilen;
    for (std::size_t i = 0; i < anzahl; ++i) {
        const Text art = wahl(u"AEGGGGDUZ") + wahl(u"123");
        Text zeile = zufall() % 3 == 0 ? Zeile(art, {{16, wahl(u"12")}, {87, wahl(u"aAbB")}, {170, wahl(u"xXy")}})
                                       : Zeile(art, {{2, wahl(u"12")}});
        if (zufall() % 7 == 0) {
            zeile.resize(zufall() % 60, u' ');
        }
        zeilen.push_back(zeile);
    }
    if (geordnet) {
        std::ranges::sort(zeilen);
    }
    return zeilen;
}

TEST_F(Keys, ZufallGegenDieDefinition) {
    std::mt19937 zufall(4711);
    int doppelte = 0;
    int zuNiedrige = 0;
    int ohneFehler = 0;
    for (int lauf = 0; lauf < 3000; ++lauf) {
        Revision(lauf % 2 == 0 ? 11 : 21);
        const std::vector<Text> zeilen = ZufaelligeZeilen(zufall, zufall() % 25, lauf % 3 != 0);
        const Ergebnis soll = NachDefinition(zeilen);
        const Ergebnis ist = Ermittle(zeilen);
        ASSERT_EQ(ist.Doppelt, soll.Doppelt) << lauf;
        ASSERT_EQ(ist.ErsteZuNiedrige, soll.ErsteZuNiedrige) << lauf;
        ASSERT_EQ(ist.Sortiert, soll.Sortiert) << lauf;
        doppelte += soll.Doppelt > 0;
        zuNiedrige += soll.ErsteZuNiedrige > 0;
        ohneFehler += soll.Doppelt < 0 && soll.ErsteZuNiedrige < 0;
    }
    EXPECT_GT(doppelte, 300);
    EXPECT_GT(zuNiedrige, 300);
    EXPECT_GT(ohneFehler, 300);
}

TEST_F(Keys, VieleZeilenGegenDieDefinition) {
    std::mt19937 zufall(815);
    std::vector<Text> texte;
    for (int i = 0; i < 20'000; ++i) {
        const std::int64_t wert = static_cast<std::int64_t>(zufall() % 1'000'000);
        texte.push_back(Zeile(u"G6", {{18, ZahlText(wert)}, {24, ZahlText(i % 5)}}));
    }
    const Ergebnis soll = NachDefinition(texte);
    EXPECT_GT(soll.Doppelt, 0);
    EXPECT_EQ(soll.ErsteZuNiedrige, -1);
    EXPECT_EQ(Ermittle(texte), soll);
}

std::int32_t Doppelt(const std::vector<Text>& texte) {
    return Ermittle(texte).Doppelt;
}

TEST_F(Keys, DasPaarMitDemNiedrigstenSchluessel) {
    // "a" and "b" each stand twice; the lower key wins, not the earlier place.
    const Text a = Zeile(u"G6", {{18, u"a"}});
    const Text b = Zeile(u"G6", {{18, u"b"}});
    EXPECT_EQ(Doppelt({b, b, a, a}), 3);
    EXPECT_EQ(Doppelt({b, a, b, a}), 3);
    EXPECT_EQ(Doppelt({a, b, b, a}), 3);
    EXPECT_EQ(Doppelt({a, a, a, b}), 1);
    EXPECT_EQ(Doppelt({a, b}), -1);
    EXPECT_EQ(Doppelt({}), -1);
}

TEST_F(Keys, ZeichenHinterDemZSindKeineKlammern) {
    EXPECT_EQ(Doppelt({Zeile(u"B1", {{82, u"A["}}), Zeile(u"B1", {{82, u"A{"}})}), -1);
    EXPECT_EQ(Doppelt({Zeile(u"B1", {{82, u"A{"}}), Zeile(u"B1", {{82, u"a{"}})}), 1);
}

TEST_F(Keys, VerschiedeneSchluesselMitGleichemStreuwert) {
    // Both have the same lower 32 bits of the standard library's hash.
    const Text erste = Zeile(u"B1", {{2, u"001"}, {82, u"MBAAA"}});
    const Text zweite = Zeile(u"B1", {{2, u"001"}, {82, u"F3DDA"}});
    EXPECT_EQ(Doppelt({erste, zweite}), -1);
    EXPECT_EQ(Doppelt({erste, zweite, erste}), 2);
}

TEST_F(Keys, NiedrigsterSchluesselUeberVerschiedeneStrecken) {
    // Column 42 decides the order of the lines before columns 18 on, but stands behind them in the key.
    const Text vorn = Zeile(u"G4", {{18, u"b"}});
    const Text hinten = Zeile(u"G6", {{18, u"a"}});
    EXPECT_EQ(Doppelt({vorn, vorn, hinten, hinten}), 3);
}

TEST_F(Keys, RevisionEntscheidetUeberDieSpaltenAb168) {
    const std::vector<Text> zeilen = {Zeile(u"G6", {{168, u"a"}}), Zeile(u"G6", {{168, u"b"}})};
    EXPECT_EQ(Doppelt(zeilen), 1);
    Revision(21);
    EXPECT_EQ(Doppelt(zeilen), -1);
    EXPECT_EQ(Doppelt({Zeile(u"G6", {{203, u"a"}}), Zeile(u"G6", {{203, u"A"}})}), 1);
    EXPECT_EQ(Doppelt({Zeile(u"G6", {{203, u"a"}}), Zeile(u"G6", {{204, u"A"}})}), -1);
}

// --- More than a million lines: the text of the number grows to seven columns ----------------------------------------

constexpr std::size_t Million = 1'000'000;

std::vector<Text> LauterZeilen(std::size_t anzahl) {
    return std::vector<Text>(anzahl, u"E");
}

TEST_F(Keys, GleicheZeilenUeberEinerMillion) {
    Revision(21);
    const Zeilen zeilen(LauterZeilen(Million + 2));
    const Reihenfolge reihenfolge = ReihenfolgeErmitteln(zeilen.Liste);
    EXPECT_EQ(reihenfolge.ErsteZuNiedrige, -1);
    EXPECT_FALSE(reihenfolge.IstSortiert);
    EXPECT_EQ(DoppelterSchluessel(zeilen.Liste, reihenfolge), -1);

    // " 99999", "100000", "1000000", "1000001", "100001"
    const Folge folge = SortierteFolge(zeilen.Liste);
    EXPECT_EQ(folge[99'999], 99'999U);
    EXPECT_EQ(folge[100'000], 100'000U);
    EXPECT_EQ(folge[100'001], Million);
    EXPECT_EQ(folge[100'002], Million + 1);
    EXPECT_EQ(folge[100'003], 100'001U);
    EXPECT_EQ(folge.back(), Million - 1);
}

TEST_F(Keys, BisZurMillionBleibtDieReihenfolge) {
    Revision(21);
    EXPECT_TRUE(ReihenfolgeErmitteln(Zeilen(LauterZeilen(Million)).Liste).IstSortiert);
}

TEST_F(Keys, InDerAltenTrenntDieMillionSelbst) {
    // The number of an E line reaches column 50 of its key: "1" there is higher than the blank before.
    const Reihenfolge reihenfolge = ReihenfolgeErmitteln(Zeilen(LauterZeilen(2 * Million + 1)).Liste);
    EXPECT_EQ(reihenfolge.ErsteZuNiedrige, -1);
    EXPECT_TRUE(reihenfolge.IstSortiert);
}

TEST_F(Keys, DoppelteUeberEinerMillion) {
    std::vector<Text> texte = LauterZeilen(Million + 1);
    // The later of the first two, by the texts of their numbers.
    texte[200'000] = u"X";
    texte[Million] = u"X";
    EXPECT_EQ(Ermittle(texte).Doppelt, 200'000);

    texte[5] = u"X"; // "     5", "1000000", "200000"
    EXPECT_EQ(Ermittle(texte).Doppelt, static_cast<std::int32_t>(Million));
}

// --- Many lines out of order, which are sorted in pieces
// --------------------------------------------------------------

TEST_F(Keys, ManyLinesInFallingOrder) {
    Revision(21);
    constexpr std::uint32_t Anzahl = 270'000;
    std::vector<Text> texte;
    for (std::uint32_t i = 0; i < Anzahl; ++i) { // columns 8 to 13: a number of six digits
        const std::string nummer = std::to_string(999'999 - i);
        texte.push_back(u"G      " + Text(nummer.begin(), nummer.end()));
    }
    const Folge folge = SortierteFolge(Zeilen(texte).Liste);
    ASSERT_EQ(folge.size(), Anzahl);
    for (std::uint32_t k = 0; k < Anzahl; ++k) {
        ASSERT_EQ(folge[k], Anzahl - 1 - k);
    }
    texte[269'000] = texte[10];
    EXPECT_EQ(Ermittle(texte).Doppelt, 269'000);
}

// --- Stretches of equal order: those whose keys ascend need no search ------------------------------------------------

TEST_F(Keys, NurWasNichtAufsteigtWirdDurchsucht) {
    const auto menge = [](TextSicht kapitel, TextSicht kag, TextSicht ogl) {
        return Zeile(u"G6", {{2, kapitel}, {18, ogl}, {82, kag}});
    };
    const auto strecken = [](const std::vector<Text>& texte) {
        return ReihenfolgeErmitteln(Zeilen(texte).Liste).Gleiche;
    };
    using Strecken = std::vector<Strecke>;
    EXPECT_EQ(strecken({menge(u"1", u"1", u"a"), menge(u"1", u"1", u"b"), menge(u"1", u"2", u"a")}), Strecken{});
    EXPECT_EQ(strecken({menge(u"1", u"1", u"b"), menge(u"1", u"1", u"a")}), (Strecken{{0, 2}}));
    EXPECT_EQ(strecken({menge(u"1", u"1", u"a"), menge(u"1", u"1", u"A")}), (Strecken{{0, 2}})); // upper case is equal
    EXPECT_EQ(strecken({menge(u"1", u"1", u"B"), menge(u"1", u"1", u"c")}), Strecken{});         // and orders
    EXPECT_EQ(strecken({menge(u"1", u"1", u"a"), menge(u"2", u"2", u"a"), menge(u"2", u"1", u"a")}),
              (Strecken{{1, 3}}));
    EXPECT_EQ(strecken({menge(u"1", u"1", u"\u00E4"), menge(u"1", u"1", u"\u00C4")}), (Strecken{{0, 2}}));
    EXPECT_EQ(strecken({u"E", u"E"}), Strecken{});
}

} // namespace
} // namespace zepholt
