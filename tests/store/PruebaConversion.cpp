#include "BaseDePrueba.h"
#include "prueba.h"

#include "access/EscritorAccess.h"
#include "store/Conversion.h"
#include "store/Instruccion.h"
#include "store/Verificacion.h"

#include <sqlite3.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include <set>

using namespace pastorix;
using prueba::Base;
using prueba::Sql;

// Real Access files and broken ones, brought in as the program does at its first start.
class PruebaConversion : public QObject {
    Q_OBJECT

    QTemporaryDir m_carpeta;
    int m_n = 0;

    QString Copia(const QString& origen) {
        const auto destino =
            m_carpeta.filePath(QStringLiteral("%1_%2").arg(++m_n).arg(QFileInfo(origen).fileName()));
        QFile::copy(origen, destino);
        QFile::setPermissions(destino, QFile::ReadOwner | QFile::WriteOwner);
        return destino;
    }
    static QByteArray Huella(const QString& fichero) {
        QFile f(fichero);
        if (!f.open(QIODevice::ReadOnly))
            return {};
        QCryptographicHash h(QCryptographicHash::Sha256);
        h.addData(&f);
        return h.result();
    }
    static QString Datos(const char* n) { return QStringLiteral(PASTORIX_DATOS "/") + QString::fromUtf8(n); }
    static QString Ejemplo(const char* n) {
        return QStringLiteral(PASTORIX_EJEMPLO "/") + QString::fromUtf8(n);
    }

private Q_SLOTS:
    void EnSuSitio() {
        const auto fichero = Copia(Ejemplo("BD_PradalC.mdb"));
        const auto antes = Huella(fichero);
        OpcionesApertura o;
        o.carpetaBackup = m_carpeta.filePath(QStringLiteral("BackUp")).toStdString();
        int avances = 0;
        o.avance = [&](int hecho, int total) {
            QVERIFY(hecho <= total);
            ++avances;
        };
        Conexion c;
        QCOMPARE(c.AbrirFichero(fichero.toStdString(), kClave, o), ResultadoApertura::Convertida);
        QVERIFY(avances > 0);
        // canonical columns first although the file has Desconocida in place of one and lacks another
        const auto* cub = c.Esquema().Buscar("T_Cubriciones");
        QCOMPARE(cub->columnas[40].nombre, std::string("DemoraServIPR"));
        QCOMPARE(cub->columnas.back().nombre, std::string("Desconocida"));
        QCOMPARE(ValorDeCampo(c, "SELECT Count(Id_Cebo) AS N FROM T_Cebo WHERE Cambiado = 0"),
                 std::string("749"));
        QCOMPARE(ValorDeCampo(c, "SELECT Count(Id_Vaca) AS N FROM T_Cubriciones"), std::string("2833"));
        const auto valor = [&](const char* s) { return ValorDeCampo(c, s); };
        QVERIFY(valor("SELECT Nombre FROM T_Vacas WHERE Id_Vaca = 1200105")
                    .starts_with("Ñandú Güeñó áéíóú ÁÉÍÓÚ çÇ ºª"));
        {
            Recordset rs(c, "SELECT FechaNac, FechaBaja FROM T_Vacas WHERE Id_Vaca = 8500114");
            QCOMPARE(rs["FechaNac"].FechaValor(), (Fecha{0, 0})); // day 0 is a date, not Null
            Recordset lejos(c, "SELECT FechaNac FROM T_Vacas WHERE Id_Vaca = 1200042");
            QCOMPARE(FechaIso(*lejos["FechaNac"].FechaValor()), std::string("2205-03-01"));
            Recordset textos(c, "SELECT RegSaneam, ObsDesecho FROM T_Vacas WHERE Id_Vaca = 4230040 OR "
                                "Id_Vaca = 4230058 ORDER BY Id_Vaca");
            QVERIFY(!textos["RegSaneam"].Nulo()); // empty text stays empty text
            QCOMPARE(textos["RegSaneam"].Texto(), std::string());
            Recordset nombre(c, "SELECT NombreC, Crotal FROM T_Vacas WHERE Id_Vaca = 8500099");
            QVERIFY(nombre["NombreC"].Nulo());
            Recordset raro(c, "SELECT Semental FROM T_Partos WHERE Id_Vaca = 1204009 AND N_Parto = 10");
            QCOMPARE(raro["Semental"].Texto(), std::string("Toro d'L'Otero \"viejo\""));
        }
        c.Cerrar();
        // the original is kept, untouched, with the sheet of what was read beside it
        const QDir backup(m_carpeta.filePath(QStringLiteral("BackUp")));
        const auto copias = backup.entryList({QStringLiteral("*_Access_*.mdb")});
        QCOMPARE(copias.size(), 1);
        QCOMPARE(Huella(backup.filePath(copias.first())), antes);
        QFile hoja(backup.filePath(QFileInfo(copias.first()).completeBaseName() + QStringLiteral(".txt")));
        QVERIFY(hoja.open(QIODevice::ReadOnly));
        const auto texto = hoja.readAll();
        QVERIFY(texto.contains("T_Cubriciones") && texto.contains("Desconocida") && texto.contains("2833"));
        // once converted it opens as it is
        QCOMPARE(c.AbrirFichero(fichero.toStdString(), kClave, o), ResultadoApertura::Lista);
        QVERIFY(VerificarBase(fichero.toStdString(), kClave).empty());
    }

