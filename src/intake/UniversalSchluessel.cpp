#include "intake/UniversalSchluessel.h"

#include "state/SIA451Felder.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"
#include "window/Fortschritt.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>
#include <numeric>
#include <optional>
#include <span>
#include <tuple>
#include <utility>

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

std::span<const Schluesselteil> Teile() {
    return std::span(Schluesselteile).first(NeueSchnittstelle() ? Schluesselteile.size() : TeileAlt);
}

// The character of a key for column `i` (from 0) of a field, which may end before it.
char16_t Zeichen(Feldsicht feld, std::size_t i, bool gross) {
    const char16_t zeichen = i < feld.size() ? feld[i] : u' ';
    return gross ? Gross(zeichen) : zeichen;
}

Schluessel SchluesselVon(Feldsicht zeile) {
    Schluessel schluessel;
    schluessel.fill(u' ');
    std::size_t stelle = 0;
    for (const Schluesselteil& teil : Teile()) {
        const Feldsicht feld = Feld(zeile, teil.Spalte, teil.Laenge);
        for (std::size_t i = 0; i < static_cast<std::size_t>(teil.Laenge); ++i) {
            schluessel[stelle++] = Zeichen(feld, i, teil.Gross);
        }
    }
    return schluessel;
}

// True when the key of `a` is lower than that of `b`, compared side by side, for two lines of the same order (see
// Ordnung): they differ in no stretch but those in upper case. Two lines without a key of their own never repeat: their
// numbers keep them apart, and put the later one behind.
bool IstNiedriger(Feldsicht a, Feldsicht b) {
    if (IstEDURecord(b)) {
        return true;
    }
    for (const Schluesselteil& teil : Teile()) {
        const Feldsicht feldA = Feld(a, teil.Spalte, teil.Laenge);
        const Feldsicht feldB = Feld(b, teil.Spalte, teil.Laenge);
        if (!teil.Gross || feldA == feldB) {
            continue;
        }
        for (std::size_t i = 0; i < static_cast<std::size_t>(teil.Laenge); ++i) {
            const char16_t zeichenA = Zeichen(feldA, i, true);
            const char16_t zeichenB = Zeichen(feldB, i, true);
            if (zeichenA != zeichenB) {
                return zeichenA < zeichenB;
            }
        }
    }
    return false;
}

// --- The order of the lines ------------------------------------------------------------------------------------------

// Columns 1 to 10 and 46 to 50 of a key as numbers, the first column the highest: so the order of the numbers is the
// order of the columns. A column takes 8 bits in a file of one byte a column, or else 16; the last one is not used.
using Ordnung = std::array<std::uint64_t, 4>;
constexpr std::size_t Ordnungsspalten = 16;
constexpr std::uint64_t JedesHoheBit = 0x8080808080808080;

// For each byte of the file's code page its place in the order of the characters. ASCII comes first, as it stands.
using Raenge = std::array<unsigned char, 256>;

Raenge RaengeDerCodeseite() {
    std::array<unsigned char, 256> codes;
    std::iota(codes.begin(), codes.end(), static_cast<unsigned char>(0));
    std::ranges::sort(std::span(codes).subspan(0x80), {}, [](auto code) { return codeseite.Zeichen[code]; });
    Raenge raenge;
    for (std::size_t rang = 0; rang < codes.size(); ++rang) {
        raenge[codes[rang]] = static_cast<unsigned char>(rang);
    }
    return raenge;
}

// The columns in the order in which they count. A record E, D or U has its letter and nine blanks; of its number, in
// the old interface, the digits from the millions on reach columns 46 to 50.
template <class Spalte>
std::array<Spalte, Ordnungsspalten> SpaltenVon(const Spalte* zeile, std::size_t laenge, std::size_t nummer) {
    std::array<Spalte, Ordnungsspalten> spalten;
    spalten.fill(' ');
    const auto kopiere = [&](std::size_t ziel, std::size_t ab, std::size_t anzahl) {
        std::copy(zeile + std::min(ab, laenge), zeile + std::min(ab + anzahl, laenge), spalten.begin() + ziel);
    };
    if (laenge > 0 && (zeile[0] == 'E' || zeile[0] == 'D' || zeile[0] == 'U')) {
        spalten[0] = zeile[0];
        const std::size_t millionen = NeueSchnittstelle() ? 0 : nummer / 1'000'000;
        for (std::size_t stelle = 14, rest = millionen; stelle >= 10 && rest > 0; --stelle, rest /= 10) {
            spalten[stelle] = static_cast<Spalte>('0' + rest % 10);
        }
        return spalten;
    }
    kopiere(0, 0, 4);
    kopiere(4, 7, 6);
    kopiere(10, 41, 1);
    kopiere(11, 13, 4);
    return spalten;
}

