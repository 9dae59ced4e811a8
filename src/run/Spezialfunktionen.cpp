#include "run/Spezialfunktionen.h"

#include "catalogue/VLTKatalog.h"
#include "errors/FehlerERL.h"
#include "errors/Protokoll.h"
#include "support/HilfsFunktionen.h"
#include "support/tqXML.h"

#include <algorithm>
#include <array>

namespace zepholt {

namespace {

// Takes the text up to the next `trenner`, or all that is left, off the front of `rest`.
TextSicht Abgetrennt(TextSicht& rest, char16_t trenner) {
    const std::size_t ende = rest.find(trenner);
    const TextSicht stueck = rest.substr(0, ende);
    rest.remove_prefix(ende == TextSicht::npos ? rest.size() : ende + 1);
    return stueck;
}

// One chapter: five columns with tabs between them, missing ones empty, further ones dropped.
void WorksectionAnfuegen(TextSicht zeile, Text& xml) {
    std::array<TextSicht, 5> spalten;
    for (TextSicht& spalte : spalten) {
        spalte = Abgetrennt(zeile, u'\t');
    }
    tqXML::createElement(u"Worksection", xml);
    tqXML::setAttribute(u"N", spalten[0], xml);
    tqXML::setAttribute(u"V", spalten[1], xml);
    tqXML::setAttribute(u"A", spalten[2], xml);
    tqXML::setAttribute(u"T", spalten[3], xml);
    if (!spalten[4].empty()) {
        tqXML::setAttribute(u"Z", spalten[4], xml);
    }
}

// Writes the chapters of the catalogue in the order in which it gives them; without any, the frame alone.
void WorksectionsAusgeben(std::int32_t sprache, const Text& fehlerdatei) {
    const Text verzeichnis = KapitelVerzeichnis(sprache);
    Text xml = Text(XmlDeklaration) + u"<ZEPHOLT><Worksections>";
    if (!verzeichnis.empty()) {
        const auto anzahl = std::ranges::count(verzeichnis, u'\n') + 1;
        TextSicht rest = verzeichnis;
        for (std::ptrdiff_t i = 0; i < anzahl; ++i) {
            WorksectionAnfuegen(Abgetrennt(rest, u'\n'), xml);
        }
    }
    xml += u"</Worksections></ZEPHOLT>";
    TextDateiSchreiben(xml, fehlerdatei);
}

// Writes every code that has a row, also those that no check reports.
void ErrorlistAusgeben(std::int32_t sprache, const Text& fehlerdatei) {
    Text xml = Text(XmlDeklaration) + u"<ZEPHOLT><Errorlist>";
    for (std::int32_t code = 1000; code <= 9999; ++code) {
        if (FehlerBekannt(code)) {
            tqXML::createElement(u"Error", xml);
            tqXML::setAttribute(u"N", ZahlText(code), xml);
            tqXML::setAttribute(u"W", FehlerSchwere(code), xml);
            tqXML::setAttribute(u"F", FehlerFeld(code), xml);
            tqXML::setAttribute(u"T", FehlerText(code, sprache), xml);
        }
    }
    xml += u"</Errorlist></ZEPHOLT>";
    TextDateiSchreiben(xml, fehlerdatei);
}

} // namespace

// The catalogue store works from the parameters of the run; the catalogue handed in is not read.
std::int32_t SpezialfunktionAusfuehren(TextSicht name, std::int32_t sprache, const Text& fehlerdatei,
                                       const Text& /*katalog*/) {
    if (name == u"1") {
        WorksectionsAusgeben(sprache, fehlerdatei);
    } else if (name == u"9") {
        ErrorlistAusgeben(sprache, fehlerdatei);
    }
    return 0;
}

} // namespace zepholt
