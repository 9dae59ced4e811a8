// Unpacking. The packed bytes were made by xz: raw LZMA, lc = 4, lp = 0, pb = 0.
#include "hilfe/Entpacken.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace zepholt::hilfe {
namespace {

std::string Bytes(std::initializer_list<int> werte) {
    std::string bytes;
    for (const int wert : werte) {
        bytes.push_back(static_cast<char>(wert));
    }
    return bytes;
}

const std::string EinZeichen = Bytes({0, 48, 195, 235, 255, 255, 255, 225, 0, 0, 0});
const std::string Wiederholt = Bytes({0, 48, 153, 77, 220, 49, 22, 253, 215, 75, 255, 255, 179, 138, 0, 0});
// Copies at a new distance, at the latest one, at an earlier one, and of one byte.
const std::string Gemischt =
    Bytes({0, 48, 153, 104, 218, 131, 17, 153, 255, 142, 36, 226, 210, 225, 48, 95, 255, 238, 187, 128, 0});
const std::string GemischterText = "ababababab-ababababab" + std::string(36, 'a') + "-abab";

TEST(EntpackenTest, SingleBytesAndCopiesComeOut) {
    EXPECT_EQ(Entpacken(EinZeichen, 1), "a");
    EXPECT_EQ(Entpacken(Wiederholt, 13), "abcabcabcabcX");
    EXPECT_EQ(Entpacken(Gemischt, GemischterText.size()), GemischterText);
}

TEST(EntpackenTest, TheLengthThatIsAskedForEndsIt) {
    EXPECT_EQ(Entpacken(Gemischt, 0), "");
    EXPECT_EQ(Entpacken(Gemischt, 15), GemischterText.substr(0, 15));
    EXPECT_EQ(Entpacken(Wiederholt, 14), "abcabcabcabcX"); // the end mark
}

// A copy from in front of the text ends it too: nothing outside is read, which the sanitizers watch.
TEST(EntpackenTest, DamagedBytesGiveSomeTextAndNoMore) {
    for (std::size_t laenge = 0; laenge < Gemischt.size(); ++laenge) {
        EXPECT_LE(Entpacken(Gemischt.substr(0, laenge), 1000).size(), 1000U) << laenge;
    }
    for (std::size_t stelle = 0; stelle < Gemischt.size(); ++stelle) {
        for (int wert = 0; wert < 256; ++wert) {
            std::string bytes = Gemischt;
            bytes[stelle] = static_cast<char>(wert);
            EXPECT_LE(Entpacken(bytes, 1000).size(), 1000U) << stelle << " " << wert;
        }
    }
}

} // namespace
} // namespace zepholt::hilfe
