#include "frame/Acerca.h"

#include "frame/Iconos.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace pastorix {

Acerca::Acerca(const Sesion& sesion, QWidget* padre)
    : QDialog(padre) {
    setObjectName(QStringLiteral("Acerca"));
    setWindowTitle(QStringLiteral("Acerca de Pastorix"));
    setWindowModality(Qt::WindowModal);

    auto* emblema = new QLabel(this);
    emblema->setPixmap(Icono("pastorix").pixmap(QSize(72, 72), devicePixelRatioF()));
    auto* nombre = new QLabel(QStringLiteral("PASTORIX"), this);
    QFont grande = nombre->font();
    grande.setPointSizeF(grande.pointSizeF() * 1.8);
    grande.setBold(true);
    nombre->setFont(grande);
    auto* version =
        new QLabel(QStringLiteral("Versión ") +
                       QString::fromStdString(sesion.VersionPrograma).section('(', 1).section(')', 0, 0),
                   this);
    version->setObjectName(QStringLiteral("Version"));
    auto* aceptar = new QPushButton(QStringLiteral("&Aceptar"), this);
    aceptar->setObjectName(QStringLiteral("B_Aceptar"));
    aceptar->setDefault(true);
    connect(aceptar, &QPushButton::clicked, this, &QDialog::accept);

    auto* textos = new QVBoxLayout;
    textos->addStretch();
    textos->addWidget(nombre);
    textos->addWidget(version);
    textos->addStretch();
    auto* fila = new QHBoxLayout;
    fila->setSpacing(20);
    fila->addWidget(emblema);
    fila->addLayout(textos, 1);
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(24, 20, 24, 16);
    columna->setSpacing(16);
    columna->addLayout(fila);
    columna->addWidget(aceptar, 0, Qt::AlignRight);
    setFixedSize(sizeHint().expandedTo(QSize(340, 0)));
}

} // namespace pastorix
