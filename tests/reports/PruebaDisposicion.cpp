#include "prueba.h"

#include "reports/motor/DisposicionesIncluidas.h"
#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Formula.h"
#include "reports/motor/LectorDisposicion.h"
#include "store/Textos.h"

using namespace prueba;

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
        return Q(e.what());
    }
    return {};
}

} // namespace

class PruebaDisposicion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // Line numbers count from the first line after the head, which has 12.
    void Rechazos_data() {
        Caso("unknown order", "\nbandada 5\nfin", 2, "\"bandada\" no se conoce");
        Caso("unknown table", "seccion Z\nfin", 1, "\"Z\" no está declarada");
        Caso("unknown column", "seccion A\ndetalle 5\ntexto 0 0 20 5 \"{A.C9}\"\nfin\nfin", 3,
             "\"A.C9\" no está declarada");
        Caso("unknown parameter", "banda 5\ntexto 0 0 20 5 \"{?Año}\"\nfin", 2, "parámetro \"Año\"");
        Caso("no row here", "seccion A\ndetalle 5\ntexto 0 0 20 5 \"{B.C1}\"\nfin\nfin", 3, "ninguna fila");
        Caso("total outside", "seccion A\ndetalle 5\ntexto 0 0 9 5 \"{Suma(A.N1)}\"\nfin\nfin", 3, "total");
        Caso("page number in the body", "banda 5\ntexto 0 0 9 5 \"{Página}\"\nfin", 2, "número de página");
        Caso("bad mask", "seccion A\ndetalle 5\ntexto 0 0 9 5 \"{A.N1:kg}\"\nfin\nfin", 3,
             "\"kg\" no es un formato");
        Caso("open brace", "banda 5\ntexto 0 0 9 5 \"{A.C1\"\nfin", 2, "llave");
        Caso("brace out of nothing", "banda 5\ntexto 0 0 9 5 \"a}\"\nfin", 2, "llave");
        Caso("condition without comparison", "seccion A\ndetalle 5 si=\"'a'\"\nfin\nfin", 2, "comparación");
        Caso("tie to a table without row", "seccion B atada=C1:A.C1\nfin", 1, "ninguna fila a la que atarse");
        Caso("open quotes", "banda 5\ntexto 0 0 9 5 \"abc\nfin", 2, "comillas");
        Caso("missing fin", "seccion A\ndetalle 5\nfin", 1, "falta el \"fin\"");
        Caso("too many fin", "banda 5\nfin\nfin", 3, "\"fin\"");
        Caso("not a number", "banda cinco\nfin", 1, "\"cinco\" no es un número");
        Caso("off the right edge", "banda 5\ntexto 170 0 20 5 \"a\"\nfin", 2, "se sale por la derecha");
        Caso("off the band", "banda 5\ntexto 0 2 20 5 \"a\"\nfin", 2, "se sale por abajo");
        Caso("band taller than the page", "banda 280\nfin", 1, "no cabe en una página");
        Caso("column off the edge", "columnas\ncolumna 100 90\nfin\nfin", 2, "se sale");
        Caso("no style", "banda 5\ntexto 0 0 20 5 \"a\" estilo=flojo\nfin", 2, "\"flojo\" no está declarado");
        Caso("unknown option", "banda 5\ntexto 0 0 20 5 \"a\" brillo=3\nfin", 2, "sobra \"brillo=3\"");
        Caso("bad colour", "banda 5 fondo=#12345g\nfin", 1, "no es un color");
        Caso("unknown alignment", "banda 5\ntexto 0 0 9 5 \"a\" alinear=recta\nfin", 2,
             "izquierda, centro, derecha");
        Caso("declaration after the body", "banda 5\nfin\nparametro X", 3, "debe ir antes");
        Caso("table twice", "tabla A\ncampo C1\nfin", 1, "ya está declarada");
        Caso("column twice", "tabla D\ncampo C1\ncampo c1\nfin", 3, "ya está declarada");
        Caso("table name that is no name", "tabla A;DROP\nfin", 1, "no es un nombre");
        Caso("statement that writes", "tabla D consulta=\"DELETE FROM T_Vacas\"\ncampo C1\nfin", 1,
             "empieza por SELECT");
        Caso("group of another table", "seccion A\ngrupo B.C1\nfin\nfin", 2, "\"B.C1\" no está declarada");
        Caso("group late", "seccion A\ndetalle 5\nfin\ngrupo C1\nfin\nfin", 4, "antes que el detalle");
        Caso("no series", "banda 30\ngrafico 0 0 50 30 A\ncategoria C1\nfin\nfin", 2, "alguna serie");
        Caso("heading over no columns",
             "seccion A\nrejilla 10 5\nsobre \"a\"\nfin\ncol 9 \"b\" \"c\"\nfin\nfin", 3,
             "necesita columnas");
        Caso("rows wider than the page", "filas 5 100 90\nfila \"a\"\nfin", 1, "suman más de 180");
        Caso("row with more texts than columns", "filas 5 100\nfila \"a\" \"b\"\nfin", 2, "hay 1");
        Caso("line that goes back", "banda 5\nlinea 9 0 3 0\nfin", 2, "de izquierda a derecha");
        Caso("broken UTF-8", "banda 5\ntexto 0 0 9 5 \"\xC3\xA9\"\nfin\n\x01", 4, "UTF-8");
    }
    void Rechazos() {
        const auto [cuerpo, linea, dice] = DelCaso<QString, int, QString>();
        const QString error = Error(Cabeza + cuerpo.toStdString());
        QVERIFY2(error.startsWith(u"x.rpt, línea %1: "_s.arg(12 + linea)), qPrintable(error));
        QVERIFY2(error.contains(dice), qPrintable(error));
    }

    void NoEsInforme_data() {
        Caso("empty", QByteArray());
        Caso("other text", QByteArray("hola\n"));
        Caso("other version", QByteArray("pastorix-informe 2\n"));
        Caso("binary", QByteArray("pastorix-informe 1\nbanda 5\n\xFF\xFE\nfin\n"));
        Caso("huge", QByteArray(1'000'001, '#'));
        Caso("deep", "pastorix-informe 1\n" + QByteArray("bloque\n").repeated(5000));
        Caso("no page left", QByteArray("pastorix-informe 1\ncabecera-pagina 260\nfin\n"));
        Caso("table without columns", QByteArray("pastorix-informe 1\ntabla A\nfin\n"));
    }
    void NoEsInforme() {
        const auto texto = DelCaso<QByteArray>();
        QVERIFY(Error(texto.toStdString()).startsWith(u"x.rpt, línea "_s));
    }

    // What is included counts as if it stood there, and can be overruled; a mistake in it is told with its own name and line.
    void Incluye() {
        const auto leer = [](const std::string& comun, const char* orden, const char* despues = "") {
            try {
                const Disposicion d =
                    LeerDisposicion("pastorix-informe 1\n"s + orden + "\n" + despues +
                                        "banda 5\ntexto 0 0 9 5 \"a\" estilo=x\nfin",
                                    "x.rpt", [&](const std::string& nombre) {
                                        return nombre == "comun.rpt" ? std::optional(comun) : std::nullopt;
                                    });
                return u"%1 %2"_s.arg(d.anchoPagina).arg(d.cuerpo.at(0).banda.elementos.at(0).aspecto.tamaño);
            } catch (const ErrorInforme& e) {
                return Q(e.what());
            }
        };
        const std::string comun = "pastorix-informe 1\npagina A4 vertical\nestilo x tamaño=7\n";
        const char* const incluye = "incluye \"comun.rpt\"";
        QCOMPARE(leer(comun, incluye), u"210 7"_s);
        QCOMPARE(leer(comun, incluye, "pagina A4 apaisada\n"), u"297 7"_s);
        QVERIFY(leer(comun + "color z #12\n", incluye).startsWith(u"comun.rpt, línea 4: "_s));
        QVERIFY(leer(comun, incluye, "color z #12\n").startsWith(u"x.rpt, línea 3: "_s));
        for (const char* linea : {"tabla A", "banda 5", "incluye \"comun.rpt\""})
            QVERIFY(leer(comun + linea, incluye).contains(u"comun.rpt, línea 4: en un fichero"_s));
        QVERIFY(leer("estilo x\n", incluye).startsWith(u"comun.rpt, línea 1: "_s));
        for (const char* otro : {"incluye \"otro.rpt\"", "incluye \"../comun.rpt\"", "incluye comun.rpt"})
            QVERIFY(leer(comun, otro).startsWith(u"x.rpt, línea 2: "_s));
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
        QCOMPARE(d.tablas.at(0).columnas.at(0).titulo, "Crotal n.º"s);
        const Elemento& e = d.cuerpo.at(0).seccion->cuerpo.at(0).banda.elementos.at(0);
        QCOMPARE(e.plantilla.size(), 2U);
        QCOMPARE(e.plantilla.at(1).texto, " {x}"s);
        QVERIFY(e.aspecto.cursiva && !e.aspecto.negrita);
        QCOMPARE(e.aspecto.color, Color(0x102030));
        QCOMPARE(e.aspecto.tamaño, 7.0);
    }
};

