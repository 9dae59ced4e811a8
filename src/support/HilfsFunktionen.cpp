#include "support/HilfsFunktionen.h"

#include "support/OS_API.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace zepholt {

namespace {

std::size_t ZiffernEnde(TextSicht text, std::size_t stelle) {
    while (stelle < text.size() && IstZiffer(text[stelle])) {
        ++stelle;
    }
    return stelle;
}

std::size_t VorzeichenEnde(TextSicht text) {
    return !text.empty() && (text[0] == u'+' || text[0] == u'-') ? 1 : 0;
}

// Where a number ends that begins at 0: optional sign, digits, optional point and digits.
std::size_t ZahlEnde(TextSicht text) {
    const std::size_t ende = ZiffernEnde(text, VorzeichenEnde(text));
    return ende < text.size() && text[ende] == u'.' ? ZiffernEnde(text, ende + 1) : ende;
}

// True when at least one digit stands in front of the point, and behind it if there is one.
bool IstStrengeZahl(TextSicht text) {
    const std::size_t anfang = VorzeichenEnde(text);
    const std::size_t ganze = ZiffernEnde(text, anfang);
    if (ganze == anfang || ganze == text.size()) {
        return ganze > anfang;
    }
    return text[ganze] == u'.' && ganze + 1 < text.size() && ZiffernEnde(text, ganze + 1) == text.size();
}

// The value of a text that is a number of that form; without a digit it is 0, too great for a double it is infinite.
double Zahlwert(TextSicht text) {
    const bool negativ = !text.empty() && text[0] == u'-';
    text.remove_prefix(VorzeichenEnde(text));
    const std::string ziffern = Utf8Bytes(text);
    double betrag = 0;
    const auto ergebnis =
        std::from_chars(ziffern.data(), ziffern.data() + ziffern.size(), betrag, std::chars_format::fixed);
    if (ergebnis.ec == std::errc::result_out_of_range) { // too great, or too near to 0
        const bool gross = text.substr(0, ZiffernEnde(text, 0)).find_first_not_of(u'0') != TextSicht::npos;
        betrag = gross ? std::numeric_limits<double>::infinity() : 0;
    }
    return negativ ? -betrag : betrag;
}

std::optional<std::int32_t> Gerundet(double wert) {
    const double ganz = std::nearbyint(wert); // the default rounding mode: half to even
    if (!(ganz >= std::numeric_limits<std::int32_t>::min() && ganz <= std::numeric_limits<std::int32_t>::max())) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(ganz);
}

bool IstOffeneDatei(const OrdnerEintrag& eintrag) {
    return eintrag.Art == DateiArt::Datei && !eintrag.Versteckt;
}

// The length of the valid UTF-8 sequence at the beginning of `bytes`, 0 when there is none.
std::size_t SequenzLaenge(std::string_view bytes) {
    const auto byte = [&](std::size_t i) { return i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U; };
    const auto folgt = [&](std::size_t i) { return (byte(i) & 0xC0U) == 0x80U; };
    const unsigned erstes = byte(0);
    const unsigned zweites = byte(1);
    if (erstes < 0x80) {
        return 1;
    }
    if (erstes >= 0xC2 && erstes <= 0xDF) {
        return folgt(1) ? 2 : 0;
    }
    if (erstes >= 0xE0 && erstes <= 0xEF) {
        const bool zuLang = erstes == 0xE0 && zweites < 0xA0;
        const bool ersatz = erstes == 0xED && zweites >= 0xA0; // surrogates
        return folgt(1) && folgt(2) && !zuLang && !ersatz ? 3 : 0;
    }
    if (erstes >= 0xF0 && erstes <= 0xF4) {
        const bool zuLang = erstes == 0xF0 && zweites < 0x90;
        const bool zuGross = erstes == 0xF4 && zweites >= 0x90;
        return folgt(1) && folgt(2) && folgt(3) && !zuLang && !zuGross ? 4 : 0;
    }
    return 0;
}

// The code point of a valid sequence.
char32_t Codepunkt(std::string_view sequenz) {
    const auto erstes = static_cast<unsigned char>(sequenz[0]);
    char32_t wert = sequenz.size() == 1 ? erstes : erstes & (0x7FU >> sequenz.size());
    for (const char byte : sequenz.substr(1)) {
        wert = wert << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    return wert;
}

void CodepunktAnhaengen(Text& text, char32_t punkt) {
    if (punkt > 0xFFFF) {
        text.push_back(static_cast<char16_t>(0xD7C0 + (punkt >> 10U)));
        punkt = 0xDC00 + (punkt & 0x3FFU);
    }
    text.push_back(static_cast<char16_t>(punkt));
}

void Utf8Anhaengen(std::string& bytes, char32_t punkt) {
    const auto anhaengen = [&](char32_t byte) { bytes.push_back(static_cast<char>(byte)); };
    if (punkt < 0x80) {
        anhaengen(punkt);
    } else if (punkt < 0x800) {
        anhaengen(0xC0U | punkt >> 6U);
        anhaengen(0x80U | (punkt & 0x3FU));
    } else if (punkt < 0x10000) {
        anhaengen(0xE0U | punkt >> 12U);
        anhaengen(0x80U | (punkt >> 6U & 0x3FU));
        anhaengen(0x80U | (punkt & 0x3FU));
    } else {
        anhaengen(0xF0U | punkt >> 18U);
        anhaengen(0x80U | (punkt >> 12U & 0x3FU));
        anhaengen(0x80U | (punkt >> 6U & 0x3FU));
        anhaengen(0x80U | (punkt & 0x3FU));
    }
}

bool IstHoherErsatz(char16_t zeichen) {
    return zeichen >= 0xD800 && zeichen <= 0xDBFF;
}

bool IstTieferErsatz(char16_t zeichen) {
    return zeichen >= 0xDC00 && zeichen <= 0xDFFF;
}

Text InAnfuehrungszeichen(TextSicht text) {
    return u'"' + Text(text) + u'"';
}

Text ArgumentText(TextSicht argument) {
    if (argument.empty()) {
        return InAnfuehrungszeichen(argument);
    }
    if (argument.find(u' ') == TextSicht::npos || argument.find(u'"') != TextSicht::npos) {
        return Text(argument);
    }
    const std::size_t gleich = argument.find(u'=');
    const std::size_t wert = gleich == TextSicht::npos ? 0 : gleich + 1;
    return Text(argument.substr(0, wert)) + InAnfuehrungszeichen(argument.substr(wert));
}

} // namespace

bool DateiExistiert(const Text& pfad) {
    const std::vector<OrdnerEintrag> eintraege = EintraegeSuchen(pfad);
    return std::any_of(eintraege.begin(), eintraege.end(), IstOffeneDatei);
}

bool OrdnerExistiert(const Text& pfad) {
    for (const OrdnerEintrag& eintrag : EintraegeSuchen(pfad)) {
        if (eintrag.Art == DateiArt::Ordner) {
            const bool eigener = eintrag.Name.empty() || eintrag.Name == u"." || eintrag.Name == u"..";
            return eigener || !DateiExistiert(pfad);
        }
        if (IstOffeneDatei(eintrag)) {
            return false;
        }
    }
    return false;
}

std::vector<Text> DateienImOrdner(const Text& ordner, const Text& muster) {
    const Text davor = OrdnerMitTrenner(ordner);
    std::vector<Text> pfade;
    for (const OrdnerEintrag& eintrag : EintraegeSuchen(davor + muster)) {
        if (IstOffeneDatei(eintrag)) {
            pfade.push_back(davor + eintrag.Name);
        }
    }
    return pfade;
}

Text OrdnerMitTrenner(const Text& ordner) {
    return !ordner.empty() && IstPfadTrenner(ordner.back()) ? ordner : ordner + PfadTrenner();
}

TextSicht DateiNameOhnePfad(TextSicht pfad) {
    const auto trenner = std::find_if(pfad.rbegin(), pfad.rend(), IstPfadTrenner);
    const auto ende = trenner != pfad.rend() ? trenner : std::find(pfad.rbegin(), pfad.rend(), u':');
    return pfad.substr(static_cast<std::size_t>(pfad.rend() - ende));
}

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

bool NurZiffern(TextSicht text) {
    return !text.empty() && std::ranges::all_of(text, IstZiffer);
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

Text AusUtf8Bytes(std::string_view bytes) {
    Text text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const std::size_t laenge = SequenzLaenge(bytes);
        if (laenge == 0) {
            text.push_back(static_cast<char16_t>(0xDC00 + static_cast<unsigned char>(bytes[0])));
        } else {
            CodepunktAnhaengen(text, Codepunkt(bytes.substr(0, laenge)));
        }
        bytes.remove_prefix(std::max<std::size_t>(laenge, 1));
    }
    return text;
}

std::string Utf8Bytes(TextSicht text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t zeichen = text[i];
        if (IstHoherErsatz(zeichen) && i + 1 < text.size() && IstTieferErsatz(text[i + 1])) {
            ++i;
            Utf8Anhaengen(bytes, 0x10000U + ((zeichen & 0x3FFU) << 10U) + (text[i] & 0x3FFU));
        } else if (zeichen >= 0xDC80 && zeichen <= 0xDCFF) {
            bytes.push_back(static_cast<char>(zeichen - 0xDC00));
        } else {
            Utf8Anhaengen(bytes, zeichen);
        }
    }
    return bytes;
}

