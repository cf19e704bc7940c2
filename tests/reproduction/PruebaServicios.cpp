#include "BaseDePrueba.h"

#include "reproduction/datos/Avisos.h"
#include "reproduction/datos/Cadena.h"
#include "reproduction/datos/Cubricion.h"
#include "reproduction/datos/EnlaceCebo.h"
#include "reproduction/datos/Parto.h"
#include "reproduction/datos/Servicios.h"

using namespace prueba;

namespace {

const CicloDeVaca kCiclo{7, 0, 2026, 3, {}, false};

struct BaseConServicios : Base {
    void Servicio(int numero, const char* tipo = "1 Insem", int insem = 0) {
        Poner("T_Servicios", "Id_Vaca=7, Año_Ref=2026, N_Parto=3, N_Servicio, TipoServicio, N_Inseminacion",
              numero, tipo, insem);
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
            b.Poner("T_Servicios", "Id_Vaca=7, Año_Ref, N_Parto=2, N_Servicio=1, Obs=otra", año);
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
        const auto [tipo, linea, hay, numero] = DelCaso<QString, QString, QString, QString>();
        BaseConServicios b;
        for (const auto& n : hay.split(u',', Qt::SkipEmptyParts))
            b.Servicio(1, "1 Insem", n.toInt());
        Linea l{std::vector<std::string>(10), {}, {}};
        l.celdas[servicio::Tipo] = linea.section(u'|', 0, 0).toStdString();
        l.celdas[servicio::NumeroInsem] = linea.section(u'|', 1).toStdString();
        QCOMPARE(Q(NumeroDeInseminacion(b.c, kCiclo, tipo.toStdString(), linea.isEmpty() ? nullptr : &l)),
                 numero);
    }

    // Each date stands under its own name, however they are sorted, and those of the record's year are taken.
    void FechasDeIPR() {
        Base b;
        b.Poner("T_IPR", "Id_Ganadero=12, AñoNatural=2025, IPRPrimNov=01/01/25");
        b.Poner("T_IPR", "Id_Ganadero=12, AñoNatural=2026, IPRInvNov=15/11/25");
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
            b.Poner("T_Cubriciones", "Id_Vaca=7, Año_Ref, N_Parto", año, parto);
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
        QUEDA(b, "Id_Cubricion, Año_Ref, N_Parto, Fecha_Parto FROM T_Cubriciones ORDER BY Id_Cubricion",
              "1|2026|3|01/02/26/2|2027|0|-");
        b.Poner("T_Servicios", "Id_Vaca=7, Año_Ref=2026, N_Parto=3, N_Servicio=1");
        b.Poner("T_CCVacas", "Id_Vaca=7, AñoRef=2026, NumParto=3");
        b.Poner("T_CCVacas", "Id_Vaca=7, AñoRef=2025, NumParto=3");
        LlevarAParidad(b.c, kCiclo, 4);
        QUEDA(b, "N_Parto FROM T_Servicios", "4");
        QUEDA(b, "NumParto FROM T_CCVacas ORDER BY AñoRef", "3/4");
    }
};

namespace {

const char* const kFilas =
    "SELECT Id_Parto, Id_Vaca, Fecha_Parto, Gemelar, Semental FROM T_Partos ORDER BY Id_Vaca, Id_Parto";

} // namespace

// Calvings as rows. In a central file numbers of calvings repeat between cows: nothing that is done to one may reach another.
class PruebaPartoDatos : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Alta() {
        Base b;
        QVERIFY(AltaParto(b.c, kCiclo, F("1/2/26"), "Ares-C"));
        QVERIFY(!AltaParto(b.c, kCiclo, F("9/9/26"), "Otro"));
        QVERIFY(AltaParto(b.c, {8, 0, 2026, 0, {}, false}, {}, "Ares-C")); // the sire comes with a date alone
        QCOMPARE(b.Texto(kFilas), "1|7|01/02/26|-|Ares-C/2|8|-|-|-"s);
    }

    void Mellizos() {
        Base b;
        AltaParto(b.c, kCiclo, F("1/2/26"), "");
        const double segundo = CrearMellizo(b.c, kCiclo, 1, F("1/2/26"), "2 Machos");
        QCOMPARE(FilasDeParto(b.c, kCiclo), (std::vector<double>{1, segundo}));
        // another cow's calving of the same numbers, and fattening records of one number: of another farm, of another calf
        for (const double id : {1.0, segundo})
            b.Poner("T_Partos", "Id_Parto, Id_Vaca=9, Año_Ref=2026, N_Parto=3, Gemelar=2 Hembras", id);
        b.Poner("T_Cebo", "Id_Ganadero=12, Id_Cebo=4, Id_Vaca=7");
        b.Poner("T_Cebo", "Id_Ganadero=13, Id_Cebo=4, Id_Vaca=7");
        b.Poner("T_Cebo", "Id_Ganadero=12, Id_Cebo=5, Id_Vaca=9");
        b.c.Execute("UPDATE T_Partos SET Id_Cebo = 4 WHERE Id_Vaca = 7");
        QuitarMellizo(b.c, kCiclo, 12, 1, segundo);
        QCOMPARE(b.Texto(kFilas), "1|7|01/02/26|No|-/1|9|-|2 Hembras|-/2|9|-|2 Hembras|-"s);
        QUEDA(b, "Id_Ganadero, Id_Cebo FROM T_Cebo ORDER BY Id_Cebo, Id_Ganadero", "13|4/12|5");
        b.c.Execute("DELETE FROM T_Partos WHERE Id_Vaca = 7");
        QVERIFY_EXCEPTION_THROWN(CrearMellizo(b.c, kCiclo, 1, {}, "2 Machos"), ErrorAlmacen);
    }
};

