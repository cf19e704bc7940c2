#include "prueba.h"

#include "DatosDeEjemplo.h"
#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Exportacion.h"
#include "reports/motor/LectorDisposicion.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtEndian>

#include <zlib.h>

using namespace pastorix;
using namespace ejemplo;

namespace {

// One member of a ZIP file as the workbook library writes them: walked by the central directory.
QByteArray DelZip(const QByteArray& zip, const QByteArray& nombre) {
    const auto u16 = [&](qsizetype i) { return qFromLittleEndian<quint16>(zip.constData() + i); };
    const auto u32 = [&](qsizetype i) { return qsizetype(qFromLittleEndian<quint32>(zip.constData() + i)); };
    const qsizetype fin = zip.lastIndexOf("PK\x05\x06");
    qsizetype entrada = u32(fin + 16);
    for (int n = u16(fin + 10); n > 0; --n) {
        const qsizetype local = u32(entrada + 42);
        const qsizetype datos = local + 30 + u16(local + 26) + u16(local + 28);
        if (zip.mid(entrada + 46, u16(entrada + 28)) == nombre) {
            QByteArray salida(u32(entrada + 24), '\0');
            z_stream z{};
            z.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(zip.constData() + datos));
            z.avail_in = static_cast<uInt>(u32(entrada + 20));
            z.next_out = reinterpret_cast<Bytef*>(salida.data());
            z.avail_out = static_cast<uInt>(salida.size());
            inflateInit2(&z, -MAX_WBITS);
            inflate(&z, Z_FINISH);
            inflateEnd(&z);
            return salida;
        }
        entrada += 46 + u16(entrada + 28) + u16(entrada + 30) + u16(entrada + 32);
    }
    return {};
}

