#include "Granjas.h"
#include "frame/Cajas.h"
#include "frame/Ultimos.h"
#include "frame/selector/GridSelector.h"
#include "frame/selector/Selector.h"
#include "frame/selector/SentenciasSelector.h"

using namespace prueba;

class PruebaVentanaSelector : public QObject {
    Q_OBJECT

    struct Escena {
        explicit Escena(TipoSelector tipo, const std::string& texto = {},
                        const std::function<void(Granjas&)>& antes = {})
            : s(b.c, (antes ? antes(b) : void(), PrepararSelector(b.c, tipo, texto))) {
            s.show();
            if (!QTest::qWaitForWindowActive(&s))
                qCritical("the selector does not become active");
            rejilla = s.findChild<GridSelector*>("GridSelector");
        }
        QLineEdit* Buscar() const { return s.findChild<QLineEdit*>("Buscar"); }
        QLabel* Titulo(int i) const { return s.findChild<QLabel*>(u"Et_Estandar(%1)"_s.arg(i)); }
        QLineEdit* Caja(int i) const { return s.findChild<QLineEdit*>(u"CTexto(%1)"_s.arg(i)); }
        QString Estado() const { return s.findChild<QLabel*>("Estado")->text(); }
        QString Celda(int fila, int columna) const {
            return rejilla->model()->index(fila, columna).data().toString();
        }
        QString Columna(int columna) const {
            QStringList lista;
            for (int f = 0; f < rejilla->model()->rowCount(); ++f)
                lista << Celda(f, columna);
            return lista.join('/');
        }
        void Filtrar(int i, const QString& texto) const {
            Caja(i)->clear();
            QTest::keyClicks(Caja(i), texto);
            QTest::keyClick(Caja(i), Qt::Key_Return);
        }

        Granjas b;
        Selector s;
        GridSelector* rejilla;
    };
    static std::string Vacas() { return SentenciaVacas().Completa(); }

    // Runs `hacer` on the selector that shows itself modally.
    template <typename F>
    static void EnSelector(F hacer) {
        QTimer::singleShot(0, qApp, [hacer] {
            auto* s = qobject_cast<Selector*>(QApplication::activeModalWidget());
            if (!s) {
                qCritical("no selector on show");
                return;
            }
            hacer(s);
            if (s->isVisible()) {
                qCritical("the selector stays open");
                s->reject();
            }
        });
    }

private Q_SLOTS:
    void TeclasDeUnaEleccion() {
        Escena e(TipoSelector::MadresParaVacas, Vacas());
        QCOMPARE(e.s.windowTitle(), u" Selector de Vacas"_s);
        QCOMPARE(e.s.focusWidget(), e.Buscar());
        QVERIFY(e.rejilla->currentIndex().isValid());
        QTest::keyClicks(e.Buscar(), "luna");
        QTest::keyClick(e.Buscar(), Qt::Key_Return); // two are left: the list asks which
        QVERIFY(e.s.isVisible() && e.s.focusWidget() == e.rejilla);
        QTest::keyClick(e.rejilla, Qt::Key_Up);
        QCOMPARE(e.s.focusWidget(), e.Buscar());
        e.Buscar()->clear();
        QTest::keyClicks(e.Caja(1), "cuesta");
        QCOMPARE(e.rejilla->model()->rowCount(), 4); // nothing before Enter
        QTest::keyClick(e.Caja(1), Qt::Key_Return);
        QCOMPARE(e.Columna(7) + u'|' + e.Estado(), u"Estrella|1 registro, 1 de baja"_s);
        QVERIFY(e.s.isVisible());
        QTest::keyClick(e.Caja(1), Qt::Key_Down);
        QCOMPARE(e.s.focusWidget(), e.rejilla);
        QTest::keyClick(e.rejilla, Qt::Key_Enter);
        QVERIFY(!e.s.isVisible());
        const auto& r = e.s.Resultado();
        QCOMPARE(int(r.fin), 0);
        QCOMPARE(r.clave, 57000001.0);
        QCOMPARE(r.texto, "Estrella"s);
        QCOMPARE(TextoDe(r.De("CROTAL")), "ES0300001245"s);
        QVERIFY(EsNulo(r.De("no tal campo")));
    }