namespace {

TerneroDeParto Ternero() {
    return {{7, 0, 2026, 3, {}, false}, 1, 12, "Macho", F("1/2/26"), F("1/8/26"), "S1", ""};
}
const char* const kCebos =
    "SELECT Id_Ganadero, Id_Cebo, Origen, Sexo, FechaNac, FechaCebo, Saneamiento, KgCanal FROM T_Cebo "
    "ORDER BY Id_Ganadero, Id_Cebo";

struct BaseConParto : Base {
    BaseConParto() {
        for (const double vaca : {7.0, 9.0})
            Poner("T_Partos", "Id_Parto=1, Id_Vaca, Año_Ref=2026, N_Parto=3", vaca);
        Poner("T_Cebo", "Id_Ganadero=12, Id_Cebo=4");
        Poner("T_Cebo", "Id_Ganadero=13, Id_Cebo=9");
    }
    std::string Enlaces() { return Texto("SELECT Id_Cebo FROM T_Partos ORDER BY Id_Vaca"); }
};

} // namespace

// The fattening record of a calf, which comes, follows and goes with it.
class PruebaCebo : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void VieneYVa() {
        BaseConParto b;
        auto t = Ternero();
        QCOMPARE(CrearCebo(b.c, t), 5.0); // numbered within the farmer's
        QCOMPARE(CrearCebo(b.c, t), 5.0); // it has one
        QCOMPARE(b.Enlaces(), "5/-"s);
        b.c.Execute("UPDATE T_Cebo SET KgCanal = 250 WHERE Id_Cebo = 5");
        const auto conTodo = b.Texto(kCebos);
        QCOMPARE(conTodo, "12|4|-|-|-|-|-|-/12|5|Propio|Macho|01/02/26|01/08/26|S1|250/13|9|-|-|-|-|-|-"s);
        const auto retirado = QuitarCebo(b.c, t);
        QCOMPARE(b.Enlaces(), "-/-"s);
        QCOMPARE(CrearCebo(b.c, t, retirado), 5.0); // whole, its number too
        QCOMPARE(b.Texto(kCebos), conTodo);
        // unless the number went to another animal meanwhile
        QuitarCebo(b.c, t);
        b.Poner("T_Cebo", "Id_Ganadero=12, Id_Cebo=5");
        QCOMPARE(CrearCebo(b.c, t, retirado), 6.0);
        QUEDA(b, "KgCanal FROM T_Cebo WHERE Id_Cebo = 6", "250");
        t.parto.nParto = 0;
        QCOMPARE(CrearCebo(b.c, t), 0.0);
    }

    void Sigue() {
        BaseConParto b;
        auto t = Ternero();
        CrearCebo(b.c, t);
        b.c.Execute("UPDATE T_Cebo SET Origen = 'Comprado', Sexo = 'macho' WHERE Id_Cebo = 5");
        QVERIFY(ActualizarCebo(b.c, t).empty()); // an empty origin says nothing, and case is no change
        t.fechaDestete.reset();
        t.origen = "Propio";
        QCOMPARE(ActualizarCebo(b.c, t, false), (std::vector<std::string>{"Fecha de entrada", "Origen"}));
        QUEDA(b, "FechaCebo, Origen FROM T_Cebo WHERE Id_Cebo = 5", "01/08/26|Comprado");
        ActualizarCebo(b.c, t);
        QUEDA(b, "FechaCebo, Origen, Sexo FROM T_Cebo WHERE Id_Cebo = 5", "-|Propio|macho");
        b.c.Execute("UPDATE T_Cebo SET Cambiado = -1 WHERE Id_Cebo = 5");
        t.regSaneam = "S2";
        QVERIFY(ActualizarCebo(b.c, t).empty());
    }

    void OtroSiglo() {
        BaseConParto b;
        CrearCebo(b.c, Ternero());
        Recordset rs(b.c, "SELECT FechaNac FROM T_Cebo WHERE Id_Cebo = 5");
        rs["FechaNac"] = Fecha::De(1926, 2, 1);
        rs.Update();
        QCOMPARE(ActualizarCebo(b.c, Ternero()), std::vector<std::string>{"Fecha de nacimiento"});
    }
};

