#include "prueba.h"

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
