#pragma once

#include "registers/datos/Mamitis.h"
#include "registers/sanidad/PaginaSanidad.h"

class QGridLayout;
class QLabel;

namespace pastorix {

class CampoTexto;
class LineasEditables;
class Ubre;

// Page " Mamitis ": the quarters of the udder, what was done at the end of each lactation, and the vaccinations against mastitis. Quarters and
// lactations are saved with the cow's sheet; the vaccinations go to the database line by line.
class PaginaMamitis : public PaginaSanidad {
public:
    PaginaMamitis(Conexion& base, QWidget* padre);

    void Mostrar(VacaEnHoja vaca) override;
    bool Pendiente() const override;
    bool Guardar() override { return Recoger() && !Pendiente(); }
    QString Titulo() const override { return QStringLiteral("Mamitis"); }

    // The sheet's own field of lost quarters, with its caption.
    void PonerCuartosPerdidos(QWidget* campo);
    // Teats and lactations to their tables, for the sheet's save. Throws ErrorAlmacen.
    void EscribirHijos(double idVaca);

    // Puts lines in progress into their lists before the sheet is saved; false, after its box, when one cannot go.
    bool Recoger();

    std::function<bool()> puedeTocar; // false: no record on the sheet, nothing can be changed
    std::function<void()> alTocar;    // something that the sheet saves was changed

private:
    struct CamposDeTeto {
        QLabel* rotulo;
        CampoTexto* fecha;
        CampoTexto* nota;
    };
    QWidget* CrearCuartos();
    QWidget* CrearListas();
    QWidget* CrearTeto(std::size_t i, QWidget* padre);
    bool Puede() const { return !puedeTocar || puedeTocar(); }
    void Tocar();
    void MostrarTeto(std::size_t i);
    void GuardarVacunas();
    Tetos Recogidos() const;

    QGridLayout* m_cuartos = nullptr;
    Ubre* m_ubre = nullptr;
    std::array<CamposDeTeto, kTetos> m_campos{};
    LineasEditables* m_lactaciones = nullptr;
    LineasEditables* m_vacunas = nullptr;
    Tetos m_tetos; // as read
    bool m_tocada = false;
    bool m_vacunasPorGuardar = false; // their last save failed
    bool m_guardando = false;
};

} // namespace pastorix
