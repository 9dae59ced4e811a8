// The platform's door on Linux. A path is bytes here; Text holds them as UTF-8 read without loss.
#include "support/OS_API.h"

#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <new>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zepholt {

namespace {

constexpr int Versuche = 1000; // to find a name beside an output file that is not taken

// A path for the system; empty, and so never found, for a text that holds a NUL: the system would stop reading there.
std::string PfadBytes(const Text& pfad) {
    return pfad.find(u'\0') == Text::npos ? Utf8Bytes(pfad) : std::string();
}

DateiArt ArtAus(mode_t modus) {
    if (S_ISREG(modus)) {
        return DateiArt::Datei;
    }
    return S_ISDIR(modus) ? DateiArt::Ordner : DateiArt::Anderes;
}

// What `name` in an open folder is, or a path when the folder is AT_FDCWD.
DateiArt ArtIm(int ordner, const char* name) {
    struct stat angaben {};
    return fstatat(ordner, name, &angaben, 0) == 0 ? ArtAus(angaben.st_mode) : DateiArt::Nichts;
}

// True when `name` fits `muster`. One place to come back to is enough: a later '*' takes over all that an earlier one
// could still give.
bool Passt(TextSicht name, TextSicht muster) {
    if (name.starts_with(u'.') && !muster.starts_with(u'.')) {
        return false;
    }
    std::size_t n = 0;
    std::size_t m = 0;
    std::size_t sternMuster = TextSicht::npos; // behind the last '*' met
    std::size_t sternName = 0;                 // as far as that '*' reaches
    while (n < name.size()) {
        if (m < muster.size() && muster[m] == u'*') {
            sternMuster = ++m;
            sternName = n;
        } else if (m < muster.size() && (muster[m] == u'?' || muster[m] == name[n])) {
            ++n;
            ++m;
        } else if (sternMuster != TextSicht::npos) {
            n = ++sternName;
            m = sternMuster;
        } else {
            return false;
        }
    }
    return muster.find_first_not_of(u'*', m) == TextSicht::npos;
}

// The names in a folder that fit, in the order in which they count.
std::vector<std::string> PassendeNamen(DIR* ordner, TextSicht muster) {
    std::vector<std::string> namen;
    while (const dirent* eintrag = readdir(ordner)) {
        if (Passt(AusUtf8Bytes(eintrag->d_name), muster)) {
            namen.emplace_back(eintrag->d_name);
        }
    }
    const auto istEigener = [](const std::string& name) { return name == "." || name == ".."; };
    const auto fremde = std::partition(namen.begin(), namen.end(), istEigener);
    std::sort(namen.begin(), fremde);
    std::sort(fremde, namen.end()); // std::string compares as bytes without sign
    return namen;
}

bool AllesSchreiben(int griff, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t anzahl = write(griff, bytes.data(), bytes.size());
        if (anzahl < 0 && errno == EINTR) {
            continue;
        }
        if (anzahl <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(anzahl));
    }
    return true;
}

// Where a file at `pfad` really lies: the end of a link, else the path itself; empty for a link that points to nothing.
std::string OhneVerweis(const std::string& pfad) {
    struct stat angaben {};
    if (lstat(pfad.c_str(), &angaben) != 0 || !S_ISLNK(angaben.st_mode)) {
        return pfad;
    }
    char* ziel = realpath(pfad.c_str(), nullptr);
    std::string ergebnis = ziel != nullptr ? ziel : "";
    std::free(ziel);
    return ergebnis;
}

// True when a file may come to stand at `pfad`: nothing or an ordinary file that may be written stands there.
bool IstErsetzbar(const std::string& pfad) {
    struct stat angaben {};
    return lstat(pfad.c_str(), &angaben) != 0 ||
           (S_ISREG(angaben.st_mode) && faccessat(AT_FDCWD, pfad.c_str(), W_OK, AT_EACCESS) == 0);
}

} // namespace

DateiArt ArtVon(const Text& pfad) {
    return ArtIm(AT_FDCWD, PfadBytes(pfad).c_str());
}

std::vector<OrdnerEintrag> EintraegeSuchen(const Text& muster) {
    const std::size_t anfang = muster.rfind(u'/') + 1; // 0 without one
    const Text name = muster.substr(anfang);
    if (name.find_first_of(u"*?") == Text::npos) {
        const DateiArt art = ArtVon(muster);
        return art != DateiArt::Nichts ? std::vector<OrdnerEintrag>{{name, art}} : std::vector<OrdnerEintrag>{};
    }

    std::vector<OrdnerEintrag> eintraege;
    const std::string pfad = anfang > 0 ? PfadBytes(muster.substr(0, anfang)) : ".";
    DIR* ordner = opendir(pfad.c_str());
    if (ordner == nullptr) {
        return eintraege;
    }
    for (const std::string& passend : PassendeNamen(ordner, name)) {
        const DateiArt art = ArtIm(dirfd(ordner), passend.c_str());
        if (art != DateiArt::Nichts) {
            eintraege.push_back({AusUtf8Bytes(passend), art});
        }
    }
    closedir(ordner);
    return eintraege;
}

char16_t PfadTrenner() {
    return u'/';
}

bool IstPfadTrenner(char16_t zeichen) {
    return zeichen == u'/';
}

