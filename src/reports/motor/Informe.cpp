#include "reports/motor/Informe.h"

#include "frame/calendario/Reloj.h"
#include "reports/motor/Compositor.h"
#include "reports/motor/Paginador.h"

#include <QFileInfo>

namespace pastorix {

namespace {

// The rows of every set that stands by itself, with those joined to it.
std::vector<HojaDatos> HojasDe(const Disposicion& disposicion, const Conjuntos& conjuntos) {
    std::vector<HojaDatos> hojas;
    for (int raiz = 0; raiz < static_cast<int>(disposicion.tablas.size()); ++raiz) {
        if (disposicion.Raiz(raiz) != raiz)
            continue;
        HojaDatos hoja;
        hoja.nombre = QString::fromStdString(disposicion.tablas[static_cast<std::size_t>(raiz)].hoja);
        std::vector<RefCampo> campos;
        for (int t = 0; t < static_cast<int>(disposicion.tablas.size()); ++t) {
            if (disposicion.Raiz(t) != raiz)
                continue;
            const auto& columnas = disposicion.tablas[static_cast<std::size_t>(t)].columnas;
            for (std::size_t c = 0; c < columnas.size(); ++c) {
                campos.push_back({t, static_cast<int>(c)});
                hoja.columnas.push_back({QString::fromStdString(columnas[c].titulo), columnas[c].formato});
            }
        }
        hoja.filas.resize(conjuntos.Filas(raiz));
        for (std::size_t f = 0; f < hoja.filas.size(); ++f) {
            for (const RefCampo campo : campos)
                hoja.filas[f].push_back(conjuntos.Celda(campo, f));
        }
        hojas.push_back(std::move(hoja));
    }
    return hojas;
}

// The row that fields of a page heading are taken from: that of the page, or of any table without a row there the first one.
class FilaDePagina {
public:
    FilaDePagina(const Disposicion& disposicion, const Contexto* dePagina) {
        for (int raiz = 0; raiz < static_cast<int>(disposicion.tablas.size()); ++raiz) {
            if (disposicion.Raiz(raiz) == raiz)
                m_primeras.push_back({m_primeras.empty() ? nullptr : &m_primeras.back(), raiz, 0, nullptr});
        }
        // A copy of the chain of the page, with the first rows behind it.
        std::vector<const Contexto*> cadena;
        for (const Contexto* c = dePagina; c; c = c->fuera)
            cadena.insert(cadena.begin(), c);
        for (const Contexto* c : cadena)
            m_primeras.push_back(
                {m_primeras.empty() ? nullptr : &m_primeras.back(), c->raiz, c->fila, c->filas});
    }
    const Contexto* Fila() const { return m_primeras.empty() ? nullptr : &m_primeras.back(); }

private:
    std::deque<Contexto> m_primeras;
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
    const DatosDeInforme datos{peticion.titulo, peticion.parametros, Hoy()};
    const Evaluador evaluador(disposicion, conjuntos, datos);
    Medidor medidor(disposicion.familias);
    Bandas bandas(disposicion, conjuntos, evaluador, medidor);
    Compositor compositor(disposicion, conjuntos, evaluador, bandas);
    const double altoCabecera = disposicion.cabeceraPagina ? disposicion.cabeceraPagina->alto : 0;
    Paginador paginador(disposicion.AltoUtil(), disposicion.izquierda, disposicion.arriba + altoCabecera);
    paginador.Colocar(compositor.Componer());

    const auto total = static_cast<int>(paginador.Hojas().size());
    for (std::size_t i = 0; i < paginador.Hojas().size(); ++i) {
        const FilaDePagina fila(disposicion, paginador.ContextoDe(i));
        const auto hacer = [&](const std::optional<Banda>& banda, double y, bool detras) {
            if (banda && evaluador.Cumple(banda->si, fila.Fila()))
                PonerEnPagina(paginador.Hojas()[i],
                              bandas.Hacer(*banda, fila.Fila(), 0, disposicion.AnchoUtil(), false,
                                           static_cast<int>(i) + 1, total),
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
    informe.paginas.letras = medidor.Letras();
    informe.hojas = HojasDe(disposicion, conjuntos);
    return informe;
}

} // namespace pastorix
