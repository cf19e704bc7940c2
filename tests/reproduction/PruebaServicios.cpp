#include "BaseDePrueba.h"
#include "prueba.h"

#include "reproduction/datos/Cadena.h"
#include "reproduction/datos/Cubricion.h"
#include "reproduction/datos/Servicios.h"

#include <sqlite3.h>

using namespace pastorix;
using namespace prueba;

namespace {

const CicloDeVaca kCiclo{7, 0, 2026, 3, {}, false};

struct BaseConServicios : Base {
    void Servicio(int numero, const char* tipo = "1 Insem", int insem = 0) {
        Poner("T_Servicios", {{"Id_Vaca", 7.0},
                              {"Año_Ref", 2026},
                              {"N_Parto", 3},
                              {"N_Servicio", numero},
                              {"TipoServicio", tipo},
                              {"N_Inseminacion", insem}});
    }
};

} // namespace

// The services of a cycle, and what else a mating record has to do with other rows.
class PruebaServicios : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void CuatroLineas() {
        BaseConServicios b;
        QCOMPARE(SiguienteServicio(b.c, kCiclo), "1"s);
        for (const int n : {6, 1, 2, 5, 3, 4})
            b.Servicio(n);
        const auto todos = LeerServicios(b.c, kCiclo);
        const auto lineas = ServiciosEnRejilla(todos);
        std::string numeros;
        for (const auto& l : lineas)
            numeros += l.celdas[servicio::Numero];
        QCOMPARE(numeros, "1236"s);
        QCOMPARE(ServiciosSinSitio(todos), "4, 5"s);
        QCOMPARE(ServiciosSinSitio(lineas), std::string());
        QCOMPARE(SiguienteServicio(b.c, kCiclo), "7"s);
    }

    // The set is rewritten: other cycles stay, lines without number go, what no column takes undoes all of it.
    void Reescritura() {
        BaseConServicios b;
        b.Servicio(1);
        for (const int año : {2025, 2026})
            b.Poner("T_Servicios",
                    {{"Id_Vaca", 7.0}, {"Año_Ref", año}, {"N_Parto", 2}, {"N_Servicio", 1}, {"Obs", "otra"}});
        sqlite3_exec(b.c.Manejador(),
                     "UPDATE T_Servicios SET Fecha_Servicio = 'pronto', Prog = printf('%.*c', 300, '1') "
                     "WHERE N_Parto = 3",
                     nullptr, nullptr, nullptr);
        auto lineas = LeerServicios(b.c, kCiclo);
        lineas.resize(3, Linea{std::vector<std::string>(10), {}, {}});
        lineas[1].celdas = {"2", "31/2/26", "O'Toro", "1,5", "No", "1/2/26", "Cubrición", "0", "x", "57001"};
        lineas[2].celdas[servicio::Semental] = "sin número";
        const char* const sql = "SELECT N_Parto, N_Servicio, Fecha_Servicio, Semental, Tratam, FechaTratam, "
                                "Id_Semental FROM T_Servicios "
                                "ORDER BY N_Parto, Año_Ref, N_Servicio";
        GuardarServicios(b.c, kCiclo, lineas);
        const auto escrito = b.Texto(sql);
        QCOMPARE(escrito,
                 "2|1|-|-|-|-|-/2|1|-|-|-|-|-/3|1|pronto|-|-|-|-/3|2|31/2/26|O'Toro|No|01/02/26|57001"s);
        lineas[1].celdas[servicio::NumeroInsem] = "dos";
        QVERIFY_EXCEPTION_THROWN(GuardarServicios(b.c, kCiclo, lineas), ErrorAlmacen);
        QCOMPARE(b.Texto(sql), escrito);
    }

    void Inseminaciones_data() {
        // tipo: chosen
        // linea: "kind|count" of the line in hand; "" a new one
        // hay: counts in the table
        Columnas<QString, QString, QString, QString>("tipo", "linea", "hay", "numero");
        Caso("first", "1 Insem", "", "", "1");
        Caso("one more", "1 InsCelo", "", "3,1", "4");
        Caso("natural, none yet", "Cubrición", "", "", "0");
        Caso("natural keeps the count", "Cubrición", "", "2,1", "2");
        Caso("line of none", "2 Insem", "Cubrición|", "2", "1");
        Caso("stays an insemination", "2 Insem", "1 Insem|3", "3", "3");
        Caso("becomes one", "1 Insem", "Cubrición|3", "3", "4");
        Caso("natural of none", "Cubrición", "1 Insem|0", "3", "0");
        Caso("natural stays", "Cubrición", "Cubrición|3", "3", "3");
        Caso("becomes natural", "Cubrición", "1 Insem|3", "3", "2");
    }
    void Inseminaciones() {
        QFETCH(QString, tipo);
        QFETCH(QString, linea);
        QFETCH(QString, hay);
        BaseConServicios b;
        for (const auto& n : hay.split(u',', Qt::SkipEmptyParts))
            b.Servicio(1, "1 Insem", n.toInt());
        Linea l{std::vector<std::string>(10), {}, {}};
        l.celdas[servicio::Tipo] = linea.section(u'|', 0, 0).toStdString();
        l.celdas[servicio::NumeroInsem] = linea.section(u'|', 1).toStdString();
        QTEST(QString::fromStdString(
                  NumeroDeInseminacion(b.c, kCiclo, tipo.toStdString(), linea.isEmpty() ? nullptr : &l)),
              "numero");
    }

    // Each date stands under its own name, however they are sorted, and those of the record's year are taken.
    void FechasDeIPR() {
        Base b;
        b.Poner("T_IPR", {{"Id_Ganadero", 12.0}, {"AñoNatural", 2025}, {"IPRPrimNov", "01/01/25"}});
        b.Poner("T_IPR", {{"Id_Ganadero", 12.0}, {"AñoNatural", 2026}, {"IPRInvNov", "15/11/25"}});
        const auto fechas = FechasIPROfrecidas(b.c, kCiclo, 12, F("1/3/2026"));
        std::string todo;
        for (const auto& f : fechas)
            todo += f.nombre + "=" + f.fecha + ";";
        QCOMPARE(todo, "Prim.Nov=;Inv.Nov=15/11/25;Fecha Parto+60d=01/03/26;"s);
    }

    // The chain goes by parity; where one stands in two years, by year.
    void Cadena() {
        Base b;
        for (const auto& [año, parto] : {std::pair{2023, 2}, {2024, 3}, {2026, 3}, {2027, 4}})
            b.Poner("T_Cubriciones", {{"Id_Vaca", 7.0}, {"Año_Ref", año}, {"N_Parto", parto}});
        const auto vecino = [&](int año, int parto, int paso) {
            const auto v = CicloVecino(b.c, "T_Cubriciones", {7, 0, año, parto, {}, false}, parto, paso);
            return v ? std::to_string(*v->añoRef) + "/" + std::to_string(*v->nParto) : std::string();
        };
        QCOMPARE(vecino(2023, 2, 1), "2024/3"s);
        QCOMPARE(vecino(2027, 4, -1), "2026/3"s);
        QCOMPARE(vecino(2027, 4, 1), std::string());
        QCOMPARE(vecino(2025, 2, 1), "2026/3"s);
        QCOMPARE(OtrosAñosDeParidad(b.c, "T_Cubriciones", {7, 0, 2024, 3, {}, false}),
                 std::vector<int>{2026});
    }

    void Alta() {
        Base b;
        QVERIFY(AltaCubricion(b.c, kCiclo, F("1/2/26")));
        QVERIFY(!AltaCubricion(b.c, kCiclo, F("9/9/26"))); // there already: left as it is
        QVERIFY(AltaCubricion(b.c, {7, 0, 2027, 0, {}, false}, {}));
        QCOMPARE(b.Texto("SELECT Id_Cubricion, Año_Ref, N_Parto, Fecha_Parto FROM T_Cubriciones ORDER BY "
                         "Id_Cubricion"),
                 "1|2026|3|01/02/26/2|2027|0|-"s);
        b.Poner("T_Servicios", {{"Id_Vaca", 7.0}, {"Año_Ref", 2026}, {"N_Parto", 3}, {"N_Servicio", 1}});
        b.Poner("T_CCVacas", {{"Id_Vaca", 7.0}, {"AñoRef", 2026}, {"NumParto", 3}});
        b.Poner("T_CCVacas", {{"Id_Vaca", 7.0}, {"AñoRef", 2025}, {"NumParto", 3}});
        LlevarAParidad(b.c, kCiclo, 4);
        QCOMPARE(b.Texto("SELECT N_Parto FROM T_Servicios"), "4"s);
        QCOMPARE(b.Texto("SELECT NumParto FROM T_CCVacas ORDER BY AñoRef"), "3/4"s);
    }
};

PRUEBA(PruebaServicios)
#include "PruebaServicios.moc"
