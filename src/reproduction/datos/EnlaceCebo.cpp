#include "reproduction/datos/EnlaceCebo.h"

#include "reproduction/datos/Cadena.h"
#include "store/Literales.h"
#include "store/Recordset.h"
#include "store/Textos.h"

namespace pastorix {

namespace {

// The fattening record of the calf: the one of its farmer that names its row, cow, year and parity.
std::string DondeCebo(const TerneroDeParto& t) {
    return DondeCiclo(t.parto, "AñoRef", "N_Parto") + " AND Id_Parto = " + NumeroSql(t.idParto) +
           " AND Id_Ganadero = " + NumeroSql(t.idGanadero);
}

bool ClavesDadas(const TerneroDeParto& t) {
    return t.idParto != 0 && t.idGanadero != 0 && t.parto.idVaca != 0 && t.parto.añoRef.value_or(0) != 0 &&
           t.parto.nParto.value_or(0) != 0;
}

void Enlazar(Conexion& c, const TerneroDeParto& t, const std::string& idCebo) {
    c.Execute("UPDATE T_PARTOS SET ID_CEBO = " + idCebo + DondeCiclo(t.parto) +
              " AND Id_Parto = " + NumeroSql(t.idParto));
}

Valor TextoONulo(const std::string& texto) {
    return texto.empty() ? Valor() : Valor(texto);
}
Valor FechaONula(const std::optional<Fecha>& fecha) {
    return fecha ? Valor(*fecha) : Valor();
}

double NumeroDeCebo(const CeboRetirado& retirado) {
    for (const auto& [columna, valor] : retirado)
        if (columna == "Id_Cebo")
            return NumeroDe(valor);
    return 0;
}

// The number under which a withdrawn record comes back: its own, unless another animal has got it meanwhile.
double NumeroPara(Conexion& c, const TerneroDeParto& t, const CeboRetirado& retirado) {
    const auto deGanadero = "Select Id_Cebo FROM T_Cebo WHERE ID_Ganadero = " + NumeroSql(t.idGanadero);
    const double antes = NumeroDeCebo(retirado);
    if (antes != 0 && Recordset(c, deGanadero + " AND Id_Cebo = " + NumeroSql(antes)).Eof())
        return antes;
    return SiguienteId(c, deGanadero + " Order By Id_Cebo");
}

void Rellenar(Recordset& rs, const TerneroDeParto& t) {
    rs["Origen"] = t.origen.empty() ? "Propio" : t.origen;
    rs["Sexo"] = TextoONulo(t.sexo);
    rs["FechaNac"] = FechaONula(t.fechaParto);
    rs["FechaCebo"] = FechaONula(t.fechaDestete);
    rs["Saneamiento"] = TextoONulo(t.regSaneam);
}

} // namespace

bool TieneCebo(Conexion& c, const TerneroDeParto& t) {
    return !Recordset(c, "Select * FROM T_Cebo" + DondeCebo(t), Cursor::Estatico, Bloqueo::SoloLectura).Eof();
}

double CrearCebo(Conexion& c, const TerneroDeParto& t, const CeboRetirado& retirado) {
    if (!ClavesDadas(t))
        return 0;
    double id = 0;
    TodoONada(c, [&] {
        Recordset rs(c, "Select * FROM T_Cebo" + DondeCebo(t));
        if (!rs.Eof()) {
            id = rs["Id_Cebo"].Numero();
            return;
        }
        id = NumeroPara(c, t, retirado);
        rs.AddNew();
        if (retirado.empty())
            Rellenar(rs, t);
        for (const auto& [columna, valor] : retirado)
            rs[columna].Reponer(valor);
        rs["Id_Cebo"] = id;
        rs["Id_Ganadero"] = t.idGanadero;
        rs["Id_Parto"] = t.idParto;
        rs["Id_Vaca"] = t.parto.idVaca;
        rs["AñoRef"] = EnteroONulo(t.parto.añoRef);
        rs["N_Parto"] = EnteroONulo(t.parto.nParto);
        rs.Update();
        Enlazar(c, t, NumeroSql(id));
    });
    return id;
}

CeboRetirado QuitarCebo(Conexion& c, const TerneroDeParto& t) {
    CeboRetirado retirado;
    TodoONada(c, [&] {
        Recordset rs(c, "Select * FROM T_Cebo" + DondeCebo(t), Cursor::Estatico, Bloqueo::SoloLectura);
        if (!rs.Eof())
            for (int i = 0; i < rs.Campos(); ++i)
                retirado.emplace_back(rs.NombreCampo(i), rs[i].Leer());
        c.Execute("DELETE FROM T_Cebo" + DondeCebo(t));
        Enlazar(c, t, "NULL");
    });
    return retirado;
}

std::vector<std::string> ActualizarCebo(Conexion& c, const TerneroDeParto& t, bool escribir) {
    std::vector<std::string> cambian;
    Recordset rs(c, "Select * FROM T_Cebo" + DondeCebo(t) + " AND Cambiado = 0");
    if (rs.Eof())
        return cambian;
    const auto poner = [&](const char* columna, const char* nombre, const Valor& valor) {
        const auto leido = rs[columna].Leer();
        const bool fechas = std::holds_alternative<Fecha>(leido) && std::holds_alternative<Fecha>(valor);
        if (fechas ? leido == valor // of two centuries they read alike
                   : IgualSinCaso(TextoDe(leido), TextoDe(valor)) && EsNulo(leido) == EsNulo(valor))
            return;
        cambian.emplace_back(nombre);
        rs[columna] = valor;
    };
    poner("FechaCebo", "Fecha de entrada", FechaONula(t.fechaDestete));
    poner("Saneamiento", "Saneamiento", TextoONulo(t.regSaneam));
    poner("Sexo", "Sexo", TextoONulo(t.sexo));
    poner("FechaNac", "Fecha de nacimiento", FechaONula(t.fechaParto));
    if (!t.origen.empty())
        poner("Origen", "Origen", t.origen);
    if (escribir && !cambian.empty())
        rs.Update();
    return cambian;
}

} // namespace pastorix