template <class Spalte>
Ordnung Gepackt(const std::array<Spalte, Ordnungsspalten>& spalten) {
    constexpr std::size_t JeWort = sizeof(std::uint64_t) / sizeof(Spalte);
    Ordnung ordnung = {};
    for (std::size_t i = 0; i < Ordnungsspalten; ++i) {
        ordnung[i / JeWort] = ordnung[i / JeWort] << 8 * sizeof(Spalte) | spalten[i];
    }
    return ordnung;
}

// Four bytes as a number, the first the highest. Written out, compilers know it as one instruction.
std::uint64_t Absteigend(const unsigned char* bytes) {
    return std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 | std::uint32_t{bytes[2]} << 8 | bytes[3];
}

// The same of a line of bytes with a key of its own and all columns of it, as nearly every line has.
Ordnung OrdnungDerLangen(const unsigned char* zeile) {
    const std::uint64_t hinten = std::uint64_t{zeile[11]} << 16 | std::uint64_t{zeile[12]} << 8 | zeile[41];
    return {Absteigend(zeile) << 32 | Absteigend(zeile + 7), hinten << 40 | Absteigend(zeile + 13) << 8 | ' '};
}

// The ranks are made for the first line that needs them.
Ordnung OrdnungVon(Feldsicht zeile, std::size_t nummer, std::optional<Raenge>& raenge) {
    if (zeile.IstBreit()) {
        return Gepackt(SpaltenVon(zeile.Zeichen(), zeile.size(), nummer));
    }
    constexpr std::size_t LetzteSpalte = 42;
    const Ordnung ordnung = zeile.size() >= LetzteSpalte && !IstEDURecord(zeile)
                                ? OrdnungDerLangen(zeile.Bytes())
                                : Gepackt(SpaltenVon(zeile.Bytes(), zeile.size(), nummer));
    if (((ordnung[0] | ordnung[1]) & JedesHoheBit) == 0) {
        return ordnung; // ASCII is in its order
    }
    if (!raenge) {
        raenge = RaengeDerCodeseite();
    }
    auto spalten = SpaltenVon(zeile.Bytes(), zeile.size(), nummer);
    std::ranges::transform(spalten, spalten.begin(), [&raenge](unsigned char byte) { return (*raenge)[byte]; });
    return Gepackt(spalten);
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

// The number of this rank.
std::size_t NummerZu(std::uint64_t textrang) {
    if (textrang < 100'000) {
        return static_cast<std::size_t>(textrang);
    }
    std::uint64_t nummer = textrang / 16;
    for (std::uint64_t stellen = textrang % 16; stellen < 10; ++stellen) {
        nummer /= 10;
    }
    return static_cast<std::size_t>(nummer);
}

// Takes the lines in their order and finds what is wrong with it.
class Ordnungspruefung {
public:
    void Nimm(Feldsicht zeile, std::size_t nummer) {
        const Ordnung ordnung = OrdnungVon(zeile, nummer, m_raenge);
        if (nummer > 0 && ordnung == m_ordnung) {
            m_gleiche.Bis = nummer + 1;
            m_steigend = m_steigend && IstNiedriger(m_zeile, zeile);
            m_ergebnis.IstSortiert &= Textrang(nummer - 1) < Textrang(nummer);
        } else {
            StreckeAblegen();
            if (nummer > 0 && ordnung < m_ordnung) {
                ZuNiedrig(nummer);
            }
            m_gleiche = {nummer, nummer + 1};
            m_steigend = true;
            m_ordnung = ordnung;
        }
        m_zeile = zeile;
    }

    Reihenfolge Ergebnis() && {
        StreckeAblegen();
        return std::move(m_ergebnis);
    }

private:
    void StreckeAblegen() {
        if (!m_steigend) {
            m_ergebnis.Gleiche.push_back(m_gleiche);
        }
    }
    void ZuNiedrig(std::size_t nummer) {
        m_ergebnis.IstSortiert = false;
        if (m_ergebnis.ErsteZuNiedrige < 0) {
            m_ergebnis.ErsteZuNiedrige = static_cast<std::int32_t>(nummer);
        }
    }

    std::optional<Raenge> m_raenge;
    Reihenfolge m_ergebnis;
    Strecke m_gleiche = {0, 0};
    bool m_steigend = true; // the keys of m_gleiche ascend
    Ordnung m_ordnung = {}; // of the line before, and that line
    Feldsicht m_zeile;
};

// Sorts in pieces and joins them, so that a waiting person is served meanwhile. No two keys may be equal.
template <class Element, class Schluessel>
void StueckweiseSortieren(std::vector<Element>& folge, Schluessel schluessel) {
    constexpr std::size_t Stueck = 1 << 18; // elements, some hundredths of a second
    const auto kleiner = [&](const Element& a, const Element& b) { return schluessel(a) < schluessel(b); };
    const auto ab = [&](std::size_t i) {
        return folge.begin() + static_cast<std::ptrdiff_t>(std::min(i, folge.size()));
    };
    for (std::size_t von = 0; von < folge.size(); von += Stueck) {
        BedieneFenster();
        std::sort(ab(von), ab(von + Stueck), kleiner);
    }
    for (std::size_t breite = Stueck; breite < folge.size(); breite *= 2) {
        for (std::size_t von = 0; von + breite < folge.size(); von += 2 * breite) {
            BedieneFenster();
            std::inplace_merge(ab(von), ab(von + breite), ab(von + 2 * breite), kleiner);
        }
    }
}

// --- Doubled keys ----------------------------------------------------------------------------------------------------

struct Merkmal {
    std::uint64_t Streuwert; // of the key
    std::uint32_t Zeile;
};

// The lowest of the keys that stand twice.
class DoppelterMitKleinstem {
public:
    // A line whose key has been found twice.
    void Nimm(Feldsicht zeile) {
        if (m_gefunden && zeile == m_zeile) {
            return;
        }
        const Schluessel schluessel = SchluesselVon(zeile);
        if (!m_gefunden || schluessel < m_schluessel) {
            m_gefunden = true;
            m_schluessel = schluessel;
            m_zeile = zeile;
        }
    }

    bool Gefunden() const { return m_gefunden; }
    bool Hat(Feldsicht zeile) const { return zeile == m_zeile || SchluesselVon(zeile) == m_schluessel; }

private:
    bool m_gefunden = false;
    Schluessel m_schluessel = {};
    Feldsicht m_zeile; // has this key
};

// Hands on the keys that stand twice among these lines. Sorted by hash value, equal keys stand together, whatever the
// lines hold; a line that is the one before again needs no hash value.
void DoppelteSuchen(const Zeilenliste& zeilen, const Strecke& strecke, DoppelterMitKleinstem& kleinster) {
    std::vector<Merkmal> merkmale;
    merkmale.reserve(strecke.Bis - strecke.Von);
    Feldsicht vorige;
    for (std::size_t i = strecke.Von; i < strecke.Bis; ++i) {
        BedieneFenster();
        const Feldsicht zeile = zeilen[i];
        if (IstEDURecord(zeile)) {
            continue;
        }
        if (!merkmale.empty() && zeile == vorige) {
            kleinster.Nimm(zeile);
            continue;
        }
        const Schluessel schluessel = SchluesselVon(zeile);
        merkmale.push_back({Streuwert(TextSicht(schluessel.data(), schluessel.size())), static_cast<std::uint32_t>(i)});
        vorige = zeile;
    }
    StueckweiseSortieren(merkmale, [](const Merkmal& m) { return std::pair(m.Streuwert, m.Zeile); });
    for (std::size_t i = 1; i < merkmale.size(); ++i) {
        if (merkmale[i].Streuwert == merkmale[i - 1].Streuwert) {
            const Feldsicht zeile = zeilen[merkmale[i].Zeile];
            if (SchluesselVon(zeile) == SchluesselVon(zeilen[merkmale[i - 1].Zeile])) {
                kleinster.Nimm(zeile);
            }
        }
    }
}

// Of the lines with this key the first two, by their numbers as texts: the later one.
std::int32_t ZweiteZeileMit(const DoppelterMitKleinstem& schluessel, const Zeilenliste& zeilen) {
    constexpr std::uint64_t Keine = std::numeric_limits<std::uint64_t>::max();
    std::uint64_t erste = Keine;
    std::uint64_t zweite = Keine;
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        BedieneFenster();
        if (!IstEDURecord(zeilen[i]) && schluessel.Hat(zeilen[i])) {
            zweite = std::min(zweite, std::max(erste, Textrang(i)));
            erste = std::min(erste, Textrang(i));
        }
    }
    return static_cast<std::int32_t>(NummerZu(zweite));
}

