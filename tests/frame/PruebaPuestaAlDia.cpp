#include "Instalacion.h"
#include "frame/PuestaAlDia.h"
#include "frame/calendario/Reloj.h"

using namespace prueba;

class PruebaPuestaAlDia : public QObject {
    Q_OBJECT

    std::unique_ptr<Arrancada> m_i;
    Conexion& C() { return m_i->sesion.conexion; }

private Q_SLOTS:
    void init() {
        m_i = std::make_unique<Arrancada>();
        FijarHoy(Fecha::De(2026, 1, 7));
    }
    void cleanup() {
        m_i.reset();
        FijarHoy(std::nullopt);
    }

    void LasReparacionesDejanLaBaseAlDia() {
        Insertar(C(), "T_Servicios", "Id_Vaca=1, Año_Ref=2025, N_Parto=1, N_Servicio=1");
        Insertar(C(), "T_Servicios", "Id_Vaca=2, Año_Ref=2025, N_Servicio=1");
        Insertar(C(), "T_Partos", "Id_Parto=1, Id_Vaca=1, N_Parto=0");
        Insertar(C(), "T_Partos", "Id_Parto=2, Id_Vaca=1, N_Parto=1");
        Insertar(C(), "T_Cubriciones",
                 "Id_Cubricion=1, Id_Vaca=1, DescEnfReprod=0, DescEnfermedad=0, Txt_Otra_Causa=0");
        Insertar(C(), "T_Cubriciones",
                 "Id_Cubricion=2, Id_Vaca=2, EnfReprod=1, Enfermendad=1, DescCausaPpal=00, "
                 "DescEnfReprod=Metritis");
        for (int vez = 0; vez < 2; ++vez) { // the second run changes nothing
            Reparar(C());
            QCOMPARE(Contar(C(), "T_Servicios"), 1L);
            QCOMPARE(Contar(C(), "T_Partos"), 1L);
            QCOMPARE(Contar(C(), "T_Cubriciones", "EnfReprod = 0 AND Enfermendad = 0"), 1L);
            QCOMPARE(Contar(C(), "T_Cubriciones", "EnfReprod = 1 AND Enfermendad = 1"), 1L);
            QCOMPARE(Contar(C(), "T_Cubriciones",
                            "Id_Cubricion = 1 AND DescEnfReprod Is Null AND DescEnfermedad Is Null AND "
                            "Txt_Otra_Causa Is Null AND DescCausaPpal Is Null"),
                     1L);
            QCOMPARE(Leer(C(), "SELECT DescCausaPpal FROM T_Cubriciones WHERE Id_Cubricion = 2"), "00"s);
            QCOMPARE(Leer(C(), "SELECT DescEnfReprod FROM T_Cubriciones WHERE Id_Cubricion = 2"),
                     "Metritis"s);
        }
    }

