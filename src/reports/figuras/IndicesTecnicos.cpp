#include "frame/calendario/Formatos.h"
#include "reports/figuras/CifrasTecnicas.h"
#include "reports/figuras/DesteteYCebo.h"
#include "reports/figuras/Figuras.h"
#include "reports/figuras/GanaderoDeInforme.h"
#include "reports/indices/IndicesTec.h"
#include "store/Literales.h"
#include "store/Recordset.h"
#include "store/TablaDeTrabajo.h"

#include <array>
#include <string>

namespace pastorix {

namespace {

constexpr std::array<const char*, 12> kTablas{"X_Temp",      "X_Temp1", "X_Tmp3", "X_Temp2",
                                              "X_TempGraph", "X_Tmp4",  "X_Tmp5", "X_Tmp6",
                                              "X_Tmp7",      "X_Tmp8",  "X_Tmp9", "X_Tmp10"};

// The blocks of one farmer's report, in the order in which they are written.
class Bloques {
public:
    Bloques(Conexion& c, double ganadero, std::string_view año)
        : m_c(c)
        , m_g(ganadero)
        , m_y(IsNumeric(año) ? NumeroEscrito(año).value_or(0) : 0)
        , m_fecha("30/11/" + std::string(año.substr(año.size() - 2)))
        , m_inicio(InicioDeAño(m_y))
        , m_periodo("(" + m_inicio + " - " + m_fecha + ")") {}

    void Cabecera(const GanaderoDeInforme& ganadero) {
        TablaDeTrabajo tabla(m_c, "X_Temp");
        auto& f = tabla.Fila();
        f["C1"] = TextoNumero(m_g);
        f["C2"] = ganadero.NombreYLugar();
        f["C3"] = ganadero.TextoTelefonos(Telefonos::MovilNoNulo);
        f["C4"] = TextoNumero(m_y);
        tabla.Cerrar();
    }

    // The heifers' figures repeat on every row: each row's label belongs to N1 and N2 alone.
    void Censo() {
        const double novillas = CensoVacasAFecha(m_c, m_g, m_y, m_fecha, NovillasEnCubricion);
        const double novillasIdas =
            BajasVacasEnPeriodo(m_c, m_g, m_inicio, m_fecha, m_y, NovillasEnCubricion);
        TablaDeTrabajo tabla(m_c, "X_Temp1");
        for (const auto& [rotulo, categoria] : kCategoriasDeVaca) {
            auto& f = tabla.Fila();
            f["Id_Ganadero"] = m_g;
            f["C1"] = "Censo a: " + m_fecha;
            f["C2"] = m_periodo;
            f["NCC"] = novillas;
            f["NCD"] = novillasIdas;
            f["T1"] = rotulo;
            f["N1"] = CensoVacasAFecha(m_c, m_g, m_y, m_fecha, categoria);
            f["N2"] = BajasVacasEnPeriodo(m_c, m_g, m_inicio, m_fecha, m_y, categoria);
        }
        tabla.Cerrar();
    }

    void Cularidades() {
        const std::array n{CensoPorCularidad(m_c, m_g, m_y, "G-Normal"),
                           CensoPorCularidad(m_c, m_g, m_y, "G-Aculonado"),
                           CensoPorCularidad(m_c, m_g, m_y, "G-Culón")};
        const double total = n[0] + n[1] + n[2];
        TablaDeTrabajo tabla(m_c, "X_Tmp3");
        auto& f = tabla.Fila();
        f["Id_Ganadero"] = m_g;
        constexpr std::array kColumnas{"N1", "N2", "N3"};
        for (std::size_t i = 0; i < n.size(); ++i)
            if (n[i] != 0)
                f[kColumnas[i]] = Porcentaje(n[i], total);
        tabla.Cerrar();
    }

    // Calvings by month from December to November; the sums by season go to the next table.
    void PartosPorMes() {
        TablaDeTrabajo tabla(m_c, "X_Temp2");
        for (std::size_t i = 0; i < kMesesDelAño.size(); ++i) {
            const auto [desde, hasta] = MesDelAño(m_y, i);
            auto& e = m_estaciones[i / 3];
            const double vacas = PartosEnPeriodo(m_c, m_g, desde, hasta, ">1", m_y);
            const double novillas = PartosEnPeriodo(m_c, m_g, desde, hasta, "=1", m_y);
            e[0] += vacas;
            e[1] += novillas;
            auto& f = tabla.Fila();
            f["Id_Ganadero"] = m_g;
            f["C1"] = m_periodo;
            f["Mes"] = kMesesDelAño[i];
            f["N1"] = vacas;
            f["N2"] = novillas;
        }
        tabla.Cerrar();
    }

