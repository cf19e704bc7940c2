#include "manual/Maqueta.h"

#include <QDir>
#include <QImage>

#include <algorithm>
#include <numeric>
#include <utility>

namespace pastorix::manual {

namespace {

// The page, in millimetres.
constexpr double Izquierda = 28;
constexpr double Ancho = 156;
constexpr double Arriba = 27;
constexpr double Abajo = 272;
constexpr double FinDeHoja = 297;
constexpr double TablaEntera = 50;       // a table up to this height is not worth breaking
constexpr double FondoDeCapitulo = 0.74; // a chapter begins on a new page below this part of one

bool EsLista(const Bloque& b) {
    return b.clase == Bloque::Clase::Punto || b.clase == Bloque::Clase::Numero;
}

Estilo EstiloDeTitulo(int nivel) {
    return {nivel == 1 ? 20.0 : nivel == 2 ? 13.5 : 11.0, true, Verde, 1.12};
}

} // namespace

Maqueta::Maqueta(QPdfWriter& papel, Documento documento, QString carpeta)
    : m_papel(papel)
    , m_documento(std::move(documento))
    , m_carpeta(std::move(carpeta)) {}

double Maqueta::Mm(double mm) const {
    return mm * m_papel.resolution() / 25.4;
}

void Maqueta::Componer() {
    using Clase = Bloque::Clase;
    Clase anterior = Clase::Titulo;
    const auto enCaja = [](Clase c) { return c == Clase::Nota || c == Clase::Figura || c == Clase::Tabla; };
    for (std::size_t i = 0; i < m_documento.bloques.size(); ++i) {
        const Bloque& b = m_documento.bloques[i];
        switch (b.clase) {
        case Clase::Titulo:
            PonerTitulo(b);
            break;
        case Clase::Parrafo:
            PonerTexto({m_papel, b.texto, Mm(Ancho), {}}, 0, enCaja(anterior) ? 4.2 : 2.6);
            break;
        case Clase::Punto:
        case Clase::Numero:
            PonerTexto({m_papel, b.texto, Mm(Ancho - 7), {}}, 7, anterior == b.clase ? 1.1 : 2.2,
                       b.clase == Clase::Punto ? QStringLiteral("•") : QStringLiteral("%1.").arg(b.nivel));
            break;
        case Clase::Nota:
            PonerNota(b);
            break;
        case Clase::Figura:
            PonerFigura(b);
            break;
        case Clase::Tabla:
            PonerTabla(b);
            break;
        }
        if (EsLista(b) || b.texto.endsWith(QLatin1Char(':')))
            AtarLista(i);
        anterior = b.clase;
    }
}

// A list stays with what announces it, and none of its ends stands alone.
void Maqueta::AtarLista(std::size_t bloque) {
    const auto& todos = m_documento.bloques;
    const auto lista = [&](std::size_t i) { return i < todos.size() && EsLista(todos[i]); };
    const bool primero = !EsLista(todos[bloque]) || bloque == 0 || !EsLista(todos[bloque - 1]);
    const bool penultimo = lista(bloque + 1) && !lista(bloque + 2);
    const bool tabla = bloque + 1 < todos.size() && todos[bloque + 1].clase == Bloque::Clase::Tabla;
    if ((lista(bloque + 1) && (primero || penultimo)) || tabla)
        m_trozos.back().conSiguiente = true;
}

void Maqueta::PonerTitulo(const Bloque& bloque) {
    const TextoCompuesto texto(m_papel, bloque.texto, Mm(Ancho), EstiloDeTitulo(bloque.nivel));
    Trozo t;
    t.alto = texto.Alto() + (bloque.nivel == 1 ? Mm(4.5) : Mm(0.3));
    t.antes = Mm(bloque.nivel == 1 ? 14 : bloque.nivel == 2 ? 7.5 : 5);
    t.conSiguiente = true;
    t.titulo = static_cast<int>(m_entradas.size());
    const bool raya = bloque.nivel == 1;
    t.pintar = [this, texto, raya](QPainter& p, QPointF sitio) {
        texto.Dibujar(p, sitio);
        if (raya)
            p.fillRect(QRectF(sitio.x(), sitio.y() + texto.Alto() + Mm(1.6), Mm(Ancho), Mm(0.6)), Verde);
    };
    m_entradas.push_back({bloque.texto, bloque.nivel, 0});
    m_trozos.push_back(std::move(t));
}

// Text in lines: the first two and the last two of a paragraph stay together.
void Maqueta::PonerTexto(const TextoCompuesto& texto, double sangria, double antes, const QString& marca) {
    const int lineas = texto.Lineas();
    for (int i = 0; i < lineas; ++i) {
        Trozo t;
        t.alto = texto.AltoDeLinea(i);
        t.antes = i == 0 ? Mm(antes) : 0;
        t.conSiguiente = i + 1 < lineas && (i == 0 || i + 2 == lineas);
        t.pintar = [this, texto, i, sangria, marca](QPainter& p, QPointF sitio) {
            if (i == 0 && !marca.isEmpty())
                TextoCompuesto(m_papel, marca, Mm(sangria), {10.5, true, Verde})
                    .Dibujar(p, sitio + QPointF(Mm(1.5), 0));
            texto.DibujarLinea(p, i, sitio + QPointF(Mm(sangria), 0));
        };
        m_trozos.push_back(std::move(t));
    }
}

void Maqueta::PonerNota(const Bloque& bloque) {
    const TextoCompuesto texto(m_papel, bloque.texto, Mm(Ancho - 11), {10.0});
    Trozo t;
    t.alto = texto.Alto() + Mm(5.2);
    t.antes = Mm(3.4);
    t.pintar = [this, texto](QPainter& p, QPointF sitio) {
        p.fillRect(QRectF(sitio.x(), sitio.y(), Mm(Ancho), texto.Alto() + Mm(5.2)), VerdeClaro);
        p.fillRect(QRectF(sitio.x(), sitio.y(), Mm(1.2), texto.Alto() + Mm(5.2)), Verde);
        texto.Dibujar(p, sitio + QPointF(Mm(6), Mm(3)));
    };
    m_trozos.push_back(std::move(t));
}

void Maqueta::PonerFigura(const Bloque& bloque) {
    const QImage imagen(QDir(m_carpeta).filePath(bloque.fichero));
    if (imagen.isNull())
        throw ErrorFuente("no such picture: " + bloque.fichero.toStdString());
    const double ancho = Mm(Ancho) * bloque.ancho / 100;
    const double alto = ancho * imagen.height() / imagen.width();
    const QString pie = QStringLiteral("<b>Figura %1.</b> %2").arg(bloque.numero).arg(bloque.texto);
    const TextoCompuesto texto(m_papel, pie, Mm(Ancho - 16), {9.0, false, Gris, 1.2, Qt::AlignHCenter});
    Trozo t;
    t.alto = alto + Mm(2) + texto.Alto() + Mm(1.5);
    t.antes = Mm(4);
    t.flota = true;
    t.pintar = [this, imagen, texto, ancho, alto](QPainter& p, QPointF sitio) {
        const QRectF marco(sitio.x() + (Mm(Ancho) - ancho) / 2, sitio.y(), ancho, alto);
        p.drawImage(marco, imagen);
        p.setPen(QPen(Raya, Mm(0.2)));
        p.setBrush(Qt::NoBrush);
        p.drawRect(marco);
        texto.Dibujar(p, sitio + QPointF(Mm(8), alto + Mm(2)));
    };
    m_trozos.push_back(std::move(t));
}

void Maqueta::PonerTabla(const Bloque& bloque) {
    int cabecera = -1;
    for (std::size_t f = 0; f < bloque.filas.size(); ++f) {
        std::vector<TextoCompuesto> celdas;
        double alto = 0;
        for (std::size_t c = 0; c < bloque.anchos.size(); ++c) {
            const Estilo estilo{f == 0 ? 9.0 : 9.6, f == 0, f == 0 ? Verde : QColor(0x22, 0x22, 0x22)};
            celdas.emplace_back(m_papel, bloque.filas[f][static_cast<qsizetype>(c)],
                                bloque.anchos[c] * Mm(Ancho) - Mm(4), estilo);
            alto = std::max(alto, celdas.back().Alto());
        }
        Trozo t;
        t.alto = alto + Mm(2.4);
        t.antes = f == 0 ? Mm(3.6) : 0;
        t.conSiguiente = f + 1 < bloque.filas.size() && (f < 2 || f + 2 == bloque.filas.size());
        t.cabecera = cabecera;
        t.pintar = [this, celdas, f, alto, anchos = bloque.anchos](QPainter& p, QPointF sitio) {
            const double fin = sitio.y() + alto + Mm(2.4);
            double x = sitio.x();
            for (std::size_t c = 0; c < celdas.size(); ++c) {
                celdas[c].Dibujar(p, {x + (c == 0 ? Mm(0.8) : Mm(2)), sitio.y() + Mm(1.2)});
                x += anchos[c] * Mm(Ancho);
            }
            const double grosor = f == 0 ? Mm(0.35) : Mm(0.15);
            p.fillRect(QRectF(sitio.x(), fin - grosor, Mm(Ancho), grosor), f == 0 ? Verde : Raya);
        };
        if (f == 0)
            cabecera = static_cast<int>(m_trozos.size());
        m_trozos.push_back(std::move(t));
    }
    const auto primera = m_trozos.end() - static_cast<std::ptrdiff_t>(bloque.filas.size());
    const double total = std::accumulate(primera, m_trozos.end(), 0.0,
                                         [](double suma, const Trozo& t) { return suma + t.alto; });
    if (total <= Mm(TablaEntera))
        std::for_each(primera, m_trozos.end() - 1, [](Trozo& t) { t.conSiguiente = true; });
}

void Maqueta::PaginaNueva() {
    m_paginas.emplace_back();
    m_y = Mm(Arriba);
    for (const std::size_t figura : std::exchange(m_esperan, {}))
        if (Cabe(figura, figura))
            Colocar(figura);
        else
            m_esperan.push_back(figura);
}

bool Maqueta::Cabe(std::size_t primero, std::size_t ultimo) const {
    double y = m_y;
    for (std::size_t i = primero; i <= ultimo; ++i)
        y += m_trozos[i].alto + (y > Mm(Arriba) ? m_trozos[i].antes : 0);
    return y <= Mm(Abajo) || (m_paginas.back().empty() && primero == ultimo);
}

void Maqueta::Colocar(std::size_t trozo) {
    const Trozo& t = m_trozos[trozo];
    if (m_y > Mm(Arriba))
        m_y += t.antes;
    m_paginas.back().push_back({trozo, m_y});
    m_y += t.alto;
    if (t.titulo >= 0)
        m_entradas[static_cast<std::size_t>(t.titulo)].pagina = static_cast<int>(m_paginas.size()) - 1;
}

void Maqueta::SoltarFiguras() {
    while (!m_esperan.empty())
        PaginaNueva();
}

void Maqueta::Repartir() {
    PaginaNueva();
    for (std::size_t i = 0; i < m_trozos.size();) {
        const Trozo& t = m_trozos[i];
        if (t.titulo >= 0 && m_entradas[static_cast<std::size_t>(t.titulo)].nivel == 1) {
            SoltarFiguras();
            if (m_y > Mm(Arriba + (Abajo - Arriba) * FondoDeCapitulo))
                PaginaNueva();
        }
        std::size_t ultimo = i;
        while (m_trozos[ultimo].conSiguiente && ultimo + 1 < m_trozos.size())
            ++ultimo;
        if (t.flota && !Cabe(i, i)) {
            m_esperan.push_back(i++);
            continue;
        }
        if (!Cabe(i, ultimo) && !m_paginas.back().empty()) {
            PaginaNueva();
            if (t.cabecera >= 0)
                Colocar(static_cast<std::size_t>(t.cabecera));
        }
        for (; i <= ultimo; ++i)
            Colocar(i);
    }
    SoltarFiguras();
}

void Maqueta::PintarPortada(QPainter& pintor) {
    pintor.fillRect(QRectF(0, 0, Mm(210), Mm(118)), Verde);
    const auto linea = [&](int n, double y, const Estilo& estilo) {
        if (m_documento.portada.size() > n)
            TextoCompuesto(m_papel, m_documento.portada[n].toHtmlEscaped(), Mm(Ancho), estilo)
                .Dibujar(pintor, {Mm(Izquierda), Mm(y)});
    };
    linea(0, 72, {44, true, Qt::white});
    linea(1, 94, {18, false, QColor(0xe3, 0xeb, 0xe6)});
    linea(2, 130, {13, false, Verde, 1.3});
    linea(3, 262, {10, false, Gris});
}

int Maqueta::PaginasDelIndice() const {
    const auto visibles =
        std::count_if(m_entradas.begin(), m_entradas.end(), [](const Entrada& e) { return e.nivel < 3; });
    return static_cast<int>((visibles + 39) / 40);
}

void Maqueta::PintarIndice(QPainter& pintor, int total) {
    const int delante = 1 + PaginasDelIndice();
    int pagina = 2;
    const auto empezar = [&] {
        m_papel.newPage();
        PintarPie(pintor, QStringLiteral("Índice"), pagina++, total);
    };
    empezar();
    TextoCompuesto(m_papel, QStringLiteral("Índice"), Mm(Ancho), EstiloDeTitulo(1))
        .Dibujar(pintor, {Mm(Izquierda), Mm(Arriba)});
    double y = Arriba + 15;
    int puestas = 0;
    for (const Entrada& e : m_entradas) {
        if (e.nivel == 3)
            continue;
        if (puestas > 0 && puestas % 40 == 0) {
            empezar();
            y = Arriba;
        }
        const bool capitulo = e.nivel == 1;
        y += capitulo && puestas > 0 ? 2.2 : 0;
        ++puestas;
        const double x = capitulo ? 0 : 6;
        const Estilo estilo{capitulo ? 10.5 : 9.6, capitulo, capitulo ? Verde : QColor(0x22, 0x22, 0x22)};
        const TextoCompuesto texto(m_papel, e.texto, Mm(Ancho - x - 14), estilo);
        texto.Dibujar(pintor, {Mm(Izquierda + x), Mm(y)});
        Estilo derecha = estilo;
        derecha.alinear = Qt::AlignRight;
        TextoCompuesto(m_papel, QString::number(e.pagina + 1 + delante), Mm(12), derecha)
            .Dibujar(pintor, {Mm(Izquierda + Ancho - 12), Mm(y)});
        QString sinMarcas = e.texto;
        const double hasta = QFontMetricsF(Letra(estilo), &m_papel).horizontalAdvance(sinMarcas);
        pintor.setPen(QPen(Raya, Mm(0.25), Qt::DotLine));
        pintor.drawLine(QPointF(Mm(Izquierda + x) + hasta + Mm(2), Mm(y + 3.6)),
                        QPointF(Mm(Izquierda + Ancho - 10), Mm(y + 3.6)));
        y += capitulo ? 5.6 : 5.0;
    }
}

void Maqueta::PintarPie(QPainter& pintor, const QString& capitulo, int pagina, int total) {
    const Estilo gris{8.5, false, Gris};
    const Estilo derecha{8.5, false, Gris, 1.2, Qt::AlignRight};
    const double ancho = Mm(Ancho);
    TextoCompuesto(m_papel, m_documento.portada.mid(0, 2).join(QStringLiteral(" · ")), ancho, gris)
        .Dibujar(pintor, {Mm(Izquierda), Mm(13.5)});
    TextoCompuesto(m_papel, capitulo, ancho, derecha).Dibujar(pintor, {Mm(Izquierda), Mm(13.5)});
    pintor.fillRect(QRectF(Mm(Izquierda), Mm(18.6), ancho, Mm(0.2)), Raya);
    TextoCompuesto(m_papel, QStringLiteral("Página %1 de %2").arg(pagina).arg(total), ancho, derecha)
        .Dibujar(pintor, {Mm(Izquierda), Mm(FinDeHoja - 16)});
}

int Maqueta::Escribir() {
    Componer();
    Repartir();
    const int delante = 1 + PaginasDelIndice();
    const int total = delante + static_cast<int>(m_paginas.size());
    QPainter pintor(&m_papel);
    pintor.setRenderHint(QPainter::LosslessImageRendering); // letters of a screenshot stay sharp
    PintarPortada(pintor);
    PintarIndice(pintor, total);
    for (std::size_t p = 0; p < m_paginas.size(); ++p) {
        m_papel.newPage();
        QString capitulo;
        for (const Entrada& e : m_entradas)
            if (e.nivel == 1 && e.pagina <= static_cast<int>(p))
                capitulo = e.texto;
        PintarPie(pintor, capitulo, delante + 1 + static_cast<int>(p), total);
        for (const Colocado& c : m_paginas[p])
            m_trozos[c.trozo].pintar(pintor, {Mm(Izquierda), c.y});
    }
    return total;
}

} // namespace pastorix::manual
