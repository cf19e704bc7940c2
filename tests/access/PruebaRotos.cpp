#include "Ayudas.h"
#include "EscritorAccess.h"
#include "access/Rc4.h"
#include "prueba.h"

#include <ctime>
#include <random>

using namespace pastorix::access;
using namespace pastorix::access::ayudas;
using namespace prueba;

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
// A case: what is damaged, what is said, how.
#define ROTO(nombre, mensaje, estropear)                                                                     \
    Caso(                                                                                                    \
        nombre, mensaje, +[](Fichero& f) { estropear; })

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
        ROTO("two pages", "cortado: mide 8192 bytes", f.b.resize(2 * P));
        ROTO("not whole pages", "páginas enteras", f.b.pop_back());
        ROTO("last page lost", "cortado: faltan páginas", f.b.resize(f.b.size() - P));
        ROTO("creation date", "fecha de creación", f.PonerEnCabecera(0x78, 0x7FF8));
        ROTO("type column", "no tiene la columna Type", f.b[2 * P + Jet4.finFijo + 2 * Jet4.descriptor] = 4);
        ROTO("catalogue's page owner", "de otra tabla", f.b[f.b.size() - P + 4] = 3);
        ROTO("two tables, one definition", "la definición de otra",
             f.Poner(f.Fila(f.b.size() - P, 2) + 2, f.def / P, 4));
        ROTO("table without definition", "la página 9999, que no existe",
             f.Poner(f.Fila(f.b.size() - P, 2) + 2, 9999, 4));

        ROTO("definition loops", "ya usada", f.Poner(f.def + 4, f.def / P, 4));
        ROTO("definition goes on in data", "no es de la clase", f.Poner(f.def + 4, f.datos / P, 4));
        ROTO("definition too long", "un largo imposible", f.Poner(f.def + 8, P + 1, 4));
        ROTO("definition too short", "un largo imposible", f.Poner(f.def + 8, 62, 4));
        ROTO("ends late", "no termina donde debe", f.Poner(f.def + 8, f.Leer(f.def + 8, 4) + 1, 4));
        ROTO("kind of table", "ninguna clase", f.b[f.def + Jet4.tipoTabla] = 0);
        ROTO("more columns than ever", "imposible de columnas", f.b[f.def + Jet4.columnas] = 9);
        ROTO("256 columns", "imposible de columnas", f.Poner(f.def + Jet4.maxColumnas, 256, 2));
        ROTO("many indexes", "de índices", f.Poner(f.def + Jet4.indicesReales, 0x10000001, 4));
        ROTO("column twice", "repite un número de columna", f.b[f.Columna(1) + Jet4.numero] = 0);
        ROTO("column number", "demasiado alto", f.b[f.Columna(1) + Jet4.numero] = 8);

        ROTO("map elsewhere", "se busca la fila 200", f.b[f.def + Jet4.mapaPropio] = 200);
        ROTO("map in no page", "la cabecera", f.Poner(f.def + Jet4.mapaPropio, 0, 4));
        ROTO("short map", "demasiado corto", f.Poner(f.Entrada(f.plano.mapas * P, 0), P - 4, 2));
        ROTO("kind of map", "clase desconocida", f.b[f.Mapa()] = 2);
        ROTO("map beyond the file", "cortado: tabla Pesadas", f.Poner(f.Mapa() + 1, 0xFFFFFFFF, 4));
        ROTO("map's bitmap", "tabla Otra: la página no es de la clase", f.b[f.plano.bitmap * P] = 1);
        Caso(
            "bitmap of later pages", "cortado: tabla Otra: faltan páginas de datos (la 32", +[](Fichero& f) {
                const std::size_t mapa = f.Fila(f.plano.mapas * P, 1);
                f.Poner(mapa + 1, 0, 4);
                f.Poner(mapa + 5, f.plano.bitmap, 4);
            });
        ROTO("bitmap twice", "repite una de sus partes",
             f.Poner(f.Fila(f.plano.mapas * P, 1) + 5, f.plano.bitmap, 4));

        ROTO("page of another kind", "no es de la clase", f.b[f.datos] = 4);
        ROTO("page of another table", "de otra tabla", f.b[f.datos + 4] ^= 1);
        ROTO("too many rows", "no cabe en su página", f.Poner(f.datos + Jet4.numeroFilas, 5000, 2));
        ROTO("overlapping rows", "la fila 1 invade otra", f.Poner(f.Entrada(f.datos, 1), 0xFFF, 2));
        ROTO("row in the row table", "la fila 12 invade", f.Poner(f.Entrada(f.datos, 12), 20, 2));
        ROTO("row before the one above", "la fila 1 invade", f.Poner(f.Entrada(f.datos, 0), 0x100, 2));
        ROTO("columns of a row", "más columnas que su tabla", f.b[f.Fila(f.datos, 1)] = 9);
        ROTO("fields of a row", "imposible de campos", f.Poner(f.FinFila(f.datos, 1) - 3, 256, 2));
        ROTO("fields past the row", "imposible de campos", f.Poner(f.FinFila(f.datos, 1) - 3, 200, 2));
        ROTO("field order", "se pisan", f.Poner(f.FinFila(f.datos, 1) - 7, 500, 2));
        ROTO("end of the fields", "se salen de ella", f.Poner(f.FinFila(f.datos, 1) - 11, 4000, 2));
        ROTO("field over the count", "se pisan", f.Poner(f.FinFila(f.datos, 1) - 5, 1, 2));
        ROTO("fixed field", "se sale de su fila", f.Poner(f.Columna(0) + Jet4.lugarFijo, 4000, 2));

        ROTO("to itself", "dos veces a la misma fila", f.Poner(f.Fila(f.datos, 4), f.datos / P << 8 | 4, 4));
        ROTO("moved out", "fuera de su tabla", f.Poner(f.Fila(f.datos, 4), f.plano.mapas << 8, 4));
        ROTO("new place without its mark", "dos veces a la misma fila",
             f.b[f.EntradaTrasladada(f.datos, 4) + 1] &= 0x7F);
        ROTO("two moved to one place", "dos veces a la misma fila",
             f.Poner(f.Fila(f.datos2, 1), f.Leer(f.Fila(f.datos, 4), 4), 4));

        ROTO("memo's length", "mayor que el fichero", f.Poner(f.Memo(f.datos, 9), 0x7FFFFFFF, 4));
        ROTO("memo longer than its row", "se sale", f.Poner(f.Memo(f.datos, 1), 0x80000100, 4));
        ROTO("memo longer than its parts", "antes de tiempo", f.Poner(f.Memo(f.datos2, 7), 3000, 4));
        ROTO("memo outside", "no es de textos largos", f.Poner(f.Memo(f.datos, 9) + 4, f.datos / P << 8, 4));
        ROTO("deleted part", "borrada o trasladada", f.b[f.Entrada(f.plano.largos * P, 0) + 1] |= 0x80);
        ROTO("two memos, one place", "comparten la fila",
             f.Poner(f.Memo(f.datos, 9) + 4, f.Leer(f.Memo(f.datos, 8) + 4, 4), 4));
        Caso(
            "two tables, one memo", "comparten la fila", +[](Fichero& f) {
                const std::size_t otra =
                    f.Fila(f.DatosDeOtra(), 0) + f.Leer(f.FinFila(f.DatosDeOtra(), 0) - 5, 2);
                f.Poner(otra + 4, f.Leer(f.Memo(f.datos, 9) + 4, 4), 4);
            });
        Caso(
            "memo loops", "comparten la fila", +[](Fichero& f) {
                const std::size_t puntero = f.Leer(f.Memo(f.datos2, 7) + 4, 4);
                f.Poner(f.Fila((puntero >> 8) * P, puntero & 0xFF), puntero, 4);
            });
    }
    void Concretos() {
        const auto [mensaje, estropear] = DelCaso<QString, Estropear>();
        Fichero fichero;
        QCOMPARE(Mensaje(fichero.b), ""s);
        estropear(fichero);
        const std::string dicho = Mensaje(fichero.b);
        QVERIFY2(!dicho.empty() && Q(dicho).contains(mensaje), dicho.c_str());
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
        Caso("sample", u"minima"_s, 1000);
        Caso("Jet 3", u"3"_s, 6000);
        Caso("Jet 4", u"4"_s, 3000);
    }
    void AlAzar() {
        const auto [origen, veces] = DelCaso<QString, int>();
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
        QVERIFY2(rechazados > veces / 10 && leidos > veces / 20, qPrintable(u"%1 refused"_s.arg(rechazados)));
        QVERIFY2(peor < 2 * CLOCKS_PER_SEC, qPrintable(u"%1 ticks for one file"_s.arg(peor)));
    }

    void NoSonAccess_data() {
        const auto Fila = [](const char* nombre, const QByteArray& contenido, bool parece,
                             ErrorAccess::Clase clase, const char* mensaje) {
            Caso(nombre, contenido, parece, int(clase), Q(mensaje));
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
        const auto [contenido, parece, clase, mensaje] = DelCaso<QByteArray, bool, int, QString>();
        QTemporaryDir carpeta;
        QFile fichero(carpeta.filePath(u"x.mdb"_s));
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
                QVERIFY2(Q(error.what()).contains(mensaje), error.what());
            }
        }
    }

    void NoSePuedenLeer() {
        QTemporaryDir carpeta;
        for (const QString& ruta : {carpeta.path(), carpeta.filePath(u"no-existe.mdb"_s)}) {
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
