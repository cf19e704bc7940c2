#include "access/Celdas.h"

#include "access/Valores.h"

#include <algorithm>

namespace pastorix::access {

namespace {

// The member of a cell that the next value goes into; what it held of the same kind keeps its memory.
template <class T>
T& Para(Celda& celda) {
    if (T* valor = std::get_if<T>(&celda))
        return *valor;
    return celda.emplace<T>();
}

void Copiar(Vista bytes, Celda& celda) {
    Para<Bytes>(celda).assign(bytes.begin(), bytes.end());
}

} // namespace

Celdas::Celdas(const Definicion& definicion, const Formato& formato, const Textos& textos,
               ValoresLargos& largos)
    : m_definicion(definicion)
    , m_formato(formato)
    , m_textos(textos)
    , m_largos(largos)
    , m_vuelta(largos.Empezar(definicion.pagina))
    , m_celdas(definicion.sitios.size()) {}

const std::vector<Celda>& Celdas::Leer(const Lector& fila) {
    m_cuenta = m_formato.EsJet4() ? fila.U16(0) : fila.U8(0);
    if (m_cuenta > m_definicion.maxColumnas)
        Dañar("una fila tiene más columnas que su tabla", fila.Pagina());
    const std::uint64_t largoMascara = (m_cuenta + 7U) / 8U;
    if (fila.Largo() < m_formato.cuenta + largoMascara)
        Dañar("una fila es demasiado corta", fila.Pagina());
    const std::uint64_t mascara = fila.Largo() - largoMascara;
    m_mascara = fila.Trozo(mascara, largoMascara);
    LeerLugares(fila, mascara);

    for (std::size_t i = 0; i < m_celdas.size(); ++i) {
        const SitioColumna& sitio = m_definicion.sitios[i];
        const bool presente = Presente(sitio);
        if (sitio.tipo == static_cast<std::uint8_t>(Tipo::SiNo)) {
            m_celdas[i] = presente; // the mask's bit is the value
            continue;
        }
        bool hay = presente;
        const Lector bytes = presente ? BytesDe(sitio, fila, hay) : Lector();
        if (hay)
            Decodificar(sitio, bytes, m_celdas[i]);
        else
            m_celdas[i] = std::monostate();
    }
    return m_celdas;
}

// Rows are older than columns added after they were written.
bool Celdas::Presente(const SitioColumna& sitio) const {
    return sitio.numero < m_cuenta && ((m_mascara[sitio.numero / 8U] >> (sitio.numero % 8U)) & 1U) != 0;
}

// A row written while its table had no variable column has no offsets, only the mask; so they are read only when some
// variable column has a value.
void Celdas::LeerLugares(const Lector& fila, std::uint64_t mascara) {
    m_fin = mascara;
    m_lugares.clear();
    const bool hacenFalta =
        std::any_of(m_definicion.sitios.begin(), m_definicion.sitios.end(), [this](const auto& s) {
            return !s.fija && s.tipo != static_cast<std::uint8_t>(Tipo::SiNo) && Presente(s);
        });
    if (!hacenFalta)
        return;
    if (m_formato.EsJet4())
        LugaresJet4(fila, mascara);
    else
        LugaresJet3(fila, mascara);
    if (m_lugares.front() < m_formato.cuenta || m_lugares.back() > m_fin ||
        !std::is_sorted(m_lugares.begin(), m_lugares.end()))
        Dañar("los campos de una fila se salen de ella o se pisan", fila.Pagina());
}

void Celdas::LugaresJet4(const Lector& fila, std::uint64_t mascara) {
    if (mascara < m_formato.cuenta + 2ULL)
        Dañar("una fila es demasiado corta", fila.Pagina());
    const std::uint64_t variables = fila.U16(mascara - 2);
    if (variables > m_definicion.maxColumnas || mascara < m_formato.cuenta + 4 + 2 * variables)
        Dañar("una fila tiene un número imposible de campos", fila.Pagina());
    for (std::uint64_t i = 0; i <= variables; ++i)
        m_lugares.push_back(fila.U16(mascara - 4 - 2 * i));
    m_fin = mascara - 4 - 2 * variables;
}

// Offsets of one byte; the jump bytes behind them name the first offset that has passed each multiple of 256.
void Celdas::LugaresJet3(const Lector& fila, std::uint64_t mascara) {
    const std::uint64_t saltos = (fila.Largo() - 1) / 256;
    if (mascara < m_formato.cuenta + 1 + saltos)
        Dañar("una fila es demasiado corta", fila.Pagina());
    const std::uint64_t variables = fila.U8(mascara - 1);
    const std::uint64_t primero = mascara - 2 - saltos; // offset byte 0, the others below it
    if (variables > m_definicion.maxColumnas || primero < m_formato.cuenta + variables)
        Dañar("una fila tiene un número imposible de campos", fila.Pagina());
    m_fin = primero - variables;
    const std::uint64_t validos = std::min(saltos, m_fin / 256); // the rest are fillers
    std::uint64_t s = 0;
    for (std::uint64_t i = 0; i <= variables; ++i) {
        while (s < validos && fila.U8(mascara - 2 - s) == i)
            ++s;
        m_lugares.push_back(static_cast<std::uint16_t>(fila.U8(primero - i) + 256 * s));
    }
}

// The bytes of a column whose bit is set; `hay` becomes false when the row has no place for it all the same.
Lector Celdas::BytesDe(const SitioColumna& sitio, const Lector& fila, bool& hay) const {
    if (sitio.fija) {
        const std::uint64_t desde = m_formato.cuenta + std::uint64_t{sitio.lugarFijo};
        if (desde + sitio.longitud > m_fin)
            Dañar("un campo se sale de su fila", fila.Pagina());
        return fila.Parte(desde, sitio.longitud);
    }
    hay = sitio.lugar + 1U < m_lugares.size();
    if (!hay)
        return {};
    const std::uint16_t desde = m_lugares[sitio.lugar];
    return fila.Parte(desde, static_cast<std::uint64_t>(m_lugares[sitio.lugar + 1U] - desde));
}

void Celdas::Decodificar(const SitioColumna& sitio, const Lector& bytes, Celda& celda) {
    switch (static_cast<Tipo>(sitio.tipo)) {
    case Tipo::Byte:
        celda = std::int64_t{bytes.U8(0)};
        break;
    case Tipo::Entero:
        celda = std::int64_t{static_cast<std::int16_t>(bytes.U16(0))};
        break;
    case Tipo::Largo:
        celda = std::int64_t{static_cast<std::int32_t>(bytes.U32(0))};
        break;
    case Tipo::Moneda:
        EscribirMoneda(bytes, Para<std::string>(celda));
        break;
    case Tipo::Simple:
        celda = double{bytes.Simple(0)};
        break;
    case Tipo::Doble:
        celda = bytes.Doble(0);
        break;
    case Tipo::FechaHora:
        celda = LeerMomento(bytes);
        break;
    case Tipo::Texto:
        m_textos.Decodificar(bytes.Todo(), Para<std::string>(celda));
        break;
    case Tipo::Ole:
        Copiar(m_largos.Leer(bytes, m_vuelta, m_hueco), celda);
        break;
    case Tipo::Memo:
        m_textos.Decodificar(m_largos.Leer(bytes, m_vuelta, m_hueco), Para<std::string>(celda));
        break;
    case Tipo::Guid:
        EscribirGuid(bytes, Para<std::string>(celda));
        break;
    case Tipo::Decimal:
        EscribirDecimal(bytes, sitio.escala, Para<std::string>(celda));
        break;
    case Tipo::SiNo:
    case Tipo::Binario:
    case Tipo::Otro:
    default:
        Copiar(bytes.Todo(), celda);
    }
}

} // namespace pastorix::access
