#include "PuestoDeCiclos.h"

#include "reproduction/Cubriciones.h"

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
        return Texto("SELECT "s + columnas + " FROM T_Cubriciones ORDER BY Año_Ref, N_Parto");
    }
    // A service entered by keys from the grid: Insert, then the fields in their order.
    void Servicio(const char* fecha, const char* toro = "", const char* tipo = "") {
        auto* grid = Control<QTableWidget>(*f, "GridServicios");
        grid->setFocus();
        QTest::keyClick(grid, Qt::Key_Insert);
        TeclearEn(*Control<QLineEdit>(*f, "Ct_S(1)"), fecha);
        TeclearEn(*Control<QLineEdit>(*f, "Ct_S(4)"), toro);
        if (*tipo)
            QTest::keyClicks(Control<QComboBox>(*f, "Cd_S(0)"), Q(tipo));
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
        p.PonerCubricion(2026, 3,
                         "Fecha_Parto=01/02/1899, FechaIPR=31/12/2105, Estado=preñada, Progesterona=l'1, "
                         "Num_Abortos=2, BVD=1, CausaPrincipal=5, NombreCausaPpal=BVD, "
                         "DescCausaPpal=escrita a mano, TotalServicios=7, DemoraPreñez=33");
        Crudo(p.sesion.conexion,
              "UPDATE T_Cubriciones SET FinicioP = 'pronto', Controles = printf('%.*c', 255, 'x')");
        const char* const columnas =
            "Fecha_Parto, FechaIPR, FinicioP, Controles, Estado, Progesterona, Num_Abortos, BVD, "
            "CausaPrincipal, NombreCausaPpal, DescCausaPpal, TotalServicios";
        const auto valores = [&] {
            Recordset rs(p.sesion.conexion, "SELECT "s + columnas + " FROM T_Cubriciones");
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
                 "-|0"s); // the one is never kept, flags are 0 or 1
    }

    void ServiciosPorTeclado() {
        Hoja p;
        p.PonerCubricion(2026, 3, "Fecha_Parto=01/03/2026, FechaIPR=01/05/2026, IEPc=5");
        p.Abrir(2026, 3);
        QCOMPARE(En(*p.f, "Ct_E(19)"), u"205"_s); // to today
        p.Servicio("12/6/26", "Ares-C", "1");
        const char* const sql = "SELECT N_Servicio, Fecha_Servicio, Semental, TipoServicio, N_Inseminacion "
                                "FROM T_Servicios ORDER BY N_Servicio";
        QCOMPARE(p.Texto(sql), "1|12/06/26|Ares-C|1 InsCelo|1"s);
        QCOMPARE(En(*p.f, "Ct_E(19)") + u' ' + En(*p.f, "Ct_E(6)"), u"42 04/07/26"_s);
        QCOMPARE(En(*p.f, "Ct_E(28)") + En(*p.f, "Ct_E(29)"), u"11"_s);
        // the save came before the reading: the row holds what the sheet showed then
        QCOMPARE(p.Fila("IPR_CP, TotalServicios"), "205|1"s);
        QCOMPARE(p.f->focusWidget()->objectName(), u"GridServicios"_s);
        Escoger(*p.f, "Cd_E(3)", Qt::Key_P);
        QCOMPARE(En(*p.f, "Ct_E(8)"), u"25/03/27"_s);
        p.f->reject();
        QCOMPARE(p.Fila("IPR_CP, Estado, FechaEspParto, IEPc"), "42|Preñada|25/03/27|389"s);
        // a fifth takes the place of the fourth; what is no date goes in as typed
        p.Abrir(2026, 3);
        for (const char* fecha : {"1/7/26", "1/8/26", "1/9/26", "31/9/26"})
            p.Servicio(fecha);
        QUEDA(p, "N_Servicio, Fecha_Servicio FROM T_Servicios ORDER BY N_Servicio",
              "1|12/06/26/2|01/07/26/3|01/08/26/5|31/9/26");
        QCOMPARE(En(*p.f, "Ct_E(28)") + u'|' + En(*p.f, "Ct_E(6)"), u"5|"_s);
        QCOMPARE(En(*p.f, "Ct_E(19)"), u"205"_s); // the last line has no date
        auto* grid = Control<QTableWidget>(*p.f, "GridServicios");
        grid->setCurrentCell(3, 0);
        p.cajas.Responder(true);
        QTest::keyClick(grid, Qt::Key_Delete);
        QCOMPARE(p.cajas.Tomar(), QStringList{u"Confirme Eliminar|Eliminar Servicio Nº: 5"_s});
        QCOMPARE(p.Fila("TotalServicios"), "3"s);
    }

    // More services than lines: said before anything is typed.
    void MasServiciosQueLineas() {
        Hoja p;
        p.PonerCubricion(2026, 3);
        for (int n = 1; n <= 6; ++n)
            p.PonerServicio(n, "");
        p.Abrir(2026, 3);
        const auto* aviso = Control<QLabel>(*p.f, "AvisoServicios");
        QVERIFY(!aviso->isHidden() && aviso->text().contains(u"4, 5"_s));
        p.f->reject(); // closing rewrites nothing
        QUEDA(p, "N_Servicio FROM T_Servicios ORDER BY N_Servicio", "1/2/3/4/5/6");
    }

    // The real interval goes before the expected one by a load alone; the date of the calving saves and loads when it is left.
    void IntervaloReal() {
        Hoja p;
        p.PonerCubricion(2026, 3, "Fecha_Parto=01/01/2026, FechaRealParto=01/01/2027");
        p.PonerServicio(1, "01/04/2026");
        p.Abrir(2026, 3);
        QCOMPARE(En(*p.f, "Ct_E(17)") + u' ' + En(*p.f, "Ct_E(22)"), u"365 365"_s);
        TeclearEn(*p.f, "Ct_E(9)", "2/1/27");
        Control<QLineEdit>(*p.f, "Ct_E(3)")->setFocus();
        QCOMPARE(En(*p.f, "Ct_E(17)") + u' ' + En(*p.f, "Ct_E(22)"), u"365 376"_s);
        QTest::keyClick(Control<QTableWidget>(*p.f, "GridServicios"), Qt::Key_Insert);
        TeclearEn(*Control<QLineEdit>(*p.f, "Ct_S(1)"), "5/5/26"); // a service half entered outlives the load
        TeclearEn(*p.f, "Ct_E(1)", "2/1/26");
        Control<QLineEdit>(*p.f, "Ct_E(3)")->setFocus();
        QCOMPARE(En(*p.f, "Ct_E(17)") + u' ' + En(*p.f, "Ct_E(22)"), u"365 365"_s);
        QCOMPARE(p.Fila("Fecha_Parto, FechaRealParto"), "02/01/26|02/01/27"s);
        QTest::keyClick(Control<QLineEdit>(*p.f, "Ct_S(1)"), Qt::Key_Return);
        QUEDA(p, "N_Servicio, Fecha_Servicio FROM T_Servicios ORDER BY N_Servicio", "1|01/04/26/2|05/05/26");
    }

    // Services and calvings that cannot be are told above the grid and below the sheet.
    void Reparos() {
        Hoja p;
        p.vaca.fechaDesecho = F("1/6/26");
        p.PonerCubricion(2026, 3, "Fecha_Parto=01/02/2026, FechaRealParto=01/10/2026");
        for (const auto& [n, fecha] : {std::pair{1, "01/01/2026"}, {2, "01/03/2026"}, {3, "02/06/2026"}})
            p.PonerServicio(n, fecha);
        p.Abrir(2026, 3);
        QCOMPARE(Control<QLabel>(*p.f, "AvisoServicios")->text(),
                 u"Nº 1: El servicio es anterior al parto que abrió el ciclo. "
                 "Nº 3: El servicio es posterior a la baja de la vaca"_s);
        const auto* pie = Control<QLabel>(*p.f, "Reparos");
        QVERIFY(pie->text().contains(u"Gestación de 121 días"_s));
        TeclearEn(*p.f, "Ct_E(9)", "1/3/27");
        Control<QLineEdit>(*p.f, "Ct_E(3)")->setFocus();
        QVERIFY(pie->text().endsWith(u"La fecha está por llegar"_s));
        TeclearEn(*p.f, "Ct_E(9)", "");
        Control<QLineEdit>(*p.f, "Ct_E(3)")->setFocus();
        QVERIFY(pie->text().isEmpty());
    }

    // The state acts when it is decided on, not while the arrows pass it.
    void EstadoAlDecidir() {
        Hoja p;
        p.PonerCubricion(2026, 3);
        p.PonerServicio(1, "01/04/2026");
        p.Abrir(2026, 3);
        auto* estado = Control<QComboBox>(*p.f, "Cd_E(3)");
        estado->setFocus();
        QTest::keyClick(estado, Qt::Key_Down);
        QCOMPARE(estado->currentText() + En(*p.f, "Ct_E(8)"), u"Preñada"_s);
        QTest::keyClick(estado, Qt::Key_Tab);
        QCOMPARE(En(*p.f, "Ct_E(8)"), u"12/01/27"_s);
        Escoger(*p.f, "Cd_E(7)", Qt::Key_N);
        QVERIFY(Control<QCheckBox>(*p.f, "Ch_E(13)")->isChecked());
        Escoger(*p.f, "Cd_E(7)", Qt::Key_S);
        QVERIFY(!Control<QCheckBox>(*p.f, "Ch_E(13)")->isChecked());
        // Escape leaves the sheet with the focus where it is: what stands there counts
        estado->setFocus();
        QTest::keyClick(estado, Qt::Key_Up);
        QCOMPARE(En(*p.f, "Ct_E(8)"), u"12/01/27"_s);
        QTest::keyClick(estado, Qt::Key_Escape);
        QVERIFY(!p.f->isVisible());
        QCOMPARE(p.Fila("Estado, FechaEspParto"), "-|-"s);
    }

    // One cause is principal: named by the pop-up of the context key or by the button, its description built once.
    void CausaPrincipal() {
        Hoja p;
        p.PonerCubricion(2026, 3, "N_ME=2");
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
        QCOMPARE(En(*p.f, "Ct_E(23)"), u"MortEmbrion 2"_s);
        QCOMPARE(causa->palette().color(QPalette::WindowText), QColor(255, 25, 25));
        TeclearEn(*p.f, "Ct_E(16)", "3"); // the description is a copy
        QCOMPARE(En(*p.f, "Ct_E(23)"), u"MortEmbrion 2"_s);
        p.f->reject();
        QCOMPARE(p.Fila("CausaPrincipal, NombreCausaPpal, DescCausaPpal, MortEmb, N_ME"),
                 "16|MortEmbrion|MortEmbrion 2|1|3"s);
        // the free slot has no column of its own
        p.Abrir(2026, 3);
        Control<QAbstractButton>(*p.f, "IconoNav(1)")->click();
        Control<QCheckBox>(*p.f, "Ch_E(24)")->setFocus();
        Control<QAbstractButton>(*p.f, "B_CausaPrincipal")->click();
        p.f->reject();
        QCOMPARE(p.Fila("CausaPrincipal, NombreCausaPpal, DescCausaPpal"), "24|Libre|Libre "s);
        p.Abrir(2026, 3);
        QVERIFY(!Control<QCheckBox>(*p.f, "Ch_E(24)")->isChecked());
    }

    // By parity, saving on the way; at the end the sheet stays.
    void Cadena() {
        Hoja p;
        p.PonerCubricion(2024, 2, "Controles=dos");
        p.PonerCubricion(2026, 3);
        p.Abrir(2026, 3);
        TeclearEn(*p.f, "Ct_E(3)", "tres");
        Control<QAbstractButton>(*p.f, "B_Siguiente")->click();
        QCOMPARE(p.Fila("Controles"), "dos/tres"s);
        QCOMPARE(En(*p.f, "Ct_E(0)"), u"3"_s);
        QTest::keyClick(p.f->focusWidget(), Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(En(*p.f, "Ct_E(3)"), u"dos"_s);
        QCOMPARE(*p.f->Ciclo().añoRef, 2024);
    }

    // An overtyped parity takes along what hangs on the record, or is taken back.
    void OtraParidad() {
        Hoja p;
        p.PonerCubricion(2026, 3);
        p.Poner("T_Servicios", "Id_Vaca=1200001, Año_Ref=2026, N_Parto=3, N_Servicio=1");
        p.Poner("T_CCVacas", "Id_Vaca=1200001, AñoRef=2026, NumParto=3");
        p.Abrir(2026, 3);
        TeclearEn(*p.f, "Ct_E(0)", "4");
        p.cajas.Responder(false);
        Control<QAbstractButton>(*p.f, "IconoNav(1)")->click();
        QVERIFY(p.Caja().contains(u"pasa de «3» a «4»"_s));
        QCOMPARE(En(*p.f, "Ct_E(0)"), u"3"_s);
        TeclearEn(*p.f, "Ct_E(0)", "4");
        p.cajas.Responder(true);
        p.f->reject();
        p.cajas.Vistas();
        QCOMPARE(p.Fila("N_Parto") + p.Texto("SELECT N_Parto FROM T_Servicios") +
                     p.Texto("SELECT NumParto FROM T_CCVacas"),
                 "444"s);
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
        QCOMPARE(cajas[0].texto, u"Error en Cubriciones"_s);
        QVERIFY(cajas[0].tipo == TipoMensaje::Critico && p.f->isVisible());
        p.PonerCubricion(2026, 3);
        Crudo(p.sesion.conexion, "CREATE UNIQUE INDEX roto ON T_Servicios (Semental)");
        p.Poner("T_Servicios", "Id_Vaca=9, Semental=Ares");
        p.Servicio("1/2/26", "Ares");
        QCOMPARE(p.cajas.Vistas().size(), 1);
        QCOMPARE(p.Fila("Controles"), "-"s); // the set and the record are one unit
        Crudo(p.sesion.conexion, "DROP INDEX roto");
        p.f->reject(); // what could not be written goes with the next save
        QCOMPARE(p.Fila("Controles, TotalServicios") +
                     p.Texto("SELECT Semental FROM T_Servicios WHERE Id_Vaca = 1200001"),
                 "nota|1Ares"s);
    }

    void FechasOfrecidas() {
        Hoja p;
        p.PonerCubricion(2026, 3, "Fecha_Parto=01/02/2026");
        p.Poner("T_IPR", "Id_Ganadero=12, AñoNatural=2026, IPRPrimNov=10/04/26");
        p.Abrir(2026, 3);
        Control<QAbstractButton>(*p.f, "IconoBusDato(1)")->click();
        auto* lista = Control<QTableWidget>(*p.f, "GridFechaIPR");
        QCOMPARE(lista->item(1, 0)->text() + lista->item(1, 1)->text(), u"Fecha Parto+60d02/04/26"_s);
        lista->setCurrentCell(2, 0);
        QTest::keyClick(lista, Qt::Key_Return);
        QVERIFY(!lista->isVisible());
        QCOMPARE(En(*p.f, "Ct_FechaIPR") + En(*p.f, "Ct_E(19)"),
                 u"10/04/26No F.IPR"_s); // worked out when it is left
        Control<QLineEdit>(*p.f, "Ct_E(3)")->setFocus();
        QCOMPARE(En(*p.f, "Ct_E(19)"), u"226"_s);
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

    // Nothing of one record goes into the next: neither the free slot, nor the sheet when the next cannot be read.
    void NadaPasaAlSiguiente() {
        Hoja p;
        p.PonerCubricion(2025, 2);
        p.PonerCubricion(2026, 3);
        p.Abrir(2025, 2);
        Control<QAbstractButton>(*p.f, "IconoNav(1)")->click();
        Control<QCheckBox>(*p.f, "Ch_E(24)")->click();
        TeclearEn(*p.f, "Ct_E(26)", "mía");
        Control<QAbstractButton>(*p.f, "B_Siguiente")->click();
        QVERIFY(!Control<QCheckBox>(*p.f, "Ch_E(24)")->isChecked());
        QCOMPARE(En(*p.f, "Ct_E(26)"), QString());
        Crudo(p.sesion.conexion, "ALTER TABLE T_Servicios RENAME TO Otra");
        Control<QAbstractButton>(*p.f, "B_Anterior")->click();
        QCOMPARE(p.cajas.Vistas().size(), 1);
        QVERIFY(!p.f->isVisible());
    }

    // A service typed without Insert gets its number all the same; without one it would be dropped.
    void ServicioSinInsert() {
        Hoja p;
        p.PonerCubricion(2026, 3);
        p.Abrir(2026, 3);
        TeclearEn(*p.f, "Ct_S(1)", "12/6/26");
        QTest::keyClick(p.f->focusWidget(), Qt::Key_Return);
        QUEDA(p, "N_Servicio, Fecha_Servicio FROM T_Servicios", "1|12/06/26");
    }

    // Services are numbered within the cycle that the record has come to.
    void ServicioTrasOtraParidad() {
        Hoja p;
        p.PonerCubricion(2026, 3);
        p.Abrir(2026, 3);
        p.Servicio("1/6/26");
        TeclearEn(*p.f, "Ct_E(0)", "4");
        p.cajas.Responder(true);
        Control<QAbstractButton>(*p.f, "IconoNav(1)")->click();
        p.cajas.Vistas();
        Control<QAbstractButton>(*p.f, "IconoNav(0)")->click();
        p.Servicio("22/6/26");
        QUEDA(p, "N_Parto, N_Servicio FROM T_Servicios ORDER BY N_Servicio", "4|1/4|2");
    }
};

PRUEBA(PruebaCubriciones)
#include "PruebaCubriciones.moc"
