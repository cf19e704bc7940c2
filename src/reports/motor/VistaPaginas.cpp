#include "reports/motor/VistaPaginas.h"

#include "reports/motor/Dibujante.h"
#include "reports/motor/Medidor.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace pastorix {

namespace {

constexpr double Separacion = 12; // pixels between pages and round them
constexpr double ZoomMinimo = 0.1;
constexpr double ZoomMaximo = 5;
constexpr int MemoriaDeDibujos = 96'000; // kilobytes of drawn pages kept
constexpr int DibujoMaximo = 48'000;     // a larger page is drawn straight onto the screen
constexpr double MmPorPulgada = 25.4;

// Texts compare by their bare letters: "Peláez" is found by "pelaez".
QString Desnudo(const QString& texto) {
    QString bases = texto.normalized(QString::NormalizationForm_D).toCaseFolded();
    bases.removeIf([](QChar c) { return c.category() == QChar::Mark_NonSpacing; });
    return bases;
}

} // namespace

VistaPaginas::VistaPaginas(const Paginas& paginas, QWidget* padre)
    : QAbstractScrollArea(padre)
    , m_paginas(paginas)
    , m_dibujadas(MemoriaDeDibujos) {
    setFocusPolicy(Qt::StrongFocus);
    setObjectName(QStringLiteral("VistaPaginas"));
    setVerticalScrollBarPolicy(
        Qt::ScrollBarAlwaysOn); // or the width, and with it the zoom, would change with it
    viewport()->setCursor(Qt::OpenHandCursor);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setBackgroundRole(QPalette::Mid);
    viewport()->setBackgroundRole(QPalette::Mid);
    PonerActual();
}

double VistaPaginas::Escala() const {
    return logicalDpiX() / MmPorPulgada * m_zoom;
}

QSizeF VistaPaginas::TamañoDePagina() const {
    return m_paginas.tamaño * Escala();
}

double VistaPaginas::AltoDePaso() const {
    return TamañoDePagina().height() + Separacion;
}

QRectF VistaPaginas::LugarDe(int pagina) const {
    const QSizeF tamaño = TamañoDePagina();
    const double x =
        std::max(Separacion, (viewport()->width() - tamaño.width()) / 2) - horizontalScrollBar()->value();
    return {
        QPointF(std::round(x), std::round(Separacion + pagina * AltoDePaso() - verticalScrollBar()->value())),
        tamaño};
}

