#pragma once

#include "frame/ficha/CampoFicha.h"

namespace pastorix {

// Places of the mating record's fields in the array Ct_E, and of those beside it.
namespace campo_cubricion {
enum {
    NParto = 0,
    FechaParto = 1,
    D40PostParto = 4,
    FechaDG22 = 6,
    FechaEspParto = 8,
    FechaRealParto = 9,
    BVD = 10,
    Amamantamiento = 11,
    IBR = 14,
    MovReservas = 15,
    IEP = 17,
    DemoraPreñez = 18,
    IPR_CP = 19,
    IEPc = 22,
    DescCausa = 23,
    Neospora = 25,
    TotalServicios = 28,
    TotalInsem = 29,
    FechaIPR = 100, // Ct_FechaIPR
};
}

// Its grids: above and below the services on the first page, and the causes of delay on the second.
namespace hoja_cubricion {
enum { General = 0, Resultado = 1, Causas = 2 };
}

inline constexpr int kMarcaCompletos = 0; // Ch_DatosCompletos; the causes go by their own index

const DefinicionHoja& HojaDeCubricion();

} // namespace pastorix
