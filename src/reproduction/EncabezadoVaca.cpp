#include "reproduction/EncabezadoVaca.h"

#include "registers/datos/DatosGanadero.h"

#include <QHBoxLayout>
#include <QLabel>

namespace pastorix {

EncabezadoVaca::EncabezadoVaca(const std::vector<Dato>& datos, QWidget* padre)
    : QWidget(padre) {
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(7);
    for (const auto& dato : datos) {
        auto* rotulo = new QLabel(dato.rotulo, this);
        auto* valor = new QLabel(this);
        valor->setObjectName(dato.control);
        valor->setAccessibleName(dato.rotulo);
        if (m_valores.size() < 3)
            valor->setMinimumWidth(40); // long names give way before the sheet outgrows the screen
        valor->setTextInteractionFlags(Qt::TextSelectableByMouse);
        auto fuente = valor->font();
        fuente.setBold(true);
        valor->setFont(fuente);
        fila->addWidget(rotulo);
        fila->addWidget(valor);
        m_rotulos.push_back(rotulo);
        m_valores.push_back(valor);
    }
    fila->addStretch();
}

void EncabezadoVaca::Poner(std::size_t dato, const QString& texto) {
    m_valores[dato]->setText(texto);
    m_valores[dato]->setToolTip(texto);
    for (auto* w : {m_rotulos[dato], m_valores[dato]})
        w->setVisible(!texto.isEmpty());
}

void EncabezadoVaca::PonerVaca(Conexion& c, const VacaEnMano& vaca) {
    const auto ganadero = LeerDatosGanadero(c, vaca.idGanadero);
    std::size_t i = 0;
    for (const auto& texto : {ganadero.nombre, ganadero.localidad, vaca.nombreC, vaca.crotal})
        Poner(i++, QString::fromStdString(texto));
}

QString FechaDeVaca(const std::optional<Fecha>& fecha, const std::string& texto, const char* mascara) {
    return QString::fromStdString(fecha ? FormatoFecha(*fecha, mascara) : texto);
}

} // namespace pastorix
