#include "Granjas.h"

#include "frame/selector/FiltroSelector.h"
#include "frame/selector/ModSelector.h"
#include "frame/selector/SentenciasSelector.h"

#include <stdexcept>

using namespace prueba;

class PruebaModSelector : public QObject {
    Q_OBJECT

    static QString Unidas(const std::vector<std::string>& textos) {
        QStringList lista;
        for (const auto& t : textos)
            lista << Q(t);
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
                QVERIFY2(Q(titulo).contains(clave) == !ExplicacionDeTitulo(titulo).empty(), titulo.c_str());
    }

    // Every kind that is made ready here: what it shows, the keys in the list's order, and where the choice goes.
    void Clases_data() {
        const auto fila = [](int tipo, const QString& texto, const char* titulo, const char* destino,
                             const char* claves) {
            Caso(qPrintable(QString::asprintf("%d", tipo)), tipo, texto, QString(titulo), QString(destino),
                 QString(claves));
        };
        const auto deVacas = Q(SentenciaVacas().Completa());
        const auto deUno = Q(SentenciaVacas(12.0).Completa());
        const auto deToros = Q(SentenciaSementales().Completa());
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
        fila(19, Q(SentenciaMeritos().Completa()), " Selección de Sementales...", "Sementales",
             "3/4/12001/12002/900001");
        fila(20, "", " Relación de Veterinarios", "", "2");
        fila(21, "", " Relación de Ganaderos", "", "57/900/1/12");
    }
    void Clases() {
        const auto [tipo, texto, titulo, destino, claves] =
            DelCaso<int, QString, QString, QString, QString>();
        Granjas b;
        const auto lista = PrepararSelector(b.c, static_cast<TipoSelector>(tipo), texto.toStdString());
        QCOMPARE(Q(lista.titulo), titulo);
        QCOMPARE(Q(lista.destino), destino);
        const bool plana = tipo == 20 || tipo == 21;
        QCOMPARE(lista.clave.empty(), plana);
        const auto campo = plana ? (tipo == 20 ? "Id_Veterinario" : "Id_Ganadero") : lista.clave;
        const auto sentencia = lista.Sentencia(false);
        QCOMPARE(Q(b.Columna(sentencia.Completa(), campo)), claves);

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
        Caso("own bulls first", "12", "Ares-C|0/Brezo-C|1/Ajeno-C|0/Imán-C|0/Jara-C|1");
        Caso("a farmer without bulls", "57", "Ajeno-C|0/Imán-C|0/Jara-C|1");
        Caso("no farmer", "", "Ajeno-C|0/Imán-C|0/Jara-C|1");
        Caso("the holder of the insemination bulls", "1", "Imán-C|0/Jara-C|1/Ajeno-C|0/Imán-C|0/Jara-C|1");
    }
    void XSelector() {
        const auto [ganadero, toros] = DelCaso<QString, QString>();
        Granjas b;
        b.Poner("X_Selector", "id=9, Semental=of the last use");
        const auto lista = PrepararSelector(b.c, TipoSelector::PadresParaPartos, ganadero.toStdString());
        QCOMPARE(Q(b.Texto("SELECT SementalC, Baja FROM X_Selector ORDER BY id")), toros);
        QCOMPARE(b.Columna(lista.Sentencia(true).Completa(), "SementalC") + "/",
                 QString(toros).remove("|0").remove("|1").toStdString() + "/");
        QVERIFY(!b.Columna(lista.Sentencia(false).Completa(), "SementalC").empty());
        QVERIFY(b.Columna(lista.Sentencia(false).Completa(), "SementalC").find("Jara") == std::string::npos);
        if (ganadero == "12")
            QUEDA(b,
                  "id, Apodo, Id_Semental, RegGen, RegSan, Semental, Crotal, SementalC, Baja FROM X_Selector "
                  "WHERE id = 2",
                  "2|Casa Pola|12002|GBrezo|SBrezo|Brezo|-|Brezo-C|1");
    }