Text KommandotextAus(const std::vector<Text>& argumente) {
    Text kommandotext;
    for (const Text& argument : argumente) {
        if (&argument != argumente.data()) {
            kommandotext += u' ';
        }
        kommandotext += ArgumentText(argument);
    }
    return kommandotext;
}

TextSicht OhneProgrammnamen(TextSicht kommandotext) {
    bool inAnfuehrung = false;
    std::size_t stelle = 0;
    for (; stelle < kommandotext.size(); ++stelle) {
        const char16_t zeichen = kommandotext[stelle];
        inAnfuehrung ^= zeichen == u'"';
        if (!inAnfuehrung && (zeichen == u' ' || zeichen == u'\t')) {
            break;
        }
    }
    kommandotext.remove_prefix(stelle);
    return kommandotext.substr(std::min(kommandotext.find_first_not_of(u" \t"), kommandotext.size()));
}

double ZahlAmAnfang(TextSicht text) {
    const std::size_t anfang = text.find_first_not_of(u' ');
    if (anfang == TextSicht::npos) {
        return 0;
    }
    text.remove_prefix(anfang);
    return Zahlwert(text.substr(0, ZahlEnde(text)));
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
    if (!IstStrengeZahl(text)) {
        return std::nullopt;
    }
    const double wert = Zahlwert(text);
    return std::isfinite(wert) ? std::optional(wert) : std::nullopt;
}

std::optional<std::int32_t> StrengeGanzzahl(TextSicht text) {
    const std::optional<double> wert = StrengeZahl(text);
    return wert ? Gerundet(*wert) : std::nullopt;
}

} // namespace zepholt
