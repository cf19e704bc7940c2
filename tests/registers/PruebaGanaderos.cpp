#include "PuestoDeFichas.h"

#include "registers/DarBaja.h"
#include "registers/Ganaderos.h"

using namespace prueba;

class PruebaGanaderos : public QObject {
    Q_OBJECT

    static QString Botones(QWidget& f) { return Encendidos(f, "B_Borrar", "B_CerrarGeneral"); }

private Q_SLOTS:
    void AltaYBaja() {
        PuestoDeFichas p;
        p.Poner("T_Veterinarios", "Id_Veterinario=5, NombreVet=Zoe, ApellidosVet=Gil");
        p.Poner("T_Veterinarios", "Id_Veterinario=2, NombreVet=Ana");
        AlaVista<Ganaderos> f(p.sesion);
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
        QCOMPARE(CampoDe(f, 0)->text() + u'|' + CampoDe(f, 12)->text(), u"1|22/11/2026"_s);
        Teclear(f, {{2, "Nora"}, {3, "Díaz"}, {15, "La Ñisu"}});
        QCOMPARE(f.findChild<QLabel*>(u"Encabezado"_s)->text(), u"Nora Díaz (La Ñisu)"_s);
        toros->setCurrentIndex(1);
        QCOMPARE(p.CajaDe(BotonDe(f, "B_Guardar")), u"Debe Indicar el Veterinario"_s);
        QVERIFY(vet->hasFocus());
        vet->setCurrentIndex(1);
        BotonDe(f, "B_Guardar")->click();
        QCOMPARE(p.cajas.Vistas().size(), 0);
        // farmer 1 owns the common bulls whatever was chosen; no address text, no address
        QUEDA(p,
              "Id_Ganadero, Nombre, Apodo, FechaAlta, TorosComun, Id_Veterinario, Id_Direccion FROM "
              "T_Ganaderos",
              "1|Nora|La Ñisu|22/11/26|Sí|5|-");
        QUEDA(p, "Id_GV FROM T_Direcciones", "");
        QCOMPARE(Botones(f), u"AMER"_s);
        BotonDe(f, "B_Añadir")->click();
        Teclear(f, {{0, "57"}, {2, "Ana"}, {10, "600"}});
        toros->setCurrentIndex(0);
        vet->setCurrentIndex(0);
        BotonDe(f, "B_Guardar")->click();
        QUEDA(p, "TorosComun FROM T_Ganaderos WHERE Id_Ganadero = 57", "No");
        QUEDA(p, "Id_GV, TelefonoP, TelefonoM FROM T_Direcciones", "57|-|600");

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
        QCOMPARE(p.cajas.Tomar(), QStringList{u"Atención!|La fecha no es correcta, dd/mm/aa"_s});
        QUEDA(p, "FechaBaja FROM T_Ganaderos WHERE Id_Ganadero = 57", "-");
        conDialogo("1/11/26", "Venta d'a casería", "B_Aceptar");
        QUEDA(p, "FechaBaja, MotivoBaja FROM T_Ganaderos WHERE Id_Ganadero = 57",
              "01/11/26|Venta d'a casería");
        QCOMPARE(CampoDe(f, 13)->text(), u"1/11/26"_s);
        BotonDe(f, "B_MotivoBaja")->click();
        QCOMPARE(p.cajas.Tomar(), QStringList{u"Causa de la Baja.|Venta d'a casería"_s});
        Teclear(f, 13, "");
        BotonDe(f, "B_Guardar")->click();
        QUEDA(p, "FechaBaja, MotivoBaja FROM T_Ganaderos WHERE Id_Ganadero = 57", "-|-");

        QCOMPARE(p.CajaDe(BotonDe(f, "B_Borrar"), true), u"Eliminar Ganadero: Ana "_s);
        QUEDA(p, "Id_Ganadero FROM T_Ganaderos", "1");
        QUEDA(p, "Id_GV FROM T_Direcciones", "");
        QCOMPARE(Botones(f), u"AR"_s);
        QCOMPARE(CampoDe(f, 2)->text(), QString());
        f.close();
    }

    // The list of fattened animals: of this farmer alone, and after an animal's sheet the row chosen stays chosen, wherever it stands now.
    void ListaDeCebo() {
        PuestoDeFichas p;
        p.Poner("T_Ganaderos", "Id_Ganadero=12, Nombre=Nora");
        p.Poner("T_Vacas", "Id_Vaca=1200001, Id_Ganadero=12, Nombre=Luna");
        const auto animal = [&](double ganadero, double id, int año, double vaca) {
            p.Poner("T_Cebo", "Id_Ganadero, Id_Cebo, AñoRef, Id_Vaca", ganadero, id, año, vaca);
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
        const auto conGanadero = [tab](bool si) {
            return tab->isTabEnabled(1) == si && tab->isTabEnabled(2) == si && tab->isTabEnabled(3) == si;
        };
        QVERIFY(conGanadero(false));
        f.CargarFicha(12);
        QVERIFY(conGanadero(true));
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
        Teclas(grid, {Qt::Key_Down, Qt::Key_Return});
        QCOMPARE(filas(), u"1Luna* 2 "_s);
        BotonDe(f, "B_AñadirCebo")->click();
        QCOMPARE(filas(), u"4 1Luna* 2 "_s);
        QTest::keyClick(grid, Qt::Key_Down);
        QCOMPARE(grid->currentRow(), 2);
        QCOMPARE(ordenes, "12:1 12: "s);
        BotonDe(f, "B_Añadir")->click(); // a farmer that is not there yet has none
        QVERIFY(conGanadero(false) && grid->rowCount() == 0);
    }
};

PRUEBA(PruebaGanaderos)
#include "PruebaGanaderos.moc"
