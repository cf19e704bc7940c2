#include "BaseDePrueba.h"

#include "access/EscritorAccess.h"
#include "store/Conversion.h"
#include "store/Diferencias.h"
#include "store/Instruccion.h"
#include "store/Verificacion.h"

using namespace prueba;

// Real Access files and broken ones, brought in as the program does at its first start.
class PruebaConversion : public QObject {
    Q_OBJECT

    QTemporaryDir m_carpeta;
    int m_n = 0;

    QString Copia(const QString& origen) {
        const auto destino = m_carpeta.filePath(u"%1_%2"_s.arg(++m_n).arg(QFileInfo(origen).fileName()));
        QFile::copy(origen, destino);
        QFile::setPermissions(destino, QFile::ReadOwner | QFile::WriteOwner);
        return destino;
    }
    static QString Datos(const char* n) { return QStringLiteral(PASTORIX_DATOS "/") + Q(n); }
    static QString Ejemplo(const char* n) { return QStringLiteral(PASTORIX_EJEMPLO "/") + Q(n); }

private Q_SLOTS:
    void EnSuSitio() {
        const auto fichero = Copia(Ejemplo("BD_PradalC.mdb"));
        const auto antes = Contenido(fichero);
        OpcionesApertura o;
        o.carpetaBackup = m_carpeta.filePath(u"BackUp"_s).toStdString();
        int avances = 0;
        o.avance = [&](int hecho, int total) {
            QVERIFY(hecho <= total);
            ++avances;
        };
        Conexion c;
        QCOMPARE(c.AbrirFichero(fichero.toStdString(), kClave, o), ResultadoApertura::Convertida);
        QVERIFY(avances > 0);
        // canonical columns first although the file has Desconocida in place of one and lacks another
        const auto* cub = c.Esquema().Buscar("T_Cubriciones");
        QCOMPARE(cub->columnas[40].nombre, "DemoraServIPR"s);
        QCOMPARE(cub->columnas.back().nombre, "Desconocida"s);
        QCOMPARE(ValorDeCampo(c, "SELECT Count(Id_Cebo) AS N FROM T_Cebo WHERE Cambiado = 0"), "749"s);
        QCOMPARE(ValorDeCampo(c, "SELECT Count(Id_Vaca) AS N FROM T_Cubriciones"), "2833"s);
        const auto valor = [&](const char* s) { return ValorDeCampo(c, s); };
        QVERIFY(valor("SELECT Nombre FROM T_Vacas WHERE Id_Vaca = 1200105")
                    .starts_with("Ñandú Güeñó áéíóú ÁÉÍÓÚ çÇ ºª"));
        {
            Recordset rs(c, "SELECT FechaNac, FechaBaja FROM T_Vacas WHERE Id_Vaca = 8500114");
            QCOMPARE(rs["FechaNac"].FechaValor(), (Fecha{0, 0})); // day 0 is a date, not Null
            Recordset lejos(c, "SELECT FechaNac FROM T_Vacas WHERE Id_Vaca = 1200042");
            QCOMPARE(FechaIso(*lejos["FechaNac"].FechaValor()), "2205-03-01"s);
            Recordset textos(c, "SELECT RegSaneam, ObsDesecho FROM T_Vacas WHERE Id_Vaca = 4230040 OR "
                                "Id_Vaca = 4230058 ORDER BY Id_Vaca");
            QVERIFY(!textos["RegSaneam"].Nulo()); // empty text stays empty text
            QCOMPARE(textos["RegSaneam"].Texto(), std::string());
            Recordset nombre(c, "SELECT NombreC, Crotal FROM T_Vacas WHERE Id_Vaca = 8500099");
            QVERIFY(nombre["NombreC"].Nulo());
            Recordset raro(c, "SELECT Semental FROM T_Partos WHERE Id_Vaca = 1204009 AND N_Parto = 10");
            QCOMPARE(raro["Semental"].Texto(), "Toro d'L'Otero \"viejo\""s);
        }
        c.Cerrar();
        // the original is kept, untouched, with the sheet of what was read beside it
        const QDir backup(m_carpeta.filePath(u"BackUp"_s));
        const auto copias = backup.entryList({u"*_Access_*.mdb"_s});
        QCOMPARE(copias.size(), 1);
        QCOMPARE(Contenido(backup.filePath(copias.first())), antes);
        const auto texto =
            Contenido(backup.filePath(QFileInfo(copias.first()).completeBaseName() + u".txt"_s));
        QVERIFY(texto.contains("T_Cubriciones") && texto.contains("Desconocida") && texto.contains("2833"));
        // once converted it opens as it is
        QCOMPARE(c.AbrirFichero(fichero.toStdString(), kClave, o), ResultadoApertura::Lista);
        QVERIFY(VerificarBase(fichero.toStdString(), kClave).empty());
    }

