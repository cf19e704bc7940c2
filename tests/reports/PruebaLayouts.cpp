#include "DatosDeEjemplo.h"
#include "prueba.h"

#include "reports/motor/Dibujante.h"
#include "reports/motor/DisposicionesIncluidas.h"
#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Informe.h"
#include "reports/motor/LectorDeTablas.h"
#include "reports/motor/LectorDisposicion.h"
#include "reports/motor/Pdf.h"
#include "store/BaseDePrueba.h"

#include <QImage>
#include <QPainter>
#include <QPrinter>

#include <functional>

using namespace prueba;

namespace {

Disposicion Layout(const char* fichero) {
    return LeerDisposicionDeFichero(std::string(PASTORIX_LAYOUTS) + "/" + fichero);
}

InformeTerminado Hacer(const char* fichero, const FuenteDeTablas& fuente, const char* titulo) {
    PeticionInforme peticion;
    peticion.titulo = Q(titulo);
    return GenerarInforme(Layout(fichero), fuente, peticion);
}

// So many rows of X_Temp, as `celda` gives them by column and row; the other tables of the layout without any.
TablasEnMemoria TablasCon(const Disposicion& layout, int filas,
                          const std::function<Valor(const std::string&, int)>& celda) {
    TablasEnMemoria fuente;
    for (const TablaUsada& tabla : layout.tablas) {
        std::vector<std::string> columnas;
        for (const auto& columna : tabla.columnas)
            columnas.push_back(columna.nombre);
        std::vector<ejemplo::Fila> todas;
        for (int fila = 1; tabla.nombre == "X_Temp" && fila <= filas; ++fila) {
            todas.emplace_back();
            for (const auto& columna : columnas)
                todas.back().push_back(celda(columna, fila));
        }
        fuente.Poner(ejemplo::Tabla(tabla.nombre, columnas, todas));
    }
    return fuente;
}

PeticionInforme ConParametros(const Disposicion& layout) {
    PeticionInforme peticion;
    for (const auto& parametro : layout.parametros)
        peticion.parametros.emplace(parametro.nombre, "2026");
    return peticion;
}

// The texts of a page in the order in which they are read: by lines from the top, in a line from the left.
QString Leida(const Pagina& pagina) {
    std::vector<const TextoColocado*> textos;
    for (const Trozo& trozo : pagina.trozos) {
        if (const auto* texto = std::get_if<TextoColocado>(&trozo))
            textos.push_back(texto);
    }
    std::stable_sort(textos.begin(), textos.end(), [](const auto* a, const auto* b) {
        const auto lineaA = qRound(a->base.y());
        const auto lineaB = qRound(b->base.y());
        return lineaA != lineaB ? lineaA < lineaB : a->base.x() < b->base.x();
    });
    QStringList leidos;
    for (const auto* texto : textos)
        leidos << texto->texto;
    return leidos.join(u'|');
}

} // namespace

