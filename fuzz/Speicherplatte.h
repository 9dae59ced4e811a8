// A disk in memory, in place of the platform's files and folders: Speicherplatte.cpp brings those functions of
// support/OS_API.h that touch a disk.
//
// It holds the files that a target puts on it, and the output file that the run writes last. A folder exists when a
// file lies in it.
#pragma once

#include "support/Text.h"

#include <string>
#include <utility>
#include <vector>

namespace zepholt::fuzz {

struct Speicherplatte {
    std::vector<std::pair<Text, ByteSicht>> Dateien; // path and content, ascending by path; the bytes are the target's

    Text Ausgabepfad;    // of the output file that was finished last; empty while there is none
    std::string Ausgabe; // and its bytes
};

inline Speicherplatte speicherplatte;

} // namespace zepholt::fuzz
