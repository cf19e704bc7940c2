#include "PuestoDeFichas.h"
#include "prueba.h"

#include "registers/VentanaHoy.h"
#include "registers/vacas/Vacas.h"

using namespace pastorix;
using namespace prueba;

// What was done in this session, told and put back.
class PruebaHoy : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void UnaVacaDeVuelta() {
        PuestoDeFichas p;
        p.sesion.diario = std::make_unique<Diario>(p.sesion.conexion, Ahora);
        p.Poner("T_Ganaderos", {{"Id_Ganadero", 12.0}, {"Apodo", "La Nora"}});
        p.Poner("T_Vacas", {{"Id_Vaca", 1200001.0}, {"Id_Ganadero", 12.0}, {"Nombre", "Luna"}});
        p.Poner("T_Cubriciones", "Id_Cubricion=5, Id_Vaca=1200001, Año_Ref=2026, N_Parto=2");
        p.Poner("T_Cebo", {{"Id_Ganadero", 12.0}, {"Id_Cebo", 3.0}});
        {
            Vacas f(p.sesion, {});
            Mostrar(f);
            f.CargarFicha(1200001);
            Teclear(f, 1, "Luna Nueva");
            f.Guardar();
            p.cajas.Responder(true);
            BotonDe(f, "B_Borrar")->click();
            (void)p.cajas.Vistas();
        }
        QCOMPARE(p.Texto("SELECT Id_Vaca FROM T_Vacas"), std::string());
        VentanaHoy hoy(p.sesion);
        Hecho abierto;
        hoy.alAbrir = [&](const Hecho& h) { abierto = h; };
        Mostrar(hoy);
        auto* tabla = hoy.findChild<QTableWidget*>(u"GridHoy"_s);
        const auto linea = [&](int fila) { return tabla->item(fila, 1)->text(); };
        QVERIFY2(linea(0).startsWith(u"Vaca 1200001: eliminación"_s), qUtf8Printable(linea(0)));
        QVERIFY2(linea(0).contains(u"cubrición"_s), qUtf8Printable(linea(0)));
        QCOMPARE(linea(tabla->rowCount() - 1), u"Ganadero La Nora (12): alta"_s);
        QCOMPARE(linea(tabla->rowCount() - 4), u"Ganadero La Nora (12): cebo"_s);

        p.cajas.Responder(true);
        BotonDe(hoy, "B_Deshacer")->click();
        QVERIFY(p.Caja().contains(u"eliminación"_s));
        QCOMPARE(p.Texto("SELECT Nombre FROM T_Vacas") + p.Texto("SELECT Id_Cubricion FROM T_Cubriciones"),
                 "Luna Nueva5"s);
        QCOMPARE(linea(0), u"Vaca Luna Nueva (1200001): alta, mamitis, cubrición"_s);
        tabla->setCurrentCell(
            1, 0); // her change, with rows that another unit has touched since: told, nothing done
        QVERIFY2(linea(1).contains(u"modificación"_s), qUtf8Printable(linea(1)));
        p.sesion.conexion.Execute("UPDATE T_Vacas SET Crotal = 'X'");
        p.cajas.Responder(true);
        BotonDe(hoy, "B_Deshacer")->click();
        QVERIFY(p.cajas.Tomar().last().contains(u"han cambiado después"_s));
        QCOMPARE(p.Texto("SELECT Nombre FROM T_Vacas"), "Luna Nueva"s);
        tabla->setCurrentCell(0, 0);
        BotonDe(hoy, "B_Abrir")->click();
        QCOMPARE(abierto.id, 1200001.0);
        QVERIFY(abierto.ficha == FichaDe::Vaca);
    }
};

PRUEBA(PruebaHoy)
#include "PruebaHoy.moc"
