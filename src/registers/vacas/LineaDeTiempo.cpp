#include "registers/vacas/LineaDeTiempo.h"

#include "frame/Iconos.h"
#include "frame/ficha/Aspecto.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace pastorix {

namespace {

constexpr double kBanda = 16; // height of a cycle's band
constexpr double kRadio = 4.5;
constexpr int kMargen = 10;
constexpr int kHolgura = 20; // days left free at both ends

enum class Signo { Parto, Esperado, Servicio, Diagnostico, Secado };

void PintarRombo(QPainter& p, QPointF en, double r) {
    const QPointF puntas[] = {
        {en.x(), en.y() - r}, {en.x() + r, en.y()}, {en.x(), en.y() + r}, {en.x() - r, en.y()}};
    p.drawPolygon(puntas, 4);
}

// One sign for each kind of event, in the drawing and in its legend; told apart by shape, not by colour alone.
void PintarSigno(QPainter& p, Signo signo, QPointF en) {
    const auto tinta = p.pen().color();
    p.save();
    p.setPen(QPen(tinta, 1.4));
    p.setBrush(Qt::NoBrush);
    switch (signo) {
    case Signo::Parto:
        p.setBrush(tinta);
        p.drawEllipse(en, kRadio, kRadio);
        break;
    case Signo::Esperado:
        p.drawEllipse(en, kRadio, kRadio);
        break;
    case Signo::Servicio:
        p.setPen(QPen(tinta, 2));
        p.drawLine(QPointF(en.x(), en.y() - kBanda / 2), QPointF(en.x(), en.y() + kBanda / 2));
        break;
    case Signo::Diagnostico:
        p.setBrush(tinta);
        PintarRombo(p, en, kRadio);
        break;
    case Signo::Secado:
        p.fillRect(QRectF(en.x() - 6, en.y() - kBanda / 4, 12, kBanda / 2), QBrush(tinta, Qt::BDiagPattern));
        break;
    }
    p.restore();
}

} // namespace

struct LineaDeTiempo::Escala {
    std::int32_t desde;
    double porDia;

    double De(Fecha fecha) const { return kMargen + (fecha.dia - desde) * porDia; }
};

LineaDeTiempo::LineaDeTiempo(QWidget* padre)
    : QWidget(padre) {
    setObjectName(QStringLiteral("LineaDeTiempo"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    Mostrar({}, {});
}

int LineaDeTiempo::AltoDeLinea() const {
    return fontMetrics().height();
}

// Intervals above, years below, then the legend.
QSize LineaDeTiempo::sizeHint() const {
    return {600, static_cast<int>(kBanda) + 3 * AltoDeLinea() + 24};
}

int LineaDeTiempo::Centro() const {
    return AltoDeLinea() + 6 + static_cast<int>(kBanda / 2);
}

void LineaDeTiempo::Mostrar(std::vector<CicloEnElTiempo> ciclos, Fecha hoy) {
    const auto todos = ciclos.size();
    std::erase_if(ciclos, [](const auto& c) { return !c.Desde(); });
    const double antes = m_actual < 0 ? 0 : m_ciclos[static_cast<std::size_t>(m_actual)].ciclo.idCubricion;
    m_ciclos = std::move(ciclos);
    m_sinFechas = todos - m_ciclos.size();
    m_hoy = hoy;
    m_actual = -1;
    setAccessibleName(QStringLiteral("Línea de tiempo, %1 ciclos").arg(m_ciclos.size()));
    setAccessibleDescription({});
    if (antes != 0)
        Elegir(antes);
    setVisible(!m_ciclos.empty());
    update();
}

void LineaDeTiempo::Elegir(double idCubricion) {
    const auto it = std::find_if(m_ciclos.begin(), m_ciclos.end(),
                                 [&](const auto& c) { return c.ciclo.idCubricion == idCubricion; });
    if (it != m_ciclos.end())
        Situar(static_cast<int>(it - m_ciclos.begin()));
}

void LineaDeTiempo::Situar(int ciclo) {
    if (m_ciclos.empty())
        return;
    m_actual = std::clamp(ciclo, 0, static_cast<int>(m_ciclos.size()) - 1);
    setAccessibleDescription(
        QString::fromStdString(CicloEnPalabras(m_ciclos[static_cast<std::size_t>(m_actual)])));
    update();
}

LineaDeTiempo::Escala LineaDeTiempo::LaEscala() const {
    auto desde = *m_ciclos.front().Desde();
    auto hasta = *m_ciclos.front().Hasta();
    for (const auto& c : m_ciclos) {
        desde = std::min(desde, *c.Desde());
        hasta = std::max(hasta, *c.Hasta());
    }
    const int dias = hasta.dia - desde.dia + 2 * kHolgura;
    return {desde.dia - kHolgura, static_cast<double>(std::max(1, width() - 2 * kMargen)) / dias};
}

// Of several under the place the one that ends first: a slip in a date must not hide the others.
int LineaDeTiempo::CicloEn(double x) const {
    if (m_ciclos.empty())
        return -1;
    const auto e = LaEscala();
    int mejor = -1;
    double largo = 0;
    for (std::size_t i = 0; i < m_ciclos.size(); ++i) {
        const double a = e.De(*m_ciclos[i].Desde()) - kRadio;
        const double b = e.De(*m_ciclos[i].Hasta()) + kRadio;
        if (x >= a && x <= b && (mejor < 0 || b - a < largo)) {
            mejor = static_cast<int>(i);
            largo = b - a;
        }
    }
    return mejor;
}

// --- drawing

void LineaDeTiempo::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), palette().base());
    if (m_ciclos.empty())
        return;
    const auto e = LaEscala();
    PintarAños(p, e);
    for (int i = 0; i < static_cast<int>(m_ciclos.size()); ++i)
        PintarCiclo(p, e, i);
    for (const auto& c : m_ciclos)
        PintarHechos(p, e, c);
    PintarHoy(p, e);
    PintarLeyenda(p);
}

