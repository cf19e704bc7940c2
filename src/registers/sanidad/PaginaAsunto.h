#pragma once

#include "frame/ficha/LineasEditables.h"
#include "registers/sanidad/PaginaSanidad.h"

#include <span>

class QLabel;
class QPushButton;

namespace pastorix {

class CampoMemo;

// One page about one subject, as data.
struct DefinicionPagina {
    const char* titulo;
    const AsuntoSanidad& asunto;
    const DefinicionLineas& naturales;
    const DefinicionLineas& ciclos;
    const char* recuadro; // title of the frame around the grids; "" for none
    int anchoNaturales;   // shares of the page's width
    int anchoCiclos;
    bool quitaAlMomento;     // a year that is deleted goes from the database without waiting for the save
    const char* observacion; // names of the controls
    const char* guardar;
    const char* cancelar;
    const char* columnasVacu; // the farm's vaccination dates that its combos offer; nullptr none
    std::span<const std::size_t> combosVacu{}; // column of the natural years for each of them
};

// A page with the natural years of a subject, its mating records and an observation. What is typed lives in the page until its own save button
// rewrites both tables; the sheet's save does not touch them.
class PaginaAsunto : public PaginaSanidad {
public:
    PaginaAsunto(Conexion& base, const DefinicionPagina& definicion, QWidget* padre);

    void Mostrar(VacaEnHoja vaca) override;
    bool Pendiente() const override;
    QString Titulo() const override;

    bool Guardar() override;
    void Cancelar();

private:
    QWidget* CrearRejillas();
    QWidget* CrearPie();
    LineasEditables* CrearLineas(const DefinicionLineas& definicion, QWidget* padre);
    void Habilitar(bool si);
    void LlenarListas();
    void QuitarAño(const Linea& linea);
    void Tocar();
    void RefrescarBotones();
    bool Recoger(); // what stands in the entry fields goes into the grids; false after a box
    Valor Observacion() const;

    const DefinicionPagina& m_definicion;
    LineasEditables* m_naturales = nullptr;
    LineasEditables* m_ciclos = nullptr;
    CampoMemo* m_observacion = nullptr;
    QLabel* m_aviso = nullptr;
    QPushButton* m_guardar = nullptr;
    QPushButton* m_cancelar = nullptr;
    Valor m_observacionLeida;
    bool m_tocada = false;   // a line was changed
    bool m_enLaBase = false; // the change that is about to be told is in the database already
};

} // namespace pastorix
