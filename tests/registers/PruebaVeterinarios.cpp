#include "PuestoDeFichas.h"

#include "frame/ficha/CampoTexto.h"
#include "registers/Veterinarios.h"

using namespace prueba;

// The plainest sheet: with it the whole record-sheet pattern.
class PruebaVeterinarios : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Alta() {
        PuestoDeFichas p;
        p.sesion.UsuarioSesion = "CENTRAL";
        p.Poner("T_Veterinarios", "Id_Veterinario=7, NombreVet=VALNOR");
        AlaVista<Veterinarios> f(p.sesion);
        QCOMPARE(Mnemonicos(f), u"ACDEFGHIJLMNOPRSTUVX"_s);
        QCOMPARE(Encendidos(f), u"AR"_s);
        Teclear(f, 2, "x"); // nothing on screen and no edit: a key begins none
        QCOMPARE(Encendidos(f), u"AR"_s);
        BotonDe(f, "B_Añadir")->click();
        QCOMPARE(Encendidos(f), u"GC"_s);
        QCOMPARE(CampoDe(f, 0)->text() + u'|' + CampoDe(f, 12)->text(), u"8|22/11/26"_s);
        QCOMPARE(CampoDe(f, 2)->text(), QString());
        QVERIFY(CampoDe(f, 1)->hasFocus());
        const auto guardar = [&] { BotonDe(f, "B_Guardar")->click(); };

