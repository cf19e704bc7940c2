#include "BaseDePrueba.h"
#include "PuestoDeFichas.h"

#include "frame/ficha/CampoMemo.h"
#include "registers/datos/FechasVacu.h"
#include "registers/datos/NombreCompuesto.h"
#include "registers/datos/PatologiasSemental.h"
#include "registers/datos/ReglasSemental.h"
#include "registers/sementales/RejillaPatologia.h"
#include "registers/sementales/Sementales.h"
#include "store/Literales.h"

using namespace prueba;

namespace {

// Farmers 1 and 57, and two bulls of the latter: 57001 in use, with services, calvings and health lines, and 57002.
struct Puesto : PuestoDeFichas {
    std::unique_ptr<Sementales> f;

    Puesto() {
        Poner("T_Ganaderos", "Id_Ganadero=1, Nombre=Centro, Apellidos=de IA");
        Poner("T_Ganaderos", "Id_Ganadero=57, Nombre=Ana, Apodo=La Xuan, Id_Direccion=7");
        Poner("T_Direcciones", "Id_Direccion=7, Id_GV=57, Localidad=Llanes");
        for (const double id : {57001.0, 57002.0}) {
            Poner("T_Sementales",
                  "Id_Semental, Nombre, NombreC, Id_Ganadero=57, Cularidad=G-Culón, FechaNac=6/8/2011", id,
                  id == 57001 ? "Ares" : "Brío", id == 57001 ? "Ares-C" : "Brío");
            for (const char* tabla : {"T_Servicios", "T_Partos"})
                Poner(tabla, "Id_Semental, Semental=Viejo", id);
            Poner("T_PatologiaSemR", "Id_Animal, ANatural=2020, IBR=Dudosa", id);
        }
        Poner("T_PatologiaSem", "Id_Animal=57001, ANatural=2019, IBRsp=rara");
        Poner("T_PatologiaSem", "Id_Animal=57001, ANatural=2021, BVDsp=Negativa");
        Poner("T_FechasVacu", "Id_Ganadero=57, Ln=1, IBR", F("20/4/2017"));
        f = std::make_unique<Sementales>(sesion);
        Mostrar(*f);
    }

    QComboBox* Combo(const char* nombre) { return f->findChild<QComboBox*>(Q(nombre)); }
    QString Ganadero(int i) { return f->findChild<QLabel*>(u"Et_Ganadero(%1)"_s.arg(i))->text(); }
    RejillaPatologia* Rejilla(const char* nombre) {
        return static_cast<RejillaPatologia*>(f->findChild<QTableWidget*>(Q(nombre)));
    }
    QString Botones() { return Encendidos(*f, "B_Borrar"); }
    // Presses an icon and takes a row of the selector that it opens.
    void Buscar(int icono, int fila) {
        QTimer::singleShot(0, f.get(), [fila] {
            auto* lista = QApplication::activeModalWidget()->findChild<QTableView*>();
            lista->setCurrentIndex(lista->model()->index(fila, 0));
            QTest::keyClick(lista, Qt::Key_Return);
        });
        f->findChild<QToolButton*>(u"IconoBusDato(%1)"_s.arg(icono))->click();
        Mostrar(*f); // active again after the selector
    }
    // Opens the cell by typing, and ends with a key.
    void Escribir(RejillaPatologia* r, int fila, int columna, const char* texto, Qt::Key fin = Qt::Key_Tab) {
        f->findChild<QTabWidget*>()->setCurrentIndex(1);
        r->setFocus();
        r->setCurrentCell(fila, columna);
        QTest::keyClicks(r, Q(texto).left(1));
        QVERIFY(QApplication::focusWidget() != r);
        QTest::keyClicks(QApplication::focusWidget(), Q(texto).mid(1));
        QTest::keyClick(QApplication::focusWidget(), fin);
    }
    QString Fila(RejillaPatologia* r, int fila) {
        QStringList t;
        for (int c = 0; c < r->columnCount(); ++c)
            t << r->item(fila, c)->text();
        return t.join(u'|');
    }
};

const char* const kCopias =
    "SELECT T_Servicios.Semental, T_Partos.Semental FROM T_Servicios INNER JOIN T_Partos ON "
    "T_Servicios.Id_Semental = T_Partos.Id_Semental ORDER BY T_Partos.Id_Semental";

} // namespace

