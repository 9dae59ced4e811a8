// What only this platform has: names that are no text, pipes, sockets, devices, links, permissions.
#include "support/OS_API.h"

#include "support/Pruefordner.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zepholt {
namespace {

class LinuxTest : public Pruefordner {
protected:
    std::string Bytes(const Text& name) const { return Utf8Bytes(Pfad(name)); }

    void Rohr(const Text& name) const { ASSERT_EQ(mkfifo(Bytes(name).c_str(), 0666), 0); }

    void Verweis(const std::string& ziel, const Text& name) const {
        ASSERT_EQ(symlink(ziel.c_str(), Bytes(name).c_str()), 0);
    }

    // From here on this process gets no file without a name, as on a file system that has none such.
    static void NamenloseVerbieten() {
        constexpr unsigned Merkmal = O_TMPFILE & ~O_DIRECTORY;
        sock_filter regeln[] = {
            BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
            BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat, 0, 3),
            BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[2])),
            BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, Merkmal, 0, 1),
            BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EOPNOTSUPP),
            BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
        };
        const sock_fprog programm = {std::size(regeln), regeln};
        if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 || prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &programm) != 0) {
            _exit(1);
        }
    }

    // The result of `tun` in a process of its own.
    template <class Tun>
    static bool ImKind(Tun tun) {
        const pid_t kind = fork();
        if (kind == 0) {
            _exit(tun() ? 0 : 1);
        }
        int ergebnis = -1;
        waitpid(kind, &ergebnis, 0);
        EXPECT_TRUE(WIFEXITED(ergebnis));
        return ergebnis == 0;
    }
};

// Neither a reading nor a writing side of a pipe is there: any opening of it would wait for ever.
void ErwarteUnberuehrt(const Text& pfad) {
    EXPECT_EQ(ArtVon(pfad), DateiArt::Anderes);
    EXPECT_FALSE(DateiExistiert(pfad));
    EXPECT_FALSE(OrdnerExistiert(pfad));
    EXPECT_THROW(LeseDatei{pfad}, LaufzeitFehler);
    EXPECT_FALSE(DateiAnlegbar(pfad));
    AusgabeDatei datei(pfad);
    datei.Schreiben("x");
    EXPECT_FALSE(datei.Abschliessen());
    EXPECT_EQ(ArtVon(pfad), DateiArt::Anderes);
}

TEST_F(LinuxTest, EinRohrWirdNieGeoeffnet) {
    Rohr(u"rohr");
    ErwarteUnberuehrt(Pfad(u"rohr"));
    EXPECT_FALSE(DateiExistiert(Pfad(u"r*")));
    EXPECT_FALSE(OrdnerExistiert(Pfad(u"r*")));
    EXPECT_EQ(Anzahl(), 1);
}

