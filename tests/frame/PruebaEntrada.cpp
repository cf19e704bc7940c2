#include "prueba.h"

#include "Cajas.h"
#include "Instalacion.h"
#include "frame/Ajustes.h"

#include <QSet>

using namespace pastorix;
using prueba::Cajas;
using prueba::Instalacion;

namespace {

// Keeps what an entry does to the main window.
class Anotador : public InterfazDeEntrada {
public:
    void FijarTitulo(const QString& t) override { titulo = t; }
    void FijarPanel(const QString& t) override { paneles << t; }
    void Activar(const QString& orden, bool si) override { activas[orden] = si; }
    void ActivarBoton(int boton, bool si) override { activas[QString::number(boton)] = si; }
    bool PreguntarAñosNaturales() override {
        ++preguntas;
        return contestar;
    }
    FuncionAvance EmpezarAvance(const QString& texto) override {
        avances << texto;
        return {};
    }

    QString titulo;
    QStringList paneles, avances;
    QMap<QString, bool> activas;
    int preguntas = 0;
    bool contestar = false;
};

} // namespace

class PruebaEntrada : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Who gets in, as whom, and with which panel text; both entries alike.
    void Usuarios_data() {
        QTest::addColumn<QString>("usuario");
        QTest::addColumn<QString>("clave");
        QTest::addColumn<QString>("modo"); // empty: nobody
        QTest::addColumn<QString>("sesionDe");
        QTest::addColumn<QString>("panel");
        const QString vet = "VETERINARIO";
        QTest::newRow("anonymous") << ""
                                   << "" << vet << ""
                                   << " Modo: VETERINARIO";
        QTest::newRow("the word") << "VETERINARIO"
                                  << "" << vet << "VETERINARIO"
                                  << " Modo: VETERINARIO";
        QTest::newRow("the word, lower case") << "veterinario"
                                              << "" << vet << "veterinario"
                                              << " Modo: veterinario";
        QTest::newRow("named") << "elopez"
                               << "" << vet << "elopez"
                               << " Modo: elopez";
        QTest::newRow("named, other case") << "ELopez"
                                           << "" << vet << "ELopez"
                                           << " Modo: ELopez";
        QTest::newRow("central") << "CENTRAL"
                                 << "oficina"
                                 << "CENTRAL"
                                 << "CENTRAL"
                                 << " Modo: BASE DE DATOS CENTRAL";
        QTest::newRow("unknown") << "nadie"
                                 << ""
                                 << ""
                                 << ""
                                 << "";
        QTest::newRow("veterinarian with a password") << "elopez"
                                                      << "x"
                                                      << ""
                                                      << ""
                                                      << "";
        QTest::newRow("password alone") << ""
                                        << "oficina"
                                        << ""
                                        << ""
                                        << "";
        QTest::newRow("wrong password") << "CENTRAL"
                                        << "oficin"
                                        << ""
                                        << ""
                                        << "";
        QTest::newRow("level that is never read") << "AUXILIAR"
                                                  << "otra"
                                                  << ""
                                                  << ""
                                                  << "";
        QTest::newRow("the word with a password") << "VETERINARIO"
                                                  << "x"
                                                  << ""
                                                  << ""
                                                  << "";
        QTest::newRow("apostrophe in the user") << "O'Donnell"
                                                << ""
                                                << ""
                                                << ""
                                                << "";
        QTest::newRow("apostrophe in the password") << "CENTRAL"
                                                    << "o'x"
                                                    << ""
                                                    << ""
                                                    << "";
        QTest::newRow("statement in the user") << "x' OR '1'='1"
                                               << ""
                                               << ""
                                               << ""
                                               << "";
        QTest::newRow("statement in the password") << "CENTRAL"
                                                   << "' OR ''='"
                                                   << ""
                                                   << ""
                                                   << "";
    }
    void Usuarios() {
        QFETCH(QString, usuario);
        QFETCH(QString, clave);
        QFETCH(QString, modo);
        QFETCH(QString, sesionDe);
        QFETCH(QString, panel);
        Instalacion i;
        QVERIFY(Arrancar(i.sesion));
        i.PonerUsuarios();
        for (const int entrada : {0, 1}) {
            Cajas cajas;
            Anotador interfaz;
            QCOMPARE(EntrarEnBase(i.sesion, entrada, usuario, clave, interfaz), !modo.isEmpty());
            QCOMPARE(QString::fromStdString(i.sesion.ModoSesion), modo);
            const auto vistas = cajas.Vistas();
            if (modo.isEmpty()) {
                QCOMPARE(vistas.size(), 1);
                QCOMPARE(static_cast<int>(vistas[0].tipo), 64);
                QCOMPARE(vistas[0].titulo + "|" + vistas[0].texto, QString("Adios|Usuario No Autorizado"));
                QCOMPARE(interfaz.preguntas, 0);
                continue;
            }
            QVERIFY(vistas.isEmpty());
            QCOMPARE(QString::fromStdString(i.sesion.UsuarioSesion), sesionDe);
            QCOMPARE(interfaz.paneles.last(), panel);
            QCOMPARE(interfaz.titulo, QString("PASTORIX.    (3.09)"));
            QCOMPARE(interfaz.preguntas, 1);
            if (modo == "VETERINARIO")
                QCOMPARE(interfaz.activas.value("Mnu_Veterinarios"), usuario.isEmpty());
        }
    }

    void LaEntradaEligeLaBase() {
        Instalacion i;
        QVERIFY(Arrancar(i.sesion));
        i.PonerUsuarios();
        InterfazDeEntrada nada;
        const auto fichero = [&] { return QString::fromStdString(i.sesion.conexion.Fichero()); };
        QVERIFY(EntrarEnBase(i.sesion, 1, "elopez", {}, nada));
        QCOMPARE(fichero(), i.sesion.rutas.BasePersonal());
        QCOMPARE(int(i.sesion.BaseElegida), 1);
        QCOMPARE(QString::fromStdString(i.sesion.origenes.Buscar("OD_PSTX")->fichero),
                 i.sesion.rutas.BasePrincipal());
        QVERIFY(QDir(i.En("Temp")).exists());
        QVERIFY(QDir(i.En("BackUp")).exists());
    }

    void TrasUnIntentoPersonalLaOtraEntradaEsLaPrincipal() {
        Instalacion i;
        Cajas cajas;
        QVERIFY(Arrancar(i.sesion));
        i.PonerUsuarios();
        InterfazDeEntrada nada;
        QVERIFY(!EntrarEnBase(i.sesion, 1, "nadie", {}, nada));
        QCOMPARE(QString::fromStdString(i.sesion.conexion.Fichero()), i.sesion.rutas.BasePersonal());
        QVERIFY(EntrarEnBase(i.sesion, 0, "elopez", {}, nada));
        QCOMPARE(QString::fromStdString(i.sesion.conexion.Fichero()), i.sesion.rutas.BasePrincipal());
        QCOMPARE(int(i.sesion.BaseElegida), 0);
        QCOMPARE(cajas.Tomar().size(), 1);
    }

    void UnaBasePersonalQueNoSeAbreSeDiceYNoHaySesion() {
        Instalacion i;
        Cajas cajas;
        QVERIFY(Arrancar(i.sesion));
        prueba::Escribir(i.sesion.rutas.BasePersonal(),
                         "esto no es una base de datos, aunque ocupe su lugar");
        Anotador interfaz;
        QVERIFY(!EntrarEnBase(i.sesion, 1, {}, {}, interfaz));
        const auto vistas = cajas.Vistas();
        QCOMPARE(vistas.size(), 1);
        QCOMPARE(vistas[0].titulo, QString(" Error de acceso"));
        QVERIFY(!vistas[0].detalle.isEmpty());
        QVERIFY(i.sesion.ModoSesion.empty());
        QCOMPARE(interfaz.preguntas, 0);
        QVERIFY(EntrarEnBase(i.sesion, 0, {}, {}, interfaz)); // the other entry still works
    }

    void LaCarpetaBackUpDeOtraCajaSirve() {
        Instalacion i;
        QVERIFY(QDir().mkpath(i.En("Backup")));
        QVERIFY(Arrancar(i.sesion));
        InterfazDeEntrada nada;
        QVERIFY(EntrarEnBase(i.sesion, 0, {}, {}, nada));
        QVERIFY(!i.Contenido().contains("BackUp"));
    }

    void CadaEntradaTieneSuMarca() {
        SaveSetting("Version_0", {});
        SaveSetting("Version_1", "308");
        Instalacion i;
        QVERIFY(Arrancar(i.sesion));
        InterfazDeEntrada nada;
        QVERIFY(EntrarEnBase(i.sesion, 1, {}, {}, nada));
        QCOMPARE(GetSetting("Version_0", "nada"), QString());
        QCOMPARE(GetSetting("Version_1"), QString("309"));
        SaveSetting("Version_1", "400"); // of a later release: left alone
        QVERIFY(EntrarEnBase(i.sesion, 1, {}, {}, nada));
        QCOMPARE(GetSetting("Version_1"), QString("400"));
    }

    void LaPreguntaAnualAbreSusFilas() {
        Instalacion i;
        QVERIFY(Arrancar(i.sesion));
        {
            Conexion c = i.Abrir("BD_PradalP.mdb");
            prueba::Insertar(c, "T_Vacas", {{"Id_Vaca", 12001.0}, {"Id_Ganadero", 12.0}});
        }
        Anotador interfaz;
        QVERIFY(EntrarEnBase(i.sesion, 1, {}, {}, interfaz));
        QCOMPARE(prueba::Contar(i.sesion.conexion, "T_IBRBVD"), 0L);
        QVERIFY(interfaz.avances.isEmpty());
        interfaz.contestar = true;
        QVERIFY(EntrarEnBase(i.sesion, 1, {}, {}, interfaz));
        QCOMPARE(prueba::Contar(i.sesion.conexion, "T_IBRBVD"), 1L);
        QCOMPARE(interfaz.avances, QStringList{"Inicializando Aplicación..."});
    }

    void UsuariosLibres() {
        Instalacion i;
        QVERIFY(Arrancar(i.sesion));
        i.PonerUsuarios();
        Conexion& c = i.sesion.conexion;
        QVERIFY(!UsuarioLibre(c, "central"));
        QVERIFY(UsuarioLibre(c, "elopez"));   // a veterinarian's name does not count
        QVERIFY(UsuarioLibre(c, "AUXILIAR")); // nor does another level
        QVERIFY(UsuarioLibre(c, ""));
    }
};

PRUEBA(PruebaEntrada)
#include "PruebaEntrada.moc"
