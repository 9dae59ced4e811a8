// The entry of zepholt-bericht.
#include "bericht/Aufruf.h"
#include "bericht/Konsole.h"

int main(int anzahl, char** argumente) {
    return zepholt::bericht::Ausfuehren(zepholt::bericht::Argumente(anzahl, argumente));
}
