#include "PuestoDeFichas.h"
#include "prueba.h"

#include "frame/ficha/CampoTexto.h"
#include "frame/ficha/RejillaHijos.h"
#include "registers/Ganaderos.h"
#include "registers/Veterinarios.h"
#include "registers/datos/AsuntosSanidad.h"
#include "registers/datos/Mamitis.h"
#include "registers/datos/Materia.h"
#include "registers/datos/PatologiasSemental.h"
#include "registers/vacas/Vacas.h"

#include <QTimer>
#include <QToolButton>

#include <sqlite3.h>

using namespace pastorix;
using namespace prueba;

// What all record sheets promise: nothing that stands on them is lost, and nothing that nobody touched changes.
class PruebaHojas : public QObject {
    Q_OBJECT

    static void Ejecutar(Conexion& c, const char* sql) {
        QCOMPARE(sqlite3_exec(c.Manejador(), sql, nullptr, nullptr, nullptr), SQLITE_OK);
    }

private Q_SLOTS:
    // A reader of another program makes the commit fail: the record is not there, and is still to be added.
    void AltaSinConfirmar() {
        PuestoDeFichas p;
        Veterinarios f(p.sesion);
        Mostrar(f);
        BotonDe(f, "B_Añadir")->click();
        Teclear(f, 2, "Ana");
        Teclear(f, 14, "ana");
        sqlite3_busy_timeout(p.sesion.conexion.Manejador(), 0);
        Conexion lector;
        lector.AbrirFichero(p.sesion.conexion.Fichero(), kClave);
        Ejecutar(lector, "BEGIN; SELECT * FROM T_Vacas");
        BotonDe(f, "B_Guardar")->click();
        QCOMPARE(p.cajas.Vistas().size(), 1);
        QCOMPARE(f.Clave(), 0.0);
        Ejecutar(lector, "COMMIT");
        p.cajas.Responder(false); // what stands here alone is not given up by a slip
        BotonDe(f, "B_Cancelar")->click();
        QCOMPARE(p.cajas.Vistas().size(), 1);
        BotonDe(f, "B_Guardar")->click();
        QCOMPARE(p.Texto("SELECT NombreVet, Usuario FROM T_Veterinarios"), std::string("Ana|ana"));
        QVERIFY(
            f.findChild<QLabel*>(QStringLiteral("Estado"))->text().startsWith(QStringLiteral("Guardado ")));
    }

    // What a column holds beyond what the field shows: centuries, long texts, texts that are no dates.
    void LoQueNadieToco() {
        PuestoDeFichas p;
        p.Poner("T_Veterinarios", {{"Id_Veterinario", 2.0}, {"NombreVet", "Ana"}});
        for (const auto& [id, baja] : {std::pair{12.0, "01/02/1890"}, {14.0, "31/12/2105"}, {16.0, "pronto"}})
            p.Poner("T_Ganaderos", {{"Id_Ganadero", id},
                                    {"Nombre", "Nora"},
                                    {"Id_Veterinario", 2.0},
                                    {"FechaBaja", baja},
                                    {"MotivoBaja", "x"}});
        Ejecutar(p.sesion.conexion, "UPDATE T_Ganaderos SET Apodo = printf('%.*c', 300, 'y')");
        const char* const sql = "SELECT FechaBaja, MotivoBaja, Apodo FROM T_Ganaderos";
        const auto crudo = [&] {
            Recordset rs(p.sesion.conexion, sql);
            std::vector<Valor> todo;
            for (; !rs.Eof(); rs.Siguiente())
                for (int i = 0; i < 3; ++i)
                    todo.push_back(rs[i].Leer());
            return todo;
        };
        const auto antes = crudo();
        Ganaderos f(p.sesion);
        Mostrar(f);
        for (const double id : {12.0, 14.0, 16.0}) {
            f.CargarFicha(id);
            Teclear(f, 3, "Gil");
            BotonDe(f, "B_Guardar")->click();
        }
        QCOMPARE(p.Texto("SELECT Apellidos FROM T_Ganaderos"), std::string("Gil/Gil/Gil"));
        QVERIFY(crudo() == antes);
        Teclear(f, 13, "");
        BotonDe(f, "B_Guardar")->click();
        QCOMPARE(p.Texto("SELECT FechaBaja, MotivoBaja FROM T_Ganaderos WHERE Id_Ganadero = 16"),
                 std::string("-|-"));
    }

