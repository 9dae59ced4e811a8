// Sorting two lists together, entries of equal keys in the order of one defined procedure.
//
// The procedure is a recursive quicksort whose result for equal keys is part of the program's output, so every exchange
// it makes is made here too, in an order that comes to the same: ranges that are still to be sorted never overlap.
//
// Taken literally it is quadratic on inputs that occur, such as two ascending lists one behind the other. So a range
// that lies too deep for a balanced course gets an index over its blocks, and its scans jump from one stopping place to
// the next. The number of exchanges is at most n log n on any input (each puts one element into the smaller part), and
// a jump costs at most log n: no input costs more than n log^2 n. Ordinary inputs never see the index.
#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <limits>
#include <numeric>
#include <utility>

namespace zepholt {

namespace {

using Stelle = std::ptrdiff_t; // an index; a scan downwards may end at -1

struct Element {
    std::uint32_t Rang;
    std::uint32_t Herkunft; // its index before the sorting
};

// The next element from `i` on that is not less than the pivot, and the next from `j` down that is not greater, read
// element by element.
struct EinfacherLauf {
    static constexpr bool ElementFuerElement = true;

    std::vector<Element>& Elemente;

    Stelle Aufwaerts(Stelle i, std::uint32_t pivot) const {
        while (Elemente[static_cast<std::size_t>(i)].Rang < pivot) {
            ++i;
        }
        return i;
    }
    Stelle Abwaerts(Stelle j, std::uint32_t pivot) const {
        while (pivot < Elemente[static_cast<std::size_t>(j)].Rang) {
            --j;
        }
        return j;
    }
    void Tauschen(Stelle i, Stelle j) {
        std::swap(Elemente[static_cast<std::size_t>(i)], Elemente[static_cast<std::size_t>(j)]);
    }
    void DurchgangFertig() {}
};

// The same answers from a tree over the least and the greatest rank of each block of a range. Every scan has a stopping
// place within the range, so no bound is tested.
class SpringenderLauf {
public:
    static constexpr bool ElementFuerElement = false;

    SpringenderLauf(std::vector<Element>& elemente, Stelle links, Stelle rechts)
        : m_einfach{elemente}, m_links(links), m_rechts(rechts) {
        const auto bloecke = static_cast<std::size_t>((rechts - links) / BlockGroesse) + 1;
        m_blaetter = std::bit_ceil(bloecke);
        m_knoten.resize(2 * m_blaetter); // behind the last block: a node that no scan stops at
        for (std::size_t block = 0; block < bloecke; ++block) {
            m_knoten[m_blaetter + block] = BlockGrenzen(block);
        }
        for (std::size_t knoten = m_blaetter - 1; knoten > 0; --knoten) {
            m_knoten[knoten] = Vereint(knoten);
        }
    }

    Stelle Aufwaerts(Stelle i, std::uint32_t pivot) {
        const std::size_t block = Block(i);
        for (const Stelle ende = BlockEnde(block); i <= ende; ++i) {
            if (Rang(i) >= pivot) {
                return i;
            }
        }
        Nachtragen();
        const auto haelt = [&](const Grenzen& grenzen) { return grenzen.Groesster >= pivot; };
        return m_einfach.Aufwaerts(BlockAnfang(BlockDanach(block, haelt)), pivot);
    }

    Stelle Abwaerts(Stelle j, std::uint32_t pivot) {
        const std::size_t block = Block(j);
        for (const Stelle anfang = BlockAnfang(block); j >= anfang; --j) {
            if (Rang(j) <= pivot) {
                return j;
            }
        }
        Nachtragen();
        const auto haelt = [&](const Grenzen& grenzen) { return grenzen.Kleinster <= pivot; };
        return m_einfach.Abwaerts(BlockEnde(BlockDavor(block, haelt)), pivot);
    }

    // The blocks of both places are marked only; many exchanges of a pass fall into the same two.
    void Tauschen(Stelle i, Stelle j) {
        m_einfach.Tauschen(i, j);
        Merken(m_offenLinks, Block(i));
        Merken(m_offenRechts, Block(j));
    }

    void DurchgangFertig() { Nachtragen(); }

private:
    static constexpr Stelle BlockGroesse = 32;
    static constexpr std::size_t Keiner = static_cast<std::size_t>(-1);

    struct Grenzen {
        std::uint32_t Kleinster = 0xFFFFFFFF;
        std::uint32_t Groesster = 0;
        bool operator==(const Grenzen&) const = default;
    };

