#include "reports/motor/Plantilla.h"

#include "reports/motor/ErrorInforme.h"
#include "store/Textos.h"

#include <algorithm>
#include <array>
#include <utility>

namespace pastorix {

namespace {

[[noreturn]] void Fallo(const std::string& texto) {
    throw ErrorInforme(CodigoInforme::Disposicion, texto);
}

// Refuses a field that would have no row to come from, which would print blank.
void ExigirAbierta(const Disposicion& d, const Ambito& ambito, RefCampo campo) {
    if (!ambito.pagina &&
        std::find(ambito.abiertas.begin(), ambito.abiertas.end(), campo.tabla) == ambito.abiertas.end())
        Fallo("la tabla \"" + d.tablas[static_cast<std::size_t>(campo.tabla)].nombre +
              "\" no tiene aquí ninguna fila: el texto debe estar dentro de una sección de esa tabla");
}

Pieza LeerAgregado(Pieza::Tipo tipo, std::string_view nombre, const Disposicion& d, const Ambito& ambito) {
    Pieza pieza;
    pieza.tipo = tipo;
    pieza.campo = d.NombresDeclarados().campo(nombre);
    if (ambito.agregados != Ambito::CualquierAgregado && ambito.agregados != pieza.campo.tabla)
        Fallo("un total sólo puede estar en la cabecera o en el pie de una sección o de un grupo de su "
              "tabla, o fuera "
              "de toda sección");
    return pieza;
}

Pieza LeerCampo(std::string_view dentro, const Disposicion& d, const Ambito& ambito) {
    Pieza pieza;
    if (dentro.starts_with('?')) {
        pieza.tipo = Pieza::Tipo::Parametro;
        pieza.parametro = d.NombresDeclarados().parametro(dentro.substr(1));
        return pieza;
    }
    using Tipo = Pieza::Tipo;
    static constexpr std::array<std::pair<std::string_view, Tipo>, 7> especiales{
        {{"Página", Tipo::Pagina},
         {"Páginas", Tipo::Paginas},
         {"PáginaGrupo", Tipo::PaginaGrupo},
         {"PáginasGrupo", Tipo::PaginasGrupo},
         {"Fecha", Tipo::FechaImpresion},
         {"Título", Tipo::Titulo},
         {"Ganadero", Tipo::Ganadero}}};
    for (const auto& [nombre, tipo] : especiales) {
        if (!IgualSinCaso(dentro, nombre))
            continue;
        const bool dePagina = tipo != Tipo::FechaImpresion && tipo != Tipo::Titulo && tipo != Tipo::Ganadero;
        if (dePagina && !ambito.pagina)
            Fallo("el número de página sólo puede estar en la cabecera o en el pie de página");
        pieza.tipo = tipo;
        return pieza;
    }
    static constexpr std::array<std::pair<std::string_view, Tipo>, 3> agregados{
        {{"Cuenta(", Tipo::Cuenta}, {"Suma(", Tipo::Suma}, {"Media(", Tipo::Media}}};
    for (const auto& [nombre, tipo] : agregados) {
        if (dentro.size() > nombre.size() && IgualSinCaso(dentro.substr(0, nombre.size()), nombre) &&
            dentro.ends_with(')'))
            return LeerAgregado(tipo, dentro.substr(nombre.size(), dentro.size() - nombre.size() - 1), d,
                                ambito);
    }
    pieza.tipo = Tipo::Campo;
    pieza.campo = d.NombresDeclarados().campo(dentro);
    ExigirAbierta(d, ambito, pieza.campo);
    return pieza;
}

} // namespace

ClaseDeMascara ClaseDe(std::string_view mascara) {
    if (mascara.empty())
        return ClaseDeMascara::Ninguna;
    if (IgualSinCaso(mascara, "limpio"))
        return ClaseDeMascara::Limpio;
    if (mascara.size() <= 40) {
        if (mascara.find_first_of("0#") != std::string_view::npos &&
            mascara.find_first_not_of("0#.,") == std::string_view::npos)
            return ClaseDeMascara::Numero;
        if (mascara.find_first_not_of("dmyhns/:- .") == std::string_view::npos)
            return ClaseDeMascara::Fecha;
    }
    Fallo("\"" + std::string(mascara) + "\" no es un formato de número (##0.0) ni de fecha (dd/mm/yy)");
}

Plantilla LeerPlantilla(std::string_view texto, const Disposicion& disposicion, const Ambito& ambito) {
    Plantilla plantilla;
    std::string literal;
    int tramos = 0;
    bool enTramo = false;
    const auto poner = [&](Pieza pieza) {
        pieza.tramo = enTramo ? tramos : -1;
        plantilla.push_back(std::move(pieza));
    };
    const auto cerrarLiteral = [&] {
        if (!literal.empty()) {
            Pieza pieza;
            pieza.texto = std::exchange(literal, {});
            poner(std::move(pieza));
        }
    };
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const char c = texto[i];
        if (std::string_view("{}[]").find(c) != std::string_view::npos && i + 1 < texto.size() &&
            texto[i + 1] == c) {
            literal += c;
            ++i;
            continue;
        }
        if (c == '[' || c == ']') {
            if (enTramo == (c == '['))
                Fallo("los corchetes van por pares y no unos dentro de otros");
            cerrarLiteral();
            enTramo = !enTramo;
            tramos += enTramo ? 0 : 1;
            continue;
        }
        if (c == '}')
            Fallo("una llave se cierra sin haberse abierto");
        if (c != '{') {
            literal += c;
            continue;
        }
        const std::size_t fin = texto.find('}', i);
        if (fin == std::string_view::npos)
            Fallo("falta la llave que cierra un campo");
        cerrarLiteral();
        const std::string_view dentro = texto.substr(i + 1, fin - i - 1);
        const std::size_t dosPuntos = dentro.find(':');
        Pieza pieza = LeerCampo(dentro.substr(0, dosPuntos), disposicion, ambito);
        if (dosPuntos != std::string_view::npos) {
            pieza.mascara = dentro.substr(dosPuntos + 1);
            if (ClaseDe(pieza.mascara) == ClaseDeMascara::Ninguna)
                Fallo("detrás de los dos puntos falta el formato");
        }
        poner(std::move(pieza));
        i = fin;
    }
    if (enTramo)
        Fallo("falta el corchete que cierra");
    cerrarLiteral();
    return plantilla;
}

Formula LeerCondicion(std::string_view texto, const Disposicion& disposicion, const Ambito& ambito) {
    Formula formula = LeerFormula(texto, disposicion.NombresDeclarados(), true);
    for (const RefCampo campo : formula.CamposUsados())
        ExigirAbierta(disposicion, ambito, campo);
    return formula;
}

} // namespace pastorix
