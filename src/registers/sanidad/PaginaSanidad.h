#pragma once

#include "frame/ficha/LineasEditables.h"
#include "registers/datos/LineasSanidad.h"

#include <QString>
#include <QWidget>

#include <functional>

namespace pastorix {

// A page of the cow's sheet about her health. The sheet says which cow; the page reads, and writes what is its own.
class PaginaSanidad : public QWidget {
public:
    PaginaSanidad(Conexion& base, QWidget* padre);

    // Reads everything of the cow anew, throwing away what was not saved; with no cow the page is empty and off. Throws ErrorAlmacen.
    virtual void Mostrar(VacaEnHoja vaca) = 0;
    // Reads the same cow again, unless something typed here is not saved yet.
    void Refrescar();
    // Something was typed here that is not in the database.
    virtual bool Pendiente() const = 0;
    // Saves what the page saves by itself; false when something is still not saved.
    virtual bool Guardar() = 0;
    // Throws away what was not saved.
    void Descartar() {
        Intentar([this] { Mostrar(m_vaca); });
    }
    // How the user knows the page: "C.C.".
    virtual QString Titulo() const = 0;

protected:
    Conexion& Base() const { return m_base; }
    const VacaEnHoja& Vaca() const { return m_vaca; }
    void FijarVaca(VacaEnHoja vaca) { m_vaca = vaca; }
    // Runs what a user asked for as one durable unit; on failure a box with the cause, and false.
    bool Intentar(const std::function<void()>& accion);

private:
    Conexion& m_base;
    VacaEnHoja m_vaca;
};

// The lines of a table by natural year, the latest first, with the texts that all of them share.
DefinicionLineas PorAñosNaturales(const char* rejilla, const char* nombre, const TablaNatural& tabla,
                                  std::span<const AspectoColumna> aspectos,
                                  const char* eliminar = "Eliminar el Año Natural: ");

// A list of the database as items of a combo.
QStringList ComoItems(const std::vector<std::string>& lista);

} // namespace pastorix
