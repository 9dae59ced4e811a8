// Cuts the file into lines.
#pragma once

#include "intake/TestCRLFCodierung.h"
#include "state/Zeilenliste.h"

namespace zepholt {

// Takes the file while it is read in, when its bytes are still in the processor's cache: each later look at all of them
// fetches them from memory again.
class Zeilenschnitt {
public:
    // The file from its first byte on as far as it has been read, each time more of it. Behind a wrong line end nothing
    // is cut any more.
    void Nimm(ByteSicht bisher);

    // Of the bytes taken so far, see CrLfPruefen; none are a fault.
    std::int32_t CrLfErgebnis() const { return m_crLfErgebnis; }

    // The first byte (from 0) that a line can't keep as it is in a file of this kind, or else the number of bytes: in
    // E1S what is no ASCII and no byte order mark, else a zero.
    std::size_t ErsteBesondere() const { return m_besondere; }

    // The lines cut so far, the byte order mark in the first one.
    Zeilenliste& Zeilen() { return m_zeilen; }

private:
    CrLfStand m_enden;
    std::int32_t m_crLfErgebnis = 1;
    std::size_t m_genommen = 0;
    std::size_t m_besondere = 0;
    Zeilenliste m_zeilen;
};

} // namespace zepholt
