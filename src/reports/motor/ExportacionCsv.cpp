#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Exportacion.h"

#include <QDir>
#include <QSaveFile>

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
        const Valor valor = CeldaExportada(fila[c], hoja.columnas[c]);
        const auto* fecha = std::get_if<Fecha>(&valor);
        linea += (c ? ";" : "") + Campo(fecha ? FormatoFecha(*fecha, "dd/mm/yyyy") : TextoDe(valor),
                                        std::holds_alternative<std::string>(valor));
    }
    return linea + "\r\n";
}

void GuardarHoja(const HojaDatos& hoja, const QString& fichero) {
    QSaveFile salida(fichero);
    bool bien = salida.open(QIODevice::WriteOnly);
    std::string cabeza = "\xEF\xBB\xBF";
    for (std::size_t c = 0; c < hoja.columnas.size(); ++c)
        cabeza += (c ? ";" : "") + Campo(hoja.columnas[c].titulo.toStdString(), true);
    cabeza += "\r\n";
    bien = bien && salida.write(cabeza.data(), static_cast<qint64>(cabeza.size())) >= 0;
    for (std::size_t f = 0; bien && f < hoja.filas.size(); ++f) {
        const std::string linea = Fila(hoja, hoja.filas[f]);
        bien = salida.write(linea.data(), static_cast<qint64>(linea.size())) >= 0;
    }
    if (!bien || !salida.commit())
        throw ErrorInforme(CodigoInforme::Escritura, "No se puede escribir el fichero " +
                                                         fichero.toStdString() + " (" +
                                                         salida.errorString().toStdString() + ")");
}

} // namespace

QStringList GuardarCsv(const InformeTerminado& informe, const QString& carpeta) {
    if (!QDir().mkpath(carpeta))
        throw ErrorInforme(CodigoInforme::Escritura, "No se puede crear la carpeta " + carpeta.toStdString());
    const QStringList nombres = NombresDeHojas(informe.hojas);
    QStringList ficheros;
    for (std::size_t i = 0; i < informe.hojas.size(); ++i) {
        ficheros << QDir(carpeta).filePath(nombres.at(static_cast<qsizetype>(i)) + QStringLiteral(".csv"));
        GuardarHoja(informe.hojas[i], ficheros.back());
    }
    return ficheros;
}

} // namespace pastorix
