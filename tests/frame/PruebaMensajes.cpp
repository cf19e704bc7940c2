#include "prueba.h"

#include "Cajas.h"
#include "store/Errores.h"

using namespace prueba;

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
        Caso("Enter, yes expected", true, static_cast<int>(Qt::Key_Return), true);
        Caso("Enter", false, static_cast<int>(Qt::Key_Return), false);
        Caso("Escape", false, static_cast<int>(Qt::Key_Escape), false);
        Caso("S", false, static_cast<int>(Qt::Key_S), true);
        Caso("N", false, static_cast<int>(Qt::Key_N), false);
    }
    void LasPreguntasHablanEspanolYElNoEsLoPrevisto() {
        bool previsto = false, respuesta = false;
        int tecla = 0;
        DelCaso(previsto, tecla, respuesta);
        QStringList botones;
        ConVentanas ventanas([&](QMessageBox& caja) {
            for (const QAbstractButton* b : caja.buttons())
                botones << b->text();
            QTest::keyClick(&caja, static_cast<Qt::Key>(tecla));
        });
        QCOMPARE(Preguntar(nullptr, " Confirme", "Desea Eliminar ? ", TipoMensaje::Critico, previsto),
                 respuesta);
        botones.sort();
        QCOMPARE(botones, QStringList({"&No", "&Sí"}));
    }

    void ElTextoSaleTalCual() {
        ConVentanas ventanas([](QMessageBox& caja) {
            QCOMPARE(caja.windowTitle(), u" Error inesperado"_s);
            QCOMPARE(caja.text(), u"uno\ndos <b>tres</b>\ncuatro"_s);
            QCOMPARE(caja.textFormat(), Qt::PlainText);
            QCOMPARE(caja.informativeText(), u"la causa"_s);
            QCOMPARE(caja.icon(), QMessageBox::Warning);
            QCOMPARE(caja.buttons().size(), 1);
            QCOMPARE(caja.buttons().constFirst()->text(), u"Aceptar"_s);
            caja.close();
        });
        Avisar(nullptr, TipoMensaje::Atencion, " Error inesperado", "uno\rdos <b>tres</b>\r\ncuatro",
               "la causa");
    }

    // The technician's words wait behind a button; Enter and Escape still mean Aceptar.
    void ElDetalleSeMuestraSiSePide() {
        for (const auto tecla : {Qt::Key_Return, Qt::Key_Escape}) {
            bool cerrada = false;
            ConVentanas ventanas([&](QMessageBox& caja) {
                QCOMPARE(caja.text(), u"5 ... El disco está lleno"_s);
                QCOMPARE(caja.informativeText(), QString());
                QCOMPARE(caja.detailedText(), u"database or disk is full (SQLite 13)\nDELETE FROM T_Vacas"_s);
                QCOMPARE(caja.buttons().size(), 2);
                QTest::keyClick(&caja, tecla);
                cerrada = !caja.isVisible();
            });
            AvisarFallo(nullptr, "Atención...", 5,
                        ErrorAlmacen(CodigoError::DiscoOFichero, "El disco está lleno",
                                     "database or disk is full (SQLite 13)\nDELETE FROM T_Vacas"));
            QVERIFY(cerrada);
        }
    }

    void UnaCajaSinRespuestaNoEspera() {
        EsperarAviso("unanswered box: [Atención]");
        Avisar(nullptr, TipoMensaje::Critico, "Atención", "nadie contesta");
    }
};

PRUEBA(PruebaMensajes)
#include "PruebaMensajes.moc"
