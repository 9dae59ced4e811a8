#include "bericht/XmlLeser.h"

#include "bericht/Zeichen.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace zepholt::bericht {

namespace {

constexpr std::size_t GroessteTiefe = 64;
constexpr std::size_t LaengsterVerweis = 12;

constexpr bool IstLeerraum(char zeichen) {
    return zeichen == ' ' || zeichen == '\t' || zeichen == '\n' || zeichen == '\r';
}

constexpr bool IstNamensanfang(char zeichen) {
    return (zeichen >= 'A' && zeichen <= 'Z') || (zeichen >= 'a' && zeichen <= 'z') || zeichen == '_' ||
           zeichen == ':' || static_cast<unsigned char>(zeichen) >= 0x80;
}

constexpr bool IstNamenszeichen(char zeichen) {
    return IstNamensanfang(zeichen) || (zeichen >= '0' && zeichen <= '9') || zeichen == '-' || zeichen == '.';
}

bool IstXmlZeichen(char32_t zeichen) {
    return zeichen == '\t' || zeichen == '\n' || zeichen == '\r' || (zeichen >= 0x20 && zeichen <= 0xD7FF) ||
           (zeichen >= 0xE000 && zeichen <= 0xFFFD) || (zeichen >= 0x10000 && zeichen <= 0x10FFFF);
}

// Characters that stand for themselves wherever they stand.
constexpr bool IstEinfach(char zeichen) {
    return zeichen >= ' ' && zeichen < 0x7F && zeichen != '<' && zeichen != '&' && zeichen != '"' && zeichen != '\'' &&
           zeichen != ']';
}

// The answers of one of the questions above for each byte: nearly all bytes of a protocol are asked about.
using Zeichenmenge = std::array<bool, 256>;

constexpr Zeichenmenge MengeVon(bool (*gehoertDazu)(char)) {
    Zeichenmenge menge{};
    for (std::size_t byte = 0; byte < menge.size(); ++byte) {
        menge[byte] = gehoertDazu(static_cast<char>(byte));
    }
    return menge;
}

constexpr Zeichenmenge Namenszeichen = MengeVon(IstNamenszeichen);
constexpr Zeichenmenge Einfache = MengeVon(IstEinfach);

// The place of the first byte from `stelle` on that isn't in the set, or the end.
std::size_t EndeDer(const Zeichenmenge& menge, std::string_view bytes, std::size_t stelle) {
    while (stelle < bytes.size() && menge[static_cast<unsigned char>(bytes[stelle])]) {
        ++stelle;
    }
    return stelle;
}

// The length of the sequence that a leading byte of UTF-8 announces, 0 for none.
std::size_t Sequenzlaenge(unsigned char byte) {
    if (byte < 0x80) {
        return 1;
    }
    return byte < 0xC2 ? 0 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : byte < 0xF5 ? 4 : 0;
}

char32_t Sequenzwert(std::string_view sequenz) {
    char32_t wert = static_cast<unsigned char>(sequenz[0]) & (0x7FU >> sequenz.size());
    for (const char byte : sequenz.substr(1)) {
        const auto folge = static_cast<unsigned char>(byte);
        if ((folge & 0xC0U) != 0x80U) {
            return 0;
        }
        wert = wert << 6U | (folge & 0x3FU);
    }
    constexpr char32_t Kleinster[] = {0, 0, 0x80, 0x800, 0x10000};
    return wert < Kleinster[sequenz.size()] ? 0 : wert;
}

std::string KleinGeschrieben(std::string_view text) {
    std::string klein(text);
    std::ranges::transform(klein, klein.begin(),
                           [](char z) { return z >= 'A' && z <= 'Z' ? static_cast<char>(z + ('a' - 'A')) : z; });
    return klein;
}

} // namespace

XmlLeser::XmlLeser(std::string_view bytes) : m_bytes(bytes) {
    if (Beginnt("\xEF\xBB\xBF")) {
        m_stelle = 3;
    }
    if (Beginnt("<?xml") && IstLeerraum(Blick(5))) {
        Deklaration();
    }
}

const std::string* XmlLeser::Attribut(std::string_view name) const {
    for (std::size_t i = 0; i < m_anzahl; ++i) {
        if (m_attribute[i].Name.front() == name.front() && m_attribute[i].Name == name) {
            return &m_attribute[i].Wert;
        }
    }
    return nullptr;
}

void XmlLeser::Ablehnen(XmlMangel mangel) const {
    throw XmlFehler(m_stelle >= m_bytes.size() ? XmlMangel::Abgeschnitten : mangel, m_stelle);
}

