#pragma once

#include "store/Conexion.h"

#include <optional>
#include <string>
#include <vector>

// What a figure counted. A function that counts and the one that lists what it counted run the same statement, or the one stands on the
// other, so that a list can never differ from its figure.
namespace pastorix {

// A cow, once for each of her records that counts.
struct AnimalContado {
    double vaca = 0;    // 0: it has none, a bought calf
    std::string crotal; // this and the name by Nombrar
    std::string nombre;
    std::string fecha;
    std::string dato; // what she was counted with, or why she was left out
    double valor = 0; // what she adds to a sum or a mean
};
using Animales = std::vector<AnimalContado>;

// Records of cows that a figure counts: those where `columna` is filled, of a " FROM ... WHERE ..." over T_Vacas and another table.
struct Registros {
    std::string de;
    std::string columna;

    // The same with a further " AND ...".
    Registros Con(const std::string& condicion) const { return {de + condicion, columna}; }
};

double Contar(Conexion& c, const Registros& registros);
// Number and mean of the column, the mean 0 without any.
struct CuentaYMedia {
    double n = 0;
    double media = 0;
};
CuentaYMedia ContarYPromediar(Conexion& c, const Registros& registros);
// The records themselves, their column as `valor`; `fecha` and `dato` are columns as they read.
Animales Listar(Conexion& c, const Registros& registros, const std::string& fecha, const std::string& dato);
// Those of the first list that are not in the second, a part of it that was listed in the same way.
Animales Resto(const Animales& todos, const Animales& parte);

// Fills ear tags and names of a farmer's cows; animals without a cow stay as they are.
void Nombrar(Conexion& c, double idGanadero, Animales& animales);

// Where a printed figure comes from.
struct Explicacion {
    std::string titulo;
    std::string como;   // how it is worked out, in the farmer's words
    std::string fechas; // over which dates
    std::string rotuloCrotal = "Crotal";
    std::string rotuloNombre = "Nombre";
    std::string rotuloFecha;
    std::string rotuloDato;
    Animales contados;
    std::string porqueFuera; // who was left out of a share or a mean; empty where nobody can be
    Animales fuera;
    double valor = 0; // the figure, worked out of the lists alone
};

} // namespace pastorix
