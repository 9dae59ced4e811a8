// The program's whole XML support: XML as plain text, without a tree.
//
// An element is the piece of text from its '<' to its '>'. Reading understands self-closed elements, elements that hold
// elements and no text, attributes in double quotes, and the blank as the only separator; entities, comments, CDATA,
// single quotes and text content it doesn't, and these limits are part of how chapter files behave. No reading
// operation reports a failure: bad input gives an empty or a partial result.
//
// Everything that reading returns is a view into the text that the caller handed in: that text must outlive it. Every
// operation takes time in step with the length of its text, nested as deep as it may be.
#pragma once

#include "support/Text.h"

#include <limits>
#include <vector>

namespace zepholt {

// What every output file and every expanded chapter text begins with.
inline constexpr TextSicht XmlDeklaration = u"<?xml version=\"1.0\" encoding=\"iso-8859-1\"?>";

// The bytes of a text in such a file: ISO-8859-1. A character that it does not have becomes a decimal reference, a pair
// of surrogates one of the character that it stands for.
std::string XmlBytes(TextSicht text);

class tqXML {
public:
    // --- Reading

    // The document element. Writing drops everything up to the first "?>" and on to the next '<'; what is stored is a
    // view, so the text must live as long as it is used.
    TextSicht DocumentElement() const { return m_dokument; }
    void DocumentElement(TextSicht xml);

    // The direct children of the outer elements of `element` that have the name `name`, or of all names when it is
    // empty, in document order. What was found before a fault in the text stays in the result; so do the first
    // `hoechstens` hits, behind which the search ends.
    std::vector<TextSicht> SucheElemente(TextSicht name, TextSicht element,
                                         std::size_t hoechstens = std::numeric_limits<std::size_t>::max());

    // The name of an element; empty when no '<' stands in it, or no blank behind the '<' (also in "<H></H>").
    static TextSicht getName(TextSicht element);

    // The raw value of an attribute, or empty. A plain search for `name` and '=': it finds the end of a longer name
    // too, and looks into earlier values.
    static TextSicht getAttribut(TextSicht name, TextSicht element);

    // --- Writing

    // An element without attributes, "<name/>"; the second form appends it to a larger text.
    static Text createElement(TextSicht name);
    static void createElement(TextSicht name, Text& ausgabe);

    // Puts an attribute at the end of `element`, before its closing "/>". `element` may be any text that ends in the
    // element, and no view into it may be the value. Both typographic single quotes become an apostrophe. An element of
    // less than 2 characters is a LaufzeitFehler.
    static void setAttribute(TextSicht name, TextSicht wert, Text& element);

    // The escaped form of a text: without the characters of the ANSI codes 0 to 31, 128 to 144 and 147 to 159, and with
    // the five escapes; the second form appends it to `ausgabe`. The codes are those of code page 1252, and U+0080 to
    // U+009F, which a byte taken one to one can be, count as the codes 128 to 159 too. What XML can't hold goes with
    // them: a surrogate without its other half, U+FFFE and U+FFFF.
    static Text ConvertStringToXMLString(TextSicht text);
    static void ConvertStringToXMLString(TextSicht text, Text& ausgabe);

private:
    struct Suchlauf; // how far a search has come in its text

    bool LeseElement(Suchlauf& lauf);
    bool LeseAnfang(Suchlauf& lauf);
    bool LeseSchluss(Suchlauf& lauf);
    void MerkeElement(TextSicht element);

    TextSicht m_dokument;
    std::vector<TextSicht> m_treffer;
    TextSicht m_suchName;
    std::vector<std::uint32_t>
        m_offen; // where each open element begins, the outermost first; their number is the depth
};

} // namespace zepholt
