#include "reports/motor/Bandas.h"

#include "frame/calendario/Formatos.h"
#include "reports/motor/ErrorInforme.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace pastorix {

namespace {

constexpr double Holgura = 0.01;
constexpr double MargenDeTextoLargo = 1.0; // mm above the first line of a wrapping text, at most
constexpr qsizetype TextoMaximo = 40'000;  // characters of one cell
constexpr std::size_t CategoriasMaximas = 400;

// What the fonts cannot show goes; line breaks stay, of whatever kind they were.
QString Limpiar(QString texto) {
    texto.truncate(TextoMaximo);
    texto.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    texto.replace(QLatin1Char('\t'), QLatin1Char(' '));
    texto.removeIf([](QChar c) { return c.category() == QChar::Other_Control && c != QLatin1Char('\n'); });
    return texto;
}

// Boxes and lines that stretch follow the bottom of a band; all else makes it.
bool CuentaEnElFondo(const Elemento& e) {
    return !e.estirar || e.tipo == Elemento::Tipo::Texto;
}

} // namespace

double Flujo::Alto() const {
    return std::accumulate(tiras.begin(), tiras.end(), 0.0,
                           [](double s, const Tira& t) { return s + t.alto; });
}

struct Bandas::Medido {
    const Elemento* elemento = nullptr;
    QStringList lineas;
    int letra = 0;
    double altoLinea = 0;
    double margen = 0; // above the first line of a wrapping text
    double crece = 0;  // beyond its own height
    int figura = -1;
    double baja = 0; // pushed down by what grows above it
};

Bandas::Bandas(const Conjuntos& conjuntos, const Evaluador& evaluador, Medidor& medidor)
    : m_conjuntos(conjuntos)
    , m_evaluador(evaluador)
    , m_medidor(medidor) {}

Bandas::Medido Bandas::Medir(const Elemento& e, const Contexto* contexto, const NumeroDePagina& n) {
    Medido m;
    m.elemento = &e;
    if (e.tipo != Elemento::Tipo::Texto)
        return m;
    QString texto = Limpiar(m_evaluador.Texto(e.plantilla, contexto, n)).trimmed();
    if (texto.isEmpty())
        texto = QString::fromStdString(e.aspecto.vacio);
    else if (const QString figura = m_evaluador.Texto(e.figura, contexto, n); !figura.isEmpty())
        m.figura = AñadirFigura(figura);
    if (texto.isEmpty())
        return m;
    m.letra = m_medidor.Indice(e.aspecto);
    m.altoLinea = m_medidor.AltoLinea(m.letra);
    const double ancho = std::max(0.0, e.ancho - 2 * e.aspecto.relleno);
    if (e.aspecto.ajustar) {
        m.lineas = m_medidor.Partir(m.letra, texto, ancho);
        m.margen = std::clamp((e.alto - m.altoLinea) / 2, 0.0, MargenDeTextoLargo);
        if (n.pagina == 0) // the bands of the page itself do not grow
            m.crece =
                std::max(0.0, static_cast<double>(m.lineas.size()) * m.altoLinea + 2 * m.margen - e.alto);
        return m;
    }
    if (e.aspecto.encoger > 0)
        Encoger(m, texto, ancho);
    for (const QString& linea : texto.split(QLatin1Char('\n'))) {
        QString cabe = m_medidor.Recortar(m.letra, linea, ancho);
        // Half a number would be read as another number.
        if (cabe != linea && IsNumeric(linea.toStdString()))
            cabe = QString(qsizetype(std::max(
                               1.0, ancho / std::max(0.1, m_medidor.Ancho(m.letra, QStringLiteral("#"))))),
                           QLatin1Char('#'));
        m.lineas << cabe;
    }
    return m;
}

// A smaller letter for a line that does not fit, in tenths of a point, no smaller than its layout says.
void Bandas::Encoger(Medido& m, const QString& linea, double ancho) {
    Aspecto aspecto = m.elemento->aspecto;
    const double largo = m_medidor.Ancho(m.letra, linea);
    if (largo <= ancho || aspecto.tamaño <= aspecto.encoger)
        return;
    aspecto.tamaño = std::max(aspecto.encoger, std::floor(aspecto.tamaño * ancho / largo * 10) / 10);
    m.letra = m_medidor.Indice(aspecto);
    m.altoLinea = m_medidor.AltoLinea(m.letra);
}

