#include "reports/indices/IndicesTecnicosTablas.h"

#include "frame/calendario/Formatos.h"
#include "reports/indices/IndicesTec.h"
#include "reports/indices/TablaDeTrabajo.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <array>
#include <string>

namespace pastorix {

namespace {

// Alive at weaning, at 120 days or older, with more than 500 g a day.
constexpr const char* kDesteteValido = " AND Muere = 'No' AND GDestete > 500 AND EdadDestete >= 120";
constexpr const char* kGanaderosVacasPartos =
    " FROM (T_Ganaderos INNER JOIN T_Vacas ON T_Ganaderos.Id_Ganadero = T_Vacas.Id_Ganadero) INNER JOIN "
    "T_Partos ON T_Vacas.Id_Vaca "
    "= T_Partos.Id_Vaca";
constexpr std::array<const char*, 12> kTablas{"X_Temp",      "X_Temp1", "X_Tmp3", "X_Temp2",
                                              "X_TempGraph", "X_Tmp4",  "X_Tmp5", "X_Tmp6",
                                              "X_Tmp7",      "X_Tmp8",  "X_Tmp9", "X_Tmp10"};

double Porcentaje(double parte, double total) {
    return Round(parte / total * 100);
}

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

    void Cabecera(Recordset& ganadero) {
        TablaDeTrabajo tabla(m_c, "X_Temp");
        auto& f = tabla.Fila();
        f["C1"] = TextoNumero(m_g);
        f["C2"] = ganadero["NombreG"].Texto() + " " + ganadero["ApellidosG"].Texto() + " - " +
                  ganadero["Localidad"].Texto();
        f["C3"] = ganadero["TelefonoP"].Texto() +
                  (ganadero["TelefonoM"].Nulo() ? std::string() : " / " + ganadero["TelefonoM"].Texto());
        f["C4"] = TextoNumero(m_y);
        tabla.Cerrar();
    }

