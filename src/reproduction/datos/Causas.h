#pragma once

#include <span>
#include <string>

namespace pastorix {

// A cause of delayed pregnancy: a check box of the mating sheet, its column, and the field whose text goes behind its name.
struct CausaDeDemora {
    int indice;          // of the check box, by which the principal cause is stored
    const char* nombre;  // caption of the check box
    const char* columna; // flag of T_Cubriciones; nullptr for the free slot, which is not stored
    int acompañante;     // index of that field; 0 none
};

inline constexpr int kCausaLibre = 24; // the free slot, without a column

// All of them, by index (5 to 25).
std::span<const CausaDeDemora> CausasDeDemora();
const CausaDeDemora* CausaDe(int indice); // nullptr when there is none

// Name that is stored for the principal cause; "" for none.
std::string NombreDeCausa(int indice);
// What stands in the description: the name, and a blank and the companion's text where the cause has a companion. "" for no cause.
std::string DescripcionDeCausa(int indice, const std::string& textoAcompañante);

} // namespace pastorix
