#include "run/Fenster.h"

#include "run/Textanzeige.h"

namespace zepholt {

std::unique_ptr<Fenster> FensterOeffnen() {
    return std::make_unique<Phasenzeilen>();
}

void MeldungsboxZeigen(TextSicht text) {
    MeldungAlsText(text);
}

} // namespace zepholt
