#pragma once

#include "frame/ficha/LineasEditables.h"
#include "registers/datos/CiclosDeVaca.h"
#include "store/Fecha.h"

#include <QWidget>

#include <functional>
#include <optional>

class QLabel;

namespace pastorix {

// The services of a mating record on its sheet: up to four lines, entered one at a time below their grid. Every line that is accepted or deleted is
// told, and the whole set is then written by the sheet.
class PaginaServicios : public QWidget {
public:
    PaginaServicios(Conexion& c, double idGanadero, QWidget* padre = nullptr);

    // Reads the set. Throws ErrorAlmacen.
    void Mostrar(const CicloDeVaca& ciclo);
    void FijarCiclo(const CicloDeVaca& ciclo) { m_ciclo = ciclo; } // the same lines, under another parity
    void Escribir(const CicloDeVaca& ciclo); // rewrites it. Throws ErrorAlmacen, with the rows as they were

    // Remarks on lines that cannot be, as their cells and the line above the grid say.
    void Repasar(std::optional<Fecha> parto, std::optional<Fecha> baja);

    std::optional<Fecha> Primero() const; // date of the first line
    std::optional<Fecha> Ultimo() const;  // of the last one, also when only others have a date
    // Number, count of inseminations and bull of the last line; "" without lines.
    std::string DelUltimo(std::size_t columna) const;
    bool EnCurso() const { return m_lineas->EnCurso(); }
    bool Resolver(); // a line in progress goes into the list or is given up, as the user says; false to stay

    std::function<void()> alCambiar; // a line was accepted or deleted

private:
    std::optional<Fecha> FechaDe(const Linea& linea) const;
    void BuscarToro();
    void ProponerNumero();
    void AlEntrar(std::size_t columna);

    Conexion& m_c;
    const double m_idGanadero;
    CicloDeVaca m_ciclo;
    LineasEditables* m_lineas;
    QLabel* m_aviso;
    QString m_sinSitio; // lines that the grid does not hold
};

} // namespace pastorix
