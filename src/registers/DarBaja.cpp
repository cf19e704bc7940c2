#include "registers/DarBaja.h"

#include "frame/Mensajes.h"
#include "frame/Ventanas.h"
#include "frame/calendario/Calendario.h"
#include "frame/ficha/CampoTexto.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>

namespace pastorix {

DarBaja::DarBaja(Conexion& c, double idGanadero, const QString& nombre, QWidget* padre)
    : QDialog(padre)
    , m_c(c)
    , m_idGanadero(idGanadero)
    , m_fecha(new CampoTexto(ClaseCampo::Fecha, 10, this))
    , m_motivo(new CampoTexto(ClaseCampo::Texto, 255, this)) {
    setObjectName(QStringLiteral("DarBaja"));
    setWindowTitle(QStringLiteral("Dar de Baja a: ") + nombre);
    m_fecha->setObjectName(QStringLiteral("CT_Estandar(0)"));
    m_motivo->setObjectName(QStringLiteral("CT_Estandar(1)"));
    m_motivo->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    auto* botones = new QDialogButtonBox(this);
    auto* aceptar = botones->addButton(QStringLiteral("&Aceptar"), QDialogButtonBox::AcceptRole);
    aceptar->setObjectName(QStringLiteral("B_Aceptar"));
    aceptar->setDefault(true);
    auto* cancelar = botones->addButton(QStringLiteral("&Cancelar"), QDialogButtonBox::RejectRole);
    cancelar->setObjectName(QStringLiteral("B_Cancelar"));
    connect(aceptar, &QPushButton::clicked, this, [this] { Aceptar(); });
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    auto* campos = new QFormLayout(this);
    campos->addRow(QStringLiteral("&Fecha"), m_fecha);
    campos->addRow(QStringLiteral("&Motivo"), m_motivo);
    campos->addRow(botones);
    RecordarVentana(*this);
}

QString DarBaja::Fecha() const {
    return m_fecha->text();
}
QString DarBaja::Motivo() const {
    return m_motivo->text();
}

void DarBaja::Aceptar() {
    const auto fecha = Fecha().toStdString();
    if (!EsFechaValida(fecha)) {
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención!"),
               QStringLiteral("La fecha no es correcta, dd/mm/aa"));
        m_fecha->setFocus();
        return;
    }
    try {
        EnGrupo(m_c, [&] {
            Recordset rs(m_c, "Select * FROM T_Ganaderos WHERE Id_Ganadero = " + NumeroSql(m_idGanadero));
            if (rs.Eof())
                return;
            rs["FechaBaja"] = fecha;
            rs["MotivoBaja"] = Motivo().isEmpty() ? Valor() : Valor(Motivo().toStdString());
            rs.Update();
        });
        accept();
    } catch (const ErrorAlmacen& e) {
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención!"), QString::fromUtf8(e.what()));
    }
}

} // namespace pastorix
