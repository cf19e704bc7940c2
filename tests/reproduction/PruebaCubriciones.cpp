#include "PuestoDeCiclos.h"
#include "prueba.h"

#include "reproduction/Cubriciones.h"

#include <QTimer>

#include <sqlite3.h>

using namespace pastorix;
using namespace prueba;

namespace {

struct Hoja : PuestoDeCiclos {
    std::unique_ptr<Cubriciones> f;

    void Abrir(int año, int parto) {
        f = std::make_unique<Cubriciones>(marco, vaca, Ciclo(año, parto));
        QVERIFY(f->CargarCubricion());
        Mostrar(*f);
    }
    std::string Fila(const char* columnas) {
        return Texto(std::string("SELECT ") + columnas + " FROM T_Cubriciones ORDER BY Año_Ref, N_Parto");
    }
    // A service entered by keys from the grid: Insert, then the fields in their order.
    void Servicio(const char* fecha, const char* toro = "", const char* tipo = "") {
        auto* grid = Control<QTableWidget>(*f, "GridServicios");
        grid->setFocus();
        QTest::keyClick(grid, Qt::Key_Insert);
        TeclearEn(*Control<QLineEdit>(*f, "Ct_S(1)"), fecha);
        TeclearEn(*Control<QLineEdit>(*f, "Ct_S(4)"), toro);
        if (*tipo)
            QTest::keyClicks(Control<QComboBox>(*f, "Cd_S(0)"), QString::fromUtf8(tipo));
        QTest::keyClick(Control<QLineEdit>(*f, "Ct_S(1)"), Qt::Key_Return);
    }
};

} // namespace

