// Calls of the system that a signal interrupts, or that do only half of what they were asked for: nothing of it is a
// failure. And what another program does between two calls. The test program's own functions stand before the system's.
#include "support/OS_API.h"

#include "support/Pruefordner.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdarg>
#include <functional>
#include <set>
#include <utility>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>

namespace {

bool gestoert = false;
std::set<std::string> gesehen;     // the calls that were interrupted
bool ohneNamenlose = false;        // the file system knows no files without a name
bool ohneGriffnamen = false;       // the system names a file by its path only
bool ohneProc = false;             // nor has it a path of an open file
std::function<void()> nachAnlegen; // what happens once a file was made
constexpr int Namenlos = O_TMPFILE & ~O_DIRECTORY;

// True every second time for each call: what is tried again gets through.
bool Unterbrochen(const char* ruf) {
    static std::set<std::string> offen;
    if (!gestoert) {
        return false;
    }
    gestoert = false; // what happens here is not interrupted
    gesehen.insert(ruf);
    const bool jetzt = offen.insert(ruf).second;
    if (!jetzt) {
        offen.erase(ruf);
    }
    gestoert = true;
    errno = jetzt ? EINTR : errno;
    return jetzt;
}

template <class Funktion>
Funktion* System(const char* name) {
    return reinterpret_cast<Funktion*>(dlsym(RTLD_NEXT, name));
}

std::size_t Haelfte(std::size_t anzahl) {
    return gestoert ? (anzahl + 1) / 2 : anzahl;
}

} // namespace

extern "C" {

int openat(int ordner, const char* pfad, int art, ...) {
    va_list weitere;
    va_start(weitere, art);
    const mode_t rechte = va_arg(weitere, mode_t);
    va_end(weitere);
    if (ohneNamenlose && (art & Namenlos) != 0) {
        errno = EOPNOTSUPP;
        return -1;
    }
    if (Unterbrochen("openat")) {
        return -1;
    }
    const int griff = System<int(int, const char*, int, mode_t)>("openat")(ordner, pfad, art, rechte);
    if (griff >= 0 && (art & (O_CREAT | Namenlos)) != 0 && nachAnlegen) {
        std::exchange(nachAnlegen, nullptr)();
    }
    return griff;
}

ssize_t write(int griff, const void* bytes, size_t anzahl) {
    return Unterbrochen("write") ? -1
                                 : System<ssize_t(int, const void*, size_t)>("write")(griff, bytes, Haelfte(anzahl));
}

ssize_t pread(int griff, void* bytes, size_t anzahl, off_t stelle) {
    return Unterbrochen("pread")
               ? -1
               : System<ssize_t(int, void*, size_t, off_t)>("pread")(griff, bytes, Haelfte(anzahl), stelle);
}

int fstatat(int ordner, const char* pfad, struct stat* angaben, int art) noexcept {
    return Unterbrochen("fstatat")
               ? -1
               : System<int(int, const char*, struct stat*, int)>("fstatat")(ordner, pfad, angaben, art);
}

int linkat(int von, const char* alt, int nach, const char* neu, int art) noexcept {
    if (ohneGriffnamen && (art & AT_EMPTY_PATH) != 0) {
        errno = ENOENT;
        return -1;
    }
    return Unterbrochen("linkat")
               ? -1
               : System<int(int, const char*, int, const char*, int)>("linkat")(von, alt, nach, neu, art);
}

int statfs(const char* pfad, struct statfs* angaben) noexcept {
    const int ergebnis = System<int(const char*, struct statfs*)>("statfs")(pfad, angaben);
    angaben->f_type = ohneProc ? 0 : angaben->f_type;
    return ergebnis;
}

int renameat(int von, const char* alt, int nach, const char* neu) noexcept {
    return Unterbrochen("renameat") ? -1
                                    : System<int(int, const char*, int, const char*)>("renameat")(von, alt, nach, neu);
}

DIR* opendir(const char* pfad) {
    return Unterbrochen("opendir") ? nullptr : System<DIR*(const char*)>("opendir")(pfad);
}

dirent* readdir(DIR* ordner) {
    return Unterbrochen("readdir") ? nullptr : System<dirent*(DIR*)>("readdir")(ordner);
}

} // extern "C"

namespace zepholt {
namespace {

class StoerungTest : public Pruefordner {
protected:
    ~StoerungTest() override {
        gestoert = false;
        ohneNamenlose = false;
        ohneGriffnamen = false;
        ohneProc = false;
        nachAnlegen = nullptr;
    }

    // Writes a file; how many files stand in the folder before it is complete.
    std::ptrdiff_t Schreibe(const char16_t* name) {
        AusgabeDatei datei(Pfad(name));
        datei.Schreiben("neu");
        const std::ptrdiff_t unterwegs = Anzahl();
        EXPECT_TRUE(datei.Abschliessen());
        EXPECT_EQ(Inhalt(name), "neu");
        return unterwegs;
    }

