// A chapter file: taken apart, expanded, parsed by the fast and by the plain way, its derived lists and its searches
// against walks from the first entry.
#include "Ziel.h"

#include "catalogue/Kapiteldatei.h"
#include "catalogue/VLTKapitel.h"
#include "run/NeuerLauf.h"

#include <algorithm>
#include <optional>

namespace zepholt::fuzz {

namespace {

constexpr std::size_t GroessterText = 1U << 20U; // of an expanded chapter; beyond, a run only gets slow
constexpr std::size_t GroessteSuche = 64;        // entries of a list that are looked for one by one

bool Gleich(const KapitelDaten& a, const KapitelDaten& b) {
    const auto h = [](const HEintrag& x, const HEintrag& y) {
        return x.N == y.N && x.ErstesU == y.ErstesU && x.UAnzahl == y.UAnzahl && x.ErsterBereich == y.ErsterBereich &&
               x.BereichAnzahl == y.BereichAnzahl;
    };
    const auto u = [](const UEintrag& x, const UEintrag& y) {
        return x.W == y.W && x.N == y.N && x.Y == y.Y && x.ErstesV == y.ErstesV && x.VAnzahl == y.VAnzahl;
    };
    const auto v = [](const VEintrag& x, const VEintrag& y) {
        return x.N == y.N && x.E == y.E && x.Gruppe == y.Gruppe;
    };
    return a.KapitelN == b.KapitelN && a.KapitelS == b.KapitelS && a.KapitelV == b.KapitelV &&
           std::ranges::equal(a.KapitelH, b.KapitelH, h) && std::ranges::equal(a.KapitelUListe, b.KapitelUListe, u) &&
           std::ranges::equal(a.KapitelVListe, b.KapitelVListe, v);
}

// The index of the first entry with that number; -1 for none.
template <class Liste>
std::int32_t Erster(const Liste& liste, std::int32_t nummer) {
    const auto treffer = std::ranges::find_if(liste, [nummer](const auto& eintrag) { return eintrag.N == nummer; });
    return treffer == liste.end() ? -1 : static_cast<std::int32_t>(treffer - liste.begin());
}

// Whether a sub-position number lies in a repeat range of any main position of that number's first entry.
bool LiegtInBereich(const HEintrag& h, std::int32_t nummer) {
    return std::ranges::any_of(kapitelDaten.UVon(h), [nummer](const UEintrag& u) {
        const Nummernbereich bereich = BereichVon(u);
        return u.W != 0 && nummer >= bereich.Von && nummer <= bereich.Bis;
    });
}

void PruefeUnterpositionen(const HEintrag& h) {
    const auto liste = kapitelDaten.UVon(h);
    for (const UEintrag& u : liste.first(std::min(liste.size(), GroessteSuche))) {
        for (const std::int32_t nummer : {u.N - 1, std::int32_t{u.N}, u.N + 1}) {
            Verlange(FindeU(nummer) == (Erster(liste, nummer) >= 0), "a sub-position is found");
            Verlange(kapitelDaten.AktuellesU == Erster(liste, nummer), "the first of a number");
            if (nummer == u.N) {
                const auto variablen = kapitelDaten.VVon(liste[static_cast<std::size_t>(kapitelDaten.AktuellesU)]);
                for (const VEintrag& v : variablen.first(std::min(variablen.size(), GroessteSuche))) {
                    Verlange(FindeV(v.N) && kapitelDaten.AktuellesV == Erster(variablen, v.N), "the first variable");
                }
            }
        }
    }
}

void PruefeSuchen() {
    const auto& liste = kapitelDaten.KapitelH;
    for (std::size_t i = 0; i < std::min(liste.size(), GroessteSuche); ++i) {
        for (const std::int32_t nummer : {liste[i].N - 1, std::int32_t{liste[i].N}, liste[i].N + 1}) {
            Verlange(FindeH(nummer) == (Erster(liste, nummer) >= 0), "a main position is found");
            Verlange(kapitelDaten.AktuellesH == Erster(liste, nummer), "the first of a number");
        }
        if (FindeH(liste[i].N)) {
            PruefeUnterpositionen(liste[static_cast<std::size_t>(kapitelDaten.AktuellesH)]);
        }
    }
}

// The end of the group that a position stands for.
std::int64_t Gruppenende(std::int32_t position) {
    std::int64_t ende = position;
    std::int64_t stufe = 10;
    do {
        ende += stufe * 9 / 10;
        stufe *= 10;
    } while (position % stufe == 0);
    return ende;
}

// By the first end node in the list that is greater.
bool IstEndknotenSchlicht(std::int32_t position) {
    const auto& knoten = kapitelDaten.Endknoten;
    const auto groesserer = std::ranges::find_if(knoten, [position](std::int32_t k) { return k > position; });
    return position < 1 || position % 10 != 0 || groesserer == knoten.end() || *groesserer > Gruppenende(position);
}

void PruefeListen() {
    BildeEndknoten();
    BildeTextAeste();
    const auto& knoten = kapitelDaten.Endknoten;
    for (std::size_t i = 0; i < std::min(knoten.size(), GroessteSuche); ++i) {
        for (const std::int32_t position : {knoten[i] - 1, knoten[i], knoten[i] + 1}) {
            Verlange(IstEndknoten(position) == IstEndknotenSchlicht(position), "an end node");
            std::int32_t von = 0;
            std::int32_t bis = 0;
            InTextAst(position, von, bis);
            PositionImKatalog(position, 0);
        }
    }
    for (const HEintrag& h : kapitelDaten.KapitelH) {
        for (const std::int32_t nummer : {0, 99, 100, 150, 199, 200, 999}) {
            Verlange(LiegtIn(std::span(kapitelDaten.Bereiche).subspan(h.ErsterBereich, h.BereichAnzahl), nummer) ==
                         LiegtInBereich(h, nummer),
                     "a repeat range");
        }
    }
}

void Pruefe(const Kapitelbytes& datei) {
    if (datei.Laenge > GroessterText) {
        return;
    }
    const Text text = EntpackeKapitel(datei);
    const bool schlicht = KapitelEinlesen(text);
    const KapitelDaten erwartet = std::move(kapitelDaten);
    kapitelDaten = {};
    Verlange(KapitelEinlesen(datei) == schlicht, "both ways tell a chapter");
    Verlange(Gleich(kapitelDaten, erwartet), "both ways read the same");
    if (schlicht) {
        PruefeListen();
        PruefeSuchen();
    }
}

} // namespace

} // namespace zepholt::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t anzahl) {
    using namespace zepholt;
    NeuerLauf();
    try {
        if (const auto datei = ZerlegeKapitel({bytes, anzahl})) {
            fuzz::Pruefe(*datei);
        }
    } catch (const LaufzeitFehler&) {
        // a damaged file
    }
    return 0;
}
