// The fast way to read a chapter against the plain one, on random chapters in their usual form, with and without
// abbreviations, and on the same with bytes changed: where the fast way reads, both give the same.
#include "catalogue/Kapitelleser.h"
#include "run/NeuerLauf.h"

#include "catalogue/Kapitelbau.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <random>
#include <tuple>

namespace zepholt {
namespace {

using namespace hilfen;

class Kapitelleser : public testing::Test {
protected:
    void SetUp() override { NeuerLauf(); }
    void TearDown() override { NeuerLauf(); }
};

ByteSicht AlsBytes(std::string_view bytes) {
    return {reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()};
}

using Zeile = std::tuple<int, int, int, int, int>;

// All that a chapter holds, in rows.
std::vector<Zeile> Zeilen(const KapitelDaten& k) {
    std::vector<Zeile> zeilen = {{k.KapitelN, k.KapitelS, k.KapitelV, 0, 0}};
    for (const HEintrag& h : k.KapitelH) {
        zeilen.emplace_back(h.N, h.ErstesU, h.UAnzahl, h.ErsterBereich, h.BereichAnzahl);
    }
    for (const UEintrag& u : k.KapitelUListe) {
        zeilen.emplace_back(u.N, u.W, u.Y, u.ErstesV, u.VAnzahl);
    }
    for (const VEintrag& v : k.KapitelVListe) {
        zeilen.emplace_back(v.N, v.E, v.Gruppe, 0, 0);
    }
    for (const Nummernbereich& bereich : k.Bereiche) {
        zeilen.emplace_back(bereich.Von, bereich.Bis, 0, 0, 0);
    }
    for (const auto* folge : {&k.HFolge, &k.UFolge, &k.VFolge}) {
        for (const std::uint32_t stelle : *folge) {
            zeilen.emplace_back(stelle, 0, 0, 0, 0);
        }
    }
    return zeilen;
}

bool LiestSchnell(std::string_view text) {
    KapitelDaten kapitel;
    return LiesUeblicheForm(AlsBytes(text), kapitel);
}

// Reads a chapter file in both ways; returns whether it was the fast one that read it.
bool Vergleiche(std::string_view datei) {
    std::optional<Kapitelbytes> bytes;
    try {
        bytes = ZerlegeKapitel(AlsBytes(datei));
    } catch (const LaufzeitFehler&) {
        return false;
    }
    if (!bytes) {
        return false;
    }
    const bool schlicht = KapitelEinlesen(EntpackeKapitel(*bytes));
    const std::vector<Zeile> erwartet = Zeilen(kapitelDaten);
    EXPECT_EQ(KapitelEinlesen(*bytes), schlicht) << datei;
    EXPECT_EQ(Zeilen(kapitelDaten), erwartet) << datei;
    std::vector<unsigned char> raum;
    KapitelDaten kapitel;
    return LiesUeblicheForm(EntpackteBytes(*bytes, raum), kapitel);
}

// --- What is usual ---------------------------------------------------------------------------------------------------

struct Formfall {
    std::string_view Innen;
    bool Ueblich;
};

TEST_F(Kapitelleser, TheUsualFormAndWhatIsBesideIt) {
    const Formfall faelle[] = {
        {R"(<H N="1"/>)", true},
        {R"(<H N="1"><U N="1"/></H>)", true},
        {R"(<H N="1"><U N="1"><V N="1"/></U></H><Texte><T>a b</T></Texte>)", true},
        {R"(<H Q="1"/>)", true},                                   // a letter that nobody asks for
        {R"(<H N="1" Q="x y/z"/>)", true},                         // with any value
        {R"(<H N="1"><U N="1"><V A="G 1" N="1"/></U></H>)", true}, // attributes in any order
        {R"(<H N="32767" X="255"/>)", true},
        {R"(<H N="32768"/>)", false}, // too wide
        {R"(<H N="1" X="256"/>)", false},
        {R"(<H N="1"><U N="1" W="999999999" Y="255"/></H>)", true},
        {R"(<H N="1"><U N="1" W="1000000000"/></H>)", false}, // ten digits
        {R"(<H N="1"><U N="1" Y="256"/></H>)", false},
        {R"(<H N="1"><U N="1"><V N="1" E="32768"/></U></H>)", false},
        {R"(<H N=""/>)", false},
        {R"(<H N="1x"/>)", false},
        {R"(<H N="-1"/>)", false},
        {R"(<H N="1" N="2"/>)", false},
        {R"(<H n="1"/>)", false},
        {R"(<H NN="1"/>)", false},
        {R"(<H  N="1"/>)", false},
        {R"(<H N="1" />)", false},
        {R"(<H N='1'/>)", false},
        {R"(<H N="1" Q="N=2"/>)", false},
        {R"(<H N="1" Q="a<b"/>)", false},
        {R"(<H N="1" Q="a>b"/>)", false},
        {R"(<H/>)", false},
        {R"(<H></H>)", false},
        {R"(<H N="1"></H>)", false},
        {R"(<H N="1"> <U N="1"/></H>)", false},
        {R"(<H N="1"><U N="1"/> </H>)", false},
        {R"(<H N="1"><X N="1"/></H>)", false},
        {R"(<H N="1"><U N="1"></U></H>)", false},
        {R"(<H N="1"><U N="1"><V N="1"></V></U></H>)", false},
        {R"(<H N="1"><U N="1"/></U>)", false},
        {R"(<H N="1"/><Texte/><H N="2"/>)", false}, // an H behind another element
        {R"(<H N="1"/><Texte/><Hx N="2"/>)", false},
        {R"(<Texte/>)", false}, // no H
        {"", false},
    };
    for (const auto& [innen, ueblich] : faelle) {
        const std::string text = KapitelText(innen);
        EXPECT_EQ(LiestSchnell(text), ueblich) << innen;
        EXPECT_EQ(Vergleiche(Kapiteldatei("", text)), ueblich) << innen;
    }
}

TEST_F(Kapitelleser, TheRootOfTheUsualForm) {
    const Formfall faelle[] = {
        {R"(<Kapitel N="1" S="1" V="1" A="1"><H N="1"/></Kapitel>)", true},
        {R"(<Kapitel N="1" S="1" V="1" A="1"><H N="1"/>)", true}, // what follows doesn't matter
        {R"(<Kapitel N="1" S="1" V="1" A="1" T="a &amp; b"><H N="1"/></Kapitel>)", true},
        {R"(<Kapitel N="1" S="1" V="1" A="1" T="a=b"><H N="1"/></Kapitel>)", false},
        {R"(<Kapitel N="1" S="1" V="1" A="x"><H N="1"/></Kapitel>)", false},
        {R"(<Kapitel N="1" S="1" V="1"><H N="1"/></Kapitel>)", false},
        {R"(<Kapitel N="32768" S="1" V="1" A="1"><H N="1"/></Kapitel>)", false},
        {R"(<Kapitel N="1" S="1" V="1" A="1"/>)", false},
        {R"(<Kapitel2 N="1" S="1" V="1" A="1"><H N="1"/></Kapitel2>)", false},
        {R"( <Kapitel N="1" S="1" V="1" A="1"><H N="1"/></Kapitel>)", false},
        {R"(<Kapitel N="1" S="1" V="1" A="1"><H N="1"/></Kapitel> )", false}, // the last byte ends no tag
        {"", false},
        {">", false},
    };
    for (const auto& [text, ueblich] : faelle) {
        EXPECT_EQ(LiestSchnell(text), ueblich) << text;
        EXPECT_EQ(Vergleiche(Kapiteldatei("", text)), ueblich) << text;
    }
}

// As an abbreviation may stand for: a byte of the body itself below 32 never comes here.
TEST_F(Kapitelleser, AControlCharacterIsNotUsual) {
    EXPECT_TRUE(LiestSchnell(KapitelText("<H N=\"1\" Q=\"a b\"/>")));
    EXPECT_FALSE(LiestSchnell(KapitelText("<H N=\"1\" Q=\"a\tb\"/>")));
    EXPECT_FALSE(Vergleiche(Kapiteldatei("\x01\t\n", KapitelText("<H N=\"1\" Q=\"a\x01"
                                                                 "b\"/>"))));
}

// A text cut at any place is read by the plain way, or behind its last H by either.
TEST_F(Kapitelleser, CutAtEveryByte) {
    const std::string text = KapitelText(R"(<H N="1"><U N="1" W="2"><V N="1" A="G" E="3"/></U></H><H N="2"/>)");
    for (std::size_t laenge = 0; laenge <= text.size(); ++laenge) {
        Vergleiche(Kapiteldatei("", std::string_view(text).substr(0, laenge)));
    }
}

// What the writer of chapter files makes, abbreviations and all.
TEST_F(Kapitelleser, TheSamplesHaveTheUsualForm) {
    int dateien = 0;
    for (const auto& eintrag : std::filesystem::directory_iterator(ZEPHOLT_QUELLE "/samples/katalog")) {
        std::ifstream datei(eintrag.path(), std::ios::binary);
        EXPECT_TRUE(Vergleiche(std::string(std::istreambuf_iterator<char>(datei), {}))) << eintrag.path();
        ++dateien;
    }
    EXPECT_GT(dateien, 0);
}

// --- At random -------------------------------------------------------------------------------------------------------

using Zufall = std::mt19937;

int Bis(Zufall& zufall, int hoechste) {
    return static_cast<int>(zufall() % static_cast<unsigned>(hoechste + 1));
}

std::string Merkmal(char name, int wert) {
    return std::string(" ") + name + "=\"" + std::to_string(wert) + "\"";
}

std::string ZufallsV(Zufall& zufall) {
    std::string v = "<V" + Merkmal('N', Bis(zufall, 9));
    v += Bis(zufall, 1) == 0 ? Merkmal('E', Bis(zufall, 999)) : "";
    v += Bis(zufall, 2) == 0 ? " A=\"" + std::string(static_cast<std::size_t>(Bis(zufall, 20)), 'a') + "\"" : "";
    return v + "/>";
}

std::string ZufallsU(Zufall& zufall) {
    std::string u = "<U" + Merkmal('N', Bis(zufall, 999));
    u += Bis(zufall, 4) == 0 ? Merkmal('W', Bis(zufall, 999999)) : "";
    u += Bis(zufall, 4) == 0 ? Merkmal('Y', Bis(zufall, 1)) : "";
    u += Bis(zufall, 4) == 0 ? Merkmal('X', 1) : "";
    if (Bis(zufall, 1) == 0) {
        return u + "/>";
    }
    u += ">";
    for (int anzahl = Bis(zufall, 4); anzahl >= 0; --anzahl) {
        u += ZufallsV(zufall);
    }
    return u + "</U>";
}

std::string ZufallsH(Zufall& zufall) {
    std::string h = "<H" + Merkmal('N', Bis(zufall, 999));
    if (Bis(zufall, 4) == 0) {
        return h + "/>";
    }
    h += ">";
    for (int anzahl = Bis(zufall, 6); anzahl >= 0; --anzahl) {
        h += ZufallsU(zufall);
    }
    return h + "</H>";
}

std::string ZufallsText(Zufall& zufall) {
    std::string innen;
    for (int anzahl = Bis(zufall, 5); anzahl >= 0; --anzahl) {
        innen += ZufallsH(zufall);
    }
    return KapitelText(innen + (Bis(zufall, 1) == 0 ? "<Texte><T>Ein Text</T></Texte>" : ""));
}

// The same text with abbreviations for some of its stretches; code 10 ends an entry and is left out.
std::string MitAbkuerzungen(Zufall& zufall, std::string text) {
    std::string tabelle;
    for (char code = 1; code < 32; ++code) {
        const auto ab = static_cast<std::size_t>(zufall() % text.size());
        const std::string stueck = text.substr(ab, 2 + zufall() % 30);
        const bool schonGekuerzt = std::any_of(stueck.begin(), stueck.end(), [](char z) { return z >= 0 && z < 32; });
        if (code == 10 || schonGekuerzt) {
            continue;
        }
        tabelle += code + stueck + '\n';
        for (std::size_t i = 0; (i = text.find(stueck, i)) != std::string::npos; ++i) {
            text.replace(i, stueck.size(), 1, code);
        }
    }
    return Kapiteldatei(tabelle, text);
}

TEST_F(Kapitelleser, RandomChaptersInTheirUsualForm) {
    Zufall zufall(451);
    for (int lauf = 0; lauf < 500 && !HasFailure(); ++lauf) {
        const std::string text = ZufallsText(zufall);
        EXPECT_TRUE(Vergleiche(Kapiteldatei("", text))) << text;
        EXPECT_TRUE(Vergleiche(MitAbkuerzungen(zufall, text))) << text;
    }
}

TEST_F(Kapitelleser, RandomChaptersWithDamage) {
    Zufall zufall(452);
    int schnell = 0;
    constexpr std::string_view ersatz = "<>/\"= HUVNA019x\x01\x1F";
    for (int lauf = 0; lauf < 6000 && !HasFailure(); ++lauf) {
        const std::string text = ZufallsText(zufall);
        std::string datei = lauf % 2 == 0 ? Kapiteldatei("", text) : MitAbkuerzungen(zufall, text);
        for (int anzahl = Bis(zufall, 2); anzahl >= 0; --anzahl) {
            const std::size_t stelle = 30 + zufall() % (datei.size() - 30);
            switch (Bis(zufall, 2)) {
            case 0:
                datei[stelle] = ersatz[zufall() % ersatz.size()];
                break;
            case 1:
                datei.erase(stelle, 1 + zufall() % 8);
                break;
            default:
                datei.insert(stelle, datei.substr(30 + zufall() % (datei.size() - 30), 1 + zufall() % 8));
            }
        }
        schnell += Vergleiche(datei) ? 1 : 0;
    }
    EXPECT_GT(schnell, 300);
    EXPECT_LT(schnell, 5700);
}

// --- Alternative groups ----------------------------------------------------------------------------------------------

// A group of 300,000 characters for each of a hundred variables, by two abbreviations of its text.
TEST_F(Kapitelleser, LongNamesOfGroupsAreComparedOnce) {
    std::string variablen;
    for (int v = 0; v < 100; ++v) {
        variablen += "<V N=\"" + std::to_string(v) + "\" A=\"\x01" + std::to_string(v % 2) + "\"/>";
    }
    const std::string datei = Kapiteldatei("\x01" + std::string(300000, 'g') + "\n",
                                           KapitelText("<H N=\"1\"><U N=\"1\">" + variablen + "</U></H>"));
    EXPECT_TRUE(Vergleiche(datei));
    ASSERT_EQ(kapitelDaten.KapitelVListe.size(), 100U);
    for (std::size_t v = 0; v < 100; ++v) {
        EXPECT_EQ(kapitelDaten.KapitelVListe[v].Gruppe, 1 + v % 2);
    }
}

} // namespace
} // namespace zepholt
