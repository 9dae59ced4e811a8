// Output files on Linux: complete or absent, and nothing beside them.
#include "support/OS_API.h"
#include "support/Systemruf_linux.h"

#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <optional>

#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>

namespace zepholt {

namespace {

constexpr int Versuche = 1000; // to find a name beside an output file that is not taken

// Where a new file is to stand: its folder, opened, and its name there. What becomes of the folder's own path meanwhile
// changes nothing.
struct Stelle {
    Griff Ordner;
    std::string Name;
};

std::size_t NamensanfangIn(const std::string& pfad) {
    return pfad.rfind('/') + 1; // 0 without one
}

std::string OrdnerVon(const std::string& pfad) {
    const std::size_t anfang = NamensanfangIn(pfad);
    return anfang > 0 ? pfad.substr(0, anfang) : "./";
}

std::string NameVon(const std::string& pfad) {
    return pfad.substr(NamensanfangIn(pfad));
}

Stelle StelleVon(const std::string& pfad) {
    return {Oeffne(AT_FDCWD, OrdnerVon(pfad).c_str(), O_PATH | O_DIRECTORY), NameVon(pfad)};
}

// What stands under the name itself, a link too. False when nothing does, or nothing can.
bool LiesNamen(const Stelle& stelle, struct stat& angaben) {
    return Wiederholt([&] {
               return fstatat(stelle.Ordner.Nummer(), stelle.Name.c_str(), &angaben, AT_SYMLINK_NOFOLLOW);
           }) == 0;
}

bool IstDieselbe(const struct stat& eine, const struct stat& andere) {
    return eine.st_dev == andere.st_dev && eine.st_ino == andere.st_ino;
}

// True when the path leads here, still: another folder may have taken its folder's name meanwhile.
bool IstStelleVon(const Stelle& stelle, const std::string& pfad) {
    struct stat hier {};
    struct stat dort {};
    return stelle.Name == NameVon(pfad) && fstat(stelle.Ordner.Nummer(), &hier) == 0 &&
           Wiederholt([&] { return fstatat(AT_FDCWD, OrdnerVon(pfad).c_str(), &dort, 0); }) == 0 &&
           IstDieselbe(hier, dort);
}

// True when a file may come to stand here: nothing does, an ordinary file that may be written, or a link.
bool IstErsetzbar(const Stelle& stelle) {
    struct stat angaben {};
    if (stelle.Name.empty()) {
        return false;
    }
    if (!LiesNamen(stelle, angaben)) {
        return errno == ENOENT;
    }
    const auto schreibbar = [&] {
        return faccessat(stelle.Ordner.Nummer(), stelle.Name.c_str(), W_OK, AT_EACCESS) == 0;
    };
    return S_ISLNK(angaben.st_mode) || (S_ISREG(angaben.st_mode) && schreibbar());
}

// The system's path of an open file, by which it can be given a name.
struct Griffpfad {
    explicit Griffpfad(const Griff& griff) {
        std::to_chars(Zeichen + std::strlen(Zeichen), std::end(Zeichen), griff.Nummer());
    }
    char Zeichen[32] = "/proc/self/fd/";
};

// A new file without a name in the folder, which ends with the process; not open where the system has none such.
Griff NamenlosAnlegen(const Stelle& stelle) {
    return Oeffne(stelle.Ordner.Nummer(), ".", O_WRONLY | O_TMPFILE, 0666);
}

// True where such a file can be given a name later, see Verknuepft.
bool IstSpaeterBenennbar() {
    struct statfs angaben {};
    return statfs("/proc", &angaben) == 0 && angaben.f_type == PROC_SUPER_MAGIC;
}

// Gives a file without a name this one in the folder: by its handle, which newer systems let who made the file do, else
// by its path, which costs more. False with errno when it can't; EEXIST when something has the name.
bool Verknuepft(const Griff& datei, const Griff& ordner, const char* name) {
    const auto verknuepfe = [&](int von, const char* pfad, int art) {
        return Wiederholt([&] { return linkat(von, pfad, ordner.Nummer(), name, art); }) == 0;
    };
    return verknuepfe(datei.Nummer(), "", AT_EMPTY_PATH) ||
           (errno == ENOENT && verknuepfe(AT_FDCWD, Griffpfad(datei).Zeichen, AT_SYMLINK_FOLLOW));
}

// A name beside the place, short and of its own, whatever the length of the name in the end. The process number alone
// is not unique where a folder is shared between machines.
struct Nebenname {
    explicit Nebenname(int versuch) {
        std::snprintf(Zeichen, sizeof Zeichen, ".zepholt-%d-%d.tmp", static_cast<int>(getpid()), versuch);
    }
    char Zeichen[48] = "";
};

// Tries names beside the place until `tun` succeeds with one that is not taken; empty when there is none.
template <class Tun>
std::optional<Nebenname> NebennameFinden(Tun tun) {
    for (int versuch = 0; versuch < Versuche; ++versuch) {
        const Nebenname name(versuch);
        if (tun(name.Zeichen)) {
            return name;
        }
        if (errno != EEXIST) {
            break;
        }
    }
    return std::nullopt;
}

// Holds back the signals that would end the process and leave a file with a name beside its place. What the program
// answers itself is not held back.
class Signalsperre {
public:
    Signalsperre() {
        sigset_t gesperrt;
        sigemptyset(&gesperrt);
        for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGQUIT}) {
            struct sigaction jetzt {};
            if (sigaction(signal, nullptr, &jetzt) == 0 && jetzt.sa_handler == SIG_DFL) {
                sigaddset(&gesperrt, signal);
            }
        }
        sigprocmask(SIG_BLOCK, &gesperrt, &m_vorher);
    }
    ~Signalsperre() { sigprocmask(SIG_SETMASK, &m_vorher, nullptr); }
    Signalsperre(const Signalsperre&) = delete;
    Signalsperre& operator=(const Signalsperre&) = delete;

private:
    sigset_t m_vorher;
};

} // namespace

