// Files and folders on Linux, as far as they are read.
#include "support/OS_API.h"

#include "support/HilfsFunktionen.h"
#include "support/Namensmuster.h"
#include "support/Systemruf_linux.h"

#include <algorithm>
#include <new>

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zepholt {

namespace {

DateiArt ArtAus(mode_t modus) {
    if (S_ISREG(modus)) {
        return DateiArt::Datei;
    }
    return S_ISDIR(modus) ? DateiArt::Ordner : DateiArt::Anderes;
}

// What `name` in an open folder is, or a path when the folder is AT_FDCWD.
DateiArt ArtIm(int ordner, const char* name) {
    struct stat angaben {};
    const int ergebnis = Wiederholt([&] { return fstatat(ordner, name, &angaben, 0); });
    return ergebnis == 0 ? ArtAus(angaben.st_mode) : DateiArt::Nichts;
}

struct OrdnerSchliesser {
    void operator()(DIR* ordner) const { closedir(ordner); }
};
using OffenerOrdner = std::unique_ptr<DIR, OrdnerSchliesser>;

// Null when the folder can't be opened; exhausted memory is no such failure.
OffenerOrdner OrdnerOeffnen(const char* pfad) {
    for (;;) {
        OffenerOrdner ordner(opendir(pfad));
        if (ordner == nullptr && errno == ENOMEM) {
            throw std::bad_alloc();
        }
        if (ordner != nullptr || errno != EINTR) {
            return ordner;
        }
    }
}

// Null behind the last entry, and where the reading fails for good.
const dirent* NaechsterEintrag(DIR* ordner) {
    for (;;) {
        errno = 0;
        const dirent* eintrag = readdir(ordner);
        if (eintrag != nullptr || errno != EINTR) {
            return eintrag;
        }
    }
}

// The names in a folder that fit, in the order in which they count.
std::vector<std::string> PassendeNamen(DIR* ordner, TextSicht muster) {
    std::vector<std::string> namen;
    while (const dirent* eintrag = NaechsterEintrag(ordner)) {
        if (PasstZuMuster(AusUtf8Bytes(eintrag->d_name), muster)) {
            namen.emplace_back(eintrag->d_name);
        }
    }
    const auto istEigener = [](const std::string& name) { return name == "." || name == ".."; };
    const auto fremde = std::partition(namen.begin(), namen.end(), istEigener);
    std::sort(namen.begin(), fremde);
    std::sort(fremde, namen.end()); // std::string compares as bytes without sign
    return namen;
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
    const OffenerOrdner ordner = OrdnerOeffnen(pfad.c_str());
    if (ordner == nullptr) {
        return eintraege;
    }
    for (const std::string& passend : PassendeNamen(ordner.get(), name)) {
        const DateiArt art = ArtIm(dirfd(ordner.get()), passend.c_str());
        if (art != DateiArt::Nichts) {
            eintraege.push_back({AusUtf8Bytes(passend), art});
        }
    }
    return eintraege;
}

// What is no ordinary file is not even opened; the test behind the opening is for a path that changes in between.
LeseDatei::LeseDatei(const Text& pfad) {
    const std::string bytes = PfadBytes(pfad);
    if (ArtIm(AT_FDCWD, bytes.c_str()) != DateiArt::Datei) {
        throw LaufzeitFehler("no ordinary file");
    }
    Griff griff = Oeffne(AT_FDCWD, bytes.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY);
    struct stat angaben {};
    if (!griff.Offen() || fstat(griff.Nummer(), &angaben) != 0 || !S_ISREG(angaben.st_mode)) {
        throw LaufzeitFehler("file can't be opened");
    }
    m_griff = griff.Abgeben();
    m_groesse = static_cast<std::uint64_t>(angaben.st_size);
}

LeseDatei::~LeseDatei() {
    close(static_cast<int>(m_griff));
}

std::size_t LeseDatei::Lies(std::uint64_t stelle, std::span<unsigned char> ziel) {
    std::size_t gelesen = 0;
    while (gelesen < ziel.size()) {
        const ssize_t stueck = Wiederholt([&] {
            return pread(static_cast<int>(m_griff), ziel.data() + gelesen, ziel.size() - gelesen,
                         static_cast<off_t>(stelle + gelesen));
        });
        if (stueck < 0) {
            throw LaufzeitFehler("file can't be read");
        }
        if (stueck == 0) { // shorter than it was when it was opened
            break;
        }
        gelesen += static_cast<std::size_t>(stueck);
    }
    return gelesen;
}

} // namespace zepholt
