#include "reports/motor/Compositor.h"

#include "reports/motor/ErrorInforme.h"
#include "store/Textos.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

namespace pastorix {

namespace {
constexpr std::size_t PasosMaximos = 1'000'000; // rows walked and strips made
constexpr std::size_t SinFila = std::numeric_limits<std::size_t>::max();
} // namespace

Compositor::Compositor(const Disposicion& disposicion, const Conjuntos& conjuntos, const Evaluador& evaluador,
                       Bandas& bandas)
    : m_disposicion(disposicion)
    , m_conjuntos(conjuntos)
    , m_evaluador(evaluador)
    , m_bandas(bandas) {}

Flujo Compositor::Componer() {
    Flujo flujo;
    Lugar lugar;
    lugar.ancho = m_disposicion.AnchoUtil();
    Nodos(m_disposicion.cuerpo, lugar, flujo);
    return flujo;
}

const Contexto* Compositor::Entrar(const Lugar& lugar, int tabla, std::size_t fila, const Filas* filas) {
    if (++m_pasos > PasosMaximos)
        throw ErrorInforme(CodigoInforme::Limite, "El informe tendría demasiadas filas");
    return &m_contextos.emplace_back(Contexto{lugar.contexto, tabla, fila, filas});
}

void Compositor::Poner(Tira tira, const Lugar& lugar, Flujo& flujo) {
    if (++m_pasos > PasosMaximos)
        throw ErrorInforme(CodigoInforme::Limite, "El informe tendría demasiadas filas");
    tira.cabeceras = lugar.cabeceras;
    tira.saltoAntes = flujo.saltoPendiente && !flujo.tiras.empty();
    flujo.saltoPendiente = false;
    tira.marcas = std::exchange(flujo.marcasPendientes, {});
    flujo.tiras.push_back(std::move(tira));
}

void Compositor::PonerBanda(const Banda& banda, const Lugar& lugar, Flujo& flujo) {
    if (m_evaluador.Cumple(banda.si, lugar.contexto))
        Poner(m_bandas.Hacer(banda, lugar.contexto, lugar.x, lugar.ancho, lugar.impar), lugar, flujo);
}

Compositor::Lugar Compositor::PonerCabecera(const Banda& banda, const Lugar& lugar, Flujo& flujo) {
    if (!m_evaluador.Cumple(banda.si, lugar.contexto))
        return lugar;
    Tira tira = m_bandas.Hacer(banda, lugar.contexto, lugar.x, lugar.ancho);
    tira.conSiguiente = true;
    m_repetidas.push_back({lugar.cabeceras, tira});
    Poner(std::move(tira), lugar, flujo);
    Lugar dentro = lugar;
    dentro.cabeceras = &m_repetidas.back();
    return dentro;
}

void Compositor::PonerPie(const Banda& banda, const Lugar& lugar, Flujo& flujo) {
    if (!m_evaluador.Cumple(banda.si, lugar.contexto))
        return;
    if (!flujo.tiras.empty()) // a total never stands alone at the top of a page
        flujo.tiras.back().conSiguiente = true;
    PonerBanda(banda, lugar, flujo);
}

void Compositor::Nodos(const std::vector<Nodo>& nodos, const Lugar& lugar, Flujo& flujo) {
    for (const Nodo& nodo : nodos) {
        switch (nodo.tipo) {
        case Nodo::Tipo::Banda:
            PonerBanda(nodo.banda, lugar, flujo);
            break;
        case Nodo::Tipo::Seccion:
            UnaSeccion(*nodo.seccion, lugar, flujo);
            break;
        case Nodo::Tipo::Bloque:
            if (m_evaluador.Cumple(nodo.si, lugar.contexto)) {
                const std::size_t inicio = flujo.tiras.size();
                const std::size_t rango = flujo.juntos.size();
                flujo.juntos.push_back({inicio, inicio});
                Nodos(nodo.hijos, lugar, flujo);
                flujo.juntos[rango].fin = flujo.tiras.size();
            }
            break;
        case Nodo::Tipo::Columnas:
            Columnas(nodo, lugar, flujo);
            break;
        case Nodo::Tipo::Salto:
            flujo.saltoPendiente = true;
            break;
        }
    }
}

Compositor::Lugar Compositor::Empezar(const Lugar& lugar, const QString& indice, bool paginaNueva,
                                      Flujo& flujo) const {
    Lugar dentro = lugar;
    const bool conPaginas = paginaNueva && !lugar.conPaginas;
    if (indice.isEmpty() && !conPaginas)
        return dentro;
    flujo.marcasPendientes.push_back({indice, lugar.nivel, conPaginas});
    dentro.nivel += indice.isEmpty() ? 0 : 1;
    dentro.conPaginas = lugar.conPaginas || conPaginas;
    return dentro;
}

void Compositor::Columnas(const Nodo& nodo, const Lugar& lugar, Flujo& flujo) {
    Tira tira;
    tira.contexto = lugar.contexto;
    for (const ColumnaFlujo& columna : nodo.columnas) {
        Lugar dentro = lugar;
        dentro.x += columna.x;
        dentro.ancho = columna.ancho;
        dentro.cabeceras = nullptr; // the headings around are repeated by the strip as a whole
        Flujo lado;
        Nodos(columna.nodos, dentro, lado);
        tira.alto = std::max(tira.alto, lado.Alto());
        tira.columnas.push_back(std::move(lado));
    }
    Poner(std::move(tira), lugar, flujo);
}

Compositor::Filas Compositor::FilasDe(const Seccion& seccion, const Lugar& lugar) {
    Filas filas;
    if (seccion.lazos.empty()) {
        filas.resize(m_conjuntos.Filas(seccion.tabla));
        std::iota(filas.begin(), filas.end(), std::size_t{0});
    } else {
        std::vector<const Valor*> valores;
        for (const Lazo& lazo : seccion.lazos)
            valores.push_back(&m_evaluador.Celda(lazo.exterior, lugar.contexto));
        filas = m_conjuntos.Buscar(seccion.lazos, valores);
    }
    if (!seccion.donde.Vacia()) {
        std::erase_if(filas, [&](std::size_t fila) {
            const Contexto contexto{lugar.contexto, seccion.tabla, fila, nullptr};
            return !m_evaluador.Cumple(seccion.donde, &contexto);
        });
    }
    return filas;
}

void Compositor::UnaSeccion(const Seccion& seccion, const Lugar& lugar, Flujo& flujo) {
    m_filas.push_back(FilasDe(seccion, lugar));
    const Filas& filas = m_filas.back();
    m_pasos += filas.size() / 64; // a walk that finds nothing to print is work too
    Lugar dentro = lugar;
    dentro.impar = false;
    dentro.contexto = Entrar(lugar, seccion.tabla, filas.empty() ? SinFila : filas.front(), &filas);
    if (seccion.cabecera)
        dentro = PonerCabecera(*seccion.cabecera, dentro, flujo);
    if (filas.empty() && seccion.vacia)
        PonerBanda(*seccion.vacia, dentro, flujo);
    UnGrupo(seccion, 0, filas, dentro, flujo);
    if (!filas.empty())
        dentro.contexto = Entrar(lugar, seccion.tabla, filas.back(), &filas);
    if (seccion.pie && !(filas.empty() && seccion.vacia))
        PonerPie(*seccion.pie, dentro, flujo);
    dentro.cabeceras = lugar.cabeceras;
    Nodos(seccion.alFinal, dentro, flujo);
}

QString Compositor::TextoDeIndice(const Grupo& grupo, const Contexto* contexto) const {
    if (!grupo.indice.empty())
        return m_evaluador.Texto(grupo.indice, contexto);
    QStringList valores;
    for (const RefCampo campo : grupo.columnas)
        valores << QString::fromStdString(TextoConMascara(m_evaluador.Celda(campo, contexto), {}));
    const QString texto = valores.join(QStringLiteral(" · ")).trimmed();
    return texto.isEmpty() ? QStringLiteral("–") : texto;
}

std::vector<Compositor::Filas> Compositor::Agrupar(const Grupo& grupo, const Filas& filas) const {
    std::vector<Filas> partes;
    std::unordered_map<std::string, std::size_t> lugares;
    for (const std::size_t fila : filas) {
        std::string clave;
        for (const RefCampo campo : grupo.columnas) {
            const Valor& valor = m_conjuntos.Celda(campo, fila);
            const std::string texto = EsNulo(valor) ? std::string() : Minusculas(TextoDe(valor));
            clave += std::to_string(EsNulo(valor)) + std::to_string(texto.size()) + ":" + texto;
        }
        const auto [it, nueva] = lugares.emplace(clave, partes.size());
        if (nueva)
            partes.emplace_back();
        partes[it->second].push_back(fila);
    }
    return partes;
}

void Compositor::UnGrupo(const Seccion& seccion, std::size_t nivel, const Filas& filas, const Lugar& lugar,
                         Flujo& flujo) {
    Lugar fuera = lugar;
    fuera.contexto = lugar.contexto->fuera;
    if (nivel == seccion.grupos.size()) {
        Lugar dentro = lugar;
        dentro.impar = true;
        for (std::size_t i = 0; i < filas.size(); ++i) {
            flujo.saltoPendiente = flujo.saltoPendiente || (seccion.paginaNueva && i > 0);
            dentro.contexto = Entrar(fuera, seccion.tabla, filas[i], nullptr);
            dentro.impar = !dentro.impar;
            const QString indice = m_evaluador.Texto(seccion.indice, dentro.contexto);
            Nodos(seccion.cuerpo, Empezar(dentro, indice, seccion.paginaNueva, flujo), flujo);
        }
        return;
    }
    const Grupo& grupo = seccion.grupos[nivel];
    bool primero = true;
    for (Filas& parte : Agrupar(grupo, filas)) {
        m_filas.push_back(std::move(parte));
        const Filas& suyas = m_filas.back();
        flujo.saltoPendiente = flujo.saltoPendiente || (grupo.paginaNueva && !primero);
        primero = false;
        const std::size_t rango = flujo.juntos.size();
        if (grupo.juntos)
            flujo.juntos.push_back({flujo.tiras.size(), 0});
        const Contexto* contexto = Entrar(fuera, seccion.tabla, suyas.front(), &suyas);
        Lugar dentro = Empezar(lugar, TextoDeIndice(grupo, contexto), grupo.paginaNueva, flujo);
        dentro.contexto = contexto;
        if (grupo.cabecera)
            dentro = PonerCabecera(*grupo.cabecera, dentro, flujo);
        UnGrupo(seccion, nivel + 1, suyas, dentro, flujo);
        dentro.contexto = Entrar(fuera, seccion.tabla, suyas.back(), &suyas);
        if (grupo.pie)
            PonerPie(*grupo.pie, dentro, flujo);
        if (grupo.juntos)
            flujo.juntos[rango].fin = flujo.tiras.size();
    }
}

} // namespace pastorix
