#include "Ayudas.h"
#include "EscritorAccess.h"
#include "access/Rc4.h"
#include "prueba.h"

#include <QTemporaryDir>

#include <ctime>
#include <random>

using namespace pastorix::access;
using namespace pastorix::access::ayudas;

namespace {

constexpr std::size_t P = Jet4.pagina;

// A Jet 4 file that tests spoil; positions in bytes from its start.
struct Fichero {
    Plano plano = Escribir({.tablas = {TablaVariada(4), PorReferencia()}});
    Bytes& b = plano.contenido;
    std::size_t def = plano.definicion["Pesadas"] * P, datos = Datos(0), datos2 = Datos(1);

    // Page i of the rows of the table; 13 rows each.
    std::size_t Datos(std::size_t i) const { return plano.datos.at("Pesadas").at(i) * P; }

    static TablaNueva PorReferencia() {
        TablaNueva t{"Otra",
                     {{"C", Tipo::Byte, true, 1}, {"N", Tipo::Memo, false, 0}},
                     {{{Numero(1, 1), Bytes(500, 'n')}}}};
        t.mapaPorReferencia = true;
        return t;
    }
    std::size_t Leer(std::size_t sitio, int bytes) const {
        std::size_t n = 0;
        for (int i = bytes - 1; i >= 0; --i)
            n = n << 8 | b[sitio + std::size_t(i)];
        return n;
    }
    void Poner(std::size_t sitio, std::size_t valor, int bytes) {
        const Bytes n = Numero(valor, bytes);
        std::copy(n.begin(), n.end(), b.begin() + std::ptrdiff_t(sitio));
    }
    // The header is masked.
    void PonerEnCabecera(std::size_t sitio, std::size_t valor) {
        const auto mascara = std::span(b).subspan(0x18, Jet4.enmascarados);
        Rc4({0xC7, 0xDA, 0x39, 0x6B}, mascara);
        Poner(sitio, valor, 2);
        Rc4({0xC7, 0xDA, 0x39, 0x6B}, mascara);
    }
    std::size_t Entrada(std::size_t pagina, std::size_t r) const { return pagina + Jet4.tablaFilas + 2 * r; }
    std::size_t Fila(std::size_t pagina, std::size_t r) const {
        return pagina + (Leer(Entrada(pagina, r), 2) & 0x1FFF);
    }
    std::size_t FinFila(std::size_t pagina, std::size_t r) const {
        return r == 0 ? pagina + P : Fila(pagina, r - 1);
    }
    std::size_t Mapa() const { return Fila(plano.mapas * P, 0); }
    // Head of the memo of row r, the last of the variable values but one.
    std::size_t Memo(std::size_t pagina, std::size_t r) const {
        return Fila(pagina, r) + Leer(FinFila(pagina, r) - 7, 2);
    }
    std::size_t DatosDeOtra() const { return plano.datos.at("Otra").at(0) * P; }
    // Entry of the row where row r stands now.
    std::size_t EntradaTrasladada(std::size_t pagina, std::size_t r) const {
        const std::size_t puntero = Leer(Fila(pagina, r), 4);
        return Entrada((puntero >> 8) * P, puntero & 0xFF);
    }
    std::size_t Columna(std::size_t c) const { return def + Jet4.finFijo + Jet4.descriptor * c; }
};

using Estropear = void (*)(Fichero&);

std::string Mensaje(const Bytes& contenido) {
    try {
        LeerTodo(BaseAccess::DeBytes(contenido));
    } catch (const ErrorAccess& error) {
        return error.what();
    }
    return {};
}

// One random damage of the kinds that broken media and hostile hands make.
void EstropearAlAzar(Bytes& b, std::size_t pagina, std::mt19937& azar) {
    const auto Hasta = [&azar](std::size_t n) { return std::size_t(azar() % n); };
    const std::size_t paginas = b.size() / pagina;
    const auto Pagina = [&](std::size_t n) { return b.begin() + std::ptrdiff_t(n * pagina); };
    switch (Hasta(6)) {
    case 0: // a byte anywhere
        b[Hasta(b.size())] = std::uint8_t(azar());
        break;
    case 1: // many bytes at the heads of pages, where the counts and pointers are
        for (int i = 0; i < 8; ++i)
            b[Hasta(paginas) * pagina + Hasta(80)] = std::uint8_t(azar());
        break;
    case 2: // a pointer into the file
        std::copy_n(Numero(Hasta(paginas) << (Hasta(2) ? 8 : 0), 4).begin(), 4,
                    b.begin() + std::ptrdiff_t(Hasta(b.size() - 4)));
        break;
    case 3: { // two pages swapped
        const std::size_t una = Hasta(paginas), otra = Hasta(paginas);
        std::swap_ranges(Pagina(una), Pagina(una) + std::ptrdiff_t(pagina), Pagina(otra));
        break;
    }
    case 4: // a page standing twice
        std::copy_n(Bytes(Pagina(Hasta(paginas)), b.end()).begin(), pagina, Pagina(Hasta(paginas)));
        break;
    default: // cut
        b.resize(Hasta(3) ? Hasta(paginas) * pagina : Hasta(b.size()));
    }
}

} // namespace

