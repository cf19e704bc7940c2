#include "prueba.h"

#include "frame/calendario/Calendario.h"
#include "frame/calendario/Reloj.h"

using namespace pastorix;
using namespace prueba;

class PruebaCalendario : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        FijarHoy(std::nullopt);
        FijarAvisoDeErrorDeFecha({});
    }

    void CambioDeCampana_data() {
        Columnas<QString, QString, QString, QString>("hoy", "fecha", "actual", "deFecha");
        Caso("30 November", "30/11/2005", "30/11/05", "2005", "2005");
        Caso("1 December", "01/12/2005", "1/12/05", "2006", "2006");
        Caso("1 January", "01/01/2005", "1/1/2005", "2005", "2005");
        Caso("old date, today's year", "15/06/2006", "30/11/1999", "2006", "2006");
        Caso("old December, next of today's year", "15/06/2006", "01/12/99", "2006", "2007");
        Caso("asked in December", "15/12/2006", "30/11/06", "2007", "2006");
    }
    void CambioDeCampana() {
        QFETCH(QString, hoy);
        QFETCH(QString, fecha);
        FijarHoy(FechaDeTexto(hoy.toStdString()));
        QTEST(QString::fromStdString(AñoReferenciaActual()), "actual");
        QTEST(QString::fromStdString(AñoReferenciaDe(fecha.toStdString())), "deFecha");
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
        Columnas<QString, QString, QString, QString>("desde", "hasta", "dias", "peso");
        Caso("same day", "1/3/2004", "01/03/04", "0", "");
        Caso("backwards", "1/3/2004", "28/02/2004", "-2", "");
        Caso("across a leap day", "28/02/2004", "1/3/2004", "2", "8040");
        Caso("century of two digits", "31/12/49", "1/1/50", "-36524", "");
        Caso("200 days", "1/1/2005", "20/07/2005", "200", "120");
        Caso("half goes to the even kilo", "1/1/2000", "16/11/2000", "320", "90");
    }
    void DiasYPesos() {
        QFETCH(QString, desde);
        QFETCH(QString, hasta);
        const std::string a = desde.toStdString(), b = hasta.toStdString();
        QTEST(QString::fromStdString(DiasEntre(a, b)), "dias");
        QTEST(QString::fromStdString(PesoInterpolado(200, 40, b, a, 100)), "peso");
    }

    void ElPesoRedondeaAlParYNoBajaDeCero() {
        // 1 kg in 2 days: 40,5 and 41,5 at odd ages.
        QCOMPARE(PesoInterpolado(41, 40, "03/01/05", "01/01/05", 1), "40"s);
        QCOMPARE(PesoInterpolado(41, 40, "03/01/05", "01/01/05", 3), "42"s);
        QCOMPARE(PesoInterpolado(20, 40, "03/01/05", "01/01/05", 4), std::string());  // exactly 0
        QCOMPARE(PesoInterpolado(20, 40, "03/01/05", "01/01/05", 10), std::string()); // below
    }

    void UnTextoQueNoEsFechaEsUnErrorDeTipos() {
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, DiasEntre("", "01/01/05"));
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, AñoReferenciaDe("31/02/05"));
    }
};

PRUEBA(PruebaCalendario)
#include "PruebaCalendario.moc"
