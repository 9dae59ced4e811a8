// A list of entries that bear a code, and mostly an order, in file order, with the searches that a scan from the first
// entry would answer.
//
// A code is found in constant time, by a hash that nobody can choose codes for, and the one asked for last at once. As
// long as the orders ascend, none stands twice. A search for a prefix puts the codes in order when it is the first
// since the list grew, and costs the logarithm of the list's length. The results are those of the scan, first match
// first.
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
        if (!m_letzte.IstZuKlein(m_reihenfolgen.size())) {
            return Eintragen(index);
        }
        m_letzte.Leeren(m_reihenfolgen.size());
        for (std::int32_t i = 0; i <= index; ++i) {
            Eintragen(i);
        }
    }

    std::int32_t Eintraege() const { return static_cast<std::int32_t>(m_reihenfolgen.size()); }

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
    const std::vector<Eintrag>& Eintraege() const { return m_eintraege; }
    Eintrag& operator[](std::int32_t index) { return m_eintraege[static_cast<std::size_t>(index)]; }
    const Eintrag& operator[](std::int32_t index) const { return m_eintraege[static_cast<std::size_t>(index)]; }
    std::int32_t Anzahl() const { return static_cast<std::int32_t>(m_eintraege.size()); }

    // The index (from 0) of the first entry whose Code equals `code`; -1 for none.
    std::int32_t Finde(Feldsicht code) const {
        if (m_plaetze.empty()) {
            return ErsterMit(code);
        }
        if (m_zuletzt < 0 || (*this)[m_zuletzt].Code != code) {
            m_zuletzt = Platz(code);
        }
        return m_zuletzt;
    }

    // True when an entry's Code begins with `anfang`.
    bool HatAnfang(Feldsicht anfang) const {
        std::vector<Feldsicht>& geordnet = Helfer().GeordneteCodes;
        if (geordnet.size() != m_eintraege.size()) {
            geordnet.clear();
            std::ranges::transform(m_eintraege, std::back_inserter(geordnet), &Eintrag::Code);
            std::ranges::sort(geordnet);
        }
        const auto treffer = std::ranges::lower_bound(geordnet, anfang);
        return treffer != geordnet.end() && treffer->starts_with(anfang);
    }

    // The number of entries with this Reihenfolge among the first `bis` entries; 0 stands for no order and counts none.
    // The cost grows by the number counted.
    std::int32_t AnzahlMitReihenfolge(std::int32_t reihenfolge, std::int32_t bis) const {
        if (reihenfolge == 0 || reihenfolge > m_hoechste) {
            return 0;
        }
        Reihenfolgetabelle& tabelle = Helfer().Reihenfolgen;
        for (std::int32_t i = tabelle.Eintraege(); i < Anzahl(); ++i) {
            tabelle.Anfuegen((*this)[i].Reihenfolge);
        }
        return tabelle.Anzahl(reihenfolge, bis);
    }

    void Anfuegen(Eintrag eintrag) {
        if constexpr (requires { eintrag.Reihenfolge; }) {
            m_hoechste = std::max(m_hoechste, eintrag.Reihenfolge);
        }
        m_eintraege.push_back(std::move(eintrag));
        if (m_eintraege.size() > KurzeListe) {
            Eintragen();
        }
    }

private:
    static constexpr std::size_t KurzeListe = 8; // entries that are looked through one by one

    // What most lists are never asked for.
    struct Hilfen {
        std::vector<Feldsicht> GeordneteCodes; // for HatAnfang
        Reihenfolgetabelle Reihenfolgen;       // for AnzahlMitReihenfolge
    };
    Hilfen& Helfer() const {
        if (!m_hilfen) {
            m_hilfen = std::make_unique<Hilfen>();
        }
        return *m_hilfen;
    }

    std::int32_t ErsterMit(Feldsicht code) const {
        const auto treffer = std::ranges::find(m_eintraege, code, &Eintrag::Code);
        return treffer == m_eintraege.end() ? -1 : static_cast<std::int32_t>(treffer - m_eintraege.begin());
    }

    std::int32_t& Platz(Feldsicht code) const {
        return m_plaetze.Platz(Streuwert(code), [this, code](std::int32_t i) { return (*this)[i].Code == code; });
    }

    // Gives the last entry its place; all of them, when the places have become too few.
    void Eintragen() {
        std::int32_t erster = Anzahl() - 1;
        if (m_plaetze.IstZuKlein(m_eintraege.size())) {
            m_plaetze.Leeren(m_eintraege.size());
            erster = 0;
        }
        for (std::int32_t i = erster; i < Anzahl(); ++i) {
            std::int32_t& platz = Platz((*this)[i].Code);
            platz = platz == Platztabelle::Frei ? i : platz; // a code that stands already keeps its first entry
        }
    }

    std::vector<Eintrag> m_eintraege;
    mutable Platztabelle m_plaetze;      // by code
    mutable std::int32_t m_zuletzt = -1; // the entry found last
    std::int32_t m_hoechste = 0;         // the highest order
    mutable std::unique_ptr<Hilfen> m_hilfen;
};

} // namespace zepholt
