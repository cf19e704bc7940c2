#include "BaseDePrueba.h"
#include "prueba.h"

#include "reproduction/datos/EnlaceCebo.h"

using namespace pastorix;
using namespace prueba;

namespace {

TerneroDeParto Ternero() {
    return {{7, 0, 2026, 3, {}, false}, 1, 12, "Macho", F("1/2/26"), F("1/8/26"), "S1", ""};
}
const char* const kCebos =
    "SELECT Id_Ganadero, Id_Cebo, Origen, Sexo, FechaNac, FechaCebo, Saneamiento, KgCanal FROM T_Cebo "
    "ORDER BY Id_Ganadero, Id_Cebo";

struct BaseConParto : Base {
    BaseConParto() {
        for (const double vaca : {7.0, 9.0})
            Poner("T_Partos", {{"Id_Parto", 1.0}, {"Id_Vaca", vaca}, {"Año_Ref", 2026}, {"N_Parto", 3}});
        Poner("T_Cebo", {{"Id_Ganadero", 12.0}, {"Id_Cebo", 4.0}});
        Poner("T_Cebo", {{"Id_Ganadero", 13.0}, {"Id_Cebo", 9.0}});
    }
    std::string Enlaces() { return Texto("SELECT Id_Cebo FROM T_Partos ORDER BY Id_Vaca"); }
};

} // namespace

// The fattening record of a calf, which comes, follows and goes with it.
class PruebaCebo : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void VieneYVa() {
        BaseConParto b;
        auto t = Ternero();
        QCOMPARE(CrearCebo(b.c, t), 5.0); // numbered within the farmer's
        QCOMPARE(CrearCebo(b.c, t), 5.0); // it has one
        QCOMPARE(b.Enlaces(), "5/-"s);
        b.c.Execute("UPDATE T_Cebo SET KgCanal = 250 WHERE Id_Cebo = 5");
        const auto conTodo = b.Texto(kCebos);
        QCOMPARE(conTodo, "12|4|-|-|-|-|-|-/12|5|Propio|Macho|01/02/26|01/08/26|S1|250/13|9|-|-|-|-|-|-"s);
        const auto retirado = QuitarCebo(b.c, t);
        QCOMPARE(b.Enlaces(), "-/-"s);
        QCOMPARE(CrearCebo(b.c, t, retirado), 5.0); // whole, its number too
        QCOMPARE(b.Texto(kCebos), conTodo);
        // unless the number went to another animal meanwhile
        QuitarCebo(b.c, t);
        b.Poner("T_Cebo", {{"Id_Ganadero", 12.0}, {"Id_Cebo", 5.0}});
        QCOMPARE(CrearCebo(b.c, t, retirado), 6.0);
        QCOMPARE(b.Texto("SELECT KgCanal FROM T_Cebo WHERE Id_Cebo = 6"), "250"s);
        t.parto.nParto = 0;
        QCOMPARE(CrearCebo(b.c, t), 0.0);
    }

    void Sigue() {
        BaseConParto b;
        auto t = Ternero();
        CrearCebo(b.c, t);
        b.c.Execute("UPDATE T_Cebo SET Origen = 'Comprado', Sexo = 'macho' WHERE Id_Cebo = 5");
        QVERIFY(ActualizarCebo(b.c, t).empty()); // an empty origin says nothing, and case is no change
        t.fechaDestete.reset();
        t.origen = "Propio";
        QCOMPARE(ActualizarCebo(b.c, t, false), (std::vector<std::string>{"Fecha de entrada", "Origen"}));
        QCOMPARE(b.Texto("SELECT FechaCebo, Origen FROM T_Cebo WHERE Id_Cebo = 5"), "01/08/26|Comprado"s);
        ActualizarCebo(b.c, t);
        QCOMPARE(b.Texto("SELECT FechaCebo, Origen, Sexo FROM T_Cebo WHERE Id_Cebo = 5"), "-|Propio|macho"s);
        b.c.Execute("UPDATE T_Cebo SET Cambiado = -1 WHERE Id_Cebo = 5");
        t.regSaneam = "S2";
        QVERIFY(ActualizarCebo(b.c, t).empty());
    }

    void OtroSiglo() {
        BaseConParto b;
        CrearCebo(b.c, Ternero());
        Recordset rs(b.c, "SELECT FechaNac FROM T_Cebo WHERE Id_Cebo = 5");
        rs["FechaNac"] = Fecha::De(1926, 2, 1);
        rs.Update();
        QCOMPARE(ActualizarCebo(b.c, Ternero()), std::vector<std::string>{"Fecha de nacimiento"});
    }
};

PRUEBA(PruebaCebo)
#include "PruebaCebo.moc"