class PruebaLayouts : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // Every layout is compiled in.
    void TodosIncluidos() {
        const QDir carpeta(QStringLiteral(PASTORIX_LAYOUTS));
        QSet<QByteArray> textos;
        for (const QFileInfo& f : carpeta.entryInfoList({u"*.rpt"_s}, QDir::Files)) {
            textos << Contenido(f.filePath());
        }
        QSet<QByteArray> incluidos;
        for (const QString& nombre : DisposicionesIncluidas())
            incluidos << DisposicionIncluida(nombre.toUpper()).value();
        QCOMPARE(incluidos, textos);
    }

    // The example of the manual of layouts does what the manual says.
    void EjemploDelManual() {
        const QString texto = Q(Contenido(QStringLiteral(PASTORIX_LAYOUTS "/../docs/layouts.md")));
        const QString layout = texto.section(u"```"_s, 1, 1);
        QVERIFY(layout.startsWith(u"\npastorix-informe 1"_s));
        TablasEnMemoria fuente;
        using namespace ejemplo;
        fuente.Poner(Tabla("X_Temp", {"C1", "C3", "C15", "F1", "N1", "M1"},
                           {{T("Casa Pepe"), T("ES2"), T("Recría"), F(1, 5, 2026), N(40), T("gemelo")},
                            {T("Casa Pepe"), T("ES3"), T("Venta"), F(2, 1, 2026), N(41), {}},
                            {T("Casa Pepe"), T("ES1"), T("Venta"), F(3, 5, 2026), N(44), {}}}));
        PeticionInforme peticion;
        peticion.parametros = {{"AñoRef", "2026"}};
        const auto informe =
            GenerarInforme(LeerDisposicion(layout.toStdString(), "layouts.md"), fuente, peticion);
        QCOMPARE(Leida(informe.paginas.paginas.at(0)),
                 u"Casa Pepe|Año 2026|Crotal|Nacido el|Peso (kg)|Observaciones|Recría|ES2|01/05/26|40|gemelo|"
                 "1 terneros|40 kg|Venta|ES3|02/01/26|41|ES1|03/05/26|44|2 terneros|43 kg|Página 1 de 1"_s);
    }

    // Two pages per farm; each farm's figures stand on its own pages, those of the heifers under their own label.
    void IndicesTecnicos() {
        const auto informe = Hacer("IndTecnicos.rpt", ejemplo::IndicesTecnicos(3), " Índices Técnicos");
        const auto& paginas = informe.paginas.paginas;
        QCOMPARE(paginas.size(), 6U);
        for (std::size_t i = 0; i < paginas.size();
             ++i) { // a sheet that has lost its fellow still says whose it is
            const char* const nombres[] = {"José Antonio Álvarez Fernández", "Covadonga Peláez",
                                           "Hermanos Feito C.B."};
            const QString cabeza = Leida(paginas[i]).section(u'|', 0, 2);
            QVERIFY2(cabeza.startsWith(u"Índices técnicos de la explotación|"_s + Q(nombres[i / 2])) &&
                         cabeza.endsWith(u"|Año 2026"_s),
                     qPrintable(cabeza));
        }
        const QString primera = Leida(paginas[0]);
        const QString segunda = Leida(paginas[1]);
        for (const char* trozo :
             {"Novillas en Cubrición|14|2", "Novillas de 1º parto|12|1", "Vacas de 2 a 6 partos|38|3",
              "Total de vacas paridas|69|10", "Mar|12|4", "Total|56|13", "Mar-May|35|10", "Página 1 de 2",
              "2025: 66|2025: 398|2025: 8 %", "2023: 66|2023: –",
              "Veterinario: María Suárez Riesgo · 985 800 100"})
            QVERIFY2(primera.contains(Q(trozo)), trozo);
        for (const char* trozo :
             {"Ganancia media diaria (g/día)|852|967", "Aculonados|25|43", "Todas|63|395|41|367|22|448",
              "Preñez no confirmada|( 4 )", "Antes de los 30 días|1|1", "Total|6|9",
              "Por Preñez Tardía|7,4  Terneros", "% Pérdida|19 %", "Muertes en el cebo|1", "Total cebados|27",
              "Cebados por parto (%)|39"})
            QVERIFY2(segunda.contains(Q(trozo)), trozo);
        // The farm without calvings: what was not written is blank, what is 0 is 0.
        const QString sinPartos = Leida(paginas[3]);
        QVERIFY(Leida(paginas[2]).contains(u"Covadonga Peláez"_s) && !Leida(paginas[2]).contains(u"José"_s));
        QVERIFY2(sinPartos.contains(u"Perinatal|0|"_s), qPrintable(sinPartos));
        QVERIFY(sinPartos.contains(u"Preñez no confirmada|( 0 )"_s));
        QVERIFY(sinPartos.contains(u"% Pérdida|–"_s) && !sinPartos.contains(u"Suárez"_s));
        QVERIFY2(sinPartos.contains(u"Edad media (días)|–|–"_s), qPrintable(sinPartos));
        QCOMPARE(Leida(paginas[2]).count(u"Sin datos"_s), 2); // in place of two charts of zeros
    }

    // The longest name and town that the database takes leave the report on its two pages; without rows there is one.
    void NombreLargoYNinguno() {
        TablasEnMemoria fuente = ejemplo::IndicesTecnicos(1);
        const std::string nombre =
            u"Comunidad de bienes de los hermanos "_s.repeated(4).left(134).toStdString();
        fuente.Poner(
            ejemplo::Tabla("X_Temp", {"C1", "C2", "C3", "C4"},
                           {{ejemplo::T("1200044"), nombre, ejemplo::T("985"), ejemplo::T("2026")}}));
        QCOMPARE(Hacer("IndTecnicos.rpt", fuente, "").paginas.paginas.size(), 2U);
        QCOMPARE(Hacer("IndTecnicos.rpt", ejemplo::IndicesTecnicos(0), "").paginas.paginas.size(), 1U);
        const auto informe = Hacer("Ganaderos.rpt", ejemplo::Registros(0), " Ganaderos");
        QVERIFY(Leida(informe.paginas.paginas.at(0)).contains(u"No hay ganaderos"_s));
    }

    // The head of a list names a farmer of a hundred characters whole.
    void CabezaLarga() {
        const std::string nombre =
            "María de la Concepción de los Dolores Fernández-Villamil Álvarez de la Riva y "
            "Menéndez - San Martín";
        for (const char* fichero :
             {"CEBO.rpt", "COM_PRO.rpt", "COM_REP.rpt", "ControlRebano.rpt", "DEMORA.rpt", "HTS_P.rpt",
              "Hts_R.rpt", "ResumenIT.rpt", "enfermedades.rpt", "rTVacas.rpt", "rVacas.rpt"}) {
            const Disposicion layout = Layout(fichero);
            const auto fuente = TablasCon(layout, 1, [&](const std::string& columna, int) {
                return columna == "C1" ? Valor(nombre) : Valor();
            });
            const auto informe = GenerarInforme(layout, fuente, ConParametros(layout));
            QVERIFY2(Leida(informe.paginas.paginas.at(0)).contains(QString::fromStdString(nombre)), fichero);
        }
    }

    void Listas() {
        const auto informe = Hacer("Ganaderos.rpt", ejemplo::Registros(60), " Ganaderos");
        QCOMPARE(informe.paginas.paginas.size(), 3U);
        for (const Pagina& pagina : informe.paginas.paginas)
            QVERIFY(Leida(pagina).startsWith(u"Ganaderos|PASTORIX|Código|Ganadero|Domicilio|Teléfonos"_s));
        const QString primera = Leida(informe.paginas.paginas[0]);
        QVERIFY2(primera.contains(
                     u"1200008|Ángel Peláez|Barrio de Arriba, s/n|985 813 000|María Suárez Riesgo|«Casa 8»|"
                     "33810 Corias|650 123 456|"_s),
                 qPrintable(primera));
        QVERIFY(Leida(informe.paginas.paginas[2]).contains(u"60 ganaderos, 6 de baja"_s));
        QVERIFY(primera.contains(u"De baja el 15/06/2019"_s));
        const QString vets =
            Leida(Hacer("Veterinarios.rpt", ejemplo::Registros(3), " Veterinarios").paginas.paginas.at(0));
        QVERIFY2(vets.contains(u"12|María Suárez Riesgo|Tineo|Plaza Mayor, 4 2.º B|985 800 "
                               "100|DNI 10345678A|33870 Tineo|609 000 111"_s),
                 qPrintable(vets));
        QVERIFY(vets.contains(u"31|Nuria Ñáñez|Allande"_s));
    }

    // However many rows there are, a cow's note stands on her page, and totals never stand without a row above them.
    void NadaSolo() {
        for (int i = 0; i < 4 * 45; ++i) {
            constexpr const char* ficheros[] = {"ControlRebano.rpt", "COM_PRO.rpt", "COM_REP.rpt",
                                                "enfermedades.rpt"};
            const Disposicion layout = Layout(ficheros[i % 4]);
            const PeticionInforme peticion = ConParametros(layout);
            const int n = i / 4 + 1;
            const auto fuente = TablasCon(layout, n, [](const std::string& columna, int fila) {
                return columna == "C4"   ? Valor("Vaca" + std::to_string(fila))
                       : columna == "C5" ? Valor(std::string("2024"))
                       : columna == "M1" ? Valor("Nota de " + std::to_string(fila))
                                         : Valor();
            });
            for (const Pagina& pagina : GenerarInforme(layout, fuente, peticion).paginas.paginas) {
                const QString leida = Leida(pagina);
                const QString nota =
                    leida.section(QStringLiteral("Nota de "), 1).section(QLatin1Char('|'), 0, 0);
                QVERIFY2(leida.contains(QStringLiteral("|Vaca") + nota) &&
                             leida.contains(QStringLiteral("|2024|")),
                         qUtf8Printable(leida));
            }
        }
    }

    // The figure stands above its bar, whatever the bar leaves of the plot.
    void RotulosDeBarras() {
        DatosGrafico datos;
        datos.categorias << QStringLiteral("2026");
        datos.letra = {QStringLiteral("DejaVu Sans"), 5.4};
        datos.valores = true;
        datos.color = 0xFF0000;
        for (const double valor : {1.0, 5.0, 6.0, 23.0, 24.0, 99.0, 100.0, 417.0, 1499.0}) {
            datos.series = {{QStringLiteral("Muertos"), datos.color, {valor}}};
            QImage imagen(524, 112, QImage::Format_RGB32);
            imagen.fill(Qt::white);
            {
                QPainter pintor(&imagen);
                pintor.scale(4, 4);
                DibujarGrafico(pintor, {0, 0, 131, 28}, datos);
            }
            int lineas =
                0; // of the figure: they have little ink, those of the bar are full of it, and the axes write at the sides
            for (int y = 0; y < 90; ++y) {
                int tinta = 0;
                for (int x = 130; x < 400; ++x)
                    tinta += qRed(imagen.pixel(x, y)) > qGreen(imagen.pixel(x, y)) + 60;
                lineas += tinta > 0 && tinta < 60;
            }
            QVERIFY2(lineas >= 4, QByteArray::number(valor));
        }
    }

    // A printer gets the pages that were asked for, shrunk to its paper if that is smaller.
    void Impresora() {
        QTemporaryDir carpeta;
        const auto informe = Hacer("IndTecnicos.rpt", ejemplo::IndicesTecnicos(2), " Índices Técnicos");
        const auto imprimir = [&](int desde, int hasta, QPageSize::PageSizeId papel) {
            QPrinter impresora;
            const QString fichero = carpeta.filePath(u"p.pdf"_s);
            impresora.setOutputFormat(QPrinter::PdfFormat);
            impresora.setOutputFileName(fichero);
            impresora.setPageSize(QPageSize(papel));
            if (desde > 0) {
                impresora.setPrintRange(QPrinter::PageRange);
                impresora.setFromTo(desde, hasta);
            }
            Imprimir(informe, impresora);
            return Contenido(fichero);
        };
        const auto todo = imprimir(0, 0, QPageSize::A4);
        QVERIFY(todo.contains("/Count 4") && !todo.contains("/Subtype /Image")); // vectors, charts included
        QVERIFY(imprimir(2, 3, QPageSize::A4).contains("/Count 2"));
        QVERIFY(imprimir(4, 9, QPageSize::A5).contains("/Count 1"));
    }

    void Dibujo() {
        const auto informe = Hacer("IndTecnicos.rpt", ejemplo::IndicesTecnicos(1), "");
        constexpr double escala = 3;
        QImage imagen(630, 891, QImage::Format_RGB32);
        imagen.fill(Qt::white);
        {
            QPainter pintor(&imagen);
            DibujarPagina(pintor, informe.paginas, 0, escala);
        }
        const auto tinta = [&](const QRectF& mm) {
            int oscuros = 0;
            for (int y = int(mm.top() * escala); y < int(mm.bottom() * escala); ++y) {
                for (int x = int(mm.left() * escala); x < int(mm.right() * escala); ++x)
                    oscuros += qGray(imagen.pixel(x, y)) < 140;
            }
            return oscuros;
        };
        QCOMPARE(tinta({0, 0, 210, 10}), 0);      // margin
        QVERIFY(tinta({161, 20, 34, 16}) > 3000); // the filled box of the year
        const auto& trozos = informe.paginas.paginas[0].trozos;
        const auto grafico = std::find_if(trozos.begin(), trozos.end(), [](const Trozo& t) {
            return std::holds_alternative<GraficoColocado>(t);
        });
        QVERIFY(grafico != trozos.end());
        QVERIFY(tinta(std::get<GraficoColocado>(*grafico).lugar) > 4000); // the bars
    }
};

