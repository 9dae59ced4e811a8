// A library that is put before a program (LD_PRELOAD) and disturbs one of its calls of the system.
//
//     ZEPHOLT_STOERUNG="CALL NUMBER WHAT"     the NUMBER-th call (from 1) of CALL
//     ZEPHOLT_STOERUNG="CALL NUMBER+ WHAT"    that one and all behind it
//
// WHAT: the number of an error, with which the call fails; "kurz": only half of the bytes are read or written; "tat":
// the state of the disk is changed before the call, as ZEPHOLT_TAT tells, "TAT PATH OTHER":
//     kuerze P -    cuts the file P to half           wachse P -    adds to the file P
//     ersetze P Q   renames Q to P                    loesche P -   removes the file P
//     verknuepfe P Q   makes P a link to Q
// ZEPHOLT_OHNE_NAMENLOS, set to anything: the file system knows no files without a name.
//
// When a call is disturbed, a byte is written to the file descriptor ZEPHOLT_STOERUNG_MELDER, if there is one: a run
// without it had fewer such calls. Nothing in here needs memory.
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>

extern "C" void* __libc_malloc(size_t); // NOLINT(bugprone-reserved-identifier)

namespace {

enum class Was { Nichts, Fehler, Kurz, Tat };

struct Stoerung {
    char Ruf[24] = "";
    long Nummer = 0;
    bool Dauernd = false;
    Was Art = Was::Nichts;
    int Fehler = 0;
    char Tat[16] = "";
    char Pfad[512] = "";
    char Anderer[512] = "";
    int Melder = -1;
};

Stoerung stoerung;
long gezaehlt = 0;
bool bereit = false;  // the environment has been read
bool gesperrt = true; // calls of this library itself

template <class Funktion>
Funktion* System(const char* name) {
    return reinterpret_cast<Funktion*>(dlsym(RTLD_NEXT, name));
}

void Lies() {
    bereit = true;
    const char* text = std::getenv("ZEPHOLT_STOERUNG");
    char nummer[24] = "";
    char was[24] = "";
    if (text == nullptr || std::sscanf(text, "%23s %23s %23s", stoerung.Ruf, nummer, was) != 3) {
        return;
    }
    stoerung.Nummer = std::strtol(nummer, nullptr, 10);
    stoerung.Dauernd = std::strchr(nummer, '+') != nullptr;
    stoerung.Fehler = std::atoi(was);
    stoerung.Art = std::strcmp(was, "kurz") == 0 ? Was::Kurz : std::strcmp(was, "tat") == 0 ? Was::Tat : Was::Fehler;
    if (const char* tat = std::getenv("ZEPHOLT_TAT")) {
        std::sscanf(tat, "%15s %511s %511s", stoerung.Tat, stoerung.Pfad, stoerung.Anderer);
    }
    if (const char* melder = std::getenv("ZEPHOLT_STOERUNG_MELDER")) {
        stoerung.Melder = std::atoi(melder);
    }
    gesperrt = false;
}

void Tue() {
    struct stat angaben {};
    if (std::strcmp(stoerung.Tat, "kuerze") == 0 && stat(stoerung.Pfad, &angaben) == 0) {
        (void)!truncate(stoerung.Pfad, angaben.st_size / 2);
    } else if (std::strcmp(stoerung.Tat, "wachse") == 0 && stat(stoerung.Pfad, &angaben) == 0) {
        (void)!truncate(stoerung.Pfad, angaben.st_size + 4096);
    } else if (std::strcmp(stoerung.Tat, "ersetze") == 0) {
        (void)rename(stoerung.Anderer, stoerung.Pfad);
    } else if (std::strcmp(stoerung.Tat, "loesche") == 0) {
        (void)unlink(stoerung.Pfad);
    } else if (std::strcmp(stoerung.Tat, "verknuepfe") == 0) {
        (void)!symlink(stoerung.Anderer, stoerung.Pfad);
    }
}

// What happens to this call of `ruf`. A deed is done here.
Was Trifft(const char* ruf) {
    if (!bereit) {
        Lies();
    }
    if (gesperrt || std::strcmp(ruf, stoerung.Ruf) != 0) {
        return Was::Nichts;
    }
    ++gezaehlt;
    if (gezaehlt < stoerung.Nummer || (gezaehlt > stoerung.Nummer && !stoerung.Dauernd)) {
        return Was::Nichts;
    }
    gesperrt = true;
    if (stoerung.Melder >= 0) {
        System<ssize_t(int, const void*, size_t)>("write")(stoerung.Melder, "!", 1);
        stoerung.Melder = -1;
    }
    if (stoerung.Art == Was::Tat) {
        Tue();
    }
    gesperrt = false;
    errno = stoerung.Fehler;
    return stoerung.Art;
}

bool Scheitert(const char* ruf) {
    return Trifft(ruf) == Was::Fehler;
}

size_t Menge(Was was, size_t anzahl) {
    return was == Was::Kurz ? (anzahl + 1) / 2 : anzahl;
}

} // namespace

