// The short view behaves as the long one does.
#include "state/KurzText.h"

#include <gtest/gtest.h>

namespace zepholt {
namespace {

constexpr std::size_t Laengen[] = {1, 30, KurzText::Hoechstlaenge};

TEST(KurzTextTest, IsTheViewThatItWasMadeOf) {
    const Text breit(KurzText::Hoechstlaenge, u'x');
    const std::vector<unsigned char> bytes(KurzText::Hoechstlaenge, 'x');
    for (const std::size_t laenge : Laengen) {
        for (const Feldsicht sicht : {Feldsicht(breit).substr(0, laenge), Feldsicht(bytes.data(), laenge)}) {
            const KurzText kurz = sicht;
            const Feldsicht zurueck = kurz;
            EXPECT_EQ(zurueck.IstBreit(), sicht.IstBreit());
            EXPECT_EQ(zurueck.Bytes(), sicht.Bytes()); // a view, no copy
            EXPECT_EQ(zurueck.size(), laenge);
            EXPECT_EQ(kurz.size(), laenge);
            EXPECT_FALSE(kurz.empty());
        }
    }
}

TEST(KurzTextTest, EveryEmptyTextIsTheSame) {
    const Text speicher = u"abc";
    for (const KurzText kurz :
         {KurzText(), KurzText(Feldsicht()), KurzText(Feldsicht(speicher).substr(3)), KurzText(u"")}) {
        EXPECT_TRUE(kurz.empty());
        EXPECT_EQ(kurz.size(), 0U);
        EXPECT_TRUE(kurz == KurzText());
    }
}

TEST(KurzTextTest, IsComparedByItsCharacters) {
    const Text eins = u"abc";
    const Text zwei = u"abc";
    EXPECT_TRUE(KurzText(Feldsicht(eins)) == KurzText(Feldsicht(zwei)));
    EXPECT_TRUE(KurzText(Feldsicht(eins)) == Feldsicht(zwei));
    EXPECT_TRUE(KurzText(u"abc") == u"abc");
    EXPECT_TRUE(KurzText(u"abc") != u"abd");
    EXPECT_TRUE(KurzText(u"abc") != u"ab");
    EXPECT_TRUE(KurzText(u"abc") != KurzText());
}

} // namespace
} // namespace zepholt
