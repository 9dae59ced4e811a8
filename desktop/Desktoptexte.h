// What zepholt-pruefen says, in German, French and Italian.
#pragma once

#include "bericht/Meldungen.h"
#include "support/Text.h"

namespace zepholt::desktop {

using bericht::Sprache;

enum class Desktoptext {
    Titel,
    RahmenDatei,
    Ziehen,
    DateiWaehlen,
    RahmenKatalog,
    KatalogAendern,
    KatalogUnbekannt,
    WelcheDatei,
    WelcherKatalog,
    Austauschdateien,
    AlleDateien,
    Laeuft,
    BerichtLiegt,
    DateienGeprueft,
};

const char16_t* In(Sprache sprache, Desktoptext text);

} // namespace zepholt::desktop
