#include "exchange/datos/FundirPaquete.h"

#include "exchange/datos/Recorridos.h"
#include "frame/calendario/Formatos.h"
#include "store/CopiaDeFilas.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <span>

namespace pastorix {

namespace {

constexpr const char* kConDireccion = " FROM T_Ganaderos INNER JOIN T_Direcciones ON T_Ganaderos.Id_Ganadero "
                                      "= T_Direcciones.Id_GV";

class Fusion {
public:
    Fusion(Conexion& paquete, Conexion& copia, std::vector<double> ganaderos, const Progreso& progreso)
        : m_paquete(paquete)
        , m_copia(copia)
        , m_ganaderos(std::move(ganaderos))
        , m_progreso(progreso) {}

    void Hacer() {
        for (const auto& paso : PasosDeEntrada()) {
            switch (paso.clase) {
            case ClaseDePaso::Tabla:
                PasarTabla(paso);
                break;
            case ClaseDePaso::HijosDeVacas:
                PasarHijos("T_Vacas", "Id_Vaca", "ID_Vaca", TablasDeVaca(), true);
                break;
            case ClaseDePaso::Ganaderos:
                PasarGanaderos(paso);
                break;
            case ClaseDePaso::HijosDeToros:
                PasarHijos("T_Sementales", "Id_Semental", "Id_Animal", TablasDeToro(), false);
                break;
            }
            Mostrar(paso.trasCopiar);
        }
    }

private:
    void Mostrar(int porcentaje) {
        if (porcentaje != kSinProgreso)
            m_progreso(porcentaje > 100 ? 77 : porcentaje); // a count that runs over is no more than that
    }

    std::string DeEllos(const std::string& columna = "Id_Ganadero") const {
        return Cadena(" WHERE " + columna + " = ", " OR " + columna + " = ", m_ganaderos);
    }

    void PasarTabla(const PasoDeEntrada& paso) {
        const std::string tabla = paso.tabla;
        m_copia.Execute("DELETE FROM " + tabla + DeEllos());
        Mostrar(paso.trasBorrar);
        CopiarFilas(m_paquete,
                    "Select * FROM " + tabla +
                        (paso.soloSuyos ? DeEllos() : " ORDER BY " + std::string(paso.orden)),
                    m_copia, tabla);
    }

    // The animals are those of the package: what hangs from one that it has no more stays where it is.
    void PasarHijos(const std::string& animales, const std::string& clave, const std::string& columna,
                    std::span<const char* const> tablas, bool contar) {
        const auto suyos = Numeros(m_paquete, "SELECT " + clave + " FROM " + animales + DeEllos(), clave);
        std::vector<CopiaDeFilas> copias;
        copias.reserve(tablas.size());
        for (const char* tabla : tablas)
            copias.emplace_back(m_copia, tabla);
        for (std::size_t i = 0; i < suyos.size(); ++i) {
            if (contar)
                Mostrar(static_cast<int>(
                    AEntero(static_cast<double>(i + 1) * 70 / static_cast<double>(suyos.size()))));
            for (std::size_t t = 0; t < tablas.size(); ++t) {
                const auto cola =
                    " FROM " + std::string(tablas[t]) + " WHERE " + columna + " = " + NumeroSql(suyos[i]);
                m_copia.Execute("DELETE" + cola);
                copias[t].Copiar(m_paquete, "Select *" + cola);
            }
        }
    }

    void PasarGanaderos(const PasoDeEntrada& paso) {
        Recordset rs(m_copia,
                     std::string("SELECT T_Ganaderos.*, T_Direcciones.*") + kConDireccion + DeEllos("Id_GV"));
        for (; !rs.Eof(); rs.Siguiente())
            rs.Delete();
        rs.Cerrar();
        m_copia.Execute("DELETE FROM T_Ganaderos" + DeEllos());
        CopiarFilas(m_paquete, "Select * FROM T_Ganaderos WHERE TorosComun = 'No' ORDER BY Id_Ganadero",
                    m_copia, "T_Ganaderos");
        Mostrar(paso.trasBorrar);
        // The address' own Id_Direccion, not the farmer's column of that name.
        CopiarFilas(m_paquete, std::string("SELECT T_Direcciones.*") + kConDireccion + DeEllos("Id_GV"),
                    m_copia, "T_Direcciones");
    }

    Conexion& m_paquete;
    Conexion& m_copia;
    std::vector<double> m_ganaderos;
    const Progreso& m_progreso;
};

} // namespace

std::vector<double> GanaderosDelPaquete(Conexion& paquete) {
    return Numeros(paquete, "Select * FROM T_Ganaderos WHERE TorosComun = 'No' ORDER BY Id_Ganadero",
                   "Id_Ganadero");
}

void FundirPaquete(Conexion& paquete, Conexion& copia, const std::string& usuario, const Progreso& progreso) {
    progreso(2);
    auto ganaderos = GanaderosDelPaquete(paquete);
    if (ganaderos.empty())
        throw PaqueteSinGanaderos();
    EnGrupo(copia, [&] {
        copia.Execute("DELETE FROM Historial WHERE Equipo = " + TextoSql(usuario));
        CopiarFilas(paquete, "Select * FROM Historial", copia, "Historial");
        Fusion(paquete, copia, std::move(ganaderos), progreso).Hacer();
    });
    progreso(100);
}

} // namespace pastorix
