#include "prueba.h"

#include "frame/calendario/Formatos.h"

#include <limits>

using namespace pastorix;
using namespace prueba;

class PruebaFormatos : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Mascaras_data() {
        Columnas<double, QString, QString>("numero", "mascara", "texto");
        Caso("half up", 2.5, "##0", "3");
        Caso("half away from zero", -2.5, "##0", "-3");
        Caso("zero keeps its digit", 0.0, "###0", "0");
        Caso("zero without a digit", 0.0, "###", "");
        Caso("no negative zero", -0.4, "##0", "0");
        Caso("mask shorter than the number", 1200044.0, "##0", "1200044");
        Caso("one decimal", 12.25, "#####0.0", "12,3");
        Caso("binary neighbour of a half", 0.285, "0.00", "0,29");
        Caso("sum with a tail", 0.1 + 0.2, "0.0##", "0,3");
        Caso("carries into a new digit", 999.96, "###0.0", "1000,0");
        Caso("carry below one", 0.96, "##0.0", "1,0");
        Caso("tiny", 4e-9, "##0.0", "0,0");
        Caso("thousands", 1234567.891, "###,##0.00", "1.234.567,89");
        Caso("thousands, none", 12.0, "###,##0.00", "12,00");
        Caso("leading zeros", 7.0, "000", "007");
        Caso("no whole digit", 0.5, "#.0", ",5");
        Caso("beyond 15 digits", 1e17, "##0", "100000000000000000");
        Caso("text around", 45.6, "##0 %", "46 %");
    }
    void Mascaras() {
        QFETCH(double, numero);
        QFETCH(QString, mascara);
        QTEST(QString::fromStdString(FormatoNumero(numero, mascara.toStdString())), "texto");
    }

    void RedondeosAlPar() {
        QCOMPARE(Round(0.5), 0.0);
        QCOMPARE(Round(1.5), 2.0);
        QCOMPARE(Round(-2.5), -2.0);
        QCOMPARE(Round(2.345, 2), 2.34);
        QCOMPARE(Round(2.355, 2), 2.36);
        QCOMPARE(Round(-12.25, 1), -12.2);
        QCOMPARE(AEntero(3.5), 4);
        QCOMPARE(AEntero(-0.5), 0);
        QCOMPARE(AEntero(40000.5), 40000);
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, AEntero(1e19));
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, AEntero(std::numeric_limits<double>::quiet_NaN()));
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion,
                                 FormatoNumero(1.0 / std::numeric_limits<double>::denorm_min(), "0"));
    }

    void Lecturas_data() {
        Columnas<QString, double, bool, double>("texto", "val", "numerico", "escrito");
        Caso("whole", "309", 309.0, true, 309.0);
        Caso("empty", "", 0.0, false, 0.0);
        Caso("blank", "  ", 0.0, false, 0.0);
        Caso("letters", "aa", 0.0, false, 0.0);
        Caso("digits and letters", "12ab", 12.0, false, 0.0);
        Caso("comma", "1,5", 1.0, true, 1.5);
        Caso("point", "2.5", 2.5, true, 2.5);
        Caso("thousands and comma", "1.234,5", 1.234, true, 1234.5);
        Caso("two commas", "1,2,3", 1.0, false, 0.0);
        Caso("blanks within", "1 200", 1200.0, false, 0.0);
        Caso("blanks around", " 7 ", 7.0, true, 7.0);
        Caso("negative", "-3,5", -3.0, true, -3.5);
        Caso("sign behind", "3-", 3.0, true, -3.0);
        Caso("two signs", "-3-", -3.0, false, 0.0);
        Caso("brackets", "(5)", 0.0, true, -5.0);
        Caso("euro", "12,50 €", 12.0, true, 12.5);
        Caso("exponent", "1e3", 1000.0, true, 1000.0);
        Caso("exponent with d", "1,5d2", 1.0, true, 150.0);
        Caso("exponent without digits", "1e", 1.0, false, 0.0);
        Caso("hexadecimal", "&HFF", 255.0, true, 255.0);
        Caso("a count in brackets", "( 0 )", 0.0, true, 0.0);
        Caso("lone comma", ",", 0.0, false, 0.0);
        Caso("lone sign", "-", 0.0, false, 0.0);
        Caso("date", "1/2/05", 1.0, false, 0.0);
        Caso("too small to tell", "1e-400", 0.0, true, 0.0);
    }
    void Lecturas() {
        QFETCH(QString, texto);
        const std::string t = texto.toStdString();
        QTEST(Val(t), "val");
        QTEST(IsNumeric(t), "numerico");
        QTEST(NumeroEscrito(t).value_or(0), "escrito");
    }

    void LoQueNingunNumeroContiene() {
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, Val("1e999"));
        QVERIFY(!IsNumeric("1e999"));
    }
};

PRUEBA(PruebaFormatos)
#include "PruebaFormatos.moc"
