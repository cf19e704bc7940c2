#include "Ayudas.h"
#include "EscritorAccess.h"
#include "prueba.h"

#include <cmath>
#include <limits>

using namespace pastorix::access;
using namespace pastorix::access::ayudas;
using namespace prueba;

namespace {

using Filita = std::vector<std::string>;

// Rows of up to 1900 bytes in Jet 3: every number of jump bytes, offsets on both sides of each multiple of 256.
TablaNueva ConSaltos(std::vector<Filita>& esperadas) {
    TablaNueva tabla{"Larga", {}, {}};
    for (std::size_t c = 0; c < 8; ++c)
        tabla.columnas.push_back({std::string(1, char('a' + c)), Tipo::Texto, false, 255});
    for (std::size_t largo = 0; largo <= 234; ++largo) {
        FilaNueva fila;
        Filita textos;
        for (std::size_t c = 0; c < 8; ++c) {
            textos.emplace_back((largo + 37 * c * (largo % 2)) % 235, char('a' + c));
            fila.celdas.push_back(Crudo(textos.back()));
        }
        tabla.filas.push_back(fila);
        esperadas.push_back(textos);
    }
    tabla.mapaPorReferencia = true;
    return tabla;
}

// One cell of one column in a Jet 4 file, as it is shown; the error's text when it is refused.
std::string UnaCelda(const ColumnaNueva& columna, const Bytes& celda) {
    const Plano plano = Escribir({.tablas = {{"T", {columna}, {{{celda}}}}}});
    try {
        return Filas(BaseAccess::DeBytes(plano.contenido), "T").at(0).at(0);
    } catch (const ErrorAccess& error) {
        return error.what();
    }
}

} // namespace

