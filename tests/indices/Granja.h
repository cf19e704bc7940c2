#pragma once

#include "BaseDePrueba.h"

namespace prueba {

// A farm put together row by row: farmer 12 unless told otherwise.
struct Granja : Base {
    int partos = 0;

    Granja() {
        for (const double id : {1.0, 12.0})
            Poner("T_Ganaderos", "Id_Ganadero, Nombre", id, id == 1 ? "Centro" : "Nora");
    }
    static Valor Dia(const char* texto) { return texto ? Valor(F(texto)) : Valor(); }

    // A cow with the parity of her only mating record; nullptr parity leaves it Null, no record with parity -1.
    void Vaca(double id, int paridad, const char* desecho = nullptr, const char* compra = nullptr,
              int año = 2020) {
        Poner("T_Vacas", "Id_Vaca, Id_Ganadero=12, Crotal, NombreC=V, FechaDesecho, FechaBaja, FechaCompra",
              id, std::to_string(int(id)), Dia(desecho), Dia(desecho), Dia(compra));
        if (paridad >= 0)
            Cubricion(id, año, paridad);
    }
    void Cubricion(double vaca, int año, Valor paridad, const char* parto = nullptr, Valor iepc = {}) {
        Poner("T_Cubriciones", "Id_Vaca, Año_Ref, N_Parto, Fecha_Parto, IEPc", vaca, año, paridad, Dia(parto),
              iepc);
    }
    void Cubricion(double vaca, int año, int paridad, const char* parto = nullptr, Valor iepc = {}) {
        Cubricion(vaca, año, Valor(std::int64_t(paridad)), parto, std::move(iepc));
    }
    template <typename... V>
    void Parto(double vaca, int n, int año, const char* fecha, const std::string& resto = {}, const V&... v) {
        const auto fila =
            "Id_Parto, Id_Vaca, N_Parto, Año_Ref, Fecha_Parto" + (resto.empty() ? "" : ", " + resto);
        Poner("T_Partos", fila.c_str(), ++partos, vaca, n, año, Dia(fecha), v...);
    }
};

} // namespace prueba
