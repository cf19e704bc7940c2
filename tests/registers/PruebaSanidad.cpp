#include "PuestoDeFichas.h"

#include "frame/ficha/CampoMemo.h"
#include "frame/ficha/CampoTexto.h"
#include "registers/datos/AsuntosSanidad.h"
#include "registers/datos/Mamitis.h"
#include "registers/sanidad/PaginaCC.h"
#include "registers/sanidad/PaginaIBR.h"
#include "registers/sanidad/PaginaMamitis.h"
#include "registers/sanidad/PaginaNeospora.h"

#include <optional>

using namespace prueba;

namespace {

constexpr VacaEnHoja kVaca{1200001, 12};

void Cubricion(PuestoDeFichas& p, int año, Valor parto, Valor fecha = {}) {
    p.Poner("T_Cubriciones", "Id_Vaca, Año_Ref, N_Parto, Fecha_Parto", kVaca.idVaca, año, parto, fecha);
}

std::string Celdas(const std::vector<Linea>& lineas) {
    std::string t;
    for (const auto& l : lineas) {
        t += t.empty() ? "" : "/";
        for (std::size_t i = 0; i < l.celdas.size(); ++i)
            t += (i ? "|" : "") + l.celdas[i];
    }
    return t;
}

} // namespace

// What the health pages read and write, without a window.
class PruebaSanidad : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Lactaciones() {
        PuestoDeFichas p;
        const auto parto = [&](int año, Valor n, const char* destete, Valor cuartos, double vaca = 1200001) {
            p.Poner("T_Partos", "Id_Vaca, Año_Ref, N_Parto, FechaDestete, CuartosPerdidos", vaca, año, n,
                    *destete ? Valor(F(destete)) : Valor(), cuartos);
        };
        parto(2022, 3, "1/6/2022", 1);
        parto(2022, 3, "5/6/2022", 2);
        parto(2023, 4, "", {});
        parto(2023, 4, "9/7/2023", {});
        parto(2024, 5, "2/8/2024", {});
        parto(2024, 5, "", {});
        parto(2025, {}, "", 0);
        parto(2025, {}, "", 0);   // no parity: nothing says that they are twins
        parto(2022, 3, "", 7, 5); // another cow
        auto lineas = LeerLactaciones(p.sesion.conexion, 1200001);
        QCOMPARE(Celdas(lineas), "2025|||||0/2025|||||0/2024||5|02/08/24 - ||/"
                                 "2023||4|<?> - 09/07/23||/2022||3|01/06/22 - 05/06/22||1"s);
        lineas[0].celdas[kTratSecado] = "sin parto";
        lineas[2].celdas[kTratSecado] = "Sí, d'un día";
        lineas[2].celdas[kCuartosPerdidos] = "x";
        lineas[4].celdas[kCuartosPerdidos] = "2";
        EscribirLactaciones(p.sesion.conexion, 1200001, lineas);
        QUEDA(p, "Año_Ref, TratSecado, CuartosPerdidos FROM T_Partos",
              "2022|-|2/2022|-|2/2023|-|-/2023|-|-/2024|Sí, d'un día|-/2024|Sí, d'un "
              "día|-/2025|-|0/2025|-|0/2022|-|7");
    }

    void CuatroTetos() {
        PuestoDeFichas p;
        const auto tetos = [&](double teto, bool marcado, Valor nota) {
            p.Poner("T_Mamitis", "Id_Vaca=7, Id_Teto, marcado, DescMamitis", teto, marcado ? -1 : 0, nota);
        };
        tetos(3, true, "Golpe"s);
        tetos(9, true, {}); // there is no such teat
        auto leidos = LeerTetos(p.sesion.conexion, 7);
        QCOMPARE(leidos[0].nombre, "Anterior izquierdo"s);
        QVERIFY(leidos[2].marcado && !leidos[3].marcado);
        leidos[0].fecha = F("1/3/2205");
        EscribirTetos(p.sesion.conexion, 7, leidos);
        QUEDA(p, "Id_Teto, DescMamitis, marcado FROM T_Mamitis ORDER BY Id_Teto",
              "1|-|0/2|-|0/3|Golpe|-1/4|-|0");
        QCOMPARE(LeerTetos(p.sesion.conexion, 7)[0].fecha, Valor(F("1/3/2205")));
    }

    void LineasDeCiclos() {
        PuestoDeFichas p;
        Cubricion(p, 2022, 3, F("4/1/2022"));
        Cubricion(p, 2023, 4);
        Cubricion(p, 2023, {}); // a mating record without parity has a line of its own
        const auto de = [&](const char* tabla, const char* campo, const char* fecha, int servicio = 0) {
            const auto fila = "Id_Vaca=1200001, Año_Ref=2022, N_Parto=3, "s + campo;
            p.Poner(tabla, (fila + (servicio ? ", N_Servicio=" + std::to_string(servicio) : "")).c_str(),
                    *fecha ? Valor(F(fecha)) : Valor());
        };
        de("T_Partos", "FechaDestete", "1/6/2022");
        de("T_Partos", "FechaDestete", "5/6/2022");
        de("T_Partos", "FechaDestete", "");
        de("T_Servicios", "Fecha_Servicio", "2/5/2022", 2);
        de("T_Servicios", "Fecha_Servicio", "9/9/2022", 1); // a later date, an earlier service
        const auto valores = [&](Valor año, Valor parto, double cc) {
            p.Poner("T_CCVacas", "Id_Vaca, AñoRef, NumParto, CCParto", kVaca.idVaca, año, parto, cc);
        };
        valores(2022, 3, 2.25);
        valores(2022, 3, 9.0); // repeated: the first one shows
        valores(2023, {}, 1.5);
        valores(2019, 1, 3.0); // its mating record is gone
        auto datos = LeerAsunto(p.sesion.conexion, kCondicionCorporal, kVaca.idVaca);
        QCOMPARE(Celdas(datos.ciclos), "2023|4||||||||/2023|||1,5||||||/2022|3|04/01/22|2,25|||05/06/22|||"s);
        QCOMPARE(Celdas(LeerAsunto(p.sesion.conexion, kIBRBVD, kVaca.idVaca).ciclos),
                 "2023|4||||/2023|||||/2022|3|04/01/22|02/05/22||"s);
        GuardarAsunto(p.sesion.conexion, kCondicionCorporal, kVaca, datos);
        QUEDA(p, "Id_Ganadero, AñoRef, NumParto, CCParto, MobReservas FROM T_CCVacas",
              "12|2023|4|-|-/12|2023|-|1,5|-/12|2022|3|2,25|-");
    }

    // One table, the observation, the other table; what fails leaves what was done before it.
    void OrdenDeGuardar_data() {
        // guardado: natural years / cycles / observation
        const QString corte = u"d'aldea\r\nsegunda"_s;
        Caso("CC", 0, corte, u"2026/2022/"_s + corte);
        Caso("IBR", 1, corte, u"2026/2022/"_s + corte);
        Caso("Neospora, quote", 2, corte, u"2026/1999/antes"_s);
        Caso("Neospora", 2, u"uno\r\ndos"_s, u"2026/2022/uno\r\ndos"_s);
        Caso("Neospora, empty", 2, QString(), u"2026/2022/-"_s);
        Caso("IBR, empty", 1, QString(), u"2026/2022/-"_s);
    }
    void OrdenDeGuardar() {
        const auto [asunto, observacion, guardado] = DelCaso<int, QString, QString>();
        const AsuntoSanidad& a = asunto == 0 ? kCondicionCorporal : asunto == 1 ? kIBRBVD : kNeospora;
        PuestoDeFichas p;
        p.Poner("T_Vacas", ("Id_Vaca=1200001, "s + a.observacion + "=antes").c_str());
        Cubricion(p, 2022, 3);
        const std::string natural = a.natural.tabla;
        const std::string ciclo = a.ciclo.tabla;
        p.Poner(natural, "Id_Vaca, Id_Ganadero=12, AñoNat=2025", kVaca.idVaca);
        p.Poner(ciclo, "Id_Vaca, Id_Ganadero=12, AñoRef=1999", kVaca.idVaca);
        auto datos = LeerAsunto(p.sesion.conexion, a, kVaca.idVaca);
        datos.naturales[0].celdas[0] = "2026";
        datos.naturales.push_back(datos.naturales[0]);
        datos.naturales[1].celdas[0].clear(); // no year: not written
        datos.observacion = observacion.isEmpty() ? Valor() : Valor(observacion.toStdString());
        bool fallo = false;
        try {
            EnGrupo(p.sesion.conexion, [&] { GuardarAsunto(p.sesion.conexion, a, kVaca, datos); });
        } catch (const ErrorAlmacen&) {
            fallo = true;
        }
        QCOMPARE(fallo, guardado.endsWith(QLatin1String("antes")));
        QCOMPARE(Q(p.Texto("SELECT AñoNat FROM " + natural) + "/" + p.Texto("SELECT AñoRef FROM " + ciclo) +
                   "/" + p.Texto("SELECT "s + a.observacion + " FROM T_Vacas")),
                 guardado);
    }

    // Every page of every cow saved as it was read: the tables hold what they held. Saving adds the rows of mating records that had none, and
    // nothing else; rows of no mating record of their cow go.
    void IdaYVuelta() {
        QTemporaryDir carpeta;
        Conexion c;
        AbrirEjemplo(c, carpeta, u"BD_PradalP.mdb"_s);
        const char* tablas[] = {"T_Mamitis", "T_MAMIVACU", "T_CCNATVACAS", "T_IBRBVD",   "T_NEOSPIROSIS",
                                "T_Partos",  "T_Vacas",    "T_CCVacas",    "T_R_IBRBVD", "T_R_NEOSPIROSIS"};
        std::map<std::string, QStringList> antes;
        for (const char* t : tablas)
            antes[t] = FilasDe(c, t);
        EnGrupo(c, [&] {
            for (Recordset rs(c, "SELECT Id_Vaca, Id_Ganadero FROM T_Vacas"); !rs.Eof(); rs.Siguiente()) {
                const VacaEnHoja vaca{rs["Id_Vaca"].Numero(), rs["Id_Ganadero"].Numero()};
                for (const auto* asunto : {&kCondicionCorporal, &kIBRBVD, &kNeospora})
                    GuardarAsunto(c, *asunto, vaca, LeerAsunto(c, *asunto, vaca.idVaca));
                EscribirNaturales(c, kVacunasMamitis, vaca, LeerNaturales(c, kVacunasMamitis, vaca.idVaca));
                EscribirTetos(c, vaca.idVaca, LeerTetos(c, vaca.idVaca));
                EscribirLactaciones(c, vaca.idVaca, LeerLactaciones(c, vaca.idVaca));
            }
        });
        const auto cuantas = [&](const char* de) { return FilasDe(c, de).size(); };
        for (const char* t : tablas) {
            const QByteArray tabla(t);
            const auto ahora = FilasDe(c, t);
            QVERIFY2(SinLosDe(antes[t], ahora).isEmpty(), t);
            const auto nuevas = SinLosDe(ahora, antes[t]);
            if (tabla == "T_Mamitis")
                QCOMPARE(ahora.size(), cuantas("T_Vacas") * kTetos);
            else if (tabla == "T_CCVacas" || tabla.startsWith("T_R_"))
                QCOMPARE(ahora.size(), cuantas("T_Cubriciones"));
            else
                QVERIFY2(nuevas.isEmpty(), t);
            const auto vacia = tabla == "T_Mamitis" ? u"|-|-|=0"_s : u"|-"_s;
            for (const auto& fila : nuevas)
                QVERIFY2(fila.endsWith(vacia), qPrintable(fila));
        }
    }
};