    void OtrosFicheros_data() {
        Caso("wrong password", Datos("otra-clave.mdb"), ResultadoApertura::ClaveErronea, u"clave"_s);
        Caso("cut", Datos("recortada.mdb"), ResultadoApertura::Dañada, u"cortad"_s);
        Caso("table missing", Datos("sin-T_Partos.mdb"), ResultadoApertura::OtroEsquema, u"T_Partos"_s);
        QFile texto(m_carpeta.filePath(u"texto.mdb"_s));
        QVERIFY(texto.open(QIODevice::WriteOnly));
        texto.write("Estimado colega:\n");
        QFile vacio(m_carpeta.filePath(u"vacio.mdb"_s));
        QVERIFY(vacio.open(QIODevice::WriteOnly));
        Caso("text", texto.fileName(), ResultadoApertura::NoEsBase, u"no es una base"_s);
        Caso("empty", vacio.fileName(), ResultadoApertura::NoEsBase, u"vacío"_s);
        Caso("absent", m_carpeta.filePath(u"no hay.mdb"_s), ResultadoApertura::Ausente, u"No existe"_s);
    }
    void OtrosFicheros() {
        const auto [fichero, resultado, palabra] = DelCaso<QString, ResultadoApertura, QString>();
        QTemporaryDir carpeta;
        const auto copia = carpeta.filePath(u"base.mdb"_s);
        QFile::copy(fichero, copia);
        const auto antes = Contenido(copia);
        Conexion c;
        try {
            c.AbrirFichero(copia.toStdString(), kClave);
            QFAIL("opened");
        } catch (const ErrorAlmacen& e) {
            QCOMPARE(e.Codigo(), CodigoError::NoSePuedeAbrir);
            QVERIFY2(Q(e.what()).contains(palabra), e.what());
        }
        QCOMPARE(c.ResultadoUltimo(), resultado);
        QVERIFY(!c.Abierta());
        QCOMPARE(Contenido(copia), antes);
        QCOMPARE(QDir(carpeta.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(),
                 QFile::exists(fichero) ? 1 : 0);
    }

    void TablasDeMas() {
        const auto fichero = Copia(Datos("columnas-cambiadas.mdb"));
        Conexion c;
        c.AbrirFichero(fichero.toStdString(), kClave);
        for (const auto& canonica : CatalogoCanonico(ClaseDeBase::Principal).Tablas()) {
            const auto* tabla = c.Esquema().Buscar(canonica.nombre);
            QVERIFY(tabla);
            for (std::size_t i = 0; i < canonica.columnas.size(); ++i)
                QCOMPARE(tabla->columnas[i].nombre, canonica.columnas[i].nombre);
        }
        Recordset pesadas(c, "SELECT * FROM [Mis pesadas] ORDER BY [Nº]");
        QCOMPARE(pesadas.Contar(), 7L);
        QVERIFY(pesadas["Kg/día"].Numero() > 0 && pesadas["Fecha pesada"].FechaValor().has_value());
        QVERIFY(c.Esquema().Buscar("T_Vacas")->Buscar("NotaLibre") >= 0);
        QVERIFY(VerificarBase(fichero.toStdString(), kClave).empty());

        // the same rows as in the file they were made of, column by column
        const auto otro = Copia(Datos("minima.mdb"));
        Conexion d;
        d.AbrirFichero(otro.toStdString(), kClave);
        for (const auto& t : CatalogoCanonico(ClaseDeBase::Principal).Tablas()) {
            const auto distintas = CompararTabla(c, d, t.nombre, {t.columnas[0].nombre}).filas;
            QVERIFY2(distintas.empty(), t.nombre.c_str());
        }
    }

    // A file whose columns are of other types than ours: what can become ours does, what cannot stays as it is and is named. Nothing
    // turns into nothing.
    void ValoresDeOtraClase() {
        using namespace access::ayudas;
        using access::Tipo;
        FicheroNuevo fichero{.clave = std::string(kClave)};
        for (const auto& t : CatalogoCanonico(ClaseDeBase::Principal).Tablas())
            if (t.nombre != "T_Vacas" && t.nombre != "T_Cebo")
                fichero.tablas.push_back({t.nombre, {{t.columnas[0].nombre, Tipo::Doble, true, 8}}, {}});
        const auto casi = [](int segundo, double fraccion) {
            return Doble(46000 + (segundo + fraccion) / 86400);
        };
        TablaNueva vacas{"T_Vacas",
                         {{"Id_Vaca", Tipo::Texto, false, 255},
                          {"MG_PN", Tipo::Texto, false, 255},
                          {"FechaNac", Tipo::FechaHora, true, 8},
                          {"FechaCompra", Tipo::Texto, false, 255},
                          {"Nombre", Tipo::Doble, true, 8},
                          {"Crotal", Tipo::FechaHora, true, 8},
                          {"MG_PD", Tipo::FechaHora, true, 8},
                          {"Calificacion", Tipo::Moneda, true, 8},
                          {"Patologia", Tipo::SiNo, false, 1}},
                         {}};
        const auto T = [](const char* t) { return Utf16(t); };
        vacas.filas.push_back({{T("1"), T("doce"), casi(86399, 0.6), T("ayer"), Doble(2.5), Doble(46000),
                                Doble(46000), Numero(25000, 8), access::Bytes{1}}});
        vacas.filas.push_back({{T("2"), T(" 2,5 "), casi(86399, 0.4), T("1/3/24"), {}, {}, {}, {}, {}}});
        fichero.tablas.push_back(vacas);
        TablaNueva cebo{
            "T_Cebo", {{"Id_Cebo", Tipo::Largo, true, 4}, {"Cambiado", Tipo::Entero, true, 2}}, {}};
        cebo.filas = {{{Numero(1, 4), Numero(5, 2)}}, {{Numero(2, 4), Numero(0, 2)}}, {{Numero(3, 4), {}}}};
        fichero.tablas.push_back(cebo);
        const auto origen = m_carpeta.filePath("otros.mdb");
        QFile f(origen);
        QVERIFY(f.open(QIODevice::WriteOnly));
        const auto bytes = Escribir(fichero).contenido;
        f.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
        f.close();
        const auto destino = m_carpeta.filePath("otros-nuestros.mdb").toStdString();
        const auto hoja = QByteArray::fromStdString(
            ConvertirAccess(Ruta(origen.toStdString()), Ruta(destino), kClave).Texto());
        for (const char* raro :
             {"T_Vacas.MG_PN hay 1 ", "T_Vacas.FechaCompra hay 1 ", "T_Vacas.Nombre hay 1 ",
              "T_Vacas.Crotal hay 1 ", "T_Vacas.MG_PD hay 1 ", "T_Vacas.Patologia hay 2 "})
            QVERIFY2(hoja.contains(raro), raro);
        QVERIFY(!hoja.contains("T_Vacas.Id_Vaca hay") && !hoja.contains("Calificacion hay"));

        Conexion c;
        c.AbrirFichero(destino, kClave);
        const auto crudo = [&](const char* sql) {
            Instruccion s(c.Manejador(), sql);
            std::string t;
            while (s.Fila())
                t += s.Texto(0) + "\n";
            return t;
        };
        QCOMPARE(
            crudo("SELECT quote(Id_Vaca) || quote(MG_PN) || quote(FechaNac) || quote(FechaCompra) || "
                  "quote(Nombre) "
                  "|| quote(Crotal) || quote(MG_PD) || quote(Calificacion) || quote(Patologia) FROM T_Vacas"),
            "1.0'doce''2025-12-10''ayer''2,5''09/12/2025''09/12/2025'2.5'-1'\n"
            "2.02.5'2025-12-09 23:59:59''2024-03-01'NULLNULLNULLNULL'0'\n"s);
        QCOMPARE(crudo("SELECT quote(Cambiado) FROM T_Cebo"), "-1\n0\n0\n"s);
    }

    void DestinoQueExiste() {
        const auto destino = m_carpeta.filePath(u"ya.mdb"_s);
        QFile f(destino);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("mío");
        f.close();
        QVERIFY_THROWS_EXCEPTION(ErrorConversion, ConvertirAccess(Ruta(Datos("minima.mdb").toStdString()),
                                                                  Ruta(destino.toStdString()), kClave));
        QVERIFY_THROWS_EXCEPTION(
            ErrorConversion, ConvertirAccess(Ruta(Datos("recortada.mdb").toStdString()),
                                             Ruta(m_carpeta.filePath(u"nueva.mdb"_s).toStdString()), kClave));
        QVERIFY(!QFile::exists(m_carpeta.filePath(u"nueva.mdb"_s)) && f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), QByteArray("mío"));
    }

