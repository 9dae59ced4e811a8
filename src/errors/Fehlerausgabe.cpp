#include "errors/Fehlerausgabe.h"

#include "errors/FehlerERL.h"
#include "errors/Fehlerort.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"
#include "support/tqXML.h"

namespace zepholt {

namespace {

void SetzeWennGegeben(TextSicht name, TextSicht wert, Text& element) {
    if (!wert.empty()) {
        tqXML::setAttribute(name, wert, element);
    }
}

bool HatZeile(const FehlerEintrag& eintrag) {
    return eintrag.Zeile >= 0 && eintrag.Code != 2007; // bad UTF-8 has no line: nothing was decoded
}

bool IstFormfehler(std::int32_t code) {
    return code >= 3001 && code <= 3003;
}

// The field reference of the code, unless the report named a column.
Text Feldbezug(const FehlerEintrag& eintrag) {
    if (eintrag.Spalte <= 0) {
        return Text(FehlerFeld(eintrag.Code));
    }
    return eintrag.Zeile >= 0 ? FeldName(eintrag.Zeile, eintrag.Spalte) : ZahlText(eintrag.Spalte);
}

// One attribute as it stands in an element, with the blank in front of it; nothing for an empty value.
std::string WennGegeben(TextSicht name, TextSicht wert) {
    Text element = u"/>";
    SetzeWennGegeben(name, wert, element);
    return XmlBytes(TextSicht(element).substr(0, element.size() - 2));
}

// Digits, letters, points, colons and hyphens only: nothing to escape. An attribute without a value is left out.
void AttributSchliessen(std::string& attribut) {
    if (attribut.back() == '"') {
        attribut.clear();
    } else {
        attribut.push_back('"');
    }
}

} // namespace

Text ErrorElement(const FehlerEintrag& eintrag) {
    Text element = tqXML::createElement(u"Error");
    if (HatZeile(eintrag)) {
        tqXML::setAttribute(u"L", ZahlText(std::int64_t{eintrag.Zeile} + 1), element);
    }
    if (!IstFormfehler(eintrag.Code)) {
        SetzeWennGegeben(u"I", PositionsText(eintrag.Zeile, eintrag.Kapitel, eintrag.Position), element);
    }
    tqXML::setAttribute(u"N", ZahlText(eintrag.Code), element);
    tqXML::setAttribute(u"E", FehlerSchwere(eintrag.Code), element);
    SetzeWennGegeben(u"F", Feldbezug(eintrag), element);
    tqXML::setAttribute(u"T", FehlerText(eintrag.Code, testDaten.Sprache), element);
    return element;
}

std::string_view Fehlerausgabe::Element(const FehlerEintrag& eintrag) {
    if (!m_element.empty() && eintrag == m_letzter) {
        return m_element;
    }
    OrtNachfuehren(eintrag);
    m_letzter = eintrag;
    const std::int32_t platz = FehlerPlatz(eintrag.Code);
    if (platz < 0) {
        return m_element = XmlBytes(ErrorElement(eintrag));
    }
    const Codeteile& code = TeileVon(eintrag.Code, static_cast<std::size_t>(platz));
    m_element = "<Error";
    if (HatZeile(eintrag)) {
        m_element += m_zeile;
    }
    if (!IstFormfehler(eintrag.Code)) {
        m_element += m_position;
    }
    m_element += code.Art;
    m_element += eintrag.Spalte > 0 ? m_feld : code.Feld;
    return m_element += code.Meldung;
}

const Fehlerausgabe::Codeteile& Fehlerausgabe::TeileVon(std::int32_t code, std::size_t platz) {
    m_codes.resize(FehlerTexte().size());
    std::unique_ptr<const Codeteile>& teile = m_codes[platz];
    if (!teile) {
        teile = std::make_unique<const Codeteile>(TeileAus(code));
    }
    return *teile;
}

Fehlerausgabe::Codeteile Fehlerausgabe::TeileAus(std::int32_t code) {
    Text art = u"/>";
    tqXML::setAttribute(u"N", ZahlText(code), art);
    tqXML::setAttribute(u"E", FehlerSchwere(code), art);
    Text meldung = u"/>";
    tqXML::setAttribute(u"T", FehlerText(code, testDaten.Sprache), meldung);
    return {.Art = XmlBytes(TextSicht(art).substr(0, art.size() - 2)),
            .Feld = WennGegeben(u"F", FehlerFeld(code)),
            .Meldung = XmlBytes(meldung)};
}

// Line, position and field are made anew where they are others than those of the finding before.
void Fehlerausgabe::OrtNachfuehren(const FehlerEintrag& eintrag) {
    const bool andereZeile = m_element.empty() || eintrag.Zeile != m_letzter.Zeile;
    if (andereZeile) {
        m_zeile = " L=\"" + std::to_string(std::int64_t{eintrag.Zeile} + 1) + '"';
    }
    if (andereZeile || eintrag.Kapitel != m_letzter.Kapitel || eintrag.Position != m_letzter.Position) {
        m_position.assign(" I=\"");
        PositionAnhaengen(m_position, eintrag.Zeile, eintrag.Kapitel, eintrag.Position);
        AttributSchliessen(m_position);
    }
    if (eintrag.Spalte > 0 && (andereZeile || eintrag.Spalte != m_letzter.Spalte)) {
        m_feld.assign(" F=\"");
        if (eintrag.Zeile >= 0) {
            FeldAnhaengen(m_feld, eintrag.Zeile, eintrag.Spalte);
        } else {
            m_feld.append(std::to_string(eintrag.Spalte));
        }
        AttributSchliessen(m_feld);
    }
}

} // namespace zepholt