char XmlLeser::Blick(std::size_t weiter) const {
    return m_stelle + weiter < m_bytes.size() ? m_bytes[m_stelle + weiter] : '\0';
}

bool XmlLeser::Beginnt(std::string_view text) const {
    return m_bytes.substr(m_stelle).starts_with(text);
}

void XmlLeser::Erwarte(std::string_view text) {
    if (!Beginnt(text)) {
        Ablehnen(XmlMangel::KeinXml);
    }
    m_stelle += text.size();
}

void XmlLeser::Erwarte(char zeichen) {
    if (m_stelle >= m_bytes.size() || m_bytes[m_stelle] != zeichen) {
        Ablehnen(XmlMangel::KeinXml);
    }
    ++m_stelle;
}

bool XmlLeser::Leerraum() {
    const std::size_t anfang = m_stelle;
    while (IstLeerraum(Blick())) {
        ++m_stelle;
    }
    return m_stelle > anfang;
}

std::string_view XmlLeser::NameLesen() {
    const std::size_t anfang = m_stelle;
    if (!IstNamensanfang(Blick())) {
        Ablehnen(XmlMangel::KeinXml);
    }
    m_stelle = EndeDer(Namenszeichen, m_bytes, m_stelle);
    return m_bytes.substr(anfang, m_stelle - anfang);
}

// What stands before `ende`, which is passed over.
std::string_view XmlLeser::Bis(std::string_view ende) {
    const std::size_t stelle = m_bytes.find(ende, m_stelle);
    if (stelle == std::string_view::npos) {
        m_stelle = m_bytes.size();
        Ablehnen(XmlMangel::Abgeschnitten);
    }
    const std::string_view inhalt = m_bytes.substr(m_stelle, stelle - m_stelle);
    m_stelle = stelle + ende.size();
    return inhalt;
}

void XmlLeser::ZeichenLesen(std::string& ziel) {
    const std::size_t anfang = m_stelle;
    m_stelle = EndeDer(Einfache, m_bytes, m_stelle);
    if (m_stelle > anfang) {
        ziel.append(m_bytes.substr(anfang, m_stelle - anfang));
        return;
    }
    const auto byte = static_cast<unsigned char>(m_bytes[m_stelle]);
    const std::size_t laenge = m_latin1 ? 1 : Sequenzlaenge(byte);
    if (laenge == 0 || m_stelle + laenge > m_bytes.size()) {
        Ablehnen(XmlMangel::Kodierung);
    }
    const char32_t zeichen = laenge == 1 ? byte : Sequenzwert(m_bytes.substr(m_stelle, laenge));
    if (!IstXmlZeichen(zeichen)) {
        Ablehnen(XmlMangel::Zeichen);
    }
    Utf8Anhaengen(ziel, zeichen);
    m_stelle += laenge;
}

void XmlLeser::VerweisLesen(std::string& ziel) {
    const std::size_t ende = m_bytes.find(';', m_stelle);
    if (ende == std::string_view::npos || ende - m_stelle > LaengsterVerweis) {
        Ablehnen(XmlMangel::Verweis);
    }
    const std::string_view name = m_bytes.substr(m_stelle + 1, ende - m_stelle - 1);
    constexpr std::pair<std::string_view, char> Bekannte[] = {
        {"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"quot", '"'}, {"apos", '\''}};
    const auto bekannt = std::ranges::find(Bekannte, name, &std::pair<std::string_view, char>::first);
    if (bekannt != std::end(Bekannte)) {
        ziel.push_back(bekannt->second);
    } else {
        const bool hexadezimal = name.starts_with("#x");
        const std::string_view ziffern = name.substr(std::min<std::size_t>(name.size(), hexadezimal ? 2 : 1));
        std::uint32_t wert = 0;
        const auto ergebnis =
            std::from_chars(ziffern.data(), ziffern.data() + ziffern.size(), wert, hexadezimal ? 16 : 10);
        const bool ganz = ergebnis.ec == std::errc() && ergebnis.ptr == ziffern.data() + ziffern.size();
        if (!name.starts_with('#') || !ganz || !IstXmlZeichen(wert)) {
            Ablehnen(XmlMangel::Verweis);
        }
        Utf8Anhaengen(ziel, wert);
    }
    m_stelle = ende + 1;
}

void XmlLeser::Deklaration() {
    Erwarte("<?xml");
    m_anzahl = 0;
    while (Leerraum() && Blick() != '?') {
        AttributLesen();
    }
    Erwarte("?>");
    const std::string* version = Attribut("version");
    if (version == nullptr || *version != "1.0") {
        Ablehnen(XmlMangel::KeinXml);
    }
    if (const std::string* kodierung = Attribut("encoding")) {
        const std::string name = KleinGeschrieben(*kodierung);
        m_latin1 = name == "iso-8859-1" || name == "latin1";
        if (!m_latin1 && name != "utf-8" && name != "us-ascii") {
            Ablehnen(XmlMangel::Kodierung);
        }
    }
}

