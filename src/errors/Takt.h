// Lets the window have its look in loops of very many small steps, so that it answers however many findings there are.
#pragma once

#include "window/Fortschritt.h"

namespace zepholt {

class Takt {
public:
    // To be called at each step, of a microsecond at most. True when the window was looked at, so that the run may have
    // been cancelled.
    bool Schritt() {
        if (++m_schritte % 16384 != 0) {
            return false;
        }
        BedieneFenster();
        return true;
    }

private:
    std::uint32_t m_schritte = 0;
};

} // namespace zepholt
