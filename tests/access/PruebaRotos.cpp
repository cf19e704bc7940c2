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
        const auto Fila = [](const char* nombre, const char* mensaje, Estropear e) {
            QTest::newRow(nombre) << reinterpret_cast<void*>(e) << QString::fromUtf8(mensaje);
        };
        Fila("two pages", "cortado: mide 8192 bytes", [](Fichero& f) { f.b.resize(2 * P); });
        Fila("not whole pages", "páginas enteras", [](Fichero& f) { f.b.pop_back(); });
        Fila("last page lost", "cortado: faltan páginas", [](Fichero& f) { f.b.resize(f.b.size() - P); });
        Fila("creation date", "fecha de creación", [](Fichero& f) { f.PonerEnCabecera(0x78, 0x7FF8); });
        Fila("catalogue's type column", "no tiene la columna Type",
             [](Fichero& f) { f.b[2 * P + Jet4.finFijo + 2 * Jet4.descriptor] = 4; });
        Fila("catalogue's page owner", "de otra tabla", [](Fichero& f) { f.b[f.b.size() - P + 4] = 3; });
        Fila("two tables, one definition", "la definición de otra",
             [](Fichero& f) { f.Poner(f.Fila(f.b.size() - P, 2) + 2, f.def / P, 4); });
        Fila("table without definition", "la página 9999, que no existe",
             [](Fichero& f) { f.Poner(f.Fila(f.b.size() - P, 2) + 2, 9999, 4); });

        Fila("definition loops", "ya usada", [](Fichero& f) { f.Poner(f.def + 4, f.def / P, 4); });
        Fila("definition goes on in data", "no es de la clase",
             [](Fichero& f) { f.Poner(f.def + 4, f.datos / P, 4); });
        Fila("definition too long", "un largo imposible", [](Fichero& f) { f.Poner(f.def + 8, P + 1, 4); });
        Fila("definition too short", "un largo imposible", [](Fichero& f) { f.Poner(f.def + 8, 62, 4); });
        Fila("definition ends late", "no termina donde debe",
             [](Fichero& f) { f.Poner(f.def + 8, f.Leer(f.def + 8, 4) + 1, 4); });
        Fila("kind of table", "ninguna clase", [](Fichero& f) { f.b[f.def + Jet4.tipoTabla] = 0; });
        Fila("more columns than ever", "imposible de columnas",
             [](Fichero& f) { f.b[f.def + Jet4.columnas] = 9; });
        Fila("256 columns", "imposible de columnas",
             [](Fichero& f) { f.Poner(f.def + Jet4.maxColumnas, 256, 2); });
        Fila("many indexes", "de índices",
             [](Fichero& f) { f.Poner(f.def + Jet4.indicesReales, 0x10000001, 4); });
        Fila("column twice", "repite un número de columna",
             [](Fichero& f) { f.b[f.Columna(1) + Jet4.numero] = 0; });
        Fila("column number", "demasiado alto", [](Fichero& f) { f.b[f.Columna(1) + Jet4.numero] = 8; });

        Fila("map elsewhere", "se busca la fila 200", [](Fichero& f) { f.b[f.def + Jet4.mapaPropio] = 200; });
        Fila("map in no page", "la cabecera", [](Fichero& f) { f.Poner(f.def + Jet4.mapaPropio, 0, 4); });
        Fila("short map", "demasiado corto",
             [](Fichero& f) { f.Poner(f.Entrada(f.plano.mapas * P, 0), P - 4, 2); });
        Fila("kind of map", "clase desconocida", [](Fichero& f) { f.b[f.Mapa()] = 2; });
        Fila("map beyond the file", "cortado: tabla Pesadas",
             [](Fichero& f) { f.Poner(f.Mapa() + 1, 0xFFFFFFFF, 4); });
        Fila("map's bitmap", "tabla Otra: la página no es de la clase",
             [](Fichero& f) { f.b[f.plano.bitmap * P] = 1; });
        Fila("bitmap of later pages", "cortado: tabla Otra: faltan páginas de datos (la 32", [](Fichero& f) {
            const std::size_t mapa = f.Fila(f.plano.mapas * P, 1);
            f.Poner(mapa + 1, 0, 4);
            f.Poner(mapa + 5, f.plano.bitmap, 4);
        });
        Fila("bitmap twice", "repite una de sus partes",
             [](Fichero& f) { f.Poner(f.Fila(f.plano.mapas * P, 1) + 5, f.plano.bitmap, 4); });

        Fila("page of another kind", "no es de la clase", [](Fichero& f) { f.b[f.datos] = 4; });
        Fila("page of another table", "de otra tabla", [](Fichero& f) { f.b[f.datos + 4] ^= 1; });
        Fila("too many rows", "no cabe en su página",
             [](Fichero& f) { f.Poner(f.datos + Jet4.numeroFilas, 5000, 2); });
        Fila("overlapping rows", "la fila 1 invade otra",
             [](Fichero& f) { f.Poner(f.Entrada(f.datos, 1), 0xFFF, 2); });
        Fila("row in the row table", "la fila 12 invade",
             [](Fichero& f) { f.Poner(f.Entrada(f.datos, 12), 20, 2); });
        Fila("row before the one above", "la fila 1 invade",
             [](Fichero& f) { f.Poner(f.Entrada(f.datos, 0), 0x100, 2); });
        Fila("columns of a row", "más columnas que su tabla",
             [](Fichero& f) { f.b[f.Fila(f.datos, 1)] = 9; });
        Fila("fields of a row", "imposible de campos",
             [](Fichero& f) { f.Poner(f.FinFila(f.datos, 1) - 3, 256, 2); });
        Fila("fields past the row", "imposible de campos",
             [](Fichero& f) { f.Poner(f.FinFila(f.datos, 1) - 3, 200, 2); });
        Fila("field order", "se pisan", [](Fichero& f) { f.Poner(f.FinFila(f.datos, 1) - 7, 500, 2); });
        Fila("end of the fields", "se salen de ella",
             [](Fichero& f) { f.Poner(f.FinFila(f.datos, 1) - 11, 4000, 2); });
        Fila("field over the count", "se pisan",
             [](Fichero& f) { f.Poner(f.FinFila(f.datos, 1) - 5, 1, 2); });
        Fila("fixed field", "se sale de su fila",
             [](Fichero& f) { f.Poner(f.Columna(0) + Jet4.lugarFijo, 4000, 2); });

        Fila("moved to itself", "dos veces a la misma fila",
             [](Fichero& f) { f.Poner(f.Fila(f.datos, 4), f.datos / P << 8 | 4, 4); });
        Fila("moved out of its table", "fuera de su tabla",
             [](Fichero& f) { f.Poner(f.Fila(f.datos, 4), f.plano.mapas << 8, 4); });
        Fila("new place without its mark", "dos veces a la misma fila",
             [](Fichero& f) { f.b[f.EntradaTrasladada(f.datos, 4) + 1] &= 0x7F; });
        Fila("two moved to one place", "dos veces a la misma fila",
             [](Fichero& f) { f.Poner(f.Fila(f.datos2, 1), f.Leer(f.Fila(f.datos, 4), 4), 4); });

        Fila("memo's length", "mayor que el fichero",
             [](Fichero& f) { f.Poner(f.Memo(f.datos, 9), 0x7FFFFFFF, 4); });
        Fila("memo longer than its row", "se sale",
             [](Fichero& f) { f.Poner(f.Memo(f.datos, 1), 0x80000100, 4); });
        Fila("memo longer than its parts", "antes de tiempo",
             [](Fichero& f) { f.Poner(f.Memo(f.datos2, 7), 3000, 4); });
        Fila("memo outside", "no es de textos largos",
             [](Fichero& f) { f.Poner(f.Memo(f.datos, 9) + 4, f.datos / P << 8, 4); });
        Fila("memo of a deleted part", "borrada o trasladada",
             [](Fichero& f) { f.b[f.Entrada(f.plano.largos * P, 0) + 1] |= 0x80; });
        Fila("two memos, one place", "comparten la fila",
             [](Fichero& f) { f.Poner(f.Memo(f.datos, 9) + 4, f.Leer(f.Memo(f.datos, 8) + 4, 4), 4); });
        Fila("two tables, one memo", "comparten la fila", [](Fichero& f) {
            const std::size_t otra =
                f.Fila(f.DatosDeOtra(), 0) + f.Leer(f.FinFila(f.DatosDeOtra(), 0) - 5, 2);
            f.Poner(otra + 4, f.Leer(f.Memo(f.datos, 9) + 4, 4), 4);
        });
        Fila("memo loops", "comparten la fila", [](Fichero& f) {
            const std::size_t puntero = f.Leer(f.Memo(f.datos2, 7) + 4, 4);
            f.Poner(f.Fila((puntero >> 8) * P, puntero & 0xFF), puntero, 4);
        });
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
    }
};

PRUEBA(PruebaRotos)
#include "PruebaRotos.moc"
