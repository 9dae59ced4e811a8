#include "intake/UniversalSchluessel.h"

#include "state/SIA451Felder.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"
#include "window/Fortschritt.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

namespace zepholt {

namespace {

// Where a stretch of the key comes from; the stretches follow each other without a gap.
struct Schluesselteil {
    std::int32_t Spalte; // of the line, from 1
    std::int32_t Laenge;
    bool Gross; // in upper case
};

constexpr std::array<Schluesselteil, 16> Schluesselteile = {{
    {1, 1, false},
    {2, 3, false},
    {8, 6, false},
    {82, 5, true},
    {18, 6, true},
    {24, 6, true},
    {87, 6, true},
    {129, 6, true},
    {30, 3, true},
    {33, 3, true},
    {42, 1, false},
    {14, 2, false},
    {16, 2, false},
    {123, 6, true},
    {168, 16, true}, // from here on in the new interface only
    {188, 16, true},
}};
constexpr std::size_t TeileAlt = 14;
constexpr std::size_t BreiteAlt = 56;
constexpr std::size_t BreiteNeu = 88;

std::size_t Breite() {
    return NeueSchnittstelle() ? BreiteNeu : BreiteAlt;
}

char16_t Gross(char16_t zeichen) {
    if (zeichen >= 128) {
        return Grossbuchstabe(zeichen);
    }
    return zeichen >= u'a' && zeichen <= u'z' ? static_cast<char16_t>(zeichen - u'a' + u'A') : zeichen;
}

// A key of either width; in the old interface the rest stays blank, which changes no comparison.
using Schluessel = std::array<char16_t, BreiteNeu>;

Schluessel SchluesselVon(TextSicht zeile) {
    Schluessel schluessel;
    schluessel.fill(u' ');
    char16_t* ziel = schluessel.data();
    for (const Schluesselteil& teil : std::span(Schluesselteile).first(NeueSchnittstelle() ? 16 : TeileAlt)) {
        const TextSicht feld = Feld(zeile, teil.Spalte, teil.Laenge);
        if (teil.Gross) {
            std::ranges::transform(feld, ziel, Gross);
        } else {
            std::ranges::copy(feld, ziel);
        }
        ziel += teil.Laenge;
    }
    return schluessel;
}

// --- The order of the lines ------------------------------------------------------------------------------------------

// Columns 1 to 10 and 46 to 50 of a key.
using Ordnung = std::array<char16_t, 15>;

// A record E, D or U: its letter and nine blanks; of its number, in the old interface, the digits from the millions on
// reach columns 46 to 50.
Ordnung OrdnungOhneSchluessel(char16_t art, std::size_t nummer) {
    Ordnung ordnung;
    ordnung.fill(u' ');
    ordnung[0] = art;
    std::size_t millionen = NeueSchnittstelle() ? 0 : nummer / 1'000'000;
    for (std::size_t i = ordnung.size() - 1; millionen > 0; --i) {
        ordnung[i] = static_cast<char16_t>(u'0' + millionen % 10);
        millionen /= 10;
    }
    return ordnung;
}

Ordnung OrdnungVon(TextSicht zeile, std::size_t nummer) {
    if (IstEDURecord(zeile)) {
        return OrdnungOhneSchluessel(zeile[0], nummer);
    }
    Ordnung ordnung;
    ordnung.fill(u' ');
    std::ranges::copy(Feld(zeile, 1, 4), ordnung.begin());
    std::ranges::copy(Feld(zeile, 8, 6), ordnung.begin() + 4);
    std::ranges::copy(Feld(zeile, 42, 1), ordnung.begin() + 10);
    std::ranges::copy(Feld(zeile, 14, 4), ordnung.begin() + 11);
    return ordnung;
}

// A number that is ordered as the text of a line number is, right-aligned in six columns: up to five digits it begins
// with a blank and stands below all longer ones; from six digits on the text runs from the left, and of two texts that
// are equal as far as they go the shorter one is lower.
std::uint64_t Textrang(std::size_t nummer) {
    if (nummer < 100'000) {
        return nummer;
    }
    std::uint64_t linksbuendig = nummer;
    std::uint64_t stellen = 10;
    for (; linksbuendig < 1'000'000'000; --stellen) {
        linksbuendig *= 10;
    }
    return linksbuendig * 16 + stellen;
}

// --- Doubled keys ----------------------------------------------------------------------------------------------------

// Looks for keys that occur twice, in time that grows in step with the lines whatever they hold: slots with open
// addressing, one for each different key, never more than half of them taken.
class Doppelsuche {
public:
    explicit Doppelsuche(std::span<const TextSicht> zeilen) : m_zeilen(zeilen) {}

    // Takes up the doubled keys among these lines.
    void Durchsuchen(const Strecke& strecke);

    // The lowest doubled key of all that was searched.
    const std::optional<Schluessel>& Kleinster() const { return m_kleinster; }

private:
    static constexpr std::uint32_t Leer = std::numeric_limits<std::uint32_t>::max();
    struct Fach {
        std::uint32_t Streuwert = 0;
        std::uint32_t Zeile = Leer;
    };

    void Aufnehmen(std::size_t zeile);
    void Verdoppeln();
    Fach& FreiesFach(std::uint32_t streuwert);
    std::size_t Naechstes(std::size_t fach) const { return (fach + 1) & (m_faecher.size() - 1); }

