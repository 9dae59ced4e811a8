// The platform's door on Linux: clock, command line, messages, and what the other sources of the platform share. A path
// is bytes here; Text holds them as UTF-8 read without loss.
#include "support/OS_API.h"

#include "support/HilfsFunktionen.h"
#include "support/Systemruf_linux.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>
#include <memory>

#include <malloc.h>
#include <sys/auxv.h>
#include <sys/mman.h>
#include <unistd.h>

namespace zepholt {

// Interrupted, the file is closed all the same.
bool Griff::Schliesse() {
    return !Offen() || close(Abgeben()) == 0 || errno == EINTR;
}

// What is told on a standard stream that the caller has closed must not get into a file that took its number.
Griff Oeffne(int ordner, const char* name, int art, mode_t rechte) {
    Griff griff(Wiederholt([=] { return openat(ordner, name, art | O_CLOEXEC, rechte); }));
    if (griff.Offen() && griff.Nummer() <= STDERR_FILENO) {
        return Griff(fcntl(griff.Nummer(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
    }
    return griff;
}

std::string PfadBytes(const Text& pfad) {
    return pfad.find(u'\0') == Text::npos ? Utf8Bytes(pfad) : std::string();
}

bool AllesSchreiben(int griff, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t anzahl = Wiederholt([&] { return write(griff, bytes.data(), bytes.size()); });
        if (anzahl <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(anzahl));
    }
    return true;
}

char16_t PfadTrenner() {
    return u'/';
}

bool IstPfadTrenner(char16_t zeichen) {
    return zeichen == u'/';
}

void WirdGanzGefuellt(void* speicher, std::size_t bytes) {
    constexpr std::size_t GrosseSeite = std::size_t{2} << 20;
    void* anfang = speicher;
    std::size_t rest = bytes;
    if (std::align(GrosseSeite, GrosseSeite, anfang, rest) != nullptr) {
        madvise(anfang, rest / GrosseSeite * GrosseSeite, MADV_HUGEPAGE); // a wish only
    }
}

void SpeicherBehalten() {
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, -1);
}

Zeitpunkt Jetzt() {
    timespec jetzt{};
    clock_gettime(CLOCK_REALTIME, &jetzt);
    std::tm ort{};
    localtime_r(&jetzt.tv_sec, &ort);
    return {ort.tm_year + 1900, ort.tm_mon + 1, ort.tm_mday, ort.tm_hour, ort.tm_min};
}

std::int64_t MilliSekunden() {
    timespec jetzt{};
    clock_gettime(CLOCK_MONOTONIC_COARSE, &jetzt);
    return std::int64_t{jetzt.tv_sec} * 1000 + jetzt.tv_nsec / 1000000;
}

// The kernel gives each process sixteen such bytes. The library's own source asks the processor first, which takes
// 20 microseconds on a virtual machine.
std::array<std::uint64_t, 2> Zufallszahlen() {
    std::array<std::uint64_t, 2> zahlen{};
    std::memcpy(zahlen.data(), reinterpret_cast<const void*>(getauxval(AT_RANDOM)), sizeof zahlen);
    return zahlen;
}

void ProzessVorbereiten() {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
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
