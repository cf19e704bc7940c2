#include "PuestoDeFichas.h"

#include "registers/datos/LineaDeCiclos.h"
#include "registers/datos/SituacionDeVaca.h"
#include "registers/vacas/ObsControlRebano.h"
#include "registers/vacas/Vacas.h"

using namespace prueba;

namespace {

QString Todo(const SituacionDeVaca& vaca) {
    return Q(BajaEnPalabras(vaca) + "|" + ReproduccionEnPalabras(vaca) + "|" + ControlEnPalabras(vaca));
}

} // namespace

// What the cow's heading says of her, and the way from cow to cow.
class PruebaSituacion : public QObject {
    Q_OBJECT

    static void Vaca(Base& b, double id, const char* nombre, Valor baja = {}, double ganadero = 12) {
        b.Poner("T_Vacas", "Id_Vaca, Nombre, Id_Ganadero, FechaDesecho", id, nombre, ganadero, baja);
    }

private Q_SLOTS:
    void BajaYControl_data() {
        // sql: what becomes of her row
        Caso("nothing known", "", "||");
        Caso("removed", "FechaDesecho = #03/15/2026#, Desecho = 'Vieja'", "De baja el 15/03/26: Vieja||");
        Caso("removed, no cause", "FechaDesecho = #03/15/2026#", "De baja el 15/03/26||");
        Caso("a cause alone removes nobody", "Desecho = 'Vieja'", "||");
        Caso("note", "ObsControlRebaño = ' Mirar '", "||Con nota");
        Caso("note emptied", "ObsControlRebaño = ' '", "||");
        Caso("check", "Chekeo = 'X'", "||Chequeo: X");
        Caso("both", "ObsControlRebaño = 'a', Chekeo = 'Parto + 40d'", "||Con nota · Chequeo: Parto + 40d");
    }
    void BajaYControl() {
        const auto [sql, dice] = DelCaso<QString, QString>();
        Base b;
        Vaca(b, 1, "Luna");
        if (!sql.isEmpty())
            b.c.Execute(("UPDATE T_Vacas SET " + sql + " WHERE Id_Vaca = 1").toStdString());
        QCOMPARE(Todo(LeerSituacion(b.c, 1)), dice);
        QCOMPARE(Todo(LeerSituacion(b.c, 2)), u"||"_s); // nobody
    }

    void Reproduccion() {
        Base b;
        Vaca(b, 1, "Luna");
        const auto parto = [&](int n, const Valor& fecha, double vaca = 1) {
            b.Poner("T_Partos", "Id_Vaca, N_Parto, Fecha_Parto", vaca, n, fecha);
        };
        const auto cubricion = [&](int año, int n, const char* estado, const Valor& esperado,
                                   const Valor& real) {
            b.Poner("T_Cubriciones", "Id_Vaca=1, Año_Ref, N_Parto, Estado, FechaEspParto, FechaRealParto",
                    año, n, estado, esperado, real);
        };
        const auto servicio = [&](int año, int n, int orden, const char* fecha, const char* semental) {
            b.Poner("T_Servicios", "Id_Vaca=1, Año_Ref, N_Parto, N_Servicio, Fecha_Servicio, Semental", año,
                    n, orden, F(fecha), semental);
        };
        const auto dice = [&](const char* texto) {
            QCOMPARE(Q(ReproduccionEnPalabras(LeerSituacion(b.c, 1))), QString(texto));
        };
        parto(3, F("01/02/2025"), 2); // another cow's
        parto(2, F("10/04/2024"));
        parto(1, F("09/03/2023"));
        parto(3, {}); // begun, without its date yet
        dice("Último parto 10/04/24 (nº 2)");
        servicio(2025, 2, 1, "01/06/2024", "Ares");
        dice("Último parto 10/04/24 (nº 2)"); // a service of no mating record
        cubricion(2024, 9, "Vacía", {}, {});
        cubricion(2025, 1, "Vacía", {}, {});
        cubricion(2025, 2, "Preñada", F("20/03/2025"), {});
        servicio(2025, 2, 10, "22/07/2024", "");
        servicio(2025, 2, 9, "01/07/2024", "Brezo");
        servicio(2025, 1, 11, "30/08/2024", "Otro");
        dice("Último parto 10/04/24 (nº 2) · Preñada, para el 20/03/25 · Último servicio 22/07/24");
        b.c.Execute("UPDATE T_Servicios SET Semental = 'Ares' WHERE N_Servicio = 10");
        b.c.Execute("UPDATE T_Cubriciones SET Estado = 'Vacía' WHERE N_Parto = 2");
        dice("Último parto 10/04/24 (nº 2) · Vacía · Último servicio 22/07/24 (Ares)");
        // the cycle has ended: she is in calf no more
        b.c.Execute(
            "UPDATE T_Cubriciones SET Estado = 'Preñada', FechaRealParto = #03/18/2025# WHERE N_Parto = 2");
        dice("Último parto 10/04/24 (nº 2) · Último servicio 22/07/24 (Ares)");
    }

