#include "registers/datos/Resumen.h"

#include "frame/calendario/Calendario.h"
#include "frame/calendario/Formatos.h"
#include "reports/indices/IndicesTec.h"
#include "store/Literales.h"
#include "store/Recordset.h"

namespace pastorix {

namespace {

Recordset Abrir(Conexion& c, const std::string& sql) {
    return {c, sql, Cursor::Keyset, Bloqueo::SoloLectura};
}

// A figure read back from its text; 0 if it is none.
double Cifra(const std::string& texto) {
    return NumeroEscrito(texto).value_or(0);
}

// Day number of a date field: an empty one is day zero, and a text that is no date has none.
std::optional<std::int32_t> Dia(const Campo& campo) {
    if (campo.Nulo())
        return 0;
    const auto fecha = campo.FechaValor();
    return fecha ? std::optional(fecha->dia) : std::nullopt;
}

// The stocking load at both ends of reference years. One ends where the next one begins, and the load is the slow part of the summary: what
// was counted for the end of a year serves the year behind it, where the dates hold (they travel with two figures of the year).
class Cargas {
public:
    Cargas(Conexion& c, double idGanadero)
        : m_c(c)
        , m_idGanadero(idGanadero) {}

    // Mean of both ends, whole; "" for a year whose ends are no dates.
    std::string Media(double año) {
        try {
            const double inicio = m_sabido && m_sabido->año == año ? m_sabido->ugm : En(año, "INICIO");
            const double fin = En(año, "FIN");
            m_sabido.reset();
            if (año >= 1950 && año < 2049)
                m_sabido = Inicio{año + 1, fin};
            return FormatoNumero((inicio + fin) / 2, "####0");
        } catch (const ErrorDeEjecucion&) {
            return {};
        }
    }

private:
    struct Inicio {
        double año;
        double ugm;
    };
    double En(double año, const char* momento) { return Cifra(CargaUGM(m_c, m_idGanadero, año, momento)); }

    Conexion& m_c;
    double m_idGanadero;
    std::optional<Inicio> m_sabido;
};

void PonerSuperficie(Conexion& c, const std::string& donde, AñoResumido& r) {
    const auto leer = [&](const char* columna) {
        return ValorDeCampo(c, std::string("Select ") + columna + " FROM T_AbonadoSuperficie" + donde);
    };
    r.abonado = leer("Abonado");
    const double noComunales = Cifra(leer("HasNoCom"));
    if (noComunales > 0) {
        r.porcentajeAbonado = TextoNumero(Round(Cifra(leer("HasAbonadas")) / noComunales * 100));
        r.cargaNoComunal = FormatoNumero(Cifra(r.ugm) / noComunales, "###0.0");
    }
}

void PonerPastos(Conexion& c, const std::string& donde, AñoResumido& r) {
    auto rs = Abrir(c, "Select InicioPC, FinPC, AlimPC, NovVacasPC FROM T_PastosComunales" + donde);
    if (rs.Eof())
        return;
    const auto inicio = Dia(rs["InicioPC"]);
    const auto fin = Dia(rs["FinPC"]);
    if (inicio && fin)
        r.diasPC = TextoNumero(*fin - *inicio);
    r.alimPC = rs["AlimPC"].Texto();
    if (const double ugm = Cifra(r.ugm); ugm > 0)
        r.porcentajeUgmPC = FormatoNumero(rs["NovVacasPC"].Numero() / ugm * 100, "##0");
}

void PonerInvierno(Conexion& c, const std::string& donde, AñoResumido& r) {
    auto rs = Abrir(c, "Select InicioPI, FinPI, AlimPI FROM T_AlimentacionInvernal" + donde);
    if (rs.Eof())
        return;
    const auto inicio = rs["InicioPI"].FechaValor();
    const auto fin = rs["FinPI"].FechaValor();
    if (inicio && fin)
        r.diasPI = TextoNumero(fin->dia - inicio->dia);
    r.alimPI = rs["AlimPI"].Texto();
}

} // namespace

std::array<std::string, 12> AñoResumido::Celdas() const {
    return {año,
            ugm,
            partosAgrup,
            abonado,
            porcentajeAbonado,
            cargaNoComunal,
            diasPC,
            alimPC,
            porcentajeUgmPC,
            diasPI,
            alimPI,
            tipoSP};
}

std::vector<AñoResumido> LeerResumen(Conexion& c, double idGanadero,
                                     const std::function<void(int linea, int total)>& avance) {
    std::vector<AñoResumido> resumen;
    EnGrupo(c, [&] {
        const auto ganadero = " WHERE Id_Ganadero = " + NumeroSql(idGanadero);
        auto rs = Abrir(c, "Select * FROM T_IPR" + ganadero + " ORDER BY AñoNatural");
        Cargas cargas(c, idGanadero);
        const int total = static_cast<int>(rs.Contar());
        for (int linea = 1; !rs.Eof(); rs.Siguiente(), ++linea) {
            if (avance)
                avance(linea, total);
            if (rs["AñoNatural"].Nulo())
                continue; // made by the sheet that knows no years
            const double año = rs["AñoNatural"].Numero();
            const auto donde = ganadero + " AND AñoNatural = " + NumeroSql(año);
            auto& r = resumen.emplace_back();
            r.año = rs["AñoNatural"].Texto();
            r.ugm = cargas.Media(año);
            r.partosAgrup = rs["PartosAgrup"].Texto();
            PonerSuperficie(c, donde, r);
            PonerPastos(c, donde, r);
            PonerInvierno(c, donde, r);
            auto sistema = Abrir(c, "Select * FROM T_SistemaProduccion" + donde);
            if (!sistema.Eof())
                r.tipoSP = sistema["TipoSP"].Texto();
        }
    });
    return resumen;
}

} // namespace pastorix
