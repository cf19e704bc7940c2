#include "prueba.h"

#include "store/Errores.h"
#include "store/Ficheros.h"
#include "store/Valor.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace pastorix;

class PruebaValores : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void Fechas_data() {
        QTest::addColumn<QString>("texto");
        QTest::addColumn<QString>("iso");
        const char* casos[][2] = {{"1/1/01", "2001-01-01"},
                                  {"31/12/49", "2049-12-31"},
                                  {"1/1/50", "1950-01-01"},
                                  {"29/02/2004", "2004-02-29"},
                                  {"29/2/05", ""},
                                  {"31/02/01", ""},
                                  {"1/1/205", ""},
                                  {"12/2005", ""},
                                  {"a/b/cc", ""},
                                  {"1/1/2005/1", ""},
                                  {"-1/1/05", ""},
                                  {" 5/3/2026 ", "2026-03-05"},
                                  {"0/1/01", ""},
                                  {"1/13/01", ""},
                                  {"30/12/1899", "1899-12-30"},
                                  {"1/3/2205", "2205-03-01"},
                                  {"1/1/0050", ""}};
        for (const auto& c : casos)
            QTest::newRow(c[0]) << QString::fromUtf8(c[0]) << QString::fromUtf8(c[1]);
    }
    void Fechas() {
        QFETCH(QString, texto);
        QFETCH(QString, iso);
        const auto f = FechaDeTexto(texto.toStdString());
        QCOMPARE(QString::fromStdString(f ? FechaIso(*f) : std::string()), iso);
        if (f)
            QCOMPARE(FechaDeIso(iso.toStdString()), f);
    }
    void DiasYFormatos() {
        const Fecha origen{0, 0};
        QCOMPARE(FechaIso(origen), std::string("1899-12-30"));
        const Fecha f = *Fecha::De(2024, 2, 29, 7, 5, 9);
        QCOMPARE(FechaIso(f), std::string("2024-02-29 07:05:09"));
        QCOMPARE(FechaDeIso("2024-02-29 07:05:09"), f);
        QVERIFY(!FechaDeIso("2024-02-29T07:05:09") && !FechaDeIso("2024-2-29") && !FechaDeIso("2024-02-30"));
        QCOMPARE(FormatoFecha(f, "dd/mm/yy ddmmyyyy hhnnss"), std::string("29/02/24 29022024 070509"));
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
        QCOMPARE(TextoNumero(1200044), std::string("1200044"));
        QCOMPARE(TextoNumero(-0.0), std::string("0"));
        QCOMPARE(TextoNumero(0.1 + 0.2), std::string("0,3"));
        QCOMPARE(TextoNumero(1e20), std::string("1E+20"));
        QCOMPARE(TextoDe(Valor()), std::string());
    }
    void Ficheros() {
        QTemporaryDir carpeta;
        const auto ruta = [&](const char* n) {
            return Ruta(carpeta.filePath(QString::fromUtf8(n)).toStdString());
        };
        const auto escribir = [&](const char* n, const char* t) {
            QFile f(carpeta.filePath(QString::fromUtf8(n)));
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(t);
        };
        escribir("a ñ.txt", "uno");
        escribir("b.txt", "dos");
        CopiarFichero(ruta("a ñ.txt"), ruta("b.txt"));
        QFile b(carpeta.filePath(QStringLiteral("b.txt")));
        QVERIFY(b.open(QIODevice::ReadOnly));
        QCOMPARE(b.readAll(), QByteArray("uno"));
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, CopiarFichero(ruta("no.txt"), ruta("b.txt")));
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, CopiarFichero(ruta("b.txt"), ruta("no/hay/x.txt")));
        QCOMPARE(QDir(carpeta.path()).entryList(QDir::Files).size(), 2); // no leftovers
        QDir(carpeta.path()).mkdir(QStringLiteral("Backup"));
        QCOMPARE(EntradaSinCaso(ruta("."), "BackUp").filename(), std::filesystem::path("Backup"));
        QCOMPARE(EntradaSinCaso(ruta("."), "Otra").filename(), std::filesystem::path("Otra"));
    }
};

PRUEBA(PruebaValores)
#include "PruebaValores.moc"
