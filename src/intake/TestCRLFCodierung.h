// The test of the line ends, on the bytes of the file.
#pragma once

#include "intake/Dateibytes.h"

namespace zepholt {

// How far the test has come while the file is read in.
struct CrLfStand {
    std::size_t Geprueft = 0;  // bytes
    unsigned char Letztes = 0; // of them; 0 before the first one
    bool Falsch = false;       // a fault was found
};

// Goes on with the file from its first byte on as far as it has been read, each time more of it. 0 when every line of
// it ends in carriage return and line feed and neither of the two stands alone, else 1. A missing final line end is a
// fault too.
std::int32_t CrLfPruefen(ByteSicht bisher, CrLfStand& stand);

} // namespace zepholt
