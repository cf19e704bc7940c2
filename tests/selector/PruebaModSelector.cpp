#include "prueba.h"

#include "Granjas.h"
#include "frame/selector/FiltroSelector.h"
#include "frame/selector/ModSelector.h"
#include "frame/selector/SentenciasSelector.h"

#include <QRegularExpression>

#include <stdexcept>

using namespace pastorix;
using namespace prueba;

class PruebaModSelector : public QObject {
    Q_OBJECT

    static QString Unidas(const std::vector<std::string>& textos) {
        QStringList lista;
        for (const auto& t : textos)
            lista << QString::fromStdString(t);
        return lista.join('|');
    }

private Q_SLOTS:
    // A caption with a full stop or a capital in its midst is a code.
    void LosTitulosEnClaveSeExplican() {
        Granjas b;
        const QRegularExpression clave(R"(\.|\p{Ll}\p{Lu}|\p{Lu}{2}|-C$)");
        for (const auto& [tipo, texto] : {std::pair{TipoSelector::Ganaderos, std::string()},
                                          {TipoSelector::Vacas, SentenciaVacas().Completa()},
                                          {TipoSelector::Sementales, SentenciaSementales().Completa()},
                                          {TipoSelector::Meritos, SentenciaMeritos().Completa()},
                                          {TipoSelector::PadresParaVacas, "12"s},
                                          {TipoSelector::RelacionDeVeterinarios, std::string()}})
            for (const auto& titulo : PrepararSelector(b.c, tipo, texto).columnas)
                QVERIFY2(QString::fromStdString(titulo).contains(clave) ==
                             !ExplicacionDeTitulo(titulo).empty(),
                         titulo.c_str());
    }

    // Every kind that is made ready here: what it shows, the keys in the list's order, and where the choice goes.
    void Clases_data() {
        Columnas<int, QString, QString, QString, QString>("tipo", "texto", "titulo", "destino", "claves");
        const auto fila = [](int tipo, const QString& texto, const char* titulo, const char* destino,
                             const char* claves) {
            QTest::addRow("%d", tipo)
                << tipo << texto << QString(titulo) << QString(destino) << QString(claves);
        };
        const auto deVacas = QString::fromStdString(SentenciaVacas().Completa());
        const auto deUno = QString::fromStdString(SentenciaVacas(12.0).Completa());
        const auto deToros = QString::fromStdString(SentenciaSementales().Completa());
        // farmers without a veterinarian first, then by nickname
        for (const auto& [tipo, destino] : {std::pair{1, "Ganaderos"}, {6, "Vacas"}, {7, "Sementales"}})
            fila(tipo, "", " Selector de Ganaderos", destino, "57/900/1/12");
        fila(2, deVacas, " Selector de Vacas", "Vacas", "1200001/1200002/1200003/57000001");
        fila(4, deToros, " Selector de Sementales", "Sementales", "12001/12002/900001/3/4");
        fila(9, deUno, " Selector de Vacas", "LstHtsPxV", "1200001/1200002/1200003");
        for (const auto& [tipo, destino] :
             {std::pair{11, "Cubriciones"}, {12, "Sementales"}, {15, "Partos"}, {16, "Vacas"}})
            fila(tipo, "12", " Selector de Sementales - Padres", destino, "12001/900001/3");
        fila(14, deVacas, " Selector de Vacas", "Sementales", "1200001/1200002/1200003/57000001");
        fila(17, deUno, " Selector de Vacas", "Vacas", "1200001/1200002/1200003");
        fila(18, deUno, " Selector de Vacas", "LstHtsEAR_DR", "1200001/1200002/1200003");
        fila(19, QString::fromStdString(SentenciaMeritos().Completa()), " Selección de Sementales...",
             "Sementales", "3/4/12001/12002/900001");
        fila(20, "", " Relación de Veterinarios", "", "2");
        fila(21, "", " Relación de Ganaderos", "", "57/900/1/12");
    }
    void Clases() {
        QFETCH(int, tipo);
        QFETCH(QString, texto);
        QFETCH(QString, titulo);
        QFETCH(QString, destino);
        QFETCH(QString, claves);
        Granjas b;
        const auto lista = PrepararSelector(b.c, static_cast<TipoSelector>(tipo), texto.toStdString());
        QCOMPARE(QString::fromStdString(lista.titulo), titulo);
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
        Columnas<QString, QString>("ganadero", "toros");
        Caso("own bulls first", "12", "Ares-C|0/Brezo-C|1/Ajeno-C|0/Imán-C|0/Jara-C|1");
        Caso("a farmer without bulls", "57", "Ajeno-C|0/Imán-C|0/Jara-C|1");
        Caso("no farmer", "", "Ajeno-C|0/Imán-C|0/Jara-C|1");
        Caso("the holder of the insemination bulls", "1", "Imán-C|0/Jara-C|1/Ajeno-C|0/Imán-C|0/Jara-C|1");
    }
    void XSelector() {
        QFETCH(QString, ganadero);
        QFETCH(QString, toros);
        Granjas b;
        b.Poner("X_Selector", {{"id", 9.0}, {"Semental", "of the last use"s}});
        const auto lista = PrepararSelector(b.c, TipoSelector::PadresParaPartos, ganadero.toStdString());
        QCOMPARE(QString::fromStdString(b.Texto("SELECT SementalC, Baja FROM X_Selector ORDER BY id")),
                 toros);
        QCOMPARE(b.Columna(lista.Sentencia(true).Completa(), "SementalC") + "/",
                 QString(toros).remove("|0").remove("|1").toStdString() + "/");
        QVERIFY(!b.Columna(lista.Sentencia(false).Completa(), "SementalC").empty());
        QVERIFY(b.Columna(lista.Sentencia(false).Completa(), "SementalC").find("Jara") == std::string::npos);
        if (ganadero == "12")
            QCOMPARE(
                b.Texto("SELECT id, Apodo, Id_Semental, RegGen, RegSan, Semental, Crotal, SementalC, Baja "
                        "FROM X_Selector WHERE id = 2"),
                "2|Casa Pola|12002|GBrezo|SBrezo|Brezo|-|Brezo-C|1"s);
    }