    void OtrosFicheros_data() {
        QTest::addColumn<QString>("fichero");
        QTest::addColumn<ResultadoApertura>("resultado");
        QTest::addColumn<QString>("palabra");
        QTest::newRow("wrong password")
            << Datos("otra-clave.mdb") << ResultadoApertura::ClaveErronea << QStringLiteral("clave");
        QTest::newRow("cut") << Datos("recortada.mdb") << ResultadoApertura::Dañada
                             << QStringLiteral("cortad");
        QTest::newRow("table missing")
            << Datos("sin-T_Partos.mdb") << ResultadoApertura::OtroEsquema << QStringLiteral("T_Partos");
        QFile texto(m_carpeta.filePath(QStringLiteral("texto.mdb")));
        QVERIFY(texto.open(QIODevice::WriteOnly));
        texto.write("Estimado colega:\n");
        QFile vacio(m_carpeta.filePath(QStringLiteral("vacio.mdb")));
        QVERIFY(vacio.open(QIODevice::WriteOnly));
        QTest::newRow("text") << texto.fileName() << ResultadoApertura::NoEsBase
                              << QStringLiteral("no es una base");
        QTest::newRow("empty") << vacio.fileName() << ResultadoApertura::NoEsBase << QStringLiteral("vacío");
        QTest::newRow("absent") << m_carpeta.filePath(QStringLiteral("no hay.mdb"))
                                << ResultadoApertura::Ausente << QStringLiteral("No existe");
    }
    void OtrosFicheros() {
        QFETCH(QString, fichero);
        QFETCH(ResultadoApertura, resultado);
        QFETCH(QString, palabra);
        QTemporaryDir carpeta;
        const auto copia = carpeta.filePath(QStringLiteral("base.mdb"));
        QFile::copy(fichero, copia);
        const auto antes = Huella(copia);
        Conexion c;
        try {
            c.AbrirFichero(copia.toStdString(), kClave);
            QFAIL("opened");
        } catch (const ErrorAlmacen& e) {
            QCOMPARE(e.Codigo(), CodigoError::NoSePuedeAbrir);
            QVERIFY2(QString::fromUtf8(e.what()).contains(palabra), e.what());
        }
        QCOMPARE(c.ResultadoUltimo(), resultado);
        QVERIFY(!c.Abierta());
        QCOMPARE(Huella(copia), antes);
        QCOMPARE(QDir(carpeta.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(),
                 antes.isEmpty() ? 0 : 1);
    }

    void TablasDeMas() {
        const auto fichero = Copia(Datos("columnas-cambiadas.mdb"));
        Conexion c;
        c.AbrirFichero(fichero.toStdString(), kClave);
        for (const auto& canonica : CatalogoCanonico(ClaseDeBase::Principal).Tablas()) {
            const auto* tabla = c.Esquema().Buscar(canonica.nombre);
            QVERIFY(tabla);
            for (std::size_t i = 0; i < canonica.columnas.size(); ++i)
                QCOMPARE(tabla->columnas[i].nombre, canonica.columnas[i].nombre);
        }
        Recordset pesadas(c, "SELECT * FROM [Mis pesadas] ORDER BY [Nº]");
        QCOMPARE(pesadas.Contar(), 7L);
        QVERIFY(pesadas["Kg/día"].Numero() > 0);
        QVERIFY(pesadas["Fecha pesada"].FechaValor().has_value());
        QVERIFY(c.Esquema().Buscar("T_Vacas")->Buscar("NotaLibre") >= 0);
        QVERIFY(VerificarBase(fichero.toStdString(), kClave).empty());

        // the same rows as in the file they were made of, column by column
        const auto otro = Copia(Datos("minima.mdb"));
        Conexion d;
        d.AbrirFichero(otro.toStdString(), kClave);
        for (const auto& t : CatalogoCanonico(ClaseDeBase::Principal).Tablas()) {
            Recordset a(c, "SELECT * FROM " + t.nombre, Cursor::Keyset, Bloqueo::SoloLectura);
            Recordset b(d, "SELECT * FROM " + t.nombre, Cursor::Keyset, Bloqueo::SoloLectura);
            QCOMPARE(a.Contar(), b.Contar());
            std::multiset<std::string> filasA;
            std::multiset<std::string> filasB;
            const auto leer = [&](Recordset& rs, std::multiset<std::string>& filas) {
                for (; !rs.Eof(); rs.Siguiente()) {
                    std::string fila;
                    for (const auto& col : t.columnas)
                        fila += (rs[col.nombre].Nulo() ? "\x02" : rs[col.nombre].Texto()) + "|";
                    filas.insert(fila);
                }
            };
            leer(a, filasA);
            leer(b, filasB);
            QVERIFY2(filasA == filasB, t.nombre.c_str());
        }
    }

    // A file whose columns are of other types than ours: what can become ours does, what cannot stays as it is and is named. Nothing
    // turns into nothing.
    void ValoresDeOtraClase() {
        using namespace access::ayudas;
        using access::Tipo;
        FicheroNuevo fichero{.clave = std::string(kClave)};
        for (const auto& t : CatalogoCanonico(ClaseDeBase::Principal).Tablas())
            if (t.nombre != "T_Vacas" && t.nombre != "T_Cebo")
                fichero.tablas.push_back({t.nombre, {{t.columnas[0].nombre, Tipo::Doble, true, 8}}, {}});
        const auto casi = [](int segundo, double fraccion) {
            return Doble(46000 + (segundo + fraccion) / 86400);
        };
        TablaNueva vacas{"T_Vacas",
                         {{"Id_Vaca", Tipo::Texto, false, 255},
                          {"MG_PN", Tipo::Texto, false, 255},
                          {"FechaNac", Tipo::FechaHora, true, 8},
                          {"FechaCompra", Tipo::Texto, false, 255},
                          {"Nombre", Tipo::Doble, true, 8},
                          {"Crotal", Tipo::FechaHora, true, 8},
                          {"MG_PD", Tipo::FechaHora, true, 8},
                          {"Calificacion", Tipo::Moneda, true, 8},
                          {"Patologia", Tipo::SiNo, false, 1}},
                         {}};
        const auto T = [](const char* t) { return Utf16(t); };
        vacas.filas.push_back({{T("1"), T("doce"), casi(86399, 0.6), T("ayer"), Doble(2.5), Doble(46000),
                                Doble(46000), Numero(25000, 8), access::Bytes{1}}});
        vacas.filas.push_back({{T("2"), T(" 2,5 "), casi(86399, 0.4), T("1/3/24"), {}, {}, {}, {}, {}}});
        fichero.tablas.push_back(vacas);
        TablaNueva cebo{
            "T_Cebo", {{"Id_Cebo", Tipo::Largo, true, 4}, {"Cambiado", Tipo::Entero, true, 2}}, {}};
        cebo.filas = {{{Numero(1, 4), Numero(5, 2)}}, {{Numero(2, 4), Numero(0, 2)}}, {{Numero(3, 4), {}}}};
        fichero.tablas.push_back(cebo);
        const auto origen = m_carpeta.filePath("otros.mdb");
        QFile f(origen);
        QVERIFY(f.open(QIODevice::WriteOnly));
        const auto bytes = Escribir(fichero).contenido;
        f.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
        f.close();
        const auto destino = m_carpeta.filePath("otros-nuestros.mdb").toStdString();
        const auto hoja = QByteArray::fromStdString(
            ConvertirAccess(Ruta(origen.toStdString()), Ruta(destino), kClave).Texto());
        for (const char* raro :
             {"T_Vacas.MG_PN hay 1 ", "T_Vacas.FechaCompra hay 1 ", "T_Vacas.Nombre hay 1 ",
              "T_Vacas.Crotal hay 1 ", "T_Vacas.MG_PD hay 1 ", "T_Vacas.Patologia hay 2 "})
            QVERIFY2(hoja.contains(raro), raro);
        QVERIFY(!hoja.contains("T_Vacas.Id_Vaca hay") && !hoja.contains("Calificacion hay"));

        Conexion c;
        c.AbrirFichero(destino, kClave);
        const auto crudo = [&](const char* sql) {
            Instruccion s(c.Manejador(), sql);
            std::string t;
            while (s.Fila())
                t += s.Texto(0) + "\n";
            return t;
        };
        QCOMPARE(
            crudo("SELECT quote(Id_Vaca) || quote(MG_PN) || quote(FechaNac) || quote(FechaCompra) || "
                  "quote(Nombre) "
                  "|| quote(Crotal) || quote(MG_PD) || quote(Calificacion) || quote(Patologia) FROM T_Vacas"),
            std::string("1.0'doce''2025-12-10''ayer''2,5''09/12/2025''09/12/2025'2.5'-1'\n"
                        "2.02.5'2025-12-09 23:59:59''2024-03-01'NULLNULLNULLNULL'0'\n"));
        QCOMPARE(crudo("SELECT quote(Cambiado) FROM T_Cebo"), std::string("-1\n0\n0\n"));
    }

    void DestinoQueExiste() {
        const auto destino = m_carpeta.filePath(QStringLiteral("ya.mdb"));
        QFile f(destino);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("mío");
        f.close();
        QVERIFY_THROWS_EXCEPTION(ErrorConversion, ConvertirAccess(Ruta(Datos("minima.mdb").toStdString()),
                                                                  Ruta(destino.toStdString()), kClave));
        QVERIFY_THROWS_EXCEPTION(
            ErrorConversion,
            ConvertirAccess(Ruta(Datos("recortada.mdb").toStdString()),
                            Ruta(m_carpeta.filePath(QStringLiteral("nueva.mdb")).toStdString()), kClave));
        QVERIFY(!QFile::exists(m_carpeta.filePath(QStringLiteral("nueva.mdb"))));
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), QByteArray("mío"));
    }

    // A database of ours whose columns stand otherwise (an older one after its repairs) is brought to canonical order.
    void Orden() {
        Base b;
        b.Poner("T_Cebo", {{"Id_Cebo", 4.0}, {"Id_Ganadero", 12.0}, {"Obs", "nota"}, {"N_Parto", 3}});
        b.c.Execute("ALTER TABLE T_Cebo DROP COLUMN Cambiado");
        b.c.Execute("ALTER TABLE T_Cebo ADD COLUMN Cambiado DOUBLE");
        b.c.Execute("ALTER TABLE T_Vacas ADD COLUMN Propia MEMO");
        b.Poner("T_Vacas", {{"Id_Vaca", 12001.0}, {"Propia", "ñ"}});
        Sql(b.c,
            "CREATE TABLE [Mis notas] (a TEXT_MEMO, b DOUBLE); INSERT INTO [Mis notas] VALUES ('x', 2.5)");
        b.c.Cerrar();
        QVERIFY(!VerificarBase(b.fichero, kClave).empty());
        Conexion c;
        QCOMPARE(c.AbrirFichero(b.fichero, kClave), ResultadoApertura::Convertida);
        QCOMPARE(c.Esquema().Buscar("T_Cebo")->columnas[21].nombre, std::string("Cambiado"));
        QCOMPARE(ValorDeCampo(c, "SELECT Cambiado FROM T_Cebo WHERE Obs = 'nota' AND N_Parto = 3"),
                 std::string("0"));
        QCOMPARE(ValorDeCampo(c, "SELECT Propia FROM T_Vacas"), std::string("ñ"));
        QCOMPARE(ValorDeCampo(c, "SELECT b FROM [Mis notas]"), std::string("2,5"));
        QVERIFY(VerificarBase(b.fichero, kClave).empty());
        QCOMPARE(QDir(b.carpeta.filePath(QStringLiteral("BackUp"))).entryList(QDir::Files).size(), 1);
    }

    void BasesPropias_data() {
        QTest::addColumn<int>("caso");
        QTest::addColumn<ResultadoApertura>("resultado");
        QTest::newRow("damaged page") << 0 << ResultadoApertura::Dañada;
        QTest::newRow("other password") << 1 << ResultadoApertura::ClaveErronea;
        QTest::newRow("another program's database") << 2 << ResultadoApertura::NoEsBase;
        QTest::newRow("locked") << 3 << ResultadoApertura::Bloqueada;
        QTest::newRow("table gone") << 4 << ResultadoApertura::OtroEsquema;
        QTest::newRow("cut") << 5 << ResultadoApertura::Dañada;
    }
    void BasesPropias() {
        QFETCH(int, caso);
        QFETCH(ResultadoApertura, resultado);
        Base b;
        for (int i = 1; i < 300; ++i)
            b.Poner("T_Tetos", {{"Id_Teto", 10.0 + i}});
        const auto sql = [&](const char* s) { Sql(b.c, s); };
        if (caso == 2)
            sql("PRAGMA application_id=1");
        if (caso == 3)
            sql("BEGIN EXCLUSIVE");
        if (caso == 4)
            sql("DROP TABLE T_Partos");
        if (caso != 3)
            b.c.Cerrar();
        QFile f(QString::fromStdString(b.fichero));
        if (caso == 0 || caso == 5) {
            QVERIFY(f.open(QIODevice::ReadWrite));
            if (caso == 5) {
                f.resize(f.size() / 2 + 100);
            } else {
                f.seek(4096 * 2 + 8); // the first pages after the schema
                f.write(QByteArray(4096 * 6, char(0x5A)));
            }
            f.close();
        }
        const auto antes = Huella(f.fileName());
        OpcionesApertura o;
        o.desconfiada = true;
        Conexion c;
        try {
            c.AbrirFichero(b.fichero, caso == 1 ? "otra12" : kClave, o);
            QFAIL("opened");
        } catch (const ErrorAlmacen& e) {
            QVERIFY(!QByteArray(e.what()).isEmpty());
        }
        QCOMPARE(c.ResultadoUltimo(), resultado);
        QCOMPARE(Huella(f.fileName()), antes);
        QVERIFY(!VerificarBase(b.fichero, caso == 1 ? "otra12" : kClave).empty());
    }

    void Nueva() {
        Base b;
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, CrearBase(Ruta(b.fichero), ClaseDeBase::Toros, kClave));
        QVERIFY(VerificarBase(b.fichero, kClave).empty());
        QCOMPARE(b.Texto("SELECT Id_Teto FROM T_Tetos ORDER BY Id_Teto"), std::string("1/2/3/4"));
        QCOMPARE(b.c.Esquema().Buscar("T_Cebo")->clave, (std::vector<std::string>{"Id_Ganadero", "Id_Cebo"}));
        Base toros(ClaseDeBase::Toros);
        QVERIFY(VerificarBase(toros.fichero, kClave).empty());
    }
};

PRUEBA(PruebaConversion)
#include "PruebaConversion.moc"