    // A database of ours whose columns stand otherwise (an older one after its repairs) is brought to canonical order.
    void Orden() {
        Base b;
        b.Poner("T_Cebo", "Id_Cebo=4, Id_Ganadero=12, Obs=nota, N_Parto=3");
        b.c.Execute("ALTER TABLE T_Cebo DROP COLUMN Cambiado");
        b.c.Execute("ALTER TABLE T_Cebo ADD COLUMN Cambiado DOUBLE");
        b.c.Execute("ALTER TABLE T_Vacas ADD COLUMN Propia MEMO");
        b.Poner("T_Vacas", "Id_Vaca=12001, Propia=ñ");
        Sql(b.c,
            "CREATE TABLE [Mis notas] (a TEXT_MEMO, b DOUBLE); INSERT INTO [Mis notas] VALUES ('x', 2.5)");
        b.c.Cerrar();
        QVERIFY(!VerificarBase(b.fichero, kClave).empty());
        Conexion c;
        QCOMPARE(c.AbrirFichero(b.fichero, kClave), ResultadoApertura::Convertida);
        QCOMPARE(c.Esquema().Buscar("T_Cebo")->columnas[21].nombre, "Cambiado"s);
        QCOMPARE(ValorDeCampo(c, "SELECT Cambiado FROM T_Cebo WHERE Obs = 'nota' AND N_Parto = 3"), "0"s);
        QCOMPARE(ValorDeCampo(c, "SELECT Propia FROM T_Vacas"), "ñ"s);
        QCOMPARE(ValorDeCampo(c, "SELECT b FROM [Mis notas]"), "2,5"s);
        QVERIFY(VerificarBase(b.fichero, kClave).empty());
        QCOMPARE(QDir(b.carpeta.filePath(u"BackUp"_s)).entryList(QDir::Files).size(), 1);
    }

