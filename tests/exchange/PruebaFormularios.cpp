#include "Filas.h"

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

using namespace prueba;

// The forms, as people go through them: an office and a station with a stick between them.
class PruebaFormularios : public QObject {
    Q_OBJECT

    // An installation that somebody has entered, with the frame.
    struct Programa : Instalacion {
        QTemporaryDir lapiz; // the stick
        std::unique_ptr<Principal> marco;

        explicit Programa(const char* modo, const char* usuario, bool conFilas = true) {
            FijarHoy(Fecha::De(2026, 11, 22, 10, 30));
            GuardarAjusteDeVentana(u"Exportar/claves"_s, true);
            if (!Arrancar(sesion))
                qCritical("the start failed");
            if (conFilas)
                Sql(sesion.conexion, prueba::kOficina);
            sesion.ModoSesion = modo;
            sesion.UsuarioSesion = usuario;
            sesion.BaseElegida = 0;
            QDir(Carpeta()).mkpath(u"Temp"_s);
            QDir(Carpeta()).mkpath(u"BackUp"_s);
            marco = std::make_unique<Principal>(sesion);
        }
        ~Programa() { FijarHoy(std::nullopt); }
        QStringList Copias() const { return QDir(En("BackUp")).entryList(QDir::Files, QDir::Name); }
        std::string Leer(const char* consulta) { return Filas(sesion.conexion, consulta); }
        QString Lapiz(const char* nombre) const { return lapiz.filePath(Q(nombre)); }
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
        return Hacer<ImportarDC>(p, carpeta, [&](ImportarDC& f) { f.PonerUsuario(Q(usuario)); });
    }
    static bool ExportarA(Programa& p, const char* usuario) {
        return Hacer<Exportar>(p, p.lapiz.path(), [&](Exportar& f) { QVERIFY(f.MarcarUsuario(Q(usuario))); });
    }
    // The station's database as the office expects it: without rows that would come to the centre a second time.
    static void Limpiar(Programa& oficina) {
        Sql(oficina.sesion.conexion,
            "DELETE FROM T_IPR WHERE Id_Ganadero IS NULL OR Id_Ganadero IN (1, 40); DELETE FROM T_MAMIVACU "
            "WHERE Id_Ganadero IS NULL;DELETE FROM T_Vacas WHERE Id_Ganadero IS NULL OR Id_Ganadero = 40; "
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
            (QStringList{u"Información|Proceso Finalizado\r\n\r\nRecuerde Importar los datos a: elopez"_s}));
        QCOMPARE(oficina.Leer("SELECT Equipo, Operacion FROM Historial ORDER BY Fecha DESC").substr(0, 38),
                 "CENTRAL|Exportar Datos para: elopez/el"s);

        Programa estacion("VETERINARIO", "elopez", false);
        QVERIFY(Hacer<ImportarDS>(estacion, oficina.lapiz.path()));
        QCOMPARE(cajas.Tomar(), (QStringList{u"Información|Proceso Finalizado con éxito"_s}));
        QCOMPARE(estacion.Leer("SELECT Id_Ganadero FROM T_Ganaderos ORDER BY Id_Ganadero"), "1/12"s);
        QCOMPARE(estacion.Copias(), (QStringList{u"BD_PradalC_22112026_103000.mdb"_s}));
        Sql(estacion.sesion.conexion, "UPDATE T_Vacas SET NombreC = 'Morica' WHERE Id_Vaca = 12001; INSERT "
                                      "INTO T_Vacas (Id_Vaca, Id_Ganadero) VALUES (12003, 12)");
        QVERIFY(Hacer<ExportarDS>(estacion, estacion.lapiz.path()));
        QCOMPARE(cajas.Tomar(), (QStringList{u"Información|Proceso Finalizado con éxito"_s}));

        QVERIFY(Importar(oficina, estacion.lapiz.path(), "ELOPEZ")); // the name of the file in other letters
        QCOMPARE(cajas.Tomar(), (QStringList{u"Información|Proceso Finalizado"_s}));
        QCOMPARE(oficina.Leer("SELECT Id_Vaca, NombreC FROM T_Vacas ORDER BY Id_Vaca"),
                 "12001|Morica/12002|Linda/12003|-/57001|Rubia/57002|Parda"s);
        QCOMPARE(oficina.Leer("SELECT Operacion FROM Historial WHERE Equipo = 'elopez'"),
                 "Exportar Datos al Servidor"s); // travelled in the package
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
                 (QStringList{u"DB_PradalC_22112026_103000.mdb"_s, u"DB_PradalC_22112026_103001.mdb"_s}));
        QVERIFY(QDir(oficina.En("Temp")).isEmpty() && oficina.marco->Peligro().isEmpty());

