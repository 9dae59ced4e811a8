#include "Werkzeug.h"

#include "intake/TestUTF8Codierung.h"
#include "intake/UTF8_Speicherung.h"
#include "support/HilfsFunktionen.h"
#include "support/OS_API.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

namespace zepholt::werkzeug {

namespace {

Text AusUtf8(const std::string& bytes) {
    Text text(bytes.size(), u'\0'); // never more units than bytes
    const char16_t* ende =
        Utf8NachUnicode({reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()}, text.data());
    text.resize(static_cast<std::size_t>(ende - text.data()));
    return text;
}

std::int32_t Hexziffer(char16_t zeichen) {
    const std::size_t stelle = std::string_view("0123456789abcdef").find(static_cast<char>(zeichen | 0x20));
    return zeichen < 128 && stelle != std::string_view::npos ? static_cast<std::int32_t>(stelle) : -1;
}

// The words of one line.
class Zerleger {
public:
    explicit Zerleger(TextSicht zeile) : m_zeile(zeile) {}

    std::vector<Text> Woerter() {
        std::vector<Text> woerter;
        while (NaechstesWort()) {
            woerter.push_back(m_wort);
        }
        return woerter;
    }

private:
    bool NaechstesWort() {
        m_wort.clear();
        m_stelle = m_zeile.find_first_not_of(u" \t", m_stelle);
        if (m_stelle == TextSicht::npos || m_zeile[m_stelle] == u'#') {
            return false;
        }
        while (m_stelle < m_zeile.size() && m_zeile[m_stelle] != u' ' && m_zeile[m_stelle] != u'\t') {
            if (m_zeile[m_stelle] == u'"') {
                ++m_stelle;
                Anfuehrung();
            } else {
                m_wort += m_zeile[m_stelle++];
            }
        }
        return true;
    }

    void Anfuehrung() {
        while (Zeichen(m_stelle) != u'"') {
            if (Zeichen(m_stelle) == u'\\') {
                ++m_stelle;
                Umschreibung();
            } else {
                m_wort += m_zeile[m_stelle++];
            }
        }
        ++m_stelle;
    }

    void Umschreibung() {
        const char16_t zeichen = Zeichen(m_stelle++);
        if (zeichen != u'x') {
            m_wort += zeichen;
            return;
        }
        const std::int32_t hoch = Hexziffer(Zeichen(m_stelle++));
        const std::int32_t tief = Hexziffer(Zeichen(m_stelle++));
        if (hoch < 0 || tief < 0) {
            throw EingabeFehler("\\x needs two hexadecimal digits");
        }
        m_wort += RoheByte(static_cast<unsigned>(hoch * 16 + tief));
    }

    char16_t Zeichen(std::size_t stelle) const {
        if (stelle >= m_zeile.size()) {
            throw EingabeFehler("a quotation mark is not closed");
        }
        return m_zeile[stelle];
    }

