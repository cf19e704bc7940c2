#include "access/Definicion.h"

#include <algorithm>

namespace pastorix::access {

namespace {

constexpr unsigned maxIndices = 1000, maxColumnasPosibles = 255;

// The definition may run over several pages, cut at any byte; the heads of the further ones are left out.
Bytes Juntar(const Paginas& paginas, std::uint32_t pagina, std::vector<bool>& usadas) {
    Bytes junta;
    for (std::uint32_t n = pagina; n != 0;) {
        const Lector p = paginas.Pagina(n, TipoPagina::Definicion);
        if (usadas[n])
            Dañar("una definición de tabla vuelve sobre una página ya usada", n);
        usadas[n] = true;
        const Vista trozo = junta.empty() ? p.Todo() : p.Trozo(8, p.Largo() - 8);
        junta.insert(junta.end(), trozo.begin(), trozo.end());
        n = p.U32(4);
    }
    return junta;
}

Tipo TipoDe(std::uint8_t tipo) {
    const bool conocido = (tipo >= 1 && tipo <= 12) || tipo == 15 || tipo == 16;
    return conocido ? static_cast<Tipo>(tipo) : Tipo::Otro;
}

// Walks the blocks of one joined definition, from its fixed part to its end.
class Lectura {
public:
    Lectura(const Lector& bytes, const Formato& formato, const Textos& textos)
        : m_bytes(bytes)
        , m_formato(formato)
        , m_textos(textos) {}

    Definicion Leer() {
        m_definicion.pagina = m_bytes.Pagina();
        ParteFija();
        Saltar(m_indicesReales * m_formato.entradaIndice);
        Descriptores();
        for (Columna& columna : m_definicion.columnas)
            columna.nombre = m_textos.Nombre(Nombre());
        Saltar(m_indicesReales * m_formato.indiceReal);
        Saltar(m_indicesLogicos * m_formato.indiceLogico);
        for (std::uint64_t i = 0; i < m_indicesLogicos; ++i)
            Nombre();
        PaginasDeValoresLargos();
        return std::move(m_definicion);
    }

private:
    void ParteFija() {
        const unsigned clase = m_bytes.U8(m_formato.tipoTabla);
        if (clase != 0x4E && clase != 0x53)
            Mal("no es de ninguna clase conocida");
        m_definicion.filas = m_bytes.U32(m_formato.filas);
        m_definicion.maxColumnas = m_bytes.U16(m_formato.maxColumnas);
        m_definicion.mapa.valor = m_bytes.U32(m_formato.mapaPropio);
        m_columnas = m_bytes.U16(m_formato.columnas);
        m_indicesLogicos = m_bytes.U32(m_formato.indicesLogicos);
        m_indicesReales = m_bytes.U32(m_formato.indicesReales);
        if (m_definicion.maxColumnas > maxColumnasPosibles || m_columnas > m_definicion.maxColumnas)
            Mal("tiene un número imposible de columnas");
        if (m_indicesReales > maxIndices || m_indicesLogicos > maxIndices)
            Mal("tiene un número imposible de índices");
        m_sitio = m_formato.finFijo;
    }

    void Descriptores() {
        std::vector<bool> vistos(m_definicion.maxColumnas);
        for (unsigned i = 0; i < m_columnas; ++i) {
            const Lector d = m_bytes.Parte(m_sitio, m_formato.descriptor);
            SitioColumna s;
            s.tipo = d.U8(0);
            s.numero = d.U16(m_formato.numero);
            s.fija = (d.U8(m_formato.marcas) & 1U) != 0;
            s.lugar = d.U16(m_formato.lugar);
            s.lugarFijo = d.U16(m_formato.lugarFijo);
            s.longitud = d.U16(m_formato.longitud);
            s.escala = d.U8(m_formato.escala);
            if (s.numero >= m_definicion.maxColumnas || vistos[s.numero])
                Mal("repite un número de columna o lo tiene demasiado alto");
            vistos[s.numero] = true;
            m_definicion.sitios.push_back(s);

            Columna columna;
            columna.tipo = TipoDe(s.tipo);
            columna.longitud = s.longitud;
            if (columna.tipo == Tipo::Texto && m_formato.EsJet4())
                columna.longitud /= 2;
            m_definicion.columnas.push_back(std::move(columna));
            m_sitio += m_formato.descriptor;
        }
    }

    Vista Nombre() {
        const std::uint64_t largo = m_formato.EsJet4() ? m_bytes.U16(m_sitio) : m_bytes.U8(m_sitio);
        const Vista nombre = m_bytes.Trozo(m_sitio + m_formato.largoNombre, largo);
        m_sitio += m_formato.largoNombre + largo;
        return nombre;
    }

    void Saltar(std::uint64_t bytes) {
        m_bytes.Trozo(m_sitio, bytes);
        m_sitio += bytes;
    }

    // Nothing here is needed; that the list ends where the definition ends proves that all before it was read rightly.
    void PaginasDeValoresLargos() {
        while (m_bytes.U16(m_sitio) != 0xFFFF)
            Saltar(10);
        Saltar(2);
        if (m_sitio != m_bytes.Largo())
            Mal("no termina donde debe");
    }

    [[noreturn]] void Mal(const std::string& que) const {
        Dañar("la definición de la tabla " + que, m_bytes.Pagina());
    }

    Lector m_bytes;
    const Formato& m_formato;
    const Textos& m_textos;
    Definicion m_definicion;
    std::uint64_t m_sitio = 0, m_indicesLogicos = 0, m_indicesReales = 0;
    unsigned m_columnas = 0;
};

} // namespace

Definicion LeerDefinicion(const Paginas& paginas, const Textos& textos, std::uint32_t pagina,
                          std::vector<bool>& usadas) {
    const Bytes junta = Juntar(paginas, pagina, usadas);
    const Lector todo(junta, pagina);
    const std::uint64_t largo = todo.U32(8);
    if (largo > todo.Largo() || largo < paginas.DeFormato().finFijo)
        Dañar("la definición de la tabla tiene un largo imposible", pagina);
    return Lectura(todo.Parte(0, largo), paginas.DeFormato(), textos).Leer();
}

} // namespace pastorix::access
