#include "prueba.h"

#include "Cajas.h"
#include "frame/Mensajes.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>

using namespace pastorix;

namespace {

// Lets real boxes appear, and does something to the next one.
class ConVentanas {
public:
    explicit ConVentanas(std::function<void(QMessageBox&)> accion) {
        QStandardPaths::setTestModeEnabled(false);
        QTimer::singleShot(0, qApp, [accion] {
            auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!caja) {
                qCritical("no box appeared");
                return;
            }
            QTimer::singleShot(3000, caja, &QDialog::reject); // whatever happens, the run goes on
            accion(*caja);
        });
    }
    ~ConVentanas() { QStandardPaths::setTestModeEnabled(true); }
};

} // namespace

class PruebaMensajes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void LasPreguntasHablanEspanolYElNoEsLoPrevisto_data() {
        QTest::addColumn<int>("tecla");
        QTest::addColumn<bool>("respuesta");
        QTest::newRow("Enter") << static_cast<int>(Qt::Key_Return) << false;
        QTest::newRow("Escape") << static_cast<int>(Qt::Key_Escape) << false;
        QTest::newRow("S") << static_cast<int>(Qt::Key_S) << true;
        QTest::newRow("N") << static_cast<int>(Qt::Key_N) << false;
    }
    void LasPreguntasHablanEspanolYElNoEsLoPrevisto() {
        QFETCH(int, tecla);
        QStringList botones;
        ConVentanas ventanas([&](QMessageBox& caja) {
            for (const QAbstractButton* b : caja.buttons())
                botones << b->text();
            QTest::keyClick(&caja, static_cast<Qt::Key>(tecla));
        });
        QTEST(Preguntar(nullptr, " Confirme", "Desea inicializar los Años Naturales ? "), "respuesta");
        botones.sort();
        QCOMPARE(botones, QStringList({"&No", "&Sí"}));
    }

    void UnSiPrevistoSeAceptaConEnter() {
        ConVentanas ventanas([](QMessageBox& caja) { QTest::keyClick(&caja, Qt::Key_Return); });
        QVERIFY(Preguntar(nullptr, "Confirme Eliminar", "Desea Eliminar ? ", TipoMensaje::Critico, true));
    }

    void ElTextoSaleTalCual() {
        ConVentanas ventanas([](QMessageBox& caja) {
            QCOMPARE(caja.windowTitle(), QString(" Error inesperado"));
            QCOMPARE(caja.text(), QString("uno\ndos <b>tres</b>\ncuatro"));
            QCOMPARE(caja.textFormat(), Qt::PlainText);
            QCOMPARE(caja.informativeText(), QString("la causa"));
            QCOMPARE(caja.icon(), QMessageBox::Warning);
            QCOMPARE(caja.buttons().size(), 1);
            QCOMPARE(caja.buttons().constFirst()->text(), QString("Aceptar"));
            caja.close();
        });
        Avisar(nullptr, TipoMensaje::Atencion, " Error inesperado", "uno\rdos <b>tres</b>\r\ncuatro",
               "la causa");
    }

    void UnRespondedorSustituyeALasVentanas() {
        prueba::Cajas cajas;
        cajas.Responder(true);
        QVERIFY(Preguntar(nullptr, "t", "x"));
        QCOMPARE(ElegirFicheroGuardar(nullptr, "Guardar", "/informe.pdf", "Documento PDF (*.pdf)"),
                 QString());
        const auto vistas = cajas.Vistas();
        QCOMPARE(vistas.size(), 2);
        QCOMPARE(vistas[1].propuesta, QString("/informe.pdf"));
    }

    void UnaCajaSinRespuestaNoEspera() {
        prueba::EsperarAviso("unanswered box: [Atención]");
        Avisar(nullptr, TipoMensaje::Critico, "Atención", "nadie contesta");
    }
};

PRUEBA(PruebaMensajes)
#include "PruebaMensajes.moc"
