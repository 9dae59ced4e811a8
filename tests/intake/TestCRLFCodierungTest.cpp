#include "intake/TestCRLFCodierung.h"

#include <gtest/gtest.h>

namespace zepholt {
namespace {

ByteSicht AlsBytes(std::string_view text) {
    return {reinterpret_cast<const unsigned char*>(text.data()), text.size()};
}

// The file read in at once, or first so many bytes of it.
std::int32_t Pruefe(std::string_view bytes, std::size_t zuerst = 0) {
    CrLfStand stand;
    CrLfPruefen(AlsBytes(bytes.substr(0, zuerst)), stand);
    return CrLfPruefen(AlsBytes(bytes), stand);
}

struct Zeilenenden {
    std::string_view Bytes;
    std::int32_t Ergebnis;
};

TEST(CrLfPruefen, JederFall) {
    const Zeilenenden faelle[] = {
        {"eine Zeile\r\n", 0},
        {"eins\r\nzwei\r\n", 0},
        {"\r\n", 0},
        {"\r\n\r\n", 0},
        {"eine Zeile", 1},
        {"eins\r\nzwei", 1},
        {"eins\nzwei\r\n", 1},
        {"eins\rzwei\r\n", 1},
        {"\neins\r\n", 1},
        {"\n", 1},
        {"\r", 1},
        {"eins\r", 1},
        {"eins\r\n\r", 1},
        {"eins\n", 1},
        {"eins\r\r\n", 1},
        {"eins\r\n\n", 1},
        {"eins\n\r\n", 1},
        {"eins\n\r", 1},
        {"x", 1},
        {"", 1},
    };
    for (const Zeilenenden& fall : faelle) {
        EXPECT_EQ(Pruefe(fall.Bytes), fall.Ergebnis) << ::testing::PrintToString(fall.Bytes);
    }
}

// The rule as it is told, byte by byte.
std::int32_t Schrittweise(std::string_view bytes) {
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] == '\n' && (i == 0 || bytes[i - 1] != '\r')) {
            return 1;
        }
        if (bytes[i] == '\r' && (i + 1 == bytes.size() || bytes[i + 1] != '\n')) {
            return 1;
        }
    }
    return !bytes.empty() && bytes.back() == '\n' ? 0 : 1;
}

TEST(CrLfPruefen, JedeFolgeAusDreiZeichenBisZurLaengeSieben) {
    for (std::size_t laenge = 1; laenge <= 7; ++laenge) {
        std::size_t anzahl = 1;
        for (std::size_t i = 0; i < laenge; ++i) {
            anzahl *= 3;
        }
        for (std::size_t nummer = 0; nummer < anzahl; ++nummer) {
            std::string bytes;
            for (std::size_t rest = nummer; bytes.size() < laenge; rest /= 3) {
                bytes.push_back("x\r\n"[rest % 3]);
            }
            for (std::size_t zuerst = 0; zuerst <= laenge; ++zuerst) {
                ASSERT_EQ(Pruefe(bytes, zuerst), Schrittweise(bytes)) << ::testing::PrintToString(bytes) << zuerst;
            }
        }
    }
}

TEST(CrLfPruefen, EinFehlerWeitHinten) {
    std::string bytes;
    while (bytes.size() < 3'000'000) {
        bytes += "eine Zeile\r\n";
    }
    EXPECT_EQ(Pruefe(bytes), 0);
    bytes[2'900'000] = '\r';
    bytes[2'900'001] = 'x';
    EXPECT_EQ(Pruefe(bytes), 1);
}

} // namespace
} // namespace zepholt
