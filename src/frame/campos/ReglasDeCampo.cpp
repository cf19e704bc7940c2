#include "frame/campos/ReglasDeCampo.h"

#include "frame/calendario/Calendario.h"
#include "frame/calendario/Formatos.h"
#include "store/Textos.h"

#include <string>

namespace pastorix {

namespace {

bool Vale(std::string_view texto, ClaseCampo clase) {
    double n = 0;
    return clase == ClaseCampo::Fecha ? EsFechaValida(texto) : !EsNumerica(clase) || NumeroDeTexto(texto, n);
}

} // namespace

bool Intacto(const Valor& leido, std::string_view texto) {
    return TextoDe(leido) == texto;
}

Valor ValorDe(std::string_view texto, const Valor& leido, ClaseCampo clase, SiNoVale siNoVale) {
    if (Intacto(leido, texto))
        return leido;
    if (texto.empty() || (siNoVale != SiNoVale::TalCual && !Vale(texto, clase)))
        return siNoVale == SiNoVale::Conserva ? leido : Valor();
    return std::string(texto);
}

void EscribirTexto(Campo campo, std::string_view texto, ClaseCampo clase, SiNoVale siNoVale) {
    const auto leido = campo.Leer();
    if (texto.empty() && siNoVale != SiNoVale::Conserva && !EsNulo(leido)) {
        campo = Valor(); // an empty text that came from elsewhere becomes Null too
        return;
    }
    if (const auto valor = ValorDe(texto, leido, clase, siNoVale); valor != leido)
        campo = valor;
}

void EscribirElegido(Campo campo, std::string_view item) {
    if (item.empty() || !IgualSinCaso(item, campo.Texto()))
        EscribirTexto(campo, item);
}

} // namespace pastorix
