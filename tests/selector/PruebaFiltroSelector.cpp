#include "prueba.h"

#include "Granjas.h"
#include "frame/selector/FiltroSelector.h"
#include "frame/selector/SentenciasSelector.h"

using namespace pastorix;
using namespace prueba;

class PruebaFiltroSelector : public QObject {
    Q_OBJECT

    Granjas m_base;

    std::vector<ColumnaDeFiltro> DeFiltro(const SentenciaDeLista& s) {
        return ColumnasDeFiltro(Recordset(m_base.c, s.Completa(), Cursor::Estatico, Bloqueo::SoloLectura), s);
    }

private Q_SLOTS:
    // One box of the cows' list: the condition, and the cows that it leaves ("!" when the store refuses it).
    void Vacas_data() {
        Columnas<QString, QString, QString, QString>("columna", "texto", "filtro", "vacas");
        const auto fila = [](const char* nombre, const char* columna, const char* texto, const char* filtro,
                             const char* vacas) {
            Caso(nombre, QString(columna), QString(texto), QString(filtro), QString(vacas));
        };
        const char* todas = "Luna/Luna Nueva/Ñora/Estrella";
        fila("nothing", "Vaca", "", "", todas);
        fila("only blanks", "Vaca", "   ", "", todas);
        fila("whole text, no case", "Vaca", "luna", "T_Vacas.Nombre LIKE 'luna'", "Luna");
        fila("capital of an ñ", "Vaca", "ñORA", "T_Vacas.Nombre LIKE 'ñORA'", "Ñora");
        fila("asterisk", "Vaca", " luna* ", "T_Vacas.Nombre LIKE 'luna%'", "Luna/Luna Nueva");
        fila("asterisk in front", "Vaca", "*a", "T_Vacas.Nombre LIKE '%a'", todas);
        fila("no part of a text", "Vaca", "un", "T_Vacas.Nombre LIKE 'un'", "");
        fila("tag by its end", "Crotal", "45", "T_Vacas.Crotal LIKE '%45'", "Ñora/Estrella");
        fila("tag with an asterisk", "Crotal", "45*", "T_Vacas.Crotal LIKE '%45%'", todas);
        fila("the former tag is a plain text", "CrotalANT", "45", "T_Vacas.CrotalANT LIKE '45'", "");
        fila("column of both tables", "Id_Ganadero", "57", "T_Vacas.Id_Ganadero = 57", "Estrella");
        fila("column of the farmers", "Apellidos", "ñuño", "T_Ganaderos.Apellidos LIKE 'ñuño'",
             "Luna/Luna Nueva/Ñora");
        fila("comparison", "Id_Vaca", ">=1200003", "T_Vacas.Id_Vaca >=1200003", "Ñora/Estrella");
        fila("different", "Id_Vaca", "<>1200003", "T_Vacas.Id_Vaca <>1200003", "Luna/Luna Nueva/Estrella");
        fila("comparison with nothing", "Id_Vaca", ">", "T_Vacas.Id_Vaca >", "!");
        fila("not only a number", "Id_Vaca", "1 OR 1=1", "!", "!");
        fila("decimals are not in its language", "Id_Vaca", "1,5", "!", "!");
        fila("date", "FechaDesecho", "15/3/24", "T_Vacas.FechaDesecho = {ts '2024-03-15 00:00:00'}",
             "Estrella");
        fila("date, long year", "FechaDesecho", "01/03/2024",
             "T_Vacas.FechaDesecho = {ts '2024-03-01 00:00:00'}", "Luna Nueva");
        fila("no real date", "FechaDesecho", "31/02/24", "", todas);
        fila("half a date", "FechaDesecho", "03/24", "", todas);
        fila("apostrophe", "Vaca", "O'Hara", "!", "!");
        fila("end of a literal", "Vaca", "x' OR '1'='1", "!", "!");
        fila("signs of the statement's own", "Vaca", "a#b[c", "T_Vacas.Nombre LIKE 'a#b[c'", "");
    }
    void Vacas() {
        QFETCH(QString, columna);
        QFETCH(QString, texto);
        QFETCH(QString, filtro);
        QFETCH(QString, vacas);
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
                QCOMPARE(QString::fromStdString(hecho), filtro);
            salida = m_base.Columna(sentencia.Completa(hecho), "Vaca");
        } catch (const ErrorAlmacen& e) {
            QCOMPARE(e.Codigo(), CodigoError::Sintaxis);
        }
        QCOMPARE(QString::fromStdString(salida), vacas);
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
        Columnas<QString, QString, QString, QString>("texto", "donde", "orden", "campos");
        Caso("all parts", "Select A.x, y As z From A where A.x = 'order by' order  by z",
             " where A.x = 'order by'", " order  by z", "A.x|y");
        Caso("no condition", "SELECT Apodo,[T].[Où], T!q AS r FROM T ORDER BY Nombre, Apellidos", "",
             " ORDER BY Nombre, Apellidos", "Apodo|[T].[Où]|T!q");
        Caso("bare", "SELECT * FROM T", "", "", "*");
        Caso("functions and literals",
             "SELECT chr(13) & T.a & 'x, FROM y' AS b, Year(T.f), 'k' "
             "FROM (T LEFT JOIN U ON T.a = U.a) WHERE (a = 1)",
             " WHERE (a = 1)", "", "T.a|T.f|");
    }
    void Partes() {
        QFETCH(QString, texto);
        QFETCH(QString, donde);
        QFETCH(QString, orden);
        QFETCH(QString, campos);
        const auto partes = PartirSentencia(texto.toStdString());
        QCOMPARE(QString::fromStdString(partes.donde), donde);
        QCOMPARE(QString::fromStdString(partes.orden), orden);
        QCOMPARE(QString::fromStdString(partes.Completa()), texto);
        QStringList lista;
        for (const auto& campo : CamposDeSeleccion(partes.seleccion))
            lista << QString::fromStdString(campo);
        QCOMPARE(lista.join('|'), campos);
        const auto filtrada = QString::fromStdString(partes.Completa("q = 1"));
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

PRUEBA(PruebaFiltroSelector)
#include "PruebaFiltroSelector.moc"
