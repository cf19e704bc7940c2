#include "PuestoDeFichas.h"

#include "frame/ficha/CampoTexto.h"
#include "registers/Ganaderos.h"
#include "registers/VentanaHoy.h"
#include "registers/Veterinarios.h"
#include "registers/datos/AsuntosSanidad.h"
#include "registers/datos/Mamitis.h"
#include "registers/datos/Materia.h"
#include "registers/datos/PatologiasSemental.h"
#include "registers/sementales/Sementales.h"
#include "registers/vacas/Vacas.h"

using namespace prueba;

// What all record sheets promise: nothing that stands on them is lost, and nothing that nobody touched changes.
class PruebaHojas : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // A reader of another program makes the commit fail: the record is not there, and is still to be added.
    void AltaSinConfirmar() {
        PuestoDeFichas p;
        AlaVista<Veterinarios> f(p.sesion);
        BotonDe(f, "B_Añadir")->click();
        Teclear(f, {{2, "Ana"}, {14, "ana"}});
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
        QUEDA(p, "NombreVet, Usuario FROM T_Veterinarios", "Ana|ana");
        QVERIFY(f.findChild<QLabel*>(u"Estado"_s)->text().startsWith(u"Guardado "_s));
    }

    // What a column holds beyond what the field shows: centuries, long texts, texts that are no dates.
    void LoQueNadieToco() {
        PuestoDeFichas p;
        p.Poner("T_Veterinarios", "Id_Veterinario=2, NombreVet=Ana");
        for (const auto& [id, baja] : {std::pair{12.0, "01/02/1890"}, {14.0, "31/12/2105"}, {16.0, "pronto"}})
            p.Poner("T_Ganaderos", "Id_Ganadero, Nombre=Nora, Id_Veterinario=2, FechaBaja, MotivoBaja=x", id,
                    baja);
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
        AlaVista<Ganaderos> f(p.sesion);
        for (const double id : {12.0, 14.0, 16.0}) {
            f.CargarFicha(id);
            Teclear(f, 3, "Gil");
            BotonDe(f, "B_Guardar")->click();
        }
        QUEDA(p, "Apellidos FROM T_Ganaderos", "Gil/Gil/Gil");
        QVERIFY(crudo() == antes);
        Teclear(f, 13, "");
        BotonDe(f, "B_Guardar")->click();
        QUEDA(p, "FechaBaja, MotivoBaja FROM T_Ganaderos WHERE Id_Ganadero = 16", "-|-");
    }

    // Rows deleted to be written anew, and one of them cannot be: all are as they were.
    void ConjuntosEnteros_data() {
        // indice: that the rewrite trips over
        Caso("farm years", "T_IPR (IPRPrimNov)", "T_IPR");
        Caso("health, cycles", "T_CCVacas (CCmar)", "T_CCVacas");
        Caso("health, years", "T_CCNATVACAS (CCmar)", "T_CCNATVACAS");
        Caso("teats", "T_Mamitis (DescMamitis)", "T_Mamitis");
        Caso("bull", "T_PatologiaSem (IBRsp)", "T_PatologiaSem");
    }
    void ConjuntosEnteros() {
        const auto [indice, tabla] = DelCaso<QString, QString>();
        PuestoDeFichas p;
        auto& c = p.sesion.conexion;
        p.Poner("T_Vacas", "Id_Vaca=1, Id_Ganadero=12");
        for (const int año : {2024, 2025}) {
            const auto marca = std::to_string(año);
            p.Poner("T_IPR", "Id_Ganadero=12, AñoNatural, IPRPrimNov", año, marca);
            p.Poner("T_Cubriciones", "Id_Vaca=1, Año_Ref, N_Parto", año, año);
            p.Poner("T_CCVacas", "Id_Vaca=1, AñoRef, NumParto, CCmar", año, año, double(año));
            p.Poner("T_CCNATVACAS", "Id_Vaca=1, AñoNat, CCmar", año, double(año));
            p.Poner("T_PatologiaSem", "Id_Animal=9, ANatural, IBRsp", año, marca);
        }
        for (const double teto : {1.0, 2.0, 3.0, 4.0})
            p.Poner("T_Mamitis", "Id_Vaca=1, Id_Teto, DescMamitis", teto, TextoNumero(teto));
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
            p.Poner("T_Ganaderos", "Id_Ganadero, Nombre=G", g);
        p.Poner("T_Vacas", "Id_Vaca=1, Nombre=Luna, Id_Ganadero=12");
        p.Poner("T_Vacas", "Id_Vaca=2, Nombre=Mora");
        AlaVista<Vacas> f(p.sesion, OrdenesDeVaca{});
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
        QUEDA(p, "Id_Ganadero FROM T_Vacas", "12/12");
        QVERIFY(observacion->isEnabled());
    }

    // Enter on the code reads the record, the shown one too, and stays for the next; 0 is told like any code that is not there.
    void IntroEnElCodigo() {
        PuestoDeFichas p;
        p.Poner("T_Veterinarios", "Id_Veterinario=2, NombreVet=Ana");
        AlaVista<Veterinarios> f(p.sesion);
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
        p.Poner("T_Veterinarios", "Id_Veterinario=2, NombreVet=Ana");
        AlaVista<Veterinarios> f(p.sesion);
        f.CargarFicha(2);
        CampoDe(f, 2)->setFocus();
        QTest::keyClick(CampoDe(f, 2), Qt::Key_G, Qt::AltModifier);
        QCOMPARE(CampoDe(f, 2)->text(), u"Ana"_s);
        QCOMPARE(Encendidos(f), u"AMER"_s);
    }

    // A text that is no date is told as such from the moment the field is left; a day on and back by keys.
    void FechasQueNoSon() {
        PuestoDeFichas p;
        AlaVista<Veterinarios> f(p.sesion);
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
            p.Poner("T_Veterinarios", "Id_Veterinario, NombreVet=V", id);
        const auto volver = [](Ficha& f) {
            QTest::keyClick(CampoDe(f, 2), Qt::Key_Left, Qt::AltModifier);
            return f.Clave();
        };
        {
            AlaVista<Veterinarios> f(p.sesion);
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
        AlaVista<Veterinarios> f(p.sesion);
        QCOMPARE(f.Clave(), 0.0); // nothing is shown unasked
        QCOMPARE(volver(f), 3.0);
        PuestoDeFichas otra;
        AlaVista<Veterinarios> g(otra.sesion);
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
                    QVERIFY2(titulo->toolTip().size() > titulo->text().size(), qPrintable(titulo->text()));
                }
            hoja->show();
            const auto pantalla = hoja->screen()->availableSize();
            QVERIFY2(hoja->width() < pantalla.width() && hoja->height() < pantalla.height(),
                     qPrintable(hoja->objectName()));
        }
        QVERIFY(claves > 50);
    }
};

