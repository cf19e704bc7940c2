#include "reports/motor/Paginador.h"

#include "reports/motor/ErrorInforme.h"

#include <algorithm>

namespace pastorix {

namespace {

constexpr std::size_t PaginasMaximas = 20'000;
constexpr double Holgura = 0.001;

double AltoCabeceras(const Repetida* cabeceras) {
    double alto = 0;
    for (; cabeceras; cabeceras = cabeceras->fuera)
        alto += cabeceras->tira.alto;
    return alto;
}

void Desplazar(Trozo& trozo, double x, double y) {
    if (auto* caja = std::get_if<CajaColocada>(&trozo))
        caja->lugar.translate(x, y);
    else if (auto* texto = std::get_if<TextoColocado>(&trozo))
        texto->base += QPointF(x, y);
    else
        std::get<GraficoColocado>(trozo).lugar.translate(x, y);
}

double Cima(const Trozo& trozo) {
    if (const auto* caja = std::get_if<CajaColocada>(&trozo))
        return caja->lugar.top();
    if (const auto* texto = std::get_if<TextoColocado>(&trozo))
        return texto->base.y(); // a line of text goes where its base line goes
    return std::get<GraficoColocado>(trozo).lugar.top();
}

// Takes what lies above y out of a strip, boxes cut in two; the rest moves up.
std::vector<Trozo> Partir(Tira& tira, double y) {
    std::vector<Trozo> arriba;
    std::vector<Trozo> abajo;
    for (Trozo& trozo : tira.trozos) {
        auto* caja = std::get_if<CajaColocada>(&trozo);
        if (Cima(trozo) >= y) {
            Desplazar(trozo, 0, -y);
            abajo.push_back(std::move(trozo));
        } else if (caja && caja->lugar.bottom() > y) {
            CajaColocada resto = *caja;
            resto.lugar.setTop(0);
            resto.lugar.setBottom(caja->lugar.bottom() - y);
            resto.bordes &= ~unsigned(LadoArriba);
            caja->lugar.setBottom(y);
            caja->bordes &= ~unsigned(LadoAbajo);
            abajo.emplace_back(resto);
            arriba.push_back(std::move(trozo));
        } else {
            arriba.push_back(std::move(trozo));
        }
    }
    tira.trozos = std::move(abajo);
    tira.alto -= y;
    return arriba;
}

} // namespace

Paginador::Paginador(double altoUtil, double izquierda, double arriba)
    : m_alto(altoUtil)
    , m_izquierda(izquierda)
    , m_arriba(arriba) {}

void Paginador::Colocar(Flujo flujo) {
    Cursor cursor;
    ColocarFlujo(flujo, cursor);
}

bool Paginador::Cabe(double alto, const Cursor& cursor) const {
    return cursor.y + alto <= m_alto + Holgura;
}

// Height of all that hangs on strip i, by runs that stay together and by strips that go with the next one, to its end or beyond `hueco`.
double Paginador::AltoEncadenado(const Flujo& flujo, std::size_t i, std::size_t rango, double hueco) {
    double alto = flujo.tiras[i].alto;
    std::size_t fin = i + 1;
    const auto tomarHasta = [&](std::size_t hasta) {
        for (; fin < hasta && alto <= hueco; ++fin)
            alto += flujo.tiras[fin].alto;
    };
    for (std::size_t antes = i; antes < fin && alto <= hueco;) {
        antes = fin;
        for (; rango < flujo.juntos.size() && flujo.juntos[rango].inicio < fin; ++rango)
            tomarHasta(flujo.juntos[rango].fin);
        if (fin < flujo.tiras.size() && flujo.tiras[fin - 1].conSiguiente && !flujo.tiras[fin].saltoAntes)
            tomarHasta(fin + 1);
    }
    return alto;
}

// Height of what must stay with strip i: all that hangs on it, or, if no page holds that, the longest run that begins here and fits a page.
double Paginador::AltoJunto(const Flujo& flujo, std::size_t i, std::size_t& rango) const {
    const double hueco = m_alto - AltoCabeceras(flujo.tiras[i].cabeceras) + Holgura;
    while (rango < flujo.juntos.size() && flujo.juntos[rango].inicio < i)
        ++rango;
    if (const double todo = AltoEncadenado(flujo, i, rango, hueco); todo <= hueco)
        return todo;
    const auto altoHasta = [&](std::size_t fin) {
        double alto = 0;
        for (std::size_t k = i; k < fin && alto <= m_alto; ++k)
            alto += flujo.tiras[k].alto;
        return alto;
    };
    std::size_t fin = i + 1;
    while (fin < flujo.tiras.size() && flujo.tiras[fin - 1].conSiguiente && !flujo.tiras[fin].saltoAntes)
        ++fin;
    double alto = altoHasta(fin) <= hueco ? altoHasta(fin) : flujo.tiras[i].alto;
    for (std::size_t r = rango; r < flujo.juntos.size() && flujo.juntos[r].inicio == i; ++r) {
        const double suyo = altoHasta(flujo.juntos[r].fin);
        if (suyo <= hueco)
            alto = std::max(alto, suyo);
    }
    return alto;
}

void Paginador::ColocarFlujo(Flujo& flujo, Cursor& cursor) {
    std::size_t rango = 0;
    for (std::size_t i = 0; i < flujo.tiras.size(); ++i) {
        Tira& tira = flujo.tiras[i];
        const bool alPrincipio = cursor.y <= Holgura;
        if ((tira.saltoAntes || !Cabe(AltoJunto(flujo, i, rango), cursor)) && !alPrincipio)
            PaginaNueva(tira, cursor);
        for (const Marca& marca : tira.marcas) {
            if (!marca.texto.isEmpty())
                m_indice.push_back({marca.texto, marca.nivel, static_cast<int>(cursor.pagina)});
            if (marca.conPaginas && cursor.pagina > m_comienzos.back())
                m_comienzos.push_back(cursor.pagina);
        }
        ColocarTira(tira, cursor);
    }
}

NumeroDePagina Paginador::NumeroDe(std::size_t pagina) const {
    const auto siguiente = std::upper_bound(m_comienzos.begin(), m_comienzos.end(), pagina);
    const std::size_t primera = *std::prev(siguiente);
    const std::size_t fin = siguiente == m_comienzos.end() ? m_paginas.size() : *siguiente;
    return {static_cast<int>(pagina) + 1, static_cast<int>(m_paginas.size()),
            static_cast<int>(pagina - primera) + 1, static_cast<int>(fin - primera)};
}

void Paginador::PaginaNueva(const Tira& tira, Cursor& cursor) {
    ++cursor.pagina;
    cursor.y = 0;
    if (cursor.pagina >= PaginasMaximas)
        throw ErrorInforme(CodigoInforme::Limite, "El informe tendría demasiadas páginas");
    if (cursor.pagina >= m_paginas.size()) {
        m_paginas.emplace_back();
        m_contextos.push_back(nullptr);
    }
    if (AltoCabeceras(tira.cabeceras) + std::min(tira.alto, m_alto / 2) > m_alto)
        return; // headings that leave no room are not repeated
    std::vector<const Repetida*> deFueraADentro;
    for (const Repetida* r = tira.cabeceras; r; r = r->fuera)
        deFueraADentro.insert(deFueraADentro.begin(), r);
    for (const Repetida* r : deFueraADentro)
        PonerTrozos(std::vector<Trozo>(r->tira.trozos), r->tira.contexto, r->tira.alto, cursor);
    m_contextos[cursor.pagina] = tira.contexto;
}

void Paginador::PonerTrozos(std::vector<Trozo>&& trozos, const Contexto* contexto, double alto,
                            Cursor& cursor) {
    Pagina& pagina = m_paginas[cursor.pagina];
    if (!m_contextos[cursor.pagina])
        m_contextos[cursor.pagina] = contexto;
    for (Trozo& trozo : trozos) {
        Desplazar(trozo, m_izquierda, m_arriba + cursor.y);
        pagina.trozos.push_back(std::move(trozo));
    }
    cursor.y += alto;
}

void Paginador::ColocarTira(Tira& tira, Cursor& cursor) {
    if (!tira.columnas.empty()) {
        ColocarColumnas(tira, cursor);
        return;
    }
    // Only a strip that has grown beyond a page gets here without fitting; it is cut between lines of text.
    while (!Cabe(tira.alto, cursor)) {
        const double hueco = m_alto - cursor.y;
        double corte = hueco;
        for (const Trozo& trozo : tira.trozos) {
            const auto* texto = std::get_if<TextoColocado>(&trozo);
            if (texto && texto->base.y() < hueco && texto->base.y() > hueco - 2)
                corte =
                    std::min(corte, texto->base.y()); // its descenders would hang over the end of the page
        }
        PonerTrozos(Partir(tira, corte > hueco / 2 ? corte : hueco), tira.contexto, hueco, cursor);
        PaginaNueva(tira, cursor);
        for (Trozo& trozo : tira.trozos)
            Desplazar(trozo, 0, 4); // room for the rest of the line that the cut falls on
        tira.alto += 4;
    }
    PonerTrozos(std::move(tira.trozos), tira.contexto, tira.alto, cursor);
}

void Paginador::ColocarColumnas(Tira& tira, Cursor& cursor) {
    Cursor ultimo = cursor;
    for (Flujo& columna : tira.columnas) {
        Cursor suyo = cursor;
        ColocarFlujo(columna, suyo);
        if (suyo.pagina > ultimo.pagina || (suyo.pagina == ultimo.pagina && suyo.y > ultimo.y))
            ultimo = suyo;
    }
    cursor = ultimo;
}

} // namespace pastorix