QByteArray Leer(const QString& fichero) {
    QFile f(fichero);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Two sheets whose names clash, and a row of every kind of value.
InformeTerminado Muestra() {
    const std::string texto = R"(pastorix-informe 1
tabla X hoja="Vacas [1/2]"
  campo C "Texto; con \"signos\""
  campo NT "Número escrito" formato="##0.0"
  campo N "Número"
  campo F "Fecha" formato="dd/mm/yy"
fin
tabla Y hoja="vacas 12"
  campo C
fin
)";
    TablasEnMemoria fuente;
    fuente.Poner(Tabla("X", {"C", "NT", "N", "F"},
                       {{T("Ñandú; \"el\"\ngrande"), T("12,5"), N(2.25), F(3, 5, 2026)},
                        {T("=1+1"), T("( 0 )"), N(-1), F(31, 12, 1899)},
                        {}}));
    fuente.Poner(Tabla("Y", {"C"}, {{T("a<b>&\x01")}}));
    PeticionInforme peticion;
    peticion.titulo = QStringLiteral(" Prueba");
    return GenerarInforme(LeerDisposicion(texto, "x.rpt"), fuente, peticion);
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
            hojas[i].nombre = QString::fromUtf8(nombres[i]);
        QCOMPARE(NombresDeHojas(hojas),
                 QStringList({QStringLiteral("Una  hoja con signos y un nombr"), QStringLiteral("Hoja"),
                              QStringLiteral("Censo"), QStringLiteral("CENSO (2)"), QStringLiteral("x")}));
    }

    void Csv() {
        QTemporaryDir carpeta;
        const QString destino = carpeta.filePath(QStringLiteral("nueva/tablas"));
        const QStringList ficheros = GuardarCsv(Muestra(), destino);
        QCOMPARE(QDir(destino).entryList(QDir::Files),
                 QStringList({QStringLiteral("vacas 12 (2).csv"), QStringLiteral("Vacas 12.csv")}));
        QCOMPARE(Leer(ficheros.at(0)),
                 QByteArray("\xEF\xBB\xBF"
                            "\"Texto; con \"\"signos\"\"\";Número escrito;Número;Fecha\r\n"
                            "\"Ñandú; \"\"el\"\"\ngrande\";12,5;2,25;03/05/2026\r\n"
                            "'=1+1;( 0 );-1;31/12/1899\r\n"
                            ";;;\r\n"));
        // A folder that cannot be made: its name is a file's.
        QVERIFY_THROWS_EXCEPTION(ErrorInforme, GuardarCsv(Muestra(), ficheros.at(0)));
    }

    void Xlsx() {
        QTemporaryDir carpeta;
        const QString fichero = carpeta.filePath(QStringLiteral("año.xlsx"));
        GuardarXlsx(Muestra(), fichero);
        const QByteArray zip = Leer(fichero);
        const QByteArray libro = DelZip(zip, "xl/workbook.xml");
        QVERIFY(libro.contains("name=\"Vacas 12\"") && libro.contains("name=\"vacas 12 (2)\""));
        const QByteArray hoja = DelZip(zip, "xl/worksheets/sheet1.xml");
        const QByteArray textos = DelZip(zip, "xl/sharedStrings.xml");
        const auto celda = [&](const char* lugar) {
            const QRegularExpression patron(
                QStringLiteral("<c r=\"%1\"[^>]*?(?:/>|>.*?</c>)").arg(QLatin1String(lugar)));
            return patron.match(QString::fromUtf8(hoja)).captured();
        };
        QVERIFY(celda("A2").contains(QStringLiteral("t=\"s\"")));
        QVERIFY2(celda("B2").endsWith(QStringLiteral("<v>12.5</v></c>")),
                 qPrintable(celda("B2")));                        // a number by its mask
        QVERIFY(celda("B3").contains(QStringLiteral("t=\"s\""))); // "( 0 )" stays a text
        QVERIFY(celda("C2").endsWith(QStringLiteral("<v>2.25</v></c>")));
        QVERIFY(celda("D2").endsWith(QStringLiteral("<v>46145</v></c>")) &&
                celda("D2").contains(QStringLiteral("s=\"")));
        QVERIFY(celda("D3").contains(QStringLiteral("t=\"s\""))); // before the format's first day
        QVERIFY(celda("A4").isEmpty() && celda("C4").isEmpty());
        QVERIFY(textos.contains("=1+1") && textos.contains("a&lt;b&gt;&amp;"));
        QVERIFY(!hoja.contains("<f>"));
        QVERIFY(DelZip(zip, "xl/styles.xml").contains("dd/mm/yy"));

        GuardarXlsx(InformeTerminado(), fichero); // no sheet at all is still a workbook
        QVERIFY(Leer(fichero).startsWith("PK"));
        QVERIFY_THROWS_EXCEPTION(ErrorInforme,
                                 GuardarXlsx(Muestra(), carpeta.filePath(QStringLiteral("no/año.xlsx"))));
        QCOMPARE(QDir(carpeta.path()).entryList(QDir::Files), QStringList{QStringLiteral("año.xlsx")});
    }

    // Sheets carry the rows of the report, not those that it passed over, in its order, with the joined columns beside them.
    void FilasDelInforme() {
        PeticionInforme peticion;
        peticion.formulaSeleccion = "{T_Ganaderos.Id_Ganadero} < 1200004";
        const InformeTerminado informe = GenerarInforme(
            LeerDisposicionDeFichero(QStringLiteral(PASTORIX_LAYOUTS "/Ganaderos.rpt").toStdString()),
            Registros(60), peticion);
        QCOMPARE(informe.hojas.size(), std::size_t(1));
        QCOMPARE(informe.hojas[0].filas.size(), std::size_t(4));
        QCOMPARE(std::get<std::string>(informe.hojas[0].filas[0][1]), std::string("Ángel"));
        QCOMPARE(informe.hojas[0].columnas.back().titulo, QStringLiteral("Apellidos del veterinario"));
        QCOMPARE(std::get<std::string>(informe.hojas[0].filas[0].back()), std::string("Suárez Riesgo"));
    }
};

PRUEBA(PruebaExportacion)
#include "PruebaExportacion.moc"
