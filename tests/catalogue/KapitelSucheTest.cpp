// The indexes of the chapter against plain walks from the first entry, on random chapters that hold what a catalogue
// never would: numbers out of order, doubled, negative, ranges of any kind.
#include "catalogue/VLTKapitel.h"
#include "run/NeuerLauf.h"

#include "catalogue/Kapitelbau.h"

#include <gtest/gtest.h>

#include <array>
#include <ctime>
#include <functional>
#include <random>

namespace zepholt {
namespace {

using namespace hilfen;

// --- The searches as plain walks -------------------------------------------------------------------------------------

std::int32_t GangH(std::int32_t nummer) {
    for (std::size_t i = 0; i < kapitelDaten.KapitelH.size(); ++i) {
        if (kapitelDaten.KapitelH[i].N == nummer) {
            return static_cast<std::int32_t>(i);
        }
    }
    return -1;
}

std::vector<UEintrag> Us(std::int32_t h) {
    const HEintrag& eintrag = kapitelDaten.KapitelH[static_cast<std::size_t>(h)];
    const auto ab = kapitelDaten.KapitelUListe.begin() + eintrag.ErstesU;
    return {ab, ab + eintrag.UAnzahl};
}

std::int32_t GangU(std::int32_t h, std::int32_t nummer) {
    const std::vector<UEintrag> liste = Us(h);
    for (std::size_t i = 0; i < liste.size(); ++i) {
        if (liste[i].N == nummer) {
            return static_cast<std::int32_t>(i);
        }
    }
    return -1;
}

std::int32_t GangV(const UEintrag& u, std::int32_t nummer) {
    for (std::int32_t i = 0; i < u.VAnzahl; ++i) {
        if (kapitelDaten.KapitelVListe[u.ErstesV + static_cast<std::size_t>(i)].N == nummer) {
            return i;
        }
    }
    return -1;
}

bool GangInWiederholungsbereich(std::int32_t position) {
    const std::int32_t h = position % 1000 == 0 ? -1 : GangH(position / 1000 % 1000);
    if (h < 0) {
        return false;
    }
    for (const UEintrag& u : Us(h)) {
        if (u.W != 0 && u.W / 1000 <= position % 1000 && position % 1000 <= u.W % 1000) {
            return true;
        }
    }
    return false;
}

std::size_t GangDahinter(std::int32_t position) {
    std::size_t i = 0;
    while (i < kapitelDaten.Endknoten.size() && kapitelDaten.Endknoten[i] <= position) {
        ++i;
    }
    return i;
}

bool GangIstEndknoten(std::int32_t position) {
    if (position < 1 || position % 10 != 0) {
        return true;
    }
    std::int32_t ende = position;
    std::int32_t stufe = 10;
    do {
        ende += stufe * 9 / 10;
        stufe *= 10;
    } while (position % stufe == 0);
    const std::size_t i = GangDahinter(position);
    return i == kapitelDaten.Endknoten.size() || kapitelDaten.Endknoten[i] > ende;
}

bool GangPositionImKatalog(std::int32_t position, bool& istWiederholung, bool& meldet6213, std::int32_t grenze) {
    istWiederholung = false;
    meldet6213 = false;
    const std::int32_t unter = position % 1000;
    const std::int32_t h = GangH(position / 1000);
    if (h < 0) {
        return false;
    }
    if (unter == 0) {
        return true;
    }
    std::int32_t u = GangU(h, unter);
    if (u >= 0 && Us(h)[static_cast<std::size_t>(u)].W == 0) {
        return true;
    }
    if (u < 0) {
        const std::size_t i = GangDahinter(position);
        if (kapitelDaten.Endknoten.empty() || i == 0) {
            return false;
        }
        u = GangU(h, kapitelDaten.Endknoten[i - 1] % 1000);
    }
    if (u < 0 || Us(h)[static_cast<std::size_t>(u)].W == 0) {
        return false;
    }
    const std::int32_t von = Us(h)[static_cast<std::size_t>(u)].W / 1000;
    const std::int32_t bis = Us(h)[static_cast<std::size_t>(u)].W % 1000;
    if (!(von < unter && unter <= bis)) {
        return false;
    }
    if (grenze != 0 && !(von < grenze % 1000 && grenze % 1000 <= bis)) {
        return false;
    }
    if (position % 10 == 0) {
        meldet6213 = von % 10 != 0 || (von % 100 != 0 && position % 100 == 0);
    }
    istWiederholung = GangU(h, von) >= 0;
    return istWiederholung;
}

// --- The text branches as they are defined ---------------------------------------------------------------------------

struct Schluessel {
    std::int32_t Wert;
    std::int32_t Zaehler;
};

void GangZaehle(std::vector<Schluessel>& liste, std::int32_t schluessel, std::int32_t letzte) {
    if (liste.empty() || liste.back().Wert != schluessel) {
        liste.push_back({schluessel, 0});
    }
    liste.back().Zaehler += letzte != 0 ? 1 : 0;
}

std::vector<TextAst> GangTextAeste() {
    std::array<std::vector<Schluessel>, 3> listen;
    for (const std::int32_t p : kapitelDaten.Endknoten) {
        const std::int32_t m = p / 1000 % 1000;
        const std::int32_t letzte = p % 10;
        if (m / 100 % 10 == 0) {
            continue;
        }
        GangZaehle(listen[0], p / 100000 * 100, letzte);
        if (m / 10 % 10 == 0) {
            continue;
        }
        GangZaehle(listen[1], p / 10000 * 10, letzte);
        if (m % 10 == 0) {
            continue;
        }
        GangZaehle(listen[2], m, letzte);
    }
    std::vector<TextAst> aeste;
    const std::int32_t stufen[] = {100, 10, 1};
    for (std::size_t s = 0; s < 3; ++s) {
        std::vector<Schluessel>& liste = listen[s];
        for (Schluessel& k : liste) {
            for (const TextAst& ast : aeste) {
                if (k.Zaehler == 0 && ast.Von <= k.Wert && k.Wert <= ast.Bis) {
                    k.Zaehler = -1;
                }
            }
        }
        for (std::size_t i = 0; i < liste.size(); ++i) {
            if (liste[i].Zaehler != 0) {
                continue;
            }
            TextAst ast;
            ast.Von = liste[i].Wert;
            ast.Bis = ast.Von + stufen[s] - 1;
            while (i + 1 < liste.size() && liste[i + 1].Wert == liste[i].Wert + stufen[s] &&
                   liste[i + 1].Zaehler == 0) {
                ast.Bis += stufen[s];
                ++i;
            }
            ast.GeltungVon = ast.Bis + 1;
            ast.GeltungBis = s == 0 ? 999 : s == 1 ? ast.Von / 100 * 100 + 99 : ast.Von / 10 * 10 + 9;
            aeste.push_back(ast);
        }
    }
    return aeste;
}

// --- Random chapters -------------------------------------------------------------------------------------------------

using Zufall = std::mt19937;

int Aus(Zufall& zufall, int von, int bis) {
    return von + static_cast<int>(zufall() % static_cast<unsigned>(bis - von + 1));
}

// `wild` leaves the order and the range of the numbers to chance.
std::string ZufallsKapitel(Zufall& zufall, bool wild) {
    std::string text;
    int h = 100;
    for (int i = Aus(zufall, 0, 12); i > 0; --i) {
        h = wild && Aus(zufall, 0, 3) == 0 ? Aus(zufall, -30, 999) : std::min(h + Aus(zufall, wild ? 0 : 1, 60), 999);
        text += "<H N=\"" + std::to_string(h) + "\"><X a=\"\"/>";
        int u = 0;
        for (int j = Aus(zufall, 0, 12); j > 0; --j) {
            u = wild && Aus(zufall, 0, 3) == 0 ? Aus(zufall, -20, 1200) : u + Aus(zufall, wild ? 0 : 1, 20);
            const int nummer = Aus(zufall, 0, 1) == 0 ? u / 10 * 10 : u;
            text += "<U N=\"" + std::to_string(nummer) + "\"";
            if (Aus(zufall, 0, 2) == 0) {
                const int von = Aus(zufall, 0, 1) == 0 ? nummer : Aus(zufall, -10, 999);
                text += " W=\"" + std::to_string(von * 1000 + std::min(von + Aus(zufall, -5, 60), 999)) + "\"";
            }
            text += ">";
            for (int k = Aus(zufall, 1, 4); k > 0; --k) {
                text += "<V N=\"" + std::to_string(Aus(zufall, 0, 5)) + "\" A=\"" + std::to_string(k) + "\"/>";
            }
            text += "</U>";
        }
        text += "</H>";
    }
    return text;
}

class KapitelSuche : public testing::Test {
protected:
    void SetUp() override { NeuerLauf(); }
    void TearDown() override { NeuerLauf(); }
};

void VergleicheSuchen(std::int32_t position, std::int32_t grenze) {
    ASSERT_EQ(FindeH(position / 1000), GangH(position / 1000) >= 0);
    ASSERT_EQ(kapitelDaten.AktuellesH, GangH(position / 1000));
    if (const std::int32_t h = kapitelDaten.AktuellesH; h >= 0) {
        FindeU(position % 1000);
        ASSERT_EQ(kapitelDaten.AktuellesU, GangU(h, position % 1000));
        if (kapitelDaten.AktuellesU >= 0) {
            const UEintrag u = Us(h)[static_cast<std::size_t>(kapitelDaten.AktuellesU)];
            FindeV(grenze % 6);
            ASSERT_EQ(kapitelDaten.AktuellesV, GangV(u, grenze % 6));
        }
    }
    bool sollWiederholung = false;
    bool soll6213 = false;
    const Katalogstelle stelle = PositionImKatalog(position, grenze);
    ASSERT_EQ(stelle.Da, GangPositionImKatalog(position, sollWiederholung, soll6213, grenze))
        << position << ' ' << grenze;
    ASSERT_EQ(stelle.IstWiederholung, sollWiederholung) << position;
    ASSERT_EQ(stelle.AnfangPasstNicht, soll6213) << position;
    ASSERT_EQ(IstEndknoten(position), GangIstEndknoten(position)) << position;
    ASSERT_EQ(InWiederholungsbereich(position), GangInWiederholungsbereich(position)) << position;
}

void VergleicheTextAst(std::int32_t position, const std::vector<TextAst>& aeste) {
    std::int32_t von = 0;
    std::int32_t bis = 0;
    const bool gefunden = InTextAst(position, von, bis);
    for (const TextAst& ast : aeste) {
        if (ast.Von <= position / 1000 && position / 1000 <= ast.Bis) {
            ASSERT_TRUE(gefunden) << position;
            ASSERT_EQ(von, ast.GeltungVon * 1000);
            ASSERT_EQ(bis, ast.GeltungBis * 1000 + 999);
            return;
        }
    }
    ASSERT_FALSE(gefunden) << position;
}

void VergleicheAeste() {
    const std::vector<TextAst> aeste = GangTextAeste();
    ASSERT_EQ(kapitelDaten.TextAeste.size(), aeste.size());
    for (std::size_t i = 0; i < aeste.size(); ++i) {
        ASSERT_EQ(kapitelDaten.TextAeste[i].Von, aeste[i].Von);
        ASSERT_EQ(kapitelDaten.TextAeste[i].Bis, aeste[i].Bis);
        ASSERT_EQ(kapitelDaten.TextAeste[i].GeltungVon, aeste[i].GeltungVon);
        ASSERT_EQ(kapitelDaten.TextAeste[i].GeltungBis, aeste[i].GeltungBis);
    }
    for (std::int32_t h = -999; h <= 999; ++h) {
        VergleicheTextAst(h * 1000, aeste);
    }
}

TEST_F(KapitelSuche, WieDerGangVonVorn) {
    Zufall zufall(451);
    for (int lauf = 0; lauf < 500 && !HasFatalFailure(); ++lauf) {
        ASSERT_TRUE(LiesKapitel(ZufallsKapitel(zufall, lauf % 3 != 0)));
        VergleicheAeste();
        for (int frage = 0; frage < 40 && !HasFatalFailure(); ++frage) {
            const auto& endknoten = kapitelDaten.Endknoten;
            const bool inDerNaehe = !endknoten.empty() && frage % 4 != 0;
            const std::int32_t position = inDerNaehe ? endknoten[zufall() % endknoten.size()] + Aus(zufall, -30, 60)
                                                     : Aus(zufall, -30000, 999999);
            const std::int32_t stelle = frage % 3 == 0   ? position / 10 * 10
                                        : frage % 7 == 0 ? position / 100 * 100
                                                         : position;
            VergleicheSuchen(stelle, frage % 2 == 0 ? 0 : stelle + Aus(zufall, -30, 30));
        }
    }
}

// --- Large chapters --------------------------------------------------------------------------------------------------

// Processor time, so that a busy machine counts for nothing.
double Sekunden(const std::function<void()>& arbeit) {
    const std::clock_t anfang = std::clock();
    arbeit();
    return static_cast<double>(std::clock() - anfang) / CLOCKS_PER_SEC;
}

// 32767 main positions in falling order, each with two sub-positions out of order: a walk per question would take 50000
// times 32767 steps and more for the end nodes.
TEST_F(KapitelSuche, VieleFragenAnEinGrossesKapitel) {
    std::string text;
    for (int h = 32767; h > 0; --h) {
        text += "<H N=\"" + std::to_string(h) + "\"><U N=\"200\"/><U N=\"110\" W=\"110199\"/></H>";
    }
    ASSERT_TRUE(LiesKapitel(text));
    ASSERT_EQ(kapitelDaten.Endknoten.size(), 2U * 32767);
    int gefunden = 0;
    const double sekunden = Sekunden([&gefunden] {
        for (std::int32_t i = 0; i < 50000; ++i) {
            const std::int32_t position = i % 999 * 1000 + 1000 + i % 3 * 100;
            gefunden += PositionImKatalog(position, 0).Da ? 1 : 0;
            gefunden += InWiederholungsbereich(position + 50) ? 1 : 0;
            gefunden += IstEndknoten(position) ? 1 : 0;
        }
    });
    EXPECT_GT(gefunden, 50000);
    EXPECT_LT(sekunden, 5);
}

TEST_F(KapitelSuche, EinHMitAllemUngeordnet) {
    std::string text = "<H N=\"111\">";
    for (int u = 32767; u > 0; --u) {
        text += "<U N=\"" + std::to_string(u) + "\" W=\"" + std::to_string(u % 999 * 1000 + u % 999) + "\"/>";
    }
    ASSERT_TRUE(LiesKapitel(text + "</H>"));
    ASSERT_TRUE(FindeH(111));
    int gefunden = 0;
    const double sekunden = Sekunden([&gefunden] {
        for (std::int32_t i = 0; i < 100000; ++i) {
            gefunden += FindeU(i) ? 1 : 0;
            gefunden += InWiederholungsbereich(111000 + i % 1000) ? 1 : 0;
        }
    });
    EXPECT_EQ(gefunden, 32767 + 99800); // every number but the 100 times xxx000 and 100 times xxx999
    EXPECT_LT(sekunden, 5);
}

// The groups of a catalogue out of order: as many keys as end nodes, and as many branches.
TEST_F(KapitelSuche, VieleTextAeste) {
    std::string text;
    for (int i = 0; i < 32000; ++i) {
        text += i % 2 == 0 ? "<H N=\"311\"><U N=\"100\"/></H>" : "<H N=\"111\"><U N=\"100\"/></H>";
    }
    const double sekunden = Sekunden([&text] { ASSERT_TRUE(LiesKapitel(text)); });
    EXPECT_EQ(kapitelDaten.TextAeste.size(), 32000U);
    EXPECT_LT(sekunden, 5);
}

} // namespace
} // namespace zepholt
