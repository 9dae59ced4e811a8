// The lines of the exchange file, as places in its one buffer: four bytes for each line, eight once they are reordered;
// no line is moved or copied.
//
// In the buffer each line has two columns of line end behind it. A line that got shorter when it was read (characters
// of several bytes, a cut) is filled up with carriage returns, which no line holds otherwise: so the places stay as
// they were in the file.
#pragma once

#include "state/Feldsicht.h"

#include <algorithm>
#include <vector>

namespace zepholt {

class Zeilenliste {
public:
    static constexpr std::size_t Zeilenende = 2; // columns

    Zeilenliste() = default;

    // Lines of the buffer `anfang`, the first from column `erste` on; Anfuegen tells where each ends.
    explicit Zeilenliste(const unsigned char* anfang, std::size_t erste = 0) : m_anfang(anfang, 0) { Merke(erste); }
    explicit Zeilenliste(const char16_t* anfang, std::size_t erste = 0) : m_anfang(anfang, 0) { Merke(erste); }

    // The line behind the last one: the next begins at `naechste`, counted in columns from the buffer's beginning.
    void Anfuegen(std::size_t naechste) { Merke(naechste); }

    // The first line begins at column `erste` and no more where it began.
    void Beginne(std::size_t erste) { m_stellen.front() = static_cast<std::uint32_t>(erste); }

    // From now on place k holds the line that stood at folge[k].
    void Umordnen(std::vector<std::uint32_t> folge) { m_folge = std::move(folge); }

    // The same lines in another buffer, at the same places.
    void Umziehen(const char16_t* anfang) { m_anfang = Feldsicht(anfang, 0); }

    std::size_t size() const { return m_stellen.empty() ? 0 : m_stellen.size() - 1; }

    Feldsicht operator[](std::size_t k) const {
        const std::size_t i = m_folge.empty() ? k : m_folge[k];
        const std::size_t von = Stelle(i);
        const Feldsicht zeile = m_anfang.Ausschnitt(von, Stelle(i + 1) - Zeilenende - von);
        return zeile.substr(0, zeile.MitSpalten([&zeile](const auto* spalten) {
            std::size_t laenge = zeile.size();
            while (laenge > 0 && spalten[laenge - 1] == '\r') {
                --laenge;
            }
            return laenge;
        }));
    }

    // Asks the processor for what stands some lines behind line k, for a pass through all lines: the file is larger
    // than its cache.
    void Vorausholen(std::size_t k) const {
        constexpr std::size_t Voraus = 2048; // columns
        constexpr std::size_t Cachezeile = 64;
        const std::size_t ab = Stelle(k) + Voraus;
        __builtin_prefetch(m_anfang.Ausschnitt(ab, 0).Ort());
        __builtin_prefetch(m_anfang.Ausschnitt(ab + Cachezeile, 0).Ort());
    }

    Feldsicht front() const { return (*this)[0]; }
    Feldsicht back() const { return (*this)[size() - 1]; }

    // The columns from the beginning of line k up to its line end, what it was filled up with included.
    std::size_t Von(std::size_t k) const { return Stelle(k); }
    std::size_t Bis(std::size_t k) const { return Stelle(k + 1) - Zeilenende; }

private:
    static constexpr int Untere = 32; // bits that m_stellen keeps

    void Merke(std::size_t stelle) {
        for (; m_ueberlaeufe.size() < std::uint64_t{stelle} >> Untere; m_ueberlaeufe.push_back(m_stellen.size())) {
        }
        m_stellen.push_back(static_cast<std::uint32_t>(stelle));
    }

    std::size_t Stelle(std::size_t i) const {
        std::size_t stelle = m_stellen[i];
        if (!m_ueberlaeufe.empty()) {
            const auto hoehere = std::ranges::upper_bound(m_ueberlaeufe, i) - m_ueberlaeufe.begin();
            stelle += static_cast<std::size_t>(static_cast<std::uint64_t>(hoehere) << Untere);
        }
        return stelle;
    }

    Feldsicht m_anfang;                     // of no length: where the buffer is, and how wide its columns are
    std::vector<std::uint32_t> m_stellen;   // where each line begins, and where one more would
    std::vector<std::size_t> m_ueberlaeufe; // the lines from which on a place is higher by 2^32, for each time
    std::vector<std::uint32_t> m_folge;     // empty while the lines stand as in the file
};

} // namespace zepholt
