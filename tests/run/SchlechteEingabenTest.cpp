// Damaged input: whole runs in this process that must end with a complete protocol or with none, as defined, and never
// with a crash or a hang. The damage is systematic, not random.
#include "hilfen/NieGemeldet.h"
#include "hilfen/Testordner.h"
#include "run/Main_Start.h"
#include "run/NeuerLauf.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace zepholt {
namespace {

using namespace hilfen;

std::string Probe(const std::string& name) {
    std::ifstream datei(std::filesystem::path(ZEPHOLT_QUELLE) / "samples" / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(datei), {}};
}

// Under an emulator, where a run costs a hundred times as much, a sample of the places must do.
constexpr std::size_t Schritt = std::filesystem::path::preferred_separator == '/' ? 1 : 61;

class SchlechteEingabenTest : public ::testing::Test {
protected:
    // Runs on a file of that content against the sample catalogue. Returns the protocol, which stays in the folder
    // under a number of its own for the check at the end.
    std::string Laufe(std::string_view inhalt, const std::string& art) {
        NeuerLauf();
        testDaten.Uhr = m_uhr;
        m_ordner.Schreibe("e." + art, inhalt);
        const std::string name = std::to_string(m_anzahl++) + ".xml";
        const auto katalog = std::filesystem::path(ZEPHOLT_QUELLE) / "samples" / "katalog";
        EXPECT_EQ(Main(u"file=\"" + m_ordner.TextPfad("e." + art) + u"\" dialog=de- errorfile=\"" +
                       m_ordner.TextPfad(name) + u"\" catalog=\"" + katalog.u16string() + u"\""),
                  0);
        const std::string protokoll = m_ordner.Lies(name);
        for (const NieGemeldet& code : NieGemeldeteCodes()) {
            EXPECT_FALSE(Meldet(protokoll, code.Code)) << code.Code;
        }
        return protokoll;
    }

    static void ErwarteGanz(const std::string& protokoll) {
        EXPECT_TRUE(protokoll.starts_with("<?xml version=\"1.0\" encoding=\"iso-8859-1\"?><SIA451><Test>"));
        EXPECT_TRUE(protokoll.ends_with("</SIA451>"));
    }

    static bool Meldet(const std::string& protokoll, int code) {
        return protokoll.find(" N=\"" + std::to_string(code) + "\" ") != std::string::npos;
    }

    // An independent parser reads every protocol written so far. Where it is not at hand (under Wine) the form alone
    // has been looked at.
    void TearDown() override {
        std::filesystem::remove(m_ordner.Pfad() / "e.01S");
        std::filesystem::remove(m_ordner.Pfad() / "e.E1S");
        if (std::system("xmllint --version >/dev/null 2>&1") == 0) { // NOLINT(cert-env33-c, concurrency-mt-unsafe)
            const std::string befehl =
                "find '" + m_ordner.Pfad().string() + "' -name '*.xml' -exec xmllint --noout {} +";
            EXPECT_EQ(std::system(befehl.c_str()), 0); // NOLINT(cert-env33-c, concurrency-mt-unsafe)
        }
    }

