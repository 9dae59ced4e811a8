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

// Digits, letters, points, colons and hyphens only: nothing to escape. An attribute that begins at `anfang` and got no
// value is left out.
void AttributSchliessen(std::string& bytes, std::size_t anfang) {
    if (bytes.back() == '"') {
        bytes.resize(anfang);
    } else {
        bytes.push_back('"');
    }
}

void FeldattributAnhaengen(std::string& bytes, const FehlerEintrag& eintrag) {
    const std::size_t anfang = bytes.size();
    bytes.append(" F=\"");
    if (eintrag.Zeile >= 0) {
        FeldAnhaengen(bytes, eintrag.Zeile, eintrag.Spalte);
    } else {
        bytes.append(Zahlziffern(eintrag.Spalte).Sicht());
    }
    AttributSchliessen(bytes, anfang);
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
    if (platz < 0 || HatZeile(eintrag) != (eintrag.Zeile >= 0)) { // rare ones take the plain way
        return m_element = XmlBytes(ErrorElement(eintrag));
    }
    m_element.assign(m_anfang, 0, IstFormfehler(eintrag.Code) ? m_ohnePosition : std::string::npos);
    return m_element.append(Ende(eintrag, static_cast<std::size_t>(platz)));
}

// Line and position are made anew where they are others than those of the finding before.
void Fehlerausgabe::OrtNachfuehren(const FehlerEintrag& eintrag) {
    const bool andereZeile = m_element.empty() || eintrag.Zeile != m_letzter.Zeile;
    if (!andereZeile && eintrag.Kapitel == m_letzter.Kapitel && eintrag.Position == m_letzter.Position) {
        return;
    }
    FolgendesVorausholen(eintrag.Zeile);
    m_layouts = andereZeile ? LayoutsDerZeile(eintrag.Zeile) : m_layouts;
    m_anfang.assign("<Error");
    if (eintrag.Zeile >= 0) {
        m_anfang.append(" L=\"").append(Zahlziffern(std::int64_t{eintrag.Zeile} + 1).Sicht()).push_back('"');
    }
    m_ohnePosition = m_anfang.size();
    m_anfang.append(" I=\"");
    PositionAnhaengen(m_anfang, eintrag.Zeile, eintrag.Kapitel, eintrag.Position);
    AttributSchliessen(m_anfang, m_ohnePosition);
}

const std::string& Fehlerausgabe::Ende(const FehlerEintrag& eintrag, std::size_t platz) {
    Codeteile& teile = TeileVon(eintrag.Code, platz);
    if (eintrag.Spalte <= 0) {
        return teile.OhneSpalte;
    }
    const RecordLayout* feld = LayoutBei(m_layouts, eintrag.Spalte);
    if (feld == nullptr || feld != teile.Feld) {
        teile.Feld = feld;
        teile.MitSpalte = teile.Art;
        FeldattributAnhaengen(teile.MitSpalte, eintrag);
        teile.MitSpalte += teile.Meldung;
    }
    return teile.MitSpalte;
}

Fehlerausgabe::Codeteile& Fehlerausgabe::TeileVon(std::int32_t code, std::size_t platz) {
    m_codes.resize(FehlerZeilenAnzahl());
    std::unique_ptr<Codeteile>& teile = m_codes[platz];
    if (!teile) {
        teile = std::make_unique<Codeteile>(TeileAus(code));
    }
    return *teile;
}

Fehlerausgabe::Codeteile Fehlerausgabe::TeileAus(std::int32_t code) {
    Text art = u"/>";
    tqXML::setAttribute(u"N", ZahlText(code), art);
    tqXML::setAttribute(u"E", FehlerSchwere(code), art);
    Text meldung = u"/>";
    tqXML::setAttribute(u"T", FehlerText(code, testDaten.Sprache), meldung);
    Codeteile teile;
    teile.Art = XmlBytes(TextSicht(art).substr(0, art.size() - 2));
    teile.Meldung = XmlBytes(meldung);
    teile.OhneSpalte = teile.Art + WennGegeben(u"F", FehlerFeld(code)) + teile.Meldung;
    return teile;
}

} // namespace zepholt