// --- Sorting ---------------------------------------------------------------------------------------------------------

// Neighbouring lines that are equal in the columns that decide the order.
struct GleicheZeilen {
    Ordnung Spalten;
    std::uint32_t Von;
    std::uint32_t Bis;
};

// All lines in ascending order of their columns; those that are equal in them stand in the order of the file.
std::vector<GleicheZeilen> NachOrdnung(const Zeilenliste& zeilen) {
    std::optional<Raenge> raenge;
    std::vector<GleicheZeilen> strecken;
    for (std::uint32_t k = 0; k < zeilen.size(); ++k) {
        BedieneFenster();
        const Ordnung ordnung = OrdnungVon(zeilen[k], k, raenge);
        if (strecken.empty() || strecken.back().Spalten != ordnung) {
            strecken.push_back({ordnung, k, k});
        }
        ++strecken.back().Bis;
    }
    StueckweiseSortieren(strecken, [](const GleicheZeilen& s) { return std::tie(s.Spalten, s.Von); });
    return strecken;
}

} // namespace

bool IstEDURecord(Feldsicht zeile) {
    const char16_t typ = zeile.empty() ? u' ' : zeile.front();
    return typ == u'E' || typ == u'D' || typ == u'U';
}

Text UniversalSchluessel(Feldsicht zeile) {
    const Schluessel schluessel = SchluesselVon(zeile);
    return Text(schluessel.data(), Breite());
}

