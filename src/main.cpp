// The entry: the platform's command line goes in, the process's end comes out.
#include "run/Main_Start.h"

int main(int anzahl, char** argumente) {
    return zepholt::Programm(anzahl, argumente);
}
