#include "registers/PanelRecientes.h"

#include "frame/Iconos.h"
#include "frame/Ultimos.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace pastorix {

namespace {

constexpr int kLetras = 20; // of a name, before it gives way

} // namespace

PanelRecientes::PanelRecientes(Sesion& sesion, QWidget* padre)
    : QFrame(padre)
    , m_sesion(sesion)
    , m_fila(new QHBoxLayout(this)) {
    setObjectName(QStringLiteral("PanelRecientes"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    m_fila->setContentsMargins(9, 3, 9, 3);
    hide();
}

// A database that fails tells so wherever it is worked with; here there is only nothing to offer.
void PanelRecientes::Refrescar() {
    while (auto* puesto = m_fila->takeAt(0)) {
        if (puesto->widget())
            puesto->widget()->deleteLater();
        delete puesto;
    }
    if (!m_sesion.conexion.Abierta())
        return hide();
    m_fila->addWidget(new QLabel(QStringLiteral("Recientes"), this));
    try {
        Poner(FichaDe::Ganadero, "Id_Ganadero",
              "SELECT Nombre, Apellidos FROM T_Ganaderos WHERE Id_Ganadero = ");
        Poner(FichaDe::Vaca, "Id_Vaca", "SELECT NombreC, Crotal FROM T_Vacas WHERE Id_Vaca = ");
    } catch (const ErrorAlmacen&) {
        return hide();
    }
    m_fila->addStretch();
    setVisible(m_fila->count() > 2);
}

void PanelRecientes::Poner(FichaDe ficha, const char* columnaClave, const char* nombre) {
    const bool vaca = ficha == FichaDe::Vaca;
    for (const double codigo : Recientes(m_sesion.conexion, columnaClave)) {
        Recordset rs(m_sesion.conexion, nombre + NumeroSql(codigo), Cursor::Estatico, Bloqueo::SoloLectura);
        if (rs.Eof())
            continue;
        const auto primero = QString::fromStdString(rs[0].Texto());
        const auto segundo = QString::fromStdString(rs[1].Texto());
        const auto texto = (vaca ? primero : primero + QLatin1Char(' ') + segundo).trimmed();
        auto* boton = new QToolButton(this);
        boton->setIcon(Icono(vaca ? "vacas" : "ganaderos"));
        boton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        boton->setAutoRaise(true);
        boton->setText(fontMetrics()
                           .elidedText(texto, Qt::ElideRight, kLetras * fontMetrics().averageCharWidth())
                           .replace(QLatin1Char('&'), QStringLiteral("&&")));
        const auto entero = QStringLiteral("%1 %2 (%3)")
                                .arg(vaca ? QStringLiteral("Vaca") : QStringLiteral("Ganadero"), texto,
                                     vaca ? segundo : QString::number(codigo, 'f', 0));
        boton->setToolTip(entero);
        boton->setAccessibleName(entero);
        connect(boton, &QToolButton::clicked, this, [this, ficha, codigo] {
            if (alAbrir)
                alAbrir({ficha, codigo, {}});
        });
        m_fila->addWidget(boton);
    }
}

} // namespace pastorix
