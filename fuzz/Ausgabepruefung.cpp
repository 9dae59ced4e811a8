#include "Ausgabepruefung.h"

#include "Ziel.h"

#include <charconv>
#include <vector>

namespace zepholt::fuzz {

namespace {

constexpr std::string_view Deklaration = "<?xml version=\"1.0\" encoding=\"iso-8859-1\"?>";

bool HatXml(unsigned long zeichen) {
    return (zeichen >= 0x20 && zeichen < 0xD800) || (zeichen > 0xDFFF && zeichen < 0xFFFE) ||
           (zeichen > 0xFFFF && zeichen <= 0x10FFFF);
}

// Text between tags, or the value of an attribute.
void PruefeText(std::string_view text) {
    while (!text.empty()) {
        const char zeichen = text.front();
        Verlange(zeichen != '<' && zeichen != '>' && zeichen != '"', "markup is escaped");
        Verlange(HatXml(static_cast<unsigned char>(zeichen)), "a character that XML can hold");
        if (zeichen != '&') {
            text.remove_prefix(1);
            continue;
        }
        const std::size_t ende = text.find(';');
        Verlange(ende != std::string_view::npos, "a reference ends");
        const std::string_view name = text.substr(1, ende - 1);
        if (name.starts_with('#')) {
            unsigned long nummer = 0;
            const auto gelesen = std::from_chars(name.data() + 1, name.data() + name.size(), nummer);
            Verlange(gelesen.ptr == name.data() + name.size() && HatXml(nummer), "a reference to a character");
        } else {
            Verlange(name == "amp" || name == "lt" || name == "gt" || name == "quot" || name == "apos",
                     "a reference that XML knows");
        }
        text.remove_prefix(ende + 1);
    }
}

// What stands behind the name in a tag.
void PruefeAttribute(std::string_view rest) {
    while (!rest.empty()) {
        Verlange(rest.front() == ' ', "a blank before an attribute");
        const std::size_t wert = rest.find("=\"");
        Verlange(wert != std::string_view::npos && wert > 1, "an attribute has a name and a value");
        const std::size_t ende = rest.find('"', wert + 2);
        Verlange(ende != std::string_view::npos, "a value ends");
        PruefeText(rest.substr(wert + 2, ende - wert - 2));
        rest.remove_prefix(ende + 1);
    }
}

std::string_view NameVon(std::string_view marke) {
    return marke.substr(0, marke.find(' '));
}

// The open elements, the outermost first.
class Elemente {
public:
    // Takes a tag without its brackets.
    void Nimm(std::string_view marke) {
        if (marke.starts_with('/')) {
            Verlange(!m_offen.empty() && m_offen.back() == marke.substr(1), "an end tag fits its start tag");
            m_offen.pop_back();
            return;
        }
        const bool geschlossen = marke.ends_with('/');
        if (geschlossen) {
            marke.remove_suffix(1);
        }
        const std::string_view name = NameVon(marke);
        PruefeAttribute(marke.substr(name.size()));
        if (!geschlossen) {
            m_offen.push_back(name);
        }
    }
    bool Leer() const { return m_offen.empty(); }

private:
    std::vector<std::string_view> m_offen;
};

// The number in an element of the head; 0 without one.
std::size_t Anzahl(std::string_view datei, std::string_view element) {
    const std::size_t stelle = datei.find(element);
    std::size_t zahl = 0;
    if (stelle != std::string_view::npos) {
        std::from_chars(datei.data() + stelle + element.size(), datei.data() + datei.size(), zahl);
    }
    return zahl;
}

} // namespace

void PruefeXml(std::string_view datei, std::string_view wurzel) {
    Verlange(datei.starts_with(Deklaration), "the declaration");
    datei.remove_prefix(Deklaration.size());
    Verlange(datei.starts_with('<') && NameVon(datei.substr(1, datei.find('>') - 1)) == wurzel, "the document element");
    Elemente elemente;
    while (!datei.empty()) {
        const std::size_t auf = datei.find('<');
        Verlange(auf != std::string_view::npos, "nothing stands behind the document element");
        PruefeText(datei.substr(0, auf));
        const std::size_t zu = datei.find('>', auf);
        Verlange(zu != std::string_view::npos, "a tag ends");
        elemente.Nimm(datei.substr(auf + 1, zu - auf - 1));
        datei.remove_prefix(zu + 1);
        Verlange(elemente.Leer() == datei.empty(), "one document element");
    }
}

void PruefeProtokoll(std::string_view datei) {
    PruefeXml(datei, "SIA451");
    std::size_t funde = 0;
    for (std::size_t stelle = datei.find("<Error "); stelle != std::string_view::npos;
         stelle = datei.find("<Error ", stelle + 1)) {
        ++funde;
    }
    const std::string_view kopf = datei.substr(0, datei.find("</Test>"));
    Verlange(funde == Anzahl(kopf, "<Errors>") + Anzahl(kopf, "<Warnings>"), "the head counts the findings");
}

} // namespace zepholt::fuzz
