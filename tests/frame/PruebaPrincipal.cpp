#include "Cajas.h"
#include "Instalacion.h"
#include "frame/OrdenesPrincipal.h"
#include "frame/Principal.h"
#include "frame/calendario/Reloj.h"

#include <QSignalSpy>

using namespace prueba;

class PruebaPrincipal : public QObject {
    Q_OBJECT

    QUrl m_abierto;

    static void VincularTodo(Principal& p) {
        for (const EntradaDeMenu& e : MenusDePrincipal())
            if (e.clase == EntradaDeMenu::Clase::Orden && Q(e.nombre) != QLatin1String("Mnu_Salir"))
                p.Vincular(Q(e.nombre), [] {});
    }

    // The letters that choose among those entries: one for each, and none twice, for the keyboard stops at the first.
    static void ExigirMnemonicosUnicos(const QList<QAction*>& acciones) {
        QSet<QChar> letras;
        for (const QAction* a : acciones) {
            const qsizetype i = a->text().indexOf('&');
            if (a->isSeparator() || a->objectName() == QLatin1String("MnuCausaPrincipal")) // never on the bar
                continue;
            QVERIFY2(i >= 0, qPrintable(a->text()));
            const QChar letra = a->text().at(i + 1).toLower();
            QVERIFY2(!letras.contains(letra), qPrintable(a->text()));
            letras << letra;
        }
    }

public Q_SLOTS:
    void Abrir(const QUrl& url) { m_abierto = url; }

private Q_SLOTS:
    void init() { FijarHoy(Fecha::De(2026, 11, 22)); }
    void cleanup() {
        FijarHoy(std::nullopt);
        QDesktopServices::unsetUrlHandler("file");
    }

    // The state of every entry that depends on database and mode: V visible, h hidden; E enabled, d disabled.
    void EstadoPorEntradaYModo_data() {
        // inactivas: numbers are toolbar buttons
        Caso("main, anonymous", 0, "", "", "Mnu_ControlCli Mnu_ExpTD", "MnuT MnuT1 4");
        Caso("main, named", 0, "elopez", "", "Mnu_ControlCli Mnu_ExpTD", "MnuT MnuT1 Mnu_Veterinarios 3 4");
        Caso("main, central", 0, "CENTRAL", "oficina", "", "MnuT MnuT1");
        const QString personal = "Sep4 Mnu_Importar Mnu_Exportar Mnu_BorrarBackup";
        Caso("personal, anonymous", 1, "", "", personal + " Mnu_ControlCli Mnu_ExpTD", "MnuT MnuT2 4");
        Caso("personal, named", 1, "elopez", "", personal + " Mnu_ControlCli Mnu_ExpTD",
             "MnuT MnuT2 Mnu_Veterinarios 3 4");
        Caso("personal, central", 1, "CENTRAL", "oficina", personal, "MnuT MnuT2");
    }
    void EstadoPorEntradaYModo() {
        const auto [entrada, usuario, clave, ocultas, inactivas] =
            DelCaso<int, QString, QString, QString, QString>();
        Arrancada i;
        i.PonerUsuarios();
        Principal p(i.sesion);
        VincularTodo(p);
        EntradaEnPrincipal interfaz(p);
        p.setEnabled(false); // as the login has it
        QVERIFY(EntrarEnBase(i.sesion, entrada, usuario, clave, interfaz));
        p.setEnabled(true);

        QStringList escondidas = ocultas.split(' ', Qt::SkipEmptyParts), apagadas = inactivas.split(' ');
        escondidas << "MnuCausaPrincipal";
        for (const EntradaDeMenu& e : MenusDePrincipal()) {
            const QString nombre = Q(e.nombre);
            QVERIFY2(p.Orden(nombre)->isVisible() == !escondidas.contains(nombre), e.nombre);
            if (p.Orden(nombre)->isVisible()) // the toolkit calls whatever is hidden disabled
                QVERIFY2(p.Orden(nombre)->isEnabled() == !apagadas.contains(nombre), e.nombre);
        }
        for (const int boton : {1, 3, 4, 5, 7, 8})
            QVERIFY2(p.Boton(boton)->isEnabled() == !apagadas.contains(QString::number(boton)),
                     qPrintable(QString::number(boton)));
        QCOMPARE(p.windowTitle(), u"PASTORIX.    (3.09)"_s);
    }

    void UnIntentoFallidoNoDejaRestoEnElSiguiente() {
        // Personal as nobody, then the main one as central: hidden entries come back.
        Instalacion i;
        Cajas cajas;
        QVERIFY(Arrancar(i.sesion));
        i.PonerUsuarios();
        Principal p(i.sesion);
        EntradaEnPrincipal interfaz(p);
        QVERIFY(!EntrarEnBase(i.sesion, 1, "nadie", {}, interfaz));
        QCOMPARE(p.Panel(), u" Modo: (Base de Datos Personal)"_s);
        QVERIFY(EntrarEnBase(i.sesion, 0, "CENTRAL", "oficina", interfaz));
        for (const char* orden :
             {"Mnu_ControlCli", "Sep4", "Mnu_Importar", "Mnu_Exportar", "Mnu_ExpTD", "Mnu_BorrarBackup"})
            QVERIFY2(p.Orden(orden)->isVisible(), orden);
        QCOMPARE(p.Panel(), u" Modo: BASE DE DATOS CENTRAL"_s);
        QCOMPARE(cajas.Tomar().size(), 1);
    }

