#include "reproduction/PiezasDeCiclo.h"

#include "frame/Iconos.h"
#include "reproduction/Colores.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>

namespace pastorix {

void RotularCompletos(QCheckBox& marca) {
    const bool completos = marca.isChecked();
    marca.setText(completos ? QStringLiteral("Datos Completos!!!")
                            : QStringLiteral("Marque esta casilla, con datos completos."));
    PintarTexto(marca, completos ? kRojoCompletos : QColor());
}

QPushButton* PonerBoton(QHBoxLayout& pie, const BotonDePie& boton, std::function<void()> orden) {
    auto* b = new QPushButton(Icono(boton.icono), QString::fromUtf8(boton.texto));
    b->setObjectName(QString::fromUtf8(boton.nombre));
    b->setToolTip(QString::fromUtf8(boton.ayuda));
    b->setAutoDefault(false); // Enter belongs to the fields
    if (!boton.tecla.isEmpty())
        QObject::connect(new QShortcut(boton.tecla, b), &QShortcut::activated, b, orden);
    QObject::connect(b, &QPushButton::clicked, b, std::move(orden));
    pie.addWidget(b);
    return b;
}

} // namespace pastorix