    // Kinds that their callers make ready, with the statements of those callers.
    void DelLlamador_data() {
        const auto fila = [](int tipo, const SentenciaDeLista& s, const char* clave, const char* claves) {
            Caso(qPrintable(QString::asprintf("%d", tipo)), tipo, Q(s.Completa()), QString(clave),
                 QString(claves));
        };
        fila(3, SentenciaVeterinarios(), "Id_Veterinario", "2");
        fila(5, SentenciaSementalesPorCodigo(), "Id_Semental", "3/4/12001/12002/900001");
        fila(8, SentenciaVacasTodas(), "Id_Vaca", "1200002/1200001/1200003/57000001");
        fila(13, SentenciaNucleos(), "", "1");
    }
    void DelLlamador() {
        const auto [tipo, sentencia, clave, claves] = DelCaso<int, QString, QString, QString>();
        Granjas b;
        const auto clase = static_cast<TipoSelector>(tipo);
        for (const auto ninguna : {clase, static_cast<TipoSelector>(10)}) // there is no 10
            QVERIFY_THROWS_EXCEPTION(std::logic_error, PrepararSelector(b.c, ninguna));
        const auto lista = ListaDelLlamador(clase, sentencia.toStdString(), " Título", {"Una", "Otra"});
        QCOMPARE(lista.titulo, " Título"s);
        QCOMPARE(Unidas(lista.columnas), u"Una|Otra"_s);
        QCOMPARE(Q(lista.clave), clave);
        QCOMPARE(Q(b.Columna(lista.Sentencia(false).Completa(), clave.isEmpty() ? "Id_Nucleo" : lista.clave)),
                 claves);
        QCOMPARE(ListaDelLlamador(clase, "SELECT * FROM T_Ganaderos", "", {}, "Id_Ganadero").clave,
                 "Id_Ganadero"s);
    }

    // Each heading over its own column.
    void LosTitulosVanSobreLoSuyo_data() {
        Caso("Cód.Vaca", 2, 4, "1200001");
        Caso("Nombre Vaca", 2, 7, "Luna");
        Caso("Apodo", 2, 3, "Casa Pola");
        Caso("Reg.Gen.", 4, 5, "GAres");
        Caso("Reg.San.", 4, 6, "SAres");
    }
    void LosTitulosVanSobreLoSuyo() {
        const auto [tipo, columna, dato] = DelCaso<int, int, QString>();
        Granjas b;
        const auto sentencia = tipo == 2 ? SentenciaVacas() : SentenciaSementales();
        const auto lista = PrepararSelector(b.c, static_cast<TipoSelector>(tipo), sentencia.Completa());
        QCOMPARE(Q(lista.columnas.at(static_cast<std::size_t>(columna))), Q(QTest::currentDataTag()));
        Recordset rs(b.c, sentencia.Completa());
        QCOMPARE(Q(rs[columna].Texto()), dato);
    }

    void ElVeterinarioLlevaSuConcejo() {
        Granjas b;
        const auto ver = [&](TipoSelector tipo) {
            const auto s = PrepararSelector(b.c, tipo).sentencia;
            return b.Texto(s.Completa("T_Ganaderos.Id_Ganadero = 12"));
        };
        QCOMPARE(Unidas(PrepararSelector(b.c, TipoSelector::Ganaderos).columnas),
                 u"Veterinario|Localidad|Apodo|Nombre|Apellidos|Cód.Gan"_s);
        QCOMPARE(ver(TipoSelector::Ganaderos), "Eva López\r(Tineo)|Navelgas|Casa Pola|Nicolás|Ñuño|12"s);
        QCOMPARE(ver(TipoSelector::RelacionDeGanaderos), "Eva\r(Tineo)|Navelgas|Casa Pola|Nicolás|Ñuño|12"s);
    }
};

class PruebaFiltroSelector : public QObject {
    Q_OBJECT

    Granjas m_base;

