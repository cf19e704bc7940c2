#include "PuestoDeFichas.h"
#include "prueba.h"

#include "registers/DarBaja.h"
#include "registers/Ganaderos.h"

using namespace pastorix;
using namespace prueba;

class PruebaGanaderos : public QObject {
    Q_OBJECT

    static QString Botones(QWidget& f) { return Encendidos(f, "B_Borrar", "B_CerrarGeneral"); }

private Q_SLOTS:
    void AltaYBaja() {
        PuestoDeFichas p;
        p.Poner("T_Veterinarios", {{"Id_Veterinario", 5.0}, {"NombreVet", "Zoe"}, {"ApellidosVet", "Gil"}});
        p.Poner("T_Veterinarios", {{"Id_Veterinario", 2.0}, {"NombreVet", "Ana"}});
        Ganaderos f(p.sesion);
        Mostrar(f);
        auto* vet = f.findChild<QComboBox*>(u"CD_Veterinarios"_s);
        auto* toros = f.findChild<QComboBox*>(u"Combo1"_s);
        QCOMPARE(vet->itemText(1), u"Zoe Gil"_s);
        QVERIFY(CampoDe(f, 0)->hasFocus());
        for (const int i : {1, 16, 2, 3}) { // reading order
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            if (qobject_cast<QAbstractButton*>(QApplication::focusWidget())) // the search icon
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QVERIFY(CampoDe(f, i)->hasFocus());
        }
        QCOMPARE(Mnemonicos(f), u"ABCDEFGHIJLMNOPRSTUVY"_s);
        auto* tab = f.findChild<QTabWidget*>(u"TabGanaderos"_s);
        QCOMPARE(tab->tabText(2), u" Inicio Periodo Reproductivo "_s);
        BotonDe(f, "B_Añadir")->click();
        QCOMPARE(CampoDe(f, 0)->text(), u"1"_s);
        QCOMPARE(CampoDe(f, 12)->text(), u"22/11/2026"_s);
        Teclear(f, 2, "Nora");
        Teclear(f, 3, "Díaz");
        Teclear(f, 15, "La Ñisu");
        QCOMPARE(f.findChild<QLabel*>(u"Encabezado"_s)->text(), u"Nora Díaz (La Ñisu)"_s);
        toros->setCurrentIndex(1);
        BotonDe(f, "B_Guardar")->click();
        QCOMPARE(p.Caja(), u"Debe Indicar el Veterinario"_s);
        QVERIFY(vet->hasFocus());
        vet->setCurrentIndex(1);
        BotonDe(f, "B_Guardar")->click();
        QCOMPARE(p.cajas.Vistas().size(), 0);
        // farmer 1 owns the common bulls whatever was chosen; no address text, no address
        QCOMPARE(p.Texto("SELECT Id_Ganadero, Nombre, Apodo, FechaAlta, TorosComun, Id_Veterinario, "
                         "Id_Direccion FROM T_Ganaderos"),
                 "1|Nora|La Ñisu|22/11/26|Sí|5|-"s);
        QCOMPARE(p.Texto("SELECT Id_GV FROM T_Direcciones"), std::string());
        QCOMPARE(Botones(f), u"AMER"_s);
        BotonDe(f, "B_Añadir")->click();
        Teclear(f, 0, "57");
        Teclear(f, 2, "Ana");
        Teclear(f, 10, "600");
        toros->setCurrentIndex(0);
        vet->setCurrentIndex(0);
        BotonDe(f, "B_Guardar")->click();
        QCOMPARE(p.Texto("SELECT TorosComun FROM T_Ganaderos WHERE Id_Ganadero = 57"), "No"s);
        QCOMPARE(p.Texto("SELECT Id_GV, TelefonoP, TelefonoM FROM T_Direcciones"), "57|-|600"s);

        // removal: date and reason, shown again, and forgotten with the date
        const auto conDialogo = [&](const char* fecha, const char* motivo, const char* boton) {
            QTimer::singleShot(0, &f, [&f, fecha, motivo, boton] {
                auto* d = f.findChild<QDialog*>(u"DarBaja"_s);
                QCOMPARE(d->windowTitle(), u"Dar de Baja a: Ana "_s);
                TeclearEn(*CampoDe(*d, 0), fecha);
                TeclearEn(*CampoDe(*d, 1), motivo);
                BotonDe(*d, boton)->click();
                if (d->isVisible())
                    BotonDe(*d, "B_Cancelar")->click();
            });
            BotonDe(f, "B_DarBaja")->click();
        };
        conDialogo("31/02/26", "x", "B_Aceptar");
        const auto mal = p.cajas.Vistas();
        QCOMPARE(mal.size(), 1);
        QCOMPARE(mal[0].titulo, u"Atención!"_s);
        QCOMPARE(mal[0].texto, u"La fecha no es correcta, dd/mm/aa"_s);
        QCOMPARE(p.Texto("SELECT FechaBaja FROM T_Ganaderos WHERE Id_Ganadero = 57"), "-"s);
        conDialogo("1/11/26", "Venta d'a casería", "B_Aceptar");
        QCOMPARE(p.Texto("SELECT FechaBaja, MotivoBaja FROM T_Ganaderos WHERE Id_Ganadero = 57"),
                 "01/11/26|Venta d'a casería"s);
        QCOMPARE(CampoDe(f, 13)->text(), u"1/11/26"_s);
        BotonDe(f, "B_MotivoBaja")->click();
        const auto motivo = p.cajas.Vistas();
        QCOMPARE(motivo[0].titulo, u"Causa de la Baja."_s);
        QCOMPARE(motivo[0].texto, u"Venta d'a casería"_s);
        Teclear(f, 13, "");
        BotonDe(f, "B_Guardar")->click();
        QCOMPARE(p.Texto("SELECT FechaBaja, MotivoBaja FROM T_Ganaderos WHERE Id_Ganadero = 57"), "-|-"s);

        p.cajas.Responder(true);
        BotonDe(f, "B_Borrar")->click();
        QCOMPARE(p.Caja(), u"Eliminar Ganadero: Ana "_s);
        QCOMPARE(p.Texto("SELECT Id_Ganadero FROM T_Ganaderos"), "1"s);
        QCOMPARE(p.Texto("SELECT Id_GV FROM T_Direcciones"), std::string());
        QCOMPARE(Botones(f), u"AR"_s);
        QCOMPARE(CampoDe(f, 2)->text(), QString());
        f.close();
    }

