#include "frame/calendario/Calendario.h"
#include "reports/figuras/Figuras.h"
#include "reports/figuras/FilasDeCiclo.h"
#include "store/Literales.h"
#include "store/TablaDeTrabajo.h"

namespace pastorix {

namespace {

// Where a cow stands in her cycle: what leads her line on the control sheet.
struct Situacion {
    std::string año;            // reference year that the line belongs to
    std::int64_t paridad = 0;   // of the calving that she is waiting for, or of her last one
    std::optional<Fecha> fecha; // that calving; the birth of a heifer that waits for none
};

Situacion SituacionDe(Recordset& vaca, Recordset& ultima) {
    Situacion s;
    s.paridad = ultima["N_Parto"].Entero();
    const auto añoRef = ultima["Año_Ref"].Entero();
    if (añoRef > 0)
        s.año = std::to_string(añoRef);
    const auto esperada = FechaSiVale(ultima, "FechaEspParto");
    if (s.paridad == 0 && esperada) {
        // She stands one calving on, whether it has come or not.
        if (const auto real = FechaSiVale(ultima, "FechaRealParto")) {
            s.fecha = real;
            s.año = AñoReferenciaDe(FormatoFecha(*real, "dd/mm/yyyy"));
        } else {
            s.fecha = esperada;
        }
        ++s.paridad;
    } else if (s.paridad == 0) {
        s.fecha = FechaSiVale(vaca, "FechaNac");
    } else if (esperada) {
        s.fecha = esperada;
        ++s.paridad;
    } else {
        s.fecha = FechaSiVale(ultima, "Fecha_Parto");
    }
    if (añoRef == 0)
        s.año = AñoReferenciaActual();
    return s;
}

// The newest service of a mating record, by the parity as it is there, before any calving is added to it.
void EscribirServicio(Conexion& c, Recordset& f, double vaca, Recordset& ultima) {
    Recordset s(c,
                "SELECT N_Servicio, Fecha_Servicio, Semental FROM T_Servicios WHERE Id_Vaca = " +
                    NumeroSql(vaca) + " AND Año_Ref = " + NumeroSql(ultima["Año_Ref"].Numero()) +
                    " AND N_Parto = " + NumeroSql(ultima["N_Parto"].Numero()) +
                    " ORDER BY N_Servicio DESC, N_PARTO DESC",
                Cursor::Estatico, Bloqueo::SoloLectura);
    if (s.Eof())
        return;
    f["F2"] = FechaSiVale(s, "Fecha_Servicio");
    if (const auto semental = s["Semental"].Texto(); !semental.empty())
        f["C7"] = semental;
    f["C8"] = s["N_Servicio"].Leer();
}

void EscribirLinea(Conexion& c, Recordset& f, Recordset& vaca, const GanaderoDeInforme& ganadero) {
    f["C1"] = ganadero.NombreYLugar();
    f["C2"] = ganadero.TextoTelefonos(Telefonos::MovilSiHay);
    const auto crotal = vaca["Crotal"].Texto();
    f["C3"] = crotal.empty() ? " " : crotal;
    f["C4"] = NombreDeVaca(vaca);
    const double id = vaca["Id_Vaca"].Numero();
    Recordset ultima(c,
                     "SELECT Año_Ref, N_Parto, Fecha_Parto, FechaEspParto, FechaRealParto FROM T_Cubriciones "
                     "WHERE Id_Vaca = " +
                         NumeroSql(id) + " ORDER BY Año_Ref DESC, FECHA_PARTO DESC",
                     Cursor::Estatico, Bloqueo::SoloLectura);
    Situacion s;
    if (!ultima.Eof()) {
        EscribirServicio(c, f, id, ultima);
        s = SituacionDe(vaca, ultima);
    } else {
        s.fecha = FechaSiVale(vaca, "FechaNac");
        s.año = AñoReferenciaActual();
    }
    f["C5"] = s.año;
    f["C6"] = s.paridad;
    f["F1"] = s.fecha;
    f["C9"] = vaca["Chekeo"].Leer();
    f["M1"] = vaca["ObsControlRebaño"].Leer();
}

} // namespace

bool LlenarControlRebaño(Conexion& c, const std::vector<double>& ganaderos, const AvanceDeInforme& avance) {
    EnGrupo(c, [&] {
        VaciarTabla(c, "X_Temp");
        TablaDeTrabajo tabla(c, "X_Temp");
        Recordset vacas(c,
                        "SELECT T_Ganaderos.Id_Ganadero, T_Vacas.Id_Vaca, T_Vacas.Nombre, T_Vacas.NombreC, "
                        "T_Vacas.FechaNac, T_Vacas.ObsControlRebaño, T_Vacas.Chekeo, T_Vacas.Crotal FROM "
                        "T_Ganaderos INNER JOIN T_Vacas ON T_Ganaderos.Id_Ganadero = T_Vacas.Id_Ganadero "
                        "WHERE (T_Vacas.FechaBaja) Is Null" +
                            FiltroGanaderos(ganaderos) + " ORDER BY T_Vacas.Chekeo DESC",
                        Cursor::Estatico, Bloqueo::SoloLectura);
        const auto total = static_cast<int>(vacas.Contar());
        GanaderoDeInforme ganadero;
        for (int hechas = 0; !vacas.Eof(); vacas.Siguiente()) {
            if (const double id = vacas["Id_Ganadero"].Numero(); id != ganadero.id)
                ganadero = LeerGanadero(c, id);
            if (avance)
                avance(++hechas, total);
            EscribirLinea(c, tabla.Fila(), vacas, ganadero);
        }
        tabla.Cerrar();
    });
    return true;
}

} // namespace pastorix
