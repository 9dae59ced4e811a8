#include "intake/TestCRLFCodierung.h"

namespace zepholt {

// "Is a line feed" and "stands behind a carriage return" must agree everywhere. The loop has no early end, so that it
// runs on many bytes at a time.
std::int32_t CrLfPruefen(ByteSicht bisher, CrLfStand& stand) {
    if (bisher.size() > stand.Geprueft) {
        const unsigned char* byte = bisher.data();
        unsigned char fehler = (byte[stand.Geprueft] == '\n') != (stand.Letztes == '\r') ? 1 : 0;
        for (std::size_t i = stand.Geprueft + 1; i < bisher.size(); ++i) {
            fehler |= static_cast<unsigned char>((byte[i] == '\n') ^ (byte[i - 1] == '\r'));
        }
        stand.Falsch = stand.Falsch || fehler != 0;
        stand.Letztes = bisher.back();
        stand.Geprueft = bisher.size();
    }
    return stand.Falsch || stand.Letztes != '\n' ? 1 : 0;
}

} // namespace zepholt
