#include "exchange/PasoGanaderos.h"

#include "exchange/datos/BasesEnteras.h"
#include "frame/ErrorInesperado.h"
#include "frame/Mensajes.h"
#include "frame/Ventanas.h"
#include "frame/calendario/Reloj.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"
#include "store/Literales.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QVBoxLayout>

namespace pastorix {

namespace fs = std::filesystem;

PasoGanaderos::PasoGanaderos(Sesion& sesion, const QString& titulo, QWidget* padre)
    : QDialog(padre)
    , m_sesion(sesion)
    , m_lista(new QListWidget(this))
    , m_ganaderos(GanaderosDeBaja(sesion.conexion)) {
    setObjectName(QStringLiteral("PasoGanaderos"));
    setWindowTitle(titulo);
    setWindowModality(Qt::WindowModal);
    m_lista->setObjectName(QStringLiteral("lstGanadero"));
    m_lista->setAccessibleName(QStringLiteral("Ganaderos de baja"));
    m_lista->setUniformItemSizes(true);
    auto* rotulo = new QLabel(QStringLiteral("&Ganadero/s   (Sólo se listan los de baja)"), this);
    rotulo->setBuddy(m_lista);
    for (const auto& g : m_ganaderos) {
        auto* linea = new QListWidgetItem(Texto(g.nombre), m_lista);
        linea->setFlags(linea->flags() | Qt::ItemIsUserCheckable);
        linea->setCheckState(Qt::Unchecked);
    }
    if (m_lista->count() > 0)
        m_lista->setCurrentRow(0);
    connect(m_lista, &QListWidget::itemChanged, this, [this](QListWidgetItem* i) {
        if (i->checkState() == Qt::Checked)
            DejarUnoSolo(m_lista->row(i));
    });
    auto* botones = new QDialogButtonBox(this);
    auto* aceptar = botones->addButton(QStringLiteral("&Aceptar"), QDialogButtonBox::ActionRole);
    aceptar->setObjectName(QStringLiteral("B_Aceptar"));
    aceptar->setDefault(true);
    auto* cancelar = botones->addButton(QStringLiteral("&Cancelar"), QDialogButtonBox::RejectRole);
    cancelar->setObjectName(QStringLiteral("B_Cancelar"));
    connect(aceptar, &QPushButton::clicked, this, [this] { Aceptar(); });
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    auto* todo = new QVBoxLayout(this);
    for (QWidget* w : std::initializer_list<QWidget*>{rotulo, m_lista, botones})
        todo->addWidget(w);
    resize(420, 400);
    RecordarVentana(*this);
}

void PasoGanaderos::DejarUnoSolo(int fila) {
    for (int i = 0; i < m_lista->count(); ++i)
        if (i != fila)
            m_lista->item(i)->setCheckState(Qt::Unchecked);
}

bool PasoGanaderos::MarcarGanadero(double id) {
    for (std::size_t i = 0; i < m_ganaderos.size(); ++i)
        if (m_ganaderos[i].id == id) {
            m_lista->item(static_cast<int>(i))->setCheckState(Qt::Checked);
            return true;
        }
    return false;
}

QString PasoGanaderos::Destino() const {
    return m_sesion.BaseElegida == 0 ? m_sesion.rutas.BasePersonal() : m_sesion.rutas.BasePrincipal();
}

bool PasoGanaderos::Aceptar() {
    const GanaderoDeBaja* elegido = nullptr;
    for (int i = 0; i < m_lista->count(); ++i)
        if (m_lista->item(i)->checkState() == Qt::Checked)
            elegido = &m_ganaderos[static_cast<std::size_t>(i)];
    if (!elegido) {
        Avisar(this, TipoMensaje::Informacion, QStringLiteral("Información"),
               QStringLiteral("Debe Seleccionar un Ganadero"));
        return false;
    }
    if (!Preguntar(this, QStringLiteral(" Confirmación"),
                   QStringLiteral("Confirme el Paso de Datos del Ganadero: ") + Texto(elegido->nombre),
                   TipoMensaje::Pregunta, true))
        return false;
    const auto destino = Destino();
    if (!QFileInfo(destino).isFile()) {
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención!!!"),
               QStringLiteral("Error en localización de Base de datos Personal.\r\n\r\nCompruebe que el "
                              "Fichero:\r\n") +
                   QDir::toNativeSeparators(destino) + QStringLiteral(" exista."));
        return false;
    }
    LoQueQuedaAtras r;
    try {
        ExigirBaseDeLaSesion(m_sesion);
        QDir().mkpath(m_sesion.rutas.Temp());
        const auto trabajo = Camino(m_sesion.rutas.Temp() + QStringLiteral("/xTemp.mdb"));
        const auto base = Camino(destino);
        const auto origen = Camino(Texto(m_sesion.conexion.Fichero()));
        const LugarDeCopia copia{Camino(m_sesion.rutas.BackUp()), TextoDeRuta(base.stem()), Ahora()};
        Volando volando(parentWidget());
        volando.setWindowTitle(windowTitle().trimmed());
        if (parentWidget())
            volando.show();
        QApplication::setOverrideCursor(Qt::WaitCursor);
        const auto fin = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
        r = EnSegundoPlano(
            [&](const AvanceDeApertura& relevo) {
                {
                    OpcionesApertura opciones; // an Access file that nobody has entered yet becomes ours
                    opciones.carpetaBackup = TextoDeRuta(copia.carpeta);
                    Conexion suya;
                    suya.AbrirFichero(TextoDeRuta(base), kClave, opciones);
                }
                CopiarConDiarios(base, trabajo);
                LoQueQuedaAtras atras;
                {
                    auto de = AbrirParaLeer(origen);
                    auto a = AbrirDeTrabajo(trabajo);
                    atras = PasarGanadero(
                        de, a, elegido->id, Hoy(),
                        [] { return QRandomGenerator::global()->generateDouble(); },
                        [&](int p) { relevo(p, 100); });
                }
                ReemplazarBase(base, trabajo, copia);
                return atras;
            },
            [&, mostrado = -1](int hecho, int total) mutable {
                if (total > 0 && hecho != mostrado)
                    volando.MostrarProgreso(mostrado = hecho);
            });
    } catch (const ErrorAlmacen& e) {
        AvisarErrorInesperado(this, e.Numero(), QString::fromUtf8(e.what()), DetalleDe(e));
        return false;
    } catch (const std::exception& e) {
        AvisarErrorInesperado(this, 51, QString::fromUtf8(e.what()), DetalleDe(e));
        return false;
    }
    Avisar(this, TipoMensaje::Informacion, QStringLiteral(" Información"),
           QStringLiteral("Proceso Finalizado"));
    Contar(r, Texto(elegido->nombre));
    return true;
}