namespace {

// A farm with a cow of two mating records and one natural year of every table.
struct Granja : PuestoDeFichas {
    Granja() {
        Poner("T_Vacas", "Id_Vaca, Id_Ganadero=12, ObsNEOSPIROSIS=antes", kVaca.idVaca);
        for (const int año : {2022, 2023})
            Poner("T_Cubriciones", "Id_Vaca, Año_Ref, N_Parto", kVaca.idVaca, año, año - 2019);
        for (const char* tabla : {"T_CCNATVACAS", "T_IBRBVD", "T_NEOSPIROSIS", "T_MAMIVACU"})
            Poner(tabla, "Id_Ganadero=12, Id_Vaca, AñoNat=2025", kVaca.idVaca);
        Poner("T_FechasVacu", "Id_Ganadero=12, Ln=2, IBR", F("4/3/2026"));
        Poner("T_FechasVacu", "Id_Ganadero=12, Ln=1, IBR=9/5/2026, NEOSPORA=1/1/2026");
    }
    QString Años(const char* tabla) { return Q(Texto("SELECT AñoNat FROM "s + tabla + " ORDER BY AñoNat")); }
};

QTableWidget* Grid(QWidget& pagina, const char* nombre) {
    return pagina.findChild<QTableWidget*>(Q(nombre));
}
QWidget* Control(QWidget& pagina, const char* nombre) {
    return pagina.findChild<QWidget*>(Q(nombre));
}
// Types a text into an entry field, chooses it in a combo.
void Entrar(QWidget& pagina, const char* nombre, const char* valor) {
    auto* control = Control(pagina, nombre);
    QVERIFY2(control && control->isEnabled(), nombre);
    control->setFocus();
    if (auto* combo = qobject_cast<QComboBox*>(control)) {
        const int i = combo->findText(Q(valor));
        QVERIFY2(i >= 0, valor);
        combo->setCurrentIndex(i);
        Q_EMIT combo->activated(i);
        return;
    }
    auto* campo = qobject_cast<QLineEdit*>(control);
    campo->selectAll();
    TeclearEn(*campo, valor);
}
void Anotar(QWidget& pagina, const char* nombre, const char* texto) {
    auto* memo = static_cast<CampoMemo*>(Control(pagina, nombre));
    memo->selectAll();
    memo->insertPlainText(Q(texto));
}
void Intro(QWidget& pagina, const char* nombre) {
    Control(pagina, nombre)->setFocus();
    QTest::keyClick(Control(pagina, nombre), Qt::Key_Return);
}
void ElegirLinea(QWidget& pagina, const char* grid, int fila) {
    Grid(pagina, grid)->setCurrentCell(fila, 1);
    Q_EMIT Grid(pagina, grid)->cellClicked(fila, 1);
}
void Borrar(QWidget& pagina, const char* grid, int fila) {
    ElegirLinea(pagina, grid, fila);
    Grid(pagina, grid)->setFocus();
    QTest::keyClick(Grid(pagina, grid), Qt::Key_Delete);
}

} // namespace