int Bandas::AñadirFigura(const QString& clave) {
    m_figuras << clave;
    return static_cast<int>(m_figuras.size()) - 1;
}

Tira Bandas::Hacer(const Banda& banda, const Contexto* contexto, double x, double ancho, bool impar,
                   const NumeroDePagina& n) {
    Tira tira;
    tira.contexto = contexto;
    tira.conSiguiente = banda.conSiguiente;
    std::vector<Medido> medidos;
    double fondoOriginal = 0;
    bool alguienCrece = false;
    for (const Elemento& e : banda.elementos) {
        if (CuentaEnElFondo(e))
            fondoOriginal = std::max(fondoOriginal, e.y + e.alto);
        if (!m_evaluador.Cumple(e.si, contexto))
            continue;
        medidos.push_back(Medir(e, contexto, n));
        alguienCrece = alguienCrece || medidos.back().crece > 0;
    }
    tira.alto = banda.alto;
    if (alguienCrece) {
        std::vector<Medido*> porAltura;
        porAltura.reserve(medidos.size());
        for (Medido& m : medidos)
            porAltura.push_back(&m);
        std::stable_sort(porAltura.begin(), porAltura.end(),
                         [](const Medido* a, const Medido* b) { return a->elemento->y < b->elemento->y; });
        double fondo = fondoOriginal;
        for (Medido* m : porAltura) {
            for (const Medido* otro : porAltura) {
                if (otro == m || otro->elemento->y >= m->elemento->y)
                    break;
                if (otro->elemento->y + otro->elemento->alto <= m->elemento->y + Holgura &&
                    !m->elemento->estirar)
                    m->baja = std::max(m->baja, otro->baja + otro->crece);
            }
            if (CuentaEnElFondo(*m->elemento))
                fondo = std::max(fondo, m->elemento->y + m->elemento->alto + m->baja + m->crece);
        }
        tira.alto = std::max(banda.alto, fondo + (banda.alto - fondoOriginal));
    }
    const double crece = tira.alto - banda.alto;
    if (const auto fondo = impar && banda.alterno ? banda.alterno : banda.fondo)
        tira.trozos.emplace_back(CajaColocada{QRectF(x, 0, ancho, tira.alto), fondo});
    for (const Medido& m : medidos) {
        if (m.elemento->tipo == Elemento::Tipo::Texto)
            PonerTexto(tira, m, x, crece);
        else if (m.elemento->tipo == Elemento::Tipo::Grafico)
            PonerGrafico(tira, m, x, contexto);
        else
            PonerCaja(tira, m, x, crece);
    }
    return tira;
}

// A chart of nothing but zeros says less than a word.
void Bandas::PonerGrafico(Tira& tira, const Medido& medido, double x, const Contexto* contexto) {
    const Elemento& e = *medido.elemento;
    auto datos = Grafico(e, contexto);
    const bool hayDatos = std::any_of(datos->series.begin(), datos->series.end(), [](const auto& serie) {
        return std::any_of(serie.valores.begin(), serie.valores.end(),
                           [](double v) { return v != 0 && v == v; });
    });
    if (hayDatos) {
        tira.trozos.emplace_back(
            GraficoColocado{QRectF(x + e.x, e.y + medido.baja, e.ancho, e.alto), std::move(datos)});
        return;
    }
    Elemento aviso = e;
    aviso.tipo = Elemento::Tipo::Texto;
    aviso.aspecto.alineacion = Alineacion::Centro;
    Medido m;
    m.elemento = &aviso;
    m.baja = medido.baja;
    m.letra = m_medidor.Indice(aviso.aspecto);
    m.altoLinea = m_medidor.AltoLinea(m.letra);
    m.lineas << QStringLiteral("Sin datos");
    PonerTexto(tira, m, x, 0);
}

void Bandas::PonerCaja(Tira& tira, const Medido& medido, double x, double crece) const {
    const Elemento& e = *medido.elemento;
    CajaColocada caja;
    caja.lugar = QRectF(x + e.x, e.y + medido.baja, e.ancho, e.alto);
    if (e.estirar && e.alto <= 0)
        caja.lugar.translate(0, crece);
    else if (e.estirar)
        caja.lugar.setHeight(e.alto + crece);
    caja.grosor = e.aspecto.grosor;
    if (e.tipo == Elemento::Tipo::Linea) {
        caja.bordes = e.alto <= 0 ? LadoArriba : LadoIzquierdo;
        caja.colorBorde = e.aspecto.color;
    } else {
        caja.bordes = e.aspecto.bordes;
        caja.colorBorde = e.aspecto.colorBorde;
        caja.fondo = e.aspecto.fondo;
        caja.radio = e.aspecto.radio;
    }
    tira.trozos.emplace_back(caja);
}

