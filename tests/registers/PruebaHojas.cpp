#include "PuestoDeFichas.h"
#include "prueba.h"

#include "frame/ficha/CampoTexto.h"
#include "registers/Ganaderos.h"
#include "registers/Veterinarios.h"
#include "registers/datos/AsuntosSanidad.h"
#include "registers/datos/Mamitis.h"
#include "registers/datos/Materia.h"
#include "registers/datos/PatologiasSemental.h"
#include "registers/sementales/Sementales.h"
#include "registers/vacas/Vacas.h"

#include <QRegularExpression>
#include <QScreen>
#include <QToolButton>

using namespace pastorix;
using namespace prueba;

// What all record sheets promise: nothing that stands on them is lost, and nothing that nobody touched changes.
class PruebaHojas : public QObject {
    Q_OBJECT

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
        Crudo(lector, "BEGIN; SELECT * FROM T_Vacas");
        BotonDe(f, "B_Guardar")->click();
        QCOMPARE(p.cajas.Vistas().size(), 1);
        QCOMPARE(f.Clave(), 0.0);
        Crudo(lector, "COMMIT");
        p.cajas.Responder(false); // what stands here alone is not given up by a slip
        BotonDe(f, "B_Cancelar")->click();
        QCOMPARE(p.cajas.Vistas().size(), 1);
        BotonDe(f, "B_Guardar")->click();
        QCOMPARE(p.Texto("SELECT NombreVet, Usuario FROM T_Veterinarios"), "Ana|ana"s);
        QVERIFY(f.findChild<QLabel*>(u"Estado"_s)->text().startsWith(u"Guardado "_s));
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
        Crudo(p.sesion.conexion, "UPDATE T_Ganaderos SET Apodo = printf('%.*c', 300, 'y')");
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
        QCOMPARE(p.Texto("SELECT Apellidos FROM T_Ganaderos"), "Gil/Gil/Gil"s);
        QVERIFY(crudo() == antes);
        Teclear(f, 13, "");
        BotonDe(f, "B_Guardar")->click();
        QCOMPARE(p.Texto("SELECT FechaBaja, MotivoBaja FROM T_Ganaderos WHERE Id_Ganadero = 16"), "-|-"s);
    }

    // Rows deleted to be written anew, and one of them cannot be: all are as they were.
    void ConjuntosEnteros_data() {
        // indice: that the rewrite trips over
        Columnas<QString, QString>("indice", "tabla");
        Caso("farm years", "T_IPR (IPRPrimNov)", "T_IPR");
        Caso("health, cycles", "T_CCVacas (CCmar)", "T_CCVacas");
        Caso("health, years", "T_CCNATVACAS (CCmar)", "T_CCNATVACAS");
        Caso("teats", "T_Mamitis (DescMamitis)", "T_Mamitis");
        Caso("bull", "T_PatologiaSem (IBRsp)", "T_PatologiaSem");
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
        Crudo(c, ("CREATE UNIQUE INDEX roto ON " + indice.toStdString()).c_str());
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
        auto* icono = f.findChild<QToolButton*>(u"IconoBusDato(1)"_s);
        icono->click();
        QVERIFY(p.Caja().startsWith(u"La vaca ya tiene ganadero"_s));
        BotonDe(f, "B_Cancelar")->click();
        f.CargarFicha(2);
        auto* observacion = f.findChild<QPlainTextEdit*>(u"CT_ObsCC"_s);
        QVERIFY(!observacion->isEnabled());
        BotonDe(f, "B_Modificar")->click();
        QTimer::singleShot(0, [] { // the list of farmers: the first one
            QTest::keyClick(QApplication::activeModalWidget()->findChild<QTableView*>(), Qt::Key_Return);
        });
        icono->click();
        BotonDe(f, "B_Guardar")->click();
        QCOMPARE(p.Texto("SELECT Id_Ganadero FROM T_Vacas"), "12/12"s);
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
        QCOMPARE(CampoDe(f, 0)->selectedText(), u"2"_s);
        p.sesion.conexion.Execute("UPDATE T_Veterinarios SET NombreVet = 'Eva'");
        entrar("2");
        QCOMPARE(CampoDe(f, 2)->text(), u"Eva"_s);
        for (const char* codigo : {"0", "99"}) {
            entrar(codigo);
            QCOMPARE(p.cajas.Tomar(), QStringList{u"Atención...|No Encuentro el Codigo: "_s + codigo});
        }
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
        QCOMPARE(CampoDe(f, 2)->text(), u"Ana"_s);
        QCOMPARE(Encendidos(f), u"AMER"_s);
    }

    // A text that is no date is told as such from the moment the field is left; a day on and back by keys.
    void FechasQueNoSon() {
        PuestoDeFichas p;
        Veterinarios f(p.sesion);
        Mostrar(f);
        BotonDe(f, "B_Añadir")->click();
        auto* alta = static_cast<CampoTexto*>(CampoDe(f, 12));
        const auto* pie = f.findChild<QLabel*>(u"Reparos"_s);
        Teclear(f, 12, "31/2/2026");
        QVERIFY(alta->Señal().isEmpty()); // not while it is being typed
        CampoDe(f, 2)->setFocus();
        QVERIFY(alta->Señal().contains(u"No es una fecha"_s));
        QCOMPARE(alta->accessibleDescription(), alta->Señal());
        QVERIFY(alta->palette().color(QPalette::Text) != CampoDe(f, 2)->palette().color(QPalette::Text));
        QVERIFY(!pie->isHidden() && pie->text().contains(u"31/2/2026"_s));
        Teclear(f, 12, "1/3/2026");
        QVERIFY(pie->isHidden());
        QTest::keyClick(alta, Qt::Key_Down);
        QCOMPARE(alta->text(), u"28/02/2026"_s);
        QTest::keyClick(alta, Qt::Key_Up);
        QCOMPARE(alta->text(), u"01/03/2026"_s);
    }

    // Alt+Left: to the record before, and on a fresh sheet to the one on which the last was closed; of this database.
    void VolverAlAnterior() {
        PuestoDeFichas p;
        for (const double id : {2.0, 3.0, 4.0})
            p.Poner("T_Veterinarios", {{"Id_Veterinario", id}, {"NombreVet", "V"}});
        const auto volver = [](Ficha& f) {
            QTest::keyClick(CampoDe(f, 2), Qt::Key_Left, Qt::AltModifier);
            return f.Clave();
        };
        {
            Veterinarios f(p.sesion);
            Mostrar(f);
            QCOMPARE(volver(f), 0.0);
            QVERIFY(!f.findChild<QLabel*>(u"Estado"_s)->text().isEmpty());
            f.CargarFicha(2);
            f.CargarFicha(3);
            QCOMPARE(volver(f), 2.0);
            QCOMPARE(volver(f), 3.0);
            Teclear(f, 2, "W");
            p.cajas.Responder(false);
            QCOMPARE(volver(f), 3.0);
            QVERIFY(p.Caja().startsWith(u"Hay cambios sin guardar"_s));
            BotonDe(f, "B_Cancelar")->click();
            f.close();
        }
        Veterinarios f(p.sesion);
        Mostrar(f);
        QCOMPARE(f.Clave(), 0.0); // nothing is shown unasked
        QCOMPARE(volver(f), 3.0);
        PuestoDeFichas otra;
        Veterinarios g(otra.sesion);
        Mostrar(g);
        QCOMPARE(volver(g), 0.0);
    }

    // Codes in headings have words, and no sheet is larger than the screen.
    void TitulosYMedidas() {
        PuestoDeFichas p;
        std::vector<std::unique_ptr<Ficha>> hojas;
        hojas.push_back(std::make_unique<Veterinarios>(p.sesion));
        hojas.push_back(std::make_unique<Ganaderos>(p.sesion));
        hojas.push_back(std::make_unique<Vacas>(p.sesion, OrdenesDeVaca{}));
        hojas.push_back(std::make_unique<Sementales>(p.sesion));
        const QRegularExpression clave(QStringLiteral(R"(\.|%|\p{Ll}\p{Lu}|\p{Lu}{2}|\bRef\b)"));
        int claves = 0;
        for (const auto& hoja : hojas) {
            for (const auto* tabla : hoja->findChildren<QTableWidget*>())
                for (int c = 0; c < tabla->columnCount(); ++c) {
                    const auto* titulo = tabla->horizontalHeaderItem(c);
                    if (tabla->isColumnHidden(c) || !titulo->text().contains(clave))
                        continue;
                    ++claves;
                    QVERIFY2(titulo->toolTip().size() > titulo->text().size(),
                             qUtf8Printable(titulo->text()));
                }
            hoja->show();
            const auto pantalla = hoja->screen()->availableSize();
            QVERIFY2(hoja->width() < pantalla.width() && hoja->height() < pantalla.height(),
                     qUtf8Printable(hoja->objectName()));
        }
        QVERIFY(claves > 50);
    }
};

PRUEBA(PruebaHojas)
#include "PruebaHojas.moc"