    void Vecinas() {
        Base b;
        Vaca(b, 5, "Zarza");
        Vaca(b, 4, "Ñora");
        Vaca(b, 3, "Nube");
        Vaca(b, 7, "Ágata");
        Vaca(b, 8, "Nube");
        Vaca(b, 1, "Bruna", F("01/02/2024"));
        Vaca(b, 2, "Ortiga", F("01/02/2025"));
        Vaca(b, 9, "Lista", {}, 57);
        const auto recorrido = [&](double desde, int paso) {
            QStringList vacas;
            for (auto v = VecinaDeRebaño(b.c, 12, desde, paso); v; v = VecinaDeRebaño(b.c, 12, *v, paso))
                vacas << QString::number(*v);
            return vacas.join(' ');
        };
        QCOMPARE(recorrido(0, 1) + u'|' + recorrido(0, -1), u"7 3 8 4 5|5 4 8 3 7"_s);
        QCOMPARE(recorrido(8, 1), u"4 5"_s);
        QCOMPARE(recorrido(1, 1), u"2"_s); // from one who left to those who left
        QCOMPARE(recorrido(2, -1), u"1"_s);
        QCOMPARE(recorrido(9, 1), u"7 3 8 4 5"_s); // of another farm
    }

    // On the sheet: keys, buttons, and what other windows change.
    void EnLaFicha() {
        PuestoDeFichas p;
        p.Poner("T_Ganaderos", "Id_Ganadero=12, Nombre=Ana");
        for (const auto& [id, nombre] : {std::pair{1.0, "Nube"}, {2.0, "Luna"}, {3.0, "Mora"}})
            p.Poner("T_Vacas", "Id_Vaca, Nombre, Id_Ganadero=12", id, nombre);
        p.Poner("T_Partos", "Id_Vaca=2, N_Parto=1, Fecha_Parto=10/04/2024");
        AlaVista<Vacas> f(p.sesion, OrdenesDeVaca{});
        const auto pasar = [&](Qt::Key tecla) {
            QTest::keyClick(f.focusWidget(), tecla, Qt::ControlModifier);
            return CampoDe(f, 1)->text();
        };
        const auto estado = [&] { return f.findChild<QLabel*>("Estado")->text(); };
        const auto* situacion = f.findChild<QLabel*>("Et_Situacion");
        auto* control = BotonDe(f, "B_ControlRebaño");
        QVERIFY(control->isHidden());
        QCOMPARE(pasar(Qt::Key_PageDown), QString());
        QVERIFY(estado().contains("ganadero"));
        f.CargarFicha(2);
        QCOMPARE(situacion->accessibleName(), u"Último parto 10/04/24 (nº 1)"_s);
        f.findChild<QTabWidget*>("TabVacas")->setCurrentIndex(2);
        QCOMPARE(pasar(Qt::Key_PageDown), u"Mora"_s);
        QCOMPARE(situacion->text(), QString());
        QCOMPARE(pasar(Qt::Key_PageDown), u"Nube"_s);
        QCOMPARE(pasar(Qt::Key_PageDown), u"Nube"_s);
        QCOMPARE(estado(), u"Es la última de la lista"_s);
        QCOMPARE(pasar(Qt::Key_PageUp), u"Mora"_s);
        QCOMPARE(f.findChild<QTabWidget*>("TabVacas")->currentIndex(), 2); // stays in view
        Teclear(f, 1, "Morena");
        p.cajas.Responder(false); // stay
        QCOMPARE(pasar(Qt::Key_PageUp), u"Morena"_s);
        QVERIFY(p.Caja().startsWith("Hay cambios sin guardar"));
        BotonDe(f, "B_Cancelar")->click();

        QTimer::singleShot(0, [] {
            auto* obs = dynamic_cast<ObsControlRebaño*>(QApplication::activeModalWidget());
            obs->findChild<QComboBox*>("Cd_1")->setCurrentIndex(2);
            BotonDe(*obs, "B_Aceptar")->click();
        });
        QCOMPARE(control->text(), u"Sin nota ni chequeo"_s);
        control->click();
        QCOMPARE(control->text(), u"Chequeo: X"_s);

        Vacas fija(p.sesion, {}); // opened by another sheet for this cow alone
        fija.AbrirCon(3);
        Mostrar(fija);
        QTest::keyClick(&fija, Qt::Key_PageDown, Qt::ControlModifier);
        QTest::keyClick(&fija, Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(fija.Clave(), 3.0);
    }

    // F6 and F7 look for sire and dam, and only where their fields are in sight.
    void PadreYMadreConUnaTecla() {
        PuestoDeFichas p;
        p.Poner("T_Ganaderos", "Id_Ganadero=12, Nombre=Ana");
        p.Poner("T_Vacas", "Id_Vaca=1, Nombre=Nube, NombreC=Nube, Id_Ganadero=12");
        AlaVista<Vacas> f(p.sesion, OrdenesDeVaca{});
        const auto abre = [&](Qt::Key tecla, bool elegir) {
            QString titulo;
            Mostrar(f); // active again after the list before
            QTimer::singleShot(0, [&] {
                if (auto* lista = QApplication::activeModalWidget(); lista && lista != &f) {
                    titulo = lista->windowTitle();
                    QTest::keyClick(lista->findChild<QTableView*>(),
                                    elegir ? Qt::Key_Return : Qt::Key_Escape);
                }
            });
            QTest::keyClick(CampoDe(f, 1), tecla);
            QCoreApplication::processEvents();
            return titulo;
        };
        QCOMPARE(abre(Qt::Key_F6, false), QString()); // nobody's father
        f.CargarFicha(1);
        QCOMPARE(abre(Qt::Key_F6, false), u" Selector de Sementales - Padres"_s);
        QCOMPARE(abre(Qt::Key_F7, true), u" Selector de Vacas"_s);
        QCOMPARE(CampoDe(f, 12)->text(), u"Nube"_s);
        BotonDe(f, "B_Cancelar")->click();
        f.findChild<QTabWidget*>("TabVacas")->setCurrentIndex(1);
        QCOMPARE(abre(Qt::Key_F7, false), QString());
    }

    // Her cycles on the time line: read, told in words, chosen by keys, opened and read anew with the same one chosen.
    void LineaDeSusCiclos() {
        PuestoDeFichas p;
        p.Poner("T_Ganaderos", "Id_Ganadero=12, Nombre=Ana");
        p.Poner("T_Vacas", "Id_Vaca=1200001, Nombre=Luna, Id_Ganadero=12");
        const auto cubricion = [&](double id, int n, const char* parto, const char* real,
                                   const char* esperado) {
            p.Poner("T_Cubriciones",
                    "Id_Cubricion, Id_Vaca=1200001, Año_Ref, N_Parto, Fecha_Parto, FechaRealParto, "
                    "FechaEspParto, Estado",
                    id, 2022 + n, n, *parto ? Valor(F(parto)) : Valor(), *real ? Valor(F(real)) : Valor(),
                    *esperado ? Valor(F(esperado)) : Valor(), *esperado ? Valor("Preñada") : Valor());
        };
        cubricion(5, 1, "1/2/2024", "7/3/2025", "");
        cubricion(6, 2, "7/3/2025", "12/4/2026", ""); // 400 days and one
        cubricion(7, 3, "12/4/2026", "", "1/5/2027");
        cubricion(8, 9, "", "", "");
        for (int i : {2, 1})
            p.Poner("T_Servicios", "Id_Vaca=1200001, Año_Ref=2025, N_Parto=3, N_Servicio, Fecha_Servicio", i,
                    F(i == 1 ? "5/6/2026" : "26/6/2026"));
        p.Poner("T_Partos", "Id_Vaca=1200001, Año_Ref=2024, N_Parto=2, FechaSecado=10/2/2026");
        std::string palabras;
        for (const auto& ciclo : LeerLineaDeCiclos(p.sesion.conexion, 1200001))
            palabras += CicloEnPalabras(ciclo) + "\n";
        QCOMPARE(palabras,
                 "Año 2023, parto 1. Parto 01/02/24. Parto siguiente 07/03/25. Intervalo 400 días.\n"
                 "Año 2024, parto 2. Parto 07/03/25. Secado 10/02/26. Parto siguiente 12/04/26. "
                 "Intervalo 401 días, demasiado largo.\n"
                 "Año 2025, parto 3. Parto 12/04/26. 2 servicios, 05/06/26 y 26/06/26. Preñada, para "
                 "el 01/05/27.\n"
                 "Año 2031, parto 9.\n"s);

        OrdenesDeVaca ordenes;
        std::vector<double> abiertos;
        int altas = 0;
        ordenes.abrirCubricion = [&](QWidget*, const VacaEnMano&, const CicloDeVaca& c) {
            abiertos.push_back(c.idCubricion);
            p.sesion.conexion.Execute("UPDATE T_Cubriciones SET N_Parto = 4 WHERE Id_Cubricion = 7");
        };
        ordenes.añadirCubricion = [&](QWidget*, const VacaEnMano&) { ++altas; };
        AlaVista<Vacas> f(p.sesion, ordenes);
        f.CargarFicha(1200001);
        f.findChild<QTabWidget*>(u"TabVacas"_s)->setCurrentIndex(2);
        auto* linea = f.findChild<QWidget*>(u"LineaDeTiempo"_s);
        auto* rejilla = f.findChild<QTableWidget*>(u"GridCubriciones"_s);
        QCoreApplication::processEvents(); // laid out
        linea->setFocus(Qt::TabFocusReason);
        QVERIFY2(
            linea->accessibleDescription().startsWith(u"Año 2025"_s),
            qPrintable(
                linea->accessibleDescription())); // the cycle in progress; one without dates is not drawn
        Teclas(linea, {Qt::Key_Left, Qt::Key_Return});
        QTest::mouseClick(linea, Qt::LeftButton, {}, {linea->width() - 60, 25});
        QTest::mouseClick(linea, Qt::LeftButton, {}, {2, 25}); // before the first one
        QCOMPARE(abiertos, (std::vector<double>{6, 7}));

        rejilla->selectRow(1); // record 7
        QTest::keyClick(rejilla, Qt::Key_Return);
        QCOMPARE(rejilla->item(rejilla->currentRow(), 2)->text(), u"4"_s);
        QVERIFY(!rejilla->selectedItems().isEmpty() && linea->accessibleDescription().contains(u"parto 4"_s));
        QTest::keyClick(rejilla, Qt::Key_Insert);
        QCOMPARE(altas, 1);
    }
};

PRUEBA(PruebaSituacion)
#include "PruebaSituacion.moc"
