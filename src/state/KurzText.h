// A view of some columns in 8 bytes, half of what Feldsicht takes.
//
// The tree keeps a view for each of its entries; with views of full size the tree of a large file would weigh as much
// as the file. A view is at most 32767 columns long, and what it views has to outlive it, as with Feldsicht. Place,
// length and width share one number: on all platforms of the program an address has at most 48 bits.
#pragma once

#include "state/Feldsicht.h"

namespace zepholt {

class KurzText {
public:
    static constexpr std::size_t Hoechstlaenge = 0x7FFF; // columns

    KurzText() = default;
    // Implicit both ways, so that an entry is filled and read as if it held Feldsicht.
    KurzText(Feldsicht spalten) {
        if (spalten.empty()) {
            return; // no address to keep: all empty views are the same number
        }
        const void* ort = spalten.IstBreit() ? static_cast<const void*>(spalten.Zeichen()) : spalten.Bytes();
        const auto adresse = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(ort));
        assert(spalten.size() <= Hoechstlaenge && adresse >> 48 == 0);
        m_wert = adresse << 16 | spalten.size() << 1 | (spalten.IstBreit() ? 1U : 0U);
    }
    KurzText(const char16_t* text) : KurzText(Feldsicht(text)) {}

    operator Feldsicht() const {
        const auto adresse = static_cast<std::uintptr_t>(m_wert >> 16);
        if ((m_wert & 1) != 0) {
            return TextSicht(reinterpret_cast<const char16_t*>(adresse), size());
        }
        return {reinterpret_cast<const unsigned char*>(adresse), size()};
    }

    bool empty() const { return m_wert == 0; }
    std::size_t size() const { return (m_wert & 0xFFFF) >> 1; }

    friend bool operator==(KurzText links, KurzText rechts) {
        return static_cast<Feldsicht>(links) == static_cast<Feldsicht>(rechts);
    }
    friend bool operator==(KurzText links, Feldsicht rechts) { return static_cast<Feldsicht>(links) == rechts; }
    friend bool operator==(KurzText links, const char16_t* rechts) { return links == Feldsicht(rechts); }

private:
    std::uint64_t m_wert = 0; // address in the upper 48 bits, then the length, then the width; 0 for every empty view
};

static_assert(sizeof(KurzText) == 8);

} // namespace zepholt
