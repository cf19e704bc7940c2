#include "BaseDePrueba.h"

#include "store/Errores.h"
#include "store/ErroresSqlite.h"
#include "store/Ficheros.h"
#include "store/Instruccion.h"
#include "store/Valor.h"

using namespace prueba;

class PruebaValores : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void Fechas_data() {
        for (const auto& caso :
             QString("1/1/01=2001-01-01|31/12/49=2049-12-31|1/1/50=1950-01-01|29/02/2004=2004-02-29|29/2/"
                     "05=|31/02/01=|1/1/205=|12/2005=|a/b/cc=|1/1/2005/1=|-1/1/05=| 5/3/2026 "
                     "=2026-03-05|0/1/01=|1/13/01=|30/12/1899=1899-12-30|1/3/2205=2205-03-01|1/1/0050=")
                 .split(u'|'))
            Caso(qPrintable(caso), caso.section(u'=', 0, 0), caso.section(u'=', 1));
    }
    void Fechas() {
        const auto [texto, iso] = DelCaso<QString, QString>();
        const auto f = FechaDeTexto(texto.toStdString());
        QCOMPARE(Q(f ? FechaIso(*f) : std::string()), iso);
        if (f)
            QCOMPARE(FechaDeIso(iso.toStdString()), f);
    }
    void DiasYFormatos() {
        const Fecha origen{0, 0};
        QCOMPARE(FechaIso(origen), "1899-12-30"s);
        const Fecha f = *Fecha::De(2024, 2, 29, 7, 5, 9);
        QCOMPARE(FechaIso(f), "2024-02-29 07:05:09"s);
        QCOMPARE(FechaDeIso("2024-02-29 07:05:09"), f);
        QVERIFY(!FechaDeIso("2024-02-29T07:05:09") && !FechaDeIso("2024-2-29") && !FechaDeIso("2024-02-30"));
        QCOMPARE(FormatoFecha(f, "dd/mm/yy ddmmyyyy hhnnss"), "29/02/24 29022024 070509"s);
        QCOMPARE(f.UltimoDelMes().DiaDelMes(), 29);
        QCOMPARE((*Fecha::De(2001, 3, 1)).dia - (*Fecha::De(2000, 12, 1)).dia, 90);
        QCOMPARE((*Fecha::De(1899, 12, 29)).dia, -1);
    }
    void Numeros() {
        double n = -1;
        for (const auto& [texto, valor] : {std::pair{"2,5", 2.5},
                                           {"2.5", 2.5},
                                           {" 12 ", 12.0},
                                           {"-0,5", -0.5},
                                           {"1e3", 1000.0},
                                           {",5", 0.5},
                                           {"+3", 3.0}}) {
            QVERIFY2(NumeroDeTexto(texto, n), texto);
            QCOMPARE(n, valor);
        }
        for (const char* malo :
             {"", " ", "doce", "1,2,3", "1.234,5", "12 x", "nan", "inf", "0x10", "++1", "1e999", "-"})
            QVERIFY2(!NumeroDeTexto(malo, n), malo);
        QCOMPARE(TextoNumero(1200044), "1200044"s);
        QCOMPARE(TextoNumero(-0.0), "0"s);
        QCOMPARE(TextoNumero(0.1 + 0.2), "0,3"s);
        QCOMPARE(TextoNumero(1e20), "1E+20"s);
        QCOMPARE(TextoDe(Valor()), std::string());
    }
    void Ficheros() {
        QTemporaryDir carpeta;
        const auto ruta = [&](const char* n) { return Ruta(carpeta.filePath(Q(n)).toStdString()); };
        const auto escribir = [&](const char* n, const char* t) {
            QFile f(carpeta.filePath(Q(n)));
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(t);
        };
        escribir("a ñ.txt", "uno");
        escribir("b.txt", "dos");
        CopiarFichero(ruta("a ñ.txt"), ruta("b.txt"));
        QCOMPARE(Contenido(carpeta.filePath(u"b.txt"_s)), QByteArray("uno"));
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, CopiarFichero(ruta("no.txt"), ruta("b.txt")));
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, CopiarFichero(ruta("b.txt"), ruta("no/hay/x.txt")));
        QCOMPARE(QDir(carpeta.path()).entryList(QDir::Files).size(), 2); // no leftovers
        QDir(carpeta.path()).mkdir(u"Backup"_s);
        QCOMPARE(EntradaSinCaso(ruta("."), "BackUp").filename(), std::filesystem::path("Backup"));
        QCOMPARE(EntradaSinCaso(ruta("."), "Otra").filename(), std::filesystem::path("Otra"));
    }
};

