#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Escritura.h"
#include "reports/motor/Exportacion.h"

#include <QDir>

namespace pastorix {

namespace {

// A field between quotes where it must be. A text that a spreadsheet would run as a formula gets an apostrophe before it: the
// names in it were typed by others than those who open the file.
std::string Campo(std::string texto, bool escrito) {
    if (escrito && texto.size() > 1 &&
        std::string_view("=+-@\t\r").find(texto.front()) != std::string_view::npos)
        texto.insert(texto.begin(), '\'');
    if (texto.find_first_of(";\"\r\n") == std::string::npos)
        return texto;
    std::string entreComillas = "\"";
    for (const char c : texto)
        entreComillas += c == '"' ? std::string("\"\"") : std::string(1, c);
    return entreComillas + '"';
}

std::string Fila(const HojaDatos& hoja, const std::vector<Valor>& fila) {
    std::string linea;
    for (std::size_t c = 0; c < hoja.columnas.size(); ++c) {
        const Valor& valor = fila[c];
        const auto* fecha = std::get_if<Fecha>(&valor);
        linea += (c ? ";" : "") + Campo(fecha ? FormatoFecha(*fecha, "dd/mm/yyyy") : TextoDe(valor),
                                        std::holds_alternative<std::string>(valor));
    }
    return linea + "\r\n";
}

QByteArray TextoDeHoja(const HojaDatos& hoja) {
    std::string texto = "\xEF\xBB\xBF";
    for (std::size_t c = 0; c < hoja.columnas.size(); ++c)
        texto += (c ? ";" : "") + Campo(hoja.columnas[c].titulo.toStdString(), true);
    texto += "\r\n";
    for (const auto& fila : hoja.filas)
        texto += Fila(hoja, fila);
    return QByteArray::fromStdString(texto);
}

} // namespace

QStringList GuardarCsv(const InformeTerminado& informe, const QString& carpeta) {
    const bool nueva = !QDir(carpeta).exists();
    if (!QDir().mkpath(carpeta))
        throw ErrorInforme(CodigoInforme::Escritura, "No se puede crear la carpeta " + carpeta.toStdString());
    const QStringList nombres = NombresDeHojas(informe.hojas);
    std::vector<FicheroEntero> ficheros;
    QStringList escritos;
    for (std::size_t i = 0; i < informe.hojas.size(); ++i) {
        escritos << QDir(carpeta).filePath(nombres.at(static_cast<qsizetype>(i)) + QStringLiteral(".csv"));
        ficheros.push_back({escritos.back(), TextoDeHoja(informe.hojas[i])});
    }
    try {
        EscribirFicheros(ficheros);
    } catch (const ErrorInforme&) {
        if (nueva)
            QDir().rmdir(carpeta);
        throw;
    }
    return escritos;
}

} // namespace pastorix
