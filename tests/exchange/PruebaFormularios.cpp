#include "Filas.h"
#include "prueba.h"

#include "DiscoLleno.h"

#include "Cajas.h"
#include "Instalacion.h"
#include "exchange/Exportar.h"
#include "exchange/Historial.h"
#include "exchange/ImportarDC.h"
#include "exchange/PasoGanaderos.h"
#include "exchange/ServidorDS.h"
#include "exchange/TorosComunes.h"
#include "exchange/VeterinarioImp1.h"
#include "frame/Ajustes.h"
#include "frame/Principal.h"
#include "frame/calendario/Reloj.h"
#include "store/Ficheros.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>

using namespace pastorix;
using prueba::Cajas;
using prueba::Escribir;
using prueba::Filas;
using prueba::Sql;

// The forms, as people go through them: an office and a station with a stick between them.
class PruebaFormularios : public QObject {
    Q_OBJECT

    static QString S(const char* t) { return QString::fromUtf8(t); }

    // An installation that somebody has entered, with the frame.
    struct Programa : prueba::Instalacion {
        QTemporaryDir lapiz; // the stick
        std::unique_ptr<Principal> marco;

        explicit Programa(const char* modo, const char* usuario, bool conFilas = true) {
            FijarHoy(Fecha::De(2026, 11, 22, 10, 30));
            GuardarAjusteDeVentana(S("Exportar/claves"), true);
            if (!Arrancar(sesion))
                qCritical("the start failed");
            if (conFilas)
                Sql(sesion.conexion, prueba::kOficina);
            sesion.ModoSesion = modo;
            sesion.UsuarioSesion = usuario;
            sesion.BaseElegida = 0;
            QDir(Carpeta()).mkpath(S("Temp"));
            QDir(Carpeta()).mkpath(S("BackUp"));
            marco = std::make_unique<Principal>(sesion);
        }
        ~Programa() { FijarHoy(std::nullopt); }
        QStringList Copias() const { return QDir(En("BackUp")).entryList(QDir::Files, QDir::Name); }
        std::string Leer(const char* consulta) { return Filas(sesion.conexion, consulta); }
        QString Lapiz(const char* nombre) const { return lapiz.filePath(S(nombre)); }
    };