// Sets zoom and scroll bars to the window; guardarSitio keeps the place on the page that is in the middle.
void VistaPaginas::Recolocar(bool guardarSitio) {
    const double sitio =
        (verticalScrollBar()->value() + viewport()->height() / 2.0 - Separacion) / AltoDePaso();
    const double zoomAntes = m_zoom;
    const double base = logicalDpiX() / MmPorPulgada;
    if (m_ajuste != Ajuste::Libre)
        m_zoom = (viewport()->width() - 2 * Separacion) / (m_paginas.tamaño.width() * base);
    if (m_ajuste == Ajuste::Pagina)
        m_zoom =
            std::min(m_zoom, (viewport()->height() - 2 * Separacion) / (m_paginas.tamaño.height() * base));
    if (m_ajuste == Ajuste::Ancho)
        m_zoom = std::min(m_zoom, 1.6); // on a wide screen a page of full width would be a poster
    m_zoom = std::clamp(m_zoom, ZoomMinimo, ZoomMaximo);
    const double alto = Separacion + static_cast<double>(m_paginas.paginas.size()) * AltoDePaso();
    const double ancho = TamañoDePagina().width() + 2 * Separacion;
    verticalScrollBar()->setRange(0, std::max(0, static_cast<int>(alto) - viewport()->height()));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(40);
    horizontalScrollBar()->setRange(0, std::max(0, static_cast<int>(ancho) - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(40);
    if (guardarSitio && verticalScrollBar()->value() > 0)
        verticalScrollBar()->setValue(
            static_cast<int>(sitio * AltoDePaso() + Separacion - viewport()->height() / 2.0));
    viewport()->update();
    if (m_zoom != zoomAntes)
        Q_EMIT ZoomCambiado(m_zoom);
    PonerActual();
}

void VistaPaginas::PonerZoom(double zoom) {
    m_ajuste = Ajuste::Libre;
    const double antes = m_zoom;
    const double sitio =
        (verticalScrollBar()->value() + viewport()->height() / 2.0) / std::max(1.0, AltoDePaso());
    m_zoom = std::clamp(zoom, ZoomMinimo, ZoomMaximo);
    Recolocar(false);
    verticalScrollBar()->setValue(static_cast<int>(sitio * AltoDePaso() - viewport()->height() / 2.0));
    if (m_zoom != antes)
        Q_EMIT ZoomCambiado(m_zoom);
}

void VistaPaginas::PonerAjuste(Ajuste ajuste) {
    m_ajuste = ajuste;
    const int pagina = m_actual;
    Recolocar(true);
    if (ajuste == Ajuste::Pagina)
        IrA(pagina);
    Q_EMIT ZoomCambiado(m_zoom);
}

void VistaPaginas::IrA(int pagina) {
    pagina = std::clamp(pagina, 0, static_cast<int>(m_paginas.paginas.size()) - 1);
    verticalScrollBar()->setValue(static_cast<int>(pagina * AltoDePaso()));
    PonerActual(pagina); // the end of the scroll bar may come before the last page reaches the top
}

// The page in sight is the one on the line a third down the window.
void VistaPaginas::PonerActual() {
    const double linea = verticalScrollBar()->value() + viewport()->height() / 3.0;
    PonerActual(static_cast<int>(linea / AltoDePaso()));
}

void VistaPaginas::PonerActual(int pagina) {
    const int total = static_cast<int>(m_paginas.paginas.size());
    pagina = std::clamp(pagina, 0, total - 1);
    if (pagina == m_actual && !accessibleName().isEmpty())
        return;
    m_actual = pagina;
    setAccessibleName(QStringLiteral("Página %1 de %2").arg(m_actual + 1).arg(total));
    setAccessibleDescription(
        m_paginas.paginas[static_cast<std::size_t>(m_actual)].Textos().join(QLatin1Char(' ')));
    Q_EMIT PaginaCambiada(m_actual);
}

void VistaPaginas::DibujarUna(QPainter& pintor, int pagina) {
    const QRectF lugar = LugarDe(pagina);
    const double densidad = devicePixelRatioF();
    const QSize puntos = (lugar.size() * densidad).toSize();
    const auto kilobytes =
        static_cast<int>(std::min<qint64>(qint64(puntos.width()) * puntos.height() / 256, DibujoMaximo + 1));
    pintor.setRenderHint(QPainter::Antialiasing, false);
    pintor.setPen(QPen(palette().color(QPalette::Shadow), 1));
    pintor.setBrush(Qt::white);
    pintor.drawRect(lugar.adjusted(-1, -1, 0, 0));
    if (kilobytes > DibujoMaximo) {
        pintor.save();
        pintor.setClipRect(lugar, Qt::IntersectClip);
        pintor.translate(lugar.topLeft());
        DibujarPagina(pintor, m_paginas, static_cast<std::size_t>(pagina), Escala());
        pintor.restore();
    } else {
        if (m_escalaDibujada != Escala() * densidad) {
            m_dibujadas.clear();
            m_escalaDibujada = Escala() * densidad;
        }
        QPixmap* dibujada = m_dibujadas.object(pagina);
        if (!dibujada) {
            dibujada = new QPixmap(puntos);
            dibujada->setDevicePixelRatio(densidad);
            dibujada->fill(Qt::white);
            QPainter p(dibujada);
            DibujarPagina(p, m_paginas, static_cast<std::size_t>(pagina), Escala());
            p.end();
            m_dibujadas.insert(pagina, dibujada, std::max(1, kilobytes));
        }
        pintor.drawPixmap(lugar.topLeft(), *dibujada);
    }
    if (m_hallazgo.pagina == pagina)
        Resaltar(pintor, m_hallazgo, QColor(200, 120, 0));
    if (m_cifra.pagina == pagina)
        Resaltar(pintor, m_cifra, QColor(30, 110, 190));
}

void VistaPaginas::paintEvent(QPaintEvent*) {
    QPainter pintor(viewport());
    pintor.fillRect(viewport()->rect(), palette().color(QPalette::Mid));
    const int total = static_cast<int>(m_paginas.paginas.size());
    const int primera = std::max(0, static_cast<int>(verticalScrollBar()->value() / AltoDePaso()) - 1);
    for (int pagina = primera; pagina < total; ++pagina) {
        const QRectF lugar = LugarDe(pagina);
        if (lugar.top() > viewport()->height())
            break;
        if (lugar.bottom() >= 0)
            DibujarUna(pintor, pagina);
    }
    if (hasFocus()) {
        pintor.setBrush(Qt::NoBrush);
        pintor.setPen(QPen(palette().color(QPalette::Highlight), 2));
        pintor.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
    }
}

void VistaPaginas::resizeEvent(QResizeEvent*) {
    Recolocar(true);
}

void VistaPaginas::scrollContentsBy(int, int) {
    viewport()->update();
    PonerActual();
}

const TextoColocado& VistaPaginas::Texto(const Hallazgo& donde) const {
    return std::get<TextoColocado>(
        m_paginas.paginas[static_cast<std::size_t>(donde.pagina)].trozos[donde.trozo]);
}

QRectF VistaPaginas::LugarEnPagina(const Hallazgo& donde) const {
    const TextoColocado& texto = Texto(donde);
    const double alto = m_paginas.letras[static_cast<std::size_t>(texto.letra)].tamaño * MmPorPulgada / 72;
    return {texto.base.x() - 0.6, texto.base.y() - alto, texto.ancho + 1.2, alto * 1.35};
}

QRectF VistaPaginas::LugarEnVentana(const Hallazgo& donde) const {
    const QRectF mm = LugarEnPagina(donde);
    return {LugarDe(donde.pagina).topLeft() + mm.topLeft() * Escala(), mm.size() * Escala()};
}

void VistaPaginas::Resaltar(QPainter& pintor, const Hallazgo& donde, const QColor& color) const {
    QColor fondo = color.lighter(140);
    fondo.setAlpha(70);
    pintor.setPen(QPen(color, 1.5));
    pintor.setBrush(fondo);
    pintor.drawRect(LugarEnVentana(donde));
}

bool VistaPaginas::Buscar(const QString& texto, bool atras) {
    viewport()->update();
    const QString buscado = Desnudo(texto.trimmed());
    if (buscado.isEmpty()) {
        m_hallazgo = {};
        return true;
    }
    const auto& hojas = m_paginas.paginas;
    std::vector<Hallazgo> hallazgos;
    for (std::size_t p = 0; p < hojas.size(); ++p) {
        for (std::size_t t = 0; t < hojas[p].trozos.size(); ++t) {
            const auto* trozo = std::get_if<TextoColocado>(&hojas[p].trozos[t]);
            if (trozo && Desnudo(trozo->texto).contains(buscado))
                hallazgos.push_back({static_cast<int>(p), t});
        }
    }
    if (hallazgos.empty()) {
        m_hallazgo = {};
        return false;
    }
    const Hallazgo desde = m_hallazgo.pagina >= 0 ? m_hallazgo : Hallazgo{m_actual, 0};
    const bool incluido = m_hallazgo.pagina < 0;
    const auto antes = [](const Hallazgo& a, const Hallazgo& b) {
        return std::pair(a.pagina, a.trozo) < std::pair(b.pagina, b.trozo);
    };
    if (atras) {
        const auto it = std::lower_bound(hallazgos.begin(), hallazgos.end(), desde, antes);
        m_hallazgo = it == hallazgos.begin() ? hallazgos.back() : *(it - 1);
    } else {
        const auto it = incluido ? std::lower_bound(hallazgos.begin(), hallazgos.end(), desde, antes)
                                 : std::upper_bound(hallazgos.begin(), hallazgos.end(), desde, antes);
        m_hallazgo = it == hallazgos.end() ? hallazgos.front() : *it;
    }
    Mostrar(m_hallazgo);
    return true;
}

void VistaPaginas::Mostrar(const Hallazgo& donde) {
    const QRectF lugar = LugarEnVentana(donde);
    if (lugar.top() < 0 || lugar.bottom() > viewport()->height())
        verticalScrollBar()->setValue(verticalScrollBar()->value() + static_cast<int>(lugar.center().y()) -
                                      viewport()->height() / 2);
    if (lugar.left() < 0 || lugar.right() > viewport()->width())
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() +
                                        static_cast<int>(lugar.center().x()) - viewport()->width() / 2);
}

void VistaPaginas::keyPressEvent(QKeyEvent* evento) {
    const bool ctrl = evento->modifiers() & Qt::ControlModifier;
    QScrollBar* barra = verticalScrollBar();
    if (m_cifra.pagina >= 0 && !ctrl) {
        switch (evento->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Left:
        case Qt::Key_Right:
            return MoverCifra(evento->key());
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return Elegir(m_cifra);
        case Qt::Key_Escape:
            m_cifra = {};
            return viewport()->update();
        default:
            break;
        }
    }
    switch (evento->key()) {
    case Qt::Key_PageDown:
    case Qt::Key_Space:
        barra->triggerAction(QScrollBar::SliderPageStepAdd);
        break;
    case Qt::Key_PageUp:
        barra->triggerAction(QScrollBar::SliderPageStepSub);
        break;
    case Qt::Key_Home:
        ctrl ? IrA(0) : barra->setValue(static_cast<int>(m_actual * AltoDePaso()));
        break;
    case Qt::Key_End:
        ctrl ? IrA(static_cast<int>(m_paginas.paginas.size()) - 1)
             : barra->setValue(static_cast<int>((m_actual + 1) * AltoDePaso() - viewport()->height()));
        break;
    default:
        QAbstractScrollArea::keyPressEvent(evento); // arrows
    }
}

void VistaPaginas::wheelEvent(QWheelEvent* evento) {
    if (evento->modifiers() & Qt::ControlModifier) {
        PonerZoom(m_zoom * std::pow(1.1, evento->angleDelta().y() / 120.0));
        evento->accept();
    } else {
        QAbstractScrollArea::wheelEvent(evento);
    }
}

void VistaPaginas::mousePressEvent(QMouseEvent* evento) {
    m_arrastrando = evento->button() == Qt::LeftButton;
    m_arrastre = m_pulsado = evento->pos();
    if (m_arrastrando && CifraEn(evento->pos()).pagina < 0)
        viewport()->setCursor(Qt::ClosedHandCursor);
}

void VistaPaginas::mouseMoveEvent(QMouseEvent* evento) {
    if (!m_arrastrando) {
        viewport()->setCursor(CifraEn(evento->pos()).pagina >= 0 ? Qt::PointingHandCursor
                                                                 : Qt::OpenHandCursor);
        return;
    }
    const QPoint paso = evento->pos() - m_arrastre;
    m_arrastre = evento->pos();
    verticalScrollBar()->setValue(verticalScrollBar()->value() - paso.y());
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - paso.x());
}

void VistaPaginas::mouseReleaseEvent(QMouseEvent* evento) {
    const bool pulsacion =
        m_arrastrando && (evento->pos() - m_pulsado).manhattanLength() < QApplication::startDragDistance();
    m_arrastrando = false;
    viewport()->setCursor(Qt::OpenHandCursor);
    if (const Hallazgo cifra = CifraEn(evento->pos()); pulsacion && cifra.pagina >= 0)
        Elegir(cifra);
}

} // namespace pastorix
