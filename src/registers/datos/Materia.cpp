#include "registers/datos/Materia.h"

#include "store/Literales.h"
#include "store/Recordset.h"

#include <algorithm>

namespace pastorix {

namespace {

constexpr std::size_t kAño = 0;
constexpr const char* kNumero = "Ln"; // of the lines of a subject without years

std::string SentenciaDeNota(const Materia& m, double idGanadero) {
    return std::string("Select ") + m.columnaNota +
           " FROM T_Ganaderos WHERE Id_Ganadero = " + NumeroSql(idGanadero);
}

bool MismoAño(const Materia& m, const Linea& a, const Linea& b) {
    return m.porAños && !a.celdas[kAño].empty() && a.Numero(kAño) == b.Numero(kAño);
}

void EscribirFilas(Conexion& c, const Materia& m, double idGanadero, std::span<const Linea> lineas,
                   std::span<const Linea> ocultas) {
    Recordset rs(c, std::string("SELECT * FROM ") + m.tabla);
    int numero = 0;
    const auto escribir = [&](const Linea& linea) {
        rs.AddNew();
        rs["Id_Ganadero"] = idGanadero;
        if (!m.porAños)
            rs[kNumero] = ++numero;
        EscribirLinea(rs, linea, m.columnas);
        rs.Update();
    };
    // Hidden rows first: should a line be refused, they at least are back, for nobody could type them again.
    for (const auto& oculta : ocultas)
        if (std::none_of(lineas.begin(), lineas.end(),
                         [&](const Linea& l) { return MismoAño(m, oculta, l); }))
            escribir(oculta);
    for (const auto& linea : lineas)
        escribir(linea);
}

} // namespace

DatosMateria LeerMateria(Conexion& c, const Materia& m, double idGanadero) {
    DatosMateria datos;
    EnGrupo(c, [&] {
        Recordset rs(c,
                     std::string("Select * FROM ") + m.tabla + " WHERE Id_Ganadero = " +
                         NumeroSql(idGanadero) + " ORDER BY " + (m.porAños ? "AñoNatural" : kNumero),
                     Cursor::Keyset, Bloqueo::SoloLectura);
        datos.lineas = LeerLineas(rs, m.columnas,
                                  OtrosCampos(rs, m.columnas, {"Id_Ganadero", m.porAños ? "" : kNumero}));
        if (m.columnaNota)
            datos.nota = ValorDeCampo(c, SentenciaDeNota(m, idGanadero));
    });
    if (m.porAños) {
        const auto primera = std::stable_partition(datos.lineas.begin(), datos.lineas.end(),
                                                   [](const Linea& l) { return l.celdas[kAño].empty(); });
        datos.ocultas.assign(std::make_move_iterator(datos.lineas.begin()), std::make_move_iterator(primera));
        datos.lineas.erase(datos.lineas.begin(), primera);
    }
    return datos;
}

void GuardarMateria(Conexion& c, const Materia& m, double idGanadero, std::span<const Linea> lineas,
                    std::span<const Linea> ocultas, const std::string& nota) {
    TodoONada(c, [&] {
        c.Execute(std::string("Delete FROM ") + m.tabla + " WHERE Id_Ganadero = " + NumeroSql(idGanadero));
        if (!lineas.empty() || !ocultas.empty())
            EscribirFilas(c, m, idGanadero, lineas, ocultas);
        if (!m.columnaNota)
            return;
        Recordset rs(c, SentenciaDeNota(m, idGanadero));
        if (rs.Eof() || rs[0].Texto() == nota)
            return;
        rs[0] = nota.empty() ? Valor() : Valor(nota);
        rs.Update();
    });
}

} // namespace pastorix
