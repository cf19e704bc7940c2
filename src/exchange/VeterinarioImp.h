#pragma once

#include "exchange/datos/UnirVeterinario.h"
#include "frame/Sesion.h"

#include <QDialog>

#include <array>
#include <cstdint>

class QLabel;
class QLineEdit;
class QPushButton;

namespace pastorix {

// What the forms of a join share with the import: which file they work on, and what came of it.
struct EstadoDeUnion {
    std::filesystem::path PaqueteImportado;
    std::uint8_t ResultadoImportacion = 0; // 0 accepted, 99 cancelled
};

// Code and login of a veterinarian who joins.
class VeterinarioImp : public QDialog {
    Q_OBJECT

public:
    VeterinarioImp(Sesion& sesion, EstadoDeUnion& estado, QWidget* padre = nullptr);
    void Poner(const QString& codigo, const QString& usuario);
    // B_Aceptar: true when the package has been renumbered.
    bool Aceptar();

private:
    void Cargar();

    Sesion& m_sesion;
    EstadoDeUnion& m_estado;
    Conexion m_paquete;
    VeterinarioNuevo m_nuevo;
    std::array<QLineEdit*, 2> m_campos{}; // Ct_Est: code, login
    std::array<QLabel*, 3> m_rotulos{};   // Label1(4) to Label1(6)
    QPushButton* m_aceptar = nullptr;
};

} // namespace pastorix
