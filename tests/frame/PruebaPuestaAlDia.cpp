#include "prueba.h"

#include "Instalacion.h"
#include "frame/PuestaAlDia.h"
#include "frame/calendario/Reloj.h"

using namespace pastorix;
using prueba::Contar;
using prueba::Insertar;
using prueba::Instalacion;
using prueba::Leer;
using prueba::Texto;

class PruebaPuestaAlDia : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<Instalacion> m_i;
    Conexion& C() { return m_i->sesion.conexion; }

private Q_SLOTS:
    void init() {
        m_i = std::make_unique<Instalacion>();
        QVERIFY(Arrancar(m_i->sesion));
        FijarHoy(Fecha::De(2026, 1, 7));
    }
    void cleanup() {
        m_i.reset();
        FijarHoy(std::nullopt);
    }

    void LasReparacionesDejanLaBaseAlDia() {
        Insertar(C(), "T_Servicios",
                 {{"Id_Vaca", 1.0}, {"Año_Ref", 2025.0}, {"N_Parto", 1.0}, {"N_Servicio", 1.0}});
        Insertar(C(), "T_Servicios", {{"Id_Vaca", 2.0}, {"Año_Ref", 2025.0}, {"N_Servicio", 1.0}});
        Insertar(C(), "T_Partos", {{"Id_Parto", 1.0}, {"Id_Vaca", 1.0}, {"N_Parto", 0.0}});
        Insertar(C(), "T_Partos", {{"Id_Parto", 2.0}, {"Id_Vaca", 1.0}, {"N_Parto", 1.0}});
        Insertar(C(), "T_Cubriciones",
                 {{"Id_Cubricion", 1.0},
                  {"Id_Vaca", 1.0},
                  {"DescEnfReprod", Texto("0")},
                  {"DescEnfermedad", Texto("0")},
                  {"Txt_Otra_Causa", Texto("0")}});
        Insertar(C(), "T_Cubriciones",
                 {{"Id_Cubricion", 2.0},
                  {"Id_Vaca", 2.0},
                  {"EnfReprod", 1.0},
                  {"Enfermendad", 1.0},
                  {"DescCausaPpal", Texto("00")},
                  {"DescEnfReprod", Texto("Metritis")}});
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
            QCOMPARE(Leer(C(), "SELECT DescCausaPpal FROM T_Cubriciones WHERE Id_Cubricion = 2"),
                     std::string("00"));
            QCOMPARE(Leer(C(), "SELECT DescEnfReprod FROM T_Cubriciones WHERE Id_Cubricion = 2"),
                     std::string("Metritis"));
        }
    }

    void UnaColumnaDeAntesCambiaDeNombreConSusValores() {
        C().Execute("ALTER TABLE T_Cubriciones ADD COLUMN Desconocida DOUBLE");
        Insertar(C(), "T_Cubriciones", {{"Id_Cubricion", 1.0}, {"Id_Vaca", 1.0}, {"Desconocida", 1.0}});
        Reparar(C());
        QCOMPARE(Leer(C(), "SELECT DemoraServIPR FROM T_Cubriciones"), std::string("1"));
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, Leer(C(), "SELECT Desconocida FROM T_Cubriciones"));
        C().Execute("UPDATE T_Cubriciones SET DemoraServIPR = 0 WHERE Id_Vaca = 1");
        Reparar(C()); // now steps 6 to 8 fail, and what was typed since stays
        QCOMPARE(Leer(C(), "SELECT DemoraServIPR FROM T_Cubriciones"), std::string("0"));
    }

    void LasFilasSeAbrenUnaVezParaLasQueEstan() {
        Insertar(C(), "T_Vacas", {{"Id_Vaca", 12001.0}, {"Id_Ganadero", 12.0}});
        Insertar(C(), "T_Vacas",
                 {{"Id_Vaca", 12002.0}, {"Id_Ganadero", 12.0}, {"FechaBaja", *Fecha::De(2025, 12, 31)}});
        Insertar(C(), "T_Vacas", {{"Id_Vaca", 57001.0}, {"Id_Ganadero", 57.0}});
        Insertar(
            C(), "T_IBRBVD",
            {{"Id_Vaca", 12001.0}, {"Id_Ganadero", 12.0}, {"AñoNat", 2026.0}, {"IBRsp", Texto("Positiva")}});
        Insertar(C(), "T_IBRBVD", {{"Id_Vaca", 57001.0}, {"Id_Ganadero", 57.0}, {"AñoNat", 2025.0}});
        QList<QPair<int, int>> avances;
        QCOMPARE(InicializarAñosNaturales(C(), [&](int h, int t) { avances << qMakePair(h, t); }), 7L);
        QCOMPARE(avances, (QList<QPair<int, int>>{{0, 2}, {1, 2}}));
        for (const char* tabla : {"T_CCNATVACAS", "T_IBRBVD", "T_NEOSPIROSIS", "T_MAMIVACU"}) {
            QCOMPARE(Contar(C(), tabla, "AñoNat = 2026"), 2L);
            QCOMPARE(Contar(C(), tabla, "Id_Vaca = 57001 AND Id_Ganadero = 57 AND AñoNat = 2026"), 1L);
        }
        QCOMPARE(Leer(C(), "SELECT IBRsp FROM T_IBRBVD WHERE Id_Vaca = 12001"), std::string("Positiva"));
        QCOMPARE(InicializarAñosNaturales(C()), 0L);
        FijarHoy(Fecha::De(2027, 1, 1));
        QCOMPARE(InicializarAñosNaturales(C()), 8L);
    }

    void SinVacasNoPasaNada() {
        QCOMPARE(InicializarAñosNaturales(C(), [](int, int) { QFAIL("no row"); }), 0L);
    }

    void UnFalloAMediasConservaLoHecho() {
        for (int vaca = 1; vaca <= 3; ++vaca)
            Insertar(C(), "T_Vacas", {{"Id_Vaca", 12000.0 + vaca}, {"Id_Ganadero", 12.0}});
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