    template <class Tun>
    static auto Gestoert(Tun tun) {
        gesehen.clear();
        gestoert = true;
        auto ergebnis = tun();
        gestoert = false;
        return ergebnis;
    }
};

using Rufe = std::set<std::string>;

TEST_F(StoerungTest, EineNeueDateiKommtGanzHeraus) {
    const std::string inhalt(3'000'001, 'x');
    const auto schreibe = [&](const char16_t* name) {
        return Gestoert([&] {
            AusgabeDatei datei(Pfad(name));
            datei.Schreiben(inhalt);
            return datei.Abschliessen();
        });
    };
    EXPECT_TRUE(schreibe(u"neu"));
    EXPECT_EQ(gesehen, (Rufe{"openat", "fstatat", "write", "linkat"}));
    EXPECT_TRUE(Inhalt(u"neu") == inhalt);

    Datei(u"alt", "alt");
    EXPECT_TRUE(schreibe(u"alt"));
    EXPECT_EQ(gesehen, (Rufe{"openat", "fstatat", "write", "linkat", "renameat"}));
    EXPECT_TRUE(Inhalt(u"alt") == inhalt);
    EXPECT_EQ(Anzahl(), 2);
}

TEST_F(StoerungTest, EineDateiOhneNamenBekommtIhnAufJedeArt) {
    Datei(u"alt", "alt");
    for (const bool griffnamen : {true, false}) {
        ohneGriffnamen = !griffnamen;
        EXPECT_EQ(Schreibe(u"neu"), 1);
        EXPECT_EQ(Schreibe(u"alt"), 2);
        EXPECT_EQ(Anzahl(), 2);
        std::filesystem::remove(System(u"neu"));
        Datei(u"alt", "alt");
    }
}

TEST_F(StoerungTest, WoSieKeinenBekommenKannHatDieDateiVonAnfangAnEinen) {
    ohneProc = true;
    EXPECT_EQ(Schreibe(u"neu"), 1);
    EXPECT_EQ(Schreibe(u"neu"), 2);
    EXPECT_EQ(Anzahl(), 1);
}

TEST_F(StoerungTest, EineDateiWirdGanzGelesen) {
    std::string inhalt;
    for (int i = 0; i < 100'000; ++i) {
        inhalt.push_back(static_cast<char>(i * 7));
    }
    Datei(u"a", inhalt);
    EXPECT_TRUE(Gestoert([&] { return AlsText(LeseDatei(Pfad(u"a")).Lies(0, inhalt.size())); }) == inhalt);
    EXPECT_EQ(gesehen, (Rufe{"openat", "fstatat", "pread"}));
}

TEST_F(StoerungTest, EinOrdnerWirdGanzGelesen) {
    for (const char16_t* name : {u"a1", u"a2", u"a3", u"b1"}) {
        Datei(name);
    }
    EXPECT_EQ(Gestoert([&] { return Gefunden(u"a*"); }), u"a1 a2 a3");
    EXPECT_EQ(gesehen, (Rufe{"opendir", "readdir", "fstatat"}));
    EXPECT_EQ(Gestoert([&] { return ArtVon(Pfad(u"b1")); }), DateiArt::Datei);
}

TEST_F(StoerungTest, DieProbeDerFehlerdateiGelingt) {
    EXPECT_TRUE(Gestoert([&] { return DateiAnlegbar(Pfad(u"p.xml")); }));
    EXPECT_EQ(Anzahl(), 0);
}

TEST_F(StoerungTest, DieDateiDerProbeWirdDieAusgabe) {
    EXPECT_TRUE(Gestoert([&] {
        AusgabeDatei::PlatzZeiger offen;
        const bool anlegbar = DateiAnlegbar(Pfad(u"p.xml"), &offen);
        ohneNamenlose = true;
        AusgabeDatei datei(Pfad(u"p.xml"), std::move(offen));
        datei.Schreiben("neu");
        return anlegbar && datei.Abschliessen();
    }));
    EXPECT_EQ(Inhalt(u"p.xml"), "neu");
    EXPECT_EQ(gesehen, (Rufe{"openat", "fstatat", "write", "linkat"}));
}

// Where it can't be named later, the output is one with a name beside its place.
TEST_F(StoerungTest, EineProbeDieSichNichtBenennenLaesstBleibtNichtOffen) {
    ohneProc = true;
    AusgabeDatei::PlatzZeiger offen;
    EXPECT_TRUE(DateiAnlegbar(Pfad(u"p.xml"), &offen));
    EXPECT_EQ(offen, nullptr);
}

TEST_F(StoerungTest, DieProbeLoeschtNurWasSieAngelegtHat) {
    for (const bool namenlos : {true, false}) {
        ohneNamenlose = !namenlos;
        EXPECT_TRUE(DateiAnlegbar(Pfad(u"p.xml")));
        EXPECT_EQ(Anzahl(), 0);

        Datei(u"fertig", "another run's protocol");
        nachAnlegen = [this] { std::filesystem::rename(System(u"fertig"), System(u"p.xml")); };
        EXPECT_TRUE(DateiAnlegbar(Pfad(u"p.xml")));
        EXPECT_EQ(Inhalt(u"p.xml"), "another run's protocol") << (namenlos ? "without a name" : "with a name");
        std::filesystem::remove(System(u"p.xml"));
    }
}

} // namespace
} // namespace zepholt
