#include "PuestoDeFichas.h"
#include "prueba.h"

#include "frame/ficha/RejillaHijos.h"
#include "frame/ficha/TiraNavegacion.h"

#include <QToolButton>

using namespace pastorix;
using namespace prueba;

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
            b.Poner("T_Partos", {{"Id_Parto", double(n)},
                                 {"N_Parto", n},
                                 {"Fecha_Parto", n == 2 ? Valor() : Valor(F("1/2/2026"))}});
        static constexpr ColumnaHijos kColumnas[] = {{"N_Parto", "Nº", 4}, {"Fecha_Parto", "Fecha", 10}};
        RejillaHijos rejilla(kColumnas);
        std::vector<int> elegidas;
        std::vector<int> abiertas;
        rejilla.alElegir = [&](int f) { elegidas.push_back(f); };
        rejilla.alAbrir = [&](int f) { abiertas.push_back(f); };
        Recordset rs(b.c, "SELECT * FROM T_Partos ORDER BY N_Parto DESC");
        rejilla.Llenar(rs);
        Mostrar(rejilla);
        QVERIFY(elegidas.empty()); // showing rows chooses none
        QCOMPARE(rejilla.item(0, 0)->text(), u"3"_s);
        QCOMPARE(rejilla.item(1, 1)->text(), QString());
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

PRUEBA(PruebaPiezas)
#include "PruebaPiezas.moc"
