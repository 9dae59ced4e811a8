// Every index against the plain scan that it stands for, over random tables with few distinct values, so that hits and
// repeated entries are frequent. The lists grow between the searches, by entries that no record test would let in too.
#include "items/Positionstest.h"
#include "state/NummernIndex.h"
#include "state/TestDaten.h"
#include "state/Verweise.h"
#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <array>
#include <deque>
#include <iterator>
#include <limits>
#include <random>
#include <utility>

namespace zepholt {
namespace {

using namespace hilfen;

class IndexTest : public Positionstest {
protected:
    std::int32_t Zahl(std::int32_t von, std::int32_t bis) {
        return std::uniform_int_distribution<std::int32_t>(von, bis)(m_zufall);
    }

    // A text of up to `laenge` characters out of `zeichen`; it lives as long as the test.
    TextSicht Zufallstext(TextSicht zeichen, std::int32_t laenge) {
        Text text;
        for (std::int32_t n = Zahl(0, laenge); n > 0; --n) {
            text.push_back(zeichen[static_cast<std::size_t>(Zahl(0, static_cast<std::int32_t>(zeichen.size()) - 1))]);
        }
        return m_texte.emplace_back(std::move(text));
    }

private:
    std::mt19937 m_zufall{451}; // the same numbers in every run
    std::deque<Text> m_texte;
};

template <class Liste, class Praedikat>
std::int32_t Erster(const Liste& liste, Praedikat praedikat) {
    for (std::size_t i = 0; i < liste.size(); ++i) {
        if (praedikat(liste[i])) {
            return static_cast<std::int32_t>(i);
        }
    }
    return -1;
}

// What a search with a joker is defined as.
template <class Codes>
bool Durchsucht(const Codes& codes, TextSicht gesucht) {
    const std::size_t joker = gesucht.find(u'*');
    if (joker == 0) {
        return true;
    }
    return std::ranges::any_of(codes, [&](TextSicht code) {
        return joker == TextSicht::npos ? code == gesucht : code.substr(0, joker) == gesucht.substr(0, joker);
    });
}

TEST_F(IndexTest, ChaptersAndPositions) {
    for (std::int32_t runde = 0; runde < 30; ++runde) {
        sia451Datei = {};
        const std::int32_t breite = Zahl(1, 60);
        for (std::int32_t schritt = 0; schritt < 400; ++schritt) {
            const std::int32_t nummer = Zahl(-2, breite) * 1000;
            switch (Zahl(0, 4)) {
            case 0:
                sia451Datei.DokumentKapitel.emplace_back().Nummer = nummer;
                break;
            case 1:
            case 2:
                if (!sia451Datei.DokumentKapitel.empty()) {
                    const auto ziel =
                        static_cast<std::size_t>(Zahl(0, std::min(3, AnzahlElemente(sia451Datei.DokumentKapitel) - 1)));
                    sia451Datei.DokumentKapitel[ziel].Positionen.emplace_back().Nummer = nummer;
                }
                break;
            default:
                break;
            }
            const auto passt = [nummer](const auto& eintrag) { return eintrag.Nummer == nummer; };
            ASSERT_EQ(SucheKapitel(nummer), Erster(sia451Datei.DokumentKapitel, passt));
            for (std::int32_t k = 0; k < std::min(4, AnzahlElemente(sia451Datei.DokumentKapitel)); ++k) {
                const auto& positionen = sia451Datei.DokumentKapitel[static_cast<std::size_t>(k)].Positionen;
                ASSERT_EQ(SuchePosition(k, nummer), Erster(positionen, passt));
            }
        }
    }
}

TEST_F(IndexTest, NumbersOfTheWholeRange) {
    struct Eintrag {
        std::int32_t Nummer;
    };
    std::vector<Eintrag> liste;
    NummernIndex index;
    for (const std::int32_t nummer : {0, -1, 999999, std::numeric_limits<std::int32_t>::max(),
                                      std::numeric_limits<std::int32_t>::min(), 0, 999999}) {
        liste.push_back({nummer});
    }
    EXPECT_EQ(index.Finde(liste, 0), 0);
    EXPECT_EQ(index.Finde(liste, -1), 1);
    EXPECT_EQ(index.Finde(liste, 999999), 2);
    EXPECT_EQ(index.Finde(liste, std::numeric_limits<std::int32_t>::max()), 3);
    EXPECT_EQ(index.Finde(liste, std::numeric_limits<std::int32_t>::min()), 4);
    EXPECT_EQ(index.Finde(liste, 1), -1);
}

TEST_F(IndexTest, ListsOfOneStore) {
    struct Liste {
        Kette Jetzt;
        std::vector<Kette> Frueher = {{}};
        std::vector<std::int32_t> Soll;
    };
    Kettenglieder<std::int32_t> vorrat;
    std::array<Liste, 3> listen;
    const auto alle = [](auto folge) {
        std::vector<std::int32_t> zahlen;
        std::ranges::copy(folge, std::back_inserter(zahlen));
        return zahlen;
    };
    for (std::int32_t schritt = 0; schritt < 100; ++schritt) {
        Liste& liste = listen[static_cast<std::size_t>(Zahl(0, 2))];
        ASSERT_EQ(vorrat.Anfuegen(liste.Jetzt, schritt), schritt);
        liste.Frueher.push_back(liste.Jetzt);
        liste.Soll.push_back(schritt);
        ASSERT_EQ(vorrat.LetztesVon(liste.Jetzt), schritt);
        for (const Liste& eine : listen) {
            ASSERT_EQ(alle(std::as_const(vorrat).Von(eine.Jetzt)), eine.Soll);
            for (std::size_t damals = 0; damals < eine.Frueher.size(); ++damals) {
                const auto ab = eine.Soll.begin() + static_cast<std::ptrdiff_t>(damals);
                ASSERT_EQ(alle(vorrat.Seit(eine.Frueher[damals], eine.Jetzt)),
                          std::vector<std::int32_t>(ab, eine.Soll.end()));
            }
        }
    }
}

TEST_F(IndexTest, Variables) {
    PositionEintrag& position = sia451Datei.DokumentKapitel.emplace_back().Positionen.emplace_back();
    std::vector<VariableEintrag*> variablen;
    for (std::int32_t schritt = 0; schritt < 300; ++schritt) {
        const std::int32_t nummer = Zahl(0, 20);
        if (Zahl(0, 3) == 0) {
            variablen.push_back(
                &sia451Datei.Variablen.Anfuegen(position.Variablen, {.Nummer = static_cast<std::uint8_t>(nummer)}));
        }
        const std::int32_t erste = Erster(variablen, [nummer](const auto* v) { return v->Nummer == nummer; });
        ASSERT_EQ(SucheVariable(position, nummer), erste == -1 ? nullptr : variablen[static_cast<std::size_t>(erste)]);
    }
}

TEST_F(IndexTest, ChapterTexts) {
    for (std::int32_t runde = 0; runde < 30; ++runde) {
        sia451Datei = {};
        std::vector<Text> texte;
        for (std::int32_t schritt = 0; schritt < 60; ++schritt) {
            if (Zahl(0, 2) == 0) {
                const std::int32_t nummer = Zahl(0, 1) == 0 ? Zahl(100, 133) : Zahl(0, 20);
                sia451Datei.DokumentKapitel.emplace_back().Nummer = nummer;
                texte.push_back(ZahlText(nummer));
            }
            const TextSicht gesucht = Zufallstext(u"0123*", 3);
            ASSERT_EQ(KapitelGefunden(gesucht), Durchsucht(texte, gesucht));
        }
    }
}

TEST_F(IndexTest, StructureCodes) {
    for (std::int32_t runde = 0; runde < 60; ++runde) {
        sia451Datei = {};
        sia451Datei.KAGVorhanden = sia451Datei.VariantenVorhanden = sia451Datei.RaumVorhanden = true;
        std::vector<TextSicht> codes;
        std::vector<TextSicht> gruppen;
        std::vector<std::vector<TextSicht>> varianten;
        for (std::int32_t i = Zahl(0, 12); i > 0; --i) {
            codes.push_back(Zufallstext(u"ab*", 3));
            sia451Datei.KAGTabelle.Anfuegen({codes.back()});
            sia451Datei.RaumTabelle.Anfuegen({codes.back()});
            VariantengruppeEintrag gruppe;
            gruppe.Code = gruppen.emplace_back(Zufallstext(u"ab*", 1));
            varianten.emplace_back();
            for (std::int32_t v = Zahl(0, 4); v > 0; --v) {
                varianten.back().push_back(Zufallstext(u"ab", 2));
                gruppe.Varianten.Anfuegen({varianten.back().back()});
            }
            sia451Datei.VariantenTabelle.Anfuegen(std::move(gruppe));
        }
        for (std::int32_t i = 0; i < 60; ++i) {
            const TextSicht gesucht = Zufallstext(u"ab*", 3);
            ASSERT_EQ(KAGGefunden(gesucht), Durchsucht(codes, gesucht));
            ASSERT_EQ(RaumGefunden(gesucht), std::ranges::find(codes, gesucht) != codes.end());
            const TextSicht gruppe = Zufallstext(u"ab*", 1);
            const std::int32_t index = Erster(gruppen, [gruppe](TextSicht g) { return g == gruppe; });
            ASSERT_EQ(VarianteGefunden(gruppe, gesucht),
                      index != -1 && Durchsucht(varianten[static_cast<std::size_t>(index)], gesucht));
        }
    }
}

// The searches go from position to position and back, which no sorted file does.
TEST_F(IndexTest, QuantitiesByTheirNineReferences) {
    // Mostly empty, and texts that make the same row when they are joined. The kind (column 44) has no say.
    const auto zufallsmenge = [this] {
        std::vector<Feldwert> felder = {{44, Zahl(0, 1) == 0 ? u"A" : u"B"}};
        for (const std::int32_t spalte : {18, 24, 30, 33, 82, 87, 129, 168, 188}) {
            felder.push_back({spalte, Zahl(0, 3) == 0 ? u"a" : u""});
        }
        return m_zeilen.Anfuegen(Zeile(u"G6", felder));
    };
    for (std::int32_t runde = 0; runde < 10; ++runde) {
        Beginne(Neu);
        for (std::int32_t k = 0; k < 2; ++k) {
            sia451Datei.DokumentKapitel.emplace_back().Positionen.resize(2);
        }
        std::array<std::vector<Verweissatz>, 4> bisher;
        for (std::int32_t schritt = 0; schritt < 400; ++schritt) {
            const std::int32_t kapitel = Zahl(0, 1);
            const std::int32_t position = Zahl(0, 1);
            auto& vorhandene = bisher[static_cast<std::size_t>(kapitel * 2 + position)];
            if (Zahl(0, 1) == 0) {
                vorhandene.push_back(VerweiseIn(zufallsmenge()));
                sia451Datei.Mengen.Anfuegen(sia451Datei.DokumentKapitel[static_cast<std::size_t>(kapitel)]
                                                .Positionen[static_cast<std::size_t>(position)]
                                                .Mengen,
                                            {.Zeile = testDaten.ZeilenAnzahl - 1});
            }
            const Verweissatz gesucht = VerweiseIn(zufallsmenge());
            ASSERT_EQ(HatMengeMit(kapitel, position, gesucht),
                      std::ranges::find(vorhandene, gesucht) != vorhandene.end());
        }
    }
}

TEST_F(IndexTest, EachOfTheNineReferencesTellsQuantitiesApart) {
    const Feldsicht leer = m_zeilen.Anfuegen(Zeile(u"G6", {}));
    for (const auto& [spalte, laenge] : std::initializer_list<std::pair<std::int32_t, std::int32_t>>{
             {18, 6}, {24, 6}, {30, 3}, {33, 3}, {82, 5}, {87, 6}, {129, 6}, {168, 16}, {188, 16}}) {
        EXPECT_NE(VerweiseIn(m_zeilen.Anfuegen(Zeile(u"G6", {{spalte, u"x"}}))), VerweiseIn(leer)) << spalte;
        EXPECT_NE(VerweiseIn(m_zeilen.Anfuegen(Zeile(u"G6", {{spalte + laenge - 1, u"x"}}))), VerweiseIn(leer))
            << spalte;
    }
    for (const std::int32_t spalte : {17, 36, 81, 93, 128, 135, 167, 184, 187, 204}) {
        EXPECT_EQ(VerweiseIn(m_zeilen.Anfuegen(Zeile(u"G6", {{spalte, u"x"}}))), VerweiseIn(leer)) << spalte;
    }
}

TEST_F(IndexTest, Orders) {
    for (std::int32_t runde = 0; runde < 20; ++runde) {
        PositionEintrag position;
        std::vector<std::int32_t> bisher;
        for (std::int32_t schritt = 0; schritt < 120; ++schritt) {
            const std::int32_t reihenfolge = Zahl(0, 99);
            const bool vergeben = reihenfolge != 0 && std::ranges::find(bisher, reihenfolge) != bisher.end();
            ASSERT_EQ(ReihenfolgeVergeben(position, reihenfolge), vergeben);
            ReihenfolgeMerken(position, reihenfolge);
            bisher.push_back(reihenfolge);
        }
    }
}

// Numbers of digits against texts of any kind: by value in the new interface, by text in the old one.
TEST_F(IndexTest, RunningNumbers) {
    for (const std::int32_t revision : {Alt, Neu}) {
        testDaten.Revision = revision;
        for (std::int32_t runde = 0; runde < 40; ++runde) {
            sia451Datei = {};
            std::vector<TextSicht> bisher;
            for (std::int32_t schritt = 0; schritt < 150; ++schritt) {
                const TextSicht nummer = Zufallstext(u"0012", 4);
                const auto gleich = [&](TextSicht text) {
                    if (nummer.empty() || text.empty()) {
                        return false;
                    }
                    return revision == Neu ? ZahlAmAnfang(text) == GanzzahlAmAnfang(nummer) : text == nummer;
                };
                ASSERT_EQ(LaufnummerVergeben(nummer), std::ranges::any_of(bisher, gleich));
                const TextSicht neu = Zufallstext(u"0012 .-+A", 7);
                bisher.push_back(neu);
                LaufnummerMerken(neu);
            }
        }
    }
}

TEST_F(IndexTest, TheLongestRunningNumbers) {
    for (const std::int32_t revision : {Alt, Neu}) {
        testDaten.Revision = revision;
        sia451Datei = {};
        LaufnummerMerken(u"9999999");
        EXPECT_TRUE(LaufnummerVergeben(u"9999999"));
        EXPECT_FALSE(LaufnummerVergeben(u"999999"));
        EXPECT_FALSE(LaufnummerVergeben(u"0000000"));
        LaufnummerMerken(u"0000000");
        EXPECT_TRUE(LaufnummerVergeben(u"0000000"));
        EXPECT_EQ(LaufnummerVergeben(u"0"), revision == Neu);
    }
}

} // namespace
} // namespace zepholt
