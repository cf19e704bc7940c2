#include "Cajas.h"
#include "Instalacion.h"
#include "prueba.h"

#include "frame/calendario/Reloj.h"
#include "reports/ListadoMaestro.h"
#include "reports/Lst_IndicesTecnicos.h"
#include "reports/motor/ControlInforme.h"
#include "reports/motor/LectorDeTablas.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>

using namespace pastorix;
using prueba::Instalacion;
using prueba::Texto;

// The pickers that all report forms share, and the road from B_Aceptar to the finished report.
class PruebaFormulario : public QObject {
    Q_OBJECT

    struct Puesto {
        Instalacion i{false};
        std::optional<InformeTerminado> terminado;
        ControlInforme::Destinatario anterior;

        Puesto() {
            i.Crear("personal.mdb", ClaseDeBase::Principal);
            i.sesion.conexion.AbrirFichero(i.En("personal.mdb").toStdString(), ClaveDeBases);
            auto& c = i.sesion.conexion;
            prueba::Insertar(c, "T_Veterinarios", {{"Id_Veterinario", 2.0}, {"NombreVet", Texto("Zoe")}});
            prueba::Insertar(c, "T_Veterinarios", {{"Id_Veterinario", 1.0}, {"NombreVet", Texto("Ana")}});
            const auto ganadero = [&](double id, const char* nombre, double vet, const Valor& baja) {
                prueba::Insertar(c, "T_Ganaderos",
                                 {{"Id_Ganadero", id},
                                  {"Nombre", Texto(nombre)},
                                  {"Apellidos", Texto("Díaz")},
                                  {"Id_Veterinario", vet},
                                  {"FechaBaja", baja}});
            };
            ganadero(57, "Ñisu", 1, {});
            ganadero(12, "Nora", 2, {});
            ganadero(85, "Olvido", 1, Valor(*Fecha::De(2023, 10, 15)));
            ganadero(310, "Nuria", 1, {});
            QDir(i.Carpeta()).mkdir(QStringLiteral("Informes"));
            for (const char* f : {"IndTecnicos.rpt", "Ganaderos.rpt"})
                QFile::copy(QStringLiteral(PASTORIX_LAYOUTS "/") + QString::fromUtf8(f),
                            i.En("Informes/") + QString::fromUtf8(f));
            anterior =
                ControlInforme::InstalarDestino([this](InformeTerminado t) { terminado = std::move(t); });
            FijarHoy(Fecha::De(2025, 12, 1));
        }
        ~Puesto() {
            ControlInforme::InstalarDestino(anterior);
            FijarHoy({});
        }
    };

    static QStringList Textos(const QListWidget* lista) {
        QStringList t;
        for (int i = 0; i < lista->count(); ++i)
            t << lista->item(i)->text();
        return t;
    }

private Q_SLOTS:
    void Selectores() {
        Puesto p;
        const LectorDeTablas tablas(p.i.sesion.conexion);
        ControlInforme control(tablas);
        Lst_IndicesTecnicos f(p.i.sesion, control);
        auto* vet = f.findChild<QComboBox*>(QStringLiteral("Cd_Veterinario"));
        auto* lista = f.findChild<QListWidget*>(QStringLiteral("lstGanadero"));
        auto* año = f.findChild<QLineEdit*>(QStringLiteral("Ct_E"));
        QCOMPARE(f.windowTitle(), QStringLiteral("Índices Técnicos"));
        QCOMPARE(año->text(), QStringLiteral("2026")); // 1 December belongs to the next one
        QCOMPARE(vet->currentIndex(), -1);
        QCOMPARE(vet->itemText(0), QStringLiteral("Ana"));
        QCOMPARE(Textos(lista), QStringList({QStringLiteral("Nora Díaz"), QStringLiteral("Nuria Díaz"),
                                             QStringLiteral("Ñisu Díaz")}));
        vet->setCurrentIndex(0);
        Q_EMIT vet->activated(0);
        QCOMPARE(Textos(lista), QStringList({QStringLiteral("Nuria Díaz"), QStringLiteral("Ñisu Díaz")}));
        lista->item(0)->setCheckState(Qt::Checked);
        lista->item(1)->setCheckState(Qt::Checked); // one at a time
        QCOMPARE(lista->item(0)->checkState(), Qt::Unchecked);
        QTest::keyClick(vet, Qt::Key_Delete);
        QCOMPARE(vet->currentIndex(), -1);
        QCOMPARE(lista->count(), 3);
        QCOMPARE(lista->item(2)->checkState(), Qt::Unchecked);
        año->clear();
        QTest::keyClicks(año, QStringLiteral("2a0,2-56"));
        QCOMPARE(año->text(), QStringLiteral("2025"));
    }

