#include "BaseDePrueba.h"
#include "DiscoLleno.h"

#include "store/Diario.h"

using namespace prueba;

// What a session changed, unit by unit, and back.
class PruebaDiario : public QObject {
    Q_OBJECT

    struct Libro : Base {
        Diario diario{c, [] { return F("22/11/26"); }};

        Libro() {
            Poner("T_Vacas", "Id_Vaca=1, Nombre=Luna, FechaNac=1/2/2190, MG_PN=1.25");
            Poner("T_Vacas", "Id_Vaca=2");
        }
        QString Vacas() {
            return Q(Texto("SELECT Id_Vaca, Nombre, FechaNac, MG_PN FROM T_Vacas ORDER BY Id_Vaca"));
        }
        std::size_t Ultima() const { return diario.Acciones().size() - 1; }
    };

private Q_SLOTS:
    void IdaYVuelta() {
        Libro b;
        QCOMPARE(b.diario.Acciones().size(), 2U);
        const auto antes = b.Vacas();
        EnGrupo(b.c, [&] {
            b.c.Execute("UPDATE T_Vacas SET Nombre = 'Sol', MG_PN = Null WHERE Id_Vaca = 1");
            b.c.Execute("UPDATE T_Vacas SET Nombre = 'Sola' WHERE Id_Vaca = 1");
            b.Poner("T_Vacas", "Id_Vaca=3, Nombre=nueva");
            b.c.Execute("DELETE FROM T_Vacas WHERE Id_Vaca = 2");
            b.c.Execute("DELETE FROM X_Temp"); // scratch
            b.Poner("X_Temp", "C1=x");
        });
        const auto despues = b.Vacas();
        const auto& accion = b.diario.Acciones().back();
        QCOMPARE(accion.filas.size(), 3U); // each row once
        QCOMPARE(b.diario.Texto(accion.filas[0], "Nombre"), "Sola"s);
        QCOMPARE(b.diario.Texto(accion.filas[2], "Id_Vaca"), "2"s); // as it was
        b.diario.Deshacer(b.Ultima());
        QCOMPARE(b.Vacas(), antes);
        b.diario.Deshacer(b.Ultima()); // the undoing is a unit like any other
        QCOMPARE(b.Vacas(), despues);
    }

    // Rows that somebody changed since, or put in the place of a removed one, are left alone, all of the unit's.
    void CambiadoDespues() {
        Libro b;
        const auto antes = b.Vacas();
        EnGrupo(b.c, [&] {
            b.c.Execute("UPDATE T_Vacas SET Nombre = 'Sol' WHERE Id_Vaca = 1");
            b.c.Execute("DELETE FROM T_Vacas WHERE Id_Vaca = 2");
        });
        const auto lugar = b.Ultima();
        b.c.Execute("UPDATE T_Vacas SET MG_PN = 7 WHERE Id_Vaca = 1");
        const auto ahora = b.Vacas();
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, b.diario.Deshacer(lugar));
        QCOMPARE(b.Vacas(), ahora);
        b.c.Execute("UPDATE T_Vacas SET MG_PN = 1.25 WHERE Id_Vaca = 1");
        b.diario.Deshacer(lugar); // a refusal takes nothing off the list
        QCOMPARE(b.Vacas(), antes);
    }

    // What is undone before its commit was never done.
    void LoQueNoSeGuardo() {
        Libro b;
        const auto acciones = b.diario.Acciones().size();
        EnGrupo(b.c, [&] {
            try {
                TodoONada(b.c, [&] {
                    b.c.Execute("UPDATE T_Vacas SET Nombre = 'Sol'");
                    throw std::runtime_error("no");
                });
            } catch (const std::runtime_error&) {
            }
            TodoONada(b.c, [&] { b.c.Execute("UPDATE T_Vacas SET Nombre = 'Sol' WHERE Id_Vaca = 1"); });
        });
        QCOMPARE(b.diario.Acciones().size(), acciones + 1);
        QCOMPARE(b.diario.Acciones().back().filas.size(), 1U);
        {
            const DiscoLleno lleno(static_cast<rlim_t>(QFile(Q(b.fichero)).size()));
            QVERIFY_THROWS_EXCEPTION(
                ErrorAlmacen, EnGrupo(b.c, [&] { // fits into memory, and fails as it goes to the disk
                    for (int i = 10; i < 40; ++i)
                        b.Poner("T_Vacas", "Id_Vaca, Patologia", double(i), std::string(2000, 'x'));
                }));
        }
        QCOMPARE(b.diario.Acciones().size(), acciones + 1);
        b.c.Reabrir();
        QVERIFY(b.diario.Acciones().empty());
        b.c.Execute("DELETE FROM T_Vacas WHERE Id_Vaca = 1");
        b.diario.Deshacer(0);
        QVERIFY(b.Vacas().startsWith(u"1|Sol|01/02/90"_s));
    }
};

PRUEBA(PruebaDiario)
#include "PruebaDiario.moc"