    // The list of fattened animals: of this farmer alone, and after an animal's sheet the row chosen stays chosen, wherever it stands now.
    void ListaDeCebo() {
        PuestoDeFichas p;
        p.Poner("T_Ganaderos", {{"Id_Ganadero", 12.0}, {"Nombre", "Nora"}});
        p.Poner("T_Vacas", {{"Id_Vaca", 1200001.0}, {"Id_Ganadero", 12.0}, {"Nombre", "Luna"}});
        const auto animal = [&](double ganadero, double id, int año, double vaca) {
            p.Poner("T_Cebo",
                    {{"Id_Ganadero", ganadero}, {"Id_Cebo", id}, {"AñoRef", año}, {"Id_Vaca", vaca}});
        };
        animal(12, 1, 2025, 1200001);
        animal(12, 2, 2026, 0);
        animal(57, 3, 2026, 0);
        std::string ordenes;
        Ganaderos f(p.sesion,
                    {[&](QWidget*, double ganadero, std::optional<double> id) {
                         ordenes += TextoDe(ganadero) + ":" + (id ? TextoDe(*id) : "") + " ";
                         if (id)
                             p.sesion.conexion.Execute("UPDATE T_Cebo SET AñoRef = 2027 WHERE Id_Cebo = 1");
                         else
                             animal(12, 4, 2027, 0);
                     },
                     {}});
        Mostrar(f);
        auto* tab = f.findChild<QTabWidget*>(u"TabGanaderos"_s);
        QVERIFY(!tab->isTabEnabled(1));
        f.CargarFicha(12);
        tab->setCurrentIndex(1);
        auto* grid = f.findChild<QTableWidget*>(u"GridCebo"_s);
        const auto filas = [&] {
            QString todo;
            for (int i = 0; i < grid->rowCount(); ++i)
                todo += grid->item(i, 0)->text() + grid->item(i, 3)->text() +
                        QLatin1String(grid->item(i, 0)->isSelected() ? "* " : " ");
            return todo;
        };
        QCOMPARE(filas(), u"2* 1Luna "_s);
        grid->setFocus();
        QTest::keyClick(grid, Qt::Key_Down);
        QTest::keyClick(grid, Qt::Key_Return);
        QCOMPARE(filas(), u"1Luna* 2 "_s);
        BotonDe(f, "B_AñadirCebo")->click();
        QCOMPARE(filas(), u"4 1Luna* 2 "_s);
        QTest::keyClick(grid, Qt::Key_Down);
        QCOMPARE(grid->currentRow(), 2);
        QCOMPARE(ordenes, "12:1 12: "s);
        BotonDe(f, "B_Añadir")->click(); // a farmer that is not there yet has none
        QVERIFY(!tab->isTabEnabled(1) && grid->rowCount() == 0);
    }
};

PRUEBA(PruebaGanaderos)
#include "PruebaGanaderos.moc"
