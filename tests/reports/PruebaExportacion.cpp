#include "prueba.h"

#include "DatosDeEjemplo.h"
#include "DiscoLleno.h"
#include "reports/motor/DisposicionesIncluidas.h"
#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Exportacion.h"
#include "reports/motor/LectorDisposicion.h"
#include "reports/motor/Pdf.h"
#include "reports/motor/Zip.h"

using namespace prueba;
using namespace ejemplo;

namespace {

// Two sheets whose names clash, and a row of every kind of value.
InformeTerminado Muestra() {
    const std::string texto = R"(pastorix-informe 1
tabla X hoja="Vacas [1/2]"
  campo C "Texto; con \"signos\""
  campo NT "Número escrito" formato="##0.0"
  campo N "Número"
  campo F "Fecha" formato="dd/mm/yy"
  campo M "Mezcla" formato="##0"
  campo FT "Fecha escrita" formato="dd/mm/yyyy"
fin
tabla Y hoja="vacas 12"
  campo C
fin
encabezado "Casa {X.N} · Año 2026"
)";
    TablasEnMemoria fuente;
    fuente.Poner(Tabla("X", {"C", "NT", "N", "F", "M", "FT"},
                       {{T("Ñandú; \"el\"\ngrande"), T("12,5"), N(2.25), F(3, 5, 2026), N(7.4), T("3/5/26")},
                        {T("=1+1"), T("1.300,5"), N(-1), F(31, 12, 1899), T("( 0 )"), F(4, 5, 2026)},
                        {{}, T(" ")}}));
    fuente.Poner(Tabla("Y", {"C"}, {{T("a<b>&\x01")}}));
    PeticionInforme peticion;
    peticion.titulo = u" Prueba"_s;
    return GenerarInforme(LeerDisposicion(texto, "x.rpt"), fuente, peticion);
}

// Whether two exports say the same. The hour of its making is in a workbook, and in a PDF, in which it is always as long.
bool Iguales(const QByteArray& uno, const QByteArray& otro) {
    auto partes = PartesDelZip(uno);
    auto otras = PartesDelZip(otro);
    if (!partes || !otras)
        return uno.size() == otro.size();
    partes->erase("docProps/core.xml");
    otras->erase("docProps/core.xml");
    return *partes == *otras;
}

// A short sheet, and behind it one of 40 kB, more than anything holds back before it writes.
InformeTerminado MuestraLarga() {
    InformeTerminado informe = Muestra();
    informe.hojas[1] = informe.hojas[0];
    const auto fila = informe.hojas[0].filas.at(0);
    informe.hojas[1].filas.resize(1000, fila);
    return informe;
}

} // namespace