// The day's work: what the records ask for on 22 November 2026.
class PruebaAvisos : public QObject {
    Q_OBJECT

    static QString Todos(Conexion& c) {
        EscribirAvisos(c, LeerAvisos(c, F("22/11/26"))); // as they are printed
        QStringList filas;
        for (Recordset rs(c, "SELECT C1, C5 FROM X_Temp"); !rs.Eof(); rs.Siguiente())
            filas << Q(rs[0].Texto()) + u": "_s + Q(rs[1].Texto());
        return filas.join(u'|');
    }

private Q_SLOTS:
    void Clases_data() {
        // registro: what becomes of the record of 2026, parity 3, which is complete and has no date
        Caso("nothing", "", "", "");
        Caso("expected in a month", "Estado = 'Preñada', FechaEspParto = #12/22/2026#", "",
             "Parto próximo: Se espera el 22/12/26, en 30 días");
        Caso("expected later", "Estado = 'Preñada', FechaEspParto = #12/23/2026#", "", "");
        Caso("expected today", "Estado = 'preñada', FechaEspParto = #11/22/2026#", "",
             "Parto próximo: Se espera el 22/11/26, hoy");
        Caso("overdue", "Estado = 'Preñada', FechaEspParto = #11/21/2026#", "",
             "Parto atrasado: Se esperaba el 21/11/26, hace 1 día");
        Caso("calved", "Estado = 'Preñada', FechaEspParto = #11/21/2026#, FechaRealParto = #11/20/2026#", "",
             "");
        Caso("diagnosis due", "", "31/10/26",
             "Diagnóstico: Último servicio el 31/10/26, sin diagnóstico desde hace 22 días");
        Caso("diagnosis not due", "", "1/11/26", "");
        Caso("diagnosed", "Estado = 'Vacía'", "31/10/26", "");
        Caso("control due", "Fecha_Parto = #10/13/2026#", "",
             "Control posparto: Parió el 13/10/26; el control era el 22/11/26");
        Caso("control not due", "Fecha_Parto = #10/14/2026#", "", "");
        Caso("control too late", "Fecha_Parto = #09/12/2026#", "", "");
        Caso("control done", "Fecha_Parto = #10/13/2026#, Controles = 'bien'", "", "");
        Caso("served instead", "Fecha_Parto = #10/13/2026#", "15/11/26", "");
        Caso("open too long", "FechaIPR = #10/10/2026#", "",
             "Sin preñar: 43 días desde el inicio de su periodo reproductivo, el 10/10/26");
        Caso("open", "FechaIPR = #10/11/2026#", "", "");
        Caso("pregnant", "FechaIPR = #10/10/2026#, Estado = 'Preñada'", "", "");
        Caso("a record of last year", "Año_Ref = 2025, DatosCompletos = 0", "",
             "Datos incompletos: El registro de 2025, parto 3, no tiene los datos completos");
        Caso("calving to come", "Fecha_Parto = #11/23/2026#", "",
             "Fecha imposible: 2026, parto 3: La fecha está por llegar");
        Caso("service to come", "Estado = 'Vacía'", "23/11/26",
             "Fecha imposible: 2026, parto 3: El servicio del 23/11/26 está por llegar");
    }
    void Clases() {
        const auto [registro, servicio, avisos] = DelCaso<QString, QString, QString>();
        Base b;
        auto& c = b.c;
        b.Poner("T_Ganaderos", "Id_Ganadero=12, Apodo=La Nora");
        b.Poner("T_Vacas", "Id_Vaca=1, Id_Ganadero=12");
        b.Poner("T_Cubriciones", "Id_Vaca=1, Año_Ref=2026, N_Parto=3, DatosCompletos=1");
        if (!servicio.isEmpty())
            b.Poner("T_Servicios", "Id_Vaca=1, Año_Ref=2026, N_Parto=3, N_Servicio=1, Fecha_Servicio",
                    F(servicio.toUtf8().constData()));
        if (!registro.isEmpty())
            c.Execute(("UPDATE T_Cubriciones SET " + registro).toStdString());
        QCOMPARE(Todos(c), avisos);
        c.Execute("UPDATE T_Vacas SET FechaDesecho = #11/01/2026#"); // she has left
        QCOMPARE(Todos(c), QString());
        c.Execute("UPDATE T_Vacas SET FechaDesecho = Null");
        c.Execute("UPDATE T_Ganaderos SET FechaBaja = #11/01/2026#"); // he has
        QCOMPARE(Todos(c), QString());
    }
};

PRUEBA(PruebaServicios)
PRUEBA(PruebaPartoDatos)
PRUEBA(PruebaCebo)
PRUEBA(PruebaAvisos)
#include "PruebaServicios.moc"
