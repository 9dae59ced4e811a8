// A list of entries that bear a code, and mostly an order, in file order, with the searches that a scan from the first
// entry would answer.
//
// A code is found in constant time, by a hash that nobody can choose codes for, and the one found last at once. As long
// as the codes ascend, none stands twice, and some searches need no hash: for the code behind the one found last, and,
// while the list is made, for a new one behind all. As long as the orders ascend, none of them stands twice. A search
// for a prefix puts the codes in order when it is the first since the list grew, and costs the logarithm of the list's
// length. The results are those of the scan, first match first.
#pragma once

#include "state/Feldsicht.h"
#include "state/Platztabelle.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <vector>

namespace zepholt {

// The entries of a list by their order. Those with the same order make a ring in the order of the list; the table knows
// the last of each ring.
class Reihenfolgetabelle {
public:
    // Takes in the order of the entry behind those so far.
    void Anfuegen(std::int32_t reihenfolge) {
        const auto index = static_cast<std::int32_t>(m_reihenfolgen.size());
        m_reihenfolgen.push_back(reihenfolge);
        m_naechste.push_back(index);
        m_letzte.Vorsorgen(m_reihenfolgen.size());
        Eintragen(index);
    }

    std::int32_t Eintraege() const { return static_cast<std::int32_t>(m_reihenfolgen.size()); }

    void Vorausholen(std::int32_t reihenfolge) const {
        m_letzte.Vorausholen(Streuwert(static_cast<std::uint64_t>(reihenfolge)));
    }

    // The number of entries with this order among the first `bis`. The cost grows by the number counted.
    std::int32_t Anzahl(std::int32_t reihenfolge, std::int32_t bis) {
        const std::int32_t letzter = m_letzte.empty() ? Platztabelle::Frei : Letzter(reihenfolge);
        if (letzter == Platztabelle::Frei) {
            return 0;
        }
        std::int32_t anzahl = 0;
        for (std::int32_t i = Naechster(letzter); i < bis; i = Naechster(i)) {
            ++anzahl;
            if (i == letzter) {
                break;
            }
        }
        return anzahl;
    }

private:
    std::int32_t& Naechster(std::int32_t index) { return m_naechste[static_cast<std::size_t>(index)]; }

    std::int32_t& Letzter(std::int32_t reihenfolge) {
        return m_letzte.Platz(Streuwert(static_cast<std::uint64_t>(reihenfolge)), [this, reihenfolge](std::int32_t i) {
            return m_reihenfolgen[static_cast<std::size_t>(i)] == reihenfolge;
        });
    }

    void Eintragen(std::int32_t index) {
        std::int32_t& letzter = Letzter(m_reihenfolgen[static_cast<std::size_t>(index)]);
        Naechster(index) = letzter == Platztabelle::Frei ? index : Naechster(letzter);
        if (letzter != Platztabelle::Frei) {
            Naechster(letzter) = index;
        }
        letzter = index;
    }

    Platztabelle m_letzte;
    std::vector<std::int32_t> m_reihenfolgen;
    std::vector<std::int32_t> m_naechste; // the entry behind it with the same order; of the last one the first
};

template <class Eintrag>
class CodeListe {
public:
    const std::vector<Eintrag>& Eintraege() const {
        if (m_inhalt) {
            return m_inhalt->Eintraege;
        }
        static const std::vector<Eintrag> keine;
        return keine;
    }
    Eintrag& operator[](std::int32_t index) { return m_inhalt->Eintraege[static_cast<std::size_t>(index)]; }
    const Eintrag& operator[](std::int32_t index) const { return m_inhalt->Eintraege[static_cast<std::size_t>(index)]; }
    std::int32_t Anzahl() const { return static_cast<std::int32_t>(Eintraege().size()); }

    // The index (from 0) of the first entry whose Code equals `code`; -1 for none.
    std::int32_t Finde(Feldsicht code) const {
        if (Eintraege().size() <= KurzeListe) {
            return ErsterMit(code);
        }
        std::int32_t& zuletzt = m_inhalt->Zuletzt;
        if ((*this)[zuletzt].Code == code) {
            return zuletzt;
        }
        const std::int32_t index = Suche(code);
        zuletzt = index >= 0 ? index : zuletzt;
        return index;
    }

