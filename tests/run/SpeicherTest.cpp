// Exhausted memory at every place of a run: the n-th allocation fails, once and from then on. The run ends with status
// 1 and one line, or as if nothing had happened, and never leaves half a protocol, anything beside it, or an open file.
#include "run/Main_Start.h"

#include "hilfen/KopfSaetze.h"
#include "hilfen/Testordner.h"
#include "run/NeuerLauf.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"
#include "support/OS_API.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr std::int64_t Nie = std::numeric_limits<std::int64_t>::max();

std::int64_t bisZumFehler = Nie; // allocations that still succeed
bool nurEinmal = false;

} // namespace

void* operator new(std::size_t anzahl) {
    if (bisZumFehler != Nie && --bisZumFehler < 0) {
        bisZumFehler = nurEinmal ? Nie : 0;
        throw std::bad_alloc();
    }
    void* platz = std::malloc(anzahl > 0 ? anzahl : 1);
    if (platz == nullptr) {
        throw std::bad_alloc();
    }
    return platz;
}

void* operator new(std::size_t anzahl, const std::nothrow_t&) noexcept {
    try {
        return operator new(anzahl);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* platz) noexcept {
    std::free(platz);
}

void operator delete(void* platz, std::size_t) noexcept {
    std::free(platz);
}

namespace zepholt {
namespace {

using namespace hilfen;

class SpeicherTest : public testing::Test {
protected:
    SpeicherTest() {
        NeuerLauf();
        std::vector<Text> saetze = {SatzA(11), Zeile(u"B1", {}), Zeile(u"G1", {{2, u"111"}, {6, u"19"}}),
                                    Zeile(u"G2", {{2, u"111"}, {8, u"111000"}, {93, u"Position"}}), SatzZ(5)};
        std::string bytes;
        for (const Text& satz : saetze) {
            bytes.append(satz.begin(), satz.end()).append("\r\n");
        }
        m_ordner.Schreibe("a.01S", bytes);
        std::filesystem::create_directory(m_ordner.Pfad() / "k");
        std::filesystem::create_directory(m_ordner.Pfad() / "aus");
        m_parameter = {"zepholt", "file=" + Pfad("a.01S"), "dialog=fr-", "errorfile=" + Pfad("aus/p.xml"),
                       "catalog=" + Pfad("k")};
    }
    ~SpeicherTest() override { NeuerLauf(); }

    std::string Pfad(const char* name) const { return (m_ordner.Pfad() / name).string(); }

    struct Ausgang {
        int Status = 0;
        std::string Gesagt;
        std::string Protokoll;   // without date and time; empty when there is none
        std::int64_t Uebrig = 0; // allocations that the run had left
    };

    // A run in which all allocations but the first `gut` fail.
    Ausgang Laufe(std::int64_t gut) {
        NeuerLauf();
        std::vector<char*> argumente;
        for (std::string& parameter : m_parameter) {
            argumente.push_back(parameter.data());
        }
        testing::internal::CaptureStderr();
        const std::ptrdiff_t offen = OffeneDateien();
        Ausgang ausgang;
        bisZumFehler = gut;
        ausgang.Status = Programm(static_cast<int>(argumente.size()), argumente.data());
        ausgang.Uebrig = bisZumFehler;
        bisZumFehler = Nie;
        testDaten.Protokollplatz.reset(); // all that may be open behind a run, until the next or the process's end
        EXPECT_EQ(OffeneDateien(), offen) << gut << ": files and folders are closed";
        ausgang.Gesagt = testing::internal::GetCapturedStderr();
        std::erase(ausgang.Gesagt, '\r');
        ausgang.Protokoll = ProtokollHolen();
        EXPECT_TRUE(std::filesystem::is_empty(m_ordner.Pfad() / "aus")) << "something beside the protocol";
        return ausgang;
    }

    static std::ptrdiff_t OffeneDateien() {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    }

    std::string ProtokollHolen() const {
        if (!m_ordner.Hat("aus/p.xml")) {
            return {};
        }
        std::string text = m_ordner.Lies("aus/p.xml");
        std::filesystem::remove(m_ordner.Pfad() / "aus/p.xml");
        EXPECT_TRUE(text.ends_with("</SIA451>") || text.ends_with("</ZEPHOLT>"));
        const std::size_t ab = text.find("<Date");
        return ab == std::string::npos ? text : text.erase(ab, text.find("</Time>", ab) - ab);
    }

    void PruefeJedeStelle() {
        const Ausgang ganz = Laufe(Nie - 1);
        ASSERT_NE(ganz.Protokoll, "");
        const std::int64_t stellen = Nie - 1 - ganz.Uebrig;
        int abgebrochen = 0;
        for (std::int64_t gut = 0; gut < stellen; ++gut) {
            const Ausgang ausgang = Laufe(gut);
            if (ausgang.Status == 1) {
                ++abgebrochen;
                EXPECT_EQ(ausgang.Protokoll, "") << gut;
                EXPECT_TRUE(std::ranges::count(ausgang.Gesagt, '\n') == 1) << gut << ": " << ausgang.Gesagt;
                EXPECT_TRUE(ausgang.Gesagt.ends_with("der Speicher reicht nicht aus\n") || // before the language
                            ausgang.Gesagt.ends_with("la mémoire ne suffit pas\n"))
                    << gut << ": " << ausgang.Gesagt;
                continue;
            }
            EXPECT_EQ(ausgang.Gesagt, "") << gut;
            EXPECT_TRUE(ausgang.Protokoll == ganz.Protokoll ||
                        ausgang.Protokoll.find("N=\"2001\"") != std::string::npos)
                << gut << ": " << ausgang.Protokoll;
        }
        EXPECT_GT(abgebrochen, stellen / 2);
    }

    Testordner m_ordner;
    std::vector<std::string> m_parameter;
};

TEST_F(SpeicherTest, RunWithOneFailedAllocation) {
    nurEinmal = true;
    PruefeJedeStelle();
}

TEST_F(SpeicherTest, RunWithoutMemoryFromAnyPlaceOn) {
    nurEinmal = false;
    PruefeJedeStelle();
}

// An output that is open needs no more memory, however much is written and in whatever pieces.
TEST_F(SpeicherTest, OutputThatIsOpen) {
    nurEinmal = false;
    const std::string kurz(1'000, 'k');
    const std::string lang(100'000, 'l');
    std::string erwartet;
    for (int i = 0; i < 1'500; ++i) {
        erwartet += kurz;
    }
    erwartet += lang + "m";
    AusgabeDatei ausgabe(m_ordner.TextPfad("aus/p.xml"));
    bisZumFehler = 0;
    for (int i = 0; i < 1'500; ++i) {
        ausgabe.Schreiben(kurz);
    }
    ausgabe.Schreiben(lang);
    ausgabe.Schreiben("m");
    const bool fertig = ausgabe.Abschliessen();
    bisZumFehler = Nie;
    EXPECT_TRUE(fertig);
    EXPECT_TRUE(m_ordner.Lies("aus/p.xml") == erwartet);
}

TEST_F(SpeicherTest, ListOfCodes) {
    m_parameter[1] = "file=*9";
    for (const bool einmal : {true, false}) {
        nurEinmal = einmal;
        for (const std::int64_t gut : {0, 1, 2, 5, 10, 20, 30, 40, 60, 100, 200, 1000}) {
            const Ausgang ausgang = Laufe(gut);
            EXPECT_EQ(ausgang.Status == 1, ausgang.Protokoll.empty()) << gut;
            EXPECT_EQ(ausgang.Status == 1, !ausgang.Gesagt.empty()) << gut;
        }
    }
}

TEST_F(SpeicherTest, ListOfTheChaptersOfAFolder) {
    const std::string text = "<Kapitel N=\"111\" V=\"2019\" S=\"2\" A=\"1\" T=\"Titel\"></Kapitel>";
    for (const char* name : {"k/N192111.qvm", "k/N192112.qvm", "k/N192113.qvm"}) {
        m_ordner.Schreibe(name, "CF1120192111000000089000000000 " + text);
    }
    m_parameter[1] = "file=*1";
    const Ausgang ganz = Laufe(Nie - 1);
    ASSERT_NE(ganz.Protokoll.find("Titel"), std::string::npos) << ganz.Protokoll;
    for (const bool einmal : {true, false}) {
        nurEinmal = einmal;
        for (std::int64_t gut = 0; gut < Nie - 1 - ganz.Uebrig; ++gut) {
            const Ausgang ausgang = Laufe(gut);
            EXPECT_EQ(ausgang.Protokoll, ausgang.Status == 1 ? "" : ganz.Protokoll) << gut;
            EXPECT_EQ(ausgang.Status == 1, !ausgang.Gesagt.empty()) << gut;
        }
    }
}

} // namespace
} // namespace zepholt
