#include "frame/selector/FiltroSelector.h"

#include "frame/calendario/Calendario.h"
#include "store/Fecha.h"
#include "store/Literales.h"

#include <algorithm>

namespace pastorix {

namespace {

std::string_view SinBlancos(std::string_view t) {
    const auto desde = t.find_first_not_of(" \t");
    return desde == std::string_view::npos ? std::string_view()
                                           : t.substr(desde, t.find_last_not_of(" \t") - desde + 1);
}

std::string CondicionNumero(const ColumnaDeFiltro& columna, std::string_view texto) {
    // The text becomes part of the statement as it stands, so nothing else may be in it.
    if (!std::all_of(texto.begin(), texto.end(), [](char c) {
            return TeclaDeFiltro(TipoNumero, static_cast<char32_t>(static_cast<unsigned char>(c)));
        }))
        throw ErrorAlmacen(CodigoError::Sintaxis, "El filtro no es un número: " + std::string(texto));
    const bool comparado = std::string_view("<>=").find(texto.front()) != std::string_view::npos;
    return columna.campo + (comparado ? " " : " = ") + std::string(texto);
}

std::string Condicion(const ColumnaDeFiltro& columna, std::string_view texto) {
    switch (columna.tipo) {
    case TipoTexto:
        return columna.campo + " LIKE " +
               TextoSql((columna.nombre == "Crotal" ? "%" : "") + std::string(texto));
    case TipoFecha:
        if (EsFechaValida(texto))
            if (const auto fecha = FechaDeTexto(texto))
                return columna.campo + " = " + MomentoSql(*fecha);
        return {};
    case TipoNumero:
        return CondicionNumero(columna, texto);
    default:
        return {};
    }
}

} // namespace

std::vector<ColumnaDeFiltro> ColumnasDeFiltro(const Recordset& lista, const SentenciaDeLista& sentencia) {
    auto campos = CamposDeSeleccion(sentencia.seleccion);
    if (campos.size() != static_cast<std::size_t>(lista.Campos())) // a "*" in it
        campos.assign(static_cast<std::size_t>(lista.Campos()), std::string());
    std::vector<ColumnaDeFiltro> columnas;
    for (int i = 0; i < lista.Campos(); ++i) {
        auto& campo = campos[static_cast<std::size_t>(i)];
        const auto tabla = lista.TablaCampo(i);
        if (campo.empty() || campo == "*")
            campo = lista.NombreCampo(i);
        if (!tabla.empty() && campo.find_first_of(".!") == std::string::npos)
            campo = tabla + "." + campo;
        columnas.push_back({lista.NombreCampo(i), campo, lista.TipoCampo(i)});
    }
    return columnas;
}

bool TeclaDeFiltro(int tipo, char32_t tecla) {
    const bool cifra = tecla >= U'0' && tecla <= U'9';
    if (tipo == TipoNumero)
        return cifra || tecla == U'>' || tecla == U'<' || tecla == U'=';
    return tipo != TipoFecha || cifra || tecla == U'/';
}

std::string TextoDelFiltro(const std::vector<ColumnaDeFiltro>& columnas,
                           const std::vector<std::string>& textos) {
    std::string filtro;
    for (std::size_t i = 0; i < std::min(columnas.size(), textos.size()); ++i) {
        const auto texto = SinBlancos(textos[i]);
        const auto condicion = texto.empty() ? std::string() : Condicion(columnas[i], texto);
        if (!condicion.empty())
            filtro += (filtro.empty() ? "" : " AND ") + condicion;
    }
    std::replace(filtro.begin(), filtro.end(), '*', '%');
    return filtro;
}

} // namespace pastorix