    std::span<const TextSicht> m_zeilen;
    std::vector<Fach> m_faecher; // a power of two
    std::size_t m_belegt = 0;
    std::optional<Schluessel> m_kleinster;
};

void Doppelsuche::Durchsuchen(const Strecke& strecke) {
    m_faecher.assign(16, Fach());
    m_belegt = 0;
    for (std::size_t i = strecke.Von; i < strecke.Bis; ++i) {
        BedieneFenster();
        if (!IstEDURecord(m_zeilen[i])) {
            Aufnehmen(i);
        }
    }
}

void Doppelsuche::Aufnehmen(std::size_t zeile) {
    const Schluessel schluessel = SchluesselVon(m_zeilen[zeile]);
    const auto streuwert = static_cast<std::uint32_t>(std::hash<TextSicht>()(TextSicht(schluessel.data(), Breite())));
    std::size_t i = streuwert & (m_faecher.size() - 1);
    for (; m_faecher[i].Zeile != Leer; i = Naechstes(i)) {
        if (m_faecher[i].Streuwert == streuwert && SchluesselVon(m_zeilen[m_faecher[i].Zeile]) == schluessel) {
            m_kleinster = m_kleinster ? std::min(*m_kleinster, schluessel) : schluessel;
            return;
        }
    }
    m_faecher[i] = {streuwert, static_cast<std::uint32_t>(zeile)};
    if (++m_belegt * 2 > m_faecher.size()) {
        Verdoppeln();
    }
}

void Doppelsuche::Verdoppeln() {
    const std::vector<Fach> alte = std::move(m_faecher);
    m_faecher.assign(2 * alte.size(), Fach());
    for (const Fach& fach : alte) {
        if (fach.Zeile != Leer) {
            FreiesFach(fach.Streuwert) = fach;
        }
    }
}

Doppelsuche::Fach& Doppelsuche::FreiesFach(std::uint32_t streuwert) {
    std::size_t i = streuwert & (m_faecher.size() - 1);
    while (m_faecher[i].Zeile != Leer) {
        i = Naechstes(i);
    }
    return m_faecher[i];
}

// Of the lines with this key the first two, by their numbers as texts: the later one.
std::int32_t ZweiteZeileMit(const Schluessel& schluessel, std::span<const TextSicht> zeilen) {
    std::vector<std::size_t> nummern;
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        if (!IstEDURecord(zeilen[i]) && SchluesselVon(zeilen[i]) == schluessel) {
            nummern.push_back(i);
        }
    }
    std::ranges::nth_element(nummern, nummern.begin() + 1, {}, Textrang);
    return static_cast<std::int32_t>(nummern[1]);
}

} // namespace

bool IstEDURecord(TextSicht zeile) {
    return !zeile.empty() && (zeile[0] == u'E' || zeile[0] == u'D' || zeile[0] == u'U');
}

Text UniversalSchluessel(TextSicht zeile) {
    const Schluessel schluessel = SchluesselVon(zeile);
    return Text(schluessel.data(), Breite());
}

Reihenfolge ReihenfolgeErmitteln(std::span<const TextSicht> zeilen) {
    Reihenfolge ergebnis;
    Ordnung ordnung = zeilen.empty() ? Ordnung() : OrdnungVon(zeilen[0], 0);
    for (std::size_t von = 0; von < zeilen.size();) {
        std::size_t bis = von + 1;
        Ordnung naechste = ordnung;
        for (; bis < zeilen.size(); ++bis) { // as far as the lines are equal
            BedieneFenster();
            naechste = OrdnungVon(zeilen[bis], bis);
            if (naechste != ordnung) {
                break;
            }
            ergebnis.IstSortiert &= Textrang(bis - 1) < Textrang(bis);
        }
        if (bis - von > 1) {
            ergebnis.Gleiche.push_back({von, bis});
        }
        if (bis < zeilen.size() && naechste < ordnung) {
            ergebnis.IstSortiert = false;
            ergebnis.ErsteZuNiedrige =
                ergebnis.ErsteZuNiedrige < 0 ? static_cast<std::int32_t>(bis) : ergebnis.ErsteZuNiedrige;
        }
        ordnung = naechste;
        von = bis;
    }
    return ergebnis;
}

std::int32_t DoppelterSchluessel(std::span<const TextSicht> zeilen, const Reihenfolge& reihenfolge) {
    Doppelsuche suche(zeilen);
    if (reihenfolge.ErsteZuNiedrige < 0) { // equal keys can only be neighbours
        std::ranges::for_each(reihenfolge.Gleiche, [&suche](const Strecke& strecke) { suche.Durchsuchen(strecke); });
    } else {
        suche.Durchsuchen({0, zeilen.size()});
    }
    return suche.Kleinster() ? ZweiteZeileMit(*suche.Kleinster(), zeilen) : -1;
}

void ZeilenSortieren(std::vector<TextSicht>& zeilen) {
    struct Eintrag {
        Ordnung Spalten;
        std::uint64_t Rang;
        TextSicht Zeile;
    };
    std::vector<Eintrag> eintraege;
    eintraege.reserve(zeilen.size());
    for (std::size_t k = 0; k < zeilen.size(); ++k) {
        eintraege.push_back({OrdnungVon(zeilen[k], k), Textrang(k), zeilen[k]});
    }
    std::ranges::sort(eintraege, [](const Eintrag& a, const Eintrag& b) {
        return a.Spalten != b.Spalten ? a.Spalten < b.Spalten : a.Rang < b.Rang;
    });
    std::ranges::transform(eintraege, zeilen.begin(), &Eintrag::Zeile);
}

} // namespace zepholt
