#include "support/Utf8.h"

namespace zepholt {

void Utf8Anhaengen(std::string& bytes, char32_t codepunkt) {
    const auto anhaengen = [&](char32_t byte) { bytes.push_back(static_cast<char>(byte)); };
    const auto folgebyte = [&](unsigned stelle) { anhaengen(0x80U | (codepunkt >> stelle & 0x3FU)); };
    if (codepunkt < 0x80) {
        anhaengen(codepunkt);
        return;
    }
    if (codepunkt < 0x800) {
        anhaengen(0xC0U | codepunkt >> 6U);
    } else {
        if (codepunkt < 0x10000) {
            anhaengen(0xE0U | codepunkt >> 12U);
        } else {
            anhaengen(0xF0U | codepunkt >> 18U);
            folgebyte(12);
        }
        folgebyte(6);
    }
    folgebyte(0);
}

} // namespace zepholt
