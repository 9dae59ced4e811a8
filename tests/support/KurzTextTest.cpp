// The short view behaves as the long one does.
#include "support/KurzText.h"

#include <gtest/gtest.h>

namespace zepholt {
namespace {

TEST(KurzTextTest, IsTheViewThatItWasMadeOf) {
    const Text speicher(0xFFFF, u'x');
    for (const std::size_t laenge : {std::size_t{1}, std::size_t{30}, std::size_t{0xFFFF}}) {
        const TextSicht sicht = TextSicht(speicher).substr(0, laenge);
        const KurzText kurz = sicht;
        const TextSicht zurueck = kurz;
        EXPECT_EQ(zurueck.data(), sicht.data()); // a view, no copy
        EXPECT_EQ(zurueck.size(), laenge);
        EXPECT_EQ(kurz.size(), laenge);
        EXPECT_FALSE(kurz.empty());
    }
}

TEST(KurzTextTest, EveryEmptyTextIsTheSame) {
    const Text speicher = u"abc";
    for (const KurzText kurz :
         {KurzText(), KurzText(TextSicht()), KurzText(TextSicht(speicher).substr(3)), KurzText(u"")}) {
        EXPECT_TRUE(kurz.empty());
        EXPECT_EQ(kurz.size(), 0U);
        EXPECT_EQ(TextSicht(kurz), TextSicht());
        EXPECT_TRUE(kurz == KurzText());
    }
}

TEST(KurzTextTest, IsComparedByItsCharacters) {
    const Text eins = u"abc";
    const Text zwei = u"abc";
    EXPECT_TRUE(KurzText(eins) == KurzText(zwei));
    EXPECT_TRUE(KurzText(eins) == TextSicht(zwei));
    EXPECT_TRUE(TextSicht(zwei) == KurzText(eins));
    EXPECT_TRUE(KurzText(eins) == u"abc");
    EXPECT_TRUE(KurzText(eins) != u"abd");
    EXPECT_TRUE(KurzText(eins) != u"ab");
    EXPECT_TRUE(KurzText(eins) != KurzText());
}

} // namespace
} // namespace zepholt
