#include "Cajas.h"
#include "Instalacion.h"

#include "frame/OrdenesPrincipal.h"
#include "frame/Ultimos.h"
#include "frame/calendario/Reloj.h"
#include "frame/selector/Selector.h"
#include "reports/CatalogoDeInformes.h"
#include "reports/ListadoMaestro.h"
#include "reports/formularios/FormularioDeInforme.h"
#include "reports/motor/ControlInforme.h"
#include "reports/motor/DisposicionesIncluidas.h"
#include "reports/motor/LectorDeTablas.h"

using namespace prueba;

// Every report of the catalogue: its form's checks in their order, what it tells the control, and that its layout prints what its figures leave.
class PruebaInformes : public QObject {
    Q_OBJECT

    // Farmer 12 with two cows and a year of records, 57 without any; 85 has left.
    struct Puesto {
        Instalacion i{false};
        std::optional<InformeTerminado> terminado;
        ControlInforme::Destinatario anterior;
        std::optional<LectorDeTablas> tablas;
        std::optional<ControlInforme> control;
        std::unique_ptr<FormularioDeInforme> f;

        explicit Puesto(const char* informe, const std::function<void(Conexion&)>& antes = {}) {
            i.Crear("personal.mdb", ClaseDeBase::Principal);
            Base().AbrirFichero(i.En("personal.mdb").toStdString(), ClaveDeBases);
            FijarHoy(Fecha::De(2026, 11, 22));
            EnGrupo(Base(), [&] {
                Llenar();
                if (antes)
                    antes(Base());
            });
            anterior =
                ControlInforme::InstalarDestino([this](InformeTerminado t) { terminado = std::move(t); });
            tablas.emplace(Base());
            control.emplace(*tablas);
            Abrir(informe);
        }
        void Abrir(const char* informe) {
            for (const auto& e : CatalogoDeInformes()) {
                if (QByteArray(e.nombre) != informe)
                    continue;
                f.reset(e.crear(i.sesion, *control, nullptr));
                if (const auto fija = QByteArray(e.fija).split('=');
                    fija.size() == 2) // what the name stands for
                    Poner(fija[0].constData(), fija[1].constData());
                return;
            }
            qCritical("no such report: %s", informe);
        }
        bool Aceptar() {
            Control<QPushButton>("B_Aceptar")->click();
            return terminado.has_value();
        }
        ~Puesto() {
            ControlInforme::InstalarDestino(anterior);
            FijarHoy({});
        }
        Conexion& Base() { return i.sesion.conexion; }
        void Llenar() {
            auto& c = Base();
            Insertar(c, "T_Veterinarios", "Id_Veterinario=2, NombreVet=Zoe, Id_Direccion=1");
            Insertar(c, "T_Direcciones", "Id_Direccion=1, Id_GV=2, TelefonoM=600");
            for (const char* ganadero : {"1, Nombre=Centro", "12, Nombre=Nora", "57, Nombre=Ana",
                                         "85, Nombre=Olvido, FechaBaja=15/10/2023"})
                Insertar(c, "T_Ganaderos", ("Id_Veterinario=2, Id_Ganadero="s + ganadero).c_str());
            for (const auto& [id, año] : {std::pair{"1", 2025}, {"2", 2027}}) {
                Insertar(c, "T_Vacas", "Id_Vaca, Id_Ganadero=12, Crotal, NombreC=Mora {1}'", id, "ES"s + id);
                Insertar(c, "T_Cubriciones", "Id_Vaca, Año_Ref, N_Parto=2, IPR_CP=50, IEPc=400", id, año);
            }
            Insertar(c, "T_Partos", "Id_Parto=1, Id_Vaca=1, Año_Ref=2025, N_Parto=2, Muere=No");
            Insertar(c, "T_Cebo", "Id_Cebo=1, Id_Ganadero=12, AñoRef=2025, Origen=Propio");
            Insertar(c, "T_Sementales", "Id_Semental=1, Id_Ganadero=12, NombreC=Ares");
            Insertar(c, "T_Sementales", "Id_Semental=2, Id_Ganadero=1, NombreC=Urbano");
        }
        void Poner(const char* opcion, const char* valor = "") const { f->PonerOpcion(Q(opcion), Q(valor)); }
        QString Impreso() const {
            QString t;
            for (const auto& pagina : terminado->paginas.paginas)
                for (const auto& trozo : pagina.trozos)
                    if (const auto* texto = std::get_if<TextoColocado>(&trozo))
                        t += texto->texto + u'|';
            return t;
        }
        bool Dice(const char* esto, const char* estoNo = "\n") const {
            return Impreso().contains(Q(esto)) && !Impreso().contains(Q(estoNo));
        }
        template <typename W>
        W* Control(const char* nombre) const {
            auto* w = f->findChild<W*>(Q(nombre));
            if (!w)
                qCritical("no control %s", nombre);
            return w;
        }
        // Told, with so many figures in front, and nothing opened.
        void Falla(Cajas& cajas, const char* numero, const char* trozo) {
            QVERIFY(!f->Aceptar() && !terminado && Control<QPushButton>("B_Aceptar")->isEnabled());
            const auto vistas = cajas.Tomar();
            QCOMPARE(vistas.size(), 1);
            QVERIFY2(vistas[0].startsWith(u"Atención...|%1 ... "_s.arg(numero)) && vistas[0].contains(trozo),
                     qPrintable(vistas[0]));
        }
    };

private Q_SLOTS:
    // The pickers that all report forms share. The first of December belongs to the next year.
    void Selectores() {
        Puesto p("IndTecnicos", [](Conexion& c) {
            FijarHoy(Fecha::De(2025, 12, 1));
            Insertar(c, "T_Veterinarios", "Id_Veterinario=1, NombreVet=Ana");
            for (const char* nombre : {"Ñisu", "Nuria"})
                Insertar(c, "T_Ganaderos", "Id_Ganadero, Nombre, Apellidos=Díaz, Id_Veterinario=1",
                         *nombre == 'N' ? 310 : 58, nombre);
        });
        auto* vet = p.Control<QComboBox>("Cd_Veterinario");
        auto* lista = p.Control<QListWidget>("lstGanadero");
        auto* año = p.Control<QLineEdit>("Ct_E");
        const auto nombres = [&] {
            QStringList t;
            for (int i = 0; i < lista->count(); ++i)
                t << lista->item(i)->text().trimmed();
            return t.join(u'/');
        };
        QCOMPARE(p.f->windowTitle() + año->text(), u"Índices Técnicos2026"_s);
        QCOMPARE(vet->currentIndex(), -1);
        QCOMPARE(vet->itemText(0), u"Ana"_s);
        QCOMPARE(nombres(), u"Ana/Centro/Nora/Nuria Díaz/Ñisu Díaz"_s);
        vet->setCurrentIndex(0);
        Q_EMIT vet->activated(0);
        QCOMPARE(nombres(), u"Nuria Díaz/Ñisu Díaz"_s);
        lista->item(0)->setCheckState(Qt::Checked);
        lista->item(1)->setCheckState(Qt::Checked); // one at a time
        QCOMPARE(lista->item(0)->checkState(), Qt::Unchecked);
        p.f->show();
        const auto pulsar = [&](int fila, bool enLaCaja) {
            const QRect sitio = lista->visualItemRect(lista->item(fila));
            QTest::mouseClick(lista->viewport(), Qt::LeftButton, {},
                              QPoint(enLaCaja ? sitio.left() + 8 : sitio.center().x(), sitio.center().y()));
            return lista->item(fila)->checkState();
        };
        QCOMPARE(pulsar(0, false), Qt::Checked); // on the name
        QCOMPARE(lista->item(1)->checkState(), Qt::Unchecked);
        QCOMPARE(pulsar(0, false), Qt::Checked);
        QCOMPARE(pulsar(0, true), Qt::Unchecked);
        QCOMPARE(pulsar(1, true), Qt::Checked);
        QTest::keyClick(vet, Qt::Key_Delete);
        QCOMPARE(vet->currentIndex(), -1);
        QCOMPARE(lista->count(), 5);
        QCOMPARE(lista->item(4)->checkState(), Qt::Unchecked);
        año->clear();
        QTest::keyClicks(año, u"2a0,2-56"_s);
        QCOMPARE(año->text(), u"2025"_s);
        Teclas(año, {Qt::Key_Up, Qt::Key_Up, Qt::Key_Down});
        QCOMPARE(año->text(), u"2026"_s);
    }

