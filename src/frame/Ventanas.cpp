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
const QString kTamaño = QStringLiteral("tamaño");
const QString kMaximizada = QStringLiteral("maximizada");

class Memoria : public QObject {
public:
    Memoria(QWidget& ventana, const QString& clave, bool conEstado)
        : QObject(&ventana)
        , m_ventana(ventana)
        , m_clave(clave)
        , m_conEstado(conEstado) {
        ventana.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() == QEvent::Show && !m_vista) {
            m_vista = true;
            ReponerTamaño();
            ReponerAnchos();
            if (m_conEstado && AjusteDeVentana(Clave(kMaximizada)).toBool())
                m_ventana.setWindowState(m_ventana.windowState() | Qt::WindowMaximized);
        } else if (evento->type() == QEvent::WindowStateChange && m_vista && !m_dimensionada) {
            ReponerTamaño(); // it opened maximized, and comes out of it
        } else if (evento->type() == QEvent::Hide && m_vista && !evento->spontaneous()) {
            Guardar();
        }
        return QObject::eventFilter(objeto, evento);
    }

private:
    // A base class may ask for the memory of a window that gets its name later.
    QString Clave(const QString& cosa) const {
        return (m_clave.isEmpty() ? m_ventana.objectName() : m_clave) + QLatin1Char('/') + cosa;
    }

    void ReponerTamaño() {
        if (m_ventana.isMaximized() || m_ventana.isMinimized())
            return;
        m_dimensionada = true;
        const QSize marco(16, 40); // what the window system puts around it
        const auto tamaño = AjusteDeVentana(Clave(kTamaño)).toSize();
        const auto propio = tamaño.isValid() ? tamaño : m_ventana.size().expandedTo(m_ventana.sizeHint());
        m_ventana.resize(propio.boundedTo(Disponible(m_ventana).size() - marco));
    }

    void ReponerAnchos() {
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
        QVariantMap valores;
        if (m_conEstado)
            valores[Clave(kMaximizada)] = m_ventana.isMaximized();
        const auto tamaño = m_ventana.isMaximized() ? m_ventana.normalGeometry().size() : m_ventana.size();
        if (!tamaño.isEmpty())
            valores[Clave(kTamaño)] = tamaño;
        for (auto* tabla : Tablas()) {
            QVariantList anchos;
            for (int i = 0; i < tabla->horizontalHeader()->count(); ++i)
                anchos << tabla->columnWidth(i);
            valores[Clave(tabla->objectName())] = anchos;
        }
        GuardarAjustesDeVentana(valores);
    }

    QList<QTableView*> Tablas() const {
        auto tablas = m_ventana.findChildren<QTableView*>();
        tablas.removeIf([](const auto* t) { return t->objectName().isEmpty(); });
        return tablas;
    }

    QWidget& m_ventana;
    QString m_clave;
    bool m_conEstado;
    bool m_vista = false;
    bool m_dimensionada = false;
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

void RecordarVentana(QWidget& ventana, const QString& clave) {
    new Memoria(ventana, clave, false);
}

void RecordarVentanaMaximizada(QWidget& ventana) {
    new Memoria(ventana, {}, true);
}

} // namespace pastorix
