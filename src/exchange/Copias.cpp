#include "store/Copias.h"
#include "exchange/FormularioDeRuta.h"
#include "exchange/Historial.h"
#include "exchange/datos/BasesEnteras.h"
#include "frame/AvisosDeBase.h"
#include "frame/Ciclo.h"
#include "frame/Mensajes.h"
#include "frame/Principal.h"
#include "frame/Tablas.h"
#include "frame/Ventanas.h"
#include "frame/calendario/Reloj.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QScopeGuard>
#include <QStatusBar>
#include <QTableWidget>
#include <QVBoxLayout>

namespace pastorix {

namespace fs = std::filesystem;

namespace {

// The frame above a form.
Principal* MarcoDe(QWidget* ventana) {
    for (auto* w = ventana; w; w = w->parentWidget())
        if (auto* principal = qobject_cast<Principal*>(w))
            return principal;
    return nullptr;
}

void DecirSinBase(const Sesion& sesion, QWidget* ventana) {
    if (auto* principal = MarcoDe(ventana); principal && !sesion.conexion.Abierta())
        principal->MostrarPeligro(QStringLiteral("SIN BASE DE DATOS: salga del programa y vuelva a entrar"));
}

} // namespace

bool RestaurarEnSesion(Sesion& sesion, const fs::path& copia, QWidget* padre) {
    const auto base = Camino(Texto(sesion.origenes.Resolver("dsn=OD_PRADALC").fichero));
    const auto carpeta = Camino(sesion.rutas.BackUp());
    const auto nombre = Texto(TextoDeRuta(copia.filename()));
    try {
        const auto dentro = EnSegundoPlano([&](const auto&) { return ExaminarCopia(copia, kClave); },
                                           AvanceTardio(padre, QStringLiteral("Examinando la copia...")));
        if (!Preguntar(padre, QStringLiteral("Restaurar copia de seguridad"),
                       QStringLiteral(
                           "%1:\n%2\n\nLa base de datos de ahora se guarda como una copia más. Lo anotado "
                           "después de la copia deja de estar a la vista. ¿Desea restaurarla?")
                           .arg(nombre, EnPalabras(dentro)),
                       TipoMensaje::Atencion))
            return false;
        const auto momento = Ahora();
        sesion.conexion.Cerrar();
        const auto reabrir = qScopeGuard([&] {
            try {
                if (!sesion.conexion.Abierta())
                    AbrirConexion(sesion);
            } catch (const std::exception&) { // told in the frame
            }
            DecirSinBase(sesion, padre);
        });
        EnSegundoPlano(
            [&](const auto&) {
                auto estado = BaseAnterior::Sana;
                try {
                    AbrirParaLeer(base);
                } catch (const ErrorAlmacen& e) {
                    if (e.Codigo() != CodigoError::NoSePuedeAbrir)
                        throw;
                    estado = BaseAnterior::Averiada;
                }
                return RestaurarCopia(base, copia, carpeta, momento, kClave, estado);
            },
            AvanceTardio(padre, QStringLiteral("Restaurando la copia...")));
        AbrirConexion(sesion);
        EscribirHistorial(sesion.conexion, sesion.UsuarioSesion, Ahora(),
                          "Restaurar copia: " + nombre.toStdString());
    } catch (const ErrorAlmacen& e) {
        AvisarFallo(padre, QStringLiteral("Atención"), e.Numero(), e);
        return false;
    }
    if (auto* principal = MarcoDe(padre)) {
        principal->MostrarPeligro({});
        principal->MostrarSoloLectura(false);
    }
    Avisar(padre, TipoMensaje::Informacion, QStringLiteral("Información"),
           QStringLiteral("La copia está restaurada."));
    return true;
}

Copias::Copias(Sesion& sesion, QWidget* padre)
    : QDialog(padre)
    , m_sesion(sesion)
    , m_rejilla(new QTableWidget(0, 3, this)) {
    setObjectName(QStringLiteral("Copias"));
    setWindowTitle(QStringLiteral("Restaurar copia de seguridad"));
    setWindowModality(Qt::WindowModal);
    m_rejilla->setObjectName(QStringLiteral("Grid"));
    m_rejilla->setAccessibleName(QStringLiteral("Copias de seguridad, la más nueva primero"));
    m_rejilla->setHorizontalHeaderLabels(
        {QStringLiteral("Fecha"), QStringLiteral("Fichero"), QStringLiteral("Contenido")});
    VestirTabla(*m_rejilla);
    m_rejilla->setColumnWidth(0, 150);
    m_rejilla->setColumnWidth(1, 310);
    const auto base = Ruta(sesion.origenes.Resolver("dsn=OD_PRADALC").fichero).filename();
    for (const auto& c : BuscarCopias(Camino(sesion.rutas.BackUp()), TextoDeRuta(base))) {
        const int fila = m_rejilla->rowCount();
        m_rejilla->setRowCount(fila + 1);
        m_copias.push_back(c.fichero);
        const QString textos[] = {Texto(FormatoFecha(c.momento, "dd/mm/yyyy hh:nn:ss")),
                                  Texto(TextoDeRuta(c.fichero.filename())), QString()};
        for (int i = 0; i < 3; ++i)
            m_rejilla->setItem(fila, i, new QTableWidgetItem(textos[i]));
    }
    auto* botones = new QDialogButtonBox(this);
    auto* restaurar = botones->addButton(QStringLiteral("&Restaurar"), QDialogButtonBox::ActionRole);
    restaurar->setObjectName(QStringLiteral("B_Restaurar"));
    restaurar->setEnabled(!m_copias.empty());
    auto* cerrar = botones->addButton(QStringLiteral("&Cerrar"), QDialogButtonBox::RejectRole);
    connect(restaurar, &QPushButton::clicked, this, &Copias::Restaurar);
    connect(cerrar, &QPushButton::clicked, this, &QDialog::reject);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(m_rejilla);
    todo->addWidget(botones);
    connect(m_rejilla, &QTableWidget::currentCellChanged, this, [this](int fila, int, int antes, int) {
        if (fila != antes)
            Examinar(fila);
    });
    resize(960, 360);
    RecordarVentana(*this);
    if (!m_copias.empty())
        m_rejilla->setCurrentCell(0, 0);
}

// Looked into when its line is reached: each takes a moment.
void Copias::Examinar(int fila) {
    if (fila < 0 || !m_rejilla->item(fila, 2)->text().isEmpty())
        return;
    QString texto;
    try {
        const auto copia = m_copias[static_cast<std::size_t>(fila)];
        texto = EnPalabras(EnSegundoPlano([&](const auto&) { return ExaminarCopia(copia, kClave); },
                                          AvanceTardio(this, QStringLiteral("Examinando la copia..."))));
    } catch (const ErrorAlmacen& e) {
        texto = QStringLiteral("No sirve: ") + QString::fromUtf8(e.what()).section(QLatin1Char('\n'), 0, 0);
    }
    m_rejilla->item(fila, 2)->setText(texto);
    m_rejilla->item(fila, 2)->setToolTip(texto);
}

void Copias::Restaurar() {
    const int fila = m_rejilla->currentRow();
    if (fila >= 0 && RestaurarEnSesion(m_sesion, m_copias[static_cast<std::size_t>(fila)], this))
        accept();
}

bool CompactarEnSesion(Sesion& sesion, QWidget* padre) {
    Avisar(padre, TipoMensaje::Atencion, QStringLiteral("Compactar..."),
           QStringLiteral(
               "Proceso de Compactación de Base de Datos\r\n\r\nEsta operación tardará un momento, Espere a "
               "que finalice"));
    const auto base = Camino(Texto(sesion.conexion.Fichero()));
    const LugarDeCopia copia{Camino(sesion.rutas.BackUp()), TextoDeRuta(base.stem()), Ahora()};
    Compactacion r;
    try {
        ExigirBaseDeLaSesion(sesion);
        sesion.conexion.Cerrar();
        const bool conCursor = qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
        if (conCursor)
            QApplication::setOverrideCursor(Qt::WaitCursor);
        const auto fin = qScopeGuard([conCursor] {
            if (conCursor)
                QApplication::restoreOverrideCursor();
        });
        r = EnSegundoPlano([&](const auto&) { return Compactar(base, copia); },
                           AvanceTardio(padre, QStringLiteral("Compactando la base de datos...")));
        AbrirConexion(sesion);
    } catch (const ErrorAlmacen& e) {
        Avisar(padre, TipoMensaje::Atencion, QStringLiteral("Atención..."),
               QString::number(e.Numero()) + QStringLiteral(" ... ") + QString::fromUtf8(e.what()) +
                   QStringLiteral(
                       "\r\n\r\nNo es posible Realizar la Compactación, salga del Programa y vuelva a "
                       "intentarlo"),
               {}, DetalleDe(e));
        DecirSinBase(sesion, padre);
        return false;
    } catch (const ErrorDeIntercambio& e) {
        AvisarFallo(padre, QStringLiteral("Atención..."), e);
        return false;
    }
    if (auto* principal = MarcoDe(padre))
        principal->MostrarPeligro({});
    Avisar(padre, TipoMensaje::Informacion, QStringLiteral("Información..."),
           QStringLiteral("Compactación Finalizada "));
    if (auto* principal = MarcoDe(padre)) {
        const QLocale es(QLocale::Spanish);
        const auto megas = [&](std::uintmax_t b) {
            return es.toString(static_cast<double>(b) / 1048576.0, 'f', 1);
        };
        principal->statusBar()->showMessage(
            QStringLiteral("La base de datos ocupaba %1 MB y ahora ocupa %2 MB")
                .arg(megas(r.antes), megas(r.despues)),
            30000);
    }
    return true;
}

} // namespace pastorix
