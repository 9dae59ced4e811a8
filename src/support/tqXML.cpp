#include "support/tqXML.h"

#include "support/Utf8.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace zepholt {

namespace {

constexpr std::size_t Keine = TextSicht::npos;

// The first place of a character at or behind `ab`, four units at a time: a chapter is walked many times over. Taking 1
// from each unit of a word borrows into its top bit where the unit was 0; the lowest such bit is sure.
std::size_t Finde(TextSicht text, char16_t zeichen, std::size_t ab) {
    constexpr std::uint64_t eins = 0x0001'0001'0001'0001;
    constexpr std::size_t block = sizeof(eins) / sizeof(char16_t);
    static_assert(std::endian::native == std::endian::little);
    for (; ab + block <= text.size(); ab += block) {
        std::uint64_t wort = 0;
        std::memcpy(&wort, text.data() + ab, sizeof(wort));
        wort ^= eins * zeichen;
        const std::uint64_t treffer = (wort - eins) & ~wort & (eins << 15U);
        if (treffer != 0) {
            return ab + static_cast<std::size_t>(std::countr_zero(treffer)) / 16;
        }
    }
    for (; ab < text.size(); ++ab) {
        if (text[ab] == zeichen) {
            return ab;
        }
    }
    return Keine;
}

// The next place of one character, asked for at rising places: the whole text is walked once, however often it is
// asked, and also when the character stands nowhere.
class NaechstesZeichen {
public:
    NaechstesZeichen(TextSicht text, char16_t zeichen)
        : m_text(text), m_zeichen(zeichen), m_stelle(Finde(text, zeichen, 0)) {}

    // At or behind `ab`, from 0; Keine when there is none.
    std::size_t Ab(std::size_t ab) {
        if (m_stelle < ab) {
            m_stelle = Finde(m_text, m_zeichen, ab);
        }
        return m_stelle;
    }

private:
    TextSicht m_text;
    char16_t m_zeichen;
    std::size_t m_stelle;
};

TextSicht Zwischen(TextSicht text, std::size_t anfang, std::size_t ende) {
    return text.substr(anfang, ende - anfang);
}

// The codes 128 to 159 of code page 1252; those that the page leaves free stand for themselves.
constexpr std::array<char16_t, 32> Ansi128Bis159 = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// ANSI codes 145 and 146: as the page has them, and as a byte taken one to one.
bool IstTypografischesHochkomma(char16_t zeichen) {
    return zeichen == 0x2018 || zeichen == 0x2019 || zeichen == 0x0091 || zeichen == 0x0092;
}

bool EntfaelltInXML(char16_t zeichen) {
    const bool steuerzeichen = zeichen < 0x20 || (zeichen >= 0x80 && zeichen < 0xA0);
    return (steuerzeichen || std::find(Ansi128Bis159.begin(), Ansi128Bis159.end(), zeichen) != Ansi128Bis159.end()) &&
           !IstTypografischesHochkomma(zeichen);
}

// Characters that no XML document may hold, not even as a reference.
bool IstKeinXMLZeichen(char32_t codepunkt) {
    return IstHohesSurrogat(codepunkt) || IstTiefesSurrogat(codepunkt) || codepunkt == 0xFFFE || codepunkt == 0xFFFF;
}

// Characters that nothing happens to, as most do.
bool BleibtInXML(char16_t zeichen) {
    static constexpr auto bleibt = [] {
        std::array<bool, 256> tabelle{};
        for (std::size_t i = 0; i < tabelle.size(); ++i) {
            tabelle[i] = (i >= 0x20 && i < 0x80) || i >= 0xA0;
        }
        for (const char16_t ersetzt : TextSicht(u"&<>'\"")) {
            tabelle[ersetzt] = false;
        }
        return tabelle;
    }();
    return zeichen < bleibt.size() && bleibt[zeichen];
}

void ZeichenAnhaengen(char16_t zeichen, Text& ausgabe) {
    switch (zeichen) {
    case u'&':
        ausgabe += u"&amp;";
        break;
    case u'<':
        ausgabe += u"&lt;";
        break;
    case u'>':
        ausgabe += u"&gt;";
        break;
    case u'\'':
        ausgabe += u"&apos;";
        break;
    case u'"':
        ausgabe += u"&quot;";
        break;
    default:
        if (!EntfaelltInXML(zeichen) && !IstKeinXMLZeichen(zeichen)) {
            ausgabe += zeichen;
        }
    }
}

enum class Hochkommas { Bleiben, Ersetzen };

void TextAnhaengen(TextSicht text, Hochkommas typografische, Text& ausgabe) {
    while (!text.empty()) {
        const auto ende = std::find_if_not(text.begin(), text.end(), BleibtInXML);
        ausgabe.append(text.begin(), ende);
        text.remove_prefix(static_cast<std::size_t>(ende - text.begin()));
        if (text.empty()) {
            return;
        }
        if (Utf16Lesen(text) > 0xFFFF) { // a whole pair of surrogates
            ausgabe.append(text.substr(0, 2));
            text.remove_prefix(2);
            continue;
        }
        const bool ersetzt = typografische == Hochkommas::Ersetzen && IstTypografischesHochkomma(text[0]);
        ZeichenAnhaengen(ersetzt ? u'\'' : text[0], ausgabe);
        text.remove_prefix(1);
    }
}

} // namespace

