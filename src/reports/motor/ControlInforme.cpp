#include "reports/motor/ControlInforme.h"

#include "reports/motor/DisposicionesIncluidas.h"
#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Espera.h"
#include "reports/motor/Exportacion.h"
#include "reports/motor/VentanaInforme.h"

#include <QFileInfo>

#include <utility>

namespace pastorix {

namespace {

ControlInforme::Destinatario& Instalado() {
    static ControlInforme::Destinatario destinatario;
    return destinatario;
}

} // namespace

ControlInforme::ControlInforme(const FuenteDeTablas& fuente)
    : m_fuente(fuente) {}

void ControlInforme::Reiniciar() {
    EstadoVentana = 0;
    Bandera115 = false;
    Bandera125 = false;
    TituloVentana.clear();
    FicheroInforme.clear();
    FormulaSeleccion.clear();
    NombrePropuesto.clear();
    Ganadero = 0;
    Destino = 0;
    m_parametros.clear();
}

void ControlInforme::CampoParametro(int indice, const QString& texto) {
    if (texto.isEmpty())
        m_parametros.erase(indice);
    else
        m_parametros[indice] = texto;
}

PeticionInforme ControlInforme::Peticion() const {
    PeticionInforme peticion;
    peticion.titulo = TituloVentana;
    peticion.ganadero = Ganadero;
    peticion.formulaSeleccion = FormulaSeleccion.toStdString();
    for (const auto& [indice, texto] : m_parametros) {
        const qsizetype primero = texto.indexOf(QLatin1Char(';'));
        const qsizetype ultimo = texto.lastIndexOf(QLatin1Char(';'));
        const QString nombre = texto.left(primero).trimmed();
        if (primero < 0 || ultimo == primero || nombre.isEmpty() ||
            texto.mid(ultimo + 1).trimmed().compare(QLatin1String("TRUE"), Qt::CaseInsensitive) != 0)
            throw ErrorInforme(CodigoInforme::Parametro, "El campo de parámetro \"" + texto.toStdString() +
                                                             "\" no tiene la forma Nombre;valor;TRUE");
        const QString valor = texto.mid(primero + 1, ultimo - primero - 1);
        if (!peticion.parametros.emplace(nombre.toStdString(), valor.toStdString()).second)
            throw ErrorInforme(CodigoInforme::Parametro,
                               "El parámetro \"" + nombre.toStdString() + "\" está dos veces");
    }
    return peticion;
}

void ControlInforme::Action(int accion) {
    if (accion != 1 || Destino != 0)
        throw ErrorInforme(CodigoInforme::Orden, "Los informes sólo se envían a su ventana");
    const QFileInfo fichero(QString(FicheroInforme).replace(QLatin1Char('\\'), QLatin1Char('/')));
    InformeTerminado informe;
    {
        const Espera espera;
        const DisposicionHallada hallada = BuscarDisposicion(fichero.filePath());
        informe = GenerarInforme(hallada.disposicion, m_fuente, Peticion());
        if (!hallada.aviso.isEmpty() && m_avisadas.insert(fichero.fileName().toLower()).second)
            informe.aviso = hallada.aviso;
    }
    for (const QString& nombre : {TituloVentana, NombrePropuesto}) {
        if (const QString limpio = NombreDeFichero(nombre); !limpio.isEmpty())
            informe.nombrePropuesto = limpio;
    }
    informe.maximizada = EstadoVentana == 2;
    if (Instalado()) {
        Instalado()(std::move(informe));
        return;
    }
    VentanaInforme::Abrir(std::move(informe), Preguntas, EstadoVentana == 1);
}

ControlInforme::Destinatario ControlInforme::InstalarDestino(Destinatario destinatario) {
    return std::exchange(Instalado(), std::move(destinatario));
}

} // namespace pastorix