    // A year that passes the check and is none; a malformed layout, of a list too.
    void LoQueFalla() {
        Puesto p("IndTecnicos");
        Cajas cajas;
        QVERIFY_THROWS_EXCEPTION(ErrorDeOpcion, p.Poner("ganadero", "85")); // has left
        p.Poner("ganadero", "12");
        p.Poner("año", "0000");
        p.Falla(cajas, "13", "tipos");
        p.Poner("año", "2025");
        QDir(p.i.Carpeta()).mkdir(u"Informes"_s);
        for (const char* fichero : {"Informes/IndTecnicos.rpt", "Informes/Veterinarios.rpt"})
            Escribir(p.i.En(fichero), "pastorix-informe 1\nesto no es nada\n");
        p.Falla(cajas, "60102", "IndTecnicos.rpt, línea 2");
        ListadoMaestro(3, p.i.sesion, *p.control, nullptr); // any other kind does nothing
        QVERIFY(!p.terminado);
        ListadoMaestro(2, p.i.sesion, *p.control, nullptr);
        QCOMPARE(p.terminado->titulo, u" Ganaderos"_s);
        ListadoMaestro(1, p.i.sesion, *p.control, nullptr);
        QCOMPARE(cajas.Vistas().size(), 1);
    }

    // The farmer whom the user was with last is offered; without a display nobody is.
    void ElUltimoGanadero() {
        Puesto p("IndTecnicos");
        const auto ofrecido = [&](const char* elegido = "") {
            p.Abrir("IndTecnicos");
            if (*elegido)
                p.Poner("ganadero", elegido);
            const auto* lista = p.Control<QListWidget>("lstGanadero");
            QStringList marcados;
            for (const bool aLaVista : {false, true}) {
                p.f->setVisible(aLaVista);
                for (int i = 0; i < lista->count(); ++i)
                    if (lista->item(i)->checkState() == Qt::Checked)
                        marcados << lista->item(i)->text() << QString::number(lista->currentRow() == i);
            }
            return marcados.join('/').remove(u' ');
        };
        QCOMPARE(ofrecido(), QString());
        p.Poner("ganadero", "57");
        QVERIFY(p.Aceptar());
        QCOMPARE(ofrecido(), u"Ana/1"_s);
        RecordarUltimo(p.Base(), "Id_Ganadero", 85); // who has left, and is not on the list
        QCOMPARE(ofrecido(), QString());
        RecordarUltimo(p.Base(), "Id_Ganadero", 57);
        QCOMPARE(ofrecido("12").section(u'/', -2, -2), u"Nora"_s);
    }

