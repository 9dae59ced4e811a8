// A test with a folder of its own, whose name holds an umlaut and a blank: no path of these tests is a tame one.
#pragma once

#include "hilfen/Testordner.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

namespace zepholt {

class Pruefordner : public testing::Test {
protected:
    // The path of `name` in the folder as the program gets it; '/' in it stands for the platform's separator.
    Text Pfad(const Text& name) const {
        Text pfad = m_ordner.Pfad().u16string() + u'/' + name;
        for (char16_t& zeichen : pfad) {
            zeichen = zeichen == u'/' ? PfadTrenner() : zeichen;
        }
        return pfad;
    }

    // The same for the standard library.
    std::filesystem::path System(const Text& name) const { return hilfen::Testordner::System(Pfad(name)); }

    void Datei(const Text& name, const std::string& inhalt = "x") const {
        hilfen::Testordner::SchreibeDatei(System(name), inhalt);
    }
    void Ordner(const Text& name) const { std::filesystem::create_directories(System(name)); }

    std::string Inhalt(const Text& name) const { return hilfen::Testordner::LiesDatei(System(name)); }

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
    hilfen::Testordner m_ordner{u"zepholt pr\u00FCfung "};
};

inline std::string AlsText(const Bytes& bytes) {
    return {bytes.Sicht().begin(), bytes.Sicht().end()};
}

} // namespace zepholt
