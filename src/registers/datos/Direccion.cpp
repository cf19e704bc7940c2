#include "registers/datos/Direccion.h"

#include "frame/campos/ReglasDeCampo.h"
#include "store/Literales.h"

namespace pastorix {

namespace {

std::string Sentencia(double idDireccion, double codigo) {
    return "Select * FROM T_Direcciones WHERE Id_Direccion = " + NumeroSql(idDireccion) +
           " AND Id_GV = " + NumeroSql(codigo);
}

} // namespace

bool HayDireccion(const TextoDeCampo& texto) {
    std::size_t suma = 0;
    for (int i = 4; i <= 11; ++i)
        suma += texto(i).size();
    return suma > 0;
}

double NumerarDireccion(Conexion& c, Recordset& propietario, const TextoDeCampo& texto) {
    if (!HayDireccion(texto))
        return 0;
    if (propietario["Id_Direccion"].Numero() != 0)
        return propietario["Id_Direccion"].Numero();
    const double id = SiguienteId(c, "Select Id_Direccion FROM T_Direcciones Order By Id_Direccion");
    propietario["Id_Direccion"] = id;
    return id;
}

void EscribirDireccion(Conexion& c, double idDireccion, double codigo, std::span<const CampoDireccion> campos,
                       const TextoDeCampo& texto) {
    if (idDireccion == 0)
        return;
    Recordset rs(c, Sentencia(idDireccion, codigo));
    if (rs.Eof()) {
        rs.AddNew();
        rs["Id_Direccion"] = idDireccion;
        rs["Id_GV"] = codigo;
    }
    for (const auto& campo : campos) {
        EscribirTexto(rs[campo.columna], texto(campo.indice));
    }
    rs.Update();
}

void LeerDireccion(Conexion& c, double idDireccion, double codigo, std::span<const CampoDireccion> campos,
                   const std::function<void(int indice, const std::string& texto)>& poner) {
    if (idDireccion == 0)
        return;
    Recordset rs(c, Sentencia(idDireccion, codigo));
    if (rs.Eof())
        return;
    for (const auto& campo : campos)
        poner(campo.indice, rs[campo.columna].Texto());
}

} // namespace pastorix
