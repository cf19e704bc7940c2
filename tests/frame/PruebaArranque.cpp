#include "prueba.h"

#include "Cajas.h"
#include "Instalacion.h"
#include "frame/ErrorInesperado.h"
#include "frame/Mudanza.h"
#include "frame/calendario/ErrorDeEjecucion.h"

using namespace pastorix;
using prueba::Cajas;
using prueba::Escribir;
using prueba::Instalacion;

class PruebaArranque : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void LaPrimeraVezPoneCadaCosaEnSuCarpeta() {
        Instalacion i;
        Escribir(i.En("CEBO.RPT"));
        Escribir(i.En("ControlRebaño.rpt"));
        Escribir(i.En("manual.pdf"));
        QVERIFY(Arrancar(i.sesion));
        QCOMPARE(i.Contenido("Base de Datos"),
                 QStringList({"BD_PradalC.mdb", "BD_PradalP.mdb", "Toros.mdb"}));
        QCOMPARE(i.Contenido("Informes").size(), 2);
        QCOMPARE(i.Contenido(), QStringList({"Base de Datos", "Informes", "manual.pdf", "pastorix.lock"}));
        QCOMPARE(i.sesion.VersionPrograma, std::string("Pastorix (3.09)"));
        QCOMPARE(i.sesion.TextosBoton[5], std::string("..."));
        QVERIFY(i.sesion.conexion.Abierta());
        QCOMPARE(QString::fromStdString(i.sesion.conexion.Fichero()), i.sesion.rutas.BasePrincipal());
        QCOMPARE(QString::fromStdString(i.sesion.origenes.Buscar("OD_TOROS")->fichero),
                 i.sesion.rutas.BaseToros());
    }

    void LaSegundaVezNoMueveNada() {
        Instalacion i;
        QVERIFY(Arrancar(i.sesion));
        i.sesion = Sesion();
        i.sesion.rutas = Rutas(i.Carpeta());
        Escribir(i.En("nuevo.rpt"));
        QVERIFY(Arrancar(i.sesion));
        QVERIFY(QFile::exists(i.En("nuevo.rpt")));
        QVERIFY(i.Contenido("Informes").isEmpty());
    }

    void FaltaUnaBase_data() {
        QTest::addColumn<QString>("falta");
        for (const char* base : {"BD_PradalC.mdb", "BD_PradalP.mdb", "Toros.mdb"})
            QTest::newRow(base) << base;
    }
    void FaltaUnaBase() {
        QFETCH(QString, falta);
        Instalacion i;
        Cajas cajas;
        QVERIFY(QFile::remove(i.Carpeta() + "/" + falta));
        const QStringList antes = i.Contenido();
        QVERIFY(!Arrancar(i.sesion));
        const auto vistas = cajas.Vistas();
        QCOMPARE(vistas.size(), 1);
        QCOMPARE(static_cast<int>(vistas[0].tipo), 16);
        QCOMPARE(vistas[0].titulo, QString("Atención"));
        QCOMPARE(vistas[0].texto, "No es posible continuar no se encuentra el fichero: " +
                                      QDir::toNativeSeparators(i.Carpeta() + "/" + falta));
        QCOMPARE(i.Contenido(), antes);
    }

    void CarpetaDeBasesVacia() {
        Instalacion i(false);
        Cajas cajas;
        QVERIFY(QDir().mkpath(i.En("Base de Datos")));
        QVERIFY(!Arrancar(i.sesion));
        const auto vistas = cajas.Vistas();
        QCOMPARE(vistas.size(), 1);
        QCOMPARE(static_cast<int>(vistas[0].tipo), 48);
        QCOMPARE(vistas[0].titulo, QString(" Error de acceso"));
        QCOMPARE(vistas[0].texto,
                 QString("El origen ODBC o la clave de acceso a la Base de datos es incorrecta"));
        QVERIFY(!vistas[0].detalle.isEmpty());
        QVERIFY(i.Contenido("Base de Datos").isEmpty()); // opening makes no file
    }

    void UnFicheroDeLaPlataformaAnteriorSeConvierteYSeGuarda() {
        Instalacion i(false);
        QVERIFY(
            QFile::copy(QStringLiteral(PASTORIX_DATOS "/paquetes/VETERINARIO.mdb"), i.En("BD_PradalC.mdb")));
        QVERIFY(QFile::copy(QStringLiteral(PASTORIX_DATOS "/minima.mdb"), i.En("BD_PradalP.mdb")));
        i.Crear("Toros.mdb", ClaseDeBase::Toros);
        int avances = 0;
        QVERIFY(Arrancar(i.sesion, [&](int, int) { ++avances; }));
        QVERIFY(avances > 0);
        QCOMPARE(prueba::Contar(i.sesion.conexion, "T_Vacas"), 65L);
        QCOMPARE(i.Contenido("BackUp").filter("BD_PradalC_Access_").filter(".mdb").size(), 1);
        InterfazDeEntrada nada;
        QVERIFY(EntrarEnBase(i.sesion, 1, {}, {}, nada)); // and so does the personal one when it is entered
        QCOMPARE(i.Contenido("BackUp").filter("BD_PradalP_Access_").filter(".mdb").size(), 1);
        QCOMPARE(prueba::Contar(i.sesion.conexion, "T_Vacas"), 14L);
    }

    void LoQueNoSePuedeAbrirSeDiceYQuedaComoEstaba_data() {
        QTest::addColumn<QString>("fichero");
        for (const char* fichero : {"otra-clave.mdb", "recortada.mdb", "sin-T_Partos.mdb"})
            QTest::newRow(fichero) << fichero;
    }
    void LoQueNoSePuedeAbrirSeDiceYQuedaComoEstaba() {
        QFETCH(QString, fichero);
        Instalacion i;
        Cajas cajas;
        const QString origen = QStringLiteral(PASTORIX_DATOS "/") + fichero;
        QVERIFY(QFile::remove(i.En("BD_PradalC.mdb")));
        QVERIFY(QFile::copy(origen, i.En("BD_PradalC.mdb")));
        QVERIFY(!Arrancar(i.sesion));
        const auto vistas = cajas.Vistas();
        QCOMPARE(vistas.size(), 1);
        QCOMPARE(vistas[0].titulo, QString(" Error de acceso"));
        QVERIFY(!vistas[0].detalle.isEmpty());
        QFile antes(origen), ahora(i.sesion.rutas.BasePrincipal());
        QVERIFY(antes.open(QIODevice::ReadOnly) && ahora.open(QIODevice::ReadOnly));
        QVERIFY(antes.readAll() == ahora.readAll());
    }

    void NombresDeOtraCaja() {
        Instalacion i;
        QVERIFY(QFile::rename(i.En("BD_PradalC.mdb"), i.En("bd_pradalc.MDB")));
        QVERIFY(QDir().mkpath(i.En("INFORMES")));
        QVERIFY(Arrancar(i.sesion));
        QVERIFY(i.sesion.conexion.Abierta());
        QCOMPARE(i.sesion.rutas.Informes(), i.En("INFORMES"));
        QVERIFY(!QFile::exists(i.En("Informes")));
    }

    void UnaMudanzaAMediasVuelveASuSitio() {
        // The machine stopped after the first file: the next start brings it back and does the whole move.
        Instalacion i;
        QVERIFY(QDir().mkpath(i.En("Base de Datos.nueva")));
        QVERIFY(QFile::rename(i.En("BD_PradalC.mdb"), i.En("Base de Datos.nueva/BD_PradalC.mdb")));
        QVERIFY(Arrancar(i.sesion));
        QCOMPARE(i.Contenido("Base de Datos").size(), 3);
        QVERIFY(!QFile::exists(i.En("Base de Datos.nueva")));
    }

    void UnaMudanzaQueFallaDejaTodoComoEstaba() {
        Instalacion i;
        Cajas cajas;
        Escribir(i.En("Base de Datos")); // a file where the folder is to stand
        const QStringList antes = i.Contenido();
        QVERIFY(!Arrancar(i.sesion));
        const QStringList cajasVistas = cajas.Tomar();
        QCOMPARE(cajasVistas.size(), 1);
        QVERIFY(cajasVistas[0].startsWith(" Error inesperado|Se ha producido un error inesperado."));
        QCOMPARE(i.Contenido(), antes);
    }

    void UnFicheroNoSePisa() {
        Instalacion i(false);
        QVERIFY(QDir().mkpath(i.En("X.nueva")));
        Escribir(i.En("X.nueva/a.rpt"), "en camino");
        Escribir(i.En("a.rpt"), "el otro");
        DeshacerMudanza(i.Carpeta(), "X");
        QCOMPARE(i.Contenido("X.nueva"), QStringList{"a.rpt"}); // both are still there
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, MudarACarpeta(i.Carpeta(), "X", {i.En("a.rpt")}));
        QFile f(i.En("a.rpt"));
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), QByteArray("el otro"));
    }

    void ElTextoDelErrorInesperado() {
        const QStringList lineas =
            TextoErrorInesperado(60010, "Origen de datos No Creado: OD_TOROS").split('\r');
        QCOMPARE(lineas.size(), 4);
        QCOMPARE(lineas[0],
                 QString("Se ha producido un error inesperado. Consulte al administrador de la aplicación"));
        QCOMPARE(lineas[1], QString(124, '-'));
        QCOMPARE(lineas[2], QString("Código de error: 60010"));
        QCOMPARE(lineas[3], QString("Descripción: Origen de datos No Creado: OD_TOROS"));
    }

    void UnSoloProgramaPorCarpeta() {
        Instalacion i;
        QVERIFY(Arrancar(i.sesion));
        Cajas cajas;
        Sesion segunda;
        segunda.rutas = Rutas(i.Carpeta());
        QVERIFY(!Arrancar(segunda));
        QCOMPARE(cajas.Tomar(), QStringList{"Atención|Pastorix ya está abierto en esta carpeta: " +
                                            QDir::toNativeSeparators(i.Carpeta())});
        i.sesion = Sesion(); // the first one ends
        QVERIFY(Arrancar(segunda));
    }

    void ElSiguienteArranqueVuelveALaPrincipal() {
        Instalacion i;
        QVERIFY(Arrancar(i.sesion));
        InterfazDeEntrada nada;
        QVERIFY(EntrarEnBase(i.sesion, 1, {}, {}, nada));
        const Rutas rutas = i.sesion.rutas;
        i.sesion.cerrojo.reset();
        QVERIFY(Arrancar(i.sesion));
        QCOMPARE(QString::fromStdString(i.sesion.conexion.Fichero()), rutas.BasePrincipal());
    }

    void DondeEstaElPrograma() {
        QTemporaryDir casa;
        qputenv("PASTORIX_HOME", (casa.path() + "/./").toUtf8());
        QCOMPARE(Rutas::Buscar().Programa(), casa.path());
        qunsetenv("PASTORIX_HOME");
        QCOMPARE(Rutas::Buscar().Programa(),
                 CarpetaDelUsuario()); // nothing was delivered beside this executable
    }

    void LaCarpetaDelUsuarioSeRellenaUnaVez() {
        Instalacion compartida;
        Escribir(compartida.En("CEBO.RPT"));
        Escribir(compartida.En("manual.pdf"));
        QTemporaryDir casa;
        const Rutas rutas(casa.path() + "/datos/pastorix");
        RellenarCarpeta(rutas, compartida.Carpeta());
        QCOMPARE(QDir(rutas.Programa()).entryList(QDir::Files).size(), 5);
        Sesion sesion;
        sesion.rutas = rutas;
        QVERIFY(Arrancar(sesion));
        RellenarCarpeta(rutas, compartida.Carpeta()); // a later start copies nothing beside the folders
        QCOMPARE(QDir(rutas.Programa()).entryList(QDir::Files), QStringList({"manual.pdf", "pastorix.lock"}));
    }
};

PRUEBA(PruebaArranque)
#include "PruebaArranque.moc"
