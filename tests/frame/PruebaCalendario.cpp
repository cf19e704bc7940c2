#include "prueba.h"

#include "frame/calendario/Calendario.h"
#include "frame/calendario/Formatos.h"
#include "frame/calendario/Reloj.h"

#include <limits>

using namespace prueba;

class PruebaCalendario : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        FijarHoy(std::nullopt);
        FijarAvisoDeErrorDeFecha({});
    }

    void CambioDeCampana_data() {
        Caso("30 November", "30/11/2005", "30/11/05", "2005", "2005");
        Caso("1 December", "01/12/2005", "1/12/05", "2006", "2006");
        Caso("1 January", "01/01/2005", "1/1/2005", "2005", "2005");
        Caso("old date, today's year", "15/06/2006", "30/11/1999", "2006", "2006");
        Caso("old December, next of today's year", "15/06/2006", "01/12/99", "2006", "2007");
        Caso("asked in December", "15/12/2006", "30/11/06", "2007", "2006");
    }
    void CambioDeCampana() {
        const auto [hoy, fecha, actual, deFecha] = DelCaso<QString, QString, QString, QString>();
        FijarHoy(FechaDeTexto(hoy.toStdString()));
        QCOMPARE(Q(AñoReferenciaActual()), actual);
        QCOMPARE(Q(AñoReferenciaDe(fecha.toStdString())), deFecha);
    }

    void FechasValidas() {
        FijarAvisoDeErrorDeFecha([](long, const std::string&) { QFAIL("no date of these is an error"); });
        for (const char* t : {"29/02/04", "1/1/2004", "1/1/01", "31/12/99", "30/11/2026", "01/01/1900"})
            QVERIFY2(EsFechaValida(t), t);
        for (const char* t : {"",          "/",        "//",       "12/2005",  "32/01/05", "01/13/05",
                              "01/01/205", "01/01/5",  "29/02/05", "31/02/01", "aa/bb/cc", "1a/1/05",
                              "0/1/05",    "1/0/05",   "-1/1/05",  "1/1/05/",  "1/1/1/05", "1.5/1/05",
                              "1/1/ 5",    "01-01-05", "1/1/0000", "+1/1/05",  "1/1e0/05", "1/1/2o05"})
            QVERIFY2(!EsFechaValida(t), t);
    }

    void UnaParteQueNingunNumeroContieneEsUnErrorQueSeDice() {
        long dicho = 0;
        FijarAvisoDeErrorDeFecha([&](long numero, const std::string&) { dicho = numero; });
        QVERIFY(!EsFechaValida(std::string(400, '9') + "/01/05"));
        QCOMPARE(dicho, 6L);
    }

    void DiasYPesos_data() {
        // peso: from 40 kg to 200 kg, at 100 days
        Caso("same day", "1/3/2004", "01/03/04", "0", "");
        Caso("backwards", "1/3/2004", "28/02/2004", "-2", "");
        Caso("across a leap day", "28/02/2004", "1/3/2004", "2", "8040");
        Caso("century of two digits", "31/12/49", "1/1/50", "-36524", "");
        Caso("200 days", "1/1/2005", "20/07/2005", "200", "120");
        Caso("half goes to the even kilo", "1/1/2000", "16/11/2000", "320", "90");
    }
    void DiasYPesos() {
        const auto [desde, hasta, dias, peso] = DelCaso<QString, QString, QString, QString>();
        const std::string a = desde.toStdString(), b = hasta.toStdString();
        QCOMPARE(Q(DiasEntre(a, b)), dias);
        QCOMPARE(Q(PesoInterpolado(200, 40, b, a, 100)), peso);
    }

    void ElPesoRedondeaAlParYNoBajaDeCero() {
        // 1 kg in 2 days: 40,5 and 41,5 at odd ages.
        QCOMPARE(PesoInterpolado(41, 40, "03/01/05", "01/01/05", 1), "40"s);
        QCOMPARE(PesoInterpolado(41, 40, "03/01/05", "01/01/05", 3), "42"s);
        QCOMPARE(PesoInterpolado(20, 40, "03/01/05", "01/01/05", 4), std::string()); // exactly 0
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, DiasEntre("", "01/01/05"));
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, AñoReferenciaDe("31/02/05"));
        QCOMPARE(PesoInterpolado(20, 40, "03/01/05", "01/01/05", 10), std::string()); // below
    }
};

class PruebaFormatos : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Mascaras_data() {
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
        const auto [numero, mascara, texto] = DelCaso<double, QString, QString>();
        QCOMPARE(Q(FormatoNumero(numero, mascara.toStdString())), texto);
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
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, Val("1e999"));
        QVERIFY(!IsNumeric("1e999"));
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, AEntero(std::numeric_limits<double>::quiet_NaN()));
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion,
                                 FormatoNumero(1.0 / std::numeric_limits<double>::denorm_min(), "0"));
    }

    void Lecturas_data() {
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
        const auto [texto, val, numerico, escrito] = DelCaso<QString, double, bool, double>();
        const std::string t = texto.toStdString();
        QCOMPARE(Val(t), val);
        QCOMPARE(IsNumeric(t), numerico);
        QCOMPARE(NumeroEscrito(t).value_or(0), escrito);
    }
};

PRUEBA(PruebaCalendario)
PRUEBA(PruebaFormatos)
#include "PruebaCalendario.moc"