    void BasesPropias_data() {
        Caso("damaged page", 0, ResultadoApertura::Dañada);
        Caso("other password", 1, ResultadoApertura::ClaveErronea);
        Caso("another program's database", 2, ResultadoApertura::NoEsBase);
        Caso("locked", 3, ResultadoApertura::Bloqueada);
        Caso("table gone", 4, ResultadoApertura::OtroEsquema);
        Caso("cut", 5, ResultadoApertura::Dañada);
    }
    void BasesPropias() {
        const auto [caso, resultado] = DelCaso<int, ResultadoApertura>();
        Base b;
        for (int i = 1; i < 300; ++i)
            b.Poner("T_Tetos", "Id_Teto", 10.0 + i);
        const auto sql = [&](const char* s) { Sql(b.c, s); };
        if (caso == 2)
            sql("PRAGMA application_id=1");
        if (caso == 3)
            sql("BEGIN EXCLUSIVE");
        if (caso == 4)
            sql("DROP TABLE T_Partos");
        if (caso != 3)
            b.c.Cerrar();
        QFile f(Q(b.fichero));
        if (caso == 0 || caso == 5) {
            QVERIFY(f.open(QIODevice::ReadWrite));
            if (caso == 5) {
                f.resize(f.size() / 2 + 100);
            } else {
                f.seek(4096 * 2 + 8); // the first pages after the schema
                f.write(QByteArray(4096 * 6, char(0x5A)));
            }
            f.close();
        }
        const auto antes = Contenido(f.fileName());
        OpcionesApertura o;
        o.desconfiada = true;
        Conexion c;
        try {
            c.AbrirFichero(b.fichero, caso == 1 ? "otra12" : kClave, o);
            QFAIL("opened");
        } catch (const ErrorAlmacen& e) {
            QVERIFY(!QByteArray(e.what()).isEmpty());
        }
        QCOMPARE(c.ResultadoUltimo(), resultado);
        QCOMPARE(Contenido(f.fileName()), antes);
        QVERIFY(!VerificarBase(b.fichero, caso == 1 ? "otra12" : kClave).empty());
    }

    void Nueva() {
        Base b;
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, CrearBase(Ruta(b.fichero), ClaseDeBase::Toros, kClave));
        QVERIFY(VerificarBase(b.fichero, kClave).empty());
        QUEDA(b, "Id_Teto FROM T_Tetos ORDER BY Id_Teto", "1/2/3/4");
        QCOMPARE(b.c.Esquema().Buscar("T_Cebo")->clave, (std::vector<std::string>{"Id_Ganadero", "Id_Cebo"}));
        Base toros(ClaseDeBase::Toros);
        QVERIFY(VerificarBase(toros.fichero, kClave).empty());
    }
};

PRUEBA(PruebaConversion)
#include "PruebaConversion.moc"
