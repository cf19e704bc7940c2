#include "prueba.h"

#include "Cajas.h"
#include "Instalacion.h"
#include "app/Ordenes.h"
#include "frame/Atajos.h"
#include "frame/Ayuda.h"
#include "frame/OrdenesPrincipal.h"
#include "frame/Principal.h"
#include "frame/ficha/Ficha.h"
#include "registers/PanelRecientes.h"
#include "reports/TablasDeInformes.h"
#include "reports/motor/ControlInforme.h"

#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QScrollBar>
#include <QSplitterHandle>
#include <QTabBar>

#include <map>

using namespace pastorix;
using namespace prueba;

// Every window that a command of the program opens, as somebody meets it who neither sees it nor has a mouse.
class PruebaVentanasTodas : public QObject {
    Q_OBJECT

    QStringList m_faltas;

    static bool EsParteDeOtro(const QWidget& w) {
        const auto* de = w.parentWidget();
        return w.objectName().startsWith(u"qt_"_s) || qobject_cast<const QScrollBar*>(&w) ||
               qobject_cast<const QHeaderView*>(&w) || qobject_cast<const QSplitterHandle*>(&w) ||
               qobject_cast<const QTabBar*>(&w) || (de && de->focusProxy() == &w) ||
               (de && (de->inherits("QComboBox") || de->inherits("QAbstractSpinBox") ||
                       (de->inherits("QAbstractScrollArea") && !w.isWindow() && w.objectName().isEmpty())));
    }

    void Revisar(QWidget& ventana, const QString& orden) {
        std::map<QString, QString> vistos;
        const auto falta = [&](const QWidget& w, const QString& que) {
            m_faltas << u"%1/%2: %3 %4 %5"_s.arg(orden, ventana.objectName(),
                                                 QString::fromLatin1(w.metaObject()->className()),
                                                 w.objectName(), que);
        };
        for (auto* w : ventana.findChildren<QWidget*>()) {
            if (w->window() != &ventana || !w->isVisibleTo(&ventana) || !(w->focusPolicy() & Qt::TabFocus) ||
                EsParteDeOtro(*w))
                continue;
            const auto* a = QAccessible::queryAccessibleInterface(w);
            // On this platform the name of a list is what is chosen in it; screen readers take its label.
            const bool lista = qobject_cast<QComboBox*>(w);
            const auto nombre = lista ? w->accessibleName() : a ? a->text(QAccessible::Name) : QString();
            if (lista && a->relations(QAccessible::Label).isEmpty())
                falta(*w, u"has no label"_s);
            if (nombre.trimmed().isEmpty())
                falta(*w, u"has no name"_s);
            const auto papel = u"%1|%2"_s.arg(a ? a->role() : 0).arg(nombre);
            if (const auto antes = vistos.find(papel); antes != vistos.end())
                falta(*w, u"is called like "_s + antes->second + u": "_s + nombre);
            vistos.emplace(papel, w->objectName());
        }
        if (TituloDeAyuda(&ventana).isEmpty())
            falta(ventana, u"has no chapter"_s);
        for (const auto& atajo : AtajosDe(ventana))
            if (atajo.texto.isEmpty())
                falta(ventana, u"does not say what does "_s + atajo.tecla);
    }