// The health pages as a user meets them.
class PruebaSanidadPaginas : public QObject {
    Q_OBJECT

    template <typename P>
    static PaginaSanidad* Nueva(Conexion& c) {
        return new P(c, nullptr);
    }

private Q_SLOTS:
    // What is typed waits for the page's own save; a value that no list knows survives an edit of its line.
    void GuardaLoSuyo() {
        Granja g;
        g.Poner("T_CCVacas", "Id_Vaca, AñoRef=2022, NumParto=3, MobReservas=Poca", kVaca.idVaca);
        AlaVista<PaginaCC> pagina(g.sesion.conexion, nullptr);
        pagina.Mostrar({});
        QVERIFY(!Control(pagina, "Ct_CCNat(0)")->isEnabled() && !Control(pagina, "CT_ObsCC")->isEnabled());
        pagina.Mostrar(kVaca);
        QVERIFY(!BotonDe(pagina, "B_GuardarCC")->isEnabled() && !pagina.Pendiente());
        QVERIFY(!Control(pagina, "Ct_CC(0)")->isEnabled()); // until a line is chosen
        ElegirLinea(pagina, "GridCC", 1);
        QCOMPARE(pagina.findChild<QComboBox*>(u"Cd_CC"_s)->currentText(), u"Poca"_s);
        Entrar(pagina, "Ct_CC(0)", "2,25x");
        QVERIFY(BotonDe(pagina, "B_GuardarCC")->isEnabled());
        Intro(pagina, "Ct_CC(4)");
        QCOMPARE(Grid(pagina, "GridCC")->item(1, 3)->text(), u"2,25"_s);
        Entrar(pagina, "Ct_CCNat(0)", "2026");
        Intro(pagina, "Ct_CCNat(2)");
        Anotar(pagina, "CT_ObsCC", "x");
        QCOMPARE(g.Texto("SELECT CCParto FROM T_CCVacas") + "/" + g.Años("T_CCNATVACAS").toStdString(),
                 "-/2025"s);
        pagina.Refrescar(); // another sheet was closed: nothing typed is lost
        QCOMPARE(Grid(pagina, "GridCC_Nat")->item(0, 0)->text(), u"2026"_s);
        BotonDe(pagina, "B_CancelarCC")->click();
        QVERIFY(!pagina.Pendiente());
        QCOMPARE(Grid(pagina, "GridCC_Nat")->item(0, 0)->text(), u"2025"_s);
        QCOMPARE(Grid(pagina, "GridCC")->item(1, 3)->text(), QString());

        ElegirLinea(pagina, "GridCC", 1);
        Entrar(pagina, "Ct_CC(0)", "3"); // not put into the list yet: the save does
        BotonDe(pagina, "B_GuardarCC")->click();
        QUEDA(g, "Id_Ganadero, AñoRef, CCParto, MobReservas, CCnov FROM T_CCVacas ORDER BY AñoRef",
              "12|2022|3|Poca|-/12|2023|-|-|-");
        QVERIFY(!BotonDe(pagina, "B_GuardarCC")->isEnabled());
        ElegirLinea(pagina, "GridCC", 0); // and is no choice for another line
        QCOMPARE(pagina.findChild<QComboBox*>(u"Cd_CC"_s)->findText(u"Poca"_s), -1);
        QCOMPARE(Mnemonicos(pagina), QString()); // the letters are the sheet's
    }

