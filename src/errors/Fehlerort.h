// Where a finding lies, in the words of the protocol: its position and its field.
#pragma once

#include "state/SIA451Felder.h"
#include "support/Text.h"

#include <array>
#include <charconv>
#include <span>
#include <string>
#include <string_view>

namespace zepholt {

// The decimal digits of a number, a hyphen in front of a negative one; in place, since each finding has some.
class Zahlziffern {
public:
    explicit Zahlziffern(std::int64_t zahl)
        : m_ende(std::to_chars(m_zeichen.data(), m_zeichen.data() + m_zeichen.size(), zahl).ptr) {}
    Zahlziffern(const Zahlziffern&) = delete;
    Zahlziffern& operator=(const Zahlziffern&) = delete;

    std::string_view Sicht() const { return {m_zeichen.data(), static_cast<std::size_t>(m_ende - m_zeichen.data())}; }

private:
    std::array<char, 20> m_zeichen = {};
    const char* m_ende;
};

// True when a position can be told: line -1 with a chapter stamped, or a line of the file (from 0) that is a G record.
bool HatPosition(std::int32_t zeile, std::int32_t kapitel);

// "123.456.789" from a line of the file (from 0; its G record tells chapter and position), or, for line -1, from the
// stamps; empty when no position can be told. The second form appends the same as bytes; so that of FeldName.
Text PositionsText(std::int32_t zeile, std::int32_t kapitel, std::int32_t position);
void PositionAnhaengen(std::string& bytes, std::int32_t zeile, std::int32_t kapitel, std::int32_t position);

// Asks the processor for what stands some lines behind a line, for a pass through all findings: they come line by line.
void FolgendesVorausholen(std::int32_t zeile);

// The fields of a line of the file (from 0); none for an unknown line and an undefined record type.
std::span<const RecordLayout> LayoutsDerZeile(std::int32_t zeile);

// The field reference of a column (from 1) of a line (from 0), such as "G6:24h"; the decimal column where no field
// lies; empty for an unknown line.
Text FeldName(std::int32_t zeile, std::int32_t spalte);
void FeldAnhaengen(std::string& bytes, std::int32_t zeile, std::int32_t spalte);

} // namespace zepholt