    void DobleClicEligeSuFila() {
        Escena e(TipoSelector::Vacas, Vacas());
        const auto celda = e.rejilla->visualRect(e.rejilla->model()->index(2, 4)).center();
        QTest::mouseClick(e.rejilla->viewport(), Qt::LeftButton, {}, celda);
        QVERIFY(e.s.isVisible());
        QTest::mouseDClick(e.rejilla->viewport(), Qt::LeftButton, {}, celda);
        QVERIFY(!e.s.isVisible());
        QCOMPARE(e.s.Resultado().clave, 1200003.0);
        QCOMPARE(e.s.Resultado().texto, std::string()); // only kinds 14 and 17 have a text
    }

    void UnFiltroMalHechoDejaLaLista() {
        Escena e(TipoSelector::Vacas, Vacas());
        e.Filtrar(8, "45");
        e.rejilla->selectRow(1);
        for (const auto& [caja, texto] : {std::pair{4, ">"}, {7, "O'Hara"}}) {
            QCOMPARE(e.Columna(7), u"Ñora/Estrella"_s);
            e.Filtrar(caja, texto);
            QCOMPARE(e.Caja(caja)->text(), QString(texto));
            QCOMPARE(e.Columna(7), u"Ñora/Estrella"_s);
            QCOMPARE(e.rejilla->currentIndex().row(), 1);
            QVERIFY(e.Estado().contains("no es correcto"));
            e.Filtrar(caja, "");
            QCOMPARE(e.Estado(), u"2 registros, 1 de baja"_s);
            e.rejilla->selectRow(1);
        }
    }

    void LasCajasSoloDejanPasarLoSuyo() {
        Escena e(TipoSelector::Vacas, Vacas());
        const QString todo = "a>1<=2 ,3/4*";
        for (const auto& [caja, queda] : {std::pair{4, ">1<=234"}, {11, "123/4"}, {7, "a>1<=2 ,3/4*"}}) {
            QTest::keyClicks(e.Caja(caja), todo);
            QCOMPARE(e.Caja(caja)->text(), QString(queda));
        }
        e.Caja(4)->clear();
        QTest::keyClicks(e.Caja(4), "12");
        QTest::keyClick(e.Caja(4), Qt::Key_Backspace);
        e.Caja(4)->insert(" OR 1=1"); // as pasted
        QCOMPARE(e.Caja(4)->text(), u"1"_s);
    }

    void LosTorosDeBaja() {
        Escena e(TipoSelector::PadresParaCubriciones, "12");
        auto* boton = e.s.findChild<QToolButton*>("BarraHerr(1)");
        QVERIFY(boton->isEnabled());
        QCOMPARE(boton->text() + u'|' + e.Columna(6), u"|Ares-C/Ajeno-C/Imán-C"_s);
        boton->setFocus();
        QTest::keyClick(boton, Qt::Key_Space);
        QCOMPARE(boton->toolTip(), u" Accionado "_s);
        QCOMPARE(e.Columna(6), u"Ares-C/Brezo-C/Ajeno-C/Imán-C/Jara-C"_s);
        e.Filtrar(0, "casa*"); // the filter and the button hold together
        QCOMPARE(e.Columna(6), u"Ares-C/Brezo-C"_s);
        QTest::mouseClick(boton, Qt::LeftButton);
        QCOMPARE(boton->toolTip(), QString());
        QCOMPARE(e.Columna(6), u"Ares-C"_s);
    }

    // One box for all columns: letters, figures, in any case and without accents; filters and search hold together.
    void BuscarSegunSeEscribe_data() {
        Caso("nothing", "  ", "Luna/Luna Nueva/Ñora/Estrella");
        Caso("part of a name", "UN", "Luna/Luna Nueva");
        Caso("accent", "nicolas culon", "Luna");
        Caso("two words, two columns", "nueva 4513", "Luna Nueva");
        Caso("words over two columns", "luna es03 00004512", "Luna");
        Caso("ñ is no n", "nora", "");
        Caso("ñ", "ÑORA", "Ñora");
        Caso("code", "5700000", "Estrella");
        Caso("middle of a tag", "00012", "Estrella");
        Caso("date", "15/03/24", "Estrella");
        Caso("apostrophe", "o'hara", "");
    }
    void BuscarSegunSeEscribe() {
        const auto [texto, vacas] = DelCaso<QString, QString>();
        Escena e(TipoSelector::Vacas, Vacas());
        QTest::keyClicks(e.Buscar(), "zz");
        QCOMPARE(e.Columna(7), QString());
        e.Buscar()->setText(texto);
        QCOMPARE(e.Columna(7), vacas);
        e.Filtrar(8, "12");
        QCOMPARE(e.Columna(7), vacas.split('/').filter(QRegularExpression("^Luna$")).join('/'));
    }

