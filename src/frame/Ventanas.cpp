#include "frame/Ventanas.h"

#include "frame/Ajustes.h"

#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>

namespace pastorix {

namespace {

// As wide and high as what it holds, where there is room; the field that gets the focus comes into view.
class Desplazable : public QScrollArea {
public:
    explicit Desplazable(QWidget* padre)
        : QScrollArea(padre) {
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* foco) {
            if (foco && isAncestorOf(foco))
                ensureWidgetVisible(foco);
        });
    }
    QSize sizeHint() const override {
        return widget() ? widget()->sizeHint().expandedTo(widget()->minimumSizeHint())
                        : QScrollArea::sizeHint();
    }
    QSize minimumSizeHint() const override {
        return {fontMetrics().averageCharWidth() * 30, fontMetrics().height() * 4};
    }
};

QRect Disponible(const QWidget& ventana) {
    const auto* pantalla = ventana.screen() ? ventana.screen() : QGuiApplication::primaryScreen();
    return pantalla->availableGeometry();
}

constexpr int kAnchoMinimo = 16; // of a column; what a settings file has beyond these is rubbish
constexpr int kAnchoMaximo = 2000;

class Memoria : public QObject {
public:
    explicit Memoria(QWidget& ventana)
        : QObject(&ventana)
        , m_ventana(ventana) {
        ventana.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() == QEvent::Show && !m_vista) {
            m_vista = true;
            Reponer();
        } else if (evento->type() == QEvent::Hide && m_vista && !m_ventana.isMaximized()) {
            Guardar();
        }
        return QObject::eventFilter(objeto, evento);
    }

private:
    QString Clave(const QString& cosa) const { return m_ventana.objectName() + QLatin1Char('/') + cosa; }

    void Reponer() {
        const auto sitio = Disponible(m_ventana);
        const QSize marco(16, 40); // what the window system puts around it
        const auto tamaño = AjusteDeVentana(Clave(QStringLiteral("tamaño"))).toSize();
        const auto propio = tamaño.isValid() ? tamaño : m_ventana.size().expandedTo(m_ventana.sizeHint());
        m_ventana.resize(propio.boundedTo(sitio.size() - marco));
        for (auto* tabla : Tablas()) {
            const auto anchos = AjusteDeVentana(Clave(tabla->objectName())).toList();
            auto* cabecera = tabla->horizontalHeader();
            if (anchos.size() == cabecera->count()) // else the table has changed since
                for (int i = 0; i < cabecera->count(); ++i)
                    if (const int ancho = anchos[i].toInt(); ancho >= kAnchoMinimo && ancho <= kAnchoMaximo)
                        cabecera->resizeSection(i, ancho);
        }
    }

    void Guardar() const {
        GuardarAjusteDeVentana(Clave(QStringLiteral("tamaño")), m_ventana.size());
        for (auto* tabla : Tablas()) {
            QVariantList anchos;
            for (int i = 0; i < tabla->horizontalHeader()->count(); ++i)
                anchos << tabla->columnWidth(i);
            GuardarAjusteDeVentana(Clave(tabla->objectName()), anchos);
        }
    }

    QList<QTableView*> Tablas() const {
        auto tablas = m_ventana.findChildren<QTableView*>();
        tablas.removeIf([](const auto* t) { return t->objectName().isEmpty(); });
        return tablas;
    }

    QWidget& m_ventana;
    bool m_vista = false;
};

} // namespace

QVBoxLayout* CuerpoDesplazable(QWidget& ventana, QVBoxLayout& todo) {
    auto* area = new Desplazable(&ventana);
    area->setObjectName(QStringLiteral("Cuerpo"));
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    auto* dentro = new QWidget(area);
    auto* cuerpo = new QVBoxLayout(dentro);
    cuerpo->setContentsMargins(0, 0, 0, 0);
    area->setWidget(dentro);
    todo.addWidget(area, 1);
    return cuerpo;
}

void RecordarVentana(QWidget& ventana) {
    new Memoria(ventana);
}

} // namespace pastorix
