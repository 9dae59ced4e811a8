// What a chapter text gives: its entries, its end nodes, its text branches, and the answers of the searches.
#include "catalogue/VLTKapitel.h"
#include "run/NeuerLauf.h"

#include "catalogue/Kapitelbau.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zepholt {
namespace {

using namespace hilfen;
using Nummern = std::vector<std::int32_t>;

class VLTKapitel : public testing::Test {
protected:
    void SetUp() override { NeuerLauf(); }
    void TearDown() override { NeuerLauf(); }
};

std::string Wiederholt(std::string_view stueck, std::size_t anzahl) {
    std::string text;
    for (std::size_t i = 0; i < anzahl; ++i) {
        text += stueck;
    }
    return text;
}

// --- Reading ---------------------------------------------------------------------------------------------------------

TEST_F(VLTKapitel, LiestAlleAttribute) {
    ASSERT_TRUE(
        KapitelEinlesen(u"<?xml version=\"1.0\"?><Kapitel N=\"241\" S=\"2\" V=\"2013\" A=\"5\" T=\"Titel &amp; mehr\" "
                        u"Z=\"zwei\"><H N=\"111\" X=\"1\"><U N=\"100\" W=\"100199\" X=\"1\" Y=\"1\">"
                        u"<V N=\"1\" A=\"G\" E=\"35\"/><V N=\"2\"/></U><U N=\"200\"/></H><H N=\"112\"/></Kapitel>"));
    EXPECT_EQ(kapitelDaten.KapitelN, 241);
    EXPECT_EQ(kapitelDaten.KapitelS, 2);
    EXPECT_EQ(kapitelDaten.KapitelV, 2013);
    EXPECT_EQ(kapitelDaten.KapitelH.size(), 2U);

    ASSERT_TRUE(FindeH(111));
    ASSERT_TRUE(FindeU(100));
    EXPECT_TRUE(OhneFestenText());
    EXPECT_EQ(kapitelDaten.KapitelUListe[0].W, 100199);
    ASSERT_TRUE(FindeV(1));
    EXPECT_NE(AlternativGruppe(), 0);
    EXPECT_EQ(EinfuegepunktImKatalog(), 35);
    ASSERT_TRUE(FindeV(2));
    EXPECT_EQ(AlternativGruppe(), 0);
    EXPECT_EQ(EinfuegepunktImKatalog(), 0);
}

TEST_F(VLTKapitel, FehlendeAttributeSindNull) {
    ASSERT_TRUE(LiesKapitel("<H Q=\"1\"><U Q=\"1\"><V Q=\"1\"/></U></H>"));
    ASSERT_TRUE(FindeH(0));
    ASSERT_TRUE(FindeU(0));
    EXPECT_FALSE(OhneFestenText());
    EXPECT_EQ(kapitelDaten.KapitelUListe[0].W, 0);
    ASSERT_TRUE(FindeV(0));
    EXPECT_EQ(AlternativGruppe(), 0);
}

TEST_F(VLTKapitel, FuehrendeZahlZaehlt) {
    ASSERT_TRUE(LiesKapitel("<H N=\" 12x\"><U N=\"2.5\"/><U N=\"x9\"/><U N=\"-5\"/></H>"));
    ASSERT_TRUE(FindeH(12));
    EXPECT_TRUE(FindeU(2)); // half to even
    EXPECT_TRUE(FindeU(0));
    EXPECT_TRUE(FindeU(-5));
}

struct Einlesefall {
    std::string_view Text;
    bool Gelesen;
};

TEST_F(VLTKapitel, WurzelUndBreiten) {
    const Einlesefall faelle[] = {
        {"<Kapitel N=\"1\" S=\"1\" V=\"1\" A=\"1\"/>", true},
        {"<Kapitel N=\"-1\" S=\" 1 \" V=\"+1\" A=\"1.4\"/>", true},
        {"<Kapitel N=\"32767\" S=\"1\" V=\"-32768\" A=\"1\"/>", true},
        {"<Kapitel N=\"32768\" S=\"1\" V=\"1\" A=\"1\"/>", false},
        {"<Kapitel N=\"1\" S=\"1\" V=\"-32769\" A=\"1\"/>", false},
        {"<Kapitel N=\"\" S=\"1\" V=\"1\" A=\"1\"/>", false},
        {"<Kapitel N=\"1x\" S=\"1\" V=\"1\" A=\"1\"/>", false},
        {"<Kapitel N=\"1\" S=\"x\" V=\"1\" A=\"1\"/>", false},
        {"<Kapitel N=\"1\" S=\"1\" A=\"1\"/>", false},
        {"<Kapitel N=\"1\" S=\"1\" V=\"1\"/>", false},
        {"<Kapitel N=\"99999999999\" S=\"1\" V=\"1\" A=\"1\"/>", false},
        {"<kapitel N=\"1\" S=\"1\" V=\"1\" A=\"1\"/>", false},
        {"<Kapitel2 N=\"1\" S=\"1\" V=\"1\" A=\"1\"/>", false},
        {"<Kapitel>", false},
        {"", false},
        {"no chapter", false},
    };
    for (const auto& [text, gelesen] : faelle) {
        EXPECT_EQ(KapitelEinlesen(AlsText(text)), gelesen) << text;
    }
}

TEST_F(VLTKapitel, BreitenDerEintraege) {
    const Einlesefall faelle[] = {
        {"<H N=\"32767\" X=\"255\"/>", true},
        {"<H N=\"32768\"/>", false},
        {"<H N=\"-32768\"/>", true},
        {"<H N=\"-32769\"/>", false},
        {"<H X=\"256\"/>", false},
        {"<H X=\"-1\"/>", false},
        {"<H N=\"1\"><U N=\"32768\"/></H>", false},
        {"<H N=\"1\"><U W=\"2147483647\" X=\"255\" Y=\"255\"/></H>", true},
        {"<H N=\"1\"><U W=\"2147483648\"/></H>", false},
        {"<H N=\"1\"><U X=\"256\"/></H>", false},
        {"<H N=\"1\"><U Y=\"256\"/></H>", false},
        {"<H N=\"1\"><U N=\"1\"><V N=\"32767\" E=\"32767\"/></U></H>", true},
        {"<H N=\"1\"><U N=\"1\"><V N=\"32768\"/></U></H>", false},
        {"<H N=\"1\"><U N=\"1\"><V E=\"32768\"/></U></H>", false},
        {"<H N=\"999999999999999999999\"/>", false},
    };
    for (const auto& [innen, gelesen] : faelle) {
        EXPECT_EQ(LiesKapitel(innen), gelesen) << innen;
    }
}

// A count has 16 bits. The second blank keeps the chapter from being read in the form that catalogue files are written
// in.
TEST_F(VLTKapitel, MehrAlsGezaehltWerdenKann) {
    const auto innen = [](const std::string& was, std::size_t anzahl) {
        const std::string kinder = Wiederholt("<" + was + "  N=\"1\"/>", anzahl);
        return was == "H"   ? kinder
               : was == "U" ? "<H N=\"1\">" + kinder + "</H>"
                            : "<H N=\"1\"><U N=\"1\">" + kinder + "</U></H>";
    };
    for (const char* was : {"H", "U", "V"}) {
        EXPECT_TRUE(LiesKapitel(innen(was, 32767))) << was;
        EXPECT_FALSE(LiesKapitel(innen(was, 32768))) << was;
    }
}

// A chapter that can't be read leaves none: neither the one before nor a half of its own.
TEST_F(VLTKapitel, NachEinemFehlschlagIstKeinKapitelDa) {
    ASSERT_TRUE(LiesKapitel(AusPositionen({111100})));
    ASSERT_FALSE(LiesKapitel("<H N=\"111\"/><H N=\"x\" X=\"300\"/>"));
    EXPECT_FALSE(FindeH(111));
    EXPECT_EQ(kapitelDaten.KapitelN, 0);
    EXPECT_TRUE(kapitelDaten.KapitelH.empty());
}

TEST_F(VLTKapitel, OhneHGueltigUndLeer) {
    for (const char* innen : {"", "<X N=\"1\"/>", "text"}) {
        EXPECT_TRUE(LiesKapitel(innen)) << innen;
        EXPECT_EQ(kapitelDaten.KapitelH.size(), 0U);
        EXPECT_FALSE(PositionImKatalog(111100, 0).Da);
    }
}

TEST_F(VLTKapitel, BrichtDerTextAbSindDieTrefferDavorDasKapitel) {
    ASSERT_TRUE(LiesKapitel("<H N=\"111\"/><H N=\"112\"></H><H N=\"113\"/>"));
    EXPECT_EQ(kapitelDaten.KapitelH.size(), 1U);
    EXPECT_TRUE(FindeH(111));
    ASSERT_TRUE(LiesKapitel("<H N=\"111\"><U N=\"1\"/><U N=\"2\"/></H><Texte><T>a</T></Texte>"));
    ASSERT_TRUE(FindeH(111));
    EXPECT_TRUE(FindeU(2));
}

// Counts have 16 bits.
TEST_F(VLTKapitel, HoechsteAnzahlen) {
    EXPECT_TRUE(LiesKapitel(Wiederholt("<H N=\"1\"/>", 32767)));
    EXPECT_EQ(kapitelDaten.KapitelH.size(), 32767U);
    EXPECT_FALSE(LiesKapitel(Wiederholt("<H N=\"1\"/>", 32768)));

    EXPECT_TRUE(LiesKapitel("<H N=\"1\">" + Wiederholt("<U N=\"1\"/>", 32767) + "</H>"));
    EXPECT_EQ(kapitelDaten.KapitelH[0].UAnzahl, 32767);
    EXPECT_FALSE(LiesKapitel("<H N=\"1\">" + Wiederholt("<U N=\"1\"/>", 32768) + "</H>"));

    EXPECT_TRUE(LiesKapitel("<H N=\"1\"><U N=\"1\">" + Wiederholt("<V N=\"1\"/>", 32767) + "</U></H>"));
    EXPECT_EQ(kapitelDaten.KapitelUListe[0].VAnzahl, 32767);
    EXPECT_FALSE(LiesKapitel("<H N=\"1\"><U N=\"1\">" + Wiederholt("<V N=\"1\"/>", 32768) + "</U></H>"));

    const std::string beide = "<H N=\"1\">" + Wiederholt("<U N=\"1\"/>", 20000) + "</H>";
    EXPECT_TRUE(LiesKapitel(beide + beide)); // the count is of one H each
}

TEST_F(VLTKapitel, EineMillionEbenen) {
    const std::string tief = Wiederholt("<a b=\"1\">", 1000000) + "<x y=\"1\"/>" + Wiederholt("</a>", 1000000);
    EXPECT_TRUE(LiesKapitel("<H N=\"1\">" + tief + "</H><H N=\"2\"/>"));
    EXPECT_EQ(kapitelDaten.KapitelH.size(), 2U);
    EXPECT_TRUE(LiesKapitel("<H N=\"1\"/><H N=\"2\">" + tief + "</a></H><H N=\"3\"/>"));
    EXPECT_EQ(kapitelDaten.KapitelH.size(), 1U);
}

// --- Texts -----------------------------------------------------------------------------------------------------------

// Rows with text end the reading where they stand; whatever they are, what stands before them is the chapter.
TEST_F(VLTKapitel, TextsDoNotChangeTheChapter) {
    for (const char* texte :
         {"<Texte><T>abc</T><T>def</T></Texte>", "<Texte><T><i a=\"1\"/></T><T></T></Texte> ", "<Texte/>", "<Texte>"}) {
        ASSERT_TRUE(LiesKapitel("<H N=\"111\"><U N=\"1\"/></H>" + std::string(texte))) << texte;
        EXPECT_EQ(kapitelDaten.KapitelH.size(), 1U) << texte;
        EXPECT_EQ(kapitelDaten.KapitelUListe.size(), 1U) << texte;
    }
}

TEST_F(VLTKapitel, AMillionRowsOfTexts) {
    ASSERT_TRUE(LiesKapitel("<H N=\"1\"/><Texte><T><i a=\"1\"/>" + Wiederholt("</T><T>", 999999) + "</T></Texte> "));
    EXPECT_EQ(kapitelDaten.KapitelH.size(), 1U);
    ASSERT_TRUE(LiesKapitel("<H N=\"1\"/><Texte>" + Wiederholt("<T>a</T>", 1000000) + "</Texte>"));
    EXPECT_EQ(kapitelDaten.KapitelH.size(), 1U);
}

// --- Alternative groups ----------------------------------------------------------------------------------------------

// Within one sub-position a number stands for a text; texts differ by any character, and none has no number.
TEST_F(VLTKapitel, GroupsHaveTheSameNumberForTheSameText) {
    ASSERT_TRUE(LiesKapitel("<H N=\"1\"><U N=\"1\"><V N=\"1\" A=\"G\"/><V N=\"2\" A=\"K\"/><V N=\"3\" A=\"G\"/>"
                            "<V N=\"4\" A=\"\"/><V N=\"5\"/><V N=\"6\" A=\"g\"/><V N=\"7\" A=\"G \"/></U></H>"));
    std::vector<std::int32_t> gruppen;
    for (std::int32_t v = 1; v <= 7; ++v) {
        ASSERT_TRUE(FindeH(1) && FindeU(1) && FindeV(v));
        gruppen.push_back(AlternativGruppe());
    }
    EXPECT_EQ(gruppen[0], gruppen[2]);
    EXPECT_EQ(gruppen[3], 0);
    EXPECT_EQ(gruppen[4], 0);
    std::vector<std::int32_t> verschiedene = {gruppen[0], gruppen[1], gruppen[3], gruppen[5], gruppen[6]};
    std::ranges::sort(verschiedene);
    EXPECT_EQ(std::ranges::adjacent_find(verschiedene), verschiedene.end());
}

// --- End nodes -------------------------------------------------------------------------------------------------------

TEST_F(VLTKapitel, Endknoten) {
    const std::pair<std::vector<int>, Nummern> faelle[] = {
        {{}, {}},
        {{111100}, {111100}},
        {{100000, 110000, 111000, 112000, 120000}, {111000, 112000, 120000}},
        {{111100, 111110, 111111, 111112, 111120, 111200}, {111111, 111112, 111120, 111200}},
        {{111100, 112110}, {111100, 112110}}, // another group
        {{111101, 111102}, {111101, 111102}},
        {{111110, 111100}, {111110, 111100}}, // not finer
        {{111100, 111100}, {111100, 111100}}, // the same one doesn't refine itself
        {{5, 7}, {5, 7}},                     // nothing above the last digit
        {{10, 11, 12}, {11, 12}},
    };
    for (const auto& [positionen, endknoten] : faelle) {
        LiesKapitel(AusPositionen(positionen));
        EXPECT_EQ(kapitelDaten.Endknoten, endknoten) << AusPositionen(positionen);
    }
}

TEST_F(VLTKapitel, NegativeNummernSindNurZahlen) {
    ASSERT_TRUE(LiesKapitel("<H N=\"-1\"><U N=\"-100\"/><U N=\"-110\"/></H><H N=\"-32768\"><U N=\"-32768\"/></H>"));
    // -1100 heads the group of -1110: the division drops the sign's side alike
    EXPECT_EQ(kapitelDaten.Endknoten, (Nummern{-1110, -32800768}));
    EXPECT_TRUE(PositionImKatalog(-1100, 0).Da);
    EXPECT_FALSE(PositionImKatalog(-1105, 0).Da);
    EXPECT_FALSE(InWiederholungsbereich(-1100));
    EXPECT_TRUE(IstEndknoten(-1100));
}

// There is room for 729 end nodes per main position and one more.
TEST_F(VLTKapitel, MehrEndknotenAlsPlatzLeerenDieListe) {
    ASSERT_TRUE(LiesKapitel("<H N=\"1\">" + Wiederholt("<U N=\"1\"/>", 730) + "</H>"));
    EXPECT_EQ(kapitelDaten.Endknoten.size(), 730U);
    ASSERT_TRUE(LiesKapitel("<H N=\"1\">" + Wiederholt("<U N=\"1\"/>", 731) + "</H>"));
    EXPECT_EQ(kapitelDaten.Endknoten.size(), 0U);
    EXPECT_TRUE(kapitelDaten.Endknoten.empty());
    ASSERT_TRUE(LiesKapitel("<H N=\"1\">" + Wiederholt("<U N=\"1\"/>", 731) + "</H><H N=\"2\"/>"));
    EXPECT_EQ(kapitelDaten.Endknoten.size(), 731U);
    // Those that replace another need no room.
    ASSERT_TRUE(LiesKapitel("<H N=\"1\">" + Wiederholt("<U N=\"1\"/>", 729) + "<U N=\"10\"/><U N=\"11\"/></H>"));
    EXPECT_EQ(kapitelDaten.Endknoten.size(), 730U);
}

struct Positionsfall {
    std::int32_t Position;
    bool Antwort;
};

TEST_F(VLTKapitel, IstEndknoten) {
    LiesKapitel(AusPositionen({100000, 110000, 111000, 112000, 120000}));
    const Positionsfall faelle[] = {
        {110000, false}, {111000, true}, {100000, false},
        {112000, true},  {120000, true}, {110005, true}, // the last digit tells
        {0, true},       {-10, true},    {200000, true}, // nothing stands behind it
        {110900, true},                                  // its group ends at 110999, before 111000
    };
    for (const auto& [position, antwort] : faelle) {
        EXPECT_EQ(IstEndknoten(position), antwort) << position;
    }
}

// 123450 heads the numbers up to 123459, 123400 those up to 123499.
TEST_F(VLTKapitel, IstEndknotenBisZumEndeDerGruppe) {
    const std::pair<int, std::pair<std::int32_t, bool>> faelle[] = {
        {123459, {123450, false}}, {123460, {123450, true}},  {123499, {123400, false}},
        {123500, {123400, true}},  {123999, {123000, false}}, {124000, {123000, true}},
    };
    for (const auto& [endknoten, frage] : faelle) {
        LiesKapitel(AusPositionen({endknoten}));
        EXPECT_EQ(IstEndknoten(frage.first), frage.second) << endknoten << ' ' << frage.first;
    }
    kapitelDaten = {};
    EXPECT_TRUE(IstEndknoten(123400));
    LiesKapitel(AusPositionen({123500}));
    EXPECT_TRUE(IstEndknoten(1000000000));
    EXPECT_TRUE(IstEndknoten(2147483640));
}

// --- Searches --------------------------------------------------------------------------------------------------------

TEST_F(VLTKapitel, ErsterTrefferZaehlt) {
    LiesKapitel("<H N=\"5\" X=\"1\"><U N=\"7\" Y=\"1\"><V N=\"2\" E=\"1\"/><V N=\"1\"/><V N=\"2\" E=\"9\"/></U>"
                "<U N=\"3\"/><U N=\"7\"/></H><H N=\"4\"/><H N=\"5\"/>");
    ASSERT_TRUE(FindeH(5));
    EXPECT_EQ(kapitelDaten.AktuellesH, 0);
    ASSERT_TRUE(FindeU(7));
    EXPECT_EQ(kapitelDaten.AktuellesU, 0);
    ASSERT_TRUE(FindeV(2));
    EXPECT_EQ(EinfuegepunktImKatalog(), 1);
    EXPECT_FALSE(FindeV(3));
    ASSERT_TRUE(FindeU(3));
    EXPECT_EQ(kapitelDaten.AktuellesU, 1);
    EXPECT_FALSE(FindeV(2)); // this one has none
    ASSERT_TRUE(FindeH(4));
    EXPECT_FALSE(FindeU(7));
}

TEST_F(VLTKapitel, EineSucheSetztDieStufenDarunterZurueck) {
    LiesKapitel("<H N=\"5\"><U N=\"7\" Y=\"1\"><V N=\"2\" A=\"g\" E=\"1\"/></U></H>");
    ASSERT_TRUE(FindeH(5) && FindeU(7) && FindeV(2));
    FindeU(7);
    EXPECT_EQ(kapitelDaten.AktuellesV, -1);
    EXPECT_EQ(AlternativGruppe(), 0);
    EXPECT_EQ(EinfuegepunktImKatalog(), 0);
    FindeV(2);
    FindeH(5);
    EXPECT_EQ(kapitelDaten.AktuellesU, -1);
    EXPECT_EQ(kapitelDaten.AktuellesV, -1);
    EXPECT_FALSE(OhneFestenText());
    EXPECT_FALSE(FindeV(2));
    EXPECT_FALSE(FindeH(6));
    EXPECT_EQ(kapitelDaten.AktuellesH, -1);
    EXPECT_FALSE(FindeU(7));
}

TEST_F(VLTKapitel, OhneAktuellenEintragGebenDieFragenNichts) {
    EXPECT_FALSE(OhneFestenText());
    EXPECT_EQ(EinfuegepunktImKatalog(), 0);
    EXPECT_EQ(AlternativGruppe(), 0);
}

TEST_F(VLTKapitel, TheMarkOfNoFixedTextIsExactlyOne) {
    LiesKapitel("<H N=\"1\"><U N=\"1\" Y=\"2\"/><U N=\"2\" Y=\"1\"/></H>");
    ASSERT_TRUE(FindeH(1));
    FindeU(1);
    EXPECT_FALSE(OhneFestenText());
    FindeU(2);
    EXPECT_TRUE(OhneFestenText());
}

// --- Positions and repeat ranges -------------------------------------------------------------------------------------

struct Katalogfall {
    std::int32_t Position;
    std::int32_t Grenze;
    bool Da;
    bool Wiederholung;
};

void ErwarteImKatalog(std::initializer_list<Katalogfall> faelle) {
    for (const Katalogfall& fall : faelle) {
        const Katalogstelle stelle = PositionImKatalog(fall.Position, fall.Grenze);
        EXPECT_EQ(stelle.Da, fall.Da) << fall.Position << ' ' << fall.Grenze;
        EXPECT_EQ(stelle.IstWiederholung, fall.Wiederholung) << fall.Position << ' ' << fall.Grenze;
    }
}

TEST_F(VLTKapitel, PositionOhneBereich) {
    LiesKapitel(AusPositionen({111100, 111110, 112200}));
    ErwarteImKatalog({
        {111000, 0, true, false}, // a main position
        {113000, 0, false, false},
        {111100, 0, true, false},
        {111110, 0, true, false},
        {111120, 0, false, false}, // behind 111110, which has no range
        {111099, 0, false, false}, // nothing before it
        {113100, 0, false, false},
    });
    PositionImKatalog(111000, 0);
    EXPECT_EQ(kapitelDaten.AktuellesU, -1); // a main position has no sub-position
}

TEST_F(VLTKapitel, BereichNimmtSeinenTraegerNichtAn) {
    LiesKapitel("<H N=\"111\"><U N=\"100\" W=\"100199\" Y=\"1\"/><U N=\"300\"/></H>");
    ErwarteImKatalog({
        {111100, 0, false, false},
        {111101, 0, true, true},
        {111150, 0, true, true},
        {111199, 0, true, true},
        {111200, 0, false, false},
        {111300, 0, true, false},
        {111301, 0, false, false},
        {111099, 0, false, false},
        {111150, 111199, true, true}, // the limit lies in the same range
        {111150, 111200, false, false},
        {111150, 111100, false, false},
        {111150, 111101, true, true},
        {111300, 111900, true, false}, // no range, no limit
    });
    PositionImKatalog(111150, 0);
    EXPECT_EQ(kapitelDaten.AktuellesU, 0); // the one that carries the range
    EXPECT_TRUE(OhneFestenText());
}

// The position itself is in the catalogue and carries a range that begins elsewhere.
TEST_F(VLTKapitel, GefundenePositionMitBereich) {
    LiesKapitel("<H N=\"111\"><U N=\"100\"/><U N=\"150\" W=\"100199\"/></H>");
    ErwarteImKatalog({{111150, 0, true, true}, {111160, 0, true, true}, {111100, 0, true, false}});
    PositionImKatalog(111150, 0);
    EXPECT_EQ(kapitelDaten.AktuellesU, 0);
}

// The range's first number must be there.
TEST_F(VLTKapitel, BereichOhneAnfang) {
    LiesKapitel("<H N=\"111\"><U N=\"110\" W=\"100199\"/></H>");
    ErwarteImKatalog({{111150, 0, false, false}});
}

TEST_F(VLTKapitel, EndknotenDavorInAndererHauptposition) {
    LiesKapitel("<H N=\"111\"><U N=\"100\" W=\"100199\"/></H><H N=\"112\"><U N=\"500\"/></H>");
    ErwarteImKatalog({{112150, 0, false, false}, {111150, 0, true, true}});
}

// A refined position is no end node: its range is not found for a position behind its parts.
TEST_F(VLTKapitel, VerfeinerterTraeger) {
    LiesKapitel("<H N=\"111\"><U N=\"100\" W=\"100199\"/><U N=\"101\"/></H>");
    ErwarteImKatalog({{111150, 0, false, false}});
}

struct Anfangsfall {
    std::string_view W;
    std::int32_t Position;
    bool PasstNicht;
};

TEST_F(VLTKapitel, ATextPositionMustNotBeFinerThanTheStartOfItsRange) { // 6213
    const Anfangsfall faelle[] = {
        {"101199", 111110, true},  // begins at a performance position
        {"101199", 111111, false}, // itself a performance position
        {"110250", 111200, true},  // a group of hundreds in a range of tens
        {"110250", 111210, false}, {"100250", 111200, false},
        {"100250", 111110, false}, {"101199", 111300, false}, // outside
    };
    for (const Anfangsfall& fall : faelle) {
        const std::string w(fall.W);
        LiesKapitel("<H N=\"111\"><U N=\"" + w.substr(0, 3) + "\" W=\"" + w + "\"/></H>");
        const Katalogstelle stelle = PositionImKatalog(fall.Position, 0);
        EXPECT_EQ(stelle.AnfangPasstNicht, fall.PasstNicht) << w << ' ' << fall.Position;
        EXPECT_EQ(stelle.IstWiederholung, fall.Position != 111300) << w; // it changes nothing
    }
}

// It is known before the range's first number is looked for.
TEST_F(VLTKapitel, AStartThatDoesNotFitIsSeenWithoutAStart) {
    LiesKapitel("<H N=\"111\"><U N=\"105\" W=\"101199\"/></H>");
    EXPECT_TRUE(PositionImKatalog(111110, 0).AnfangPasstNicht);
    EXPECT_FALSE(PositionImKatalog(111110, 0).Da);
    EXPECT_FALSE(PositionImKatalog(111110, 111200).AnfangPasstNicht); // refused before
}

TEST_F(VLTKapitel, InWiederholungsbereich) {
    LiesKapitel(
        "<H N=\"111\"><U N=\"100\" W=\"100199\"/><U N=\"200\"/><U N=\"300\" W=\"300350\"/><U N=\"320\" W=\"340360\"/>"
        "<U N=\"400\" W=\"450440\"/></H><H N=\"111\"><U N=\"500\" W=\"500599\"/></H>");
    const Positionsfall faelle[] = {
        {111099, false}, {111100, true},  {111199, true},  {111200, false}, {111300, true},
        {111345, true},  {111360, true},  {111361, false}, {111445, false}, // ends before it begins
        {111550, false},                                                    // only the first H of a number is asked
        {111000, false}, {112150, false}, {1111150, true},                  // three digits of the main position
    };
    FindeH(111);
    FindeU(200);
    for (const auto& [position, antwort] : faelle) {
        EXPECT_EQ(InWiederholungsbereich(position), antwort) << position;
    }
    EXPECT_EQ(kapitelDaten.AktuellesH, 0); // untouched
    EXPECT_EQ(kapitelDaten.AktuellesU, 1);
}

TEST_F(VLTKapitel, BereicheVonJederGroesse) {
    for (const char* w : {"2147483647", "-2147483648", "-100199", "999", "1", "-1", "100000", "999999"}) {
        ASSERT_TRUE(LiesKapitel("<H N=\"111\"><U N=\"100\" W=\"" + std::string(w) + "\"/></H>"));
        for (const std::int32_t position : {111001, 111100, 111150, 111999, -111100, 2147483647}) {
            PositionImKatalog(position, -1);
            InWiederholungsbereich(position);
        }
    }
    LiesKapitel("<H N=\"111\"><U N=\"100\" W=\"999\"/></H>"); // from 0 to 999
    EXPECT_TRUE(InWiederholungsbereich(111001));
}

// --- Text branches ---------------------------------------------------------------------------------------------------

struct Ast {
    std::int32_t Von, Bis, GeltungVon, GeltungBis;
    bool operator==(const Ast&) const = default;
};

std::vector<Ast> Aeste() {
    std::vector<Ast> aeste;
    for (const TextAst& ast : kapitelDaten.TextAeste) {
        aeste.push_back({ast.Von, ast.Bis, ast.GeltungVon, ast.GeltungBis});
    }
    return aeste;
}

TEST_F(VLTKapitel, TextAesteJederStufe) {
    const std::pair<std::vector<int>, std::vector<Ast>> faelle[] = {
        {{}, {}},
        {{111101}, {}},
        {{111110}, {{100, 199, 200, 999}}},
        // neighbours join, and cover the levels below
        {{111110, 211110, 311110, 411101}, {{100, 399, 400, 999}}},
        {{111110, 311110}, {{100, 199, 200, 999}, {300, 399, 400, 999}}},
        // the hundred has performance positions, one ten in it has none
        {{111110, 112120, 121101}, {{110, 119, 120, 199}}},
        {{111110, 121110, 131101, 141110}, {{110, 129, 130, 199}, {140, 149, 150, 199}}},
        // single main positions
        {{111101, 112110, 113110, 114101, 115110}, {{112, 113, 114, 119}, {115, 115, 116, 119}}},
        // first all hundreds, then all tens, then all single ones
        {{111101, 112110, 121110, 211110}, {{200, 299, 300, 999}, {120, 129, 130, 199}, {112, 112, 113, 119}}},
        // without a hundreds digit there is no group; without a tens digit that of the hundreds only, and so on
        {{50110}, {}},
        {{101110, 201101}, {{100, 199, 200, 999}}},
        {{101110, 111101, 120110}, {{120, 129, 130, 199}}},
        // the last ends beyond the chapter
        {{911110}, {{900, 999, 1000, 999}}},
    };
    for (const auto& [positionen, aeste] : faelle) {
        LiesKapitel(AusPositionen(positionen));
        EXPECT_EQ(Aeste(), aeste) << AusPositionen(positionen);
    }
}

// Neighbours that do not follow each other in the list are two groups, and the same group can come again.
TEST_F(VLTKapitel, GruppenInDerReihenfolgeDesKatalogs) {
    LiesKapitel(AusPositionen({211110, 111110, 311101, 211110}));
    EXPECT_EQ(Aeste(), (std::vector<Ast>{{200, 299, 300, 999}, {100, 199, 200, 999}, {200, 299, 300, 999}}));
}

TEST_F(VLTKapitel, KapitelOhneZehnerHatKeineAeste) {
    for (const auto& [kapitel, anzahl] :
         {std::pair{102, 0U}, {112, 1U}, {900, 0U}, {5, 0U}, {10, 1U}, {1110, 1U}, {-10, 1U}}) {
        LiesKapitel(AusPositionen({111110}), kapitel);
        EXPECT_EQ(kapitelDaten.TextAeste.size(), anzahl) << kapitel;
    }
}

TEST_F(VLTKapitel, InTextAst) {
    LiesKapitel(AusPositionen({111110, 112120, 121101, 211110, 311110}));
    ASSERT_EQ(Aeste(), (std::vector<Ast>{{200, 399, 400, 999}, {110, 119, 120, 199}}));
    struct Fall {
        std::int32_t Position, Von, Bis;
    };
    const Fall faelle[] = {
        {200000, 400000, 999999}, {399999, 400000, 999999}, {110000, 120000, 199999}, {119999, 120000, 199999},
        {120000, 0, 0},           {109999, 0, 0},           {400000, 0, 0},           {0, 0, 0},
        {-111000, 0, 0},          {1111000, 0, 0},          {2147483647, 0, 0},       {-1000000, 0, 0},
    };
    for (const auto& [position, sollVon, sollBis] : faelle) {
        std::int32_t von = 7;
        std::int32_t bis = 7;
        EXPECT_EQ(InTextAst(position, von, bis), sollVon != 0) << position;
        EXPECT_EQ(von, sollVon) << position;
        EXPECT_EQ(bis, sollBis) << position;
    }
}

TEST_F(VLTKapitel, InTextAstErsterTreffer) {
    LiesKapitel(AusPositionen({311110, 411110, 111101, 311110}));
    ASSERT_EQ(Aeste(), (std::vector<Ast>{{300, 499, 500, 999}, {300, 399, 400, 999}}));
    std::int32_t von = 0;
    std::int32_t bis = 0;
    EXPECT_TRUE(InTextAst(350000, von, bis));
    EXPECT_EQ(von, 500000);
}

} // namespace
} // namespace zepholt
