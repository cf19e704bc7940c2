#include "prueba.h"

#include "DatosDeEjemplo.h"
#include "frame/calendario/Reloj.h"
#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Informe.h"
#include "reports/motor/LectorDisposicion.h"

using namespace pastorix;
using namespace ejemplo;

namespace {

// A4 with margins of 10 leaves 277 mm of height.
const char* const Cabeza = R"(pastorix-informe 1
pagina A4 vertical margenes=10,10,10,10
letra "DejaVu Sans" tamaño=8
parametro AñoRef defecto="2020"
tabla X_Temp
  campo C1
  campo C2
  campo F1
  campo N1
  campo M1
fin
tabla Hija
  campo Id
  campo T
fin
)";

TablasEnMemoria Datos(std::vector<Fila> filas, std::vector<Fila> hijas = {}) {
    TablasEnMemoria fuente;
    fuente.Poner(Tabla("X_Temp", {"N1", "C2", "C1", "F1", "M1"}, std::move(filas)));
    fuente.Poner(Tabla("Hija", {"Id", "T"}, std::move(hijas)));
    return fuente;
}

// Rows with N1 = 1..n and C1 = "fila n".
std::vector<Fila> Filas(int n, const char* c2 = "x") {
    std::vector<Fila> filas;
    for (int i = 1; i <= n; ++i)
        filas.push_back({N(i), T(c2), "fila " + std::to_string(i), {}, {}});
    return filas;
}

InformeTerminado Hacer(const std::string& cuerpo, const FuenteDeTablas& fuente,
                       PeticionInforme peticion = {}) {
    return GenerarInforme(LeerDisposicion(Cabeza + cuerpo, "x.rpt"), fuente, peticion);
}

// The texts of all pages: by '|', pages by '/'.
QString Textos(const InformeTerminado& informe) {
    QStringList paginas;
    for (const Pagina& pagina : informe.paginas.paginas)
        paginas << pagina.Textos().join(QLatin1Char('|'));
    return paginas.join(QLatin1Char('/'));
}

} // namespace