class PruebaFormatos : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Columns that were added to a table do not reach the rows that were there: those have neither their bytes nor their bits.
    void ColumnasMasJovenesQueSusFilas_data() {
        Caso("Jet 4", 4);
        Caso("Jet 3", 3);
    }
    void ColumnasMasJovenesQueSusFilas() {
        int version = 0;
        DelCaso(version);
        const auto texto = [version](const char* s) { return version == 4 ? Utf16(s) : Crudo(s); };
        TablaNueva tabla{"T",
                         {{"Id", Tipo::Largo, true, 4, 0},
                          {"A", Tipo::Texto, false, 255, 1},
                          {"Si", Tipo::SiNo, false, 1, 2},
                          {"Joven", Tipo::Texto, false, 255, 3},
                          {"JovenSi", Tipo::SiNo, false, 1, 4},
                          {"Lejana", Tipo::Texto, false, 255, 12},
                          {"LejanaSi", Tipo::SiNo, false, 1, 13},
                          {"Peso", Tipo::Largo, true, 4, 14}},
                         {}};
        tabla.filas.push_back({{Numero(1, 4), texto("uno"), Bytes{1}}, Estado::Viva, 3});
        tabla.filas.push_back(
            {{Numero(2, 4), texto("dos"), Bytes{1}, texto("j"), Bytes{1}, texto("l"), Bytes{1}, Numero(7, 4)},
             Estado::Viva,
             -1});
        tabla.filas.push_back({{Numero(3, 4)}, Estado::Viva, 1}); // no variable columns: no offsets either
        const auto filas =
            Filas(BaseAccess::DeBytes(Escribir({.version = version, .tablas = {tabla}}).contenido), "T");
        const Filita joven{"1", "uno", "1", "@", "0", "@", "0", "@"};
        QCOMPARE(filas.at(0), joven);
        QCOMPARE(filas.at(1), (Filita{"2", "dos", "1", "j", "1", "l", "1", "7"}));
        QCOMPARE(filas.at(2), (Filita{"3", "@", "0", "@", "0", "@", "0", "@"}));
    }

    // Both versions, plain and encoded, maps of both kinds: the same rows come out, in order, and as the outside tool has them.
    void Versiones_data() {
        Caso("Jet 4", 4, 0U, false);
        Caso("Jet 4, map by reference", 4, 0U, true);
        Caso("Jet 4, encoded", 4, 0x12345678U, false);
        Caso("Jet 3", 3, 0U, false);
        Caso("Jet 3, map by reference", 3, 0U, true);
        Caso("Jet 3, encoded", 3, 0xFEDCBA98U, true);
    }
    void Versiones() {
        const auto [version, llave, porReferencia] = DelCaso<int, uint, bool>();
        const std::string clave = version == 4 ? "aĀ€" : "secreto"; // Ā has a zero byte
        TablaNueva tabla = TablaVariada(version);
        tabla.mapaPorReferencia = porReferencia;
        const Plano plano = Escribir({.version = version, .llave = llave, .clave = clave, .tablas = {tabla}});
        const BaseAccess base = BaseAccess::DeBytes(plano.contenido);
        QCOMPARE(base.VersionJet(), version);
        QCOMPARE(base.Clave(), clave);
        QCOMPARE(TablaDe(base, "Pesadas").columnas[1].longitud, version == 4 ? 127 : 255);
        const auto filas = Filas(base, "Pesadas");
        QCOMPARE(filas.size(), TablaDe(base, "Pesadas").filasDeclaradas);
        std::size_t f = 0;
        for (int i = 0; i < 60; ++i) {
            if (i % 10 == 7)
                continue;
            const Filita esperada{std::to_string(i), std::string(std::size_t(i), 'x'),
                                  std::string(std::size_t(i * i * 3), char('a' + i % 26)), i % 3 ? "1" : "0",
                                  i % 2 ? Mostrar(i / 4.0) : "@"};
            QCOMPARE(filas.at(f++), esperada);
        }
        QCOMPARE(Filas(base, "Pesadas"), filas); // a second walk reads the same long values again
    }

    // The outside tool reads the written files alike (without moved rows, which it puts in another order).
    void ComoExport() {
        if (!HayExport())
            QSKIP("mdb-export is not installed");
        QTemporaryDir carpeta;
        for (const int version : {3, 4}) {
            TablaNueva variada = TablaVariada(version);
            std::erase_if(variada.filas, [](const FilaNueva& f) { return f.estado == Estado::Trasladada; });
            FicheroNuevo nuevo{.version = version, .tablas = {variada}};
            std::vector<Filita> sinUso;
            if (version == 3)
                nuevo.tablas.push_back(ConSaltos(sinUso));
            const Plano plano = Escribir(nuevo);
            QFile fichero(carpeta.filePath(u"v%1.mdb"_s.arg(version)));
            QVERIFY(fichero.open(QIODevice::WriteOnly));
            fichero.write(reinterpret_cast<const char*>(plano.contenido.data()),
                          qint64(plano.contenido.size()));
            fichero.close();
            const std::string diferencia = CompararConExport(fichero.fileName().toStdString());
            QVERIFY2(diferencia.empty(), diferencia.c_str());
        }
    }

    void SaltosJet3() {
        std::vector<Filita> esperadas;
        const TablaNueva tabla = ConSaltos(esperadas);
        QCOMPARE(Filas(BaseAccess::DeBytes(Escribir({.version = 3, .tablas = {tabla}}).contenido), "Larga"),
                 esperadas);
    }

    // 255 columns make a definition of several pages; names are cut by the page limit.
    void DefinicionLarga() {
        for (const int version : {3, 4}) {
            TablaNueva tabla{"Ancha", {}, {FilaNueva{}}};
            for (int c = 0; c < 255; ++c) {
                tabla.columnas.push_back(
                    {"columna con nombre largo " + std::to_string(c), Tipo::Byte, false, 1});
                tabla.filas[0].celdas.push_back(Numero(std::uint64_t(c), 1));
            }
            const BaseAccess base =
                BaseAccess::DeBytes(Escribir({.version = version, .tablas = {tabla}}).contenido);
            const auto filas = Filas(base, "Ancha");
            for (std::size_t c = 0; c < 255; ++c) {
                QCOMPARE(TablaDe(base, "Ancha").columnas[c].nombre, tabla.columnas[c].nombre);
                QCOMPARE(filas.at(0)[c], std::to_string(c));
            }
        }
    }

    void PaginasDeCodigos_data() {
        // esperado: of the bytes F1 80 99 D0
        Caso("western", 1252U, u"ñ€™Ð"_s);
        Caso("central Europe", 1250U, u"ń€™Đ"_s);
        Caso("Cyrillic", 1251U, u"сЂ™Р"_s);
        Caso("Turkish", 1254U, u"ñ€™Ğ"_s);
        Caso("Japanese", 932U, QString());
    }
    void PaginasDeCodigos() {
        const auto [pagina, esperado] = DelCaso<uint, QString>();
        const std::string bytes = "\xF1\x80\x99\xD0";
        const TablaNueva tabla{bytes, {{bytes, Tipo::Texto, false, 50}}, {{{Crudo(bytes)}}}};
        const Plano plano =
            Escribir({.version = 3, .paginaCodigos = pagina, .clave = bytes, .tablas = {tabla}});
        try {
            const BaseAccess base = BaseAccess::DeBytes(plano.contenido);
            const std::string texto = esperado.toStdString();
            QCOMPARE(base.Clave(), texto);
            QCOMPARE(TablaDe(base, texto).columnas[0].nombre, texto);
            QCOMPARE(Filas(base, texto), (FilasMostradas{{texto}}));
        } catch (const ErrorAccess& error) {
            QVERIFY2(esperado.isEmpty() && std::string(error.what()).find("932") != std::string::npos,
                     error.what());
            QVERIFY(error.DeClase() == ErrorAccess::Clase::VersionNoTratada);
        }
    }

    void Valores_data() {
        const auto Fila = [](const char* nombre, Tipo tipo, const Bytes& b, const char* esperado) {
            Caso(nombre, int(tipo), QByteArray(reinterpret_cast<const char*>(b.data()), qsizetype(b.size())),
                 Q(esperado));
        };
        const char* imposible = "El fichero está dañado: tabla T: una fecha no es posible (página 5).";
        Fila("byte above 127", Tipo::Byte, {200}, "200");
        Fila("negative integer", Tipo::Entero, Numero(0xFFFE, 2), "-2");
        Fila("lowest long", Tipo::Largo, Numero(0x80000000U, 4), "-2147483648");
        Fila("single", Tipo::Simple, Numero(0xBFA00000U, 4), "-1.25");
        Fila("money", Tipo::Moneda, Numero(std::uint64_t(-12345), 8), "-1.2345");
        Fila("lowest money", Tipo::Moneda, Numero(std::uint64_t{1} << 63, 8), "-922337203685477.5808");
        Fila("small money", Tipo::Moneda, Numero(5, 8), "0.0005");
        Fila("time counts forward", Tipo::FechaHora, Doble(-1.25), "1899-12-29 06:00:00");
        Fila("rounded to the next day", Tipo::FechaHora, Doble(-1.9999999999), "1899-12-30 00:00:00");
        Fila("rounded second", Tipo::FechaHora, Doble(1 + 19.9999 / 86400), "1899-12-31 00:00:20");
        Fila("first date", Tipo::FechaHora, Doble(-657434), "0100-01-01 00:00:00");
        Fila("last date", Tipo::FechaHora, Doble(2958465.5), "9999-12-31 12:00:00");
        Fila("too early", Tipo::FechaHora, Doble(-657434.5), imposible);
        Fila("too late", Tipo::FechaHora, Doble(2958466), imposible);
        Fila("rounded out of the calendar", Tipo::FechaHora, Doble(std::nextafter(2958466, 0)), imposible);
        Fila("no date", Tipo::FechaHora, Doble(std::numeric_limits<double>::quiet_NaN()), imposible);
        Fila("binary", Tipo::Binario, {0, 255, 16}, "00ff10");
        Fila("guid", Tipo::Guid,
             {0x33, 0x22, 0x11, 0x00, 0x55, 0x44, 0x77, 0x66, 8, 9, 10, 11, 12, 13, 14, 15},
             "{00112233-4455-6677-0809-0A0B0C0D0E0F}");
        // 2^32 + 2 and two decimals; the highest word comes first.
        Fila("decimal", Tipo::Decimal, {0x80, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 2, 0, 0, 0},
             "-42949672.98");
        Fila("greatest decimal", Tipo::Decimal, Bytes(17, 0xFF), "-3402823669209384634633746074317682114.55");
        Fila("decimal minus zero", Tipo::Decimal, {0x80, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
             "0.00");
        Fila("decimal zero", Tipo::Decimal, Bytes(17), "0.00");
        Fila("unknown type", Tipo(19), {1, 2}, "0102");
        Fila("plain text", Tipo::Texto, Utf16("Añó €😀"), "Añó €😀");
        Fila("text of odd length", Tipo::Texto, {'a', 0, 'b'}, "a");
        Fila("half a pair", Tipo::Texto, {0x3D, 0xD8, 'b', 0}, "\uFFFDb");
        Fila("compressed", Tipo::Texto, {0xFF, 0xFE, 'A', 0xF1, 'o'}, "Año");
        Fila("changing over", Tipo::Texto, {0xFF, 0xFE, 'a', 0, 0xAC, 0x20, 0x22, 0x21, 0, 'b', 0xF1},
             "a€™bñ");
        Fila("second half alone", Tipo::Texto, {0x00, 0xDC, 'b', 0}, "\uFFFDb");
        Fila("half a pair, then narrow", Tipo::Texto, {0xFF, 0xFE, 0, 0x3D, 0xD8, 0, 'b'}, "\uFFFDb");
        Fila("lone byte of wide text", Tipo::Texto, {0xFF, 0xFE, 0, 0xAC, 0x20, 0x22}, "€");
        Fila("compressed memo", Tipo::Memo, {0xFF, 0xFE, 'A', 0xF1, 'o'}, "Año");
        Fila("too short for its type", Tipo::Doble, {1, 2, 3},
             "El fichero está dañado: tabla T: un dato se sale de su sitio (página 5).");
    }
    void Valores() {
        const auto [tipo, bytes, esperado] = DelCaso<int, QByteArray, QString>();
        const ColumnaNueva columna{"C", Tipo(tipo), false, 50, -1, 2};
        QCOMPARE(Q(UnaCelda(columna, Bytes(bytes.begin(), bytes.end()))), esperado);
    }

    // What the catalogue names beside user tables is not shown; a file must not name a table twice.
    void Catalogo() {
        const std::vector<ColumnaNueva> una{{"C", Tipo::Byte, true, 1}};
        const Plano plano = Escribir({.tablas = {{"Visible", una, {}},
                                                 {"Oculta", una, {}, 8},
                                                 {"DelDiseño", una, {}, 2},
                                                 {"DelMotor", una, {}, std::int32_t(0x80000000U)},
                                                 {"~TMP1", una, {}},
                                                 {"×", una, {}},
                                                 {"÷", una, {}}}});
        QStringList nombres;
        for (const BaseAccess base = BaseAccess::DeBytes(plano.contenido); const Tabla& t : base.Tablas())
            nombres << Q(t.nombre);
        QCOMPARE(nombres, QStringList({"Visible", "Oculta", "×", "÷"}));
        const Plano doble = Escribir({.tablas = {{"Año", una, {}}, {"AÑO", una, {}}}});
        QVERIFY_THROWS_EXCEPTION(ErrorAccess, BaseAccess::DeBytes(doble.contenido));
    }
};

