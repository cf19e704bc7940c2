#include "frame/calendario/Calendario.h"
#include "frame/calendario/Formatos.h"
#include "reports/figuras/Figuras.h"
#include "reports/figuras/FilasDeCiclo.h"
#include "reports/indices/IndicesTec.h"
#include "store/Literales.h"
#include "store/TablaDeTrabajo.h"

namespace pastorix {

namespace {

std::string DelAño(const char* columnas, const char* tabla, double ganadero, double año) {
    return std::string("SELECT ") + columnas + " FROM " + tabla +
           " WHERE Id_Ganadero = " + NumeroSql(ganadero) + " AND AñoNatural = " + NumeroSql(año);
}

Valor SiHay(const Valor& v) {
    return TextoDe(v).empty() ? Valor() : v;
}

// Days from one date of a line to another, Null unless both are dates.
Valor Dias(Recordset& rs, const char* desde, const char* hasta) {
    const auto inicio = FechaSiVale(rs, desde);
    const auto fin = FechaSiVale(rs, hasta);
    return inicio && fin ? Valor(std::to_string(fin->dia - inicio->dia)) : Valor();
}

// Use of the land against the mean load in livestock units.
void EscribirSuperficie(Recordset& f, Recordset& tierra, double carga) {
    f["C5"] = SiHay(tierra["Abonado"].Leer());
    const auto hectareas = tierra["HasNoCom"].Texto();
    const double noComunales = tierra["HasNoCom"].Numero();
    if (!IsNumeric(hectareas) || noComunales <= 0)
        return;
    if (IsNumeric(tierra["HasAbonadas"].Texto()))
        f["C6"] = TextoNumero(Round(tierra["HasAbonadas"].Numero() / noComunales * 100));
    f["C7"] = FormatoNumero(carga / noComunales, "###0.0");
}

void EscribirPastos(Recordset& f, Recordset& pastos, double carga) {
    f["C8"] = Dias(pastos, "InicioPC", "FinPC");
    f["C9"] = pastos["AlimPC"].Leer();
    if (IsNumeric(pastos["NovVacasPC"].Texto()) && carga > 0)
        f["C10"] = FormatoNumero(pastos["NovVacasPC"].Numero() / carga * 100, "##0");
}

} // namespace

// The mean census of the year is not asked: what is shown is the mean of the loads at its two ends.
bool LlenarManejo(Conexion& c, const GanaderosYAño& p, const AvanceDeInforme& avance) {
    EnGrupo(c, [&] {
        VaciarTabla(c, "X_Temp");
        const auto ganadero = LeerGanadero(c, p.ganaderos.at(0));
        const double g = ganadero.id;
        const double y = NumeroDe(p.año);
        TablaDeTrabajo tabla(c, "X_Temp");
        auto& f = tabla.Fila();
        EscribirGanadero(f, ganadero);
        f["N1"] = y;
        f["N2"] = g;
        const double carga = (Val(CargaUGM(c, g, y, "INICIO")) + Val(CargaUGM(c, g, y, "FIN"))) / 2;
        if (avance)
            avance(80, 100);
        f["C3"] = FormatoNumero(carga, "#####0");
        const auto leer = [&](const char* columnas, const char* de) {
            return Recordset(c, DelAño(columnas, de, g, y), Cursor::Estatico, Bloqueo::SoloLectura);
        };
        if (auto ipr = leer("PartosAgrup", "T_IPR"); !ipr.Eof())
            f["C4"] = SiHay(ipr[0].Leer());
        if (auto tierra = leer("Abonado, HasAbonadas, HasNoCom", "T_AbonadoSuperficie"); !tierra.Eof())
            EscribirSuperficie(f, tierra, carga);
        if (auto pastos = leer("InicioPC, FinPC, AlimPC, NovVacasPC", "T_PastosComunales"); !pastos.Eof())
            EscribirPastos(f, pastos, carga);
        if (auto invierno = leer("InicioPI, FinPI, AlimPI", "T_AlimentacionInvernal"); !invierno.Eof()) {
            f["C11"] = Dias(invierno, "InicioPI", "FinPI");
            f["C12"] = invierno["AlimPI"].Leer();
        }
        if (auto sistema = leer("TipoSP", "T_SistemaProduccion"); !sistema.Eof())
            f["C13"] = sistema[0].Leer();
        tabla.Cerrar();
    });
    return true;
}

} // namespace pastorix
