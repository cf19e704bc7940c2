#pragma once

#include "registers/explotacion/Materias.h"

#include <QWidget>

class QHBoxLayout;
class QPushButton;

namespace pastorix {

class CampoMemo;

// One subject on screen: its grid with the strip of fields below, the note of the whole farm, and the buttons that save and cancel. A line
// is saved the moment it goes into the grid or leaves it, and the note goes with it. The rows are read when the page comes up.
class PaginaMateria : public QWidget {
public:
    PaginaMateria(Conexion& base, const DefinicionMateria& hoja, QWidget* padre = nullptr);

    // Whose rows to show; 0 nobody's. What was typed for the same farmer and not saved stays.
    void FijarGanadero(double idGanadero);
    bool Pendiente() const; // typed and not in the database
    const DefinicionMateria& Hoja() const { return m_hoja; }

    bool
    Guardar(); // the line in progress too, as Enter in its last field would; false when something is still not saved
    void Cancelar(); // rows and note as they are in the database

protected:
    virtual DatosMateria Leer();
    virtual std::vector<Linea> PorGuardar() const { return m_lineas->Lineas(); }
    virtual void DespuesDeGuardar() {}
    void showEvent(QShowEvent* evento) override;

    Conexion& Base() const { return m_base; }
    double Ganadero() const { return m_ganadero; }
    LineasEditables& Rejilla() const { return *m_lineas; }
    bool Leida() const { return m_leida; }
    const std::vector<Linea>& Ocultas() const { return m_ocultas; }
    void Cargar();

private:
    void CrearNota();
    void VigilarEntradas();
    void Mostrar(DatosMateria datos);
    void GuardarTodo();
    void EstadoBotones();
    std::string Nota() const;

    Conexion& m_base;
    const DefinicionMateria& m_hoja;
    LineasEditables* m_lineas;
    CampoMemo* m_nota = nullptr;
    QPushButton* m_guardar = nullptr;
    QPushButton* m_cancelar = nullptr;
    std::vector<Linea> m_ocultas;
    double m_ganadero = 0;
    bool m_leida = false;      // the grid holds this farmer's rows; without that nothing may be written
    bool m_porGuardar = false; // the last save failed
};

} // namespace pastorix
