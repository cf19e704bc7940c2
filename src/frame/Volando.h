#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;

namespace pastorix {

// The progress form of the exchange: a sheet that flies from one folder to another, a bar and a percentage. The caller drives
// it; it has nothing to press.
class Volando : public QDialog {
    Q_OBJECT

public:
    explicit Volando(QWidget* padre = nullptr);

    // Text beside the bar's place when there is no percentage to tell ("Exportando datos para el Servidor").
    void PonerRotulo(const QString& texto);
    void OcultarBarra();
    // Sets bar and label and draws the form.
    void MostrarProgreso(int porcentaje);

protected:
    void keyPressEvent(QKeyEvent* evento) override;

private:
    QWidget* m_animacion;
    QProgressBar* m_barra;
    QLabel* m_porcentaje;
};

} // namespace pastorix