struct AusgabeDatei::Platz {
    Stelle Ort;
    Griff Datei;
    std::optional<Nebenname> Nebenan;   // the file's name so far; none while it has no name at all
    std::optional<Signalsperre> Sperre; // as long as it has one

    explicit Platz(Stelle ort, Griff datei = {}) : Ort(std::move(ort)), Datei(std::move(datei)) {}
    ~Platz() {
        if (Nebenan) {
            unlinkat(Ort.Ordner.Nummer(), Nebenan->Zeichen, 0);
        }
    }
    bool MitNamenAnlegen();
    bool NamenGeben();
    bool Umbenennen();
};

// The way of file systems that know no file without a name.
bool AusgabeDatei::Platz::MitNamenAnlegen() {
    Sperre.emplace();
    Nebenan = NebennameFinden([this](const char* name) {
        Datei = Oeffne(Ort.Ordner.Nummer(), name, O_WRONLY | O_CREAT | O_EXCL, 0666);
        return Datei.Offen();
    });
    return Datei.Offen();
}

// Gives the file without a name its own at once where nothing stands under it, else by way of a name beside it: only a
// name can replace a name.
bool AusgabeDatei::Platz::NamenGeben() {
    const auto verknuepft = [this](const char* name) { return Verknuepft(Datei, Ort.Ordner, name); };
    if (verknuepft(Ort.Name.c_str())) {
        return true;
    }
    if (errno != EEXIST || !IstErsetzbar(Ort)) {
        return false;
    }
    Sperre.emplace();
    Nebenan = NebennameFinden(verknuepft);
    return Nebenan && Umbenennen();
}

bool AusgabeDatei::Platz::Umbenennen() {
    const int ordner = Ort.Ordner.Nummer();
    const auto umbenannt = [&] { return renameat(ordner, Nebenan->Zeichen, ordner, Ort.Name.c_str()); };
    if (!IstErsetzbar(Ort) || Wiederholt(umbenannt) != 0) {
        return false;
    }
    Nebenan.reset();
    return true;
}

void AusgabeDatei::PlatzEnde::operator()(Platz* platz) const {
    delete platz;
}

AusgabeDatei::PlatzZeiger AusgabeDatei::Anlegen(const Text& pfad, PlatzZeiger erprobt) {
    const std::string bytes = PfadBytes(pfad);
    PlatzZeiger platz = std::move(erprobt);
    if (platz == nullptr || !IstStelleVon(platz->Ort, bytes)) {
        platz.reset(new Platz(StelleVon(bytes)));
    }
    if (!platz->Ort.Ordner.Offen() || !IstErsetzbar(platz->Ort)) {
        return nullptr;
    }
    if (!platz->Datei.Offen() && IstSpaeterBenennbar()) {
        platz->Datei = NamenlosAnlegen(platz->Ort);
    }
    return platz->Datei.Offen() || platz->MitNamenAnlegen() ? std::move(platz) : nullptr;
}

bool AusgabeDatei::Hinausschreiben(std::string_view bytes) {
    return AllesSchreiben(m_platz->Datei.Nummer(), bytes);
}

// Some file systems tell only at the closing that a write failed: a second handle of the file is closed first, while
// the file has no name yet. Where no more handles are to be had, that is left out.
bool AusgabeDatei::Einsetzen() {
    const PlatzZeiger platz = std::move(m_platz);
    Griff zweiter(dup(platz->Datei.Nummer()));
    const bool ganz = !zweiter.Offen() || zweiter.Schliesse();
    return ganz && (platz->Nebenan ? platz->Umbenennen() : platz->NamenGeben());
}

// By a file without a name where the system has one. Else by one under the name itself; what is deleted then is only
// what was created here, should another file have taken the name meanwhile.
bool DateiAnlegbar(const Text& pfad, AusgabeDatei::PlatzZeiger* offen) {
    Stelle stelle = StelleVon(PfadBytes(pfad));
    struct stat angaben {};
    if (!stelle.Ordner.Offen() || LiesNamen(stelle, angaben) || errno != ENOENT || stelle.Name.empty()) {
        return false;
    }
    if (Griff datei = NamenlosAnlegen(stelle); datei.Offen()) {
        if (offen != nullptr && IstSpaeterBenennbar()) {
            offen->reset(new AusgabeDatei::Platz(std::move(stelle), std::move(datei)));
        }
        return true;
    }
    const Signalsperre sperre;
    const Griff griff = Oeffne(stelle.Ordner.Nummer(), stelle.Name.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0666);
    struct stat eigene {};
    if (!griff.Offen()) {
        return false;
    }
    if (fstat(griff.Nummer(), &eigene) == 0 && LiesNamen(stelle, angaben) && IstDieselbe(eigene, angaben)) {
        unlinkat(stelle.Ordner.Nummer(), stelle.Name.c_str(), 0);
    }
    return true;
}

} // namespace zepholt