class PruebaRotos : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Concretos_data() {
        QTest::addColumn<void*>("estropear");
        QTest::addColumn<QString>("mensaje");
        const auto Fila = [](const char* nombre, Estropear e, const char* mensaje) {
            QTest::newRow(nombre) << reinterpret_cast<void*>(e) << QString::fromUtf8(mensaje);
        };
        Fila(
            "two pages", [](Fichero& f) { f.b.resize(2 * P); }, "cortado: mide 8192 bytes");
        Fila(
            "not whole pages", [](Fichero& f) { f.b.pop_back(); }, "páginas enteras");
        Fila(
            "last page lost", [](Fichero& f) { f.b.resize(f.b.size() - P); }, "cortado: faltan páginas");
        Fila(
            "creation date", [](Fichero& f) { f.PonerEnCabecera(0x78, 0x7FF8); }, "fecha de creación");
        Fila(
            "catalogue's type column",
            [](Fichero& f) { f.b[2 * P + Jet4.finFijo + 2 * Jet4.descriptor] = 4; },
            "no tiene la columna Type");
        Fila(
            "catalogue's page owner", [](Fichero& f) { f.b[f.b.size() - P + 4] = 3; }, "de otra tabla");
        Fila(
            "two tables, one definition",
            [](Fichero& f) { f.Poner(f.Fila(f.b.size() - P, 2) + 2, f.def / P, 4); },
            "la definición de otra");
        Fila(
            "table without definition", [](Fichero& f) { f.Poner(f.Fila(f.b.size() - P, 2) + 2, 9999, 4); },
            "la página 9999, que no existe");

        Fila(
            "definition loops", [](Fichero& f) { f.Poner(f.def + 4, f.def / P, 4); }, "ya usada");
        Fila(
            "definition goes on in data", [](Fichero& f) { f.Poner(f.def + 4, f.datos / P, 4); },
            "no es de la clase");
        Fila(
            "definition too long", [](Fichero& f) { f.Poner(f.def + 8, P + 1, 4); }, "un largo imposible");
        Fila(
            "definition too short", [](Fichero& f) { f.Poner(f.def + 8, 62, 4); }, "un largo imposible");
        Fila(
            "definition ends late", [](Fichero& f) { f.Poner(f.def + 8, f.Leer(f.def + 8, 4) + 1, 4); },
            "no termina donde debe");
        Fila(
            "kind of table", [](Fichero& f) { f.b[f.def + Jet4.tipoTabla] = 0; }, "ninguna clase");
        Fila(
            "more columns than ever", [](Fichero& f) { f.b[f.def + Jet4.columnas] = 9; },
            "imposible de columnas");
        Fila(
            "256 columns", [](Fichero& f) { f.Poner(f.def + Jet4.maxColumnas, 256, 2); },
            "imposible de columnas");
        Fila(
            "many indexes", [](Fichero& f) { f.Poner(f.def + Jet4.indicesReales, 0x10000001, 4); },
            "de índices");
        Fila(
            "column twice", [](Fichero& f) { f.b[f.Columna(1) + Jet4.numero] = 0; },
            "repite un número de columna");
        Fila(
            "column number", [](Fichero& f) { f.b[f.Columna(1) + Jet4.numero] = 8; }, "demasiado alto");

