#include "Cajas.h"
#include "Instalacion.h"
#include "frame/AbrirSesion.h"
#include "frame/Acerca.h"
#include "frame/Ciclo.h"
#include "frame/ControlEquipos.h"
#include "frame/Presentacion.h"

#include <QSignalSpy>

using namespace prueba;

class PruebaVentanas : public QObject {
    Q_OBJECT

    // A started program with its main window loaded and the login on show.
    struct Escena {
        explicit Escena(bool entradaPrincipal = false) {
            i.PonerUsuarios();
            principal = std::make_unique<Principal>(i.sesion);
            abrir = std::make_unique<AbrirSesion>(i.sesion, *principal, entradaPrincipal);
            abrir->show();
            if (!QTest::qWaitForWindowActive(abrir.get()))
                qCritical("the login does not become active");
        }
        QLineEdit* Campo(int n) const { return abrir->findChild<QLineEdit*>(u"Text1(%1)"_s.arg(n)); }
        QPushButton* Boton(const char* nombre) const { return abrir->findChild<QPushButton*>(Q(nombre)); }

        Arrancada i;
        Cajas cajas;
        std::unique_ptr<Principal> principal;
        std::unique_ptr<AbrirSesion> abrir;
    };

private Q_SLOTS:
    void LaPresentacionDuraCincoSegundosYDaPaso() {
        Sesion sesion;
        sesion.VersionPrograma = "Pastorix (3.09)";
        int pasos = 0;
        Presentacion p(sesion, [&] { ++pasos; });
        auto* reloj = p.findChild<QTimer*>("Reloj");
        p.show();
        QVERIFY(reloj->isActive());
        QCOMPARE(reloj->interval(), 5000);
        QCOMPARE(p.findChild<QLabel*>("Version")->text(), u"Pastorix (3.09)"_s);
        reloj->start(1);
        QTRY_COMPARE(pasos, 1);
        QVERIFY(!p.isVisible());
    }

    void LaEntradaEntregadaSoloAbreLaPersonal() {
        Escena e(false);
        QVERIFY(!e.principal->isEnabled() && !e.Boton("B_Aceptar(0)")->isEnabled());
        QVERIFY(e.Boton("B_Aceptar(1)")->isEnabled());
        QCOMPARE(e.Boton("B_Aceptar(1)")->toolTip(),
                 u" No es necesario que indique contraseña, déjelo en blanco "_s);
        QCOMPARE(e.abrir->focusWidget(), e.Campo(0));
        QCOMPARE(e.Campo(1)->echoMode(), QLineEdit::Password);
        QTest::mouseClick(e.Boton("B_Aceptar(0)"), Qt::LeftButton);
        QVERIFY(e.i.sesion.ModoSesion.empty());
    }

    // Enter takes the personal entry wherever the focus is, in both editions.
    void EnterEntraEnLaPersonal_data() {
        for (const char* foco : {"Text1(0)", "Text1(1)", "B_Aceptar(1)", "IDF_Cancelar"}) {
            Caso(qPrintable(QString::asprintf("%s", foco)), false, foco);
            Caso(qPrintable(QString::asprintf("%s, office", foco)), true, foco);
        }
        Caso("B_Aceptar(0), office", true, "B_Aceptar(0)");
    }
    void EnterEntraEnLaPersonal() {
        const auto [entradaPrincipal, foco] = DelCaso<bool, QString>();
        Escena e(entradaPrincipal);
        e.Campo(0)->setText("elopez");
        auto* control = e.abrir->findChild<QWidget*>(foco);
        control->setFocus();
        e.cajas.Responder(false); // the yearly question
        QTest::keyClick(control, Qt::Key_Return);
        QCOMPARE(e.cajas.Tomar(), QStringList{" Confirme|Desea inicializar los Años Naturales ? "});
        QCOMPARE(int(e.i.sesion.BaseElegida), 1);
        QVERIFY(e.principal->isVisible() && e.principal->isEnabled() && !e.abrir->isVisible());
    }

    void LaOficinaEntraEnLaPrincipal() {
        Escena e(true);
        QTest::keyClicks(e.Campo(0), "CENTRAL");
        QTest::keyClick(e.Campo(0), Qt::Key_Tab);
        QCOMPARE(e.abrir->focusWidget(), e.Campo(1));
        QTest::keyClicks(e.Campo(1), "oficina");
        QTest::keyClick(e.Campo(1), Qt::Key_Tab);
        QCOMPARE(e.abrir->focusWidget(), e.Boton("B_Aceptar(0)"));
        e.cajas.Responder(true);
        QTest::keyClick(e.Boton("B_Aceptar(0)"), Qt::Key_Space);
        QCOMPARE(e.cajas.Tomar().size(), 1);
        QCOMPARE(e.i.sesion.ModoSesion, "CENTRAL"s);
        QCOMPARE(int(e.i.sesion.BaseElegida), 0);
        QCOMPARE(Q(e.i.sesion.conexion.Fichero()), e.i.sesion.rutas.BasePrincipal());
        QCOMPARE(e.principal->Panel(), u" Modo: BASE DE DATOS CENTRAL"_s);
        QVERIFY(!QApplication::activeModalWidget()); // Ciclo has gone
    }

