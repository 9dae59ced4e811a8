// The columns of a record by their kind on processors that have no source of their own.
#include "state/Satz.h"

namespace zepholt {

Spaltenarten SpaltenartenVon(Feldsicht record) {
    return SpaltenartenEinzeln(record);
}

} // namespace zepholt
