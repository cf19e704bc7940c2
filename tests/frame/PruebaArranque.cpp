#include "Cajas.h"
#include "Instalacion.h"
#include "frame/Entrega.h"
#include "frame/ErrorInesperado.h"
#include "frame/LoConvertido.h"
#include "frame/MirarFichero.h"
#include "frame/Mudanza.h"
#include "frame/PrimerInicio.h"
#include "frame/calendario/ErrorDeEjecucion.h"

using namespace prueba;

class PruebaArranque : public QObject {
    Q_OBJECT

    // Refused: kind and title of the one box, and its text when it has no cause to tell.
    static QString Negado(Instalacion& i) {
        Cajas cajas;
        if (Arrancar(i.sesion))
            return u"started"_s;
        const auto v = cajas.Vistas();
        return u"%1 %2|%3|%4"_s.arg(v.size())
            .arg(int(v[0].tipo))
            .arg(v[0].titulo, v[0].causa.isEmpty() ? v[0].texto : QString());
    }

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
        QCOMPARE(i.sesion.VersionPrograma, "Pastorix (3.09)"s);
        QCOMPARE(i.sesion.TextosBoton[5], "..."s);
        QVERIFY(i.sesion.conexion.Abierta());
        QCOMPARE(Q(i.sesion.conexion.Fichero()), i.sesion.rutas.BasePrincipal());
        QCOMPARE(Q(i.sesion.origenes.Buscar("OD_TOROS")->fichero), i.sesion.rutas.BaseToros());
    }

    void FaltaUnaBase() {
        for (const QString falta : {"BD_PradalC.mdb", "BD_PradalP.mdb", "Toros.mdb"}) {
            Instalacion i;
            QVERIFY(QFile::remove(i.Carpeta() + "/" + falta));
            const QStringList antes = i.Contenido();
            QCOMPARE(Negado(i), "1 16|Atención|No es posible continuar no se encuentra el fichero: " +
                                    QDir::toNativeSeparators(i.Carpeta() + "/" + falta));
            QCOMPARE(i.Contenido(), antes);
        }
    }

    // Nothing at all: after the box the ways to go on, taken by their buttons.
    void SinNingunaBaseSeEligeComoEmpezar() {
        QTemporaryDir antigua; // where the former program lies, in letters of its own
        const QString dentro = antigua.filePath(u"BASE DE DATOS"_s);
        QVERIFY(QDir().mkpath(dentro));
        QVERIFY(QFile::copy(QStringLiteral(PASTORIX_DATOS "/minima.mdb"), dentro + u"/bd_pradalc.MDB"_s));
        QVERIFY(QFile::copy(QStringLiteral(PASTORIX_DATOS "/minima.mdb"), dentro + u"/BD_PRADALP.mdb"_s));
        for (const bool vacias : {true, false}) {
            Instalacion i(false);
            Cajas cajas;
            cajas.carpeta = antigua.path();
            const bool arrancado = Arrancar(i.sesion, {}, [&](const Rutas& rutas) {
                PrimerInicio ventana(rutas, i.En("nada"));
                const auto pulsar = [&](const char* boton) {
                    ventana.findChild<QAbstractButton*>(QLatin1String(boton))->click();
                };
                pulsar("B_Ejemplo"); // there is none
                if (vacias) {
                    pulsar("B_Vacias");
                } else {
                    pulsar("B_Carpeta"); // lacks one: told, and nothing has been copied
                    const bool nada = i.Contenido() == QStringList{u"pastorix.lock"_s};
                    Instalacion::Crear(dentro + u"/toros.mdb"_s, ClaseDeBase::Toros);
                    pulsar("B_Carpeta");
                    return nada && ventana.result() == QDialog::Accepted;
                }
                return ventana.result() == QDialog::Accepted;
            });
            QVERIFY(arrancado);
            const auto vistas = cajas.Vistas();
            QCOMPARE(vistas.size(),
                     vacias ? 1 : 4); // the box of the start, the chooser, what is lacking, the chooser again
            QVERIFY(vistas[0].texto.startsWith(u"No es posible continuar"_s));
            QCOMPARE(Contar(i.sesion.conexion, "T_Ganaderos"), vacias ? 2L : 3L);
            QCOMPARE(i.sesion.convertidas.size(), vacias ? 0U : 1U);
            if (vacias)
                continue;
            QVERIFY(vistas[2].texto.contains(u"falta: Toros.mdb"_s));
            QVERIFY(QFile::exists(dentro + u"/bd_pradalc.MDB"_s)); // copied, never moved
            const LoConvertido pagina(i.sesion.convertidas[0]);
            const auto* tabla = pagina.findChild<QTableWidget*>();
            const auto halladas = tabla->findItems(u"T_Vacas"_s, Qt::MatchExactly);
            QCOMPARE(halladas.size(), 1);
            QCOMPARE(tabla->item(halladas[0]->row(), 3)->text(), u"14"_s);
        }
        // One that cannot be put takes the others along.
        Instalacion i(false);
        Escribir(i.En("toros.MDB"));
        QVERIFY_EXCEPTION_THROWN(EntregarCopias(antigua.path(), i.Carpeta()), ErrorAlmacen);
        QCOMPARE(i.Contenido(), QStringList{u"toros.MDB"_s});
    }

    void CarpetaDeBasesVacia() {
        Instalacion i(false);
        Cajas cajas;
        QVERIFY(QDir().mkpath(i.En("Base de Datos")) && !Arrancar(i.sesion));
        const auto vistas = cajas.Vistas();
        QCOMPARE(vistas.size(), 1);
        QCOMPARE(vistas[0].texto, u"El origen ODBC o la clave de acceso a la Base de datos es incorrecta"_s);
        QVERIFY(!vistas[0].causa.isEmpty());
        QVERIFY(i.Contenido("Base de Datos").isEmpty()); // opening makes no file
    }

    void UnFicheroDeLaPlataformaAnteriorSeConvierteYSeGuarda() {
        Instalacion i(false);
        QVERIFY(
            QFile::copy(QStringLiteral(PASTORIX_DATOS "/paquetes/VETERINARIO.mdb"), i.En("BD_PradalC.mdb")));
        QVERIFY(QFile::copy(QStringLiteral(PASTORIX_DATOS "/minima.mdb"), i.En("BD_PradalP.mdb")));
        i.Crear("Toros.mdb", ClaseDeBase::Toros);
        int avances = 0;
        QVERIFY(Arrancar(i.sesion, [&](int, int) { ++avances; }) && avances > 0);
        QCOMPARE(Contar(i.sesion.conexion, "T_Vacas"), 65L);
        QCOMPARE(i.Contenido("BackUp").filter("BD_PradalC_Access_").filter(".mdb").size(), 1);
        InterfazDeEntrada nada;
        QVERIFY(EntrarEnBase(i.sesion, 1, {}, {}, nada)); // and so does the personal one when it is entered
        QCOMPARE(i.Contenido("BackUp").filter("BD_PradalP_Access_").filter(".mdb").size(), 1);
        QCOMPARE(Contar(i.sesion.conexion, "T_Vacas"), 14L);
    }

    void LoQueNoSePuedeAbrirSeDiceYQuedaComoEstaba() {
        for (const QString fichero : {"otra-clave.mdb", "recortada.mdb", "sin-T_Partos.mdb"}) {
            Instalacion i;
            const QString origen = QStringLiteral(PASTORIX_DATOS "/") + fichero;
            QVERIFY(QFile::remove(i.En("BD_PradalC.mdb")) && QFile::copy(origen, i.En("BD_PradalC.mdb")));
            QCOMPARE(Negado(i), u"1 48| Error de acceso|"_s);
            QVERIFY(prueba::Contenido(origen) == prueba::Contenido(i.sesion.rutas.BasePrincipal()));
        }
    }

    void UnFicheroAbiertoDesdeElEscritorioSoloSeMira() {
        Instalacion i;
        const auto mirar = [](const QString& fichero, bool si) {
            Cajas cajas;
            cajas.Responder(si);
            const auto bytes = [&] {
                QFile f(fichero);
                return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
            };
            const auto antes = bytes();
            const bool abrir = MirarFichero(fichero);
            const auto vistas = cajas.Vistas();
            return std::tuple{abrir, vistas.value(0).texto + vistas.value(0).causa, antes == bytes()};
        };
        const auto [abrirNuestra, nuestra, igual1] = mirar(i.En("BD_PradalC.mdb"), true);
        QVERIFY(abrirNuestra && nuestra.contains(u", 0 vacas,"_s) && igual1);
        const auto [abrirAccess, access, igual2] = mirar(QStringLiteral(PASTORIX_DATOS "/minima.mdb"), false);
        QVERIFY(!abrirAccess && access.contains(u", 14 vacas,"_s) && igual2);
        {
            QFile f(i.En("BD_PradalP.mdb")); // the first pages only
            QVERIFY(f.resize(20 * 4096));
        }
        for (const QString& mala :
             {i.En("BD_PradalP.mdb"), i.En("no hay.mdb"), QStringLiteral(PASTORIX_DATOS "/recortada.mdb")}) {
            Cajas cajas;
            QVERIFY(!MirarFichero(mala));
            const auto vistas = cajas.Vistas();
            QCOMPARE(vistas.size(), 1);
            QCOMPARE(vistas[0].clase, Mensaje::Clase::Aviso);
            QVERIFY(!vistas[0].causa.isEmpty());
        }
    }

    void NombresDeOtraCaja() {
        Instalacion i;
        QVERIFY(QFile::rename(i.En("BD_PradalC.mdb"), i.En("bd_pradalc.MDB")));
        for (const char* carpeta : {"INFORMES", "Backup"})
            QVERIFY(QDir().mkpath(i.En(carpeta)));
        QVERIFY(Arrancar(i.sesion) && i.sesion.conexion.Abierta());
        QCOMPARE(i.sesion.rutas.Informes(), i.En("INFORMES"));
        InterfazDeEntrada nada;
        QVERIFY(EntrarEnBase(i.sesion, 0, {}, {}, nada));
        QVERIFY(!QFile::exists(i.En("Informes")) && !QFile::exists(i.En("BackUp")));
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
        QCOMPARE(Contenido(i.En("a.rpt")), QByteArray("el otro"));
    }

    void ElTextoDelErrorInesperado() {
        QCOMPARE(
            TextoErrorInesperado(60010, "Origen de datos No Creado: OD_TOROS").split('\r'),
            QStringList({"Se ha producido un error inesperado. Consulte al administrador de la aplicación",
                         QString(124, '-'), "Código de error: 60010",
                         "Descripción: Origen de datos No Creado: OD_TOROS"}));
    }

    void UnSoloProgramaPorCarpeta() {
        Arrancada i;
        Cajas cajas;
        Sesion segunda;
        segunda.rutas = Rutas(i.Carpeta());
        QVERIFY(!Arrancar(segunda));
        QCOMPARE(cajas.Tomar(), QStringList{"Atención|Pastorix ya está abierto en esta carpeta: " +
                                            QDir::toNativeSeparators(i.Carpeta())});
        // not even an empty file is put aside while a process of this computer holds it
        QVERIFY(QFile::resize(i.En("pastorix.lock"), 0));
        cajas.Responder(true);
        QVERIFY(!Arrancar(segunda));
        const auto vistas = cajas.Tomar();
        QCOMPARE(vistas.size(), 2);
        QVERIFY(vistas[1].startsWith("Atención|Pastorix ya está abierto"));
        QVERIFY(QFile::exists(i.En("pastorix.lock")));
        i.sesion = Sesion(); // the first one ends
        QVERIFY(Arrancar(segunda));
    }

    // What an older session left behind. Whether the user is asked, and whether the folder is his afterwards.
    void UnCerrojoDeOtro_data() {
        // respuesta: 1 go on, 0 do not, -1 nobody asks
        const QString aqui = QSysInfo::machineHostName(), esta = QSysInfo::machineUniqueId();
        const QString ajeno = "4242\npastorix\nCUADRA\n0123abcd\nboot\nmarta\n";
        const QString datos = "Equipo: CUADRA\nUsuario: marta\nDesde: 0";
        Caso("another computer, go on", ajeno, 1, datos);
        Caso("another computer, no", ajeno, 0, datos);
        Caso("cloned machine", "4242\npastorix\nCUADRA\n" + esta + "\nboot\n", 0,
             "Equipo: CUADRA\nUsuario: no consta");
        Caso("empty", "", 1, "Equipo: no consta\nUsuario: no consta");
        Caso("rubbish", "%%%\x01\n", 0, "Equipo: no consta");
        Caso("a process that died",
             "999999\npastorix\n" + aqui + "\n" + esta + "\n" + QSysInfo::bootUniqueId() + "\n", -1, "");
    }
    void UnCerrojoDeOtro() {
        const auto [contenido, respuesta, visto] = DelCaso<QString, int, QString>();
        Instalacion i;
        Cajas cajas;
        Escribir(i.En("pastorix.lock"), contenido.toUtf8());
        QFile f(i.En("pastorix.lock"));
        QVERIFY(f.open(QIODevice::ReadWrite));
        QVERIFY(f.setFileTime(QDateTime(QDate(2026, 3, 1), QTime(9, 30)), QFileDevice::FileModificationTime));
        f.close();
        qputenv("USER", "eva");
        if (respuesta >= 0)
            cajas.Responder(respuesta == 1);
        QCOMPARE(Arrancar(i.sesion), respuesta != 0);
        const auto vistas = cajas.Vistas();
        QCOMPARE(vistas.size(), respuesta < 0 ? 0 : 1);
        if (respuesta >= 0)
            QVERIFY2(vistas[0].texto.contains(visto), qPrintable(vistas[0].texto));
        QVERIFY(f.open(QIODevice::ReadOnly));
        if (respuesta == 0)
            QCOMPARE(f.readAll(), contenido.toUtf8());
        else
            QVERIFY(f.readAll().endsWith("\neva\n")); // for whoever meets the lock next
    }

    void LosRestosDeUnaConversionCortadaSeVan() {
        Arrancada i;
        i.sesion = Sesion();
        i.sesion.rutas = Rutas(i.Carpeta());
        QVERIFY(QDir().mkpath(i.En("BackUp")));
        for (const char* resto : {"Base de Datos/BD_PradalC.mdb.483920.tmp", "BackUp/a.mdb.1.tmp-journal"})
            Escribir(i.En(resto));
        for (const char* propio : {"Base de Datos/notas.tmp", "Base de Datos/2026.tmp", "a.mdb.5.tmp.txt"})
            Escribir(i.En(propio));
        Escribir(i.En("nuevo.rpt"));
        QVERIFY(Arrancar(i.sesion) && i.Contenido("BackUp").isEmpty());
        // only the first start moves reports
        QVERIFY(i.Contenido("Informes").isEmpty() && QFile::exists(i.En("nuevo.rpt")));
        QCOMPARE(i.Contenido("Base de Datos"),
                 QStringList({"2026.tmp", "BD_PradalC.mdb", "BD_PradalP.mdb", "Toros.mdb", "notas.tmp"}));
        QVERIFY(QFile::exists(i.En("a.mdb.5.tmp.txt")));
    }

    void LasColumnasQueFaltabanSeDicenUnaVez() {
        Instalacion i;
        for (const char* base : {"BD_PradalC.mdb", "BD_PradalP.mdb"}) {
            Conexion c;
            c.AbrirFichero(i.En(base).toStdString(), ClaveDeBases);
            c.Execute("ALTER TABLE T_Vacas DROP COLUMN Chekeo");
        }
        Cajas cajas;
        InterfazDeEntrada nada;
        QVERIFY(Arrancar(i.sesion));
        const auto caja = cajas.Tomar();
        QCOMPARE(caja.size(), 1);
        QVERIFY2(caja[0].contains("T_Vacas.Chekeo") && caja[0].contains("BackUp"), qPrintable(caja[0]));
        QVERIFY(EntrarEnBase(i.sesion, 1, {}, {}, nada));
        QCOMPARE(cajas.Tomar().size(), 1);
        QVERIFY(EntrarEnBase(i.sesion, 1, {}, {}, nada)); // it has it now
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
