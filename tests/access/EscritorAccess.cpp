#include "EscritorAccess.h"

#include "access/Rc4.h"

#include <QString>

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace pastorix::access::ayudas {

Bytes Numero(std::uint64_t valor, int bytes) {
    Bytes b;
    for (int i = 0; i < bytes; ++i)
        b.push_back(static_cast<std::uint8_t>(valor >> (8 * i)));
    return b;
}

Bytes Doble(double valor) {
    return Numero(std::bit_cast<std::uint64_t>(valor), 8);
}

Bytes Crudo(const std::string& bytes) {
    return {bytes.begin(), bytes.end()};
}

Bytes Utf16(const std::string& texto) {
    Bytes b;
    for (const QChar c : QString::fromStdString(texto)) {
        b.push_back(static_cast<std::uint8_t>(c.unicode() & 0xFF));
        b.push_back(static_cast<std::uint8_t>(c.unicode() >> 8));
    }
    return b;
}

void Cifrar(Bytes& contenido, std::size_t pagina, std::uint32_t llave) {
    for (std::size_t n = 1; llave != 0 && n < contenido.size() / pagina; ++n) {
        const Bytes k = Numero(llave ^ n, 4);
        Rc4({k[0], k[1], k[2], k[3]}, std::span(contenido).subspan(n * pagina, pagina));
    }
}

namespace {

void Pegar(Bytes& destino, const Bytes& trozo) {
    destino.insert(destino.end(), trozo.begin(), trozo.end());
}

void Poner(Bytes& destino, std::size_t sitio, const Bytes& trozo) {
    std::copy(trozo.begin(), trozo.end(), destino.begin() + std::ptrdiff_t(sitio));
}

class Escritura {
public:
    explicit Escritura(const FicheroNuevo& fichero)
        : m_fichero(fichero)
        , m_f(fichero.version == 3 ? Jet3 : Jet4) {}

    Plano Hacer() {
        Cabecera();
        NuevaPagina();                   // map of free pages: nobody reads it
        const auto raiz = NuevaPagina(); // the catalogue's definition
        m_plano.mapas = NuevaPagina();
        DatosDe(m_plano.mapas, 0);
        TablaNueva catalogo{"MSysObjects",
                            {{"Id", Tipo::Largo, true, 4},
                             {"Name", Tipo::Texto, false, 128},
                             {"Type", Tipo::Entero, true, 2},
                             {"Flags", Tipo::Largo, true, 4},
                             {"LvProp", Tipo::Ole, false, 0}}, // the outside tool looks for it
                            {},
                            std::int32_t(0x80000000U)};
        Apuntar(catalogo, "MSysObjects", raiz, catalogo.marcas);
        for (const TablaNueva& tabla : m_fichero.tablas) {
            const auto pagina = NuevaPagina();
            Apuntar(catalogo, tabla.nombre, pagina, tabla.marcas);
            Tabla(tabla, pagina);
        }
        Tabla(catalogo, raiz);
        for (std::size_t n = 0; n < m_paginas.size(); ++n)
            Pegar(m_plano.contenido, m_paginas[n]);
        Cifrar(m_plano.contenido, m_f.pagina, m_fichero.llave);
        return std::move(m_plano);
    }

private:
    Bytes Nombre(const std::string& texto) const { return m_f.EsJet4() ? Utf16(texto) : Crudo(texto); }

    std::uint32_t NuevaPagina() {
        m_paginas.emplace_back(m_f.pagina, std::uint8_t(0));
        return std::uint32_t(m_paginas.size() - 1);
    }

    void Cabecera() {
        Bytes& p = m_paginas[NuevaPagina()];
        Poner(p, 0, {0, 1, 0, 0});
        Poner(p, 4, Crudo("Standard Jet DB"));
        p[0x14] = m_f.EsJet4() ? 1 : 0;
        Poner(p, 0x3C, Numero(m_fichero.paginaCodigos, 2));
        Poner(p, 0x3E, Numero(m_fichero.llave, 4));
        Poner(p, 0x42, Nombre(m_fichero.clave));
        if (m_f.EsJet4()) {
            constexpr double creacion = 38143.5465;
            Poner(p, 0x72, Doble(creacion));
            const Bytes mascara = Numero(38143, 4);
            for (std::size_t k = 0; k < m_f.bytesClave; ++k)
                p[0x42 + k] = static_cast<std::uint8_t>(p[0x42 + k] ^ mascara[k % 4]);
        }
        Rc4({0xC7, 0xDA, 0x39, 0x6B}, std::span(p).subspan(0x18, m_f.enmascarados));
    }

    void Apuntar(TablaNueva& catalogo, const std::string& nombre, std::uint32_t pagina,
                 std::int32_t marcas) const {
        catalogo.filas.push_back({{Numero(pagina, 4), Nombre(nombre), Numero(1, 2),
                                   Numero(std::uint32_t(marcas), 4), std::nullopt}});
    }

    void DatosDe(std::uint32_t pagina, std::uint32_t dueño) {
        Poner(m_paginas[pagina], 0, {1, 1});
        Poner(m_paginas[pagina], 4, Numero(dueño, 4));
    }

    unsigned Leer16(std::uint32_t pagina, std::size_t sitio) const {
        return m_paginas[pagina][sitio] | unsigned(m_paginas[pagina][sitio + 1] << 8);
    }

    // Where the rows of a page begin now.
    unsigned Principio(std::uint32_t pagina) const {
        const unsigned n = Leer16(pagina, m_f.numeroFilas);
        return n == 0 ? unsigned(m_f.pagina) : Leer16(pagina, m_f.tablaFilas + 2 * n - 2) & 0x1FFFU;
    }

    bool Cabe(std::uint32_t pagina, std::size_t bytes) const {
        return m_f.tablaFilas + 2U * (Leer16(pagina, m_f.numeroFilas) + 1U) + bytes <= Principio(pagina);
    }

    // Returns the row pointer.
    std::uint32_t PonerFila(std::uint32_t pagina, const Bytes& fila, unsigned marcas = 0) {
        const unsigned n = Leer16(pagina, m_f.numeroFilas), sitio = Principio(pagina) - unsigned(fila.size());
        Poner(m_paginas[pagina], sitio, fila);
        Poner(m_paginas[pagina], m_f.tablaFilas + 2 * n, Numero(sitio | marcas, 2));
        Poner(m_paginas[pagina], m_f.numeroFilas, Numero(n + 1, 2));
        return pagina << 8 | n;
    }

    // Short values inline, middle ones on one page, the rest in parts of a quarter page.
    Bytes ValorLargo(const Bytes& valor) {
        const auto largo = std::uint32_t(valor.size());
        Bytes cabeza(12);
        if (largo <= 64) {
            Poner(cabeza, 0, Numero(largo | 0x80000000U, 4));
            Pegar(cabeza, valor);
            return cabeza;
        }
        const std::size_t parte = m_f.pagina / 4;
        const bool unaPagina = largo <= parte;
        std::uint32_t puntero = 0;
        if (unaPagina) {
            puntero = PonerLargo(valor);
        } else {
            for (std::size_t fin = largo; fin > 0;) {
                const std::size_t desde = fin > parte ? fin - parte : 0;
                Bytes trozo = Numero(puntero, 4);
                trozo.insert(trozo.end(), valor.begin() + std::ptrdiff_t(desde),
                             valor.begin() + std::ptrdiff_t(fin));
                puntero = PonerLargo(trozo);
                fin = desde;
            }
        }
        Poner(cabeza, 0, Numero(largo | (unaPagina ? 0x40000000U : 0U), 4));
        Poner(cabeza, 4, Numero(puntero, 4));
        return cabeza;
    }

    std::uint32_t PonerLargo(const Bytes& fila) {
        if (m_ultimaLarga == 0 || !Cabe(m_ultimaLarga, fila.size())) {
            m_ultimaLarga = NuevaPagina();
            DatosDe(m_ultimaLarga, 0x4C41564C);
            if (m_plano.largos == 0)
                m_plano.largos = m_ultimaLarga;
        }
        return PonerFila(m_ultimaLarga, fila);
    }

    Bytes Fila(const TablaNueva& tabla, const FilaNueva& nueva) {
        const auto cuantas = nueva.columnas < 0 ? MaxColumnas(tabla) : std::size_t(nueva.columnas);
        Bytes mascara((cuantas + 7) / 8), fila = Numero(cuantas, int(m_f.cuenta));
        if (cuantas % 8 != 0) // bits of no column mean nothing
            mascara.back() = static_cast<std::uint8_t>(0xFFU << (cuantas % 8));
        std::vector<Bytes> variables;
        std::size_t fijos = 0;
        for (const ColumnaNueva& c : tabla.columnas)
            fijos += c.fija ? std::size_t(c.longitud) : 0;
        fila.resize(fila.size() + fijos);
        std::size_t sitioFijo = m_f.cuenta;
        for (std::size_t i = 0; i < nueva.celdas.size(); ++i) {
            const ColumnaNueva& c = tabla.columnas[i];
            const auto numero = NumeroDe(tabla, i);
            const auto& celda = nueva.celdas[i];
            if (numero < cuantas && celda)
                mascara[numero / 8] = static_cast<std::uint8_t>(mascara[numero / 8] | (1U << (numero % 8)));
            if (c.fija) {
                if (celda && c.tipo != Tipo::SiNo)
                    Poner(fila, sitioFijo, *celda);
                sitioFijo += std::size_t(c.longitud);
            } else if (c.tipo != Tipo::SiNo && numero < cuantas) {
                const bool largo = c.tipo == Tipo::Memo || c.tipo == Tipo::Ole;
                variables.push_back(!celda ? Bytes() : largo ? ValorLargo(*celda) : *celda);
            }
        }
        if (!variables.empty())
            Desplazamientos(fila, variables, mascara.size());
        Pegar(fila, mascara);
        return fila;
    }

    void Desplazamientos(Bytes& fila, const std::vector<Bytes>& variables, std::size_t largoMascara) const {
        std::vector<std::size_t> sitios;
        for (const Bytes& valor : variables) {
            sitios.push_back(fila.size());
            Pegar(fila, valor);
        }
        sitios.push_back(fila.size());
        if (m_f.EsJet4()) {
            for (auto s = sitios.rbegin(); s != sitios.rend(); ++s)
                Pegar(fila, Numero(*s, 2));
            Pegar(fila, Numero(variables.size(), 2));
            return;
        }
        // Jet 3: the number of jump bytes depends on the length of the row, which it is part of.
        std::size_t saltos = 0;
        const auto Largo = [&] { return fila.size() + sitios.size() + saltos + 1 + largoMascara; };
        while (saltos < (Largo() - 1) / 256)
            ++saltos;
        for (auto s = sitios.rbegin(); s != sitios.rend(); ++s)
            fila.push_back(static_cast<std::uint8_t>(*s));
        for (std::size_t k = saltos; k > 0; --k) {
            const auto primero =
                std::find_if(sitios.begin(), sitios.end(), [k](std::size_t s) { return s >= 256 * k; });
            fila.push_back(primero == sitios.end() ? std::uint8_t{0xFF}
                                                   : static_cast<std::uint8_t>(primero - sitios.begin()));
        }
        fila.push_back(static_cast<std::uint8_t>(variables.size()));
    }

    static std::size_t NumeroDe(const TablaNueva& tabla, std::size_t i) {
        return tabla.columnas[i].numero < 0 ? i : std::size_t(tabla.columnas[i].numero);
    }
    static std::size_t MaxColumnas(const TablaNueva& tabla) {
        std::size_t max = 0;
        for (std::size_t i = 0; i < tabla.columnas.size(); ++i)
            max = std::max(max, NumeroDe(tabla, i) + 1);
        return max;
    }

    void Tabla(const TablaNueva& tabla, std::uint32_t pagina) {
        std::vector<std::uint32_t> paginas;
        const auto Sitio = [&](std::size_t bytes) {
            if (paginas.empty() || !Cabe(paginas.back(), bytes) ||
                Leer16(paginas.back(), m_f.numeroFilas) >= unsigned(tabla.filasPorPagina)) {
                paginas.push_back(NuevaPagina());
                DatosDe(paginas.back(), pagina);
            }
            return paginas.back();
        };
        std::vector<std::pair<std::uint32_t, Bytes>> trasladadas; // pointer row, bytes of the row
        std::uint32_t vivas = 0;
        for (const FilaNueva& nueva : tabla.filas) {
            const Bytes fila = Fila(tabla, nueva);
            vivas += nueva.estado == Estado::Borrada ? 0 : 1;
            if (nueva.estado == Estado::Trasladada)
                trasladadas.emplace_back(PonerFila(Sitio(6), Bytes(6), 0x4000), fila);
            else
                PonerFila(Sitio(fila.size()), fila, nueva.estado == Estado::Borrada ? 0xC000 : 0);
        }
        for (const auto& [puntero, fila] : trasladadas) {
            const std::uint32_t destino = PonerFila(Sitio(fila.size()), fila, 0x8000);
            const unsigned entrada = Leer16(puntero >> 8, m_f.tablaFilas + 2 * (puntero & 0xFF)) & 0x1FFFU;
            Poner(m_paginas[puntero >> 8], entrada, Numero(destino, 4));
        }
        m_plano.definicion[tabla.nombre] = pagina;
        m_plano.datos[tabla.nombre] = paginas;
        Definicion(tabla, pagina, vivas, Mapa(tabla, paginas));
    }

    std::uint32_t Mapa(const TablaNueva& tabla, const std::vector<std::uint32_t>& paginas) {
        Bytes mapa(m_f.EsJet4() ? 69 : 133);
        if (tabla.mapaPorReferencia) {
            m_plano.bitmap = NuevaPagina();
            Poner(mapa, 0, {1});
            Poner(mapa, 1, Numero(m_plano.bitmap, 4));
            Poner(m_paginas[m_plano.bitmap], 0, {5, 1});
            for (const auto p : paginas)
                m_paginas[m_plano.bitmap][4 + p / 8] |= static_cast<std::uint8_t>(1U << (p % 8));
        } else if (!paginas.empty()) {
            Poner(mapa, 1, Numero(paginas.front(), 4));
            for (const auto p : paginas) {
                const auto bit = p - paginas.front();
                mapa.at(5 + bit / 8) |= static_cast<std::uint8_t>(1U << (bit % 8));
            }
        }
        return PonerFila(m_plano.mapas, mapa);
    }

    void Definicion(const TablaNueva& tabla, std::uint32_t pagina, std::uint32_t vivas, std::uint32_t mapa) {
        Bytes d(m_f.finFijo);
        Poner(d, m_f.filas, Numero(vivas, 4));
        d[m_f.tipoTabla] = 0x4E;
        Poner(d, m_f.maxColumnas, Numero(MaxColumnas(tabla), 2));
        Poner(d, m_f.columnas, Numero(tabla.columnas.size(), 2));
        Poner(d, m_f.mapaPropio, Numero(mapa, 4));
        Poner(d, m_f.mapaPropio + 4, Numero(mapa, 4)); // pages with room, only read by the outside tool
        std::size_t lugar = 0, lugarFijo = 0;
        for (std::size_t i = 0; i < tabla.columnas.size(); ++i) {
            const ColumnaNueva& c = tabla.columnas[i];
            Bytes b(m_f.descriptor);
            b[0] = static_cast<std::uint8_t>(c.tipo);
            Poner(b, m_f.numero, Numero(NumeroDe(tabla, i), 2));
            if (c.tipo == Tipo::Decimal)
                b[m_f.escala] = static_cast<std::uint8_t>(c.escala);
            b[m_f.marcas] = c.fija ? 3 : 2;
            Poner(b, m_f.lugar, Numero(lugar, 2));
            Poner(b, m_f.lugarFijo, Numero(c.fija ? lugarFijo : 0xDEAD, 2));
            Poner(b, m_f.longitud, Numero(std::uint64_t(c.longitud), 2));
            lugarFijo += c.fija ? std::size_t(c.longitud) : 0;
            lugar += c.fija || c.tipo == Tipo::SiNo ? 0 : 1;
            Pegar(d, b);
        }
        Poner(d, m_f.maxColumnas + 2,
              Numero(lugar, 2)); // variable columns, which only the outside tool reads
        for (const ColumnaNueva& c : tabla.columnas) {
            const Bytes nombre = Nombre(c.nombre);
            Pegar(d, Numero(nombre.size(), int(m_f.largoNombre)));
            Pegar(d, nombre);
        }
        Pegar(d, {0xFF, 0xFF});
        Poner(d, 8, Numero(d.size(), 4));
        std::uint32_t n = pagina;
        for (std::size_t hecho = 0; hecho < d.size();) {
            const std::size_t desde = hecho == 0 ? 0 : 8,
                              toma = std::min(d.size() - hecho, m_f.pagina - desde);
            std::copy_n(d.begin() + std::ptrdiff_t(hecho), toma,
                        m_paginas[n].begin() + std::ptrdiff_t(desde));
            hecho += toma;
            const std::uint32_t siguiente = hecho < d.size() ? NuevaPagina() : 0;
            Poner(m_paginas[n], 0, {2, 1, 0, 0});
            Poner(m_paginas[n], 4, Numero(siguiente, 4));
            n = siguiente;
        }
    }

    const FicheroNuevo& m_fichero;
    const Formato& m_f;
    Plano m_plano;
    std::vector<Bytes> m_paginas;
    std::uint32_t m_ultimaLarga = 0;
};

} // namespace

Plano Escribir(const FicheroNuevo& fichero) {
    return Escritura(fichero).Hacer();
}

TablaNueva TablaVariada(int version) {
    TablaNueva t{"Pesadas",
                 {{"Id", Tipo::Largo, true, 4},
                  {"Texto", Tipo::Texto, false, 255},
                  {"Nota", Tipo::Memo, false, 0},
                  {"Visto", Tipo::SiNo, false, 1, 5},
                  {"Peso", Tipo::Doble, false, 8, 7}},
                 {}};
    const auto Texto = [version](const std::string& s) { return version == 4 ? Utf16(s) : Crudo(s); };
    for (int i = 0; i < 60; ++i) {
        const auto Largo = std::size_t(i) * std::size_t(i) * 3;
        FilaNueva f{{Numero(std::uint64_t(i), 4), Texto(std::string(std::size_t(i), 'x')),
                     Texto(std::string(Largo, char('a' + i % 26))),
                     i % 3 ? std::optional(Bytes{1}) : std::nullopt,
                     i % 2 ? std::optional(Doble(i / 4.0)) : std::nullopt}};
        f.estado = i % 10 == 7 ? Estado::Borrada : i % 10 == 4 ? Estado::Trasladada : Estado::Viva;
        t.filas.push_back(f);
    }
    t.filasPorPagina = 13;
    return t;
}

} // namespace pastorix::access::ayudas