class PruebaLectorDeTablas : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // Rows come in the order in which they were written, with their kinds: what the report forms leave behind.
    void Filas() {
        Base base;
        base.Poner("X_Temp", "C5=2026, N1=2.5, F1", F("3/5/26"));
        base.Poner("X_Temp", "C5=2025");
        const TablaDatos tabla = LectorDeTablas(base.c).Leer("x_temp");
        QCOMPARE(tabla.filas.size(), 2U);
        const auto celda = [&](std::size_t fila, const char* columna) {
            return tabla.filas[fila][static_cast<std::size_t>(tabla.Columna(columna))];
        };
        QCOMPARE(celda(0, "c5"), Valor("2026"s));
        QCOMPARE(celda(0, "N1"), Valor(2.5));
        QCOMPARE(celda(0, "F1"), Valor(F("3/5/26")));
        QVERIFY(EsNulo(celda(1, "N1")) && EsNulo(celda(1, "M1")));
        try {
            LectorDeTablas(base.c).Leer("X_Nada");
            QFAIL("read");
        } catch (const ErrorInforme& e) {
            QCOMPARE(e.Codigo(), CodigoInforme::DatosDesconocidos);
        }
    }

    // A query in place of a table: joined and in its order; what it asks for and is not there is told with the layout's line.
    void Consultas() {
        Base base;
        for (const auto& [codigo, direccion] : {std::pair{7.0, 3.0}, {5.0, 3.0}, {9.0, 8.0}}) {
            base.Poner("T_Ganaderos", "Id_Ganadero, Nombre, Id_Direccion", codigo,
                       std::string(codigo == 5   ? "Ñano"
                                   : codigo == 7 ? "Noé"
                                                 : "Óscar"),
                       direccion);
            base.Poner("T_Direcciones", "Id_GV, Id_Direccion=3, Localidad", codigo,
                       std::string(codigo == 7 ? "Lena" : "Ibias"));
        }
        const auto informe = GenerarInforme(LeerDisposicionDeFichero(PASTORIX_LAYOUTS "/Ganaderos.rpt"),
                                            LectorDeTablas(base.c), {});
        const auto& hoja = informe.hojas.at(0);
        QStringList filas;
        for (const auto& fila : hoja.filas)
            filas << Q(TextoDe(fila[1]).append(" ").append(TextoDe(fila[12])));
        filas.removeIf([](const QString& f) { return f.contains(u"Toros"_s); });
        QCOMPARE(filas, QStringList({u"Noé Lena"_s, u"Ñano Ibias"_s, u"Óscar "_s}));
        const auto error = [&](const std::string& tabla) {
            try {
                GenerarInforme(LeerDisposicion("pastorix-informe 1\n" + tabla, "x.rpt"),
                               LectorDeTablas(base.c), {});
            } catch (const ErrorInforme& e) {
                return Q(e.what());
            }
            return QString();
        };
        QCOMPARE(error("tabla V consulta=\"SELECT Nombre FROM T_Ganaderos\"\ncampo Nombre\nfin"), QString());
        QVERIFY(error("tabla V consulta=\"SELECT Nombre FROM T_Nada\"\ncampo Nombre\nfin")
                    .startsWith(u"x.rpt, línea 2: "_s));
        QVERIFY(error("tabla V consulta=\"SELECT Nada FROM T_Ganaderos\"\ncampo Nombre\nfin")
                    .startsWith(u"x.rpt, línea 2: "_s));
        QVERIFY(error("tabla V consulta=\"SELECT Apodo FROM T_Ganaderos\"\ncampo Nombre\nfin")
                    .startsWith(u"x.rpt, línea 3: "_s));
    }
};

PRUEBA(PruebaLayouts)
PRUEBA(PruebaLectorDeTablas)
#include "PruebaLayouts.moc"
