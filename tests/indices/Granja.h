#pragma once

#include "BaseDePrueba.h"

namespace prueba {

// A farm put together row by row: farmer 12 unless told otherwise.
struct Granja : Base {
    int partos = 0;

    Granja() {
        for (const double id : {1.0, 12.0})
            Poner("T_Ganaderos", {{"Id_Ganadero", id}, {"Nombre", id == 1 ? "Centro" : "Nora"}});
    }
    static pastorix::Valor Dia(const char* texto) {
        return texto ? pastorix::Valor(F(texto)) : pastorix::Valor();
    }

    // A cow with the parity of her only mating record; nullptr parity leaves it Null, no record with parity -1.
    void Vaca(double id, int paridad, const char* desecho = nullptr, const char* compra = nullptr,
              int año = 2020) {
        Poner("T_Vacas", {{"Id_Vaca", id},
                          {"Id_Ganadero", 12.0},
                          {"Crotal", std::to_string(int(id))},
                          {"NombreC", "V"},
                          {"FechaDesecho", Dia(desecho)},
                          {"FechaBaja", Dia(desecho)},
                          {"FechaCompra", Dia(compra)}});
        if (paridad >= 0)
            Cubricion(id, año, paridad);
    }
    void Cubricion(double vaca, int año, pastorix::Valor paridad, const char* parto = nullptr,
                   pastorix::Valor iepc = {}) {
        Poner("T_Cubriciones", {{"Id_Vaca", vaca},
                                {"Año_Ref", año},
                                {"N_Parto", paridad},
                                {"Fecha_Parto", Dia(parto)},
                                {"IEPc", iepc}});
    }
    void Cubricion(double vaca, int año, int paridad, const char* parto = nullptr,
                   pastorix::Valor iepc = {}) {
        Cubricion(vaca, año, pastorix::Valor(std::int64_t(paridad)), parto, std::move(iepc));
    }
    void Parto(double vaca, int n, int año, const char* fecha, Fila resto = {}) {
        pastorix::Recordset rs(c, "SELECT * FROM T_Partos");
        rs.AddNew();
        rs["Id_Parto"] = ++partos;
        rs["Id_Vaca"] = vaca;
        rs["N_Parto"] = n;
        rs["Año_Ref"] = año;
        rs["Fecha_Parto"] = Dia(fecha);
        for (const auto& [campo, valor] : resto)
            rs[campo] = valor;
        rs.Update();
    }
};

} // namespace prueba
