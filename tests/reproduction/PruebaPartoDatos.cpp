#include "BaseDePrueba.h"
#include "prueba.h"

#include "reproduction/datos/Parto.h"

using namespace pastorix;
using namespace prueba;

namespace {

const CicloDeVaca kCiclo{7, 0, 2026, 3, {}, false};
const char* const kFilas =
    "SELECT Id_Parto, Id_Vaca, Fecha_Parto, Gemelar, Semental FROM T_Partos ORDER BY Id_Vaca, Id_Parto";

} // namespace

// Calvings as rows. In a central file numbers of calvings repeat between cows: nothing that is done to one may reach another.
class PruebaPartoDatos : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Alta() {
        Base b;
        QVERIFY(AltaParto(b.c, kCiclo, F("1/2/26"), "Ares-C"));
        QVERIFY(!AltaParto(b.c, kCiclo, F("9/9/26"), "Otro"));
        QVERIFY(AltaParto(b.c, {8, 0, 2026, 0, {}, false}, {}, "Ares-C")); // the sire comes with a date alone
        QCOMPARE(b.Texto(kFilas), "1|7|01/02/26|-|Ares-C/2|8|-|-|-"s);
    }

    void Mellizos() {
        Base b;
        AltaParto(b.c, kCiclo, F("1/2/26"), "");
        const double segundo = CrearMellizo(b.c, kCiclo, 1, F("1/2/26"), "2 Machos");
        QCOMPARE(FilasDeParto(b.c, kCiclo), (std::vector<double>{1, segundo}));
        // another cow's calving of the same numbers, and fattening records of one number: of another farm, of another calf
        for (const double id : {1.0, segundo})
            b.Poner("T_Partos", {{"Id_Parto", id},
                                 {"Id_Vaca", 9.0},
                                 {"Año_Ref", 2026},
                                 {"N_Parto", 3},
                                 {"Gemelar", "2 Hembras"}});
        b.Poner("T_Cebo", {{"Id_Ganadero", 12.0}, {"Id_Cebo", 4.0}, {"Id_Vaca", 7.0}});
        b.Poner("T_Cebo", {{"Id_Ganadero", 13.0}, {"Id_Cebo", 4.0}, {"Id_Vaca", 7.0}});
        b.Poner("T_Cebo", {{"Id_Ganadero", 12.0}, {"Id_Cebo", 5.0}, {"Id_Vaca", 9.0}});
        b.c.Execute("UPDATE T_Partos SET Id_Cebo = 4 WHERE Id_Vaca = 7");
        QuitarMellizo(b.c, kCiclo, 12, 1, segundo);
        QCOMPARE(b.Texto(kFilas), "1|7|01/02/26|No|-/1|9|-|2 Hembras|-/2|9|-|2 Hembras|-"s);
        QCOMPARE(b.Texto("SELECT Id_Ganadero, Id_Cebo FROM T_Cebo ORDER BY Id_Cebo, Id_Ganadero"),
                 "13|4/12|5"s);
        b.c.Execute("DELETE FROM T_Partos WHERE Id_Vaca = 7");
        QVERIFY_EXCEPTION_THROWN(CrearMellizo(b.c, kCiclo, 1, {}, "2 Machos"), ErrorAlmacen);
    }
};

PRUEBA(PruebaPartoDatos)
#include "PruebaPartoDatos.moc"