    void SinCubriciones() {
        Granja g;
        g.sesion.conexion.Execute("DELETE FROM T_Cubriciones");
        g.Poner("T_CCVacas", "Id_Vaca, AñoRef=2022", kVaca.idVaca);
        AlaVista<PaginaCC> pagina(g.sesion.conexion, nullptr);
        pagina.Mostrar(kVaca);
        Entrar(pagina, "Ct_CCNat(0)", "2026");
        Anotar(pagina, "CT_ObsCC", "x");
        BotonDe(pagina, "B_GuardarCC")->click();
        QUEDA(g, "AñoRef FROM T_CCVacas", "");
        QCOMPARE(g.Años("T_CCNATVACAS"), u"2025"_s);
        QCOMPARE(Grid(pagina, "GridCC_Nat")->item(0, 0)->text(), u"2025"_s);
        QUEDA(g, "ObsCC FROM T_Vacas", "-");
    }

    // The messages about the year, the question, and what goes at once.
    void AñosNaturales_data() {
        // trasAlta: years in the database after each step
        Caso("GridCC_Nat", 0, "Ct_CCNat(0)", "T_CCNATVACAS", "Eliminar el Año Natural: ", "2025", "2025");
        Caso("GridIBR", 1, "Ct_E", "T_IBRBVD", "Eliminar Año Natural: ", "2025", "");
        Caso("Grid_Lep", 2, "Ct_Lep", "T_NEOSPIROSIS", "Eliminar el Año Natural: ", "2025", "");
        Caso("Grid_MVacu", 3, "Ct_CP(3)", "T_MAMIVACU", "Eliminar el Año Natural: ", "2025/2026", "2026");
    }
    void AñosNaturales() {
        const auto [cual, campo, tabla, pregunta, trasAlta, trasBaja] =
            DelCaso<int, QString, QString, QString, QString, QString>();
        const char* const grid = QTest::currentDataTag();
        Granja g;
        auto& c = g.sesion.conexion;
        PaginaSanidad* (*const nuevas[])(Conexion&) = {Nueva<PaginaCC>, Nueva<PaginaIBR>,
                                                       Nueva<PaginaNeospora>, Nueva<PaginaMamitis>};
        const std::unique_ptr<PaginaSanidad> pagina(nuevas[cual](c));
        Mostrar(*pagina);
        pagina->Mostrar(kVaca);
        auto* poner = Control(*pagina, qPrintable(campo))->parentWidget();
        auto* lineas = static_cast<LineasEditables*>(poner);
        lineas->Confirmar();
        QCOMPARE(g.cajas.Tomar(), QStringList{u"Atención!!!|Debe incluir un año natural"_s});
        Entrar(*pagina, qPrintable(campo), "2025");
        lineas->Confirmar();
        QCOMPARE(g.Caja(), u"El año: 2025 ya está incluido en la lista"_s);
        Entrar(*pagina, qPrintable(campo), "2026");
        lineas->Confirmar();
        QCOMPARE(qobject_cast<QLineEdit*>(Control(*pagina, qPrintable(campo)))->text(), QString());
        QCOMPARE(g.Años(qPrintable(tabla)), trasAlta);
        pagina->Mostrar(kVaca);

        const int fila = Grid(*pagina, grid)->rowCount() - 1; // 2025
        g.cajas.Responder(false);
        Borrar(*pagina, grid, fila);
        QCOMPARE(g.Años(qPrintable(tabla)), trasAlta);
        g.cajas.Responder(true);
        Borrar(*pagina, grid, fila);
        QCOMPARE(g.cajas.Tomar(), QStringList(2, u"Confirme|"_s + pregunta + u"2025"_s));
        QCOMPARE(g.Años(qPrintable(tabla)), trasBaja);
        QCOMPARE(pagina->Pendiente(), cual == 0); // the others have nothing left to save
    }

