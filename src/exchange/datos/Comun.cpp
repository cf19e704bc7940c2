#include "exchange/datos/Comun.h"

#include "store/Esquema.h"
#include "store/Ficheros.h"
#include "store/Literales.h"
#include "store/Textos.h"

namespace pastorix {

namespace fs = std::filesystem;

std::string Cadena(std::string_view cabeza, std::string_view nexo, const std::vector<double>& ids) {
    if (ids.empty())
        throw ErrorDeIntercambio("No hay ganaderos");
    std::string sentencia(cabeza);
    for (std::size_t i = 0; i < ids.size(); ++i)
        sentencia.append(i ? nexo : std::string_view()).append(NumeroSql(ids[i]));
    return sentencia;
}

std::vector<double> Numeros(Conexion& conexion, std::string_view consulta, std::string_view columna) {
    std::vector<double> numeros;
    Recordset rs(conexion, consulta, Cursor::Keyset, Bloqueo::SoloLectura);
    for (; !rs.Eof(); rs.Siguiente())
        if (const auto campo = rs[columna]; !campo.Nulo())
            numeros.push_back(campo.Numero());
    return numeros;
}

Recordset FilaCopiada(Recordset& origen, Conexion& destino, std::string_view consulta) {
    auto nueva = Recordset::ParaAñadir(destino, consulta);
    nueva.AddNew();
    for (int i = 0; i < nueva.Campos() && i < origen.Campos(); ++i)
        if (IgualSinCaso(nueva.NombreCampo(i),
                         origen.NombreCampo(i))) // columns of one file only lie behind the others
            nueva[i].Reponer(origen[i].Leer());
    return nueva;
}

std::string Algunos(const std::vector<std::string>& lista, std::size_t maximo) {
    std::string t;
    for (std::size_t i = 0; i < lista.size() && i < maximo; ++i)
        t += (i ? ", " : "") + lista[i];
    return lista.size() > maximo ? t + " y " + std::to_string(lista.size() - maximo) + " más" : t;
}

bool MismoFichero(const fs::path& a, const fs::path& b) {
    std::error_code error;
    return fs::equivalent(a, b, error) && !error;
}

void ExigirNombreDeFichero(std::string_view nombre) {
    if (nombre.empty() || nombre.find_first_of("/\\:*?\"<>|") != std::string_view::npos ||
        nombre.find_first_not_of('.') == std::string_view::npos || nombre.front() == ' ' ||
        nombre.back() == ' ')
        throw ErrorDeIntercambio("El usuario no sirve como nombre de fichero: " + std::string(nombre));
}

Conexion AbrirParaLeer(const fs::path& fichero) {
    OpcionesApertura opciones;
    opciones.soloLectura = true;
    Conexion conexion;
    conexion.AbrirFichero(TextoDeRuta(fichero), kClave, opciones);
    return conexion;
}

Conexion AbrirDeTrabajo(const fs::path& fichero) {
    OpcionesApertura opciones;
    opciones.desechable = true;
    opciones.guardarOriginal = false;
    Conexion conexion;
    conexion.AbrirFichero(TextoDeRuta(fichero), kClave, opciones);
    return conexion;
}

} // namespace pastorix
