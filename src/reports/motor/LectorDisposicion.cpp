#include "reports/motor/LectorDisposicion.h"

#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Lectura.h"
#include "store/Textos.h"

#include <algorithm>
#include <array>
#include <utility>

namespace pastorix {

namespace {

constexpr std::size_t GruposMaximos = 8;
constexpr std::size_t ColumnasLadoALado = 12;
constexpr std::string_view PrimeraPalabra = "pastorix-informe";

void LeerNodos(Lectura& l, Argumentos& apertura, double ancho, const Ambito& ambito,
               std::vector<Nodo>& nodos) {
    l.Bloque(apertura, [&](Argumentos& a) {
        if (!LeerNodo(l, a, ancho, ambito, nodos))
            a.Fallo("\"" + a.Orden() + "\" no es nada que pueda estar aquí");
    });
}

void PonerBanda(Lectura& l, Argumentos& a, double ancho, const Ambito& ambito,
                std::optional<Banda>& destino) {
    if (destino)
        a.Fallo("\"" + a.Orden() + "\" está dos veces");
    destino = LeerBanda(l, a, ancho, ambito);
}

void LeerGrupo(Lectura& l, Argumentos& a, double ancho, const Ambito& ambito, Seccion& seccion) {
    Grupo grupo;
    for (const std::string& nombre : Separar(a.Nombre("la columna del grupo"), ',')) {
        grupo.columnas.push_back({seccion.tabla, l.Columna(a, seccion.tabla, nombre)});
    }
    grupo.paginaNueva = a.Bandera("pagina-nueva");
    grupo.juntos = a.Bandera("juntos");
    if (const auto indice = a.Opcion("indice"))
        grupo.indice = l.Texto(a, *indice, ambito);
    a.Terminar();
    if (seccion.grupos.size() >= GruposMaximos || !seccion.cuerpo.empty())
        a.Fallo("los grupos van antes que el detalle, y no pueden ser más de " +
                std::to_string(GruposMaximos));
    Ambito conTotales = ambito;
    conTotales.agregados = seccion.tabla;
    l.Bloque(a, [&](Argumentos& b) {
        if (b.Orden() == "cabecera")
            PonerBanda(l, b, ancho, conTotales, grupo.cabecera);
        else if (b.Orden() == "pie")
            PonerBanda(l, b, ancho, conTotales, grupo.pie);
        else
            b.Fallo("un grupo sólo tiene \"cabecera\" y \"pie\"");
    });
    seccion.grupos.push_back(std::move(grupo));
}

void LeerSeccion(Lectura& l, Argumentos& a, double ancho, const Ambito& fuera, std::vector<Nodo>& nodos) {
    auto seccion = std::make_unique<Seccion>();
    seccion->tabla = l.Tabla(a, a.Nombre("la tabla de la sección"));
    seccion->lazos = l.Lazos(a, seccion->tabla, fuera);
    Ambito ambito = fuera;
    ambito.abiertas.push_back(seccion->tabla);
    ambito.agregados = Ambito::NingunAgregado;
    Ambito conTotales = ambito;
    conTotales.agregados = seccion->tabla;
    seccion->donde = l.Condicion(a, "donde", ambito);
    seccion->paginaNueva = a.Bandera("pagina-nueva");
    if (const auto indice = a.Opcion("indice"))
        seccion->indice = l.Texto(a, *indice, ambito);
    a.Terminar();
    l.Bloque(a, [&](Argumentos& b) {
        const std::string& orden = b.Orden();
        if (orden == "cabecera") {
            PonerBanda(l, b, ancho, conTotales, seccion->cabecera);
        } else if (orden == "pie") {
            PonerBanda(l, b, ancho, conTotales, seccion->pie);
        } else if (orden == "vacia") {
            PonerBanda(l, b, ancho, fuera, seccion->vacia);
        } else if (orden == "grupo") {
            LeerGrupo(l, b, ancho, ambito, *seccion);
        } else if (orden == "rejilla") {
            LeerRejilla(l, b, ancho, ambito, *seccion);
        } else if (orden == "al-final") {
            b.Terminar();
            LeerNodos(l, b, ancho, conTotales, seccion->alFinal);
        } else if (!LeerNodo(l, b, ancho, ambito, seccion->cuerpo)) {
            b.Fallo("\"" + orden + "\" no es nada que pueda estar en una sección");
        }
    });
    Nodo nodo;
    nodo.tipo = Nodo::Tipo::Seccion;
    nodo.seccion = std::move(seccion);
    nodos.push_back(std::move(nodo));
}

void LeerColumnas(Lectura& l, Argumentos& a, double ancho, const Ambito& ambito, Nodo& nodo) {
    nodo.tipo = Nodo::Tipo::Columnas;
    a.Terminar();
    l.Bloque(a, [&](Argumentos& b) {
        if (b.Orden() != "columna")
            b.Fallo("entre las columnas sólo hay bloques \"columna\"");
        ColumnaFlujo columna;
        columna.x = b.Numero("x", 0, ancho);
        columna.ancho = b.Numero("el ancho", 1, ancho);
        b.Terminar();
        if (columna.x + columna.ancho > ancho + 0.01)
            b.Fallo("la columna se sale por la derecha: hay " + TextoNumero(ancho) + " mm");
        if (nodo.columnas.size() >= ColumnasLadoALado)
            b.Fallo("demasiadas columnas");
        LeerNodos(l, b, columna.ancho, ambito, columna.nodos);
        nodo.columnas.push_back(std::move(columna));
    });
}

void LeerPrimera(Argumentos& a) {
    if (a.Orden() != PrimeraPalabra || a.Nombre("la versión") != "1")
        a.Fallo("el fichero no es un informe: debe empezar por \"pastorix-informe 1\"");
    a.Terminar();
}

// incluye "comun.rpt": its looks, as if they stood here.
void LeerIncluido(Lectura& l, Argumentos& a, const Incluibles& incluibles) {
    const std::string nombre = a.Texto("el nombre del fichero que se incluye");
    a.Terminar();
    const bool llano = !nombre.empty() && nombre.find_first_of("/\\:") == std::string::npos;
    const auto texto = incluibles && llano ? incluibles(nombre) : std::nullopt;
    if (!texto)
        a.Fallo("no hay ningún diseño \"" + nombre + "\" que incluir");
    bool primera = true;
    l.Incluir(*texto, nombre, [&](Argumentos& b) {
        static constexpr std::array<std::string_view, 4> aspectos{"pagina", "letra", "color", "estilo"};
        if (std::exchange(primera, false))
            LeerPrimera(b);
        else if (std::find(aspectos.begin(), aspectos.end(), b.Orden()) == aspectos.end() ||
                 !LeerDeclaracion(l, b))
            b.Fallo("en un fichero que se incluye sólo hay página, letra, colores y estilos");
    });
}

void LeerRaiz(Lectura& l, const Incluibles& incluibles) {
    bool primera = true;
    Ambito pagina;
    pagina.pagina = true;
    Ambito cuerpo;
    cuerpo.agregados = Ambito::CualquierAgregado;
    l.Todo([&](Argumentos& a) {
        if (std::exchange(primera, false))
            return LeerPrimera(a);
        const std::string& orden = a.Orden();
        const bool dePagina = orden == "cabecera-pagina" || orden == "pie-pagina";
        if (LeerNodo(l, a, l.d.AnchoUtil(), cuerpo, l.d.cuerpo))
            return;
        if (!l.d.cuerpo.empty())
            a.Fallo("\"" + orden + "\" no se conoce, o debe ir antes que las bandas y secciones");
        if (orden == "incluye") {
            LeerIncluido(l, a, incluibles);
        } else if (dePagina) {
            PonerBanda(l, a, l.d.AnchoUtil(), pagina,
                       orden == "pie-pagina" ? l.d.piePagina : l.d.cabeceraPagina);
            if (l.d.AltoUtil() < 20)
                a.Fallo("entre la cabecera y el pie no queda página");
        } else if (!LeerDeclaracion(l, a)) {
            a.Fallo("\"" + orden + "\" no se conoce");
        } else if (l.d.AnchoUtil() < 20 || l.d.AltoUtil() < 20) {
            a.Fallo("entre los márgenes no queda página");
        }
    });
}

} // namespace

bool LeerNodo(Lectura& l, Argumentos& a, double ancho, const Ambito& ambito, std::vector<Nodo>& nodos) {
    const std::string& orden = a.Orden();
    Nodo nodo;
    if (orden == "banda" || orden == "detalle") {
        nodo.banda = LeerBanda(l, a, ancho, ambito);
    } else if (orden == "seccion") {
        LeerSeccion(l, a, ancho, ambito, nodos);
        return true;
    } else if (orden == "filas") {
        LeerFilas(l, a, ancho, ambito, nodos);
        return true;
    } else if (orden == "bloque") {
        nodo.tipo = Nodo::Tipo::Bloque;
        nodo.si = l.Condicion(a, "si", ambito);
        a.Terminar();
        LeerNodos(l, a, ancho, ambito, nodo.hijos);
    } else if (orden == "columnas") {
        LeerColumnas(l, a, ancho, ambito, nodo);
    } else if (orden == "salto") {
        a.Terminar();
        nodo.tipo = Nodo::Tipo::Salto;
    } else {
        return false;
    }
    nodos.push_back(std::move(nodo));
    return true;
}

Disposicion LeerDisposicion(std::string_view texto, const std::string& fichero,
                            const Incluibles& incluibles) {
    Lectura lectura(texto, fichero);
    LeerRaiz(lectura, incluibles);
    for (const TablaUsada& tabla : lectura.d.tablas) {
        if (tabla.columnas.empty())
            FalloEnLinea(fichero, tabla.linea, "la tabla \"" + tabla.nombre + "\" no tiene columnas");
    }
    return std::move(lectura.d);
}

bool EmpiezaComoDisposicion(std::string_view texto) {
    if (texto.starts_with("\xEF\xBB\xBF"))
        texto.remove_prefix(3);
    while (!texto.empty()) {
        const std::size_t principio = std::min(texto.find_first_not_of(" \t"), texto.size());
        std::string_view linea = texto.substr(principio);
        linea = linea.substr(0, linea.find_first_of("\r\n"));
        if (!linea.empty() && linea.front() != '#')
            return IgualSinCaso(linea.substr(0, linea.find_first_of(" \t")), PrimeraPalabra);
        texto.remove_prefix(std::min(principio + linea.size() + 1, texto.size()));
    }
    return false;
}

} // namespace pastorix
