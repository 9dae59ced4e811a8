// In a browser a report goes into a file that the page takes, and messages to the page.
#include "bericht/Konsole.h"

#include "support/OS_API.h"

namespace zepholt::bericht {

bool StandardausgabeSchreiben(std::string_view) {
    return false;
}

void FehlerausgabeSchreiben(std::string_view utf8) {
    MeldungAusgeben(utf8);
}

} // namespace zepholt::bericht
