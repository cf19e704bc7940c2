#include "reproduction/datos/Avisos.h"

#include "frame/calendario/Calendario.h"
#include "reproduction/datos/DatosDeCiclo.h"
#include "reproduction/datos/Limites.h"
#include "store/Literales.h"
#include "store/Recordset.h"
#include "store/TablaDeTrabajo.h"

#include <algorithm>
#include <functional>
#include <map>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace pastorix {

namespace {

template <typename Recibir>
void Leer(Conexion& c, const std::string& sentencia, Recibir recibir) {
    for (Recordset rs(c, sentencia, Cursor::Estatico, Bloqueo::SoloLectura); !rs.Eof(); rs.Siguiente())
        recibir(rs);
}

std::string Corta(Fecha fecha) {
    return FormatoFecha(fecha, "dd/mm/yy");
}

std::string Dias(int dias) {
    return std::to_string(dias) + (dias == 1 ? " día" : " días");
}

// A mating record with what a notice looks at.
struct Registro {
    std::int64_t año = 0;
    std::int64_t parto = 0;
    DatosDeCiclo datos;
    std::optional<Fecha> esperado;
    bool controlado = false;
    bool completo = false;
    std::vector<Fecha> servicios;
};

struct Vaca {
    Aviso base;                      // who she is
    std::vector<Registro> registros; // by year and parity
};

// Cows in the herd with their records of the last years.
class Rebaño {
public:
    Rebaño(Conexion& c, int desde) {
        LeerVacas(c);
        const auto años = " WHERE Año_Ref >= " + std::to_string(desde);
        Leer(c,
             "SELECT Id_Vaca, Año_Ref, N_Parto, Fecha_Parto, FechaIPR, FechaRealParto, FechaEspParto, "
             "Estado, Controles, "
             "DatosCompletos FROM T_Cubriciones" +
                 años + " ORDER BY Id_Vaca, Año_Ref, N_Parto",
             [&](Recordset& rs) { PonerRegistro(rs); });
        Leer(c,
             "SELECT Id_Vaca, Año_Ref, N_Parto, Fecha_Servicio FROM T_Servicios" + años +
                 " ORDER BY N_Servicio",
             [&](Recordset& rs) { PonerServicio(rs); });
    }

    template <typename Mirar>
    void Recorrer(Mirar mirar) const {
        for (const auto& [id, vaca] : m_vacas)
            if (!vaca.registros.empty())
                mirar(vaca);
    }

private:
    void LeerVacas(Conexion& c) {
        std::unordered_map<double, std::string> ganaderos;
        Leer(c, "SELECT Id_Ganadero, Apodo, Nombre, Apellidos FROM T_Ganaderos WHERE FechaBaja Is Null",
             [&](Recordset& rs) {
                 ganaderos[rs[0].Numero()] =
                     rs[1].Nulo() ? rs[2].Texto() + " " + rs[3].Texto() : rs[1].Texto();
             });
        Leer(c,
             "SELECT Id_Vaca, Id_Ganadero, NombreC, Nombre, Crotal FROM T_Vacas WHERE FechaDesecho Is Null "
             "AND FechaBaja Is Null",
             [&](Recordset& rs) {
                 const auto ganadero = ganaderos.find(rs[1].Numero());
                 if (ganadero == ganaderos.end())
                     return;
                 auto& vaca = m_vacas[rs[0].Numero()].base;
                 vaca.idVaca = rs[0].Numero();
                 vaca.idGanadero = rs[1].Numero();
                 vaca.ganadero = ganadero->second;
                 vaca.vaca = rs[2].Nulo() ? rs[3].Texto() : rs[2].Texto();
                 vaca.crotal = rs[4].Texto();
             });
    }

    void PonerRegistro(Recordset& rs) {
        const auto vaca = m_vacas.find(rs[0].Numero());
        if (vaca == m_vacas.end())
            return;
        Registro r;
        r.año = rs[1].Entero();
        r.parto = rs[2].Entero();
        r.datos.fechaParto = rs[3].FechaValor();
        r.datos.fechaIPR = rs[4].FechaValor();
        r.datos.fechaRealParto = rs[5].FechaValor();
        r.esperado = rs[6].FechaValor();
        r.datos.estado = EstadoDe(rs[7].Texto());
        r.controlado = !rs[8].Texto().empty();
        r.completo = rs[9].Numero() != 0;
        vaca->second.registros.push_back(std::move(r));
    }

    void PonerServicio(Recordset& rs) {
        const auto vaca = m_vacas.find(rs[0].Numero());
        const auto fecha = rs[3].FechaValor();
        if (vaca == m_vacas.end() || !fecha)
            return;
        for (auto& r : vaca->second.registros)
            if (r.año == rs[1].Entero() && r.parto == rs[2].Entero())
                r.servicios.push_back(*fecha);
    }

    std::map<double, Vaca> m_vacas;
};

// The notices of one cow, as they come.
class Redactor {
public:
    Redactor(const Vaca& vaca, Fecha hoy, std::vector<Aviso>& avisos)
        : m_vaca(vaca)
        , m_hoy(hoy)
        , m_avisos(avisos) {}

