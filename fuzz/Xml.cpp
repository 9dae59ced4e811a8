// The XML class: reading on the bytes as a text, a byte a character, and writing on the bytes as 16-bit units, so that
// surrogates and what XML can't hold come too. What was written reads back as it was.
#include "Ausgabepruefung.h"
#include "Ziel.h"

#include "run/NeuerLauf.h"
#include "support/tqXML.h"

#include <algorithm>

namespace zepholt::fuzz {

namespace {

bool LiegtIn(TextSicht stueck, TextSicht ganzes) {
    return stueck.empty() ||
           (stueck.data() >= ganzes.data() && stueck.data() + stueck.size() <= ganzes.data() + ganzes.size());
}

void PruefeLesen(TextSicht text) {
    tqXML xml;
    xml.DocumentElement(text);
    const TextSicht dokument = xml.DocumentElement();
    Verlange(LiegtIn(dokument, text), "the document element is a view");
    for (const TextSicht name : {u"", u"H", u"Kapitel"}) {
        const std::vector<TextSicht> treffer = xml.SucheElemente(name, dokument);
        for (const TextSicht element : treffer) {
            Verlange(LiegtIn(element, dokument), "an element is a view");
            Verlange(name.empty() || tqXML::getName(element) == name, "an element of that name");
            Verlange(LiegtIn(tqXML::getAttribut(u"N", element), element), "a value is a view");
        }
        const std::vector<TextSicht> wenige = xml.SucheElemente(name, dokument, 2);
        Verlange(wenige.size() == std::min<std::size_t>(treffer.size(), 2) &&
                     std::equal(wenige.begin(), wenige.end(), treffer.begin()),
                 "a search that ends early finds the first hits");
    }
}

void PruefeSchreiben(TextSicht text) {
    Text element = tqXML::createElement(u"E");
    tqXML::setAttribute(u"T", text, element);
    const Text wert = tqXML::ConvertStringToXMLString(text);
    const std::string datei = XmlBytes(Text(XmlDeklaration) + u"<W>" + element + u"<X>" + wert + u"</X></W>");
    PruefeXml(datei, "W");
    Text angehaengt = u"vor";
    tqXML::ConvertStringToXMLString(text, angehaengt);
    Verlange(angehaengt == u"vor" + wert, "both forms write the same");
    Verlange(tqXML::getName(element) == u"E", "the name stays");
}

} // namespace

} // namespace zepholt::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t anzahl) {
    using namespace zepholt;
    NeuerLauf();
    fuzz::PruefeLesen(Text(bytes, bytes + anzahl));
    Text breit;
    for (std::size_t i = 0; i + 1 < anzahl; i += 2) {
        breit += static_cast<char16_t>(bytes[i] << 8U | bytes[i + 1]);
    }
    fuzz::PruefeSchreiben(breit);
    return 0;
}
