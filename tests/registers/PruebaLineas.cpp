#include "PuestoDeFichas.h"

#include "frame/ficha/CampoMemo.h"
#include "frame/ficha/LineasEditables.h"
#include "frame/ficha/RejillaHijos.h"
#include "frame/ficha/TiraNavegacion.h"

using namespace prueba;

namespace {

constexpr const char* kGrados[] = {"Bueno", "Aceptable"};
constexpr ColumnaLinea kColumnas[] = {{"AñoNatural", ClaseCampo::Numero},
                                      {"InicioPI", ClaseCampo::Fecha},
                                      {"AlimVacas", ClaseCampo::Texto, kGrados}};
constexpr AspectoColumna kAspectos[] = {{"Año", 6, "Ct(0)"}, {"Inicio", 10, "Ct(1)"}, {"Vacas", 10, "Cd(2)"}};
const DefinicionLineas kDefinicion = [] {
    DefinicionLineas d{"Grid", "Líneas", kColumnas, kAspectos};
    d.sinAño = "Debe indicar el año natual";
    d.repetido = "Ya existe una línea para el año natural ";
    d.eliminar = "Eliminar la línea para ";
    return d;
}();

QString Pintada(LineasEditables& l) {
    auto* t = l.findChild<QTableWidget*>(u"Grid"_s);
    QStringList filas;
    for (int f = 0; f < t->rowCount(); ++f)
        filas << t->item(f, 0)->text() + u'|' + t->item(f, 1)->text() + u'|' + t->item(f, 2)->text();
    return filas.join(u'/');
}

} // namespace

// Lines entered below their grid, and texts of several lines.
class PruebaLineas : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PorTeclado() {
        Cajas cajas;
        LineasEditables l(kDefinicion);
        QString quitada;
        l.alQuitar = [&](const Linea& q) { quitada = Q(q.celdas[0]); };
        Mostrar(l);
        QCOMPARE(Pintada(l), u"||"_s); // without data one empty line
        auto* grid = l.findChild<QTableWidget*>();
        auto* combo = l.findChild<QComboBox*>(u"Cd(2)"_s);
        const auto tecla = [](Qt::Key k) { QTest::keyClick(QApplication::focusWidget(), k); };
        const auto linea = [&](const char* año, const char* fecha) {
            TeclearEn(*l.findChild<QLineEdit*>(u"Ct(0)"_s), año);
            tecla(Qt::Key_Return);
            TeclearEn(*l.findChild<QLineEdit*>(u"Ct(1)"_s), fecha);
            tecla(Qt::Key_Return);
        };
        l.Mostrar({{{"2025", "", ""}, {}, {}}, {{"2026", "01/11/25", "Bueno"}, {}, {}}});

        // over a chosen line: its year may stay, but not become that of another
        grid->setFocus();
        grid->setCurrentCell(1, 0);
        QCOMPARE(combo->currentText(), u"Bueno"_s);
        tecla(Qt::Key_Return);
        combo->setCurrentIndex(2);
        combo->setFocus();
        tecla(Qt::Key_Return);
        QCOMPARE(Pintada(l), u"2025||/2026|01/11/25|Aceptable"_s);
        grid->setCurrentCell(0, 0);
        l.findChild<QLineEdit*>(u"Ct(0)"_s)->setText(u"2026"_s);
        l.Confirmar();
        QCOMPARE(cajas.Vistas().size(), 1);
        l.Abandonar();

        // a line being written is not given up for another one unasked
        l.findChild<QLineEdit*>(u"Ct(0)"_s)->setText(u"2030"_s);
        cajas.Responder(true);
        grid->setFocus();
        grid->setCurrentCell(1, 0);
        QCOMPARE(cajas.Vistas().size(), 1);
        QCOMPARE(Pintada(l), u"2025||/2026|01/11/25|Aceptable/2030||"_s);
        cajas.Responder(true);
        grid->setCurrentCell(1, 0);
        tecla(Qt::Key_Delete);
        QCOMPARE(cajas.Vistas().size(), 1);
        QCOMPARE(l.findChild<QLineEdit*>(u"Ct(0)"_s)->text(),
                 QString()); // not the line that came up
        tecla(Qt::Key_Insert);
        linea("2026", "1/11/25");
        combo->setCurrentIndex(2);
        tecla(Qt::Key_Return);
        QCOMPARE(Pintada(l), u"2025||/2026|01/11/25|Aceptable/2030||"_s);
        cajas.Responder(true);
        grid->setFocus();
        grid->setCurrentCell(2, 0);
        tecla(Qt::Key_Delete);
        QCOMPARE(cajas.Vistas().size(), 1);

        // nor for the removal of another one, which waits until it is in the list
        grid->setCurrentCell(0, 0);
        l.Abandonar();
        l.findChild<QLineEdit*>(u"Ct(0)"_s)->setText(u"2031"_s);
        cajas.Responder(true);
        tecla(Qt::Key_Delete);
        QCOMPARE(cajas.Vistas()[0].texto,
                 u"Hay una línea escrita que no está en la lista. ¿Desea ponerla?"_s);
        QCOMPARE(Pintada(l), u"2025||/2026|01/11/25|Aceptable/2031||"_s);
        cajas.Responder(true);
        grid->setFocus();
        grid->setCurrentCell(2, 0);
        tecla(Qt::Key_Delete);
        QCOMPARE(cajas.Vistas().size(), 1);