void XmlLeser::AttributLesen() {
    const std::string_view name = NameLesen();
    if (Attribut(name) != nullptr) {
        Ablehnen(XmlMangel::Attribut);
    }
    Leerraum();
    Erwarte('=');
    Leerraum();
    const char zeichen = Blick();
    if (zeichen != '"' && zeichen != '\'') {
        Ablehnen(XmlMangel::Attribut);
    }
    ++m_stelle;
    if (m_anzahl == m_attribute.size()) {
        m_attribute.emplace_back();
    }
    Eintrag& eintrag = m_attribute[m_anzahl];
    eintrag.Name = name;
    eintrag.Wert.clear();
    while (Blick() != zeichen || m_stelle >= m_bytes.size()) {
        if (m_stelle >= m_bytes.size() || Blick() == '<') {
            Ablehnen(XmlMangel::Attribut);
        }
        if (Blick() == '&') {
            VerweisLesen(eintrag.Wert);
        } else if (IstLeerraum(Blick())) {
            eintrag.Wert.push_back(' ');
            ++m_stelle;
        } else {
            ZeichenLesen(eintrag.Wert);
        }
    }
    ++m_stelle;
    ++m_anzahl;
}

XmlTeil XmlLeser::Anfang() {
    if (m_offen.empty() && m_gesehen) { // a second root
        Ablehnen(XmlMangel::Verschachtelung);
    }
    Erwarte('<');
    m_name = NameLesen();
    m_anzahl = 0;
    while (Leerraum() && Blick() != '/' && Blick() != '>') {
        AttributLesen();
    }
    m_leer = Blick() == '/';
    Erwarte(m_leer ? "/>" : ">");
    m_gesehen = true;
    m_offen.push_back(m_name);
    if (m_offen.size() > GroessteTiefe) {
        Ablehnen(XmlMangel::Verschachtelung);
    }
    return XmlTeil::Anfang;
}

XmlTeil XmlLeser::Ende() {
    Erwarte("</");
    m_name = NameLesen();
    if (m_offen.empty() || m_offen.back() != m_name) {
        Ablehnen(XmlMangel::Verschachtelung);
    }
    Leerraum();
    Erwarte('>');
    m_offen.pop_back();
    return XmlTeil::Ende;
}

// Passes over a comment or a processing instruction.
bool XmlLeser::Nebensache() {
    if (Beginnt("<!--")) {
        m_stelle += 4;
        Bis("-->");
        return true;
    }
    if (Beginnt("<?")) {
        m_stelle += 2;
        Bis("?>");
        return true;
    }
    if (Beginnt("<!DOCTYPE")) {
        Ablehnen(XmlMangel::Doctype);
    }
    return false;
}

// Text up to the next tag, comments and CDATA within it; false when there is none.
bool XmlLeser::TextLesen() {
    m_text.clear();
    bool etwas = false;
    while (m_stelle < m_bytes.size()) {
        if (Blick() == '<' && Blick(1) != '!' && Blick(1) != '?') { // a tag, as nearly always
            break;
        }
        if (Beginnt("<![CDATA[")) {
            m_stelle += 9;
            const std::size_t ende = m_bytes.find("]]>", m_stelle);
            while (m_stelle < std::min(ende, m_bytes.size())) {
                ZeichenLesen(m_text);
            }
            Erwarte("]]>");
        } else if (Blick() == '<') {
            if (!Nebensache()) {
                break;
            }
        } else if (Blick() == '&') {
            VerweisLesen(m_text);
        } else {
            ZeichenLesen(m_text);
        }
        etwas = true;
    }
    return etwas && !m_text.empty();
}

XmlTeil XmlLeser::Weiter() {
    if (m_leer) {
        m_leer = false;
        m_offen.pop_back();
        return XmlTeil::Ende;
    }
    if (!m_offen.empty() && TextLesen()) {
        return XmlTeil::Text;
    }
    while (m_offen.empty() && (Leerraum() || Nebensache())) {
    }
    if (m_stelle >= m_bytes.size()) {
        if (!m_offen.empty() || !m_gesehen) {
            Ablehnen(XmlMangel::Abgeschnitten);
        }
        return XmlTeil::Schluss;
    }
    return Beginnt("</") ? Ende() : Anfang();
}

} // namespace zepholt::bericht
