#include "bericht/Zeichen.h"

#include "support/HilfsFunktionen.h"

#include <cstdio>

namespace zepholt::bericht {

namespace {

constexpr char32_t Ersatzzeichen = 0xFFFD;

bool IstErsatz(char32_t zeichen) {
    return zeichen >= 0xD800 && zeichen <= 0xDFFF;
}

} // namespace

TextSicht SpaltenVon(TextSicht zeile, std::int32_t spalte, std::int32_t laenge) {
    const auto anfang = static_cast<std::size_t>(spalte - 1);
    return anfang < zeile.size() ? zeile.substr(anfang, static_cast<std::size_t>(laenge)) : TextSicht();
}

void Utf8Anhaengen(std::string& ziel, char32_t zeichen) {
    if (IstErsatz(zeichen) || zeichen > 0x10FFFF) {
        zeichen = Ersatzzeichen;
    }
    const auto folge = [&](unsigned bits) { ziel.push_back(static_cast<char>(0x80U | ((zeichen >> bits) & 0x3FU))); };
    if (zeichen < 0x80) {
        ziel.push_back(static_cast<char>(zeichen));
    } else if (zeichen < 0x800) {
        ziel.push_back(static_cast<char>(0xC0U | (zeichen >> 6U)));
        folge(0);
    } else if (zeichen < 0x10000) {
        ziel.push_back(static_cast<char>(0xE0U | (zeichen >> 12U)));
        folge(6);
        folge(0);
    } else {
        ziel.push_back(static_cast<char>(0xF0U | (zeichen >> 18U)));
        folge(12);
        folge(6);
        folge(0);
    }
}

std::string Utf8(TextSicht text) {
    std::string ziel;
    ziel.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t zeichen = text[i];
        const bool hoch = zeichen >= 0xD800 && zeichen <= 0xDBFF;
        if (hoch && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF) {
            zeichen = 0x10000U + ((zeichen & 0x3FFU) << 10U) + (text[++i] & 0x3FFU);
        }
        Utf8Anhaengen(ziel, zeichen);
    }
    return ziel;
}

std::string Bereinigt(std::string_view bytes) {
    return Utf8(AusUtf8Bytes(bytes));
}

bool IstUnsichtbar(char32_t z) {
    return z < 0x20 || (z >= 0x7F && z <= 0x9F) || z == 0xA0 || z == 0xAD || z == 0x61C ||
           (z >= 0x2000 && z <= 0x200F) || (z >= 0x2028 && z <= 0x202F) || (z >= 0x205F && z <= 0x206F) ||
           z == 0xFEFF || (z >= 0xFFF0 && z <= 0xFFFC) || z == 0xFFFE || z == 0xFFFF || (z >= 0xE0000 && z <= 0xE0FFF);
}

std::string Codepunktname(char32_t zeichen) {
    char text[16];
    std::snprintf(text, sizeof text, "U+%04X", static_cast<unsigned>(zeichen));
    return text;
}

char32_t NaechstesZeichen(std::string_view& utf8) {
    const auto fuehrung = static_cast<unsigned char>(utf8[0]);
    const std::size_t laenge = fuehrung < 0x80 ? 1 : fuehrung < 0xE0 ? 2 : fuehrung < 0xF0 ? 3 : 4;
    char32_t zeichen = laenge == 1 ? fuehrung : fuehrung & (0x7FU >> laenge);
    for (std::size_t i = 1; i < laenge && i < utf8.size(); ++i) {
        zeichen = zeichen << 6U | (static_cast<unsigned char>(utf8[i]) & 0x3FU);
    }
    utf8.remove_prefix(std::min(laenge, utf8.size()));
    return zeichen;
}

std::string UriTeil(std::string_view bytes) {
    std::string uri;
    for (const char zeichen : bytes) {
        const bool frei = (zeichen >= 'a' && zeichen <= 'z') || (zeichen >= 'A' && zeichen <= 'Z') ||
                          (zeichen >= '0' && zeichen <= '9') ||
                          std::string_view("-._~/").find(zeichen) != std::string_view::npos;
        char text[4];
        std::snprintf(text, sizeof text, "%%%02X", static_cast<unsigned>(static_cast<unsigned char>(zeichen)));
        uri += frei ? std::string(1, zeichen) : text;
    }
    return uri;
}

std::string Zahl(std::int64_t zahl) {
    std::string text = std::to_string(zahl);
    for (std::ptrdiff_t stelle = std::ssize(text) - 3; stelle > (zahl < 0 ? 1 : 0); stelle -= 3) {
        text.insert(static_cast<std::size_t>(stelle), "’");
    }
    return text;
}

std::string_view OhneRand(std::string_view text) {
    while (text.starts_with(' ')) {
        text.remove_prefix(1);
    }
    while (text.ends_with(' ')) {
        text.remove_suffix(1);
    }
    return text;
}

} // namespace zepholt::bericht