    std::uint32_t Rang(Stelle i) const { return m_einfach.Elemente[static_cast<std::size_t>(i)].Rang; }
    std::size_t Block(Stelle i) const { return static_cast<std::size_t>((i - m_links) / BlockGroesse); }
    Stelle BlockAnfang(std::size_t block) const { return m_links + static_cast<Stelle>(block) * BlockGroesse; }
    Stelle BlockEnde(std::size_t block) const { return std::min(BlockAnfang(block) + BlockGroesse - 1, m_rechts); }

    Grenzen BlockGrenzen(std::size_t block) const {
        Grenzen grenzen;
        for (Stelle i = BlockAnfang(block); i <= BlockEnde(block); ++i) {
            grenzen.Kleinster = std::min(grenzen.Kleinster, Rang(i));
            grenzen.Groesster = std::max(grenzen.Groesster, Rang(i));
        }
        return grenzen;
    }

    Grenzen Vereint(std::size_t knoten) const {
        const Grenzen& a = m_knoten[2 * knoten];
        const Grenzen& b = m_knoten[2 * knoten + 1];
        return {std::min(a.Kleinster, b.Kleinster), std::max(a.Groesster, b.Groesster)};
    }

    void Merken(std::size_t& offen, std::size_t block) {
        if (offen != block && offen != Keiner) {
            Auffrischen(offen);
        }
        offen = block;
    }

    // Before the tree is read: either scan may stop at an element that was just exchanged.
    void Nachtragen() {
        Merken(m_offenLinks, Keiner);
        Merken(m_offenRechts, Keiner);
    }

    void Auffrischen(std::size_t block) {
        std::size_t knoten = m_blaetter + block;
        Grenzen neu = BlockGrenzen(block);
        while (m_knoten[knoten] != neu) {
            m_knoten[knoten] = neu;
            knoten /= 2;
            if (knoten == 0) {
                return;
            }
            neu = Vereint(knoten);
        }
    }

    // The nearest block behind `block`, or in front of it, at which a scan stops: up the tree to the first subtree on
    // that side that holds one, down again to its nearest.
    template <class Haelt>
    std::size_t BlockDanach(std::size_t block, Haelt haelt) const {
        std::size_t knoten = m_blaetter + block;
        while (knoten % 2 == 1 || !haelt(m_knoten[knoten + 1])) {
            knoten /= 2;
        }
        for (++knoten; knoten < m_blaetter;) {
            knoten = haelt(m_knoten[2 * knoten]) ? 2 * knoten : 2 * knoten + 1;
        }
        return knoten - m_blaetter;
    }
    template <class Haelt>
    std::size_t BlockDavor(std::size_t block, Haelt haelt) const {
        std::size_t knoten = m_blaetter + block;
        while (knoten % 2 == 0 || !haelt(m_knoten[knoten - 1])) {
            knoten /= 2;
        }
        for (--knoten; knoten < m_blaetter;) {
            knoten = haelt(m_knoten[2 * knoten + 1]) ? 2 * knoten + 1 : 2 * knoten;
        }
        return knoten - m_blaetter;
    }

    EinfacherLauf m_einfach;
    Stelle m_links;
    Stelle m_rechts;
    std::size_t m_blaetter = 0;
    std::vector<Grenzen> m_knoten; // 1 is the root, the children of k are 2k and 2k + 1
    std::size_t m_offenLinks = Keiner;
    std::size_t m_offenRechts = Keiner;
};

struct Spanne {
    Stelle Links;
    Stelle Rechts;
    int Tiefe; // how many more levels of plain passes it may have

    Stelle Laenge() const { return Rechts - Links + 1; }
};

// The whole procedure on one list.
class Sortierlauf {
public:
    Sortierlauf(std::vector<Element>& elemente, void (*zwischendurch)())
        : m_elemente(elemente), m_zwischendurch(zwischendurch) {}

    void Sortieren() {
        EinfacherLauf einfach{m_elemente};
        SpanneSortieren({0, std::ssize(m_elemente) - 1, 2 * static_cast<int>(std::bit_width(m_elemente.size()))},
                        einfach);
        for (const Spanne& spanne : std::exchange(m_zuTief, {})) {
            SpringenderLauf springend(m_elemente, spanne.Links, spanne.Rechts);
            SpanneSortieren({spanne.Links, spanne.Rechts, BeliebigTief}, springend);
        }
    }

private:
    static constexpr int BeliebigTief = std::numeric_limits<int>::max();
    static constexpr Stelle Klein = 128;   // below this the plain passes cost less than an index, however they fall
    static constexpr Stelle Lang = 10'000; // from here on a pass takes some time
    static constexpr Stelle Kurz = 8;      // up to here a pass costs no more than a look whether it is needed

