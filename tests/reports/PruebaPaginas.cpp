#include "prueba.h"

#include "DatosDeEjemplo.h"
#include "frame/calendario/Reloj.h"
#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Informe.h"
#include "reports/motor/LectorDisposicion.h"

using namespace prueba;
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

// A layout's lines at the ends of lines and at " / ".
InformeTerminado Hacer(const std::string& cuerpo, const FuenteDeTablas& fuente,
                       PeticionInforme peticion = {}) {
    auto lineas = Q(Cabeza + cuerpo).replace(u" / "_s, u"\n"_s);
    return GenerarInforme(LeerDisposicion(lineas.toStdString(), "x.rpt"), fuente, peticion);
}

// The texts of all pages: by '|', pages by '/'.
QString Textos(const InformeTerminado& informe) {
    QStringList paginas;
    for (const Pagina& pagina : informe.paginas.paginas)
        paginas << pagina.Textos().join(u'|');
    return paginas.join(u'/');
}

// The texts, or what is said against them.
QString Dicho(const std::string& cuerpo, const FuenteDeTablas& fuente, const PeticionInforme& peticion = {},
              CodigoInforme* codigo = nullptr) {
    try {
        return Textos(Hacer(cuerpo, fuente, peticion));
    } catch (const ErrorInforme& e) {
        if (codigo)
            *codigo = e.Codigo();
        return Q(e.what());
    }
}

} // namespace

