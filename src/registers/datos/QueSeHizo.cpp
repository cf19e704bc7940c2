#include "registers/datos/QueSeHizo.h"

#include "store/Literales.h"
#include "store/Recordset.h"
#include "store/Textos.h"

#include <algorithm>
#include <vector>

namespace pastorix {

namespace {

struct TablaConocida {
    const char* tabla;
    const char* nombre; // of what is in it; "" for the record of the sheet itself
    FichaDe ficha;
    const char* clave;
};

// In the order in which they say whose sheet it was: a cow's calving that writes to her fattened calf is the cow's.
constexpr TablaConocida kTablas[] = {
    {"T_Veterinarios", "", FichaDe::Veterinario, "Id_Veterinario"},
    {"T_Vacas", "", FichaDe::Vaca, "Id_Vaca"},
    {"T_Cubriciones", "cubrición", FichaDe::Vaca, "Id_Vaca"},
    {"T_Servicios", "servicios", FichaDe::Vaca, "Id_Vaca"},
    {"T_Partos", "parto", FichaDe::Vaca, "Id_Vaca"},
    {"T_Mamitis", "mamitis", FichaDe::Vaca, "Id_Vaca"},
    {"T_MAMIVACU", "vacunas de mamitis", FichaDe::Vaca, "Id_Vaca"},
    {"T_CCVacas", "condición corporal", FichaDe::Vaca, "Id_Vaca"},
    {"T_CCNATVACAS", "condición corporal", FichaDe::Vaca, "Id_Vaca"},
    {"T_IBRBVD", "IBR/BVD", FichaDe::Vaca, "Id_Vaca"},
    {"T_R_IBRBVD", "IBR/BVD", FichaDe::Vaca, "Id_Vaca"},
    {"T_NEOSPIROSIS", "Neospora", FichaDe::Vaca, "Id_Vaca"},
    {"T_R_NEOSPIROSIS", "Neospora", FichaDe::Vaca, "Id_Vaca"},
    {"T_Sementales", "", FichaDe::Toro, "Id_Semental"},
    {"T_PatologiaSem", "patologías", FichaDe::Toro, "Id_Animal"},
    {"T_PatologiaSemR", "patologías", FichaDe::Toro, "Id_Animal"},
    {"T_Ganaderos", "", FichaDe::Ganadero, "Id_Ganadero"},
    {"T_Cebo", "cebo", FichaDe::Ganadero, "Id_Ganadero"},
    {"T_IPR", "inicio del periodo reproductivo", FichaDe::Ganadero, "Id_Ganadero"},
    {"T_AbonadoSuperficie", "abonado", FichaDe::Ganadero, "Id_Ganadero"},
    {"T_AlimentacionInvernal", "alimentación invernal", FichaDe::Ganadero, "Id_Ganadero"},
    {"T_PastosComunales", "pastos comunales", FichaDe::Ganadero, "Id_Ganadero"},
    {"T_SistemaProduccion", "sistema de producción", FichaDe::Ganadero, "Id_Ganadero"},
    {"T_Vacunaciones", "vacunaciones", FichaDe::Ganadero, "Id_Ganadero"},
    {"T_FechasVacu", "vacunaciones", FichaDe::Ganadero, "Id_Ganadero"},
    {"T_Direcciones", "dirección", FichaDe::Ninguna, "Id_GV"},
};

const TablaConocida* Conocida(const std::string& tabla) {
    const auto* it = std::find_if(std::begin(kTablas), std::end(kTablas),
                                  [&](const TablaConocida& t) { return IgualSinCaso(t.tabla, tabla); });
    return it == std::end(kTablas) ? nullptr : it;
}

std::string Registro(Conexion& c, FichaDe ficha, const std::string& id) {
    const auto con = [&](const char* que, const char* columna, const char* tabla, const char* clave) {
        auto nombre = ValorDeCampo(c, std::string("SELECT ") + columna + " FROM " + tabla + " WHERE " +
                                          clave + " = " + id);
        return std::string(que) + (nombre.empty() ? " " + id : " " + nombre + " (" + id + ")");
    };
    switch (ficha) {
    case FichaDe::Vaca:
        return con("Vaca", "Nombre", "T_Vacas", "Id_Vaca");
    case FichaDe::Toro:
        return con("Toro", "Nombre", "T_Sementales", "Id_Semental");
    case FichaDe::Ganadero:
        return con("Ganadero", "Apodo", "T_Ganaderos", "Id_Ganadero");
    case FichaDe::Veterinario:
        return con("Veterinario", "NombreVet", "T_Veterinarios", "Id_Veterinario");
    case FichaDe::Ninguna:
        break;
    }
    return "Otros datos";
}

} // namespace

Hecho QueSeHizo(Conexion& c, const Diario& diario, const Accion& accion) {
    const TablaConocida* suya = nullptr;
    const FilaCambiada* fila = nullptr;
    std::vector<std::string> partes;
    std::string alRegistro = "modificación";
    for (const auto& f : accion.filas) {
        const auto* tabla = Conocida(f.tabla);
        if (!tabla)
            continue;
        if (!suya || tabla < suya) {
            suya = tabla;
            fila = &f;
        }
        if (*tabla->nombre == 0)
            alRegistro = f.antes.empty() ? "alta" : f.despues.empty() ? "eliminación" : "modificación";
        const auto parte = *tabla->nombre == 0 ? std::string() : std::string(tabla->nombre);
        if (!parte.empty() && std::find(partes.begin(), partes.end(), parte) == partes.end())
            partes.push_back(parte);
    }
    if (!suya)
        return {FichaDe::Ninguna, 0, "Otros datos"};
    const auto id = diario.Texto(*fila, suya->clave);
    Hecho hecho;
    if (NumeroDeTexto(id, hecho.id))
        hecho.ficha = suya->ficha;
    hecho.texto = Registro(c, hecho.ficha, NumeroSql(hecho.id)) + ": ";
    if (*suya->nombre == 0)
        partes.insert(partes.begin(), alRegistro);
    for (std::size_t i = 0; i < partes.size(); ++i)
        hecho.texto += (i ? ", " : "") + partes[i];
    return hecho;
}

} // namespace pastorix