    // The catalogue against the menu: every entry of it is a command, and nothing under Informes is left without a report but the two plain lists.
    void Catalogo() {
        QStringList delMenu;
        for (const auto& e : MenusDePrincipal())
            if (e.clase == EntradaDeMenu::Clase::Orden && QByteArray(e.padre) == "Mnu_Herr")
                delMenu << Q(e.nombre);
        QStringList deInformes{u"Menu_Herr(1)"_s, u"Menu_Herr(2)"_s};
        for (const auto& e : CatalogoDeInformes()) {
            if (!deInformes.contains(Q(e.orden)))
                deInformes << Q(e.orden);
            QVERIFY2(DisposicionIncluida(Q(e.nombre) + u".rpt"_s), e.nombre);
        }
        QCOMPARE(deInformes, delMenu); // in its order too
    }

    // The checks in their order, each with its box, no table touched; then the report, its title, its file's name and what it says on paper.
    void Comprobaciones_data() {
        // sinNada: box with neither year nor farmer
        // sinUno: with the one of the two that was asked for first
        const QString indique = u"Información|Indique el Año de Referencia"_s;
        const QString algun = u"Información|Debe seleccionar algún Ganadero"_s;
        const QString debe = u"Información|Debe indicar el año de Referencia"_s;
        Caso("IndTecnicos", indique, algun, " Índices Técnicos");
        Caso("ParamTecnicos", indique, algun, " Inventario");
        Caso("COM_PRO", algun, debe, "Comportamiento Productivo del Rebaño");
        Caso("COM_REP", algun, debe, "Comportamiento Reproductivo del Rebaño");
        Caso("CEBO", algun, debe, "Cebo");
        Caso("DEMORA", algun, debe, "Causas Demora Preñez");
        Caso("MANEJO", algun, debe, "Manejo");
        Caso("enfermedades", algun, debe, "Enfermedades Reproductivas");
        Caso("rVacas", u"Atención|Debe Indicar el Año de Referencia"_s,
             u"Atención|Debe Indicar el Ganadero"_s, " Vacas ");
    }
    void Comprobaciones() {
        const auto [sinNada, sinUno, titulo] = DelCaso<QString, QString, QString>();
        Puesto p(QTest::currentDataTag());
        Insertar(p.Base(), "X_Temp", "C1=anterior");
        Cajas cajas;
        p.Poner("año", "202");
        p.Aceptar();
        QCOMPARE(cajas.Tomar(), QStringList(sinNada));
        if (sinNada.contains(u"Ganadero"_s))
            p.Poner("ganadero", "12");
        else
            p.Poner("año", "2025");
        p.Aceptar();
        QCOMPARE(cajas.Tomar(), QStringList(sinUno));
        QCOMPARE(Leer(p.Base(), "SELECT C1 FROM X_Temp"), "anterior"s);
        p.Poner("año", "2025");
        p.Poner("ganadero", "12");
        QVERIFY2(p.Aceptar(), qPrintable(cajas.Tomar().join(u'/')));
        QCOMPARE(p.terminado->titulo, titulo);
        QCOMPARE(p.terminado->nombrePropuesto, titulo.trimmed() + u" - Nora - 2025"_s);
        QVERIFY(p.terminado->maximizada);
        QVERIFY2(p.Dice("Nora") && p.Dice("2025"), qPrintable(p.Impreso()));
        if (QByteArray(QTest::currentDataTag()) != "IndTecnicos")
            QVERIFY(p.Dice("Veterinario: Zoe · 600"));
        QCOMPARE(Ultimo(p.Base(), "Id_Ganadero"), 12.0);
    }

