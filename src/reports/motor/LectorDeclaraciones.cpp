#include "reports/motor/Lectura.h"

#include "reports/motor/ErrorInforme.h"
#include "store/Textos.h"

#include <algorithm>
#include <numeric>

namespace pastorix {

namespace {

constexpr std::size_t TablasMaximas = 64;
constexpr std::size_t ColumnasMaximas = 300;
constexpr std::size_t EstilosMaximos = 500;

// Names of tables and columns go into a statement: letters of any language, digits and underscore only.
bool EsIdentificador(std::string_view nombre) {
    return !nombre.empty() && nombre.size() <= 64 && std::all_of(nombre.begin(), nombre.end(), [](char c) {
        const auto u = static_cast<unsigned char>(c);
        return u >= 0x80 || std::isalnum(u) || c == '_';
    });
}

std::string Identificador(Argumentos& a, const char* que) {
    std::string nombre = a.Nombre(que);
    if (!EsIdentificador(nombre))
        a.Fallo("\"" + nombre + "\" no es un nombre");
    return nombre;
}

void LeerPagina(Lectura& l, Argumentos& a) {
    if (l.d.cabeceraPagina || l.d.piePagina)
        a.Fallo("\"pagina\" va antes que la cabecera y el pie de página");
    const std::string papel = a.Nombre("el papel (A4)");
    if (!IgualSinCaso(papel, "A4"))
        a.Fallo("el papel \"" + papel + "\" no se conoce; los informes se hacen en A4");
    const std::string postura = a.Nombre("la postura (vertical o apaisada)");
    if (!IgualSinCaso(postura, "vertical") && !IgualSinCaso(postura, "apaisada"))
        a.Fallo("la página puede ser vertical o apaisada, no \"" + postura + "\"");
    const bool apaisada = IgualSinCaso(postura, "apaisada");
    l.d.anchoPagina = apaisada ? 297 : 210;
    l.d.altoPagina = apaisada ? 210 : 297;
    if (const auto margenes = a.Opcion("margenes")) {
        const std::vector<std::string> lados = Separar(*margenes, ',');
        double* const destinos[] = {&l.d.izquierda, &l.d.arriba, &l.d.derecha, &l.d.abajo};
        if (lados.size() != 4)
            a.Fallo("los márgenes son cuatro: izquierda,arriba,derecha,abajo en milímetros");
        for (std::size_t i = 0; i < 4; ++i) {
            if (!NumeroDeTexto(lados[i], *destinos[i]) || *destinos[i] < 0 || *destinos[i] > 80)
                a.Fallo("cada margen es un número entre 0 y 80 milímetros");
        }
    }
}

void LeerTabla(Lectura& l, Argumentos& a) {
    TablaUsada tabla;
    tabla.linea = a.Linea();
    tabla.nombre = Identificador(a, "el nombre de la tabla");
    tabla.hoja = a.Opcion("hoja").value_or(tabla.nombre);
    if (const auto consulta = a.Opcion("consulta")) {
        if (!IgualSinCaso(std::string_view(*consulta).substr(0, 7), "SELECT "))
            a.Fallo("una consulta empieza por SELECT");
        tabla.consulta = *consulta;
    }
    tabla.calculada = a.Bandera("calculada");
    if (l.d.BuscarTabla(tabla.nombre) >= 0)
        a.Fallo("la tabla \"" + tabla.nombre + "\" ya está declarada");
    if (l.d.tablas.size() >= TablasMaximas)
        a.Fallo("el informe usa demasiadas tablas");
    l.d.tablas.push_back(std::move(tabla));
    const auto indice = static_cast<int>(l.d.tablas.size()) - 1;
    l.Bloque(a, [&](Argumentos& c) {
        if (c.Orden() != "campo")
            c.Fallo("dentro de una tabla sólo hay líneas \"campo\"");
        TablaUsada::Columna columna;
        columna.linea = c.Linea();
        columna.nombre = Identificador(c, "el nombre de la columna");
        columna.titulo = c.TextoSiHay().value_or(columna.nombre);
        columna.formato = c.Opcion("formato").value_or("");
        try {
            ClaseDe(columna.formato);
        } catch (const ErrorInforme& e) {
            c.Fallo(e.what());
        }
        c.Terminar();
        auto& columnas = l.d.tablas[static_cast<std::size_t>(indice)].columnas;
        if (l.d.BuscarColumna(indice, columna.nombre) >= 0)
            c.Fallo("la columna \"" + columna.nombre + "\" ya está declarada");
        if (columnas.size() >= ColumnasMaximas)
            c.Fallo("la tabla tiene demasiadas columnas");
        columnas.push_back(std::move(columna));
    });
    Ambito anteriores;
    anteriores.abiertas.resize(static_cast<std::size_t>(indice));
    std::iota(anteriores.abiertas.begin(), anteriores.abiertas.end(), 0);
    l.d.tablas.back().lazos = l.Lazos(a, indice, anteriores);
    a.Terminar();
}

void LeerParametro(Lectura& l, Argumentos& a) {
    ParametroUsado parametro;
    parametro.nombre = Identificador(a, "el nombre del parámetro");
    parametro.defecto = a.Opcion("defecto");
    a.Terminar();
    for (const ParametroUsado& otro : l.d.parametros) {
        if (IgualSinCaso(otro.nombre, parametro.nombre))
            a.Fallo("el parámetro \"" + parametro.nombre + "\" ya está declarado");
    }
    if (l.d.parametros.size() >= TablasMaximas)
        a.Fallo("el informe tiene demasiados parámetros");
    l.d.parametros.push_back(std::move(parametro));
}

void LeerEstilo(Lectura& l, Argumentos& a) {
    const std::string nombre = Identificador(a, "el nombre del estilo");
    Aspecto aspecto = l.letraBase;
    l.LeerAspecto(a, aspecto);
    a.Terminar();
    if (l.estilos.size() >= EstilosMaximos || !l.estilos.emplace(Minusculas(nombre), aspecto).second)
        a.Fallo("el estilo \"" + nombre + "\" ya está declarado, o hay demasiados");
}

void LeerColorNombrado(Lectura& l, Argumentos& a) {
    const std::string nombre = Identificador(a, "el nombre del color");
    const Color color = l.LeerColor(a, a.Nombre("el color #rrggbb"));
    a.Terminar();
    if (l.colores.size() >= EstilosMaximos || !l.colores.emplace(Minusculas(nombre), color).second)
        a.Fallo("el color \"" + nombre + "\" ya está declarado, o hay demasiados");
}

void LeerLetra(Lectura& l, Argumentos& a) {
    l.LeerAspecto(a, l.letraBase);
    while (const auto familia = a.TextoSiHay())
        l.d.familias.push_back(*familia);
    a.Terminar();
    if (l.d.familias.empty() || l.d.familias.size() > 20)
        a.Fallo("faltan los tipos de letra entre comillas, o hay demasiados");
}

} // namespace

bool LeerDeclaracion(Lectura& l, Argumentos& a) {
    const std::string& orden = a.Orden();
    if (orden == "pagina") {
        LeerPagina(l, a);
        a.Terminar();
    } else if (orden == "titulo") {
        l.d.titulo = a.Texto("el título");
        a.Terminar();
    } else if (orden == "encabezado") {
        Ambito pagina;
        pagina.pagina = true;
        l.d.encabezado = l.Texto(a, a.Texto("el encabezado de las hojas"), pagina);
        a.Terminar();
    } else if (orden == "letra") {
        LeerLetra(l, a);
    } else if (orden == "color") {
        LeerColorNombrado(l, a);
    } else if (orden == "estilo") {
        LeerEstilo(l, a);
    } else if (orden == "parametro") {
        LeerParametro(l, a);
    } else if (orden == "tabla") {
        LeerTabla(l, a);
    } else {
        return false;
    }
    return true;
}

} // namespace pastorix
