#include "BaseDePrueba.h"

#include "registers/datos/Borrados.h"

using namespace prueba;

// The deletion cascades: what goes, what stays, and what a failure half way leaves.
class PruebaBorrados : public QObject {
    Q_OBJECT

    static void Sembrar(Base& b) {
        for (const double g : {12.0, 57.0}) {
            b.Poner("T_Ganaderos", "Id_Ganadero, Id_Direccion=3", g);
            b.Poner("T_Direcciones", "Id_Direccion=3, Id_GV", g);
            for (const char* t : {"T_AlimentacionInvernal", "T_AbonadoSuperficie", "T_IPR",
                                  "T_PastosComunales", "T_Vacunaciones", "T_SistemaProduccion"})
                b.Poner(t, "Id_Ganadero, AñoNatural=2026", g);
            b.Poner("T_FechasVacu", "Id_Ganadero, Ln=1", g);
            b.Poner("T_Cebo", "Id_Cebo=4, Id_Ganadero", g);
            b.Poner("T_Cebo", "Id_Cebo=5, Id_Ganadero", g);
            b.Poner("T_Sementales", "Id_Semental, Id_Ganadero", g * 1000, g);
            b.Poner("T_PatologiaSem", "Id_Animal, ANatural=2026", g * 1000);
            b.Poner("T_PatologiaSemR", "Id_Animal, ANatural=2026", g * 1000);
            for (const double v : {g * 1000 + 1, g * 1000 + 2}) {
                b.Poner("T_Vacas", "Id_Vaca, Id_Ganadero", v, g);
                b.Poner("T_Mamitis", "Id_Vaca, Id_Teto=1", v);
                b.Poner("T_Cubriciones", "Id_Vaca", v);
                b.Poner("T_Servicios", "Id_Vaca", v);
                b.Poner("T_Partos", "Id_Parto, Id_Vaca, Id_Cebo=4", v, v);
                for (const char* t : {"T_CCVacas", "T_CCNATVACAS", "T_IBRBVD", "T_R_IBRBVD", "T_NEOSPIROSIS",
                                      "T_R_NEOSPIROSIS", "T_MAMIVACU"})
                    b.Poner(t, "Id_Ganadero, Id_Vaca", g, v);
            }
        }
    }
    static std::string Cuentas(Base& b) {
        std::string t;
        for (const auto& tabla : b.c.Esquema().Tablas())
            if (tabla.nombre.starts_with("T_") && tabla.nombre != "T_Tetos")
                if (const auto n = Recordset(b.c, "SELECT * FROM " + tabla.nombre).Contar(); n > 0)
                    t += tabla.nombre.substr(2) + " " + std::to_string(n) + ", ";
        return t;
    }

private Q_SLOTS:
    void Vaca() {
        Base b;
        Sembrar(b);
        EnGrupo(b.c, [&] { BorrarVaca(b.c, 12001, 12); });
        QUEDA(b, "Id_Vaca FROM T_Vacas ORDER BY Id_Vaca", "12002/57001/57002");
        for (const char* t : {"T_Mamitis", "T_Cubriciones", "T_Servicios", "T_Partos", "T_CCVacas",
                              "T_CCNATVACAS", "T_IBRBVD", "T_R_IBRBVD", "T_NEOSPIROSIS", "T_R_NEOSPIROSIS"})
            QCOMPARE(b.Texto("SELECT Count(Id_Vaca) AS N FROM "s + t), "3"s);
        QUEDA(b, "Count(Id_Vaca) AS N FROM T_MAMIVACU", "4"); // stays
        // the calf's fattening record goes under its farmer alone
        QUEDA(b, "Id_Ganadero, Id_Cebo FROM T_Cebo ORDER BY Id_Ganadero, Id_Cebo", "12|5/57|4/57|5");
    }

    void Ganadero() {
        Base b;
        Sembrar(b);
        EnGrupo(b.c, [&] { BorrarGanadero(b.c, 12); });
        QCOMPARE(Cuentas(b),
                 "Ganaderos 1, Direcciones 1, IPR 1, AlimentacionInvernal 1, AbonadoSuperficie 1, "
                 "PastosComunales 1, SistemaProduccion 1, Vacunaciones 1, FechasVacu 2, Vacas 2, Mamitis 2, "
                 "MAMIVACU 4, CCVacas 2, CCNATVACAS 2, IBRBVD 2, R_IBRBVD 2, NEOSPIROSIS 2, R_NEOSPIROSIS 2, "
                 "Sementales 1, PatologiaSem 1, PatologiaSemR 2, Cubriciones 2, Servicios 2, Partos 2, Cebo "
                 "2, "s);
    }

    void FalloAMedias() {
        Base b;
        Sembrar(b);
        b.c.Execute(
            "ALTER TABLE T_Sementales DROP COLUMN Obsbaja"); // any change: prepared statements start afresh
        sqlite3_exec(b.c.Manejador(),
                     "CREATE TEMP TRIGGER no BEFORE DELETE ON T_Partos BEGIN SELECT RAISE(ABORT, 'no'); END",
                     nullptr, nullptr, nullptr);
        int antes = 0;
        sqlite3_db_config(b.c.Manejador(), SQLITE_DBCONFIG_ENABLE_TRIGGER, 1, &antes);
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, EnGrupo(b.c, [&] { BorrarVaca(b.c, 12001, 12); }));
        // what was done before stays done, and durably; what comes after is untouched
        QCOMPARE(sqlite3_get_autocommit(b.c.Manejador()), 1);
        QUEDA(b, "Count(Id_Vaca) AS N FROM T_Vacas", "3");
        QUEDA(b, "Count(Id_Vaca) AS N FROM T_Partos", "4");
    }
};

PRUEBA(PruebaBorrados)
#include "PruebaBorrados.moc"