extern "C" {

int openat(int ordner, const char* pfad, int art, ...) {
    va_list weitere;
    va_start(weitere, art);
    const mode_t rechte = va_arg(weitere, mode_t);
    va_end(weitere);
    const bool namenlos = (art & O_TMPFILE) == O_TMPFILE;
    if (namenlos && std::getenv("ZEPHOLT_OHNE_NAMENLOS") != nullptr) {
        errno = EOPNOTSUPP;
        return -1;
    }
    if (Scheitert(namenlos ? "namenlos" : "openat")) {
        return -1;
    }
    return System<int(int, const char*, int, mode_t)>("openat")(ordner, pfad, art, rechte);
}

DIR* opendir(const char* pfad) {
    return Scheitert("opendir") ? nullptr : System<DIR*(const char*)>("opendir")(pfad);
}

dirent* readdir(DIR* ordner) {
    return Scheitert("readdir") ? nullptr : System<dirent*(DIR*)>("readdir")(ordner);
}

ssize_t pread(int griff, void* bytes, size_t anzahl, off_t stelle) {
    const Was was = Trifft("pread");
    return was == Was::Fehler
               ? -1
               : System<ssize_t(int, void*, size_t, off_t)>("pread")(griff, bytes, Menge(was, anzahl), stelle);
}

ssize_t write(int griff, const void* bytes, size_t anzahl) {
    const Was was = Trifft("write");
    return was == Was::Fehler ? -1
                              : System<ssize_t(int, const void*, size_t)>("write")(griff, bytes, Menge(was, anzahl));
}

int fstatat(int ordner, const char* pfad, struct stat* angaben, int art) noexcept {
    return Scheitert("fstatat")
               ? -1
               : System<int(int, const char*, struct stat*, int)>("fstatat")(ordner, pfad, angaben, art);
}

int fstat(int griff, struct stat* angaben) noexcept {
    return Scheitert("fstat") ? -1 : System<int(int, struct stat*)>("fstat")(griff, angaben);
}

int statfs(const char* pfad, struct statfs* angaben) noexcept {
    return Scheitert("statfs") ? -1 : System<int(const char*, struct statfs*)>("statfs")(pfad, angaben);
}

int faccessat(int ordner, const char* pfad, int art, int wie) noexcept {
    return Scheitert("faccessat") ? -1 : System<int(int, const char*, int, int)>("faccessat")(ordner, pfad, art, wie);
}

int dup(int griff) noexcept {
    return Scheitert("dup") ? -1 : System<int(int)>("dup")(griff);
}

// A file that can't be closed as it should is closed all the same.
int close(int griff) {
    const bool scheitert = Scheitert("close");
    const int fehler = errno;
    const int ergebnis = System<int(int)>("close")(griff);
    if (scheitert) {
        errno = fehler;
    }
    return scheitert ? -1 : ergebnis;
}

int linkat(int von, const char* alt, int nach, const char* neu, int art) noexcept {
    return Scheitert("linkat")
               ? -1
               : System<int(int, const char*, int, const char*, int)>("linkat")(von, alt, nach, neu, art);
}

int renameat(int von, const char* alt, int nach, const char* neu) noexcept {
    return Scheitert("renameat") ? -1
                                 : System<int(int, const char*, int, const char*)>("renameat")(von, alt, nach, neu);
}

int unlinkat(int ordner, const char* pfad, int art) noexcept {
    return Scheitert("unlinkat") ? -1 : System<int(int, const char*, int)>("unlinkat")(ordner, pfad, art);
}

void* malloc(size_t anzahl) noexcept {
    return Scheitert("malloc") ? nullptr : __libc_malloc(anzahl);
}

} // extern "C"
