#include "Ayudas.h"

#include <QDate>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <QTime>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>

namespace pastorix::access::ayudas {

namespace {

std::string MostrarMomento(const Momento& m) {
    constexpr qint64 dia0 = 2415019; // Julian day of 1899-12-30
    const qint64 segundos = (m.milisegundo + 500) / 1000;
    const QDate fecha = QDate::fromJulianDay(dia0 + m.dia + segundos / 86400);
    return (fecha.toString(u"yyyy-MM-dd ") + QTime(0, 0).addSecs(int(segundos % 86400)).toString(u"hh:mm:ss"))
        .toStdString();
}

std::string MostrarDoble(double d) {
    char texto[40];
    std::snprintf(texto, sizeof texto, "%.16g", d);
    return texto;
}

template <class... F>
struct Segun : F... {
    using F::operator()...;
};
template <class... F>
Segun(F...) -> Segun<F...>;

} // namespace

std::string Mostrar(const Celda& celda) {
    return std::visit(
        Segun{[](std::monostate) { return std::string("@"); },
              [](bool b) { return std::string(b ? "1" : "0"); },
              [](std::int64_t n) { return std::to_string(n); }, [](double d) { return MostrarDoble(d); },
              [](const Momento& m) { return MostrarMomento(m); }, [](const std::string& s) { return s; },
              [](const Bytes& b) {
                  return QByteArray(reinterpret_cast<const char*>(b.data()), qsizetype(b.size()))
                      .toHex()
                      .toStdString();
              }},
        celda);
}

const Tabla& TablaDe(const BaseAccess& base, const std::string& nombre) {
    const auto& tablas = base.Tablas();
    const auto tabla =
        std::find_if(tablas.begin(), tablas.end(), [&](const Tabla& t) { return t.nombre == nombre; });
    if (tabla == tablas.end())
        throw std::runtime_error("no table " + nombre);
    return *tabla;
}

FilasMostradas Filas(const BaseAccess& base, const std::string& tabla) {
    FilasMostradas filas;
    base.Recorrer(TablaDe(base, tabla), [&filas](std::span<const Celda> celdas) {
        auto& fila = filas.emplace_back();
        std::transform(celdas.begin(), celdas.end(), std::back_inserter(fila), Mostrar);
    });
    return filas;
}

Bytes LeerBytes(const std::string& fichero) {
    std::ifstream entrada(fichero, std::ios::binary);
    if (!entrada)
        throw std::runtime_error("cannot read " + fichero);
    return {std::istreambuf_iterator<char>(entrada), {}};
}

std::uint64_t LeerTodo(const BaseAccess& base) {
    std::uint64_t filas = 0;
    for (const Tabla& tabla : base.Tablas())
        filas += base.Recorrer(tabla, [](std::span<const Celda>) {});
    return filas;
}

bool HayExport() {
    return !QStandardPaths::findExecutable(QStringLiteral("mdb-export")).isEmpty();
}

std::string CompararConExport(const std::string& fichero) {
    const BaseAccess base = BaseAccess::Abrir(fichero);
    for (const Tabla& tabla : base.Tablas()) {
        QProcess proceso;
        // Delimiters that no text of the files holds.
        proceso.start(QStringLiteral("mdb-export"),
                      {"-H", "-Q", "-d", "\x01", "-R", "\x02", "-0", "@", "-b", "hex", "-D",
                       "%Y-%m-%d %H:%M:%S", "-T", "%Y-%m-%d %H:%M:%S", QString::fromStdString(fichero),
                       QString::fromStdString(tabla.nombre)});
        if (!proceso.waitForFinished() || proceso.exitCode() != 0)
            return tabla.nombre + ": mdb-export fails";
        std::vector<std::string> nuestras, suyas;
        for (const auto& fila : Filas(base, tabla.nombre)) {
            std::string& junta = nuestras.emplace_back();
            for (std::size_t i = 0; i < fila.size(); ++i)
                junta += (i ? "\x01" : "") + (fila[i].empty() ? "@" : fila[i]);
        }
        for (const QByteArray& fila : proceso.readAllStandardOutput().split('\x02'))
            suyas.push_back(fila.toStdString());
        suyas.pop_back(); // behind the last delimiter
        std::sort(nuestras.begin(), nuestras.end());
        std::sort(suyas.begin(), suyas.end());
        const auto [a, b] = std::mismatch(nuestras.begin(), nuestras.end(), suyas.begin(), suyas.end());
        if (a != nuestras.end() || b != suyas.end())
            return tabla.nombre + ": ours " + (a == nuestras.end() ? "-" : *a) + "\ntheirs " +
                   (b == suyas.end() ? "-" : *b);
    }
    return {};
}

} // namespace pastorix::access::ayudas