    // What a step has opened is looked at, each tab of it, and closed.
    void RevisarLoAbierto(const QString& orden, const QWidget& principal) {
        for (auto* w : QApplication::topLevelWidgets()) {
            if (w == &principal || !w->isVisible() || w->inherits("QMenu"))
                continue;
            auto* pestañas = w->findChild<QTabWidget*>();
            for (int i = 0; i < (pestañas ? pestañas->count() : 1); ++i) {
                if (pestañas)
                    pestañas->setCurrentIndex(i);
                Revisar(*w, orden);
            }
            w->close();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // The cow on screen, and the sheets of her last cycle, which run until they are closed.
    void RevisarCiclos(Sesion& sesion) {
        Recordset rs(sesion.conexion, "SELECT Min(Id_Vaca) AS N FROM T_Partos");
        for (auto* w : QApplication::topLevelWidgets()) {
            auto* ficha = dynamic_cast<Ficha*>(w);
            if (!ficha || !ficha->isVisible())
                continue;
            ficha->CargarFicha(NumeroDe(rs[0].Leer()));
            int abiertas = 0;
            for (auto* atajo : ficha->findChildren<QShortcut*>())
                if (atajo->key() == QKeySequence(Qt::Key_F5) || atajo->key() == QKeySequence(Qt::Key_F8)) {
                    QTimer::singleShot(0, this, [&] {
                        auto* hoja = QApplication::activeModalWidget();
                        ++abiertas;
                        Revisar(*hoja, atajo->key().toString());
                        hoja->close();
                    });
                    Q_EMIT atajo->activated();
                }
            QCOMPARE(abiertas, 2);
        }
    }

private Q_SLOTS:
    void CadaControlTieneNombreYCadaVentanaCapitulo() {
        Instalacion i(false);
        QVERIFY(
            QFile::copy(QStringLiteral(PASTORIX_DATOS "/paquetes/VETERINARIO.mdb"), i.En("BD_PradalC.mdb")));
        i.Crear("BD_PradalP.mdb", ClaseDeBase::Principal);
        i.Crear("Toros.mdb", ClaseDeBase::Toros);
        QVERIFY(Arrancar(i.sesion));
        TablasDeInformes tablas(i.sesion.conexion);
        ControlInforme informe(tablas);
        Principal principal(i.sesion);
        VincularOrdenes(principal, i.sesion, informe);
        EntradaEnPrincipal interfaz(principal);
        QVERIFY(EntrarEnBase(i.sesion, 0, {}, {}, interfaz));
        principal.show();
        Revisar(principal, u"-"_s);
        int abiertas = 0;
        for (const auto& entrada : MenusDePrincipal()) {
            const auto nombre = QString::fromUtf8(entrada.nombre);
            auto* accion = principal.Orden(nombre);
            if (entrada.clase != EntradaDeMenu::Clase::Orden || !accion->isEnabled() ||
                nombre == u"Mnu_Salir"_s || nombre == u"Mnu_Manual"_s || nombre == u"Mnu_Compactar"_s ||
                nombre == u"Mnu_Atajos"_s || nombre == u"Mnu_Acercade"_s || nombre == u"MnuPpal"_s)
                continue;
            Cajas cajas;
            accion->trigger();
            cajas.Vistas();
            if (nombre == u"Mnu_Vacas"_s)
                RevisarCiclos(i.sesion);
            ++abiertas;
            RevisarLoAbierto(nombre, principal);
            cajas.Vistas();
        }
        QVERIFY(abiertas > 20);
        for (auto* atajo : principal.findChildren<QShortcut*>()) { // the day's work, the sheet of the period
            Q_EMIT atajo->activated();
            RevisarLoAbierto(atajo->key().toString(), principal);
        }
        auto* recientes = static_cast<PanelRecientes*>(principal.findChild<QFrame*>(u"PanelRecientes"_s));
        recientes->Refrescar();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const auto botones = recientes->findChildren<QToolButton*>();
        QCOMPARE(botones.size(), 2); // the cow of above and her farmer
        botones[1]->click();
        QCOMPARE(QApplication::activeModalWidget()->objectName(), u"Vacas"_s);
        RevisarLoAbierto(botones[1]->accessibleName(), principal);
        Revisar(principal, u"recientes"_s);
        m_faltas.removeDuplicates();
        for (const auto& falta : m_faltas)
            qInfo("%s", qPrintable(falta));
        QVERIFY(m_faltas.isEmpty());
    }
};

PRUEBA(PruebaVentanasTodas)
#include "PruebaVentanasTodas.moc"
