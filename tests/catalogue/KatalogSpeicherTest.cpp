// Memory that runs out while a chapter is loaded: the run fails, and no chapter counts as absent for it. Every
// allocation of a load fails once.
#include "catalogue/VLTKapitel.h"
#include "catalogue/VLTKatalog.h"
#include "run/NeuerLauf.h"
#include "state/TestDaten.h"

#include "catalogue/Kapitelbau.h"
#include "hilfen/Testordner.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace {

int g_bisZumFehlschlag = 0; // the allocation that fails, counted from now; 0 for none

} // namespace

void* operator new(std::size_t anzahl) {
    if (g_bisZumFehlschlag > 0 && --g_bisZumFehlschlag == 0) {
        throw std::bad_alloc();
    }
    void* const stelle = std::malloc(anzahl == 0 ? 1 : anzahl);
    if (stelle == nullptr) {
        throw std::bad_alloc();
    }
    return stelle;
}

void* operator new(std::size_t anzahl, const std::nothrow_t&) noexcept {
    try {
        return operator new(anzahl);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* stelle) noexcept {
    std::free(stelle);
}

void operator delete(void* stelle, std::size_t) noexcept {
    std::free(stelle);
}

namespace zepholt {
namespace {

using namespace hilfen;

class KatalogSpeicher : public testing::Test {
protected:
    void SetUp() override {
        NeuerLauf();
        testDaten.OhneDialog = true;
    }
    void TearDown() override {
        g_bisZumFehlschlag = 0;
        NeuerLauf();
    }

    // Loads the chapter again and again, each time with another allocation failing, until one load needs no more.
    // Returns how many loads failed for it.
    static int LadeBisEsGenuegt() {
        for (int n = 1;; ++n) {
            katalogDaten = {};
            g_bisZumFehlschlag = n;
            try {
                EXPECT_TRUE(LadeKapitel(241, 2013, 1)) << n;
            } catch (const std::bad_alloc&) {
                continue;
            }
            if (g_bisZumFehlschlag > 0) {
                return n - 1;
            }
        }
    }

    Testordner m_ordner;
};

// Main positions and sub-positions out of order, two alternatives, a repeat range, a text branch.
const std::string Bytes241 =
    Kapiteldatei("\x01<U N=\n", KapitelText("<H N=\"300\">\x01\"10\"/></H><H N=\"111\">\x01\"100\" W=\"100199\"/>\x01"
                                            "\"10\"><V N=\"2\" A=\"G\"/><V N=\"1\" A=\"G\"/></U></H>"));

TEST_F(KatalogSpeicher, InAFolder) {
    m_ordner.Schreibe("N131241.qvm", Bytes241);
    testDaten.Katalog = m_ordner.TextPfad("");
    testDaten.KatalogArt = 1;
    EXPECT_GT(LadeBisEsGenuegt(), 10);
}

TEST_F(KatalogSpeicher, InACollectedFile) {
    m_ordner.Schreibe("sammel.vlt", Bytes241);
    testDaten.Katalog = m_ordner.TextPfad("sammel.vlt");
    testDaten.KatalogArt = 2;
    EXPECT_GT(LadeBisEsGenuegt(), 10);
}

} // namespace
} // namespace zepholt
