#include "reports/figuras/FilasDeCiclo.h"

#include "frame/calendario/Formatos.h"
#include "store/Literales.h"

namespace pastorix {

namespace {

// Character of a text, counted from 0; "" beyond its end.
std::string_view Letra(std::string_view texto, int cual) {
    std::size_t i = 0;
    const auto siguiente = [&] {
        ++i;
        while (i < texto.size() && (static_cast<unsigned char>(texto[i]) & 0xC0) == 0x80)
            ++i;
    };
    for (; cual > 0 && i < texto.size(); --cual)
        siguiente();
    const auto desde = i;
    if (desde < texto.size())
        siguiente();
    return texto.substr(desde, i - desde);
}

// Sex and muscling class in short: a male "G-Culón" is "M-GC", a female "Normal" is "H-N". A class known by genotype begins with a capital G.
std::string SexoYCularidad(std::string_view sexo, std::string_view clase) {
    std::string codigo(Letra(sexo, 0));
    codigo += clase.starts_with('G') ? "-G" : "-";
    codigo += Letra(clase, clase.starts_with('G') ? 2 : 0);
    return codigo;
}

std::string DelCiclo(std::string_view vaca, std::string_view año, std::string_view paridad, Recordset& r) {
    return " WHERE " + std::string(vaca) + " = " + NumeroSql(r["Id_Vaca"].Numero()) + " AND " +
           std::string(año) + " = " + NumeroSql(r["Año_Ref"].Numero()) + " AND " + std::string(paridad) +
           " = " + NumeroSql(r["N_Parto"].Numero());
}

} // namespace

std::string NombreDeVaca(Recordset& vaca) {
    auto nombre = vaca["NombreC"].Texto();
    return nombre.empty() ? vaca["Nombre"].Texto() : nombre;
}

const char* Completos(Recordset& registro) {
    const auto campo = registro["DatosCompletos"];
    return !campo.Nulo() && campo.Entero() == 0 ? "No" : "Sí";
}

std::optional<Fecha> FechaSiVale(Recordset& rs, std::string_view columna) {
    return rs[columna].FechaValor();
}

Valor TextoFecha(Recordset& rs, std::string_view columna, std::string_view mascara) {
    const auto fecha = rs[columna].FechaValor();
    return fecha ? Valor(FormatoFecha(*fecha, mascara)) : Valor();
}

void EscribirGanadero(Recordset& f, const GanaderoDeInforme& ganadero) {
    f["C1"] = ganadero.NombreYLugar();
    f["C2"] = ganadero.TextoTelefonos(Telefonos::ElQueHaya);
}

void EscribirVaca(Recordset& f, Recordset& vaca) {
    f["C3"] = vaca["Crotal"].Leer();
    f["C4"] = NombreDeVaca(vaca);
}

void EscribirParto(Recordset& f, Recordset& parto) {
    f["F1"] = FechaSiVale(parto, "Fecha_Parto");
    for (const auto& [columna, campo] : {std::pair{"C5", "Año_Ref"},
                                         {"C6", "N_Parto"},
                                         {"C7", "Semental"},
                                         {"C8", "OrigenTernero"},
                                         {"C9", "PesoNac"},
                                         {"C11", "Muere"},
                                         {"C12", "DifMamar"},
                                         {"C13", "Cria"},
                                         {"C14", "Suplem3m"},
                                         {"C15", "DESTINOTERNERO"},
                                         {"C16", "GDestete"},
                                         {"N1", "EdadDestete"},
                                         {"N3", "CuartosPerdidos"}})
        f[columna] = parto[campo].Leer();
    if (const auto sexo = parto["Sexo"].Texto(); !sexo.empty())
        f["C10"] = SexoYCularidad(sexo, parto["Cularidad"].Texto());
    f["C17"] = Completos(parto);
    f["F2"] = FechaSiVale(parto, "FechaDestete");
}

void EscribirCubricion(Conexion& c, Recordset& f, Recordset& vaca, Recordset& r) {
    const bool novilla = !r["N_Parto"].Nulo() && r["N_Parto"].Entero() == 0;
    f["C5"] = r["Año_Ref"].Leer();
    f["C6"] = r["N_Parto"].Leer();
    f["F1"] = novilla ? FechaSiVale(vaca, "FechaNac") : FechaSiVale(r, "Fecha_Parto");
    f["C8"] = TextoFecha(r, "FinicioP", "d/m/yy");
    f["F3"] = FechaSiVale(vaca, "FechaDesecho");
    f["C14"] = vaca["Desecho"].Leer();
    if (novilla)
        f["C15"] = r["IPR_CP"].Leer();
    else if (r["IEPc"].Numero() != 0)
        f["C15"] = r["IEPc"].Leer();
    f["C16"] = r["DescCausaPpal"].Leer();
    f["C17"] = Completos(r);
    f["F4"] = FechaSiVale(r, r["FechaRealParto"].Nulo() ? "FechaEspParto" : "FechaRealParto");
    if (r["N_Parto"].Nulo()) // nothing can belong to it
        return;
    const auto leer = [&](const std::string& sql) {
        return Recordset(c, sql, Cursor::Estatico, Bloqueo::SoloLectura);
    };
    if (auto p = leer("SELECT DifParto FROM T_Partos" + DelCiclo("Id_Vaca", "Año_Ref", "N_PARTO", r));
        !p.Eof())
        f["C7"] = p[0].Leer();
    if (auto cc = leer("SELECT CCmar, CCnov FROM T_CCVacas" + DelCiclo("Id_Vaca", "AñoRef", "NUMPARTO", r));
        !cc.Eof()) {
        f["C9"] = cc["CCmar"].Leer();
        f["C10"] = cc["CCnov"].Leer();
    }
    if (auto s = leer("SELECT Fecha_Servicio, Semental, N_Servicio FROM T_Servicios" +
                      DelCiclo("Id_Vaca", "Año_Ref", "N_PARTO", r) + " ORDER BY N_Servicio DESC");
        !s.Eof()) {
        f["F2"] = FechaSiVale(s, "Fecha_Servicio");
        f["C12"] = s["Semental"].Leer();
        f["C13"] = s["N_Servicio"].Leer();
    }
}

} // namespace pastorix
