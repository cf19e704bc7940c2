#include "reports/motor/Conjuntos.h"

#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Lineas.h"
#include "store/Textos.h"

#include <algorithm>
#include <numeric>

namespace pastorix {

namespace {

constexpr std::size_t FilasMaximas = 2'000'000; // a join gone wrong, not a herd
const Valor Nulo;

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

[[noreturn]] void Demasiadas() {
    throw ErrorInforme(CodigoInforme::Limite, "El informe tendría demasiadas filas");
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

int CompararValores(const Valor& a, const Valor& b) {
    const auto clase = [](const Valor& v) {
        return EsNulo(v) ? 0 : (std::holds_alternative<std::string>(v) ? 2 : 1);
    };
    if (clase(a) != clase(b))
        return clase(a) - clase(b);
    if (clase(a) == 0)
        return 0;
    if (clase(a) == 2)
        return CompararEspañol(std::get<std::string>(a), std::get<std::string>(b));
    const double x = NumeroDe(a);
    const double y = NumeroDe(b);
    return x < y ? -1 : (y < x ? 1 : 0);
}

Conjuntos::Conjuntos(const Disposicion& disposicion, const FuenteDeTablas& fuente, const std::string& formula)
    : m_disposicion(disposicion)
    , m_tablas(disposicion.tablas.size()) {
    const auto numero = static_cast<int>(m_tablas.size());
    for (int t = 0; t < numero; ++t)
        LeerTabla(fuente, t);
    for (int t = 0; t < numero; ++t) {
        if (disposicion.tablas[static_cast<std::size_t>(t)].base >= 0)
            continue;
        Conjunto& conjunto = m_conjuntos[t];
        conjunto.tablas.push_back(t);
        conjunto.n = m_tablas[static_cast<std::size_t>(t)].datos.filas.size();
        conjunto.filas.resize(conjunto.n);
        std::iota(conjunto.filas.begin(), conjunto.filas.end(), 0);
    }
    // A joined table comes after the one it is joined to, in whatever order they were declared.
    for (bool alguna = true; alguna;) {
        alguna = false;
        for (int t = 0; t < numero; ++t) {
            const int base = disposicion.tablas[static_cast<std::size_t>(t)].base;
            if (base < 0)
                continue;
            Conjunto& conjunto = m_conjuntos[disposicion.Raiz(t)];
            const auto tiene = [&](int tabla) {
                return std::count(conjunto.tablas.begin(), conjunto.tablas.end(), tabla) > 0;
            };
            if (!tiene(t) && tiene(base)) {
                Unir(conjunto, t);
                alguna = true;
            }
        }
    }
    Seleccionar(formula);
    for (const auto& [raiz, conjunto] : m_conjuntos)
        Ordenar(raiz);
}

void Conjuntos::LeerTabla(const FuenteDeTablas& fuente, int tabla) {
    const TablaUsada& usada = m_disposicion.tablas[static_cast<std::size_t>(tabla)];
    Tabla& leida = m_tablas[static_cast<std::size_t>(tabla)];
    const auto falta = [&](int linea, const std::string& texto) {
        throw ErrorInforme(CodigoInforme::DatosDesconocidos,
                           m_disposicion.fichero + ", línea " + std::to_string(linea) + ": " + texto);
    };
    try {
        leida.datos = fuente.Leer(usada.nombre);
    } catch (const ErrorInforme& e) {
        if (e.Codigo() != CodigoInforme::DatosDesconocidos)
            throw;
        falta(usada.linea, e.what());
    }
    for (auto& fila : leida.datos.filas)
        fila.resize(leida.datos.columnas.size()); // a short row is Null behind its end
    for (const TablaUsada::Columna& columna : usada.columnas) {
        const int indice = leida.datos.Columna(columna.nombre);
        if (indice < 0)
            falta(columna.linea, "la tabla \"" + usada.nombre +
                                     "\" de la base de datos no tiene la columna \"" + columna.nombre + "\"");
        leida.columnas.push_back(indice);
    }
}

void Conjuntos::Unir(Conjunto& conjunto, int tabla) {
    const TablaUsada& usada = m_disposicion.tablas[static_cast<std::size_t>(tabla)];
    Tabla& nueva = m_tablas[static_cast<std::size_t>(tabla)];
    const auto celda = [&](const RefCampo& campo, std::size_t fila) -> const Valor& {
        const Tabla& t = m_tablas[static_cast<std::size_t>(campo.tabla)];
        return t.datos
            .filas[fila][static_cast<std::size_t>(t.columnas[static_cast<std::size_t>(campo.columna)])];
    };
    Indice indice;
    for (std::size_t f = 0; f < nueva.datos.filas.size(); ++f) {
        for (const std::string& clave : Claves(celda(usada.union_.front().interior, f)))
            indice[clave].push_back(f);
    }
    const std::size_t ancho = conjunto.tablas.size();
    std::vector<int> filas;
    std::size_t n = 0;
    for (std::size_t f = 0; f < conjunto.n; ++f) {
        const int* fila = &conjunto.filas[f * ancho];
        const auto exterior = [&](const Lazo& lazo) -> const Valor& {
            const int r = fila[m_tablas[static_cast<std::size_t>(lazo.exterior.tabla)].hueco];
            return r < 0 ? Nulo : celda(lazo.exterior, static_cast<std::size_t>(r));
        };
        std::vector<int> parejas;
        for (const std::string& clave : Claves(exterior(usada.union_.front()))) {
            const auto it = indice.find(clave);
            if (it == indice.end())
                continue;
            for (const std::size_t otra : it->second) {
                const bool todos =
                    std::all_of(usada.union_.begin(), usada.union_.end(), [&](const Lazo& lazo) {
                        return SeAtan(celda(lazo.interior, otra), exterior(lazo));
                    });
                if (todos)
                    parejas.push_back(static_cast<int>(otra));
            }
        }
        std::sort(parejas.begin(), parejas.end());
        parejas.erase(std::unique(parejas.begin(), parejas.end()), parejas.end());
        if (parejas.empty())
            parejas.push_back(-1);
        for (const int pareja : parejas) {
            filas.insert(filas.end(), fila, fila + ancho);
            filas.push_back(pareja);
            if (++n > FilasMaximas)
                Demasiadas();
        }
    }
    nueva.hueco = ancho;
    conjunto.tablas.push_back(tabla);
    conjunto.filas = std::move(filas);
    conjunto.n = n;
}

// Keeps the rows in the given order.
void Conjuntos::Quedarse(Conjunto& conjunto, const std::vector<std::size_t>& orden) {
    const std::size_t ancho = conjunto.tablas.size();
    std::vector<int> filas;
    filas.reserve(orden.size() * ancho);
    for (const std::size_t f : orden) {
        const auto inicio = conjunto.filas.begin() + static_cast<std::ptrdiff_t>(f * ancho);
        filas.insert(filas.end(), inicio, inicio + static_cast<std::ptrdiff_t>(ancho));
    }
    conjunto.filas = std::move(filas);
    conjunto.n = orden.size();
}

void Conjuntos::Seleccionar(const std::string& texto) {
    if (texto.find_first_not_of(" \t\r\n") == std::string::npos)
        return;
    const Formula formula = LeerFormula(texto, m_disposicion.NombresDeclarados(), false);
    const std::vector<RefCampo> campos = formula.CamposUsados();
    if (campos.empty())
        throw ErrorInforme(CodigoInforme::Formula, "Fórmula de selección errónea: no nombra ningún campo");
    const int raiz = m_disposicion.Raiz(campos.front().tabla);
    for (const RefCampo campo : campos) {
        if (m_disposicion.Raiz(campo.tabla) != raiz)
            throw ErrorInforme(CodigoInforme::Formula,
                               "Fórmula de selección errónea: mezcla tablas que el informe no une");
    }
    Conjunto& conjunto = m_conjuntos.at(raiz);
    std::vector<std::size_t> quedan;
    for (std::size_t f = 0; f < conjunto.n; ++f) {
        if (formula.Cumple([&](RefCampo campo) -> const Valor& { return Celda(campo, f); }))
            quedan.push_back(f);
    }
    Quedarse(conjunto, quedan);
}

void Conjuntos::Ordenar(int raiz) {
    const auto& orden = m_disposicion.tablas[static_cast<std::size_t>(raiz)].orden;
    if (orden.empty())
        return;
    Conjunto& conjunto = m_conjuntos.at(raiz);
    std::vector<std::size_t> filas(conjunto.n);
    std::iota(filas.begin(), filas.end(), std::size_t{0});
    std::stable_sort(filas.begin(), filas.end(), [&](std::size_t a, std::size_t b) {
        for (const TablaUsada::Orden& o : orden) {
            const int c = CompararValores(Celda(o.campo, a), Celda(o.campo, b));
            if (c != 0)
                return o.descendente ? c > 0 : c < 0;
        }
        return false;
    });
    Quedarse(conjunto, filas);
}

std::size_t Conjuntos::Filas(int raiz) const {
    return m_conjuntos.at(raiz).n;
}

const Valor& Conjuntos::Celda(RefCampo campo, std::size_t fila) const {
    const Conjunto& conjunto = m_conjuntos.at(m_disposicion.Raiz(campo.tabla));
    const Tabla& tabla = m_tablas[static_cast<std::size_t>(campo.tabla)];
    const int r = conjunto.filas[fila * conjunto.tablas.size() + tabla.hueco];
    if (r < 0)
        return Nulo;
    return tabla.datos.filas[static_cast<std::size_t>(r)][static_cast<std::size_t>(
        tabla.columnas[static_cast<std::size_t>(campo.columna)])];
}

const Conjuntos::Indice& Conjuntos::IndiceDe(RefCampo campo) const {
    const auto [it, nuevo] = m_indices.try_emplace({campo.tabla, campo.columna});
    if (nuevo) {
        const std::size_t n = Filas(m_disposicion.Raiz(campo.tabla));
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
