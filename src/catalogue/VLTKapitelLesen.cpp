// From the expanded text to the entries of the chapter.
#include "catalogue/VLTKapitel.h"
#include "support/HilfsFunktionen.h"
#include "support/tqXML.h"

#include <algorithm>
#include <array>
#include <limits>

namespace zepholt {

namespace {

// The counts of a chapter are 16 bits wide.
constexpr std::size_t HoechsteAnzahl = std::numeric_limits<std::int16_t>::max();

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
    if (text.size() > 9 || !NurZiffern(text)) {
        return GanzzahlAmAnfang(text);
    }
    std::int32_t wert = 0;
    for (const char16_t ziffer : text) {
        wert = wert * 10 + (ziffer - u'0');
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
Elemente Suche(TextSicht name, TextSicht element) {
    return tqXML().SucheElemente(name, element, HoechsteAnzahl + 1);
}

// Gives the variables of one sub-position the numbers of their groups; `texte` are the names of the groups, in the
// order of the variables.
void NummeriereGruppen(std::span<VEintrag> variablen, const Elemente& texte) {
    std::vector<std::size_t> folge;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        if (!texte[i].empty()) {
            folge.push_back(i);
        }
    }
    std::ranges::sort(folge, {}, [&texte](std::size_t i) { return texte[i]; });
    std::uint16_t gruppe = 0;
    TextSicht davor;
    for (const std::size_t i : folge) {
        if (texte[i] != davor) {
            ++gruppe;
        }
        variablen[i].Gruppe = gruppe;
        davor = texte[i];
    }
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
    NummeriereGruppen(std::span(kapitel.KapitelVListe).subspan(erstes), gruppen);
}

void LiesU(TextSicht element, KapitelDaten& kapitel) {
    Merkmale merkmale(element);
    UEintrag u;
    u.N = merkmale.Zahl<std::int16_t>(u'N');
    u.W = merkmale.Zahl<std::int32_t>(u'W');
    merkmale.Zahl<std::uint8_t>(u'X');
    u.Y = merkmale.Zahl<std::uint8_t>(u'Y');
    const Elemente variablen = Suche(u"V", element);
    u.ErstesV = static_cast<std::uint32_t>(kapitel.KapitelVListe.size());
    u.VAnzahl = Anzahl(variablen);
    LiesVariablen(variablen, kapitel);
    kapitel.KapitelUListe.push_back(u);
}

void LiesH(TextSicht element, KapitelDaten& kapitel) {
    Merkmale merkmale(element);
    HEintrag h;
    h.N = merkmale.Zahl<std::int16_t>(u'N');
    merkmale.Zahl<std::uint8_t>(u'X');
    const Elemente unterpositionen = Suche(u"U", element);
    h.ErstesU = static_cast<std::uint32_t>(kapitel.KapitelUListe.size());
    h.UAnzahl = Anzahl(unterpositionen);
    for (const TextSicht unterposition : unterpositionen) {
        LiesU(unterposition, kapitel);
    }
    kapitel.KapitelH.push_back(h);
}

// False when the root is no chapter; a number that can't be taken is a LaufzeitFehler.
bool KapitelStruktur(TextSicht dokument, KapitelDaten& kapitel) {
    if (tqXML::getName(dokument) != u"Kapitel") {
        return false;
    }
    kapitel.KapitelN = StrengeZahlVon(u"N", dokument);
    kapitel.KapitelS = StrengeZahlVon(u"S", dokument);
    kapitel.KapitelV = StrengeZahlVon(u"V", dokument);
    StrengeZahlVon(u"A", dokument);
    const Elemente hauptpositionen = Suche(u"H", dokument);
    Anzahl(hauptpositionen);
    for (const TextSicht hauptposition : hauptpositionen) {
        LiesH(hauptposition, kapitel);
    }
    return true;
}

bool Lies(TextSicht text, KapitelDaten& kapitel) {
    tqXML xml;
    xml.DocumentElement(text);
    try {
        return KapitelStruktur(xml.DocumentElement(), kapitel);
    } catch (const LaufzeitFehler&) {
        return false;
    }
}

} // namespace

bool KapitelEinlesen(TextSicht text) {
    kapitelDaten = {};
    if (!Lies(text, kapitelDaten)) {
        kapitelDaten = {};
        return false;
    }
    BildeFolgen(kapitelDaten);
    return true;
}

} // namespace zepholt
