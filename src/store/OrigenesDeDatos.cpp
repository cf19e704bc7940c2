#include "store/OrigenesDeDatos.h"

#include "store/Errores.h"
#include "store/Textos.h"

namespace pastorix {

namespace {

// Walks "KEY=value" pairs separated by a character; keys in capitals.
template <typename F>
void CadaPar(std::string_view lista, char separador, F&& f) {
    while (!lista.empty()) {
        const auto fin = lista.find(separador);
        const auto par = lista.substr(0, fin);
        lista = fin == std::string_view::npos ? std::string_view{} : lista.substr(fin + 1);
        const auto igual = par.find('=');
        if (igual != std::string_view::npos)
            f(Mayusculas(par.substr(0, igual)), std::string(par.substr(igual + 1)));
    }
}

} // namespace

bool OrigenesDeDatos::Declarar(std::string_view atributos) {
    OrigenDeDatos origen;
    bool controlador = false;
    CadaPar(atributos, '\0', [&](const std::string& clave, std::string valor) {
        if (clave == "DSN")
            origen.nombre = std::move(valor);
        else if (clave == "DBQ")
            origen.fichero = std::move(valor);
        else if (clave == "PWD")
            origen.clave = std::move(valor);
        else if (clave == "FIL")
            controlador = valor == "MS Access";
    });
    if (!controlador || origen.nombre.empty() || origen.fichero.empty())
        return false;
    m_origenes.insert_or_assign(Mayusculas(origen.nombre), std::move(origen));
    return true;
}

const OrigenDeDatos* OrigenesDeDatos::Buscar(std::string_view nombre) const {
    const auto it = m_origenes.find(Mayusculas(nombre));
    return it == m_origenes.end() ? nullptr : &it->second;
}

OrigenDeDatos OrigenesDeDatos::Resolver(std::string_view cadena) const {
    std::string nombre;
    std::string fichero;
    if (const auto comilla = cadena.find('"'); comilla != std::string_view::npos) {
        cadena.remove_prefix(comilla + 1);
        cadena = cadena.substr(0, cadena.rfind('"'));
    }
    // A path may hold a semicolon; in the long string a blank stands before the one that ends it.
    if (const auto dbq = Mayusculas(cadena).find(";DBQ="); dbq != std::string::npos)
        if (const auto fin = cadena.find(" ;", dbq + 5); fin != std::string_view::npos) {
            fichero = cadena.substr(dbq + 5, fin - dbq - 5);
            cadena = cadena.substr(0, dbq);
        }
    CadaPar(cadena, ';', [&](const std::string& clave, std::string valor) {
        if (clave == "DSN")
            nombre = std::move(valor);
        else if (clave == "DBQ")
            fichero = std::move(valor);
    });
    const auto* origen = Buscar(nombre);
    if (!origen)
        throw ErrorAlmacen(CodigoError::NoSePuedeAbrir, "El origen de datos no está declarado: " + nombre);
    auto resuelto = *origen;
    if (!fichero.empty())
        resuelto.fichero = std::move(fichero);
    return resuelto;
}

std::string CadenaDeConexion(std::string_view nombre, std::string_view fichero, std::string_view clave) {
    std::string cadena = "Provider=MSDASQL.1;Password=";
    cadena.append(clave).append(";Connect Timeout=15;Extended Properties=\"DSN=").append(nombre);
    cadena.append(";DBQ=").append(fichero).append(
        " ;DriverId=25;FIL=MS Access;MaxBufferSize=2048;PageTimeout=5;PWD=");
    return cadena.append(clave).append(";\"");
}

std::string AtributosDeOrigen(std::string_view nombre, std::string_view fichero, std::string_view clave) {
    std::string lista;
    const auto par = [&](std::string_view k, std::string_view v) {
        lista.append(k).append("=").append(v).push_back('\0');
    };
    par("Description", "PASTORIX");
    par("DSN", nombre);
    par("FIL", "MS Access");
    par("DBQ", fichero);
    par("UID", "");
    par("PWD", clave);
    return lista;
}

} // namespace pastorix