    // The heifers' figures repeat on every row: each row's label belongs to N1 and N2 alone.
    void Censo() {
        const double novillas = CensoVacasAFecha(m_c, m_g, m_y, m_fecha, NovillasEnCubricion);
        const double novillasIdas =
            BajasVacasEnPeriodo(m_c, m_g, m_inicio, m_fecha, m_y, NovillasEnCubricion);
        TablaDeTrabajo tabla(m_c, "X_Temp1");
        for (const auto& [rotulo, categoria] : {std::pair{"Novillas de 1º parto", PrimerParto},
                                                {"Vacas de 2 a 6 partos", DeDosASeisPartos},
                                                {"Vacas de más de 6 partos", MasDeSeisPartos}}) {
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
        constexpr std::array kMeses{"Dic", "Ene", "Feb", "Mar", "Abr", "May",
                                    "Jun", "Jul", "Ago", "Sep", "Oct", "Nov"};
        TablaDeTrabajo tabla(m_c, "X_Temp2");
        const auto dos = m_fecha.substr(m_fecha.size() - 2);
        for (std::size_t i = 0; i < kMeses.size(); ++i) {
            std::string desde = m_inicio;
            std::string hasta = "31/12/" + m_inicio.substr(m_inicio.size() - 2);
            if (i > 0) {
                desde = "1/" + std::to_string(i) + "/" + dos;
                hasta = FormatoFecha(FechaDeArgumento(desde).UltimoDelMes(), "dd/mm/yy");
            }
            auto& e = m_estaciones[i / 3];
            const double vacas = PartosEnPeriodo(m_c, m_g, desde, hasta, ">1", m_y);
            const double novillas = PartosEnPeriodo(m_c, m_g, desde, hasta, "=1", m_y);
            e[0] += vacas;
            e[1] += novillas;
            auto& f = tabla.Fila();
            f["Id_Ganadero"] = m_g;
            f["C1"] = m_periodo;
            f["Mes"] = kMeses[i];
            f["N1"] = vacas;
            f["N2"] = novillas;
        }
        tabla.Cerrar();
    }

    // Both columns are percentages of all calvings, not of their own column.
    void Estaciones() {
        constexpr std::array kPeriodos{"Dic-Feb", "Mar-May", "Jun-Ago", "Sep-Nov"};
        double total = 0;
        for (const auto& e : m_estaciones)
            total += e[0] + e[1];
        TablaDeTrabajo tabla(m_c, "X_TempGraph");
        for (std::size_t i = 0; i < kPeriodos.size(); ++i) {
            auto& f = tabla.Fila();
            f["Id_Ganadero"] = m_g;
            f["Periodo"] = kPeriodos[i];
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
            f[n] = TernerosDestetados(criterio);
            f[edad] = MediaDestete("SELECT Avg(T_Partos.EdadDestete) AS PromedioDeEdadDestete", criterio);
            f[peso] = MediaDestete("SELECT Avg(T_Partos.PesoDestete) AS PromedioDePesoDestete", criterio);
            f[ganancia] = MediaDestete("SELECT Avg(T_Partos.GDestete) AS PromedioDeGDestete", criterio);
        }
        f["NacidosIns"] = PorcentajeNacidosIA(m_c, m_g, m_y);
        CularidadesDestetados(f);
        Cebo(f);
        tabla.Cerrar();
    }

    // Up to 400 days between calvings is normal, beyond is long.
    void IntervalosEntrePartos() {
        TablaDeTrabajo tabla(m_c, "X_Tmp6");
        for (const auto& [texto, filtro] : {std::pair{"Novillas de 1 Parto", "T_Cubriciones.N_Parto=1"},
                                            {"Vacas", "N_Parto > 1"},
                                            {"Todas", "N_Parto >= 1"}}) {
            auto& f = tabla.Fila();
            f["Id_Ganadero"] = m_g;
            f["Texto"] = texto;
            constexpr const char* kConDesviacion =
                "SELECT Avg(IEPc) AS Media , StDev(IEPc)  As Desv, Count(IEPc) As N";
            Intervalo(f, "SELECT Avg(IEPc) AS Media , Count(IEPc) As N", filtro, " AND IEPc > 0", "N", "N1");
            Intervalo(f, kConDesviacion, filtro, " AND IEPc <= 400 AND IEPc > 0", "N2", "N3");
            Intervalo(f, kConDesviacion, filtro, " AND IEPc > 400", "N5", "N6");
        }
        auto& f = tabla.Fila();
        f["Id_Ganadero"] = m_g;
        f["Texto"] = "Preñez no confirmada";
        Recordset rs(m_c, "SELECT Count(T_Cubriciones.Id_Vaca) AS N" + CubricionesDelAño() +
                              " AND T_Cubriciones.DatosCompletos=0");
        f["N"] = rs.Eof() ? "( 0 )" : "( " + TextoNumero(rs["N"].Numero()) + " )";
        tabla.Cerrar();
    }

    void Mortalidad() {
        const double partos = PartosDelAño(m_c, m_g, m_y);
        double total = 0;
        TablaDeTrabajo tabla(m_c, "X_Tmp7");
        for (const auto& [texto, condicion] :
             {std::pair{"Perinatal", " AND (Muere = 'Perinatal' OR Muere = 'NaceM')"},
              {"Antes de los 30 días", " AND Muere = 'Antes30d'"},
              {"Antes del Destete", " AND Muere = 'AntesD'"}}) {
            Recordset rs(m_c,
                         "SELECT Count(T_Ganaderos.Id_Ganadero) as N" + PartosDeGanaderoYAño() + condicion);
            const double n = rs.Eof() ? 0 : rs["N"].Numero();
            total += n;
            auto& f = tabla.Fila();
            f["Id_Ganadero"] = m_g;
            f["Texto"] = texto;
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
    std::string PartosDeGanaderoYAño() const {
        return std::string(kGanaderosVacasPartos) + " WHERE T_Ganaderos.Id_Ganadero = " + NumeroSql(m_g) +
               " AND T_Partos.Año_Ref = " + NumeroSql(m_y);
    }

    std::string CubricionesDelAño() const {
        return " FROM T_Cubriciones INNER JOIN T_Vacas ON T_Cubriciones.Id_Vaca = T_Vacas.Id_Vaca WHERE "
               "T_Vacas.Id_Ganadero = " +
               NumeroSql(m_g) + " AND T_Cubriciones.Año_Ref = " + NumeroSql(m_y);
    }

    // First calvers ("=") or older cows (">").
    std::string Destetados(const char* criterio) const {
        return PartosDeGanaderoYAño() + " AND (T_Partos.N_Parto)" + criterio + "1" + kDesteteValido;
    }

    double TernerosDestetados(const char* criterio) const {
        return static_cast<double>(
            Recordset(m_c, "SELECT T_Partos.Id_Parto" + Destetados(criterio)).Contar());
    }

    std::int64_t MediaDestete(const char* seleccion, const char* criterio) const {
        Recordset rs(m_c, seleccion + Destetados(criterio));
        return rs.Eof() ? 0 : AEntero(rs[0].Numero());
    }

    double TernerosCebados(const char* sexo, const char* origen) const {
        Recordset rs(m_c, "SELECT Count(Id_Cebo) AS CuentaTerneros FROM T_Cebo WHERE Id_Ganadero = " +
                              NumeroSql(m_g) + " AND AñoRef = " + NumeroSql(m_y) + " AND Sexo = '" + sexo +
                              "' AND Origen = '" + origen + "'");
        return rs.Eof() ? 0 : rs[0].Numero();
    }

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
        const double machos = TernerosCebados("Macho", "Propio");
        const double hembras = TernerosCebados("Hembra", "Propio");
        const double comprados =
            TernerosCebados("Macho", "Comprado PostD") + TernerosCebados("Hembra", "Comprado PostD");
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

    void Intervalo(Recordset& f, const char* seleccion, const char* filtro, const char* condicion,
                   const char* cuenta, const char* media) const {
        Recordset rs(m_c, seleccion + CubricionesDelAño() + " AND " + filtro + condicion);
        if (rs.Eof())
            return;
        f[cuenta] = rs["N"].Numero();
        f[media] = Round(rs["Media"].Numero());
    }

    Conexion& m_c;
    double m_g;
    double m_y;
    std::string m_fecha;  // 30/11/yy
    std::string m_inicio; // 1/12/yy of the year before
    std::string m_periodo;
    std::array<std::array<double, 2>, 4> m_estaciones{}; // cows, first calvers
};

std::string SentenciaGanaderos(const std::vector<double>& ganaderos) {
    std::string sql = "SELECT T_Ganaderos.Id_Ganadero, T_Ganaderos.Apodo, T_Ganaderos.Nombre AS NombreG, "
                      "T_Ganaderos.Apellidos AS ApellidosG, "
                      "T_Direcciones.TelefonoP, T_Direcciones.TelefonoM, T_Direcciones.Localidad FROM "
                      "T_Direcciones RIGHT JOIN T_Ganaderos ON "
                      "(T_Direcciones.Id_GV = T_Ganaderos.Id_Ganadero) AND (T_Direcciones.Id_Direccion = "
                      "T_Ganaderos.Id_Direccion) WHERE "
                      "Id_Ganadero is not null";
    for (std::size_t i = 0; i < ganaderos.size(); ++i)
        sql += (i == 0 ? " AND T_Ganaderos.Id_Ganadero = " : " OR T_Ganaderos.Id_Ganadero = ") +
               NumeroSql(ganaderos[i]);
    return sql + " ORDER BY T_Ganaderos.Nombre, T_Ganaderos.Apellidos";
}

} // namespace

void LlenarIndicesTecnicos(Conexion& c, const std::vector<double>& ganaderos, std::string_view año,
                           const AvanceDeInforme& avance) {
    const auto avanzar = [&](int porcentaje) {
        if (avance)
            avance(porcentaje, 100);
    };
    EnGrupo(c, [&] {
        for (const char* tabla : kTablas)
            VaciarTabla(c, tabla);
        Recordset lista(c, SentenciaGanaderos(ganaderos));
        for (; !lista.Eof(); lista.Siguiente()) {
            Bloques b(c, lista["Id_Ganadero"].Numero(), año);
            b.Cabecera(lista);
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
}

} // namespace pastorix
