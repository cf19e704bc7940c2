#include "PuestoDeFichas.h"
#include "prueba.h"

#include "frame/ficha/CampoMemo.h"
#include "frame/ficha/CampoTexto.h"
#include "registers/sanidad/PaginaCC.h"
#include "registers/sanidad/PaginaIBR.h"
#include "registers/sanidad/PaginaMamitis.h"
#include "registers/sanidad/PaginaNeospora.h"

#include <optional>

using namespace pastorix;
using namespace prueba;

namespace {

constexpr VacaEnHoja kVaca{1200001, 12};

// A farm with a cow of two mating records and one natural year of every table.
struct Granja : PuestoDeFichas {
    Granja() {
        Poner("T_Vacas", {{"Id_Vaca", kVaca.idVaca}, {"Id_Ganadero", 12.0}, {"ObsNEOSPIROSIS", "antes"s}});
        for (const int año : {2022, 2023})
            Poner("T_Cubriciones", {{"Id_Vaca", kVaca.idVaca}, {"Año_Ref", año}, {"N_Parto", año - 2019}});
        for (const char* tabla : {"T_CCNATVACAS", "T_IBRBVD", "T_NEOSPIROSIS", "T_MAMIVACU"})
            Poner(tabla, {{"Id_Ganadero", 12.0}, {"Id_Vaca", kVaca.idVaca}, {"AñoNat", 2025}});
        Poner("T_FechasVacu", {{"Id_Ganadero", 12.0}, {"Ln", 2}, {"IBR", F("4/3/2026")}});
        Poner("T_FechasVacu", "Id_Ganadero=12, Ln=1, IBR=9/5/2026, NEOSPORA=1/1/2026");
    }
    QString Años(const char* tabla) {
        return QString::fromStdString(Texto("SELECT AñoNat FROM "s + tabla + " ORDER BY AñoNat"));
    }
};

QTableWidget* Grid(QWidget& pagina, const char* nombre) {
    return pagina.findChild<QTableWidget*>(QString::fromUtf8(nombre));
}
QWidget* Control(QWidget& pagina, const char* nombre) {
    return pagina.findChild<QWidget*>(QString::fromUtf8(nombre));
}
// Types a text into an entry field, chooses it in a combo.
void Entrar(QWidget& pagina, const char* nombre, const char* valor) {
    auto* control = Control(pagina, nombre);
    QVERIFY2(control && control->isEnabled(), nombre);
    control->setFocus();
    if (auto* combo = qobject_cast<QComboBox*>(control)) {
        const int i = combo->findText(QString::fromUtf8(valor));
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
    memo->insertPlainText(QString::fromUtf8(texto));
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

private Q_SLOTS:
    // What is typed waits for the page's own save; a value that no list knows survives an edit of its line.
    void GuardaLoSuyo() {
        Granja g;
        g.Poner("T_CCVacas",
                {{"Id_Vaca", kVaca.idVaca}, {"AñoRef", 2022}, {"NumParto", 3}, {"MobReservas", "Poca"s}});
        PaginaCC pagina(g.sesion.conexion, nullptr);
        Mostrar(pagina);
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
        QCOMPARE(
            g.Texto("SELECT Id_Ganadero, AñoRef, CCParto, MobReservas, CCnov FROM T_CCVacas ORDER BY AñoRef"),
            "12|2022|3|Poca|-/12|2023|-|-|-"s);
        QVERIFY(!BotonDe(pagina, "B_GuardarCC")->isEnabled());
        ElegirLinea(pagina, "GridCC", 0); // and is no choice for another line
        QCOMPARE(pagina.findChild<QComboBox*>(u"Cd_CC"_s)->findText(u"Poca"_s), -1);
        QCOMPARE(Mnemonicos(pagina), QString()); // the letters are the sheet's
    }

    void SinCubriciones() {
        Granja g;
        g.sesion.conexion.Execute("DELETE FROM T_Cubriciones");
        g.Poner("T_CCVacas", {{"Id_Vaca", kVaca.idVaca}, {"AñoRef", 2022}});
        PaginaCC pagina(g.sesion.conexion, nullptr);
        Mostrar(pagina);
        pagina.Mostrar(kVaca);
        Entrar(pagina, "Ct_CCNat(0)", "2026");
        Anotar(pagina, "CT_ObsCC", "x");
        BotonDe(pagina, "B_GuardarCC")->click();
        QCOMPARE(g.Texto("SELECT AñoRef FROM T_CCVacas"), std::string());
        QCOMPARE(g.Años("T_CCNATVACAS"), u"2025"_s);
        QCOMPARE(Grid(pagina, "GridCC_Nat")->item(0, 0)->text(), u"2025"_s);
        QCOMPARE(g.Texto("SELECT ObsCC FROM T_Vacas"), "-"s);
    }

    // The messages about the year, the question, and what goes at once.
    void AñosNaturales_data() {
        // trasAlta: years in the database after each step
        Columnas<int, QByteArray, QByteArray, QByteArray, QString, QString, QString>(
            "cual", "grid", "campo", "tabla", "pregunta", "trasAlta", "trasBaja");
        const auto fila = [](int cual, const char* grid, const char* campo, const char* tabla,
                             const char* pregunta, const char* alta, const char* baja) {
            Caso(grid, cual, QByteArray(grid), QByteArray(campo), QByteArray(tabla),
                 QString::fromUtf8(pregunta), QString::fromUtf8(alta), QString::fromUtf8(baja));
        };
        fila(0, "GridCC_Nat", "Ct_CCNat(0)", "T_CCNATVACAS", "Eliminar el Año Natural: ", "2025", "2025");
        fila(1, "GridIBR", "Ct_E", "T_IBRBVD", "Eliminar Año Natural: ", "2025", "");
        fila(2, "Grid_Lep", "Ct_Lep", "T_NEOSPIROSIS", "Eliminar el Año Natural: ", "2025", "");
        fila(3, "Grid_MVacu", "Ct_CP(3)", "T_MAMIVACU", "Eliminar el Año Natural: ", "2025/2026", "2026");
    }
    void AñosNaturales() {
        QFETCH(int, cual);
        QFETCH(QByteArray, grid);
        QFETCH(QByteArray, campo);
        QFETCH(QByteArray, tabla);
        QFETCH(QString, pregunta);
        QFETCH(QString, trasAlta);
        QFETCH(QString, trasBaja);
        Granja g;
        auto& c = g.sesion.conexion;
        std::unique_ptr<PaginaSanidad> pagina;
        if (cual == 0)
            pagina = std::make_unique<PaginaCC>(c, nullptr);
        else if (cual == 1)
            pagina = std::make_unique<PaginaIBR>(c, nullptr);
        else if (cual == 2)
            pagina = std::make_unique<PaginaNeospora>(c, nullptr);
        else
            pagina = std::make_unique<PaginaMamitis>(c, nullptr);
        Mostrar(*pagina);
        pagina->Mostrar(kVaca);
        auto* poner = Control(*pagina, campo)->parentWidget();
        auto* lineas = static_cast<LineasEditables*>(poner);
        lineas->Confirmar();
        const auto vacio = g.cajas.Vistas();
        QCOMPARE(vacio.size(), 1);
        QCOMPARE(vacio[0].titulo + vacio[0].texto, u"Atención!!!Debe incluir un año natural"_s);
        Entrar(*pagina, campo, "2025");
        lineas->Confirmar();
        QCOMPARE(g.Caja(), u"El año: 2025 ya está incluido en la lista"_s);
        Entrar(*pagina, campo, "2026");
        lineas->Confirmar();
        QCOMPARE(qobject_cast<QLineEdit*>(Control(*pagina, campo))->text(), QString());
        QCOMPARE(g.Años(tabla), trasAlta);
        pagina->Mostrar(kVaca);

        const int fila = Grid(*pagina, grid)->rowCount() - 1; // 2025
        g.cajas.Responder(false);
        Borrar(*pagina, grid, fila);
        QCOMPARE(g.Años(tabla), trasAlta);
        g.cajas.Responder(true);
        Borrar(*pagina, grid, fila);
        const auto preguntas = g.cajas.Vistas();
        QCOMPARE(preguntas.size(), 2);
        QCOMPARE(preguntas[1].titulo + preguntas[1].texto, u"Confirme"_s + pregunta + u"2025"_s);
        QCOMPARE(g.Años(tabla), trasBaja);
        QCOMPARE(pagina->Pendiente(), cual == 0); // the others have nothing left to save
    }

    // Two rows of one year come from elsewhere: both show, can be edited, and go back.
    void AñoRepetido() {
        Granja g;
        g.Poner("T_IBRBVD",
                {{"Id_Ganadero", 12.0}, {"Id_Vaca", kVaca.idVaca}, {"AñoNat", 2025}, {"VIBR", "primavera"s}});
        PaginaIBR pagina(g.sesion.conexion, nullptr);
        Mostrar(pagina);
        pagina.Mostrar(kVaca);
        const auto* vibr = pagina.findChild<QComboBox*>(u"Cd_VIBR"_s);
        ElegirLinea(pagina, "GridIBR", 0);
        QCOMPARE(vibr->itemText(1) + vibr->itemText(2),
                 u"09/05/2604/03/26"_s); // in the farm's order
        Entrar(pagina, "Cd_VIBR", "04/03/26");
        Intro(pagina, "Cd_BVDbp");
        BotonDe(pagina, "B_GuardarIBR")->click();
        QCOMPARE(g.Texto("SELECT AñoNat, VIBR FROM T_IBRBVD"), "2025|04/03/26/2025|primavera"s);
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
        PaginaNeospora pagina(g.sesion.conexion, nullptr);
        Mostrar(pagina);
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
        QCOMPARE(g.Texto("SELECT Neospirosis FROM T_R_NEOSPIROSIS"), std::string());
        QCOMPARE(pagina.findChild<CampoMemo*>()->toPlainText(), u"d'aldea"_s);
        QVERIFY(pagina.Pendiente());
        Anotar(pagina, "Ct_ObsLep", "de aldea");
        BotonDe(pagina, "B_GLep")->click();
        QCOMPARE(g.Texto("SELECT Neospirosis FROM T_R_NEOSPIROSIS ORDER BY AñoRef"), "-/ConvSp"s);
        QCOMPARE(g.Texto("SELECT ObsNEOSPIROSIS FROM T_Vacas"), "de aldea"s);
        QVERIFY(!pagina.Pendiente());
    }

    // Quarters and lactations touch the sheet and are written with it; the mark by keyboard.
    void Mamitis() {
        Granja g;
        for (const char* sexo : {"Macho", "Hembra"})
            g.Poner(
                "T_Partos",
                {{"Id_Vaca", kVaca.idVaca}, {"Año_Ref", 2022}, {"N_Parto", 3}, {"Sexo", std::string(sexo)}});
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
        QCOMPARE(g.Texto("SELECT Id_Teto FROM T_Mamitis"), std::string());
        QCOMPARE(g.Texto("SELECT TratSecado FROM T_Partos"), "-/-"s);
        pagina.EscribirHijos(kVaca.idVaca);
        QCOMPARE(g.Texto("SELECT Id_Teto, Fecha, DescMamitis, marcado FROM T_Mamitis ORDER BY Id_Teto"),
                 "1|-|-|0/2|-|-|0/3|-|-|0/4|02/03/26|D'un golpe|-1"s);
        QCOMPARE(g.Texto("SELECT Sexo, TratSecado, CuartosPerdidos FROM T_Partos"),
                 "Macho|Sí|1/Hembra|Sí|1"s);
        pagina.Mostrar(kVaca);
        QVERIFY(!pagina.Pendiente());
        QVERIFY(qobject_cast<QAbstractButton*>(Control(pagina, "ImgNulo(4)"))->isChecked());
        ElegirLinea(pagina, "GridMamitis", 0);
        Entrar(pagina, "Ct_CP(1)", "2"); // not put into the list yet: the save does
        QVERIFY(pagina.Recoger());
        pagina.EscribirHijos(kVaca.idVaca);
        QCOMPARE(g.Texto("SELECT CuartosPerdidos FROM T_Partos"), "2/2"s);
    }
};

PRUEBA(PruebaSanidadPaginas)
#include "PruebaSanidadPaginas.moc"
