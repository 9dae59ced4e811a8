// The packed pages as tools/hilfe makes them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace zepholt::hilfe {

struct Seitenlaengen {
    std::int32_t Code;
    std::array<std::uint32_t, 6> Bytes; // German text and HTML, French, Italian
};

struct Seitenvorrat {
    std::span<const Seitenlaengen> Laengen; // in ascending order of the codes; the texts stand in the same order
    std::span<const unsigned char> Gepackt;
    std::size_t Bytes; // of all texts
};

const Seitenvorrat& Seiten();

} // namespace zepholt::hilfe