    // Nothing to tell of: a box, and no report.
    void NadaQueInformar_data() {
        Caso("CEBO", "Información|No hay Cebos en el periodo indicado");
        Caso("DEMORA", "Información|No hay Cubriciones en el periodo indicado");
        Caso("enfermedades", "Información|No hay Cubriciones en el periodo indicado");
        Caso("COM_PRO", QString()); // an empty report opens
        Caso("rTVacas", QString());
    }
    void NadaQueInformar() {
        const auto caja = DelCaso<QString>();
        Puesto p(QTest::currentDataTag());
        Cajas cajas;
        p.Poner("ganadero", "57");
        p.Poner("año", "2025");
        QCOMPARE(p.f->Aceptar(), caja.isEmpty());
        QCOMPARE(cajas.Tomar(), caja.isEmpty() ? QStringList() : QStringList(caja));
        QCOMPARE(p.terminado.has_value(), caja.isEmpty());
    }

    // Rows of which nothing is known but whose they are; texts as wide as their columns, with what layouts and formulas take for their own.
    void NuloYAncho_data() {
        for (const auto& e : CatalogoDeInformes())
            for (const bool ancho : {false, true})
                Caso(e.nombre, ancho);
    }
    void NuloYAncho() {
        bool ancho = false;
        DelCaso(ancho);
        const QByteArray informe = QTest::currentDataTag();
        const auto texto = [&](int letras) {
            return ancho ? Valor(u"Ñ{X_Temp.C1}'[\"%1"_s.arg(QString(letras - 15, u'w')).toStdString())
                         : Valor();
        };
        const auto llenar = [&](Conexion& c) {
            Insertar(c, "T_Ganaderos", "Id_Ganadero=3, Nombre, Apellidos, Id_Direccion=7", texto(50),
                     texto(50));
            Insertar(c, "T_Vacas", "Id_Vaca=9, Id_Ganadero=3, NombreC, Crotal, Chekeo, ObsControlRebaño",
                     texto(100), texto(50), texto(50), texto(9000));
            Insertar(c, "T_Cubriciones", "Id_Vaca=9, Año_Ref=2025, DescCausaPpal, IPR_CP", texto(255),
                     informe == "DEMORA" ? Valor(50.0) : Valor());
            Insertar(c, "T_Servicios", "Id_Vaca=9, Año_Ref=2025, Semental", texto(100));
            Insertar(c, "T_Partos", "Id_Parto=9, Id_Vaca=9, Año_Ref=2025, Semental, Sexo, Cularidad",
                     texto(100), texto(50), texto(50));
            Insertar(c, "T_Cebo", "Id_Cebo=9, Id_Ganadero=3, AñoRef=2025, Origen", texto(50));
            Insertar(c, "T_Sementales", "Id_Semental=9, Id_Ganadero=3, NombreC", texto(100));
            Insertar(c, "T_AbonadoSuperficie", "Id_Ganadero=3, AñoNatural=2025, Abonado", texto(50));
            Insertar(c, "T_PastosComunales", "Id_Ganadero=3, AñoNatural=2025");
        };
        Puesto p(informe, llenar);
        p.Poner("ganadero", "3");
        for (const char* opcion : {"año", "años"})
            try {
                p.Poner(opcion, "2025");
            } catch (const ErrorDeOpcion&) { // this report has none of that name
            }
        QVERIFY(p.f->Aceptar() && !p.terminado->paginas.paginas.empty());
    }