    // Two rows of one year come from elsewhere: both show, can be edited, and go back.
    void AñoRepetido() {
        Granja g;
        g.Poner("T_IBRBVD", "Id_Ganadero=12, Id_Vaca, AñoNat=2025, VIBR=primavera", kVaca.idVaca);
        AlaVista<PaginaIBR> pagina(g.sesion.conexion, nullptr);
        pagina.Mostrar(kVaca);
        const auto* vibr = pagina.findChild<QComboBox*>(u"Cd_VIBR"_s);
        ElegirLinea(pagina, "GridIBR", 0);
        QCOMPARE(vibr->itemText(1) + vibr->itemText(2),
                 u"09/05/2604/03/26"_s); // in the farm's order
        Entrar(pagina, "Cd_VIBR", "04/03/26");
        Intro(pagina, "Cd_BVDbp");
        BotonDe(pagina, "B_GuardarIBR")->click();
        QUEDA(g, "AñoNat, VIBR FROM T_IBRBVD", "2025|04/03/26/2025|primavera");
        g.cajas.Responder(true);
        Borrar(pagina, "GridIBR", 0);
        QCOMPARE(g.Caja(), u"Eliminar Año Natural: 2025"_s);
        QCOMPARE(g.Años("T_IBRBVD"), QString()); // one statement for the year
        QVERIFY(pagina.Pendiente());             // the other line is here still
        BotonDe(pagina, "B_GuardarIBR")->click();
        QCOMPARE(g.Años("T_IBRBVD"), u"2025"_s);
    }