Reihenfolge ReihenfolgeErmitteln(const Zeilenliste& zeilen) {
    Ordnungspruefung pruefung;
    for (std::size_t k = 0; k < zeilen.size(); ++k) {
        BedieneFenster();
        zeilen.Vorausholen(k);
        pruefung.Nimm(zeilen[k], k);
    }
    return std::move(pruefung).Ergebnis();
}

std::int32_t DoppelterSchluessel(const Zeilenliste& zeilen, const Reihenfolge& reihenfolge) {
    DoppelterMitKleinstem kleinster;
    if (reihenfolge.ErsteZuNiedrige >= 0) {
        DoppelteSuchen(zeilen, {0, zeilen.size()}, kleinster);
    } else {
        for (const Strecke& strecke : reihenfolge.Gleiche) { // equal keys can only be neighbours
            DoppelteSuchen(zeilen, strecke, kleinster);
        }
    }
    return kleinster.Gefunden() ? ZweiteZeileMit(kleinster, zeilen) : -1;
}

std::vector<std::uint32_t> SortierteFolge(const Zeilenliste& zeilen) {
    const std::vector<GleicheZeilen> strecken = NachOrdnung(zeilen);
    std::vector<std::uint32_t> folge;
    folge.reserve(zeilen.size());
    std::vector<std::uint64_t> raenge; // of the lines that are equal in their columns, wherever they stand
    raenge.reserve(zeilen.size());
    for (auto strecke = strecken.begin(); strecke != strecken.end(); ++strecke) {
        for (std::size_t nummer = strecke->Von; nummer < strecke->Bis; ++nummer) {
            raenge.push_back(Textrang(nummer));
        }
        if (strecke + 1 == strecken.end() || strecke[1].Spalten != strecke->Spalten) {
            StueckweiseSortieren(raenge, [](std::uint64_t rang) { return rang; });
            std::ranges::transform(raenge, std::back_inserter(folge),
                                   [](std::uint64_t rang) { return static_cast<std::uint32_t>(NummerZu(rang)); });
            raenge.clear();
        }
    }
    return folge;
}

} // namespace zepholt
