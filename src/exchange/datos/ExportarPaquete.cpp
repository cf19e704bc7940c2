#include "exchange/datos/ExportarPaquete.h"

#include "exchange/datos/Recorridos.h"
#include "frame/calendario/Formatos.h"
#include "store/Literales.h"
#include "store/Recordset.h"
#include "store/Reemplazo.h"

namespace pastorix {

namespace fs = std::filesystem;

namespace {

class Reduccion {
public:
    Reduccion(Conexion& copia, std::vector<double> seQuedan, const Progreso& progreso)
        : m_copia(copia)
        , m_seQuedan(std::move(seQuedan))
        , m_progreso(progreso) {}

    void Hacer() {
        for (const auto& paso : PasosDeSalida()) {
            switch (paso.clase) {
            case ClaseDePaso::Tabla:
                m_copia.Execute("DELETE FROM " + std::string(paso.tabla) + DondeSobran("Id_Ganadero"));
                break;
            case ClaseDePaso::HijosDeVacas:
                QuitarHijosDeVacas();
                break;
            case ClaseDePaso::Ganaderos:
                QuitarGanaderos();
                break;
            case ClaseDePaso::HijosDeToros:
                QuitarHijosDeToros();
                break;
            }
            Mostrar(paso.despues);
        }
    }

private:
    void Mostrar(int porcentaje) {
        if (porcentaje != kSinProgreso)
            m_progreso(porcentaje);
    }

    std::string DondeSobran(const std::string& columna) const {
        return Cadena(" WHERE " + columna + " <> ", " AND " + columna + " <> ", m_seQuedan);
    }

    void QuitarHijosDeVacas() {
        const auto vacas =
            Numeros(m_copia, "SELECT Id_Vaca FROM T_Vacas" + DondeSobran("Id_Ganadero"), "Id_Vaca");
        const auto total = static_cast<double>(vacas.size());
        for (std::size_t i = 0; i < vacas.size(); ++i) {
            Mostrar(static_cast<int>(AEntero(static_cast<double>(i + 1) * 70 / total)));
            for (const char* tabla : TablasDeVaca())
                m_copia.Execute("DELETE FROM " + std::string(tabla) +
                                " WHERE ID_Vaca = " + NumeroSql(vacas[i]));
        }
    }

    // An address goes with the farmer it is joined to; those of veterinarians whose code is no farmer's stay.
    void QuitarGanaderos() {
        Recordset rs(m_copia, "SELECT T_Ganaderos.*, T_Direcciones.* FROM T_Ganaderos INNER JOIN "
                              "T_Direcciones ON T_Ganaderos.Id_Ganadero = T_Direcciones.Id_GV" +
                                  DondeSobran("Id_GV"));
        Mostrar(72);
        for (; !rs.Eof(); rs.Siguiente())
            rs.Delete();
        rs.Cerrar();
        m_copia.Execute("DELETE FROM T_Ganaderos" + DondeSobran("Id_Ganadero"));
    }

    void QuitarHijosDeToros() {
        for (const double toro : Numeros(
                 m_copia, "SELECT Id_Semental FROM T_Sementales" + DondeSobran("Id_Ganadero"), "Id_Semental"))
            for (const char* tabla : TablasDeToro())
                m_copia.Execute("DELETE FROM " + std::string(tabla) +
                                " WHERE Id_Animal = " + NumeroSql(toro));
    }

    Conexion& m_copia;
    std::vector<double> m_seQuedan;
    const Progreso& m_progreso;
};

std::vector<double> GanaderosDe(Conexion& copia, const std::string& usuario) {
    Recordset veterinario(copia, "Select * FROM T_Veterinarios WHERE Usuario = " + TextoSql(usuario),
                          Cursor::Keyset, Bloqueo::SoloLectura);
    if (veterinario.Eof())
        throw ErrorDeIntercambio("No hay ningún veterinario con el usuario " + usuario);
    const auto id = veterinario["Id_Veterinario"];
    if (id.Nulo())
        throw ErrorDeIntercambio("El veterinario " + usuario + " no tiene código");
    auto ganaderos = Numeros(copia,
                             "Select * FROM T_Ganaderos WHERE Id_Veterinario = " + NumeroSql(id.Numero()) +
                                 " OR TorosComun = 'Sí'",
                             "Id_Ganadero");
    if (ganaderos.empty())
        throw ErrorDeIntercambio(
            "El veterinario " + usuario +
            " no tiene ganaderos, ni los hay con toros comunes: no hay nada que exportar");
    return ganaderos;
}

} // namespace

long ReducirAPaquete(Conexion& copia, const std::string& usuario, const std::string& equipo,
                     const Progreso& progreso) {
    auto ganaderos = GanaderosDe(copia, usuario);
    const auto cuantos = static_cast<long>(ganaderos.size());
    progreso(14);
    EnGrupo(copia, [&] {
        copia.Execute("DELETE FROM Historial WHERE Equipo <> " + TextoSql(equipo));
        Reduccion(copia, std::move(ganaderos), progreso).Hacer();
    });
    return cuantos;
}

long ExportarPaquete(const fs::path& copia, const fs::path& destino, const std::string& usuario,
                     const std::string& equipo, const Progreso& progreso) {
    long cuantos = 0;
    {
        auto conexion = AbrirDeTrabajo(copia);
        progreso(2);
        cuantos = ReducirAPaquete(conexion, usuario, equipo, progreso);
    }
    CompactarBase(copia, destino);
    return cuantos;
}

} // namespace pastorix
