#include "PuestoDeFichas.h"
#include "prueba.h"

#include "frame/ficha/CampoTexto.h"
#include "registers/Veterinarios.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace pastorix;
using namespace prueba;

// The plainest sheet: with it the whole record-sheet pattern.
class PruebaVeterinarios : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Alta() {
        PuestoDeFichas p;
        p.sesion.UsuarioSesion = "CENTRAL";
        p.Poner("T_Veterinarios", {{"Id_Veterinario", 7.0}, {"NombreVet", "VALNOR"}});
        Veterinarios f(p.sesion);
        Mostrar(f);
        QCOMPARE(Mnemonicos(f), QStringLiteral("ACDEFGHIJLMNOPRSTUVX"));
        QCOMPARE(Encendidos(f), QStringLiteral("AR"));
        Teclear(f, 2, "x"); // nothing on screen and no edit: a key begins none
        QCOMPARE(Encendidos(f), QStringLiteral("AR"));
        BotonDe(f, "B_Añadir")->click();
        QCOMPARE(Encendidos(f), QStringLiteral("GC"));
        QCOMPARE(CampoDe(f, 0)->text(), QStringLiteral("8"));
        QCOMPARE(CampoDe(f, 12)->text(), QStringLiteral("22/11/26"));
        QCOMPARE(CampoDe(f, 2)->text(), QString());
        QVERIFY(CampoDe(f, 1)->hasFocus());
        const auto guardar = [&] { BotonDe(f, "B_Guardar")->click(); };

