#include "store/CopiaDeFilas.h"

#include "store/Catalogo.h"
#include "store/ErroresSqlite.h"
#include "store/Preparada.h"
#include "store/Textos.h"

#include <sqlite3.h>

namespace pastorix {

namespace {

const TablaCatalogo& TablaDe(const Conexion& conexion, std::string_view tabla) {
    const auto* t = conexion.Esquema().Buscar(tabla);
    if (!t)
        throw ErrorAlmacen(CodigoError::TablaDesconocida, "No existe la tabla " + std::string(tabla));
    return *t;
}

// Known columns come first in every table of ours.
std::size_t ColumnasConocidas(const TablaCatalogo& tabla) {
    const auto* canonica = CatalogoCanonico(ClaseDeBase::Principal).Buscar(tabla.nombre);
    return canonica ? canonica->columnas.size() : tabla.columnas.size();
}

} // namespace

CopiaDeFilas::CopiaDeFilas(Conexion& destino, std::string_view tabla)
    : m_destino(destino)
    , m_tabla(TablaDe(destino, tabla).nombre)
    , m_exigidas(ColumnasConocidas(TablaDe(destino, tabla))) {}

void CopiaDeFilas::Preparar(std::size_t columnas) {
    if (m_alta && m_columnas == columnas)
        return;
    std::string nombres;
    std::string marcas;
    for (std::size_t i = 0; i < columnas; ++i) {
        nombres += (i ? ", " : "") + Entrecomillar(TablaDe(m_destino, m_tabla).columnas[i].nombre);
        marcas += i ? ", ?" : "?";
    }
    m_alta = Instruccion(
        m_destino.Manejador(),
        "INSERT INTO " + Entrecomillar(m_tabla) + " (" + nombres + ") VALUES (" + marcas + ")", {}, true);
    m_columnas = columnas;
}

long CopiaDeFilas::Copiar(Conexion& origen, std::string_view consulta,
                          const std::function<void(long)>& avance) {
    std::vector<Valor> literales;
    const auto preparada = origen.Preparar(consulta, false, literales);
    const auto& salida = preparada->De().salida;
    const auto& columnas = TablaDe(m_destino, m_tabla).columnas;
    std::size_t n = 0;
    while (n < columnas.size() && n < salida.size() && IgualSinCaso(columnas[n].nombre, salida[n].nombre))
        ++n;
    if (n < m_exigidas)
        throw ErrorAlmacen(CodigoError::ColumnaDesconocida, "La columna " + m_tabla + "." +
                                                                columnas[n].nombre +
                                                                " no está en su sitio en el otro fichero");
    Preparar(n);
    return EnGrupo(m_destino, [&] {
        constexpr long kCadaCuantas = 1000;
        long filas = 0;
        Corrida lectura(preparada->Manejador(), literales);
        int codigo = 0;
        for (; (codigo = lectura.Paso()) == SQLITE_ROW; ++filas) {
            for (int i = 0; i < static_cast<int>(n); ++i)
                sqlite3_bind_value(m_alta.Manejador(), i + 1,
                                   sqlite3_column_value(preparada->Manejador(), i));
            m_alta.Correr();
            if (avance && (filas + 1) % kCadaCuantas == 0)
                avance(filas + 1);
        }
        if (codigo != SQLITE_DONE)
            LanzarError(origen.Manejador(), codigo, consulta);
        return filas;
    });
}

} // namespace pastorix
