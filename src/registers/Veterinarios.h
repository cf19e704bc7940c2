#pragma once

#include "frame/ficha/Ficha.h"

namespace pastorix {

// The sheet of veterinarians: person, address and login name.
class Veterinarios : public Ficha {
public:
    explicit Veterinarios(Sesion& sesion, QWidget* padre = nullptr);

protected:
    bool PermiteAñadir() override;
    void MostrarPropios(Recordset& rs) override;
    bool Comprobar() override;
    void EscribirPropios(Recordset& rs) override;
    void EscribirHijos(double codigo) override;
    void BuscarDato(int icono) override;

private:
    double m_idDireccion = 0; // of the address that the save at hand writes
};

} // namespace pastorix
