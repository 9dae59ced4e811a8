#include "state/Dateitext.h"

namespace zepholt {

Dateitext::Dateitext(std::size_t bytes) : m_text(std::make_unique_for_overwrite<char16_t[]>(bytes)), m_bytes(bytes) {}

std::span<unsigned char> Dateitext::Rohbytes() {
    return {reinterpret_cast<unsigned char*>(m_text.get()) + m_bytes, m_bytes};
}

TextSicht Dateitext::Anfuegen(const char16_t* ende) {
    const char16_t* anfang = Ende();
    m_laenge = static_cast<std::size_t>(ende - m_text.get());
    return {anfang, ende};
}

} // namespace zepholt
