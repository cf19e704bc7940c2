#include "frame/ficha/BarraFicha.h"

#include "frame/Iconos.h"
#include "frame/Mensajes.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace pastorix {

namespace {

struct Aspecto {
    const char* nombre;
    const char* texto;
    const char* icono;
};

constexpr std::array<Aspecto, 6> kAspectos{{{"B_Añadir", "&Añadir", "anadir"},
                                            {"B_Modificar", "&Modificar", "modificar"},
                                            {"B_Eliminar", "&Eliminar", "eliminar"},
                                            {"B_Guardar", "&Guardar", "guardar"},
                                            {"B_Cancelar", "&Cancelar", "cancelar"},
                                            {"B_Cerrar", "Ce&rrar", "cerrar"}}};

// Which of the six are on, in their order, for each state that changes them.
constexpr std::array<bool, 6> kVacia{true, false, false, false, false, true};
constexpr std::array<bool, 6> kEditando{false, false, false, true, true, false};
constexpr std::array<bool, 6> kConRegistro{true, true, true, false, false, true};

} // namespace

BarraFicha::BarraFicha(QWidget* padre)
    : QWidget(padre)
    , m_estado(new QLabel(this)) {
    m_estado->setObjectName(QStringLiteral("Estado"));
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(0, 0, 0, 0);
    for (std::size_t i = 0; i < kAspectos.size(); ++i) {
        auto* b = new QPushButton(Icono(kAspectos[i].icono), QString::fromUtf8(kAspectos[i].texto), this);
        b->setObjectName(QString::fromUtf8(kAspectos[i].nombre));
        b->setAutoDefault(false); // Enter belongs to the fields
        if (i == Cerrar)
            fila->addWidget(m_estado, 1, Qt::AlignCenter);
        fila->addWidget(b);
        m_botones[i] = b;
    }
}

void BarraFicha::Poner(ModoFicha modo) {
    const auto& activos = modo == ModoFicha::Mostrando ? kConRegistro
                          : modo == ModoFicha::Vacia   ? kVacia
                                                       : kEditando;
    for (std::size_t i = 0; i < m_botones.size(); ++i)
        m_botones[i]->setEnabled(activos[i]);
    Decir({});
}

void BarraFicha::Decir(const QString& texto) {
    pastorix::Decir(*m_estado, texto);
}

} // namespace pastorix