// What a failure says to whom: plain Spanish to the user, everything else to the technician.
class PruebaErrores : public QObject {
    Q_OBJECT

    static std::optional<ErrorAlmacen> Error(const std::function<void()>& f) {
        try {
            f();
        } catch (const ErrorAlmacen& e) {
            return e;
        }
        return std::nullopt;
    }

private Q_SLOTS:
    void NingunCodigoHablaIngles() {
        for (int codigo = 1; codigo < 30; ++codigo)
            for (const int extendido : {0, 1, 3, 6, 8})
                if (codigo != SQLITE_ROW && codigo != SQLITE_DONE) {
                    const int c = codigo | extendido << 8;
                    const auto e = Error([&] { LanzarError(nullptr, c, "SELECT x"); });
                    QVERIFY(e);
                    QVERIFY2(!QByteArray(e->what()).contains(sqlite3_errstr(c)), e->what());
                    QVERIFY(!QByteArray(e->what()).contains("SELECT"));
                    QCOMPARE(e->Detalle(), std::string(sqlite3_errstr(c)) + " (SQLite " + std::to_string(c) +
                                               ")\nSELECT x");
                    QCOMPARE(e->Motor(), c);
                }
    }

    // A rule that passes over failures must not pass over these.
    void FallosDelFichero_data() {
        using C = CodigoError;
        Caso("busy", SQLITE_BUSY, long(C::Bloqueada), true);
        Caso("busy, snapshot", SQLITE_BUSY_SNAPSHOT, long(C::Bloqueada), true);
        Caso("locked", SQLITE_LOCKED, long(C::Bloqueada), true);
        Caso("read-only", SQLITE_READONLY, long(C::SoloLectura), true);
        Caso("folder read-only", SQLITE_READONLY_DIRECTORY, long(C::SoloLectura), true);
        Caso("hot journal", SQLITE_READONLY_ROLLBACK, long(C::SoloLectura), true);
        Caso("full", SQLITE_FULL, long(C::DiscoOFichero), true);
        Caso("write", SQLITE_IOERR_WRITE, long(C::DiscoOFichero), true);
        Caso("memory", SQLITE_NOMEM, long(C::DiscoOFichero), true);
        Caso("damage", SQLITE_CORRUPT_INDEX, long(C::NoSePuedeAbrir), true);
        Caso("key", SQLITE_CONSTRAINT_UNIQUE, long(C::Restriccion), false);
        Caso("null", SQLITE_CONSTRAINT_NOTNULL, long(C::Restriccion), false);
        Caso("statement", SQLITE_ERROR, long(C::Sintaxis), false);
    }
    void FallosDelFichero() {
        int codigo = 0;
        long numero = 0;
        bool delFichero = false;
        DelCaso(codigo, numero, delFichero);
        const auto e = Error([&] { LanzarError(nullptr, codigo, {}); });
        QVERIFY(e);
        QCOMPARE(e->Numero(), numero);
        QCOMPARE(e->DelFichero(), delFichero);
    }

    void UnaInstruccionQueFallaSePuedeRepetir() {
        Base b;
        Instruccion alta(b.c.Manejador(), "INSERT INTO T_Vacas (Id_Vaca) VALUES (?)", "la del usuario");
        alta.Enlazar(1, 7.0).Correr();
        const auto e = Error([&] { alta.Correr(); });
        QVERIFY(e && e->Codigo() == CodigoError::Restriccion);
        QVERIFY2(QByteArray::fromStdString(e->Detalle()).endsWith("\nla del usuario"), e->Detalle().c_str());
        alta.Enlazar(1, 8.0).Correr();
        QUEDA(b, "Id_Vaca FROM T_Vacas ORDER BY Id_Vaca", "7/8");
        QVERIFY(Error([&] { Instruccion(b.c.Manejador(), "SELECT nada"); }));
    }

    void MotivosDelSistema() {
        const auto texto = [](std::errc error) {
            return Error(
                [&] { FallarFichero("No se puede copiar", Ruta("/ñ"), std::make_error_code(error)); });
        };
        QCOMPARE(std::string(texto(std::errc::no_space_on_device)->what()),
                 "No se puede copiar: /ñ (el disco está lleno)"s);
        const auto raro = texto(std::errc::no_child_process);
        QCOMPARE(std::string(raro->what()), "No se puede copiar: /ñ"s);
        QVERIFY(!raro->Detalle().empty());
    }
};

PRUEBA(PruebaValores)
PRUEBA(PruebaErrores)
#include "PruebaValores.moc"