    void UnIntentoFallidoVaciaLaClave() {
        Escena e(true);
        e.Campo(0)->setText("o'brien");
        e.Campo(1)->setText("x");
        e.Campo(1)->setFocus();
        QTest::keyClick(e.Campo(1), Qt::Key_Enter);
        QCOMPARE(e.cajas.Tomar(), QStringList{"Adios|Usuario No Autorizado"});
        QVERIFY(e.abrir->isVisible() && !e.principal->isVisible());
        QCOMPARE(e.Campo(1)->text(), QString());
        QCOMPARE(e.abrir->focusWidget(), e.Campo(0));
        QTRY_COMPARE(e.Campo(0)->selectedText(), u"o'brien"_s);
    }

    void LosDosCaminosDeSalida() {
        for (const QString por : {"Escape", "Cancelar", "cierre"}) {
            Escena e;
            QSignalSpy salida(e.abrir.get(), &AbrirSesion::Salida);
            if (por == "Escape")
                QTest::keyClick(e.Campo(1), Qt::Key_Escape);
            else if (por == "Cancelar")
                QTest::mouseClick(e.Boton("IDF_Cancelar"), Qt::LeftButton);
            else
                e.abrir->close();
            QCOMPARE(salida.size(), 1);
            QVERIFY(!e.principal->isVisible());
        }
    }

    void ElCicloMuestraTantosPorCiento_data() {
        Caso("nothing done", 0, 700, 1);
        Caso("rounds to nothing", 1, 700, 1);
        Caso("half to even, up", 7, 200, 4);
        Caso("all", 700, 700, 100);
        Caso("no total", 0, 0, 1);
        Caso("more than there is", 9, 3, 100);
    }
    void ElCicloMuestraTantosPorCiento() {
        const auto [hecho, total, porcentaje] = DelCaso<int, int, int>();
        Ciclo ciclo;
        ciclo.show();
        ciclo.Avance(hecho, total);
        QCOMPARE(ciclo.findChild<QProgressBar*>("PBar")->value(), porcentaje);
        QCOMPARE(ciclo.findChild<QLabel*>("Porcentaje")->text(), QString::number(porcentaje) + " %");
        QCOMPARE(ciclo.findChild<QLabel*>("Ct_Estandar")->text(), u"Generando informe"_s);
        QTest::keyClick(&ciclo, Qt::Key_Escape);
        QVERIFY(ciclo.isVisible());
    }

    void ElCicloSePuedeLlamarEnCadaFila() {
        // A hundred paintings at most for a hundred thousand rows.
        Ciclo ciclo;
        ciclo.show();
        int pintados = 0;
        struct Contador : QObject {
            int* n;
            bool eventFilter(QObject*, QEvent* e) override {
                *n += e->type() == QEvent::Paint;
                return false;
            }
        } contador;
        contador.n = &pintados;
        ciclo.installEventFilter(&contador);
        for (int fila = 0; fila < 100'000; ++fila)
            ciclo.Avance(fila, 100'000);
        QVERIFY2(pintados > 50 && pintados < 300, qPrintable(QString::number(pintados)));
    }

    void UnTrabajoCortoNoEnsenaElCiclo() {
        CicloTardio corto(nullptr, "x");
        corto.Avance(1, 2);
        QVERIFY(!QApplication::activeModalWidget());
        {
            FuncionAvance largo = AvanceTardio(nullptr, "Preparando");
            QTest::qSleep(520);
            largo(1, 2);
            QVERIFY(qobject_cast<Ciclo*>(QApplication::activeModalWidget()));
        }
        QVERIFY(!QApplication::activeModalWidget());
    }

    void LaRelacionDeDistribucion() {
        Arrancada i;
        Conexion& c = i.sesion.conexion;
        Insertar(c, "T_Veterinarios", "Id_Veterinario=2, NombreVet=Sofía");
        Insertar(c, "T_Veterinarios", "Id_Veterinario=3, NombreVet=Ángel");
        Insertar(c, "T_Ganaderos", "Id_Ganadero=12, Nombre=Nicolás, Id_Veterinario=2");
        Insertar(c, "T_Ganaderos", "Id_Ganadero=57, Nombre=Ñoel, Apellidos=Cuesta, Id_Veterinario=3");
        Insertar(c, "T_Ganaderos", "Id_Ganadero=85, Nombre=Sin veterinario");
        const auto filas = RelacionDeDistribucion(c);
        QCOMPARE(filas.size(), 3U);
        QCOMPARE(filas[0], (std::array<std::string, 3>{"", "Sin veterinario", ""}));
        QCOMPARE(filas[1], (std::array<std::string, 3>{"Ángel", "Ñoel", "Cuesta"}));
        QCOMPARE(filas[2][0], "Sofía"s);

        ControlEquipos forma(filas, nullptr);
        forma.show();
        auto* rejilla = forma.findChild<QTableWidget*>("Grid");
        QCOMPARE(rejilla->item(1, 1)->text(), u"Ñoel"_s);
        QVERIFY(rejilla->currentItem());
        QVERIFY(!(rejilla->item(0, 0)->flags() & Qt::ItemIsEditable) ||
                rejilla->editTriggers() == QAbstractItemView::NoEditTriggers);
        QTest::keyClick(rejilla, Qt::Key_Escape);
        QVERIFY(!forma.isVisible());
    }

    void LaListaQueNoSePuedeLeerSeDice() {
        Cajas cajas;
        Sesion cerrada;
        MostrarControlEquipos(cerrada, nullptr);
        const auto vistas = cajas.Vistas();
        QCOMPARE(vistas.size(), 1);
        QVERIFY(vistas[0].texto.startsWith("3704 ... "));
    }
};

PRUEBA(PruebaVentanas)
#include "PruebaVentanas.moc"
