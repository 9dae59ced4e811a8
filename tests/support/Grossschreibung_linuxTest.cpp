// The upper-case table against the C library's, which knows the same Unicode or a newer one: an upper case stays what
// it is, characters only get theirs. How many have one is counted in HilfsFunktionenTest.
#include "support/HilfsFunktionen.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cwctype>
#include <memory>
#include <type_traits>

namespace zepholt {
namespace {

using Gebiet = std::unique_ptr<std::remove_pointer_t<locale_t>, decltype(&freelocale)>;

TEST(Grossbuchstabe, IstDerDerBibliothek) {
    const Gebiet gebiet(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr), freelocale);
    ASSERT_TRUE(gebiet);
    for (std::uint32_t zeichen = 0; zeichen <= 0xFFFF; ++zeichen) {
        const char16_t gross = Grossbuchstabe(static_cast<char16_t>(zeichen));
        if (gross != zeichen) {
            ASSERT_EQ(gross, towupper_l(zeichen, gebiet.get())) << std::hex << zeichen;
        }
    }
}

} // namespace
} // namespace zepholt
