#include "access/Catalogo.h"

#include "access/Definicion.h"
#include "access/Recorrido.h"

#include <algorithm>
#include <array>
#include <set>

namespace pastorix::access {

namespace {

constexpr std::uint32_t paginaCatalogo = 2;
constexpr std::int64_t tablaDelFichero = 1;
constexpr std::uint32_t tablaDelSistema = 0x80000002;

enum Campo : std::size_t { Id, Nombre, Clase, Marcas, Campos };

// Leaves only the four columns that are needed: damage in the others (properties of an object, for one) must not hide a table.
void SoloLosCampos(Definicion& definicion) {
    struct Esperado {
        const char* nombre;
        Tipo tipo;
    };
    constexpr std::array<Esperado, Campos> esperados{
        {{"Id", Tipo::Largo}, {"Name", Tipo::Texto}, {"Type", Tipo::Entero}, {"Flags", Tipo::Largo}}};
    std::vector<SitioColumna> sitios;
    for (const Esperado& esperado : esperados) {
        std::size_t i = 0;
        while (i < definicion.columnas.size() && definicion.columnas[i].nombre != esperado.nombre)
            ++i;
        if (i == definicion.columnas.size() || definicion.columnas[i].tipo != esperado.tipo)
            Dañar("el catálogo no tiene la columna " + std::string(esperado.nombre), paginaCatalogo);
        sitios.push_back(definicion.sitios[i]);
    }
    definicion.sitios = std::move(sitios);
}

// Names are unique regardless of case. Folds ASCII and the letters of western Europe, enough to find a doubled name.
std::string SinCaja(std::string nombre) {
    for (std::size_t i = 0; i < nombre.size(); ++i) {
        const auto c = static_cast<unsigned char>(nombre[i]);
        const bool latina =
            i > 0 && static_cast<unsigned char>(nombre[i - 1]) == 0xC3 && c >= 0x80 && c <= 0x9E && c != 0x97;
        if ((c >= 'A' && c <= 'Z') || latina)
            nombre[i] = static_cast<char>(c + 0x20);
    }
    return nombre;
}

template <class T>
T Obligado(const Celda& celda) {
    if (const T* valor = std::get_if<T>(&celda))
        return *valor;
    Dañar("una entrada del catálogo está incompleta");
}

} // namespace

std::vector<Entrada> LeerCatalogo(const Paginas& paginas, const Textos& textos, ValoresLargos& largos,
                                  std::vector<bool>& usadas) {
    Definicion definicion = LeerDefinicion(paginas, textos, paginaCatalogo, usadas);
    SoloLosCampos(definicion);

    std::vector<Entrada> entradas;
    std::set<std::string> nombres;
    std::set<std::uint32_t> definiciones;
    RecorrerFilas(paginas, definicion, textos, largos, [&](std::span<const Celda> fila) {
        if (Obligado<std::int64_t>(fila[Clase]) != tablaDelFichero)
            return;
        const auto pagina = static_cast<std::uint32_t>(Obligado<std::int64_t>(fila[Id])) & 0xFFFFFFU;
        std::string nombre = Obligado<std::string>(fila[Nombre]);
        if (!nombres.insert(SinCaja(nombre)).second)
            Dañar("el catálogo nombra dos veces la tabla " + nombre);
        if (!definiciones.insert(pagina).second)
            Dañar("el catálogo da a la tabla " + nombre + " la definición de otra", pagina);
        const std::int64_t* marcas = std::get_if<std::int64_t>(&fila[Marcas]);
        const bool delSistema = marcas && (static_cast<std::uint32_t>(*marcas) & tablaDelSistema) != 0;
        if (!delSistema && !nombre.starts_with('~'))
            entradas.push_back({std::move(nombre), pagina});
    });
    return entradas;
}

} // namespace pastorix::access
