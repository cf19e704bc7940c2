#include "Cajas.h"
#include "Instalacion.h"
#include "prueba.h"

#include "frame/Ultimos.h"
#include "frame/calendario/Reloj.h"
#include "reports/ListadoMaestro.h"
#include "reports/formularios/InformesAnuales.h"
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
        InformeAnual f(kLst_IndicesTecnicos, p.i.sesion, control, nullptr);
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
        f.show();
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
        QCOMPARE(lista->count(), 3);
        QCOMPARE(lista->item(2)->checkState(), Qt::Unchecked);
        año->clear();
        QTest::keyClicks(año, QStringLiteral("2a0,2-56"));
        QCOMPARE(año->text(), QStringLiteral("2025"));
    }

    void LoQueFalla() {
        Puesto p;
        const LectorDeTablas tablas(p.i.sesion.conexion);
        ControlInforme control(tablas);
        InformeAnual f(kLst_IndicesTecnicos, p.i.sesion, control, nullptr);
        prueba::Cajas cajas;
        QVERIFY_THROWS_EXCEPTION(ErrorDeOpcion,
                                 f.PonerOpcion(QStringLiteral("ganadero"), QStringLiteral("85"))); // has left
        f.PonerOpcion(QStringLiteral("ganadero"), QStringLiteral("12"));
        // a year that passes the check and is none; a malformed layout: each told, nothing opened
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
        f.PonerOpcion(QStringLiteral("año"), QStringLiteral("0000"));
        falla("13", "tipos");
        f.PonerOpcion(QStringLiteral("año"), QStringLiteral("2025"));
        prueba::Escribir(p.i.En("Informes/IndTecnicos.rpt"), "pastorix-informe 1\nesto no es nada\n");
        falla("60102", "IndTecnicos.rpt, línea 2");
    }

    // The farmer whom the user was with last is offered; without a display nobody is.
    void ElUltimoGanadero() {
        Puesto p;
        const LectorDeTablas tablas(p.i.sesion.conexion);
        ControlInforme control(tablas);
        const auto ofrecido = [](const InformeAnual& f) {
            const auto* lista = f.findChild<QListWidget*>(QStringLiteral("lstGanadero"));
            QStringList marcados;
            for (int i = 0; i < lista->count(); ++i)
                if (lista->item(i)->checkState() == Qt::Checked)
                    marcados << lista->item(i)->text() << QString::number(lista->currentRow() == i);
            return marcados.join('/');
        };
        {
            InformeAnual f(kLst_IndicesTecnicos, p.i.sesion, control, nullptr);
            f.show();
            QCOMPARE(ofrecido(f), QString());
            f.PonerOpcion(QStringLiteral("ganadero"), QStringLiteral("310"));
            f.findChild<QPushButton*>(QStringLiteral("B_Aceptar"))->click();
            QVERIFY(p.terminado.has_value());
        }
        InformeAnual f(kLst_IndicesTecnicos, p.i.sesion, control, nullptr);
        QCOMPARE(ofrecido(f), QString());
        f.show();
        QCOMPARE(ofrecido(f), QStringLiteral("Nuria Díaz/1"));
        auto* año = f.findChild<QLineEdit*>(QStringLiteral("Ct_E"));
        QCOMPARE(año->text(), QStringLiteral("2026")); // always that of today
        QTest::keyClick(año, Qt::Key_Down);
        QTest::keyClick(año, Qt::Key_Down);
        QTest::keyClick(año, Qt::Key_Up);
        QCOMPARE(año->text(), QStringLiteral("2025"));
        RecordarUltimo(p.i.sesion.conexion, "Id_Ganadero", 85); // who has left, and is not on the list
        InformeAnual otra(kLst_IndicesTecnicos, p.i.sesion, control, nullptr);
        otra.show();
        QCOMPARE(ofrecido(otra), QString());
        InformeAnual elegida(kLst_IndicesTecnicos, p.i.sesion, control, nullptr);
        elegida.PonerOpcion(QStringLiteral("ganadero"), QStringLiteral("12"));
        elegida.show();
        QCOMPARE(ofrecido(elegida).left(4), QStringLiteral("Nora"));
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
        prueba::Escribir(p.i.En("Informes/Veterinarios.rpt"), "pastorix-informe 1\nesto no es nada\n");
        ListadoMaestro(1, p.i.sesion, control, nullptr);
        QCOMPARE(cajas.Vistas().size(), 1); // its layout has a mistake in it
    }
};

PRUEBA(PruebaFormulario)
#include "PruebaFormulario.moc"