    // Kinds that their callers make ready, with the statements of those callers.
    void DelLlamador_data() {
        Columnas<int, QString, QString, QString>("tipo", "sentencia", "clave", "claves");
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
        for (const auto ninguna : {clase, static_cast<TipoSelector>(10)}) // there is no 10
            QVERIFY_THROWS_EXCEPTION(std::logic_error, PrepararSelector(b.c, ninguna));
        const auto lista = ListaDelLlamador(clase, sentencia.toStdString(), " Título", {"Una", "Otra"});
        QCOMPARE(lista.titulo, " Título"s);
        QCOMPARE(Unidas(lista.columnas), u"Una|Otra"_s);
        QCOMPARE(QString::fromStdString(lista.clave), clave);
        QCOMPARE(QString::fromStdString(b.Columna(lista.Sentencia(false).Completa(),
                                                  clave.isEmpty() ? "Id_Nucleo" : lista.clave)),
                 claves);
        QCOMPARE(ListaDelLlamador(clase, "SELECT * FROM T_Ganaderos", "", {}, "Id_Ganadero").clave,
                 "Id_Ganadero"s);
    }

    void ElVeterinarioLlevaSuConcejo() {
        Granjas b;
        const auto ver = [&](TipoSelector tipo) {
            const auto s = PrepararSelector(b.c, tipo).sentencia;
            return b.Texto(s.Completa("T_Ganaderos.Id_Ganadero = 12"));
        };
        QCOMPARE(ver(TipoSelector::Ganaderos), "Eva López\r(Tineo)|Navelgas|Casa Pola|Nicolás|Ñuño|12"s);
        QCOMPARE(ver(TipoSelector::RelacionDeGanaderos), "Eva\r(Tineo)|Navelgas|Casa Pola|Nicolás|Ñuño|12"s);
    }
};

PRUEBA(PruebaModSelector)
#include "PruebaModSelector.moc"