        Teclear(f, 0, "0");
        guardar();
        QCOMPARE(p.Caja(), QStringLiteral("El Código no puede ser '0'"));
        Teclear(f, 0, "8");
        guardar();
        QCOMPARE(p.Caja(), QStringLiteral("Debe incluir como mínimo el Código y el Nombre"));
        QVERIFY(CampoDe(f, 0)->hasFocus());
        Teclear(f, 2, "Eulalia d'Arriba");
        guardar();
        QCOMPARE(p.Caja(), QStringLiteral("Debe Indicar el Nombre Usuario para Iniciar la Sesión"));
        QVERIFY(CampoDe(f, 14)->hasFocus());
        p.Poner("Claves", {{"Usuario", "Jefa"}, {"NIVEL", "CENTRAL"}});
        Teclear(f, 14, "jefa");
        guardar();
        QCOMPARE(p.Caja(), QStringLiteral("El Usuario: jefa y aestá siendo utilizado, cambielo por otro."));
        Teclear(f, 14, "d'a"); // the look-up fails: told, and nothing is lost or written
        guardar();
        QVERIFY(p.Caja().contains(QStringLiteral("apóstrofo")));
        QCOMPARE(Encendidos(f), QStringLiteral("GC"));
        Teclear(f, 14, "elopez");
        Teclear(f, 0, "7");
        guardar();
        QCOMPARE(p.Caja(), QStringLiteral("Codigo no Valido, Cambielo por Otro"));
        QCOMPARE(p.Texto("SELECT NombreVet FROM T_Veterinarios"), std::string("VALNOR"));
        QCOMPARE(CampoDe(f, 2)->text(), QStringLiteral("Eulalia d'Arriba"));
        Teclear(f, 0, "8");
        Teclear(f, 12, "31/02/01"); // no date: not written
        Teclear(f, 10, "985 1");    // a telephone alone makes an address
        guardar();
        QCOMPARE(p.cajas.Vistas().size(), 0);
        QCOMPARE(Encendidos(f), QStringLiteral("AMER"));
        QCOMPARE(p.Texto("SELECT Id_Veterinario, NombreVet, DNI, FechaAlta, Usuario, Id_Direccion FROM "
                         "T_Veterinarios WHERE "
                         "Id_Veterinario = 8"),
                 std::string("8|Eulalia d'Arriba|-|-|elopez|1"));
        QCOMPARE(p.Texto("SELECT Id_Direccion, Id_GV, TelefonoP, TelefonoM FROM T_Direcciones"),
                 std::string("1|8|985 1|-"));
        f.close();
    }

    void ModificarYBorrar() {
        PuestoDeFichas p;
        p.Poner("T_Veterinarios", {{"Id_Veterinario", 2.0},
                                   {"NombreVet", "Ana"},
                                   {"Usuario", "ana"},
                                   {"Id_Direccion", 4.0},
                                   {"FechaAlta", F("1/2/2020")}});
        p.Poner("T_Direcciones",
                {{"Id_Direccion", 4.0}, {"Id_GV", 2.0}, {"Localidad", "Tineo"}, {"FAX", "9"}});
        p.Poner("T_Ganaderos", {{"Id_Ganadero", 12.0}, {"Id_Veterinario", 2.0}});
        Veterinarios f(p.sesion);
        Mostrar(f);
        Teclear(f, 0, "99");
        QTest::keyClick(CampoDe(f, 0), Qt::Key_Return);
        const auto caja = p.cajas.Vistas();
        QCOMPARE(caja.size(), 1);
        QCOMPARE(caja[0].titulo, QStringLiteral("Atención..."));
        QCOMPARE(caja[0].texto, QStringLiteral("No Encuentro el Codigo: 99"));
        Teclear(f, 0, "2");
        QTest::keyClick(CampoDe(f, 0), Qt::Key_Tab); // leaving the field loads too
        QCOMPARE(CampoDe(f, 2)->text(), QStringLiteral("Ana"));
        QCOMPARE(CampoDe(f, 7)->text(), QStringLiteral("Tineo"));
        QCOMPARE(CampoDe(f, 13)->text(), QStringLiteral("9"));
        QCOMPARE(Encendidos(f), QStringLiteral("AMER"));
        QTest::keyClick(CampoDe(f, 2), Qt::Key_Left); // moving about is no change
        QCOMPARE(Encendidos(f), QStringLiteral("AMER"));
        QTest::keyClick(CampoDe(f, 2), Qt::Key_Delete);
        QCOMPARE(Encendidos(f), QStringLiteral("GC"));
        BotonDe(f, "B_Cancelar")->click();
        QCOMPARE(CampoDe(f, 2)->text(), QStringLiteral("Ana"));
        QCOMPARE(Encendidos(f), QStringLiteral("AMER"));
        CampoDe(f, 17)->setFocus();
        QGuiApplication::clipboard()->setText(QString(200, QLatin1Char('x')));
        QTest::keyClick(
            CampoDe(f, 17), Qt::Key_V,
            Qt::ControlModifier); // pasting is typing; what does not fit the column does not go in
        QCOMPARE(Encendidos(f), QStringLiteral("GC"));
        QCOMPARE(CampoDe(f, 17)->text().size(), 50);
        for (const int i : {7, 13})
            Teclear(f, i, "");
        Teclear(f, 12, "1/1/205");
        Teclear(f, 0, "3"); // the code of a record does not change
        BotonDe(f, "B_Guardar")->click();
        QCOMPARE(p.Caja(), QStringLiteral("El Código no se puede cambiar"));
        QCOMPARE(CampoDe(f, 0)->text(), QStringLiteral("2"));
        QCOMPARE(p.Texto("SELECT Id_Veterinario, FechaAlta, Id_Direccion FROM T_Veterinarios"),
                 std::string("2|01/02/20|4"));
        // without any address text the row stays as it was
        QCOMPARE(p.Texto("SELECT Localidad, FAX FROM T_Direcciones"), std::string("Tineo|9"));

        // a record deleted from under the sheet: told, and what was typed stays
        Teclear(f, 1, "71");
        p.sesion.conexion.Execute("DELETE FROM T_Veterinarios");
        BotonDe(f, "B_Guardar")->click();
        QVERIFY(p.Caja().contains(QStringLiteral("ya no existe")));
        QCOMPARE(CampoDe(f, 1)->text(), QStringLiteral("71"));
        QCOMPARE(Encendidos(f), QStringLiteral("GC"));
        p.cajas.Responder(false);
        f.reject(); // not over unsaved changes
        QVERIFY(f.isVisible());
        p.cajas.Responder(true); // nor are they given up unasked
        BotonDe(f, "B_Cancelar")->click();
        p.cajas.Vistas();
        p.Poner("T_Veterinarios", {{"Id_Veterinario", 2.0}, {"NombreVet", "Ana"}});
        f.CargarFicha(2);
        p.cajas.Responder(false);
        BotonDe(f, "B_Eliminar")->click();
        QCOMPARE(p.Caja(), QStringLiteral("Desea Eliminar ? "));
        QCOMPARE(p.Texto("SELECT Id_Veterinario FROM T_Veterinarios"), std::string("2"));
        p.cajas.Responder(true);
        BotonDe(f, "B_Eliminar")->click();
        p.cajas.Vistas();
        QCOMPARE(p.Texto("SELECT Id_Veterinario FROM T_Veterinarios"), std::string());
        QCOMPARE(p.Texto("SELECT Id_Direccion FROM T_Direcciones"), std::string("4")); // no cascade
        QCOMPARE(p.Texto("SELECT Id_Veterinario FROM T_Ganaderos"), std::string("2"));
        QCOMPARE(CampoDe(f, 2)->text(), QString());
        f.close();
    }

    void Limite() {
        PuestoDeFichas p;
        for (const double id : {1.0, 2.0})
            p.Poner("T_Veterinarios", {{"Id_Veterinario", id}, {"NombreVet", "V"}});
        Veterinarios f(p.sesion);
        Mostrar(f);
        f.CargarFicha(2);
        BotonDe(f, "B_Añadir")->click();
        QCOMPARE(p.Caja(),
                 QStringLiteral("Recuerde que en Modo: VETERINARIO, sólo puede disponer de 2 Veterinarios"));
        QCOMPARE(CampoDe(f, 0)->text(), QStringLiteral("2")); // before the sheet clears
        p.Poner("T_Veterinarios", {{"Id_Veterinario", 3.0}, {"NombreVet", "V"}});
        BotonDe(f, "B_Añadir")->click(); // more than two pass
        QCOMPARE(Encendidos(f), QStringLiteral("GC"));
        BotonDe(f, "B_Cancelar")->click();
        f.close();
    }

    // First the sieve, then the width; what a spreadsheet writes otherwise is read as it was meant.
    void Pegado_data() {
        QTest::addColumn<ClaseCampo>("clase");
        QTest::addColumn<QString>("pegado");
        QTest::addColumn<QString>("queda");
        QTest::addColumn<int>("caja"); // 0 none, 1 a box, 2 a question answered with yes, 3 with no
        using enum ClaseCampo;
        QTest::newRow("lines and tabs") << Texto << "elopez\t1\r\n"
                                        << "elopez 1" << 0;
        QTest::newRow("text too long") << Texto << "abcdefghijklmn"
                                       << "abcdefghij" << 0;
        QTest::newRow("blanks before the width") << Fecha << "  01/02/1949"
                                                 << "01/02/1949" << 0;
        QTest::newRow("iso") << Fecha << "2026-11-02 00:00"
                             << "02/11/2026" << 0;
        QTest::newRow("points") << Fecha << "3.4.26"
                                << "3/4/26" << 0;
        QTest::newRow("thousands") << Numero << "1.234"
                                   << "1234" << 0;
        QTest::newRow("thousands, no-break") << Numero << QStringLiteral("1\u00a0234") << "1234" << 0;
        QTest::newRow("whole with zeros") << Numero << "12,00"
                                          << "12" << 0;
        QTest::newRow("no whole number") << Numero << "12,5"
                                         << "" << 1;
        QTest::newRow("doubtful, thousands") << Decimal << "1.234"
                                             << "1234" << 2;
        QTest::newRow("doubtful, decimals") << Decimal << "1.234"
                                            << "1,234" << 3;
        QTest::newRow("surely decimals") << ConSigno << "-1.5"
                                         << "-1,5" << 0;
        QTest::newRow("surely thousands") << Decimal << "1.234.567,5"
                                          << "1234567,5" << 0;
        QTest::newRow("other commas") << Decimal << "1,234.5"
                                      << "1234,5" << 0;
        QTest::newRow("code with blanks") << Codigo << " 12 00 "
                                          << "1200" << 0;
    }
    void Pegado() {
        QFETCH(ClaseCampo, clase);
        QFETCH(QString, pegado);
        QFETCH(int, caja);
        Cajas cajas;
        CampoTexto campo(clase, 10);
        if (caja >= 2)
            cajas.Responder(caja == 2);
        QGuiApplication::clipboard()->setText(pegado);
        QTest::keyClick(&campo, Qt::Key_V, Qt::ControlModifier);
        QTEST(campo.text(), "queda");
        QCOMPARE(cajas.Vistas().size(), caja ? 1 : 0);
    }

    void Filtros() {
        QCOMPARE(ComaUnica(QStringLiteral("2,5"), ','), 0);
        QCOMPARE(ComaUnica(QStringLiteral("25"), ','), int(','));
        QCOMPARE(ComaUnica(QStringLiteral("2,5"), '5'), int('5'));
        for (const auto& [clase, tecleado, queda] : {std::tuple{ClaseCampo::Codigo, "1a2 -3.4", "1234"},
                                                     {ClaseCampo::Fecha, "3x1/02-/01", "31/02/01"},
                                                     {ClaseCampo::Decimal, "1,2,3.4e", "1,234"},
                                                     {ClaseCampo::ConSigno, "-1,5-,", "-1,5"},
                                                     {ClaseCampo::Numero, "-1,2", "12"},
                                                     {ClaseCampo::Texto, "a'ñ 1", "a'ñ 1"}}) {
            CampoTexto campo(clase, 40);
            TeclearEn(campo, tecleado);
            QCOMPARE(campo.text(), QString::fromUtf8(queda));
        }
        CampoTexto campo(ClaseCampo::ConSigno, 40);
        // Stored by something else: shown as it is, too long as it may be.
        for (const auto* texto : {"1E-07", "0,33333333333333333333333333333333333333333"}) {
            campo.Mostrar(QString::fromUtf8(texto));
            QCOMPARE(campo.text(), QString::fromUtf8(texto));
        }
    }
};

PRUEBA(PruebaVeterinarios)
#include "PruebaVeterinarios.moc"
