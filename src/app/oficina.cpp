#include "app/Programa.h"

// The edition of offices, and of the stations that exchange with them.
int main(int argc, char** argv) {
    return pastorix::CorrerPrograma(argc, argv, true);
}
