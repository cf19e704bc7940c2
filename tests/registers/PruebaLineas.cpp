#include "PuestoDeFichas.h"
#include "prueba.h"

#include "frame/ficha/CampoMemo.h"
#include "frame/ficha/LineasEditables.h"

#include <QComboBox>
#include <QTableWidget>

using namespace pastorix;
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
    auto* t = l.findChild<QTableWidget*>(QStringLiteral("Grid"));
    QStringList filas;
    for (int f = 0; f < t->rowCount(); ++f)
        filas << t->item(f, 0)->text() + QLatin1Char('|') + t->item(f, 1)->text() + QLatin1Char('|') +
                     t->item(f, 2)->text();
    return filas.join(QLatin1Char('/'));
}

} // namespace

// Lines entered below their grid, and texts of several lines.
class PruebaLineas : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PorTeclado() {
        Cajas cajas;
        LineasEditables l(kDefinicion);
        int cambios = 0;
        QString quitada;
        l.alCambiar = [&] { ++cambios; };
        l.alQuitar = [&](const Linea& q) { quitada = QString::fromStdString(q.celdas[0]); };
        Mostrar(l);
        QCOMPARE(Pintada(l), QStringLiteral("||")); // without data one empty line
        auto* grid = l.findChild<QTableWidget*>();
        auto* combo = l.findChild<QComboBox*>(QStringLiteral("Cd(2)"));
        const auto foco = [] { return QApplication::focusWidget()->objectName(); };
        const auto tecla = [](Qt::Key k) { QTest::keyClick(QApplication::focusWidget(), k); };
        const auto linea = [&](const char* año, const char* fecha) {
            TeclearEn(*l.findChild<QLineEdit*>(QStringLiteral("Ct(0)")), año);
            tecla(Qt::Key_Return);
            TeclearEn(*l.findChild<QLineEdit*>(QStringLiteral("Ct(1)")), fecha);
            tecla(Qt::Key_Return);
        };
        grid->setFocus();
        tecla(Qt::Key_Insert);
        QCOMPARE(foco(), QStringLiteral("Ct(0)"));
        linea("2026x", "1/11/25");
        QCOMPARE(foco(), QStringLiteral("Cd(2)"));
        tecla(Qt::Key_Down);
        tecla(Qt::Key_Return);
        QCOMPARE(Pintada(l), QStringLiteral("2026|01/11/25|Bueno"));
        QCOMPARE(foco(), QStringLiteral("Ct(0)")); // ready for the next one
        linea("2025", "31/02/25");
        tecla(Qt::Key_Return);
        QCOMPARE(cajas.Vistas()[0].texto, QStringLiteral("La fecha no es correcta, dd/mm/aa"));
        QCOMPARE(foco(), QStringLiteral("Ct(1)"));
        l.findChild<QLineEdit*>(QStringLiteral("Ct(1)"))->clear();
        combo->setFocus();
        tecla(Qt::Key_Return);
        QCOMPARE(Pintada(l), QStringLiteral("2025||/2026|01/11/25|Bueno")); // by year
        linea("2026", "");
        tecla(Qt::Key_Return);
        QCOMPARE(cajas.Vistas()[0].texto, QStringLiteral("Ya existe una línea para el año natural 2026"));
        tecla(Qt::Key_Escape);
        QVERIFY(!l.EnCurso());
        QCOMPARE(cambios, 2);
        combo->setFocus();
        tecla(Qt::Key_Return);
        QCOMPARE(cajas.Vistas()[0].texto, QStringLiteral("Debe indicar el año natual"));

        // over a chosen line: its year may stay, but not become that of another
        grid->setFocus();
        grid->setCurrentCell(1, 0);
        QCOMPARE(combo->currentText(), QStringLiteral("Bueno"));
        tecla(Qt::Key_Return);
        combo->setCurrentIndex(2);
        combo->setFocus();
        tecla(Qt::Key_Return);
        QCOMPARE(Pintada(l), QStringLiteral("2025||/2026|01/11/25|Aceptable"));
        grid->setCurrentCell(0, 0);
        l.findChild<QLineEdit*>(QStringLiteral("Ct(0)"))->setText(QStringLiteral("2026"));
        l.Confirmar();
        QCOMPARE(cajas.Vistas().size(), 1);
        l.Abandonar();

        // a line being written is not given up for another one unasked
        l.findChild<QLineEdit*>(QStringLiteral("Ct(0)"))->setText(QStringLiteral("2030"));
        cajas.Responder(true);
        grid->setFocus();
        grid->setCurrentCell(1, 0);
        QCOMPARE(cajas.Vistas().size(), 1);
        QCOMPARE(Pintada(l), QStringLiteral("2025||/2026|01/11/25|Aceptable/2030||"));
        cajas.Responder(true);
        grid->setCurrentCell(1, 0);
        tecla(Qt::Key_Delete);
        QCOMPARE(cajas.Vistas().size(), 1);
        QCOMPARE(l.findChild<QLineEdit*>(QStringLiteral("Ct(0)"))->text(),
                 QString()); // not the line that came up
        tecla(Qt::Key_Insert);
        linea("2026", "1/11/25");
        combo->setCurrentIndex(2);
        tecla(Qt::Key_Return);
        QCOMPARE(Pintada(l), QStringLiteral("2025||/2026|01/11/25|Aceptable/2030||"));
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
        const auto preguntas = cajas.Vistas();
        QCOMPARE(preguntas[0].titulo, QStringLiteral("Eliminar"));
        QCOMPARE(preguntas[0].texto, QStringLiteral("Eliminar la línea para 2025"));
        QCOMPARE(quitada, QStringLiteral("2025"));
        QCOMPARE(Pintada(l), QStringLiteral("2026|01/11/25|Aceptable"));
    }

    // What the fields cannot show or the lists do not hold survives an edit of its line.
    void NadaSePierde() {
        Base b;
        b.Poner("T_AlimentacionInvernal", {{"Id_Ganadero", 1.0},
                                           {"AñoNatural", 2024},
                                           {"InicioPI", F("1/3/2205")},
                                           {"AlimVacas", std::string("Regular")},
                                           {"AlimPI", std::string("Bueno")}});
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
        QCOMPARE(vuelto["AlimVacas"].Texto(), std::string("Regular"));
        QCOMPARE(vuelto["AlimPI"].Texto(), std::string("Bueno"));
        QVERIFY(vuelto["AlimNov"].Nulo());
    }

    void Memo() {
        CampoMemo memo;
        memo.Poner("uno\r\ndos\ntres");
        QCOMPARE(memo.Texto(), std::string("uno\r\ndos\ntres")); // untouched: as it came
        memo.moveCursor(QTextCursor::End);
        QTest::keyClicks(&memo, QStringLiteral("!"));
        QCOMPARE(memo.Texto(), std::string("uno\r\ndos\r\ntres!"));
    }
};

PRUEBA(PruebaLineas)
#include "PruebaLineas.moc"
