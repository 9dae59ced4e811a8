#include "support/HilfsFunktionen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <numeric>
#include <random>

namespace zepholt {
namespace {

using Raenge = std::vector<std::uint32_t>;

// The procedure as it is defined, recursion and all.
class Vorbild {
public:
    explicit Vorbild(Raenge raenge) : m_liste(std::move(raenge)), m_begleitliste(m_liste.size()) {
        std::iota(m_begleitliste.begin(), m_begleitliste.end(), 0U);
        Sortiere(0, static_cast<int>(m_liste.size()) - 1);
    }
    const Raenge& Folge() const { return m_begleitliste; }

private:
    void Sortiere(int links, int rechts) {
        if (rechts <= links) {
            return;
        }
        int i = links;
        int j = rechts;
        const std::uint32_t pivot = At(m_liste, (links + rechts) / 2);
        do {
            while (At(m_liste, i) < pivot) {
                ++i;
            }
            while (pivot < At(m_liste, j)) {
                --j;
            }
            if (i > j) {
                break;
            }
            if (i != j) {
                std::swap(At(m_liste, i), At(m_liste, j));
                std::swap(At(m_begleitliste, i), At(m_begleitliste, j));
            }
            ++i;
            --j;
        } while (i <= j);
        if (links < j) {
            Sortiere(links, j);
        }
        if (i < rechts) {
            Sortiere(i, rechts);
        }
    }
    static std::uint32_t& At(Raenge& liste, int i) { return liste.at(static_cast<std::size_t>(i)); }

