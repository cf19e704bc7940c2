#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

// Whole files: copied and replaced so that at every moment either the old or the new one is there, complete. Failures are
// ErrorAlmacen(DiscoOFichero) with the path in the text. Paths are UTF-8.
namespace pastorix {

// The folder that a file lies in; the current one for a bare name.
std::filesystem::path CarpetaDe(const std::filesystem::path& fichero);

// Why the system refused ("no hay permiso"), and the same for the end of a sentence: " (no hay permiso)"; "" for what users would not
// understand.
std::string CausaDelSistema(std::error_code error);
std::string Motivo(std::error_code error);
// "No se puede copiar: <path> (el disco está lleno)"; the system's own words go into the detail.
[[noreturn]] void FallarFichero(const std::string& que, const std::filesystem::path& ruta,
                                std::error_code error);

std::filesystem::path Ruta(std::string_view utf8);
std::string TextoDeRuta(const std::filesystem::path& ruta);

// Writes what the file holds through to the disk, and the entry of a folder.
void SincronizarFichero(const std::filesystem::path& fichero);
void SincronizarCarpeta(const std::filesystem::path& carpeta);

// Puts `nuevo` in the place of `fichero` by rename; both lie in one folder.
void PonerEnSuSitio(const std::filesystem::path& nuevo, const std::filesystem::path& fichero);

// Copies over a temporary name in the target's folder; a copy that breaks leaves the old target.
void CopiarFichero(const std::filesystem::path& origen, const std::filesystem::path& destino);

// The journals that SQLite leaves beside a database when the program dies: what is in them is part of it.
inline constexpr const char* kDiarios[] = {"-journal", "-wal"};

// Copies a database with its journals, which is what another process would open. Nobody may be writing to it.
void CopiarConDiarios(const std::filesystem::path& origen, const std::filesystem::path& destino);

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

// A folder of its own among the system's temporary ones, gone with what is in it when it is done with.
class CarpetaTemporal {
public:
    CarpetaTemporal();
    ~CarpetaTemporal();
    CarpetaTemporal(const CarpetaTemporal&) = delete;
    CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;
    std::filesystem::path En(const std::filesystem::path& nombre) const { return m_carpeta / nombre; }

private:
    std::filesystem::path m_carpeta;
};

// Removes from a folder what a killed process has left under such names. Nobody else may be at work there.
void LimpiarTemporales(const std::filesystem::path& carpeta);

// The entry of a folder with that name, found without regard to case; the name as given when there is none.
std::filesystem::path EntradaSinCaso(const std::filesystem::path& carpeta, std::string_view nombre);

} // namespace pastorix