namespace {
const std::string datos = PASTORIX_DATOS "/", ejemplo = PASTORIX_EJEMPLO "/";
}

// The sample databases, against a second opinion and against what is known of their rows.
class PruebaMuestras : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TablasYClaves_data() {
        const auto Fila = [](const std::string& f, const char* clave, int tablas) {
            Caso(qPrintable(QString::asprintf("%s", f.c_str() + f.rfind('/') + 1)), Q(f),
                 QString::fromLatin1(clave), tablas);
        };
        Fila(ejemplo + "BD_PradalC.mdb", "q7r2mz", 43);
        Fila(ejemplo + "BD_PradalP.mdb", "q7r2mz", 43);
        Fila(ejemplo + "Toros.mdb", "q7r2mz", 5);
        Fila(datos + "paquetes/VETERINARIO.mdb", "q7r2mz", 43);
        Fila(datos + "minima.mdb", "q7r2mz", 43);
        Fila(datos + "otra-clave.mdb", "otra12", 43);
        Fila(datos + "sin-T_Partos.mdb", "q7r2mz", 42);
        Fila(datos + "columnas-cambiadas.mdb", "q7r2mz", 44);
    }
    void TablasYClaves() {
        const auto [fichero, clave, tablas] = DelCaso<QString, QString, int>();
        const BaseAccess base = BaseAccess::Abrir(fichero.toStdString());
        QCOMPARE(base.VersionJet(), 4);
        QCOMPARE(base.Clave(), clave.toStdString());
        QCOMPARE(int(base.Tablas().size()), tablas);
        for (const Tabla& tabla : base.Tablas())
            QCOMPARE(base.Recorrer(tabla, [](std::span<const Celda>) {}), tabla.filasDeclaradas);
        if (!HayExport())
            QSKIP("mdb-export is not installed");
        const std::string diferencia = CompararConExport(fichero.toStdString());
        QVERIFY2(diferencia.empty(), diferencia.c_str());
    }
};

PRUEBA(PruebaFormatos)
PRUEBA(PruebaMuestras)
#include "PruebaFormatos.moc"
