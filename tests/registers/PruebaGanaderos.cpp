#include "PuestoDeFichas.h"
#include "prueba.h"

#include "registers/DarBaja.h"
#include "registers/Ganaderos.h"

#include <QComboBox>
#include <QLabel>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>

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
        auto* vet = f.findChild<QComboBox*>(QStringLiteral("CD_Veterinarios"));
        auto* toros = f.findChild<QComboBox*>(QStringLiteral("Combo1"));
        QCOMPARE(vet->itemText(1), QStringLiteral("Zoe Gil"));
        QVERIFY(CampoDe(f, 0)->hasFocus());
        for (const int i : {1, 16, 2, 3}) { // reading order
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            if (qobject_cast<QAbstractButton*>(QApplication::focusWidget())) // the search icon
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QVERIFY(CampoDe(f, i)->hasFocus());
        }
        QCOMPARE(Mnemonicos(f), QStringLiteral("ABCDEFGHIJLMNOPRSTUVY"));
        auto* tab = f.findChild<QTabWidget*>(QStringLiteral("TabGanaderos"));
        QCOMPARE(tab->tabText(2), QStringLiteral(" Inicio Periodo Reproductivo "));
        BotonDe(f, "B_Añadir")->click();
        QCOMPARE(CampoDe(f, 0)->text(), QStringLiteral("1"));
        QCOMPARE(CampoDe(f, 12)->text(), QStringLiteral("22/11/2026"));
        Teclear(f, 2, "Nora");
        Teclear(f, 3, "Díaz");
        Teclear(f, 15, "La Ñisu");
        QCOMPARE(f.findChild<QLabel*>(QStringLiteral("Encabezado"))->text(),
                 QStringLiteral("Nora Díaz (La Ñisu)"));
        toros->setCurrentIndex(1);
        BotonDe(f, "B_Guardar")->click();
        QCOMPARE(p.Caja(), QStringLiteral("Debe Indicar el Veterinario"));
        QVERIFY(vet->hasFocus());
        vet->setCurrentIndex(1);
        BotonDe(f, "B_Guardar")->click();
        QCOMPARE(p.cajas.Vistas().size(), 0);
        // farmer 1 owns the common bulls whatever was chosen; no address text, no address
        QCOMPARE(p.Texto("SELECT Id_Ganadero, Nombre, Apodo, FechaAlta, TorosComun, Id_Veterinario, "
                         "Id_Direccion FROM T_Ganaderos"),
                 std::string("1|Nora|La Ñisu|22/11/26|Sí|5|-"));
        QCOMPARE(p.Texto("SELECT Id_GV FROM T_Direcciones"), std::string());
        QCOMPARE(Botones(f), QStringLiteral("AMER"));
        BotonDe(f, "B_Añadir")->click();
        Teclear(f, 0, "57");
        Teclear(f, 2, "Ana");
        Teclear(f, 10, "600");
        toros->setCurrentIndex(0);
        vet->setCurrentIndex(0);
        BotonDe(f, "B_Guardar")->click();
        QCOMPARE(p.Texto("SELECT TorosComun FROM T_Ganaderos WHERE Id_Ganadero = 57"), std::string("No"));
        QCOMPARE(p.Texto("SELECT Id_GV, TelefonoP, TelefonoM FROM T_Direcciones"), std::string("57|-|600"));

        // removal: date and reason, shown again, and forgotten with the date
        const auto conDialogo = [&](const char* fecha, const char* motivo, const char* boton) {
            QTimer::singleShot(0, &f, [&f, fecha, motivo, boton] {
                auto* d = f.findChild<QDialog*>(QStringLiteral("DarBaja"));
                QCOMPARE(d->windowTitle(), QStringLiteral("Dar de Baja a: Ana "));
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
        QCOMPARE(mal[0].titulo, QStringLiteral("Atención!"));
        QCOMPARE(mal[0].texto, QStringLiteral("La fecha no es correcta, dd/mm/aa"));
        QCOMPARE(p.Texto("SELECT FechaBaja FROM T_Ganaderos WHERE Id_Ganadero = 57"), std::string("-"));
        conDialogo("1/11/26", "Venta d'a casería", "B_Aceptar");
        QCOMPARE(p.Texto("SELECT FechaBaja, MotivoBaja FROM T_Ganaderos WHERE Id_Ganadero = 57"),
                 std::string("01/11/26|Venta d'a casería"));
        QCOMPARE(CampoDe(f, 13)->text(), QStringLiteral("1/11/26"));
        BotonDe(f, "B_MotivoBaja")->click();
        const auto motivo = p.cajas.Vistas();
        QCOMPARE(motivo[0].titulo, QStringLiteral("Causa de la Baja."));
        QCOMPARE(motivo[0].texto, QStringLiteral("Venta d'a casería"));
        Teclear(f, 13, "");
        BotonDe(f, "B_Guardar")->click();
        QCOMPARE(p.Texto("SELECT FechaBaja, MotivoBaja FROM T_Ganaderos WHERE Id_Ganadero = 57"),
                 std::string("-|-"));

        p.cajas.Responder(true);
        BotonDe(f, "B_Borrar")->click();
        QCOMPARE(p.Caja(), QStringLiteral("Eliminar Ganadero: Ana "));
        QCOMPARE(p.Texto("SELECT Id_Ganadero FROM T_Ganaderos"), std::string("1"));
        QCOMPARE(p.Texto("SELECT Id_GV FROM T_Direcciones"), std::string());
        QCOMPARE(Botones(f), QStringLiteral("AR"));
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
        auto* tab = f.findChild<QTabWidget*>(QStringLiteral("TabGanaderos"));
        QVERIFY(!tab->isTabEnabled(1));
        f.CargarFicha(12);
        tab->setCurrentIndex(1);
        auto* grid = f.findChild<QTableWidget*>(QStringLiteral("GridCebo"));
        const auto filas = [&] {
            QString todo;
            for (int i = 0; i < grid->rowCount(); ++i)
                todo += grid->item(i, 0)->text() + grid->item(i, 3)->text() +
                        QLatin1String(grid->item(i, 0)->isSelected() ? "* " : " ");
            return todo;
        };
        QCOMPARE(filas(), QStringLiteral("2* 1Luna "));
        grid->setFocus();
        QTest::keyClick(grid, Qt::Key_Down);
        QTest::keyClick(grid, Qt::Key_Return);
        QCOMPARE(filas(), QStringLiteral("1Luna* 2 "));
        BotonDe(f, "B_AñadirCebo")->click();
        QCOMPARE(filas(), QStringLiteral("4 1Luna* 2 "));
        QTest::keyClick(grid, Qt::Key_Down);
        QCOMPARE(grid->currentRow(), 2);
        QCOMPARE(ordenes, std::string("12:1 12: "));
        BotonDe(f, "B_Añadir")->click(); // a farmer that is not there yet has none
        QVERIFY(!tab->isTabEnabled(1) && grid->rowCount() == 0);
    }
};

PRUEBA(PruebaGanaderos)
#include "PruebaGanaderos.moc"
