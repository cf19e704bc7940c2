#include "PuestoDeCiclos.h"

#include "reproduction/AltaDeCiclo.h"
#include "reproduction/Cebo.h"
#include "reproduction/FichaIPR.h"
#include "reproduction/Partos.h"

using namespace prueba;

namespace {

struct Hoja : PuestoDeCiclos {
    std::unique_ptr<Partos> f;

    void Abrir(int año, int parto) {
        f = std::make_unique<Partos>(marco, vaca, Ciclo(año, parto));
        QVERIFY(f->CargarParto());
        Mostrar(*f);
    }
    void Pestaña(int i) { Control<QTabWidget>(*f, "TabGeneral")->setCurrentIndex(i); }
    void Aceptar() { Control<QAbstractButton>(*f, "B_Aceptar")->click(); }
    std::string Filas(const char* columnas) {
        return Texto("SELECT "s + columnas + " FROM T_Partos WHERE Id_Vaca = 1200001 ORDER BY Id_Parto");
    }
};

} // namespace

// The sheet of a calving and its calves, the fattening record, the quick additions and the farm's start of reproduction.
class PruebaPartos : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void NadaCambia() {
        Hoja p;
        p.PonerParto(2026, 3, 1,
                     "Fecha_Parto=01/02/1899, Gemelar=no, Sexo=macho, PesoNac=0, EdadDestete=0, GDestete=0, "
                     "Peso=210.75, PesoDestete=1, CuartosPerdidos=2, TratSecado=x, Semental=Toro d'L'Otero");
        p.PonerParto(2026, 3, 2, "Fecha_Parto=01/02/1899, CuartosPerdidos=1");
        const auto todo = [&] {
            Recordset rs(p.sesion.conexion, "SELECT * FROM T_Partos ORDER BY Id_Parto");
            std::vector<Valor> valores;
            for (; !rs.Eof(); rs.Siguiente())
                for (int i = 0; i < rs.Campos(); ++i)
                    if (rs.NombreCampo(i) != "DatosCompletos" && rs.NombreCampo(i) != "Gemelar")
                        valores.push_back(rs[i].Leer());
            return valores;
        };
        const auto antes = todo();
        p.Abrir(2026, 3);
        QCOMPARE(En(*p.f, "Ct_T1(1)") + En(*p.f, "Ct_T1(6)") + En(*p.f, "Ct_T1(7)"),
                 QString()); // stored 0 shows as nothing
        QCOMPARE(En(*p.f, "Ct_T1(8)") + En(*p.f, "Ct_T1(29)"),
                 u"21"_s); // a load mirrors nothing
        p.Aceptar();
        QVERIFY(todo() == antes);
        QCOMPARE(p.Filas("Gemelar, DatosCompletos"),
                 "no|0/No|0"s); // the calving's page goes to both rows
    }

    void FechaObligada() {
        Hoja p;
        p.PonerParto(2026, 3, 1);
        p.Abrir(2026, 3);
        TeclearEn(*p.f, "Ct_G(2)", "31/2/26");
        p.Aceptar();
        QCOMPARE(p.Caja(), u"Debe indicar la fecha de parto"_s);
        QVERIFY(p.f->isVisible());
        p.cajas.Responder(true); // Descartar
        p.f->reject();
        p.cajas.Vistas();
        QVERIFY(!p.f->isVisible());
    }

    void Mellizos() {
        Hoja p;
        p.PonerParto(2026, 3, 1, "Fecha_Parto=01/02/2026");
        p.Abrir(2026, 3);
        p.Pestaña(1);
        TeclearEn(*p.f, "Ct_T1(20)", "S1");
        p.Pestaña(0);
        Escoger(*p.f, "Cd_G(2)", Qt::Key_2); // what was typed is saved before the second row comes
        QCOMPARE(p.Filas("Gemelar, RegSaneam"), "2 Machos|S1/2 Machos|-"s);
        auto* tab = Control<QTabWidget>(*p.f, "TabGeneral");
        QCOMPARE(tab->tabText(1) + tab->tabText(2), u" Ficha - Ternero 1 Ternero 2"_s);
        p.Pestaña(2);
        TeclearEn(*p.f, "Ct_T1(29)", "1"); // one value of the calving
        QCOMPARE(En(*p.f, "Ct_T1(8)"), u"1"_s);
        p.Aceptar();
        QCOMPARE(p.Filas("CuartosPerdidos, Fecha_Parto"), "1|01/02/26/1|01/02/26"s);
        p.Abrir(2026, 3);
        for (const bool si : {false, true}) {
            p.Pestaña(0);
            p.cajas.Responder(si);
            Escoger(*p.f, "Cd_G(2)", Qt::Key_N);
            QCOMPARE(p.Caja(), u"Esta operación eliminará los datos del 2º Ternero, Desea continuar?"_s);
            QCOMPARE(Control<QComboBox>(*p.f, "Cd_G(2)")->currentText(), si ? u"No"_s : u"2 Machos"_s);
        }
        QCOMPARE(p.Filas("Gemelar"), "No"s);
        QVERIFY(!Control<QTabWidget>(*p.f, "TabGeneral")->isTabVisible(2));
        p.Aceptar();
    }

    // Figures follow what is typed, are marked when the calving gets another date, and come anew by one key.
    void Destete() {
        Hoja p;
        p.PonerParto(2026, 3, 1, "Fecha_Parto=01/01/2026, PesoNac=40");
        p.Abrir(2026, 3);
        p.Pestaña(1);
        TeclearEn(*p.f, {{"Ct_T1(9)", "30/6/26"}, {"Ct_T1(14)", "30/6/26"}, {"Ct_T1(15)", "220.4"}});
        const auto figuras = [&] {
            return En(*p.f, "Ct_T1(6)") + u' ' + En(*p.f, "Ct_T1(10)") + u' ' + En(*p.f, "Ct_T1(7)");
        };
        QCOMPARE(figuras(), u"180 220 1000"_s);
        QVERIFY(Control<QAbstractButton>(*p.f, "B_Recalcular")->isHidden());
        p.Pestaña(0);
        TeclearEn(*p.f, "Ct_G(2)", "11/1/26");
        Control<QLineEdit>(*p.f, "Ct_G(0)")->setFocus();
        QCOMPARE(figuras(), u"180 220 1000"_s);
        QVERIFY(!Control<QAbstractButton>(*p.f, "B_Recalcular")->isHidden());
        QTest::keyClick(p.f.get(), Qt::Key_F9);
        QCOMPARE(figuras(), u"170 220 1059"_s);
        p.Aceptar();
        QCOMPARE(p.Filas("Peso, PesoDestete, EdadDestete, GDestete"), "220,4|220|170|1059"s);
    }

    // What cannot be is remarked upon, told beside the fields, and stored all the same.
    void Reparos() {
        Hoja p;
        p.PonerParto(2026, 3, 1, "Fecha_Parto=01/12/2026, PesoNac=400");
        p.Abrir(2026, 3);
        const auto pie = [&](int pagina) {
            return Control<QTabWidget>(*p.f, "TabGeneral")
                ->widget(pagina)
                ->findChild<QLabel*>(u"Reparos"_s)
                ->text();
        };
        QVERIFY(pie(0).endsWith(u"«01/12/26»: La fecha está por llegar"_s));
        QVERIFY(pie(1).contains(u"«400»: Peso al nacer de 400 kg"_s));
        TeclearEn(*p.f, {{"Ct_G(2)", "1/1/26"}, {"Ct_G(0)", "0"}});
        Control<QLineEdit>(*p.f, "Ct_G(1)")->setFocus();
        QVERIFY(pie(0).contains(u"«0»: Un parto nº 0 se borra"_s) && !pie(0).contains(u"por llegar"_s));
        p.Pestaña(1);
        TeclearEn(*p.f, {{"Ct_T1(1)", "40"}, {"Ct_T1(9)", "15/1/26"}});
        Control<QLineEdit>(*p.f, "Ct_T1(20)")->setFocus();
        QCOMPARE(pie(1), u"Edad Destete (días) «14»: Destete de 14 días: lo posible va de 60 a 400"_s);
        p.Aceptar();
        QCOMPARE(p.Filas("N_Parto, EdadDestete"), "0|14"s);
    }

    void Cebo() {
        Hoja p;
        p.PonerParto(2026, 3, 1, "Fecha_Parto=01/01/2026, Sexo=Macho");
        p.PonerParto(2026, 3, 1, "Fecha_Parto=05/05/2026",
                     9); // another cow's calving of the same number
        p.Abrir(2026, 3);
        p.Pestaña(1);
        auto* boton = Control<QAbstractButton>(*p.f, "B_FichaCebo");
        QVERIFY(!boton->isEnabled());
        auto* destino = Control<QComboBox>(*p.f, "Cd_T1(6)");
        destino->setFocus();
        for (int i = 0; i < 5; ++i)
            QTest::keyClick(destino, Qt::Key_Down); // passing over is no deciding
        QCOMPARE(destino->currentText().toStdString() + p.Texto("SELECT Id_Cebo FROM T_Cebo"), "Cebo"s);
        QTest::keyClick(destino, Qt::Key_Tab);
        QVERIFY(boton->isEnabled());
        QUEDA(p, "Id_Cebo, Id_Vaca, Origen, FechaNac FROM T_Cebo", "1|1200001|Propio|01/01/26");
        p.sesion.conexion.Execute("UPDATE T_Cebo SET KgCanal = 250");
        Escoger(*p.f, "Cd_T1(6)", Qt::Key_T);
        QUEDA(p, "Id_Cebo FROM T_Cebo", "");
        Escoger(*p.f, "Cd_T1(6)", Qt::Key_C);
        QUEDA(p, "Id_Cebo, KgCanal FROM T_Cebo", "1|250");
        p.cajas.Responder(true); // given up: the destination, and the record with it
        p.f->reject();
        p.cajas.Vistas();
        QCOMPARE(p.Texto("SELECT Id_Cebo FROM T_Cebo") + p.Filas("Id_Cebo, DESTINOTERNERO"), "-|-"s);
        p.Abrir(2026, 3);
        p.Pestaña(1);
        Escoger(*p.f, "Cd_T1(6)", Qt::Key_C);
        TeclearEn(*p.f, "Ct_T1(9)", "30/6/26");
        Control<QLineEdit>(*p.f, "Ct_T1(20)")->setFocus();
        QCOMPARE(Control<QLabel>(*p.f, "AvisoCebo")->text(),
                 u"Al guardar cambiará en la ficha de cebo: Fecha de entrada"_s);
        p.Aceptar();
        QUEDA(p, "FechaCebo FROM T_Cebo", "30/06/26");
        QUEDA(p, "Id_Cebo FROM T_Partos WHERE Id_Vaca = 9", "-");
    }

    // The fattening record: dates and numbers that fail keep the column, own calves carry their values back to the calving.
    void FichaDeCebo() {
        Hoja p;
        p.PonerParto(2026, 3, 1, "Fecha_Parto=01/01/2026, FechaDestete=30/06/2026, Id_Cebo=1");
        p.PonerParto(2024, 1, 2, "Fecha_Parto=01/01/2024, Id_Cebo=1"); // a stale link
        p.Poner("T_Cebo", "Id_Ganadero=12, Id_Cebo=1, Id_Vaca=1200001, Id_Parto=1, AñoRef=2026, "
                          "Origen=Propio, FechaNac=01/01/2026, KgCanal=250.5");
        pastorix::Cebo f(p.sesion, 12, 1.0, {});
        Mostrar(f);
        const auto guardar = [&] { Control<QAbstractButton>(f, "B_Guardar")->click(); };
        TeclearEn(f, {{"CT_Estandar(2)", "1/7/26"}, {"CT_Estandar(5)", "1/12/26"}});
        QCOMPARE(En(f, "CT_Estandar(6)") + u' ' + En(f, "CT_Estandar(7)"), u"334 153"_s);
        TeclearEn(f, "CT_Estandar(9)", "");
        QVERIFY(Control<QLabel>(f, "AvisoParto")->text().contains(u"Fecha de destete"_s));
        guardar();
        QUEDA(p, "FechaCebo, EdadSacrif, KgCanal FROM T_Cebo", "01/07/26|334|250,5");
        QCOMPARE(En(f, "CT_Estandar(9)"), u"250,5"_s);
        QVERIFY(Control<QLabel>(f, "Estado")->text().endsWith(u"queda como estaba: Kg Canal"_s));
        QCOMPARE(p.Filas("FechaDestete, Fecha_Parto"), "01/07/26|01/01/26/-|01/01/24"s);
        // a birth date of its own stays its own
        Control<QCheckBox>(f, "Ch_Cambiado")->click();
        TeclearEn(f, "CT_Estandar(1)", "5/1/26");
        guardar();
        QCOMPARE(p.Texto("SELECT Cambiado, FechaNac FROM T_Cebo") + p.Filas("Fecha_Parto"),
                 "-1|05/01/2601/01/26/01/01/24"s);
        Control<QAbstractButton>(f, "B_Añadir")->click();
        guardar();
        QCOMPARE(p.Caja(), u"Debe indicar el año de referencia"_s);
        TeclearEn(f, "CT_Estandar(4)", "2026");
        guardar();
        QUEDA(p, "Id_Cebo FROM T_Cebo ORDER BY Id_Cebo", "1/2");
    }

    void AltaRapida_data() {
        Caso("mating", false, "Indique el Año de Referencia para la Cubrición",
             "Indique el el Nº de Parto para el año 2026");
        Caso("calving", true, "Indique el Año de Referencia para el Parto",
             "Indique el Nº de Parto del año 2026");
    }
    void AltaRapida() {
        const auto [parto, sinAño, sinParto] = DelCaso<bool, QString, QString>();
        PuestoDeCiclos p;
        p.PonerCubricion(2025, 2);
        p.PonerParto(2025, 2, 1);
        AltaDeCiclo f(p.sesion.conexion, parto ? kAltaParto : kAltaCubricion, 1200001,
                      {{}, {}, F("1/2/26"), "Ares", ""}, nullptr);
        Mostrar(f);
        const auto aceptar = [&] { Control<QAbstractButton>(f, "B_Aceptar")->click(); };
        TeclearEn(f, "CT_Estandar(0)", "202");
        aceptar();
        QCOMPARE(p.Caja(), sinAño);
        TeclearEn(f, "CT_Estandar(1)", "3");
        TeclearEn(f, "CT_Estandar(0)", "2026"); // the two go together
        aceptar();
        QCOMPARE(p.Caja(), sinParto);
        auto* grid = f.findChild<QTableWidget*>();
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {},
                          grid->visualItemRect(grid->item(0, 0)).center());
        QCOMPARE(En(f, "CT_Estandar(0)") + En(f, "CT_Estandar(1)"), u"20252"_s);
        TeclearEn(f, {{"CT_Estandar(0)", "2026"}, {"CT_Estandar(1)", "3"}});
        QTest::keyClick(f.focusWidget(), Qt::Key_Return);
        QCOMPARE(f.result(), int(QDialog::Accepted));
        QCOMPARE(p.Texto("SELECT Año_Ref, N_Parto, Fecha_Parto FROM " +
                         std::string(parto ? "T_Partos" : "T_Cubriciones") + " ORDER BY Año_Ref"),
                 "2025|2|-/2026|3|01/02/26"s);
    }

    // One row of the farm: its own columns, and no other's.
    void FichaDeIPR() {
        PuestoDeCiclos p;
        p.Poner("T_IPR", "Id_Ganadero=12, AñoNatural=2020, IPRPrimNov=01/04/20, PrimVac=01/03/20");
        AlaVista<FichaIPR> f(p.sesion);
        Control<QAbstractButton>(f, "B_Aceptar")->click();
        QCOMPARE(p.Caja(), u"Debe Seleccionar el Ganadero al que pertenecen los datos"_s);
        TeclearEn(f, "CT_Estandar(0)", "99");
        QTest::keyClick(f.focusWidget(), Qt::Key_Return);
        QCOMPARE(p.Caja(), u"Código de Ganadero No Encontrado"_s);
        TeclearEn(f, "CT_Estandar(0)", "12");
        QTest::keyClick(f.focusWidget(), Qt::Key_Return);
        QCOMPARE(En(f, "CT_Estandar(1)") + En(f, "CT_Estandar(2)"), u"La Nora01/03/20"_s);
        TeclearEn(f, {{"CT_Estandar(2)", ""}, {"CT_Estandar(5)", "1/11/20"}});
        Control<QAbstractButton>(f, "B_Aceptar")->click();
        QUEDA(p, "AñoNatural, IPRPrimNov, PrimVac, InvNov FROM T_IPR", "2020|01/04/20|-|1/11/20");
    }

    // A key that accepts from the code does not write what is on the sheet into a farmer whose values are not.
    void IPRDesdeElCodigo() {
        PuestoDeCiclos p;
        p.Poner("T_IPR", "Id_Ganadero=12, PrimVac=01/03/20, Blanco=nota");
        AlaVista<FichaIPR> f(p.sesion);
        TeclearEn(f, "CT_Estandar(0)", "12");
        Control<QAbstractButton>(f, "B_Aceptar")->click();
        QUEDA(p, "Id_Ganadero, PrimVac, Blanco FROM T_IPR", "12|01/03/20|nota");
        AlaVista<FichaIPR> otra(p.sesion);
        TeclearEn(otra, "CT_Estandar(0)", "0");
        Control<QAbstractButton>(otra, "B_Aceptar")->click();
        QCOMPARE(p.Caja(), u"Debe Seleccionar el Ganadero al que pertenecen los datos"_s);
    }

    // A refused "No" that is chosen again asks again, and the third row of a calving stays as it is when the second goes.
    void TresFilas() {
        Hoja p;
        for (const double id : {1.0, 2.0, 3.0})
            p.PonerParto(
                2026, 3, id,
                ("Fecha_Parto=01/02/2026, Gemelar=2 Machos, RegSaneam=" + std::to_string(int(id))).c_str());
        p.Abrir(2026, 3);
        auto* gemelar = Control<QComboBox>(*p.f, "Cd_G(2)");
        gemelar->setFocus();
        for (const bool si : {false, true}) {
            p.cajas.Responder(si);
            gemelar->setCurrentText(u"No"_s);
            Q_EMIT gemelar->activated(gemelar->currentIndex());
            QCOMPARE(p.cajas.Vistas().size(), 1);
        }
        p.Aceptar();
        QCOMPARE(p.Filas("Id_Parto, RegSaneam, Gemelar"), "1|1|No/3|3|2 Machos"s);
    }

    // A parity that another calving has would make twins of the two.
    void ParidadOcupada() {
        Hoja p;
        p.PonerParto(2026, 3, 1, "Fecha_Parto=01/02/2026");
        p.PonerParto(2026, 4, 2, "Fecha_Parto=01/11/2026");
        p.Abrir(2026, 4);
        TeclearEn(*p.f, "Ct_G(0)", "3");
        p.cajas.Responder(false);
        p.Aceptar();
        QVERIFY(p.Caja().startsWith(u"La vaca ya tiene otro parto nº 3 del año 2026"_s));
        QCOMPARE(p.Filas("N_Parto, Fecha_Parto"), "3|01/02/26/4|01/11/26"s);
    }

    // A calf goes to fattening under the year that its calving has come to.
    void CeboDelPartoMovido() {
        Hoja p;
        p.PonerParto(2026, 3, 1, "Fecha_Parto=01/01/2026");
        p.Abrir(2026, 3);
        TeclearEn(*p.f, "Ct_G(1)", "2025");
        Control<QAbstractButton>(*p.f, "B_Siguiente")->click(); // there is none: saved, and stays
        p.Pestaña(1);
        Escoger(*p.f, "Cd_T1(6)", Qt::Key_C);
        QCOMPARE(p.Texto("SELECT AñoRef FROM T_Cebo") + p.Filas("Año_Ref, Id_Cebo"), "20252025|1"s);
        p.Aceptar();
    }
};

PRUEBA(PruebaPartos)
#include "PruebaPartos.moc"
