// Any bytes as a layout: they are read, and what turns out to be a layout is run over a few made-up rows and drawn.

#include "frame/calendario/Reloj.h"
#include "reports/motor/Dibujante.h"
#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Informe.h"
#include "reports/motor/LectorDisposicion.h"
#include "store/LocaleNumerico.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cstdint>

using namespace pastorix;

namespace {

constexpr std::size_t PaginasDibujadas = 3;

// Three rows for every table that the layout names, with columns of every kind.
TablasEnMemoria TablasPara(const Disposicion& d) {
    const Valor valores[] = {Valor(),
                             7.5,
                             std::string("un texto algo largo, que no siempre cabe"),
                             std::int64_t{3},
                             Fecha{45000, 0},
                             std::string("7,5")};
    TablasEnMemoria fuente;
    for (const TablaUsada& usada : d.tablas) {
        TablaDatos tabla;
        tabla.nombre = usada.nombre;
        for (const auto& columna : usada.columnas)
            tabla.columnas.push_back(columna.nombre);
        for (std::size_t f = 0; f < 3; ++f) {
            tabla.filas.emplace_back();
            for (std::size_t c = 0; c < tabla.columnas.size(); ++c)
                tabla.filas.back().push_back(valores[(f + c) % std::size(valores)]);
        }
        fuente.Poner(std::move(tabla));
    }
    return fuente;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication aplicacion(*argc, *argv);
    FijarLocaleNumerico();
    FijarHoy(Fecha::De(2026, 11, 22));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t n) {
    try {
        const Disposicion d = LeerDisposicion({reinterpret_cast<const char*>(datos), n}, "fuzz.rpt");
        PeticionInforme peticion;
        for (const ParametroUsado& parametro : d.parametros)
            peticion.parametros[parametro.nombre] = "2026";
        const InformeTerminado informe = GenerarInforme(d, TablasPara(d), peticion);
        QImage imagen(300, 300, QImage::Format_RGB32);
        QPainter pintor(&imagen);
        for (std::size_t p = 0; p < std::min(PaginasDibujadas, informe.paginas.paginas.size()); ++p)
            DibujarPagina(pintor, informe.paginas, p, 1);
    } catch (const ErrorInforme&) {
    }
    return 0;
}
