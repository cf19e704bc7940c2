#include "prueba.h"

#include "DatosDeEjemplo.h"
#include "frame/Mensajes.h"
#include "reports/motor/ControlInforme.h"
#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Miniaturas.h"
#include "reports/motor/VentanaInforme.h"
#include "reports/motor/VistaPaginas.h"

#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QScrollBar>
#include <QSpinBox>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QToolBar>

using namespace pastorix;
using namespace ejemplo;

namespace {

const QString Layouts = QStringLiteral(PASTORIX_LAYOUTS);

VentanaInforme* Ventana() {
    for (QWidget* ventana : QApplication::topLevelWidgets()) {
        if (auto* informe = qobject_cast<VentanaInforme*>(ventana); informe && informe->isVisible())
            return informe;
    }
    return nullptr;
}

// A layout with a parameter in a folder of its own.
QString ConParametro(const QTemporaryDir& carpeta) {
    QFile layout(carpeta.filePath(QStringLiteral("CEBO.RPT")));
    if (layout.open(QIODevice::WriteOnly))
        layout.write("pastorix-informe 1\nparametro A\xC3\xB1oRef\ntabla X_Temp\ncampo C1\nfin\n"
                     "banda 20\ntexto 0 0 100 20 \"[{?A\xC3\xB1oRef}] {T\xC3\xADtulo}\"\nfin\n");
    return carpeta.path();
}

} // namespace

