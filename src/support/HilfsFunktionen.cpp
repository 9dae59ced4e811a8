#include "support/HilfsFunktionen.h"

#include "support/OS_API.h"
#include "support/Utf8.h"

#include <algorithm>
#include <array>
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
    constexpr double NurGanze = 0x1.8p52; // numbers of this size have no fraction: the sum is rounded, half to even
    const double ganz = wert + NurGanze - NurGanze;
    if (!(ganz >= std::numeric_limits<std::int32_t>::min() && ganz <= std::numeric_limits<std::int32_t>::max())) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(ganz);
}

bool IstOffeneDatei(const OrdnerEintrag& eintrag) {
    return eintrag.Art == DateiArt::Datei && !eintrag.Versteckt;
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
    const std::vector<OrdnerEintrag> eintraege = EintraegeSuchen(pfad);
    for (const OrdnerEintrag& eintrag : eintraege) {
        if (eintrag.Art == DateiArt::Ordner) {
            const bool eigener = eintrag.Name.empty() || eintrag.Name == u"." || eintrag.Name == u"..";
            return eigener || std::ranges::none_of(eintraege, IstOffeneDatei);
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
        const Utf8Folge folge = Utf8Lesen(bytes);
        if (folge.Gueltig) {
            std::array<char16_t, 2> einheiten;
            text.append(einheiten.data(), Utf16Schreiben(einheiten.data(), folge.Codepunkt));
        } else {
            text.push_back(static_cast<char16_t>(0xDC00 + static_cast<unsigned char>(bytes[0])));
        }
        bytes.remove_prefix(folge.Gueltig ? folge.Laenge : 1);
    }
    return text;
}

std::string Utf8Bytes(TextSicht text) {
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const char32_t codepunkt = Utf16Lesen(text);
        if (codepunkt >= 0xDC80 && codepunkt <= 0xDCFF) {
            bytes.push_back(static_cast<char>(codepunkt - 0xDC00));
        } else {
            Utf8Anhaengen(bytes, codepunkt);
        }
        text.remove_prefix(codepunkt > 0xFFFF ? 2 : 1);
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
    constexpr std::size_t SicherGenug = 9;                // digits that fit into 32 bits whatever they are
    if (text.size() <= SicherGenug && NurZiffern(text)) { // as nearly all fields are: needs no double
        std::int32_t wert = 0;
        for (const char16_t ziffer : text) {
            wert = wert * 10 + (ziffer - u'0');
        }
        return wert;
    }
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
