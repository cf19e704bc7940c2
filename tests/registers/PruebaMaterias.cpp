#include "PuestoDeFichas.h"

#include "registers/Ganaderos.h"
#include "registers/datos/Materia.h"

#include <initializer_list>

using namespace prueba;

namespace {

constexpr auto kIPR = "SELECT AñoNatural, IPRPrimNov, IPRInvNov, PartosAgrup FROM T_IPR ORDER BY AñoNatural";

// Farmers 12 and 14 in the database, 12 on the sheet.
struct Explotacion : PuestoDeFichas {
    std::unique_ptr<Ganaderos> ficha;

    Explotacion() {
        Poner("T_Veterinarios", "Id_Veterinario=2, NombreVet=Ana");
        for (const double id : {12.0, 14.0})
            Poner("T_Ganaderos", "Id_Ganadero, Nombre=Nora, Id_Veterinario=2", id);
    }
    void Abrir(int tab, int hoja = 0) {
        ficha = std::make_unique<Ganaderos>(sesion);
        Mostrar(*ficha);
        ficha->CargarFicha(12);
        Ir(tab, hoja);
    }
    void Ir(int tab, int hoja = 0) {
        De<QTabWidget>("TabGanaderos")->setCurrentIndex(tab);
        De<QAbstractButton>(qPrintable(u"IconoNav(%1)"_s.arg(hoja)))->click();
    }
    template <typename T>
    T* De(const char* nombre) {
        return ficha->findChild<T*>(Q(nombre));
    }
    bool Activo(const char* boton) { return De<QPushButton>(boton)->isEnabled(); }
    // Into the fields from the one with the focus on, each left with Enter.
    void Linea(std::initializer_list<const char*> textos) {
        for (const char* texto : textos) {
            auto* foco = QApplication::focusWidget();
            if (auto* combo = qobject_cast<QComboBox*>(foco))
                combo->setCurrentIndex(combo->findText(Q(texto)));
            else if (auto* campo = qobject_cast<QLineEdit*>(foco))
                TeclearEn(*campo, texto);
            QTest::keyClick(foco, Qt::Key_Return);
        }
    }
    QString Celdas(const char* rejilla) {
        const auto* t = De<QTableWidget>(rejilla);
        QStringList filas;
        for (int f = 0; f < t->rowCount(); ++f) {
            QStringList celdas;
            for (int c = 0; c < t->columnCount(); ++c)
                celdas << t->item(f, c)->text();
            filas << celdas.join(u'|');
        }
        return filas.join(u'/');
    }
};

} // namespace

class PruebaMaterias : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ConElTeclado() {
        Explotacion p;
        p.Abrir(2);
        auto* rejilla = p.De<QTableWidget>("GridIPR");
        QCOMPARE(p.Celdas("GridIPR"), u"|||"_s);
        rejilla->setFocus();
        QTest::keyClick(rejilla, Qt::Key_Insert);
        QVERIFY(p.De<QLineEdit>("Ct_IPR(0)")->hasFocus());
        p.Linea({"2024", "1/4/2x4", "", "InvOtoño"}); // the letter is dropped
        QCOMPARE(p.Texto(kIPR), "2024|01/04/24|-|InvOtoño"s);
        p.Linea({"2023", "", "2/5/23", ""});
        QCOMPARE(p.Texto(kIPR), "2023|-|02/05/23|-/2024|01/04/24|-|InvOtoño"s);
        QCOMPARE(p.Celdas("GridIPR"), u"2023||02/05/23|/2024|01/04/24||InvOtoño"_s);