// What is no ordinary file is not even opened; the test behind the opening is for a path that changes in between.
LeseDatei::LeseDatei(const Text& pfad) {
    const std::string bytes = PfadBytes(pfad);
    if (ArtIm(AT_FDCWD, bytes.c_str()) != DateiArt::Datei) {
        throw LaufzeitFehler("no ordinary file");
    }
    const int griff = open(bytes.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    struct stat angaben {};
    if (griff < 0 || fstat(griff, &angaben) != 0 || !S_ISREG(angaben.st_mode)) {
        if (griff >= 0) {
            close(griff);
        }
        throw LaufzeitFehler("file can't be opened");
    }
    m_griff = griff;
    m_groesse = static_cast<std::uint64_t>(angaben.st_size);
}

LeseDatei::~LeseDatei() {
    close(static_cast<int>(m_griff));
}

Bytes LeseDatei::Lies(std::uint64_t stelle, std::size_t anzahl) {
    const std::uint64_t rest = m_groesse - std::min(m_groesse, stelle);
    Bytes bytes(static_cast<std::size_t>(std::min<std::uint64_t>(anzahl, rest)));
    std::size_t gelesen = 0;
    while (gelesen < bytes.size()) {
        const ssize_t stueck = pread(static_cast<int>(m_griff), bytes.data() + gelesen, bytes.size() - gelesen,
                                     static_cast<off_t>(stelle + gelesen));
        if (stueck < 0 && errno == EINTR) {
            continue;
        }
        if (stueck < 0) {
            throw LaufzeitFehler("file can't be read");
        }
        if (stueck == 0) { // shorter than it was when it was opened
            break;
        }
        gelesen += static_cast<std::size_t>(stueck);
    }
    bytes.Kuerzen(gelesen);
    return bytes;
}

// The name beside the place is short and of its own, whatever the length of the name in the end. A name that is taken
// is passed over: the process number alone is not unique where a folder is shared between machines.
void AusgabeDatei::Anlegen(const Text& pfad) {
    const std::string ziel = OhneVerweis(PfadBytes(pfad));
    if (ziel.empty() || ziel.back() == '/' || !IstErsetzbar(ziel)) {
        return;
    }
    m_pfad = AusUtf8Bytes(ziel);
    const std::string davor = ziel.substr(0, ziel.rfind('/') + 1) + ".zepholt-" + std::to_string(getpid()) + "-";
    for (int versuch = 0; versuch < Versuche && !m_gut; ++versuch) {
        const std::string nebenan = davor + std::to_string(versuch) + ".tmp";
        m_nebenan = AusUtf8Bytes(nebenan);
        m_griff = open(nebenan.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        m_gut = m_griff >= 0;
        if (!m_gut && errno != EEXIST) {
            return;
        }
    }
}

bool AusgabeDatei::Hinausschreiben(std::string_view bytes) {
    return AllesSchreiben(static_cast<int>(m_griff), bytes);
}

bool AusgabeDatei::Einsetzen() {
    const std::string ziel = Utf8Bytes(m_pfad);
    const std::string nebenan = Utf8Bytes(m_nebenan);
    const int griff = static_cast<int>(std::exchange(m_griff, -1));
    const bool ganz = close(griff) == 0; // some file systems tell only here that a write failed
    if (ganz && IstErsetzbar(ziel) && std::rename(nebenan.c_str(), ziel.c_str()) == 0) {
        return true;
    }
    unlink(nebenan.c_str());
    return false;
}

void AusgabeDatei::Verwerfen() {
    if (m_griff >= 0) {
        close(static_cast<int>(std::exchange(m_griff, -1)));
        unlink(Utf8Bytes(m_nebenan).c_str());
    }
}

bool DateiAnlegbar(const Text& pfad) {
    const std::string bytes = PfadBytes(pfad);
    const int griff = open(bytes.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (griff < 0) {
        return false;
    }
    close(griff);
    unlink(bytes.c_str());
    return true;
}

Zeitpunkt Jetzt() {
    const std::time_t jetzt = std::time(nullptr);
    std::tm ort{};
    localtime_r(&jetzt, &ort);
    return {ort.tm_year + 1900, ort.tm_mon + 1, ort.tm_mday, ort.tm_hour, ort.tm_min};
}

std::int64_t MilliSekunden() {
    timespec jetzt{};
    clock_gettime(CLOCK_MONOTONIC_COARSE, &jetzt);
    return std::int64_t{jetzt.tv_sec} * 1000 + jetzt.tv_nsec / 1000000;
}

Text Kommandozeile(int anzahl, char** argumente) {
    std::vector<Text> texte;
    for (int i = 1; i < anzahl; ++i) {
        texte.push_back(AusUtf8Bytes(argumente[i]));
    }
    return KommandotextAus(texte);
}

void MeldungAusgeben(TextSicht text) {
    AllesSchreiben(STDERR_FILENO, Utf8Bytes(text) + '\n');
}

void MeldungAusgeben(std::string_view utf8) {
    AllesSchreiben(STDERR_FILENO, utf8);
    AllesSchreiben(STDERR_FILENO, "\n");
}

bool MeldungIstTerminal() {
    return isatty(STDERR_FILENO) == 1;
}

} // namespace zepholt