namespace {

// One row: a text, a number, a Null, a date and an empty text, as columns of table X.
const std::vector<std::pair<std::string, Valor>> Celdas{{"X.T", "2026"s},    {"X.N", 12.0},
                                                        {"X.Nulo", Valor()}, {"X.F", *Fecha::De(2026, 5, 3)},
                                                        {"X.Blanco", " "s},  {"X.Nombre", "Ñandú"s}};

Nombres NombresDePrueba() {
    Nombres nombres;
    nombres.campo = [](std::string_view nombre) {
        for (std::size_t i = 0; i < Celdas.size(); ++i) {
            if (IgualSinCaso(Celdas[i].first, nombre))
                return RefCampo{0, static_cast<int>(i)};
        }
        throw ErrorInforme(CodigoInforme::Formula, "desconocido");
    };
    nombres.parametro = [](std::string_view nombre) { return nombre == "Año" ? 0 : 1; };
    return nombres;
}

bool Cumple(const std::string& texto, bool deDiseño = false) {
    static const std::vector<Valor> parametros{"2026"s, std::string()};
    return LeerFormula(texto, NombresDePrueba(), deDiseño)
        .Cumple(
            [](RefCampo campo) -> const Valor& {
                return Celdas[static_cast<std::size_t>(campo.columna)].second;
            },
            parametros);
}

} // namespace

