#include "bericht/Ausgabe.h"

#include "bericht/Konsole.h"
#include "bericht/Meldungen.h"
#include "bericht/Zeichen.h"

#include <algorithm>
#include <cstdio>

namespace zepholt::bericht {

namespace {

constexpr std::size_t Puffergroesse = 1U << 16U;

void UnitAnhaengen(std::string& ziel, unsigned einheit) {
    char text[8];
    std::snprintf(text, sizeof text, "\\u%04x", einheit);
    ziel += text;
}

void AlsNummer(std::string& ziel, char32_t zeichen) {
    if (zeichen > 0xFFFF) {
        UnitAnhaengen(ziel, 0xD7C0U + (static_cast<unsigned>(zeichen) >> 10U));
        zeichen = 0xDC00U | (zeichen & 0x3FFU);
    }
    UnitAnhaengen(ziel, static_cast<unsigned>(zeichen));
}

} // namespace

Ausgabe::Ausgabe(const std::optional<Text>& pfad) : m_pfad(pfad) {
    if (m_pfad) {
        m_datei.emplace(*m_pfad);
    }
}

void Ausgabe::Schreiben(std::string_view utf8) {
    if (m_datei) {
        m_datei->Schreiben(utf8);
        return;
    }
    m_puffer += utf8;
    if (m_puffer.size() >= Puffergroesse) {
        Leeren();
    }
}

void Ausgabe::Leeren() {
    m_gut = m_gut && StandardausgabeSchreiben(m_puffer);
    m_puffer.clear();
}

void Ausgabe::Abschliessen() {
    if (m_datei) {
        m_gut = m_datei->Abschliessen();
    } else {
        Leeren();
    }
    if (!m_gut) {
        throw Ablehnung(StatusKeinErgebnis, Meldung::NichtSchreibbar, {m_pfad ? Utf8(*m_pfad) : "stdout"});
    }
}

std::string JsonText(std::string_view utf8) {
    std::string ziel = "\"";
    while (!utf8.empty()) {
        const std::size_t einfach =
            static_cast<std::size_t>(std::ranges::find_if(utf8,
                                                          [](char z) {
                                                              return z < ' ' || z == '"' || z == '\\' || z == '<' ||
                                                                     z == '>' || z == '&' || z == 0x7F;
                                                          }) -
                                     utf8.begin());
        ziel += utf8.substr(0, einfach);
        utf8.remove_prefix(einfach);
        if (utf8.empty()) {
            break;
        }
        const char32_t zeichen = NaechstesZeichen(utf8);
        if (zeichen == '"' || zeichen == '\\') {
            ziel.push_back('\\');
            ziel.push_back(static_cast<char>(zeichen));
        } else if (zeichen < 0x80 || IstUnsichtbar(zeichen)) {
            AlsNummer(ziel, zeichen);
        } else {
            Utf8Anhaengen(ziel, zeichen);
        }
    }
    ziel.push_back('"');
    return ziel;
}

std::string CsvZelle(std::string text) {
    if (!text.empty() && std::string_view("=+-@\t\r\n").find(text[0]) != std::string_view::npos) {
        text.insert(0, "'");
    }
    if (text.find_first_of(";\"\r\n") == std::string::npos) {
        return text;
    }
    for (std::size_t stelle = 0; (stelle = text.find('"', stelle)) != std::string::npos; stelle += 2) {
        text.insert(stelle, "\"");
    }
    return '"' + text + '"';
}

} // namespace zepholt::bericht