// What a user would take for gone along.
void PasoGanaderos::Contar(const LoQueQuedaAtras& r, const QString& nombre) {
    QStringList lineas;
    const auto linea = [&](long n, const char* texto) {
        if (n > 0)
            lineas << QStringLiteral("• ") + QString::number(n) + QLatin1Char(' ') + QString::fromUtf8(texto);
    };
    linea(r.mamitisYVacunas, "registros de mamitis y vacunas por año natural (T_MAMIVACU) no se han pasado");
    linea(r.patologiasDeCiclo, "registros de patologías de toros (T_PatologiaSemR) no se han pasado");
    linea(r.cebosConParto, "líneas de cebo guardan el número de un parto que allí es otro");
    for (const auto& t : r.toros)
        lineas << QStringLiteral("• ") + Texto(pastorix::Texto(t));
    if (lineas.isEmpty())
        return;
    if (lineas.size() > 24)
        lineas = lineas.mid(0, 23) << QStringLiteral("… y %1 más").arg(lineas.size() - 23);
    Avisar(this, TipoMensaje::Informacion, QStringLiteral(" Información"),
           nombre +
               QStringLiteral(" tiene allí el código %1. Se ha quedado atrás, o apunta a otro:\n")
                   .arg(Texto(NumeroSql(r.codigo))) +
               lineas.join(QLatin1Char('\n')));
}

} // namespace pastorix