    // Another program holds the file: told, nothing opens, and the form can be used again.
    void BaseBloqueada() {
        Puesto p("COM_PRO");
        Cajas cajas;
        p.Poner("ganadero", "12");
        p.Poner("año", "2025");
        Conexion otra;
        otra.AbrirFichero(p.i.En("personal.mdb").toStdString(), ClaveDeBases);
        EnGrupo(otra, [&] {
            otra.Execute("DELETE FROM X_Temp");
            p.Falla(cajas, "-2147217843", "bloqueada");
        });
        QVERIFY(p.f->Aceptar());
    }

    // Headings of two lines; the year 2000 has a year before it.
    void Inventario() {
        Puesto p("ParamTecnicos");
        p.Poner("ganadero", "12");
        p.Poner("año", "2000");
        QVERIFY(p.f->Aceptar());
        for (const char* rotulo : {"1/12/99", "(Inicio)", "1/12/00", "(Fin)"})
            QVERIFY2(p.Impreso().contains(Q(rotulo)), rotulo);
    }

    // With the box checked, only cows of this year's record or an older one.
    void ControlRebano() {
        Puesto p("ControlRebaño");
        Cajas cajas;
        QVERIFY(!p.f->Aceptar());
        QCOMPARE(cajas.Tomar(), QStringList(u"Información|Debe seleccionar algún Ganadero"_s));
        p.Poner("ganadero", "12");
        QVERIFY(p.f->Aceptar() && p.Dice("ES1") && p.Dice("ES2"));
        p.Poner("control-reproductivo");
        QVERIFY(p.f->Aceptar() && p.Dice("ES1", "ES2") && p.Dice("control reproductivo"));
        QCOMPARE(p.terminado->titulo, u" Controles de Rebaño"_s);
    }