    // Both columns are percentages of all calvings, not of their own column.
    void Estaciones() {
        double total = 0;
        for (const auto& e : m_estaciones)
            total += e[0] + e[1];
        TablaDeTrabajo tabla(m_c, "X_TempGraph");
        for (std::size_t i = 0; i < kEpocasDelAño.size(); ++i) {
            auto& f = tabla.Fila();
            f["Id_Ganadero"] = m_g;
            f["Periodo"] = kEpocasDelAño[i];
            f["N1"] = total > 0 ? Porcentaje(m_estaciones[i][0], total) : 0.0;
            f["N2"] = total > 0 ? Porcentaje(m_estaciones[i][1], total) : 0.0;
        }
        tabla.Cerrar();
    }

    void DesteteYCebo() {
        TablaDeTrabajo tabla(m_c, "X_Tmp4");
        auto& f = tabla.Fila();
        f["Id_Ganadero"] = m_g;
        for (const auto& [criterio, n, edad, peso, ganancia] :
             {std::tuple{"=", "NTN", "EdadN", "PesoN", "GDN"}, {">", "NTV", "EdadV", "PesoV", "GDV"}}) {
            f[n] = TernerosDestetados(m_c, m_g, m_y, criterio);
            f[edad] = EdadMediaDestete(m_c, m_g, m_y, criterio);
            f[peso] = PesoMedioDestete(m_c, m_g, m_y, criterio);
            f[ganancia] = GananciaMediaDestete(m_c, m_g, m_y, criterio);
        }
        f["NacidosIns"] = PorcentajeNacidosIA(m_c, m_g, m_y);
        CularidadesDestetados(f);
        Cebo(f);
        tabla.Cerrar();
    }

    void IntervalosEntrePartos() {
        TablaDeTrabajo tabla(m_c, "X_Tmp6");
        constexpr std::array kColumnas{std::pair{"N", "N1"}, std::pair{"N2", "N3"}, std::pair{"N5", "N6"}};
        for (const auto& grupo : kGruposDeIntervalo) {
            auto& f = tabla.Fila();
            f["Id_Ganadero"] = m_g;
            f["Texto"] = grupo.texto;
            for (std::size_t i = 0; i < kColumnas.size(); ++i) {
                const auto [n, media] =
                    ContarYPromediar(m_c, Intervalos(m_g, m_y, grupo, kTramosDeIntervalo[i]));
                f[kColumnas[i].first] = n;
                f[kColumnas[i].second] = Round(media);
            }
        }
        auto& f = tabla.Fila();
        f["Id_Ganadero"] = m_g;
        f["Texto"] = "Preñez no confirmada";
        Recordset rs(m_c, "SELECT Count(T_Cubriciones.Id_Vaca) AS N" + CubricionesDeGanaderoYAño(m_g, m_y) +
                              " AND T_Cubriciones.DatosCompletos=0");
        f["N"] = rs.Eof() ? "( 0 )" : "( " + TextoNumero(rs["N"].Numero()) + " )";
        tabla.Cerrar();
    }

    void Mortalidad() {
        const double partos = PartosDelAño(m_c, m_g, m_y);
        double total = 0;
        TablaDeTrabajo tabla(m_c, "X_Tmp7");
        for (const auto& causa : kCausasDeMuerte) {
            const double n = Contar(m_c, MuertosPor(m_g, m_y, causa));
            total += n;
            auto& f = tabla.Fila();
            f["Id_Ganadero"] = m_g;
            f["Texto"] = causa.texto;
            f["N"] = n;
            if (partos != 0)
                f["N1"] = Porcentaje(n, partos);
        }
        auto& f = tabla.Fila();
        f["Id_Ganadero"] = m_g;
        f["Texto"] = "Total";
        f["N"] = total;
        f["N1"] = partos != 0 ? Porcentaje(total, partos) : 0.0;
        tabla.Cerrar();
    }