class PruebaPaginas : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { FijarHoy(Fecha::De(2026, 11, 22)); }
    void cleanupTestCase() { FijarHoy(std::nullopt); }

    // What a run prints, whole: one row per case of the layout language.
    void Impreso_data() {
        QTest::addColumn<QString>("cuerpo");
        QTest::addColumn<QString>("impreso");
        const auto caso = [](const char* nombre, const char* cuerpo, const char* impreso) {
            QTest::newRow(nombre) << QString::fromUtf8(cuerpo) << QString::fromUtf8(impreso);
        };
        caso("masks and nulls", R"(seccion X_Temp
detalle 5
texto 0 0 30 5 "{X_Temp.N1:##0.0}"
texto 30 0 30 5 "{X_Temp.F1:dd/mm/yyyy}"
texto 60 0 30 5 "{X_Temp.F1}"
texto 90 0 30 5 "{X_Temp.M1} kg"
fin
fin)",
             "1,0|03/05/2026|03/05/26|2,5|b kg|-7,3");
        caso("totals skip what is Null", R"(seccion X_Temp
pie 5
texto 0 0 50 5 "{Cuenta(X_Temp.N1)} {Cuenta(X_Temp.C2)} {Suma(X_Temp.N1)} {Media(X_Temp.N1):0.00}"
texto 50 0 50 5 "{Suma(X_Temp.C2)} en total"
fin
fin)",
             "3 0 -3,75 -1,25");
        caso("group in order of appearance", R"(orden X_Temp -N1
seccion X_Temp
grupo C1
cabecera 5
texto 0 0 50 5 "[{X_Temp.C1}"
fin
pie 5
texto 0 0 50 5 "{Cuenta(X_Temp.N1)}: {Suma(X_Temp.N1)}]"
fin
fin
detalle 5
texto 0 0 50 5 "{X_Temp.N1}"
fin
pie 5
texto 0 0 50 5 "suma {Suma(X_Temp.N1)}"
fin
fin)",
             "[uno|2,5|1|2: 3,5]|[dos|-7,25|1: -7,25]|suma -3,75");
        caso("conditions", R"(seccion X_Temp donde="{X_Temp.N1} > 0"
detalle 5 si="{X_Temp.F1}"
texto 0 0 50 5 "con fecha"
fin
detalle 5
texto 0 0 50 5 "sin fecha" si="not {X_Temp.F1}"
texto 50 0 50 5 "{X_Temp.N1}"
fin
fin)",
             "con fecha|1|sin fecha|2,5");
        caso("specials", R"(cabecera-pagina 5
texto 0 0 100 5 "{Título}, {Fecha:dd/mm/yyyy}, {X_Temp.C1}"
fin
pie-pagina 5
texto 0 0 50 5 "Página {Página} de {Páginas}"
fin
banda 5
texto 0 0 50 5 "Año {?AñoRef}"
fin)",
             "Cebo, 22/11/2026, uno|Año 2020|Página 1 de 1");
        caso("inner rows tied to the outer one", R"(seccion X_Temp
detalle 5
texto 0 0 50 5 "{X_Temp.N1}"
fin
seccion Hija atada=Id:X_Temp.N1
detalle 5
texto 0 0 50 5 "{Hija.T} de {X_Temp.C1}"
fin
vacia 5
texto 0 0 50 5 "nada"
fin
fin
fin)",
             "1|a de uno|b de uno|2,5|c de uno|-7,25|nada");
        caso("side by side", R"(columnas
columna 0 90
seccion X_Temp
detalle 5
texto 0 0 50 5 "{X_Temp.N1}"
fin
fin
fin
columna 100 90
seccion Hija
detalle 5
texto 0 0 50 5 "{Hija.T}"
fin
fin
fin
fin
banda 5
texto 0 0 50 5 "después"
fin)",
             "1|2,5|-7,25|a|b|c|después");
    }
    void Impreso() {
        QFETCH(QString, cuerpo);
        QFETCH(QString, impreso);
        const TablasEnMemoria fuente = Datos({{N(1), {}, T("uno"), F(3, 5, 2026), {}},
                                              {N(2.5), {}, T("uno"), {}, T("b")},
                                              {N(-7.25), {}, T("dos"), {}, {}}},
                                             {{T("1"), T("a")}, {N(1), T("b")}, {T("2,5"), T("c")}});
        PeticionInforme peticion;
        peticion.titulo = QStringLiteral(" Cebo");
        QCOMPARE(Textos(Hacer(cuerpo.toStdString(), fuente, peticion)), impreso);
    }

    // 277 mm: heading 10 and rows of 10 make 26 rows per page and a rest.
    void CabecerasYPaginas() {
        const std::string cuerpo = R"(pie-pagina 7
texto 0 0 50 5 "{Página}/{Páginas}"
fin
seccion X_Temp
cabecera 10
texto 0 0 50 5 "CABEZA"
fin
detalle 10
texto 0 0 50 5 "{X_Temp.N1}"
fin
pie 10
texto 0 0 50 5 "total {Suma(X_Temp.N1)}"
fin
fin)";
        const InformeTerminado uno = Hacer(cuerpo, Datos(Filas(25)));
        QCOMPARE(uno.paginas.paginas.size(), std::size_t(1));
        const InformeTerminado dos = Hacer(cuerpo, Datos(Filas(26)));
        QCOMPARE(dos.paginas.paginas.size(), std::size_t(2));
        // The total does not stand alone on its page: the last row goes with it, under the heading.
        QCOMPARE(dos.paginas.paginas[1].Textos().join(QLatin1Char('|')),
                 QStringLiteral("CABEZA|26|total 351|2/2"));
        const InformeTerminado tres = Hacer(cuerpo, Datos(Filas(60)));
        QCOMPARE(tres.paginas.paginas.size(), std::size_t(3));
        for (const Pagina& pagina : tres.paginas.paginas)
            QCOMPARE(pagina.Textos().first(), QStringLiteral("CABEZA"));
        QCOMPARE(tres.paginas.paginas[1].Textos().at(1), QStringLiteral("27"));
    }

    void BloquesJuntos() {
        const std::string cuerpo = R"(seccion X_Temp
grupo N1 juntos
fin
bloque
detalle 60
texto 0 0 50 5 "{X_Temp.N1}a"
fin
detalle 60
texto 0 0 50 5 "{X_Temp.N1}b"
fin
fin
fin)";
        QCOMPARE(Textos(Hacer(cuerpo, Datos(Filas(3)))), QStringLiteral("1a|1b|2a|2b/3a|3b"));
    }

    void UnaPaginaPorFila() {
        const std::string cuerpo = R"(cabecera-pagina 5
texto 0 0 50 5 "de {X_Temp.C1}"
fin
seccion X_Temp pagina-nueva
detalle 150
texto 0 0 50 5 "{X_Temp.N1}"
fin
detalle 150
fin
salto
detalle 5
texto 0 0 50 5 "fin"
fin
fin)";
        QCOMPARE(Textos(Hacer(cuerpo, Datos(Filas(2)))),
                 QStringLiteral("de fila 1|1/de fila 1/de fila 1|fin/de fila 2|2/de fila 2/de fila 2|fin"));
    }

    // A memo wraps and pushes what stands below it; one taller than the page goes on over the next ones, and no word is lost.
    void TextosQueCrecen() {
        const std::string cuerpo = R"(seccion X_Temp
detalle 12
texto 0 0 40 5 "{X_Temp.M1}" ajustar
texto 0 6 40 5 "debajo"
linea 0 12 40 12 estirar
fin
fin)";
        QString palabras;
        for (int i = 0; i < 900; ++i)
            palabras += QStringLiteral("palabra%1 ").arg(i);
        const TablasEnMemoria fuente =
            Datos({{{}, {}, {}, {}, T("corto")}, {{}, {}, {}, {}, palabras.toStdString()}});
        const InformeTerminado informe = Hacer(cuerpo, fuente);
        QVERIFY(informe.paginas.paginas.size() > 2);
        const QStringList todas =
            Textos(informe).split(QRegularExpression(QStringLiteral("[ |/]")), Qt::SkipEmptyParts);
        QCOMPARE(todas.size(), 900 + 3);
        QCOMPARE(todas.at(2), QStringLiteral("palabra0"));
        QCOMPARE(todas.at(901), QStringLiteral("palabra899"));
        for (const Pagina& pagina : informe.paginas.paginas) {
            for (const Trozo& trozo : pagina.trozos) {
                if (const auto* texto = std::get_if<TextoColocado>(&trozo))
                    QVERIFY2(texto->base.y() > 10 && texto->base.y() < 287.1, qUtf8Printable(texto->texto));
            }
        }
    }

    void NoSeCortanNumeros() {
        const std::string cuerpo = R"(seccion X_Temp
detalle 5
texto 0 0 8 5 "{X_Temp.N1}"
texto 20 0 20 5 "{X_Temp.C1}"
fin
fin)";
        const QString impreso =
            Textos(Hacer(cuerpo, Datos({{N(123456789), {}, T("un texto que no cabe de ninguna manera")}})));
        QVERIFY(impreso.startsWith(QStringLiteral("##")) && !impreso.contains(QStringLiteral("1")));
        QVERIFY(impreso.endsWith(QStringLiteral("…")));
    }

    void Uniones() {
        const std::string cuerpo = R"(union Hija con X_Temp por=Id:C1
orden X_Temp Hija.T
seccion X_Temp
detalle 5
texto 0 0 50 5 "{X_Temp.N1}{Hija.T}"
fin
fin)";
        // Without partner first (blank sorts first); two partners make two rows; Null joins with nothing.
        QCOMPARE(Textos(Hacer(cuerpo, Datos({{N(1), {}, T("k")}, {N(2), {}, T("z")}, {N(3), {}, {}}},
                                            {{T("K"), T("ñu")}, {T("k"), T("nube")}, {{}, T("nadie")}}))),
                 QStringLiteral("2|3|1nube|1ñu"));
    }

    void SeleccionYParametros() {
        const std::string cuerpo = R"(seccion X_Temp
detalle 5
texto 0 0 50 5 "{X_Temp.C1} {?AñoRef}"
fin
fin)";
        const TablasEnMemoria fuente = Datos({{N(1), {}, T("2025")}, {N(2), {}, T("2026")}, {N(3), {}, {}}});
        PeticionInforme peticion;
        peticion.formulaSeleccion = "{X_Temp.C1} <= '2025'";
        peticion.parametros = {{"añoref", "26"}};
        QCOMPARE(Textos(Hacer(cuerpo, fuente, peticion)), QStringLiteral("2025 26"));

        const auto codigo = [&](const std::string& formula, const char* parametro) {
            PeticionInforme mala;
            mala.formulaSeleccion = formula;
            if (*parametro)
                mala.parametros = {{parametro, "1"}};
            try {
                Hacer(cuerpo, fuente, mala);
            } catch (const ErrorInforme& e) {
                return e.Codigo();
            }
            return CodigoInforme::Orden;
        };
        QCOMPARE(codigo("{X_Temp.C1} <=", ""), CodigoInforme::Formula);
        QCOMPARE(codigo("{X_Temp.C1} = '1' and {Hija.T} = '1'", ""), CodigoInforme::Formula);
        QCOMPARE(codigo("{Otra.C1} = '1'", ""), CodigoInforme::Formula);
        QCOMPARE(codigo("", "Titulo"), CodigoInforme::Parametro);
    }

    void FaltaEnLaBase() {
        TablasEnMemoria fuente;
        fuente.Poner(Tabla("X_Temp", {"N1", "C2", "C1", "M1"}));
        const auto error = [&] {
            try {
                Hacer("", fuente);
            } catch (const ErrorInforme& e) {
                return QString::fromUtf8(e.what());
            }
            return QString();
        };
        QVERIFY2(error().contains(QStringLiteral(
                     "línea 8: la tabla \"X_Temp\" de la base de datos no tiene la columna \"F1\"")),
                 qUtf8Printable(error()));
        fuente.Poner(Tabla("X_Temp", {"N1", "C2", "C1", "M1", "F1"}));
        QVERIFY2(error().contains(QStringLiteral("línea 12: ")) &&
                     error().contains(QStringLiteral("\"Hija\"")),
                 qUtf8Printable(error()));
    }

    // A layout that multiplies rows ends in an error, not in an endless run.
    void Desbocado() {
        std::string cuerpo;
        for (int i = 0; i < 6; ++i)
            cuerpo += "seccion X_Temp\n";
        cuerpo += "detalle 1\nfin\n";
        for (int i = 0; i < 6; ++i)
            cuerpo += "fin\n";
        try {
            Hacer(cuerpo, Datos(Filas(200)));
            QFAIL("ended");
        } catch (const ErrorInforme& e) {
            QCOMPARE(e.Codigo(), CodigoInforme::Limite);
        }
    }

    void Graficos() {
        const std::string cuerpo = R"(banda 60
grafico 0 0 100 60 X_Temp apilado
categoria C1
serie N1 "Vacas" color=#336655
serie C2 "Otra"
fin
fin)";
        const InformeTerminado informe =
            Hacer(cuerpo, Datos({{N(3), T("4,5"), T("Dic")}, {{}, T("x"), T("Ene")}}));
        const auto& grafico = std::get<GraficoColocado>(informe.paginas.paginas.at(0).trozos.at(0));
        QCOMPARE(grafico.lugar, QRectF(10, 10, 100, 60));
        QCOMPARE(grafico.datos->categorias, QStringList({QStringLiteral("Dic"), QStringLiteral("Ene")}));
        QCOMPARE(grafico.datos->series.at(0).valores.at(0), 3.0);
        QVERIFY(std::isnan(grafico.datos->series.at(0).valores.at(1)));
        QCOMPARE(grafico.datos->series.at(1).valores.at(0), 4.5);
        QVERIFY(grafico.datos->apilado);
    }
};

PRUEBA(PruebaPaginas)
#include "PruebaPaginas.moc"