        Fila(
            "map elsewhere", [](Fichero& f) { f.b[f.def + Jet4.mapaPropio] = 200; }, "se busca la fila 200");
        Fila(
            "map in no page", [](Fichero& f) { f.Poner(f.def + Jet4.mapaPropio, 0, 4); }, "la cabecera");
        Fila(
            "short map", [](Fichero& f) { f.Poner(f.Entrada(f.plano.mapas * P, 0), P - 4, 2); },
            "demasiado corto");
        Fila(
            "kind of map", [](Fichero& f) { f.b[f.Mapa()] = 2; }, "clase desconocida");
        Fila(
            "map beyond the file", [](Fichero& f) { f.Poner(f.Mapa() + 1, 0xFFFFFFFF, 4); },
            "cortado: tabla Pesadas");
        Fila(
            "map's bitmap", [](Fichero& f) { f.b[f.plano.bitmap * P] = 1; },
            "tabla Otra: la página no es de la clase");
        Fila(
            "bitmap of later pages",
            [](Fichero& f) {
                const std::size_t mapa = f.Fila(f.plano.mapas * P, 1);
                f.Poner(mapa + 1, 0, 4);
                f.Poner(mapa + 5, f.plano.bitmap, 4);
            },
            "cortado: tabla Otra: faltan páginas de datos (la 32");
        Fila(
            "bitmap twice", [](Fichero& f) { f.Poner(f.Fila(f.plano.mapas * P, 1) + 5, f.plano.bitmap, 4); },
            "repite una de sus partes");

        Fila(
            "page of another kind", [](Fichero& f) { f.b[f.datos] = 4; }, "no es de la clase");
        Fila(
            "page of another table", [](Fichero& f) { f.b[f.datos + 4] ^= 1; }, "de otra tabla");
        Fila(
            "too many rows", [](Fichero& f) { f.Poner(f.datos + Jet4.numeroFilas, 5000, 2); },
            "no cabe en su página");
        Fila(
            "overlapping rows", [](Fichero& f) { f.Poner(f.Entrada(f.datos, 1), 0xFFF, 2); },
            "la fila 1 invade otra");
        Fila(
            "row in the row table", [](Fichero& f) { f.Poner(f.Entrada(f.datos, 12), 20, 2); },
            "la fila 12 invade");
        Fila(
            "row before the one above", [](Fichero& f) { f.Poner(f.Entrada(f.datos, 0), 0x100, 2); },
            "la fila 1 invade");
        Fila(
            "columns of a row", [](Fichero& f) { f.b[f.Fila(f.datos, 1)] = 9; }, "más columnas que su tabla");
        Fila(
            "fields of a row", [](Fichero& f) { f.Poner(f.FinFila(f.datos, 1) - 3, 256, 2); },
            "imposible de campos");
        Fila(
            "fields past the row", [](Fichero& f) { f.Poner(f.FinFila(f.datos, 1) - 3, 200, 2); },
            "imposible de campos");
        Fila(
            "field order", [](Fichero& f) { f.Poner(f.FinFila(f.datos, 1) - 7, 500, 2); }, "se pisan");
        Fila(
            "end of the fields", [](Fichero& f) { f.Poner(f.FinFila(f.datos, 1) - 11, 4000, 2); },
            "se salen de ella");
        Fila(
            "field over the count", [](Fichero& f) { f.Poner(f.FinFila(f.datos, 1) - 5, 1, 2); }, "se pisan");
        Fila(
            "fixed field", [](Fichero& f) { f.Poner(f.Columna(0) + Jet4.lugarFijo, 4000, 2); },
            "se sale de su fila");

        Fila(
            "moved to itself", [](Fichero& f) { f.Poner(f.Fila(f.datos, 4), f.datos / P << 8 | 4, 4); },
            "dos veces a la misma fila");
        Fila(
            "moved out of its table", [](Fichero& f) { f.Poner(f.Fila(f.datos, 4), f.plano.mapas << 8, 4); },
            "fuera de su tabla");
        Fila(
            "new place without its mark",
            [](Fichero& f) { f.b[f.EntradaTrasladada(f.datos, 4) + 1] &= 0x7F; },
            "dos veces a la misma fila");
        Fila(
            "two moved to one place",
            [](Fichero& f) { f.Poner(f.Fila(f.datos2, 1), f.Leer(f.Fila(f.datos, 4), 4), 4); },
            "dos veces a la misma fila");

