#include "prueba.h"

#include "frame/Aplicacion.h"
#include "frame/Colores.h"
#include "frame/Tablas.h"
#include "frame/Ventanas.h"

using namespace prueba;

// What all tables and windows do alike.
class PruebaTablas : public QObject {
    Q_OBJECT

    // A window with one table of three columns.
    struct Ventana : QDialog {
        QTableWidget* tabla = new QTableWidget(3, 3, this);

        explicit Ventana(const QString& clave = {}) {
            setObjectName(u"VentanaDePrueba"_s);
            tabla->setObjectName(u"Grid"_s);
            (new QVBoxLayout(this))->addWidget(tabla);
            tabla->setHorizontalHeaderLabels({"Nombre", "Clave", "Nota"});
            const char* const textos[3][3] = {
                {"Ñora", "1", "una\tnota\nlarga"}, {"zarza", "2", ""}, {"Nube", "3", "x"}};
            for (int f = 0; f < 3; ++f)
                for (int c = 0; c < 3; ++c)
                    tabla->setItem(f, c, new QTableWidgetItem(Q(textos[f][c])));
            VestirTabla(*tabla);
            resize(500, 300);
            RecordarVentana(*this, clave);
        }
    };

private Q_SLOTS:
    void Copiar() {
        Ventana v;
        v.show();
        QVERIFY(QTest::qWaitForWindowActive(&v));
        v.tabla->hideColumn(1);
        v.tabla->horizontalHeader()->moveSection(2, 0);
        v.tabla->setCurrentCell(0, 0);
        auto* portapapeles = QApplication::clipboard();
        QTest::keyClick(v.tabla, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(portapapeles->text(), u"una nota larga\tÑora"_s);
        QTest::keyClick(v.tabla, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(portapapeles->text(), u"Nota\tNombre\nuna nota larga\tÑora\n\tzarza\nx\tNube\n"_s);
        portapapeles->setText("intacto");
        v.tabla->setRowCount(0);
        QTest::keyClick(v.tabla, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(portapapeles->text(), u"intacto"_s);
    }

    void OrdenarConUnClic() {
        Ventana v;
        OrdenarPorTitulos(*v.tabla);
        v.show();
        const auto nombres = [&] {
            QStringList t;
            for (int f = 0; f < 3; ++f)
                t << v.tabla->item(f, 0)->text();
            return t.join('/');
        };
        QCOMPARE(nombres(), u"Ñora/zarza/Nube"_s);
        auto* cabecera = v.tabla->horizontalHeader();
        const QPoint titulo(cabecera->sectionViewportPosition(0) + 10, 5);
        QTest::mouseClick(cabecera->viewport(), Qt::LeftButton, {}, titulo);
        QCOMPARE(nombres(), u"Nube/Ñora/zarza"_s);
        QTest::mouseClick(cabecera->viewport(), Qt::LeftButton, {}, titulo);
        QCOMPARE(nombres(), u"zarza/Ñora/Nube"_s);
    }

    void LaVentanaVuelveComoSeDejo() {
        {
            Ventana v("a");
            v.show();
            v.resize(444, 333);
            v.tabla->setColumnWidth(0, 77);
            v.hide();
        }
        Ventana otra("b"); // the same class showing something else
        otra.show();
        QCOMPARE(otra.size(), QSize(500, 300));
        Ventana v("a");
        v.show();
        QCOMPARE(v.size(), QSize(444, 333));
        QCOMPARE(v.tabla->columnWidth(0), 77);
        v.showMaximized();
        v.hide();
        Ventana normal("a");
        normal.show();
        QCOMPARE(normal.size(), QSize(444, 333));
    }

    void LaPrincipalVuelveMaximizada() {
        for (const bool maximizar : {true, false}) {
            const QString nombre = maximizar ? "Maximizada" : "Normal";
            QWidget v;
            v.setObjectName(nombre);
            v.resize(444, 333);
            RecordarVentanaMaximizada(v);
            v.show();
            QVERIFY(!v.isMaximized());
            if (maximizar)
                v.showMaximized();
            v.hide();
            QWidget otra;
            otra.setObjectName(nombre);
            RecordarVentanaMaximizada(otra);
            otra.show();
            QCOMPARE(otra.isMaximized(), maximizar);
            otra.showNormal();
            QCOMPARE(otra.size(), QSize(444, 333));
        }
    }

    // As left on a larger screen, or made for one.
    void LaVentanaCabeEnLaPantalla() {
        const auto pantalla = QGuiApplication::primaryScreen()->availableSize();
        {
            Ventana v("grande");
            v.show();
            v.resize(pantalla * 2);
            v.hide();
        }
        for (const char* clave : {"grande", "nueva"}) {
            Ventana v(clave);
            v.resize(pantalla * 3);
            v.show();
            QVERIFY2(v.width() < pantalla.width() && v.height() < pantalla.height(), clave);
        }
    }

    void LosTonosSeLeen_data() {
        Caso("light", QColor(Qt::black), QColor(Qt::white));
        Caso("dark", QColor(230, 230, 230), QColor(30, 30, 30));
        Caso("pale", QColor(100, 100, 100), QColor(Qt::white));
        Caso("hardly apart", QColor(130, 130, 130), QColor(Qt::white));
    }
    void LosTonosSeLeen() {
        const auto [texto, fondo] = DelCaso<QColor, QColor>();
        const double pleno = Contraste(texto, fondo);
        const double atenuado = Contraste(Atenuado(texto, fondo), fondo);
        QVERIFY2(atenuado >= std::min(4.5, pleno), qPrintable(QString::number(atenuado)));
        QVERIFY(pleno < 8 || atenuado < pleno / 2); // it steps back where there is room
        QCOMPARE(qRound(Contraste(Qt::black, Qt::white)), 21);
        QCOMPARE(qRound(Contraste(fondo, fondo)), 1);
    }

    // Hints in empty fields, in the colours of the desktop and after they have changed.
    void LasPistasSeLeen() {
        PrepararAplicacion(*qApp);
        for (const auto& [texto, fondo] :
             {std::pair{QColor(Qt::black), QColor(Qt::white)}, {QColor(230, 230, 230), QColor(30, 30, 30)}}) {
            QPalette escritorio;
            escritorio.setColor(QPalette::Text, texto);
            escritorio.setColor(QPalette::Base, fondo);
            escritorio.setColor(QPalette::PlaceholderText, QColor(127, 127, 127));
            QApplication::setPalette(escritorio);
            QEvent cambio(
                QEvent::ApplicationPaletteChange); // which an application gets only while it is running
            QCoreApplication::sendEvent(qApp, &cambio);
            const QLineEdit campo;
            QVERIFY(Contraste(campo.palette().color(QPalette::PlaceholderText), fondo) >= 4.5);
        }
        QApplication::setPalette(QPalette());
    }
};

PRUEBA(PruebaTablas)
#include "PruebaTablas.moc"