    void Todo() {
        const auto añoAnterior = AñoReferenciaPropio(m_hoy) - 1;
        EnCurso(m_vaca.registros.back());
        for (const auto& r : m_vaca.registros) {
            if (r.año == añoAnterior && !r.completo)
                Poner(ClaseAviso::Incompleto, r.datos.fechaParto.value_or(m_hoy),
                      "El registro de " + std::to_string(r.año) + ", parto " + std::to_string(r.parto) +
                          ", no tiene los datos completos");
            if (r.año >= añoAnterior)
                Imposibles(r);
        }
    }

private:
    void Poner(ClaseAviso clase, Fecha fecha, std::string texto) {
        Aviso aviso = m_vaca.base;
        aviso.clase = clase;
        aviso.fecha = fecha;
        aviso.texto = std::move(texto);
        m_avisos.push_back(std::move(aviso));
    }

    // The cycle that waits for its calving.
    void EnCurso(const Registro& r) {
        if (r.datos.fechaRealParto)
            return;
        const bool preñada = r.datos.estado == EstadoReproductivo::Preñada;
        if (preñada && r.esperado) {
            const int faltan = r.esperado->dia - m_hoy.dia;
            if (faltan < 0)
                Poner(ClaseAviso::PartoAtrasado, *r.esperado,
                      "Se esperaba el " + Corta(*r.esperado) + ", hace " + Dias(-faltan));
            else if (faltan <= kDiasDePartoProximo)
                Poner(ClaseAviso::PartoProximo, *r.esperado,
                      "Se espera el " + Corta(*r.esperado) +
                          (faltan == 0 ? ", hoy" : ", en " + Dias(faltan)));
        }
        if (r.datos.estado == EstadoReproductivo::Ninguno && !r.servicios.empty())
            if (const auto desde = r.servicios.back().MasDias(kDiasDiagnostico); desde.dia <= m_hoy.dia)
                Poner(ClaseAviso::Diagnostico, desde,
                      "Último servicio el " + Corta(r.servicios.back()) + ", sin diagnóstico desde hace " +
                          Dias(m_hoy.dia - r.servicios.back().dia));
        if (const auto control = D40PostParto(r.datos); control && !r.controlado && r.servicios.empty() &&
                                                        control->dia <= m_hoy.dia &&
                                                        m_hoy.dia <= control->dia + kDiasDeControl)
            Poner(ClaseAviso::Control, *control,
                  "Parió el " + Corta(*r.datos.fechaParto) + "; el control era el " + Corta(*control));
        if (r.datos.fechaIPR && !preñada && m_hoy.dia - r.datos.fechaIPR->dia >= kDiasIPREnRojo)
            Poner(ClaseAviso::VacaAbierta, *r.datos.fechaIPR,
                  Dias(m_hoy.dia - r.datos.fechaIPR->dia) +
                      " desde el inicio de su periodo reproductivo, el " + Corta(*r.datos.fechaIPR));
    }

    void Imposibles(const Registro& r) {
        const auto reparo = [&](std::optional<Fecha> fecha, const std::string& texto) {
            if (!texto.empty())
                Poner(ClaseAviso::Imposible, fecha.value_or(m_hoy),
                      std::to_string(r.año) + ", parto " + std::to_string(r.parto) + ": " + texto);
        };
        reparo(r.datos.fechaParto, ReparoDeParto(r.datos.fechaParto, m_hoy));
        reparo(r.datos.fechaRealParto, ReparoDeParto(r.datos.fechaRealParto, m_hoy));
        for (const auto& servicio : r.servicios) {
            reparo(servicio, ReparoDeServicio(servicio, r.datos.fechaParto, {}));
            if (servicio.dia > m_hoy.dia)
                reparo(servicio, "El servicio del " + Corta(servicio) + " está por llegar");
        }
        if (!r.servicios.empty())
            reparo(r.datos.fechaRealParto, ReparoDeGestacion(r.servicios.back(), r.datos.fechaRealParto));
    }

    const Vaca& m_vaca;
    const Fecha m_hoy;
    std::vector<Aviso>& m_avisos;
};

} // namespace

const char* NombreDe(ClaseAviso clase) {
    switch (clase) {
    case ClaseAviso::PartoAtrasado:
        return "Parto atrasado";
    case ClaseAviso::PartoProximo:
        return "Parto próximo";
    case ClaseAviso::Diagnostico:
        return "Diagnóstico";
    case ClaseAviso::Control:
        return "Control posparto";
    case ClaseAviso::VacaAbierta:
        return "Sin preñar";
    case ClaseAviso::Incompleto:
        return "Datos incompletos";
    case ClaseAviso::Imposible:
        return "Fecha imposible";
    }
    return "";
}

std::vector<Aviso> LeerAvisos(Conexion& c, Fecha hoy) {
    std::vector<Aviso> avisos;
    const Rebaño rebaño(c, AñoReferenciaPropio(hoy) - 2);
    rebaño.Recorrer([&](const Vaca& vaca) { Redactor(vaca, hoy, avisos).Todo(); });
    std::stable_sort(avisos.begin(), avisos.end(), [](const Aviso& a, const Aviso& b) {
        return std::tie(a.clase, a.fecha) < std::tie(b.clase, b.fecha);
    });
    return avisos;
}

void EscribirAvisos(Conexion& c, const std::vector<Aviso>& avisos) {
    VaciarTabla(c, "X_Temp");
    TablaDeTrabajo tabla(c, "X_Temp");
    for (const auto& a : avisos) {
        auto& fila = tabla.Fila();
        fila["C1"] = NombreDe(a.clase);
        fila["C2"] = a.ganadero;
        fila["C3"] = a.vaca;
        fila["C4"] = a.crotal;
        fila["C5"] = a.texto;
    }
    tabla.Cerrar();
}

} // namespace pastorix