std::string XmlBytes(TextSicht text) {
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const char32_t zeichen = Utf16Lesen(text);
        if (zeichen <= 0xFF) {
            bytes.push_back(static_cast<char>(zeichen));
        } else {
            bytes.append("&#").append(std::to_string(static_cast<std::uint32_t>(zeichen))).push_back(';');
        }
        text.remove_prefix(zeichen > 0xFFFF ? 2 : 1);
    }
    return bytes;
}

// --- Reading ---------------------------------------------------------------------------------------------------------

struct tqXML::Suchlauf {
    explicit Suchlauf(TextSicht element)
        : Suchtext(element), Auf(element, u'<'), Zu(element, u'>'), Leer(element, u' ') {}

    TextSicht Suchtext;
    std::size_t Stelle = 0; // where reading goes on
    NaechstesZeichen Auf;
    NaechstesZeichen Zu;
    NaechstesZeichen Leer;
};

void tqXML::DocumentElement(TextSicht xml) {
    const std::size_t deklaration = xml.find(u"?>");
    if (deklaration != Keine) {
        const std::size_t anfang = xml.find(u'<', deklaration + 2);
        xml = anfang == Keine ? TextSicht() : xml.substr(anfang);
    }
    m_dokument = xml;
}

std::vector<TextSicht> tqXML::SucheElemente(TextSicht name, TextSicht element, std::size_t hoechstens) {
    m_treffer.clear();
    m_offen.clear();
    m_suchName = name;
    if (element.size() > std::numeric_limits<std::uint32_t>::max()) {
        return {};
    }
    Suchlauf lauf(element);
    while (m_treffer.size() < hoechstens && LeseElement(lauf)) {
    }
    return std::move(m_treffer);
}

// Reads on by one tag: the closing one of the innermost open element if it stands right here, else the next that
// begins. False when the text ends or isn't understood; no element that is open then can come to its end.
bool tqXML::LeseElement(Suchlauf& lauf) {
    const TextSicht hier = lauf.Suchtext.substr(lauf.Stelle, 2);
    const bool schluss = !m_offen.empty() && hier.size() == 2 && hier[0] == u'<' && hier[1] == u'/';
    return schluss ? LeseSchluss(lauf) : LeseAnfang(lauf);
}

bool tqXML::LeseAnfang(Suchlauf& lauf) {
    const std::size_t auf = lauf.Auf.Ab(lauf.Stelle);
    const std::size_t zu = auf == Keine ? Keine : lauf.Zu.Ab(auf + 1);
    if (zu == Keine) {
        return false;
    }
    if (lauf.Suchtext[zu - 1] == u'/') {
        MerkeElement(Zwischen(lauf.Suchtext, auf, zu + 1));
        lauf.Stelle = zu + 1;
        return true;
    }
    // A name can only be told while some blank still stands later in the text, be it far behind the '>'.
    const std::size_t leer = lauf.Leer.Ab(auf + 1);
    if (leer == Keine) {
        return false;
    }
    m_offen.push_back(static_cast<std::uint32_t>(auf));
    lauf.Stelle = std::min(leer, zu) + 1; // reading goes on among the attributes, and from there to the next '<'
    return true;
}

