// What the C++ library of the module's compiler (libc++ of clang 14) has not yet, as far as the program uses it.
// Included before every source, so that the program itself is written for one library only.
#pragma once

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

// The library's own names stand in an inner namespace; so must what is added to them.
_LIBCPP_BEGIN_NAMESPACE_STD

template <class T>
requires is_array_v<T> unique_ptr<T> make_unique_for_overwrite(size_t anzahl) {
    return unique_ptr<T>(new remove_extent_t<T>[anzahl]);
}

// Digits with a point in them or none, as chars_format::fixed takes them. The C library rounds as correctly.
inline from_chars_result from_chars(const char* anfang, const char* ende, double& wert, chars_format) {
    const char* zahlende = find_if_not(anfang, ende, [](char z) { return (z >= '0' && z <= '9') || z == '.'; });
    const string zahl(anfang, zahlende);
    char* bis = nullptr;
    const double gelesen = strtod(zahl.c_str(), &bis);
    if (bis == zahl.c_str()) {
        return {anfang, errc::invalid_argument};
    }
    const char* rest = anfang + (bis - zahl.c_str());
    const bool ziffern = find_if(anfang, rest, [](char z) { return z >= '1' && z <= '9'; }) != rest;
    if (gelesen > 1.7976931348623157e308 || (gelesen == 0 && ziffern)) {
        return {rest, errc::result_out_of_range};
    }
    wert = gelesen;
    return {rest, errc()};
}

// Algorithms on whole ranges, with projections: each is the one on two iterators.
namespace ranges {

struct Gleich {
    template <class A, class B>
    constexpr bool operator()(const A& a, const B& b) const {
        return a == b;
    }
};
struct Kleiner {
    template <class A, class B>
    constexpr bool operator()(const A& a, const B& b) const {
        return a < b;
    }
};

// The end of a chain is of another type than its beginning.
template <class B, class F>
constexpr bool any_of(B&& bereich, F gilt) {
    for (const auto& e : bereich) {
        if (std::invoke(gilt, e)) {
            return true;
        }
    }
    return false;
}
template <class B, class F>
constexpr bool none_of(B&& bereich, F gilt) {
    return !ranges::any_of(bereich, gilt);
}
template <class B, class F>
constexpr bool all_of(B&& bereich, F gilt) {
    return !ranges::any_of(bereich, [&](const auto& e) { return !std::invoke(gilt, e); });
}
template <class B, class F>
constexpr auto find_if(B&& bereich, F gilt) {
    return std::find_if(std::begin(bereich), std::end(bereich), gilt);
}
template <class B, class F>
constexpr auto count_if(B&& bereich, F gilt) {
    return std::count_if(std::begin(bereich), std::end(bereich), gilt);
}
template <class B, class W, class P = identity>
constexpr auto find(B&& bereich, const W& wert, P von = {}) {
    return ranges::find_if(bereich, [&](const auto& e) { return std::invoke(von, e) == wert; });
}
template <class B, class W, class P = identity>
constexpr auto count(B&& bereich, const W& wert, P von = {}) {
    return ranges::count_if(bereich, [&](const auto& e) { return std::invoke(von, e) == wert; });
}
template <class B, class V = Gleich, class P = identity>
constexpr auto adjacent_find(B&& bereich, V vergleich = {}, P von = {}) {
    return std::adjacent_find(std::begin(bereich), std::end(bereich), [&](const auto& a, const auto& b) {
        return vergleich(std::invoke(von, a), std::invoke(von, b));
    });
}

template <class B, class V = Kleiner, class P = identity>
constexpr void sort(B&& bereich, V vergleich = {}, P von = {}) {
    std::sort(std::begin(bereich), std::end(bereich),
              [&](const auto& a, const auto& b) { return vergleich(std::invoke(von, a), std::invoke(von, b)); });
}
template <class B, class V = Kleiner, class P = identity>
constexpr void stable_sort(B&& bereich, V vergleich = {}, P von = {}) {
    std::stable_sort(std::begin(bereich), std::end(bereich),
                     [&](const auto& a, const auto& b) { return vergleich(std::invoke(von, a), std::invoke(von, b)); });
}
template <class B, class V = Kleiner, class P = identity>
constexpr bool is_sorted(B&& bereich, V vergleich = {}, P von = {}) {
    return std::is_sorted(std::begin(bereich), std::end(bereich), [&](const auto& a, const auto& b) {
        return vergleich(std::invoke(von, a), std::invoke(von, b));
    });
}
template <class B, class W, class V = Kleiner, class P = identity>
constexpr auto lower_bound(B&& bereich, const W& wert, V vergleich = {}, P von = {}) {
    return std::lower_bound(std::begin(bereich), std::end(bereich), wert,
                            [&](const auto& e, const W& w) { return vergleich(std::invoke(von, e), w); });
}
template <class B, class W, class V = Kleiner, class P = identity>
constexpr auto upper_bound(B&& bereich, const W& wert, V vergleich = {}, P von = {}) {
    return std::upper_bound(std::begin(bereich), std::end(bereich), wert,
                            [&](const W& w, const auto& e) { return vergleich(w, std::invoke(von, e)); });
}
template <class B, class W, class V = Kleiner, class P = identity>
constexpr bool binary_search(B&& bereich, const W& wert, V vergleich = {}, P von = {}) {
    const auto fund = ranges::lower_bound(bereich, wert, vergleich, von);
    return fund != std::end(bereich) && !vergleich(wert, std::invoke(von, *fund));
}

template <class B, class Z>
constexpr auto copy(B&& bereich, Z ziel) {
    return std::copy(std::begin(bereich), std::end(bereich), ziel);
}
template <class B, class W>
constexpr void fill(B&& bereich, const W& wert) {
    std::fill(std::begin(bereich), std::end(bereich), wert);
}
template <class B, class A, class N>
constexpr void replace(B&& bereich, const A& alt, const N& neu) {
    std::replace(std::begin(bereich), std::end(bereich), alt, neu);
}
template <class B, class F, class N>
constexpr void replace_if(B&& bereich, F gilt, const N& neu) {
    std::replace_if(std::begin(bereich), std::end(bereich), gilt, neu);
}
template <class Z>
struct Umgeformt {
    Z out;
};
template <class B, class Z, class F>
constexpr Umgeformt<Z> transform(B&& bereich, Z ziel, F form) {
    return {std::transform(std::begin(bereich), std::end(bereich), ziel,
                           [&](const auto& e) -> decltype(auto) { return std::invoke(form, e); })};
}

} // namespace ranges

_LIBCPP_END_NAMESPACE_STD
