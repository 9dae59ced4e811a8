#include "window/Modul_linux.h"

#include <dlfcn.h>
#include <unistd.h>

#include <string>

namespace zepholt {

namespace {

// The folder of the running program, with its trailing '/'; empty when it can't be told.
std::string ProgrammOrdner() {
    std::string pfad(4096, '\0');
    const ssize_t laenge = readlink("/proc/self/exe", pfad.data(), pfad.size());
    if (laenge <= 0) {
        return {};
    }
    pfad.resize(static_cast<std::size_t>(laenge));
    return pfad.substr(0, pfad.rfind('/') + 1);
}

} // namespace

const FensterModul* ModulLaden() {
    const std::string ordner = ProgrammOrdner();
    if (ordner.empty()) {
        return nullptr;
    }
    void* bibliothek = dlopen((ordner + ZEPHOLT_FENSTERMODUL).c_str(), RTLD_NOW | RTLD_LOCAL);
    if (bibliothek == nullptr) {
        bibliothek = dlopen((ordner + "../lib/zepholt/fenster/" ZEPHOLT_FENSTERMODUL).c_str(), RTLD_NOW | RTLD_LOCAL);
    }
    if (bibliothek == nullptr) {
        return nullptr;
    }
    const auto modul = reinterpret_cast<FensterModulFunktion>(dlsym(bibliothek, FensterModulName));
    return modul == nullptr ? nullptr : modul(FensterModulFassung);
}

} // namespace zepholt
