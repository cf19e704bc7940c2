#include "prueba.h"

#include "DatosDeEjemplo.h"
#include "reports/motor/Dibujante.h"
#include "reports/motor/DisposicionesIncluidas.h"
#include "reports/motor/ErrorInforme.h"
#include "reports/motor/LectorDisposicion.h"
#include "reports/motor/Pdf.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>

#include <functional>

using namespace pastorix;

namespace {

Disposicion Layout(const char* fichero) {
    return LeerDisposicionDeFichero(std::string(PASTORIX_LAYOUTS) + "/" + fichero);
}

InformeTerminado Hacer(const char* fichero, const FuenteDeTablas& fuente, const char* titulo) {
    PeticionInforme peticion;
    peticion.titulo = QString::fromUtf8(titulo);
    return GenerarInforme(Layout(fichero), fuente, peticion);
}

// So many rows of X_Temp, as `celda` gives them by column and row; the other tables of the layout without any.
TablasEnMemoria ConFilas(const Disposicion& layout, int filas,
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
    return leidos.join(QLatin1Char('|'));
}

} // namespace

class PruebaLayouts : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // Every layout is compiled in.
    void TodosIncluidos() {
        const QDir carpeta(QStringLiteral(PASTORIX_LAYOUTS));
        QSet<QByteArray> textos;
        for (const QFileInfo& f : carpeta.entryInfoList({QStringLiteral("*.rpt")}, QDir::Files)) {
            QFile fichero(f.filePath());
            QVERIFY(fichero.open(QIODevice::ReadOnly));
            textos << fichero.readAll();
        }
        QSet<QByteArray> incluidos;
        for (const QString& nombre : DisposicionesIncluidas())
            incluidos << DisposicionIncluida(nombre.toUpper()).value();
        QCOMPARE(incluidos, textos);
    }

    // The example of the manual of layouts does what the manual says.
    void EjemploDelManual() {
        QFile manual(QStringLiteral(PASTORIX_LAYOUTS "/../docs/layouts.md"));
        QVERIFY(manual.open(QIODevice::ReadOnly));
        const QString texto = QString::fromUtf8(manual.readAll());
        const QString layout = texto.section(QStringLiteral("```"), 1, 1);
        QVERIFY(layout.startsWith(QStringLiteral("\npastorix-informe 1")));
        TablasEnMemoria fuente;
        using namespace ejemplo;
        fuente.Poner(Tabla("X_Temp", {"C1", "C3", "C15", "F1", "N1", "M1"},
                           {{T("Casa Pepe"), T("ES2"), T("Recría"), F(1, 5, 2026), N(40), T("gemelo")},
                            {T("Casa Pepe"), T("ES3"), T("Venta"), F(2, 1, 2026), N(41), {}},
                            {T("Casa Pepe"), T("ES1"), T("Venta"), F(3, 5, 2026), N(44), {}}}));
        PeticionInforme peticion;
        peticion.parametros = {{"AñoRef", "2026"}};
        const InformeTerminado informe =
            GenerarInforme(LeerDisposicion(layout.toStdString(), "layouts.md"), fuente, peticion);
        QCOMPARE(
            Leida(informe.paginas.paginas.at(0)),
            QStringLiteral(
                "Casa Pepe|Año 2026|Crotal|Nacido el|Peso (kg)|Observaciones|Recría|ES2|01/05/26|40|gemelo|"
                "1 terneros|40 kg|Venta|ES3|02/01/26|41|ES1|03/05/26|44|2 terneros|43 kg|Página 1 de 1"));
    }

    // Two pages per farm; each farm's figures stand on its own pages, those of the heifers under their own label.
    void IndicesTecnicos() {
        const InformeTerminado informe =
            Hacer("IndTecnicos.rpt", ejemplo::IndicesTecnicos(3), " Índices Técnicos");
        const auto& paginas = informe.paginas.paginas;
        QCOMPARE(paginas.size(), std::size_t(6));
        for (std::size_t i = 0; i < paginas.size();
             ++i) { // a sheet that has lost its fellow still says whose it is
            const char* const nombres[] = {"José Antonio Álvarez Fernández", "Covadonga Peláez",
                                           "Hermanos Feito C.B."};
            const QString cabeza = Leida(paginas[i]).section(QLatin1Char('|'), 0, 2);
            QVERIFY2(cabeza.startsWith(QStringLiteral("Índices técnicos de la explotación|") +
                                       QString::fromUtf8(nombres[i / 2])) &&
                         cabeza.endsWith(QStringLiteral("|Año 2026")),
                     qUtf8Printable(cabeza));
        }
        const QString primera = Leida(paginas[0]);
        const QString segunda = Leida(paginas[1]);
        for (const char* trozo :
             {"Novillas en Cubrición|14|2", "Novillas de 1º parto|12|1", "Vacas de 2 a 6 partos|38|3",
              "Total de vacas paridas|69|10", "Mar|12|4", "Total|56|13", "Mar-May|35|10", "Página 1 de 2",
              "2025: 66|2025: 398|2025: 8 %", "2023: 66|2023: –",
              "Veterinario: María Suárez Riesgo · 985 800 100"})
            QVERIFY2(primera.contains(QString::fromUtf8(trozo)), trozo);
        for (const char* trozo :
             {"Ganancia media diaria (g/día)|852|967", "Aculonados|25|43", "Todas|63|395|41|367|22|448",
              "Preñez no confirmada|( 4 )", "Antes de los 30 días|1|1", "Total|6|9",
              "Por Preñez Tardía|7,4  Terneros", "% Pérdida|19 %", "Muertes en el cebo|1", "Total cebados|27",
              "Cebados por parto (%)|39"})
            QVERIFY2(segunda.contains(QString::fromUtf8(trozo)), trozo);
        // The farm without calvings: what was not written is blank, what is 0 is 0.
        const QString sinPartos = Leida(paginas[3]);
        QVERIFY(Leida(paginas[2]).contains(QStringLiteral("Covadonga Peláez")));
        QVERIFY(!Leida(paginas[2]).contains(QStringLiteral("José")));
        QVERIFY2(sinPartos.contains(QStringLiteral("Perinatal|0|")), qUtf8Printable(sinPartos));
        QVERIFY(sinPartos.contains(QStringLiteral("Preñez no confirmada|( 0 )")));
        QVERIFY(sinPartos.contains(QStringLiteral("% Pérdida|–")) &&
                !sinPartos.contains(QStringLiteral("Suárez")));
        QVERIFY2(sinPartos.contains(QStringLiteral("Edad media (días)|–|–")), qUtf8Printable(sinPartos));
        QCOMPARE(Leida(paginas[2]).count(QStringLiteral("Sin datos")), 2); // in place of two charts of zeros
    }

    // The longest name and town that the database takes leave the report on its two pages.
    void NombreLargo() {
        TablasEnMemoria fuente = ejemplo::IndicesTecnicos(1);
        const std::string nombre =
            QStringLiteral("Comunidad de bienes de los hermanos ").repeated(4).left(134).toStdString();
        fuente.Poner(
            ejemplo::Tabla("X_Temp", {"C1", "C2", "C3", "C4"},
                           {{ejemplo::T("1200044"), nombre, ejemplo::T("985"), ejemplo::T("2026")}}));
        QCOMPARE(Hacer("IndTecnicos.rpt", fuente, "").paginas.paginas.size(), std::size_t(2));
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
            const auto fuente = ConFilas(layout, 1, [&](const std::string& columna, int) {
                return columna == "C1" ? Valor(nombre) : Valor();
            });
            const auto informe = GenerarInforme(layout, fuente, ConParametros(layout));
            QVERIFY2(Leida(informe.paginas.paginas.at(0)).contains(QString::fromStdString(nombre)), fichero);
        }
    }

    void SinFilas() {
        QCOMPARE(Hacer("IndTecnicos.rpt", ejemplo::IndicesTecnicos(0), "").paginas.paginas.size(),
                 std::size_t(1));
        const InformeTerminado informe = Hacer("Ganaderos.rpt", ejemplo::Registros(0), " Ganaderos");
        QVERIFY(Leida(informe.paginas.paginas.at(0)).contains(QStringLiteral("No hay ganaderos")));
    }

    void Listas() {
        const InformeTerminado informe = Hacer("Ganaderos.rpt", ejemplo::Registros(60), " Ganaderos");
        QCOMPARE(informe.paginas.paginas.size(), std::size_t(3));
        for (const Pagina& pagina : informe.paginas.paginas)
            QVERIFY(Leida(pagina).startsWith(
                QStringLiteral("Ganaderos|PASTORIX|Código|Ganadero|Domicilio|Teléfonos")));
        const QString primera = Leida(informe.paginas.paginas[0]);
        QVERIFY2(primera.contains(QStringLiteral(
                     "1200008|Ángel Peláez|Barrio de Arriba, s/n|985 813 000|María Suárez Riesgo|«Casa 8»|"
                     "33810 Corias|650 123 456|")),
                 qUtf8Printable(primera));
        QVERIFY(Leida(informe.paginas.paginas[2]).contains(QStringLiteral("60 ganaderos, 6 de baja")));
        QVERIFY(primera.contains(QStringLiteral("De baja el 15/06/2019")));
        const QString vets =
            Leida(Hacer("Veterinarios.rpt", ejemplo::Registros(3), " Veterinarios").paginas.paginas.at(0));
        QVERIFY2(vets.contains(QStringLiteral("12|María Suárez Riesgo|Tineo|Plaza Mayor, 4 2.º B|985 800 "
                                              "100|DNI 10345678A|33870 Tineo|609 000 111")),
                 qUtf8Printable(vets));
        QVERIFY(vets.contains(QStringLiteral("31|Nuria Ñáñez|Allande")));
    }

    // However many rows there are, a cow's note stands on her page, and totals never stand without a row above them.
    void NadaSolo_data() {
        QTest::addColumn<QString>("fichero");
        for (const char* fichero : {"ControlRebano.rpt", "COM_PRO.rpt", "COM_REP.rpt", "enfermedades.rpt"})
            QTest::newRow(fichero) << QString::fromLatin1(fichero);
    }
    void NadaSolo() {
        QFETCH(QString, fichero);
        const Disposicion layout = Layout(fichero.toUtf8().constData());
        const PeticionInforme peticion = ConParametros(layout);
        for (int n = 1; n <= 45; ++n) {
            const auto fuente = ConFilas(layout, n, [](const std::string& columna, int fila) {
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

    // Pages are really drawn, plots included, and in vectors: a page of pixels would be a hundred times as large.
    void Pdf() {
        QTemporaryDir carpeta;
        const InformeTerminado informe =
            Hacer("IndTecnicos.rpt", ejemplo::IndicesTecnicos(1), " Índices Técnicos");
        const QString fichero = carpeta.filePath(QStringLiteral("i.pdf"));
        GuardarPdf(informe, fichero);
        QFile pdf(fichero);
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        const QByteArray bytes = pdf.readAll();
        QVERIFY(bytes.startsWith("%PDF-") && bytes.size() > 5000 && bytes.size() < 300'000);
        QVERIFY(bytes.contains("/Count 2"));
        QVERIFY(!bytes.contains("/Subtype /Image"));
    }

    // A printer gets the pages that were asked for, shrunk to its paper if that is smaller.
    void Impresora() {
        QTemporaryDir carpeta;
        const InformeTerminado informe =
            Hacer("IndTecnicos.rpt", ejemplo::IndicesTecnicos(2), " Índices Técnicos");
        const auto imprimir = [&](int desde, int hasta, QPageSize::PageSizeId papel) {
            QPrinter impresora;
            const QString fichero = carpeta.filePath(QStringLiteral("p.pdf"));
            impresora.setOutputFormat(QPrinter::PdfFormat);
            impresora.setOutputFileName(fichero);
            impresora.setPageSize(QPageSize(papel));
            if (desde > 0) {
                impresora.setPrintRange(QPrinter::PageRange);
                impresora.setFromTo(desde, hasta);
            }
            Imprimir(informe, impresora);
            QFile pdf(fichero);
            return pdf.open(QIODevice::ReadOnly) ? pdf.readAll() : QByteArray();
        };
        QVERIFY(imprimir(0, 0, QPageSize::A4).contains("/Count 4"));
        QVERIFY(imprimir(2, 3, QPageSize::A4).contains("/Count 2"));
        QVERIFY(imprimir(4, 9, QPageSize::A5).contains("/Count 1"));
    }

    void Dibujo() {
        const InformeTerminado informe = Hacer("IndTecnicos.rpt", ejemplo::IndicesTecnicos(1), "");
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

PRUEBA(PruebaLayouts)
#include "PruebaLayouts.moc"
