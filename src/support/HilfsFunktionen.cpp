#include "support/HilfsFunktionen.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace zepholt {

namespace {

bool IstZiffer(char16_t zeichen) {
    return zeichen >= u'0' && zeichen <= u'9';
}

std::size_t ZiffernEnde(TextSicht text, std::size_t stelle) {
    while (stelle < text.size() && IstZiffer(text[stelle])) {
        ++stelle;
    }
    return stelle;
}

// Where a number ends that begins at 0: optional sign, digits, optional point and digits.
std::size_t ZahlEnde(TextSicht text) {
    std::size_t ende = !text.empty() && (text[0] == u'+' || text[0] == u'-') ? 1 : 0;
    ende = ZiffernEnde(text, ende);
    return ende < text.size() && text[ende] == u'.' ? ZiffernEnde(text, ende + 1) : ende;
}

bool HatZiffer(TextSicht text) {
    return text.find_first_of(u"0123456789") != TextSicht::npos;
}

// The value of a text that is known to be a number of that form; without a digit it is 0.
double Zahlwert(TextSicht text) {
    std::string zeichen;
    for (const char16_t z : text) {
        if (z != u'+') {
            zeichen.push_back(static_cast<char>(z));
        }
    }
    double wert = 0;
    const char* ende = zeichen.data() + zeichen.size();
    const auto ergebnis = std::from_chars(zeichen.data(), ende, wert, std::chars_format::fixed);
    const bool zuGross = ergebnis.ec == std::errc::result_out_of_range && !text.substr(0, text.find(u'.')).empty();
    return zuGross && wert == 0 && ZiffernEnde(text, 0) > 300 ? std::numeric_limits<double>::infinity() : wert;
}

std::optional<std::int32_t> Gerundet(double wert) {
    const double ganz = std::nearbyint(wert); // the default rounding mode: half to even
    if (!(ganz >= std::numeric_limits<std::int32_t>::min() && ganz <= std::numeric_limits<std::int32_t>::max())) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(ganz);
}

} // namespace

TextSicht OhneLeerzeichenRechts(TextSicht text) {
    while (!text.empty() && text.back() == u' ') {
        text.remove_suffix(1);
    }
    return text;
}

TextSicht OhneLeerzeichen(TextSicht text) {
    while (!text.empty() && text.front() == u' ') {
        text.remove_prefix(1);
    }
    return OhneLeerzeichenRechts(text);
}

Text RechtsBuendig(TextSicht text, std::int32_t breite) {
    const auto soll = static_cast<std::size_t>(breite > 0 ? breite : 0);
    Text ergebnis(soll > text.size() ? soll - text.size() : 0, u' ');
    return ergebnis.append(text);
}

Text LinksBuendig(TextSicht text, std::int32_t breite) {
    Text ergebnis(text);
    if (breite > 0 && ergebnis.size() < static_cast<std::size_t>(breite)) {
        ergebnis.resize(static_cast<std::size_t>(breite), u' ');
    }
    return ergebnis;
}

Text ZahlText(std::int64_t zahl) {
    return AusAscii(std::to_string(zahl));
}

Text Kleinbuchstaben(TextSicht text) {
    Text ergebnis(text);
    for (char16_t& zeichen : ergebnis) {
        if (zeichen >= u'A' && zeichen <= u'Z') {
            zeichen = static_cast<char16_t>(zeichen - u'A' + u'a');
        }
    }
    return ergebnis;
}

Text AusAscii(std::string_view text) {
    Text ergebnis;
    ergebnis.reserve(text.size());
    for (const char zeichen : text) {
        ergebnis.push_back(static_cast<unsigned char>(zeichen));
    }
    return ergebnis;
}

double ZahlAmAnfang(TextSicht text) {
    const std::size_t anfang = text.find_first_not_of(u' ');
    if (anfang == TextSicht::npos) {
        return 0;
    }
    text.remove_prefix(anfang);
    text = text.substr(0, ZahlEnde(text));
    return HatZiffer(text) ? Zahlwert(text) : 0;
}

std::int32_t GanzzahlAmAnfang(TextSicht text) {
    const std::optional<std::int32_t> wert = Gerundet(ZahlAmAnfang(text));
    if (!wert) {
        throw LaufzeitFehler("number out of range");
    }
    return *wert;
}

std::optional<double> StrengeZahl(TextSicht text) {
    text = OhneLeerzeichen(text);
    if (!HatZiffer(text) || ZahlEnde(text) != text.size()) {
        return std::nullopt;
    }
    return Zahlwert(text);
}

std::optional<std::int32_t> StrengeGanzzahl(TextSicht text) {
    const std::optional<double> wert = StrengeZahl(text);
    return wert ? Gerundet(*wert) : std::nullopt;
}

} // namespace zepholt
