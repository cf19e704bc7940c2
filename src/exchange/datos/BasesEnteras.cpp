#include "exchange/datos/BasesEnteras.h"

#include "store/Esquema.h"
#include "store/Ficheros.h"

namespace pastorix {

namespace fs = std::filesystem;

void EnviarBase(const fs::path& base, const fs::path& destino, const Progreso& progreso) {
    auto origen = AbrirParaLeer(base);
    CopiarBase(origen, destino, [&](int hecho, int total) { progreso(total > 0 ? 100 * hecho / total : 0); });
}

fs::path PonerBase(const fs::path& base, const fs::path& nueva, const LugarDeCopia& copia) {
    std::error_code error;
    if (!fs::exists(base, error)) {
        CopiarConDiarios(nueva, base);
        return {};
    }
    auto estado = BaseAnterior::Sana;
    try {
        OpcionesApertura opciones;
        opciones.carpetaBackup = TextoDeRuta(copia.carpeta);
        Conexion conexion;
        conexion.AbrirFichero(TextoDeRuta(base), kClave, opciones);
    } catch (const ErrorAlmacen& e) {
        if (e.Codigo() != CodigoError::NoSePuedeAbrir)
            throw;
        estado = BaseAnterior::Averiada;
    }
    return ReemplazarBase(base, nueva, copia, estado);
}

Compactacion Compactar(const fs::path& base, const LugarDeCopia& copia) {
    const auto medir = [&] {
        std::error_code error;
        const auto bytes = fs::file_size(base, error);
        if (error)
            FallarFichero("No se puede leer", base, error);
        return bytes;
    };
    Compactacion r{medir(), 0};
    CompactarEnSuSitio(base, copia);
    r.despues = medir();
    return r;
}

} // namespace pastorix
