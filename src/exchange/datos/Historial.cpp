#include "exchange/datos/Historial.h"

#include "store/Copias.h"
#include "store/Ficheros.h"
#include "store/Recordset.h"

#include <algorithm>
#include <fstream>

namespace pastorix {

namespace fs = std::filesystem;

namespace {

// So many characters of a UTF-8 text.
std::string Recortado(std::string_view texto, std::size_t caracteres) {
    std::size_t vistos = 0;
    for (std::size_t i = 0; i < texto.size(); ++i)
        if ((static_cast<unsigned char>(texto[i]) & 0xC0) != 0x80 && vistos++ == caracteres)
            return std::string(texto.substr(0, i));
    return std::string(texto);
}

fs::path NombreLibre(const fs::path& carpeta, Fecha momento) {
    const auto raiz = "Historial_" + FormatoFecha(momento, "ddmmyyyy_hhnnss");
    std::error_code error;
    for (int i = 1;; ++i) {
        auto nombre = carpeta / (raiz + (i == 1 ? "" : "_" + std::to_string(i)) + ".txt");
        if (!fs::exists(nombre, error))
            return nombre;
    }
}

void EscribirTexto(const fs::path& fichero, const std::string& texto) {
    const FicheroTemporal temporal(NombreTemporal(fichero));
    {
        std::ofstream f(temporal.Nombre(), std::ios::binary);
        f << texto;
        f.close();
        if (!f)
            FallarFichero("No se puede escribir", fichero, std::make_error_code(std::errc::io_error));
    }
    SincronizarFichero(temporal.Nombre());
    PonerEnSuSitio(temporal.Nombre(), fichero);
}

template <typename F>
void PorFichero(const fs::path& carpeta, F&& hacer) {
    std::error_code error;
    std::vector<fs::path> ficheros;
    for (fs::directory_iterator it(carpeta, error), fin; !error && it != fin; it.increment(error))
        if (std::error_code aparte; it->is_regular_file(aparte))
            ficheros.push_back(it->path());
    for (const auto& f : ficheros)
        hacer(f);
}

} // namespace

void EscribirHistorial(Conexion& conexion, const std::string& usuario, Fecha momento,
                       std::string_view operacion, std::string_view /*resultado*/) {
    auto rs = Recordset::ParaAñadir(conexion, "Select * FROM Historial");
    rs.AddNew();
    rs["Equipo"] = Recortado(usuario.empty() ? "VETERINARIO" : usuario, 50);
    rs["Fecha"] = momento;
    rs["Operacion"] = Recortado(operacion, 100);
    rs.Update();
}

std::vector<Transaccion> LeerHistorial(Conexion& conexion) {
    std::vector<Transaccion> filas;
    Recordset rs(conexion, "Select * FROM Historial ORDER BY Fecha DESC", Cursor::Keyset,
                 Bloqueo::SoloLectura);
    for (; !rs.Eof(); rs.Siguiente())
        filas.push_back({rs["Equipo"].Texto(), rs["Fecha"].FechaValor(), rs["Operacion"].Texto()});
    return filas;
}

fs::path VaciarHistorial(Conexion& conexion, const fs::path& carpeta, Fecha momento) {
    const auto filas = LeerHistorial(conexion);
    if (filas.empty())
        return {};
    std::string texto = "Equipo\tFecha\tHora\tOperación\r\n";
    for (const auto& f : filas)
        texto += f.equipo + "\t" +
                 (f.fecha ? FormatoFecha(*f.fecha, "dd/mm/yyyy") + "\t" + FormatoFecha(*f.fecha, "hh:nn:ss")
                          : std::string("\t")) +
                 "\t" + f.operacion + "\r\n";
    std::error_code error;
    fs::create_directories(carpeta, error);
    auto fichero = NombreLibre(carpeta, momento);
    EscribirTexto(fichero, texto);
    conexion.Execute("DELETE FROM Historial");
    return fichero;
}

ContenidoDeCopias MirarCopias(const fs::path& carpeta) {
    ContenidoDeCopias c;
    PorFichero(carpeta, [&](const fs::path& f) {
        ++c.ficheros;
        std::error_code error;
        if (const auto bytes = fs::file_size(f, error); !error)
            c.bytes += bytes;
    });
    for (const char* base : {"BD_PradalC.mdb", "BD_PradalP.mdb", "Toros.mdb"})
        if (const auto copias = BuscarCopias(carpeta, base);
            !copias.empty() && (!c.masNueva || copias.front().momento > *c.masNueva))
            c.masNueva = copias.front().momento;
    return c;
}

void BorrarCopias(const fs::path& carpeta) {
    PorFichero(carpeta, [](const fs::path& f) {
        std::error_code error;
        fs::remove(f, error);
        if (error)
            FallarFichero("No se puede borrar", f, error);
    });
}

} // namespace pastorix