    template <typename Formulario>
    static bool Hacer(Programa& p, const QString& carpeta,
                      const std::function<void(Formulario&)>& antes = {}) {
        Formulario f(p.sesion, p.marco.get());
        f.PonerCarpeta(carpeta);
        if (antes)
            antes(f);
        return f.Aceptar();
    }
    static bool Importar(Programa& p, const QString& carpeta, const char* usuario) {
        return Hacer<ImportarDC>(p, carpeta, [&](ImportarDC& f) { f.PonerUsuario(S(usuario)); });
    }
    static bool ExportarA(Programa& p, const char* usuario) {
        return Hacer<Exportar>(p, p.lapiz.path(), [&](Exportar& f) { QVERIFY(f.MarcarUsuario(S(usuario))); });
    }
    // The station's database as the office expects it: without rows that would come to the centre a second time.
    static void Limpiar(Programa& oficina) {
        Sql(oficina.sesion.conexion, "DELETE FROM T_IPR WHERE Id_Ganadero IS NULL OR Id_Ganadero IN (1, 40); "
                                     "DELETE FROM T_MAMIVACU WHERE Id_Ganadero IS NULL;"
                                     "DELETE FROM T_Vacas WHERE Id_Ganadero IS NULL OR Id_Ganadero = 40; "
                                     "DELETE FROM T_Ganaderos WHERE Id_Ganadero = 40");
    }

private Q_SLOTS:
    void LaRondaDeUnaOficina() {
        Cajas cajas;
        Programa oficina("CENTRAL", "CENTRAL");
        Limpiar(oficina);
        QVERIFY(ExportarA(oficina, "elopez"));
        QCOMPARE(
            cajas.Tomar(),
            (QStringList{S("Información|Proceso Finalizado\r\n\r\nRecuerde Importar los datos a: elopez")}));
        QCOMPARE(oficina.Leer("SELECT Equipo, Operacion FROM Historial ORDER BY Fecha DESC").substr(0, 38),
                 std::string("CENTRAL|Exportar Datos para: elopez/el"));

        Programa estacion("VETERINARIO", "elopez", false);
        QVERIFY(Hacer<ImportarDS>(estacion, oficina.lapiz.path()));
        QCOMPARE(cajas.Tomar(), (QStringList{S("Información|Proceso Finalizado con éxito")}));
        QCOMPARE(estacion.Leer("SELECT Id_Ganadero FROM T_Ganaderos ORDER BY Id_Ganadero"),
                 std::string("1/12"));
        QCOMPARE(estacion.Copias(), (QStringList{S("BD_PradalC_22112026_103000.mdb")}));
        Sql(estacion.sesion.conexion, "UPDATE T_Vacas SET NombreC = 'Morica' WHERE Id_Vaca = 12001; INSERT "
                                      "INTO T_Vacas (Id_Vaca, Id_Ganadero) VALUES (12003, 12)");
        QVERIFY(Hacer<ExportarDS>(estacion, estacion.lapiz.path()));
        QCOMPARE(cajas.Tomar(), (QStringList{S("Información|Proceso Finalizado con éxito")}));

        QVERIFY(Importar(oficina, estacion.lapiz.path(), "ELOPEZ")); // the name of the file in other letters
        QCOMPARE(cajas.Tomar(), (QStringList{S("Información|Proceso Finalizado")}));
        QCOMPARE(oficina.Leer("SELECT Id_Vaca, NombreC FROM T_Vacas ORDER BY Id_Vaca"),
                 std::string("12001|Morica/12002|Linda/12003|-/57001|Rubia/57002|Parda"));
        QCOMPARE(oficina.Leer("SELECT Operacion FROM Historial WHERE Equipo = 'elopez'"),
                 std::string("Exportar Datos al Servidor")); // travelled in the package
        const auto todo = [&] {
            return oficina.Leer("SELECT * FROM T_Vacas ORDER BY Id_Vaca") +
                   oficina.Leer("SELECT * FROM T_Partos ORDER BY Id_Vaca");
        };
        const auto antes = todo();
        FijarHoy(Fecha::De(2026, 11, 22, 10, 30));
        QVERIFY(Importar(oficina, estacion.lapiz.path(),
                         "elopez")); // the same package again, within the same second
        cajas.Tomar();
        QCOMPARE(todo(), antes);
        QCOMPARE(oficina.Copias(),
                 (QStringList{S("DB_PradalC_22112026_103000.mdb"), S("DB_PradalC_22112026_103001.mdb")}));
        QVERIFY(QDir(oficina.En("Temp")).isEmpty());
        QVERIFY(oficina.marco->Peligro().isEmpty());

        // an older package than the one merged last: asked about, and nothing done
        Sql(estacion.sesion.conexion, "DELETE FROM Historial; INSERT INTO Historial VALUES ('elopez', "
                                      "'2026-11-01', 'z'); DELETE FROM T_Vacas WHERE Id_Vaca = 12003");
        estacion.sesion.conexion.Cerrar();
        CopiarFichero(Ruta(estacion.sesion.rutas.BasePrincipal().toStdString()),
                      Ruta(estacion.Lapiz("elopez.mdb").toStdString()));
        cajas.Responder(false);
        QVERIFY(!Importar(oficina, estacion.lapiz.path(), "elopez"));
        const auto vistas = cajas.Vistas();
        QVERIFY(vistas.size() == 1 && vistas[0].titulo == S(kTituloDeAviso) &&
                vistas[0].texto.contains(S("más antiguo")) &&
                vistas[0].texto.contains(S("Desaparece 1 vaca")));
        QCOMPARE(todo(), antes);
    }

    void LaEstacionPreguntaAntesDePerder() {
        Cajas cajas;
        Programa oficina("CENTRAL", "CENTRAL");
        QVERIFY(ExportarA(oficina, "elopez"));
        Programa estacion("VETERINARIO", "elopez");
        cajas.Tomar();
        cajas.Responder(false);
        QVERIFY(!Hacer<ImportarDS>(estacion, oficina.lapiz.path()));
        QVERIFY(cajas.Vistas().at(0).texto.contains(S("se pierde")));
        QCOMPARE(estacion.Leer("SELECT Count(*) AS N FROM T_Ganaderos"), std::string("4"));
        QVERIFY(estacion.Copias().isEmpty());
    }