    // Another farmer takes his years along; all of them at once.
    void ResumenDeAnos() {
        Puesto p("ResumenIT");
        Cajas cajas;
        auto* años = p.Control<QListWidget>("ListaAños");
        auto* todos = p.Control<QCheckBox>("Check1");
        auto* rotulo = p.Control<QLabel>("Et_Ganadero");
        todos->setChecked(true); // nobody's years: nothing to check
        QVERIFY(!p.f->Aceptar());
        QCOMPARE(cajas.Tomar(), QStringList(u"Información|Indique al menos un Año de Referencia"_s));
        p.Poner("ganadero", "12");
        QVERIFY(!todos->isChecked());
        QCOMPARE(rotulo->text(), u"Nora"_s);
        QCOMPARE(años->count(), 2);
        todos->setChecked(true);
        QCOMPARE(años->item(1)->checkState(), Qt::Checked);
        p.Poner("ganadero", "57");
        QCOMPARE(años->count(), 0);
        p.Poner("ganadero", "12");
        QVERIFY_THROWS_EXCEPTION(ErrorDeOpcion, p.Poner("años", "2025,2019"));
        p.Poner("años", "2025");
        QVERIFY(p.f->Aceptar());
        QCOMPARE(p.terminado->titulo, u" Resumen de Índices Ténicos"_s);
        QCOMPARE(Contar(p.Base(), "X_Temp"), 1L);
        p.Control<QListWidget>("lstGanadero")
            ->item(1)
            ->setCheckState(Qt::Unchecked); // Ana, Centro, Nora: not hers
        p.Control<QListWidget>("lstGanadero")->item(2)->setCheckState(Qt::Unchecked);
        QCOMPARE(rotulo->text(), u"..."_s);
        QCOMPARE(años->count(), 0);
    }

    // A tag that nobody has empties both boxes; one chosen from the list fills them, whoever's the cow is.
    void CrotalDelHistorico() {
        Puesto p("Hts_R");
        Cajas cajas;
        QVERIFY(!p.f->Aceptar());
        QCOMPARE(cajas.Tomar(), QStringList(u"Información|Si no indica una Vaca, Seleccione un Ganadero"_s));
        auto* crotal = p.Control<QLineEdit>("Ct_Estandar(0)");
        auto* nombre = p.Control<QLineEdit>("Ct_Estandar(1)");
        const auto dejar = [&](const char* texto) {
            crotal->setText(Q(texto));
            Q_EMIT crotal->editingFinished();
            return nombre->text();
        };
        QCOMPARE(dejar("ES2"), u"Mora {1}'"_s);
        QCOMPARE(dejar("ES9"), QString());
        QCOMPARE(cajas.Tomar(), QStringList(u"Atención|No existe ninguna vaca con el Crotal: ES9"_s));
        QCOMPARE(crotal->text(), QString());
        dejar("l'otra"); // the statement fails
        QCOMPARE(cajas.Tomar().size(), 1);
        QTimer::singleShot(0, p.f.get(), [] {
            auto* lista = qobject_cast<Selector*>(QApplication::activeModalWidget());
            QVERIFY(lista);
            QTest::keyClick(lista->findChild<QTableView*>(), Qt::Key_Return);
        });
        p.Control<QAbstractButton>("IconoBusDato")->click();
        QCOMPARE(crotal->text() + nombre->text(), u"ES1Mora {1}'"_s);
        p.Poner("ganadero", "57");
        p.Poner("vivas");
        QVERIFY(p.f->Aceptar() && p.Dice("Nora") && p.Dice("Sólo vacas vivas"));
        QCOMPARE(p.terminado->nombrePropuesto, u"Histórico Reproductivo por Vaca - ES1"_s);
    }

