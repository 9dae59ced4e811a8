// What the sources of the platform's door on Linux share: calls that a signal interrupts are made again, open files
// close by their end.
#pragma once

#include "support/Text.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>

namespace zepholt {

// What `ruf` returns when no signal comes in between.
template <class Ruf>
auto Wiederholt(Ruf ruf) {
    for (;;) {
        const auto ergebnis = ruf();
        if (ergebnis != -1 || errno != EINTR) {
            return ergebnis;
        }
    }
}

// An open file of the system's; -1 when there is none.
class Griff {
public:
    Griff() = default;
    explicit Griff(int griff) : m_griff(griff) {}
    ~Griff() { Schliesse(); }
    Griff(const Griff&) = delete;
    Griff& operator=(const Griff&) = delete;
    Griff(Griff&& anderer) noexcept : m_griff(std::exchange(anderer.m_griff, -1)) {}
    Griff& operator=(Griff&& anderer) noexcept {
        std::swap(m_griff, anderer.m_griff);
        return *this;
    }

    int Nummer() const { return m_griff; }
    bool Offen() const { return m_griff >= 0; }
    int Abgeben() { return std::exchange(m_griff, -1); }

    // False when the file system tells only here that a write failed.
    bool Schliesse();

private:
    int m_griff = -1;
};

// Opens a name in an open folder, or a path when the folder is AT_FDCWD. `art` and `rechte` as the system takes them.
// The number is never that of a standard stream.
Griff Oeffne(int ordner, const char* name, int art, mode_t rechte = 0);

// A path for the system; empty, and so never found, for a text that holds a NUL: the system would stop reading there.
std::string PfadBytes(const Text& pfad);

// Writes all, or fails.
bool AllesSchreiben(int griff, std::string_view bytes);

} // namespace zepholt
