#include "support/StringBuilder.h"

#include <gtest/gtest.h>

#include <array>

namespace zepholt {
namespace {

TEST(StringBuilder, FrischIstLeer) {
    const StringBuilder sammler;
    EXPECT_EQ(sammler.GetString(), u"");
    EXPECT_EQ(sammler.PufferLaenge(), 0U);
}

TEST(StringBuilder, OhneAnkuendigungWieMitAnkuendigungNull) {
    StringBuilder sammler;
    sammler.Append(u"a");
    EXPECT_EQ(sammler.PufferLaenge(), 10000U);
    EXPECT_EQ(sammler.GetString(), u"a");
}

TEST(StringBuilder, NullUndNegativGebenLeerenPuffer) {
    for (const std::int32_t groesse : {0, -1, -2147483647 - 1}) {
        StringBuilder sammler;
        sammler.Capacity(groesse);
        EXPECT_EQ(sammler.PufferLaenge(), 0U) << groesse;
        sammler.Append(u"ab");
        EXPECT_EQ(sammler.PufferLaenge(), 10000U) << groesse;
        EXPECT_EQ(sammler.GetString(), u"ab") << groesse;
    }
}

TEST(StringBuilder, WasGenauPasstLaesstDenPufferNichtWachsen) {
    StringBuilder sammler;
    sammler.Capacity(5);
    sammler.Append(u"abc");
    sammler.Append(u"de");
    EXPECT_EQ(sammler.PufferLaenge(), 5U);
    sammler.Append(u"");
    EXPECT_EQ(sammler.PufferLaenge(), 5U);
    sammler.Append(u"f");
    EXPECT_EQ(sammler.PufferLaenge(), 10005U);
    EXPECT_EQ(sammler.GetString(), u"abcdef");
}

struct Zuwachsfall {
    std::size_t Laenge;
    std::size_t Puffer;
};

TEST(StringBuilder, ZuwachsIst10000OderDasStueckWennLaenger) {
    for (const auto& [laenge, puffer] :
         {Zuwachsfall{1, 10000}, {9999, 10000}, {10000, 10000}, {10001, 10001}, {25000, 25000}}) {
        StringBuilder sammler;
        sammler.Append(Text(laenge, u'x'));
        EXPECT_EQ(sammler.PufferLaenge(), puffer) << laenge;
        EXPECT_EQ(sammler.GetString(), Text(laenge, u'x')) << laenge;
    }
}

TEST(StringBuilder, WaechstJeStueckEinmal) {
    StringBuilder sammler;
    sammler.Append(Text(9999, u'x'));
    sammler.Append(u"ab"); // one character too many: a whole step more
    EXPECT_EQ(sammler.PufferLaenge(), 20000U);
    sammler.Append(Text(15000, u'y')); // 10001 in use, 20000 at hand: grows by the piece
    EXPECT_EQ(sammler.PufferLaenge(), 35000U);
}

TEST(StringBuilder, SammelnGehtNachDemLesenWeiter) {
    StringBuilder sammler;
    sammler.Append(u"ab");
    EXPECT_EQ(sammler.GetString(), u"ab");
    sammler.Append(u"cd");
    EXPECT_EQ(sammler.GetString(), u"abcd");
}

TEST(StringBuilder, AnkuendigungVerwirftGesammeltes) {
    StringBuilder sammler;
    sammler.Append(u"ab");
    sammler.Capacity(3);
    EXPECT_EQ(sammler.GetString(), u"");
    EXPECT_EQ(sammler.PufferLaenge(), 3U);
    sammler.Append(u"c");
    EXPECT_EQ(sammler.GetString(), u"c");
}

TEST(StringBuilder, BytesWerdenZeichenGleicherNummer) {
    const std::array<unsigned char, 3> bytes = {0x41, 0x80, 0xFF};
    StringBuilder sammler;
    sammler.Append(bytes);
    EXPECT_EQ(sammler.GetString(), u"A\u0080\u00FF");
    EXPECT_EQ(std::move(sammler).GetString(), u"A\u0080\u00FF");
}

// A head may announce any size: the buffer says so, and memory is taken for what comes.
TEST(StringBuilder, RiesigeAnkuendigungKostetNichts) {
    StringBuilder sammler;
    sammler.Capacity(999999999);
    sammler.Append(u"ab");
    EXPECT_EQ(sammler.PufferLaenge(), 999999999U);
    EXPECT_EQ(sammler.GetString(), u"ab");
    EXPECT_LT(sammler.GetString().capacity(), 2000000U);
}

// Ten million pieces behind no announcement: with a copy of everything per step of 10000 this would be 100 GB of
// copies.
TEST(StringBuilder, VieleStueckeOhneAnkuendigung) {
    StringBuilder sammler;
    for (int i = 0; i < 10'000'000; ++i) {
        sammler.Append(u"0123456789");
    }
    EXPECT_EQ(sammler.GetString().size(), 100'000'000U);
    EXPECT_EQ(sammler.PufferLaenge(), 100'000'000U);
}

} // namespace
} // namespace zepholt