    void Perdidas() {
        constexpr const char* kTerneros = "  Terneros";
        const double preñez = PerdidaPreñezTardia(m_c, m_g, m_y);
        const double muertos = TernerosMuertos(m_c, m_g, m_y);
        const double partos = PartosDelAño(m_c, m_g, m_y);
        TablaDeTrabajo tabla(m_c, "X_Tmp8");
        const auto fila = [&](const char* texto) -> Recordset& {
            auto& f = tabla.Fila();
            f["Id_Ganadero"] = m_g;
            f["Texto"] = texto;
            return f;
        };
        fila("Por Preñez Tardía")["N"] = FormatoNumero(preñez, "#####0.0") + kTerneros;
        fila("Por Mortalidad Terneros")["N"] = TextoNumero(muertos) + kTerneros;
        fila("Pérdida Total")["N"] = FormatoNumero(preñez + muertos, "####0.0") + kTerneros;
        auto& f = fila("% Pérdida");
        if (partos != 0)
            f["N"] = TextoNumero(Porcentaje(preñez + muertos, partos));
        tabla.Cerrar();
    }

private:
    void CularidadesDestetados(Recordset& f) const {
        const auto n = [&](const std::string& clase) {
            return static_cast<double>(DestetadosPorCularidad(m_c, m_g, m_y, clase) +
                                       DestetadosPorCularidad(m_c, m_g, m_y, "G-" + clase));
        };
        const double normales = n("Normal");
        const double aculonados = n("Aculonado");
        const double culones = n("Culón");
        const double total = normales + aculonados + culones;
        f["Normales"] = normales;
        f["Aculonados"] = aculonados;
        f["Culones"] = culones;
        f["TotalCC"] = total;
        if (total != 0) {
            f["PN"] = Porcentaje(normales, total);
            f["PA"] = Porcentaje(aculonados, total);
            f["PC"] = Porcentaje(culones, total);
        }
    }

    // P_CEBOSMP holds the deaths and P_CEBOSHP the animals fattened per 100 calvings, whatever their names suggest.
    void Cebo(Recordset& f) const {
        const double machos = TernerosCebados(m_c, m_g, m_y, "Macho", "Propio");
        const double hembras = TernerosCebados(m_c, m_g, m_y, "Hembra", "Propio");
        const double comprados = TernerosCebados(m_c, m_g, m_y, "Macho", "Comprado PostD") +
                                 TernerosCebados(m_c, m_g, m_y, "Hembra", "Comprado PostD");
        const double muertes = MuertesCebo(m_c, m_g, m_y);
        const double total = machos + hembras + comprados - muertes;
        const double partos = PartosDelAño(m_c, m_g, m_y);
        f["CEBOSMP"] = machos;
        f["CEBOSHP"] = hembras;
        f["CEBOSMC"] = comprados;
        f["P_CEBOSMP"] = muertes;
        f["CEBOSTOTAL"] = total;
        f["P_CEBOSHP"] = partos > 0 ? Val(FormatoNumero(total / partos * 100, "##0")) : 0.0;
    }

    Conexion& m_c;
    double m_g;
    double m_y;
    std::string m_fecha;  // 30/11/yy
    std::string m_inicio; // 1/12/yy of the year before
    std::string m_periodo;
    std::array<std::array<double, 2>, 4> m_estaciones{}; // cows, first calvers
};

} // namespace

bool LlenarIndicesTecnicos(Conexion& c, const GanaderosYAño& p, const AvanceDeInforme& avance) {
    const auto avanzar = [&](int porcentaje) {
        if (avance)
            avance(porcentaje, 100);
    };
    EnGrupo(c, [&] {
        for (const char* tabla : kTablas)
            VaciarTabla(c, tabla);
        for (const auto& ganadero : LeerGanaderos(c, p.ganaderos)) {
            Bloques b(c, ganadero.id, p.año);
            b.Cabecera(ganadero);
            avanzar(7);
            b.Censo();
            avanzar(15);
            b.Cularidades();
            avanzar(17);
            b.PartosPorMes();
            avanzar(23);
            b.Estaciones();
            avanzar(47);
            b.DesteteYCebo();
            avanzar(59);
            b.IntervalosEntrePartos();
            avanzar(78);
            b.Mortalidad();
            avanzar(89);
            b.Perdidas();
        }
        avanzar(100);
    });
    return true;
}

} // namespace pastorix
