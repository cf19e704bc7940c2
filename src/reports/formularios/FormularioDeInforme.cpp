#include "reports/formularios/FormularioDeInforme.h"

#include "frame/Ciclo.h"
#include "frame/Mensajes.h"
#include "frame/Ultimos.h"
#include "frame/Ventanas.h"
#include "frame/calendario/ErrorDeEjecucion.h"
#include "reports/motor/ControlInforme.h"
#include "reports/motor/ErrorInforme.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QShowEvent>
#include <QVBoxLayout>

namespace pastorix {

FormularioDeInforme::FormularioDeInforme(Sesion& sesion, ControlInforme& control, const char* nombre,
                                         const QString& titulo, QWidget* padre)
    : QDialog(padre)
    , m_sesion(sesion)
    , m_control(control) {
    setObjectName(QString::fromUtf8(nombre));
    setWindowTitle(titulo);
    setWindowModality(Qt::WindowModal);
    Construir();
}

void FormularioDeInforme::Construir() {
    auto* botones = new QDialogButtonBox(this);
    m_aceptar = botones->addButton(QStringLiteral("&Aceptar"), QDialogButtonBox::AcceptRole);
    m_aceptar->setObjectName(QStringLiteral("B_Aceptar"));
    m_aceptar->setDefault(true);
    auto* cancelar = botones->addButton(QStringLiteral("&Cancelar"), QDialogButtonBox::RejectRole);
    cancelar->setObjectName(QStringLiteral("B_Cancelar"));
    connect(m_aceptar, &QPushButton::clicked, this, [this] {
        if (const double ganadero = m_eleccion->Elegido(); Aceptar())
            RecordarUltimo(Base(), "Id_Ganadero", ganadero);
    });
    connect(cancelar, &QPushButton::clicked, this, &QDialog::close);

    m_campos = new QFormLayout;
    m_campos->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_campos->setRowWrapPolicy(QFormLayout::DontWrapRows);
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(m_campos);
    todo->addWidget(botones);
    RecordarVentana(*this);
}

void FormularioDeInforme::ElegirCon(EleccionDeGanadero& eleccion, bool debeHaberlo) {
    m_eleccion = &eleccion;
    m_debeHaberlo = debeHaberlo;
    AdmitirOpcion("ganadero", [&eleccion](const QString& v) { return eleccion.Elegir(v.toDouble()); });
}

void FormularioDeInforme::PonerCampo(QFormLayout& campos, const QString& rotulo, int indice, QWidget* campo) {
    auto* l = new QLabel(rotulo, campo->parentWidget());
    l->setObjectName(QStringLiteral("Et_CR(%1)").arg(indice));
    l->setBuddy(campo);
    campos.addRow(l, campo);
}

void FormularioDeInforme::Exigir(std::function<bool()> cumple, std::function<void()> avisar) {
    m_comprobaciones.push_back({std::move(cumple), std::move(avisar)});
}

void FormularioDeInforme::Exigir(std::function<bool()> cumple, const char* mensaje) {
    Exigir(std::move(cumple), [this, mensaje] { Informar(mensaje); });
}

void FormularioDeInforme::AdmitirOpcion(const char* nombre, std::function<bool(const QString&)> poner) {
    m_opciones[QString::fromUtf8(nombre)] = std::move(poner);
}

void FormularioDeInforme::PonerOpcion(const QString& nombre, const QString& valor) {
    const auto it = m_opciones.find(nombre);
    if (it == m_opciones.end())
        throw ErrorDeOpcion("Este informe no tiene la opción " + nombre.toStdString());
    if (!it->second(valor))
        throw ErrorDeOpcion(nombre == QLatin1String("ganadero")
                                ? "La lista de ganaderos no ofrece el código " + valor.toStdString() +
                                      ": no existe o está de baja"
                                : "La opción " + nombre.toStdString() + " no admite: " + valor.toStdString());
}

void FormularioDeInforme::Informar(const char* texto) {
    Avisar(this, TipoMensaje::Informacion, QStringLiteral("Información"), QString::fromUtf8(texto));
}

void FormularioDeInforme::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    if (!evento->spontaneous() && m_debeHaberlo && m_eleccion->Elegido() == 0)
        m_eleccion->Elegir(Ultimo(Base(), "Id_Ganadero"));
}

