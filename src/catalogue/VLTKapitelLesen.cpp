// From the expanded text to the entries of the chapter: any form that the class tqXML understands, with its limits.
#include "catalogue/Kapiteldatei.h"
#include "catalogue/Kapitelleser.h"
#include "support/HilfsFunktionen.h"
#include "support/tqXML.h"

#include <algorithm>
#include <array>
#include <limits>

namespace zepholt {

namespace {

// --- Numbers of attributes -------------------------------------------------------------------------------------------

template <class Ganz>
Ganz InBreite(std::int32_t wert) {
    if (wert < std::numeric_limits<Ganz>::min() || wert > std::numeric_limits<Ganz>::max()) {
        throw LaufzeitFehler("number out of range");
    }
    return static_cast<Ganz>(wert);
}

// The leading number of a value. Nearly every one is nothing but a few digits.
std::int32_t FuehrendeZahl(TextSicht text) {
    std::int32_t wert = 0;
    for (const char16_t zeichen : text) {
        if (!IstZiffer(zeichen) || text.size() > 9) {
            return GanzzahlAmAnfang(text);
        }
        wert = wert * 10 + (zeichen - u'0');
    }
    return wert;
}

// The attributes of one element whose names are a single capital letter, in one walk over its start tag. Each value is
// the one that tqXML::getAttribut finds.
class Merkmale {
public:
    explicit Merkmale(TextSicht element) : m_element(element) {
        for (std::size_t i = 1; i < element.size() && element[i] != u'>'; ++i) {
            const char16_t name = element[i - 1];
            if (element[i] == u'=' && name >= u'A' && name <= u'Z' && Gleich(name) == 0) {
                Gleich(name) = static_cast<std::uint32_t>(i);
            }
        }
    }

    TextSicht Wert(char16_t name) {
        const std::size_t gleich = Gleich(name);
        const std::size_t q1 = gleich == 0 ? TextSicht::npos : m_element.find(u'"', gleich + 1);
        const std::size_t q2 = q1 == TextSicht::npos ? q1 : m_element.find(u'"', q1 + 1);
        return q2 == TextSicht::npos ? TextSicht() : m_element.substr(q1 + 1, q2 - q1 - 1);
    }

    // The leading number of a value, 0 when it is missing. One that its type can't hold is a LaufzeitFehler.
    template <class Ganz>
    Ganz Zahl(char16_t name) {
        return InBreite<Ganz>(FuehrendeZahl(Wert(name)));
    }

private:
    // Where the equals sign behind a name stands; 0 where there is none, for no name begins there.
    std::uint32_t& Gleich(char16_t name) { return m_gleich[static_cast<std::size_t>(name - u'A')]; }

