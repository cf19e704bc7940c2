#include "prueba.h"

#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Formula.h"
#include "store/Textos.h"

using namespace pastorix;

namespace {

// One row: a text, a number, a Null, a date and an empty text, as columns of table X.
const std::vector<std::pair<std::string, Valor>> Celdas{{"X.T", std::string("2026")},
                                                        {"X.N", 12.0},
                                                        {"X.Nulo", Valor()},
                                                        {"X.F", *Fecha::De(2026, 5, 3)},
                                                        {"X.Blanco", std::string(" ")},
                                                        {"X.Nombre", std::string("Ñandú")}};

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
    static const std::vector<Valor> parametros{std::string("2026"), std::string()};
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
        QTest::addColumn<QString>("formula");
        QTest::addColumn<bool>("cumple");
        const auto caso = [](const char* formula, bool cumple) {
            QTest::newRow(formula) << QString::fromUtf8(formula) << cumple;
        };
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
        QFETCH(QString, formula);
        QTEST(Cumple(formula.toStdString()), "cumple");
    }

    void CampoSolo() {
        QVERIFY(Cumple("{X.T}", true));
        QVERIFY(!Cumple("{X.Nulo}", true));
        QVERIFY(!Cumple("{X.Blanco}", true));
        QVERIFY(Cumple("not {X.Blanco} and {X.N}", true));
        QVERIFY(Cumple("{?Año} = {X.T} and {?Año} > 2025 and {?Año} and not {?Otro}", true));
        QVERIFY(!Cumple("{?Año} = {X.Nombre}", true));
    }

    void Erroneas_data() {
        QTest::addColumn<QString>("formula");
        for (const char* formula :
             {"{X.T}", "{X.T} <=", "<= '2026'", "{X.T} <= '2026", "{X.T <= '2026'", "{X.T} = '1' and",
              "({X.T} = '1'", "{X.T} = '1')", "{X.T} like '1'", "{X.Otro} = 1", "{X.T} = 1 2",
              "{?Año} = '2026'", "{X.T} = --1", "'a", "{X.T}=1 or or {X.T}=2"})
            QTest::newRow(formula) << QString::fromUtf8(formula);
        QTest::newRow("deep") << QString(500, QLatin1Char('(')) + QStringLiteral("{X.T}='1'");
        QTest::newRow("long") << QStringLiteral("{X.T}='1'").repeated(500);
    }
    void Erroneas() {
        QFETCH(QString, formula);
        QVERIFY_THROWS_EXCEPTION(ErrorInforme, Cumple(formula.toStdString()));
    }
};

PRUEBA(PruebaFormula)
#include "PruebaFormula.moc"
