#include "Cajas.h"
#include "Instalacion.h"
#include "frame/Principal.h"
#include "frame/SegundoPlano.h"
#include "frame/calendario/Reloj.h"
#include "store/Copias.h"
#include "store/Reemplazo.h"

#include <thread>

using namespace prueba;

// A database that is damaged when somebody enters: told, looked at, restored.
class PruebaAverias : public QObject {
    Q_OBJECT

    // An installation whose personal database has rows, some safety copies, and then a spoilt page.
    struct Averiada : Arrancada {
        Averiada() {
            FijarHoy(Fecha::De(2026, 11, 22, 10, 30));
            Conexion c = Abrir("BD_PradalP.mdb");
            EnGrupo(c, [&] {
                Insertar(c, "T_Ganaderos", "Id_Ganadero=12");
                for (int i = 0; i < 300; ++i)
                    Insertar(c, "T_Vacas", "Id_Vaca, Id_Ganadero=12, Patologia", 12000.0 + i,
                             std::string(300, 'x'));
                Insertar(c, "T_Partos", "Id_Parto=1, Id_Vaca=12000, N_Parto=1, Fecha_Parto=30/10/2026");
            });
        }
        ~Averiada() { FijarHoy(std::nullopt); }
        void Copiar(const char* nombre) const {
            QVERIFY(QDir().mkpath(En("BackUp")));
            CopiarFichero(Ruta(sesion.rutas.BasePersonal().toStdString()),
                          Ruta((En("BackUp/") + nombre).toStdString()));
        }
        static void Estropear(const QString& fichero, int pagina) {
            QFile f(fichero);
            QVERIFY(f.open(QIODevice::ReadWrite));
            f.seek(pagina * 4096LL);
            f.write(QByteArray(4096, 'Z'));
        }
        int PaginaDeVacas() const {
            return int(prueba::Contenido(sesion.rutas.BasePersonal()).lastIndexOf("xxxxxxxx") / 4096);
        }
    };

private Q_SLOTS:
    void SinCopiaSeMira() {
        Averiada i;
        Averiada::Estropear(i.sesion.rutas.BasePersonal(), i.PaginaDeVacas());
        const auto antes = Contenido(i.sesion.rutas.BasePersonal());
        Cajas cajas;
        Principal p(i.sesion);
        EntradaEnPrincipal interfaz(p);
        QVERIFY(EntrarEnBase(i.sesion, 1, {}, {}, interfaz));
        const auto vistas = cajas.Vistas();
        QCOMPARE(vistas.size(), 1);
        QVERIFY2(
            vistas[0].texto.startsWith("La base de datos está dañada. No se lee entera la tabla T_Vacas\n"),
            qPrintable(vistas[0].texto));
        QVERIFY(!vistas[0].texto.contains("malformed") && !vistas[0].detalle.isEmpty());
        QVERIFY(!p.findChild<QLabel*>("SoloLectura")->isHidden());
        // what can be read is read, and reports have their tables
        QCOMPARE(Contar(i.sesion.conexion, "T_Partos"), 1L);
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, Contar(i.sesion.conexion, "T_Vacas"));
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, i.sesion.conexion.Execute("DELETE FROM T_Partos"));
        Insertar(i.sesion.conexion, "X_Temp", "C1=una");
        QCOMPARE(Contar(i.sesion.conexion, "X_Temp"), 1L);
        QVERIFY(Contenido(i.sesion.rutas.BasePersonal()) == antes); // no repair has touched it
        QVERIFY(EntrarEnBase(i.sesion, 0, {}, {}, interfaz));
        QVERIFY(p.findChild<QLabel*>("SoloLectura")->isHidden());
    }

    void LaUltimaCopiaSanaSeOfrece() {
        for (const bool respuesta : {true, false}) {
            Averiada i;
            i.Copiar("BD_PradalP_Orden_01022026_080000.mdb"); // sound, but not the newest
            i.Copiar("DB_PradalP_20112026_091500.mdb");
            i.Copiar("BD_PradalP_21112026_091500.mdb");
            Averiada::Estropear(i.En("BackUp/BD_PradalP_21112026_091500.mdb"), i.PaginaDeVacas());
            i.Copiar("BD_PradalC_22112026_091500.mdb"); // of the other database
            Escribir(i.En("BackUp/BD_PradalP_22112026_101500.mdb"));
            const int pagina = i.PaginaDeVacas();
            {
                Conexion c = i.Abrir("BD_PradalP.mdb");
                Insertar(c, "T_Ganaderos", "Id_Ganadero=57"); // since the copies
            }
            Averiada::Estropear(i.sesion.rutas.BasePersonal(), pagina);
            Cajas cajas;
            cajas.Responder(respuesta);
            InterfazDeEntrada nada;
            QVERIFY(EntrarEnBase(i.sesion, 1, {}, {}, nada));
            const auto vistas = cajas.Vistas();
            QCOMPARE(vistas.size(), respuesta ? 2 : 1);
            QVERIFY2(vistas[0].texto.contains(
                         "20/11/2026 09:15 (DB_PradalP_20112026_091500.mdb):\n1 ganadero, 300 vacas, "
                         "0 toros; último parto, 30/10/2026"),
                     qPrintable(vistas[0].texto));
            QCOMPARE(i.sesion.conexion.SoloLectura(), !respuesta);
            QCOMPARE(Contar(i.sesion.conexion, "T_Ganaderos"), respuesta ? 1L : 2L);
            const auto guardada = i.Contenido("BackUp").filter("BD_PradalP_Averiada_22112026_103000.mdb");
            QCOMPARE(guardada.size(), respuesta ? 1 : 0);
            if (respuesta)
                QCOMPARE(Contar(i.sesion.conexion, "T_Vacas"), 300L);
        }
    }

    // Beyond opening: the start tells it as ever, and a copy, here an Access file, brings it back.
    void LoQueNoSeAbreTambienSeRestaura() {
        for (const int entrada : {0, 1}) { // main, at the start; personal
            Averiada i;
            const QString base = entrada == 0 ? "BD_PradalC" : "BD_PradalP";
            QVERIFY(QDir().mkpath(i.En("BackUp")));
            QVERIFY(QFile::copy(QStringLiteral(PASTORIX_DATOS "/minima.mdb"),
                                i.En("BackUp/") + base + "_Access_01012026_000000.mdb"));
            i.sesion = Sesion();
            i.sesion.rutas = Rutas(i.Carpeta());
            if (entrada == 1)
                QVERIFY(Arrancar(i.sesion));
            Escribir(i.En("Base de Datos/") + base + ".mdb", QByteArray(4096, '\0'));
            InterfazDeEntrada nada;
            const auto entrar = [&] {
                return entrada == 0 ? Arrancar(i.sesion) : EntrarEnBase(i.sesion, 1, {}, {}, nada);
            };
            Cajas cajas;
            cajas.Responder(false);
            QVERIFY(!entrar());
            QCOMPARE(cajas.Tomar().size(), 2);
            cajas.Responder(true);
            QVERIFY(entrar());
            const auto vistas = cajas.Vistas();
            QCOMPARE(vistas.size(), 3); // what happened, what is offered, what was done
            QCOMPARE(vistas[0].titulo, u" Error de acceso"_s);
            QVERIFY2(vistas[1].texto.contains("3 ganaderos, 14 vacas, 15 toros"),
                     qPrintable(vistas[1].texto));
            QCOMPARE(Contar(i.sesion.conexion, "T_Vacas"), 14L);
        }
    }

    void ElSegundoPlanoDejaVivirALasVentanas() {
        int avances = 0, vueltas = 0;
        QTimer reloj;
        connect(&reloj, &QTimer::timeout, this, [&] { ++vueltas; });
        reloj.start(1);
        const auto aqui = std::this_thread::get_id();
        const bool enOtro = EnSegundoPlano(
            [&](const AvanceDeApertura& relevo) {
                relevo(3, 4);
                QThread::msleep(120);
                return std::this_thread::get_id() != aqui;
            },
            [&](int hecho, int total) {
                QCOMPARE(hecho * 10 + total, 34);
                QVERIFY(std::this_thread::get_id() == aqui);
                ++avances;
            });
        QVERIFY(enOtro && avances > 0 && vueltas > 0);
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, EnSegundoPlano([](const auto&) -> int {
                                     throw ErrorAlmacen(CodigoError::Bloqueada, "no");
                                 }));
    }
};

PRUEBA(PruebaAverias)
#include "PruebaAverias.moc"
