// The lists made from the entries of the chapter: orders by number, repeat ranges, end nodes, text branches.
#include "catalogue/VLTKapitel.h"

#include <algorithm>
#include <array>
#include <limits>
#include <numeric>

namespace zepholt {

namespace {

// --- Orders and repeat ranges ----------------------------------------------------------------------------------------

// Brings one stretch of the list into the order by number, equal ones by place. The order of the whole list is only
// made when some stretch needs it, and is every entry at its own place to begin with.
template <class Eintrag>
void OrdneStrecke(const std::vector<Eintrag>& liste, std::span<const Eintrag> strecke,
                  std::vector<std::uint32_t>& folge) {
    if (std::ranges::is_sorted(strecke, {}, &Eintrag::N)) {
        return;
    }
    if (folge.empty()) {
        folge.resize(liste.size());
        std::iota(folge.begin(), folge.end(), 0U);
    }
    const auto anfang = folge.begin() + (strecke.data() - liste.data());
    std::stable_sort(anfang, anfang + std::ssize(strecke),
                     [&liste](std::uint32_t links, std::uint32_t rechts) { return liste[links].N < liste[rechts].N; });
}

// Puts ranges that overlap into one, from the one at `ab` on; behind it they ascend.
void FasseZusammen(std::vector<Nummernbereich>& bereiche, std::size_t ab) {
    std::ranges::sort(std::span(bereiche).subspan(ab), {}, &Nummernbereich::Von);
    std::size_t letzter = ab;
    for (std::size_t i = ab + 1; i < bereiche.size(); ++i) {
        if (bereiche[i].Von <= bereiche[letzter].Bis) {
            bereiche[letzter].Bis = std::max(bereiche[letzter].Bis, bereiche[i].Bis);
        } else {
            bereiche[++letzter] = bereiche[i];
        }
    }
    bereiche.resize(std::min(bereiche.size(), letzter + 1));
}

void MerkeBereiche(HEintrag& h, KapitelDaten& kapitel) {
    const std::size_t ab = kapitel.Bereiche.size();
    for (const UEintrag& u : kapitel.UVon(h)) {
        const Nummernbereich bereich = BereichVon(u);
        if (u.W != 0 && bereich.Von <= bereich.Bis) {
            kapitel.Bereiche.push_back(bereich);
        }
    }
    FasseZusammen(kapitel.Bereiche, ab);
    h.ErsterBereich = static_cast<std::uint32_t>(ab);
    h.BereichAnzahl = static_cast<std::uint32_t>(kapitel.Bereiche.size() - ab);
}

// --- End nodes -------------------------------------------------------------------------------------------------------

// Whether `nr` lies in the group that `letzter` heads, looked at from the digit of `Stufe` on. A division by a constant
// is a multiplication, and there is one for each sub-position.
template <std::int32_t Stufe = 10>
bool Verfeinert(std::int32_t nr, std::int32_t letzter) {
    if (letzter / Stufe == 0) {
        return false;
    }
    if (nr % Stufe != 0) {
        if (letzter % Stufe != 0) {
            return false;
        }
        if (letzter / Stufe == nr / Stufe) {
            return true;
        }
    }
    if constexpr (Stufe < 100'000'000) { // no position reaches it
        return Verfeinert<Stufe * 10>(nr, letzter);
    }
    return false;
}

void NimmEndknoten(std::int32_t nr, std::vector<std::int32_t>& endknoten) {
    if (!endknoten.empty() && Verfeinert(nr, endknoten.back())) {
        endknoten.back() = nr;
    } else {
        endknoten.push_back(nr);
    }
}

// Empty when there are more than have room.
void SammleEndknoten(KapitelDaten& kapitel) {
    const std::size_t hoechstens = kapitel.KapitelH.size() * 729 + 1; // 9 * 9 * 9 for each H
    for (const HEintrag& h : kapitel.KapitelH) {
        for (const UEintrag& u : kapitel.UVon(h)) {
            NimmEndknoten(h.N * 1000 + u.N, kapitel.Endknoten);
            if (kapitel.Endknoten.size() > hoechstens) {
                kapitel.Endknoten.clear();
                return;
            }
        }
    }
}

void MerkeStufen(KapitelDaten& kapitel) {
    std::int32_t hoechster = std::numeric_limits<std::int32_t>::min();
    for (std::size_t i = 0; i < kapitel.Endknoten.size(); ++i) {
        if (kapitel.Endknoten[i] > hoechster) {
            hoechster = kapitel.Endknoten[i];
            kapitel.EndknotenStufen.push_back(static_cast<std::int32_t>(i));
        }
    }
}

// --- Text branches ---------------------------------------------------------------------------------------------------

// A group of main positions, and how many of its end nodes have a last digit other than 0; -1 once a branch covers it.
struct Gruppe {
    std::int32_t Schluessel = 0;
    std::int32_t Zaehler = 0;
};
using Gruppen = std::vector<Gruppe>;

void Zaehle(Gruppen& gruppen, std::int32_t schluessel, std::int32_t anzahl) {
    if (gruppen.empty() || gruppen.back().Schluessel != schluessel) {
        gruppen.push_back({schluessel, 0});
    }
    gruppen.back().Zaehler += anzahl;
}

// Adds the end nodes of a main position, `anzahl` of which have a last digit other than 0, to its groups: of hundreds,
// of tens and its own.
void ZaehleH(std::array<Gruppen, 3>& gruppen, std::int32_t h, std::int32_t anzahl) {
    const std::int32_t m = h % 1000;
    if (m / 100 % 10 == 0) {
        return;
    }
    Zaehle(gruppen[0], h / 100 * 100, anzahl);
    if (m / 10 % 10 == 0) {
        return;
    }
    Zaehle(gruppen[1], h / 10 * 10, anzahl);
    if (m % 10 != 0) {
        Zaehle(gruppen[2], m, anzahl);
    }
}

std::array<Gruppen, 3> GruppenVon(const std::vector<std::int32_t>& endknoten) {
    std::array<Gruppen, 3> gruppen;
    for (std::size_t i = 0; i < endknoten.size();) {
        const std::int32_t h = endknoten[i] / 1000;
        std::int32_t anzahl = 0;
        for (; i < endknoten.size() && endknoten[i] / 1000 == h; ++i) {
            anzahl += endknoten[i] % 10 != 0 ? 1 : 0;
        }
        ZaehleH(gruppen, h, anzahl);
    }
    return gruppen;
}

// Marks the groups without such end nodes that lie in a branch found so far.
void MarkiereGedeckte(Gruppen& gruppen, const std::vector<TextAst>& aeste) {
    std::vector<Nummernbereich> gedeckt;
    gedeckt.reserve(aeste.size());
    for (const TextAst& ast : aeste) {
        gedeckt.push_back({ast.Von, ast.Bis});
    }
    FasseZusammen(gedeckt, 0);
    for (Gruppe& gruppe : gruppen) {
        if (gruppe.Zaehler == 0 && LiegtIn(gedeckt, gruppe.Schluessel)) {
            gruppe.Zaehler = -1;
        }
    }
}

// Neighbouring groups without such end nodes are one branch; it governs what follows it in the group one level above.
// `stufe` is the size of a group in main positions.
void SammleAeste(const Gruppen& gruppen, std::int32_t stufe, std::vector<TextAst>& aeste) {
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
        aeste.push_back(ast);
    }
}

std::vector<TextAst> AesteVon(const std::vector<std::int32_t>& endknoten) {
    std::vector<TextAst> aeste;
    std::int32_t stufe = 100;
    for (Gruppen& gruppen : GruppenVon(endknoten)) {
        MarkiereGedeckte(gruppen, aeste);
        SammleAeste(gruppen, stufe, aeste);
        stufe /= 10;
    }
    return aeste;
}

// Notes for each main position the first branch that holds it: from the last to the first, so that the first one stays.
void MerkeErsteAeste(KapitelDaten& kapitel) {
    kapitel.AstVonH.assign(2 * HoechstesH + 1, -1);
    for (std::size_t i = kapitel.TextAeste.size(); i-- > 0;) {
        const std::int32_t von = std::max(kapitel.TextAeste[i].Von, -HoechstesH);
        const std::int32_t bis = std::min(kapitel.TextAeste[i].Bis, HoechstesH);
        for (std::int32_t h = von; h <= bis; ++h) {
            kapitel.AstVonH[static_cast<std::size_t>(h + HoechstesH)] = static_cast<std::int32_t>(i);
        }
    }
}

} // namespace