        // an older package than the one merged last: asked about, and nothing done
        Sql(estacion.sesion.conexion, "DELETE FROM Historial; INSERT INTO Historial VALUES ('elopez', "
                                      "'2026-11-01', 'z'); DELETE FROM T_Vacas WHERE Id_Vaca = 12003");
        estacion.sesion.conexion.Cerrar();
        CopiarFichero(Ruta(estacion.sesion.rutas.BasePrincipal().toStdString()),
                      Ruta(estacion.Lapiz("elopez.mdb").toStdString()));
        cajas.Responder(false);
        QVERIFY(!Importar(oficina, estacion.lapiz.path(), "elopez"));
        const auto vistas = cajas.Vistas();
        QVERIFY(vistas.size() == 1 && vistas[0].titulo == Q(kTituloDeAviso) &&
                vistas[0].texto.contains(u"más antiguo"_s) &&
                vistas[0].texto.contains(u"Desaparece 1 vaca"_s));
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
        QVERIFY(cajas.Vistas().at(0).texto.contains(u"se pierde"_s));
        QCOMPARE(estacion.Leer("SELECT Count(*) AS N FROM T_Ganaderos"), "4"s);
        QVERIFY(estacion.Copias().isEmpty());
    }

    // What stands in the way of each route: the box, and that nothing has changed.
    void LoQueNoSePuede_data() {
        // fichero: what lies on the stick
        for (const char* ruta : {"DC", "DS", "TC"}) {
            const auto nueva = [&](const char* caso, const char* fichero, const char* caja) {
                Caso(qPrintable(Q(ruta) + u' ' + Q(caso)), Q(ruta), Q(fichero), Q(caja));
            };
            const char* fallo = Q(ruta) == u"TC"_s ? "Exportación Fallida|" : "Importación Fallida|";
            nueva("absent", "",
                  Q(ruta) == u"DC"_s   ? "Error en el Origen|Base de Datos: "
                  : Q(ruta) == u"DS"_s ? "Atención|No existe el fichero de Importación: "
                                       : "Atención|El fichero de Importación: ");
            nueva("cut short", "recortada.mdb", fallo);
            nueva("other password", "otra-clave.mdb", fallo);
            nueva("lacks a table", "sin-T_Partos.mdb", fallo);
            nueva("rubbish", "?", fallo);
        }
    }
    void LoQueNoSePuede() {
        const auto [ruta, fichero, caja] = DelCaso<QString, QString, QString>();
        Cajas cajas;
        Programa p("CENTRAL", "elopez");
        const auto nombre = ruta == u"TC"_s ? u"xToros.mdb"_s : u"elopez.mdb"_s;
        if (fichero == u"?"_s)
            Escribir(p.lapiz.filePath(nombre), QByteArray(5000, 'x'));
        else if (!fichero.isEmpty())
            QVERIFY(QFile::copy(Q(PASTORIX_DATOS "/") + fichero, p.lapiz.filePath(nombre)));
        const auto antes = p.Leer("SELECT * FROM T_Vacas") + p.Leer("SELECT * FROM Historial");
        const bool hecho = ruta == u"DC"_s   ? Importar(p, p.lapiz.path(), "elopez")
                           : ruta == u"DS"_s ? Hacer<ImportarDS>(p, p.lapiz.path())
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
        QVERIFY(!Hacer<ExportarDS>(p, carpeta) && !Hacer<ImportarDS>(p, carpeta));
        QVERIFY(!Importar(p, carpeta, "BD_PradalC"));
        QVERIFY(!Hacer<Exp_TC>(p, carpeta, [&](Exp_TC& f) { f.PonerFichero(p.sesion.rutas.BaseToros()); }));
        for (const auto& caja : cajas.Tomar())
            QVERIFY2(caja.contains(u"Fallida|"_s) && caja.contains(u"propi"_s), qPrintable(caja));
        QCOMPARE(p.Leer("SELECT Count(*) AS N FROM T_Vacas"), "6"s);
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
            f.PonerUsuario(u"elopez"_s);
            QVERIFY(!f.Aceptar());
            QCOMPARE(
                cajas.Tomar(),
                (QStringList{u"Importación Fallida|No hay Ganaderos en la Base de datos de Importación"_s}));
            QVERIFY(QApplication::overrideCursor());
        }
        QVERIFY(!QApplication::overrideCursor() && p.sesion.conexion.Fichero().ends_with("xPradalC.mdb"));
        QVERIFY(p.marco->Peligro().startsWith(u"COPIA DE TRABAJO"_s));
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, p.sesion.conexion.Execute("DELETE FROM T_Vacas"));
        // nothing of it goes anywhere
        QVERIFY(!ExportarA(p, "svaldes") && !Hacer<Exp_TC>(p, p.lapiz.path()) &&
                !CompactarEnSesion(p.sesion, p.marco.get()));
        QCOMPARE(cajas.Tomar().filter(u"copia de trabajo"_s).size(), 3);
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
        QVERIFY(QFile::copy(Q(PASTORIX_DATOS "/paquetes/VETERINARIO.mdb"), paquete));
        const auto bytes = Contenido(paquete);
        const auto unir = [&](const char* codigo, const char* usuario,
                              std::vector<std::pair<QString, QString>> ganaderos) {
            return Hacer<ImportarDC>(p, p.lapiz.path(), [&](ImportarDC& f) {
                f.PonerUsuario(u"veterinario"_s);
                f.ResponderALaUnion({Q(codigo), Q(usuario), std::move(ganaderos)});
            });
        };
        const auto detectado = u"Información|Detectado un veterinario nuevo que se une a la Base Central"_s;
        const auto cancelada = u"Atención|Operación Cancelada por el Usuario"_s;
        QVERIFY(!unir("", "", {}));
        QCOMPARE(
            cajas.Tomar(),
            (QStringList{detectado,
                         u"Atención|Debe indicar el código del veterinario para unirse a la base central"_s,
                         cancelada}));
        QVERIFY(!unir("7", "", {}));
        QCOMPARE(cajas.Tomar()[1],
                 u"Atención|Debe indicar el nombre que usará el veterinario para iniciar la sesión"_s);
        cajas.Responder(false); // a login that means something else
        QVERIFY(!unir("7", "Central", {{u"2"_s, u"701"_s}}) && cajas.Tomar()[1].contains(u"Central"_s));
        QVERIFY(!unir("7", "nueva", {}));
        QVERIFY(cajas.Tomar()[1].startsWith(u"Atención|Debe indicar la nueva codificación"_s));
        QCOMPARE(p.Leer("SELECT Count(*) AS N FROM T_Veterinarios"), "3"s);
        cajas.Responder(true); // rows of the farmer who stays out
        QVERIFY(unir("7", "nueva", {{u"2"_s, u"702"_s}, {u"14"_s, u"714"_s}, {u"900"_s, u"7900"_s}}));
        const auto vistas = cajas.Tomar();
        QVERIFY(vistas[0] == detectado && vistas[2] == u"Información|Proceso Finalizado"_s &&
                vistas[3].contains(u"números de toro"_s));
        QCOMPARE(p.Leer("SELECT Usuario FROM T_Veterinarios WHERE Id_Veterinario = 7"), "nueva"s);
        QVERIFY(p.Leer("SELECT Id_Vaca FROM T_Vacas WHERE Id_Ganadero = 702").starts_with("702001/702002"));
        QVERIFY(!p.Leer("SELECT Id_Vaca FROM T_Vacas WHERE Id_Ganadero = 9").empty()); // under the old code
        QVERIFY(Contenido(paquete) == bytes);
    }

    void LosFormulariosDeUnaUnion() {
        Cajas cajas;
        Programa p("CENTRAL", "CENTRAL");
        Base paquete;
        Sql(paquete.c, "INSERT INTO T_Veterinarios (Id_Veterinario, NombreVet, ApellidosVet, Usuario) VALUES "
                       "(1, 'VALNOR', '', ''), (2, 'Ángeles', 'Muñiz', 'am');INSERT INTO T_Ganaderos "
                       "(Id_Ganadero, Nombre, TorosComun) VALUES (1, 'C', 'Sí'), (2, 'R', 'No')");
        EstadoDeUnion estado{Ruta(paquete.fichero), 0};
        {
            VeterinarioImp f(p.sesion, estado);
            QCOMPARE(estado.ResultadoImportacion, std::uint8_t(99));
            QCOMPARE(f.findChild<QLabel*>(u"Label1(4)"_s)->text(), u"Nombre: Ángeles Muñiz"_s);
            QCOMPARE(f.findChild<QLabel*>(u"Label1(5)"_s)->text(), u"Código: 2"_s);
            QTest::keyClicks(f.findChild<QLineEdit*>(u"Ct_Est(0)"_s), u"7a"_s);
            QTest::keyClicks(f.findChild<QLineEdit*>(u"Ct_Est(1)"_s), u"d'Eva"_s); // fails in the statement
            f.findChild<QPushButton*>(u"B_Aceptar"_s)->click();
            QVERIFY(cajas.Tomar()[0].startsWith(u" Error inesperado|"_s));
            f.findChild<QLineEdit*>(u"Ct_Est(1)"_s)->clear();
            QTest::keyClicks(f.findChild<QLineEdit*>(u"Ct_Est(1)"_s), u"nueva"_s);
            f.findChild<QPushButton*>(u"B_Aceptar"_s)->click();
            QCOMPARE(estado.ResultadoImportacion, std::uint8_t(0));
        }
        {
            VeterinarioImp1 f(p.sesion, estado);
            auto* rejilla = f.findChild<QTableWidget*>(u"Grid"_s);
            QCOMPARE(rejilla->rowCount(), 1);
            f.show();
            rejilla->setFocus();
            QTest::keyClicks(rejilla, u"7"_s);
            auto* editor = rejilla->findChild<QLineEdit*>(u"Ct_Est(0)"_s);
            QVERIFY(editor);
            QTest::keyClicks(editor, u"x02"_s);
            QTest::keyClick(editor, Qt::Key_Return);
            QVERIFY(f.isVisible());
            f.findChild<QPushButton*>(u"B_Aceptar"_s)->click();
            QCOMPARE(estado.ResultadoImportacion, std::uint8_t(0));
        }
        QUEDA(paquete.c, "Id_Ganadero, Id_Veterinario FROM T_Ganaderos ORDER BY Id_Ganadero", "1|7/702|7");
        { // teats of a cow that is gone stand in the way of the new key
            Sql(paquete.c, "INSERT INTO T_Ganaderos (Id_Ganadero, TorosComun) VALUES (3, 'No'); INSERT INTO "
                           "T_Vacas (Id_Vaca, Id_Ganadero) VALUES (3001, 3); INSERT INTO T_Mamitis (Id_Vaca, "
                           "Id_Teto) VALUES (3001, 1), (703001, 1)");
            VeterinarioImp1 f(p.sesion, estado);
            QVERIFY(f.Poner(u"3"_s, u"703"_s) && !f.Aceptar());
            QVERIFY(cajas.Tomar()[0].startsWith(u" Error inesperado|"_s));
        }
        for (const char* veterinarios :
             {"DELETE FROM T_Veterinarios", "INSERT INTO T_Veterinarios (NombreVet) VALUES ('a'), ('b')"}) {
            Sql(paquete.c, veterinarios);
            VeterinarioImp f(p.sesion, estado);
            QVERIFY(!f.findChild<QPushButton*>(u"B_Aceptar"_s)->isEnabled());
            if (Q(veterinarios).startsWith(u"DELETE"_s))
                QCOMPARE(f.findChild<QLabel*>(u"Label1(4)"_s)->text(), u"(No se ha encontrado ninguno)"_s);
            else
                QCOMPARE(cajas.Tomar(),
                         (QStringList{u"Atención|La Base de datos a unir al Central, no es válida por tener "
                                      "mas de 1 veterinario, aparte de VALNOR"_s}));
        }
    }

    void LosTorosVanYVienen() {
        Cajas cajas;
        Programa oficina("CENTRAL", "CENTRAL");
        QVERIFY(Hacer<Exp_TC>(oficina, oficina.lapiz.path(), [](Exp_TC& f) {
            QCOMPARE(f.findChild<QListWidget*>(u"List1"_s)->item(0)->text(), u"Toros IA ... Cuco"_s);
        }));
        QVERIFY(cajas.Tomar()[0].startsWith(u"Información|Exportación Realizada con Éxito\r\n\r\n Recuerde "
                                            "Importar en cada Veterinario el Fichero: "_s));
        Programa estacion("VETERINARIO", "elopez");
        Sql(estacion.sesion.conexion,
            "UPDATE T_Sementales SET NombreC = 'Otro', Crotal = 'X' WHERE Id_Semental = 1; UPDATE "
            "T_Servicios SET Semental = 'Otro' WHERE Id_Semental = 1");
        cajas.Responder(false);
        QVERIFY(!Hacer<Imp_TC>(estacion, oficina.lapiz.path()));
        QVERIFY(
            cajas.Tomar()[0].startsWith(u"Atención|2 servicios y 0 partos cambiarán el nombre del toro"_s));
        QCOMPARE(estacion.Leer("SELECT Semental FROM T_Servicios WHERE Id_Semental = 1"), "Otro/Otro"s);
        cajas.Responder(true);
        QVERIFY(Hacer<Imp_TC>(estacion, oficina.lapiz.path()));
        QCOMPARE(cajas.Tomar()[1], u"Información|Importación Realizada con Éxito"_s);
        QCOMPARE(estacion.Leer("SELECT Semental FROM T_Servicios WHERE Id_Semental = 1"), "Cuco/Cuco"s);
        QCOMPARE(estacion.Copias(), (QStringList{u"Toros_22112026_103000.mdb"_s}));
        Sql(oficina.sesion.conexion, "UPDATE T_Ganaderos SET TorosComun = 'No'");
        QVERIFY(!Hacer<Exp_TC>(oficina, oficina.lapiz.path()));
        QCOMPARE(cajas.Tomar(), (QStringList{u"Atención|No hay Toros que Exportar"_s}));
    }

    void UnGanaderoPasaALaOtraBase() {
        Cajas cajas;
        Programa p("CENTRAL", "CENTRAL");
        Sql(p.sesion.conexion,
            "UPDATE T_Ganaderos SET FechaBaja = '2024-01-01' WHERE Id_Ganadero IN (12, 57)");
        PasoGanaderos f(p.sesion, u" Paso a Pastorix Personal"_s, p.marco.get());
        QVERIFY(!f.Aceptar());
        QCOMPARE(cajas.Tomar(), (QStringList{u"Información|Debe Seleccionar un Ganadero"_s}));
        auto* lista = f.findChild<QListWidget*>(u"lstGanadero"_s);
        QVERIFY(lista->item(0)->text() == u"José Riesgo"_s && f.MarcarGanadero(12) && f.MarcarGanadero(57));
        QCOMPARE(lista->item(1)->checkState(), Qt::Unchecked);
        cajas.Responder(false);
        QVERIFY(!f.Aceptar());
        const auto pregunta = cajas.Vistas();
        QVERIFY(pregunta.size() == 1 && pregunta[0].titulo == u" Confirmación"_s &&
                pregunta[0].texto == u"Confirme el Paso de Datos del Ganadero: José Riesgo"_s &&
                pregunta[0].porDefectoSi);
        cajas.Responder(true);
        QVERIFY(f.Aceptar());
        const auto vistas = cajas.Tomar();
        QVERIFY(vistas[1] == u" Información|Proceso Finalizado"_s && vistas[2].contains(u"T_MAMIVACU"_s));
        auto personal = p.Abrir("BD_PradalP.mdb");
        QUEDA(personal, "Id_Ganadero FROM T_Vacas", "57/57");
        QVERIFY(QFile::exists(p.En("Temp/xTemp.mdb")) &&
                p.Copias() == QStringList{u"BD_PradalP_22112026_103000.mdb"_s});
        personal.Cerrar();
        QVERIFY(QFile::remove(p.sesion.rutas.BasePersonal()));
        cajas.Responder(true);
        QVERIFY(!f.Aceptar());
        QVERIFY(cajas.Tomar()[1].startsWith(u"Atención!!!|Error en localización de Base de datos "
                                            "Personal.\r\n\r\nCompruebe que el Fichero:\r\n"_s));
    }

    void ElHistorial() {
        Cajas cajas;
        Programa p("CENTRAL", "CENTRAL");
        Sql(p.sesion.conexion, "DELETE FROM Historial");
        for (int i = 0; i < 100; ++i)
            EscribirHistorial(p.sesion.conexion, "elopez", Fecha{46000 + i, 60}, "op" + std::to_string(i));
        {
            Historial f(p.sesion, p.marco.get());
            auto* rejilla = f.findChild<QTableWidget*>(u"Grid"_s);
            QCOMPARE(rejilla->rowCount(), 100);
            QVERIFY(rejilla->item(0, 3)->text() == u"op99"_s && rejilla->item(0, 2)->text() == u"00:01:00"_s);
            QTest::keyClicks(f.findChild<QLineEdit*>(u"Buscar"_s), u"OP42"_s);
            QVERIFY(rejilla->isRowHidden(0) && !rejilla->isRowHidden(57));
            cajas.Responder(false);
            f.BorrarBackUp();
            const auto pregunta = cajas.Vistas();
            QCOMPARE(pregunta[0].texto,
                     u"Confirme Eliminar todo el contenido Backup de Importaciones de Clientes."_s);
            QVERIFY(pregunta[0].titulo == u"Confirmación"_s && !pregunta[0].porDefectoSi &&
                    pregunta[0].causa.startsWith(u"0 ficheros"_s));
            Sql(p.sesion.conexion, "DELETE FROM Historial WHERE Operacion <> 'op7' AND Operacion <> 'op42'");
            QVERIFY(QDir(p.En("BackUp")).removeRecursively());
            Escribir(p.En("BackUp")); // no room for the text: the rows stay
            cajas.Responder(true);
            f.Vaciar();
            QCOMPARE(cajas.Tomar()[0], u"Confirmar|Confirmar Eliminar Historial de Transacciones"_s);
            QVERIFY(rejilla->rowCount() == 2 && !rejilla->isRowHidden(0) && rejilla->isRowHidden(1));
            QVERIFY(QFile::remove(p.En("BackUp")));
        }
        for (int i = 0; i < 98; ++i)
            EscribirHistorial(p.sesion.conexion, "elopez", Fecha{46000 + i, 60}, "op" + std::to_string(i));
        EscribirHistorial(p.sesion.conexion, "elopez", Fecha{46200, 60}, "op100");
        Historial f(p.sesion, p.marco.get());
        QCOMPARE(cajas.Tomar(), (QStringList{u"Atención|Es necesario eliminar el registro Historial"_s}));
        QCOMPARE(f.findChild<QTableWidget*>(u"Grid"_s)->rowCount(), 0);
        QCOMPARE(p.Copias(), (QStringList{u"Historial_22112026_103000.txt"_s}));
        SaveSetting(u"Modo"_s, u"c"_s);
        QVERIFY(Historial(p.sesion).findChild<QPushButton*>(u"B_BorrarBackUp"_s)->isHidden());
        SaveSetting(u"Modo"_s, u"NULO"_s);
    }

    void CompactarYRestaurar() {
        Cajas cajas;
        Programa p("CENTRAL", "CENTRAL");
        QVERIFY(CompactarEnSesion(p.sesion, p.marco.get()));
        QCOMPARE(cajas.Tomar(),
                 (QStringList{u"Compactar...|Proceso de Compactación de Base de Datos\r\n\r\nEsta operación "
                              "tardará un momento, Espere a que finalice"_s,
                              u"Información...|Compactación Finalizada "_s}));
        const auto copia = p.En("BackUp/BD_PradalC_22112026_103000.mdb");
        QVERIFY(QFile::exists(copia));
        p.sesion.conexion.Execute("DELETE FROM T_Vacas");
        cajas.Responder(false);
        QVERIFY(!RestaurarEnSesion(p.sesion, Ruta(copia.toStdString()), p.marco.get()));
        QVERIFY(cajas.Tomar()[0].contains(u"4 ganaderos, 6 vacas, 3 toros"_s));
        QCOMPARE(p.Leer("SELECT Count(*) AS N FROM T_Vacas"), "0"s);
        cajas.Responder(true);
        QVERIFY(RestaurarEnSesion(p.sesion, Ruta(copia.toStdString()), p.marco.get()));
        cajas.Tomar();
        QCOMPARE(p.Leer("SELECT Count(*) AS N FROM T_Vacas"), "6"s);
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
                const DiscoLleno lleno(static_cast<rlim_t>(kib) * 1024);
                QVERIFY(!Importar(p, p.lapiz.path(), "elopez"));
            }
            for (const auto& caja : cajas.Tomar())
                QVERIFY2(caja.startsWith(u"Importación Fallida|"_s), qPrintable(caja));
            p.sesion.conexion.Cerrar();
            AbrirConexion(p.sesion);
            QCOMPARE(p.Leer("SELECT * FROM T_Vacas"), antes);
            {
                const DiscoLleno lleno(static_cast<rlim_t>(kib) * 1024);
                QVERIFY(
                    !Hacer<ExportarDS>(p, p.lapiz.path(), [](ExportarDS& f) { f.PonerNombre(u"bueno"_s); }));
            }
            cajas.Tomar();
            auto bueno =
                AbrirParaLeer(Ruta(p.Lapiz("bueno.mdb").toStdString())); // the former package is still whole
            QUEDA(bueno, "Count(*) AS N FROM T_Vacas", "2");
        }
        Cajas cajas;
        Programa p("CENTRAL", "CENTRAL");
        auto otro = p.Abrir("BD_PradalC.mdb");
        Sql(otro, "BEGIN EXCLUSIVE");
        QVERIFY(!CompactarEnSesion(p.sesion, p.marco.get()));
        QVERIFY(cajas.Tomar()[1].endsWith(
            u"\r\n\r\nNo es posible Realizar la Compactación, salga del Programa y vuelva a intentarlo"_s));
        QVERIFY(!p.sesion.conexion.Abierta() && p.marco->Peligro().startsWith(u"SIN BASE DE DATOS"_s));
        otro.Cerrar(); // whoever tries again has it back, and the sign goes
        QVERIFY(CompactarEnSesion(p.sesion, p.marco.get()));
        QVERIFY(p.marco->Peligro().isEmpty());
        Exportar f(p.sesion, p.marco.get());
        f.PonerCarpeta(p.lapiz.path());
        QVERIFY(f.MarcarUsuario(u"svaldes"_s));
        {
            const prueba::DiscoLleno lleno(4096);
            QVERIFY(!f.Aceptar());
        }
        QVERIFY(p.marco->Peligro().startsWith(u"SIN BASE DE DATOS"_s));
        QVERIFY(f.Aceptar() && p.marco->Peligro().isEmpty());
        QVERIFY(QFile::rename(p.sesion.rutas.BasePrincipal(), p.En("otra.mdb")));
        cajas.Tomar();
        QVERIFY(!CompactarEnSesion(p.sesion, p.marco.get())); // no file to be compacted
        const auto caja = cajas.Tomar()[1];
        QVERIFY(caja.startsWith(u"Atención...|"_s) && caja.endsWith(u"vuelva a intentarlo"_s));
    }

    void LasRutasYLosNombres() {
        Cajas cajas;
        Programa p("CENTRAL", "CENTRAL");
        Sql(p.sesion.conexion, "UPDATE T_Veterinarios SET Usuario = 'a/b' WHERE Id_Veterinario = 3");
        Exportar f(p.sesion, p.marco.get());
        const auto carpeta = p.lapiz.filePath(u"d'Arriba ñ y más"_s);
        QVERIFY(QDir().mkpath(carpeta));
        f.PonerCarpeta(carpeta);
        QCOMPARE(f.findChild<QComboBox*>(u"Cb_E"_s)->currentIndex(), 0);
        QVERIFY(f.MarcarUsuario(u"elopez"_s));
        QCOMPARE(f.findChild<QLineEdit*>(u"Ct_E"_s)->text(),
                 QDir::toNativeSeparators(carpeta + u"/elopez.mdb"_s));
        Escribir(carpeta + u"/elopez.mdb"_s); // an old one goes without a question
        QVERIFY(f.Aceptar());
        QCOMPARE(cajas.Tomar().size(), 1);
        QCOMPARE(Exportar(p.sesion, p.marco.get()).Fichero(),
                 QDir::toNativeSeparators(carpeta + u"/a/b.mdb"_s)); // the folder is remembered
        f.PonerFichero(carpeta + u"/svaldes.mdb"_s); // the package of one under the name of another
        cajas.Responder(false);
        QVERIFY(!f.Aceptar() &&
                cajas.Tomar()[0].contains(u"El fichero se llama svaldes y el veterinario es elopez"_s));
        GuardarAjusteDeVentana(u"ImportarDC/carpeta"_s,
                               {}); // never gone before: the folder of the last route
        ImportarDC entrada(p.sesion, p.marco.get());
        QVERIFY2(entrada.Fichero().startsWith(QDir::toNativeSeparators(carpeta)),
                 qPrintable(entrada.Fichero()));
        entrada.show();
        auto* escrito = entrada.findChild<QComboBox*>(u"Cb_E"_s)->lineEdit();
        escrito->selectAll();
        QTest::keyClicks(escrito, u"elo"_s); // is nobody else, though a longer login begins so
        QVERIFY2(entrada.Fichero().endsWith(u"elo.mdb"_s), qPrintable(entrada.Fichero()));
        QVERIFY(f.MarcarUsuario(u"a/b"_s) && !f.Aceptar());
        QVERIFY(cajas.Tomar()[0].contains(u"nombre de fichero"_s));
        QVERIFY(QFile::remove(p.sesion.rutas.BasePrincipal()));
        QVERIFY(f.MarcarUsuario(u"elopez"_s) && !f.Aceptar());
        QVERIFY(cajas.Tomar()[0].startsWith(u"Error en el Origen|"_s));
    }
};

PRUEBA(PruebaFormularios)
#include "PruebaFormularios.moc"
