#include "reports/motor/Evaluador.h"

#include "frame/calendario/Formatos.h"
#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Plantilla.h"
#include "store/Textos.h"

#include <QStringList>

#include <algorithm>
#include <set>

namespace pastorix {

namespace {
const Valor Nulo;

bool EnBlanco(std::string_view texto) {
    return texto.find_first_not_of(' ') == std::string_view::npos;
}

// Takes a separator off that a missing part has left: "Nombre - ", " / 609".
std::string Limpio(std::string_view texto) {
    const auto recortar = [&] {
        texto.remove_prefix(std::min(texto.find_first_not_of(' '), texto.size()));
        texto.remove_suffix(texto.size() - 1 - std::min(texto.find_last_not_of(' '), texto.size() - 1));
    };
    const auto separa = [](char c) { return c == '-' || c == '/'; };
    for (bool mas = true; mas && !EnBlanco(texto);) {
        recortar();
        mas = true;
        if (separa(texto.back()) && (texto.size() == 1 || texto[texto.size() - 2] == ' '))
            texto.remove_suffix(1);
        else if (separa(texto.front()) && texto.size() > 1 && texto[1] == ' ')
            texto.remove_prefix(1);
        else
            mas = false;
    }
    return std::string(EnBlanco(texto) ? std::string_view() : texto);
}

} // namespace

std::optional<double> NumeroDeCelda(const Valor& valor) {
    if (EsNulo(valor))
        return std::nullopt;
    const auto* texto = std::get_if<std::string>(&valor);
    if (!texto)
        return NumeroDe(valor);
    // Brackets and signs behind are numbers to a sheet's field, and notes in a report: "( 4 )".
    if (texto->find_first_not_of("0123456789.,-+ ") != std::string::npos)
        return std::nullopt;
    return NumeroEscrito(*texto);
}

std::string TextoConMascara(const Valor& valor, const std::string& mascara) {
    if (const auto* fecha = std::get_if<Fecha>(&valor))
        return FormatoFecha(*fecha, ClaseDe(mascara) == ClaseDeMascara::Fecha ? mascara : "dd/mm/yy");
    if (ClaseDe(mascara) == ClaseDeMascara::Numero) {
        if (const auto n = NumeroDeCelda(valor))
            return FormatoNumero(*n, mascara);
    }
    return ClaseDe(mascara) == ClaseDeMascara::Limpio ? Limpio(TextoDe(valor)) : TextoDe(valor);
}

Evaluador::Evaluador(const Disposicion& disposicion, const Conjuntos& conjuntos, const DatosDeInforme& datos)
    : m_disposicion(disposicion)
    , m_conjuntos(conjuntos)
    , m_datos(datos) {
    for (const auto& [nombre, valor] : datos.parametros)
        disposicion.NombresDeclarados().parametro(nombre);
    for (const ParametroUsado& parametro : disposicion.parametros) {
        std::optional<std::string> valor = parametro.defecto;
        for (const auto& [nombre, dado] : datos.parametros) {
            if (IgualSinCaso(nombre, parametro.nombre))
                valor = dado;
        }
        if (!valor)
            throw ErrorInforme(CodigoInforme::Parametro,
                               "Falta el valor del parámetro \"" + parametro.nombre + "\" del informe");
        m_parametros.emplace_back(*valor);
    }
}

const Contexto* Evaluador::ContextoDe(int tabla, const Contexto* contexto) const {
    while (contexto && contexto->tabla != tabla)
        contexto = contexto->fuera;
    return contexto;
}

const Valor& Evaluador::Celda(RefCampo campo, const Contexto* contexto) const {
    const Contexto* suyo = ContextoDe(campo.tabla, contexto);
    if (!suyo || suyo->fila >= m_conjuntos.Filas(campo.tabla))
        return Nulo;
    return m_conjuntos.Celda(campo, suyo->fila);
}

bool Evaluador::Cumple(const Formula& formula, const Contexto* contexto) const {
    return formula.Cumple([&](RefCampo campo) -> const Valor& { return Celda(campo, contexto); },
                          m_parametros);
}

QString Evaluador::Agregado(const Pieza& pieza, const Contexto* contexto) const {
    const Contexto* suyo = ContextoDe(pieza.campo.tabla, contexto);
    const std::vector<std::size_t>* filas = suyo ? suyo->filas : nullptr;
    const std::size_t n = filas ? filas->size() : m_conjuntos.Filas(pieza.campo.tabla);
    double suma = 0;
    std::int64_t sumandos = 0;
    std::int64_t llenas = 0;
    for (std::size_t i = 0; i < n; ++i) {
        const Valor& valor = m_conjuntos.Celda(pieza.campo, filas ? (*filas)[i] : i);
        if (EsNulo(valor))
            continue;
        ++llenas;
        if (pieza.tipo == Pieza::Tipo::Cuenta || EnBlanco(TextoDe(valor)))
            continue;
        const auto sumando = NumeroDeCelda(valor);
        if (!sumando)
            throw ErrorInforme(CodigoInforme::Disposicion,
                               m_disposicion.fichero + ", línea " + std::to_string(pieza.linea) +
                                   ": no se puede sumar \"" + TextoDe(valor) + "\", que no es un número");
        suma += *sumando;
        ++sumandos;
    }
    Valor resultado;
    if (pieza.tipo == Pieza::Tipo::Cuenta)
        resultado = llenas;
    else if (sumandos > 0)
        resultado = pieza.tipo == Pieza::Tipo::Suma ? suma : suma / static_cast<double>(sumandos);
    return QString::fromStdString(TextoConMascara(resultado, pieza.mascara));
}

QString Evaluador::Trozo(const Pieza& pieza, const Contexto* contexto, const NumeroDePagina& n) const {
    switch (pieza.tipo) {
    case Pieza::Tipo::Literal:
        return QString::fromStdString(pieza.texto);
    case Pieza::Tipo::Campo:
        return QString::fromStdString(TextoConMascara(Celda(pieza.campo, contexto), pieza.mascara));
    case Pieza::Tipo::Parametro:
        return QString::fromStdString(TextoDe(m_parametros[static_cast<std::size_t>(pieza.parametro)]));
    case Pieza::Tipo::Pagina:
        return QString::number(n.pagina);
    case Pieza::Tipo::Paginas:
        return QString::number(n.paginas);
    case Pieza::Tipo::PaginaGrupo:
        return QString::number(n.paginaGrupo);
    case Pieza::Tipo::PaginasGrupo:
        return QString::number(n.paginasGrupo);
    case Pieza::Tipo::FechaImpresion:
        return QString::fromStdString(TextoConMascara(m_datos.fecha, pieza.mascara));
    case Pieza::Tipo::Titulo:
        return m_datos.titulo.trimmed();
    case Pieza::Tipo::Ganadero:
        return m_datos.ganadero == 0 ? QString() : QString::fromStdString(TextoNumero(m_datos.ganadero));
    default:
        return Agregado(pieza, contexto);
    }
}

QString Evaluador::Texto(const Plantilla& plantilla, const Contexto* contexto,
                         const NumeroDePagina& n) const {
    QStringList trozos;
    std::set<int> tramosLlenos{-1};
    bool conCampos = false;
    bool algunoLleno = false;
    for (const Pieza& pieza : plantilla) {
        trozos << Trozo(pieza, contexto, n);
        const bool lleno = pieza.tipo != Pieza::Tipo::Literal && !trozos.back().trimmed().isEmpty();
        if (lleno)
            tramosLlenos.insert(pieza.tramo);
        if (pieza.tipo == Pieza::Tipo::Campo || pieza.EsAgregado()) {
            conCampos = true;
            algunoLleno = algunoLleno || lleno;
        }
    }
    if (conCampos && !algunoLleno)
        return {};
    QString texto;
    for (std::size_t i = 0; i < plantilla.size(); ++i) {
        if (tramosLlenos.contains(plantilla[i].tramo))
            texto += trozos.at(static_cast<qsizetype>(i));
    }
    return texto;
}

} // namespace pastorix
