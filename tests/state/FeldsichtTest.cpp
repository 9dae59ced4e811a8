// Columns of one byte and of 16 bits answer alike, and the sets of a record's columns are those of the plain way.
#include "intake/UTF8_Speicherung.h"
#include "state/Satz.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

namespace zepholt {
namespace {

// The same columns in both widths, under code page 850.
struct Paar {
    explicit Paar(std::vector<unsigned char> ausBytes) : Bytes(std::move(ausBytes)) {
        codeseite = Codeseite850();
        for (const unsigned char byte : Bytes) {
            Zeichen.push_back(codeseite.Zeichen[byte]);
        }
    }
    Feldsicht Schmal() const { return {Bytes.data(), Bytes.size()}; }
    Feldsicht Breit() const { return Zeichen; }

    std::vector<unsigned char> Bytes;
    Text Zeichen;
};

// Few distinct bytes, so that equal views and prefixes are frequent.
std::vector<unsigned char> Zufallsbytes(std::mt19937& zufall, std::size_t laenge) {
    constexpr unsigned char Vorrat[] = {'A', 'B', '*', ' ', '0', '9', 0x81, 0xE1, 0x9B, '\t'};
    std::vector<unsigned char> bytes(laenge);
    std::ranges::generate(bytes, [&] { return Vorrat[zufall() % std::size(Vorrat)]; });
    return bytes;
}

TEST(FeldsichtTest, BothWidthsAnswerAlike) {
    std::mt19937 zufall(451);
    for (int runde = 0; runde < 5000; ++runde) {
        const Paar a(Zufallsbytes(zufall, zufall() % 5));
        const Paar b(Zufallsbytes(zufall, zufall() % 5));
        const TextSicht za = a.Zeichen;
        const TextSicht zb = b.Zeichen;
        ASSERT_EQ(Text(a.Schmal()), za);
        ASSERT_EQ(Text(a.Breit()), za);
        for (const Feldsicht links : {a.Schmal(), a.Breit()}) {
            for (const Feldsicht rechts : {b.Schmal(), b.Breit()}) {
                ASSERT_EQ(links == rechts, za == zb);
                ASSERT_EQ(links <=> rechts, za <=> zb);
                ASSERT_EQ(links.starts_with(rechts), za.starts_with(zb));
            }
            ASSERT_EQ(links.find(u'*'), za.find(u'*'));
            ASSERT_EQ(links.find(u'\u00FC', 1), za.find(u'\u00FC', 1));
            ASSERT_EQ(links.empty(), za.empty());
            ASSERT_EQ(OhneLeerzeichenRechts(links).size(), za.find_last_not_of(u' ') + 1);
            const std::size_t ab = zufall() % (za.size() + 1);
            ASSERT_EQ(Text(links.substr(ab, 2)), za.substr(ab, 2));
        }
        ASSERT_EQ(Streuwert(a.Breit()) == Streuwert(b.Breit()), za == zb);
        ASSERT_EQ(Streuwert(a.Schmal()) == Streuwert(b.Schmal()), za == zb);
    }
}

TEST(FeldsichtTest, EveryColumnCountsInAFieldOfAnyLength) {
    for (std::size_t laenge = 0; laenge <= 70; ++laenge) {
        std::vector<unsigned char> links(laenge);
        std::iota(links.begin(), links.end(), static_cast<unsigned char>(' '));
        std::vector<unsigned char> rechts = links;
        const auto gleich = [&] { return Feldsicht(links.data(), laenge) == Feldsicht(rechts.data(), laenge); };
        EXPECT_TRUE(gleich()) << laenge;
        for (std::size_t spalte = 0; spalte < laenge; ++spalte) {
            rechts[spalte] ^= 1U;
            EXPECT_FALSE(gleich()) << laenge << ": " << spalte;
            rechts[spalte] ^= 1U;
        }
    }
}

TEST(FeldsichtTest, DigitsInAllColumns) {
    EXPECT_TRUE(NurZiffern(u"0123456789"));
    EXPECT_FALSE(NurZiffern(u""));
    EXPECT_FALSE(NurZiffern(u"/0"));
    EXPECT_FALSE(NurZiffern(u"0:"));
}

// --- The record in hand

Spaltenarten Schnell(Feldsicht record) {
    Spaltenarten arten;
    arten.Gefuellt.Worte.fill(0x5555); // of the record before
    arten.Ziffern.Worte = arten.Gefuellt.Worte;
    SpaltenEinteilen(record, arten);
    return arten;
}

Spaltenarten Einzeln(Feldsicht record) {
    Spaltenarten arten;
    arten.Gefuellt.Worte.fill(0x5555);
    SpaltenEinzelnEinteilen(record, arten);
    return arten;
}

void ErwarteGleich(const Spaltenarten& ist, const Spaltenarten& soll, std::size_t laenge) {
    EXPECT_EQ(ist.Gefuellt.Worte, soll.Gefuellt.Worte) << laenge;
    EXPECT_EQ(ist.Ziffern.Worte, soll.Ziffern.Worte) << laenge;
}

TEST(SatzTest, ColumnsOfEveryByte) {
    for (int byte = 0; byte < 256; ++byte) {
        const Paar satz(std::vector<unsigned char>(20, static_cast<unsigned char>(byte)));
        const Spaltenarten arten = Schnell(satz.Schmal());
        EXPECT_EQ(arten.Gefuellt.Letzte(1, 256), byte == ' ' ? 0 : 20);
        EXPECT_EQ(arten.Gefuellt.Alle(1, 20), byte != ' ');
        EXPECT_EQ(arten.Ziffern.Letzte(1, 256), byte >= '0' && byte <= '9' ? 20 : 0);
        EXPECT_EQ(arten.Ziffern.Alle(1, 20), byte >= '0' && byte <= '9');
        EXPECT_FALSE(arten.Ziffern.Alle(1, 21));
        Spaltenmenge felder;
        felder.SetzeBereich(1, 19);
        const Spaltenmenge auffaellige = AuffaelligeSpalten(satz.Schmal(), felder);
        EXPECT_EQ(auffaellige.Letzte(1, 19), byte < ' ' || byte > '~' ? 19 : 0);
        EXPECT_EQ(auffaellige.Alle(1, 19), byte < ' ' || byte > '~');
        EXPECT_EQ(auffaellige.Letzte(20, 237), byte != ' ' ? 20 : 0);
    }
}

TEST(SatzTest, TheFastWayIsThePlainWayAtEveryLength) {
    std::mt19937 zufall(815);
    for (std::size_t laenge = 0; laenge < 300; ++laenge) {
        const Paar satz(Zufallsbytes(zufall, laenge));
        ErwarteGleich(Schnell(satz.Schmal()), Einzeln(satz.Breit()), laenge);
        ErwarteGleich(Einzeln(satz.Schmal()), Einzeln(satz.Breit()), laenge);
        const Spaltenmenge felder = {{zufall(), 0, ~std::uint64_t{0}, std::uint64_t{zufall()} << 32}};
        const Spaltenmenge auffaellige = AuffaelligeSpaltenEinzeln(satz.Breit(), felder);
        EXPECT_EQ(AuffaelligeSpalten(satz.Schmal(), felder).Worte, auffaellige.Worte) << laenge;
        EXPECT_EQ(AuffaelligeSpalten(satz.Breit(), felder).Worte, auffaellige.Worte) << laenge;
    }
}

TEST(SatzTest, TheByteThatIsLookedForAmong64) {
    std::vector<unsigned char> bytes(64, 'a');
    EXPECT_EQ(GleicheBytes(bytes.data(), 'a'), ~std::uint64_t{0});
    EXPECT_EQ(GleicheBytes(bytes.data(), 'b'), 0U);
    bytes[0] = bytes[15] = bytes[16] = bytes[63] = '\n';
    EXPECT_EQ(GleicheBytes(bytes.data(), '\n'), 0x8000000000018001U);
    std::mt19937 zufall(64);
    for (int byte = 0; byte < 256; ++byte) {
        bytes = Zufallsbytes(zufall, 64);
        bytes[zufall() % 64] = static_cast<unsigned char>(byte);
        const auto gesucht = static_cast<unsigned char>(byte);
        EXPECT_EQ(GleicheBytes(bytes.data(), gesucht), GleicheBytesEinzeln(bytes.data(), gesucht)) << byte;
    }
}

TEST(SatzTest, ARuleAskedOfEachColumnOfASet) {
    Spaltenmenge menge;
    for (const std::int32_t spalte : {1, 64, 65, 256}) {
        menge.SetzeBereich(spalte, 1);
    }
    std::vector<std::int32_t> gefragt;
    const auto bis = [&gefragt](std::int32_t letzte) {
        return [&gefragt, letzte](std::int32_t spalte) {
            gefragt.push_back(spalte);
            return spalte <= letzte;
        };
    };
    EXPECT_TRUE(menge.JedeErfuellt(bis(256)));
    EXPECT_EQ(gefragt, (std::vector<std::int32_t>{1, 64, 65, 256}));
    EXPECT_FALSE(menge.JedeErfuellt(bis(255)));
    gefragt.clear();
    EXPECT_FALSE(menge.JedeErfuellt(bis(64)));
    EXPECT_EQ(gefragt, (std::vector<std::int32_t>{1, 64, 65}));
    EXPECT_TRUE(Spaltenmenge().JedeErfuellt(bis(0)));
}

TEST(SatzTest, FieldsAtEveryPlace) {
    std::mt19937 zufall(16);
    for (int runde = 0; runde < 3000; ++runde) {
        const Paar paar(Zufallsbytes(zufall, zufall() % 300));
        const Satz satz(paar.Schmal());
        const auto spalte = static_cast<std::int32_t>(1 + zufall() % 256);
        const auto laenge = static_cast<std::int32_t>(1 + zufall() % static_cast<unsigned>(257 - spalte));
        const auto ab = static_cast<std::size_t>(spalte - 1);
        Text feld = ab < paar.Zeichen.size() ? paar.Zeichen.substr(ab, static_cast<std::size_t>(laenge)) : Text();
        const bool ziffern = feld.size() == static_cast<std::size_t>(laenge) && NurZiffern(feld);
        feld.resize(feld.find_last_not_of(u' ') + 1);
        ASSERT_EQ(Text(satz.Feld(spalte, laenge)), feld);
        ASSERT_EQ(satz.IstLeer(spalte, laenge), feld.empty());
        ASSERT_EQ(satz.NurZiffern(spalte, laenge), ziffern);
    }
}

TEST(SatzTest, SetsAtTheBordersOfTheirWords) {
    for (const std::int32_t spalte : {1, 63, 64, 65, 128, 129, 192, 193, 255, 256}) {
        Spaltenmenge menge;
        menge.SetzeBereich(spalte, 1);
        EXPECT_EQ(menge.Erste(1, 256), spalte);
        EXPECT_EQ(menge.Letzte(1, 256), spalte);
        EXPECT_EQ(menge.Erste(spalte, 1), spalte);
        EXPECT_EQ(menge.Erste(spalte + 1, 256 - spalte), 0);
        EXPECT_EQ(menge.Letzte(1, spalte - 1), 0);
        EXPECT_TRUE(menge.Alle(spalte, 1));
        EXPECT_EQ(menge.Alle(spalte, 2), false);
        EXPECT_TRUE(menge.Hat(spalte));
        EXPECT_FALSE(menge.Hat(spalte == 256 ? 1 : spalte + 1));
    }
}

} // namespace
} // namespace zepholt