    void LasOrdenesSeVinculanDesdeFuera() {
        Arrancada i;
        Principal p(i.sesion);
        QVERIFY(!p.Orden("Mnu_Vacas")->isEnabled() && !p.Boton(7)->isEnabled());
        int veces = 0;
        p.Vincular("Mnu_Vacas", [&] { ++veces; });
        p.Orden("Mnu_Vacas")->trigger();
        p.Boton(7)->trigger();
        QCOMPARE(veces, 2);
        p.Vincular("Mnu_Veterinarios", [&] { ++veces; });
        p.Activar("Mnu_Veterinarios", false); // the mode's word stands over the binding
        p.ActivarBoton(3, false);
        p.Vincular("Mnu_Veterinarios", [&] { ++veces; });
        p.Orden("Mnu_Veterinarios")->trigger();
        p.Boton(3)->trigger();
        p.Boton(4)->trigger(); // no command at all
        QCOMPARE(veces, 2);
        EsperarAviso("no such command: Mnu_Nada");
        p.Vincular("Mnu_Nada", [] {});
    }

    void LosNombresSonUnicosYLasLetrasTambien() {
        Arrancada i;
        Principal p(i.sesion);
        QSet<QString> nombres;
        for (const EntradaDeMenu& e : MenusDePrincipal()) {
            QVERIFY2(!nombres.contains(e.nombre), e.nombre);
            nombres << e.nombre;
            QVERIFY2(p.findChild<QAction*>(Q(e.nombre)) == p.Orden(Q(e.nombre)), e.nombre);
        }
        for (const BotonDeBarra& b : BarraDePrincipal())
            QVERIFY2(!*b.texto || !p.Boton(b.indice)->icon().pixmap(32).isNull(), b.texto);
        ExigirMnemonicosUnicos(p.menuBar()->actions());
        for (const QMenu* menu : p.findChildren<QMenu*>())
            ExigirMnemonicosUnicos(menu->actions());
    }

    void ElHistorialGuardaDiezDias() {
        Arrancada i;
        for (const int hace : {0, 10, 11, 400})
            Insertar(i.sesion.conexion, "Historial", "Equipo=CENTRAL, Fecha", Hoy().MasDias(-hace));
        {
            Conexion personal = i.Abrir("BD_PradalP.mdb");
            Insertar(personal, "Historial", "Equipo=X, Fecha", Hoy().MasDias(-400));
        }
        Principal p(i.sesion);
        QCOMPARE(Contar(i.sesion.conexion, "Historial"), 2L);
        InterfazDeEntrada nada;
        QVERIFY(EntrarEnBase(i.sesion, 1, {}, {}, nada));
        QCOMPARE(Contar(i.sesion.conexion, "Historial"), 1L); // the personal one is never purged
    }

    void SalirTerminaElPrograma() {
        for (const QString por : {"menu", "boton", "cierre"}) {
            Arrancada i;
            Principal p(i.sesion);
            p.show();
            QSignalSpy salida(&p, &Principal::Salida);
            if (por == "menu")
                p.Orden("Mnu_Salir")->trigger();
            else if (por == "boton")
                p.Boton(1)->trigger();
            else
                p.close();
            QCOMPARE(salida.size(), 1);
            QVERIFY(!p.isVisible());
        }
    }

    void ElManual() {
        Arrancada i;
        Principal p(i.sesion);
        QDesktopServices::setUrlHandler("file", this, "Abrir");
        {
            Cajas cajas;
            p.Orden("Mnu_Manual")->trigger();
            QCOMPARE(cajas.Tomar(),
                     QStringList{"Atención|No es posible abrir el documento: " +
                                 QDir::toNativeSeparators(i.En("manual.pdf")) +
                                 "\r\nCompruebe el funcionamiento de su visor de ficheros PDF"});
            QVERIFY(m_abierto.isEmpty());
        }
        Escribir(i.En("Manual.PDF"));
        p.Orden("Mnu_Manual")->trigger();
        QCOMPARE(m_abierto.toLocalFile(), i.En("Manual.PDF"));
    }

    void LosPanelesDeEstado() {
        Arrancada i;
        Principal p(i.sesion);
        p.show();
        auto* modo = p.findChild<QLabel*>("StatusBar1.Panel(1)");
        auto* fecha = p.findChild<QLabel*>("StatusBar1.Panel(2)");
        p.FijarPanel(" Modo: <b>x</b>");
        QCOMPARE(modo->text(), u" Modo: <b>x</b>"_s);
        QCOMPARE(modo->textFormat(), Qt::PlainText);
        QCOMPARE(fecha->text(), u"22/11/2026"_s);
        FijarHoy(Fecha::De(2026, 11, 23)); // midnight passes
        p.resize(700, 500);
        QCOMPARE(fecha->text(), u"23/11/2026"_s);
        QVERIFY(modo->width() > fecha->width() && p.minimumSizeHint().width() <= 700);
    }
};

PRUEBA(PruebaPrincipal)
#include "PruebaPrincipal.moc"
