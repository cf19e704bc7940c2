#include "prueba.h"

#include "DatosDeEjemplo.h"
#include "frame/Mensajes.h"
#include "reports/motor/ControlInforme.h"
#include "reports/motor/ErrorInforme.h"
#include "reports/motor/IndiceDePaginas.h"
#include "reports/motor/Miniaturas.h"
#include "reports/motor/VentanaInforme.h"
#include "reports/motor/VistaPaginas.h"

using namespace prueba;
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

// Prints a delivered layout; the preview that opens.
VentanaInforme* Abrir(ControlInforme& control, const char* layout) {
    control.FicheroInforme = Layouts + u'/' + QLatin1String(layout);
    control.Action(1);
    return Ventana();
}

// A layout with a parameter in a folder of its own.
QString ConParametro(const QTemporaryDir& carpeta) {
    QFile layout(carpeta.filePath(u"CEBO.RPT"_s));
    if (layout.open(QIODevice::WriteOnly))
        layout.write("pastorix-informe 1\nparametro A\xC3\xB1oRef\ntabla X_Temp\ncampo C1\nfin\n"
                     "banda 20\ntexto 0 0 100 20 \"[[{?A\xC3\xB1oRef}]] {T\xC3\xADtulo}\"\nfin\n");
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
        QString propuesto;
        bool maximizada = false;
        ControlInforme::InstalarDestino([&](InformeTerminado informe) {
            propuesto = informe.nombrePropuesto;
            textos = informe.paginas.paginas.at(0).Textos();
            maximizada = informe.maximizada;
        });
        ControlInforme control(fuente);
        control.Reiniciar();
        control.EstadoVentana = 2;
        control.Bandera125 = true;
        control.CampoParametro(0, u"AñoRef; (1;2)\r\nfin;TRUE"_s);
        control.TituloVentana = u" Cebo"_s;
        control.FicheroInforme = donde + u"\\cebo.rpt"_s;
        for (const auto& [nombre, hecho] :
             {std::pair{"..Toros: Casa d'O/Teruelo 2026 ", "Toros Casa d'OTeruelo 2026"},
              {"/?", "Cebo"}}) { // no signs that no file may have in its name
            control.NombrePropuesto = Q(nombre);
            control.Action(1);
            QCOMPARE(propuesto, Q(hecho));
        }
        QCOMPARE(textos, QStringList({u"[ (1;2)"_s, u"fin] Cebo"_s}));
        QVERIFY(maximizada && !Ventana());

        const auto codigo = [&](const char* parametro, const char* fichero = "CEBO.RPT", int accion = 1,
                                int destino = 0) {
            control.CampoParametro(0, Q(parametro));
            control.FicheroInforme = donde + u'/' + Q(fichero);
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

    // What is in Informes serves when it begins as ours; otherwise the layout of the program does, and the foot of the preview says so once.
    void DeInformesODelPrograma_data() {
        // contenido: of IndTecnicos.rpt; none: there is no file
        const QByteArray suya =
            "pastorix-informe 1\ntabla X_Temp\ncampo C1\nfin\nbanda 20\ntexto 0 0 9 9 \"suya\"\nfin\n";
        Caso("ours", suya, QString());
        Caso("ours, behind comments", QByteArray("\xEF\xBB\xBF# mine\r\n\r\n  #\r\n" + suya), QString());
        Caso("none", QByteArray(), u"en Informes no hay INDTECNICOS.RPT"_s);
        const auto ajena = u"el IndTecnicos.rpt de Informes es de otro programa"_s;
        Caso("empty", QByteArray(""), ajena);
        Caso("binary", QByteArray("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1\0\0\0", 11), ajena);
        Caso("another's text", QByteArray("# pastorix-informe 1\npastorix-informes 1\n"), ajena);
    }
    void DeInformesODelPrograma() {
        const auto [contenido, aviso] = DelCaso<QByteArray, QString>();
        QTemporaryDir carpeta;
        QFile fichero(carpeta.filePath(u"IndTecnicos.rpt"_s));
        if (!contenido.isNull())
            QVERIFY(fichero.open(QIODevice::WriteOnly) && fichero.write(contenido) == contenido.size());
        fichero.close();
        const TablasEnMemoria fuente = IndicesTecnicos(1);
        ControlInforme control(fuente);
        for (const bool primera : {true, false}) {
            control.FicheroInforme = carpeta.filePath(u"INDTECNICOS.RPT"_s);
            control.Action(1);
            QCOMPARE(Ventana()->Informe().paginas.paginas.size(), aviso.isEmpty() ? 1U : 2U);
            QCOMPARE(Ventana()->statusBar()->currentMessage(),
                     primera && !aviso.isEmpty() ? u"Diseño incluido en el programa: "_s + aviso : QString());
            cleanup();
        }
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
        control.TituloVentana = u" Índices Técnicos"_s;
        VentanaInforme* ventana = Abrir(control, "IndTecnicos.rpt");
        QVERIFY(ventana && ventana->isMaximized());
        QCOMPARE(ventana->windowTitle(), u" Índices Técnicos"_s);
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
        VentanaInforme* v = Abrir(control, "IndTecnicos.rpt");
        v->resize(1280, 720);
        QVERIFY(QTest::qWaitForWindowExposed(v));
        auto* vista = v->findChild<VistaPaginas*>();
        auto* pagina = v->findChild<QSpinBox*>(u"NumeroDePagina"_s);
        auto* zoom = v->findChild<QComboBox*>(u"Zoom"_s);
        const auto orden = [&](const char* nombre) { return v->findChild<QAction*>(Q(nombre)); };

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
        QVERIFY(vista->accessibleDescription().contains(u"Covadonga Peláez"_s));
        v->findChild<Miniaturas*>()->setCurrentIndex(v->findChild<Miniaturas*>()->model()->index(4, 0));
        QCOMPARE(pagina->value(), 5);

        for (const auto& [texto, esperado] :
             {std::pair("200 %", 2.0), {"75", 0.75}, {"33,5%", 0.34}, {"9000 %", 5.0}, {"nada", 5.0}}) {
            zoom->setEditText(Q(texto));
            QTest::keyClick(zoom->lineEdit(), Qt::Key_Return);
            QCOMPARE(vista->Zoom(), esperado);
        }
        QCOMPARE(zoom->currentText(), u"500 %"_s);
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
        const TablasEnMemoria fuente = ejemplo::Registros(200);
        ControlInforme control(fuente);
        VentanaInforme* v = Abrir(control, "Ganaderos.rpt");
        v->resize(1000, 500);
        QVERIFY(QTest::qWaitForWindowExposed(v));
        auto* vista = v->findChild<VistaPaginas*>();
        auto* busca = v->findChild<QLineEdit*>(u"TextoBuscado"_s);
        busca->setText(u"oscar nunca"_s);
        QTest::keyClick(busca, Qt::Key_Return);
        QVERIFY(v->statusBar()->currentMessage().contains(u"oscar nunca"_s));
        busca->setText(u"  oscar ORDAS "_s);
        QTest::keyClick(busca, Qt::Key_Return);
        const int primera = vista->PaginaActual();
        QVERIFY(primera > 0 && v->statusBar()->currentMessage().isEmpty());
        v->findChild<QAction*>(u"BuscarAnterior"_s)->trigger(); // round the beginning
        QVERIFY(vista->PaginaActual() >= primera);
        v->findChild<QAction*>(u"BuscarSiguiente"_s)->trigger();
        QCOMPARE(vista->PaginaActual(), primera);
    }

    // The groups beside the pages lead to where they begin, and follow the page in sight.
    void Indice() {
        const TablasEnMemoria fuente = IndicesTecnicos(3);
        ControlInforme control(fuente);
        VentanaInforme* v = Abrir(control, "IndTecnicos.rpt");
        QVERIFY(QTest::qWaitForWindowExposed(v));
        auto* indice = v->findChild<IndiceDePaginas*>();
        auto* vista = v->findChild<VistaPaginas*>();
        QCOMPARE(indice->topLevelItemCount(), 3);
        auto* ver = v->findChild<QAction*>(u"VerIndice"_s);
        ver->trigger(); // from behind the thumbnails
        QVERIFY(!indice->visibleRegion().isEmpty() && indice->hasFocus());
        QTest::keyClick(indice, Qt::Key_Down);
        QCOMPARE(vista->PaginaActual(), 2);
        vista->IrA(5);
        QCOMPARE(indice->currentItem()->text(0), u"Hermanos Feito C.B. - Tineo · 2026"_s);
        QCOMPARE(indice->currentItem()->text(1), u"5"_s);
        ver->trigger();
        QVERIFY(!indice->isVisible() && vista->hasFocus());
    }

    // By mouse and by keyboard: a figure tells where it comes from, and Enter on an animal opens her sheet.
    void DeDondeSale() {
        const TablasEnMemoria fuente = IndicesTecnicos(1);
        ControlInforme control(fuente);
        QStringList preguntadas;
        double abierta = 0;
        control.Preguntas.explicar = [&](const QString& clave) {
            preguntadas << clave;
            Explicacion e;
            e.titulo = "Censo";
            e.como = "Se cuentan.";
            e.porqueFuera = "Las otras:";
            e.contados = {{7, "ES7", "Mora", "", "3", 0}, {8, "ES8", "Luna", "", "4", 0}};
            e.valor = 2;
            return std::optional(e);
        };
        control.Preguntas.abrirVaca = [&](QWidget* sobre, double vaca) {
            QVERIFY(sobre);
            abierta = vaca;
        };
        control.Reiniciar();
        VentanaInforme* v = Abrir(control, "IndTecnicos.rpt");
        v->resize(1093, 614);
        v->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(v));
        auto* vista = v->findChild<VistaPaginas*>();
        QTest::keyClick(vista, Qt::Key_Return); // before anything is asked
        QVERIFY(preguntadas.isEmpty());
        v->findChild<QAction*>(u"Preguntar"_s)->trigger();
        for (const int tecla :
             {Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_Down, Qt::Key_Down, Qt::Key_Right}) {
            QTest::keyClick(vista, Qt::Key_Return);
            vista->setFocus();
            QTest::keyClick(vista, static_cast<Qt::Key>(tecla));
        }
        QTest::keyClick(vista, Qt::Key_Return);
        for (QString& clave : preguntadas)
            clave.remove(u";1200044;2026"_s);
        QCOMPARE(preguntadas.join(u'|'),
                 u"Censo;Total|Intervalo;Todas;0;Media|Mortalidad;Total|Intervalo;Todas;0;Media|"
                 "Censo;Novillas en Cubrición|Censo;Novillas de 1º parto|Bajas;Novillas de 1º parto"_s);
        auto* animales = v->findChild<QTreeWidget*>(u"AnimalesDeCifra"_s);
        QVERIFY(animales->isVisible() && animales->hasFocus());
        QCOMPARE(animales->topLevelItem(0)->text(0), u"Cuentan 2"_s);
        QCOMPARE(animales->topLevelItem(1)->text(0), u"Las otras: 0"_s);
        Teclas(animales, {Qt::Key_Down, Qt::Key_Return});
        QCOMPARE(abierta, 8.0);
        const auto dice = [&](const QString& trozo) {
            const auto rotulos = v->findChild<PanelDeCifra*>()->findChildren<QLabel*>();
            return std::any_of(rotulos.begin(), rotulos.end(),
                               [&](const QLabel* r) { return r->text().contains(trozo); });
        };
        QVERIFY(dice(u"ahora sería 2"_s)); // one figure was printed, another one counted by now
        vista->setFocus();
        QTest::keyClick(vista, Qt::Key_Escape); // ends the asking, not the preview
        QVERIFY(v->isVisible());
        QTest::keyClick(vista, Qt::Key_Return);
        QCOMPARE(preguntadas.size(), 7);

        // The filled box of the calvings' total is no figure; a number in the census is.
        const auto& trozos = v->Informe().paginas.paginas.at(0).trozos;
        const auto cifra = std::find_if(trozos.begin(), trozos.end(), [](const Trozo& t) {
            const auto* texto = std::get_if<TextoColocado>(&t);
            return texto && texto->figura >= 0 && texto->texto == u"38"_s;
        });
        const auto& texto = std::get<TextoColocado>(*cifra);
        vista->IrA(0);
        const double escala = vista->logicalDpiX() / 25.4 * vista->Zoom();
        const double margen = std::max(12.0, (vista->viewport()->width() - 210 * escala) / 2);
        const QPoint sobre(static_cast<int>(margen + (texto.base.x() + texto.ancho / 2) * escala),
                           static_cast<int>(12 + (texto.base.y() - 1) * escala));
        vista->verticalScrollBar()->setValue(100);
        QTest::mouseClick(vista->viewport(), Qt::LeftButton, {}, sobre - QPoint(0, 100));
        QVERIFY(preguntadas.size() == 8 && preguntadas.last().endsWith(u"Vacas de 2 a 6 partos"_s));
        QTest::mouseClick(vista->viewport(), Qt::LeftButton, {}, sobre - QPoint(60, 100));
        QCOMPARE(preguntadas.size(), 8);
    }

    void CopiarTabla() {
        const TablasEnMemoria fuente = ejemplo::Registros(4);
        ControlInforme control(fuente);
        Abrir(control, "Ganaderos.rpt")->findChild<QAction*>(u"CopiarTabla"_s)->trigger();
        const QMimeData* copia = QApplication::clipboard()->mimeData();
        const QStringList lineas = copia->text().split(u'\n');
        QCOMPARE(lineas.size(), 1 + 4 + 1);
        QVERIFY(lineas.at(0).startsWith(u"Código\tNombre\tApellidos\tApodo\t"_s));
        QVERIFY2(lineas.at(4).contains(u"\t04/04/2001\t15/06/2019\t"_s), qPrintable(lineas.at(4)));
        QVERIFY(copia->html().contains(u"<td>Zapico Ñera</td>"_s));
    }

    void Guardar() {
        QTemporaryDir carpeta;
        const TablasEnMemoria fuente = IndicesTecnicos(1);
        ControlInforme control(fuente);
        VentanaInforme* v = Abrir(control, "IndTecnicos.rpt");
        QString elegido;
        QStringList avisos, propuestas, carpetas;
        const auto anterior = InstalarRespondedor([&](const Mensaje& mensaje) {
            if (mensaje.clase == Mensaje::Clase::FicheroGuardar)
                propuestas << QFileInfo(mensaje.propuesta).fileName(),
                    carpetas << QFileInfo(mensaje.propuesta).path();
            else
                avisos << mensaje.titulo + u'|' + mensaje.texto;
            return Respuesta{false, elegido};
        });
        const auto guardar = [&](const char* orden, const QString& nombre) {
            elegido = nombre.isEmpty() ? QString() : carpeta.filePath(nombre);
            v->findChild<QAction*>(Q(orden))->trigger();
            return QFileInfo(elegido);
        };
        guardar("GuardarPdf", {}); // cancelled
        QVERIFY(QDir(carpeta.path()).isEmpty() && guardar("GuardarPdf", u"a.pdf"_s).size() > 5000);
        QVERIFY(guardar("GuardarXlsx", u"a.xlsx"_s).size() > 5000);
        QCOMPARE(QDir(guardar("GuardarCsv", u"a"_s).filePath()).entryList(QDir::Files).size(), 12);
        QVERIFY(avisos.isEmpty());
        QCOMPARE(propuestas, QStringList({u"IndTecnicos.pdf"_s, u"IndTecnicos.pdf"_s, u"IndTecnicos.xlsx"_s,
                                          u"IndTecnicos CSV"_s}));
        QCOMPARE(carpetas, QStringList({carpetas.at(0), carpetas.at(0), carpeta.path(),
                                        carpeta.path()})); // the last one
        guardar("GuardarPdf", u"no/hay/a.pdf"_s);
        QCOMPARE(avisos.size(), 1);
        QVERIFY2(avisos.at(0).startsWith(u"Atención|No se puede escribir el fichero"_s),
                 qPrintable(avisos.at(0)));
        InstalarRespondedor(anterior);
    }

    // Everything can be reached without a mouse; the window fits a small screen.
    void TecladoYNombres() {
        const TablasEnMemoria fuente = IndicesTecnicos(1);
        ControlInforme control(fuente);
        VentanaInforme* v = Abrir(control, "IndTecnicos.rpt");
        QStringList atajos;
        for (const QAction* accion : v->findChildren<QAction*>()) {
            if (accion->objectName().isEmpty() || !accion->parent() || accion->isSeparator() ||
                accion->shortcut().isEmpty())
                continue;
            QVERIFY2(!atajos.contains(accion->shortcut().toString()), qPrintable(accion->objectName()));
            atajos << accion->shortcut().toString();
        }
        QCOMPARE(atajos.size(), 22);
        QVERIFY(v->minimumSizeHint().width() <= 1280 && v->minimumSizeHint().height() <= 720);
        QVERIFY(v->findChild<QToolBar*>()->sizeHint().width() <= 1280);
    }
};

PRUEBA(PruebaControl)
#include "PruebaControl.moc"