    Raenge m_liste;
    Raenge m_begleitliste;
};

Raenge Aufsteigend(std::size_t n) {
    Raenge r(n);
    std::iota(r.begin(), r.end(), 0U);
    return r;
}

Raenge Absteigend(std::size_t n) {
    Raenge r = Aufsteigend(n);
    std::reverse(r.begin(), r.end());
    return r;
}

Raenge Laeufe(std::size_t n, std::size_t anzahl) { // ascending runs one behind the other
    Raenge r(n);
    const std::size_t laenge = (n + anzahl - 1) / anzahl;
    for (std::size_t k = 0; k < n; ++k) {
        r[k] = static_cast<std::uint32_t>(k % laenge);
    }
    return r;
}

Raenge Orgelpfeifen(std::size_t n) {
    Raenge r(n);
    for (std::size_t k = 0; k < n; ++k) {
        r[k] = static_cast<std::uint32_t>(std::min(k, n - 1 - k));
    }
    return r;
}

// The pivot of every pass is the greatest element of its range: each pass takes off just one element.
Raenge MitteGroesste(std::size_t n) {
    Raenge r(n);
    for (std::size_t rechts = 1; rechts < n; ++rechts) {
        r[rechts] = r[rechts / 2];
        r[rechts / 2] = static_cast<std::uint32_t>(rechts);
    }
    return r;
}

// The same with the least element of every range.
Raenge MitteKleinste(std::size_t n) {
    Raenge r(n, static_cast<std::uint32_t>(n));
    for (std::size_t links = n - 1; links-- > 0;) {
        const std::size_t mitte = (links + n - 1) / 2;
        r[links] = r[mitte];
        r[mitte] = static_cast<std::uint32_t>(links);
    }
    return r;
}

std::uint32_t Unter(std::uint32_t grenze, std::mt19937& zufall) {
    return static_cast<std::uint32_t>(zufall()) % grenze;
}

Raenge Zufaellig(std::size_t n, std::uint32_t werte, std::mt19937& zufall) {
    Raenge r(n);
    for (std::uint32_t& rang : r) {
        rang = Unter(werte, zufall);
    }
    return r;
}

TEST(SortierFolge, DreiGleicheKommenUmgekehrtHeraus) {
    EXPECT_EQ(SortierFolge({7, 7, 7}), (Raenge{2, 1, 0}));
}

TEST(SortierFolge, LeerUndEinzeln) {
    EXPECT_EQ(SortierFolge({}), Raenge{});
    EXPECT_EQ(SortierFolge({5}), Raenge{0});
}

TEST(SortierFolge, HandgerechneteFolgen) {
    EXPECT_EQ(SortierFolge({1, 1}), (Raenge{1, 0}));
    EXPECT_EQ(SortierFolge({2, 1}), (Raenge{1, 0}));
    EXPECT_EQ(SortierFolge({1, 2}), (Raenge{0, 1}));
    // Places 0 and 3, then 1 and 2 are exchanged: 3 2 1 0. Then each half is turned round once more.
    EXPECT_EQ(SortierFolge({1, 1, 1, 1}), (Raenge{2, 3, 0, 1}));
    // Places 0 and 2 are exchanged; both scans meet at the pivot, and both rests are single elements.
    EXPECT_EQ(SortierFolge({2, 1, 1}), (Raenge{2, 1, 0}));
}

TEST(SortierFolge, ExtremeRaenge) {
    constexpr std::uint32_t groesster = 0xFFFFFFFF;
    EXPECT_EQ(SortierFolge({groesster, 0, groesster, 0}), Vorbild({groesster, 0, groesster, 0}).Folge());
}

TEST(SortierFolge, AlleListenBisSechsUeberDreiRaenge) {
    for (std::size_t n = 0; n <= 6; ++n) {
        const auto anzahl = static_cast<std::uint32_t>(std::pow(3, n));
        for (std::uint32_t nummer = 0; nummer < anzahl; ++nummer) {
            Raenge r(n);
            std::uint32_t rest = nummer;
            for (std::uint32_t& rang : r) {
                rang = rest % 3;
                rest /= 3;
            }
            ASSERT_EQ(SortierFolge(r), Vorbild(r).Folge()) << "n " << n << " Nummer " << nummer;
        }
    }
}

TEST(SortierFolge, WieDasVorbildAufKleinenZufallslisten) {
    std::mt19937 zufall(451);
    for (int versuch = 0; versuch < 20000; ++versuch) {
        const Raenge r = Zufaellig(zufall() % 40, 1 + Unter(12, zufall), zufall);
        ASSERT_EQ(SortierFolge(r), Vorbild(r).Folge()) << "Versuch " << versuch;
    }
}

TEST(SortierFolge, WieDasVorbildAufGrossenZufallslisten) {
    std::mt19937 zufall(92);
    for (int versuch = 0; versuch < 60; ++versuch) {
        const std::uint32_t werte = versuch % 3 == 0 ? 3 : versuch % 3 == 1 ? 100 : 1000000;
        const Raenge r = Zufaellig(5000 + zufall() % 5000, werte, zufall);
        ASSERT_EQ(SortierFolge(r), Vorbild(r).Folge()) << "Versuch " << versuch;
    }
}

// Inputs on which a plain course runs deep, so that the index takes part; disturbed at random places as well.
TEST(SortierFolge, WieDasVorbildAufTiefenListen) {
    std::mt19937 zufall(21);
    for (const std::size_t n : {130U, 500U, 1023U, 1024U, 1025U, 3001U}) {
        const std::vector<Raenge> formen{Aufsteigend(n),  Absteigend(n),    Raenge(n, 3),
                                         Laeufe(n, 2),    Laeufe(n, 3),     Laeufe(n, 7),
                                         Orgelpfeifen(n), MitteGroesste(n), MitteKleinste(n)};
        for (std::size_t form = 0; form < formen.size(); ++form) {
            Raenge r = formen[form];
            ASSERT_EQ(SortierFolge(r), Vorbild(r).Folge()) << "Form " << form << " n " << n;
            for (int versuch = 0; versuch < 4; ++versuch) {
                for (std::size_t k = 0; k < 1 + n / 50; ++k) {
                    r[zufall() % n] = r[zufall() % n]; // equal keys come in too
                }
                ASSERT_EQ(SortierFolge(r), Vorbild(r).Folge()) << "gestoert, Form " << form << " n " << n;
            }
        }
    }
}

// Measured against a random list, so that neither the machine nor the build matters: a quadratic course takes more than
// a thousand times as long at this length.
TEST(SortierFolge, BleibtSchnellBeiJederForm) {
    constexpr std::uint32_t n = 100000;
    std::mt19937 zufall(11);
    const std::vector<Raenge> formen{
        Zufaellig(n, n, zufall), Aufsteigend(n),   Absteigend(n),   Raenge(n, 3), Laeufe(n, 2), Laeufe(n, 3),
        Orgelpfeifen(n),         MitteGroesste(n), MitteKleinste(n)};
    double zufaellige = 0;
    for (std::size_t form = 0; form < formen.size(); ++form) {
        const auto anfang = std::chrono::steady_clock::now();
        const Raenge folge = SortierFolge(formen[form]);
        const std::chrono::duration<double> dauer = std::chrono::steady_clock::now() - anfang;
        zufaellige = form == 0 ? dauer.count() : zufaellige;
        EXPECT_LT(dauer.count(), 100 * zufaellige) << "Form " << form;
        const auto geordnet = [&](std::uint32_t a, std::uint32_t b) { return formen[form][a] < formen[form][b]; };
        EXPECT_TRUE(std::is_sorted(folge.begin(), folge.end(), geordnet)) << "Form " << form;
    }
}

// The rest of a run waits for a long list only.
TEST(SortierFolge, LaesstAnderesZwischenLangenSchrittenZu) {
    static int anzahl;
    const auto zaehlen = [] { ++anzahl; };
    std::mt19937 zufall(12);
    const Raenge kurz = Zufaellig(1000, 1000, zufall);
    anzahl = 0;
    EXPECT_EQ(SortierFolge(kurz, zaehlen), SortierFolge(kurz));
    EXPECT_EQ(anzahl, 0);
    for (const Raenge& lang : {Zufaellig(300000, 300000, zufall), MitteGroesste(300000)}) {
        anzahl = 0;
        EXPECT_EQ(SortierFolge(lang, zaehlen), SortierFolge(lang));
        EXPECT_GE(anzahl, 10);
    }
}

TEST(Sortieren, NachSechzehnBitEinheiten) {
    // U+1F600 is two units from U+D83D on and so stands in front of U+FF21; upper case in front of lower case.
    std::vector<Text> liste{u"b", u"\uFF21", u"a", u"\U0001F600", u"B", u"", u"aa", u"\u00E4"};
    std::vector<Text> begleitliste{u"0", u"1", u"2", u"3", u"4", u"5", u"6", u"7"};
    Sortieren(liste, begleitliste);
    EXPECT_EQ(liste, (std::vector<Text>{u"", u"B", u"a", u"aa", u"b", u"\u00E4", u"\U0001F600", u"\uFF21"}));
    EXPECT_EQ(begleitliste, (std::vector<Text>{u"5", u"4", u"2", u"6", u"0", u"7", u"3", u"1"}));
}

TEST(Sortieren, GleicheSchluesselInDerFolgeDesVerfahrens) {
    std::vector<Text> liste{u"k", u"k", u"k"};
    std::vector<Text> begleitliste{u"a", u"b", u"c"};
    Sortieren(liste, begleitliste);
    EXPECT_EQ(begleitliste, (std::vector<Text>{u"c", u"b", u"a"}));
}

TEST(Sortieren, UngleicheLaengenBleibenWieSieSind) {
    std::vector<Text> liste{u"b", u"a"};
    std::vector<Text> begleitliste{u"1"};
    Sortieren(liste, begleitliste);
    EXPECT_EQ(liste, (std::vector<Text>{u"b", u"a"}));
    EXPECT_EQ(begleitliste, (std::vector<Text>{u"1"}));
}

TEST(Sortieren, LeereListen) {
    std::vector<Text> liste;
    std::vector<Text> begleitliste;
    Sortieren(liste, begleitliste);
    EXPECT_TRUE(liste.empty());
}

TEST(Sortieren, WieDasVorbildMitTexten) {
    std::mt19937 zufall(3002);
    for (int versuch = 0; versuch < 500; ++versuch) {
        const Raenge r = Zufaellig(zufall() % 60, 20, zufall);
        std::vector<Text> liste;
        std::vector<Text> begleitliste;
        for (std::size_t k = 0; k < r.size(); ++k) {
            liste.push_back(RechtsBuendig(ZahlText(r[k]), 6));
            begleitliste.push_back(ZahlText(static_cast<std::int64_t>(k)));
        }
        Sortieren(liste, begleitliste);
        std::vector<Text> erwartet;
        const Vorbild vorbild(r);
        for (const std::uint32_t k : vorbild.Folge()) {
            erwartet.push_back(ZahlText(k));
        }
        ASSERT_EQ(begleitliste, erwartet) << "Versuch " << versuch;
        ASSERT_TRUE(std::is_sorted(liste.begin(), liste.end()));
    }
}

} // namespace
} // namespace zepholt
