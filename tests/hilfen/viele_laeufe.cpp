// Many runs in one process: viele_laeufe LIST. A line of LIST is a folder, a tab and a command text, both ASCII; each
// is run in its folder, one after the other; its exit status is a line on standard output, written before the next line
// is read. Where the start of a process costs a hundred times as much as a small file's test, as under an emulator,
// this makes many files possible.
#include "run/Main_Start.h"
#include "run/NeuerLauf.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

int main(int anzahl, char** argumente) {
    std::ifstream liste(anzahl == 2 ? argumente[1] : "");
    int laeufe = 0;
    for (std::string zeile; std::getline(liste, zeile); ++laeufe) {
        const std::size_t tabulator = zeile.find('\t');
        if (tabulator == std::string::npos) {
            std::cerr << "viele_laeufe: a line without a tab\n";
            return 1;
        }
        std::filesystem::current_path(zeile.substr(0, tabulator));
        zepholt::NeuerLauf();
        std::cout << zepholt::Main(
                         zepholt::Text(zeile.begin() + static_cast<std::ptrdiff_t>(tabulator) + 1, zeile.end()))
                  << std::endl;
    }
    return laeufe > 0 ? 0 : 1;
}