    void LoQueNoSeEncuentraSeExplica() {
        Escena e(TipoSelector::Vacas, Vacas());
        e.Filtrar(7, "lun");
        QVERIFY2(e.Estado().contains("escriba *lun*"), qPrintable(e.Estado()));
        e.Filtrar(7, "lun*x*");
        QCOMPARE(e.Estado(), u"0 registros"_s); // who writes asterisks knows
        e.Filtrar(7, "");
        e.Filtrar(4, "99");
        QCOMPARE(e.Estado(), u"0 registros"_s); // a number has none
        QTest::keyClicks(e.Buscar(), "luna");
        QCOMPARE(e.Estado(), u"0 registros con «luna» entre los que dejan los filtros"_s);
        e.Filtrar(4, "");
        QCOMPARE(e.Estado(), u"2 registros, 1 de baja"_s);
    }

    // Those who have left: a word before the row, another colour, and told to screen readers; whatever columns the list has.
    void LosDeBajaSeDistinguen_data() {
        // deBaja: rows
        Caso("cows", 2, Q(Vacas()), "1/3");
        Caso("bulls", 4, Q(SentenciaSementales().Completa()), "1/4");
        Caso("bulls by merit", 19, Q(SentenciaMeritos().Completa()), "1/3");
        Caso("farmers", 1, "", "1");
        Caso("sires, removed ones hidden", 11, "12", "");
        Caso("a plain list", 20, "", "");
    }
    void LosDeBajaSeDistinguen() {
        const auto [tipo, texto, deBaja] = DelCaso<int, QString, QString>();
        Escena e(static_cast<TipoSelector>(tipo), texto.toStdString(), [](Granjas& b) {
            b.c.Execute("UPDATE T_Ganaderos SET FechaBaja = #01/02/2024# WHERE Id_Ganadero = 900");
        });
        const auto* rejilla = e.rejilla;
        const auto& m = *rejilla->model();
        QStringList filas;
        for (int f = 0; f < m.rowCount(); ++f) {
            const bool baja = m.headerData(f, Qt::Vertical).toString() == "baja";
            QCOMPARE(m.index(f, 0).data(Qt::ForegroundRole).isValid(), baja);
            QCOMPARE(m.index(f, 0).data(Qt::AccessibleTextRole).toString().endsWith(", de baja"), baja);
            if (baja)
                filas << QString::number(f);
        }
        QCOMPARE(filas.join('/'), deBaja);
        QCOMPARE(rejilla->verticalHeader()->isVisible(), !deBaja.isEmpty());
    }