bool tqXML::LeseSchluss(Suchlauf& lauf) {
    const std::size_t auf = lauf.Stelle;
    const std::size_t zu = lauf.Zu.Ab(auf + 1);
    if (zu == Keine) {
        return false;
    }
    const std::size_t anfang = m_offen.back();
    const std::size_t nameEnde = lauf.Suchtext.find_first_of(u" >", anfang + 1);
    if (Zwischen(lauf.Suchtext, auf + 2, zu) != Zwischen(lauf.Suchtext, anfang + 1, nameEnde)) {
        return false;
    }
    m_offen.pop_back();
    MerkeElement(Zwischen(lauf.Suchtext, anfang, zu + 1));
    lauf.Stelle = zu + 1;
    return true;
}

void tqXML::MerkeElement(TextSicht element) {
    if (m_offen.size() == 1 && (m_suchName.empty() || getName(element) == m_suchName)) {
        m_treffer.push_back(element);
    }
}

TextSicht tqXML::getName(TextSicht element) {
    const std::size_t auf = Finde(element, u'<', 0);
    if (auf == Keine) {
        return {};
    }
    const std::size_t ende = element.find_first_of(u" >", auf + 1);
    if (ende == Keine) {
        return {};
    }
    // Both characters must stand somewhere behind the '<', the other one be it far behind the name.
    const char16_t anderes = element[ende] == u' ' ? u'>' : u' ';
    const bool beide = element.back() == anderes || Finde(element, anderes, ende + 1) != Keine;
    return beide ? Zwischen(element, auf + 1, ende) : TextSicht();
}

TextSicht tqXML::getAttribut(TextSicht name, TextSicht element) {
    // An occurrence counts when it begins before the first '>', wherever it ends.
    std::size_t stelle = 0;
    for (std::size_t gleich = name.size();; ++stelle, ++gleich) {
        if (gleich >= element.size()) {
            return {};
        }
        if (element[gleich] == u'=' && element.substr(stelle, name.size()) == name) {
            break;
        }
        if (element[stelle] == u'>') {
            return {};
        }
    }
    if (Finde(element, u'>', stelle) == Keine) {
        return {};
    }
    const std::size_t q1 = Finde(element, u'"', stelle + name.size() + 1);
    const std::size_t q2 = q1 == Keine ? Keine : Finde(element, u'"', q1 + 1);
    return q2 == Keine ? TextSicht() : Zwischen(element, q1 + 1, q2);
}

// --- Writing ---------------------------------------------------------------------------------------------------------

Text tqXML::createElement(TextSicht name) {
    Text element;
    createElement(name, element);
    return element;
}

void tqXML::createElement(TextSicht name, Text& ausgabe) {
    ausgabe.append(u"<").append(name).append(u"/>");
}

void tqXML::setAttribute(TextSicht name, TextSicht wert, Text& element) {
    if (element.size() < 2) {
        throw LaufzeitFehler("setAttribute: the text is no element");
    }
    const std::array<char16_t, 2> schluss = {element[element.size() - 2], element[element.size() - 1]};
    element.resize(element.size() - schluss.size());
    if (element.empty() || element.back() != u' ') {
        element += u' ';
    }
    element.append(name).append(u"=\"");
    TextAnhaengen(wert, Hochkommas::Ersetzen, element);
    element += u'"';
    element.append(schluss.data(), schluss.size());
}

Text tqXML::ConvertStringToXMLString(TextSicht text) {
    Text ausgabe;
    ConvertStringToXMLString(text, ausgabe);
    return ausgabe;
}

void tqXML::ConvertStringToXMLString(TextSicht text, Text& ausgabe) {
    TextAnhaengen(text, Hochkommas::Bleiben, ausgabe);
}

} // namespace zepholt