    std::vector<ColumnaDeFiltro> DeFiltro(const SentenciaDeLista& s) {
        return ColumnasDeFiltro(Recordset(m_base.c, s.Completa(), Cursor::Estatico, Bloqueo::SoloLectura), s);
    }

private Q_SLOTS:
    // One box of the cows' list: the condition, and the cows that it leaves ("!" when the store refuses it).
    void Vacas_data() {
        const char* todas = "Luna/Luna Nueva/Ñora/Estrella";
        Caso("nothing", "Vaca", "", "", todas);
        Caso("only blanks", "Vaca", "   ", "", todas);
        Caso("whole text, no case", "Vaca", "luna", "T_Vacas.Nombre LIKE 'luna'", "Luna");
        Caso("capital of an ñ", "Vaca", "ñORA", "T_Vacas.Nombre LIKE 'ñORA'", "Ñora");
        Caso("asterisk", "Vaca", " luna* ", "T_Vacas.Nombre LIKE 'luna%'", "Luna/Luna Nueva");
        Caso("asterisk in front", "Vaca", "*a", "T_Vacas.Nombre LIKE '%a'", todas);
        Caso("no part of a text", "Vaca", "un", "T_Vacas.Nombre LIKE 'un'", "");
        Caso("tag by its end", "Crotal", "45", "T_Vacas.Crotal LIKE '%45'", "Ñora/Estrella");
        Caso("tag with an asterisk", "Crotal", "45*", "T_Vacas.Crotal LIKE '%45%'", todas);
        Caso("the former tag is a plain text", "CrotalANT", "45", "T_Vacas.CrotalANT LIKE '45'", "");
        Caso("column of both tables", "Id_Ganadero", "57", "T_Vacas.Id_Ganadero = 57", "Estrella");
        Caso("farmers", "Apellidos", "ñuño", "T_Ganaderos.Apellidos LIKE 'ñuño'", "Luna/Luna Nueva/Ñora");
        Caso("comparison", "Id_Vaca", ">=1200003", "T_Vacas.Id_Vaca >=1200003", "Ñora/Estrella");
        Caso("different", "Id_Vaca", "<>1200003", "T_Vacas.Id_Vaca <>1200003", "Luna/Luna Nueva/Estrella");
        Caso("comparison with nothing", "Id_Vaca", ">", "T_Vacas.Id_Vaca >", "!");
        Caso("not only a number", "Id_Vaca", "1 OR 1=1", "!", "!");
        Caso("decimals are not in its language", "Id_Vaca", "1,5", "!", "!");
        Caso("date", "FechaDesecho", "15/3/24", "T_Vacas.FechaDesecho = {ts '2024-03-15 00:00:00'}",
             "Estrella");
        Caso("date, long year", "FechaDesecho", "01/03/2024",
             "T_Vacas.FechaDesecho = {ts '2024-03-01 00:00:00'}", "Luna Nueva");
        Caso("no real date", "FechaDesecho", "31/02/24", "", todas);
        Caso("half a date", "FechaDesecho", "03/24", "", todas);
        Caso("apostrophe", "Vaca", "O'Hara", "!", "!");
        Caso("end of a literal", "Vaca", "x' OR '1'='1", "!", "!");
        Caso("signs of the statement's own", "Vaca", "a#b[c", "T_Vacas.Nombre LIKE 'a#b[c'", "");
    }
    void Vacas() {
        const auto [columna, texto, filtro, vacas] = DelCaso<QString, QString, QString, QString>();
        const auto sentencia = SentenciaVacas();
        const auto columnas = DeFiltro(sentencia);
        std::vector<std::string> textos(columnas.size());
        for (std::size_t i = 0; i < columnas.size(); ++i)
            if (columnas[i].nombre == columna.toStdString())
                textos[i] = texto.toStdString();
        std::string salida = "!";
        try {
            const auto hecho = TextoDelFiltro(columnas, textos);
            if (filtro != "!")
                QCOMPARE(Q(hecho), filtro);
            salida = m_base.Columna(sentencia.Completa(hecho), "Vaca");
        } catch (const ErrorAlmacen& e) {
            QCOMPARE(e.Codigo(), CodigoError::Sintaxis);
        }
        QCOMPARE(Q(salida), vacas);
    }