void LineaDeTiempo::PintarAños(QPainter& p, const Escala& e) const {
    const double base = Centro() + kBanda / 2 + 4;
    auto tenue = palette().color(QPalette::Text);
    tenue.setAlpha(90);
    const double porAño = e.porDia * 365.25;
    const int cada = std::max(
        1,
        static_cast<int>(std::ceil(fontMetrics().horizontalAdvance(QStringLiteral("0000")) * 1.3 / porAño)));
    const Fecha primero{e.desde, 0};
    const double fin = width() - kMargen;
    for (int año = primero.Año();; ++año) {
        const double x = e.De(*Fecha::De(año, 1, 1));
        if (x > fin)
            break;
        p.setPen(tenue);
        if (x >= kMargen)
            p.drawLine(QPointF(x, AltoDeLinea()), QPointF(x, base + 4));
        p.setPen(palette().color(QPalette::Text));
        if (año % cada == 0 &&
            std::max<double>(x, kMargen) + fontMetrics().horizontalAdvance(QStringLiteral("0000")) <
                std::min(x + porAño, fin + kMargen))
            p.drawText(QPointF(std::max<double>(x, kMargen) + 2, base + fontMetrics().ascent()),
                       QString::number(año));
    }
}

void LineaDeTiempo::PintarCiclo(QPainter& p, const Escala& e, int i) const {
    const auto& c = m_ciclos[static_cast<std::size_t>(i)];
    const QRectF banda(e.De(*c.Desde()), Centro() - kBanda / 2, e.De(*c.Hasta()) - e.De(*c.Desde()), kBanda);
    auto tinte = palette().color(QPalette::Highlight);
    tinte.setAlpha(i % 2 == 0 ? 60 : 100);
    p.fillRect(banda, tinte);
    if (const auto fin = c.real ? c.real : c.esperado; c.secado && fin && *c.secado < *fin)
        p.fillRect(QRectF(e.De(*c.secado), banda.top(), e.De(*fin) - e.De(*c.secado), kBanda),
                   QBrush(palette().color(QPalette::Text), Qt::BDiagPattern));
    if (i == m_actual) {
        p.setPen(
            QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Text), hasFocus() ? 2.5 : 1));
        p.setBrush(Qt::NoBrush);
        p.drawRect(banda.adjusted(-kRadio - 1, -3, kRadio + 1, 3));
    }
    if (!c.intervalo)
        return;
    auto fuente = font();
    const bool largo = *c.intervalo > kIntervaloLargo;
    fuente.setBold(largo);
    p.setFont(fuente);
    p.setPen(largo ? ColorDeReparo(palette()) : palette().color(QPalette::Text));
    p.drawText(QRectF(banda.center().x() - 40, 2, 80, AltoDeLinea()), Qt::AlignCenter,
               QString::number(*c.intervalo));
    p.setFont(font());
}