    // Sorts a range with passes of the given kind; parts that come to lie too deep are noted down unsorted.
    template <class Lauf>
    void SpanneSortieren(Spanne ganze, Lauf& lauf) {
        std::vector<Spanne> offen{ganze};
        while (!offen.empty()) {
            Spanne spanne = offen.back();
            offen.pop_back();
            while (!Erledigt<Lauf>(spanne)) {
                const auto [kleine, grosse] = Durchgang(spanne, lauf);
                if (spanne.Laenge() > Lang) {
                    m_zwischendurch();
                }
                if (kleine.Laenge() > 1) { // first: the list of open ranges stays as short as log n
                    offen.push_back(grosse);
                }
                spanne = kleine.Laenge() > 1 ? kleine : grosse;
            }
        }
    }

    // True when a range asks for no more passes of this kind. One that lies too deep is noted down.
    template <class Lauf>
    bool Erledigt(const Spanne& spanne) {
        if (spanne.Laenge() <= 1) {
            return true;
        }
        if (spanne.Tiefe <= 0 && spanne.Laenge() > Klein) {
            m_zuTief.push_back(spanne);
            return true;
        }
        return Lauf::ElementFuerElement && spanne.Laenge() > Kurz && IstAufsteigend(spanne);
    }

    // True when each rank of a range is above the one before: passes would exchange nothing. Findings come in a few
    // such stretches.
    bool IstAufsteigend(const Spanne& spanne) const {
        const auto ende = m_elemente.begin() + spanne.Rechts + 1;
        return std::adjacent_find(m_elemente.begin() + spanne.Links, ende,
                                  [](const Element& a, const Element& b) { return a.Rang >= b.Rang; }) == ende;
    }

    // One pass over a range. Returns the two parts that are still to be sorted, the smaller one first: afterwards no
    // element of the left one is greater than the pivot and none of the right one is less.
    template <class Lauf>
    std::pair<Spanne, Spanne> Durchgang(const Spanne& spanne, Lauf& lauf) const {
        Stelle i = spanne.Links;
        Stelle j = spanne.Rechts;
        const std::uint32_t pivot = m_elemente[static_cast<std::size_t>((i + j) / 2)].Rang;
        do {
            i = lauf.Aufwaerts(i, pivot);
            j = lauf.Abwaerts(j, pivot);
            if (i > j) {
                break;
            }
            if (i != j) { // the two places: elements of equal rank are exchanged too
                lauf.Tauschen(i, j);
            }
            ++i;
            --j;
        } while (i <= j);
        lauf.DurchgangFertig();
        const Spanne links{spanne.Links, j, spanne.Tiefe - 1};
        const Spanne rechts{i, spanne.Rechts, spanne.Tiefe - 1};
        return links.Laenge() > rechts.Laenge() ? std::pair(rechts, links) : std::pair(links, rechts);
    }

    std::vector<Element>& m_elemente;
    void (*m_zwischendurch)();
    std::vector<Spanne> m_zuTief;
};

// The rank of each text: how many different texts are less than it.
std::vector<std::uint32_t> Raenge(const std::vector<Text>& liste) {
    std::vector<std::uint32_t> folge(liste.size());
    std::iota(folge.begin(), folge.end(), 0U);
    std::sort(folge.begin(), folge.end(), [&](std::uint32_t a, std::uint32_t b) { return liste[a] < liste[b]; });

    std::vector<std::uint32_t> raenge(liste.size());
    std::uint32_t rang = 0;
    for (std::size_t k = 1; k < folge.size(); ++k) {
        rang += liste[folge[k]] != liste[folge[k - 1]] ? 1U : 0U;
        raenge[folge[k]] = rang;
    }
    return raenge;
}

void Umstellen(std::vector<Text>& liste, const std::vector<std::uint32_t>& folge) {
    std::vector<Text> neu;
    neu.reserve(liste.size());
    for (const std::uint32_t herkunft : folge) {
        neu.push_back(std::move(liste[herkunft]));
    }
    liste = std::move(neu);
}

} // namespace

std::vector<std::uint32_t> SortierFolge(std::vector<std::uint32_t> raenge, void (*zwischendurch)()) {
    std::vector<Element> elemente(raenge.size());
    for (std::size_t k = 0; k < raenge.size(); ++k) {
        elemente[k] = {raenge[k], static_cast<std::uint32_t>(k)};
    }
    Sortierlauf(elemente, zwischendurch).Sortieren();
    for (std::size_t k = 0; k < raenge.size(); ++k) {
        raenge[k] = elemente[k].Herkunft;
    }
    return raenge;
}

void Sortieren(std::vector<Text>& liste, std::vector<Text>& begleitliste) {
    if (liste.size() != begleitliste.size()) {
        return;
    }
    const std::vector<std::uint32_t> folge = SortierFolge(Raenge(liste));
    Umstellen(liste, folge);
    Umstellen(begleitliste, folge);
}

} // namespace zepholt
