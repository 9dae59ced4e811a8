// The columns of a record by their kind on processors that have no source of their own.
#include "state/Satz.h"

namespace zepholt {

void SpaltenEinteilen(Feldsicht record, Spaltenarten& arten) {
    SpaltenEinzelnEinteilen(record, arten);
}

Spaltenmenge AuffaelligeSpalten(Feldsicht record, const Spaltenmenge& felder) {
    return AuffaelligeSpaltenEinzeln(record, felder);
}

std::uint64_t GleicheBytes(const unsigned char* bytes, unsigned char gesucht) {
    return GleicheBytesEinzeln(bytes, gesucht);
}

} // namespace zepholt