TEST_F(LinuxTest, EinSocketWirdNieGeoeffnet) {
    // The path of a socket is short: it is bound by its name within the folder.
    const int ordner = open(".", O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(chdir(Bytes(u"").c_str()), 0);
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    std::strcpy(adresse.sun_path, "socket");
    const int griff = socket(AF_UNIX, SOCK_STREAM, 0);
    EXPECT_EQ(bind(griff, reinterpret_cast<const sockaddr*>(&adresse), sizeof adresse), 0);
    EXPECT_EQ(fchdir(ordner), 0);
    close(ordner);
    ErwarteUnberuehrt(Pfad(u"socket"));
    close(griff);
}

TEST_F(LinuxTest, EinGeraetWirdNieGeoeffnet) {
    ErwarteUnberuehrt(u"/dev/null");
    ErwarteUnberuehrt(u"/dev/full");
    ErwarteUnberuehrt(u"/dev/tty");
}

TEST_F(LinuxTest, EinRohrDasWaehrendDesSchreibensEntsteht) {
    AusgabeDatei datei(Pfad(u"a"));
    datei.Schreiben("x");
    Rohr(u"a");
    EXPECT_FALSE(datei.Abschliessen());
    EXPECT_EQ(ArtVon(Pfad(u"a")), DateiArt::Anderes);
    EXPECT_EQ(Anzahl(), 1);
}

TEST_F(LinuxTest, NamenDieKeinUtf8Sind) {
    const Text name = AusUtf8Bytes("stra\xDF"
                                   "e \xFF\xC3.01S"); // Latin-1, and a sequence cut off
    EXPECT_EQ(name, u"stra\xDCDF"
                    u"e \xDCFF\xDCC3.01S");
    AusgabeDatei datei(Pfad(name));
    datei.Schreiben("x");
    EXPECT_TRUE(datei.Abschliessen());
    struct stat angaben {};
    EXPECT_EQ(stat((Bytes(u"") + "stra\xDF"
                                 "e \xFF\xC3.01S")
                       .c_str(),
                   &angaben),
              0);
    EXPECT_TRUE(DateiExistiert(Pfad(name)));
    EXPECT_EQ(AlsText(LeseDatei(Pfad(name)).Lies(0, 9)), "x");
    EXPECT_EQ(DateienImOrdner(Pfad(u""), u"*.01S"), std::vector<Text>{Pfad(name)});
    EXPECT_EQ(Gefunden(u"stra?e ??.01S"), name);
}

TEST_F(LinuxTest, ReihenfolgeNachBytesAuchOhneUtf8) {
    Datei(u"\u00E4"); // C3 A4
    AusgabeDatei(Pfad(u"\xDC80")).Abschliessen();
    AusgabeDatei(Pfad(u"\xDCFF")).Abschliessen();
    EXPECT_EQ(Gefunden(u"*"), u"\xDC80 \u00E4 \xDCFF");
}

TEST_F(LinuxTest, EinPunktVorneVerstecktVorPlatzhaltern) {
    Datei(u".a");
    Datei(u"b");
    EXPECT_EQ(Gefunden(u"*"), u"b");
    EXPECT_EQ(Gefunden(u"?a"), u"");
    EXPECT_EQ(Gefunden(u".?"), u".. .a");
    EXPECT_EQ(Gefunden(u".*"), u". .. .a");
    EXPECT_TRUE(DateiExistiert(Pfad(u".a")));
    EXPECT_TRUE(DateiExistiert(Pfad(u".*")));
    EXPECT_FALSE(DateiExistiert(Pfad(u"*a")));
    EXPECT_TRUE(OrdnerExistiert(Pfad(u".*"))); // the folder's own entry comes first
}

TEST_F(LinuxTest, SternFragezeichenUndKlammernImNamen) {
    Datei(u"a*b");
    Datei(u"a?b");
    Datei(u"[ab]");
    Datei(u"a\\b");
    EXPECT_TRUE(DateiExistiert(Pfad(u"a*b")));
    EXPECT_TRUE(DateiExistiert(Pfad(u"[ab]")));
    EXPECT_FALSE(DateiExistiert(Pfad(u"[ab]*b")));
    EXPECT_EQ(Gefunden(u"a\\?"), u"a\\b");
    EXPECT_TRUE(DateiAnlegbar(Pfad(u"*.xml")));
}

TEST_F(LinuxTest, VerweiseSindWasAnIhremEndeSteht) {
    Datei(u"datei", "inhalt");
    Ordner(u"ordner");
    Verweis("datei", u"v1");
    Verweis("ordner", u"v2");
    Verweis("fehlt", u"v3");
    Verweis("v4", u"v4"); // itself
    Verweis("/dev/null", u"v5");
    EXPECT_EQ(ArtVon(Pfad(u"v1")), DateiArt::Datei);
    EXPECT_EQ(ArtVon(Pfad(u"v2")), DateiArt::Ordner);
    EXPECT_EQ(ArtVon(Pfad(u"v3")), DateiArt::Nichts);
    EXPECT_EQ(ArtVon(Pfad(u"v4")), DateiArt::Nichts);
    EXPECT_EQ(ArtVon(Pfad(u"v5")), DateiArt::Anderes);
    EXPECT_EQ(Gefunden(u"v*"), u"v1 v2 v5");
    EXPECT_TRUE(DateiExistiert(Pfad(u"v1")));
    EXPECT_TRUE(OrdnerExistiert(Pfad(u"v2")));
    EXPECT_EQ(AlsText(LeseDatei(Pfad(u"v1")).Lies(0, 9)), "inhalt");
    for (const char16_t* name : {u"v1", u"v2", u"v3", u"v4", u"v5"}) {
        EXPECT_FALSE(DateiAnlegbar(Pfad(name))) << Utf8Bytes(name);
    }
    EXPECT_EQ(ArtVon(Pfad(u"fehlt")), DateiArt::Nichts);
}

// The name itself is what is replaced, never what a link of that name points to.
TEST_F(LinuxTest, EinVerweisWirdErsetztNieSeinZiel) {
    Datei(u"fremd", "fremd");
    chmod(Bytes(u"fremd").c_str(), 0600);
    Verweis("fremd", u"v1");
    Verweis("fehlt", u"v2");
    for (const char16_t* name : {u"v1", u"v2"}) {
        AusgabeDatei datei(Pfad(name));
        datei.Schreiben("neu");
        EXPECT_TRUE(datei.Abschliessen());
        EXPECT_FALSE(std::filesystem::is_symlink(System(name)));
        EXPECT_EQ(Inhalt(name), "neu");
    }
    EXPECT_EQ(Inhalt(u"fremd"), "fremd");
    EXPECT_EQ(Anzahl(), 3);
}

TEST_F(LinuxTest, EinVerweisDerWaehrendDesSchreibensEntstehtWirdErsetzt) {
    Datei(u"fremd", "fremd");
    for (const std::string ziel : {"fremd", "fehlt"}) {
        AusgabeDatei datei(Pfad(u"p.xml"));
        datei.Schreiben("neu");
        Verweis(ziel, u"p.xml");
        EXPECT_TRUE(datei.Abschliessen());
        EXPECT_FALSE(std::filesystem::is_symlink(System(u"p.xml")));
        EXPECT_EQ(Inhalt(u"p.xml"), "neu");
        EXPECT_EQ(Inhalt(u"fremd"), "fremd");
        EXPECT_EQ(Anzahl(), 2);
        std::filesystem::remove(System(u"p.xml"));
    }
}

// Nor does it matter what becomes of the folder's path.
TEST_F(LinuxTest, DerOrdnerIstDerDerZuBeginnDaStand) {
    Ordner(u"o");
    Ordner(u"fremd");
    AusgabeDatei datei(Pfad(u"o/p.xml"));
    datei.Schreiben("neu");
    std::filesystem::rename(System(u"o"), System(u"anders"));
    Verweis("fremd", u"o");
    EXPECT_TRUE(datei.Abschliessen());
    EXPECT_EQ(Inhalt(u"anders/p.xml"), "neu");
    EXPECT_TRUE(std::filesystem::is_empty(System(u"fremd")));
}

TEST_F(LinuxTest, EinOrdnerDerVerschwindetIstEinFehlschlag) {
    Ordner(u"o");
    AusgabeDatei datei(Pfad(u"o/p.xml"));
    datei.Schreiben("neu");
    std::filesystem::remove(System(u"o"));
    EXPECT_FALSE(datei.Abschliessen());
    EXPECT_EQ(Anzahl(), 0);
}

// Written into the file's own folder: the one above may not be written to.
TEST_F(LinuxTest, DerOrdnerDarueberWirdNichtGebraucht) {
    Ordner(u"x/y");
    chmod(Bytes(u"x/y").c_str(), 0777);
    chmod(Bytes(u"x").c_str(), 0555);
    chmod(Bytes(u"").c_str(), 0755);
    for (const bool namenlos : {true, false}) {
        EXPECT_TRUE(ImKind([&] {
            if (!namenlos) {
                NamenloseVerbieten();
            }
            return (geteuid() != 0 || setuid(65534) == 0) && DateiAnlegbar(Pfad(u"x/y/p.xml")) &&
                   AusgabeDatei(Pfad(u"x/y/p.xml")).Abschliessen();
        }));
        EXPECT_TRUE(std::filesystem::remove(System(u"x/y/p.xml")));
    }
    chmod(Bytes(u"x").c_str(), 0755);
}

// --- A file without a name, and where there is none such

TEST_F(LinuxTest, BisZumAbschlussStehtNichtsImOrdner) {
    AusgabeDatei datei(Pfad(u"a"));
    datei.Schreiben(std::string(3'000'000, 'x'));
    EXPECT_EQ(Anzahl(), 0);
    EXPECT_TRUE(datei.Abschliessen());
    EXPECT_EQ(Anzahl(), 1);
}

TEST_F(LinuxTest, EinGetoeteterLaufHinterlaesstNichts) {
    for (const int signal : {SIGKILL, SIGTERM, SIGINT}) {
        const pid_t kind = fork();
        if (kind == 0) {
            AusgabeDatei datei(Pfad(u"a"));
            datei.Schreiben(std::string(3'000'000, 'x'));
            raise(signal);
            _exit(0);
        }
        int ergebnis = 0;
        waitpid(kind, &ergebnis, 0);
        EXPECT_TRUE(WIFSIGNALED(ergebnis));
        EXPECT_EQ(Anzahl(), 0);
    }
}

// What stands there counts, not what the working folder holds.
TEST_F(LinuxTest, DerObersteOrdner) {
    EXPECT_TRUE(ImKind([&] { return chdir(Bytes(u"").c_str()) == 0 && !DateiAnlegbar(u"/etc"); }));
}

TEST_F(LinuxTest, EinOrdnerDerDenNamenNimmtIstEinFehlschlag) {
    for (const bool namenlos : {true, false}) {
        EXPECT_TRUE(ImKind([&] {
            if (!namenlos) {
                NamenloseVerbieten();
            }
            AusgabeDatei datei(Pfad(u"p.xml"));
            datei.Schreiben("neu");
            Ordner(u"p.xml");
            return !datei.Abschliessen() && Anzahl() == 1;
        }));
        EXPECT_TRUE(std::filesystem::remove(System(u"p.xml")));
    }
}

// --- The file of the trial becomes the output

// True where the output goes on with the trial's file: no other file without a name is to be had by then.
TEST_F(LinuxTest, DieDateiDerProbeWirdDieAusgabe) {
    EXPECT_TRUE(ImKind([&] {
        AusgabeDatei::PlatzZeiger offen;
        const bool anlegbar = DateiAnlegbar(Pfad(u"p.xml"), &offen);
        NamenloseVerbieten();
        AusgabeDatei datei(Pfad(u"p.xml"), std::move(offen));
        datei.Schreiben("neu");
        return anlegbar && Anzahl() == 0 && datei.Abschliessen() && Anzahl() == 1;
    }));
    EXPECT_EQ(Inhalt(u"p.xml"), "neu");
}

TEST_F(LinuxTest, EineProbeOhneAusgabeHinterlaesstNichts) {
    AusgabeDatei::PlatzZeiger offen;
    EXPECT_TRUE(DateiAnlegbar(Pfad(u"p.xml"), &offen));
    EXPECT_NE(offen, nullptr);
    EXPECT_EQ(Anzahl(), 0);
    offen.reset();
    EXPECT_EQ(Anzahl(), 0);
}

TEST_F(LinuxTest, WoNichtsAnlegbarIstBleibtNichtsOffen) {
    Datei(u"a", "alt");
    AusgabeDatei::PlatzZeiger offen;
    EXPECT_FALSE(DateiAnlegbar(Pfad(u"a"), &offen));
    EXPECT_EQ(offen, nullptr);
    EXPECT_TRUE(ImKind([&] {
        NamenloseVerbieten();
        return DateiAnlegbar(Pfad(u"p.xml"), &offen) && offen == nullptr && Anzahl() == 1;
    }));
}

// The path as it leads at the end counts, not where it led at the trial.
TEST_F(LinuxTest, EinAndererOrdnerGleichenNamens) {
    for (const bool umbenannt : {true, false}) {
        Ordner(u"o");
        AusgabeDatei::PlatzZeiger offen;
        EXPECT_TRUE(DateiAnlegbar(Pfad(u"o/p.xml"), &offen));
        if (umbenannt) {
            std::filesystem::rename(System(u"o"), System(u"frueher"));
        } else {
            std::filesystem::remove(System(u"o"));
        }
        Ordner(u"o");
        AusgabeDatei datei(Pfad(u"o/p.xml"), std::move(offen));
        datei.Schreiben("neu");
        EXPECT_TRUE(datei.Abschliessen());
        EXPECT_EQ(Inhalt(u"o/p.xml"), "neu");
        EXPECT_TRUE(!umbenannt || std::filesystem::is_empty(System(u"frueher")));
        std::filesystem::remove_all(System(u"o"));
        std::filesystem::remove_all(System(u"frueher"));
    }
}

TEST_F(LinuxTest, EinOrdnerDerNachDerProbeVerschwindetIstEinFehlschlag) {
    Ordner(u"o");
    AusgabeDatei::PlatzZeiger offen;
    EXPECT_TRUE(DateiAnlegbar(Pfad(u"o/p.xml"), &offen));
    std::filesystem::remove(System(u"o"));
    EXPECT_FALSE(AusgabeDatei(Pfad(u"o/p.xml"), std::move(offen)).Abschliessen());
    EXPECT_EQ(Anzahl(), 0);
}

TEST_F(LinuxTest, DieProbeEinesAnderenNamensGiltNicht) {
    AusgabeDatei::PlatzZeiger offen;
    EXPECT_TRUE(DateiAnlegbar(Pfad(u"a"), &offen));
    EXPECT_TRUE(AusgabeDatei(Pfad(u"b"), std::move(offen)).Abschliessen());
    EXPECT_TRUE(DateiExistiert(Pfad(u"b")));
    EXPECT_EQ(Anzahl(), 1);
}

TEST_F(LinuxTest, WasNachDerProbeUnterDenNamenKam) {
    AusgabeDatei::PlatzZeiger offen;
    EXPECT_TRUE(DateiAnlegbar(Pfad(u"p.xml"), &offen));
    Datei(u"p.xml", "another run's protocol");
    AusgabeDatei datei(Pfad(u"p.xml"), std::move(offen));
    datei.Schreiben("neu");
    EXPECT_TRUE(datei.Abschliessen());
    EXPECT_EQ(Inhalt(u"p.xml"), "neu");

    EXPECT_TRUE(DateiAnlegbar(Pfad(u"q.xml"), &offen));
    Ordner(u"q.xml");
    EXPECT_FALSE(AusgabeDatei(Pfad(u"q.xml"), std::move(offen)).Abschliessen());
    EXPECT_EQ(Anzahl(), 2);
}

// --- Where there is no file without a name

TEST_F(LinuxTest, OhneNamenloseDateienMitEinemNamenDaneben) {
    Datei(u"alt", "alt");
    Verweis("alt", u"verweis");
    EXPECT_TRUE(ImKind([&] {
        NamenloseVerbieten();
        bool gut = DateiAnlegbar(Pfad(u"neu")) && !DateiAnlegbar(Pfad(u"alt")) && !DateiAnlegbar(Pfad(u"fehlt/a")) &&
                   Anzahl() == 2;
        for (const char16_t* name : {u"neu", u"alt", u"verweis"}) {
            AusgabeDatei datei(Pfad(name));
            datei.Schreiben("inhalt");
            const std::ptrdiff_t waehrend = Anzahl();
            gut = gut && datei.Abschliessen() && Inhalt(name) == "inhalt" && waehrend == 3 + (name[0] != u'n');
        }
        {
            AusgabeDatei datei(Pfad(u"verworfen"));
            datei.Schreiben(std::string(3'000'000, 'x'));
        }
        return gut && Anzahl() == 3;
    }));
    EXPECT_EQ(Anzahl(), 3);
}

// The signals that end a process wait until the file with a name is complete or gone.
TEST_F(LinuxTest, OhneNamenloseDateienWartenDieSignale) {
    for (const bool abschliessen : {true, false}) {
        const pid_t kind = fork();
        if (kind == 0) {
            NamenloseVerbieten();
            {
                AusgabeDatei datei(Pfad(u"a"));
                datei.Schreiben("inhalt");
                raise(SIGTERM);
                if (abschliessen) {
                    datei.Abschliessen();
                }
            }
            _exit(0); // never reached: the signal comes now
        }
        int ergebnis = 0;
        waitpid(kind, &ergebnis, 0);
        EXPECT_TRUE(WIFSIGNALED(ergebnis) && WTERMSIG(ergebnis) == SIGTERM);
        EXPECT_EQ(Anzahl(), abschliessen ? 1 : 0);
        std::filesystem::remove(System(u"a"));
    }
}

// The disk is full for all that goes beyond 4096 bytes.
TEST_F(LinuxTest, VolleAblageHinterlaesstNichts) {
    Datei(u"alt", "alt");
    for (const std::size_t laenge : {4097U, 3'000'000U}) {
        for (const char16_t* name : {u"neu", u"alt"}) {
            EXPECT_TRUE(ImKind([&] {
                std::signal(SIGXFSZ, SIG_IGN);
                const rlimit grenze{4096, 4096};
                setrlimit(RLIMIT_FSIZE, &grenze);
                AusgabeDatei datei(Pfad(name));
                datei.Schreiben(std::string(laenge, 'x'));
                return !datei.Abschliessen();
            }));
            EXPECT_EQ(Anzahl(), 1);
            EXPECT_EQ(Inhalt(u"alt"), "alt");
        }
    }
}

TEST_F(LinuxTest, WasGeradeNochPasstGelingt) {
    EXPECT_TRUE(ImKind([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit grenze{4096, 4096};
        setrlimit(RLIMIT_FSIZE, &grenze);
        AusgabeDatei datei(Pfad(u"neu"));
        datei.Schreiben(std::string(4096, 'x'));
        return datei.Abschliessen();
    }));
    EXPECT_EQ(Inhalt(u"neu"), std::string(4096, 'x'));
}

// As a user without rights: the superuser's own would open everything.
TEST_F(LinuxTest, OhneBerechtigung) {
    Datei(u"geheim", "x");
    Ordner(u"zu");
    Datei(u"zu/a");
    chmod(Bytes(u"geheim").c_str(), 0);
    chmod(Bytes(u"zu").c_str(), 0);
    chmod(Bytes(u"").c_str(), 0555);
    EXPECT_TRUE(ImKind([&] {
        if (geteuid() == 0 && setuid(65534) != 0) {
            return false;
        }
        bool gelesen = true;
        try {
            LeseDatei datei(Pfad(u"geheim"));
        } catch (const LaufzeitFehler&) {
            gelesen = false;
        }
        return !gelesen && DateiExistiert(Pfad(u"geheim")) && OrdnerExistiert(Pfad(u"zu")) &&
               !DateiExistiert(Pfad(u"zu/a")) && !DateiExistiert(Pfad(u"zu/*")) && !DateiAnlegbar(Pfad(u"neu")) &&
               !AusgabeDatei(Pfad(u"neu")).Abschliessen() && !AusgabeDatei(Pfad(u"geheim")).Abschliessen();
    }));
    chmod(Bytes(u"").c_str(), 0755);
    chmod(Bytes(u"zu").c_str(), 0755);
    EXPECT_EQ(Anzahl(), 2);
}

TEST_F(LinuxTest, WasNebenDerDateiEntstehtLiegtInIhremOrdner) {
    Ordner(u"offen");
    chmod(Bytes(u"offen").c_str(), 0777);
    chmod(Bytes(u"").c_str(), 0555);
    EXPECT_TRUE(ImKind([&] {
        if (geteuid() == 0 && setuid(65534) != 0) {
            return false;
        }
        return AusgabeDatei(Pfad(u"offen/a")).Abschliessen();
    }));
    chmod(Bytes(u"").c_str(), 0755);
    EXPECT_TRUE(DateiExistiert(Pfad(u"offen/a")));
}

TEST_F(LinuxTest, SchreibgeschuetzteDateiBleibt) {
    Datei(u"a", "alt");
    chmod(Bytes(u"a").c_str(), 0444);
    chmod(Bytes(u"").c_str(), 0777);
    EXPECT_TRUE(ImKind([&] {
        if (geteuid() == 0 && setuid(65534) != 0) {
            return false;
        }
        return !AusgabeDatei(Pfad(u"a")).Abschliessen() && AusgabeDatei(Pfad(u"b")).Abschliessen();
    }));
    EXPECT_EQ(Inhalt(u"a"), "alt");
    EXPECT_EQ(Anzahl(), 2);
}

TEST_F(LinuxTest, EinVergebenerNameDanebenWirdUebergangen) {
    const Text vergeben = u".zepholt-" + ZahlText(getpid()) + u"-0.tmp";
    Datei(vergeben, "fremd");
    Datei(u"a", "alt"); // only to replace a name another one is needed
    AusgabeDatei datei(Pfad(u"a"));
    datei.Schreiben("x");
    EXPECT_TRUE(datei.Abschliessen());
    EXPECT_EQ(Inhalt(u"a"), "x");
    EXPECT_EQ(Inhalt(vergeben), "fremd");
    EXPECT_EQ(Anzahl(), 2);
}

// All may read and write it but whom the caller's mask forbids to.
TEST_F(LinuxTest, RechteEinerNeuenDatei) {
    for (const bool namenlos : {true, false}) {
        for (const mode_t maske : {mode_t{0}, mode_t{027}}) {
            EXPECT_TRUE(ImKind([&] {
                umask(maske);
                if (!namenlos) {
                    NamenloseVerbieten();
                }
                return AusgabeDatei(Pfad(u"p.xml")).Abschliessen();
            }));
            struct stat angaben {};
            EXPECT_EQ(stat(Bytes(u"p.xml").c_str(), &angaben), 0);
            EXPECT_EQ(angaben.st_mode & 07777U, 0666U & ~maske) << namenlos;
            std::filesystem::remove(System(u"p.xml"));
        }
    }
}

// The child starts this program anew; what the parent has drawn reaches it by the environment.
TEST(Zufallszahlen, JederProzessZiehtSeineEigenen) {
    const auto gezogen = [] {
        const auto [eins, zwei] = Zufallszahlen();
        return std::to_string(eins) + ' ' + std::to_string(zwei);
    };
    constexpr int Behalten = 0;
    setenv("ZEPHOLT_ELTERN", gezogen().c_str(), Behalten);
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(std::_Exit(gezogen() != std::getenv("ZEPHOLT_ELTERN") ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST(Kommandozeile, AusDenArgumentenDesProgramms) {
    std::string programm = "zepholt";
    std::string datei = "file=a b\xE4\xC3\xA4.01S";
    std::string sprache = "dialog=de-";
    char* argumente[] = {programm.data(), datei.data(), sprache.data(), nullptr};
    EXPECT_EQ(Kommandozeile(3, argumente), u"file=\"a b\xDCE4\u00E4.01S\" dialog=de-");
    EXPECT_EQ(Kommandozeile(1, argumente), u"");
    EXPECT_EQ(Kommandozeile(0, argumente), u"");
}

TEST(MeldungAusgeben, GibtDieBytesEinesNamensZurueck) {
    testing::internal::CaptureStderr();
    MeldungAusgeben(AusUtf8Bytes("stra\xDF"
                                 "e"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "stra\xDF"
                                                      "e\n");
}

// The numbers of the two streams are free for what is opened next: the folder and the file.
TEST_F(LinuxTest, MeldungenOhneStandardausgabenKommenInKeineDatei) {
    EXPECT_TRUE(ImKind([&] {
        close(STDOUT_FILENO);
        close(STDERR_FILENO);
        AusgabeDatei datei(Pfad(u"p.xml"));
        MeldungAusgeben("a message");
        datei.Schreiben("neu");
        return datei.Abschliessen();
    }));
    EXPECT_EQ(Inhalt(u"p.xml"), "neu");
}

TEST(MeldungAusgeben, OhneStandardfehlerGeschiehtNichts) {
    const pid_t kind = fork();
    if (kind == 0) {
        close(STDERR_FILENO);
        MeldungAusgeben(u"x");
        _exit(MeldungIstTerminal() ? 1 : 0);
    }
    int ergebnis = -1;
    waitpid(kind, &ergebnis, 0);
    EXPECT_EQ(ergebnis, 0);
}

} // namespace
} // namespace zepholt
