#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// Whole files: copied and replaced so that at every moment either the old or the new one is there, complete. Failures are
// ErrorAlmacen(DiscoOFichero) with the path in the text. Paths are UTF-8.
namespace pastorix {

std::filesystem::path Ruta(std::string_view utf8);
std::string TextoDeRuta(const std::filesystem::path& ruta);

// Writes what the file holds through to the disk, and the entry of a folder.
void SincronizarFichero(const std::filesystem::path& fichero);
void SincronizarCarpeta(const std::filesystem::path& carpeta);

// Puts `nuevo` in the place of `fichero` by rename; both lie in one folder.
void PonerEnSuSitio(const std::filesystem::path& nuevo, const std::filesystem::path& fichero);

// Copies over a temporary name in the target's folder; a copy that breaks leaves the old target.
void CopiarFichero(const std::filesystem::path& origen, const std::filesystem::path& destino);

// A temporary name beside a file, and the removal of what is left under it (database journals too).
std::filesystem::path NombreTemporal(const std::filesystem::path& fichero);
class FicheroTemporal {
public:
    explicit FicheroTemporal(std::filesystem::path ruta);
    ~FicheroTemporal();
    FicheroTemporal(const FicheroTemporal&) = delete;
    FicheroTemporal& operator=(const FicheroTemporal&) = delete;
    const std::filesystem::path& Nombre() const { return m_ruta; }

private:
    std::filesystem::path m_ruta;
};

// The entry of a folder with that name, found without regard to case; the name as given when there is none.
std::filesystem::path EntradaSinCaso(const std::filesystem::path& carpeta, std::string_view nombre);

} // namespace pastorix
