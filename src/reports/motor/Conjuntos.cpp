#include "reports/motor/Conjuntos.h"

#include "reports/motor/ErrorInforme.h"
#include "store/Textos.h"

#include <algorithm>

namespace pastorix {

namespace {

constexpr std::size_t FilasMaximas = 2'000'000; // a query gone wrong, not a herd

// Keys under which a value is found: by its number, and a text by its letters too. A numeric text answers to both.
std::vector<std::string> Claves(const Valor& v) {
    if (EsNulo(v))
        return {};
    const auto porNumero = [](double n) { return "n" + TextoNumero(n); };
    if (const auto* texto = std::get_if<std::string>(&v)) {
        std::vector<std::string> claves{"t" + Minusculas(*texto)};
        double n = 0;
        if (NumeroDeTexto(*texto, n))
            claves.push_back(porNumero(n));
        return claves;
    }
    return {porNumero(NumeroDe(v))};
}

} // namespace

bool SeAtan(const Valor& a, const Valor& b) {
    if (EsNulo(a) || EsNulo(b))
        return false;
    const auto* textoA = std::get_if<std::string>(&a);
    const auto* textoB = std::get_if<std::string>(&b);
    if (textoA && textoB)
        return IgualSinCaso(*textoA, *textoB);
    double x = 0;
    double y = 0;
    if (textoA ? !NumeroDeTexto(*textoA, x) : (x = NumeroDe(a), false))
        return false;
    if (textoB ? !NumeroDeTexto(*textoB, y) : (y = NumeroDe(b), false))
        return false;
    return x == y;
}

Conjuntos::Conjuntos(const Disposicion& disposicion, const FuenteDeTablas& fuente, const std::string& formula)
    : m_disposicion(disposicion) {
    for (const TablaUsada& usada : disposicion.tablas)
        m_tablas.push_back(LeerTabla(fuente, usada));
    Seleccionar(formula);
}

Conjuntos::Tabla Conjuntos::LeerTabla(const FuenteDeTablas& fuente, const TablaUsada& usada) const {
    const auto falta = [&](int linea, const std::string& texto) {
        throw ErrorInforme(CodigoInforme::DatosDesconocidos,
                           m_disposicion.fichero + ", línea " + std::to_string(linea) + ": " + texto);
    };
    Tabla leida;
    try {
        leida.datos = fuente.Leer(usada.nombre, usada.consulta);
    } catch (const ErrorInforme& e) {
        if (e.Codigo() != CodigoInforme::DatosDesconocidos)
            throw;
        if (!usada.calculada)
            falta(usada.linea, e.what());
        for (const TablaUsada::Columna& columna : usada.columnas)
            leida.datos.columnas.push_back(columna.nombre);
    }
    if (leida.datos.filas.size() > FilasMaximas)
        throw ErrorInforme(CodigoInforme::Limite, "El informe tendría demasiadas filas");
    for (auto& fila : leida.datos.filas)
        fila.resize(leida.datos.columnas.size()); // a short row is Null behind its end
    for (const TablaUsada::Columna& columna : usada.columnas) {
        const int indice = leida.datos.Columna(columna.nombre);
        if (indice < 0)
            falta(columna.linea, usada.consulta.empty()
                                     ? "la tabla \"" + usada.nombre +
                                           "\" de la base de datos no tiene la columna \"" + columna.nombre +
                                           "\""
                                     : "la consulta no da la columna \"" + columna.nombre + "\"");
        leida.columnas.push_back(indice);
    }
    return leida;
}

void Conjuntos::Seleccionar(const std::string& texto) {
    if (texto.find_first_not_of(" \t\r\n") == std::string::npos)
        return;
    const Formula formula = LeerFormula(texto, m_disposicion.NombresDeclarados(), false);
    const std::vector<RefCampo> campos = formula.CamposUsados();
    if (campos.empty())
        throw ErrorInforme(CodigoInforme::Formula, "Fórmula de selección errónea: no nombra ningún campo");
    const int tabla = campos.front().tabla;
    for (const RefCampo campo : campos) {
        if (campo.tabla != tabla)
            throw ErrorInforme(CodigoInforme::Formula, "Fórmula de selección errónea: mezcla tablas");
    }
    auto& filas = m_tablas[static_cast<std::size_t>(tabla)].datos.filas;
    std::vector<std::vector<Valor>> quedan;
    for (std::size_t f = 0; f < filas.size(); ++f) {
        if (formula.Cumple([&](RefCampo campo) -> const Valor& { return Celda(campo, f); }))
            quedan.push_back(filas[f]);
    }
    filas = std::move(quedan);
}

const Valor& Conjuntos::Celda(RefCampo campo, std::size_t fila) const {
    const Tabla& tabla = m_tablas[static_cast<std::size_t>(campo.tabla)];
    return tabla.datos
        .filas[fila][static_cast<std::size_t>(tabla.columnas[static_cast<std::size_t>(campo.columna)])];
}

const Conjuntos::Indice& Conjuntos::IndiceDe(RefCampo campo) const {
    const auto [it, nuevo] = m_indices.try_emplace({campo.tabla, campo.columna});
    if (nuevo) {
        const std::size_t n = Filas(campo.tabla);
        for (std::size_t f = 0; f < n; ++f) {
            for (const std::string& clave : Claves(Celda(campo, f)))
                it->second[clave].push_back(f);
        }
    }
    return it->second;
}

std::vector<std::size_t> Conjuntos::Buscar(const std::vector<Lazo>& lazos,
                                           const std::vector<const Valor*>& valores) const {
    std::vector<std::size_t> filas;
    const Indice& indice = IndiceDe(lazos.front().interior);
    for (const std::string& clave : Claves(*valores.front())) {
        const auto it = indice.find(clave);
        if (it == indice.end())
            continue;
        for (const std::size_t f : it->second) {
            bool todos = true;
            for (std::size_t i = 0; i < lazos.size() && todos; ++i)
                todos = SeAtan(Celda(lazos[i].interior, f), *valores[i]);
            if (todos)
                filas.push_back(f);
        }
    }
    std::sort(filas.begin(), filas.end());
    filas.erase(std::unique(filas.begin(), filas.end()), filas.end());
    return filas;
}

} // namespace pastorix