bool LiegtIn(std::span<const Nummernbereich> bereiche, std::int32_t nummer) {
    const auto bereich = std::ranges::lower_bound(bereiche, nummer, {}, &Nummernbereich::Bis);
    return bereich != bereiche.end() && bereich->Von <= nummer;
}

void BildeFolgen(KapitelDaten& kapitel) {
    OrdneStrecke(kapitel.KapitelH, std::span<const HEintrag>(kapitel.KapitelH), kapitel.HFolge);
    for (HEintrag& h : kapitel.KapitelH) {
        OrdneStrecke(kapitel.KapitelUListe, kapitel.UVon(h), kapitel.UFolge);
        MerkeBereiche(h, kapitel);
    }
    for (const UEintrag& u : kapitel.KapitelUListe) {
        OrdneStrecke(kapitel.KapitelVListe, kapitel.VVon(u), kapitel.VFolge);
    }
}

void BildeEndknoten() {
    kapitelDaten.Endknoten.clear();
    kapitelDaten.EndknotenStufen.clear();
    SammleEndknoten(kapitelDaten);
    MerkeStufen(kapitelDaten);
}

void BildeTextAeste() {
    const bool hatAeste = kapitelDaten.KapitelN / 10 % 10 != 0;
    kapitelDaten.TextAeste = hatAeste ? AesteVon(kapitelDaten.Endknoten) : std::vector<TextAst>();
    MerkeErsteAeste(kapitelDaten);
}

} // namespace zepholt