    // What stands in the way of each route: the box, and that nothing has changed.
    void LoQueNoSePuede_data() {
        QTest::addColumn<QString>("ruta");
        QTest::addColumn<QString>("fichero"); // what lies on the stick
        QTest::addColumn<QString>("caja");
        for (const char* ruta : {"DC", "DS", "TC"}) {
            const auto nueva = [&](const char* caso, const char* fichero, const char* caja) {
                QTest::newRow(qPrintable(S(ruta) + QLatin1Char(' ') + S(caso)))
                    << S(ruta) << S(fichero) << S(caja);
            };
            const char* fallo = S(ruta) == S("TC") ? "Exportación Fallida|" : "Importación Fallida|";
            nueva("absent", "",
                  S(ruta) == S("DC")   ? "Error en el Origen|Base de Datos: "
                  : S(ruta) == S("DS") ? "Atención|No existe el fichero de Importación: "
                                       : "Atención|El fichero de Importación: ");
            nueva("cut short", "recortada.mdb", fallo);
            nueva("other password", "otra-clave.mdb", fallo);
            nueva("lacks a table", "sin-T_Partos.mdb", fallo);
            nueva("rubbish", "?", fallo);
        }
    }
    void LoQueNoSePuede() {
        QFETCH(QString, ruta);
        QFETCH(QString, fichero);
        QFETCH(QString, caja);
        Cajas cajas;
        Programa p("CENTRAL", "elopez");
        const auto nombre = ruta == S("TC") ? S("xToros.mdb") : S("elopez.mdb");
        if (fichero == S("?"))
            Escribir(p.lapiz.filePath(nombre), QByteArray(5000, 'x'));
        else if (!fichero.isEmpty())
            QVERIFY(QFile::copy(S(PASTORIX_DATOS "/") + fichero, p.lapiz.filePath(nombre)));
        const auto antes = p.Leer("SELECT * FROM T_Vacas") + p.Leer("SELECT * FROM Historial");
        const bool hecho = ruta == S("DC")   ? Importar(p, p.lapiz.path(), "elopez")
                           : ruta == S("DS") ? Hacer<ImportarDS>(p, p.lapiz.path())
                                             : Hacer<Imp_TC>(p, p.lapiz.path());
        QVERIFY(!hecho);
        const auto vistas = cajas.Tomar();
        QCOMPARE(vistas.size(), 1);
        QVERIFY2(vistas[0].startsWith(caja), qPrintable(vistas[0]));
        QCOMPARE(p.Leer("SELECT * FROM T_Vacas") + p.Leer("SELECT * FROM Historial"), antes);
        QVERIFY(p.Copias().isEmpty() && p.marco->Peligro().isEmpty());
    }

    void ElOrigenYElDestinoSonElMismo() {
        Cajas cajas;
        Programa p("CENTRAL", "BD_PradalC");
        const auto carpeta = p.En("Base de Datos");
        QVERIFY(!Hacer<ExportarDS>(p, carpeta));
        QVERIFY(!Hacer<ImportarDS>(p, carpeta));
        QVERIFY(!Importar(p, carpeta, "BD_PradalC"));
        QVERIFY(!Hacer<Exp_TC>(p, carpeta, [&](Exp_TC& f) { f.PonerFichero(p.sesion.rutas.BaseToros()); }));
        for (const auto& caja : cajas.Tomar())
            QVERIFY2(caja.contains(S("Fallida|")) && caja.contains(S("propi")), qPrintable(caja));
        QCOMPARE(p.Leer("SELECT Count(*) AS N FROM T_Vacas"), std::string("6"));
    }

