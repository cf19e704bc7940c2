#include "BaseDePrueba.h"
#include "prueba.h"

#include "store/ErroresSqlite.h"
#include "store/Instruccion.h"

#include <sqlite3.h>

using namespace pastorix;
using prueba::Base;

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
        QTest::addColumn<int>("codigo");
        QTest::addColumn<long>("numero");
        QTest::addColumn<bool>("delFichero");
        using C = CodigoError;
        QTest::newRow("busy") << SQLITE_BUSY << long(C::Bloqueada) << true;
        QTest::newRow("busy, snapshot") << SQLITE_BUSY_SNAPSHOT << long(C::Bloqueada) << true;
        QTest::newRow("locked") << SQLITE_LOCKED << long(C::Bloqueada) << true;
        QTest::newRow("read-only") << SQLITE_READONLY << long(C::SoloLectura) << true;
        QTest::newRow("folder read-only") << SQLITE_READONLY_DIRECTORY << long(C::SoloLectura) << true;
        QTest::newRow("hot journal") << SQLITE_READONLY_ROLLBACK << long(C::SoloLectura) << true;
        QTest::newRow("full") << SQLITE_FULL << long(C::DiscoOFichero) << true;
        QTest::newRow("write") << SQLITE_IOERR_WRITE << long(C::DiscoOFichero) << true;
        QTest::newRow("memory") << SQLITE_NOMEM << long(C::DiscoOFichero) << true;
        QTest::newRow("damage") << SQLITE_CORRUPT_INDEX << long(C::NoSePuedeAbrir) << true;
        QTest::newRow("key") << SQLITE_CONSTRAINT_UNIQUE << long(C::Restriccion) << false;
        QTest::newRow("null") << SQLITE_CONSTRAINT_NOTNULL << long(C::Restriccion) << false;
        QTest::newRow("statement") << SQLITE_ERROR << long(C::Sintaxis) << false;
    }
    void FallosDelFichero() {
        QFETCH(int, codigo);
        const auto e = Error([&] { LanzarError(nullptr, codigo, {}); });
        QVERIFY(e);
        QTEST(e->Numero(), "numero");
        QTEST(e->DelFichero(), "delFichero");
    }

    void UnaInstruccionQueFallaSePuedeRepetir() {
        Base b;
        Instruccion alta(b.c.Manejador(), "INSERT INTO T_Vacas (Id_Vaca) VALUES (?)", "la del usuario");
        alta.Enlazar(1, 7.0).Correr();
        const auto e = Error([&] { alta.Correr(); });
        QVERIFY(e && e->Codigo() == CodigoError::Restriccion);
        QVERIFY2(QByteArray::fromStdString(e->Detalle()).endsWith("\nla del usuario"), e->Detalle().c_str());
        alta.Enlazar(1, 8.0).Correr();
        QCOMPARE(b.Texto("SELECT Id_Vaca FROM T_Vacas ORDER BY Id_Vaca"), std::string("7/8"));
        QVERIFY(Error([&] { Instruccion(b.c.Manejador(), "SELECT nada"); }));
    }

    void MotivosDelSistema() {
        const auto texto = [](std::errc error) {
            return Error(
                [&] { FallarFichero("No se puede copiar", Ruta("/ñ"), std::make_error_code(error)); });
        };
        QCOMPARE(std::string(texto(std::errc::no_space_on_device)->what()),
                 std::string("No se puede copiar: /ñ (el disco está lleno)"));
        const auto raro = texto(std::errc::no_child_process);
        QCOMPARE(std::string(raro->what()), std::string("No se puede copiar: /ñ"));
        QVERIFY(!raro->Detalle().empty());
    }
};

PRUEBA(PruebaErrores)
#include "PruebaErrores.moc"
