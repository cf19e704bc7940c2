#include "prueba.h"

#include "reports/motor/DisposicionesIncluidas.h"
#include "reports/motor/ErrorInforme.h"
#include "reports/motor/LectorDisposicion.h"

using namespace pastorix;

namespace {

// What every case below stands on: two tables, a parameter, a style.
const char* const Cabeza = R"(pastorix-informe 1
pagina A4 vertical margenes=15,15,15,15
letra "DejaVu Sans" tamaño=9
parametro AñoRef
estilo fuerte negrita
tabla A
  campo C1
  campo N1
fin
tabla B
  campo C1
fin
)";

QString Error(const std::string& texto) {
    try {
        LeerDisposicion(texto, "x.rpt");
    } catch (const ErrorInforme& e) {
        return QString::fromUtf8(e.what());
    }
    return {};
}

} // namespace

class PruebaDisposicion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // Line numbers count from the first line after the head, which has 12.
    void Rechazos_data() {
        QTest::addColumn<QString>("cuerpo");
        QTest::addColumn<int>("linea");
        QTest::addColumn<QString>("dice");
        const auto caso = [](const char* nombre, const char* cuerpo, int linea, const char* dice) {
            QTest::newRow(nombre) << QString::fromUtf8(cuerpo) << linea << QString::fromUtf8(dice);
        };
        caso("unknown order", "\nbandada 5\nfin", 2, "\"bandada\" no se conoce");
        caso("unknown table", "seccion Z\nfin", 1, "\"Z\" no está declarada");
        caso("unknown column", "seccion A\ndetalle 5\ntexto 0 0 20 5 \"{A.C9}\"\nfin\nfin", 3,
             "\"A.C9\" no está declarada");
        caso("unknown parameter", "banda 5\ntexto 0 0 20 5 \"{?Año}\"\nfin", 2, "parámetro \"Año\"");
        caso("table without a row here", "seccion A\ndetalle 5\ntexto 0 0 20 5 \"{B.C1}\"\nfin\nfin", 3,
             "ninguna fila");
        caso("total outside its section", "seccion A\ndetalle 5\ntexto 0 0 9 5 \"{Suma(A.N1)}\"\nfin\nfin", 3,
             "total");
        caso("page number in the body", "banda 5\ntexto 0 0 9 5 \"{Página}\"\nfin", 2, "número de página");
        caso("bad mask", "seccion A\ndetalle 5\ntexto 0 0 9 5 \"{A.N1:kg}\"\nfin\nfin", 3,
             "\"kg\" no es un formato");
        caso("open brace", "banda 5\ntexto 0 0 9 5 \"{A.C1\"\nfin", 2, "llave");
        caso("brace out of nothing", "banda 5\ntexto 0 0 9 5 \"a}\"\nfin", 2, "llave");
        caso("condition without comparison", "seccion A\ndetalle 5 si=\"'a'\"\nfin\nfin", 2, "comparación");
        caso("tie to a table without row", "seccion B atada=C1:A.C1\nfin", 1, "ninguna fila a la que atarse");
        caso("open quotes", "banda 5\ntexto 0 0 9 5 \"abc\nfin", 2, "comillas");
        caso("missing fin", "seccion A\ndetalle 5\nfin", 1, "falta el \"fin\"");
        caso("too many fin", "banda 5\nfin\nfin", 3, "\"fin\"");
        caso("not a number", "banda cinco\nfin", 1, "\"cinco\" no es un número");
        caso("off the right edge", "banda 5\ntexto 170 0 20 5 \"a\"\nfin", 2, "se sale por la derecha");
        caso("off the band", "banda 5\ntexto 0 2 20 5 \"a\"\nfin", 2, "se sale por abajo");
        caso("band taller than the page", "banda 280\nfin", 1, "no cabe en una página");
        caso("column off the edge", "columnas\ncolumna 100 90\nfin\nfin", 2, "se sale");
        caso("unknown style", "banda 5\ntexto 0 0 20 5 \"a\" estilo=flojo\nfin", 2,
             "\"flojo\" no está declarado");
        caso("unknown option", "banda 5\ntexto 0 0 20 5 \"a\" brillo=3\nfin", 2, "sobra \"brillo=3\"");
        caso("bad colour", "banda 5 fondo=#12345g\nfin", 1, "no es un color");
        caso("unknown alignment", "banda 5\ntexto 0 0 9 5 \"a\" alinear=recta\nfin", 2,
             "izquierda, centro, derecha");
        caso("declaration after the body", "banda 5\nfin\nparametro X", 3, "debe ir antes");
        caso("table twice", "tabla A\ncampo C1\nfin", 1, "ya está declarada");
        caso("column twice", "tabla D\ncampo C1\ncampo c1\nfin", 3, "ya está declarada");
        caso("table name that is no name", "tabla A;DROP\nfin", 1, "no es un nombre");
        caso("statement that writes", "tabla D consulta=\"DELETE FROM T_Vacas\"\ncampo C1\nfin", 1,
             "empieza por SELECT");
        caso("group of another table", "seccion A\ngrupo B.C1\nfin\nfin", 2, "\"B.C1\" no está declarada");
        caso("group after the detail", "seccion A\ndetalle 5\nfin\ngrupo C1\nfin\nfin", 4,
             "antes que el detalle");
        caso("chart without series", "banda 30\ngrafico 0 0 50 30 A\ncategoria C1\nfin\nfin", 2,
             "alguna serie");
        caso("heading over no columns",
             "seccion A\nrejilla 10 5\nsobre \"a\"\nfin\ncol 9 \"b\" \"c\"\nfin\nfin", 3,
             "necesita columnas");
        caso("rows wider than the page", "filas 5 100 90\nfila \"a\"\nfin", 1, "suman más de 180");
        caso("row with more texts than columns", "filas 5 100\nfila \"a\" \"b\"\nfin", 2, "hay 1");
        caso("line that goes back", "banda 5\nlinea 9 0 3 0\nfin", 2, "de izquierda a derecha");
        caso("broken UTF-8", "banda 5\ntexto 0 0 9 5 \"\xC3\xA9\"\nfin\n\x01", 4, "UTF-8");
    }
    void Rechazos() {
        QFETCH(QString, cuerpo);
        QFETCH(int, linea);
        QFETCH(QString, dice);
        const QString error = Error(Cabeza + cuerpo.toStdString());
        QVERIFY2(error.startsWith(QStringLiteral("x.rpt, línea %1: ").arg(12 + linea)),
                 qUtf8Printable(error));
        QVERIFY2(error.contains(dice), qUtf8Printable(error));
    }

    void NoEsInforme_data() {
        QTest::addColumn<QByteArray>("texto");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("other text") << QByteArray("hola\n");
        QTest::newRow("other version") << QByteArray("pastorix-informe 2\n");
        QTest::newRow("binary") << QByteArray("pastorix-informe 1\nbanda 5\n\xFF\xFE\nfin\n");
        QTest::newRow("huge") << QByteArray(1'000'001, '#');
        QTest::newRow("deep") << "pastorix-informe 1\n" + QByteArray("bloque\n").repeated(5000);
        QTest::newRow("no page left") << QByteArray("pastorix-informe 1\ncabecera-pagina 260\nfin\n");
        QTest::newRow("table without columns") << QByteArray("pastorix-informe 1\ntabla A\nfin\n");
    }
    void NoEsInforme() {
        QFETCH(QByteArray, texto);
        QVERIFY(Error(texto.toStdString()).startsWith(QStringLiteral("x.rpt, línea ")));
    }

    // What is included counts as if it stood there, and can be overruled; a mistake in it is told with its own name and line.
    void Incluye() {
        const auto leer = [](const std::string& comun, const char* orden, const char* despues = "") {
            try {
                const Disposicion d =
                    LeerDisposicion(std::string("pastorix-informe 1\n") + orden + "\n" + despues +
                                        "banda 5\ntexto 0 0 9 5 \"a\" estilo=x\nfin",
                                    "x.rpt", [&](const std::string& nombre) {
                                        return nombre == "comun.rpt" ? std::optional(comun) : std::nullopt;
                                    });
                return QStringLiteral("%1 %2")
                    .arg(d.anchoPagina)
                    .arg(d.cuerpo.at(0).banda.elementos.at(0).aspecto.tamaño);
            } catch (const ErrorInforme& e) {
                return QString::fromUtf8(e.what());
            }
        };
        const std::string comun = "pastorix-informe 1\npagina A4 vertical\nestilo x tamaño=7\n";
        const char* const incluye = "incluye \"comun.rpt\"";
        QCOMPARE(leer(comun, incluye), QStringLiteral("210 7"));
        QCOMPARE(leer(comun, incluye, "pagina A4 apaisada\n"), QStringLiteral("297 7"));
        QVERIFY(leer(comun + "color z #12\n", incluye).startsWith(QStringLiteral("comun.rpt, línea 4: ")));
        QVERIFY(leer(comun, incluye, "color z #12\n").startsWith(QStringLiteral("x.rpt, línea 3: ")));
        for (const char* linea : {"tabla A", "banda 5", "incluye \"comun.rpt\""})
            QVERIFY(
                leer(comun + linea, incluye).contains(QStringLiteral("comun.rpt, línea 4: en un fichero")));
        QVERIFY(leer("estilo x\n", incluye).startsWith(QStringLiteral("comun.rpt, línea 1: ")));
        for (const char* otro : {"incluye \"otro.rpt\"", "incluye \"../comun.rpt\"", "incluye comun.rpt"})
            QVERIFY(leer(comun, otro).startsWith(QStringLiteral("x.rpt, línea 2: ")));
    }

    void Ausente() {
        try {
            LeerDisposicionDeFichero("/no/hay/nada.rpt");
            QFAIL("read");
        } catch (const ErrorInforme& e) {
            QCOMPARE(e.Codigo(), CodigoInforme::FicheroAusente);
            QVERIFY(QString::fromUtf8(e.what()).contains(QStringLiteral("/no/hay/nada.rpt")));
        }
    }

    // Case of names, styles that inherit, options of a page, a byte order mark and Windows line ends.
    void SeLee() {
        const std::string texto = R"(pastorix-informe 1
pagina A4 apaisada margenes=10,11,12,13
color tinta #102030
estilo base tamaño=7 negrita color=tinta
estilo otro estilo=base cursiva normal
tabla V hoja="Vacas" consulta="select Crotal FROM T_Vacas"
  campo Crotal "Crotal n.º"
fin
seccion v
  detalle 5
    texto 0 0 20 5 "{V.CROTAL} {{x}}" estilo=OTRO
  fin
fin
)";
        const QByteArray conCr = "\xEF\xBB\xBF" + QByteArray::fromStdString(texto).replace("\n", "\r\n");
        const Disposicion d = LeerDisposicion(conCr.toStdString(), "x.rpt");
        QVERIFY(d.Apaisada());
        QCOMPARE(d.AnchoUtil(), 297.0 - 22);
        QCOMPARE(d.AltoUtil(), 210.0 - 24);
        QCOMPARE(d.tablas.at(0).columnas.at(0).titulo, std::string("Crotal n.º"));
        const Elemento& e = d.cuerpo.at(0).seccion->cuerpo.at(0).banda.elementos.at(0);
        QCOMPARE(e.plantilla.size(), std::size_t(2));
        QCOMPARE(e.plantilla.at(1).texto, std::string(" {x}"));
        QVERIFY(e.aspecto.cursiva && !e.aspecto.negrita);
        QCOMPARE(e.aspecto.color, Color(0x102030));
        QCOMPARE(e.aspecto.tamaño, 7.0);
    }
};

PRUEBA(PruebaDisposicion)
#include "PruebaDisposicion.moc"