    void OrdenarPorUnTitulo() {
        Escena e(TipoSelector::Vacas, Vacas());
        const QString propio = e.Columna(7);
        e.Filtrar(7, "*a");
        e.Caja(7)->setText(">>>"); // not entered: the list stays filtered as it is
        QTest::mouseClick(e.Titulo(7), Qt::LeftButton);
        QCOMPARE(e.Columna(7) + u'|' + e.Titulo(7)->text(), u"Estrella/Luna/Luna Nueva/Ñora|▲ Nombre Vaca"_s);
        QTest::keyClick(e.Caja(8), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(e.Columna(8), u"45/ES0300001245/ES0300004512/ES0300004513"_s);
        QCOMPARE(e.Titulo(7)->text(), u"Nombre Vaca"_s);
        QTest::keyClick(e.Caja(8), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(e.Columna(8), u"ES0300004513/ES0300004512/ES0300001245/45"_s);
        QTest::keyClick(e.Caja(8), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(e.Columna(7), propio);
        QTest::keyClick(e.Caja(0), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(e.Columna(7), propio); // among equals the list's own order

        Escena padres(TipoSelector::PadresParaVacas, "12"); // in the order in which they are thought of
        QTest::mouseClick(padres.Titulo(6), Qt::LeftButton);
        QTest::keyClick(padres.Caja(6), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(padres.Columna(6), u"Ares-C/Ajeno-C/Imán-C"_s);
    }

    void SeAbreDondeSeEstuvo() {
        Granjas b;
        const auto filaAlAbrir = [&](TipoSelector tipo, const std::string& texto) {
            Selector s(b.c, PrepararSelector(b.c, tipo, texto));
            s.show();
            auto* rejilla = s.findChild<GridSelector*>("GridSelector");
            return rejilla->model()
                ->index(rejilla->currentIndex().row(), tipo == TipoSelector::Vacas ? 4 : 5)
                .data()
                .toString();
        };
        QCOMPARE(filaAlAbrir(TipoSelector::Ganaderos, {}), u"57"_s);
        {
            Selector s(b.c, PrepararSelector(b.c, TipoSelector::GanaderosParaVacas));
            s.show();
            QTest::keyClicks(s.findChild<QLineEdit*>("Buscar"), "pola");
            QTest::keyClick(s.findChild<QLineEdit*>("Buscar"), Qt::Key_Return);
        }
        QCOMPARE(filaAlAbrir(TipoSelector::Ganaderos, {}), u"12"_s);
        RecordarUltimo(b.c, "Id_Vaca", 57000001);
        QCOMPARE(filaAlAbrir(TipoSelector::Vacas, Vacas()), u"57000001"_s);
        RecordarUltimo(b.c, "Id_Vaca", 99); // gone since
        QCOMPARE(filaAlAbrir(TipoSelector::Vacas, Vacas()), u"1200001"_s);
        for (const double codigo : {1.0, 57000001.0, 2.0, 3.0, 4.0, 5.0, 2.0})
            RecordarUltimo(b.c, "Id_Vaca", codigo);
        QCOMPARE(Recientes(b.c, "Id_Vaca"), (std::vector<double>{2, 5, 4, 3, 57000001, 1}));
    }

    void TecladoEntreLaListaYLasCajas() {
        Escena e(TipoSelector::Ganaderos);
        QVERIFY(!e.s.findChild<QToolButton*>("BarraHerr(1)")->isEnabled());
        QCOMPARE(e.Celda(3, 0), u"Eva López (Tineo)"_s); // in one line
        const auto apodo = e.rejilla->model()->index(3, 2).data(Qt::AccessibleTextRole);
        QCOMPARE(apodo.toString(), u"Apodo: Casa Pola"_s);
        e.Caja(0)->setFocus();
        e.Caja(0)->setText("x");
        QTest::keyClick(e.Caja(0), Qt::Key_Down);
        QTest::keyClick(e.rejilla, Qt::Key_Down);
        QCOMPARE(e.rejilla->currentIndex().row(), 1);
        QTest::keyClick(e.rejilla, Qt::Key_Up);
        QCOMPARE(e.s.focusWidget(), e.rejilla);
        QTest::keyClick(e.rejilla, Qt::Key_Up);
        QCOMPARE(e.s.focusWidget(), e.Caja(0)); // where the list was entered from
        QCOMPARE(e.Caja(0)->text(), u"x"_s);
        e.Buscar()->setText("casa");
        e.rejilla->setFocus();
        QTest::keyClick(e.rejilla, 'E');
        QCOMPARE(e.s.focusWidget(), e.Buscar());
        QTest::keyClicks(e.Buscar(), "v");
        QCOMPARE(e.Buscar()->text().toLower(), u"ev"_s);
        e.Buscar()->clear();
        e.Caja(0)->setFocus();
        QTest::keyClick(e.Caja(0), Qt::Key_Tab);
        QCOMPARE(e.s.focusWidget(), e.Caja(1));
        for (int i = 1; i < 6; ++i)
            QTest::keyClick(e.Caja(i), Qt::Key_Tab);
        QCOMPARE(e.s.focusWidget(), e.rejilla);
        e.Filtrar(2, "no hay");
        QVERIFY(e.Estado().contains("*x*"));
        e.rejilla->setFocus();
        QTest::keyClick(e.rejilla, Qt::Key_Return); // nothing to choose
        QVERIFY(e.s.isVisible());
        QTest::keyClick(e.rejilla, Qt::Key_Escape);
        QCOMPARE(int(e.s.Resultado().fin), 27);
    }

    // The merit list has a key that is not shown, and more columns than fit.
    void LasCajasSiguenALasColumnas() {
        Escena e(TipoSelector::Meritos, SentenciaMeritos().Completa());
        QVERIFY(e.rejilla->isColumnHidden(15) && !e.Caja(15));
        const auto comprobar = [&](int i) {
            const auto* cabecera = e.rejilla->horizontalHeader();
            const int x =
                e.rejilla->viewport()->mapToGlobal(QPoint(cabecera->sectionViewportPosition(i), 0)).x();
            QCOMPARE(e.Caja(i)->mapToGlobal(QPoint()).x(), x + 1);
            QCOMPARE(e.Caja(i)->width(), cabecera->sectionSize(i) - 2);
        };
        e.s.resize(500, 300);
        QTRY_VERIFY(e.rejilla->horizontalScrollBar()->maximum() > 0);
        comprobar(3);
        e.rejilla->setColumnWidth(1, 222);
        comprobar(3);
        QApplication::processEvents(); // the scroll bar learns of the new width
        e.rejilla->horizontalScrollBar()->setValue(70);
        comprobar(3);
        e.Caja(14)->setFocus(); // out of sight so far
        comprobar(14);
        const auto* ventana = e.Caja(14)->parentWidget();
        QVERIFY(ventana->rect().contains(e.Caja(14)->geometry().center()));
        QTest::keyClick(e.Caja(14), Qt::Key_Down);
        QTest::keyClick(e.rejilla, Qt::Key_Return);
        QCOMPARE(e.s.Resultado().clave, 3.0);
    }

    void Elegir_data() {
        // clave: 0: nothing comes back
        Caso("chosen", 6, int(Qt::Key_Return), 57.0);
        Caso("left", 6, int(Qt::Key_Escape), 0.0);
        Caso("plain list", 21, int(Qt::Key_Return), 0.0);
    }
    void Elegir() {
        int tipo = 0, tecla = 0;
        double clave = 0;
        DelCaso(tipo, tecla, clave);
        Granjas b;
        EnSelector([tecla](Selector* s) {
            QTest::keyClick(s->findChild<GridSelector*>("GridSelector"), static_cast<Qt::Key>(tecla));
        });
        const auto eleccion = Selector::Elegir(b.c, static_cast<TipoSelector>(tipo), {}, nullptr);
        QCOMPARE(eleccion ? eleccion->clave : 0.0, clave);
        QCOMPARE(eleccion.has_value(), clave != 0);
    }

    void UnaListaQueNoSeAbreSeDice() {
        Cajas cajas;
        Granjas b;
        QVERIFY(!Selector::Elegir(b.c, TipoSelector::Vacas, "SELECT Nada FROM T_Vacas", nullptr));
        const auto vistas = cajas.Vistas();
        QCOMPARE(vistas.size(), 1);
        QVERIFY(vistas[0].texto.startsWith("-2147217904 ... "));
    }

    // A whole province's cows: right in any row that is asked for, in any order.
    void VeinteMilVacas() {
        Escena e(TipoSelector::Vacas, Vacas(), [](Granjas& b) {
            EnGrupo(b.c, [&] {
                for (int i = 0; i < 20000; ++i)
                    b.Poner("T_Vacas", "Id_Vaca, Id_Ganadero, Nombre, Crotal", 2000000 + i, i % 2 ? 12 : 57,
                            "Vaca " + std::to_string(i % 700), "ES03" + std::to_string(1000000 + i));
            });
        });
        QCOMPARE(e.Estado(), u"20.004 registros, 2 de baja"_s);
        Recordset rs(e.b.c, Vacas(), Cursor::Estatico, Bloqueo::SoloLectura);
        std::vector<QString> claves;
        for (; !rs.Eof(); rs.Siguiente())
            claves.push_back(Q(rs["Id_Vaca"].Texto()));
        for (const int fila : {20003, 0, 12345, 12344, 12346, 3, 19999})
            QCOMPARE(e.Celda(fila, 4), claves[static_cast<std::size_t>(fila)]);
        e.rejilla->setFocus();
        QTest::keyClick(e.rejilla, Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(e.rejilla->currentIndex().row(), 20003);
        e.Filtrar(8, "777");
        QCOMPARE(e.rejilla->model()->rowCount(), 20);
        e.Filtrar(8, "");
        QTest::keyClicks(e.Buscar(), "777 ES03100077");
        e.s.grab(); // drawn
        QCOMPARE(e.rejilla->model()->rowCount(), 1);
    }
};

PRUEBA(PruebaVentanaSelector)
#include "PruebaVentanaSelector.moc"