    // A package without farmers leaves the session on the working copy, which takes nothing and says so, until the next try.
    void SobreLaCopiaDeTrabajo() {
        Cajas cajas;
        Programa p("CENTRAL", "CENTRAL");
        Limpiar(p);
        QVERIFY(ExportarA(p, "elopez"));
        const auto entero = p.Lapiz("entero.mdb");
        QVERIFY(QFile::copy(p.Lapiz("elopez.mdb"), entero));
        {
            Conexion paquete;
            paquete.AbrirFichero(p.Lapiz("elopez.mdb").toStdString(), kClave);
            Sql(paquete, "UPDATE T_Ganaderos SET TorosComun = 'Sí'");
        }
        cajas.Tomar();
        {
            ImportarDC f(p.sesion, p.marco.get());
            f.PonerCarpeta(p.lapiz.path());
            f.PonerUsuario(S("elopez"));
            QVERIFY(!f.Aceptar());
            QCOMPARE(
                cajas.Tomar(),
                (QStringList{S("Importación Fallida|No hay Ganaderos en la Base de datos de Importación")}));
            QVERIFY(QApplication::overrideCursor());
        }
        QVERIFY(!QApplication::overrideCursor());
        QVERIFY(p.sesion.conexion.Fichero().ends_with("xPradalC.mdb"));
        QVERIFY(p.marco->Peligro().startsWith(S("COPIA DE TRABAJO")));
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, p.sesion.conexion.Execute("DELETE FROM T_Vacas"));
        // nothing of it goes anywhere
        QVERIFY(!ExportarA(p, "svaldes") && !Hacer<Exp_TC>(p, p.lapiz.path()) &&
                !CompactarEnSesion(p.sesion, p.marco.get()));
        QCOMPARE(cajas.Tomar().filter(S("copia de trabajo")).size(), 3);
        QVERIFY(QFile::remove(p.Lapiz("elopez.mdb")) && QFile::copy(entero, p.Lapiz("elopez.mdb")));
        QVERIFY(Importar(p, p.lapiz.path(), "elopez"));
        cajas.Tomar();
        QVERIFY(p.marco->Peligro().isEmpty() && !p.sesion.conexion.SoloLectura());
        QVERIFY(p.sesion.conexion.Fichero().ends_with("BD_PradalC.mdb"));
    }

    void SeUneUnVeterinario() {
        Cajas cajas;
        Programa p("CENTRAL", "CENTRAL");
        const auto paquete = p.Lapiz("veterinario.MDB");
        QVERIFY(QFile::copy(S(PASTORIX_DATOS "/paquetes/VETERINARIO.mdb"), paquete));
        QFile original(paquete);
        QVERIFY(original.open(QIODevice::ReadOnly));
        const auto bytes = original.readAll();
        const auto unir = [&](const char* codigo, const char* usuario,
                              std::vector<std::pair<QString, QString>> ganaderos) {
            return Hacer<ImportarDC>(p, p.lapiz.path(), [&](ImportarDC& f) {
                f.PonerUsuario(S("veterinario"));
                f.ResponderALaUnion({S(codigo), S(usuario), std::move(ganaderos)});
            });
        };
        const auto detectado = S("Información|Detectado un veterinario nuevo que se une a la Base Central");
        const auto cancelada = S("Atención|Operación Cancelada por el Usuario");
        QVERIFY(!unir("", "", {}));
        QCOMPARE(
            cajas.Tomar(),
            (QStringList{detectado,
                         S("Atención|Debe indicar el código del veterinario para unirse a la base central"),
                         cancelada}));
        QVERIFY(!unir("7", "", {}));
        QCOMPARE(cajas.Tomar()[1],
                 S("Atención|Debe indicar el nombre que usará el veterinario para iniciar la sesión"));
        cajas.Responder(false); // a login that means something else
        QVERIFY(!unir("7", "Central", {{S("2"), S("701")}}));
        QVERIFY(cajas.Tomar()[1].contains(S("Central")));
        QVERIFY(!unir("7", "nueva", {}));
        QVERIFY(cajas.Tomar()[1].startsWith(S("Atención|Debe indicar la nueva codificación")));
        QCOMPARE(p.Leer("SELECT Count(*) AS N FROM T_Veterinarios"), std::string("3"));
        cajas.Responder(true); // rows of the farmer who stays out
        QVERIFY(unir("7", "nueva", {{S("2"), S("702")}, {S("14"), S("714")}, {S("900"), S("7900")}}));
        const auto vistas = cajas.Tomar();
        QVERIFY(vistas[0] == detectado && vistas[2] == S("Información|Proceso Finalizado") &&
                vistas[3].contains(S("números de toro")));
        QCOMPARE(p.Leer("SELECT Usuario FROM T_Veterinarios WHERE Id_Veterinario = 7"), std::string("nueva"));
        QVERIFY(p.Leer("SELECT Id_Vaca FROM T_Vacas WHERE Id_Ganadero = 702").starts_with("702001/702002"));
        QVERIFY(!p.Leer("SELECT Id_Vaca FROM T_Vacas WHERE Id_Ganadero = 9").empty()); // under the old code
        QVERIFY(original.seek(0) && original.readAll() == bytes);
    }

    void LosFormulariosDeUnaUnion() {
        Cajas cajas;
        Programa p("CENTRAL", "CENTRAL");
        prueba::Base paquete;
        Sql(paquete.c, "INSERT INTO T_Veterinarios (Id_Veterinario, NombreVet, ApellidosVet, Usuario) VALUES "
                       "(1, 'VALNOR', '', ''), (2, 'Ángeles', 'Muñiz', 'am');"
                       "INSERT INTO T_Ganaderos (Id_Ganadero, Nombre, TorosComun) VALUES (1, 'C', 'Sí'), (2, "
                       "'R', 'No')");
        EstadoDeUnion estado{Ruta(paquete.fichero), 0};
        {
            VeterinarioImp f(p.sesion, estado);
            QCOMPARE(estado.ResultadoImportacion, std::uint8_t(99));
            QCOMPARE(f.findChild<QLabel*>(S("Label1(4)"))->text(), S("Nombre: Ángeles Muñiz"));
            QCOMPARE(f.findChild<QLabel*>(S("Label1(5)"))->text(), S("Código: 2"));
            QTest::keyClicks(f.findChild<QLineEdit*>(S("Ct_Est(0)")), S("7a"));
            QTest::keyClicks(f.findChild<QLineEdit*>(S("Ct_Est(1)")), S("d'Eva")); // fails in the statement
            f.findChild<QPushButton*>(S("B_Aceptar"))->click();
            QVERIFY(cajas.Tomar()[0].startsWith(S(" Error inesperado|")));
            f.findChild<QLineEdit*>(S("Ct_Est(1)"))->clear();
            QTest::keyClicks(f.findChild<QLineEdit*>(S("Ct_Est(1)")), S("nueva"));
            f.findChild<QPushButton*>(S("B_Aceptar"))->click();
            QCOMPARE(estado.ResultadoImportacion, std::uint8_t(0));
        }
        {
            VeterinarioImp1 f(p.sesion, estado);
            auto* rejilla = f.findChild<QTableWidget*>(S("Grid"));
            QCOMPARE(rejilla->rowCount(), 1);
            f.show();
            rejilla->setFocus();
            QTest::keyClicks(rejilla, S("7"));
            auto* editor = rejilla->findChild<QLineEdit*>(S("Ct_Est(0)"));
            QVERIFY(editor);
            QTest::keyClicks(editor, S("x02"));
            QTest::keyClick(editor, Qt::Key_Return);
            QVERIFY(f.isVisible());
            f.findChild<QPushButton*>(S("B_Aceptar"))->click();
            QCOMPARE(estado.ResultadoImportacion, std::uint8_t(0));
        }
        QCOMPARE(Filas(paquete.c, "SELECT Id_Ganadero, Id_Veterinario FROM T_Ganaderos ORDER BY Id_Ganadero"),
                 std::string("1|7/702|7"));
        { // teats of a cow that is gone stand in the way of the new key
            Sql(paquete.c, "INSERT INTO T_Ganaderos (Id_Ganadero, TorosComun) VALUES (3, 'No'); INSERT INTO "
                           "T_Vacas (Id_Vaca, Id_Ganadero) VALUES (3001, 3); INSERT INTO T_Mamitis (Id_Vaca, "
                           "Id_Teto) VALUES (3001, 1), (703001, 1)");
            VeterinarioImp1 f(p.sesion, estado);
            QVERIFY(f.Poner(S("3"), S("703")) && !f.Aceptar());
            QVERIFY(cajas.Tomar()[0].startsWith(S(" Error inesperado|")));
        }
        for (const char* veterinarios :
             {"DELETE FROM T_Veterinarios", "INSERT INTO T_Veterinarios (NombreVet) VALUES ('a'), ('b')"}) {
            Sql(paquete.c, veterinarios);
            VeterinarioImp f(p.sesion, estado);
            QVERIFY(!f.findChild<QPushButton*>(S("B_Aceptar"))->isEnabled());
            if (S(veterinarios).startsWith(S("DELETE")))
                QCOMPARE(f.findChild<QLabel*>(S("Label1(4)"))->text(), S("(No se ha encontrado ninguno)"));
            else
                QCOMPARE(cajas.Tomar(),
                         (QStringList{S("Atención|La Base de datos a unir al Central, no es válida por tener "
                                        "mas de 1 veterinario, aparte de VALNOR")}));
        }
    }

    void LosTorosVanYVienen() {
        Cajas cajas;
        Programa oficina("CENTRAL", "CENTRAL");
        QVERIFY(Hacer<Exp_TC>(oficina, oficina.lapiz.path(), [](Exp_TC& f) {
            QCOMPARE(f.findChild<QListWidget*>(S("List1"))->item(0)->text(), S("Toros IA ... Cuco"));
        }));
        QVERIFY(cajas.Tomar()[0].startsWith(S("Información|Exportación Realizada con Éxito\r\n\r\n Recuerde "
                                              "Importar en cada Veterinario el Fichero: ")));
        Programa estacion("VETERINARIO", "elopez");
        Sql(estacion.sesion.conexion,
            "UPDATE T_Sementales SET NombreC = 'Otro', Crotal = 'X' WHERE Id_Semental = 1; UPDATE "
            "T_Servicios SET Semental = 'Otro' WHERE Id_Semental = 1");
        cajas.Responder(false);
        QVERIFY(!Hacer<Imp_TC>(estacion, oficina.lapiz.path()));
        QVERIFY(
            cajas.Tomar()[0].startsWith(S("Atención|2 servicios y 0 partos cambiarán el nombre del toro")));
        QCOMPARE(estacion.Leer("SELECT Semental FROM T_Servicios WHERE Id_Semental = 1"),
                 std::string("Otro/Otro"));
        cajas.Responder(true);
        QVERIFY(Hacer<Imp_TC>(estacion, oficina.lapiz.path()));
        QCOMPARE(cajas.Tomar()[1], S("Información|Importación Realizada con Éxito"));
        QCOMPARE(estacion.Leer("SELECT Semental FROM T_Servicios WHERE Id_Semental = 1"),
                 std::string("Cuco/Cuco"));
        QCOMPARE(estacion.Copias(), (QStringList{S("Toros_22112026_103000.mdb")}));
        Sql(oficina.sesion.conexion, "UPDATE T_Ganaderos SET TorosComun = 'No'");
        QVERIFY(!Hacer<Exp_TC>(oficina, oficina.lapiz.path()));
        QCOMPARE(cajas.Tomar(), (QStringList{S("Atención|No hay Toros que Exportar")}));
    }

    void UnGanaderoPasaALaOtraBase() {
        Cajas cajas;
        Programa p("CENTRAL", "CENTRAL");
        Sql(p.sesion.conexion,
            "UPDATE T_Ganaderos SET FechaBaja = '2024-01-01' WHERE Id_Ganadero IN (12, 57)");
        PasoGanaderos f(p.sesion, S(" Paso a Pastorix Personal"), p.marco.get());
        QVERIFY(!f.Aceptar());
        QCOMPARE(cajas.Tomar(), (QStringList{S("Información|Debe Seleccionar un Ganadero")}));
        auto* lista = f.findChild<QListWidget*>(S("lstGanadero"));
        QVERIFY(lista->item(0)->text() == S("José Riesgo") && f.MarcarGanadero(12) && f.MarcarGanadero(57));
        QCOMPARE(lista->item(1)->checkState(), Qt::Unchecked);
        cajas.Responder(false);
        QVERIFY(!f.Aceptar());
        const auto pregunta = cajas.Vistas();
        QVERIFY(pregunta.size() == 1 && pregunta[0].titulo == S(" Confirmación") &&
                pregunta[0].texto == S("Confirme el Paso de Datos del Ganadero: José Riesgo") &&
                pregunta[0].porDefectoSi);
        cajas.Responder(true);
        QVERIFY(f.Aceptar());
        const auto vistas = cajas.Tomar();
        QVERIFY(vistas[1] == S(" Información|Proceso Finalizado") && vistas[2].contains(S("T_MAMIVACU")));
        auto personal = p.Abrir("BD_PradalP.mdb");
        QCOMPARE(Filas(personal, "SELECT Id_Ganadero FROM T_Vacas"), std::string("57/57"));
        QVERIFY(QFile::exists(p.En("Temp/xTemp.mdb")) &&
                p.Copias() == QStringList{S("BD_PradalP_22112026_103000.mdb")});
        personal.Cerrar();
        QVERIFY(QFile::remove(p.sesion.rutas.BasePersonal()));
        cajas.Responder(true);
        QVERIFY(!f.Aceptar());
        QVERIFY(cajas.Tomar()[1].startsWith(S("Atención!!!|Error en localización de Base de datos "
                                              "Personal.\r\n\r\nCompruebe que el Fichero:\r\n")));
    }

    void ElHistorial() {
        Cajas cajas;
        Programa p("CENTRAL", "CENTRAL");
        Sql(p.sesion.conexion, "DELETE FROM Historial");
        for (int i = 0; i < 100; ++i)
            EscribirHistorial(p.sesion.conexion, "elopez", Fecha{46000 + i, 60}, "op" + std::to_string(i));
        {
            Historial f(p.sesion, p.marco.get());
            auto* rejilla = f.findChild<QTableWidget*>(S("Grid"));
            QCOMPARE(rejilla->rowCount(), 100);
            QVERIFY(rejilla->item(0, 3)->text() == S("op99") && rejilla->item(0, 2)->text() == S("00:01:00"));
            QTest::keyClicks(f.findChild<QLineEdit*>(S("Buscar")), S("OP42"));
            QVERIFY(rejilla->isRowHidden(0) && !rejilla->isRowHidden(57));
            cajas.Responder(false);
            f.BorrarBackUp();
            const auto pregunta = cajas.Vistas();
            QCOMPARE(pregunta[0].texto,
                     S("Confirme Eliminar todo el contenido Backup de Importaciones de Clientes."));
            QVERIFY(pregunta[0].titulo == S("Confirmación") && !pregunta[0].porDefectoSi &&
                    pregunta[0].causa.startsWith(S("0 ficheros")));
            Sql(p.sesion.conexion, "DELETE FROM Historial WHERE Operacion <> 'op7' AND Operacion <> 'op42'");
            QVERIFY(QDir(p.En("BackUp")).removeRecursively());
            Escribir(p.En("BackUp")); // no room for the text: the rows stay
            cajas.Responder(true);
            f.Vaciar();
            QCOMPARE(cajas.Tomar()[0], S("Confirmar|Confirmar Eliminar Historial de Transacciones"));
            QVERIFY(rejilla->rowCount() == 2 && !rejilla->isRowHidden(0) && rejilla->isRowHidden(1));
            QVERIFY(QFile::remove(p.En("BackUp")));
        }
        for (int i = 0; i < 98; ++i)
            EscribirHistorial(p.sesion.conexion, "elopez", Fecha{46000 + i, 60}, "op" + std::to_string(i));
        EscribirHistorial(p.sesion.conexion, "elopez", Fecha{46200, 60}, "op100");
        Historial f(p.sesion, p.marco.get());
        QCOMPARE(cajas.Tomar(), (QStringList{S("Atención|Es necesario eliminar el registro Historial")}));
        QCOMPARE(f.findChild<QTableWidget*>(S("Grid"))->rowCount(), 0);
        QCOMPARE(p.Copias(), (QStringList{S("Historial_22112026_103000.txt")}));
        SaveSetting(S("Modo"), S("c"));
        QVERIFY(Historial(p.sesion).findChild<QPushButton*>(S("B_BorrarBackUp"))->isHidden());
        SaveSetting(S("Modo"), S("NULO"));
    }

    void CompactarYRestaurar() {
        Cajas cajas;
        Programa p("CENTRAL", "CENTRAL");
        QVERIFY(CompactarEnSesion(p.sesion, p.marco.get()));
        QCOMPARE(cajas.Tomar(),
                 (QStringList{S("Compactar...|Proceso de Compactación de Base de Datos\r\n\r\nEsta operación "
                                "tardará un momento, Espere a que finalice"),
                              S("Información...|Compactación Finalizada ")}));
        const auto copia = p.En("BackUp/BD_PradalC_22112026_103000.mdb");
        QVERIFY(QFile::exists(copia));
        p.sesion.conexion.Execute("DELETE FROM T_Vacas");
        cajas.Responder(false);
        QVERIFY(!RestaurarEnSesion(p.sesion, Ruta(copia.toStdString()), p.marco.get()));
        QVERIFY(cajas.Tomar()[0].contains(S("4 ganaderos, 6 vacas, 3 toros")));
        QCOMPARE(p.Leer("SELECT Count(*) AS N FROM T_Vacas"), std::string("0"));
        cajas.Responder(true);
        QVERIFY(RestaurarEnSesion(p.sesion, Ruta(copia.toStdString()), p.marco.get()));
        cajas.Tomar();
        QCOMPARE(p.Leer("SELECT Count(*) AS N FROM T_Vacas"), std::string("6"));
        QVERIFY(p.Leer("SELECT Operacion FROM Historial")
                    .find("Restaurar copia: BD_PradalC_22112026_103000.mdb") != std::string::npos);
        QCOMPARE(p.Copias().size(), 2); // the one that went is one more copy
    }

    // A disk with so much room, a file that somebody holds: told, and the database stands as it stood.
    void DiscosLlenosYCerrojos() {
        for (const int kib : {0, 4, 40, 100, 200}) {
            Cajas cajas;
            Programa p("CENTRAL", "CENTRAL");
            Limpiar(p);
            QVERIFY(ExportarA(p, "elopez"));
            cajas.Tomar();
            QVERIFY(QFile::copy(p.Lapiz("elopez.mdb"), p.Lapiz("bueno.mdb")));
            const auto antes = p.Leer("SELECT * FROM T_Vacas");
            {
                const prueba::DiscoLleno lleno(static_cast<rlim_t>(kib) * 1024);
                QVERIFY(!Importar(p, p.lapiz.path(), "elopez"));
            }
            for (const auto& caja : cajas.Tomar())
                QVERIFY2(caja.startsWith(S("Importación Fallida|")), qPrintable(caja));
            p.sesion.conexion.Cerrar();
            AbrirConexion(p.sesion);
            QCOMPARE(p.Leer("SELECT * FROM T_Vacas"), antes);
            {
                const prueba::DiscoLleno lleno(static_cast<rlim_t>(kib) * 1024);
                QVERIFY(
                    !Hacer<ExportarDS>(p, p.lapiz.path(), [](ExportarDS& f) { f.PonerNombre(S("bueno")); }));
            }
            cajas.Tomar();
            auto bueno =
                AbrirParaLeer(Ruta(p.Lapiz("bueno.mdb").toStdString())); // the former package is still whole
            QCOMPARE(Filas(bueno, "SELECT Count(*) AS N FROM T_Vacas"), std::string("2"));
        }
        Cajas cajas;
        Programa p("CENTRAL", "CENTRAL");
        auto otro = p.Abrir("BD_PradalC.mdb");
        Sql(otro, "BEGIN EXCLUSIVE");
        QVERIFY(!CompactarEnSesion(p.sesion, p.marco.get()));
        QVERIFY(cajas.Tomar()[1].endsWith(
            S("\r\n\r\nNo es posible Realizar la Compactación, salga del Programa y vuelva a intentarlo")));
        QVERIFY(!p.sesion.conexion.Abierta() && p.marco->Peligro().startsWith(S("SIN BASE DE DATOS")));
        otro.Cerrar(); // whoever tries again has it back, and the sign goes
        QVERIFY(CompactarEnSesion(p.sesion, p.marco.get()));
        QVERIFY(p.marco->Peligro().isEmpty());
        Exportar f(p.sesion, p.marco.get());
        f.PonerCarpeta(p.lapiz.path());
        QVERIFY(f.MarcarUsuario(S("svaldes")));
        {
            const prueba::DiscoLleno lleno(4096);
            QVERIFY(!f.Aceptar());
        }
        QVERIFY(p.marco->Peligro().startsWith(S("SIN BASE DE DATOS")));
        QVERIFY(f.Aceptar() && p.marco->Peligro().isEmpty());
        QVERIFY(QFile::rename(p.sesion.rutas.BasePrincipal(), p.En("otra.mdb")));
        cajas.Tomar();
        QVERIFY(!CompactarEnSesion(p.sesion, p.marco.get())); // no file to be compacted
        const auto caja = cajas.Tomar()[1];
        QVERIFY(caja.startsWith(S("Atención...|")) && caja.endsWith(S("vuelva a intentarlo")));
    }

    void LasRutasYLosNombres() {
        Cajas cajas;
        Programa p("CENTRAL", "CENTRAL");
        Sql(p.sesion.conexion, "UPDATE T_Veterinarios SET Usuario = 'a/b' WHERE Id_Veterinario = 3");
        Exportar f(p.sesion, p.marco.get());
        const auto carpeta = p.lapiz.filePath(S("d'Arriba ñ y más"));
        QVERIFY(QDir().mkpath(carpeta));
        f.PonerCarpeta(carpeta);
        QCOMPARE(f.findChild<QComboBox*>(S("Cb_E"))->currentIndex(), 0);
        QVERIFY(f.MarcarUsuario(S("elopez")));
        QCOMPARE(f.findChild<QLineEdit*>(S("Ct_E"))->text(),
                 QDir::toNativeSeparators(carpeta + S("/elopez.mdb")));
        Escribir(carpeta + S("/elopez.mdb")); // an old one goes without a question
        QVERIFY(f.Aceptar());
        QCOMPARE(cajas.Tomar().size(), 1);
        QCOMPARE(Exportar(p.sesion, p.marco.get()).Fichero(),
                 QDir::toNativeSeparators(carpeta + S("/a/b.mdb"))); // the folder is remembered
        f.PonerFichero(carpeta + S("/svaldes.mdb")); // the package of one under the name of another
        cajas.Responder(false);
        QVERIFY(!f.Aceptar() &&
                cajas.Tomar()[0].contains(S("El fichero se llama svaldes y el veterinario es elopez")));
        GuardarAjusteDeVentana(S("ImportarDC/carpeta"),
                               {}); // never gone before: the folder of the last route
        ImportarDC entrada(p.sesion, p.marco.get());
        QVERIFY2(entrada.Fichero().startsWith(QDir::toNativeSeparators(carpeta)),
                 qPrintable(entrada.Fichero()));
        entrada.show();
        auto* escrito = entrada.findChild<QComboBox*>(S("Cb_E"))->lineEdit();
        escrito->selectAll();
        QTest::keyClicks(escrito, S("elo")); // is nobody else, though a longer login begins so
        QVERIFY2(entrada.Fichero().endsWith(S("elo.mdb")), qPrintable(entrada.Fichero()));
        QVERIFY(f.MarcarUsuario(S("a/b")) && !f.Aceptar());
        QVERIFY(cajas.Tomar()[0].contains(S("nombre de fichero")));
        QVERIFY(QFile::remove(p.sesion.rutas.BasePrincipal()));
        QVERIFY(f.MarcarUsuario(S("elopez")) && !f.Aceptar());
        QVERIFY(cajas.Tomar()[0].startsWith(S("Error en el Origen|")));
    }
};

PRUEBA(PruebaFormularios)
#include "PruebaFormularios.moc"