    // True when an entry's Code begins with `anfang`.
    bool HatAnfang(Feldsicht anfang) const {
        if (!m_inhalt) {
            return false;
        }
        std::vector<Feldsicht>& geordnet = m_inhalt->GeordneteCodes;
        if (geordnet.size() != Eintraege().size()) {
            geordnet.clear();
            std::ranges::transform(Eintraege(), std::back_inserter(geordnet), &Eintrag::Code);
            std::ranges::sort(geordnet);
        }
        const auto treffer = std::ranges::lower_bound(geordnet, anfang);
        return treffer != geordnet.end() && treffer->starts_with(anfang);
    }

    // The number of entries with this Reihenfolge among the first `bis` entries; 0 stands for no order and counts none.
    // The cost grows by the number counted.
    std::int32_t AnzahlMitReihenfolge(std::int32_t reihenfolge, std::int32_t bis) const {
        if (reihenfolge == 0 || !m_inhalt || reihenfolge > m_inhalt->HoechsteReihenfolge) {
            return 0;
        }
        Reihenfolgetabelle& tabelle = m_inhalt->Reihenfolgen;
        for (std::int32_t i = tabelle.Eintraege(); i < Anzahl(); ++i) {
            tabelle.Anfuegen((*this)[i].Reihenfolge);
        }
        return tabelle.Anzahl(reihenfolge, bis);
    }

    // True when codes are found by the hash, so that each search of a large list waits for memory.
    bool IstVerstreut() const { return m_inhalt && !m_inhalt->Plaetze.empty(); }

    // Asks the processor for what the searches for this code and this order will read.
    void Vorausholen(Feldsicht code, std::int32_t reihenfolge) const {
        m_inhalt->Plaetze.Vorausholen(Streuwert(code));
        m_inhalt->Reihenfolgen.Vorausholen(reihenfolge);
    }

    void Anfuegen(Eintrag eintrag) {
        if (!m_inhalt) {
            m_inhalt = std::make_unique<Inhalt>();
        }
        Inhalt& inhalt = *m_inhalt;
        if constexpr (requires { eintrag.Reihenfolge; }) {
            inhalt.HoechsteReihenfolge = std::max(inhalt.HoechsteReihenfolge, eintrag.Reihenfolge);
        }
        inhalt.Aufsteigend =
            inhalt.Aufsteigend && (inhalt.Eintraege.empty() || inhalt.Eintraege.back().Code < eintrag.Code);
        inhalt.Eintraege.push_back(std::move(eintrag));
    }

private:
    static constexpr std::size_t KurzeListe = 8; // entries that are looked through one by one

    struct Inhalt {
        std::vector<Eintrag> Eintraege;
        Platztabelle Plaetze; // by code, of the first Eingetragen entries
        std::int32_t Eingetragen = 0;
        std::int32_t Zuletzt = 0;              // the entry found last
        bool Aufsteigend = true;               // each code above the one before
        std::vector<Feldsicht> GeordneteCodes; // for HatAnfang
        Reihenfolgetabelle Reihenfolgen;       // for AnzahlMitReihenfolge
        std::int32_t HoechsteReihenfolge = 0;
    };

    std::int32_t ErsterMit(Feldsicht code) const {
        const auto treffer = std::ranges::find(Eintraege(), code, &Eintrag::Code);
        return treffer == Eintraege().end() ? -1 : static_cast<std::int32_t>(treffer - Eintraege().begin());
    }

    std::int32_t Suche(Feldsicht code) const {
        const std::int32_t naechster = m_inhalt->Zuletzt + 1;
        if (m_inhalt->Aufsteigend && naechster < Anzahl() && (*this)[naechster].Code == code) {
            return naechster;
        }
        if (m_inhalt->Aufsteigend && m_inhalt->Plaetze.empty() && Eintraege().back().Code < code) {
            return -1;
        }
        Eintragen();
        return Platz(code);
    }

    std::int32_t& Platz(Feldsicht code) const {
        return m_inhalt->Plaetze.Platz(Streuwert(code),
                                       [this, code](std::int32_t i) { return (*this)[i].Code == code; });
    }

    // Gives the entries since the last search their places.
    void Eintragen() const {
        std::int32_t& i = m_inhalt->Eingetragen;
        m_inhalt->Plaetze.Vorsorgen(Eintraege().size());
        for (; i < Anzahl(); ++i) {
            std::int32_t& platz = Platz((*this)[i].Code);
            if (platz == Platztabelle::Frei) { // a code that stands already keeps its first entry
                platz = i;
            }
        }
    }

    std::unique_ptr<Inhalt> m_inhalt; // none before the first entry: most lists of an entry stay empty
};

} // namespace zepholt