void Bandas::PonerTexto(Tira& tira, const Medido& medido, double x, double crece) const {
    const Elemento& e = *medido.elemento;
    const double alto = e.alto + (e.estirar ? crece : medido.crece);
    const QRectF lugar(x + e.x, e.y + medido.baja, e.ancho, alto);
    if (e.aspecto.fondo || e.aspecto.bordes != SinLados) {
        tira.trozos.emplace_back(CajaColocada{lugar, e.aspecto.fondo, e.aspecto.bordes, e.aspecto.grosor,
                                              e.aspecto.colorBorde, e.aspecto.radio});
    }
    const double total = static_cast<double>(medido.lineas.size()) * medido.altoLinea;
    const Vertical vertical =
        e.aspecto.vertical.value_or(e.aspecto.ajustar ? Vertical::Arriba : Vertical::Centro);
    double y = lugar.top();
    if (vertical == Vertical::Arriba)
        y += medido.margen;
    else if (vertical == Vertical::Centro)
        y += ((e.estirar ? alto : e.alto + medido.crece) - total) / 2;
    else
        y += alto - total;
    for (const QString& linea : medido.lineas) {
        TextoColocado texto;
        texto.texto = linea;
        texto.letra = medido.letra;
        texto.color = e.aspecto.color;
        texto.figura = medido.figura;
        texto.ancho = m_medidor.Ancho(medido.letra, linea);
        const double hueco = e.ancho - 2 * e.aspecto.relleno - texto.ancho;
        double izquierda = lugar.left() + e.aspecto.relleno;
        if (e.aspecto.alineacion == Alineacion::Derecha)
            izquierda += hueco;
        else if (e.aspecto.alineacion == Alineacion::Centro)
            izquierda += hueco / 2;
        texto.base = QPointF(izquierda, y + m_medidor.Subida(medido.letra));
        y += medido.altoLinea;
        if (!linea.trimmed().isEmpty())
            tira.trozos.emplace_back(std::move(texto));
    }
}

std::shared_ptr<const DatosGrafico> Bandas::Grafico(const Elemento& elemento, const Contexto* contexto) {
    const pastorix::Grafico& grafico = *elemento.grafico;
    auto datos = std::make_shared<DatosGrafico>();
    std::vector<std::size_t> filas;
    if (grafico.lazos.empty()) {
        filas.resize(std::min(CategoriasMaximas + 1, m_conjuntos.Filas(grafico.tabla)));
        std::iota(filas.begin(), filas.end(), std::size_t{0});
    } else {
        std::vector<const Valor*> valores;
        for (const Lazo& lazo : grafico.lazos)
            valores.push_back(&m_evaluador.Celda(lazo.exterior, contexto));
        filas = m_conjuntos.Buscar(grafico.lazos, valores);
    }
    if (filas.size() > CategoriasMaximas)
        throw ErrorInforme(CodigoInforme::Limite, "Un gráfico del informe tendría demasiadas barras");
    for (const Grafico::Serie& serie : grafico.series)
        datos->series.push_back({QString::fromStdString(serie.nombre), serie.color, {}});
    for (const std::size_t fila : filas) {
        datos->categorias << QString::fromStdString(
            TextoDe(m_conjuntos.Celda({grafico.tabla, grafico.categoria}, fila)));
        for (std::size_t s = 0; s < grafico.series.size(); ++s) {
            const Valor& valor = m_conjuntos.Celda({grafico.tabla, grafico.series[s].columna}, fila);
            datos->series[s].valores.push_back(
                NumeroDeCelda(valor).value_or(std::numeric_limits<double>::quiet_NaN()));
        }
    }
    datos->apilado = grafico.apilado;
    datos->valores = grafico.valores;
    datos->eje = QString::fromStdString(grafico.eje);
    datos->letra = m_medidor.Letras()[static_cast<std::size_t>(m_medidor.Indice(elemento.aspecto))];
    datos->color = elemento.aspecto.color;
    return datos;
}

} // namespace pastorix
