#include "Probekatalog.h"

#include <array>
#include <cstdio>

namespace zepholt::fuzz {

namespace {

constexpr std::string_view Positionen =
    R"(<H N="100"><U N="0"/></H><H N="110"><U N="0"/></H><H N="111"><U N="0"/><U N="10"><V N="0"/><V N="1" E="1"/></U></H>)"
    R"(<H N="200"><U N="0"/></H><H N="210"><U N="0"/></H><H N="211" X="1"><U N="0"/><U N="1"><V N="0"/><V N="1" E="31"/>)"
    R"(</U><U N="2" X="1" Y="1"><V N="1" A="Stein" E="1"/><V N="2" A="Stein" E="1"/><V N="3" E="35"/></U>)"
    R"(<U N="10"><V N="0"/></U><U N="11"><V N="0"/></U><U N="100" W="100199"><V N="0"/><V N="1" E="1"/></U></H>)"
    R"(<H N="900"><U N="0"/></H><H N="990"><U N="0"/></H><H N="991"><U N="0"/></H>)";

std::string Sammelkatalog() {
    std::string katalog;
    for (const int sprache : {1, 2, 3}) {
        const std::string rumpf = "<Kapitel N=\"241\" V=\"2020\" S=\"" + std::to_string(sprache) +
                                  "\" A=\"7\" T=\"Probe\" Z=\"\">" + std::string(Positionen) + "</Kapitel>";
        katalog += Kapiteldatei("", rumpf, 2020, sprache, 241);
    }
    return katalog;
}

} // namespace

std::string Kapiteldatei(std::string_view tabelle, std::string_view rumpf, int jahr, int sprache, int kapitel) {
    std::array<char, 64> kopf{};
    std::snprintf(kopf.data(), kopf.size(), "CF11%04d%d%03d%09zu%09d", jahr, sprache, kapitel,
                  30 + tabelle.size() + 1 + rumpf.size(), 0);
    return std::string(kopf.data()).append(tabelle).append(" ").append(rumpf);
}

ByteSicht Probekatalog() {
    static const std::string katalog = Sammelkatalog();
    return {reinterpret_cast<const unsigned char*>(katalog.data()), katalog.size()};
}

} // namespace zepholt::fuzz
