#include "prueba.h"

#include "frame/Atajos.h"
#include "frame/Ayuda.h"

#include <QFile>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTreeWidget>

using namespace pastorix;
using namespace prueba;

class PruebaAyuda : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void CadaTemaEsUnTituloDelManual() {
        QFile manual(QStringLiteral(PASTORIX_MANUAL_FUENTE));
        QVERIFY(manual.open(QIODevice::ReadOnly));
        const auto lineas = QString::fromUtf8(manual.readAll()).split(u'\n');
        for (const auto& tema : TemasDeAyuda()) {
            const auto fin = u"# "_s + QString::fromUtf8(tema.titulo);
            const bool esta = std::any_of(lineas.begin(), lineas.end(), [&](const QString& l) {
                return l.startsWith(u'#') && l.endsWith(fin);
            });
            QVERIFY2(esta, tema.titulo);
        }
    }

    void ElTemaEsElDeLoMasCercanoYElDeSuPagina() {
        QWidget vacas;
        vacas.setObjectName(u"Vacas"_s);
        QTabWidget pestañas(&vacas);
        for (const auto* rotulo : {" General ", " Mamitis "})
            pestañas.addTab(new QWidget, QString::fromUtf8(rotulo));
        QWidget campo(pestañas.widget(1));
        QCOMPARE(TituloDeAyuda(&campo), u"Las vacas"_s);
        pestañas.setCurrentIndex(1);
        QCOMPARE(TituloDeAyuda(&campo), u"Mamitis"_s);
        QCOMPARE(TituloDeAyuda(nullptr), QString());
    }

    void LaVentanaSeAbrePorSuTituloYElDeMasAltura() {
        QTemporaryDir carpeta;
        QFile pagina(carpeta.filePath(u"manual.html"_s));
        QVERIFY(pagina.open(QIODevice::WriteOnly));
        pagina.write(
            "<h1><a name=\"t1\"></a>Uno</h1><h2><a name=\"t2\"></a>Dos</h2><h3><a name=\"t3\"></a>Cebo</h3>"
            "<h1><a name=\"t4\"></a>Tres</h1><h2><a name=\"t5\"></a>Cebo</h2>");
        pagina.close();
        VentanaAyuda ventana(pagina.fileName(), u"Cebo"_s, nullptr);
        ventana.setAttribute(Qt::WA_DeleteOnClose, false);
        const auto* capitulos = ventana.findChild<QTreeWidget*>();
        QCOMPARE(capitulos->currentItem()->data(0, Qt::UserRole).toString(), u"t5"_s);
        ventana.IrA(u"no hay"_s);
        QCOMPARE(ventana.Titulo(), u"Uno"_s);
    }

    void LasTeclasSonLasQueTieneLaVentana() {
        QWidget ventana;
        QPushButton boton(u"&Aceptar"_s, &ventana);
        new QShortcut(QKeySequence(Qt::Key_F7), &boton);
        PonerAtajo(ventana, Qt::CTRL | Qt::Key_E, u"Observaciones"_s, [] {});
        QWidget encima(&ventana, Qt::Window);
        PonerAtajo(encima, Qt::Key_F8, u"de otra"_s, [] {});
        const auto lista = AtajosDe(ventana);
        QCOMPARE(lista.size(), 2U);
        QCOMPARE(lista[0].texto + lista[1].texto, u"AceptarObservaciones"_s);
    }
};

PRUEBA(PruebaAyuda)
#include "PruebaAyuda.moc"
