#include "reports/motor/LectorDisposicion.h"

#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Lectura.h"
#include "store/Textos.h"

#include <QFile>

namespace pastorix {

namespace {

constexpr std::size_t GruposMaximos = 8;
constexpr std::size_t ColumnasLadoALado = 12;
constexpr qint64 FicheroMaximo = 1'000'001; // one more than the reader of lines accepts

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
        const RefCampo campo = l.Campo(a, seccion.tabla, nombre);
        if (l.d.Raiz(campo.tabla) != l.d.Raiz(seccion.tabla))
            a.Fallo("el grupo es de otra tabla que la sección");
        grupo.columnas.push_back(campo);
    }
    grupo.paginaNueva = a.Bandera("pagina-nueva");
    grupo.juntos = a.Bandera("juntos");
    a.Terminar();
    if (seccion.grupos.size() >= GruposMaximos || !seccion.cuerpo.empty())
        a.Fallo("los grupos van antes que el detalle, y no pueden ser más de " +
                std::to_string(GruposMaximos));
    Ambito conTotales = ambito;
    conTotales.agregados = l.d.Raiz(seccion.tabla);
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
    if (l.d.tablas[static_cast<std::size_t>(seccion->tabla)].base >= 0)
        a.Fallo("una tabla unida a otra se recorre con ella");
    seccion->lazos = l.Lazos(a, seccion->tabla, fuera);
    Ambito ambito = fuera;
    ambito.abiertas.push_back(l.d.Raiz(seccion->tabla));
    ambito.agregados = Ambito::NingunAgregado;
    Ambito conTotales = ambito;
    conTotales.agregados = l.d.Raiz(seccion->tabla);
    seccion->donde = l.Condicion(a, "donde", ambito);
    seccion->paginaNueva = a.Bandera("pagina-nueva");
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

void LeerRaiz(Lectura& l) {
    bool primera = true;
    Ambito pagina;
    pagina.pagina = true;
    Ambito cuerpo;
    cuerpo.agregados = Ambito::CualquierAgregado;
    l.Todo([&](Argumentos& a) {
        if (primera) {
            if (a.Orden() != "pastorix-informe" || a.Nombre("la versión") != "1")
                a.Fallo("el fichero no es un informe: debe empezar por \"pastorix-informe 1\"");
            a.Terminar();
            primera = false;
            return;
        }
        const std::string& orden = a.Orden();
        const bool dePagina = orden == "cabecera-pagina" || orden == "pie-pagina";
        if (LeerNodo(l, a, l.d.AnchoUtil(), cuerpo, l.d.cuerpo))
            return;
        if (!l.d.cuerpo.empty())
            a.Fallo("\"" + orden + "\" no se conoce, o debe ir antes que las bandas y secciones");
        if (dePagina) {
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

Disposicion LeerDisposicion(std::string_view texto, const std::string& fichero) {
    Lectura lectura(texto, fichero);
    LeerRaiz(lectura);
    for (const TablaUsada& tabla : lectura.d.tablas) {
        if (tabla.columnas.empty())
            FalloEnLinea(fichero, tabla.linea, "la tabla \"" + tabla.alias + "\" no tiene columnas");
    }
    return std::move(lectura.d);
}

Disposicion LeerDisposicionDeFichero(const std::string& fichero) {
    QFile entrada(QString::fromStdString(fichero));
    if (!entrada.open(QIODevice::ReadOnly))
        throw ErrorInforme(CodigoInforme::FicheroAusente, "No se encuentra o no se puede leer el informe " +
                                                              fichero + " (" +
                                                              entrada.errorString().toStdString() + ")");
    return LeerDisposicion(entrada.read(FicheroMaximo).toStdString(), fichero);
}

} // namespace pastorix
