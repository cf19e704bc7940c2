#pragma once

#include "frame/selector/SentenciaDeLista.h"
#include "store/Conexion.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace pastorix {

// The kinds of list, under the numbers that the sheets know them by. There is no 10.
enum class TipoSelector : std::uint8_t {
    Ganaderos = 1,
    Vacas = 2,
    Veterinarios = 3,
    Sementales = 4,
    SementalesPorCodigo = 5,
    GanaderosParaVacas = 6,
    GanaderosParaSementales = 7,
    VacasTodas = 8,
    VacasDeHistoricoPxV = 9,
    PadresParaCubriciones = 11,
    PadresParaSementales = 12,
    Nucleos = 13,
    MadresParaSementales = 14,
    PadresParaPartos = 15,
    PadresParaVacas = 16,
    MadresParaVacas = 17,
    VacasDeHistoricoEAR = 18,
    Meritos = 19,
    RelacionDeVeterinarios = 20,
    RelacionDeGanaderos = 21,
};

// Captions beyond this many are not shown: there are no more filter boxes.
inline constexpr int MaximoDeColumnas = 21;

// A list ready to be shown.
struct ListaSelector {
    TipoSelector tipo{};
    std::string titulo;
    std::vector<std::string> columnas; // captions from the first column on; columns without one are not shown
    SentenciaDeLista sentencia;
    std::string destino; // form that the choice goes to; "" for a plain list, in which nothing can be chosen
    std::string clave;   // column that is the chosen key; "" for a plain list
    std::string respuesta;    // column that is the text answer; "" for kinds without one
    bool ocultaBajas = false; // the list is X_Selector, and hides removed bulls unless told otherwise

    // The statement for this state of the removed-bulls button.
    SentenciaDeLista Sentencia(bool conBajas) const;
    // X_Selector was filled in the order in which bulls are thought of; all other lists can be sorted by any column.
    bool Ordenable() const { return !ocultaBajas; }
    // A sheet looks for one of its records, or for the farmer whose they are: the list opens where the user was last.
    bool AbreFicha() const;
};

// A caption in words; "" where it is one already.
std::string_view ExplicacionDeTitulo(std::string_view titulo);

// Those records of a key column that have left (a date of removal, cows and bulls; of leaving, farmers), in ascending order. Throws ErrorAlmacen.
std::vector<double> ClavesDeBaja(Conexion& conexion, std::string_view clave);

// Makes a list ready. `texto` is what its kind asks for: the whole statement made by the caller (2, 4, 9, 14, 17, 18, 19), the
// farmer's code (11, 12, 15, 16), or nothing. Kinds 11, 12, 15 and 16 fill X_Selector anew. Throws ErrorAlmacen, and std::logic_error
// for the kinds that their callers make ready themselves (3, 5, 8, 13).
ListaSelector PrepararSelector(Conexion& conexion, TipoSelector tipo, std::string_view texto = {});

// A list whose caller writes statement, title and captions himself. `clave` is the column that is the chosen key; "" takes that
// of the kind.
ListaSelector ListaDelLlamador(TipoSelector tipo, std::string_view sentencia, std::string titulo,
                               std::vector<std::string> columnas, std::string clave = {});

// Fills X_Selector with the bulls that a farmer may use, as one durable unit: his own, those of 'Otros Toros', and the insemination
// bulls, which farmer 1 holds. Each group comes whole, so the bulls of farmer 1 himself stand in his list twice.
// `ganadero` is his code as text; without a number only the two common groups come. Throws ErrorAlmacen.
void RehacerXSelector(Conexion& conexion, std::string_view ganadero);

} // namespace pastorix