    void ComillaEnNeospora() {
        Granja g;
        AlaVista<PaginaNeospora> pagina(g.sesion.conexion, nullptr);
        pagina.Mostrar(kVaca);
        Entrar(pagina, "Ct_Lep", "2026");
        Intro(pagina, "Cd_LepBp");
        ElegirLinea(pagina, "Grid_Lep_R", 0);
        Entrar(pagina, "CT_LEPR", "ConvSp");
        Intro(pagina, "CT_LEPR");
        Anotar(pagina, "Ct_ObsLep", "d'aldea");
        BotonDe(pagina, "B_GLep")->click();
        QCOMPARE(g.cajas.Vistas().size(), 1);
        QCOMPARE(g.Años("T_NEOSPIROSIS"), u"2025/2026"_s); // saved before it
        QUEDA(g, "Neospirosis FROM T_R_NEOSPIROSIS", "");
        QCOMPARE(pagina.findChild<CampoMemo*>()->toPlainText(), u"d'aldea"_s);
        QVERIFY(pagina.Pendiente());
        Anotar(pagina, "Ct_ObsLep", "de aldea");
        BotonDe(pagina, "B_GLep")->click();
        QUEDA(g, "Neospirosis FROM T_R_NEOSPIROSIS ORDER BY AñoRef", "-/ConvSp");
        QUEDA(g, "ObsNEOSPIROSIS FROM T_Vacas", "de aldea");
        QVERIFY(!pagina.Pendiente());
    }