// The sheet of a mating record.
class PruebaCubriciones : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Opened and closed, a record keeps all that is not worked out anew.
    void NadaCambia() {
        Hoja p;
        const std::string largo(255, 'x');
        p.PonerCubricion(2026, 3,
                         {{"Fecha_Parto", "01/02/1899"},
                          {"FechaIPR", "31/12/2105"},
                          {"Controles", largo},
                          {"Estado", "preñada"},
                          {"Progesterona", "l'1"},
                          {"Num_Abortos", 2},
                          {"BVD", 1},
                          {"CausaPrincipal", 5},
                          {"NombreCausaPpal", "BVD"},
                          {"DescCausaPpal", "escrita a mano"},
                          {"TotalServicios", 7},
                          {"DemoraPreñez", 33}});
        sqlite3_exec(p.sesion.conexion.Manejador(), "UPDATE T_Cubriciones SET FinicioP = 'pronto'", nullptr,
                     nullptr, nullptr);
        const char* const columnas =
            "Fecha_Parto, FechaIPR, FinicioP, Controles, Estado, Progesterona, Num_Abortos, BVD, "
            "CausaPrincipal, NombreCausaPpal, DescCausaPpal, TotalServicios";
        const auto valores = [&] {
            Recordset rs(p.sesion.conexion, std::string("SELECT ") + columnas + " FROM T_Cubriciones");
            std::vector<Valor> todo;
            for (int i = 0; i < rs.Campos(); ++i)
                todo.push_back(rs[i].Leer());
            return todo;
        };
        const auto antes = valores();
        p.Abrir(2026, 3);
        p.f->reject();
        QVERIFY(valores() == antes);
        QCOMPARE(p.Fila("DemoraPreñez, Aborto"),
                 std::string("-|0")); // the one is never kept, flags are 0 or 1
    }

    void ServiciosPorTeclado() {
        Hoja p;
        p.PonerCubricion(2026, 3, {{"Fecha_Parto", "01/03/2026"}, {"FechaIPR", "01/05/2026"}, {"IEPc", 5}});
        p.Abrir(2026, 3);
        QCOMPARE(En(*p.f, "Ct_E(19)"), QStringLiteral("205")); // to today
        p.Servicio("12/6/26", "Ares-C", "1");
        const char* const sql = "SELECT N_Servicio, Fecha_Servicio, Semental, TipoServicio, N_Inseminacion "
                                "FROM T_Servicios ORDER BY N_Servicio";
        QCOMPARE(p.Texto(sql), std::string("1|12/06/26|Ares-C|1 InsCelo|1"));
        QCOMPARE(En(*p.f, "Ct_E(19)") + QLatin1Char(' ') + En(*p.f, "Ct_E(6)"),
                 QStringLiteral("42 04/07/26"));
        QCOMPARE(En(*p.f, "Ct_E(28)") + En(*p.f, "Ct_E(29)"), QStringLiteral("11"));
        // the save came before the reading: the row holds what the sheet showed then
        QCOMPARE(p.Fila("IPR_CP, TotalServicios"), std::string("205|1"));
        QCOMPARE(p.f->focusWidget()->objectName(), QStringLiteral("GridServicios"));
        Escoger(*p.f, "Cd_E(3)", Qt::Key_P);
        QCOMPARE(En(*p.f, "Ct_E(8)"), QStringLiteral("25/03/27"));
        p.f->reject();
        QCOMPARE(p.Fila("IPR_CP, Estado, FechaEspParto, IEPc"), std::string("42|Preñada|25/03/27|389"));
        // a fifth takes the place of the fourth; what is no date goes in as typed
        p.Abrir(2026, 3);
        for (const char* fecha : {"1/7/26", "1/8/26", "1/9/26", "31/9/26"})
            p.Servicio(fecha);
        QCOMPARE(p.Texto("SELECT N_Servicio, Fecha_Servicio FROM T_Servicios ORDER BY N_Servicio"),
                 std::string("1|12/06/26/2|01/07/26/3|01/08/26/5|31/9/26"));
        QCOMPARE(En(*p.f, "Ct_E(28)") + QLatin1Char('|') + En(*p.f, "Ct_E(6)"), QStringLiteral("5|"));
        QCOMPARE(En(*p.f, "Ct_E(19)"), QStringLiteral("205")); // the last line has no date
        auto* grid = Control<QTableWidget>(*p.f, "GridServicios");
        grid->setCurrentCell(3, 0);
        p.cajas.Responder(true);
        QTest::keyClick(grid, Qt::Key_Delete);
        const auto caja = p.cajas.Vistas();
        QCOMPARE(caja[0].titulo + caja[0].texto, QStringLiteral("Confirme EliminarEliminar Servicio Nº: 5"));
        QCOMPARE(p.Fila("TotalServicios"), std::string("3"));
    }

    // More services than lines: said before anything is typed.
    void MasServiciosQueLineas() {
        Hoja p;
        p.PonerCubricion(2026, 3);
        for (int n = 1; n <= 6; ++n)
            p.Poner("T_Servicios",
                    {{"Id_Vaca", 1200001.0}, {"Año_Ref", 2026}, {"N_Parto", 3}, {"N_Servicio", n}});
        p.Abrir(2026, 3);
        const auto* aviso = Control<QLabel>(*p.f, "AvisoServicios");
        QVERIFY(!aviso->isHidden() && aviso->text().contains(QStringLiteral("4, 5")));
        QCOMPARE(p.Texto("SELECT N_Servicio FROM T_Servicios ORDER BY N_Servicio"),
                 std::string("1/2/3/4/5/6"));
        p.f->reject(); // closing rewrites nothing
        QCOMPARE(p.Texto("SELECT N_Servicio FROM T_Servicios ORDER BY N_Servicio"),
                 std::string("1/2/3/4/5/6"));
    }

    // The real interval goes before the expected one by a load alone; the date of the calving saves and loads when it is left.
    void IntervaloReal() {
        Hoja p;
        p.PonerCubricion(2026, 3, {{"Fecha_Parto", "01/01/2026"}, {"FechaRealParto", "01/01/2027"}});
        p.Poner("T_Servicios", {{"Id_Vaca", 1200001.0},
                                {"Año_Ref", 2026},
                                {"N_Parto", 3},
                                {"N_Servicio", 1},
                                {"Fecha_Servicio", "01/04/2026"}});
        p.Abrir(2026, 3);
        QCOMPARE(En(*p.f, "Ct_E(17)") + QLatin1Char(' ') + En(*p.f, "Ct_E(22)"), QStringLiteral("365 365"));
        TeclearEn(*p.f, "Ct_E(9)", "2/1/27");
        Control<QLineEdit>(*p.f, "Ct_E(3)")->setFocus();
        QCOMPARE(En(*p.f, "Ct_E(17)") + QLatin1Char(' ') + En(*p.f, "Ct_E(22)"), QStringLiteral("365 376"));
        TeclearEn(*p.f, "Ct_E(1)", "2/1/26");
        Control<QLineEdit>(*p.f, "Ct_E(3)")->setFocus();
        QCOMPARE(En(*p.f, "Ct_E(17)") + QLatin1Char(' ') + En(*p.f, "Ct_E(22)"), QStringLiteral("365 365"));
        QCOMPARE(p.Fila("Fecha_Parto, FechaRealParto"), std::string("02/01/26|02/01/27"));
    }

    // Services and calvings that cannot be are told above the grid and below the sheet.
    void Reparos() {
        Hoja p;
        p.vaca.fechaDesecho = F("1/6/26");
        p.PonerCubricion(2026, 3, {{"Fecha_Parto", "01/02/2026"}, {"FechaRealParto", "01/10/2026"}});
        for (const auto& [n, fecha] : {std::pair{1, "01/01/2026"}, {2, "01/03/2026"}, {3, "02/06/2026"}})
            p.Poner("T_Servicios", {{"Id_Vaca", 1200001.0},
                                    {"Año_Ref", 2026},
                                    {"N_Parto", 3},
                                    {"N_Servicio", n},
                                    {"Fecha_Servicio", fecha}});
        p.Abrir(2026, 3);
        QCOMPARE(Control<QLabel>(*p.f, "AvisoServicios")->text(),
                 QStringLiteral("Nº 1: El servicio es anterior al parto que abrió el ciclo. "
                                "Nº 3: El servicio es posterior a la baja de la vaca"));
        const auto* pie = Control<QLabel>(*p.f, "Reparos");
        QVERIFY(pie->text().contains(QStringLiteral("Gestación de 121 días")));
        TeclearEn(*p.f, "Ct_E(9)", "1/3/27");
        Control<QLineEdit>(*p.f, "Ct_E(3)")->setFocus();
        QVERIFY(pie->text().endsWith(QStringLiteral("La fecha está por llegar")));
        TeclearEn(*p.f, "Ct_E(9)", "");
        Control<QLineEdit>(*p.f, "Ct_E(3)")->setFocus();
        QVERIFY(pie->text().isEmpty());
    }

    // The state acts when it is decided on, not while the arrows pass it.
    void EstadoAlDecidir() {
        Hoja p;
        p.PonerCubricion(2026, 3);
        p.Poner("T_Servicios", {{"Id_Vaca", 1200001.0},
                                {"Año_Ref", 2026},
                                {"N_Parto", 3},
                                {"N_Servicio", 1},
                                {"Fecha_Servicio", "01/04/2026"}});
        p.Abrir(2026, 3);
        auto* estado = Control<QComboBox>(*p.f, "Cd_E(3)");
        estado->setFocus();
        QTest::keyClick(estado, Qt::Key_Down);
        QCOMPARE(estado->currentText() + En(*p.f, "Ct_E(8)"), QStringLiteral("Preñada"));
        QTest::keyClick(estado, Qt::Key_Tab);
        QCOMPARE(En(*p.f, "Ct_E(8)"), QStringLiteral("12/01/27"));
        Escoger(*p.f, "Cd_E(7)", Qt::Key_N);
        QVERIFY(Control<QCheckBox>(*p.f, "Ch_E(13)")->isChecked());
        Escoger(*p.f, "Cd_E(7)", Qt::Key_S);
        QVERIFY(!Control<QCheckBox>(*p.f, "Ch_E(13)")->isChecked());
    }

    // One cause is principal: named by the pop-up of the context key or by the button, its description built once.
    void CausaPrincipal() {
        Hoja p;
        p.PonerCubricion(2026, 3, {{"N_ME", 2}});
        p.Abrir(2026, 3);
        Control<QAbstractButton>(*p.f, "IconoNav(1)")->click(); // saves, too
        auto* causa = Control<QCheckBox>(*p.f, "Ch_E(16)");
        causa->setFocus();
        QTimer::singleShot(0, [&] { QTest::keyClick(p.marco.MenuCausaPrincipal(), Qt::Key_Down); });
        QTimer::singleShot(20, [&] { QTest::keyClick(p.marco.MenuCausaPrincipal(), Qt::Key_Return); });
        QContextMenuEvent menu(QContextMenuEvent::Keyboard, causa->rect().center(),
                               causa->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(causa, &menu);
        QVERIFY(causa->isChecked());
        QCOMPARE(En(*p.f, "Ct_E(23)"), QStringLiteral("MortEmbrion 2"));
        QCOMPARE(causa->palette().color(QPalette::WindowText), QColor(255, 25, 25));
        TeclearEn(*p.f, "Ct_E(16)", "3"); // the description is a copy
        QCOMPARE(En(*p.f, "Ct_E(23)"), QStringLiteral("MortEmbrion 2"));
        p.f->reject();
        QCOMPARE(p.Fila("CausaPrincipal, NombreCausaPpal, DescCausaPpal, MortEmb, N_ME"),
                 std::string("16|MortEmbrion|MortEmbrion 2|1|3"));
        // the free slot has no column of its own
        p.Abrir(2026, 3);
        Control<QAbstractButton>(*p.f, "IconoNav(1)")->click();
        Control<QCheckBox>(*p.f, "Ch_E(24)")->setFocus();
        Control<QAbstractButton>(*p.f, "B_CausaPrincipal")->click();
        p.f->reject();
        QCOMPARE(p.Fila("CausaPrincipal, NombreCausaPpal, DescCausaPpal"), std::string("24|Libre|Libre "));
        p.Abrir(2026, 3);
        QVERIFY(!Control<QCheckBox>(*p.f, "Ch_E(24)")->isChecked());
    }

    // By parity, saving on the way; at the end the sheet stays.
    void Cadena() {
        Hoja p;
        p.PonerCubricion(2024, 2, {{"Controles", "dos"}});
        p.PonerCubricion(2026, 3);
        p.Abrir(2026, 3);
        TeclearEn(*p.f, "Ct_E(3)", "tres");
        Control<QAbstractButton>(*p.f, "B_Siguiente")->click();
        QCOMPARE(p.Fila("Controles"), std::string("dos/tres"));
        QCOMPARE(En(*p.f, "Ct_E(0)"), QStringLiteral("3"));
        QTest::keyClick(p.f->focusWidget(), Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(En(*p.f, "Ct_E(3)"), QStringLiteral("dos"));
        QCOMPARE(*p.f->Ciclo().añoRef, 2024);
    }

    // An overtyped parity takes along what hangs on the record, or is taken back.
    void OtraParidad() {
        Hoja p;
        p.PonerCubricion(2026, 3);
        p.Poner("T_Servicios",
                {{"Id_Vaca", 1200001.0}, {"Año_Ref", 2026}, {"N_Parto", 3}, {"N_Servicio", 1}});
        p.Poner("T_CCVacas", {{"Id_Vaca", 1200001.0}, {"AñoRef", 2026}, {"NumParto", 3}});
        p.Abrir(2026, 3);
        TeclearEn(*p.f, "Ct_E(0)", "4");
        p.cajas.Responder(false);
        Control<QAbstractButton>(*p.f, "IconoNav(1)")->click();
        QVERIFY(p.Caja().contains(QStringLiteral("pasa de «3» a «4»")));
        QCOMPARE(En(*p.f, "Ct_E(0)"), QStringLiteral("3"));
        TeclearEn(*p.f, "Ct_E(0)", "4");
        p.cajas.Responder(true);
        p.f->reject();
        p.cajas.Vistas();
        QCOMPARE(p.Fila("N_Parto") + p.Texto("SELECT N_Parto FROM T_Servicios") +
                     p.Texto("SELECT NumParto FROM T_CCVacas"),
                 std::string("444"));
    }

    // The record goes from under the sheet, or cannot be written: told, and what was typed stays until it is given up.
    void SinRegistro() {
        Hoja p;
        p.PonerCubricion(2026, 3);
        p.Abrir(2026, 3);
        TeclearEn(*p.f, "Ct_E(3)", "nota");
        p.sesion.conexion.Execute("DELETE FROM T_Cubriciones");
        p.cajas.Responder(false);
        p.f->reject();
        const auto cajas = p.cajas.Vistas();
        QCOMPARE(cajas.size(), 2);
        QCOMPARE(cajas[0].texto, QStringLiteral("Error en Cubriciones"));
        QVERIFY(cajas[0].tipo == TipoMensaje::Critico && p.f->isVisible());
        p.PonerCubricion(2026, 3);
        sqlite3_exec(p.sesion.conexion.Manejador(), "CREATE UNIQUE INDEX roto ON T_Servicios (Semental)",
                     nullptr, nullptr, nullptr);
        p.Poner("T_Servicios", {{"Id_Vaca", 9.0}, {"Semental", "Ares"}});
        p.Servicio("1/2/26", "Ares");
        QCOMPARE(p.cajas.Vistas().size(), 1);
        QCOMPARE(p.Fila("Controles"), std::string("-")); // the set and the record are one unit
        sqlite3_exec(p.sesion.conexion.Manejador(), "DROP INDEX roto", nullptr, nullptr, nullptr);
        p.f->reject(); // what could not be written goes with the next save
        QCOMPARE(p.Fila("Controles, TotalServicios") +
                     p.Texto("SELECT Semental FROM T_Servicios WHERE Id_Vaca = 1200001"),
                 std::string("nota|1Ares"));
    }

    void FechasOfrecidas() {
        Hoja p;
        p.PonerCubricion(2026, 3, {{"Fecha_Parto", "01/02/2026"}});
        p.Poner("T_IPR", {{"Id_Ganadero", 12.0}, {"AñoNatural", 2026}, {"IPRPrimNov", "10/04/26"}});
        p.Abrir(2026, 3);
        Control<QAbstractButton>(*p.f, "IconoBusDato(1)")->click();
        auto* lista = Control<QTableWidget>(*p.f, "GridFechaIPR");
        QCOMPARE(lista->item(1, 0)->text() + lista->item(1, 1)->text(),
                 QStringLiteral("Fecha Parto+60d02/04/26"));
        lista->setCurrentCell(2, 0);
        QTest::keyClick(lista, Qt::Key_Return);
        QVERIFY(!lista->isVisible());
        QCOMPARE(En(*p.f, "Ct_FechaIPR") + En(*p.f, "Ct_E(19)"),
                 QStringLiteral("10/04/26No F.IPR")); // worked out when it is left
        Control<QLineEdit>(*p.f, "Ct_E(3)")->setFocus();
        QCOMPARE(En(*p.f, "Ct_E(19)"), QStringLiteral("226"));
    }

    // Let go on the frame the panel stands where it always does, on the sheet where it was dragged to.
    void PanelMovible() {
        Hoja p;
        p.PonerCubricion(2026, 3);
        p.Abrir(2026, 3);
        Control<QAbstractButton>(*p.f, "IconoNav(1)")->click();
        auto* panel = Control<QFrame>(*p.f, "FrmOpciones(2)");
        QMimeData datos;
        datos.setData(QLatin1String(Principal::TipoDePanel()), {});
        QDragEnterEvent entra(QPoint(200, 150), Qt::MoveAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(p.f.get(), &entra);
        QVERIFY(entra.isAccepted());
        QDropEvent suelta(QPointF(200, 150), Qt::MoveAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(p.f.get(), &suelta);
        QCOMPARE(panel->pos(), panel->parentWidget()->mapFrom(p.f.get(), QPoint(200, 150)));
        QVERIFY(panel->width() >= 529 && panel->height() >= 369);
    }
};

PRUEBA(PruebaCubriciones)
#include "PruebaCubriciones.moc"
