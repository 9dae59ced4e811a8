#include "catalogue/VLTKapitel.h"

#include "errors/TestFehler.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"
#include "support/tqXML.h"

#include <algorithm>
#include <array>
#include <limits>
#include <numeric>

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

// What nearly every number of a chapter is: at most nine digits. -1 for any other text.
std::int32_t KurzeZahl(TextSicht text) {
    if (text.empty() || text.size() > 9) {
        return -1;
    }
    std::int32_t wert = 0;
    for (const char16_t zeichen : text) {
        if (!IstZiffer(zeichen)) {
            return -1;
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

    // The leading number of a value, 0 when it is missing.
    template <class Ganz>
    Ganz Zahl(char16_t name) {
        const TextSicht text = Wert(name);
        if (text.empty()) {
            return 0;
        }
        const std::int32_t wert = KurzeZahl(text);
        return InBreite<Ganz>(wert >= 0 ? wert : GanzzahlAmAnfang(text));
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

std::vector<TextSicht> Suche(tqXML& xml, TextSicht name, TextSicht element) {
    std::vector<TextSicht> treffer = xml.SucheElemente(name, element, HoechsteAnzahl + 1);
    if (treffer.size() > HoechsteAnzahl) {
        throw LaufzeitFehler("more entries than their count can tell");
    }
    return treffer;
}

void LiesV(TextSicht text) {
    Merkmale merkmale(text);
    VEintrag v;
    v.N = merkmale.Zahl<std::int16_t>(u'N');
    const TextSicht gruppe = merkmale.Wert(u'A');
    v.AAb = static_cast<std::uint32_t>(kapitelDaten.Alternativgruppen.size());
    v.AZahl = static_cast<std::uint32_t>(gruppe.size());
    kapitelDaten.Alternativgruppen += gruppe;
    v.E = merkmale.Zahl<std::int16_t>(u'E');
    kapitelDaten.KapitelVListe.push_back(v);
}

void LiesU(tqXML& xml, TextSicht text) {
    Merkmale merkmale(text);
    UEintrag u;
    u.N = merkmale.Zahl<std::int16_t>(u'N');
    u.W = merkmale.Zahl<std::int32_t>(u'W');
    u.X = merkmale.Zahl<std::uint8_t>(u'X');
    u.Y = merkmale.Zahl<std::uint8_t>(u'Y');
    u.VAb = static_cast<std::uint32_t>(kapitelDaten.KapitelVListe.size());
    const std::vector<TextSicht> treffer = Suche(xml, u"V", text);
    u.VAnzahl = static_cast<std::int16_t>(treffer.size());
    std::for_each(treffer.begin(), treffer.end(), LiesV);
    kapitelDaten.KapitelUListe.push_back(u);
}

void LiesH(tqXML& xml, TextSicht text) {
    Merkmale merkmale(text);
    HEintrag h;
    h.N = merkmale.Zahl<std::int16_t>(u'N');
    h.X = merkmale.Zahl<std::uint8_t>(u'X');
    h.UAb = static_cast<std::uint32_t>(kapitelDaten.KapitelUListe.size());
    const std::vector<TextSicht> treffer = Suche(xml, u"U", text);
    h.UAnzahl = static_cast<std::int16_t>(treffer.size());
    for (const TextSicht uText : treffer) {
        LiesU(xml, uText);
    }
    kapitelDaten.KapitelH.push_back(h);
}

// The chapter with its main positions, sub-positions and variables; `kinder` are the children of its root. False when
// the root is no chapter; a number that can't be taken is a LaufzeitFehler.
bool KapitelStruktur(TextSicht dokument, const std::vector<TextSicht>& kinder) {
    if (tqXML::getName(dokument) != u"Kapitel") {
        return false;
    }
    kapitelDaten.KapitelN = StrengeZahlVon(u"N", dokument);
    kapitelDaten.KapitelS = StrengeZahlVon(u"S", dokument);
    kapitelDaten.KapitelV = StrengeZahlVon(u"V", dokument);
    kapitelDaten.KapitelA = StrengeZahlVon(u"A", dokument);
    kapitelDaten.KapitelT = tqXML::getAttribut(u"T", dokument);
    kapitelDaten.KapitelZ = tqXML::getAttribut(u"Z", dokument);

    tqXML xml;
    for (const TextSicht kind : kinder) {
        if (tqXML::getName(kind) == u"H") {
            LiesH(xml, kind);
        }
    }
    if (kapitelDaten.KapitelH.size() > HoechsteAnzahl) {
        throw LaufzeitFehler("more entries than their count can tell");
    }
    kapitelDaten.KapitelHAnzahl = static_cast<std::int16_t>(kapitelDaten.KapitelH.size());
    return true;
}

// The rows of texts. Nothing asks for them; they are there only when no row holds text, see tqXML.
void KapitelTexte(const std::vector<TextSicht>& kinder) {
    constexpr TextSicht trenner = u"</T><T>";
    constexpr std::size_t kopf = TextSicht(u"<Texte><T>").size();
    constexpr std::size_t fuss = TextSicht(u"</T></Texte>").size();

    const auto texte =
        std::find_if(kinder.begin(), kinder.end(), [](TextSicht kind) { return tqXML::getName(kind) == u"Texte"; });
    if (texte == kinder.end()) {
        return;
    }
    std::vector<Text>& zeilen = kapitelDaten.KapitelTexteListe;
    std::size_t anfang = 0;
    for (std::size_t ende; (ende = texte->find(trenner, anfang)) != TextSicht::npos; anfang = ende + trenner.size()) {
        zeilen.emplace_back(texte->substr(anfang, ende - anfang));
    }
    zeilen.emplace_back(texte->substr(anfang));

    zeilen.front().erase(0, kopf);
    if (zeilen.back().size() < fuss) {
        zeilen.clear();
    } else {
        zeilen.back().resize(zeilen.back().size() - fuss);
    }
    kapitelDaten.KapitelTexteAnzahl = AnzahlElemente(zeilen);
}

// --- Indexes ---------------------------------------------------------------------------------------------------------

template <class Eintrag>
bool NachNummer(const std::vector<Eintrag>& liste, std::size_t ab, std::size_t anzahl) {
    const auto anfang = liste.begin() + static_cast<std::ptrdiff_t>(ab);
    return std::is_sorted(anfang, anfang + static_cast<std::ptrdiff_t>(anzahl),
                          [](const Eintrag& links, const Eintrag& rechts) { return links.N < rechts.N; });
}

// Brings one stretch of the list into the order by number, equal ones by place. The order of the whole list is only
// made when some stretch needs it, and is every entry at its own place to begin with.
template <class Eintrag>
void OrdneStrecke(const std::vector<Eintrag>& liste, std::size_t ab, std::size_t anzahl,
                  std::vector<std::uint32_t>& folge) {
    if (NachNummer(liste, ab, anzahl)) {
        return;
    }
    if (folge.empty()) {
        folge.resize(liste.size());
        std::iota(folge.begin(), folge.end(), 0U);
    }
    const auto anfang = folge.begin() + static_cast<std::ptrdiff_t>(ab);
    std::stable_sort(anfang, anfang + static_cast<std::ptrdiff_t>(anzahl),
                     [&liste](std::uint32_t links, std::uint32_t rechts) { return liste[links].N < liste[rechts].N; });
}

// The first entry of a stretch with the number, counted from the stretch's start; -1 when there is none.
template <class Eintrag>
std::int32_t ErsterMitNummer(const std::vector<Eintrag>& liste, const std::vector<std::uint32_t>& folge, std::size_t ab,
                             std::int32_t anzahl, std::int32_t nummer) {
    const auto eintragsNr = [&](std::size_t i) { return folge.empty() ? i : folge[i]; };
    std::size_t von = ab;
    const std::size_t ende = ab + static_cast<std::size_t>(anzahl);
    for (std::size_t bis = ende; von < bis;) {
        const std::size_t mitte = von + (bis - von) / 2;
        if (liste[eintragsNr(mitte)].N < nummer) {
            von = mitte + 1;
        } else {
            bis = mitte;
        }
    }
    const bool gefunden = von < ende && liste[eintragsNr(von)].N == nummer;
    return gefunden ? static_cast<std::int32_t>(eintragsNr(von) - ab) : -1;
}

Nummernbereich BereichVon(const UEintrag& u) {
    return {u.W / 1000, u.W % 1000};
}

void FasseZusammen(std::vector<Nummernbereich>& bereiche) {
    std::sort(bereiche.begin(), bereiche.end(),
              [](const Nummernbereich& links, const Nummernbereich& rechts) { return links.Von < rechts.Von; });
    std::size_t letzter = 0;
    for (const Nummernbereich& bereich : bereiche) {
        if (bereich.Von <= bereiche[letzter].Bis) {
            bereiche[letzter].Bis = std::max(bereiche[letzter].Bis, bereich.Bis);
        } else {
            bereiche[++letzter] = bereich;
        }
    }
    bereiche.resize(bereiche.empty() ? 0 : letzter + 1);
}

void MerkeBereiche(HEintrag& h) {
    std::vector<Nummernbereich> bereiche;
    for (std::size_t i = h.UAb; i < h.UAb + static_cast<std::size_t>(h.UAnzahl); ++i) {
        const UEintrag& u = kapitelDaten.KapitelUListe[i];
        if (u.W != 0 && BereichVon(u).Von <= BereichVon(u).Bis) {
            bereiche.push_back(BereichVon(u));
        }
    }
    FasseZusammen(bereiche);
    h.BereichAb = static_cast<std::uint32_t>(kapitelDaten.Bereiche.size());
    h.BereichAnzahl = static_cast<std::uint32_t>(bereiche.size());
    kapitelDaten.Bereiche.insert(kapitelDaten.Bereiche.end(), bereiche.begin(), bereiche.end());
}

void BildeIndexe() {
    KapitelDaten& k = kapitelDaten;
    OrdneStrecke(k.KapitelH, 0, k.KapitelH.size(), k.HFolge);
    for (HEintrag& h : k.KapitelH) {
        OrdneStrecke(k.KapitelUListe, h.UAb, static_cast<std::size_t>(h.UAnzahl), k.UFolge);
        MerkeBereiche(h);
    }
    for (const UEintrag& u : k.KapitelUListe) {
        OrdneStrecke(k.KapitelVListe, u.VAb, static_cast<std::size_t>(u.VAnzahl), k.VFolge);
    }
}

// --- Current entries -------------------------------------------------------------------------------------------------

const HEintrag* DasH() {
    const std::int32_t h = kapitelDaten.AktuellesH;
    return h < 0 ? nullptr : &kapitelDaten.KapitelH[static_cast<std::size_t>(h)];
}

const UEintrag* DasU() {
    const HEintrag* h = DasH();
    const std::int32_t u = kapitelDaten.AktuellesU;
    return h == nullptr || u < 0 ? nullptr : &kapitelDaten.KapitelUListe[h->UAb + static_cast<std::size_t>(u)];
}

const VEintrag* DasV() {
    const UEintrag* u = DasU();
    const std::int32_t v = kapitelDaten.AktuellesV;
    return u == nullptr || v < 0 ? nullptr : &kapitelDaten.KapitelVListe[u->VAb + static_cast<std::size_t>(v)];
}

std::int32_t IndexVonH(std::int32_t nummer) {
    return ErsterMitNummer(kapitelDaten.KapitelH, kapitelDaten.HFolge, 0, kapitelDaten.KapitelHAnzahl, nummer);
}

// --- End nodes -------------------------------------------------------------------------------------------------------

// Whether `nr` lies in the group that `letzter` heads.
bool Verfeinert(std::int32_t nr, std::int32_t letzter) {
    for (std::int32_t stufe = 10; letzter / stufe != 0; stufe *= 10) {
        if (nr % stufe == 0) {
            continue;
        }
        if (letzter % stufe != 0) {
            return false;
        }
        if (letzter / stufe == nr / stufe) {
            return true;
        }
    }
    return false;
}

// Index of the first end node greater than a position; the count when there is none. An entry is the first one greater
// than something only when it is greater than all before it, so those alone are searched: in a list that ascends they
// are all entries.
std::size_t ErsterEndknotenHinter(std::int32_t position) {
    const std::vector<std::int32_t>& stufen = kapitelDaten.EndknotenStufen;
    const auto stufe = std::upper_bound(stufen.begin(), stufen.end(), position, [](std::int32_t wert, std::int32_t i) {
        return wert < kapitelDaten.Endknoten[static_cast<std::size_t>(i)];
    });
    return stufe == stufen.end() ? kapitelDaten.Endknoten.size() : static_cast<std::size_t>(*stufe);
}

void MerkeStufen() {
    kapitelDaten.EndknotenStufen.clear();
    std::int32_t hoechster = std::numeric_limits<std::int32_t>::min();
    for (std::size_t i = 0; i < kapitelDaten.Endknoten.size(); ++i) {
        if (kapitelDaten.Endknoten[i] > hoechster) {
            hoechster = kapitelDaten.Endknoten[i];
            kapitelDaten.EndknotenStufen.push_back(static_cast<std::int32_t>(i));
        }
    }
}

// Adds a position to the end nodes; false when there is no room for it.
bool NimmEndknoten(std::int32_t nr, std::size_t hoechstens) {
    std::vector<std::int32_t>& endknoten = kapitelDaten.Endknoten;
    if (!endknoten.empty() && Verfeinert(nr, endknoten.back())) {
        endknoten.back() = nr;
        return true;
    }
    if (endknoten.size() == hoechstens) {
        return false;
    }
    endknoten.push_back(nr);
    return true;
}

bool SammleEndknoten() {
    const std::size_t hoechstens = static_cast<std::size_t>(kapitelDaten.KapitelHAnzahl) * 729 + 1; // 9 * 9 * 9 per H
    for (const HEintrag& h : kapitelDaten.KapitelH) {
        for (std::size_t i = h.UAb; i < h.UAb + static_cast<std::size_t>(h.UAnzahl); ++i) {
            if (!NimmEndknoten(h.N * 1000 + kapitelDaten.KapitelUListe[i].N, hoechstens)) {
                return false;
            }
        }
    }
    return true;
}

// --- Text branches ---------------------------------------------------------------------------------------------------

// A group of main positions, and how many of its end nodes have a last digit other than 0; -1 once a branch covers it.
struct Gruppe {
    std::int32_t Schluessel = 0;
    std::int32_t Zaehler = 0;
};
using Gruppen = std::vector<Gruppe>;

void Zaehle(Gruppen& gruppen, std::int32_t schluessel, std::int32_t letzteZiffer) {
    if (gruppen.empty() || gruppen.back().Schluessel != schluessel) {
        gruppen.push_back({schluessel, 0});
    }
    if (letzteZiffer != 0) {
        ++gruppen.back().Zaehler;
    }
}

// The groups of hundreds, of tens and of single main positions.
std::array<Gruppen, 3> GruppenDerEndknoten() {
    std::array<Gruppen, 3> gruppen;
    for (const std::int32_t p : kapitelDaten.Endknoten) {
        const std::int32_t m = p / 1000 % 1000;
        if (m / 100 % 10 == 0) {
            continue;
        }
        Zaehle(gruppen[0], p / 100000 * 100, p % 10);
        if (m / 10 % 10 == 0) {
            continue;
        }
        Zaehle(gruppen[1], p / 10000 * 10, p % 10);
        if (m % 10 != 0) {
            Zaehle(gruppen[2], m, p % 10);
        }
    }
    return gruppen;
}

// Marks the groups without such end nodes that lie in a branch found so far.
void MarkiereGedeckte(Gruppen& gruppen) {
    constexpr std::int32_t grenze = 40000; // beyond any main position, negative ones too
    std::vector<std::int32_t> offene(std::size_t{2} * grenze,
                                     0); // how many branches more are open at a number than before it
    for (const TextAst& ast : kapitelDaten.TextAeste) {
        ++offene[static_cast<std::size_t>(ast.Von + grenze)];
        --offene[static_cast<std::size_t>(ast.Bis + 1 + grenze)];
    }
    std::partial_sum(offene.begin(), offene.end(), offene.begin());
    for (Gruppe& gruppe : gruppen) {
        if (gruppe.Zaehler == 0 && offene[static_cast<std::size_t>(gruppe.Schluessel + grenze)] != 0) {
            gruppe.Zaehler = -1;
        }
    }
}

// Neighbouring groups without such end nodes are one branch; it governs what follows it in the group one level above.
// `stufe` is the size of a group in main positions.
void SammleAeste(const Gruppen& gruppen, std::int32_t stufe) {
    for (std::size_t i = 0; i < gruppen.size(); ++i) {
        if (gruppen[i].Zaehler != 0) {
            continue;
        }
        TextAst ast;
        ast.Von = gruppen[i].Schluessel;
        while (i + 1 < gruppen.size() && gruppen[i + 1].Schluessel == gruppen[i].Schluessel + stufe &&
               gruppen[i + 1].Zaehler == 0) {
            ++i;
        }
        ast.Bis = gruppen[i].Schluessel + stufe - 1;
        ast.GeltungVon = ast.Bis + 1;
        const std::int32_t oben = stufe * 10;
        ast.GeltungBis = stufe == 100 ? 999 : ast.Von / oben * oben + oben - 1;
        kapitelDaten.TextAeste.push_back(ast);
    }
}

// Main positions that a six-digit position number can have, one with a sign too.
constexpr std::int32_t HoechstesH = 999;

// Notes for each main position the first branch that holds it. A main position is looked at once for a branch that it
// gets, and skipped from then on, so that any number of branches over the same ones costs one step each.
void MerkeErsteAeste() {
    constexpr std::int32_t anzahl = 2 * HoechstesH + 1;
    kapitelDaten.AstVonH.assign(anzahl, -1);
    std::array<std::int32_t, anzahl + 1> naechstes{}; // a free one is its own; the last is beyond all
    std::iota(naechstes.begin(), naechstes.end(), 0);
    const auto freiAb = [&naechstes](std::int32_t h) {
        while (naechstes[static_cast<std::size_t>(h)] != h) {
            std::int32_t& weiter = naechstes[static_cast<std::size_t>(h)];
            weiter = naechstes[static_cast<std::size_t>(weiter)];
            h = weiter;
        }
        return h;
    };
    for (std::size_t i = 0; i < kapitelDaten.TextAeste.size(); ++i) {
        const std::int32_t von = std::clamp(kapitelDaten.TextAeste[i].Von + HoechstesH, 0, anzahl);
        const std::int32_t bis = std::min(kapitelDaten.TextAeste[i].Bis + HoechstesH, anzahl - 1);
        for (std::int32_t h = freiAb(von); h <= bis; h = freiAb(h)) {
            kapitelDaten.AstVonH[static_cast<std::size_t>(h)] = static_cast<std::int32_t>(i);
            naechstes[static_cast<std::size_t>(h)] = h + 1;
        }
    }
}

void SammleTextAeste() {
    std::array<Gruppen, 3> gefunden = GruppenDerEndknoten();
    std::int32_t stufe = 100;
    for (Gruppen& gruppen : gefunden) {
        MarkiereGedeckte(gruppen);
        SammleAeste(gruppen, stufe);
        stufe /= 10;
    }
}

} // namespace

// --- Reading ---------------------------------------------------------------------------------------------------------

bool KapitelEinlesen(TextSicht text) {
    kapitelDaten = {};
    bool gelesen = false;
    try {
        tqXML xml;
        xml.DocumentElement(text);
        const TextSicht dokument = xml.DocumentElement();
        const std::vector<TextSicht> kinder = tqXML().SucheElemente(u"", dokument); // main positions and texts at once
        gelesen = KapitelStruktur(dokument, kinder);
        if (gelesen) {
            KapitelTexte(kinder);
            BildeIndexe();
        }
    } catch (const LaufzeitFehler&) {
        gelesen = false;
    }
    if (!gelesen) {
        kapitelDaten = {};
    }
    return gelesen;
}

void BildeEndknoten() {
    kapitelDaten.Endknoten.clear();
    if (!SammleEndknoten()) {
        kapitelDaten.Endknoten.clear();
    }
    kapitelDaten.EndknotenAnzahl = AnzahlElemente(kapitelDaten.Endknoten);
    MerkeStufen();
}

void BildeTextAeste() {
    kapitelDaten.TextAeste.clear();
    if (kapitelDaten.KapitelN / 10 % 10 != 0) {
        SammleTextAeste();
    }
    kapitelDaten.TextAesteAnzahl = AnzahlElemente(kapitelDaten.TextAeste);
    MerkeErsteAeste();
}

// --- Searches --------------------------------------------------------------------------------------------------------

bool FindeH(std::int32_t nummer) {
    kapitelDaten.AktuellesU = -1;
    kapitelDaten.AktuellesV = -1;
    kapitelDaten.AktuellesH = IndexVonH(nummer);
    return kapitelDaten.AktuellesH >= 0;
}

bool FindeU(std::int32_t nummer) {
    kapitelDaten.AktuellesU = -1;
    kapitelDaten.AktuellesV = -1;
    if (const HEintrag* h = DasH()) {
        kapitelDaten.AktuellesU =
            ErsterMitNummer(kapitelDaten.KapitelUListe, kapitelDaten.UFolge, h->UAb, h->UAnzahl, nummer);
    }
    return kapitelDaten.AktuellesU >= 0;
}

bool FindeV(std::int32_t nummer) {
    kapitelDaten.AktuellesV = -1;
    if (const UEintrag* u = DasU()) {
        kapitelDaten.AktuellesV =
            ErsterMitNummer(kapitelDaten.KapitelVListe, kapitelDaten.VFolge, u->VAb, u->VAnzahl, nummer);
    }
    return kapitelDaten.AktuellesV >= 0;
}

namespace {

// The end node before the place where the position would stand may carry a range that it lies in.
void FindeTraegerDavor(std::int32_t position) {
    const std::size_t dahinter = ErsterEndknotenHinter(position);
    if (dahinter > 0) {
        FindeU(kapitelDaten.Endknoten[dahinter - 1] % 1000);
    }
}

// A text position within a range must not be finer than what the range begins at.
void PruefeTextposition(std::int32_t position, std::int32_t von) {
    if (testDaten.Revision < 12 || position % 10 != 0) {
        return;
    }
    if (von % 10 != 0 || (von % 100 != 0 && position % 100 == 0)) {
        FehlerHinzufuegen(6213, 0);
    }
}

} // namespace

bool PositionImKatalog(std::int32_t position, bool& istWiederholung, std::int32_t grenze) {
    istWiederholung = false;
    const std::int32_t unter = position % 1000;
    if (!FindeH(position / 1000)) {
        return false;
    }
    if (unter == 0) {
        return true;
    }
    const bool gefunden = FindeU(unter);
    if (!gefunden) {
        FindeTraegerDavor(position);
    }
    std::int32_t von = 0;
    std::int32_t bis = 0;
    if (!BereichDerPosition(bis, von)) {
        return gefunden;
    }
    const auto imBereich = [von, bis](std::int32_t nummer) { return von < nummer && nummer <= bis; };
    if (!imBereich(unter) || (grenze != 0 && !imBereich(grenze % 1000))) {
        return false;
    }
    PruefeTextposition(position, von);
    istWiederholung = FindeU(von);
    return istWiederholung;
}

// --- Accessors -------------------------------------------------------------------------------------------------------

bool BereichDerPosition(std::int32_t& bis, std::int32_t& von) {
    const UEintrag* u = DasU();
    const Nummernbereich bereich = u != nullptr ? BereichVon(*u) : Nummernbereich();
    von = bereich.Von;
    bis = bereich.Bis;
    return u != nullptr && u->W != 0;
}

bool OhneFestenText() {
    const UEintrag* u = DasU();
    return u != nullptr && u->Y == 1;
}

bool SuchtitelAenderbar() {
    if (const UEintrag* u = DasU()) {
        return u->X == 1;
    }
    const HEintrag* h = DasH();
    return h != nullptr && h->X == 1;
}

std::int32_t EinfuegepunktImKatalog() {
    const VEintrag* v = DasV();
    return v != nullptr ? v->E : 0;
}

TextSicht AlternativGruppe() {
    const VEintrag* v = DasV();
    return v != nullptr ? TextSicht(kapitelDaten.Alternativgruppen).substr(v->AAb, v->AZahl) : TextSicht();
}

bool KapitelTitel(TextSicht& t, TextSicht& z) {
    t = kapitelDaten.KapitelT;
    z = kapitelDaten.KapitelZ;
    return true;
}

// --- Questions -------------------------------------------------------------------------------------------------------

bool IstEndknoten(std::int32_t position) {
    if (position < 1 || position % 10 != 0) {
        return true;
    }
    std::int64_t ende = position;
    std::int64_t stufe = 10;
    do {
        ende += stufe * 9 / 10;
        stufe *= 10;
    } while (position % stufe == 0);
    const std::size_t dahinter = ErsterEndknotenHinter(position);
    return dahinter == kapitelDaten.Endknoten.size() || kapitelDaten.Endknoten[dahinter] > ende;
}

bool InWiederholungsbereich(std::int32_t position) {
    const std::int32_t nummer = position % 1000;
    const std::int32_t index = nummer != 0 ? IndexVonH(position / 1000 % 1000) : -1;
    if (index < 0) {
        return false;
    }
    const HEintrag& h = kapitelDaten.KapitelH[static_cast<std::size_t>(index)];
    const auto anfang = kapitelDaten.Bereiche.begin() + h.BereichAb;
    const auto ende = anfang + h.BereichAnzahl;
    const auto bereich =
        std::lower_bound(anfang, ende, nummer, [](const Nummernbereich& b, std::int32_t nr) { return b.Bis < nr; });
    return bereich != ende && bereich->Von <= nummer;
}

bool InTextAst(std::int32_t position, std::int32_t& von, std::int32_t& bis) {
    von = 0;
    bis = 0;
    const std::int32_t h = position / 1000;
    if (kapitelDaten.TextAeste.empty() || h < -HoechstesH || h > HoechstesH) {
        return false;
    }
    const std::int32_t index = kapitelDaten.AstVonH[static_cast<std::size_t>(h + HoechstesH)];
    if (index < 0) {
        return false;
    }
    const TextAst& ast = kapitelDaten.TextAeste[static_cast<std::size_t>(index)];
    von = ast.GeltungVon * 1000;
    bis = ast.GeltungBis * 1000 + 999;
    return true;
}

} // namespace zepholt
