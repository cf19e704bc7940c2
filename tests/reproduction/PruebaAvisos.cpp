#include "BaseDePrueba.h"
#include "prueba.h"

#include "reproduction/datos/Avisos.h"

using namespace pastorix;
using namespace prueba;

// The day's work: what the records ask for on 22 November 2026.
class PruebaAvisos : public QObject {
    Q_OBJECT

    static QString Todos(Conexion& c) {
        QStringList filas;
        for (const auto& a : LeerAvisos(c, F("22/11/26")))
            filas << QString::fromUtf8(NombreDe(a.clase)) + u": "_s + QString::fromStdString(a.texto);
        return filas.join(u'|');
    }

private Q_SLOTS:
    void Clases_data() {
        // registro: what becomes of the record of 2026, parity 3, which is complete and has no date
        Columnas<QString, QString, QString>("registro", "servicio", "avisos");
        const auto fila = [](const char* caso, const char* registro, const char* servicio,
                             const char* avisos) { Caso(caso, registro, servicio, avisos); };
        fila("nothing", "", "", "");
        fila("expected in a month", "Estado = 'Preñada', FechaEspParto = #12/22/2026#", "",
             "Parto próximo: Se espera el 22/12/26, en 30 días");
        fila("expected later", "Estado = 'Preñada', FechaEspParto = #12/23/2026#", "", "");
        fila("expected today", "Estado = 'preñada', FechaEspParto = #11/22/2026#", "",
             "Parto próximo: Se espera el 22/11/26, hoy");
        fila("overdue", "Estado = 'Preñada', FechaEspParto = #11/21/2026#", "",
             "Parto atrasado: Se esperaba el 21/11/26, hace 1 día");
        fila("calved", "Estado = 'Preñada', FechaEspParto = #11/21/2026#, FechaRealParto = #11/20/2026#", "",
             "");
        fila("diagnosis due", "", "31/10/26",
             "Diagnóstico: Último servicio el 31/10/26, sin diagnóstico desde hace 22 días");
        fila("diagnosis not due", "", "1/11/26", "");
        fila("diagnosed", "Estado = 'Vacía'", "31/10/26", "");
        fila("control due", "Fecha_Parto = #10/13/2026#", "",
             "Control posparto: Parió el 13/10/26; el control era el 22/11/26");
        fila("control not due", "Fecha_Parto = #10/14/2026#", "", "");
        fila("control too late", "Fecha_Parto = #09/12/2026#", "", "");
        fila("control done", "Fecha_Parto = #10/13/2026#, Controles = 'bien'", "", "");
        fila("served instead", "Fecha_Parto = #10/13/2026#", "15/11/26", "");
        fila("open too long", "FechaIPR = #10/10/2026#", "",
             "Sin preñar: 43 días desde el inicio de su periodo reproductivo, el 10/10/26");
        fila("open", "FechaIPR = #10/11/2026#", "", "");
        fila("pregnant", "FechaIPR = #10/10/2026#, Estado = 'Preñada'", "", "");
        fila("a record of last year", "Año_Ref = 2025, DatosCompletos = 0", "",
             "Datos incompletos: El registro de 2025, parto 3, no tiene los datos completos");
        fila("calving to come", "Fecha_Parto = #11/23/2026#", "",
             "Fecha imposible: 2026, parto 3: La fecha está por llegar");
        fila("service to come", "Estado = 'Vacía'", "23/11/26",
             "Fecha imposible: 2026, parto 3: El servicio del 23/11/26 está por llegar");
    }
    void Clases() {
        QFETCH(QString, registro);
        QFETCH(QString, servicio);
        Base b;
        auto& c = b.c;
        b.Poner("T_Ganaderos", {{"Id_Ganadero", 12.0}, {"Apodo", "La Nora"}});
        b.Poner("T_Vacas", {{"Id_Vaca", 1.0}, {"Id_Ganadero", 12.0}});
        b.Poner("T_Cubriciones", "Id_Vaca=1, Año_Ref=2026, N_Parto=3, DatosCompletos=1");
        if (!servicio.isEmpty())
            b.Poner("T_Servicios", {{"Id_Vaca", 1.0},
                                    {"Año_Ref", 2026},
                                    {"N_Parto", 3},
                                    {"N_Servicio", 1},
                                    {"Fecha_Servicio", F(servicio.toUtf8().constData())}});
        if (!registro.isEmpty())
            c.Execute(("UPDATE T_Cubriciones SET " + registro).toStdString());
        QTEST(Todos(c), "avisos");
        c.Execute("UPDATE T_Vacas SET FechaDesecho = #11/01/2026#"); // she has left
        QCOMPARE(Todos(c), QString());
        c.Execute("UPDATE T_Vacas SET FechaDesecho = Null");
        c.Execute("UPDATE T_Ganaderos SET FechaBaja = #11/01/2026#"); // he has
        QCOMPARE(Todos(c), QString());
    }
};

PRUEBA(PruebaAvisos)
#include "PruebaAvisos.moc"
