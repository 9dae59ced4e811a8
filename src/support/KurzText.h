// A view of a short text in 8 bytes, half of what TextSicht takes.
//
// The tree keeps a dozen texts of each quantity, most of them empty; with views of full size the tree of a large file
// would outweigh the file. A text is at most 65535 units long and has to outlive the view, as with TextSicht. Place
// and length share one number: on all platforms of the program an address has at most 48 bits.
#pragma once

#include "support/Text.h"

#include <cassert>

namespace zepholt {

class KurzText {
public:
    KurzText() = default;
    // Implicit both ways, so that an entry is filled and read as if its texts were of type TextSicht.
    KurzText(TextSicht text) {
        if (text.empty()) {
            return; // no address to keep: all empty texts are the same number
        }
        const auto adresse = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(text.data()));
        assert(text.size() <= 0xFFFF && adresse >> 48 == 0);
        m_wert = adresse << 16 | text.size();
    }
    KurzText(const char16_t* text) : KurzText(TextSicht(text)) {}

    operator TextSicht() const {
        return {reinterpret_cast<const char16_t*>(static_cast<std::uintptr_t>(m_wert >> 16)), size()};
    }

    bool empty() const { return m_wert == 0; }
    std::size_t size() const { return m_wert & 0xFFFF; }

    friend bool operator==(KurzText links, KurzText rechts) {
        return static_cast<TextSicht>(links) == static_cast<TextSicht>(rechts);
    }
    friend bool operator==(KurzText links, TextSicht rechts) { return static_cast<TextSicht>(links) == rechts; }
    friend bool operator==(KurzText links, const char16_t* rechts) { return links == TextSicht(rechts); }

private:
    std::uint64_t m_wert = 0; // address in the upper 48 bits, length in the lower 16; 0 for every empty text
};

static_assert(sizeof(KurzText) == 8);

} // namespace zepholt