    void Validacion() {
        Puesto p;
        const LectorDeTablas tablas(p.i.sesion.conexion);
        ControlInforme control(tablas);
        prueba::Insertar(p.i.sesion.conexion, "X_Temp", {{"C1", Texto("anterior")}});
        Lst_IndicesTecnicos f(p.i.sesion, control);
        prueba::Cajas cajas;
        const auto rechaza = [&](const char* texto) {
            f.findChild<QPushButton*>(QStringLiteral("B_Aceptar"))->click();
            const auto vistas = cajas.Vistas();
            QCOMPARE(vistas.size(), 1);
            QCOMPARE(vistas[0].titulo, QStringLiteral("Información"));
            QCOMPARE(vistas[0].texto, QString::fromUtf8(texto));
            QCOMPARE(prueba::Leer(p.i.sesion.conexion, "SELECT C1 FROM X_Temp"),
                     std::string("anterior")); // no table touched
        };
        f.PonerAño(QStringLiteral("202"));
        rechaza("Indique el Año de Referencia");
        f.PonerAño(QStringLiteral("2025"));
        rechaza("Debe seleccionar algún Ganadero");
        QVERIFY(!f.MarcarGanadero(85)); // has left: not offered
        QVERIFY(f.MarcarGanadero(12));
        QVERIFY(f.Aceptar());
        QVERIFY(p.terminado.has_value());
        QCOMPARE(p.terminado->titulo, QStringLiteral(" Índices Técnicos"));
        QVERIFY(p.terminado->maximizada);
        QCOMPARE(prueba::Leer(p.i.sesion.conexion, "SELECT C1 FROM X_Temp"), std::string("12"));
        p.terminado.reset();

        // a year that passes the check and is none; a layout that is gone; a malformed one: each told, nothing opened
        const auto falla = [&](const char* numero, const char* trozo) {
            QVERIFY(!f.Aceptar());
            const auto vistas = cajas.Vistas();
            QCOMPARE(vistas.size(), 1);
            QCOMPARE(vistas[0].titulo, QStringLiteral("Atención..."));
            QVERIFY2(vistas[0].texto.startsWith(QString::fromUtf8(numero) + QStringLiteral(" ... ")),
                     qPrintable(vistas[0].texto));
            QVERIFY2(vistas[0].texto.contains(QString::fromUtf8(trozo)), qPrintable(vistas[0].texto));
            QVERIFY(!p.terminado.has_value());
            QVERIFY(f.findChild<QPushButton*>(QStringLiteral("B_Aceptar"))->isEnabled());
        };
        f.PonerAño(QStringLiteral("0000"));
        falla("13", "tipos");
        f.PonerAño(QStringLiteral("2025"));
        QFile layout(p.i.En("Informes/IndTecnicos.rpt"));
        QVERIFY(layout.open(QIODevice::Append));
        layout.write("\nesto no es nada\n");
        layout.close();
        falla("60102", "IndTecnicos.rpt");
        QVERIFY(layout.remove());
        falla("60101", "IndTecnicos.rpt");
    }

    void Listados() {
        Puesto p;
        const LectorDeTablas tablas(p.i.sesion.conexion);
        ControlInforme control(tablas);
        prueba::Cajas cajas;
        ListadoMaestro(3, p.i.sesion, control, nullptr); // any other kind does nothing
        QVERIFY(!p.terminado.has_value());
        ListadoMaestro(2, p.i.sesion, control, nullptr);
        QVERIFY(p.terminado.has_value());
        QCOMPARE(p.terminado->titulo, QStringLiteral(" Ganaderos"));
        ListadoMaestro(1, p.i.sesion, control, nullptr);
        QCOMPARE(cajas.Vistas().size(), 1); // its layout is not there
    }
};

PRUEBA(PruebaFormulario)
#include "PruebaFormulario.moc"
