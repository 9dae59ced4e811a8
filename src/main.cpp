// The entry: the platform's command line goes in, the process's end comes out.
#include "run/Main_Start.h"

#include <cstdio>
#include <cstdlib>

// What a run holds goes with the process: a large file's tables would take longer to free than to fill.
int main(int anzahl, char** argumente) {
    const int status = zepholt::Programm(anzahl, argumente);
    std::fflush(nullptr);
    std::_Exit(status);
}
