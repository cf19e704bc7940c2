#include "frame/PuestaAlDia.h"

#include "frame/Ajustes.h"
#include "frame/calendario/Formatos.h"
#include "frame/calendario/Reloj.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <array>

namespace pastorix {

namespace {

constexpr int VersionActual = 309;

// Statements 4 and 12 together leave Null where DescCausaPPal was empty or 0; their order matters.
constexpr std::array<std::string_view, 13> ListaReparaciones{
    "DELETE FROM T_SERVICIOS WHERE (((N_PARTO) Is Null))",
    "UPDATE T_Cubriciones SET T_Cubriciones.EnfReprod = 0 WHERE (((T_Cubriciones.EnfReprod) Is Null));",
    "UPDATE T_Cubriciones SET T_Cubriciones.Enfermendad = 0 WHERE (((T_Cubriciones.Enfermendad) Is Null));",
    "UPDATE T_Cubriciones SET T_Cubriciones.DescCausaPPal = 0 WHERE (((T_Cubriciones.DescCausaPPal) Is "
    "Null));",
    "DELETE FROM T_PARTOS WHERE N_PARTO=0",
    "ALTER TABLE T_Cubriciones ADD COLUMN DemoraServIPR DOUBLE",
    "UPDATE T_Cubriciones SET T_Cubriciones.DemoraServIPR = [T_Cubriciones]![Desconocida]",
    "ALTER TABLE T_Cubriciones DROP COLUMN Desconocida",
    "UPDATE T_Cubriciones SET DescEnfReprod = Null WHERE DescEnfReprod ='0'",
    "UPDATE T_Cubriciones SET DescEnfermedad = Null WHERE DescEnfermedad ='0'",
    "UPDATE T_Cubriciones SET Txt_Otra_Causa = Null WHERE Txt_Otra_Causa ='0'",
    "UPDATE T_Cubriciones SET DescCausaPpal= Null WHERE DescCausaPpal ='0'",
    "ALTER TABLE T_Cebo ADD COLUMN Cambiado DOUBLE",
};

// The statements that rename Desconocida to DemoraServIPR and keep its values. Half of them would lose a column.
constexpr std::size_t PrimeraDelCambioDeNombre = 5;
constexpr std::size_t UltimaDelCambioDeNombre = 7;

// A column that is there already, or gone: what the statement is for has been done before.
bool YaEstaba(const ErrorAlmacen& error) {
    return error.Codigo() == CodigoError::Restriccion || error.Codigo() == CodigoError::ColumnaDesconocida;
}

void RepararJuntas(Conexion& conexion, std::span<const std::string_view> sentencias) {
    TodoONada(conexion, [&] {
        for (const std::string_view sentencia : sentencias) {
            try {
                conexion.Execute(sentencia);
            } catch (const ErrorAlmacen& error) {
                if (!YaEstaba(error))
                    throw;
            }
        }
    });
}

// Adds the cow's row of the year to one table unless she has one. True when it was added.
bool AbrirAño(Conexion& conexion, std::string_view tabla, double idGanadero, double idVaca,
              const std::string& año) {
    const std::string sentencia = "SELECT * FROM " + std::string(tabla) +
                                  " WHERE Id_Vaca = " + NumeroSql(idVaca) + " AND AÑONAT = " + año;
    Recordset rs(conexion, sentencia);
    if (!rs.Eof())
        return false;
    rs.AddNew();
    rs["Id_Ganadero"] = idGanadero;
    rs["Id_Vaca"] = idVaca;
    rs["AñoNat"] = año;
    rs.Update();
    return true;
}

} // namespace

std::span<const std::string_view> Reparaciones() {
    return ListaReparaciones;
}

void Reparar(Conexion& conexion) {
    EnGrupo(conexion, [&] {
        const std::span lista(ListaReparaciones);
        for (std::size_t i = 0; i < lista.size();) {
            const std::size_t cuantas =
                i == PrimeraDelCambioDeNombre ? UltimaDelCambioDeNombre - PrimeraDelCambioDeNombre + 1 : 1;
            try {
                RepararJuntas(conexion, lista.subspan(i, cuantas));
            } catch (const ErrorAlmacen& error) {
                if (error.DelFichero())
                    throw;
            }
            i += cuantas;
        }
    });
}

void ActualizarVersion(Conexion&) {}

void PasarVersion(Conexion& conexion, int base) {
    const QString clave = QStringLiteral("Version_") + QString::number(base);
    if (Val(GetSetting(clave).toStdString()) < VersionActual) {
        ActualizarVersion(conexion);
        SaveSetting(clave, QString::number(VersionActual));
    }
}

long InicializarAñosNaturales(Conexion& conexion, const FuncionAvance& avance) {
    constexpr std::array<std::string_view, 4> tablas{"T_CCNATVACAS", "T_IBRBVD", "T_NEOSPIROSIS",
                                                     "T_MAMIVACU"};
    const std::string año = FormatoFecha(Hoy(), "yyyy");
    return EnGrupo(conexion, [&] {
        Recordset vacas(conexion, "SELECT * FROM T_Vacas WHERE ((FECHABAJA) Is Null) ORDER BY ID_VACA");
        const int total = static_cast<int>(vacas.Contar());
        long añadidas = 0;
        for (int hechas = 0; !vacas.Eof(); vacas.Siguiente(), ++hechas) {
            if (avance)
                avance(hechas, total);
            const double idVaca = vacas["Id_Vaca"].Numero();
            const double idGanadero = vacas["Id_Ganadero"].Numero();
            for (const std::string_view tabla : tablas)
                if (AbrirAño(conexion, tabla, idGanadero, idVaca, año))
                    ++añadidas;
        }
        return añadidas;
    });
}

} // namespace pastorix