        Fila(
            "memo's length", [](Fichero& f) { f.Poner(f.Memo(f.datos, 9), 0x7FFFFFFF, 4); },
            "mayor que el fichero");
        Fila(
            "memo longer than its row", [](Fichero& f) { f.Poner(f.Memo(f.datos, 1), 0x80000100, 4); },
            "se sale");
        Fila(
            "memo longer than its parts", [](Fichero& f) { f.Poner(f.Memo(f.datos2, 7), 3000, 4); },
            "antes de tiempo");
        Fila(
            "memo outside", [](Fichero& f) { f.Poner(f.Memo(f.datos, 9) + 4, f.datos / P << 8, 4); },
            "no es de textos largos");
        Fila(
            "memo of a deleted part", [](Fichero& f) { f.b[f.Entrada(f.plano.largos * P, 0) + 1] |= 0x80; },
            "borrada o trasladada");
        Fila(
            "two memos, one place",
            [](Fichero& f) { f.Poner(f.Memo(f.datos, 9) + 4, f.Leer(f.Memo(f.datos, 8) + 4, 4), 4); },
            "comparten la fila");
        Fila(
            "two tables, one memo",
            [](Fichero& f) {
                const std::size_t otra =
                    f.Fila(f.DatosDeOtra(), 0) + f.Leer(f.FinFila(f.DatosDeOtra(), 0) - 5, 2);
                f.Poner(otra + 4, f.Leer(f.Memo(f.datos, 9) + 4, 4), 4);
            },
            "comparten la fila");
        Fila(
            "memo loops",
            [](Fichero& f) {
                const std::size_t puntero = f.Leer(f.Memo(f.datos2, 7) + 4, 4);
                f.Poner(f.Fila((puntero >> 8) * P, puntero & 0xFF), puntero, 4);
            },
            "comparten la fila");
    }
    void Concretos() {
        QFETCH(void*, estropear);
        QFETCH(QString, mensaje);
        Fichero fichero;
        QCOMPARE(Mensaje(fichero.b), std::string());
        reinterpret_cast<Estropear>(estropear)(fichero);
        const std::string dicho = Mensaje(fichero.b);
        QVERIFY2(!dicho.empty() && QString::fromStdString(dicho).contains(mensaje), dicho.c_str());
    }

    // What looks odd and is not damage.
    void Inofensivos() {
        Fichero f;
        const std::size_t filas = Filas(BaseAccess::DeBytes(f.b), "Pesadas").size();
        f.Poner(f.Memo(f.datos, 0), 0x40000000, 4); // empty memo that points nowhere
        f.Poner(f.Columna(4) + Jet4.lugar, 100, 2); // rows older than their last variable column
        std::fill_n(f.b.begin() + std::ptrdiff_t(P), P, std::uint8_t(0xEE)); // a page that nothing points to
        f.Poner(f.def + Jet4.filas, 7, 4); // the declared count is a check, not a limit
        const auto leidas = Filas(BaseAccess::DeBytes(f.b), "Pesadas");
        QCOMPARE(leidas.size(), filas);
        QCOMPARE(leidas[0][2], std::string());
        QVERIFY(std::all_of(leidas.begin(), leidas.end(), [](const auto& fila) { return fila[4] == "@"; }));
    }

    // Whatever is broken, the file is read or refused, and soon.
    void AlAzar_data() {
        QTest::addColumn<QString>("origen");
        QTest::addColumn<int>("veces");
        QTest::newRow("sample") << QStringLiteral("minima") << 1000;
        QTest::newRow("Jet 3") << QStringLiteral("3") << 6000;
        QTest::newRow("Jet 4") << QStringLiteral("4") << 3000;
    }
    void AlAzar() {
        QFETCH(QString, origen);
        QFETCH(int, veces);
        const int version = origen == "3" ? 3 : 4;
        const Bytes sano = origen == "minima"
                               ? LeerBytes(PASTORIX_DATOS "/minima.mdb")
                               : Escribir({.version = version, .tablas = {TablaVariada(version)}}).contenido;
        std::mt19937 azar(20261122);
        int rechazados = 0, leidos = 0;
        std::clock_t peor = 0; // processor time: the machine may have other things to do
        for (int i = 0; i < veces; ++i) {
            Bytes b = sano;
            for (auto daños = azar() % 3; daños < 3 && !b.empty(); ++daños)
                if (b.size() > 4 * Jet4.pagina)
                    EstropearAlAzar(b, version == 3 ? Jet3.pagina : Jet4.pagina, azar);
            const std::clock_t comienzo = std::clock();
            const std::string dicho = Mensaje(b);
            peor = std::max(peor, std::clock() - comienzo);
            QVERIFY2(dicho.empty() || dicho.starts_with("El fichero ") || dicho.starts_with("Los textos "),
                     dicho.c_str());
            ++(dicho.empty() ? leidos : rechazados);
        }
        QVERIFY2(rechazados > veces / 10 && leidos > veces / 20,
                 qPrintable(QStringLiteral("%1 refused").arg(rechazados)));
        QVERIFY2(peor < 2 * CLOCKS_PER_SEC, qPrintable(QStringLiteral("%1 ticks for one file").arg(peor)));
    }

    void NoSonAccess_data() {
        QTest::addColumn<QByteArray>("contenido");
        QTest::addColumn<bool>("parece");
        QTest::addColumn<int>("clase");
        QTest::addColumn<QString>("mensaje");
        const auto Fila = [](const char* nombre, const QByteArray& contenido, bool parece,
                             ErrorAccess::Clase clase, const char* mensaje) {
            QTest::newRow(nombre) << contenido << parece << int(clase) << QString::fromUtf8(mensaje);
        };
        using enum ErrorAccess::Clase;
        const QByteArray jet("\0\1\0\0Standard Jet DB\0", 20), ace("\0\1\0\0Standard ACE DB\0", 20);
        Fila("empty", {}, false, NoEsAccess, "está vacío");
        Fila("text", QByteArray("Nombre;Crotal\n").repeated(2000), false, NoEsAccess,
             "no es una base de datos de Access");
        Fila("SQLite", QByteArray("SQLite format 3\0", 16) + QByteArray(8176, '\0'), false, NoEsAccess,
             "no es una base");
        Fila("signature cut", jet.left(19), false, NoEsAccess, "no es una base de datos de Access");
        Fila("2007", ace + '\2' + QByteArray(20000, '\0'), true, VersionNoTratada, "Access 2007");
        Fila("2019", ace + '\6' + QByteArray(20000, '\0'), true, VersionNoTratada, "Access 2019");
        Fila("unknown version", jet + '\x2A' + QByteArray(20000, '\0'), true, VersionNoTratada,
             "desconocida de Access (42)");
        Fila("only a header", jet + '\1', true, Dañado, "cortado: mide 21 bytes");
        Fila("all zeros", jet + '\1' + QByteArray(3 * 4096 - 21, '\0'), true, Dañado,
             "El fichero está dañado");
    }
    void NoSonAccess() {
        QFETCH(QByteArray, contenido);
        QFETCH(bool, parece);
        QFETCH(int, clase);
        QFETCH(QString, mensaje);
        QTemporaryDir carpeta;
        QFile fichero(carpeta.filePath(QStringLiteral("x.mdb")));
        QVERIFY(fichero.open(QIODevice::WriteOnly));
        fichero.write(contenido);
        fichero.close();
        const Bytes bytes(contenido.begin(), contenido.end());
        QCOMPARE(BaseAccess::LoParece(bytes), parece);
        for (const bool deBytes : {true, false}) {
            try {
                deBytes ? BaseAccess::DeBytes(bytes) : BaseAccess::Abrir(fichero.fileName().toStdString());
                QFAIL("was taken for an Access file");
            } catch (const ErrorAccess& error) {
                QCOMPARE(int(error.DeClase()), clase);
                QVERIFY2(QString::fromUtf8(error.what()).contains(mensaje), error.what());
            }
        }
    }

    void NoSePuedenLeer() {
        QTemporaryDir carpeta;
        for (const QString& ruta : {carpeta.path(), carpeta.filePath(QStringLiteral("no-existe.mdb"))}) {
            try {
                BaseAccess::Abrir(ruta.toStdString());
                QFAIL("was opened");
            } catch (const ErrorAccess& error) {
                QVERIFY(error.DeClase() == ErrorAccess::Clase::NoSeLee);
            }
        }
        try {
            BaseAccess::Abrir(PASTORIX_DATOS "/recortada.mdb");
            QFAIL("a cut file was opened");
        } catch (const ErrorAccess& error) {
            QVERIFY(error.DeClase() == ErrorAccess::Clase::Dañado);
            QCOMPARE(std::string(error.what()).find("El fichero está cortado: "), std::size_t(0));
        }
    }
};

PRUEBA(PruebaRotos)
#include "PruebaRotos.moc"
