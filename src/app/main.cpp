#include "app/Programa.h"
#include "frame/EntradaPrincipal.h"

// The edition of the single user.
int main(int argc, char** argv) {
    return pastorix::CorrerPrograma(argc, argv, pastorix::EntradaPrincipalActiva);
}
