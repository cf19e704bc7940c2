#include "reports/motor/Informe.h"

#include "frame/calendario/Reloj.h"
#include "reports/motor/Compositor.h"
#include "reports/motor/Exportacion.h"
#include "reports/motor/Paginador.h"

#include <QFileInfo>

namespace pastorix {

namespace {

// The rows of every table.
std::vector<HojaDatos> HojasDe(const Disposicion& disposicion, const Conjuntos& conjuntos) {
    std::vector<HojaDatos> hojas;
    for (int t = 0; t < static_cast<int>(disposicion.tablas.size()); ++t) {
        const TablaUsada& tabla = disposicion.tablas[static_cast<std::size_t>(t)];
        HojaDatos hoja;
        hoja.nombre = QString::fromStdString(tabla.hoja);
        for (const TablaUsada::Columna& columna : tabla.columnas)
            hoja.columnas.push_back({QString::fromStdString(columna.titulo), columna.formato});
        hoja.filas.resize(conjuntos.Filas(t));
        for (std::size_t f = 0; f < hoja.filas.size(); ++f) {
            for (int c = 0; c < static_cast<int>(tabla.columnas.size()); ++c)
                hoja.filas[f].push_back(conjuntos.Celda({t, c}, f));
        }
        UnTipoPorColumna(hoja);
        hojas.push_back(std::move(hoja));
    }
    return hojas;
}

// The rows that fields of a page heading are taken from: those of the page; of a table without a row there the one tied to them, or else the
// first.
class FilaDePagina {
public:
    FilaDePagina(const Disposicion& disposicion, const Conjuntos& conjuntos, const Evaluador& evaluador,
                 const Contexto* dePagina) {
        for (int t = 0; t < static_cast<int>(disposicion.tablas.size()); ++t)
            m_filas.push_back({Fila(), t, 0, nullptr});
        // A copy of the chain of the page, with the first rows behind it.
        std::vector<const Contexto*> cadena;
        for (const Contexto* c = dePagina; c; c = c->fuera)
            cadena.insert(cadena.begin(), c);
        for (const Contexto* c : cadena)
            m_filas.push_back({Fila(), c->tabla, c->fila, c->filas});
        for (int t = 0; t < static_cast<int>(disposicion.tablas.size()); ++t) {
            const auto& lazos = disposicion.tablas[static_cast<std::size_t>(t)].lazos;
            if (lazos.empty() || evaluador.ContextoDe(t, dePagina))
                continue;
            std::vector<const Valor*> valores;
            valores.reserve(lazos.size());
            for (const Lazo& lazo : lazos)
                valores.push_back(&evaluador.Celda(lazo.exterior, Fila()));
            const auto suyas = conjuntos.Buscar(lazos, valores);
            m_filas.push_back({Fila(), t, suyas.empty() ? conjuntos.Filas(t) : suyas.front(), nullptr});
        }
    }
    const Contexto* Fila() const { return m_filas.empty() ? nullptr : &m_filas.back(); }

private:
    std::deque<Contexto> m_filas;
};

void PonerEnPagina(Pagina& pagina, Tira tira, double x, double y, bool detras) {
    std::vector<Trozo> trozos;
    for (Trozo& trozo : tira.trozos) {
        if (auto* caja = std::get_if<CajaColocada>(&trozo))
            caja->lugar.translate(x, y);
        else if (auto* texto = std::get_if<TextoColocado>(&trozo))
            texto->base += QPointF(x, y);
        else
            std::get<GraficoColocado>(trozo).lugar.translate(x, y);
        trozos.push_back(std::move(trozo));
    }
    pagina.trozos.insert(detras ? pagina.trozos.end() : pagina.trozos.begin(),
                         std::make_move_iterator(trozos.begin()), std::make_move_iterator(trozos.end()));
}

} // namespace

InformeTerminado GenerarInforme(const Disposicion& disposicion, const FuenteDeTablas& fuente,
                                const PeticionInforme& peticion) {
    const Conjuntos conjuntos(disposicion, fuente, peticion.formulaSeleccion);
    const DatosDeInforme datos{peticion.titulo, peticion.parametros, Hoy(), peticion.ganadero};
    const Evaluador evaluador(disposicion, conjuntos, datos);
    Medidor medidor(disposicion.familias);
    Bandas bandas(conjuntos, evaluador, medidor);
    Compositor compositor(disposicion, conjuntos, evaluador, bandas);
    const double altoCabecera = disposicion.cabeceraPagina ? disposicion.cabeceraPagina->alto : 0;
    Paginador paginador(disposicion.AltoUtil(), disposicion.izquierda, disposicion.arriba + altoCabecera);
    paginador.Colocar(compositor.Componer());

    for (std::size_t i = 0; i < paginador.Hojas().size(); ++i) {
        const FilaDePagina fila(disposicion, conjuntos, evaluador, paginador.ContextoDe(i));
        const auto hacer = [&](const std::optional<Banda>& banda, double y, bool detras) {
            if (banda && evaluador.Cumple(banda->si, fila.Fila()))
                PonerEnPagina(paginador.Hojas()[i],
                              bandas.Hacer(*banda, fila.Fila(), 0, disposicion.AnchoUtil(), false,
                                           paginador.NumeroDe(i)),
                              disposicion.izquierda, y, detras);
        };
        hacer(disposicion.cabeceraPagina, disposicion.arriba, false);
        if (disposicion.piePagina)
            hacer(disposicion.piePagina,
                  disposicion.altoPagina - disposicion.abajo - disposicion.piePagina->alto, true);
    }

    InformeTerminado informe;
    informe.titulo = peticion.titulo;
    informe.nombrePropuesto = QFileInfo(QString::fromStdString(disposicion.fichero)).completeBaseName();
    informe.paginas.tamaño = QSizeF(disposicion.anchoPagina, disposicion.altoPagina);
    informe.paginas.paginas = std::move(paginador.Hojas());
    informe.paginas.indice = std::move(paginador.Indice());
    informe.paginas.figuras = std::move(bandas.Figuras());
    informe.paginas.letras = medidor.Letras();
    informe.encabezado = peticion.titulo.trimmed();
    if (const QString deQuien = evaluador
                                    .Texto(disposicion.encabezado,
                                           FilaDePagina(disposicion, conjuntos, evaluador, nullptr).Fila())
                                    .trimmed();
        !deQuien.isEmpty())
        informe.encabezado += QStringLiteral(" · ") + deQuien;
    informe.hojas = HojasDe(disposicion, conjuntos);
    return informe;
}

} // namespace pastorix
