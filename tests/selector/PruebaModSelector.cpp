#include "prueba.h"

#include "Granjas.h"
#include "frame/selector/FiltroSelector.h"
#include "frame/selector/ModSelector.h"
#include "frame/selector/SentenciasSelector.h"

#include <stdexcept>

using namespace pastorix;
using prueba::Granjas;

class PruebaModSelector : public QObject {
    Q_OBJECT

    static QString Unidas(const std::vector<std::string>& textos) {
        QStringList lista;
        for (const auto& t : textos)
            lista << QString::fromStdString(t);
        return lista.join('|');
    }

private Q_SLOTS:
    // Every kind that is made ready here: what it shows, the keys in the list's order, and where the choice goes.
    void Clases_data() {
        QTest::addColumn<int>("tipo");
        QTest::addColumn<QString>("texto");
        QTest::addColumn<QString>("titulo");
        QTest::addColumn<QString>("columnas");
        QTest::addColumn<QString>("destino");
        QTest::addColumn<QString>("claves");
        const QString ganaderos = "Veterinario|Localidad|Apodo|Nombre|Apellidos|Cód.Gan";
        const QString vacas = "Cód.Gan|Apellidos|Nombre|Apodo|Cód.Vaca|Reg.Gen.|Reg.San.|Nombre Vaca|Crotal|"
                              "CrotalANT|Nombre-C|F.Baja";
        const QString toros = "Cód.Gan|Apellidos|Nombre|Apodo|Cód.Sem.|Reg.Gen.|Reg.San.|Semental|Crotal|"
                              "Semental-C|F.Baja";
        const QString padres = "Apodo|Cód.Sem.|Reg.Gen.|Reg.San.|Semental|Crotal|Semental-C";
        const auto fila = [](int tipo, const QString& texto, const char* titulo, const QString& columnas,
                             const char* destino, const char* claves) {
            QTest::addRow("%d", tipo)
                << tipo << texto << QString(titulo) << columnas << QString(destino) << QString(claves);
        };
        const auto deVacas = QString::fromStdString(SentenciaVacas().Completa());
        const auto deUno = QString::fromStdString(SentenciaVacas(12.0).Completa());
        const auto deToros = QString::fromStdString(SentenciaSementales().Completa());
        // farmers without a veterinarian first, then by nickname
        for (const auto& [tipo, destino] : {std::pair{1, "Ganaderos"}, {6, "Vacas"}, {7, "Sementales"}})
            fila(tipo, "", " Selector de Ganaderos", ganaderos, destino, "57/900/1/12");
        fila(2, deVacas, " Selector de Vacas", vacas, "Vacas", "1200001/1200002/1200003/57000001");
        fila(4, deToros, " Selector de Sementales", toros, "Sementales", "12001/12002/900001/3/4");
        fila(9, deUno, " Selector de Vacas", vacas, "LstHtsPxV", "1200001/1200002/1200003");
        for (const auto& [tipo, destino] :
             {std::pair{11, "Cubriciones"}, {12, "Sementales"}, {15, "Partos"}, {16, "Vacas"}})
            fila(tipo, "12", " Selector de Sementales - Padres", padres, destino, "12001/900001/3");
        fila(14, deVacas, " Selector de Vacas", vacas, "Sementales", "1200001/1200002/1200003/57000001");
        fila(17, deUno, " Selector de Vacas", vacas, "Vacas", "1200001/1200002/1200003");
        fila(18, deUno, " Selector de Vacas", vacas, "LstHtsEAR_DR", "1200001/1200002/1200003");
        fila(19, QString::fromStdString(SentenciaMeritos().Completa()), " Selección de Sementales...",
             "Cód.Gan|Nombre-C|Reg.Genealógico|FechaN|Padre|Madre|CalifM|MGPN|FiabPN|MGPD|FiabPD|MGGD|FiabGD|"
             "MGDifP|FiabDP",
             "Sementales", "3/4/12001/12002/900001");
        fila(20, "", " Relación de Veterinarios", "Código|Nombre|Apellidos|Localidad|Usuario", "", "2");
        fila(21, "", " Relación de Ganaderos", ganaderos, "", "57/900/1/12");
    }
    void Clases() {
        QFETCH(int, tipo);
        QFETCH(QString, texto);
        QFETCH(QString, titulo);
        QFETCH(QString, columnas);
        QFETCH(QString, destino);
        QFETCH(QString, claves);
        Granjas b;
        const auto lista = PrepararSelector(b.c, static_cast<TipoSelector>(tipo), texto.toStdString());
        QCOMPARE(QString::fromStdString(lista.titulo), titulo);
        QCOMPARE(Unidas(lista.columnas), columnas);
        QCOMPARE(QString::fromStdString(lista.destino), destino);
        const bool plana = tipo == 20 || tipo == 21;
        QCOMPARE(lista.clave.empty(), plana);
        const auto campo = plana ? (tipo == 20 ? "Id_Veterinario" : "Id_Ganadero") : lista.clave;
        const auto sentencia = lista.Sentencia(false);
        QCOMPARE(QString::fromStdString(b.Columna(sentencia.Completa(), campo)), claves);

        // Every shown column can be filtered, each alone and with a pattern that fits its type.
        Recordset rs(b.c, sentencia.Completa(), Cursor::Estatico, Bloqueo::SoloLectura);
        const auto filtros = ColumnasDeFiltro(rs, sentencia);
        QVERIFY(filtros.size() >= lista.columnas.size());
        for (std::size_t i = 0; i < filtros.size(); ++i) {
            std::vector<std::string> textos(filtros.size());
            textos[i] = filtros[i].tipo == TipoTexto ? "*" : filtros[i].tipo == TipoFecha ? "1/1/24" : ">0";
            const auto filtro = TextoDelFiltro(filtros, textos);
            QVERIFY2(!filtro.empty(), filtros[i].campo.c_str());
            QCOMPARE(b.Error(sentencia.Completa(filtro)), 0L);
        }
    }

