#pragma once

#include "frame/Sesion.h"

#include <QDialog>

#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace pastorix {

class ControlInforme;

// What the report forms share: the pickers of veterinarian, farmer and year, and the frame around B_Aceptar. A form adds its own
// checks, fills its tables and runs its layout.
class FormularioDeInforme : public QDialog {
public:
    // The form lives as long as the session and the control. Reads veterinarians and farmers at once.
    FormularioDeInforme(Sesion& sesion, ControlInforme& control, const QString& titulo,
                        QWidget* padre = nullptr,
                        const QString& rotuloAño = QStringLiteral("Año Referencia"));

    // For callers without a display: checks the farmer as a click would. False when the list does not offer him.
    bool MarcarGanadero(double idGanadero);
    void PonerAño(const QString& año);
    // B_Aceptar: validation, tables, layout; every failure ends in a box. True when the report was handed over.
    bool Aceptar();

protected:
    // Checks of the form, each with its own box; false stops before any table is touched.
    virtual bool Validar() = 0;
    // Fills the scratch tables; progress goes to `avance` in per cent.
    virtual void Llenar(const FuncionAvance& avance) = 0;
    // Sets the members of the control and runs it.
    virtual void Lanzar(ControlInforme& control) = 0;

    Conexion& Base() const { return m_sesion.conexion; }
    const Rutas& Carpetas() const { return m_sesion.rutas; }
    QString Año() const;
    std::vector<double> GanaderosMarcados() const;
    // Box with title "Información", as all validation messages of the reports.
    void Informar(const QString& texto);

    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void Construir(const QString& rotuloAño);
    void LlenarVeterinarios();
    void LlenarGanaderos();
    void DejarUnoSolo(int fila);

    Sesion& m_sesion;
    ControlInforme& m_control;
    QComboBox* m_veterinario = nullptr;       // Cd_Veterinario
    std::vector<double> m_lst_Id_Veterinario; // same index
    QListWidget* m_lstGanadero = nullptr;
    std::vector<double> m_lst_Id_Ganadero; // same index
    QLineEdit* m_año = nullptr;            // Ct_E
    QPushButton* m_aceptar = nullptr;
};

} // namespace pastorix