// What was done in this session, told and put back.
class PruebaHoy : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void UnaVacaDeVuelta() {
        PuestoDeFichas p;
        p.sesion.diario = std::make_unique<Diario>(p.sesion.conexion, Ahora);
        p.Poner("T_Ganaderos", "Id_Ganadero=12, Apodo=La Nora");
        p.Poner("T_Vacas", "Id_Vaca=1200001, Id_Ganadero=12, Nombre=Luna");
        p.Poner("T_Cubriciones", "Id_Cubricion=5, Id_Vaca=1200001, Año_Ref=2026, N_Parto=2");
        p.Poner("T_Cebo", "Id_Ganadero=12, Id_Cebo=3");
        {
            AlaVista<Vacas> f(p.sesion, OrdenesDeVaca{});
            f.CargarFicha(1200001);
            Teclear(f, 1, "Luna Nueva");
            f.Guardar();
            p.cajas.Responder(true);
            BotonDe(f, "B_Borrar")->click();
            (void)p.cajas.Vistas();
        }
        QUEDA(p, "Id_Vaca FROM T_Vacas", "");
        VentanaHoy hoy(p.sesion);
        Hecho abierto;
        hoy.alAbrir = [&](const Hecho& h) { abierto = h; };
        Mostrar(hoy);
        auto* tabla = hoy.findChild<QTableWidget*>(u"GridHoy"_s);
        const auto linea = [&](int fila) { return tabla->item(fila, 1)->text(); };
        QVERIFY2(linea(0).startsWith(u"Vaca 1200001: eliminación"_s), qPrintable(linea(0)));
        QVERIFY2(linea(0).contains(u"cubrición"_s), qPrintable(linea(0)));
        QCOMPARE(linea(tabla->rowCount() - 1), u"Ganadero La Nora (12): alta"_s);
        QCOMPARE(linea(tabla->rowCount() - 4), u"Ganadero La Nora (12): cebo"_s);

        p.cajas.Responder(true);
        BotonDe(hoy, "B_Deshacer")->click();
        QVERIFY(p.Caja().contains(u"eliminación"_s));
        QCOMPARE(p.Texto("SELECT Nombre FROM T_Vacas") + p.Texto("SELECT Id_Cubricion FROM T_Cubriciones"),
                 "Luna Nueva5"s);
        QCOMPARE(linea(0), u"Vaca Luna Nueva (1200001): alta, mamitis, cubrición"_s);
        tabla->setCurrentCell(
            1, 0); // her change, with rows that another unit has touched since: told, nothing done
        QVERIFY2(linea(1).contains(u"modificación"_s), qPrintable(linea(1)));
        p.sesion.conexion.Execute("UPDATE T_Vacas SET Crotal = 'X'");
        p.cajas.Responder(true);
        BotonDe(hoy, "B_Deshacer")->click();
        QVERIFY(p.cajas.Tomar().last().contains(u"han cambiado después"_s));
        QUEDA(p, "Nombre FROM T_Vacas", "Luna Nueva");
        tabla->setCurrentCell(0, 0);
        BotonDe(hoy, "B_Abrir")->click();
        QCOMPARE(abierto.id, 1200001.0);
        QVERIFY(abierto.ficha == FichaDe::Vaca);
    }
};

PRUEBA(PruebaHojas)
PRUEBA(PruebaHoy)
#include "PruebaHojas.moc"
