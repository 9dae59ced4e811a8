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

// Puts ranges that overlap into one; behind it they ascend.
void FasseZusammen(std::vector<Nummernbereich>& bereiche) {
    std::ranges::sort(bereiche, {}, &Nummernbereich::Von);
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

void MerkeBereiche(HEintrag& h, KapitelDaten& kapitel) {
    std::vector<Nummernbereich> bereiche;
    for (const UEintrag& u : kapitel.UVon(h)) {
        const Nummernbereich bereich = BereichVon(u);
        if (u.W != 0 && bereich.Von <= bereich.Bis) {
            bereiche.push_back(bereich);
        }
    }
    FasseZusammen(bereiche);
    h.ErsterBereich = static_cast<std::uint32_t>(kapitel.Bereiche.size());
    h.BereichAnzahl = static_cast<std::uint32_t>(bereiche.size());
    kapitel.Bereiche.insert(kapitel.Bereiche.end(), bereiche.begin(), bereiche.end());
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

std::vector<std::int32_t> Stufen(const std::vector<std::int32_t>& endknoten) {
    std::vector<std::int32_t> stufen;
    std::int32_t hoechster = std::numeric_limits<std::int32_t>::min();
    for (std::size_t i = 0; i < endknoten.size(); ++i) {
        if (endknoten[i] > hoechster) {
            hoechster = endknoten[i];
            stufen.push_back(static_cast<std::int32_t>(i));
        }
    }
    return stufen;
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
std::array<Gruppen, 3> GruppenVon(const std::vector<std::int32_t>& endknoten) {
    std::array<Gruppen, 3> gruppen;
    for (const std::int32_t p : endknoten) {
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
void MarkiereGedeckte(Gruppen& gruppen, const std::vector<TextAst>& aeste) {
    constexpr std::int32_t grenze = 40000;                     // beyond any main position, negative ones too
    std::vector<std::int32_t> offene(std::size_t{2} * grenze); // at a number: more branches open than before it
    for (const TextAst& ast : aeste) {
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

// For each main position the first branch that holds it: from the last to the first, so that the first one stays.
std::vector<std::int32_t> ErsteAeste(const std::vector<TextAst>& aeste) {
    std::vector<std::int32_t> erste(2 * HoechstesH + 1, -1);
    for (std::size_t i = aeste.size(); i-- > 0;) {
        const std::int32_t von = std::max(aeste[i].Von, -HoechstesH);
        const std::int32_t bis = std::min(aeste[i].Bis, HoechstesH);
        for (std::int32_t h = von; h <= bis; ++h) {
            erste[static_cast<std::size_t>(h + HoechstesH)] = static_cast<std::int32_t>(i);
        }
    }
    return erste;
}

} // namespace

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
    SammleEndknoten(kapitelDaten);
    kapitelDaten.EndknotenStufen = Stufen(kapitelDaten.Endknoten);
}

void BildeTextAeste() {
    const bool hatAeste = kapitelDaten.KapitelN / 10 % 10 != 0;
    kapitelDaten.TextAeste = hatAeste ? AesteVon(kapitelDaten.Endknoten) : std::vector<TextAst>();
    kapitelDaten.AstVonH = ErsteAeste(kapitelDaten.TextAeste);
}

} // namespace zepholt
