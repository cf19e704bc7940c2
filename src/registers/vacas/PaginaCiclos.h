#pragma once

#include "registers/datos/CiclosDeVaca.h"

#include <QWidget>

#include <functional>
#include <span>
#include <vector>

class QLabel;
class QPushButton;

namespace pastorix {

class LineaDeTiempo;
class RejillaHijos;
struct ColumnaHijos;

// What the tabs of calvings and of matings differ in.
struct DefinicionCiclos {
    const char* rejilla;
    const char* nombre; // accessible
    const char* botonAñadir;
    const char* botonEliminar;
    const char* textoAñadir;
    std::span<const ColumnaHijos> columnas;
    std::vector<CicloDeVaca> (*leer)(Conexion&, double);
    std::vector<Valor> (*celdas)(const CicloDeVaca&);
    void (*eliminar)(Conexion&, const CicloDeVaca&);
    QString (*pregunta)(const CicloDeVaca&);
    const char* comienzo;  // how an empty tab says to begin
    bool conLinea = false; // the cycles are drawn on a time line too
};

extern const DefinicionCiclos kPartosDeVaca;
extern const DefinicionCiclos kCubricionesDeVaca;

// A tab of the cow's sheet with one of the two lists of her cycles, and the buttons that add and remove one.
class PaginaCiclos : public QWidget {
public:
    PaginaCiclos(Conexion& c, const DefinicionCiclos& definicion, QWidget* padre = nullptr);

    // Throws ErrorAlmacen. With 0 nothing is shown.
    void Mostrar(double idVaca);
    // Opens the latest cycle of the list.
    void AbrirUltimo();
    // What a double click and the button do; empty: not there yet, and the button is off.
    void FijarOrdenes(std::function<void(const CicloDeVaca&)> abrir, std::function<void()> añadir);

    std::function<void()> alCambiar;   // cycles were opened, added or removed here
    std::function<bool()> puedeOperar; // false, after its own box, while the sheet is being edited

protected:
    void showEvent(QShowEvent* evento) override;

private:
    void Colocar();
    void Añadir();
    void Eliminar();
    void Abrir(const CicloDeVaca& ciclo);
    void MostrarLinea();
    void Habilitar();
    void Releer();

    Conexion& m_c;
    const DefinicionCiclos& m_definicion;
    RejillaHijos* m_rejilla;
    QLabel* m_comienzo;
    LineaDeTiempo* m_linea = nullptr;
    bool m_lineaPendiente = false; // it is read when it comes into sight
    QPushButton* m_añadir;
    QPushButton* m_eliminar;
    std::vector<CicloDeVaca> m_ciclos;
    std::function<void(const CicloDeVaca&)> m_abrir;
    std::function<void()> m_alAñadir;
    double m_idVaca = 0;
};

} // namespace pastorix