    // Rows deleted to be written anew, and one of them cannot be: all are as they were.
    void ConjuntosEnteros_data() {
        QTest::addColumn<QString>("indice"); // that the rewrite trips over
        QTest::addColumn<QString>("tabla");
        QTest::newRow("farm years") << "T_IPR (IPRPrimNov)"
                                    << "T_IPR";
        QTest::newRow("health, cycles") << "T_CCVacas (CCmar)"
                                        << "T_CCVacas";
        QTest::newRow("health, years") << "T_CCNATVACAS (CCmar)"
                                       << "T_CCNATVACAS";
        QTest::newRow("teats") << "T_Mamitis (DescMamitis)"
                               << "T_Mamitis";
        QTest::newRow("bull") << "T_PatologiaSem (IBRsp)"
                              << "T_PatologiaSem";
    }
    void ConjuntosEnteros() {
        QFETCH(QString, indice);
        QFETCH(QString, tabla);
        PuestoDeFichas p;
        auto& c = p.sesion.conexion;
        p.Poner("T_Vacas", {{"Id_Vaca", 1.0}, {"Id_Ganadero", 12.0}});
        for (const int año : {2024, 2025}) {
            const auto marca = std::to_string(año);
            p.Poner("T_IPR", {{"Id_Ganadero", 12.0}, {"AñoNatural", año}, {"IPRPrimNov", marca}});
            p.Poner("T_Cubriciones", {{"Id_Vaca", 1.0}, {"Año_Ref", año}, {"N_Parto", año}});
            p.Poner("T_CCVacas",
                    {{"Id_Vaca", 1.0}, {"AñoRef", año}, {"NumParto", año}, {"CCmar", double(año)}});
            p.Poner("T_CCNATVACAS", {{"Id_Vaca", 1.0}, {"AñoNat", año}, {"CCmar", double(año)}});
            p.Poner("T_PatologiaSem", {{"Id_Animal", 9.0}, {"ANatural", año}, {"IBRsp", marca}});
        }
        for (const double teto : {1.0, 2.0, 3.0, 4.0})
            p.Poner("T_Mamitis", {{"Id_Vaca", 1.0}, {"Id_Teto", teto}, {"DescMamitis", TextoNumero(teto)}});
        const auto sql = "SELECT * FROM " + tabla.toStdString();
        const auto antes = p.Texto(sql);
        Ejecutar(c, ("CREATE UNIQUE INDEX roto ON " + indice.toStdString()).c_str());
        const auto repetir = [](std::vector<Linea> lineas, std::size_t columna) {
            lineas[1].celdas[columna] = lineas[0].celdas[columna];
            return lineas;
        };
        QVERIFY_EXCEPTION_THROWN(
            {
                const auto materia = LeerMateria(c, kMateriaIPR, 12);
                GuardarMateria(c, kMateriaIPR, 12, repetir(materia.lineas, 1), {}, "");
                auto salud = LeerAsunto(c, kCondicionCorporal, 1);
                salud.ciclos = repetir(salud.ciclos, 8);
                salud.naturales = repetir(salud.naturales, 1);
                GuardarAsunto(c, kCondicionCorporal, {1, 12}, salud);
                auto tetos = LeerTetos(c, 1);
                tetos[3].nota = tetos[0].nota;
                EscribirTetos(c, 1, tetos);
                GuardarPatologias(c, PatologiaSem(), 9, repetir(LeerPatologias(c, PatologiaSem(), 9), 2));
            },
            ErrorAlmacen);
        QCOMPARE(p.Texto(sql), antes);
    }

    // The farmer of a cow who has one is fixed; one who comes without gets him, and her pages with him.
    void GanaderoDeLaVaca() {
        PuestoDeFichas p;
        for (const double g : {12.0, 57.0})
            p.Poner("T_Ganaderos", {{"Id_Ganadero", g}, {"Nombre", "G"}});
        p.Poner("T_Vacas", {{"Id_Vaca", 1.0}, {"Nombre", "Luna"}, {"Id_Ganadero", 12.0}});
        p.Poner("T_Vacas", {{"Id_Vaca", 2.0}, {"Nombre", "Mora"}});
        Vacas f(p.sesion, {});
        Mostrar(f);
        f.CargarFicha(1);
        BotonDe(f, "B_Modificar")->click();
        auto* icono = f.findChild<QToolButton*>(QStringLiteral("IconoBusDato(1)"));
        icono->click();
        QVERIFY(p.Caja().startsWith(QStringLiteral("La vaca ya tiene ganadero")));
        BotonDe(f, "B_Cancelar")->click();
        f.CargarFicha(2);
        auto* observacion = f.findChild<QPlainTextEdit*>(QStringLiteral("CT_ObsCC"));
        QVERIFY(!observacion->isEnabled());
        BotonDe(f, "B_Modificar")->click();
        QTimer::singleShot(0, [] { // the list of farmers: the first one
            QTest::keyClick(QApplication::activeModalWidget()->findChild<QTableView*>(), Qt::Key_Return);
        });
        icono->click();
        BotonDe(f, "B_Guardar")->click();
        QCOMPARE(p.Texto("SELECT Id_Ganadero FROM T_Vacas"), std::string("12/12"));
        QVERIFY(observacion->isEnabled());
    }