// Name and telephones of the veterinarian of the farmer, for the foot of the pages; "" when there is none.
QString FormularioDeInforme::Veterinario() const {
    Recordset rs(Base(),
                 "SELECT T_Veterinarios.NombreVet, T_Veterinarios.ApellidosVet, T_Direcciones.TelefonoP, "
                 "T_Direcciones.TelefonoM FROM (T_Ganaderos INNER JOIN T_Veterinarios ON "
                 "T_Ganaderos.Id_Veterinario = T_Veterinarios.Id_Veterinario) LEFT JOIN T_Direcciones ON "
                 "(T_Veterinarios.Id_Direccion = T_Direcciones.Id_Direccion) AND "
                 "(T_Veterinarios.Id_Veterinario = T_Direcciones.Id_GV) WHERE T_Ganaderos.Id_Ganadero = " +
                     NumeroSql(m_eleccion->Elegido()),
                 Cursor::Estatico, Bloqueo::SoloLectura);
    if (rs.Eof())
        return {};
    QStringList partes;
    for (const auto& texto : {rs["NombreVet"].Texto() + " " + rs["ApellidosVet"].Texto(),
                              rs["TelefonoP"].Texto(), rs["TelefonoM"].Texto()})
        if (const auto parte = QString::fromStdString(texto).trimmed(); !parte.isEmpty())
            partes << parte;
    return partes.join(QStringLiteral(" · "));
}

void FormularioDeInforme::Lanzar() {
    const auto hoja = Hoja();
    m_control.Reiniciar();
    m_control.EstadoVentana = 2;
    m_control.Bandera115 = hoja.deLista;
    m_control.Bandera125 = hoja.bandera125;
    int indice = 0;
    for (const auto& parametro : hoja.parametros)
        m_control.CampoParametro(indice++, parametro + QStringLiteral(";TRUE"));
    if (hoja.conVeterinario)
        m_control.CampoParametro(indice++, QStringLiteral("Veterinario;%1;TRUE").arg(Veterinario()));
    m_control.TituloVentana = hoja.titulo;
    m_control.FicheroInforme = m_sesion.rutas.Informe(hoja.fichero);
    m_control.FormulaSeleccion = hoja.formula;
    m_control.Ganadero = m_eleccion->Elegido();
    m_control.Destino = 0;
    m_control.NombrePropuesto = (QStringList(windowTitle()) << Sobre()).join(QStringLiteral(" - "));
    m_control.Action(1);
    while (indice > 0)
        m_control.CampoParametro(--indice, {});
}

bool FormularioDeInforme::Aceptar() {
    const auto atencion = [this](long numero, const std::exception& error) {
        AvisarFallo(this, QStringLiteral("Atención..."), numero, error);
        return false;
    };
    try {
        for (const auto& c : m_comprobaciones)
            if (!c.cumple()) {
                c.avisar();
                return false;
            }
        m_aceptar->setEnabled(false);
        const auto repuesto = qScopeGuard([this] { m_aceptar->setEnabled(true); });
        bool hay = false;
        {
            CicloTardio ciclo(this, QStringLiteral("Generando informe"));
            hay = Llenar([&](int hecho, int total) { ciclo.Avance(hecho, total); });
        }
        if (hay)
            Lanzar();
        return hay;
    } catch (const ErrorAlmacen& e) {
        return atencion(e.Numero(), e);
    } catch (const ErrorDeEjecucion& e) {
        return atencion(e.Numero(), e);
    } catch (const ErrorInforme& e) {
        return atencion(e.Numero(), e);
    } catch (const std::exception& e) {
        return atencion(5, e);
    }
}

} // namespace pastorix