void LineaDeTiempo::PintarHechos(QPainter& p, const Escala& e, const CicloEnElTiempo& c) const {
    p.setPen(palette().color(QPalette::Text));
    const auto signo = [&](Signo s, const std::optional<Fecha>& fecha) {
        if (fecha)
            PintarSigno(p, s, {e.De(*fecha), static_cast<double>(Centro())});
    };
    for (const auto& servicio : c.servicios)
        signo(Signo::Servicio, servicio);
    signo(Signo::Diagnostico, c.diagnosis);
    signo(Signo::Parto, c.parto);
    signo(Signo::Parto, c.real);
    signo(Signo::Esperado, c.esperado);
}

// Today, when the drawing reaches beyond it: a calving is expected.
void LineaDeTiempo::PintarHoy(QPainter& p, const Escala& e) const {
    const double x = e.De(m_hoy);
    if (x < kMargen || x > width() - kMargen)
        return;
    p.setPen(QPen(palette().color(QPalette::Text), 1, Qt::DashLine));
    p.drawLine(QPointF(x, AltoDeLinea()), QPointF(x, Centro() + kBanda));
}

void LineaDeTiempo::PintarLeyenda(QPainter& p) const {
    const struct {
        Signo signo;
        const char* texto;
    } leyenda[] = {{Signo::Parto, "parto"},
                   {Signo::Esperado, "parto esperado"},
                   {Signo::Servicio, "servicio"},
                   {Signo::Diagnostico, "diagnóstico"},
                   {Signo::Secado, "seca"}};
    p.setPen(palette().color(QPalette::Text));
    const double y = height() - 6 - AltoDeLinea() / 2.0;
    double x = kMargen + 6;
    for (const auto& [signo, texto] : leyenda) {
        PintarSigno(p, signo, {x, y});
        x += 12;
        const auto rotulo = QString::fromUtf8(texto);
        p.drawText(QPointF(x, y + fontMetrics().ascent() / 2.0 - 1), rotulo);
        x += fontMetrics().horizontalAdvance(rotulo) + 22;
    }
    p.drawText(
        QPointF(x, y + fontMetrics().ascent() / 2.0 - 1),
        QStringLiteral("arriba, días entre partos") +
            (m_sinFechas == 0 ? QString() : QStringLiteral("; %1 ciclos sin fechas").arg(m_sinFechas)));
}

// --- mouse and keys

void LineaDeTiempo::mousePressEvent(QMouseEvent* evento) {
    const int i = CicloEn(evento->position().x());
    if (evento->button() != Qt::LeftButton || i < 0)
        return QWidget::mousePressEvent(evento);
    Situar(i);
    if (alAbrir)
        alAbrir(m_ciclos[static_cast<std::size_t>(i)].ciclo);
}

void LineaDeTiempo::mouseMoveEvent(QMouseEvent* evento) {
    setCursor(CicloEn(evento->position().x()) < 0 ? QCursor() : CursorMano());
}

void LineaDeTiempo::keyPressEvent(QKeyEvent* evento) {
    switch (evento->key()) {
    case Qt::Key_Left:
        return Situar(m_actual - 1);
    case Qt::Key_Right:
        return Situar(m_actual + 1);
    case Qt::Key_Home:
        return Situar(0);
    case Qt::Key_End:
        return Situar(static_cast<int>(m_ciclos.size()) - 1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_actual >= 0 && alAbrir)
            return alAbrir(m_ciclos[static_cast<std::size_t>(m_actual)].ciclo);
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(evento);
}

void LineaDeTiempo::focusInEvent(QFocusEvent* evento) {
    QWidget::focusInEvent(evento);
    if (m_actual < 0)
        Situar(static_cast<int>(m_ciclos.size()) - 1); // the cycle in progress
}

bool LineaDeTiempo::event(QEvent* evento) {
    if (evento->type() != QEvent::ToolTip)
        return QWidget::event(evento);
    const auto* ayuda = static_cast<QHelpEvent*>(evento);
    const int i = CicloEn(ayuda->pos().x());
    if (i < 0)
        QToolTip::hideText();
    else
        QToolTip::showText(ayuda->globalPos(),
                           QString::fromStdString(CicloEnPalabras(m_ciclos[static_cast<std::size_t>(i)])),
                           this);
    return true;
}

} // namespace pastorix
