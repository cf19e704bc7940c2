#include "frame/LoConvertido.h"

#include "frame/Sesion.h"
#include "frame/Tablas.h"
#include "frame/Ventanas.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <utility>

namespace pastorix {

namespace {

QTableWidget* Filas(const HojaDeConversion& hoja, QWidget* padre) {
    auto* tabla = new QTableWidget(static_cast<int>(hoja.tablas.size()), 4, padre);
    tabla->setObjectName(QStringLiteral("Tablas"));
    tabla->setAccessibleName(QStringLiteral("Filas leídas de cada tabla"));
    tabla->setHorizontalHeaderLabels({QStringLiteral("Tabla"), QStringLiteral("Declarados"),
                                      QStringLiteral("Leídos"), QStringLiteral("Escritos")});
    int fila = 0;
    for (const auto& t : hoja.tablas) {
        tabla->setItem(fila, 0, new QTableWidgetItem(QString::fromStdString(t.nombre)));
        int columna = 1;
        for (const auto cuantas : {t.declaradas, t.leidas, t.escritas}) {
            auto* celda = new QTableWidgetItem(QString::number(cuantas));
            celda->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            tabla->setItem(fila, columna++, celda);
        }
        ++fila;
    }
    VestirTabla(*tabla);
    tabla->setColumnWidth(0, 240);
    return tabla;
}

QString Observaciones(const HojaDeConversion& hoja) {
    QString texto;
    for (const auto& c : hoja.curiosidades)
        texto += QStringLiteral("- ") + QString::fromStdString(c) + QLatin1Char('\n');
    if (texto.isEmpty())
        return QStringLiteral("Nada que observar: todo estaba donde se esperaba.");
    return texto +
           QStringLiteral("\nNingún registro se pierde por eso. Lo que el fichero tenía de más se conserva; "
                          "las columnas "
                          "que faltaban se han añadido vacías; una tabla que declaraba otro número de "
                          "registros llevaba mal su cuenta; con claves repetidas, los programas anteriores "
                          "enseñaban solo uno de los registros, y aquí están todos.");
}

} // namespace

LoConvertido::LoConvertido(const HojaDeConversion& hoja, QWidget* padre)
    : QDialog(padre) {
    setObjectName(QStringLiteral("LoConvertido"));
    setWindowTitle(QStringLiteral("Base de datos convertida"));
    std::uint64_t leidas = 0;
    for (const auto& t : hoja.tablas)
        leidas += t.leidas;
    auto* resumen = new QLabel(QStringLiteral("%1 era un fichero de Access. Se han leído sus %2 registros, y "
                                              "los %2 están en la base de datos nueva.")
                                   .arg(QFileInfo(QString::fromStdString(hoja.origen)).fileName(),
                                        QLocale(QLocale::Spanish).toString(static_cast<qulonglong>(leidas))),
                               this);
    resumen->setTextFormat(Qt::PlainText);
    resumen->setWordWrap(true);
    auto* guardado = new QLabel(
        QStringLiteral(
            "El original, sin cambios:\n%1\nJunto a él está esta misma hoja, en un fichero de texto.")
            .arg(QDir::toNativeSeparators(QString::fromStdString(hoja.guardado))),
        this);
    guardado->setTextFormat(Qt::PlainText);
    guardado->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    guardado->setWordWrap(true);
    guardado->setVisible(!hoja.guardado.empty());
    auto* observaciones = new QPlainTextEdit(Observaciones(hoja), this);
    observaciones->setObjectName(QStringLiteral("Observaciones"));
    observaciones->setAccessibleName(QStringLiteral("Observaciones"));
    observaciones->setReadOnly(true);
    observaciones->setTabChangesFocus(true);
    auto* botones = new QDialogButtonBox(this);
    botones->addButton(QStringLiteral("&Continuar"), QDialogButtonBox::AcceptRole)->setDefault(true);
    connect(botones, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* todo = new QVBoxLayout(this);
    todo->addWidget(resumen);
    todo->addWidget(Filas(hoja, this), 3);
    todo->addWidget(observaciones, 1);
    todo->addWidget(guardado);
    todo->addWidget(botones);
    resize(720, 540);
    RecordarVentana(*this);
}

void MostrarLoConvertido(Sesion& sesion, QWidget* padre) {
    for (const auto& hoja : std::exchange(sesion.convertidas, {}))
        LoConvertido(hoja, padre).exec();
}

} // namespace pastorix