        const auto antes = p.Texto(kIPR);
        p.Linea({"2024", "", "", "No"});
        QCOMPARE(p.cajas.Tomar(), QStringList{u"Atención|Ya existe una línea para el año natural 2024"_s});
        QVERIFY(p.De<QLineEdit>("Ct_IPR(0)")->hasFocus());
        p.De<QLineEdit>("Ct_IPR(0)")->clear();
        p.Linea({"", "", "", "No"});
        QCOMPARE(p.Caja(), u"Debe indicar el año natual"_s);
        QVERIFY(p.Activo("B_GuardarIPR"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(!p.Activo("B_GuardarIPR") && p.ficha->isVisible());
        QCOMPARE(p.De<QComboBox>("CD_IPRpa")->currentText(), QString());
        QCOMPARE(p.Texto(kIPR), antes);

        rejilla->setCurrentCell(1, 0); // over the line of 2024
        QCOMPARE(p.De<QComboBox>("CD_IPRpa")->currentText(), u"InvOtoño"_s);
        QTest::keyClick(rejilla, Qt::Key_Return);
        p.Linea({"2025", "1/4/25", "", "No"});
        QCOMPARE(p.Texto(kIPR), "2023|-|02/05/23|-/2025|01/04/25|-|No"s);

        for (const bool si : {false, true, true}) {
            rejilla->setCurrentCell(0, 0);
            const auto año = rejilla->item(0, 0)->text();
            p.cajas.Responder(si);
            QTest::keyClick(rejilla, Qt::Key_Delete);
            QCOMPARE(p.cajas.Tomar(), QStringList{u"Eliminar|Eliminar la línea para "_s + año});
        }
        QCOMPARE(p.Texto(kIPR), std::string());
        QCOMPARE(p.Celdas("GridIPR"), u"|||"_s);  // one empty line stays
        QTest::keyClick(rejilla, Qt::Key_Delete); // and asks nothing
        QTest::keyClick(rejilla, Qt::Key_Insert);
        p.Linea({"2020", "", "", ""});
        QCOMPARE(p.Celdas("GridIPR"), u"2020|||"_s);
    }

    // What a subject reads and nobody touches is written back as it was, with whatever has no place in the grid.
    void IdaYVuelta_data() {
        // filas: columns behind Id_Ganadero
        Caso("IPR", &kMateriaIPR, "-|1/1/20|-|-|-|-|-|-|suelto;2024|1/4|x|Otro|a|b|c|d|libre");
        Caso("AI", &kMateriaAlimentacion, "2023|31/02/23|-|-|Rara|-;2024|01/12/23|-|Bueno|-|-");
        Caso("Vacu", &kMateriaVacunaciones, "2024|a|-|d'e|ñ");
        Caso("FVacu", &kMateriaFechasVacu, "1|-|02/03/24|-|-;2|05/06/24|-|-|-");
        Caso("As", &kMateriaSuperficie, "2024|33,123456789|-1,5|0|-|2|3|Bueno");
        Caso("SP", &kMateriaSistema, "2024|SE;2025|-");
        Caso("PC", &kMateriaPastos, "2024|Sí|Con Toros|Buena|01/05/24|-|12,5|No|Buena|Sí");
    }
    void IdaYVuelta() {
        const auto [materia, filas] = DelCaso<const Materia*, QString>();
        PuestoDeFichas p;
        auto& c = p.sesion.conexion;
        p.Poner("T_Ganaderos", "Id_Ganadero=12, Nombre=Nora");
        {
            Recordset rs(c, "SELECT * FROM "s + materia->tabla);
            for (const double ganadero : {12.0, 14.0})
                for (const auto& fila : filas.split(u';')) {
                    rs.AddNew();
                    rs[0] = ganadero;
                    int i = 1;
                    for (const auto& valor : fila.split(u'|'))
                        rs[i++] = valor == QLatin1String("-") ? Valor() : Valor(valor.toStdString());
                    rs.Update();
                }
        }
        const auto sql = "SELECT * FROM "s + materia->tabla + " ORDER BY Id_Ganadero, " +
                         (materia->porAños ? "AñoNatural" : "Ln");
        const auto antes = p.Texto(sql);
        QCOMPARE(Q(antes).count(QLatin1String("12|")), filas.count(u';') + 1);
        const auto datos = LeerMateria(c, *materia, 12);
        GuardarMateria(c, *materia, 12, datos.lineas, datos.ocultas, "nota");
        QCOMPARE(p.Texto(sql), antes);
        if (materia->columnaNota)
            QCOMPARE(LeerMateria(c, *materia, 12).nota, "nota"s);
    }

    // A text longer than its column cannot be typed: the save, which deletes first, would fail on it.
    void TextoLargo() {
        Explotacion p;
        p.Abrir(3, 1);
        auto* campo = p.De<QLineEdit>("Ct_Vacu(1)");
        TeclearEn(*campo, std::string(60, 'x').c_str());
        QCOMPARE(campo->text().size(), 50);
    }

    void Nota() {
        Explotacion p;
        p.Abrir(3, 2);
        const auto nota = [&p] {
            return p.Texto("SELECT ObsAbonoSuperficie FROM T_Ganaderos WHERE Id_Ganadero = 12");
        };
        auto* memo = p.De<QPlainTextEdit>("Ct_ObsAs");
        QVERIFY(!p.Activo("B_GuardarObsAs") && !p.Activo("B_CancelarObsAs"));
        memo->setFocus();
        QTest::keyClicks(memo, u"cal"_s);
        QVERIFY(p.Activo("B_GuardarObsAs") && p.Activo("B_CancelarObsAs"));
        p.De<QPushButton>("B_CancelarObsAs")->click();
        QCOMPARE(memo->toPlainText() + Q(nota()), u"-"_s);
        QTest::keyClicks(memo, u"cal"_s);
        p.De<QPushButton>("B_GuardarObsAs")->click();
        QCOMPARE(nota(), "cal"s);
        QVERIFY(!p.Activo("B_GuardarObsAs"));
        QTest::keyClicks(memo, u"2"_s);
        p.De<QLineEdit>("Ct_As(0)")->setFocus();
        p.Linea({"2024", "1,5", "", "", "", "", "", ""}); // the note travels with the lines
        QVERIFY(nota().find('2') != std::string::npos && !p.Activo("B_GuardarObsAs"));
        QUEDA(p, "AñoNatural, HasNoCom, HasPropias FROM T_AbonadoSuperficie", "2024|1,5|-");

        // a line in progress goes in with the button as with Enter
        TeclearEn(*p.De<QLineEdit>("Ct_As(0)"), "2025");
        p.De<QPushButton>("B_GuardarObsAs")->click();
        QUEDA(p, "AñoNatural FROM T_AbonadoSuperficie", "2024/2025");

        // not saved: kept while the first tab is saved or cancelled, asked for before another farmer comes
        memo->setFocus();
        QTest::keyClicks(memo, u"zz"_s);
        p.Ir(0);
        Teclear(*p.ficha, 3, "Gil");
        BotonDe(*p.ficha, "B_Guardar")->click();
        Teclear(*p.ficha, 3, "X");
        BotonDe(*p.ficha, "B_Cancelar")->click();
        QVERIFY(memo->toPlainText().contains(QLatin1String("zz")) && p.Activo("B_GuardarObsAs"));
        for (const bool si : {false, true}) {
            Teclear(*p.ficha, 0, "14");
            p.cajas.Responder(si);
            QTest::keyClick(CampoDe(*p.ficha, 0), Qt::Key_Return);
            QCOMPARE(p.Caja(), u"Hay cambios sin guardar en «Abon. y Superf.». ¿Desea guardarlos?"_s);
            QCOMPARE(p.ficha->Clave(), si ? 14.0 : 12.0);
        }
        QVERIFY(nota().find("zz") == std::string::npos);
        p.Ir(3, 2);
        QCOMPARE(memo->toPlainText(), QString());
        QCOMPARE(p.Celdas("GridMAS"), u"|||||||"_s);
    }

    // A rewrite that fails changes nothing, and the grid still has what was typed: it can be saved again.
    void GuardadoRoto() {
        Explotacion p;
        for (const auto& [año, fecha] : {std::pair{2020, "01/01/20"}, {2021, "01/01/21"}})
            p.Poner("T_IPR", "Id_Ganadero=12, AñoNatural, IPRPrimNov, Blanco=b", año, fecha);
        p.Abrir(2);
        Crudo(p.sesion.conexion, "CREATE UNIQUE INDEX roto ON T_IPR (IPRPrimNov)");
        p.De<QLineEdit>("Ct_IPR(0)")->setFocus();
        p.Linea({"2019", "1/1/21", "", ""});
        QCOMPARE(p.cajas.Vistas().size(), 1);
        QUEDA(p, "AñoNatural FROM T_IPR", "2020/2021");
        QCOMPARE(p.Celdas("GridIPR"), u"2019|01/01/21||/2020|01/01/20||/2021|01/01/21||"_s);
        p.cajas.Responder(false);
        p.ficha->close();
        QCOMPARE(p.Caja(), u"Hay cambios sin guardar en «Inicio Periodo Reproductivo». ¿Desea guardarlos?"_s);
        Crudo(p.sesion.conexion, "DROP INDEX roto");
        p.De<QPushButton>("B_GuardarIPR")->click();
        QUEDA(p, "AñoNatural, IPRPrimNov, Blanco FROM T_IPR ORDER BY AñoNatural",
              "2019|01/01/21|-/2020|01/01/20|b/2021|01/01/21|b");
        QVERIFY(!p.Activo("B_GuardarIPR"));
    }

    // Rows that could not be read are not written over.
    void LecturaRota() {
        Explotacion p;
        p.Poner("T_IPR", "Id_Ganadero=12, AñoNatural=2020");
        Crudo(p.sesion.conexion, "ALTER TABLE T_IPR RENAME TO Otra");
        p.Abrir(2);
        QCOMPARE(p.cajas.Vistas().size(), 1);
        Crudo(p.sesion.conexion, "ALTER TABLE Otra RENAME TO T_IPR");
        QVERIFY(!p.De<QLineEdit>("Ct_IPR(0)")->isEnabled());
        QTest::keyClick(p.De<QTableWidget>("GridIPR"), Qt::Key_Insert);
        QCOMPARE(p.Texto(kIPR), "2020|-|-|-"s);
    }

    void FechasDeVacunacion() {
        Explotacion p;
        p.Abrir(3, 1);
        const auto filas = [&p] {
            return p.Texto("SELECT Ln, IBR, BVD, MAMITIS, NEOSPORA FROM T_FechasVacu ORDER BY Ln");
        };
        p.De<QLineEdit>("Ct_FVacu(0)")->setFocus();
        p.Linea({"", "", "", ""}); // nothing is no line
        QCOMPARE(filas(), std::string());
        p.De<QLineEdit>("Ct_FVacu(0)")->setFocus();
        p.Linea({"5/6/24", "", "", ""});
        p.Linea({"", "31/2/24", "", ""});
        QCOMPARE(p.Caja(), u"La fecha no es correcta, dd/mm/aa"_s);
        QVERIFY(p.De<QLineEdit>("Ct_FVacu(1)")->hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        p.De<QLineEdit>("Ct_FVacu(0)")->setFocus();
        p.Linea({"", "1/2/23", "", ""}); // in the order of entry, not of dates
        p.Linea({"", "", "", "7/8/25"});
        QCOMPARE(filas(), "1|05/06/24|-|-|-/2|-|01/02/23|-|-/3|-|-|-|07/08/25"s);
        auto* rejilla = p.De<QTableWidget>("GridFVacu");
        rejilla->setCurrentCell(1, 0);
        p.cajas.Responder(true);
        QTest::keyClick(rejilla, Qt::Key_Delete);
        QCOMPARE(p.Caja(), u"Eliminar la línea para 2"_s);
        QCOMPARE(filas(), "1|05/06/24|-|-|-/2|-|-|-|07/08/25"s);
    }
};

PRUEBA(PruebaMaterias)
#include "PruebaMaterias.moc"
