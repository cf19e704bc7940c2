#pragma once

#include "frame/Sesion.h"

#include <QDialog>
#include <QElapsedTimer>

#include <memory>

class QLabel;
class QProgressBar;

namespace pastorix {

// The small progress form: what is being done, a bar, a percentage. It has nothing to press; its owner closes it. Cheap enough to be
// told of every row, because it paints only when the percentage changes.
class Ciclo : public QDialog {
    Q_OBJECT

public:
    explicit Ciclo(QWidget* padre = nullptr, const QString& texto = QStringLiteral("Generando informe"));

    // Takes hecho of total as whole per cent, halves to even; what rounds to 0 is shown as 1.
    void Avance(int hecho, int total);
    // Another text; it is seen with the next Avance.
    void Rotular(const QString& texto);

protected:
    void keyPressEvent(QKeyEvent* evento) override;

private:
    QLabel* m_rotulo;
    QLabel* m_porcentaje;
    QProgressBar* m_barra;
    int m_mostrado = -1;
};

// A Ciclo that appears only when the work lasts longer than half a second, and goes with this object.
class CicloTardio {
public:
    CicloTardio(QWidget* padre, QString texto);
    void Avance(int hecho, int total);
    void Rotular(const QString& texto);

private:
    QWidget* m_padre;
    QString m_texto;
    QElapsedTimer m_reloj;
    std::unique_ptr<Ciclo> m_ciclo;
};

// The same as a function to hand to a work that reports its progress; the form goes when the function does.
FuncionAvance AvanceTardio(QWidget* padre, const QString& texto);

} // namespace pastorix
