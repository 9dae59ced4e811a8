#include "bericht/Konsole.h"

#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include <sched.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace zepholt::bericht {

namespace {

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

// 0 where the program could not be started.
pid_t Gestartet(const Text& programm, const std::vector<Text>& argumente) {
    std::vector<std::string> texte = {Utf8Bytes(programm)};
    for (const Text& argument : argumente) {
        texte.push_back(Utf8Bytes(argument));
    }
    std::vector<char*> zeiger;
    zeiger.reserve(texte.size() + 1);
    for (std::string& text : texte) {
        zeiger.push_back(text.data());
    }
    zeiger.push_back(nullptr);
    pid_t prozess = 0;
    return posix_spawn(&prozess, texte[0].c_str(), nullptr, nullptr, zeiger.data(), environ) == 0 ? prozess : 0;
}

} // namespace

std::vector<Text> Argumente(int anzahl, char** argumente) {
    std::vector<Text> texte;
    for (int i = 1; i < anzahl; ++i) {
        texte.push_back(AusUtf8Bytes(argumente[i]));
    }
    return texte;
}

bool StandardausgabeSchreiben(std::string_view bytes) {
    return AllesSchreiben(STDOUT_FILENO, bytes);
}

void FehlerausgabeSchreiben(std::string_view utf8) {
    AllesSchreiben(STDERR_FILENO, utf8);
}

std::size_t StandardeingabeLesen(std::span<char> ziel) {
    ssize_t anzahl = 0;
    while ((anzahl = read(STDIN_FILENO, ziel.data(), ziel.size())) < 0 && errno == EINTR) {
    }
    return anzahl > 0 ? static_cast<std::size_t>(anzahl) : 0;
}

Sprache Systemsprache() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* wert = std::getenv(name);
        if (wert != nullptr && *wert != '\0') {
            const std::string_view kuerzel = std::string_view(wert).substr(0, 2);
            return kuerzel == "fr" ? Sprache::Franzoesisch : kuerzel == "it" ? Sprache::Italienisch : Sprache::Deutsch;
        }
    }
    return Sprache::Deutsch;
}

Text EigenerOrdner() {
    std::string pfad(4096, '\0');
    const ssize_t laenge = readlink("/proc/self/exe", pfad.data(), pfad.size());
    pfad.resize(laenge > 0 ? static_cast<std::size_t>(laenge) : 0);
    return AusUtf8Bytes(pfad.substr(0, pfad.rfind('/') + 1));
}

Text Pruefprogramm() {
    return EigenerOrdner() + u"zepholt";
}

Text VollerPfad(const Text& pfad) {
    if (pfad.starts_with(u'/')) {
        return pfad;
    }
    std::string ordner(4096, '\0');
    if (getcwd(ordner.data(), ordner.size()) == nullptr) {
        return pfad;
    }
    ordner.resize(ordner.find('\0'));
    return AusUtf8Bytes(ordner + "/") + pfad;
}

Text Benutzerordner() {
    const char* heim = std::getenv("HOME");
    const std::string ordner = std::string(heim != nullptr ? heim : "") + "/ZEPHOLT";
    mkdir(ordner.c_str(), S_IRWXU); // where it fails, so does writing into it
    return AusUtf8Bytes(ordner + "/");
}

Text TemporaererPfad() {
    const char* ordner = std::getenv("TMPDIR");
    std::string muster = (ordner != nullptr && *ordner != '\0' ? std::string(ordner) : "/tmp") + "/zepholt-XXXXXX";
    if (mkdtemp(muster.data()) == nullptr) { // a folder of its own, that no other user can put a file into
        throw LaufzeitFehler("no temporary folder");
    }
    return AusUtf8Bytes(muster + "/protokoll.xml");
}

void DateiLoeschen(const Text& pfad) {
    const std::string bytes = Utf8Bytes(pfad);
    unlink(bytes.c_str());
    rmdir(bytes.substr(0, bytes.rfind('/')).c_str());
}

bool ProgrammAusfuehren(const Text& programm, const std::vector<Text>& argumente) {
    const pid_t prozess = Gestartet(programm, argumente);
    if (prozess == 0) {
        return false;
    }
    int status = 0;
    while (waitpid(prozess, &status, 0) < 0 && errno == EINTR) {
    }
    return !(WIFEXITED(status) && WEXITSTATUS(status) == 127);
}

void Prozesse::Starten(const Text& programm, const std::vector<Text>& argumente) {
    Abwarten(m_hoechstens - 1);
    if (const pid_t prozess = Gestartet(programm, argumente); prozess != 0) {
        m_laufende.push_back(prozess);
    }
}

void Prozesse::Abwarten(std::size_t anzahl) {
    while (m_laufende.size() > anzahl) {
        const pid_t prozess = wait(nullptr);
        if (prozess < 0 && errno != EINTR) {
            m_laufende.clear(); // somebody else has waited for them
        }
        std::erase(m_laufende, prozess);
    }
}

std::size_t Prozessoren() {
    cpu_set_t menge;
    CPU_ZERO(&menge);
    sched_getaffinity(0, sizeof menge, &menge);
    return static_cast<std::size_t>(std::max(1, CPU_COUNT(&menge)));
}

void OrdnerAnlegen(const Text& pfad) {
    mkdir(Utf8Bytes(pfad).c_str(), S_IRWXU | S_IRWXG | S_IRWXO);
}

} // namespace zepholt::bericht