    // Enter on the code reads the record, the shown one too, and stays for the next; 0 is told like any code that is not there.
    void IntroEnElCodigo() {
        PuestoDeFichas p;
        p.Poner("T_Veterinarios", {{"Id_Veterinario", 2.0}, {"NombreVet", "Ana"}});
        Veterinarios f(p.sesion);
        Mostrar(f);
        const auto entrar = [&](const char* codigo) {
            Teclear(f, 0, codigo);
            QTest::keyClick(CampoDe(f, 0), Qt::Key_Return);
        };
        entrar("2");
        QCOMPARE(f.focusWidget(), CampoDe(f, 0));
        QCOMPARE(CampoDe(f, 0)->selectedText(), QStringLiteral("2"));
        p.sesion.conexion.Execute("UPDATE T_Veterinarios SET NombreVet = 'Eva'");
        entrar("2");
        QCOMPARE(CampoDe(f, 2)->text(), QStringLiteral("Eva"));
        entrar("0");
        QCOMPARE(p.Caja(), QStringLiteral("No Encuentro el Codigo: 0"));
    }

    // Alt with the letter of a button that is off means the button: nothing is typed, and no edit begins.
    void LetraDeBotonApagado() {
        PuestoDeFichas p;
        p.Poner("T_Veterinarios", {{"Id_Veterinario", 2.0}, {"NombreVet", "Ana"}});
        Veterinarios f(p.sesion);
        Mostrar(f);
        f.CargarFicha(2);
        CampoDe(f, 2)->setFocus();
        QTest::keyClick(CampoDe(f, 2), Qt::Key_G, Qt::AltModifier);
        QCOMPARE(CampoDe(f, 2)->text(), QStringLiteral("Ana"));
        QCOMPARE(Encendidos(f), QStringLiteral("AMER"));
    }

    // A text that is no date is told as such from the moment the field is left; a day on and back by keys.
    void FechasQueNoSon() {
        PuestoDeFichas p;
        Veterinarios f(p.sesion);
        Mostrar(f);
        BotonDe(f, "B_Añadir")->click();
        auto* alta = static_cast<CampoTexto*>(CampoDe(f, 12));
        const auto* pie = f.findChild<QLabel*>(QStringLiteral("Reparos"));
        Teclear(f, 12, "31/2/2026");
        QVERIFY(alta->Señal().isEmpty()); // not while it is being typed
        CampoDe(f, 2)->setFocus();
        QVERIFY(alta->Señal().contains(QStringLiteral("No es una fecha")));
        QCOMPARE(alta->accessibleDescription(), alta->Señal());
        QVERIFY(alta->palette().color(QPalette::Text) != CampoDe(f, 2)->palette().color(QPalette::Text));
        QVERIFY(!pie->isHidden() && pie->text().contains(QStringLiteral("31/2/2026")));
        Teclear(f, 12, "1/3/2026");
        QVERIFY(pie->isHidden());
        QTest::keyClick(alta, Qt::Key_Down);
        QCOMPARE(alta->text(), QStringLiteral("28/02/2026"));
        QTest::keyClick(alta, Qt::Key_Up);
        QCOMPARE(alta->text(), QStringLiteral("01/03/2026"));
    }

    // The first column is hidden in the grid of matings: the arrows choose all the same.
    void FlechasConColumnaOculta() {
        constexpr ColumnaHijos columnas[] = {{nullptr, "Id", 0}, {nullptr, "Año", 6}};
        RejillaHijos r(columnas);
        r.Llenar({{Valor(std::int64_t{1}), std::string("a")}, {Valor(std::int64_t{2}), std::string("b")}});
        Mostrar(r);
        r.setFocus(Qt::TabFocusReason);
        QTest::keyClick(&r, Qt::Key_Down);
        QVERIFY(!r.selectedItems().isEmpty());
        QCOMPARE(r.currentRow(), 1);
    }

    // A father is nobody's while there is no animal on the sheet.
    void PadreSinVaca() {
        PuestoDeFichas p;
        Vacas f(p.sesion, {});
        Mostrar(f);
        bool lista = false;
        QTimer::singleShot(0, [&] {
            if (auto* ventana = QApplication::activeModalWidget(); ventana && ventana != &f) {
                lista = true;
                ventana->close();
            }
        });
        f.findChild<QToolButton*>(QStringLiteral("IconoBusDato(2)"))->click();
        QCoreApplication::processEvents();
        QVERIFY(!lista);
    }
};

PRUEBA(PruebaHojas)
#include "PruebaHojas.moc"
