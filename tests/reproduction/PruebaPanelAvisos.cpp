#include "PuestoDeCiclos.h"

#include "frame/Ajustes.h"
#include "reproduction/PanelAvisos.h"

using namespace prueba;

// The day's work on the ground of the main window.
class PruebaPanelAvisos : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FiltroYAvance() {
        PuestoDeCiclos p;
        p.Poner("T_Ganaderos", "Id_Ganadero=15, Apodo=El Xeitu");
        p.Poner("T_Vacas", "Id_Vaca=1500001, Id_Ganadero=15, Nombre=Mora");
        p.PonerCubricion(2026, 3, "FechaIPR=1/6/26, DatosCompletos=1");
        p.PonerCubricion(2026, 1, "Id_Vaca=1500001, FechaIPR=1/5/26, DatosCompletos=1");
        QWidget fondo;
        PanelAvisos panel(p.sesion, &fondo);
        double abierta = 0;
        panel.alAbrir = [&](double idVaca) { abierta = idVaca; };
        Mostrar(fondo);
        auto* tabla = Control<QTableWidget>(fondo, "GridAvisos");
        QCOMPARE(tabla->rowCount(), 2);
        QCOMPARE(tabla->item(0, 2)->text(), u"Mora"_s); // by date
        auto* ganadero = Control<QComboBox>(fondo, "Cb_GanaderoDeAvisos");
        QCOMPARE(ganadero->count(), 3);
        ganadero->setCurrentText(u"La Nora"_s);
        Q_EMIT ganadero->activated(ganadero->currentIndex());
        QCOMPARE(tabla->rowCount(), 1);
        tabla->setFocus();
        QTest::keyClick(tabla, Qt::Key_Return);
        QCOMPARE(abierta, 1200001.0);

        p.sesion.conexion.Execute("UPDATE T_Cubriciones SET Estado = 'Preñada' WHERE Id_Vaca = 1200001");
        panel.Refrescar(); // the filter's farmer has nothing left
        QCOMPARE(tabla->rowCount(), 1);
        QCOMPARE(tabla->item(0, 2)->text(), u"Mora"_s);
        QVERIFY(Control<QLabel>(fondo, "AvisoDeCopias")->text().startsWith(u"No hay ninguna copia"_s));

        Control<QAbstractButton>(fondo, "B_CerrarAvisos")->click();
        PanelAvisos otro(p.sesion, &fondo); // closed, it stays closed
        QVERIFY(otro.isHidden() && otro.Cerrado());
        otro.Cerrar(false);
        QVERIFY(!otro.isHidden());
    }

    // A large database is read aside, with the same outcome.
    void AparteLoMismo() {
        PuestoDeCiclos p;
        p.PonerCubricion(2026, 3, "FechaIPR=1/6/26");
        EnGrupo(p.sesion.conexion, [&] {
            for (int i = 0; i < 1600; ++i)
                p.Poner("T_Vacas", "Id_Vaca", 5000000.0 + i);
        });
        QWidget fondo;
        PanelAvisos panel(p.sesion, &fondo);
        fondo.show();
        QTRY_COMPARE(panel.Avisos().size(), 1U);
    }
};

PRUEBA(PruebaPanelAvisos)
#include "PruebaPanelAvisos.moc"
