// Runs a target on files, in place of the fuzzer: what a fuzzer has found is seen again with any compiler.
//
//     NAME FILE-OR-FOLDER...
//
// Each file twice: as it is, and cut at every one of its first bytes.
#include "Ziel.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

constexpr std::size_t HoechstensSchnitte = 300;

std::size_t laeufe = 0;

// In memory of just its size, so that a step behind its end is seen.
void Laufe(const std::vector<std::uint8_t>& bytes, std::size_t anzahl) {
    const std::vector<std::uint8_t> genau(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(anzahl));
    LLVMFuzzerTestOneInput(genau.data(), genau.size());
    ++laeufe;
}

void Wiederhole(const std::filesystem::path& pfad) {
    std::ifstream datei(pfad, std::ios::binary);
    const std::vector<std::uint8_t> bytes{std::istreambuf_iterator<char>(datei), {}};
    Laufe(bytes, bytes.size());
    for (std::size_t ende = 0; ende < std::min(bytes.size(), HoechstensSchnitte); ++ende) {
        Laufe(bytes, ende);
    }
}

} // namespace

int main(int anzahl, char** argumente) {
    for (int i = 1; i < anzahl; ++i) {
        if (!std::filesystem::is_directory(argumente[i])) {
            Wiederhole(argumente[i]);
            continue;
        }
        for (const auto& eintrag : std::filesystem::directory_iterator(argumente[i])) {
            Wiederhole(eintrag.path());
        }
    }
    std::printf("%zu runs\n", laeufe);
    return laeufe > 0 ? 0 : 1;
}
