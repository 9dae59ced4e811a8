// A folder of its own for each test with real files, gone with its content when the test ends.
#pragma once

#include "support/HilfsFunktionen.h"
#include "support/OS_API.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace zepholt {

class Pruefordner : public testing::Test {
protected:
    Pruefordner() {
        std::random_device zufall;
        // The name holds an umlaut and a blank: no path of these tests is a tame one.
        m_ordner = std::filesystem::temp_directory_path() /
                   (u"zepholt pr\u00FCfung " + ZahlText(zufall()) + u"-" + ZahlText(zufall()));
        std::filesystem::create_directories(m_ordner);
    }
    ~Pruefordner() override {
        std::error_code fehler;
        std::filesystem::remove_all(System(u""), fehler);
    }
    Pruefordner(const Pruefordner&) = delete;
    Pruefordner& operator=(const Pruefordner&) = delete;

    // The path of `name` in the folder as the program gets it; '/' in it stands for the platform's separator.
    Text Pfad(const Text& name) const {
        Text pfad = m_ordner.u16string() + u'/' + name;
        for (char16_t& zeichen : pfad) {
            zeichen = zeichen == u'/' ? PfadTrenner() : zeichen;
        }
        return pfad;
    }

    // The same for the standard library, which needs a prefix for long paths where a backslash parts them.
    std::filesystem::path System(const Text& name) const {
        return PfadTrenner() == u'\\' ? std::filesystem::path(u"\\\\?\\" + Pfad(name))
                                      : std::filesystem::path(Pfad(name));
    }

    void Datei(const Text& name, const std::string& inhalt = "x") const {
        std::ofstream(System(name), std::ios::binary) << inhalt;
    }
    void Ordner(const Text& name) const { std::filesystem::create_directories(System(name)); }

    std::string Inhalt(const Text& name) const {
        std::ifstream datei(System(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(datei), {}};
    }

    // How many entries the folder holds, hidden ones too.
    std::ptrdiff_t Anzahl() const {
        return std::distance(std::filesystem::directory_iterator(System(u"")), std::filesystem::directory_iterator());
    }

    // The names that the search gives, joined by a blank.
    Text Gefunden(const Text& muster) const {
        Text namen;
        for (const OrdnerEintrag& eintrag : EintraegeSuchen(Pfad(muster))) {
            namen += (namen.empty() ? u"" : u" ") + eintrag.Name;
        }
        return namen;
    }

private:
    std::filesystem::path m_ordner;
};

inline std::string AlsText(const Bytes& bytes) {
    return {bytes.Sicht().begin(), bytes.Sicht().end()};
}

} // namespace zepholt
