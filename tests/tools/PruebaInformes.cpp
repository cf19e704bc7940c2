#include "Cajas.h"
#include "Instalacion.h"
#include "prueba.h"

#include "frame/OrdenesPrincipal.h"
#include "frame/Ultimos.h"
#include "frame/calendario/Reloj.h"
#include "frame/selector/Selector.h"
#include "reports/CatalogoDeInformes.h"
#include "reports/formularios/FormularioDeInforme.h"
#include "reports/motor/ControlInforme.h"
#include "reports/motor/DisposicionesIncluidas.h"
#include "reports/motor/LectorDeTablas.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

using namespace pastorix;
using prueba::Instalacion;
using prueba::Texto;

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
            for (const auto& e : CatalogoDeInformes())
                if (QByteArray(e.nombre) == informe)
                    f.reset(e.crear(i.sesion, *control, nullptr));
            if (!f)
                qCritical("no such report: %s", informe);
            for (const auto& e : CatalogoDeInformes()) // what the name of the layout stands for
                if (const auto fija = QByteArray(e.fija); QByteArray(e.nombre) == informe && !fija.isEmpty())
                    Poner(fija.split('=')[0].constData(), fija.split('=')[1].constData());
        }
        ~Puesto() {
            ControlInforme::InstalarDestino(anterior);
            FijarHoy({});
        }
        Conexion& Base() { return i.sesion.conexion; }
        void Llenar() {
            auto& c = Base();
            prueba::Insertar(c, "T_Veterinarios",
                             {{"Id_Veterinario", 2.0}, {"NombreVet", Texto("Zoe")}, {"Id_Direccion", 1.0}});
            prueba::Insertar(c, "T_Direcciones",
                             {{"Id_Direccion", 1.0}, {"Id_GV", 2.0}, {"TelefonoM", Texto("600")}});
            for (const auto& [id, nombre, baja] : {std::tuple{1.0, "Centro", Valor()},
                                                   {12.0, "Nora", Valor()},
                                                   {57.0, "Ana", Valor()},
                                                   {85.0, "Olvido", Valor(*Fecha::De(2023, 10, 15))}})
                prueba::Insertar(c, "T_Ganaderos",
                                 {{"Id_Ganadero", id},
                                  {"Nombre", Texto(nombre)},
                                  {"FechaBaja", baja},
                                  {"Id_Veterinario", 2.0}});
            for (const double id : {1.0, 2.0}) {
                prueba::Insertar(c, "T_Vacas",
                                 {{"Id_Vaca", id},
                                  {"Id_Ganadero", 12.0},
                                  {"Crotal", id == 1 ? Texto("ES1") : Texto("ES2")},
                                  {"NombreC", Texto("Mora {1}'")}});
                prueba::Insertar(c, "T_Cubriciones",
                                 {{"Id_Vaca", id},
                                  {"Año_Ref", id == 1 ? 2025 : 2027},
                                  {"N_Parto", 2},
                                  {"IPR_CP", 50},
                                  {"IEPc", 400}});
            }
            prueba::Insertar(c, "T_Partos",
                             {{"Id_Parto", 1.0},
                              {"Id_Vaca", 1.0},
                              {"Año_Ref", 2025},
                              {"N_Parto", 2},
                              {"Muere", Texto("No")}});
            prueba::Insertar(
                c, "T_Cebo",
                {{"Id_Cebo", 1.0}, {"Id_Ganadero", 12.0}, {"AñoRef", 2025}, {"Origen", Texto("Propio")}});
            prueba::Insertar(c, "T_Sementales",
                             {{"Id_Semental", 1.0}, {"Id_Ganadero", 12.0}, {"NombreC", Texto("Ares")}});
            prueba::Insertar(c, "T_Sementales",
                             {{"Id_Semental", 2.0}, {"Id_Ganadero", 1.0}, {"NombreC", Texto("Urbano")}});
        }
        void Poner(const char* opcion, const char* valor = "") const {
            f->PonerOpcion(QString::fromUtf8(opcion), QString::fromUtf8(valor));
        }
        QString Impreso() const {
            QString t;
            for (const auto& pagina : terminado->paginas.paginas)
                for (const auto& trozo : pagina.trozos)
                    if (const auto* texto = std::get_if<TextoColocado>(&trozo))
                        t += texto->texto + QLatin1Char('|');
            return t;
        }
        template <typename W>
        W* Control(const char* nombre) const {
            auto* w = f->findChild<W*>(QString::fromUtf8(nombre));
            if (!w)
                qCritical("no control %s", nombre);
            return w;
        }
    };