class PruebaExportacion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void Nombres() {
        std::vector<HojaDatos> hojas(5);
        const char* nombres[] = {"Una / hoja: [con] signos y un nombre larguísimo", "", "Censo", "CENSO",
                                 "../x"};
        for (std::size_t i = 0; i < hojas.size(); ++i)
            hojas[i].nombre = Q(nombres[i]);
        QCOMPARE(NombresDeHojas(hojas), QStringList({u"Una  hoja con signos y un nombr"_s, u"Hoja"_s,
                                                     u"Censo"_s, u"CENSO (2)"_s, u"x"_s}));
    }

    void Csv() {
        QTemporaryDir carpeta;
        const QString destino = carpeta.filePath(u"nueva/tablas"_s);
        const QStringList ficheros = GuardarCsv(Muestra(), destino);
        QCOMPARE(QDir(destino).entryList(QDir::Files),
                 QStringList({u"vacas 12 (2).csv"_s, u"Vacas 12.csv"_s}));
        QCOMPARE(
            Contenido(ficheros.at(0)),
            QByteArray("\xEF\xBB\xBF"
                       "\"Texto; con \"\"signos\"\"\";Número escrito;Número;Fecha;Mezcla;Fecha escrita\r\n"
                       "\"Ñandú; \"\"el\"\"\ngrande\";12,5;2,25;03/05/2026;7;03/05/2026\r\n"
                       "'=1+1;1300,5;-1;31/12/1899;( 0 );04/05/2026\r\n"
                       ";;;;;\r\n"));
        // A folder that cannot be made: its name is a file's.
        QVERIFY_THROWS_EXCEPTION(ErrorInforme, GuardarCsv(Muestra(), ficheros.at(0)));
    }

    void Xlsx() {
        QTemporaryDir carpeta;
        const QString fichero = carpeta.filePath(u"año.xlsx"_s);
        GuardarXlsx(Muestra(), fichero);
        const auto partes = PartesDelZip(Contenido(fichero)).value();
        const QByteArray libro = partes.at("xl/workbook.xml");
        QVERIFY(libro.contains("name=\"Vacas 12\"") && libro.contains("name=\"vacas 12 (2)\""));
        const QByteArray hoja = partes.at("xl/worksheets/sheet1.xml");
        const QByteArray textos = partes.at("xl/sharedStrings.xml");
        const auto celda = [&](const char* lugar) {
            const QRegularExpression patron(u"<c r=\"%1\"[^>]*?(?:/>|>.*?</c>)"_s.arg(QLatin1String(lugar)));
            return patron.match(Q(hoja)).captured();
        };
        QVERIFY(celda("A1").contains(u"t=\"s\""_s) && textos.contains("Prueba · Casa 2,25 · Año 2026"));
        QVERIFY(celda("A3").contains(u"t=\"s\""_s) && celda("A4").contains(u"t=\"s\""_s));
        QVERIFY2(celda("B4").endsWith(u"<v>12.5</v></c>"_s),
                 qPrintable(celda("B4"))); // by its mask
        QVERIFY(celda("B5").endsWith(u"<v>1300.5</v></c>"_s) && celda("C4").endsWith(u"<v>2.25</v></c>"_s));
        QVERIFY(celda("D4").endsWith(u"<v>46145</v></c>"_s) && celda("D4").contains(u"s=\""_s));
        QVERIFY(celda("D5").contains(u"t=\"s\""_s)); // before the format's first day
        for (const char* mezclada : {"E4", "E5"})    // one kind per column
            QVERIFY(celda(mezclada).contains(u"t=\"s\""_s));
        QVERIFY(celda("F4").endsWith(u"<v>46145</v></c>"_s) && celda("F5").endsWith(u"<v>46146</v></c>"_s));
        QVERIFY(celda("A6").isEmpty() && celda("B6").isEmpty());
        QVERIFY(textos.contains("=1+1") && textos.contains("a&lt;b&gt;&amp;") && !hoja.contains("<f>"));
        QVERIFY(partes.at("xl/styles.xml").contains("dd/mm/yy"));

        GuardarXlsx(InformeTerminado(), fichero); // no sheet at all is still a workbook
        QVERIFY(Contenido(fichero).startsWith("PK"));
        QVERIFY_THROWS_EXCEPTION(ErrorInforme, GuardarXlsx(Muestra(), carpeta.filePath(u"no/año.xlsx"_s)));
        QCOMPARE(QDir(carpeta.path()).entryList(QDir::Files), QStringList{u"año.xlsx"_s});
    }

    // However much of it the disk takes: the old file as it was and an error that says why, or the new one, whole. Nothing else stays.
    void DiscoQueSeLlena_data() {
        for (const char* nombre : {"i.pdf", "i.xlsx", "Vacas 12.csv"})
            Caso(nombre, Q(nombre));
    }
    void DiscoQueSeLlena() {
        QString nombre;
        DelCaso(nombre);
        QTemporaryDir carpeta;
        const auto informe = MuestraLarga();
        const QString fichero = carpeta.filePath(nombre);
        const auto guardar = [&] {
            if (nombre.endsWith(u"pdf"_s))
                GuardarPdf(informe, fichero);
            else if (nombre.endsWith(u"xlsx"_s))
                GuardarXlsx(informe, fichero);
            else
                GuardarCsv(informe, carpeta.path());
        };
        guardar();
        const QByteArray nuevo = Contenido(fichero);
        const QStringList contenido = QDir(carpeta.path()).entryList(QDir::Files | QDir::Hidden);
        // What the largest file on the way takes: of a workbook a part of it, unpacked.
        qsizetype mayor = 0;
        for (const QFileInfo& escrito : QDir(carpeta.path()).entryInfoList(QDir::Files))
            mayor = std::max(mayor, escrito.size());
        for (const auto& [parte, bytes] : PartesDelZip(nuevo).value_or(std::map<QByteArray, QByteArray>()))
            mayor = std::max(mayor, bytes.size());
        int fallos = 0;
        for (int nivel = 0; nivel <= 24; ++nivel) {
            QFile viejo(fichero);
            QVERIFY(viejo.open(QIODevice::WriteOnly) && viejo.write("el de ayer") == 10);
            viejo.close();
            QString aviso;
            {
                const DiscoLleno lleno(static_cast<rlim_t>(mayor * nivel / 20));
                try {
                    guardar();
                } catch (const ErrorInforme& e) {
                    aviso = Q(e.what());
                }
            }
            QCOMPARE(QDir(carpeta.path()).entryList(QDir::Files | QDir::Hidden), contenido);
            if (aviso.isEmpty()) {
                QVERIFY(Iguales(Contenido(fichero), nuevo));
                continue;
            }
            ++fallos;
            QCOMPARE(Contenido(fichero), QByteArray("el de ayer"));
            QVERIFY2(aviso.startsWith(u"No se puede escribir el fichero "_s + carpeta.path()),
                     qPrintable(aviso));
        }
        QVERIFY2(fallos >= 19 && fallos < 25, qPrintable(QString::number(fallos)));
    }

    // Sheets carry the rows of the report, not those that it passed over, in its order.
    void FilasDelInforme() {
        PeticionInforme peticion;
        peticion.formulaSeleccion = "{Ganaderos.Id_Ganadero} < 1200004";
        const auto informe = GenerarInforme(
            LeerDisposicionDeFichero(QStringLiteral(PASTORIX_LAYOUTS "/Ganaderos.rpt").toStdString()),
            Registros(60), peticion);
        QCOMPARE(informe.hojas.size(), 1U);
        QCOMPARE(informe.hojas[0].filas.size(), 4U);
        QCOMPARE(std::get<std::string>(informe.hojas[0].filas[1][1]), "Covadonga"s);
        QCOMPARE(informe.hojas[0].columnas.back().titulo, u"Apellidos del veterinario"_s);
        QCOMPARE(std::get<std::string>(informe.hojas[0].filas[1].back()), "Menéndez Coto"s);
    }
};

PRUEBA(PruebaExportacion)
#include "PruebaExportacion.moc"