    // Quarters and lactations touch the sheet and are written with it; the mark by keyboard.
    void Mamitis() {
        Granja g;
        for (const char* sexo : {"Macho", "Hembra"})
            g.Poner("T_Partos", "Id_Vaca, Año_Ref=2022, N_Parto=3, Sexo", kVaca.idVaca, std::string(sexo));
        PaginaMamitis pagina(g.sesion.conexion, nullptr);
        auto* cpt = new QWidget;
        auto* campo = new CampoTexto(ClaseCampo::Numero, 4, cpt);
        pagina.PonerCuartosPerdidos(cpt);
        int tocada = 0;
        bool permiso = false;
        pagina.alTocar = [&] { ++tocada; };
        pagina.puedeTocar = [&] { return permiso; };
        Mostrar(pagina);
        pagina.Mostrar({});
        auto* cuarto = qobject_cast<QAbstractButton*>(Control(pagina, "ImgNulo(1)"));
        cuarto->setFocus();
        QTest::keyClick(cuarto, Qt::Key_Space);
        Teclear(pagina, 27, "x");
        QVERIFY(!cuarto->isChecked() && CampoDe(pagina, 27)->text().isEmpty() && tocada == 0);

        permiso = true;
        pagina.Mostrar(kVaca);
        cuarto->setFocus();
        QTest::keyClick(cuarto, Qt::Key_Right);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(QApplication::focusWidget()->accessibleName(), u"Posterior derecho, perdido"_s);
        Teclear(pagina, 26, "2/3/26");
        Teclear(pagina, 25, "31/2/26"); // no date: not kept
        Teclear(pagina, 30, "D'un golpe");
        QTest::keyClick(CampoDe(pagina, 30), Qt::Key_Tab);
        QVERIFY(campo->hasFocus());
        ElegirLinea(pagina, "GridMamitis", 0);
        Entrar(pagina, "Ct_CP(0)", "Sí");
        QTest::keyClick(Control(pagina, "Ct_CP(0)"), Qt::Key_Return);
        Entrar(pagina, "Ct_CP(1)", "1");
        Intro(pagina, "Ct_CP(1)");
        QCOMPARE(Grid(pagina, "GridMamitis")->item(0, 4)->text(), u"Sí"_s);
        QVERIFY(tocada > 0 && pagina.Pendiente());
        QUEDA(g, "Id_Teto FROM T_Mamitis", "");
        QUEDA(g, "TratSecado FROM T_Partos", "-/-");
        pagina.EscribirHijos(kVaca.idVaca);
        QUEDA(g, "Id_Teto, Fecha, DescMamitis, marcado FROM T_Mamitis ORDER BY Id_Teto",
              "1|-|-|0/2|-|-|0/3|-|-|0/4|02/03/26|D'un golpe|-1");
        QUEDA(g, "Sexo, TratSecado, CuartosPerdidos FROM T_Partos", "Macho|Sí|1/Hembra|Sí|1");
        pagina.Mostrar(kVaca);
        QVERIFY(!pagina.Pendiente());
        QVERIFY(qobject_cast<QAbstractButton*>(Control(pagina, "ImgNulo(4)"))->isChecked());
        ElegirLinea(pagina, "GridMamitis", 0);
        Entrar(pagina, "Ct_CP(1)", "2"); // not put into the list yet: the save does
        QVERIFY(pagina.Recoger());
        pagina.EscribirHijos(kVaca.idVaca);
        QUEDA(g, "CuartosPerdidos FROM T_Partos", "2/2");
    }
};

PRUEBA(PruebaSanidad)
PRUEBA(PruebaSanidadPaginas)
#include "PruebaSanidad.moc"