    void CriteriosDeEnfermedades_data() {
        Caso("none", QStringList(), "(2025)");
        Caso("problematic", QStringList({"problematicas", ""}), "(2025 / Vacas Problemáticas)");
        Caso("test", QStringList({"prueba", "bvd", "condicion", "Positiva"}), "(2025 / BVD Positiva)");
        Caso("all", QStringList({"problematicas", "", "prueba", "IBR", "condicion", ">", "valor", "0,5"}),
             "(2025 / Vacas Problemáticas : IBR > 0,5)");
    }
    void CriteriosDeEnfermedades() {
        const auto [opciones, criterio] = DelCaso<QStringList, QString>();
        Puesto p("enfermedades");
        p.Poner("ganadero", "12");
        p.Poner("año", "2025");
        for (qsizetype i = 0; i < opciones.size(); i += 2)
            p.f->PonerOpcion(opciones[i], opciones[i + 1]);
        QVERIFY(p.f->Aceptar());
        QVERIFY2(p.Impreso().contains(criterio + u'|'), qPrintable(p.Impreso()));
        auto* prueba = p.Control<QComboBox>("Cb_Con(0)");
        QTest::keyClick(prueba, Qt::Key_Delete);
        QCOMPARE(prueba->currentIndex(), -1);
        QCOMPARE(p.Control<QLineEdit>("Ct_Valor")->isEnabled(), opciones.contains(u">"_s));
    }

    // The list of cows leaves farmer 1 out and offers those who have left; its census is of a date.
    void ListaDeVacas() {
        Puesto p("rTVacas");
        Cajas cajas;
        QCOMPARE(p.f->Ofrecidos().size(), 3U);
        QCOMPARE(p.Control<QLineEdit>("Ct_AñoRef")->text(), u"2026"_s); // the civil year
        p.Poner("ganadero", "12");
        p.Control<QCheckBox>("Option1")->setChecked(true);
        QVERIFY(!p.f->Aceptar());
        QCOMPARE(cajas.Tomar(), QStringList(u"Atención|La fecha del censo no es válida"_s));
        QTest::keyClicks(p.Control<QLineEdit>("Ct_FechaCenso"), u"1-/5a/26"_s);
        p.Poner("novillas");
        QVERIFY(p.f->Aceptar());
        QVERIFY2(p.Dice("Censo a 1/5/26 · Vacas, y novillas"), qPrintable(p.Impreso()));
        QVERIFY(p.Dice("Ares", "Urbano"));
    }

    // One farmer's bulls or everybody's, in two models.
    void ListaDeToros() {
        Puesto p("Toros");
        QVERIFY(p.f->Aceptar());
        QCOMPARE(p.terminado->titulo, u" Sementales"_s);
        QVERIFY(p.Dice("Altas y bajas") && p.Dice("Ares") && p.Dice("Urbano"));
        p.Poner("modelo", "0");
        p.Poner("ganadero", "12");
        QVERIFY(p.f->Aceptar());
        QCOMPARE(p.terminado->titulo, u" Sementales: Nora"_s);
        QVERIFY(p.Dice("Índices genéticos") && p.Dice("Ares", "Urbano"));
        QTest::keyClick(p.Control<QComboBox>("Combo1"), Qt::Key_Delete);
        QVERIFY(p.f->Aceptar());
        QCOMPARE(p.terminado->titulo, u" Sementales"_s);
    }
};

PRUEBA(PruebaInformes)
#include "PruebaInformes.moc"
