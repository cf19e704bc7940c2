#include "frame/Atajos.h"

#include "frame/Tablas.h"
#include "frame/Ventanas.h"

#include <QAbstractButton>
#include <QAction>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace pastorix {

namespace {

// What the fields, lists and tables of every form answer to.
const Atajo kComunes[] = {
    {QStringLiteral("F1"), QStringLiteral("Ayuda sobre lo que se tiene delante")},
    {QStringLiteral("Tab, Intro"), QStringLiteral("Pasar al campo siguiente")},
    {QStringLiteral("F4"), QStringLiteral("El calendario de una fecha, o lo que abre el campo")},
    {QStringLiteral("+, -"), QStringLiteral("En una fecha, un día más o menos")},
    {QStringLiteral("Esc"), QStringLiteral("Cerrar la ventana o dejar lo que se estaba haciendo")},
};

QString Limpio(QString texto) {
    texto.remove(QLatin1Char('&')).remove(QStringLiteral("..."));
    return texto.section(QStringLiteral(" ("), 0, 0).trimmed();
}

QString TextoDe(const QShortcut& atajo) {
    if (!atajo.whatsThis().isEmpty())
        return atajo.whatsThis();
    const auto* boton = qobject_cast<const QAbstractButton*>(atajo.parent());
    if (!boton)
        return {};
    for (const QString& texto : {boton->text(), boton->accessibleName(), boton->toolTip()})
        if (!Limpio(texto).isEmpty())
            return Limpio(texto);
    return {};
}

} // namespace

std::vector<Atajo> AtajosDe(const QWidget& ventana) {
    std::vector<Atajo> lista;
    const auto añadir = [&](const QKeySequence& tecla, const QString& texto) {
        const auto nombre = tecla.toString(QKeySequence::NativeText);
        const bool esta =
            std::any_of(lista.begin(), lista.end(), [&](const Atajo& a) { return a.tecla == nombre; });
        if (!tecla.isEmpty() && !esta)
            lista.push_back({nombre, texto});
    };
    for (const auto* hijo : ventana.findChildren<QObject*>()) {
        // Forms opened on top are children of this one and have keys of their own.
        auto* de = hijo->parent();
        while (de && !de->isWidgetType())
            de = de->parent();
        if (!de || static_cast<const QWidget*>(de)->window() != &ventana)
            continue;
        if (const auto* accion = qobject_cast<const QAction*>(hijo); accion && accion->isVisible())
            añadir(accion->shortcut(), Limpio(accion->text()));
        else if (const auto* atajo = qobject_cast<const QShortcut*>(hijo))
            añadir(atajo->key(), TextoDe(*atajo));
    }
    return lista;
}

ListaDeAtajos::ListaDeAtajos(QWidget& ventana)
    : QDialog(&ventana) {
    setObjectName(QStringLiteral("Atajos"));
    setWindowTitle(QStringLiteral("Atajos de teclado: ") + ventana.windowTitle());
    setWindowModality(Qt::WindowModal);
    auto filas = AtajosDe(ventana);
    filas.insert(filas.end(), std::begin(kComunes), std::end(kComunes));
    auto* tabla = new QTableWidget(static_cast<int>(filas.size()), 2, this);
    tabla->setObjectName(QStringLiteral("GridAtajos"));
    tabla->setAccessibleName(QStringLiteral("Teclas y lo que hacen"));
    tabla->setHorizontalHeaderLabels({QStringLiteral("Tecla"), QStringLiteral("Qué hace")});
    for (int i = 0; i < tabla->rowCount(); ++i) {
        const auto& fila = filas[static_cast<std::size_t>(i)];
        tabla->setItem(i, 0, new QTableWidgetItem(fila.tecla));
        tabla->setItem(i, 1, new QTableWidgetItem(fila.texto));
    }
    VestirTabla(*tabla);
    tabla->setColumnWidth(0, 150);
    auto* botones = new QDialogButtonBox(this);
    botones->addButton(QStringLiteral("&Cerrar"), QDialogButtonBox::RejectRole);
    connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(tabla);
    todo->addWidget(botones);
    resize(560, 420);
    RecordarVentana(*this);
}

} // namespace pastorix
