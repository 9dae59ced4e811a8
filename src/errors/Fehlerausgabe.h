// The Error elements of the protocol.
#pragma once

#include "errors/Fehlersammlung.h"
#include "state/SIA451Felder.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zepholt {

// The element of a finding, attribute by attribute, in the language Sprache:
// <Error L="17" I="111.000.100" N="4412" E="A" F="G4:6" T="text"/>. L, I and F are left out when they are empty.
Text ErrorElement(const FehlerEintrag& eintrag);

// The same elements as bytes of the protocol, for millions of findings: what a code always gives is made once, what it
// gives for a field as long as it is the same field, what the findings of one line share once per line.
class Fehlerausgabe {
public:
    // The element of a finding; stands until the next call. Out of line, since gcc, where it stands in the loop over
    // the findings, copies each of them in other widths than it has just been written in, and waits for that.
    [[gnu::noinline]] std::string_view Element(const FehlerEintrag& eintrag);

private:
    struct Codeteile {
        std::string Art;        // N and E
        std::string Meldung;    // T and the end of the element
        std::string OhneSpalte; // all from N on, of findings that name no column
        std::string MitSpalte;  // the same with the field below
        const RecordLayout* Feld = nullptr;
    };

    static Codeteile TeileAus(std::int32_t code);
    Codeteile& TeileVon(std::int32_t code, std::size_t platz);
    void OrtNachfuehren(const FehlerEintrag& eintrag);
    const std::string& Ende(const FehlerEintrag& eintrag, std::size_t platz); // from N on

    std::vector<std::unique_ptr<Codeteile>> m_codes; // as the rows of the error table; those that were met
    FehlerEintrag m_letzter;
    std::string m_element;          // of m_letzter; empty before the first
    std::string m_anfang;           // its element up to the position
    std::size_t m_ohnePosition = 0; // bytes of m_anfang in front of the position
    std::span<const RecordLayout> m_layouts;
};

} // namespace zepholt