        Teclear(f, 0, "0");
        guardar();
        QCOMPARE(p.Caja(), u"El Código no puede ser '0'"_s);
        Teclear(f, 0, "8");
        guardar();
        QCOMPARE(p.Caja(), u"Debe incluir como mínimo el Código y el Nombre"_s);
        QVERIFY(CampoDe(f, 0)->hasFocus());
        Teclear(f, 2, "Eulalia d'Arriba");
        guardar();
        QCOMPARE(p.Caja(), u"Debe Indicar el Nombre Usuario para Iniciar la Sesión"_s);
        QVERIFY(CampoDe(f, 14)->hasFocus());
        p.Poner("Claves", "Usuario=Jefa, NIVEL=CENTRAL");
        Teclear(f, 14, "jefa");
        guardar();
        QCOMPARE(p.Caja(), u"El Usuario: jefa y aestá siendo utilizado, cambielo por otro."_s);
        Teclear(f, 14, "d'a"); // the look-up fails: told, and nothing is lost or written
        guardar();
        QVERIFY(p.Caja().contains(u"apóstrofo"_s));
        QCOMPARE(Encendidos(f), u"GC"_s);
        Teclear(f, {{14, "elopez"}, {0, "7"}});
        guardar();
        QCOMPARE(p.Caja(), u"Codigo no Valido, Cambielo por Otro"_s);
        QUEDA(p, "NombreVet FROM T_Veterinarios", "VALNOR");
        QCOMPARE(CampoDe(f, 2)->text(), u"Eulalia d'Arriba"_s);
        Teclear(f, 0, "8");
        Teclear(f, 12, "31/02/01"); // no date: not written
        Teclear(f, 10, "985 1");    // a telephone alone makes an address
        guardar();
        QCOMPARE(p.cajas.Vistas().size(), 0);
        QCOMPARE(Encendidos(f), u"AMER"_s);
        QUEDA(p,
              "Id_Veterinario, NombreVet, DNI, FechaAlta, Usuario, Id_Direccion FROM T_Veterinarios WHERE "
              "Id_Veterinario = 8",
              "8|Eulalia d'Arriba|-|-|elopez|1");
        QUEDA(p, "Id_Direccion, Id_GV, TelefonoP, TelefonoM FROM T_Direcciones", "1|8|985 1|-");
        f.close();
    }

    void ModificarYBorrar() {
        PuestoDeFichas p;
        p.Poner("T_Veterinarios",
                "Id_Veterinario=2, NombreVet=Ana, Usuario=ana, Id_Direccion=4, FechaAlta=1/2/2020");
        p.Poner("T_Direcciones", "Id_Direccion=4, Id_GV=2, Localidad=Tineo, FAX=9");
        p.Poner("T_Ganaderos", "Id_Ganadero=12, Id_Veterinario=2");
        AlaVista<Veterinarios> f(p.sesion);
        Teclear(f, 0, "2");
        QTest::keyClick(CampoDe(f, 0), Qt::Key_Tab); // leaving the field loads too
        QCOMPARE(CampoDe(f, 2)->text() + u'|' + CampoDe(f, 7)->text(), u"Ana|Tineo"_s);
        QCOMPARE(CampoDe(f, 13)->text(), u"9"_s);
        QCOMPARE(Encendidos(f), u"AMER"_s);
        QTest::keyClick(CampoDe(f, 2), Qt::Key_Left); // moving about is no change
        QCOMPARE(Encendidos(f), u"AMER"_s);
        QTest::keyClick(CampoDe(f, 2), Qt::Key_Delete);
        QCOMPARE(Encendidos(f), u"GC"_s);
        BotonDe(f, "B_Cancelar")->click();
        QCOMPARE(CampoDe(f, 2)->text(), u"Ana"_s);
        QCOMPARE(Encendidos(f), u"AMER"_s);
        CampoDe(f, 17)->setFocus();
        QGuiApplication::clipboard()->setText(QString(200, u'x'));
        QTest::keyClick(
            CampoDe(f, 17), Qt::Key_V,
            Qt::ControlModifier); // pasting is typing; what does not fit the column does not go in
        QCOMPARE(Encendidos(f), u"GC"_s);
        QCOMPARE(CampoDe(f, 17)->text().size(), 50);
        for (const int i : {7, 13})
            Teclear(f, i, "");
        Teclear(f, 12, "1/1/205");
        Teclear(f, 0, "3"); // the code of a record does not change
        QCOMPARE(p.CajaDe(BotonDe(f, "B_Guardar")), u"El Código no se puede cambiar"_s);
        QCOMPARE(CampoDe(f, 0)->text(), u"2"_s);
        QUEDA(p, "Id_Veterinario, FechaAlta, Id_Direccion FROM T_Veterinarios", "2|01/02/20|4");
        // without any address text the row stays as it was
        QUEDA(p, "Localidad, FAX FROM T_Direcciones", "Tineo|9");

        // a record deleted from under the sheet: told, and what was typed stays
        Teclear(f, 1, "71");
        p.sesion.conexion.Execute("DELETE FROM T_Veterinarios");
        BotonDe(f, "B_Guardar")->click();
        QVERIFY(p.Caja().contains(u"ya no existe"_s));
        QCOMPARE(CampoDe(f, 1)->text(), u"71"_s);
        QCOMPARE(Encendidos(f), u"GC"_s);
        p.cajas.Responder(false);
        f.reject(); // not over unsaved changes
        QVERIFY(f.isVisible());
        p.cajas.Responder(true); // nor are they given up unasked
        BotonDe(f, "B_Cancelar")->click();
        p.cajas.Vistas();
        p.Poner("T_Veterinarios", "Id_Veterinario=2, NombreVet=Ana");
        f.CargarFicha(2);
        QCOMPARE(p.CajaDe(BotonDe(f, "B_Eliminar"), false), u"Desea Eliminar ? "_s);
        QUEDA(p, "Id_Veterinario FROM T_Veterinarios", "2");
        p.cajas.Responder(true);
        BotonDe(f, "B_Eliminar")->click();
        p.cajas.Vistas();
        QUEDA(p, "Id_Veterinario FROM T_Veterinarios", "");
        QUEDA(p, "Id_Direccion FROM T_Direcciones", "4"); // no cascade
        QUEDA(p, "Id_Veterinario FROM T_Ganaderos", "2");
        QCOMPARE(CampoDe(f, 2)->text(), QString());
        f.close();
    }

    void Limite() {
        PuestoDeFichas p;
        for (const double id : {1.0, 2.0})
            p.Poner("T_Veterinarios", "Id_Veterinario, NombreVet=V", id);
        AlaVista<Veterinarios> f(p.sesion);
        f.CargarFicha(2);
        QCOMPARE(p.CajaDe(BotonDe(f, "B_Añadir")),
                 u"Recuerde que en Modo: VETERINARIO, sólo puede disponer de 2 Veterinarios"_s);
        QCOMPARE(CampoDe(f, 0)->text(), u"2"_s); // before the sheet clears
        p.Poner("T_Veterinarios", "Id_Veterinario=3, NombreVet=V");
        BotonDe(f, "B_Añadir")->click(); // more than two pass
        QCOMPARE(Encendidos(f), u"GC"_s);
        BotonDe(f, "B_Cancelar")->click();
        f.close();
    }

    // First the sieve, then the width; what a spreadsheet writes otherwise is read as it was meant.
    void Pegado_data() {
        // caja: 0 none, 1 a box, 2 a question answered with yes, 3 with no
        using enum ClaseCampo;
        Caso("lines and tabs", Texto, "elopez\t1\r\n", "elopez 1", 0);
        Caso("text too long", Texto, "abcdefghijklmn", "abcdefghij", 0);
        Caso("blanks before the width", Fecha, "  01/02/1949", "01/02/1949", 0);
        Caso("iso", Fecha, "2026-11-02 00:00", "02/11/2026", 0);
        Caso("points", Fecha, "3.4.26", "3/4/26", 0);
        Caso("thousands", Numero, "1.234", "1234", 0);
        Caso("thousands, no-break", Numero, u"1\u00a0234"_s, "1234", 0);
        Caso("whole with zeros", Numero, "12,00", "12", 0);
        Caso("no whole number", Numero, "12,5", "", 1);
        Caso("doubtful, thousands", Decimal, "1.234", "1234", 2);
        Caso("doubtful, decimals", Decimal, "1.234", "1,234", 3);
        Caso("surely decimals", ConSigno, "-1.5", "-1,5", 0);
        Caso("surely thousands", Decimal, "1.234.567,5", "1234567,5", 0);
        Caso("other commas", Decimal, "1,234.5", "1234,5", 0);
        Caso("code with blanks", Codigo, " 12 00 ", "1200", 0);
    }
    void Pegado() {
        const auto [clase, pegado, queda, caja] = DelCaso<ClaseCampo, QString, QString, int>();
        Cajas cajas;
        CampoTexto campo(clase, 10);
        if (caja >= 2)
            cajas.Responder(caja == 2);
        QGuiApplication::clipboard()->setText(pegado);
        QTest::keyClick(&campo, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(campo.text(), queda);
        QCOMPARE(cajas.Vistas().size(), caja ? 1 : 0);
    }

    void Filtros() {
        QCOMPARE(ComaUnica(u"2,5"_s, ','), 0);
        QCOMPARE(ComaUnica(u"25"_s, ','), int(','));
        QCOMPARE(ComaUnica(u"2,5"_s, '5'), int('5'));
        for (const auto& [clase, tecleado, queda] : {std::tuple{ClaseCampo::Codigo, "1a2 -3.4", "1234"},
                                                     {ClaseCampo::Fecha, "3x1/02-/01", "31/02/01"},
                                                     {ClaseCampo::Decimal, "1,2,3.4e", "1,234"},
                                                     {ClaseCampo::ConSigno, "-1,5-,", "-1,5"},
                                                     {ClaseCampo::Numero, "-1,2", "12"},
                                                     {ClaseCampo::Texto, "a'ñ 1", "a'ñ 1"}}) {
            CampoTexto campo(clase, 40);
            TeclearEn(campo, tecleado);
            QCOMPARE(campo.text(), Q(queda));
        }
        CampoTexto campo(ClaseCampo::ConSigno, 40);
        // Stored by something else: shown as it is, too long as it may be.
        for (const auto* texto : {"1E-07", "0,33333333333333333333333333333333333333333"}) {
            campo.Mostrar(Q(texto));
            QCOMPARE(campo.text(), Q(texto));
        }
    }
};

PRUEBA(PruebaVeterinarios)
#include "PruebaVeterinarios.moc"
