#include "errors/Fehlerfolge.h"

#include "errors/FehlerERLTexte.h"
#include "errors/Fehlerort.h"
#include "errors/Takt.h"
#include "support/HilfsFunktionen.h"
#include "window/Fortschritt.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace zepholt {

namespace {

constexpr std::int32_t OhneZeile = 99'999;
constexpr std::int64_t OhnePosition = 999'999'999;
constexpr std::size_t ZeileBreit = 5;
constexpr std::size_t PositionBreit = 9;
constexpr std::size_t CodeBreit = 4;

// The stamps decide here also where a record tells its own position.
std::int64_t Stempel(const FehlerEintrag& eintrag) {
    return std::int64_t{eintrag.Kapitel} * 1'000'000 + eintrag.Position;
}

void ZahlAnfuegen(std::string& schluessel, std::int64_t zahl, std::size_t breite) {
    const std::string text = std::to_string(zahl);
    schluessel.append(breite > text.size() ? breite - text.size() : 0, ' ').append(text);
}

// --- Keys as numbers -------------------------------------------------------------------------------------------------

// The first characters of a key are the digits of a number to the base 12: a blank is 0, a minus 1, a decimal digit 2
// to 11. They hold the line and the position, but for the end of the position where the line is longer than five
// characters; there the position is either missing, all nines, or 0, all blanks up to the last, so that its beginning
// tells it. Behind them stand the length of the line and the number of the code's row.
//
// Lines of different lengths agree in those characters only where the position of the shorter line goes on with digits
// like those of the longer one, and then with nines. Behind them the shorter line comes to its code first, below 9,
// the longer one has nines left. So the shorter line comes first, as its length tells.
constexpr std::uint64_t Basis = 12;
constexpr std::size_t Zeichen = ZeileBreit + PositionBreit;
constexpr std::uint64_t Laengen = 8; // 5 to 10 characters of a line, counted from 5
constexpr std::uint64_t CodeZeilen = 512;
constexpr std::int32_t CodeGrenze = 9'000;

// Decimal digits of a number from 0 on as digits to the base 12, and how many there are.
struct Ziffernfolge {
    std::uint64_t Wert = 0;
    std::size_t Anzahl = 0;
};

constexpr Ziffernfolge ZiffernVon(std::uint64_t zahl) {
    Ziffernfolge ziffern;
    std::uint64_t gewicht = 1;
    do {
        ziffern.Wert += (zahl % 10 + 2) * gewicht;
        gewicht *= Basis;
        zahl /= 10;
        ++ziffern.Anzahl;
    } while (zahl != 0);
    return ziffern;
}

constexpr auto Potenzen = [] {
    std::array<std::uint64_t, Zeichen + 1> potenzen{1};
    for (std::size_t i = 1; i < potenzen.size(); ++i) {
        potenzen[i] = potenzen[i - 1] * Basis;
    }
    return potenzen;
}();

// The nine characters of a position; none when it has more.
std::optional<std::uint64_t> PositionsZiffern(std::int64_t position) {
    Ziffernfolge ziffern = ZiffernVon(static_cast<std::uint64_t>(position < 0 ? -position : position));
    if (position < 0) {
        ziffern.Wert += Potenzen[std::min(ziffern.Anzahl, PositionBreit)]; // the minus
        ++ziffern.Anzahl;
    }
    return ziffern.Anzahl <= PositionBreit ? std::optional(ziffern.Wert) : std::nullopt;
}

// Line and position of a finding as the upper part of its number.
std::optional<std::uint64_t> Ortszahl(std::int32_t zeile, std::int64_t position) {
    const std::optional<std::uint64_t> positionsZiffern = PositionsZiffern(position);
    const Ziffernfolge ziffern = ZiffernVon(static_cast<std::uint64_t>(zeile < 0 ? OhneZeile : zeile));
    const std::size_t laenge = std::max(ziffern.Anzahl, ZeileBreit);
    if (!positionsZiffern || (laenge > ZeileBreit && position != 0 && position != OhnePosition)) {
        return std::nullopt;
    }
    const std::uint64_t zeichen =
        ziffern.Wert * Potenzen[Zeichen - laenge] + *positionsZiffern / Potenzen[laenge - ZeileBreit];
    return zeichen * Laengen + (laenge - ZeileBreit);
}

std::optional<std::uint64_t> Codezahl(std::int32_t code) {
    const std::int32_t platz = code < CodeGrenze ? FehlerPlatz(code) : -1;
    return platz >= 0 ? std::optional(static_cast<std::uint64_t>(platz)) : std::nullopt;
}

std::int64_t SortierPosition(const FehlerEintrag& eintrag) {
    return HatPosition(eintrag.Zeile, eintrag.Kapitel) ? Stempel(eintrag) : OhnePosition;
}

// Findings come line by line: the place of the one before is kept.
class Zahlenreihe {
public:
    std::optional<std::uint64_t> Zahl(const FehlerEintrag& eintrag) {
        if (!m_ort || eintrag.Zeile != m_zeile || eintrag.Kapitel != m_kapitel || eintrag.Position != m_position) {
            FolgendesVorausholen(eintrag.Zeile);
            m_ort = Ortszahl(eintrag.Zeile, SortierPosition(eintrag));
            m_zeile = eintrag.Zeile;
            m_kapitel = eintrag.Kapitel;
            m_position = eintrag.Position;
        }
        const std::optional<std::uint64_t> code = Codezahl(eintrag.Code);
        return m_ort && code ? std::optional(*m_ort * CodeZeilen + *code) : std::nullopt;
    }

private:
    std::optional<std::uint64_t> m_ort;
    std::int32_t m_zeile = 0;
    std::int32_t m_kapitel = 0;
    std::int32_t m_position = 0;
};

// --- Ranks -----------------------------------------------------------------------------------------------------------

// The keys of all findings, or no list at all when one has none of that kind.
template <class Schluessel, class Geber>
std::vector<Schluessel> SchluesselVon(const Fehlersammlung& liste, Geber geber) {
    std::vector<Schluessel> schluessel;
    schluessel.reserve(liste.size());
    Takt takt;
    for (const FehlerEintrag& eintrag : liste) {
        std::optional<Schluessel> einer = geber(eintrag);
        if (!einer) {
            return {};
        }
        schluessel.push_back(std::move(*einer));
        takt.Schritt();
    }
    return schluessel;
}

// Where the stretches begin that ascend as they stand, and the end of the last.
template <class Schluessel>
std::vector<std::size_t> Laeufe(const std::vector<Schluessel>& schluessel) {
    std::vector<std::size_t> grenzen{0};
    for (std::size_t i = 1; i < schluessel.size(); ++i) {
        if (schluessel[i] < schluessel[i - 1]) {
            grenzen.push_back(i);
        }
    }
    grenzen.push_back(schluessel.size());
    return grenzen;
}

// The indexes of the keys in ascending order. Findings come pass by pass, each pass line by line: few stretches, which
// are merged two by two.
template <class Schluessel>
std::vector<std::uint32_t> Aufsteigend(const std::vector<Schluessel>& schluessel) {
    std::vector<std::uint32_t> folge(schluessel.size());
    std::iota(folge.begin(), folge.end(), 0U);
    std::vector<std::size_t> grenzen = Laeufe(schluessel);
    Takt takt;
    const auto kleiner = [&](std::uint32_t a, std::uint32_t b) {
        takt.Schritt();
        return schluessel[a] < schluessel[b];
    };
    std::vector<std::uint32_t> gemischt(grenzen.size() > 2 ? folge.size() : 0);
    const auto stelle = [&](std::size_t i) { return folge.begin() + static_cast<std::ptrdiff_t>(i); };
    while (grenzen.size() > 2) {
        std::vector<std::size_t> neueGrenzen{0};
        auto ziel = gemischt.begin();
        for (std::size_t k = 0; k + 1 < grenzen.size(); k += 2) {
            const std::size_t ende = grenzen[std::min(k + 2, grenzen.size() - 1)];
            ziel = std::merge(stelle(grenzen[k]), stelle(grenzen[k + 1]), stelle(grenzen[k + 1]), stelle(ende), ziel,
                              kleiner);
            neueGrenzen.push_back(ende);
        }
        folge.swap(gemischt);
        grenzen.swap(neueGrenzen);
    }
    return folge;
}

// For each key the number of different keys below it.
template <class Schluessel>
std::vector<std::uint32_t> RaengeVon(const std::vector<Schluessel>& schluessel) {
    const std::vector<std::uint32_t> folge = Aufsteigend(schluessel);
    std::vector<std::uint32_t> raenge(schluessel.size());
    std::uint32_t rang = 0;
    Takt takt;
    for (std::size_t k = 1; k < folge.size(); ++k) {
        takt.Schritt();
        rang += schluessel[folge[k - 1]] < schluessel[folge[k]] ? 1U : 0U;
        raenge[folge[k]] = rang;
    }
    return raenge;
}

std::vector<std::uint32_t> Raenge(const Fehlersammlung& liste) {
    const auto zahlen = SchluesselVon<std::uint64_t>(
        liste, [reihe = Zahlenreihe()](const FehlerEintrag& eintrag) mutable { return reihe.Zahl(eintrag); });
    if (zahlen.size() == liste.size()) {
        return RaengeVon(zahlen);
    }
    return RaengeVon(SchluesselVon<std::string>(
        liste, [](const FehlerEintrag& eintrag) { return std::optional(Sortierschluessel(eintrag)); }));
}

} // namespace

std::string Sortierschluessel(const FehlerEintrag& eintrag) {
    std::string schluessel;
    ZahlAnfuegen(schluessel, eintrag.Zeile < 0 ? OhneZeile : eintrag.Zeile, ZeileBreit);
    ZahlAnfuegen(schluessel, SortierPosition(eintrag), PositionBreit);
    ZahlAnfuegen(schluessel, eintrag.Code, CodeBreit);
    return schluessel;
}

std::optional<std::uint64_t> Sortierzahl(const FehlerEintrag& eintrag) {
    return Zahlenreihe().Zahl(eintrag);
}

std::vector<std::uint32_t> Fehlerfolge(const Fehlersammlung& liste) {
    return SortierFolge(Raenge(liste), BedieneFenster);
}

} // namespace zepholt