class PruebaSementales : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Adding: the messages in their order, the proposed code, the compound name, a code that is taken.
    void Alta() {
        Puesto p;
        QCOMPARE(Mnemonicos(*p.f), u"ABCDEFGHIJLMNOPRSTUVZ"_s);
        QCOMPARE(p.Botones(), u"AR"_s);
        QCOMPARE(p.CajaDe(BotonDe(*p.f, "B_Añadir")),
                 u"Seleccione el Ganadero al que le va añadir un Toro"_s);
        QCOMPARE(p.Botones(), u"AR"_s);
        p.Buscar(1, 1);
        QCOMPARE(p.Ganadero(0) + p.Ganadero(1) + p.Ganadero(2), u"57La XuanLlanes"_s);
        QCOMPARE(p.Botones(), u"AR"_s); // no bull, nothing to modify
        BotonDe(*p.f, "B_Añadir")->click();
        QCOMPARE(CampoDe(*p.f, 0)->text(), u"57003"_s);
        QVERIFY(p.f->focusWidget() == CampoDe(*p.f, 0) && CampoDe(*p.f, 0)->hasSelectedText());
        QVERIFY(!p.Rejilla("GridPatologia")->isEnabled());
        QCOMPARE(p.CajaDe(BotonDe(*p.f, "B_Guardar")), u"Debe incluir como mínimo el Código y el Nombre"_s);
        Teclear(*p.f, 1, "Ceo");
        p.Combo("CD_Cularidad")->setCurrentIndex(1);
        QCOMPARE(CampoDe(*p.f, 2)->text(), u"Ceo-N"_s);
        Teclear(*p.f, 1, "Cobalto");
        QTest::keyClick(CampoDe(*p.f, 1), Qt::Key_Tab);
        QCOMPARE(CampoDe(*p.f, 2)->text(), u"Cobalto-N"_s);
        Teclear(*p.f, 0, "57002");
        QCOMPARE(p.CajaDe(BotonDe(*p.f, "B_Guardar")), u"Codigo no Valido, Cambielo por Otro"_s);
        QCOMPARE(p.Botones(), u"GC"_s);
        Teclear(*p.f, {{0, "57003"}, {14, "-0,119"}});
        Teclear(*p.f, 19, "31/2/26"); // no date
        BotonDe(*p.f, "B_Guardar")->click();
        QUEDA(p,
              "Nombre, NombreC, Id_Ganadero, Cularidad, MG_PN, FechaAlta, FechaNac, FechaBaja, CBaja, "
              "OtraCausa, ToroP, Origen FROM T_Sementales WHERE Id_Semental = 57003",
              "Cobalto|Cobalto-N|57|G-Normal|-0,119|22/11/26|-|-|-|-|-|-");
        QCOMPARE(p.Botones(), u"AMER"_s);
        QVERIFY(p.Rejilla("GridPatologia")->isEnabled());
        // of farmer 1 the same class marks an insemination bull
        p.Buscar(1, 0);
        QCOMPARE(p.Ganadero(1), u"Centro de IA"_s);
        QCOMPARE(p.Botones(), u"GC"_s);
        p.Combo("CD_Cularidad")->setCurrentIndex(3);
        QCOMPARE(CampoDe(*p.f, 2)->text(), u"Cobalto(IA)-C"_s);
        p.Combo("CD_Cularidad")->setCurrentIndex(0);
        QCOMPARE(CampoDe(*p.f, 2)->text(), u"Cobalto"_s);
    }

    // Modifying: what reaches services and calvings, what dates and codes are kept, what an apostrophe stops.
    void Modificacion() {
        Puesto p;
        p.f->CargarFicha(57001);
        QCOMPARE(p.Ganadero(1), u"La Xuan"_s);
        QCOMPARE(p.Combo("CD_Cularidad")->currentText(), u"G-Culón"_s);
        Teclear(*p.f, 1, "Argos");
        QTest::keyClick(CampoDe(*p.f, 1), Qt::Key_Tab);
        Teclear(*p.f, {{0, "99"}, {6, "31/2/20"}, {19, "1/2/26"}});
        QCOMPARE(p.CajaDe(BotonDe(*p.f, "B_Guardar")), u"El Código no se puede cambiar"_s);
        const char* const toro =
            "SELECT Id_Semental, NombreC, FechaNac, FechaBaja FROM T_Sementales WHERE Nombre = 'Argos'";
        QCOMPARE(p.Texto(toro), "57001|Argos-C|06/08/11|01/02/26"s);
        QCOMPARE(p.Texto(kCopias), "Argos-C|Argos-C/Viejo|Viejo"s);
        Teclear(*p.f, 19, "x");
        BotonDe(*p.f, "B_Guardar")->click();
        QCOMPARE(p.Texto(toro), "57001|Argos-C|06/08/11|-"s);

        Teclear(*p.f, 2, "L'Argos");
        BotonDe(*p.f, "B_Guardar")->click();
        QCOMPARE(p.cajas.Vistas().size(), 1); // the store's own cause
        QCOMPARE(p.Texto(toro), "57001|L'Argos|06/08/11|-"s);
        QCOMPARE(p.Texto(kCopias), "Argos-C|Argos-C/Viejo|Viejo"s);

        // saved with the keyboard from the name itself, which is not left
        Teclear(*p.f, 1, "Argón");
        QTest::keyClick(p.f.get(), Qt::Key_G, Qt::AltModifier);
        QTRY_COMPARE(p.Texto(kCopias), "Argón-C|Argón-C/Viejo|Viejo"s);
        QUEDA(p, "NombreC FROM T_Sementales WHERE Id_Semental = 57001", "Argón-C");
    }

    // A health grid that could not be written asks before it goes, and is written by the next save.
    void SerologiaQueFalla() {
        Puesto p;
        p.Poner("T_Sementales", "Id_Semental=9, Nombre=X, Id_Ganadero=57");
        for (const auto& [año, bvd] : {std::pair{2019, "Positiva"}, {2021, "Dudosa"}})
            p.Poner("T_PatologiaSem", "Id_Animal=9, ANatural, BVDsp", año, bvd);
        Crudo(p.sesion.conexion, "CREATE UNIQUE INDEX estorbo ON T_PatologiaSem (BVDsp)");
        p.f->CargarFicha(9);
        auto* tab = p.f->findChild<QTabWidget*>();
        tab->setCurrentIndex(1);
        auto* r = p.f->findChild<RejillaPatologia*>(u"GridPatologia"_s);
        r->Cambiar(1, 4, u"Dudosa"_s);
        QTRY_COMPARE(p.cajas.Cuantas(), 1);
        p.cajas.Vistas();
        p.cajas.Responder(false);
        p.f->reject();
        QVERIFY(p.f->isVisible());
        QCOMPARE(p.cajas.Vistas().size(), 1);
        Crudo(p.sesion.conexion, "DROP INDEX estorbo");
        BotonDe(*p.f, "B_GuardarPato")->click();
        QUEDA(p, "ANatural, BVDsp FROM T_PatologiaSem WHERE Id_Animal = 9 ORDER BY ANatural",
              "2019|Dudosa/2021|Dudosa");
        p.f->reject();
        QVERIFY(!p.f->isVisible());
    }

    void Baja() {
        Puesto p;
        p.Poner(
            "T_Sementales",
            "Id_Semental=9, Nombre=X, Id_Ganadero=57, CBaja=Robo, OtraCausa=con nocturnidad, Raza=a. valles");
        p.f->CargarFicha(9);
        auto* causa = p.Combo("CD_CBaja");
        auto* otra = p.f->findChild<QLineEdit*>(u"CtextoBaja"_s);
        QCOMPARE(causa->currentText(), QString()); // unknown: nothing is chosen, and nothing is stored
        QVERIFY(!otra->isHidden());                // what is stored is in sight
        QCOMPARE(p.Combo("CD_Raza")->currentText(), u"A. Valles"_s);
        Teclear(*p.f, 13, "B+");
        BotonDe(*p.f, "B_Guardar")->click();
        const char* const fila = "SELECT Raza, CBaja, OtraCausa FROM T_Sementales WHERE Id_Semental = 9";
        QCOMPARE(p.Texto(fila), "a. valles|-|con nocturnidad"s);
        BotonDe(*p.f, "B_Modificar")->click();
        causa->setCurrentIndex(causa->findText(u"Otra"_s));
        otra->setFocus();
        otra->selectAll();
        QTest::keyClick(otra, Qt::Key_Delete);
        BotonDe(*p.f, "B_Guardar")->click();
        QCOMPARE(p.Texto(fila), "a. valles|Otra|-"s);
        QVERIFY(!otra->isHidden());
        p.f->CargarFicha(57001);
        QVERIFY(otra->isHidden());
    }

    void Eliminar() {
        Puesto p;
        p.f->CargarFicha(57001);
        p.cajas.Responder(true);
        BotonDe(*p.f, "B_Borrar")->click();
        QCOMPARE(p.cajas.Tomar(), QStringList{u"Confirme Eliminar|Eliminar Semental: Ares"_s});
        QUEDA(p, "Id_Semental FROM T_Sementales", "57002");
        QUEDA(p, "Id_Animal FROM T_PatologiaSem", "");
        QUEDA(p, "Id_Animal FROM T_PatologiaSemR ORDER BY Id_Animal", "57001/57002");
        QCOMPARE(p.Texto(kCopias), "Viejo|Viejo/Viejo|Viejo"s);
        QCOMPARE(CampoDe(*p.f, 1)->text() + p.Ganadero(0), u"57"_s);
        QVERIFY(!p.Rejilla("GridPatologia")->isEnabled());
        // a code that is not there clears the sheet, and the one before it can be looked for again
        p.f->CargarFicha(57002);
        Teclear(*p.f, 0, "57001");
        QTest::keyClick(CampoDe(*p.f, 0), Qt::Key_Return);
        QCOMPARE(p.cajas.Tomar(), QStringList{u"Atención...|No Encuentro el Codigo: 57001"_s});
        QCOMPARE(CampoDe(*p.f, 0)->text() + CampoDe(*p.f, 1)->text(), QString());
        Teclear(*p.f, 0, "57002");
        QTest::keyClick(CampoDe(*p.f, 0), Qt::Key_Return);
        QCOMPARE(CampoDe(*p.f, 1)->text(), u"Brío"_s);
    }

    void Busquedas() {
        Puesto p;
        p.Poner(
            "T_Vacas",
            "Id_Vaca=57009, Id_Ganadero=57, Nombre=Mora, NombreC=Mora-A, RegGenealogico=AV1, RegSaneam=77");
        p.Buscar(4, 1); // by merit, without any farmer
        QCOMPARE(CampoDe(*p.f, 1)->text(), u"Brío"_s);
        p.Buscar(3, 0);
        QCOMPARE(CampoDe(*p.f, 10)->text() + CampoDe(*p.f, 11)->text() + CampoDe(*p.f, 12)->text(),
                 u"Mora-AAV177"_s);
        QCOMPARE(p.Botones(), u"GC"_s); // choosing began a modification
        p.Buscar(2, 0);
        QCOMPARE(CampoDe(*p.f, 7)->text(), u"Ares-C"_s);
        p.cajas.Responder(false); // what is being edited is not lost unasked
        p.Buscar(0, 0);
        QVERIFY(p.Caja().startsWith(QLatin1String("Hay cambios sin guardar")));
        QCOMPARE(CampoDe(*p.f, 1)->text(), u"Brío"_s);
        p.cajas.Responder(true);
        p.Buscar(0, 0);
        p.cajas.Vistas();
        QCOMPARE(CampoDe(*p.f, 1)->text(), u"Ares"_s);
    }

    void Serologias() {
        Puesto p;
        p.f->CargarFicha(57001);
        auto* r = p.Rejilla("GridPatologia");
        const char* const filas =
            "SELECT ANatural, Edad, IBRsp, BVDsp, NeospBp FROM T_PatologiaSem ORDER BY ANatural";
        QCOMPARE(r->rowCount(), 3); // two lines and the empty one
        QCOMPARE(p.Fila(r, 0), u"2021|10|||Negativa|||"_s);
        p.Escribir(r, 2, 0, "2021");
        QCoreApplication::processEvents();
        QCOMPARE(p.cajas.Tomar(), QStringList{u"Atención|Ya existe una línea para el año natural 2021"_s});
        QCOMPARE(r->rowCount(), 3);
        p.Escribir(r, 2, 0, "x20z23"); // digits only; Tab passes over the age, which is derived
        QCOMPARE(QApplication::focusWidget()->objectName(), u"Cb_IBR(0)"_s);
        QTest::keyClicks(QApplication::focusWidget(), u"d"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QCOMPARE(p.Texto(filas), "2019|8|rara|-|-/2021|10|-|Negativa|-/2023|12|Dudosa|-|-"s);
        // a result waits for its year
        p.Escribir(r, 3, 7, "p");
        QUEDA(p, "ANatural FROM T_PatologiaSem ORDER BY ANatural", "2019/2021/2023");
        p.cajas.Responder(false);
        p.f->reject();
        QVERIFY(p.Caja().startsWith(u"Hay cambios sin guardar en «Patologías»"_s));
        BotonDe(*p.f, "B_Modificar")->click();
        BotonDe(*p.f, "B_Guardar")->click();
        QCOMPARE(p.Fila(r, 0).left(4), u"2023"_s); // newest first again
        Teclear(*p.f, 6, "");
        p.Escribir(r, 3, 0, "2024");
        QCOMPARE(p.Fila(r, 3), u"2024|||||||Positiva"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        QTest::keyClicks(QApplication::focusWidget(), u"1999"_s);
        BotonDe(*p.f, "B_Cancelar")->click(); // what the open editor holds is of no line any more
        // an out-of-list value is offered to be kept; the list puts in what is chosen
        QTest::mouseClick(r->viewport(), Qt::LeftButton, {}, r->visualItemRect(r->item(3, 2)).center());
        auto* combo = static_cast<QComboBox*>(r->indexWidget(r->currentIndex()));
        QCOMPARE(combo->currentText(), u"rara"_s);
        QCOMPARE(combo->itemText(3), u"Dudosa"_s);
        Teclas(combo->view(), {Qt::Key_Up, Qt::Key_Return});
        QTRY_COMPARE(p.Texto(filas),
                     "2019|8|Dudosa|-|-/2021|10|-|Negativa|-/2023|12|Dudosa|-|-/2024|13|-|-|Positiva"s);
        // deletion begins a modification, and asks
        for (const bool si : {false, true}) {
            r->setFocus();
            r->setCurrentCell(3, 0);
            p.cajas.Responder(si);
            QTest::keyClick(r, Qt::Key_Delete);
            QCOMPARE(p.cajas.Tomar(), QStringList{u"Eliminar|Confirme Eliminar"_s});
            QCOMPARE(r->rowCount(), si ? 4 : 5);
        }
        QUEDA(p, "ANatural FROM T_PatologiaSem ORDER BY ANatural", "2021/2023/2024");
        r->setCurrentCell(3, 0);
        QTest::keyClick(r, Qt::Key_Delete); // the empty line: nothing to ask
        BotonDe(*p.f, "B_Cancelar")->click();
    }

    void VacunasYObservaciones() {
        Puesto p;
        p.f->CargarFicha(57001);
        auto* r = p.Rejilla("GridPatologiaR");
        p.Escribir(r, 0, 4, "ConvB");
        p.Escribir(r, 0, 1, "2");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QUEDA(p, "ANatural, VIBR, VBVD, IBR FROM T_PatologiaSemR WHERE Id_Animal = 57001",
              "2020|20/04/17|-|ConvBp");

        auto* memo = p.f->findChild<QPlainTextEdit*>(u"CT_Estandar(21)"_s);
        const char* const obs = "SELECT ObsPatologia FROM T_Sementales WHERE Id_Semental = 57001";
        const auto escribir = [&](const char* texto) {
            memo->setFocus();
            memo->selectAll();
            QTest::keyClicks(memo, Q(texto));
        };
        escribir("limpia");
        QTest::keyClick(memo, Qt::Key_Return);
        BotonDe(*p.f, "B_GuardarPato")->click();
        QCOMPARE(p.Texto(obs), "limpia\r\n"s);
        QCOMPARE(p.Botones(), u"AMER"_s); // nothing else was being changed
        escribir("d'afuera");
        BotonDe(*p.f, "B_GuardarPato")->click();
        QVERIFY(p.cajas.Vistas().size() == 1);
        QCOMPARE(p.Texto(obs), "limpia\r\n"s);
        QCOMPARE(memo->toPlainText(), u"d'afuera"_s);
        BotonDe(*p.f, "B_Guardar")->click(); // the sheet's own save takes it
        QCOMPARE(p.Texto(obs), "d'afuera"s);
        escribir("otra");
        Teclear(*p.f, 13, "B");
        BotonDe(*p.f, "B_CancelarPato")->click();
        QCOMPARE(memo->toPlainText() + u'|' + CampoDe(*p.f, 13)->text() + p.Botones(), u"d'afuera|BGC"_s);
        memo->selectAll();
        QTest::keyClick(memo, Qt::Key_Delete);
        BotonDe(*p.f, "B_GuardarPato")->click();
        QCOMPARE(p.Texto(obs), "-"s);
        BotonDe(*p.f, "B_Cancelar")->click();
    }

    // Every bull of the example, saved as it was shown, is the row that it was.
    void VuelvenIguales() {
        PuestoDeFichas p;
        p.sesion.conexion.Cerrar();
        AbrirEjemplo(p.sesion.conexion, p.carpeta, u"BD_PradalP.mdb"_s);
        const auto antes = FilasDe(p.sesion.conexion, "T_Sementales");
        QVERIFY(!antes.isEmpty());
        Sementales f(p.sesion);
        for (Recordset rs(p.sesion.conexion, "SELECT Id_Semental FROM T_Sementales ORDER BY Id_Semental");
             !rs.Eof(); rs.Siguiente()) {
            QVERIFY(f.CargarFicha(rs["Id_Semental"].Numero()));
            f.Modificar();
            f.Guardar();
        }
        QCOMPARE(p.cajas.Vistas().size(), 0);
        QCOMPARE(FilasDe(p.sesion.conexion, "T_Sementales"), antes);
    }
};

// What the bull file does to the database, without its window.
class PruebaSementalesDatos : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Codigo_data() {
        // toros: his
        Caso("farmer 1 counts from 1", 1.0, QList<double>{}, "1");
        Caso("farmer 1 goes on", 1.0, QList<double>{1, 36}, "37");
        Caso("first of a farmer", 57.0, QList<double>{}, "57001");
        Caso("second", 57.0, QList<double>{57001}, "57002");
        Caso("long code", 57000.0, QList<double>{57000099}, "57000100");
        Caso("number equal to the code", 3040.0, QList<double>{3039}, "3040");
        Caso("foreign small number", 3040.0, QList<double>{12}, "3040013");
        Caso("order of entry does not matter", 57.0, QList<double>{57009, 57002}, "57010");
    }
    void Codigo() {
        const auto [ganadero, toros, propuesto] = DelCaso<double, QList<double>, QString>();
        Base b;
        b.Poner("T_Sementales", "Id_Semental=99999999, Id_Ganadero=2"); // another's
        for (const double t : toros)
            b.Poner("T_Sementales", "Id_Semental, Id_Ganadero", t, ganadero);
        QCOMPARE(Q(CodigoDeSemental(b.c, ganadero)), propuesto);
    }

    void NombresYEdades() {
        const auto casos = [](const char* texto, const std::function<void(const QStringList&)>& hacer) {
            for (const auto& caso : Q(texto).split(u'|'))
                hacer(caso.split(u';'));
        };
        casos("G-Culón;1;Ares(IA)-C|G-Culón;2;Ares-C|G-Aculonado;11;Ares-A|g-normal;1;Ares(IA)-n|Normal;1;"
              "Ares|;1;Ares|G;2;Ares-",
              [](const QStringList& c) {
                  QCOMPARE(NombreCompuesto("Ares", c[0].toStdString(), c[1].toStdString()),
                           c[2].toStdString());
              });
        casos("31/12/11;2017;6|1/1/11;2017;6|1/1/2011;17;6|1/1/2011;2011;0|5/5/98;2001;3|1/1/2020;1950;-70|1/"
              "1/2020;2049;29|;2017;|31/2/11;2017;|1/1/11;;",
              [](const QStringList& c) {
                  QCOMPARE(EdadEnAño(FechaDeTexto(c[0].toStdString()), c[1].toStdString()),
                           c[2].toStdString());
              });
    }

    // Two rows of one year, a column that the grid does not know and an age that does not read as a whole number go back as they were.
    void PatologiasVuelvenIguales() {
        Base b;
        b.c.Execute("ALTER TABLE T_PatologiaSemR ADD COLUMN Nota DOUBLE");
        for (const double nota : {1.5, 2.5})
            b.Poner("T_PatologiaSemR", "Id_Animal=1, ANatural=2020, IBR=rara, Nota", nota);
        b.Poner("T_PatologiaSemR", "Id_Animal=1, ANatural=2021");
        b.Poner("T_PatologiaSemR", "Id_Animal=2, ANatural=2020");
        b.Poner("T_PatologiaSem", "Id_Animal=1, ANatural=2020, Edad", 1.0 / 3);
        for (const auto* d : {&PatologiaSem(), &PatologiaSemR()}) {
            const auto todo = "SELECT * FROM "s + d->tabla + " ORDER BY Id_Animal, ANatural DESC";
            const auto antes = b.Texto(todo);
            auto lineas = LeerPatologias(b.c, *d, 1);
            lineas.emplace_back().celdas.resize(d->columnas.size()); // without a year
            GuardarPatologias(b.c, *d, 1, lineas);
            QCOMPARE(Q(b.Texto(todo)), Q(antes));
        }
        Recordset rs(b.c, "SELECT Edad FROM T_PatologiaSem");
        QCOMPARE(rs["Edad"].Numero(), 1.0 / 3);
    }

    void Vacunas() {
        Base b;
        b.Poner("T_FechasVacu", "Id_Ganadero=57, Ln=2, IBR=4/5/2021, BVD=1/1/2020");
        b.Poner("T_FechasVacu", "Id_Ganadero=57, Ln=1, IBR", F("20/4/2017"));
        b.Poner("T_FechasVacu", "Id_Ganadero=57, Ln=3, IBR", F("4/5/2021"));
        b.Poner("T_FechasVacu", "Id_Ganadero=2, Ln=1, IBR", F("9/9/2019"));
        QCOMPARE(LeerFechasVacu(b.c, "IBR", "Ln", 57)[0], (std::vector<std::string>{"20/04/17", "04/05/21"}));
        QCOMPARE(LeerFechasVacu(b.c, "NEOSPORA", "Ln", 57)[0], std::vector<std::string>{});
    }
};

PRUEBA(PruebaSementales)
PRUEBA(PruebaSementalesDatos)
#include "PruebaSementales.moc"
