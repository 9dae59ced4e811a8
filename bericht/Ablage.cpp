#include "bericht/Ablage.h"

#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <cstdio>

namespace zepholt::bericht {

namespace {

constexpr std::size_t Kopfgroesse = 4096; // bytes of a page among which its mark stands
constexpr std::string_view Vermerkanfang = "<meta name=\"zepholt-ablage\" content=\"";
constexpr std::string_view Vermerkende = "\">\n";

// The bytes from the beginning of a file, `hoechstens` of them; none where it can't be read.
std::optional<Bytes> Anfang(const Text& pfad, std::uint64_t hoechstens) {
    try {
        LeseDatei datei(pfad);
        return datei.Lies(0, static_cast<std::size_t>(std::min(datei.Groesse(), hoechstens)));
    } catch (const LaufzeitFehler&) {
        return std::nullopt;
    }
}

} // namespace

std::string Kennzahl(std::span<const unsigned char> bytes) {
    std::uint64_t summe = 0xCBF29CE484222325U;
    for (const unsigned char byte : bytes) {
        summe = (summe ^ byte) * 0x100000001B3U;
    }
    char text[17];
    std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(summe));
    return text;
}

std::string Ablagevermerk(const std::string& kennzahl) {
    return std::string(Vermerkanfang) + kennzahl + std::string(Vermerkende);
}

std::optional<std::string> Vermerkt(const Text& seite) {
    const std::optional<Bytes> bytes = Anfang(seite, Kopfgroesse);
    if (!bytes) {
        return std::nullopt;
    }
    const std::string_view kopf(reinterpret_cast<const char*>(bytes->data()), bytes->size());
    const std::size_t stelle = kopf.find(Vermerkanfang);
    if (stelle == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view rest = kopf.substr(stelle + Vermerkanfang.size());
    return std::string(rest.substr(0, rest.find('"')));
}

bool IstVerfuegbar(const Text& seite, const Text& protokoll) {
    const bool protokollFrei = protokoll.empty() || ArtVon(protokoll) == DateiArt::Nichts;
    if (ArtVon(seite) == DateiArt::Nichts) {
        return protokollFrei;
    }
    const std::optional<std::string> vermerkt = Vermerkt(seite);
    if (!vermerkt || protokollFrei) {
        return vermerkt.has_value();
    }
    const std::optional<Bytes> bytes = Anfang(protokoll, UINT64_MAX);
    return bytes && Kennzahl(bytes->Sicht()) == *vermerkt;
}

} // namespace zepholt::bericht