class PruebaFormula : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void Respuestas_data() {
        const auto caso = [](const char* formula, bool cumple) { Caso(formula, Q(formula), cumple); };
        caso("{X.T} <= '2026'", true);
        caso("{X.T} <= '2025'", false);
        caso("{x.t}='2026'", true);
        caso("{X.N}=12", true);
        caso("{X.N} <> 12.0", false);
        caso("{X.N} > -3", true);
        caso("{X.T} >= 2026", true); // a number written as text
        caso("{X.Nombre} = \"ÑANDÚ\"", true);
        caso("{X.Nombre} = 'Nandú'", false);
        caso("{X.Nombre} > 'nube'", true); // ñ comes after n
        caso("{X.F} = '3/5/26'", true);
        caso("{X.F} < '2/5/2026'", false);
        caso("{X.Nulo} = ''", false);
        caso("{X.Nulo} <> 'a'", false);
        caso("not {X.Nulo} = 1", true);
        caso("{X.N} = 1 or {X.N} = 12 and {X.T} = '0'", false); // and binds closer
        caso("({X.N} = 12 or {X.N} = 1) and {X.T} = '2026'", true);
        caso("{X.N}=12 O {X.N}=13 Y {X.T}='0'", true);
        caso("12 = {X.N}", true);
        caso("{X.Blanco} = ' '", true);
        for (const char* distinta : {"{X.N} = 'doce'", "{X.N} <> 'doce'", "{X.Nombre} < 3", "{X.F} = 'ayer'"})
            caso(distinta, false); // what cannot be compared is neither equal nor different
        caso("not {X.N} = 'doce'", true);
    }
    void Respuestas() {
        const auto [formula, cumple] = DelCaso<QString, bool>();
        QCOMPARE(Cumple(formula.toStdString()), cumple);
    }

    void CampoSolo() {
        QVERIFY(Cumple("{X.T}", true) && !Cumple("{X.Nulo}", true) && !Cumple("{X.Blanco}", true));
        QVERIFY(Cumple("not {X.Blanco} and {X.N}", true));
        QVERIFY(Cumple("{?Año} = {X.T} and {?Año} > 2025 and {?Año} and not {?Otro}", true));
        QVERIFY(!Cumple("{?Año} = {X.Nombre}", true));
    }

    void Erroneas_data() {
        for (const char* formula :
             {"{X.T}", "{X.T} <=", "<= '2026'", "{X.T} <= '2026", "{X.T <= '2026'", "{X.T} = '1' and",
              "({X.T} = '1'", "{X.T} = '1')", "{X.T} like '1'", "{X.Otro} = 1", "{X.T} = 1 2",
              "{?Año} = '2026'", "{X.T} = --1", "'a", "{X.T}=1 or or {X.T}=2"})
            Caso(formula, Q(formula));
        Caso("deep", QString(500, u'(') + u"{X.T}='1'"_s);
        Caso("long", u"{X.T}='1'"_s.repeated(500));
    }
    void Erroneas() {
        const auto formula = DelCaso<QString>();
        QVERIFY_THROWS_EXCEPTION(ErrorInforme, Cumple(formula.toStdString()));
    }
};

PRUEBA(PruebaDisposicion)
PRUEBA(PruebaFormula)
#include "PruebaDisposicion.moc"