    void UnaColumnaDeAntesCambiaDeNombreConSusValores() {
        C().Execute("ALTER TABLE T_Cubriciones ADD COLUMN Desconocida DOUBLE");
        Insertar(C(), "T_Cubriciones", "Id_Cubricion=1, Id_Vaca=1, Desconocida=1");
        Reparar(C());
        QCOMPARE(Leer(C(), "SELECT DemoraServIPR FROM T_Cubriciones"), "1"s);
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, Leer(C(), "SELECT Desconocida FROM T_Cubriciones"));
        C().Execute("UPDATE T_Cubriciones SET DemoraServIPR = 0 WHERE Id_Vaca = 1");
        Reparar(C()); // now steps 6 to 8 fail, and what was typed since stays
        QCOMPARE(Leer(C(), "SELECT DemoraServIPR FROM T_Cubriciones"), "0"s);
    }

    // Another program holds the file for as long as seven statements wait. When it lets go, the eighth would take the column away
    // whose values nobody has copied.
    void UnBloqueoNoDejaElCambioDeNombreAMedias() {
        C().Execute("ALTER TABLE T_Cubriciones ADD COLUMN Desconocida DOUBLE");
        Insertar(C(), "T_Cubriciones", "Id_Cubricion=1, Id_Vaca=1, Desconocida=1");
        struct Otro {
            sqlite3* base = nullptr;
            int esperas = 7;
        } otro;
        sqlite3_open(C().Fichero().c_str(), &otro.base);
        sqlite3_exec(otro.base, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
        sqlite3_busy_handler(
            C().Manejador(),
            [](void* p, int) {
                auto* o = static_cast<Otro*>(p);
                if (--o->esperas == 0)
                    sqlite3_exec(o->base, "ROLLBACK", nullptr, nullptr, nullptr);
                return 0;
            },
            &otro);
        try {
            Reparar(C());
            QFAIL("a lock was passed over");
        } catch (const ErrorAlmacen& e) {
            QCOMPARE(e.Codigo(), CodigoError::Bloqueada);
        }
        sqlite3_close(otro.base);
        Reparar(C());
        QCOMPARE(Leer(C(), "SELECT DemoraServIPR FROM T_Cubriciones"), "1"s);
    }

    // The disk fills up while the values are copied: the old column stays, with them, and the new one is not there.
    void UnDiscoLlenoNoDejaElCambioDeNombreAMedias() {
        C().Execute("ALTER TABLE T_Cubriciones DROP COLUMN DemoraServIPR");
        C().Execute("ALTER TABLE T_Cubriciones ADD COLUMN Desconocida DOUBLE");
        EnGrupo(C(), [&] {
            for (int i = 1; i <= 2000; ++i)
                Insertar(C(), "T_Cubriciones", "Id_Cubricion, Id_Vaca=1, Desconocida", 1.0 * i, i + 0.25);
        });
        Reparar(C()); // so that the other repairs find nothing to write
        C().Execute("ALTER TABLE T_Cubriciones ADD COLUMN Desconocida DOUBLE");
        C().Execute("UPDATE T_Cubriciones SET Desconocida = DemoraServIPR");
        C().Execute("ALTER TABLE T_Cubriciones DROP COLUMN DemoraServIPR");
        const auto tope = [&](const char* paginas) {
            sqlite3_exec(C().Manejador(), ("PRAGMA max_page_count=" + std::string(paginas)).c_str(), nullptr,
                         nullptr, nullptr);
        };
        sqlite3_exec(C().Manejador(), "VACUUM", nullptr, nullptr, nullptr);
        tope("1"); // no page more than there are
        try {
            Reparar(C());
            QFAIL("a full disk was passed over");
        } catch (const ErrorAlmacen& e) {
            QCOMPARE(e.Codigo(), CodigoError::DiscoOFichero);
        }
        QVERIFY(C().Esquema().Buscar("T_Cubriciones")->Buscar("DemoraServIPR") < 0);
        QCOMPARE(Contar(C(), "T_Cubriciones", "Desconocida > 0"), 2000L);
        tope("1000000");
        Reparar(C());
        QCOMPARE(Contar(C(), "T_Cubriciones", "DemoraServIPR > 0"), 2000L);
        QVERIFY(C().Esquema().Buscar("T_Cubriciones")->Buscar("Desconocida") < 0);
    }

    void LasFilasSeAbrenUnaVezParaLasQueEstan() {
        QCOMPARE(InicializarAñosNaturales(C(), [](int, int) { QFAIL("no row"); }), 0L);
        Insertar(C(), "T_Vacas", "Id_Vaca=12001, Id_Ganadero=12");
        Insertar(C(), "T_Vacas", "Id_Vaca=12002, Id_Ganadero=12, FechaBaja=31/12/2025");
        Insertar(C(), "T_Vacas", "Id_Vaca=57001, Id_Ganadero=57");
        Insertar(C(), "T_IBRBVD", "Id_Vaca=12001, Id_Ganadero=12, AñoNat=2026, IBRsp=Positiva");
        Insertar(C(), "T_IBRBVD", "Id_Vaca=57001, Id_Ganadero=57, AñoNat=2025");
        QList<QPair<int, int>> avances;
        QCOMPARE(InicializarAñosNaturales(C(), [&](int h, int t) { avances << qMakePair(h, t); }), 7L);
        QCOMPARE(avances, (QList<QPair<int, int>>{{0, 2}, {1, 2}}));
        for (const char* tabla : {"T_CCNATVACAS", "T_IBRBVD", "T_NEOSPIROSIS", "T_MAMIVACU"}) {
            QCOMPARE(Contar(C(), tabla, "AñoNat = 2026"), 2L);
            QCOMPARE(Contar(C(), tabla, "Id_Vaca = 57001 AND Id_Ganadero = 57 AND AñoNat = 2026"), 1L);
        }
        QCOMPARE(Leer(C(), "SELECT IBRsp FROM T_IBRBVD WHERE Id_Vaca = 12001"), "Positiva"s);
        QCOMPARE(InicializarAñosNaturales(C()), 0L);
        FijarHoy(Fecha::De(2027, 1, 1));
        QCOMPARE(InicializarAñosNaturales(C()), 8L);
    }

    void UnFalloAMediasConservaLoHecho() {
        for (int vaca = 1; vaca <= 3; ++vaca)
            Insertar(C(), "T_Vacas", "Id_Vaca, Id_Ganadero=12", 12000.0 + vaca);
        const auto romper = [](int hechas, int) {
            if (hechas == 2)
                throw ErrorAlmacen(CodigoError::DiscoOFichero, "disco lleno");
        };
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, InicializarAñosNaturales(C(), romper));
        Conexion otra = m_i->Abrir("BD_PradalC.mdb");
        QCOMPARE(Contar(otra, "T_MAMIVACU"), 2L);
    }
};

PRUEBA(PruebaPuestaAlDia)
#include "PruebaPuestaAlDia.moc"