    TextSicht m_zeile;
    std::size_t m_stelle = 0;
    Text m_wort;
};

// Why a file can't be written, in words for the person who named it: what its place tells, and where that is in order,
// the system's last failure (`ursache`, an errno; 0 when it told none).
std::string Schreibhindernis(const std::string& pfad, int ursache) {
    const DateiArt art = ArtVon(AusUtf8(pfad));
    if (pfad.empty() || IstPfadTrenner(AusUtf8(pfad).back())) {
        return "it names no file";
    }
    if (art == DateiArt::Ordner) {
        return "it is a folder";
    }
    if (art == DateiArt::Anderes) {
        return "it is no ordinary file";
    }
    const std::string ordner = pfad.substr(0, pfad.size() - DateiNameOhnePfad(AusUtf8(pfad)).size());
    if (!ordner.empty() && ArtVon(AusUtf8(ordner)) != DateiArt::Ordner) {
        return "there is no folder " + ordner;
    }
    return ursache != 0 ? std::generic_category().message(ursache) : "the system refuses it";
}

} // namespace

std::optional<unsigned char> AlsRoheByte(char16_t zeichen) {
    if (zeichen < 0xDC00 || zeichen > 0xDCFF) {
        return std::nullopt;
    }
    return static_cast<unsigned char>(zeichen - 0xDC00);
}

std::string DateiLesen(const std::string& pfad) {
    try {
        LeseDatei datei(AusUtf8(pfad));
        const Bytes bytes = datei.Lies(0, static_cast<std::size_t>(datei.Groesse()));
        return {bytes.Sicht().begin(), bytes.Sicht().end()};
    } catch (const LaufzeitFehler&) {
        throw EingabeFehler(pfad + ": cannot be read");
    }
}

void DateiSchreiben(const std::string& pfad, const std::string& bytes) {
    errno = 0;
    AusgabeDatei datei(AusUtf8(pfad));
    datei.Schreiben(bytes);
    if (!datei.Abschliessen()) {
        throw EingabeFehler(pfad + ": cannot be written: " + Schreibhindernis(pfad, errno));
    }
}

std::vector<Beschreibungszeile> BeschreibungLesen(const std::string& pfad) {
    const Text text = AusUtf8(DateiLesen(pfad));
    if (text.find(u'\uFFFD') != Text::npos) {
        throw EingabeFehler(pfad + ": is not valid UTF-8");
    }
    std::vector<Beschreibungszeile> zeilen;
    std::int32_t nummer = 0;
    for (std::size_t ab = 0; ab < text.size();) {
        const std::size_t ende = std::min(text.find(u'\n', ab), text.size());
        TextSicht zeile = TextSicht(text).substr(ab, ende - ab);
        if (zeile.ends_with(u'\r')) {
            zeile.remove_suffix(1);
        }
        ++nummer;
        try {
            std::vector<Text> woerter = Zerleger(zeile).Woerter();
            if (!woerter.empty()) {
                zeilen.push_back({nummer, std::move(woerter)});
            }
        } catch (const EingabeFehler& fehler) {
            throw EingabeFehler(pfad + ":" + std::to_string(nummer) + ": " + fehler.what());
        }
        ab = ende + 1;
    }
    return zeilen;
}

std::int32_t Zahl(TextSicht text, std::int32_t von, std::int32_t bis, const std::string& was) {
    const std::optional<std::int32_t> zahl = StrengeGanzzahl(text);
    if (!zahl || *zahl < von || *zahl > bis || text.find(u'.') != TextSicht::npos) {
        throw EingabeFehler(was + " must be a whole number from " + std::to_string(von) + " to " + std::to_string(bis) +
                            ", not '" + AlsUtf8(text) + "'");
    }
    return *zahl;
}

std::string AlsUtf8(TextSicht text) {
    std::string bytes;
    for (const char16_t zeichen : text) {
        const unsigned wert = zeichen;
        if (const std::optional<unsigned char> roh = AlsRoheByte(zeichen)) {
            bytes += static_cast<char>(*roh);
        } else if (wert < 0x80) {
            bytes += static_cast<char>(wert);
        } else if (wert < 0x800) {
            bytes += static_cast<char>(0xC0U | wert >> 6U);
            bytes += static_cast<char>(0x80U | (wert & 0x3FU));
        } else {
            bytes += static_cast<char>(0xE0U | wert >> 12U);
            bytes += static_cast<char>(0x80U | (wert >> 6U & 0x3FU));
            bytes += static_cast<char>(0x80U | (wert & 0x3FU));
        }
    }
    return bytes;
}

int Ausfuehren(const char* name, int (*programm)(const std::vector<std::string>& argumente), int anzahl,
               char** argumente) {
    try {
        return programm({argumente + 1, argumente + anzahl});
    } catch (const std::exception& fehler) {
        std::fprintf(stderr, "%s: %s\n", name, fehler.what());
        return 1;
    }
}

} // namespace zepholt::werkzeug
