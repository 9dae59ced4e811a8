// Builds chapter texts and chapter files for tests.
#pragma once

#include "catalogue/VLTKapitel.h"
#include "support/Text.h"

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace zepholt::hilfen {

// The XML of a chapter with the elements `innen`.
inline std::string KapitelText(std::string_view innen, int kapitel = 241, int jahr = 2013, int sprache = 1) {
    return "<Kapitel N=\"" + std::to_string(kapitel) + "\" V=\"" + std::to_string(jahr) + "\" S=\"" +
           std::to_string(sprache) + "\" A=\"7\" T=\"Titel\" Z=\"Zusatz\">" + std::string(innen) + "</Kapitel>";
}

inline Text AlsText(std::string_view bytes) {
    Text text;
    for (const char zeichen : bytes) {
        text.push_back(static_cast<unsigned char>(zeichen));
    }
    return text;
}

// Reads a chapter with the elements `innen` and makes its lists.
inline bool LiesKapitel(std::string_view innen, int kapitel = 241) {
    const bool gelesen = KapitelEinlesen(AlsText(KapitelText(innen, kapitel)));
    BildeEndknoten();
    BildeTextAeste();
    return gelesen;
}

// One H with a U for each number of its stretch of `positionen`, in their order: a change of the main position begins
// a new H.
inline std::string AusPositionen(const std::vector<int>& positionen) {
    std::string text;
    int offen = -1;
    for (const int position : positionen) {
        if (position / 1000 != offen) {
            text += (offen == -1 ? "<H N=\"" : "</H><H N=\"") + std::to_string(position / 1000) + "\">";
            offen = position / 1000;
        }
        text += "<U N=\"" + std::to_string(position % 1000) + "\"/>";
    }
    return text + (offen == -1 ? "" : "</H>");
}

inline std::string Kopf(int jahr, int sprache, int kapitel, std::size_t laenge, std::size_t groesse = 0) {
    char kopf[64];
    std::snprintf(kopf, sizeof kopf, "CF11%04d%d%03d%09zu%09zu", jahr, sprache, kapitel, laenge, groesse);
    return kopf;
}

// A chapter file with a table (each entry: code byte, text, line feed) and a body.
inline std::string Kapiteldatei(std::string_view tabelle, std::string_view rumpf, int kapitel = 241, int jahr = 2013,
                                int sprache = 1) {
    const std::size_t laenge = 30 + tabelle.size() + 1 + rumpf.size();
    return Kopf(jahr, sprache, kapitel, laenge) + std::string(tabelle) + " " + std::string(rumpf);
}

} // namespace zepholt::hilfen
