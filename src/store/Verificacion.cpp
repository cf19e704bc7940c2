#include "store/Verificacion.h"

#include "store/Apertura.h"
#include "store/Catalogo.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"
#include "store/Integridad.h"

#include <algorithm>
#include <iterator>

namespace pastorix {

namespace fs = std::filesystem;

namespace {

bool TieneDiarios(const fs::path& fichero) {
    return std::any_of(std::begin(kDiarios), std::end(kDiarios), [&](const char* cola) {
        std::error_code error;
        const auto bytes = fs::file_size(fs::path(fichero) += cola, error);
        return !error && bytes > 0;
    });
}

std::vector<std::string> Faltas(const std::string& fichero, std::string_view clave, bool esCopia) {
    OpcionesApertura opciones;
    opciones.trabajo = false;
    opciones.desconfiada = true;
    opciones.soloLectura = !esCopia; // in a copy SQLite may undo what the crash left half done
    DatosDeApertura datos;
    std::vector<std::string> faltas;
    try {
        const auto base = AbrirBase(fichero, clave, opciones, datos);
        if (const auto daños = BuscarDaños(base.get(), true); daños.Hay())
            faltas.push_back(daños.Texto());
        const auto d = CompararEsquema(Catalogo::DeBase(base.get()), LeerSello(base.get(), clave).clase);
        for (const auto& c : d.columnasAusentes)
            faltas.push_back("Falta la columna " + c);
        if (d.otroOrden && d.columnasAusentes.empty())
            faltas.push_back("Las tablas no están en el orden del programa");
    } catch (const ErrorAlmacen& e) {
        faltas.push_back(e.what());
    }
    return faltas;
}

} // namespace

std::vector<std::string> VerificarBase(const std::string& fichero, std::string_view clave) {
    if (!TieneDiarios(Ruta(fichero)))
        return Faltas(fichero, clave, false);
    try {
        const CarpetaTemporal carpeta;
        const auto copia = carpeta.En(Ruta(fichero).filename());
        CopiarConDiarios(Ruta(fichero), copia);
        auto faltas = Faltas(TextoDeRuta(copia), clave, true);
        for (auto& falta : faltas)
            if (const auto i = falta.find(TextoDeRuta(copia)); i != std::string::npos)
                falta.replace(i, TextoDeRuta(copia).size(), fichero);
        return faltas;
    } catch (const ErrorAlmacen& e) {
        return {e.what()};
    }
}

} // namespace pastorix