class PruebaPaginas : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { FijarHoy(Fecha::De(2026, 11, 22)); }
    void cleanupTestCase() { FijarHoy(std::nullopt); }

    // What a run prints, whole: one row per case of the layout language.
    void Impreso_data() {
        Caso("masks and nulls", R"(seccion X_Temp / detalle 5 / texto 0 0 30 5 "{X_Temp.N1:##0.0}"
texto 30 0 30 5 "{X_Temp.F1:dd/mm/yyyy}" / texto 60 0 30 5 "{X_Temp.F1}"
texto 90 0 30 5 "{X_Temp.M1} kg" / fin / fin)",
             "1,0|03/05/2026|03/05/26|2,5|b kg|-7,3");
        Caso("what is missing takes its brackets, and a separator, with it", R"(seccion X_Temp / detalle 5
texto 0 0 50 5 "{X_Temp.C1}[ ({X_Temp.M1}, {X_Temp.F1})][[]]"
texto 50 0 50 5 "{X_Temp.M1} -[ a]" / fin
detalle 5 si="{X_Temp.M1} = 'b' or {?AñoRef} <> '2020'" / texto 0 0 50 5 "[{?AñoRef}]"
fin / fin)",
             "uno (, 03/05/26)[]|uno (b, )[]|b -|2020|dos[]");
        Caso("totals skip what is Null", R"(seccion X_Temp / pie 5
texto 0 0 50 5 "{Cuenta(X_Temp.N1)} {Cuenta(X_Temp.C2)} {Suma(X_Temp.N1)} {Media(X_Temp.N1):0.00}"
texto 50 0 50 5 "{Suma(X_Temp.C2)} en total" / fin / fin / banda 5
texto 0 0 50 5 "{Suma(Hija.Id):0.0}" / fin)",
             "3 0 -3,75 -1,25|4,5");
        Caso("group in order of appearance",
             R"(seccion X_Temp / grupo C1 / cabecera 5 / texto 0 0 50 5 "[[{X_Temp.C1}" / fin / pie 5
texto 0 0 50 5 "{Cuenta(X_Temp.N1)}: {Suma(X_Temp.N1)}]]" / fin / fin / detalle 5
texto 0 0 50 5 "{X_Temp.N1}" / fin / pie 5 / texto 0 0 50 5 "suma {Suma(X_Temp.N1)}"
fin / fin)",
             "[uno|1|2,5|2: 3,5]|[dos|-7,25|1: -7,25]|suma -3,75");
        Caso("conditions", R"(seccion X_Temp donde="{X_Temp.N1} > 0" / detalle 5 si="{X_Temp.F1}"
texto 0 0 50 5 "con fecha" / fin / detalle 5
texto 0 0 50 5 "sin fecha" si="not {X_Temp.F1}" / texto 50 0 50 5 "{X_Temp.N1}" / fin
fin)",
             "con fecha|1|sin fecha|2,5");
        Caso("specials",
             R"(cabecera-pagina 5 / texto 0 0 100 5 "{Título}, {Fecha:dd/mm/yyyy}, {X_Temp.C1}" / fin
pie-pagina 5 / texto 0 0 50 5 "Página {Página} de {Páginas}" / fin / banda 5
texto 0 0 50 5 "Año {?AñoRef}" / fin)",
             "Cebo, 22/11/2026, uno|Año 2020|Página 1 de 1");
        Caso("inner rows tied to the outer one",
             R"(seccion X_Temp / detalle 5 / texto 0 0 50 5 "{X_Temp.N1}" / fin
seccion Hija atada=Id:X_Temp.N1 / detalle 5 / texto 0 0 50 5 "{Hija.T} de {X_Temp.C1}"
fin / vacia 5 / texto 0 0 50 5 "nada" / fin / fin / fin)",
             "1|a de uno|b de uno|2,5|c de uno|-7,25|nada");
        Caso("side by side",
             R"(columnas / columna 0 90 / seccion X_Temp / detalle 5 / texto 0 0 50 5 "{X_Temp.N1}"
fin / fin / fin / columna 100 90 / seccion Hija / detalle 5 / texto 0 0 50 5 "{Hija.T}"
fin / fin / fin / fin / banda 5 / texto 0 0 50 5 "después" / fin)",
             "1|2,5|-7,25|a|b|c|después");
    }
    void Impreso() {
        const auto [cuerpo, impreso] = DelCaso<QString, QString>();
        const TablasEnMemoria fuente = Datos({{N(1), {}, T("uno"), F(3, 5, 2026), {}},
                                              {N(2.5), {}, T("uno"), {}, T("b")},
                                              {N(-7.25), {}, T("dos"), {}, {}}},
                                             {{T("1"), T("a")}, {N(1), T("b")}, {T("2,5"), T("c")}});
        PeticionInforme peticion;
        peticion.titulo = u" Cebo"_s;
        QCOMPARE(Textos(Hacer(cuerpo.toStdString(), fuente, peticion)), impreso);
    }

    // A total over what is no number is refused; numbers as the program writes them count, blanks do not.
    void TotalesDeTextos() {
        const auto suma = [](std::vector<const char*> textos) {
            std::vector<Fila> filas;
            for (const char* texto : textos)
                filas.push_back({{}, {}, T(texto), {}, {}});
            return Dicho("banda 5 / texto 0 0 50 5 \"{Suma(X_Temp.C1):0.00} {Media(X_Temp.C1)}\" / fin",
                         Datos(filas));
        };
        QCOMPARE(suma({"7,4", " ", "1.200,50", "-3"}), u"1204,90 401,633333333333"_s);
        QCOMPARE(suma({"7,4", "( 4 )"}),
                 u"x.rpt, línea 17: no se puede sumar \"( 4 )\", que no es un número"_s);
    }

    // "Nombre - Localidad" without its place, "Teléfono / Móvil" without either.
    void Limpios_data() {
        for (const auto& caso : Q("Ana Gil - =Ana Gil| / 609 1=609 1|985 / =985| - =| - Tineo=Tineo|Ana - "
                                  "Tineo=Ana - Tineo|Casa-=Casa-|=| / - =")
                                    .split(u'|'))
            Caso(qPrintable(caso), caso.section(u'=', 0, 0), caso.section(u'=', 1));
    }
    void Limpios() {
        const auto [texto, limpio] = DelCaso<QString, QString>();
        QCOMPARE(Q(TextoConMascara(texto.toStdString(), "limpio")), limpio);
    }

    // 277 mm: heading 10 and rows of 10 make 26 rows per page and a rest.
    void CabecerasYPaginas() {
        const std::string cuerpo =
            R"(pie-pagina 7 / texto 0 0 50 5 "{Página}/{Páginas}" / fin / seccion X_Temp / cabecera 10
texto 0 0 50 5 "CABEZA" / fin / detalle 10 / texto 0 0 50 5 "{X_Temp.N1}" / fin / pie 10
texto 0 0 50 5 "total {Suma(X_Temp.N1)}" / fin / fin)";
        const InformeTerminado uno = Hacer(cuerpo, Datos(Filas(25)));
        QCOMPARE(uno.paginas.paginas.size(), 1U);
        const InformeTerminado dos = Hacer(cuerpo, Datos(Filas(26)));
        QCOMPARE(dos.paginas.paginas.size(), 2U);
        // The total does not stand alone on its page: the last row goes with it, under the heading.
        QCOMPARE(dos.paginas.paginas[1].Textos().join(u'|'), u"CABEZA|26|total 351|2/2"_s);
        const InformeTerminado tres = Hacer(cuerpo, Datos(Filas(60)));
        QCOMPARE(tres.paginas.paginas.size(), 3U);
        for (const Pagina& pagina : tres.paginas.paginas)
            QCOMPARE(pagina.Textos().first(), u"CABEZA"_s);
        QCOMPARE(tres.paginas.paginas[1].Textos().at(1), u"27"_s);
    }

    // Columns taller than a page go on over the next, each by itself and under its own heading; what follows stands below the one that reaches
    // furthest.
    void ColumnasPartidas_data() {
        // primera: rows of 50 mm in either column; a page holds 5 under the heading
        // sigue: top of what follows, from the top margin
        Caso("neither", 2, 3, "A|a1|a2|B|b1|b2|b3|sigue", 160.0);
        Caso("first", 7, 2, "A|a1|a2|a3|a4|a5|B|b1|b2/A|a6|a7|sigue", 110.0);
        Caso("second", 2, 6, "A|a1|a2|B|b1|b2|b3|b4|b5/B|b6|sigue", 60.0);
        Caso("both, first longer", 8, 6, "A|a1|a2|a3|a4|a5|B|b1|b2|b3|b4|b5/A|a6|a7|a8|B|b6|sigue", 160.0);
        Caso("both, second longer", 6, 7, "A|a1|a2|a3|a4|a5|B|b1|b2|b3|b4|b5/A|a6|B|b6|b7|sigue", 110.0);
    }
    void ColumnasPartidas() {
        const auto [primera, segunda, impreso, sigue] = DelCaso<int, int, QString, double>();
        std::string cuerpo = "columnas\n";
        for (const auto& [x, nombre, filas] : {std::tuple{"0", "a", primera}, {"100", "b", segunda}}) {
            cuerpo += "columna "s + x +
                      " 90\nseccion X_Temp donde=\"{X_Temp.N1} <= " + std::to_string(filas) +
                      "\"\ncabecera 10\ntexto 0 0 50 5 \"" + (*nombre == 'a' ? "A" : "B") +
                      "\"\nfin\ndetalle 50\ntexto 0 0 50 5 \"" + nombre + "{X_Temp.N1}\"\nfin\nfin\nfin\n";
        }
        const auto informe =
            Hacer(cuerpo + "fin\nbanda 10\ntexto 0 0 50 5 \"sigue\"\nfin\n", Datos(Filas(9)));
        QCOMPARE(Textos(informe), impreso);
        const auto& texto = std::get<TextoColocado>(informe.paginas.paginas.back().trozos.back());
        QCOMPARE(std::floor(texto.base.y() / 10) * 10 - 10, sigue);
    }

    // A heading wraps between its words; headings of one line stand beside its last one, a heading over columns above theirs, and the rows
    // below all of it.
    void Rejillas() {
        const std::string cuerpo = R"(seccion X_Temp / rejilla 10 5 regla=#000000 regla-detalle=#cccccc
col 20 "Uno" "{X_Temp.N1}" alinear=derecha / sobre "Ambos"
col 17 "Días hasta el parto" "{X_Temp.C1}" / col 20 "Otro" "{X_Temp.C2}" / fin / fin
fin)";
        const auto informe = Hacer(cuerpo, Datos(Filas(1)));
        std::map<QString, QPointF> lugares;
        for (const Trozo& trozo : informe.paginas.paginas.at(0).trozos) {
            if (const auto* texto = std::get_if<TextoColocado>(&trozo))
                lugares[texto->texto] = texto->base;
        }
        QCOMPARE(lugares.size(), 8U);
        const double ultima = lugares.at(u"el parto"_s).y();
        QCOMPARE(lugares.at(u"Uno"_s).y(), ultima);
        QCOMPARE(lugares.at(u"Otro"_s).y(), ultima);
        QVERIFY(lugares.at(u"Ambos"_s).y() < lugares.at(u"Días hasta"_s).y());
        QVERIFY(lugares.at(u"fila 1"_s).y() > ultima + 3);
        const double centro = lugares.at(u"Ambos"_s).x();
        QVERIFY(centro > 10 + 21.5 + 8 && centro < 10 + 21.5 + 37.5 / 2);
    }

    void FilasDeCifras() {
        const std::string cuerpo =
            R"(seccion X_Temp / filas 5 40 20 20 regla=#cccccc / titulos "" "Machos" "Hembras"
fila "Edad" "{X_Temp.N1} d" "{X_Temp.C2}"
fila "Peso" "{X_Temp.M1} kg" si="{X_Temp.N1} = 1" / fin / fin)";
        const auto informe = Hacer(cuerpo, Datos(Filas(2)));
        QCOMPARE(Textos(informe), u"Machos|Hembras|Edad|1 d|x|Peso|Machos|Hembras|Edad|2 d|x"_s);
        const auto& trozos = informe.paginas.paginas.at(0).trozos;
        QCOMPARE(std::count_if(trozos.begin(), trozos.end(),
                               [](const Trozo& t) { return std::holds_alternative<CajaColocada>(t); }),
                 5);
        const auto& cifra = std::get<TextoColocado>(trozos.at(4));
        QCOMPARE(cifra.texto, u"1 d"_s);
        QVERIFY(std::abs(cifra.base.x() + cifra.ancho - 70) < 0.01);
    }

    void BloquesJuntos() {
        const std::string cuerpo = R"(seccion X_Temp / grupo N1 juntos / fin / bloque / detalle 60
texto 0 0 50 5 "{X_Temp.N1}a" / fin / detalle 60 / texto 0 0 50 5 "{X_Temp.N1}b" / fin
fin / fin)";
        QCOMPARE(Textos(Hacer(cuerpo, Datos(Filas(3)))), u"1a|1b|2a|2b/3a|3b"_s);
    }

    void UnaPaginaPorFila() {
        const std::string cuerpo =
            R"(cabecera-pagina 5 / texto 0 0 50 5 "de {X_Temp.C1}" / fin / seccion X_Temp pagina-nueva
detalle 150 / texto 0 0 50 5 "{X_Temp.N1}" / fin / detalle 150 / fin / salto / detalle 5
texto 0 0 50 5 "fin" / fin / fin)";
        QCOMPARE(Textos(Hacer(cuerpo, Datos(Filas(2)))),
                 u"de fila 1|1/de fila 1/de fila 1|fin/de fila 2|2/de fila 2/de fila 2|fin"_s);
    }

    // The pages of each group are numbered by themselves, and the index tells where they and what is in them begin.
    void GruposConPaginas() {
        const std::string cuerpo =
            R"(pie-pagina 7 / texto 0 0 50 5 "{PáginaGrupo} de {PáginasGrupo}, {Página} de {Páginas}"
fin / seccion X_Temp / grupo C2 pagina-nueva indice="Casa {X_Temp.C2}" / fin / grupo C1
fin / detalle 120 / texto 0 0 50 5 "{X_Temp.N1}" / fin / fin)";
        std::vector<Fila> filas = Filas(3, "a");
        const std::vector<Fila> otras = Filas(2, "b");
        filas.insert(filas.end(), otras.begin(), otras.end());
        filas.push_back({N(9), T("c"), T(" "), {}, {}});
        const auto informe = Hacer(cuerpo, Datos(filas));
        QCOMPARE(Textos(informe),
                 u"1|2|1 de 2, 1 de 4/3|2 de 2, 2 de 4/1|2|1 de 1, 3 de 4/9|1 de 1, 4 de 4"_s);
        QStringList indice;
        for (const auto& e : informe.paginas.indice)
            indice << u"%1%2@%3"_s.arg(QString(e.nivel, u'-'), e.texto).arg(e.pagina);
        QCOMPARE(indice.join(u'|'),
                 u"Casa a@0|-fila 1@0|-fila 2@0|-fila 3@1|Casa b@2|-fila 1@2|-fila 2@2|Casa c@3|-–@3"_s);
    }

    // A memo wraps and pushes what stands below it; one taller than the page goes on over the next ones, and no word is lost.
    void TextosQueCrecen() {
        const std::string cuerpo = R"(seccion X_Temp / detalle 12 / texto 0 0 40 5 "{X_Temp.M1}" ajustar
texto 0 6 40 5 "debajo" / linea 0 12 40 12 estirar / fin / fin)";
        QString palabras;
        for (int i = 0; i < 900; ++i)
            palabras += u"palabra%1 "_s.arg(i);
        const TablasEnMemoria fuente = Datos({{{}, {}, {}, {}, T("Encarnaciónlarguísima-Aculonadísima")},
                                              {{}, {}, {}, {}, palabras.toStdString()}});
        const auto informe = Hacer(cuerpo, fuente);
        QVERIFY(informe.paginas.paginas.size() > 2);
        const QStringList todas = Textos(informe).split(QRegularExpression(u"[ |/]"_s), Qt::SkipEmptyParts);
        QCOMPARE(todas.size(), 900 + 4);
        QCOMPARE(todas.at(0), u"Encarnaciónlarguísima-"_s); // a long word breaks at its hyphen
        QCOMPARE(todas.at(3), u"palabra0"_s);
        QCOMPARE(todas.at(902), u"palabra899"_s);
        for (const Pagina& pagina : informe.paginas.paginas) {
            for (const Trozo& trozo : pagina.trozos) {
                if (const auto* texto = std::get_if<TextoColocado>(&trozo))
                    QVERIFY2(texto->base.y() > 10 && texto->base.y() < 287.1, qPrintable(texto->texto));
            }
        }
    }

    void NoSeCortanNumeros() {
        const std::string cuerpo =
            R"(seccion X_Temp / detalle 5 / texto 0 0 8 5 "{X_Temp.N1}" / texto 20 0 20 5 "{X_Temp.C1}"
fin / fin)";
        const QString impreso =
            Textos(Hacer(cuerpo, Datos({{N(123456789), {}, T("un texto que no cabe de ninguna manera")}})));
        QVERIFY(impreso.startsWith(u"##"_s) && !impreso.contains(u"1"_s) && impreso.endsWith(u"…"_s));
    }

    void SeleccionYParametros() {
        const std::string cuerpo =
            R"(seccion X_Temp / detalle 5 / texto 0 0 50 5 "{X_Temp.C1} {?AñoRef}" / fin / fin)";
        const TablasEnMemoria fuente = Datos({{N(1), {}, T("2025")}, {N(2), {}, T("2026")}, {N(3), {}, {}}});
        PeticionInforme peticion;
        peticion.formulaSeleccion = "{X_Temp.C1} <= '2025'";
        peticion.parametros = {{"añoref", "26"}};
        QCOMPARE(Textos(Hacer(cuerpo, fuente, peticion)), u"2025 26"_s);

        const auto codigo = [&](const std::string& formula, const char* parametro) {
            PeticionInforme mala;
            mala.formulaSeleccion = formula;
            if (*parametro)
                mala.parametros = {{parametro, "1"}};
            auto visto = CodigoInforme::Orden;
            Dicho(cuerpo, fuente, mala, &visto);
            return visto;
        };
        QCOMPARE(codigo("{X_Temp.C1} <=", ""), CodigoInforme::Formula);
        QCOMPARE(codigo("{X_Temp.C1} = '1' and {Hija.T} = '1'", ""), CodigoInforme::Formula);
        QCOMPARE(codigo("{Otra.C1} = '1'", ""), CodigoInforme::Formula);
        QCOMPARE(codigo("", "Titulo"), CodigoInforme::Parametro);
    }

    void FaltaEnLaBase() {
        TablasEnMemoria fuente;
        fuente.Poner(Tabla("X_Temp", {"N1", "C2", "C1", "M1"}));
        QVERIFY2(
            Dicho("", fuente)
                .contains(u"línea 8: la tabla \"X_Temp\" de la base de datos no tiene la columna \"F1\""_s),
            qPrintable(Dicho("", fuente)));
        fuente.Poner(Tabla("X_Temp", {"N1", "C2", "C1", "M1", "F1"}));
        const auto dicho = Dicho("", fuente);
        QVERIFY2(dicho.contains(u"línea 12: "_s) && dicho.contains(u"\"Hija\""_s), qPrintable(dicho));
    }

    // A layout that multiplies rows ends in an error, not in an endless run.
    void Desbocado() {
        std::string cuerpo;
        for (int i = 0; i < 6; ++i)
            cuerpo += "seccion X_Temp\n";
        cuerpo += "detalle 1\nfin\n";
        for (int i = 0; i < 6; ++i)
            cuerpo += "fin\n";
        auto codigo = CodigoInforme::Orden;
        Dicho(cuerpo, Datos(Filas(200)), {}, &codigo);
        QCOMPARE(codigo, CodigoInforme::Limite);
    }

    void Graficos() {
        const std::string cuerpo = R"(banda 60 / grafico 0 0 100 60 X_Temp apilado / categoria C1
serie N1 "Vacas" color=#336655 / serie C2 "Otra" / fin / fin)";
        const auto informe = Hacer(cuerpo, Datos({{N(3), T("4,5"), T("Dic")}, {{}, T("x"), T("Ene")}}));
        const auto& grafico = std::get<GraficoColocado>(informe.paginas.paginas.at(0).trozos.at(0));
        QCOMPARE(grafico.lugar, QRectF(10, 10, 100, 60));
        QCOMPARE(grafico.datos->categorias, QStringList({u"Dic"_s, u"Ene"_s}));
        QCOMPARE(grafico.datos->series.at(0).valores.at(0), 3.0);
        QVERIFY(std::isnan(grafico.datos->series.at(0).valores.at(1)));
        QCOMPARE(grafico.datos->series.at(1).valores.at(0), 4.5);
        QVERIFY(grafico.datos->apilado);
    }
};

PRUEBA(PruebaPaginas)
#include "PruebaPaginas.moc"
