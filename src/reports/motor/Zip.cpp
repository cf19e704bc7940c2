#include "reports/motor/Zip.h"

#include <QtEndian>

#include <zlib.h>

namespace pastorix {

namespace {

// A member comes out a thousand times as long at the most; more is a damaged directory.
constexpr quint32 EstiramientoMaximo = 1100;

// Reads numbers anywhere in the file; what lies outside of it is 0 and remembered.
class Lector {
public:
    explicit Lector(const QByteArray& bytes)
        : m_bytes(bytes) {}
    quint32 U16(qsizetype i) { return Cabe(i, 2) ? qFromLittleEndian<quint16>(m_bytes.constData() + i) : 0; }
    quint32 U32(qsizetype i) { return Cabe(i, 4) ? qFromLittleEndian<quint32>(m_bytes.constData() + i) : 0; }
    QByteArray Trozo(qsizetype i, qsizetype n) { return Cabe(i, n) ? m_bytes.mid(i, n) : QByteArray(); }
    bool Bien() const { return m_bien; }

private:
    bool Cabe(qsizetype i, qsizetype n) {
        m_bien = m_bien && i >= 0 && n >= 0 && n <= m_bytes.size() && i <= m_bytes.size() - n;
        return m_bien;
    }
    const QByteArray& m_bytes;
    bool m_bien = true;
};

// The bytes unpacked to exactly so many; nothing when they are not.
std::optional<QByteArray> Desinflar(QByteArray comprimido, quint32 largo) {
    if (largo / EstiramientoMaximo > static_cast<quint64>(comprimido.size()))
        return std::nullopt;
    QByteArray salida(static_cast<qsizetype>(largo), '\0');
    z_stream z{};
    z.next_in = reinterpret_cast<Bytef*>(comprimido.data());
    z.avail_in = static_cast<uInt>(comprimido.size());
    z.next_out = reinterpret_cast<Bytef*>(salida.data());
    z.avail_out = largo;
    if (inflateInit2(&z, -MAX_WBITS) != Z_OK)
        return std::nullopt;
    inflate(&z, Z_FINISH);
    inflateEnd(&z);
    return z.total_out == largo ? std::optional(salida) : std::nullopt;
}

} // namespace

std::optional<std::map<QByteArray, QByteArray>> PartesDelZip(const QByteArray& zip) {
    Lector lector(zip);
    const qsizetype fin = zip.lastIndexOf("PK\x05\x06");
    if (fin < 0)
        return std::nullopt;
    qsizetype entrada = lector.U32(fin + 16);
    std::map<QByteArray, QByteArray> partes;
    for (quint32 n = lector.U16(fin + 10); n > 0; --n) {
        const quint32 guardado = lector.U32(entrada + 20);
        const quint32 largo = lector.U32(entrada + 24);
        const qsizetype local = lector.U32(entrada + 42);
        const auto bytes =
            lector.Trozo(local + 30 + lector.U16(local + 26) + lector.U16(local + 28), guardado);
        const auto nombre = lector.Trozo(entrada + 46, lector.U16(entrada + 28));
        const bool comprimido = lector.U16(entrada + 10) == Z_DEFLATED;
        if (!lector.Bien())
            return std::nullopt;
        const auto parte = comprimido ? Desinflar(bytes, largo) : std::optional(bytes);
        if (!parte || crc32(0, reinterpret_cast<const Bytef*>(parte->constData()),
                            static_cast<uInt>(parte->size())) != lector.U32(entrada + 16))
            return std::nullopt;
        partes.emplace(nombre, *parte);
        entrada += 46 + lector.U16(entrada + 28) + lector.U16(entrada + 30) + lector.U16(entrada + 32);
    }
    return lector.Bien() ? std::optional(std::move(partes)) : std::nullopt;
}

} // namespace pastorix
