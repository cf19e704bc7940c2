#pragma once

#include "registers/datos/VacaEnMano.h"
#include "reproduction/AbrirCiclos.h"

#include <QDialog>

#include <vector>

class QLabel;

namespace pastorix {

class CampoTexto;
class RejillaHijos;

// What the two quick additions differ in. Texts go into boxes as they stand.
struct DefinicionAlta {
    const char* nombre;
    const char* titulo;
    const char* rejilla;
    const char* sinAño;   // box when the year has not four figures
    const char* sinParto; // box when the parity is empty: this text and the year
    std::vector<CicloDeVaca> (*leer)(Conexion&, double);
    bool (*añadir)(Conexion&, const CicloDeVaca&, const PropuestaDeCiclo&);
    std::string (*reparo)(const std::string& nParto) = nullptr; // a remark on the parity that is typed
};

extern const DefinicionAlta kAltaCubricion;
extern const DefinicionAlta kAltaParto;

// Asks for the year and the parity of a cycle beside a list of those that the cow has, and adds its record unless it is there.
class AltaDeCiclo : public QDialog {
public:
    // Throws ErrorAlmacen.
    AltaDeCiclo(Conexion& c, const DefinicionAlta& definicion, double idVaca,
                const PropuestaDeCiclo& propuesta, QWidget* padre);

    // The cycle that was asked for, once the dialog is accepted.
    const CicloDeVaca& Ciclo() const { return m_ciclo; }

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    QWidget* CrearCampos();
    void Copiar(int fila);
    void Aceptar();

    Conexion& m_c;
    const DefinicionAlta& m_definicion;
    const PropuestaDeCiclo m_propuesta;
    CicloDeVaca m_ciclo;
    std::vector<CicloDeVaca> m_ciclos;
    CampoTexto* m_año;
    CampoTexto* m_parto;
    QLabel* m_reparo = nullptr;
    RejillaHijos* m_rejilla;
};

} // namespace pastorix
