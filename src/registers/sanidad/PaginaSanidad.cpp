#include "registers/sanidad/PaginaSanidad.h"

#include "frame/Mensajes.h"

namespace pastorix {

PaginaSanidad::PaginaSanidad(Conexion& base, QWidget* padre)
    : QWidget(padre)
    , m_base(base) {}

void PaginaSanidad::Refrescar() {
    if (!Pendiente())
        Mostrar(m_vaca);
}

bool PaginaSanidad::Intentar(const std::function<void()>& accion) {
    try {
        EnGrupo(m_base, accion);
        return true;
    } catch (const std::exception& e) {
        AvisarError(this, e);
        return false;
    }
}

DefinicionLineas PorAñosNaturales(const char* rejilla, const char* nombre, const TablaNatural& tabla,
                                  std::span<const AspectoColumna> aspectos, const char* eliminar) {
    DefinicionLineas d{rejilla, nombre, tabla.columnas, aspectos};
    d.descendente = true;
    d.sinAño = "Debe incluir un año natural";
    d.repetido = "El año: ";
    d.repetidoFin = " ya está incluido en la lista";
    d.tituloAviso = "Atención!!!";
    d.eliminar = eliminar;
    d.tituloEliminar = "Confirme";
    return d;
}

QStringList ComoItems(const std::vector<std::string>& lista) {
    QStringList items;
    for (const auto& texto : lista)
        items << QString::fromStdString(texto);
    return items;
}

} // namespace pastorix