class PruebaControl : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() {
        ControlInforme::InstalarDestino({});
        while (VentanaInforme* ventana = Ventana()) {
            ventana->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    // The order of the forms, with a sink in place of the window; the file is found whatever its letters and separators.
    void Parametros() {
        QTemporaryDir carpeta;
        const QString donde = ConParametro(carpeta);
        TablasEnMemoria fuente;
        fuente.Poner(Tabla("X_Temp", {"C1"}));
        QStringList textos;
        bool maximizada = false;
        ControlInforme::InstalarDestino([&](InformeTerminado informe) {
            textos = informe.paginas.paginas.at(0).Textos();
            maximizada = informe.maximizada;
        });
        ControlInforme control(fuente);
        control.Reiniciar();
        control.EstadoVentana = 2;
        control.Bandera125 = true;
        control.CampoParametro(0, QStringLiteral("AñoRef; (1;2)\r\nfin;TRUE"));
        control.TituloVentana = QStringLiteral(" Cebo");
        control.FicheroInforme = donde + QStringLiteral("\\cebo.rpt");
        control.Action(1);
        QCOMPARE(textos, QStringList({QStringLiteral("[ (1;2)"), QStringLiteral("fin] Cebo")}));
        QVERIFY(maximizada);
        QVERIFY(!Ventana());

        const auto codigo = [&](const char* parametro, const char* fichero = "CEBO.RPT", int accion = 1,
                                int destino = 0) {
            control.CampoParametro(0, QString::fromUtf8(parametro));
            control.FicheroInforme = donde + QLatin1Char('/') + QString::fromUtf8(fichero);
            control.Destino = destino;
            try {
                control.Action(accion);
            } catch (const ErrorInforme& e) {
                return static_cast<int>(e.Numero());
            }
            return 0;
        };
        QCOMPARE(codigo("AñoRef;2026;TRUE"), 0);
        QCOMPARE(codigo(""), 60105); // emptied again: the layout lacks its value
        QCOMPARE(codigo("AñoRef;2026"), 60105);
        QCOMPARE(codigo("AñoRef;2026;FALSE"), 60105);
        QCOMPARE(codigo("Otro;2026;TRUE"), 60105);
        QCOMPARE(codigo("AñoRef;2026;TRUE", "NOHAY.RPT"), 60101);
        QCOMPARE(codigo("AñoRef;2026;TRUE", "CEBO.RPT", 2), 60108);
        QCOMPARE(codigo("AñoRef;2026;TRUE", "CEBO.RPT", 1, 1), 60108);
        control.Reiniciar();
        QVERIFY(control.EstadoVentana == 0 && !control.Bandera125 && control.TituloVentana.isEmpty() &&
                control.FicheroInforme.isEmpty());
        QVERIFY(!Ventana());
    }

    // The preview opens over a modal form, is not blocked by it, and stays when the form goes.
    void SobreFormularioModal() {
        const TablasEnMemoria fuente = IndicesTecnicos(1);
        auto formulario = std::make_unique<QDialog>();
        formulario->setWindowModality(Qt::ApplicationModal);
        formulario->show();
        QVERIFY(QTest::qWaitForWindowExposed(formulario.get()));
        ControlInforme control(fuente);
        control.EstadoVentana = 2;
        control.TituloVentana = QStringLiteral(" Índices Técnicos");
        control.FicheroInforme = Layouts + QStringLiteral("/IndTecnicos.rpt");
        control.Action(1);
        VentanaInforme* ventana = Ventana();
        QVERIFY(ventana && ventana->isMaximized());
        QCOMPARE(ventana->windowTitle(), QStringLiteral(" Índices Técnicos"));
        QTest::keyClick(ventana->findChild<VistaPaginas*>(), Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(ventana->findChild<VistaPaginas*>()->PaginaActual(), 1);
        formulario.reset();
        QVERIFY(Ventana());
        ventana->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(ventana));
        QTest::keyClick(ventana, Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!Ventana());
    }

    void PaginasYZoom() {
        const TablasEnMemoria fuente = IndicesTecnicos(3);
        ControlInforme control(fuente);
        control.FicheroInforme = Layouts + QStringLiteral("/IndTecnicos.rpt");
        control.Action(1);
        VentanaInforme* v = Ventana();
        v->resize(1280, 720);
        QVERIFY(QTest::qWaitForWindowExposed(v));
        auto* vista = v->findChild<VistaPaginas*>();
        auto* pagina = v->findChild<QSpinBox*>(QStringLiteral("NumeroDePagina"));
        auto* zoom = v->findChild<QComboBox*>(QStringLiteral("Zoom"));
        const auto orden = [&](const char* nombre) {
            return v->findChild<QAction*>(QString::fromUtf8(nombre));
        };

        QCOMPARE(vista->verticalScrollBar()->value(), 0);
        QVERIFY(!orden("Primera")->isEnabled() && orden("Siguiente")->isEnabled());
        orden("Siguiente")->trigger();
        QCOMPARE(pagina->value(), 2);
        orden("Ultima")->trigger();
        QCOMPARE(pagina->value(), 6);
        QCOMPARE(v->findChild<Miniaturas*>()->currentIndex().row(), 5);
        QVERIFY(!orden("Siguiente")->isEnabled());
        pagina->setValue(3);
        QCOMPARE(vista->PaginaActual(), 2);
        QVERIFY(vista->accessibleDescription().contains(QStringLiteral("Covadonga Peláez")));
        v->findChild<Miniaturas*>()->setCurrentIndex(v->findChild<Miniaturas*>()->model()->index(4, 0));
        QCOMPARE(pagina->value(), 5);

        for (const auto& [texto, esperado] :
             {std::pair("200 %", 2.0), {"75", 0.75}, {"33,5%", 0.34}, {"9000 %", 5.0}, {"nada", 5.0}}) {
            zoom->setEditText(QString::fromUtf8(texto));
            QTest::keyClick(zoom->lineEdit(), Qt::Key_Return);
            QCOMPARE(vista->Zoom(), esperado);
        }
        QCOMPARE(zoom->currentText(), QStringLiteral("500 %"));
        QCOMPARE(vista->PaginaActual(), 4); // zooming keeps the place
        orden("PaginaEntera")->trigger();
        QVERIFY(vista->Zoom() < 1);
        QCOMPARE(vista->PaginaActual(), 4);
        orden("AjustarAncho")->trigger();
        const double ancho = vista->Zoom();
        v->resize(900, 720);
        QVERIFY(vista->Zoom() < ancho);
    }

    void Busqueda() {
        const TablasEnMemoria fuente = Registros(200);
        ControlInforme control(fuente);
        control.FicheroInforme = Layouts + QStringLiteral("/Ganaderos.rpt");
        control.Action(1);
        VentanaInforme* v = Ventana();
        v->resize(1000, 500);
        QVERIFY(QTest::qWaitForWindowExposed(v));
        auto* vista = v->findChild<VistaPaginas*>();
        auto* busca = v->findChild<QLineEdit*>(QStringLiteral("TextoBuscado"));
        busca->setText(QStringLiteral("oscar nunca"));
        QTest::keyClick(busca, Qt::Key_Return);
        QVERIFY(v->statusBar()->currentMessage().contains(QStringLiteral("oscar nunca")));
        busca->setText(QStringLiteral("  oscar ORDAS "));
        QTest::keyClick(busca, Qt::Key_Return);
        const int primera = vista->PaginaActual();
        QVERIFY(primera > 0);
        QVERIFY(v->statusBar()->currentMessage().isEmpty());
        v->findChild<QAction*>(QStringLiteral("BuscarAnterior"))->trigger(); // round the beginning
        QVERIFY(vista->PaginaActual() >= primera);
        v->findChild<QAction*>(QStringLiteral("BuscarSiguiente"))->trigger();
        QCOMPARE(vista->PaginaActual(), primera);
    }

    void Guardar() {
        QTemporaryDir carpeta;
        const TablasEnMemoria fuente = IndicesTecnicos(1);
        ControlInforme control(fuente);
        control.FicheroInforme = Layouts + QStringLiteral("/IndTecnicos.rpt");
        control.Action(1);
        VentanaInforme* v = Ventana();
        QString elegido;
        QStringList avisos;
        QStringList propuestas;
        const auto anterior = InstalarRespondedor([&](const Mensaje& mensaje) {
            if (mensaje.clase == Mensaje::Clase::FicheroGuardar)
                propuestas << QFileInfo(mensaje.propuesta).fileName();
            else
                avisos << mensaje.titulo + QLatin1Char('|') + mensaje.texto;
            return Respuesta{false, elegido};
        });
        const auto guardar = [&](const char* orden, const QString& nombre) {
            elegido = nombre.isEmpty() ? QString() : carpeta.filePath(nombre);
            v->findChild<QAction*>(QString::fromUtf8(orden))->trigger();
            return QFileInfo(elegido);
        };
        guardar("GuardarPdf", {}); // cancelled
        QVERIFY(QDir(carpeta.path()).isEmpty());
        QVERIFY(guardar("GuardarPdf", QStringLiteral("a.pdf")).size() > 5000);
        QVERIFY(guardar("GuardarXlsx", QStringLiteral("a.xlsx")).size() > 5000);
        QCOMPARE(QDir(guardar("GuardarCsv", QStringLiteral("a")).filePath()).entryList(QDir::Files).size(),
                 9);
        QVERIFY(avisos.isEmpty());
        QCOMPARE(propuestas,
                 QStringList({QStringLiteral("IndTecnicos.pdf"), QStringLiteral("IndTecnicos.pdf"),
                              QStringLiteral("IndTecnicos.xlsx"), QStringLiteral("IndTecnicos CSV")}));
        guardar("GuardarPdf", QStringLiteral("no/hay/a.pdf"));
        QCOMPARE(avisos.size(), 1);
        QVERIFY2(avisos.at(0).startsWith(QStringLiteral("Atención|No se puede escribir el fichero")),
                 qUtf8Printable(avisos.at(0)));
        InstalarRespondedor(anterior);
    }

    // Everything can be reached without a mouse and has a name that is read out; the window fits a small screen.
    void TecladoYNombres() {
        const TablasEnMemoria fuente = IndicesTecnicos(1);
        ControlInforme control(fuente);
        control.FicheroInforme = Layouts + QStringLiteral("/IndTecnicos.rpt");
        control.Action(1);
        VentanaInforme* v = Ventana();
        QStringList atajos;
        for (const QAction* accion : v->findChildren<QAction*>()) {
            if (accion->objectName().isEmpty() || !accion->parent() || accion->isSeparator() ||
                accion->shortcut().isEmpty())
                continue;
            QVERIFY2(!atajos.contains(accion->shortcut().toString()), qUtf8Printable(accion->objectName()));
            atajos << accion->shortcut().toString();
        }
        QCOMPARE(atajos.size(), 19);
        for (const QWidget* campo :
             {static_cast<QWidget*>(v->findChild<QSpinBox*>()),
              static_cast<QWidget*>(v->findChild<QComboBox*>()),
              static_cast<QWidget*>(v->findChild<QLineEdit*>(QStringLiteral("TextoBuscado"))),
              static_cast<QWidget*>(v->findChild<Miniaturas*>()),
              static_cast<QWidget*>(v->findChild<VistaPaginas*>())})
            QVERIFY2(!campo->accessibleName().isEmpty(), qUtf8Printable(campo->objectName()));
        QVERIFY(v->minimumSizeHint().width() <= 1280 && v->minimumSizeHint().height() <= 720);
        QVERIFY(v->findChild<QToolBar*>()->sizeHint().width() <= 1280);
    }
};

PRUEBA(PruebaControl)
#include "PruebaControl.moc"
