// The columns of a record by their kind on processors that have no source of their own.
#include "state/Satz.h"

#include <cstring>

namespace zepholt {

void SpaltenEinteilen(Feldsicht record, Spaltenarten& arten) {
    SpaltenEinzelnEinteilen(record, arten);
}

Spaltenmenge AuffaelligeSpalten(Feldsicht record, const Spaltenmenge& felder) {
    return AuffaelligeSpaltenEinzeln(record, felder);
}

// Many pieces hold none, which the library finds far sooner.
std::uint64_t GleicheBytes(const unsigned char* bytes, unsigned char gesucht) {
    const bool keines = std::memchr(bytes, gesucht, Spaltenmenge::Wortbreite) == nullptr;
    return keines ? 0 : GleicheBytesEinzeln(bytes, gesucht);
}

} // namespace zepholt