    TextSicht m_element;
    std::array<std::uint32_t, 26> m_gleich = {};
};

std::int16_t StrengeZahlVon(TextSicht name, TextSicht element) {
    const std::optional<std::int32_t> wert = StrengeGanzzahl(tqXML::getAttribut(name, element));
    if (!wert) {
        throw LaufzeitFehler("not a number");
    }
    return InBreite<std::int16_t>(*wert);
}

// --- Structure -------------------------------------------------------------------------------------------------------

using Elemente = std::vector<TextSicht>;

std::int16_t Anzahl(const Elemente& treffer) {
    if (treffer.size() > HoechsteAnzahl) {
        throw LaufzeitFehler("more entries than their count can tell");
    }
    return static_cast<std::int16_t>(treffer.size());
}

// The direct children of that name, one more at most than can be counted.
Elemente Suche(tqXML& xml, TextSicht name, TextSicht element) {
    return xml.SucheElemente(name, element, HoechsteAnzahl + 1);
}

void LiesVariablen(const Elemente& elemente, KapitelDaten& kapitel) {
    const std::size_t erstes = kapitel.KapitelVListe.size();
    Elemente gruppen;
    for (const TextSicht element : elemente) {
        Merkmale merkmale(element);
        VEintrag v;
        v.N = merkmale.Zahl<std::int16_t>(u'N');
        v.E = merkmale.Zahl<std::int16_t>(u'E');
        gruppen.push_back(merkmale.Wert(u'A'));
        kapitel.KapitelVListe.push_back(v);
    }
    if (std::ranges::any_of(gruppen, [](TextSicht gruppe) { return !gruppe.empty(); })) {
        NummeriereGruppen(std::span(kapitel.KapitelVListe).subspan(erstes), gruppen);
    }
}

void LiesU(tqXML& xml, TextSicht element, KapitelDaten& kapitel) {
    Merkmale merkmale(element);
    UEintrag u;
    u.N = merkmale.Zahl<std::int16_t>(u'N');
    u.W = merkmale.Zahl<std::int32_t>(u'W');
    merkmale.Zahl<std::uint8_t>(u'X');
    u.Y = merkmale.Zahl<std::uint8_t>(u'Y');
    const Elemente variablen = Suche(xml, u"V", element);
    u.ErstesV = static_cast<std::uint32_t>(kapitel.KapitelVListe.size());
    u.VAnzahl = Anzahl(variablen);
    LiesVariablen(variablen, kapitel);
    kapitel.KapitelUListe.push_back(u);
}

void LiesH(tqXML& xml, TextSicht element, KapitelDaten& kapitel) {
    Merkmale merkmale(element);
    HEintrag h;
    h.N = merkmale.Zahl<std::int16_t>(u'N');
    merkmale.Zahl<std::uint8_t>(u'X');
    const Elemente unterpositionen = Suche(xml, u"U", element);
    h.ErstesU = static_cast<std::uint32_t>(kapitel.KapitelUListe.size());
    h.UAnzahl = Anzahl(unterpositionen);
    for (const TextSicht unterposition : unterpositionen) {
        LiesU(xml, unterposition, kapitel);
    }
    kapitel.KapitelH.push_back(h);
}

// False when the root is no chapter; a number that can't be taken is a LaufzeitFehler.
bool KapitelStruktur(tqXML& xml, TextSicht dokument, KapitelDaten& kapitel) {
    if (tqXML::getName(dokument) != u"Kapitel") {
        return false;
    }
    kapitel.KapitelN = StrengeZahlVon(u"N", dokument);
    kapitel.KapitelS = StrengeZahlVon(u"S", dokument);
    kapitel.KapitelV = StrengeZahlVon(u"V", dokument);
    StrengeZahlVon(u"A", dokument);
    const Elemente hauptpositionen = Suche(xml, u"H", dokument);
    Anzahl(hauptpositionen);
    for (const TextSicht hauptposition : hauptpositionen) {
        LiesH(xml, hauptposition, kapitel);
    }
    return true;
}

// The plain way. A number that can't be taken makes the text no chapter.
bool LiesText(TextSicht text, KapitelDaten& kapitel) {
    tqXML xml;
    xml.DocumentElement(text);
    try {
        return KapitelStruktur(xml, xml.DocumentElement(), kapitel);
    } catch (const LaufzeitFehler&) {
        return false;
    }
}

// Behind either way.
bool Abgeschlossen(bool gelesen) {
    if (gelesen) {
        BildeFolgen(kapitelDaten);
    } else {
        kapitelDaten.Leeren();
    }
    return gelesen;
}

} // namespace

void KapitelDaten::Leeren() {
    KapitelN = KapitelS = KapitelV = 0;
    AktuellesH = AktuellesU = AktuellesV = -1;
    KapitelH.clear();
    KapitelUListe.clear();
    KapitelVListe.clear();
    Endknoten.clear();
    TextAeste.clear();
    HFolge.clear();
    UFolge.clear();
    VFolge.clear();
    Bereiche.clear();
    EndknotenStufen.clear();
    AstVonH.clear();
}

bool KapitelEinlesen(TextSicht text) {
    kapitelDaten.Leeren();
    return Abgeschlossen(LiesText(text, kapitelDaten));
}

bool KapitelEinlesen(const Kapitelbytes& bytes) {
    kapitelDaten.Leeren();
    if (LiesUeblicheForm(EntpackteBytes(bytes, kapitelDaten.Entpackt), kapitelDaten)) {
        return Abgeschlossen(true);
    }
    return KapitelEinlesen(EntpackeKapitel(bytes));
}

} // namespace zepholt
