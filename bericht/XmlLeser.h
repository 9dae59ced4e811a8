// Reads XML step by step, without a tree: a protocol of half a million findings costs no more memory than one of ten.
//
// What it takes is XML 1.0 in ISO-8859-1, US-ASCII or UTF-8, with comments, processing instructions, CDATA and the
// references to characters and to the five entities that every document has. A document type declaration is refused:
// nothing that a protocol needs hangs on one, and what a hostile one could do doesn't exist here. Whatever is not
// well-formed is refused with its place.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace zepholt::bericht {

enum class XmlMangel { Abgeschnitten, KeinXml, Zeichen, Verweis, Verschachtelung, Attribut, Kodierung, Doctype };

class XmlFehler : public std::runtime_error {
public:
    XmlFehler(XmlMangel mangel, std::size_t stelle) : std::runtime_error("xml"), Mangel(mangel), Stelle(stelle) {}

    XmlMangel Mangel;
    std::size_t Stelle; // offset in bytes, from 0
};

enum class XmlTeil { Anfang, Ende, Text, Schluss };

class XmlLeser {
public:
    // The bytes must outlive the reader.
    explicit XmlLeser(std::string_view bytes);

    // The next part; an empty element gives its beginning, then its end. Blanks outside of the root give nothing.
    XmlTeil Weiter();

    // Of the element whose beginning or end was met.
    std::string_view Name() const { return m_name; }

    // Of a text, in UTF-8.
    const std::string& Text() const { return m_text; }

    // The value of an attribute of the beginning that was met, in UTF-8; none when it is missing. No name is empty.
    const std::string* Attribut(std::string_view name) const;

    std::size_t Stelle() const { return m_stelle; }

private:
    struct Eintrag {
        std::string_view Name;
        std::string Wert;
    };

    [[noreturn]] void Ablehnen(XmlMangel mangel) const;
    char Blick(std::size_t weiter = 0) const;
    bool Beginnt(std::string_view text) const;
    void Erwarte(std::string_view text);
    void Erwarte(char zeichen);
    bool Leerraum();
    std::string_view NameLesen();
    std::string_view Bis(std::string_view ende);
    void ZeichenLesen(std::string& ziel); // one, or all plain ones that follow
    void VerweisLesen(std::string& ziel);
    void Deklaration();
    void AttributLesen();
    XmlTeil Anfang();
    XmlTeil Ende();
    bool Nebensache();
    bool TextLesen();

    std::string_view m_bytes;
    std::size_t m_stelle = 0;
    bool m_latin1 = false;
    bool m_leer = false;    // the beginning met was an empty element
    bool m_gesehen = false; // the root
    std::string_view m_name;
    std::string m_text;
    std::vector<Eintrag> m_attribute; // only the first m_anzahl hold: their texts keep their room
    std::size_t m_anzahl = 0;
    std::vector<std::string_view> m_offen;
};

} // namespace zepholt::bericht
