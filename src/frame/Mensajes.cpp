#include "frame/Mensajes.h"

#include "store/Errores.h"

#include <QAccessible>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>

#include <utility>

namespace pastorix {

namespace {

Respondedor respondedorInstalado;

bool HayVentanas() {
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

// True when the message has been dealt with and no window is to appear.
bool Responder(const Mensaje& mensaje, Respuesta& respuesta) {
    if (respondedorInstalado) {
        respuesta = respondedorInstalado(mensaje);
        return true;
    }
    if (QStandardPaths::isTestModeEnabled()) {
        qCritical("unanswered box: [%s] %s %s %s", qUtf8Printable(mensaje.titulo),
                  qUtf8Printable(mensaje.texto), qUtf8Printable(mensaje.causa),
                  qUtf8Printable(mensaje.detalle));
        return true;
    }
    if (!HayVentanas()) {
        qWarning("%s: %s %s", qUtf8Printable(mensaje.titulo.trimmed()), qUtf8Printable(mensaje.texto),
                 qUtf8Printable(mensaje.causa));
        return true;
    }
    return false;
}

// Texts end their lines with CR or CR LF; the boxes want LF.
QString Lineas(QString texto) {
    texto.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    texto.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return texto;
}

QMessageBox::Icon IconoDe(TipoMensaje tipo) {
    switch (tipo) {
    case TipoMensaje::Critico:
        return QMessageBox::Critical;
    case TipoMensaje::Pregunta:
        return QMessageBox::Question;
    case TipoMensaje::Atencion:
        return QMessageBox::Warning;
    case TipoMensaje::Informacion:
        break;
    }
    return QMessageBox::Information;
}

void Preparar(QMessageBox& caja, const Mensaje& mensaje) {
    caja.setIcon(IconoDe(mensaje.tipo));
    caja.setWindowTitle(mensaje.titulo);
    caja.setTextFormat(Qt::PlainText); // names and paths of the user are no markup
    caja.setText(Lineas(mensaje.texto));
    caja.setInformativeText(Lineas(mensaje.causa));
    caja.setDetailedText(mensaje.detalle);
}

} // namespace

Respondedor InstalarRespondedor(Respondedor respondedor) {
    return std::exchange(respondedorInstalado, std::move(respondedor));
}

int Avisar(QWidget* padre, TipoMensaje tipo, const QString& titulo, const QString& texto,
           const QString& causa, const QString& detalle) {
    const Mensaje mensaje{Mensaje::Clase::Aviso, tipo, titulo, texto, causa, detalle, {}, {}};
    if (Respuesta respuesta; !Responder(mensaje, respuesta)) {
        QMessageBox caja(padre);
        Preparar(caja, mensaje);
        // Own captions, not standard buttons: those follow the system's language.
        QPushButton* aceptar = caja.addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole);
        caja.setDefaultButton(aceptar);
        caja.setEscapeButton(aceptar);
        caja.exec();
    }
    return 1;
}

QString DetalleDe(const std::exception& error) {
    const auto* conDetalle = dynamic_cast<const ErrorConDetalle*>(&error);
    return conDetalle ? QString::fromStdString(conDetalle->Detalle()) : QString();
}

void AvisarFallo(QWidget* padre, const QString& titulo, const std::exception& error) {
    Avisar(padre, TipoMensaje::Atencion, titulo, QString::fromUtf8(error.what()), {}, DetalleDe(error));
}

void AvisarFallo(QWidget* padre, const QString& titulo, long numero, const std::exception& error) {
    Avisar(padre, TipoMensaje::Atencion, titulo,
           QString::number(numero) + QStringLiteral(" ... ") + QString::fromUtf8(error.what()), {},
           DetalleDe(error));
}

bool Preguntar(QWidget* padre, const QString& titulo, const QString& texto, TipoMensaje tipo,
               bool porDefectoSi, const QString& detalle, const QString& causa) {
    const Mensaje mensaje{
        Mensaje::Clase::Pregunta, tipo, titulo, texto, causa, detalle, {}, {}, porDefectoSi};
    if (Respuesta respuesta; Responder(mensaje, respuesta))
        return respuesta.si;
    QMessageBox caja(padre);
    Preparar(caja, mensaje);
    QPushButton* si = caja.addButton(QStringLiteral("&Sí"), QMessageBox::YesRole);
    QPushButton* no = caja.addButton(QStringLiteral("&No"), QMessageBox::NoRole);
    caja.setDefaultButton(porDefectoSi ? si : no);
    caja.setEscapeButton(no);
    caja.exec();
    return caja.clickedButton() == si;
}

AntesDeDejar PreguntarGuardar(QWidget* padre, const QString& texto) {
    const Mensaje mensaje{Mensaje::Clase::AntesDeDejar,
                          TipoMensaje::Pregunta,
                          QStringLiteral("Atención"),
                          texto,
                          {},
                          {},
                          {},
                          {}};
    if (Respuesta respuesta; Responder(mensaje, respuesta))
        return respuesta.antesDeDejar;
    QMessageBox caja(padre);
    Preparar(caja, mensaje);
    QPushButton* guardar = caja.addButton(QStringLiteral("&Guardar"), QMessageBox::AcceptRole);
    QPushButton* descartar = caja.addButton(QStringLiteral("&Descartar"), QMessageBox::DestructiveRole);
    caja.setEscapeButton(caja.addButton(QStringLiteral("&Cancelar"), QMessageBox::RejectRole));
    caja.setDefaultButton(guardar);
    caja.exec();
    return caja.clickedButton() == guardar     ? AntesDeDejar::Guardar
           : caja.clickedButton() == descartar ? AntesDeDejar::Descartar
                                               : AntesDeDejar::Cancelar;
}

void AvisarError(QWidget* padre, const std::exception& error) {
    AvisarFallo(padre, QStringLiteral("Atención"), error);
}

void Decir(QLabel& rotulo, const QString& texto) {
    if (texto == rotulo.text())
        return;
    rotulo.setText(texto);
    QAccessibleEvent dicho(&rotulo, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&dicho);
}

QString ElegirFicheroGuardar(QWidget* padre, const QString& titulo, const QString& propuesta,
                             const QString& filtro) {
    const Mensaje mensaje{
        Mensaje::Clase::FicheroGuardar, TipoMensaje::Pregunta, titulo, {}, {}, {}, propuesta, filtro};
    if (Respuesta respuesta; Responder(mensaje, respuesta))
        return respuesta.fichero;
    QFileDialog selector(padre, titulo, propuesta, filtro);
    selector.setAcceptMode(QFileDialog::AcceptSave);
    selector.setFileMode(QFileDialog::AnyFile);
    selector.selectFile(propuesta);
    // "Documento PDF (*.pdf)" gives the suffix that a bare name gets.
    const qsizetype punto = filtro.indexOf(QLatin1String("(*."));
    if (punto >= 0)
        selector.setDefaultSuffix(
            filtro.mid(punto + 3).section(QLatin1Char(')'), 0, 0).section(QLatin1Char(' '), 0, 0));
    selector.setLabelText(QFileDialog::Accept, QStringLiteral("&Guardar"));
    selector.setLabelText(QFileDialog::Reject, QStringLiteral("Cancelar"));
    if (selector.exec() != QDialog::Accepted || selector.selectedFiles().isEmpty())
        return {};
    return selector.selectedFiles().constFirst();
}

QString ElegirCarpetaQueHay(QWidget* padre, const QString& titulo) {
    const Mensaje mensaje{Mensaje::Clase::Carpeta, TipoMensaje::Pregunta, titulo, {}, {}, {}, {}, {}};
    if (Respuesta respuesta; Responder(mensaje, respuesta))
        return respuesta.fichero;
    return QFileDialog::getExistingDirectory(padre, titulo);
}

} // namespace pastorix