    Testordner m_ordner;
    Zeitpunkt (*m_uhr)() = &Jetzt;

private:
    int m_anzahl = 0;
};

TEST_F(SchlechteEingabenTest, AFileCutAtEveryByteIsRefusedAsUnreadableOrWithoutRecordZ) {
    for (const std::string art : {"01S", "E1S"}) {
        const std::string inhalt = Probe("sauber." + art);
        for (std::size_t laenge = 0; laenge < inhalt.size(); laenge += Schritt) {
            const std::string protokoll = Laufe(inhalt.substr(0, laenge), art);
            ErwarteGanz(protokoll);
            const bool ganzeZeilen = laenge > 0 && inhalt[laenge - 1] == '\n';
            ASSERT_TRUE(Meldet(protokoll, ganzeZeilen ? 2012 : 2001)) << art << " cut at " << laenge;
        }
    }
}

// From 2099 on a 451-92 file may be UTF-8. The last column of the project's name and the first of the document's number
// part a pair of surrogates.
TEST_F(SchlechteEingabenTest, CharactersThatXmlCannotHoldInTheHeader) {
    m_uhr = [] { return Zeitpunkt{2099, 6, 1, 12, 0}; };
    std::string inhalt = Probe("sauber.01S");
    const std::size_t ende = inhalt.find('\r');
    Text kopf = AusAscii(inhalt.substr(0, ende));
    kopf.replace(81, 11, u"\uFFFE          ");
    kopf.replace(92, 31, u"Haus \U0001F600                     \uFFFF\U0001F601");
    const std::string protokoll = Laufe("\xEF\xBB\xBF" + Utf8Bytes(kopf) + inhalt.substr(ende), "01S");
    ErwarteGanz(protokoll);
    EXPECT_NE(protokoll.find("<Project ID=\"\">Haus &#128512;                     </Project>"), std::string::npos);
    EXPECT_EQ(protokoll.find("&#5"), std::string::npos) << "half a pair";
    EXPECT_EQ(protokoll.find("&#6"), std::string::npos) << "U+FFFE, U+FFFF";
}

TEST_F(SchlechteEingabenTest, EveryThirdByteReplacedInTurn) {
    for (const std::string art : {"01S", "E1S"}) {
        const std::string inhalt = Probe("fehlerhaft." + art);
        for (std::size_t stelle = 0; stelle < inhalt.size(); stelle += 3 * Schritt) {
            std::string verfaelscht = inhalt;
            verfaelscht[stelle] = static_cast<char>(verfaelscht[stelle] ^ "\x01\x80\xFF"[stelle / 3 % 3]);
            ErwarteGanz(Laufe(verfaelscht, art));
        }
    }
}

TEST_F(SchlechteEingabenTest, EachLineLeftOutOrDoubled) {
    for (const std::string art : {"01S", "E1S"}) {
        const std::string inhalt = Probe("fehlerhaft." + art);
        for (std::size_t anfang = 0; anfang < inhalt.size(); anfang = inhalt.find('\n', anfang) + 1) {
            const std::size_t ende = inhalt.find('\n', anfang) + 1;
            ErwarteGanz(Laufe(inhalt.substr(0, anfang) + inhalt.substr(ende), art));
            ErwarteGanz(Laufe(inhalt.substr(0, ende) + inhalt.substr(anfang), art));
        }
    }
}

TEST_F(SchlechteEingabenTest, ALineOf300KilobytesGivesOneFindingForItsLength) {
    std::string inhalt = Probe("sauber.01S");
    inhalt.insert(inhalt.find("\r\n", inhalt.find("\r\n") + 2), std::string(300'000, 'x'));
    const std::string protokoll = Laufe(inhalt, "01S");
    ErwarteGanz(protokoll);
    EXPECT_TRUE(Meldet(protokoll, 2032));
}

TEST_F(SchlechteEingabenTest, NulsInEveryColumnOfALine) {
    for (const std::string art : {"01S", "E1S"}) {
        const std::string inhalt = Probe("sauber." + art);
        const std::size_t zweite = inhalt.find("\r\n") + 2;
        for (std::size_t i = zweite; inhalt[i] != '\r'; i += Schritt) {
            std::string mitNul = inhalt;
            mitNul[i] = '\0';
            ErwarteGanz(Laufe(mitNul, art));
        }
    }
}

TEST_F(SchlechteEingabenTest, AFileOfNothingButNulsOrLineEnds) {
    for (const std::string art : {"01S", "E1S"}) {
        EXPECT_TRUE(Meldet(Laufe(std::string(1000, '\0'), art), 2001));
        const std::string kennung = art == "01S" ? "2002" : "2004";
        EXPECT_TRUE(Meldet(Laufe("\r\n\r\n\r\n", art), std::stoi(kennung)));
    }
}

TEST_F(SchlechteEingabenTest, ACommandLineOfAnyShapeEndsWithoutAFile) {
    for (const TextSicht text :
         {TextSicht(u""), TextSicht(u"="), TextSicht(u"\""), TextSicht(u"file"), TextSicht(u"file=* dialog=de-"),
          TextSicht(u"file=\"\" dialog=de-"), TextSicht(u"a b c d=e \"f g"), TextSicht(u"\u0000\uFFFF=")}) {
        NeuerLauf();
        Main(text);
    }
    EXPECT_TRUE(m_ordner.Leer());
}

} // namespace
} // namespace zepholt
