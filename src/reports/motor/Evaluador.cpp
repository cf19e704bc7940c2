#include "reports/motor/Evaluador.h"

#include "frame/calendario/Formatos.h"
#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Plantilla.h"
#include "store/Textos.h"

#include <optional>

namespace pastorix {

namespace {
const Valor Nulo;

// The number a cell counts with in totals: empty for Null and for texts that are none.
std::optional<double> Sumando(const Valor& valor) {
    if (EsNulo(valor))
        return std::nullopt;
    if (const auto* texto = std::get_if<std::string>(&valor)) {
        double n = 0;
        return NumeroDeTexto(*texto, n) ? std::optional(n) : std::nullopt;
    }
    return NumeroDe(valor);
}
} // namespace

std::string TextoConMascara(const Valor& valor, const std::string& mascara) {
    if (const auto* fecha = std::get_if<Fecha>(&valor))
        return FormatoFecha(*fecha, ClaseDe(mascara) == ClaseDeMascara::Fecha ? mascara : "dd/mm/yy");
    if (ClaseDe(mascara) == ClaseDeMascara::Numero) {
        if (const auto n = Sumando(valor))
            return FormatoNumero(*n, mascara);
    }
    return TextoDe(valor);
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
        m_parametros.push_back(QString::fromStdString(*valor));
    }
}

const Contexto* Evaluador::ContextoDe(int raiz, const Contexto* contexto) const {
    while (contexto && contexto->raiz != raiz)
        contexto = contexto->fuera;
    return contexto;
}

const Valor& Evaluador::Celda(RefCampo campo, const Contexto* contexto) const {
    const int raiz = m_disposicion.Raiz(campo.tabla);
    const Contexto* suyo = ContextoDe(raiz, contexto);
    if (!suyo || suyo->fila >= m_conjuntos.Filas(raiz))
        return Nulo;
    return m_conjuntos.Celda(campo, suyo->fila);
}

bool Evaluador::Cumple(const Formula& formula, const Contexto* contexto) const {
    return formula.Cumple([&](RefCampo campo) -> const Valor& { return Celda(campo, contexto); });
}

QString Evaluador::Agregado(const Pieza& pieza, const Contexto* contexto) const {
    const int raiz = m_disposicion.Raiz(pieza.campo.tabla);
    const Contexto* suyo = ContextoDe(raiz, contexto);
    const std::vector<std::size_t>* filas = suyo ? suyo->filas : nullptr;
    const std::size_t n = filas ? filas->size() : m_conjuntos.Filas(raiz);
    double suma = 0;
    std::int64_t sumandos = 0;
    std::int64_t llenas = 0;
    for (std::size_t i = 0; i < n; ++i) {
        const Valor& valor = m_conjuntos.Celda(pieza.campo, filas ? (*filas)[i] : i);
        if (EsNulo(valor))
            continue;
        ++llenas;
        if (const auto sumando = Sumando(valor)) {
            suma += *sumando;
            ++sumandos;
        }
    }
    Valor resultado;
    if (pieza.tipo == Pieza::Tipo::Cuenta)
        resultado = llenas;
    else if (sumandos > 0)
        resultado = pieza.tipo == Pieza::Tipo::Suma ? suma : suma / static_cast<double>(sumandos);
    return QString::fromStdString(TextoConMascara(resultado, pieza.mascara));
}

QString Evaluador::Texto(const Plantilla& plantilla, const Contexto* contexto, int pagina,
                         int paginas) const {
    QString texto;
    bool conCampos = false;
    bool algunoLleno = false;
    for (const Pieza& pieza : plantilla) {
        QString trozo;
        switch (pieza.tipo) {
        case Pieza::Tipo::Literal:
            trozo = QString::fromStdString(pieza.texto);
            break;
        case Pieza::Tipo::Campo:
            trozo = QString::fromStdString(TextoConMascara(Celda(pieza.campo, contexto), pieza.mascara));
            break;
        case Pieza::Tipo::Parametro:
            trozo = m_parametros[static_cast<std::size_t>(pieza.parametro)];
            break;
        case Pieza::Tipo::Pagina:
            trozo = QString::number(pagina);
            break;
        case Pieza::Tipo::Paginas:
            trozo = QString::number(paginas);
            break;
        case Pieza::Tipo::FechaImpresion:
            trozo = QString::fromStdString(TextoConMascara(m_datos.fecha, pieza.mascara));
            break;
        case Pieza::Tipo::Titulo:
            trozo = m_datos.titulo.trimmed();
            break;
        default:
            trozo = Agregado(pieza, contexto);
            break;
        }
        if (pieza.tipo == Pieza::Tipo::Campo || pieza.EsAgregado()) {
            conCampos = true;
            algunoLleno = algunoLleno || !trozo.trimmed().isEmpty();
        }
        texto += trozo;
    }
    return conCampos && !algunoLleno ? QString() : texto;
}

} // namespace pastorix
