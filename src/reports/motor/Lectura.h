#pragma once

#include "reports/motor/Argumentos.h"
#include "reports/motor/Disposicion.h"
#include "reports/motor/Plantilla.h"

#include <functional>
#include <map>

namespace pastorix {

// A layout being read: the lines, what is declared so far, and the pieces that declarations and bands share.
// Used by the reader's own files only.
class Lectura {
public:
    Lectura(std::string_view texto, const std::string& fichero);

    // The lines up to the "fin" of a block, one by one.
    void Bloque(const Argumentos& apertura, const std::function<void(Argumentos&)>& linea);
    // The lines up to the end of the file.
    void Todo(const std::function<void(Argumentos&)>& linea);
    // The lines of another text, which errors tell by its own name; then it goes on where it was.
    void Incluir(std::string_view texto, const std::string& fichero,
                 const std::function<void(Argumentos&)>& linea);

    Color LeerColor(const Argumentos& a, const std::string& texto) const;
    // Options of appearance on top of what the aspect holds: estilo=, tamaño=, negrita, color=, fondo=, alinear=, borde= ...
    void LeerAspecto(Argumentos& a, Aspecto& aspecto) const;
    int Tabla(const Argumentos& a, const std::string& nombre) const;
    int Columna(const Argumentos& a, int tabla, const std::string& nombre) const;
    // "Tabla.Columna".
    RefCampo Campo(const Argumentos& a, const std::string& nombre) const;
    // atada=Interior:Tabla.Exterior,...; empty when the option is not there.
    std::vector<Lazo> Lazos(Argumentos& a, int tabla, const Ambito& ambito) const;
    Plantilla Texto(const Argumentos& a, const std::string& texto, const Ambito& ambito) const;
    Formula Condicion(Argumentos& a, const char* opcion, const Ambito& ambito) const;
    void ContarElemento(const Argumentos& a);

    Disposicion d;
    std::map<std::string, Aspecto> estilos;
    std::map<std::string, Color> colores;
    Aspecto letraBase;

private:
    std::vector<LineaLeida> m_lineas;
    std::size_t m_pos = 0;
    int m_hondo = 0;
    int m_elementos = 0;
};

// pagina, letra, color, estilo, parametro, tabla. False when the line is none of them.
bool LeerDeclaracion(Lectura& l, Argumentos& a);

// texto, linea, caja, grafico within a band of that width and height. False when the line is none of them.
bool LeerElemento(Lectura& l, Argumentos& a, double ancho, Banda& banda, const Ambito& ambito);

// The options and elements of a band whose order word has been taken.
Banda LeerBanda(Lectura& l, Argumentos& a, double ancho, const Ambito& ambito);

// What flows: banda, filas, seccion, bloque, columnas, salto. False when the line is none of them.
bool LeerNodo(Lectura& l, Argumentos& a, double ancho, const Ambito& ambito, std::vector<Nodo>& nodos);

// Columns of a list: heading and detail from one line each.
void LeerRejilla(Lectura& l, Argumentos& a, double ancho, const Ambito& ambito, Seccion& seccion);

// Label, figures and rule from one line per row.
void LeerFilas(Lectura& l, Argumentos& a, double ancho, const Ambito& ambito, std::vector<Nodo>& nodos);

} // namespace pastorix
