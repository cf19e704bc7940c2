#include "store/Ficheros.h"

#include "store/Errores.h"
#include "store/Textos.h"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <fstream>
#include <system_error>

// The one place with calls of the operating system: nothing else in the program tells systems apart.
#ifdef _WIN32
#include <io.h>
#include <stdio.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace pastorix {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Fallar(const std::string& que, const fs::path& ruta, const std::string& porque) {
    throw ErrorAlmacen(CodigoError::DiscoOFichero, que + ": " + TextoDeRuta(ruta) + " (" + porque + ")");
}

std::string Motivo(int error) {
    switch (error) {
    case ENOSPC:
        return "el disco está lleno";
    case EACCES:
    case EPERM:
        return "no hay permiso";
    case EROFS:
        return "la carpeta es de solo lectura";
    case ENOENT:
        return "no existe";
    default:
        return std::strerror(error);
    }
}

#ifndef _WIN32
void Sincronizar(const fs::path& ruta, int modo) {
    const int d = ::open(ruta.c_str(), modo | O_CLOEXEC);
    if (d < 0)
        Fallar("No se puede abrir", ruta, Motivo(errno));
    const int r = ::fsync(d);
    const int error = errno;
    ::close(d);
    if (r != 0 && error != EINVAL) // some file systems cannot sync a folder
        Fallar("No se puede escribir", ruta, Motivo(error));
}
#endif

} // namespace

fs::path Ruta(std::string_view utf8) {
    return fs::path(std::u8string(reinterpret_cast<const char8_t*>(utf8.data()), utf8.size()));
}

std::string TextoDeRuta(const fs::path& ruta) {
    const auto u8 = ruta.u8string();
    return {reinterpret_cast<const char*>(u8.data()), u8.size()};
}

#ifdef _WIN32
void SincronizarFichero(const fs::path& fichero) {
    if (FILE* f = _wfopen(fichero.c_str(), L"r+b")) {
        _commit(_fileno(f));
        fclose(f);
    }
}
void SincronizarCarpeta(const fs::path&) {} // the file system's own journal sees to it
#else
void SincronizarFichero(const fs::path& fichero) {
    Sincronizar(fichero, O_RDONLY);
}
void SincronizarCarpeta(const fs::path& carpeta) {
    Sincronizar(carpeta, O_RDONLY | O_DIRECTORY);
}
#endif

void PonerEnSuSitio(const fs::path& nuevo, const fs::path& fichero) {
    std::error_code error;
    fs::rename(nuevo, fichero, error);
    if (error)
        Fallar("No se puede reemplazar", fichero, Motivo(error.value()));
    SincronizarCarpeta(fichero.parent_path());
}

void CopiarFichero(const fs::path& origen, const fs::path& destino) {
    const FicheroTemporal temporal(NombreTemporal(destino));
    std::error_code error;
    fs::copy_file(origen, temporal.Nombre(), fs::copy_options::overwrite_existing, error);
    if (error)
        Fallar("No se puede copiar", origen, Motivo(error.value()));
    SincronizarFichero(temporal.Nombre());
    PonerEnSuSitio(temporal.Nombre(), destino);
}

fs::path NombreTemporal(const fs::path& fichero) {
    const auto ahora = std::chrono::steady_clock::now().time_since_epoch().count();
    fs::path t = fichero;
    t += "." + std::to_string(ahora % 1000000007) + ".tmp";
    return t;
}

FicheroTemporal::FicheroTemporal(fs::path ruta)
    : m_ruta(std::move(ruta)) {}

FicheroTemporal::~FicheroTemporal() {
    std::error_code error;
    for (const char* cola : {"", "-journal"}) {
        fs::path p = m_ruta;
        p += cola;
        fs::remove(p, error);
    }
}

fs::path EntradaSinCaso(const fs::path& carpeta, std::string_view nombre) {
    fs::path exacta = carpeta / Ruta(nombre);
    std::error_code error;
    if (fs::exists(exacta, error))
        return exacta;
    for (fs::directory_iterator it(carpeta, error), fin; !error && it != fin; it.increment(error))
        if (IgualSinCaso(TextoDeRuta(it->path().filename()), nombre))
            return it->path();
    return exacta;
}

} // namespace pastorix
