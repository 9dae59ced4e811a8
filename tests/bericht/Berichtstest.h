// An exchange file of the old interface and a protocol about it, for tests of what is made of both.
#pragma once

#include "bericht/Austauschdatei.h"
#include "bericht/Protokolldatei.h"
#include "hilfen/Testordner.h"
#include "run/NeuerLauf.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace zepholt::bericht {

class Berichtstest : public testing::Test {
protected:
    Berichtstest() {
        NeuerLauf();
        SchnittstelleSetzen(false);
    }

    // A record out of texts at columns.
    static std::string Satz(std::initializer_list<std::pair<std::size_t, std::string_view>> felder) {
        std::string satz;
        for (const auto& [spalte, text] : felder) {
            satz.resize(std::max(satz.size(), spalte - 1 + text.size()), ' ');
            satz.replace(spalte - 1, text.size(), text);
        }
        return satz;
    }

    // The `art` of record of chapter 241 at a position.
    static std::string G(std::string_view position, std::string_view art, std::string_view text = "") {
        return Satz({{1, "G241"}, {8, position}, {42, art}, {93, text}});
    }

    Austauschdatei Datei(const std::vector<std::string>& saetze) const {
        std::string bytes;
        for (const std::string& satz : saetze) {
            bytes += satz + "\r\n";
        }
        m_ordner.Schreibe("datei.01S", bytes);
        return Austauschdatei(m_ordner.TextPfad("datei.01S"), false);
    }

    // A protocol with these findings, each as its attributes.
    static Protokoll ProtokollMit(const std::vector<std::string>& befunde, const std::string& projekt = "Schulhaus") {
        std::string fehler;
        for (const std::string& befund : befunde) {
            fehler += "<Error " + befund + " T=\"\"/>";
        }
        return ProtokollAus("<SIA451><Test><Project ID=\"P-1\">" + projekt +
                                "</Project><Document ID=\"\">?</Document><Errors>" + std::to_string(befunde.size()) +
                                "</Errors><Fileformat Version=\"451-92.11\">01s</Fileformat></Test><Errors>" + fehler +
                                "</Errors></SIA451>",
                            "p.xml");
    }

    const std::string A = Satz({{1, "A"}, {42, "1"}, {82, "P-1"}, {93, "Schulhaus"}});
    const std::string Z = Satz({{1, "Z"}});
    hilfen::Testordner m_ordner;
};

} // namespace zepholt::bericht
