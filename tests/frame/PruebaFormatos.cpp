#include "prueba.h"

#include "frame/calendario/Formatos.h"

#include <limits>

using namespace pastorix;

class PruebaFormatos : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Mascaras_data() {
        QTest::addColumn<double>("numero");
        QTest::addColumn<QString>("mascara");
        QTest::addColumn<QString>("texto");
        QTest::newRow("half up") << 2.5 << "##0"
                                 << "3";
        QTest::newRow("half away from zero") << -2.5 << "##0"
                                             << "-3";
        QTest::newRow("zero keeps its digit") << 0.0 << "###0"
                                              << "0";
        QTest::newRow("zero without a digit") << 0.0 << "###"
                                              << "";
        QTest::newRow("no negative zero") << -0.4 << "##0"
                                          << "0";
        QTest::newRow("mask shorter than the number") << 1200044.0 << "##0"
                                                      << "1200044";
        QTest::newRow("one decimal") << 12.25 << "#####0.0"
                                     << "12,3";
        QTest::newRow("binary neighbour of a half") << 0.285 << "0.00"
                                                    << "0,29";
        QTest::newRow("sum with a tail") << 0.1 + 0.2 << "0.0##"
                                         << "0,3";
        QTest::newRow("carries into a new digit") << 999.96 << "###0.0"
                                                  << "1000,0";
        QTest::newRow("carry below one") << 0.96 << "##0.0"
                                         << "1,0";
        QTest::newRow("tiny") << 4e-9 << "##0.0"
                              << "0,0";
        QTest::newRow("thousands") << 1234567.891 << "###,##0.00"
                                   << "1.234.567,89";
        QTest::newRow("thousands, none") << 12.0 << "###,##0.00"
                                         << "12,00";
        QTest::newRow("leading zeros") << 7.0 << "000"
                                       << "007";
        QTest::newRow("no whole digit") << 0.5 << "#.0"
                                        << ",5";
        QTest::newRow("beyond 15 digits") << 1e17 << "##0"
                                          << "100000000000000000";
        QTest::newRow("text around") << 45.6 << "##0 %"
                                     << "46 %";
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
        QTest::addColumn<QString>("texto");
        QTest::addColumn<double>("val");
        QTest::addColumn<bool>("numerico");
        QTest::addColumn<double>("escrito");
        QTest::newRow("whole") << "309" << 309.0 << true << 309.0;
        QTest::newRow("empty") << "" << 0.0 << false << 0.0;
        QTest::newRow("blank") << "  " << 0.0 << false << 0.0;
        QTest::newRow("letters") << "aa" << 0.0 << false << 0.0;
        QTest::newRow("digits and letters") << "12ab" << 12.0 << false << 0.0;
        QTest::newRow("comma") << "1,5" << 1.0 << true << 1.5;
        QTest::newRow("point") << "2.5" << 2.5 << true << 2.5;
        QTest::newRow("thousands and comma") << "1.234,5" << 1.234 << true << 1234.5;
        QTest::newRow("two commas") << "1,2,3" << 1.0 << false << 0.0;
        QTest::newRow("blanks within") << "1 200" << 1200.0 << false << 0.0;
        QTest::newRow("blanks around") << " 7 " << 7.0 << true << 7.0;
        QTest::newRow("negative") << "-3,5" << -3.0 << true << -3.5;
        QTest::newRow("sign behind") << "3-" << 3.0 << true << -3.0;
        QTest::newRow("two signs") << "-3-" << -3.0 << false << 0.0;
        QTest::newRow("brackets") << "(5)" << 0.0 << true << -5.0;
        QTest::newRow("euro") << "12,50 €" << 12.0 << true << 12.5;
        QTest::newRow("exponent") << "1e3" << 1000.0 << true << 1000.0;
        QTest::newRow("exponent with d") << "1,5d2" << 1.0 << true << 150.0;
        QTest::newRow("exponent without digits") << "1e" << 1.0 << false << 0.0;
        QTest::newRow("hexadecimal") << "&HFF" << 255.0 << true << 255.0;
        QTest::newRow("a count in brackets") << "( 0 )" << 0.0 << true << 0.0;
        QTest::newRow("lone comma") << "," << 0.0 << false << 0.0;
        QTest::newRow("lone sign") << "-" << 0.0 << false << 0.0;
        QTest::newRow("date") << "1/2/05" << 1.0 << false << 0.0;
        QTest::newRow("too small to tell") << "1e-400" << 0.0 << true << 0.0;
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