private Q_SLOTS:
    // The catalogue against the menu: every entry of it is a command, and nothing under Informes is left without a report but the two plain lists.
    void Catalogo() {
        QStringList delMenu;
        for (const auto& e : MenusDePrincipal())
            if (e.clase == EntradaDeMenu::Clase::Orden && QByteArray(e.padre) == "Mnu_Herr")
                delMenu << QString::fromUtf8(e.nombre);
        QStringList deInformes{QStringLiteral("Menu_Herr(1)"), QStringLiteral("Menu_Herr(2)")};
        for (const auto& e : CatalogoDeInformes()) {
            if (!deInformes.contains(QString::fromUtf8(e.orden)))
                deInformes << QString::fromUtf8(e.orden);
            QVERIFY2(DisposicionIncluida(QString::fromUtf8(e.nombre) + QStringLiteral(".rpt")), e.nombre);
        }
        QCOMPARE(deInformes, delMenu); // in its order too
    }

    // The checks in their order, each with its box, no table touched; then the report, its title, its file's name and what it says on paper.
    void Comprobaciones_data() {
        QTest::addColumn<QString>("sinNada"); // box with neither year nor farmer
        QTest::addColumn<QString>("sinUno");  // with the one of the two that was asked for first
        QTest::addColumn<QString>("titulo");
        const QString indique = QStringLiteral("Información|Indique el Año de Referencia");
        const QString algun = QStringLiteral("Información|Debe seleccionar algún Ganadero");
        const QString debe = QStringLiteral("Información|Debe indicar el año de Referencia");
        const auto fila = [](const char* informe, const QString& a, const QString& b, const char* titulo) {
            QTest::newRow(informe) << a << b << QString::fromUtf8(titulo);
        };
        fila("IndTecnicos", indique, algun, " Índices Técnicos");
        fila("ParamTecnicos", indique, algun, " Inventario");
        fila("COM_PRO", algun, debe, "Comportamiento Productivo del Rebaño");
        fila("COM_REP", algun, debe, "Comportamiento Reproductivo del Rebaño");
        fila("CEBO", algun, debe, "Cebo");
        fila("DEMORA", algun, debe, "Causas Demora Preñez");
        fila("MANEJO", algun, debe, "Manejo");
        fila("enfermedades", algun, debe, "Enfermedades Reproductivas");
        fila("rVacas", QStringLiteral("Atención|Debe Indicar el Año de Referencia"),
             QStringLiteral("Atención|Debe Indicar el Ganadero"), " Vacas ");
    }
    void Comprobaciones() {
        QFETCH(QString, sinNada);
        QFETCH(QString, sinUno);
        QFETCH(QString, titulo);
        Puesto p(QTest::currentDataTag());
        prueba::Insertar(p.Base(), "X_Temp", {{"C1", Texto("anterior")}});
        prueba::Cajas cajas;
        p.Poner("año", "202");
        p.Control<QPushButton>("B_Aceptar")->click();
        QCOMPARE(cajas.Tomar(), QStringList(sinNada));
        if (sinNada.contains(QStringLiteral("Ganadero")))
            p.Poner("ganadero", "12");
        else
            p.Poner("año", "2025");
        p.Control<QPushButton>("B_Aceptar")->click();
        QCOMPARE(cajas.Tomar(), QStringList(sinUno));
        QCOMPARE(prueba::Leer(p.Base(), "SELECT C1 FROM X_Temp"), std::string("anterior"));
        p.Poner("año", "2025");
        p.Poner("ganadero", "12");
        p.Control<QPushButton>("B_Aceptar")->click();
        QVERIFY2(p.terminado, qPrintable(cajas.Tomar().join(QLatin1Char('/'))));
        QCOMPARE(p.terminado->titulo, titulo);
        QCOMPARE(p.terminado->nombrePropuesto, titulo.trimmed() + QStringLiteral(" - Nora - 2025"));
        QVERIFY(p.terminado->maximizada);
        QVERIFY2(p.Impreso().contains(QStringLiteral("Nora")) && p.Impreso().contains(QStringLiteral("2025")),
                 qPrintable(p.Impreso()));
        if (QByteArray(QTest::currentDataTag()) != "IndTecnicos")
            QVERIFY(p.Impreso().contains(QStringLiteral("Veterinario: Zoe · 600")));
        QCOMPARE(Ultimo(p.Base(), "Id_Ganadero"), 12.0);
    }

    // Nothing to tell of: a box, and no report.
    void NadaQueInformar_data() {
        QTest::addColumn<QString>("caja");
        QTest::newRow("CEBO") << "Información|No hay Cebos en el periodo indicado";
        QTest::newRow("DEMORA") << "Información|No hay Cubriciones en el periodo indicado";
        QTest::newRow("enfermedades") << "Información|No hay Cubriciones en el periodo indicado";
        QTest::newRow("COM_PRO") << QString(); // an empty report opens
        QTest::newRow("rTVacas") << QString();
    }
    void NadaQueInformar() {
        QFETCH(QString, caja);
        Puesto p(QTest::currentDataTag());
        prueba::Cajas cajas;
        p.Poner("ganadero", "57");
        p.Poner("año", "2025");
        QCOMPARE(p.f->Aceptar(), caja.isEmpty());
        QCOMPARE(cajas.Tomar(), caja.isEmpty() ? QStringList() : QStringList(caja));
        QCOMPARE(p.terminado.has_value(), caja.isEmpty());
    }

    // Rows of which nothing is known but whose they are; texts as wide as their columns, with what layouts and formulas take for their own.
    void NuloYAncho_data() {
        QTest::addColumn<bool>("ancho");
        for (const auto& e : CatalogoDeInformes())
            for (const bool ancho : {false, true})
                QTest::newRow(e.nombre) << ancho;
    }
    void NuloYAncho() {
        QFETCH(bool, ancho);
        const QByteArray informe = QTest::currentDataTag();
        const auto texto = [&](int letras) {
            return ancho ? Valor(QStringLiteral("Ñ{X_Temp.C1}'[\"%1")
                                     .arg(QString(letras - 15, QLatin1Char('w')))
                                     .toStdString())
                         : Valor();
        };
        const auto llenar = [&](Conexion& c) {
            prueba::Insertar(c, "T_Ganaderos",
                             {{"Id_Ganadero", 3.0},
                              {"Nombre", texto(50)},
                              {"Apellidos", texto(50)},
                              {"Id_Direccion", 7.0}});
            prueba::Insertar(c, "T_Vacas",
                             {{"Id_Vaca", 9.0},
                              {"Id_Ganadero", 3.0},
                              {"NombreC", texto(100)},
                              {"Crotal", texto(50)},
                              {"Chekeo", texto(50)},
                              {"ObsControlRebaño", texto(9000)}});
            prueba::Insertar(c, "T_Cubriciones",
                             {{"Id_Vaca", 9.0},
                              {"Año_Ref", 2025},
                              {"DescCausaPpal", texto(255)},
                              {"IPR_CP", informe == "DEMORA" ? Valor(50.0) : Valor()}});
            prueba::Insertar(c, "T_Servicios",
                             {{"Id_Vaca", 9.0}, {"Año_Ref", 2025}, {"Semental", texto(100)}});
            prueba::Insertar(c, "T_Partos",
                             {{"Id_Parto", 9.0},
                              {"Id_Vaca", 9.0},
                              {"Año_Ref", 2025},
                              {"Semental", texto(100)},
                              {"Sexo", texto(50)},
                              {"Cularidad", texto(50)}});
            prueba::Insertar(
                c, "T_Cebo",
                {{"Id_Cebo", 9.0}, {"Id_Ganadero", 3.0}, {"AñoRef", 2025}, {"Origen", texto(50)}});
            prueba::Insertar(c, "T_Sementales",
                             {{"Id_Semental", 9.0}, {"Id_Ganadero", 3.0}, {"NombreC", texto(100)}});
            prueba::Insertar(c, "T_AbonadoSuperficie",
                             {{"Id_Ganadero", 3.0}, {"AñoNatural", 2025}, {"Abonado", texto(50)}});
            prueba::Insertar(c, "T_PastosComunales", {{"Id_Ganadero", 3.0}, {"AñoNatural", 2025}});
        };
        Puesto p(informe, llenar);
        p.Poner("ganadero", "3");
        for (const char* opcion : {"año", "años"})
            try {
                p.Poner(opcion, "2025");
            } catch (const ErrorDeOpcion&) { // this report has none of that name
            }
        QVERIFY(p.f->Aceptar());
        QVERIFY(!p.terminado->paginas.paginas.empty());
    }

    // Another program holds the file: told, nothing opens, and the form can be used again.
    void BaseBloqueada() {
        Puesto p("COM_PRO");
        prueba::Cajas cajas;
        p.Poner("ganadero", "12");
        p.Poner("año", "2025");
        Conexion otra;
        otra.AbrirFichero(p.i.En("personal.mdb").toStdString(), ClaveDeBases);
        EnGrupo(otra, [&] {
            otra.Execute("DELETE FROM X_Temp");
            QVERIFY(!p.f->Aceptar());
        });
        const auto vistas = cajas.Tomar();
        QCOMPARE(vistas.size(), 1);
        QVERIFY2(vistas[0].startsWith(QStringLiteral("Atención...|-2147217843 ... ")), qPrintable(vistas[0]));
        QVERIFY(!p.terminado);
        QVERIFY(p.Control<QPushButton>("B_Aceptar")->isEnabled() && p.f->Aceptar());
    }

    // Headings of two lines; the year 2000 has a year before it.
    void Inventario() {
        Puesto p("ParamTecnicos");
        p.Poner("ganadero", "12");
        p.Poner("año", "2000");
        QVERIFY(p.f->Aceptar());
        for (const char* rotulo : {"1/12/99", "(Inicio)", "1/12/00", "(Fin)"})
            QVERIFY2(p.Impreso().contains(QString::fromUtf8(rotulo)), rotulo);
    }

    // With the box checked, only cows of this year's record or an older one.
    void ControlRebano() {
        Puesto p("ControlRebaño");
        prueba::Cajas cajas;
        QVERIFY(!p.f->Aceptar());
        QCOMPARE(cajas.Tomar(), QStringList(QStringLiteral("Información|Debe seleccionar algún Ganadero")));
        p.Poner("ganadero", "12");
        QVERIFY(p.f->Aceptar());
        QVERIFY(p.Impreso().contains(QStringLiteral("ES1")) && p.Impreso().contains(QStringLiteral("ES2")));
        p.Poner("control-reproductivo");
        QVERIFY(p.f->Aceptar());
        QVERIFY(p.Impreso().contains(QStringLiteral("ES1")) && !p.Impreso().contains(QStringLiteral("ES2")));
        QVERIFY(p.Impreso().contains(QStringLiteral("control reproductivo")));
        QCOMPARE(p.terminado->titulo, QStringLiteral(" Controles de Rebaño"));
    }

    // Another farmer takes his years along; all of them at once.
    void ResumenDeAnos() {
        Puesto p("ResumenIT");
        prueba::Cajas cajas;
        auto* años = p.Control<QListWidget>("ListaAños");
        auto* todos = p.Control<QCheckBox>("Check1");
        auto* rotulo = p.Control<QLabel>("Et_Ganadero");
        todos->setChecked(true); // nobody's years: nothing to check
        QVERIFY(!p.f->Aceptar());
        QCOMPARE(cajas.Tomar(),
                 QStringList(QStringLiteral("Información|Indique al menos un Año de Referencia")));
        p.Poner("ganadero", "12");
        QVERIFY(!todos->isChecked());
        QCOMPARE(rotulo->text(), QStringLiteral("Nora"));
        QCOMPARE(años->count(), 2);
        todos->setChecked(true);
        QCOMPARE(años->item(1)->checkState(), Qt::Checked);
        p.Poner("ganadero", "57");
        QCOMPARE(años->count(), 0);
        p.Poner("ganadero", "12");
        QVERIFY_THROWS_EXCEPTION(ErrorDeOpcion, p.Poner("años", "2025,2019"));
        p.Poner("años", "2025");
        QVERIFY(p.f->Aceptar());
        QCOMPARE(p.terminado->titulo, QStringLiteral(" Resumen de Índices Ténicos"));
        QCOMPARE(prueba::Contar(p.Base(), "X_Temp"), 1L);
        p.Control<QListWidget>("lstGanadero")
            ->item(1)
            ->setCheckState(Qt::Unchecked); // Ana, Centro, Nora: not hers
        p.Control<QListWidget>("lstGanadero")->item(2)->setCheckState(Qt::Unchecked);
        QCOMPARE(rotulo->text(), QStringLiteral("..."));
        QCOMPARE(años->count(), 0);
    }

    // A tag that nobody has empties both boxes; one chosen from the list fills them, whoever's the cow is.
    void CrotalDelHistorico() {
        Puesto p("Hts_R");
        prueba::Cajas cajas;
        QVERIFY(!p.f->Aceptar());
        QCOMPARE(cajas.Tomar(),
                 QStringList(QStringLiteral("Información|Si no indica una Vaca, Seleccione un Ganadero")));
        auto* crotal = p.Control<QLineEdit>("Ct_Estandar(0)");
        auto* nombre = p.Control<QLineEdit>("Ct_Estandar(1)");
        const auto dejar = [&](const char* texto) {
            crotal->setText(QString::fromUtf8(texto));
            Q_EMIT crotal->editingFinished();
            return nombre->text();
        };
        QCOMPARE(dejar("ES2"), QStringLiteral("Mora {1}'"));
        QCOMPARE(dejar("ES9"), QString());
        QCOMPARE(cajas.Tomar(),
                 QStringList(QStringLiteral("Atención|No existe ninguna vaca con el Crotal: ES9")));
        QCOMPARE(crotal->text(), QString());
        dejar("l'otra"); // the statement fails
        QCOMPARE(cajas.Tomar().size(), 1);
        QTimer::singleShot(0, p.f.get(), [] {
            auto* lista = qobject_cast<Selector*>(QApplication::activeModalWidget());
            QVERIFY(lista);
            QTest::keyClick(lista->findChild<QTableView*>(), Qt::Key_Return);
        });
        p.Control<QAbstractButton>("IconoBusDato")->click();
        QCOMPARE(crotal->text() + nombre->text(), QStringLiteral("ES1Mora {1}'"));
        p.Poner("ganadero", "57");
        p.Poner("vivas");
        QVERIFY(p.f->Aceptar());
        QVERIFY(p.Impreso().contains(QStringLiteral("Nora")) &&
                p.Impreso().contains(QStringLiteral("Sólo vacas vivas")));
        QCOMPARE(p.terminado->nombrePropuesto, QStringLiteral("Histórico Reproductivo por Vaca - ES1"));
    }

    void CriteriosDeEnfermedades_data() {
        QTest::addColumn<QStringList>("opciones");
        QTest::addColumn<QString>("criterio");
        QTest::newRow("none") << QStringList() << "(2025)";
        QTest::newRow("problematic") << QStringList({"problematicas", ""}) << "(2025 / Vacas Problemáticas)";
        QTest::newRow("test") << QStringList({"prueba", "bvd", "condicion", "Positiva"})
                              << "(2025 / BVD Positiva)";
        QTest::newRow("all") << QStringList(
                                    {"problematicas", "", "prueba", "IBR", "condicion", ">", "valor", "0,5"})
                             << "(2025 / Vacas Problemáticas : IBR > 0,5)";
    }
    void CriteriosDeEnfermedades() {
        QFETCH(QStringList, opciones);
        QFETCH(QString, criterio);
        Puesto p("enfermedades");
        p.Poner("ganadero", "12");
        p.Poner("año", "2025");
        for (qsizetype i = 0; i < opciones.size(); i += 2)
            p.f->PonerOpcion(opciones[i], opciones[i + 1]);
        QVERIFY(p.f->Aceptar());
        QVERIFY2(p.Impreso().contains(criterio + QLatin1Char('|')), qPrintable(p.Impreso()));
        auto* prueba = p.Control<QComboBox>("Cb_Con(0)");
        QTest::keyClick(prueba, Qt::Key_Delete);
        QCOMPARE(prueba->currentIndex(), -1);
        QCOMPARE(p.Control<QLineEdit>("Ct_Valor")->isEnabled(), opciones.contains(QStringLiteral(">")));
    }

    // The list of cows leaves farmer 1 out and offers those who have left; its census is of a date.
    void ListaDeVacas() {
        Puesto p("rTVacas");
        prueba::Cajas cajas;
        QCOMPARE(p.f->Ofrecidos().size(), std::size_t(3));
        QCOMPARE(p.Control<QLineEdit>("Ct_AñoRef")->text(), QStringLiteral("2026")); // the civil year
        p.Poner("ganadero", "12");
        p.Control<QCheckBox>("Option1")->setChecked(true);
        QVERIFY(!p.f->Aceptar());
        QCOMPARE(cajas.Tomar(), QStringList(QStringLiteral("Atención|La fecha del censo no es válida")));
        QTest::keyClicks(p.Control<QLineEdit>("Ct_FechaCenso"), QStringLiteral("1-/5a/26"));
        p.Poner("novillas");
        QVERIFY(p.f->Aceptar());
        QVERIFY2(p.Impreso().contains(QStringLiteral("Censo a 1/5/26 · Vacas, y novillas")),
                 qPrintable(p.Impreso()));
        QVERIFY(p.Impreso().contains(QStringLiteral("Ares")) &&
                !p.Impreso().contains(QStringLiteral("Urbano")));
    }

    // One farmer's bulls or everybody's, in two models.
    void ListaDeToros() {
        Puesto p("Toros");
        QVERIFY(p.f->Aceptar());
        QCOMPARE(p.terminado->titulo, QStringLiteral(" Sementales"));
        QVERIFY(p.Impreso().contains(QStringLiteral("Altas y bajas")));
        QVERIFY(p.Impreso().contains(QStringLiteral("Ares")) &&
                p.Impreso().contains(QStringLiteral("Urbano")));
        p.Poner("modelo", "0");
        p.Poner("ganadero", "12");
        QVERIFY(p.f->Aceptar());
        QCOMPARE(p.terminado->titulo, QStringLiteral(" Sementales: Nora"));
        QVERIFY(p.Impreso().contains(QStringLiteral("Índices genéticos")));
        QVERIFY(p.Impreso().contains(QStringLiteral("Ares")) &&
                !p.Impreso().contains(QStringLiteral("Urbano")));
        QTest::keyClick(p.Control<QComboBox>("Combo1"), Qt::Key_Delete);
        QVERIFY(p.f->Aceptar());
        QCOMPARE(p.terminado->titulo, QStringLiteral(" Sementales"));
    }
};

PRUEBA(PruebaInformes)
#include "PruebaInformes.moc"
