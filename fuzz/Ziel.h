// What the fuzz targets share: the door that the fuzzer calls, a claim that must hold, and options taken from the
// input.
//
// A target is one run of the program, or of a part of it, on the bytes that it is handed. It begins with NeuerLauf()
// and touches no disk: its files lie in memory (Speicherplatte.h). What must hold on every input is claimed by
// Verlange; a claim that doesn't hold ends the process, which is what the fuzzer looks for.
#pragma once

#include "support/Text.h"

#include <cstddef>
#include <cstdint>

namespace zepholt::fuzz {

// Ends the process with the text on standard error where `gilt` doesn't hold.
void Verlange(bool gilt, const char* was);

// What the bytes decide: which of several ways a run takes.
class Wahl {
public:
    explicit Wahl(ByteSicht eingabe);

    // The next choice: a number from 0 to `anzahl` - 1.
    std::size_t Aus(std::size_t anzahl);

private:
    std::size_t m_rest;
};

} // namespace zepholt::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t anzahl);