        cajas.Responder(false);
        cajas.Responder(true);
        for (int i = 0; i < 2; ++i) {
            grid->setCurrentCell(0, 0);
            grid->setFocus();
            tecla(Qt::Key_Delete);
        }
        cajas.Vistas();
        QCOMPARE(quitada, u"2025"_s);
        l.Abandonar();
        tecla(Qt::Key_Insert);
        linea("2040", "1/3/2205"); // of a century that two figures do not tell
        combo->setFocus();
        tecla(Qt::Key_Return);
        QVERIFY(Pintada(l).endsWith(u"/2040|01/03/2205|"_s));
        cajas.Responder(true);
        grid->setFocus();
        grid->setCurrentCell(1, 0);
        tecla(Qt::Key_Delete);
        cajas.Vistas();
        QCOMPARE(Pintada(l), u"2026|01/11/25|Aceptable"_s);
    }

    // What the fields cannot show or the lists do not hold survives an edit of its line.
    void NadaSePierde() {
        Base b;
        b.Poner("T_AlimentacionInvernal",
                "Id_Ganadero=1, AñoNatural=2024, InicioPI=1/3/2205, AlimVacas=Regular, AlimPI=Bueno");
        LineasEditables l(kDefinicion);
        const std::string otras[] = {"AlimPI"};
        Recordset rs(b.c, "Select * FROM T_AlimentacionInvernal");
        l.Mostrar(LeerLineas(rs, kColumnas, otras));
        auto* grid = l.findChild<QTableWidget*>();
        grid->setCurrentCell(0, 0);
        grid->cellClicked(0, 0);
        l.Confirmar();
        rs.Primero();
        rs.Delete();
        Recordset otro(b.c, "SELECT * FROM T_AlimentacionInvernal");
        otro.AddNew();
        otro["Id_Ganadero"] = 1.0;
        EscribirLinea(otro, l.Lineas()[0], kColumnas);
        otro.Update();
        Recordset vuelto(b.c, "SELECT * FROM T_AlimentacionInvernal");
        QCOMPARE(vuelto["InicioPI"].FechaValor(), std::optional(F("1/3/2205")));
        QCOMPARE(vuelto["AlimVacas"].Texto(), "Regular"s);
        QCOMPARE(vuelto["AlimPI"].Texto(), "Bueno"s);
        QVERIFY(vuelto["AlimNov"].Nulo());
    }

    void Memo() {
        CampoMemo memo;
        memo.Poner("uno\r\ndos\ntres");
        QCOMPARE(memo.Texto(), "uno\r\ndos\ntres"s); // untouched: as it came
        memo.moveCursor(QTextCursor::End);
        QTest::keyClicks(&memo, u"!"_s);
        QCOMPARE(memo.Texto(), "uno\r\ndos\r\ntres!"s);
    }
};

// Pieces of the sheets with sub-sheets and child rows.
class PruebaPiezas : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Tira() {
        TiraNavegacion tira;
        auto* primera = new QWidget;
        auto* segunda = new QWidget;
        tira.Añadir("hoja", u"&Uno"_s, primera);
        tira.Añadir("hoja", u"&Dos"_s, segunda);
        Mostrar(tira);
        QVERIFY(primera->isVisible() && !segunda->isVisible());
        QTest::keyClick(&tira, Qt::Key_D, Qt::AltModifier);
        QTRY_VERIFY(segunda->isVisible() && !primera->isVisible());
        QCOMPARE(tira.Actual(), 1);
        tira.findChild<QToolButton*>(u"IconoNav(0)"_s)->click();
        QVERIFY(primera->isVisible());
    }

    void Hijos() {
        Base b;
        for (int n = 1; n <= 3; ++n)
            b.Poner("T_Partos", "Id_Parto, N_Parto, Fecha_Parto", double(n), n,
                    n == 2 ? Valor() : Valor(F("1/2/2026")));
        static constexpr ColumnaHijos kColumnas[] = {{"N_Parto", "Nº", 4}, {"Fecha_Parto", "Fecha", 10}};
        RejillaHijos rejilla(kColumnas);
        std::vector<int> elegidas, abiertas;
        rejilla.alElegir = [&](int f) { elegidas.push_back(f); };
        rejilla.alAbrir = [&](int f) { abiertas.push_back(f); };
        Recordset rs(b.c, "SELECT * FROM T_Partos ORDER BY N_Parto DESC");
        rejilla.Llenar(rs);
        Mostrar(rejilla);
        QVERIFY(elegidas.empty()); // showing rows chooses none
        QCOMPARE(rejilla.item(0, 0)->text() + u'|' + rejilla.item(1, 1)->text(), u"3|"_s);
        QVERIFY(EsNulo(rejilla.De(1, 1)));
        rejilla.setFocus();
        QTest::keyClick(&rejilla, Qt::Key_Down);
        QTest::keyClick(&rejilla, Qt::Key_Right); // the same row
        QTest::keyClick(&rejilla, Qt::Key_Return);
        QCOMPARE(elegidas, std::vector{1});
        QCOMPARE(abiertas, std::vector{1});
        QTest::keyClicks(&rejilla, u"9"_s);
        QCOMPARE(rejilla.item(1, 0)->text(), u"2"_s); // read-only
        rejilla.hideColumn(0); // as in the grid of matings: the arrows choose all the same
        rejilla.clearSelection();
        QTest::keyClick(&rejilla, Qt::Key_Down);
        QVERIFY(!rejilla.selectedItems().isEmpty());
        QCOMPARE(rejilla.currentRow(), 2);
        rejilla.Vaciar();
        QCOMPARE(rejilla.Filas(), 0);
    }
};

PRUEBA(PruebaLineas)
PRUEBA(PruebaPiezas)
#include "PruebaLineas.moc"