    void LasCondicionesVanEnElOrdenDeLasColumnas() {
        const auto sentencia = SentenciaVacas(12.0);
        const auto columnas = DeFiltro(sentencia);
        std::vector<std::string> textos(columnas.size());
        textos[11] = "x"; // no date: nothing
        textos[8] = "451*";
        textos[7] = "*u*";
        const auto filtro = TextoDelFiltro(columnas, textos);
        QCOMPARE(filtro, "T_Vacas.Nombre LIKE '%u%' AND T_Vacas.Crotal LIKE '%451%'"s);
        QCOMPARE(m_base.Columna(sentencia.Completa(filtro), "Vaca"), "Luna/Luna Nueva"s);
    }

    // The expression's first column stands for the computed name.
    void ElNombreCalculadoSeBuscaPorSuColumna() {
        for (const auto clase : {VeterinarioDeLista::NombreYApellidos, VeterinarioDeLista::SoloNombre}) {
            const auto sentencia = SentenciaGanaderos(clase);
            const auto filtro = TextoDelFiltro(DeFiltro(sentencia), {"e*"});
            QCOMPARE(filtro, "T_Veterinarios.NombreVet LIKE 'e%'"s);
            QCOMPARE(m_base.Columna(sentencia.Completa(filtro), "Apodo"), "Casa Pola"s);
        }
    }

    // Statements as the sheets write them, with the names that conditions may use.
    void Partes_data() {
        Caso("all parts", "Select A.x, y As z From A where A.x = 'order by' order  by z",
             " where A.x = 'order by'", " order  by z", "A.x|y");
        Caso("no condition", "SELECT Apodo,[T].[Où], T!q AS r FROM T ORDER BY Nombre, Apellidos", "",
             " ORDER BY Nombre, Apellidos", "Apodo|[T].[Où]|T!q");
        Caso("bare", "SELECT * FROM T", "", "", "*");
        Caso("functions and literals",
             "SELECT chr(13) & T.a & 'x, FROM y' AS b, Year(T.f), 'k' FROM (T LEFT JOIN U ON T.a = U.a) "
             "WHERE (a = 1)",
             " WHERE (a = 1)", "", "T.a|T.f|");
    }
    void Partes() {
        const auto [texto, donde, orden, campos] = DelCaso<QString, QString, QString, QString>();
        const auto partes = PartirSentencia(texto.toStdString());
        QCOMPARE(Q(partes.donde), donde);
        QCOMPARE(Q(partes.orden), orden);
        QCOMPARE(Q(partes.Completa()), texto);
        QStringList lista;
        for (const auto& campo : CamposDeSeleccion(partes.seleccion))
            lista << Q(campo);
        QCOMPARE(lista.join('|'), campos);
        const auto filtrada = Q(partes.Completa("q = 1"));
        QVERIFY(filtrada.endsWith((donde.isEmpty() ? " WHERE q = 1" : " AND q = 1") + orden));
    }

    // Without a prefix the table is that of the column; a "*" gives the columns' own names.
    void LaTablaSePoneDelante() {
        for (const char* texto :
             {"SELECT Id_Ganadero, Apodo AS A FROM T_Ganaderos", "SELECT * FROM T_Ganaderos"}) {
            const auto columnas = DeFiltro(PartirSentencia(texto));
            QCOMPARE(columnas[0].campo, "T_Ganaderos.Id_Ganadero"s);
            QCOMPARE(columnas[0].tipo, TipoNumero);
            QCOMPARE(columnas[1].campo,
                     std::string(columnas.size() == 2 ? "T_Ganaderos.Apodo" : "T_Ganaderos.DNI"));
            QCOMPARE(columnas[1].tipo, TipoTexto);
        }
    }
};

PRUEBA(PruebaModSelector)
PRUEBA(PruebaFiltroSelector)
#include "PruebaModSelector.moc"
