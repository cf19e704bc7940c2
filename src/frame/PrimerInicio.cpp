#include "frame/PrimerInicio.h"

#include "frame/Entrega.h"
#include "frame/Manual.h"
#include "frame/Mensajes.h"

#include <QApplication>
#include <QCommandLinkButton>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QScopeGuard>
#include <QVBoxLayout>

namespace pastorix {

PrimerInicio::PrimerInicio(const Rutas& rutas, const QString& compartida, QWidget* padre)
    : QDialog(padre)
    , m_programa(rutas.Programa())
    , m_compartida(compartida) {
    setObjectName(QStringLiteral("PrimerInicio"));
    setWindowTitle(QStringLiteral("Pastorix: primer arranque"));
    auto* columna = new QVBoxLayout(this);
    auto* texto =
        new QLabel(QStringLiteral("Aquí no hay todavía ninguna base de datos:\n%1\n\n¿Cómo desea empezar?")
                       .arg(QDir::toNativeSeparators(m_programa)),
                   this);
    texto->setTextFormat(Qt::PlainText);
    texto->setWordWrap(true);
    columna->addWidget(texto);
    Ofrecer(
        *columna, "B_Carpeta", QStringLiteral("&Tengo una carpeta con ficheros .mdb"),
        QStringLiteral("De la aplicación anterior o de otro ordenador. Se copian; los originales se quedan "
                       "donde están, sin cambios."),
        &PrimerInicio::Carpeta);
    Ofrecer(
        *columna, "B_Ejemplo", QStringLiteral("Con el &ejemplo"),
        QStringLiteral("Unas explotaciones inventadas con varios años de datos, para probar el programa."),
        &PrimerInicio::Ejemplo);
    Ofrecer(*columna, "B_Vacias", QStringLiteral("Con bases de datos &vacías"),
            QStringLiteral("Para empezar desde cero con sus ganaderos."), &PrimerInicio::Vacias);
    Ofrecer(*columna, "B_Manual", QStringLiteral("Leer antes el &manual"),
            QStringLiteral("Se abre aparte; después se elige aquí."), &PrimerInicio::Manual);
    auto* botones = new QDialogButtonBox(this);
    botones->addButton(QStringLiteral("&Salir"), QDialogButtonBox::RejectRole)
        ->setObjectName(QStringLiteral("B_Salir"));
    connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
    columna->addWidget(botones);
    findChild<QCommandLinkButton*>(QStringLiteral("B_Ejemplo"))
        ->setEnabled(BasesQueFaltan(m_compartida + QStringLiteral("/ejemplo")).isEmpty());
    resize(sizeHint().expandedTo(QSize(560, 0)));
}

void PrimerInicio::Ofrecer(QVBoxLayout& columna, const char* nombre, const QString& titulo,
                           const QString& explica, void (PrimerInicio::*camino)()) {
    auto* boton = new QCommandLinkButton(titulo, explica, this);
    boton->setObjectName(QLatin1String(nombre));
    boton->setAccessibleName(QString(titulo).remove(QLatin1Char('&')));
    boton->setAccessibleDescription(explica);
    connect(boton, &QCommandLinkButton::clicked, this, camino);
    columna.addWidget(boton);
}

template <typename F>
void PrimerInicio::Entregar(F&& poner) {
    try {
        if (!QDir().mkpath(m_programa)) {
            Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
                   QStringLiteral("No se puede crear la carpeta: ") + QDir::toNativeSeparators(m_programa));
            return;
        }
        QApplication::setOverrideCursor(Qt::WaitCursor);
        const auto puntero = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
        poner();
    } catch (const std::exception& error) {
        AvisarError(this, error);
        return;
    }
    accept();
}

void PrimerInicio::Ejemplo() {
    Entregar([&] { EntregarCopias(m_compartida + QStringLiteral("/ejemplo"), m_programa); });
}

void PrimerInicio::Vacias() {
    Entregar([&] { EntregarVacias(m_programa); });
}

void PrimerInicio::Carpeta() {
    const QString origen = ElegirCarpetaQueHay(this, QStringLiteral("Carpeta con los ficheros .mdb"));
    if (origen.isEmpty())
        return;
    if (const auto faltan = BasesQueFaltan(origen); !faltan.isEmpty()) {
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
               QStringLiteral("En la carpeta %1 falta: %2.\n\nHacen falta los tres ficheros: %3.")
                   .arg(QDir::toNativeSeparators(origen), faltan.join(QStringLiteral(", ")),
                        BasesEntregadas().join(QStringLiteral(", "))));
        return;
    }
    Entregar([&] { EntregarCopias(origen, m_programa); });
}

void PrimerInicio::Manual() {
    AbrirManual(this, BuscarSinCaja(m_compartida, QStringLiteral("manual.pdf")));
}

} // namespace pastorix