    // Own bulls, then those that stand on no farm, then the insemination bulls; each group by its owner's name and the bulls' full name.
    void XSelector_data() {
        QTest::addColumn<QString>("ganadero");
        QTest::addColumn<QString>("toros");
        QTest::newRow("own bulls first") << "12"
                                         << "Ares-C|0/Brezo-C|1/Ajeno-C|0/Imán-C|0/Jara-C|1";
        QTest::newRow("a farmer without bulls") << "57"
                                                << "Ajeno-C|0/Imán-C|0/Jara-C|1";
        QTest::newRow("no farmer") << ""
                                   << "Ajeno-C|0/Imán-C|0/Jara-C|1";
        QTest::newRow("the holder of the insemination bulls")
            << "1"
            << "Imán-C|0/Jara-C|1/Ajeno-C|0/Imán-C|0/Jara-C|1";
    }
    void XSelector() {
        QFETCH(QString, ganadero);
        QFETCH(QString, toros);
        Granjas b;
        b.Poner("X_Selector", {{"id", 9.0}, {"Semental", std::string("of the last use")}});
        const auto lista = PrepararSelector(b.c, TipoSelector::PadresParaPartos, ganadero.toStdString());
        QCOMPARE(QString::fromStdString(b.Texto("SELECT SementalC, Baja FROM X_Selector ORDER BY id")),
                 toros);
        QCOMPARE(b.Columna(lista.Sentencia(true).Completa(), "SementalC") + "/",
                 QString(toros).remove("|0").remove("|1").toStdString() + "/");
        QVERIFY(!b.Columna(lista.Sentencia(false).Completa(), "SementalC").empty());
        QVERIFY(b.Columna(lista.Sentencia(false).Completa(), "SementalC").find("Jara") == std::string::npos);
    }
    void XSelectorLlevaTodosLosDatos() {
        Granjas b;
        RehacerXSelector(b.c, "12");
        QCOMPARE(
            b.Texto("SELECT id, Apodo, Id_Semental, RegGen, RegSan, Semental, Crotal, SementalC, Baja FROM "
                    "X_Selector WHERE id = 2"),
            std::string("2|Casa Pola|12002|GBrezo|SBrezo|Brezo|-|Brezo-C|1"));
    }

    // Kinds that their callers make ready, with the statements of those callers.
    void DelLlamador_data() {
        QTest::addColumn<int>("tipo");
        QTest::addColumn<QString>("sentencia");
        QTest::addColumn<QString>("clave");
        QTest::addColumn<QString>("claves");
        const auto fila = [](int tipo, const SentenciaDeLista& s, const char* clave, const char* claves) {
            QTest::addRow("%d", tipo)
                << tipo << QString::fromStdString(s.Completa()) << QString(clave) << QString(claves);
        };
        fila(3, SentenciaVeterinarios(), "Id_Veterinario", "2");
        fila(5, SentenciaSementalesPorCodigo(), "Id_Semental", "3/4/12001/12002/900001");
        fila(8, SentenciaVacasTodas(), "Id_Vaca", "1200002/1200001/1200003/57000001");
        fila(13, SentenciaNucleos(), "", "1");
    }
    void DelLlamador() {
        QFETCH(int, tipo);
        QFETCH(QString, sentencia);
        QFETCH(QString, clave);
        QFETCH(QString, claves);
        Granjas b;
        const auto clase = static_cast<TipoSelector>(tipo);
        QVERIFY_THROWS_EXCEPTION(std::logic_error, PrepararSelector(b.c, clase));
        const auto lista = ListaDelLlamador(clase, sentencia.toStdString(), " Título", {"Una", "Otra"});
        QCOMPARE(lista.titulo, std::string(" Título"));
        QCOMPARE(Unidas(lista.columnas), QString("Una|Otra"));
        QCOMPARE(QString::fromStdString(lista.clave), clave);
        QCOMPARE(QString::fromStdString(b.Columna(lista.Sentencia(false).Completa(),
                                                  clave.isEmpty() ? "Id_Nucleo" : lista.clave)),
                 claves);
        QCOMPARE(ListaDelLlamador(clase, "SELECT * FROM T_Ganaderos", "", {}, "Id_Ganadero").clave,
                 std::string("Id_Ganadero"));
    }

    void ElVeterinarioLlevaSuConcejo() {
        Granjas b;
        const auto ver = [&](TipoSelector tipo) {
            const auto s = PrepararSelector(b.c, tipo).sentencia;
            return b.Texto(s.Completa("T_Ganaderos.Id_Ganadero = 12"));
        };
        QCOMPARE(ver(TipoSelector::Ganaderos),
                 std::string("Eva López\r(Tineo)|Navelgas|Casa Pola|Nicolás|Ñuño|12"));
        QCOMPARE(ver(TipoSelector::RelacionDeGanaderos),
                 std::string("Eva\r(Tineo)|Navelgas|Casa Pola|Nicolás|Ñuño|12"));
    }

    void NoHayClaseDiez() {
        Granjas b;
        QVERIFY_THROWS_EXCEPTION(std::logic_error, PrepararSelector(b.c, static_cast<TipoSelector>(10)));
    }
};

PRUEBA(PruebaModSelector)
#include "PruebaModSelector.moc"
