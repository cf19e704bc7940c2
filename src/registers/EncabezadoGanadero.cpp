#include "registers/EncabezadoGanadero.h"

#include "frame/Iconos.h"
#include "frame/Ultimos.h"
#include "frame/ficha/Aspecto.h"
#include "registers/datos/DatosGanadero.h"
#include "store/Valor.h"

#include <QHBoxLayout>
#include <QHideEvent>
#include <QLabel>
#include <QToolButton>

namespace pastorix {

EncabezadoGanadero::EncabezadoGanadero(Conexion& conexion, int icono, QWidget* padre)
    : QWidget(padre)
    , m_c(conexion)
    , m_icono(new QToolButton(this)) {
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->addWidget(new QLabel(QStringLiteral("Ganadero"), this));
    m_icono->setObjectName(QStringLiteral("IconoBusDato(%1)").arg(icono));
    m_icono->setIcon(pastorix::Icono("ganaderos"));
    m_icono->setCursor(CursorMano());
    m_icono->setToolTip(QStringLiteral("Seleccionar"));
    DarTecla(*m_icono, QKeySequence(Qt::Key_F4));
    m_icono->setAccessibleName(QStringLiteral("Seleccionar ganadero"));
    m_icono->setAutoRaise(true);
    connect(m_icono, &QToolButton::clicked, this, [this] {
        if (alBuscar)
            alBuscar();
    });
    fila->addWidget(m_icono);
    for (std::size_t i = 0; i < m_rotulos.size(); ++i) {
        auto* rotulo = new QLabel(this);
        rotulo->setObjectName(QStringLiteral("Et_Ganadero(%1)").arg(i));
        rotulo->setTextInteractionFlags(Qt::TextSelectableByMouse);
        if (i == 1) {
            auto fuente = rotulo->font();
            fuente.setBold(true);
            fuente.setPointSizeF(fuente.pointSizeF() * 1.2);
            rotulo->setFont(fuente);
        }
        fila->addWidget(rotulo);
        m_rotulos[i] = rotulo;
    }
    fila->addStretch();
}

void EncabezadoGanadero::Poner(double idGanadero) {
    Limpiar(); // should the reading fail, nobody stands there
    const auto datos = LeerDatosGanadero(m_c, idGanadero);
    m_id = idGanadero;
    m_rotulos[0]->setText(QString::fromStdString(TextoNumero(idGanadero)));
    m_rotulos[1]->setText(QString::fromStdString(datos.nombre));
    m_rotulos[2]->setText(QString::fromStdString(datos.localidad));
}

void EncabezadoGanadero::Limpiar() {
    m_id.reset();
    for (auto* rotulo : m_rotulos)
        rotulo->clear();
}

// The sheet is closed: its farmer is the one that others will offer. The owner of the insemination bulls is nobody's farm.
void EncabezadoGanadero::hideEvent(QHideEvent* evento) {
    QWidget::hideEvent(evento);
    if (m_id && *m_id > 1 && !evento->spontaneous())
        RecordarUltimo(m_c, "Id_Ganadero", *m_id);
}

QString EncabezadoGanadero::Codigo() const {
    return m_rotulos[0]->text();
}

} // namespace pastorix
