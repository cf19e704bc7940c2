#include "prueba.h"

#include "reports/motor/DisposicionesIncluidas.h"
#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Informe.h"
#include "reports/motor/LectorDeTablas.h"
#include "reports/motor/LectorDisposicion.h"
#include "store/BaseDePrueba.h"

#include <QDir>

using namespace pastorix;

class PruebaLectorDeTablas : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // Rows come in the order in which they were written, with their kinds: what the report forms leave behind.
    void Filas() {
        prueba::Base base;
        base.Poner("X_Temp", {{"C5", std::string("2026")}, {"N1", 2.5}, {"F1", prueba::F("3/5/26")}});
        base.Poner("X_Temp", {{"C5", std::string("2025")}});
        const TablaDatos tabla = LectorDeTablas(base.c).Leer("x_temp");
        QCOMPARE(tabla.filas.size(), std::size_t(2));
        const auto celda = [&](std::size_t fila, const char* columna) {
            return tabla.filas[fila][static_cast<std::size_t>(tabla.Columna(columna))];
        };
        QCOMPARE(celda(0, "c5"), Valor(std::string("2026")));
        QCOMPARE(celda(0, "N1"), Valor(2.5));
        QCOMPARE(celda(0, "F1"), Valor(prueba::F("3/5/26")));
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
        prueba::Base base;
        for (const auto& [codigo, direccion] : {std::pair{7.0, 3.0}, {5.0, 3.0}, {9.0, 8.0}}) {
            base.Poner("T_Ganaderos", {{"Id_Ganadero", codigo},
                                       {"Nombre", std::string(codigo == 5   ? "Ñano"
                                                              : codigo == 7 ? "Noé"
                                                                            : "Óscar")},
                                       {"Id_Direccion", direccion}});
            base.Poner("T_Direcciones", {{"Id_GV", codigo},
                                         {"Id_Direccion", 3.0},
                                         {"Localidad", std::string(codigo == 7 ? "Lena" : "Ibias")}});
        }
        const auto informe = GenerarInforme(LeerDisposicionDeFichero(PASTORIX_LAYOUTS "/Ganaderos.rpt"),
                                            LectorDeTablas(base.c), {});
        const auto& hoja = informe.hojas.at(0);
        QStringList filas;
        for (const auto& fila : hoja.filas)
            filas << QString::fromStdString(TextoDe(fila[1]).append(" ").append(TextoDe(fila[12])));
        filas.removeIf([](const QString& f) { return f.contains(QStringLiteral("Toros")); });
        QCOMPARE(filas, QStringList({QStringLiteral("Noé Lena"), QStringLiteral("Ñano Ibias"),
                                     QStringLiteral("Óscar ")}));
        const auto error = [&](const std::string& tabla) {
            try {
                GenerarInforme(LeerDisposicion("pastorix-informe 1\n" + tabla, "x.rpt"),
                               LectorDeTablas(base.c), {});
            } catch (const ErrorInforme& e) {
                return QString::fromUtf8(e.what());
            }
            return QString();
        };
        QCOMPARE(error("tabla V consulta=\"SELECT Nombre FROM T_Ganaderos\"\ncampo Nombre\nfin"), QString());
        QVERIFY(error("tabla V consulta=\"SELECT Nombre FROM T_Nada\"\ncampo Nombre\nfin")
                    .startsWith(QStringLiteral("x.rpt, línea 2: ")));
        QVERIFY(error("tabla V consulta=\"SELECT Nada FROM T_Ganaderos\"\ncampo Nombre\nfin")
                    .startsWith(QStringLiteral("x.rpt, línea 2: ")));
        QVERIFY(error("tabla V consulta=\"SELECT Apodo FROM T_Ganaderos\"\ncampo Nombre\nfin")
                    .startsWith(QStringLiteral("x.rpt, línea 3: ")));
    }

    // Every delivered layout finds its tables and columns in a fresh database.
    void Columnas() {
        prueba::Base base;
        const QDir carpeta(QStringLiteral(PASTORIX_LAYOUTS));
        for (const QString& fichero :
             carpeta.entryList({QStringLiteral("*.rpt")}, QDir::Files)) { // the filter ignores case
            const Disposicion d = LeerDisposicionDeFichero(carpeta.filePath(fichero).toStdString());
            PeticionInforme peticion;
            for (const ParametroUsado& parametro : d.parametros)
                peticion.parametros[parametro.nombre] = "2026";
            try {
                GenerarInforme(d, LectorDeTablas(base.c), peticion);
            } catch (const std::exception& e) {
                QFAIL(e.what());
            }
        }
    }
};

PRUEBA(PruebaLectorDeTablas)
#include "PruebaLectorDeTablas.moc"
